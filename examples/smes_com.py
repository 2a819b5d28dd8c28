"""Ethanol and water from Python on Windows, over COM. Needs the package pywin32 and a registered velor.dll of the same
bitness as Python."""

import os

import pythoncom
import win32com.client


def check_database(smes):
    """VELOR.CFG beside velor.dll says where the database lies. Without it the first use would search every drive, and
    where the path in it leads nowhere it would ask whether to delete it."""
    configuration, database = smes.CFGPath + smes.CFGName, smes.CFGPath + smes.DataFileName
    if os.path.exists(configuration):
        with open(configuration, "rb") as file:
            content = file.read()
        encoding = "utf-8-sig" if content.startswith(b"\xef\xbb\xbf") else "mbcs"
        database = content.decode(encoding).splitlines()[1].strip('" ')
    else:
        smes.AdrVELOR = database
    if not os.path.exists(database):
        raise SystemExit(f"Chybí databáze {database}: dejte VELOR.DRC vedle velor.dll a spusťte install.cmd.")


def main():
    smes = win32com.client.Dispatch("VELOR.Smes")
    check_database(smes)
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
