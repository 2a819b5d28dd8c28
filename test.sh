#!/usr/bin/env bash
# Installs what is missing, builds and tests. Without an argument what a newcomer runs: the release build and its tests,
# the command and an installation included. "./test.sh all" adds every further part; "./test.sh PART..." runs only
# the parts named:
#   locale   the same tests in a Czech locale, in an odd time zone
#   package  the Debian package in a bare Debian
#   windows  the component and the library as Windows programs: x86 is only read, x64 runs under Wine; the Windows package
#   asan     the tests under the address and the undefined behaviour sanitizer
#   tsan     the threads under the thread sanitizer
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/build.sh"

further=(locale package windows asan tsan)
parts=("${@:-base}")
for part in "${parts[@]}"; do
    case " base all ${further[*]} " in *" $part "*) ;; *)
        echo "Neznámá část „$part“. Možnosti: all ${further[*]}; bez udání základní testy." >&2
        exit 2 ;;
    esac
done
[[ " ${parts[*]} " != *" all "* ]] || parts=(base "${further[@]}")

# What could not run here is said when all is over.
skipped=()
trap 'rm -f "$log"; [ ${#skipped[@]} -eq 0 ] || printf "VYNECHÁNO: %s\n" "${skipped[@]}" >&2' EXIT

# run_tests PRESET [CTEST_OPTION...]
run_tests() {
    (cd "$root" && ctest --preset "$1" -j "$(nproc)" --progress "${@:2}")
}

locales=$root/build/locales
# Czech as a locale of our own build folder, so that the system is left as it is.
make_czech_locale() {
    install_packages locales
    mkdir -p "$locales"
    [ -d "$locales/cs_CZ.UTF-8" ] || quietly localedef -i cs_CZ -f UTF-8 "$locales/cs_CZ.UTF-8"
    [ "$(LOCPATH=$locales LC_ALL=cs_CZ.UTF-8 locale decimal_point)" = , ] || { echo "české prostředí se nepodařilo připravit" >&2; exit 1; }
}

test_base() {
    echo "== release, C"
    build release
    LC_ALL=C run_tests release
}

test_locale() {
    echo "== release, cs_CZ.UTF-8, a time zone east of Greenwich by 12:45"
    make_czech_locale
    build release
    LOCPATH=$locales LC_ALL=cs_CZ.UTF-8 TZ='<+1245>-12:45' run_tests release -E '^package\.'
}

test_package() {
    echo "== Debian package in a bare Debian"
    local made=$root/build/release/tests/package/work/debian status=0
    if ! (install_packages debootstrap); then
        skipped+=("balíček v holém Debianu: balíček debootstrap nelze nainstalovat")
        return
    fi
    build release
    [[ " ${parts[*]} " = *" base "* ]] || LC_ALL=C run_tests release -R '^package\.debian$'
    "$root/tests/package/bare_root.sh" "$made/velor.deb" "$made/program" "$root/build/release/bin/velor" \
        "$root/build/bare-root" || status=$?
    case $status in
        0) ;;
        77) skipped+=("balíček v holém Debianu: $(cat "$root/build/bare-root/skipped")") ;;
        *) exit "$status" ;;
    esac
}

# The Windows programs are compared with the native release build.
test_windows() {
    if ! (install_packages "${needed_for_windows[@]}"); then
        skipped+=("Windows (velor.dll pro x64 a x86, jádro, registrace a klienti COM, balíček): balíčky nelze nainstalovat")
        return
    fi
    make_czech_locale
    build release velor_database velor_command numbers_table
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
    (cd "$root" && grep -hE '^(growth|[0-9]+ calls)' build/mingw-x64/Testing/Temporary/LastTest.log)
}

# Without the checks of alignment and vptr, which GCC 12 gets wrong for a call through a pointer to member.
test_asan() {
    echo "== asan"
    build asan
    LC_ALL=C run_tests asan
}

# The thread sanitizer of this compiler knows only addresses that are not spread at random too widely. The tests are
# listed while they are built, so that is done with fixed addresses too.
test_tsan() {
    echo "== tsan"
    local fixed_addresses=(setarch "$(uname -m)" -R)
    "${fixed_addresses[@]}" true 2>/dev/null || fixed_addresses=()
    export -f build quietly
    export root log
    "${fixed_addresses[@]}" bash -c 'build tsan'
    (cd "$root" && LC_ALL=C "${fixed_addresses[@]}" ctest --preset tsan)
}

install_packages "${needed_to_build[@]}" pkg-config tmux bash-completion groff-base man-db lintian \
    abigail-tools
if ! (install_packages "${needed_for_python[@]}"); then
    skipped+=("balíček pro Python: balíčky nelze nainstalovat")
fi
for part in "${parts[@]}"; do "test_$part"; done
