#!/usr/bin/env bash
# The shared library hands out what its headers declare and nothing else: a name more, and a host's own of the same name
# would take its place.
set -euo pipefail

names=$(nm -D --defined-only --demangle "$1" | cut -d' ' -f3-)
foreign=$(grep -vE '^((vtable|typeinfo|typeinfo name) for )?velor(::|_)' <<<"$names" || true)
inner=$(grep -E 'velor::(checked|platform|forms)::|velor::(FFce|waterDensity|loadComponents|kEquations)\b' <<<"$names" || true)
[ -z "$foreign$inner" ] || { echo "Vyvážená jména, která nejsou veřejná:"; echo "$foreign$inner"; exit 1; }
grep -q '^velor::Smes::ROLW' <<<"$names"
