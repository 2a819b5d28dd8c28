Attribute VB_Name = "VelorFunkce"
' Worksheet functions over VELOR. Import the module, and tick "VELOR - vlastnosti latek a smesi" under Tools, References.
' In a cell: =HustotaSmesi(A1:A2; B1:B2; 293,15), substance numbers in A1:A2, mole parts in B1:B2, kelvin.
Option Explicit

Private Function Smes(ByVal Latky As Range, ByVal Podily As Range, ByRef X As Variant) As VELOR.Smes
    Dim cisla() As Variant, i As Integer
    Set Smes = New VELOR.Smes
    ReDim cisla(0 To Latky.Count - 1)
    ReDim X(1 To Podily.Count)
    For i = 1 To Latky.Count
        cisla(i - 1) = CInt(Latky.Cells(i).Value)
        X(i) = CDbl(Podily.Cells(i).Value)
    Next i
    Smes.DefSlozky cisla
    ' After DefSlozky, which switches the message boxes on: a sheet that recalculates wants errors in its cells.
    Smes.ChyboveHlasky = 1
    If Smes.Inivlr <> Latky.Count Or Podily.Count <> Latky.Count Then Err.Raise 5
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

Public Function HustotaSmesi(ByVal Latky As Range, ByVal Podily As Range, ByVal T As Double) As Variant
    Dim X As Variant
    On Error GoTo Chyba
    HustotaSmesi = Bunka(Smes(Latky, Podily, X).ROLW(T, X))
    Exit Function
Chyba:
    HustotaSmesi = CVErr(xlErrValue)
End Function

Public Function BodVaru(ByVal Latky As Range, ByVal Podily As Range, ByVal P As Double) As Variant
    Dim X As Variant
    On Error GoTo Chyba
    BodVaru = Bunka(Smes(Latky, Podily, X).TBV(P, X))
    Exit Function
Chyba:
    BodVaru = CVErr(xlErrValue)
End Function
