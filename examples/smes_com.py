"""Ethanol and water from Python on Windows, over COM. Needs the package pywin32 and a registered velor.dll of the same
bitness as Python."""

import pythoncom
import win32com.client


def main():
    smes = win32com.client.Dispatch("VELOR.Smes")
    smes.DefSlozky([235, 1])
    if smes.Inivlr() != 2:
        raise SystemExit("látky nejsou v bázi")
    smes.ChyboveHlasky = -1  # errors are raised, too
    fractions = [0.0, 0.4, 0.6]  # Python's arrays count from 0, the fractions from 1
    print(smes.Nazev(1).strip(), "+", smes.Nazev(2).strip())
    print(f"hustota {smes.ROLW(293.15, fractions):.1f} kg/m3")
    print(f"bod varu {smes.TBV(101325.0, fractions):.2f} K")
    try:
        smes.Log10(-1)
    except pythoncom.com_error as error:
        _, source, description, _, _, code = error.excepinfo
        print(f"chyba {code & 0xFFFF}: {source}, {description}")


if __name__ == "__main__":
    main()
