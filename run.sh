#!/usr/bin/env bash
# Installs what is missing, builds what an installation takes and runs the velor command with the arguments given, or with
# none a short tour.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/build.sh"

install_packages "${needed_to_build[@]}"
build release installed_parts

velor=$root/build/release/bin/velor
if [ $# -gt 0 ]; then
    "$velor" "$@"
else
    . "$root/tools/tour.sh"
fi
