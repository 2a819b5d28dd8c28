#!/usr/bin/env bash
# on_screen.sh WINE PREFIX COMMAND [ARGUMENT...]: runs the command on a virtual screen, where WINE shows its windows
# with frames and titles of its own. The prefix is made where it is missing; nothing is left running.
set -euo pipefail
wine=$1
export WINEPREFIX=$2 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' LC_ALL=C.UTF-8
shift 2

if [ -z "${VELOR_SCREEN:-}" ]; then
    VELOR_SCREEN=1 exec xvfb-run -a -s '-screen 0 1280x1024x24' "$0" "$wine" "$WINEPREFIX" "$@"
fi
trap '"${wine%/*}/wineserver64" -k || true' EXIT
if [ ! -f "$WINEPREFIX/ready" ]; then
    mkdir -p "$WINEPREFIX"
    "$wine" wineboot -i
    "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
    # Debian's Wine does not look where its own fonts are; the marks of the title's buttons are among them.
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    touch "$WINEPREFIX/ready"
fi
"$@"
