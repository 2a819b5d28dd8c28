' A stranger's script: late-bound members and what comes back; the mixture's values are compared elsewhere. Prints what
' fails; the last line tells that it came to its end.
Option Explicit
Dim s, X(2), W(2), T, P, i, v, failures
failures = 0

Sub Check(ok, what)
    If Not ok Then
        failures = failures + 1
        WScript.Echo "FAILED: " & what
    End If
End Sub

Sub Near(value, expected, what)
    Check Abs(value - expected) <= 0.001 * Abs(expected), what & " = " & value
End Sub

Sub Positive(value, what)
    Check IsNumeric(value), what & " is a number"
    Check value > 0, what & " = " & value
End Sub

Set s = CreateObject("VELOR.Smes")
Check s.DataFileName = "VELOR.DRC" And s.CFGName = "VELOR.CFG", "names at first"
Check Right(s.CFGPath, 1) = "\", "CFGPath"
Check s.PocHlasek = 0 And s.MaxErrHlas = 20 And s.ChyboveHlasky = 0 And s.Redlich = 0, "settings at first"
s.Adrvlr
Check Right(s.AdrVELOR, 10) = "\VELOR.DRC" And s.SouborBaze = s.AdrVELOR, "AdrVELOR"
s.DataFileName = "": s.CFGName = s.CFGName: s.CFGPath = s.CFGPath: s.AdrVELOR = s.AdrVELOR
s.MaxErrHlas = 30: Check s.MaxErrHlas = 30, "MaxErrHlas"
s.MezeZap: Check s.MezeTeplot = 1, "MezeZap"
s.MezeVyp: Check s.MezeTeplot = 0, "MezeVyp"
s.SNazev = "lihoviny": Check s.SNazev = "lihoviny", "SNazev"

' The mixture
s.DefSmes 1, Array(0, 1): Check s.Inivlr = 1 And s.Nsloz = 1, "DefSmes"
s.DefSlozky Array(235, 1, 234): Check s.Inivlr = 3, "DefSlozky"
s.Nsloz = 2: Check s.Nsloz = 2, "Nsloz"
s.ZapisNslozky 2, 1: Check s.Nslozky(2) = 1, "ZapisNslozky"
Near s.Mvi(1), 0.04607, "Mvi": Near s.Tkri(1) - s.TkriC(1), 273.15, "TkriC": Positive s.Pkri(1), "Pkri"
Positive s.Vkri(1), "Vkri": Positive s.Acenti(1), "Acenti": Near s.Tnbvi(1) - s.TnbviC(1), 273.15, "TnbviC"
Near s.Ttani(1) - s.TtaniC(1), 273.15, "TtaniC": Positive s.Htani(1), "Htani": v = s.Nlomui(1): v = s.TNlomui(1)
Positive s.Dipolm(1), "Dipolm": v = s.TDipolm(1): v = s.Permiti(1): v = s.TPermiti(1): v = s.Gyr(1)
Check Len(s.Nazev(1)) = 30 And Len(s.Vzorec(1)) = 20 And Len(s.Synonym(1)) = 30, "texts"
Check s.CAS(1) = "[ 64-17-5]", "CAS = " & s.CAS(1)
s.Nazev(1) = "jiny": Check Left(s.Nazev(1), 5) = "jiny " And Len(s.Nazev(1)) = 30, "Nazev"
v = s.Bod(1, 2): s.Bod(1, 2) = 500: Check s.Bod(1, 2) = 500, "Bod": s.Bod(1, 2) = v
v = s.VLRConst(1, 4, 1): s.VLRConst(1, 4, 1) = 0.5: Check s.VLRConst(1, 4, 1) = 0.5, "VLRConst": s.VLRConst(1, 4, 1) = v
s.inivlast: Check s.PopisVlastnosti(11) = "Hustota (l)", "PopisVlastnosti"
Check s.ChybRozv(9) = "TENS" And Len(s.Vztah(1)) > 0, "ChybRozv, Vztah"
Check s.Hodnota("1,5x") = 1.5 And s.Log10(100) = 2 And Len(s.GFormat(1.5)) > 0, "Hodnota, Log10, GFormat"
Check s.TrimNulls("ab" & Chr(0) & "c") = "ab", "TrimNulls"

' Composition, in place
X(1) = 4: X(2) = 6
s.Normal X: Check X(1) = 0.4 And X(2) = 0.6, "Normal"
Check s.KsumX(X) = "", "KsumX"
Check s.Cohmo(X, W) = 2, "Cohmo": Near W(1) + W(2), 1, "Cohmo"
X(1) = 0: X(2) = 0
Check s.Comol(W, X) = 2, "Comol": Near X(1), 0.4, "Comol": Near s.Zlomky(1), 0.4, "Zlomky"
Positive s.VSM(X), "VSM": Check IsEmpty(s.PocetSmesi(X)), "PocetSmesi"

' Properties
T = 330: P = 101325
Positive s.ROLW(T, X), "ROLW": Near s.Slozeni(2), 0.6, "Slozeni"
Positive s.ReL(T, X, 1, 0.1), "ReL": Positive s.ReG(T, P, X, 1, 0.1), "ReG": Positive s.PrG(T, P, X), "PrG"
s.PseudShow X: Near s.TKRITsm, s.PSEUD(X, "t"), "TKRITsm": Positive s.PKRITsm, "PKRITsm"
Positive s.VKRITsm, "VKRITsm": Positive s.ZKRITsm, "ZKRITsm": Near s.MSm, s.VSM(X), "MSm"
s.Redlich = 1
Positive s.TEVRP(1, T, P, X), "TEVRP": Positive s.RGHustota, "RGHustota": Near s.LnFug(T, P, X), s.RGLnFug, "LnFug"
Near s.RHG(T, P, X), s.RGEntalpie, "RHG": Near s.RSG(T, P, X), s.RGEntropie, "RSG"
Near s.RUG(T, P, X), s.RGVnitrniEnergie, "RUG": Near s.RCPG(T, P, X), s.RGCp, "RCPG": Near s.RCVG(T, P, X), s.RGCv, "RCVG"
Near s.JTkoef(T, P, X), s.RGJouleThomson, "JTkoef": Near s.Vlastnost("rolw", X, T, P), s.ROLW(T, X), "Vlastnost"
v = s.TBV(P, X): Check s.TRB(P, X) > v, "TRB above TBV"
T = (v + s.TRB(P, X)) / 2
Check InStr(s.FLASH(0, T, P, X), vbCrLf) > 0, "FLASH": Check s.lastFlash("outcome") = 3, "lastFlash"
v = s.lastFlash("liquid"): Near v(1) + v(2), 1, "lastFlash(liquid)"
T = 350
v = s.FLASH(1, T, P * 3, X): Check T <> 0, "FLASH gives the temperature back"

' Dialogs: the forms close at once, questions are answered with Storno
s.AkSeznam: Check s.PocLatek > 400 And Len(s.SeznamLatek(1)) > 0, "AkSeznam"
s.SeznamShow: Check s.RezimSeznamu = -1, "SeznamShow"
s.SeznamShow 2: Check s.RezimSeznamu = 2, "SeznamShow 2"
Dim list: list = Array("", "c", "a", "b")
s.QuickSort list, 1, 3: Check list(1) & list(2) & list(3) = "abc", "QuickSort"
s.SWAP list, 1, 3: Check list(1) & list(2) & list(3) = "cba", "SWAP"
v = s.RandInt(1, 6): Check v >= 1 And v <= 6, "RandInt"
Dim n, XX(20), WW(20)
s.ZadejSloz n, XX, WW
v = s.ZadaneSlozeni(1): v = s.MolZlomky(1): v = s.HmotZlomky(1)
s.ZadejSmes: s.mSeznam_zavrit
s.mZadSmes_SZavrit Array(2, 235, 1): Check s.Nsloz = 2, "mZadSmes_SZavrit"
s.mSloz_ZobrazL 2: s.mSloz_ZobrazZ 1
s.mSloz_ZavriSloz: s.mSloz_ZpetSloz
Dim hits: s.FindFiles "C:\Program Files", "*", "velor.drc", hits: Check hits(0) = "1", "FindFiles"

' Raised errors
s.ResetujSmes: s.DefSlozky Array(235, 1): s.Inivlr
s.ChyboveHlasky = -1
On Error Resume Next
v = s.ROLW("x", X)
Check Err.Number = -2147220904, "number " & Err.Number
Check Err.Source = "VELOR - ROLW; T(K)= x" And Len(Err.Description) = 29, Err.Source & Err.Description
Err.Clear: v = s.Mvi(21): Check Err.Number = 9, "classic number " & Err.Number
Err.Clear: v = s.Mvi(100000): Check Err.Number = 6, "overflow " & Err.Number
Err.Clear: v = s.NoSuchMember: Check Err.Number = 438, "unknown member " & Err.Number
Err.Clear
On Error GoTo 0

' Nobody in front of it
s.Tichy = True: s.ChyboveHlasky = 0: v = s.Vlastnost("nic", X, T, P): Check s.Tichy = 1 And Right(s.PosledniHlaska, 5) = ": nic", "Tichy"

' Many points: a range of a worksheet in, one of its shape out
Dim TT(1, 2), PP(1, 2), k
For i = 0 To 1: For k = 0 To 2: TT(i, k) = 300 + 10 * i + k: PP(i, k) = 100000 * (1 + k): Next: Next
TT(1, 1) = Empty
v = s.Tabulka("rroGW", X, TT, PP): Check UBound(v) = 1 And UBound(v, 2) = 2 And IsEmpty(v(1, 1)), "Tabulka"
Near v(1, 2), s.RROGW(312, 300000, X), "Tabulka(1, 2)": Near v(0, 1), s.RROGW(301, 200000, X), "Tabulka(0, 1)"
Near s.Tabulka("TENS", X, 300), s.TENS(300, X), "Tabulka without P"
v = s.Tabulka("TENS", X, Array(300, "x")): Check IsEmpty(v(1)) And v(0) > 0, "Tabulka of a list"
On Error Resume Next
Err.Clear: v = s.Tabulka("nic", X, TT): Check Err.Number = 5, "unknown property " & Err.Number
Err.Clear: v = s.Tabulka("ROGW", X, TT, Array(1, 2, 3, 4, 5, 6)): Check Err.Number = 9, "shapes " & Err.Number
On Error GoTo 0
Set s = Nothing
WScript.Echo "HOTOVO"
WScript.Quit failures
