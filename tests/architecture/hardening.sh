#!/usr/bin/env bash
# hardening.sh LIBRARY PROGRAM: what users get has its guards: tables that are read-only once loaded, guarded stacks, checked
# copies, and a program whose place in memory is not known.
set -euo pipefail
has() { grep -qE "$2" <<<"$1" || { echo "chybí $2"; exit 1; }; }

for file in "$@"; do
    has "$(readelf -dW "$file")" 'FLAGS_1.*NOW'
    has "$(readelf -lW "$file")" GNU_RELRO
    has "$(readelf -sW "$file")" '__stack_chk_fail'
done
has "$(readelf -dW "$2")" 'FLAGS_1.*PIE'
has "$(readelf -sW "$2")" '_chk@'
