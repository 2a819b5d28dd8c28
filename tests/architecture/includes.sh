#!/usr/bin/env bash
# The house has stairs in one direction: a room includes itself, the rooms before it in this list and the public headers.
set -euo pipefail
cd "$1"

rooms="runtime rules platform records object properties table dialogs views com"
wrong=$(grep -rn '^#include "' src --include=*.cpp --include=*.h | awk -v rooms="$rooms" '
    BEGIN { split(rooms, names, " "); for (i in names) floor[names[i]] = i + 0; floor["velor"] = 0 }
    {
        split($0, at, ":"); split(at[1], from, "/"); split($0, quoted, "\""); split(quoted[2], to, "/")
        if (!(from[2] in floor) || !(to[1] in floor) || floor[to[1]] > floor[from[2]]) print
    }')
# The rules stand on plain arithmetic.
wrong+=$(grep -rn '^#include "' src/rules | grep -vE '"(rules/|runtime/(checked|physical_constants)\.h|velor/run_time_error\.h)' || true)
# What programs and the full screen need is public. The database's compiler knows the record; whatever else is included
# says why on its line.
wrong+=$(grep -rnE '^#include "(runtime|rules|platform|records|object|properties|dialogs|com)/[^"]*"$' apps tools src/views/terminal |
    grep -vE '^tools/baze/[^:]*:[0-9]+:#include "records/' || true)
[ -z "$wrong" ] || { echo "Vložení proti směru domu:"; echo "$wrong"; exit 1; }
