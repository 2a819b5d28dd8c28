Attribute VB_Name = "VelorFunkce"
' Worksheet functions over VELOR. Import the module, and tick "VELOR - vlastnosti latek a smesi" under Tools, References.
' In a cell: =HustotaSmesi(A1:A2; B1:B2; 293,15), substance numbers in A1:A2, mole parts in B1:B2, kelvin.
Option Explicit

' A sheet recalculates without boxes, and every call ends: what would be shown is in PosledniHlaska.
Private Function Smes(ByVal Latky As Range, ByVal Podily As Range, ByRef X As Variant) As VELOR.Smes
    Dim i As Integer
    If Podily.Count <> Latky.Count Then Err.Raise 5
    Set Smes = New VELOR.Smes
    Smes.Tichy = 1
    ' Without VELOR.CFG the database may still lie beside velor.dll.
    If Smes.AdrVELOR = "" And Dir(Smes.CFGPath & Smes.DataFileName) <> "" Then Smes.AdrVELOR = Smes.CFGPath & Smes.DataFileName
    If Smes.AdrVELOR = "" Then Err.Raise 53, , "Chybi databaze VELOR.DRC: dejte ji vedle velor.dll a spustte install.cmd."
    ReDim X(1 To Podily.Count)
    For i = 1 To Latky.Count
        Smes.ZapisNslozky i, CInt(Latky.Cells(i).Value)
        X(i) = CDbl(Podily.Cells(i).Value)
    Next i
    If Smes.Inivlr <> Latky.Count Then Err.Raise 5, , Smes.PosledniHlaska
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

' What a cell shows of an error: of a missing database or substance the reason.
Private Function Potiz() As Variant
    Potiz = CVErr(xlErrValue)
    If Err.Number = 53 Or InStr(Err.Description, "INIVLR") = 1 Then Potiz = Err.Description
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
    Dim X As Variant, reseni As VELOR.Smes, T As Double
    On Error GoTo Chyba
    Set reseni = Smes(Latky, Podily, X)
    T = reseni.TBV(P, X) ' 0 where it does not converge
    BodVaru = CVErr(xlErrNum)
    ' Held below every critical temperature it may come to rest where nothing boils.
    If T > 0 Then If Abs(reseni.TENS(T, X) - P) < 0.01 * P Then BodVaru = T
    Exit Function
Chyba:
    BodVaru = Potiz
End Function

' Of a whole range at once, as an array formula: =VlastnostiSmesi("ROLW"; A1:A2; B1:B2; D1:F20), with pressures of the same
' shape, or one for all, behind the temperatures where the property needs them.
Public Function VlastnostiSmesi(ByVal Nazev As String, ByVal Latky As Range, ByVal Podily As Range, ByVal T As Variant, _
                                Optional ByVal P As Variant) As Variant
    Dim X As Variant, H As Variant, i As Long, k As Long
    On Error GoTo Chyba
    H = Smes(Latky, Podily, X).Tabulka(Nazev, X, T, P)
    If IsArray(H) Then
        For i = LBound(H, 1) To UBound(H, 1)
            For k = LBound(H, 2) To UBound(H, 2)
                If IsEmpty(H(i, k)) Then H(i, k) = CVErr(xlErrNA)
            Next k
        Next i
    ElseIf IsEmpty(H) Then
        H = CVErr(xlErrNA)
    End If
    VlastnostiSmesi = H
    Exit Function
Chyba:
    VlastnostiSmesi = Potiz
End Function
