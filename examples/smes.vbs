' Ethanol and water: density, boiling point and a flash. Run it with: cscript //nologo smes.vbs
Option Explicit
Dim smes, X(2), T, P
Set smes = CreateObject("VELOR.Smes")
CheckDatabase
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
On Error GoTo 0

' VELOR.CFG beside velor.dll says where the database lies. Without it the first use would search every drive, and where
' the path in it leads nowhere it would ask whether to delete it.
Sub CheckDatabase
    Dim files, configuration, database, lines
    Set files = CreateObject("Scripting.FileSystemObject")
    configuration = smes.CFGPath & smes.CFGName
    database = smes.CFGPath & smes.DataFileName
    If files.FileExists(configuration) Then
        lines = Split(files.OpenTextFile(configuration).ReadAll & vbCrLf & vbCrLf, vbCrLf)
        ' In UTF-8, which cannot be read here, it was written for the database beside velor.dll.
        If Asc(lines(0) & " ") <> 239 Then database = Replace(lines(1), """", "")
    Else
        smes.AdrVELOR = database
    End If
    If files.FileExists(database) Then Exit Sub
    WScript.Echo "Chybi databaze " & database & ": dejte VELOR.DRC vedle velor.dll a spustte install.cmd."
    WScript.Quit 1
End Sub
