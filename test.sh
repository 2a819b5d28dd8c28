#!/usr/bin/env bash
# Installs what is missing, builds and runs every test: plainly in two locales, as Windows programs under Wine, under the
# sanitizers, and the threads under their own. "./test.sh windows" runs the Windows part alone.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/build.sh"

# The thread sanitizer of this compiler knows only addresses that are not spread at random too widely.
fixed_addresses=(setarch "$(uname -m)" -R)
"${fixed_addresses[@]}" true 2>/dev/null || fixed_addresses=()

# run_tests PRESET [CTEST_OPTION...]
run_tests() {
    (cd "$root" && ctest --preset "$1" -j "$(nproc)" --progress "${@:2}")
}

# Czech as a locale of our own build folder, so that the system is left as it is.
make_czech_locale() {
    mkdir -p "$locales"
    [ -d "$locales/cs_CZ.UTF-8" ] || quietly localedef -i cs_CZ -f UTF-8 "$locales/cs_CZ.UTF-8"
    [ "$(LOCPATH=$locales LC_ALL=cs_CZ.UTF-8 locale decimal_point)" = , ] || { echo "české prostředí se nepodařilo připravit" >&2; exit 1; }
}

# The component and the Windows programs. They are compared with the native release build.
test_windows() {
    if ! (install_packages "${needed_for_windows[@]}"); then
        echo "VYNECHÁNO: balíčky ${needed_for_windows[*]} nelze nainstalovat." >&2
        echo "Neběžely testy: knihovny velor.dll pro x64 a x86, jádro jako program Windows, registrace a klienti COM, balíček." >&2
        return
    fi
    echo "== Windows, x86 (only read, nothing here runs it)"
    build mingw-x86
    run_tests mingw-x86
    echo "== Windows, x64, under Wine"
    build mingw-x64
    (cd "$root" && xvfb-run -a ctest --preset mingw-x64 -j "$(nproc)" --progress)
    echo "== Windows package"
    build mingw-x64 windows_package
    local package wine
    package=$(ls -t "$root"/build/mingw-x64/velor-*-windows.zip | head -n 1)
    wine=$(sed -n 's/^VELOR_WINE:FILEPATH=//p' "$root/build/mingw-x64/CMakeCache.txt")
    LOCPATH=$locales LC_ALL=cs_CZ.UTF-8 xvfb-run -a "$root/tests/package/windows_package.sh" "$package" "$wine" \
        x86_64-w64-mingw32-g++-posix "$root/build/release/bin/velor" "$root/build/windows-package"
    (cd "$root" && grep -hE '^(overhead|growth|[0-9]+ calls)' build/mingw-x64/Testing/Temporary/LastTest.log)
}

locales=$root/build/locales
if [ "${1:-}" = windows ]; then
    install_packages "${needed_to_build[@]}" locales
    make_czech_locale
    build release velor_database velor_command numbers_table
    test_windows
    exit
fi
install_packages "${needed_to_build[@]}" locales pkg-config tmux bash-completion groff-base man-db lintian debootstrap
make_czech_locale

echo "== release, C"
build release
LC_ALL=C run_tests release
echo "== release, cs_CZ.UTF-8, a time zone east of Greenwich by 12:45"
LOCPATH=$locales LC_ALL=cs_CZ.UTF-8 TZ='<+1245>-12:45' run_tests release -E '^package\.'

echo "== balíček v holém Debianu"
package=$root/build/release/tests/package/work/debian
"$root/tests/package/bare_root.sh" "$package/velor.deb" "$package/program" "$root/build/release/bin/velor" "$root/build/bare-root"

test_windows

# Without the checks of alignment and vptr, which GCC 12 gets wrong for a call through a pointer to member.
echo "== asan"
build asan
LC_ALL=C run_tests asan

echo "== tsan"
# The tests are listed while they are built, so that is done with fixed addresses too.
export -f build quietly
export root log
"${fixed_addresses[@]}" bash -c 'build tsan'
(cd "$root" && LC_ALL=C "${fixed_addresses[@]}" ctest --preset tsan)
