#!/usr/bin/env bash
# What is compiled for a newer processor is called on no other: such an object defines nothing that the linker could share
# with the rest of the program, but for the type of the error.
set -euo pipefail

for object in "$@"; do
    shared=$(nm --demangle "$object" | grep -E ' [VWu] ' | grep -vE '\(anonymous namespace\)|RunTimeError|DW\.ref\.' || true)
    [ -z "$shared" ] || { echo "$object nabízí ostatním:"; echo "$shared"; exit 1; }
done
