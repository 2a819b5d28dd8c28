#!/usr/bin/env bash
# The house has stairs in one direction: a room includes itself and the rooms before it in this list, and the public
# headers. Programs include public headers and their own only; the exceptions say why where they stand.
set -euo pipefail
cd "$1"

rooms="runtime rules platform records object properties dialogs views com"
wrong=$(grep -rn '^#include "' src --include=*.cpp --include=*.h | awk -v rooms="$rooms" '
    BEGIN { split(rooms, names, " "); for (i in names) floor[names[i]] = i; floor["velor"] = 0 }
    {
        split($0, at, ":"); split(at[1], from, "/"); split($0, quoted, "\""); split(quoted[2], to, "/")
        if (!(from[2] in floor) || !(to[1] in floor) || floor[to[1]] > floor[from[2]]) print
    }')
# The rules stand on plain arithmetic.
wrong+=$(grep -rn '^#include "' src/rules | grep -vE '"(rules/|runtime/(checked|physical_constants)\.h|velor/run_time_error\.h)' || true)
[ -z "$wrong" ] || { echo "Vložení proti směru domu:"; echo "$wrong"; exit 1; }
