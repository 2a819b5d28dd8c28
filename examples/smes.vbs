' Ethanol and water: density, boiling point and a flash. Run it with: cscript //nologo smes.vbs
Option Explicit
Dim smes, X(2), T, P
Set smes = CreateObject("VELOR.Smes")
smes.DefSlozky Array(235, 1)
If smes.Inivlr <> 2 Then WScript.Quit 1
smes.ChyboveHlasky = -1 ' errors are raised to the script, too; after DefSlozky, which sets it to 0
X(1) = 2: X(2) = 3 ' parts, counted from 1
smes.Normal X ' fractions, in place
WScript.Echo Trim(smes.Nazev(1)) & " + " & Trim(smes.Nazev(2))
WScript.Echo "hustota " & Round(smes.ROLW(293.15, X)) & " kg/m3"
P = 101325
WScript.Echo "bod varu " & Round(smes.TBV(P, X)) & " K"
T = (smes.TBV(P, X) + smes.TRB(P, X)) / 2
smes.FLASH 0, T, P, X
WScript.Echo "podil pary " & Round(100 * smes.lastFlash("vapourFraction")) & " %"

On Error Resume Next
smes.ROLW "teplo", X
WScript.Echo "chyba " & Err.Number & ": " & Err.Source & ", " & Err.Description
