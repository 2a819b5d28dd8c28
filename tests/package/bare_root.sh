#!/usr/bin/env bash
# The Debian package in a Debian that has nothing else: bare_root.sh PACKAGE PROGRAM COMMAND CACHE
# PROGRAM is linked with the library, COMMAND the velor of the build, whose answers are compared. CACHE keeps the bare
# root, so that only the first run needs a network.
set -euo pipefail
package=$1 program=$2 command=$3 cache=$4
base=$cache/base root=$cache/root
question=(--csv vlastnost TENS --latky voda -T 373.15)

# What cannot run here is left in a file; the exit code is 77.
skip() { mkdir -p "$cache"; echo "$1" >"$cache/skipped"; exit 77; }

# inside ROOT COMMAND...: with a /proc that is gone afterwards.
inside() {
    unshare --fork --pid --mount-proc="$1/proc" chroot "$1" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin \
        LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "${@:2}" </dev/null
}

install_package() { inside "$1" apt-get install -y --no-install-recommends "${@:2}" /velor.deb >"$cache/log" 2>&1; }

# Everything but what the package manager keeps for itself.
files() {
    (cd "$root" && find . \( -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache -o -path ./var/log \) -prune -o -print | sort)
}

[ "$(id -u)" = 0 ] || skip "není spuštěno jako root"
unshare --fork --pid --mount-proc true 2>/dev/null || skip "jmenné prostory nejsou dovoleny"
mkdir -p "$cache"
if [ ! -d "$base" ]; then
    rm -rf "$base.new"
    debootstrap --variant=minbase bookworm "$base.new" >"$cache/log" 2>&1 || skip "debootstrap: $(tail -n 1 "$cache/log")"
    cp "$package" "$base.new/velor.deb"
    inside "$base.new" apt-get update >"$cache/log" 2>&1 || skip "apt-get update: $(tail -n 1 "$cache/log")"
    install_package "$base.new" --download-only || { cat "$cache/log"; exit 1; }
    mv "$base.new" "$base"
fi

rm -rf "$root"
cp -a "$base" "$root"
cp "$package" "$root/velor.deb"
cp "$program" "$root/program"
files >"$cache/before"
install_package "$root" || { cat "$cache/log"; exit 1; }
[ -z "$(inside "$root" dpkg --verify velor)" ]
diff <(inside "$root" velor "${question[@]}") <("$command" "${question[@]}")
inside "$root" /program
inside "$root" velor seznam >/dev/null
test -s "$root/usr/share/velor/SEZNAM.DAT"
inside "$root" apt-get purge -y --autoremove velor >"$cache/log" 2>&1 || { cat "$cache/log"; exit 1; }
diff "$cache/before" <(files)
! inside "$root" ldconfig -p | grep libvelor
rm -rf "$root"
echo "balíček v holém Debianu: v pořádku"
