#!/usr/bin/env bash
# One way to use the installed library: package_test.sh CASE SOURCE BUILD WORK CXX
# Nobody answers a question here, and no program may begin to search the disks for its database.
set -euo pipefail
case=$1 source=$2 build=$3 work=$4 cxx=$5
prefix=$work/installed
version=$(sed -n 's/.*kVersion[A-Z][a-z]* = \([0-9]*\);/\1/p' "$source/include/velor/version.h" | paste -sd.)

fail() { echo "$*" >&2; exit 1; }

# run PROGRAM...: its answer, both streams. A search of the disks fails the test, whatever the answer.
run() {
    local answer status=0
    answer=$(timeout 30 "$@" </dev/null 2>&1) || status=$?
    echo "$answer"
    case $answer in *"Budu nyní hledat"*) fail "prohledává disky: $*" ;; esac
    return $status
}

library_folder() { dirname "$(find "$prefix" -name libvelor.a)"; }

# compile OUTPUT SOURCE [OPTION...]
compile() {
    local output=$1
    shift
    "$cxx" -std=c++20 -Wall -Wextra -Wpedantic -Werror "$1" -o "$output" "${@:2}"
}

flags() {
    PKG_CONFIG_PATH=$(library_folder)/pkgconfig pkg-config "$@" velor
}

# configuration FILE DATABASE: the file is the one that the library itself would write.
check_configuration() {
    printf '%s\r\n%s\r\n' 'Soubor obsahuje na 2.ř. cestu k datovému souboru báze.' "$2" | cmp - "$1"
}

install_here() {
    rm -rf "$work"
    mkdir -p "$work"
    cmake --install "$build" --prefix "$prefix" >/dev/null
    head -n 1 "$build/bin/VELOR.CFG" | cmp - <(head -n 1 "$prefix/bin/VELOR.CFG")
    for folder in "$(library_folder)" "$prefix/bin"; do
        check_configuration "$folder/VELOR.CFG" "$prefix/share/velor/VELOR.DRC"
    done
}

# The path of use is written, not that of staging; a comma needs quotes.
staged_and_quoted() {
    DESTDIR=$work/stage cmake --install "$build" --prefix /opt/velor >/dev/null
    check_configuration "$work/stage/opt/velor/bin/VELOR.CFG" /opt/velor/share/velor/VELOR.DRC
    local odd="$work/Šest, a půl"
    cmake --install "$build" --prefix "$odd" >/dev/null
    check_configuration "$odd/bin/VELOR.CFG" "\"$odd/share/velor/VELOR.DRC\""
    run "$odd/bin/velor" latka voda | grep 7732-18-5 >/dev/null  # reads to the end: the command notices a reader that goes
}

headers_alone() {
    local header
    for header in "$prefix"/include/velor/*.h; do
        printf '#include <velor/%s>\n#include <velor/%s>\n' "${header##*/}" "${header##*/}" >"$work/header.cpp"
        "$cxx" -std=c++20 -Wall -Wextra -Wpedantic -Werror -fsyntax-only -I"$prefix/include" "$work/header.cpp"
    done
}

# consumer FOLDER CMAKE_ARGUMENT...: configures and builds somebody else's project.
consumer() {
    cmake -S "$source/tests/package/consumer" -B "$1" -DCMAKE_CXX_COMPILER="$cxx" "${@:2}" >/dev/null
    cmake --build "$1" >"$1/log" || { cat "$1/log"; return 1; }
}

find_package() {
    consumer "$work/find_package" -DCMAKE_PREFIX_PATH="$prefix" -DVELOR_VERSION="$version"
    run "$work/find_package/consumer_shared"
    run "$work/find_package/consumer_static" "$(cat "$work/find_package/database")"
    ! ldd "$work/find_package/consumer_static" | grep libvelor >/dev/null || fail "je závislý na libvelor.so"
}

add_subdirectory() {
    consumer "$work/add_subdirectory" -G Ninja -DVELOR_SOURCE="$source"
    run "$work/add_subdirectory/consumer_shared" "$prefix/share/velor/VELOR.DRC"
    run "$work/add_subdirectory/consumer_static" "$prefix/share/velor/VELOR.DRC"
}

# Without any shared library, the C library included; VELOR.CFG lies beside the program then.
pkg_config_static() {
    mkdir -p "$work/static"
    compile "$work/static/program" "$source/tests/package/consumer/consumer.cpp" -static \
        $(flags --static --cflags --libs) 2>"$work/static/warnings" || { cat "$work/static/warnings"; return 1; }
    cp "$prefix/bin/VELOR.CFG" "$work/static"
    (cd / && run "$work/static/program")
    (cd "$work/static" && run ./program)
    run "$work/static/program" "$(flags --variable=database)"
}

# The first C++ block of the README, as it stands.
readme() {
    sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$source/README.md" >"$work/readme.cpp"
    grep -q main "$work/readme.cpp"
    compile "$work/readme" "$work/readme.cpp" $(flags --cflags --libs)
    # At 373.15 K water boils under the pressure of the atmosphere.
    LD_LIBRARY_PATH=$(library_folder) run "$work/readme" | grep -Ei '^voda +101[0-9]{3}(\.[0-9]+)? Pa$'
}

example() {
    local name output
    for name in $(grep -l velor/smes.h "$source"/examples/*.cpp); do
        compile "$work/example" "$name" $(flags --cflags --libs)
        output=$(LD_LIBRARY_PATH=$(library_folder) run "$work/example")
        # The text that the example promises at its end.
        diff <(sed -n 's|^// > ||p' "$name") <(echo "$output")
    done
    cc -std=c99 -pedantic -Wall -Wextra -Werror "$source/examples/table.c" -o "$work/table" $(flags --cflags --libs)
    LD_LIBRARY_PATH=$(library_folder) run "$work/table" "$prefix/share/velor/VELOR.DRC" |
        grep -E '^  300\.0 +0\.50 +8[0-9]{2}\.[0-9]{3}  v rozsahu$'
}

command() {
    run "$prefix/bin/velor" latka voda | grep 7732-18-5 >/dev/null  # reads to the end: the command notices a reader that goes
    cmp "$source/apps/velor/velor.bash" "$prefix/share/bash-completion/completions/velor"
    for folder in man1 cs/man1; do
        grep -q 'VELOR.DRC' "$prefix/share/man/$folder/velor.1"
    done
    run "$prefix/bin/velor-baze" rozloz "$prefix/share/velor/VELOR.DRC" "$work/tables"
    test -s "$work/tables/latky.csv"
}

# The package as a tree of files; installed it is by bare_root.sh.
debian() {
    local folder=$work/debian tree=$work/debian/tree file question=(--csv vlastnost TENS --latky voda -T 373.15)
    rm -rf "$folder"
    cpack --config "$build/CPackConfig.cmake" -B "$folder" >/dev/null
    mv "$folder"/velor_*.deb "$folder/velor.deb"
    lintian --fail-on error,warning "$folder/velor.deb" 2>&1
    dpkg-deb -f "$folder/velor.deb" Depends | grep 'libc6 .*libstdc++6 '
    dpkg -x "$folder/velor.deb" "$tree"
    prefix=$tree/usr
    for folder in "$(library_folder)" "$prefix/bin"; do
        check_configuration "$folder/VELOR.CFG" /usr/share/velor/VELOR.DRC
    done
    for file in share/doc/velor/copyright share/bash-completion/completions/velor include/velor/smes.h; do
        test -s "$prefix/$file"
    done
    [ "$(MANPATH=$prefix/share/man man -w velor velor-baze | wc -l)" = 2 ]
    file=$prefix/share/velor/VELOR.DRC
    diff <(run "$prefix/bin/velor" --baze "$file" "${question[@]}") <(run "$build/bin/velor" "${question[@]}")
    compile "$work/debian/program" "$source/tests/package/consumer/consumer.cpp" $(flags --cflags --libs)
    LD_LIBRARY_PATH=$(library_folder) run "$work/debian/program" "$file"
}

"$case"
