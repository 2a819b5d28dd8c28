#!/usr/bin/env bash
# Installs what is missing, builds and runs every test, plainly and under the sanitizers.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/build.sh"

install_packages "${needed_to_build[@]}"
for preset in release asan; do
    echo "== $preset"
    build "$preset"
    (cd "$root" && ctest --preset "$preset" -j "$(nproc)" --progress)
done
