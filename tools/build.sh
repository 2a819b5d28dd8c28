# Shared by run.sh and test.sh: installs what is missing and builds. Quiet as long as all goes well.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
log=$(mktemp)
trap 'rm -f "$log"' EXIT

# Runs a command; prints what it said only if it fails.
quietly() {
    "$@" >"$log" 2>&1 || {
        local status=$?
        cat "$log" >&2
        echo "selhalo ($status): $*" >&2
        exit "$status"
    }
}

# Installs those of the Debian packages that are missing.
install_packages() {
    local missing=() package as_root=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "instaluji: ${missing[*]}" >&2
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Chybí balíčky ${missing[*]}; nainstalujte je jako root." >&2; exit 1; }
        as_root=(sudo)
    fi
    quietly "${as_root[@]}" apt-get update
    quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    (cd "$root" && quietly cmake --preset "$preset")
    (cd "$root" && quietly cmake --build --preset "$preset" ${1:+--target "$@"})
}

needed_to_build=(g++ cmake ninja-build libncurses-dev libcli11-dev libeigen3-dev nlohmann-json3-dev libgtest-dev gnuplot-nox)
needed_for_python=(python3-setuptools python3-wheel python3-pip python3-venv python3-numpy python3-pandas python3-matplotlib
    python3-pint python3-distributed python3-nbclient python3-ipykernel python3-pytest mypy)
needed_for_windows=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools googletest libwine-dev wine64 xvfb
    xauth fonts-wine fonts-liberation zip unzip)
