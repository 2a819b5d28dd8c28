#!/bin/sh
# prefix.sh start|stop WINE DLL DATABASE: a fresh Wine prefix with a second drive and the component installed in a folder
# with blanks and Czech letters; afterwards the component is unregistered and has to have left nothing.
set -eu
action=$1 wine=$2 dll=$3 database=$4
folder='Program Files/VELOR české látky'
installed="C:\\Program Files\\VELOR české látky\\velor.dll"
keys='HKCR\VELOR.Smes
HKCR\VELOR.Smes.1
HKCR\CLSID\{CB16B798-B41A-4330-91F2-915361599D19}
HKCR\TypeLib\{4889691D-8C79-4EA2-A2FB-847438922BD4}
HKCR\Interface\{63B45149-C110-41FA-9330-2B2F6A3E983D}'

value() { "$wine" reg query "$@" | tr -d '\r'; }

if [ "$action" = start ]; then
    "${wine%/*}/wineserver64" -k 2>/dev/null || true
    rm -rf "$WINEPREFIX"
    "$wine" wineboot -i
    # Boxes wait neither for a window manager nor for a sound.
    "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
    "$wine" reg add 'HKCU\Software\Wine\Drivers' /v Audio /d '' /f >/dev/null
    mkdir -p "$WINEPREFIX/drive_d" "$WINEPREFIX/drive_c/$folder"
    ln -s ../drive_d "$WINEPREFIX/dosdevices/d:"
    cp "$dll" "$database" "$WINEPREFIX/drive_c/$folder/"
    "$wine" regsvr32 /s "$installed"
    class='HKCR\CLSID\{CB16B798-B41A-4330-91F2-915361599D19}'
    value 'HKCR\VELOR.Smes\CLSID' /ve | grep -qi 'CB16B798-B41A-4330-91F2-915361599D19'
    value 'HKCR\VELOR.Smes\CurVer' /ve | grep -q 'VELOR\.Smes\.1'
    value "$class\\InprocServer32" /v ThreadingModel | grep -q Apartment
    value "$class\\InprocServer32" /ve | grep -q 'velor\.dll'
    value "$class\\TypeLib" /ve | grep -qi '4889691D-8C79-4EA2-A2FB-847438922BD4'
    # The code page here lacks a letter of the comment only, so the path is in it.
    tail -n 1 "$WINEPREFIX/drive_c/$folder/VELOR.CFG" | grep -q 'VELOR\.DRC'
else
    "$wine" regsvr32 /s /u "$installed"
    printf '%s\n' "$keys" | while read -r key; do
        if "$wine" reg query "$key" >/dev/null 2>&1; then
            echo "left behind: $key"
            exit 1
        fi
    done
    "$wine" regsvr32 /s /u "$installed" # a second time does no harm
    "${wine%/*}/wineserver64" -k
fi
