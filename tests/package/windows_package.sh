#!/usr/bin/env bash
# The Windows package as its user meets it, in a fresh Wine prefix: windows_package.sh ZIP WINE COMPILER COMMAND WORK
# COMPILER is the cross-compiler, COMMAND the native velor, whose answer is compared. Runs in a Czech locale, so that the
# code pages are those of a Czech Windows.
set -euo pipefail
package=$1 wine=$2 compiler=$3 command=$4 work=$5
export WINEPREFIX=$work/prefix WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
folder=$WINEPREFIX/drive_c/'Program Files/Příliš žluťoučký kůň' place='C:\Program Files\Příliš žluťoučký kůň'
trap '"${wine%/*}/wineserver64" -k || true' EXIT

fail() { echo "$*" >&2; exit 1; }

run() { timeout 60 "$wine" "$@" </dev/null; }

# script NAME: what a command of the package says; Wine redirects it in the ANSI code page.
script() { run cmd /c "$place\\$1.cmd" /q | iconv -f CP1250 | tr -d '\r'; }

# says TEXT... in the words of $answer
says() {
    local text
    for text in "$@"; do grep -qF -- "$text" <<<"$answer" || fail "chybí „$text“ v: $answer"; done
}

# Every trace in the registry: names of keys and values in both bitnesses.
traces() { grep -iE 'velor|CB16B798-B41A|4889691D-8C79|63B45149-C110' "$WINEPREFIX"/{system,user}.reg || true; }

stop_wine() { "${wine%/*}/wineserver64" -k; "${wine%/*}/wineserver64" -w; }

rm -rf "$work"
mkdir -p "$work"
run wineboot -i 2>"$work/log"
# Boxes wait neither for a window manager nor for a sound.
run reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
run reg add 'HKCU\Software\Wine\Drivers' /v Audio /d '' /f >/dev/null
unzip -q "$package" -d "$work"
mv "$work"/velor-*-windows "$folder"
cp -r "$folder" "$work/unpacked"
for part in x64/velor.dll x86/velor.dll x64/VELOR.DOP x64/velor.tlb x86/velor.lib prirucka.html examples/smes.vbs; do
    test -s "$folder/$part"
done

# Nothing is left of what cannot be finished.
for part in velor.dll VELOR.DRC; do
    mv "$folder/x64/$part" "$work"
    answer=$(script install) && fail "nainstalováno bez $part"
    says "64bitová verze: chybí soubor" "$place\\x64\\$part" "Nedokončeno."
    mv "$work/$part" "$folder/x64"
done

answer=$(script install) || fail "$answer"
says "64bitová verze je zaregistrována pro všechny uživatele:" "\"$place\\x64\\velor.dll\"" \
    "32bitová verze: tento systém takové programy nespouští" "Hotovo."
cat >"$work/client.vbs" <<'VBS'
Set smes = CreateObject("VELOR.Smes")
smes.DefSlozky Array(1)
Dim X(1): X(1) = 1
WScript.Echo "tenze " & smes.TENS(373.15, X)
smes.AkSeznam
VBS
answer=$(run cscript //nologo "Z:${work//\//\\}\\client.vbs" | tr -d '\r')
native=$("$command" --csv vlastnost TENS --latky voda -T 373.15 | sed -n '2s/^[^,]*,\([^,]*\),.*/\1/p')
awk -v ours="${answer#tenze }" -v theirs="$native" 'BEGIN { exit !(theirs > 1e5 && (ours - theirs) ^ 2 < (1e-9 * theirs) ^ 2) }' ||
    fail "skript: $answer, velor: $native"
test -s "$folder/x64/SEZNAM.DAT"

# An own substance, from the template to a number and the deviation of its source.
made=$(dirname "$command")
"$made/velor-baze" sablona | sed 's/^Voda,[^,]*,/Moje,,/; s/7732-18-5/108-91-8/' >"$work/moje.csv"
number=$("$made/velor-baze" pridej "$made/VELOR.DRC" "$work/moje.csv" -o "$work/MOJE.DRC" | awk '{ print $2; exit }')
own=Z:${work//\//\\}
cat >"$work/own.vbs" <<VBS
Set smes = CreateObject("VELOR.Smes")
smes.AdrVELOR = "$own\MOJE.DRC"
smes.DefSlozky Array($number)
WScript.Echo smes.FFce(350, 1, 9)
If smes.Odchylka(1, 9) <> 0.3 Or Len(smes.Zdroj(1, 9)) = 0 Then WScript.Echo "doplnek"
VBS
answer=$(run cscript //nologo "$own\\own.vbs" | tr -d '\r')
native=$("$command" --csv --baze "$work/MOJE.DRC" vlastnost TENS --latky Moje -T 350 | sed -n '2s/^[^,]*,\([^,]*\),.*/\1/p')
awk -v ours="$answer" -v theirs="$native" 'BEGIN { exit !(theirs > 4e4 && (ours - theirs) ^ 2 < (1e-9 * theirs) ^ 2) }' ||
    fail "vlastní látka: $answer, velor: $native"

answer=$(script uninstall) || fail "$answer"
says "64bitová verze už není zaregistrována" "Hotovo."
diff -r "$work/unpacked" "$folder"
stop_wine
[ -z "$(traces)" ] || fail "zůstalo: $(traces)"

# The C++ programs of the manual, built as it says: with the DLL beside them, and without any.
tr -d '\r' <"$folder/prirucka.html" | sed -n 's/^g++ //p' | tr '\\' / | while read -ra options; do
    (cd "$folder" && "$compiler" "${options[@]}")
done
answer=$(run "$folder/x64/smes_unregistered.exe" "$place\\x64\\VELOR.DRC")
says "101 kPa"
printf 'cesta\r\n%s\r\n' "$place\\x64\\VELOR.DRC" | iconv -t CP1250 >"$folder/VELOR.CFG"
answer=$(run "$folder/mixture.exe")
says "density 865 kg/m3"
echo "balíček pro Windows: v pořádku; 32bitovou velor.dll tu nic nespustí, jen se přečetla"
