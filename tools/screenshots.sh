#!/usr/bin/env bash
# Makes a picture of each Windows form, filled with real data, in build/pictures. The Windows build has to be there.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/build.sh"
pictures=$root/build/pictures
binaries=$root/build/mingw-x64

# Each line that the program prints is the name of a form which stands on the screen until it is answered.
take_pictures() {
    coproc program { "$wine" "$binaries/tools/pictures/form_pictures.exe"; }
    local shown=${program[0]} answers=${program[1]} pid=$program_PID
    while read -r name <&"$shown"; do
        name=${name%$'\r'}
        [[ $name =~ ^[A-Za-z0-9_-]+$ ]] || { echo "$name" >&2; continue; } # a complaint
        import -window root -trim "$pictures/$name.png"
        echo "$pictures/$name.png"
        echo >&"$answers"
    done
    wait "$pid"
}

if [ "${1:-}" = --on-screen ]; then
    wine=$2
    take_pictures
    exit
fi
install_packages "${needed_for_windows[@]}" imagemagick
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
mkdir -p "$pictures"
"$root/tools/pictures/on_screen.sh" "$wine" "$binaries/wine-screen" "${BASH_SOURCE[0]}" --on-screen "$wine"
