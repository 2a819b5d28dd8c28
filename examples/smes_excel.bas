Attribute VB_Name = "VelorFunkce"
' Worksheet functions over VELOR. Import the module, and tick "VELOR - vlastnosti latek a smesi" under Tools, References.
' In a cell: =HustotaSmesi(A1:A2; B1:B2; 293,15), substance numbers in A1:A2, mole parts in B1:B2, kelvin.
Option Explicit

' Where VELOR.CFG beside velor.dll says that the database lies, or beside velor.dll itself.
Private Function Baze(ByVal Smes As VELOR.Smes) As String
    Dim soubor As Integer, radek As String
    Baze = Smes.CFGPath & Smes.DataFileName
    If Dir(Smes.CFGPath & Smes.CFGName) <> "" Then
        soubor = FreeFile
        Open Smes.CFGPath & Smes.CFGName For Input As #soubor
        Line Input #soubor, radek
        ' In UTF-8, which cannot be read here, it was written for the database beside velor.dll.
        If Asc(radek & " ") <> 239 Then Line Input #soubor, Baze
        Close #soubor
        Baze = Replace(Baze, """", "")
    End If
    If Dir(Baze) = "" Then Err.Raise 53, , "Chybi databaze " & Baze & ": dejte VELOR.DRC vedle velor.dll a spustte install.cmd."
End Function

' A sheet recalculates without boxes: all messages are off, the database is named rather than searched for, and the
' components are set one by one, because DefSlozky would switch the messages on.
Private Function Smes(ByVal Latky As Range, ByVal Podily As Range, ByRef X As Variant) As VELOR.Smes
    Dim i As Integer
    If Podily.Count <> Latky.Count Then Err.Raise 5
    Set Smes = New VELOR.Smes
    Smes.ChyboveHlasky = 2
    Smes.AdrVELOR = Baze(Smes)
    ReDim X(1 To Podily.Count)
    For i = 1 To Latky.Count
        Smes.ZapisNslozky i, CInt(Latky.Cells(i).Value)
        X(i) = CDbl(Podily.Cells(i).Value)
    Next i
    If Smes.Inivlr <> Latky.Count Then Err.Raise 5
    For i = 1 To Latky.Count ' one that is not in the database loads as 0
        If Smes.Nslozky(i) <> CInt(Latky.Cells(i).Value) Then Err.Raise 5
    Next i
    Smes.Normal X
End Function

' What could not be computed is Empty or 0, which a cell must not show as a number.
Private Function Bunka(ByVal Hodnota As Variant) As Variant
    Bunka = Hodnota
    If IsEmpty(Hodnota) Then
        Bunka = CVErr(xlErrValue)
    ElseIf Hodnota <= 0 Then
        Bunka = CVErr(xlErrNum)
    End If
End Function

' What a cell shows of an error: of a missing database how to put it right.
Private Function Potiz() As Variant
    Potiz = CVErr(xlErrValue)
    If Err.Number = 53 Then Potiz = Err.Description
End Function

Public Function HustotaSmesi(ByVal Latky As Range, ByVal Podily As Range, ByVal T As Double) As Variant
    Dim X As Variant
    On Error GoTo Chyba
    HustotaSmesi = Bunka(Smes(Latky, Podily, X).ROLW(T, X))
    Exit Function
Chyba:
    HustotaSmesi = Potiz
End Function

Public Function BodVaru(ByVal Latky As Range, ByVal Podily As Range, ByVal P As Double) As Variant
    Dim X As Variant, reseni As VELOR.Smes, Tmax As Double, i As Integer
    On Error GoTo Chyba
    Set reseni = Smes(Latky, Podily, X)
    ' With messages off TBV has no limit of steps: it is asked only where it boils below all critical temperatures.
    Tmax = 0.95 * reseni.Tkri(1)
    For i = 2 To Latky.Count
        If 0.95 * reseni.Tkri(i) < Tmax Then Tmax = 0.95 * reseni.Tkri(i)
    Next i
    BodVaru = CVErr(xlErrNum)
    If P > 0 And reseni.TENS(Tmax, X) > P Then BodVaru = Bunka(reseni.TBV(P, X))
    Exit Function
Chyba:
    BodVaru = Potiz
End Function
