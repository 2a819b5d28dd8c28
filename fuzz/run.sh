#!/usr/bin/env bash
# Builds the fuzz targets with clang and runs each for the given time, two at once: fuzz/run.sh [SECONDS [TARGET...]]
# New inputs stay in build/fuzz/corpus/, one that fails in build/fuzz/findings/.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../tools/build.sh"

seconds=${1:-600}
shift || true
[ $# -gt 0 ] || set -- $(cd "$root/fuzz/corpus" && echo *)

install_packages "${needed_to_build[@]}" clang libclang-rt-14-dev
build fuzz "${@/%/_fuzzer}"

fuzz_one() {
    local corpus=build/fuzz/corpus/$1 findings=build/fuzz/findings/$1
    mkdir -p "$corpus" "$findings"
    "build/fuzz/bin/${1}_fuzzer" "$corpus" "fuzz/corpus/$1" -artifact_prefix="$findings/" -max_total_time="$seconds" \
        -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 >"$findings/log" 2>&1 ||
        { tail -n 40 "$findings/log"; echo "nález: $1"; return 1; }
    echo "$1: $(sed -n 's/^stat::number_of_executed_units: *//p' "$findings/log") vstupů bez nálezu"
}
export -f fuzz_one
export seconds
[ ! -d /dev/shm ] || export TMPDIR=/dev/shm  # the targets write each input to a file
cd "$root"
printf '%s\n' "$@" | xargs -P 2 -I {} bash -c 'fuzz_one {}'
