#!/usr/bin/env bash
# Fails where a source uses what reads or prints numbers by the locale or changes it, and where the library imports such
# a function by another way (a stream): locale_free.sh SOURCE LIBRARY
set -euo pipefail
cd "$1"

# Lines that may stay, each with its reason.
allowed=(
    'newlocale(LC_CTYPE_MASK,'  # the full screen's characters are UTF-8 in any locale; the thread alone, no number depends on it
    'uselocale('  # the same
    'newlocale(LC_TIME_MASK,'  # the date in the list of substances is the user's own; no number depends on it
)

patterns=(
    '\b(strto(d|f|ld)|ato(f|i|l|ll)|sto(d|f|ld)|wcsto(d|f|ld)|[ef]cvt|gcvt)\b *\('
    '\b(v?(f|s|sn|d|as|w)?printf|v?(f|s)?w?scanf|std::v?format(_to)?)\b *\('
    '\b(std::locale|setlocale|uselocale|newlocale|localeconv|nl_langinfo|imbue)\b'
    '\b(std::put_money|std::get_money|std::put_time|std::(is|to)(alpha|lower|upper|digit|space))\b'
    'to_string\([^)]*(double|float|[0-9]\.[0-9]|toDouble|toSingle)'
    '<< *std::(setprecision|fixed|scientific|hexfloat)'
)

found=0
for pattern in "${patterns[@]}"; do
    while IFS= read -r line; do
        for exception in "${allowed[@]}"; do
            case $line in *"$exception"*) continue 2 ;; esac
        done
        echo "závisí na místním nastavení: $line"
        found=1
    done < <(grep -rnE --include='*.cpp' --include='*.h' "$pattern" src include tools apps |
        grep -vE '^[^:]*:[0-9]+: *//')
done

# Streams carry numbers through members that no source names.
imports=$(nm --dynamic --undefined-only --demangle "$2" |
    grep -E ' (_?_?(strto(d|f|ld)|v?(f|s|sn)?printf(_chk)?|v?sscanf|setlocale|localeconv))(@|$)|_M_(insert|extract)<|std::locale::global\(' || true)
if [ -n "$imports" ]; then
    echo "knihovna používá:"
    echo "$imports"
    found=1
fi
exit $found
