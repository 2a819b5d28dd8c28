#!/usr/bin/env bash
# A host that was built with the last release goes on with this library: no function of the C interface is gone, and
# none takes another structure or gives a number another meaning. Functions and enumerators may be added. A member at the
# end of a structure is told too: the library has to take the earlier size then, before the dump is renewed.
# c_interface.sh check|renew HEADERS TYPES LIBRARY: TYPES is the interface alone, with its types for the debugger.
set -euo pipefail

kept=$(dirname "${BASH_SOURCE[0]}")/c_interface.abi
action=$1 headers=$2 types=$3 library=$4
command -v abidiff >/dev/null || { echo "VYNECHÁNO: chybí abidiff z balíčku abigail-tools"; exit 77; }

dump() {
    abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --no-parameter-names \
        --drop-private-types --exported-interfaces-only --headers-dir "$headers" "$types" | sed "s| path='[^']*/| path='|"
}

if [ "$action" = renew ]; then
    dump >"$kept"
    exit
fi
new=$(mktemp)
trap 'rm -f "$new"' EXIT
dump >"$new"
abidiff --no-added-syms "$kept" "$new"
exported=$(nm -D --defined-only "$library" | cut -d' ' -f3)
sed -n "s/.*elf-symbol name='\([^']*\)' type='func-type'.*/\1/p" "$kept" | while read -r name; do
    grep -qx "$name" <<<"$exported" || { echo "knihovna nevyváží $name"; exit 1; }
done
