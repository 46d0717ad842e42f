#!/usr/bin/env bash
# Builds the whole tree with -Werror and runs the tests that need no display server against
# Debian 13's Qt and GCC, in a Debian 13 root that mmdebstrap makes from the package registry this
# machine uses. The root and a ccache of its own live in a cache folder outside the clone, kept
# between runs; the root's name holds a hash of its package list, so a changed list makes a new
# one. When the root cannot be made (no mmdebstrap, not root, no network) one line says so and
# the script exits 0: the newer Qt is checked where it can be.
# Usage: scripts/newer-qt-tests.sh [prepare]   (prepare: only make the root, for running early)
# Environment: TOVRA_CI_CACHE (default /var/cache/tovra-ci, else ~/.cache/tovra-ci),
# TOVRA_CI_JOBS (default nproc).
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=${TOVRA_CI_JOBS:-$(nproc)}

inside() { # in the root: build and test, with ccache and the source where the caller put them
    echo "Qt $(dpkg-query -W -f='${Version}' qt6-base-dev), $(g++ --version | head -n1)"
    local start=$SECONDS
    cmake -S /src -B /build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTOVRA_WERROR=ON >/dev/null
    cmake --build /build --parallel "$jobs" >/tmp/build.log 2>&1 || { tail -n 60 /tmp/build.log; exit 1; }
    echo "Debian 13 build took $((SECONDS - start)) s ($(grep -c ' warning: ' /tmp/build.log) warnings)"
    ctest --test-dir /build --label-exclude e2e --output-on-failure --parallel "$jobs"
}

[[ ${1:-} == inside ]] && { inside; exit; }

suite=trixie
packages=(
  build-essential cmake ninja-build ccache pkg-config python3 dbus-daemon
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools
  qt6-l10n-tools qt6-qpa-plugins libqt6svg6 libgl-dev libxkbcommon-dev libxcb1-dev
)
# The registry apt uses here, so that the root comes from the same place.
mirror=$(sed -n 's|^URIs: *\(https\?://[^ ]*/debian\)/\?$|\1|p' /etc/apt/sources.list.d/*.sources \
    2>/dev/null | head -n1)
mirror=${mirror:-http://deb.debian.org/debian}
cache=${TOVRA_CI_CACHE:-}
if [[ -z $cache ]]; then
    cache=/var/cache/tovra-ci
    mkdir -p "$cache" 2>/dev/null && [[ -w $cache ]] || cache=$HOME/.cache/tovra-ci
fi
key=$(printf '%s\n' "$suite" "$mirror" "${packages[@]}" | sha256sum | cut -c1-12)
root=$cache/debian13-$key

skip() { echo "Debian 13 stage skipped: $*"; exit 0; }

make_root() {
    [[ -d $root/usr ]] && return 0
    command -v mmdebstrap >/dev/null || skip "mmdebstrap is not installed (scripts/install-deps.sh installs it)"
    (( EUID == 0 )) || skip "not root: the root is made and entered with chroot"
    mkdir -p "$cache"
    exec 9>"$cache/debian13.lock"
    flock 9 # another run may be making it
    [[ -d $root/usr ]] && return 0
    # Roots of older package lists go: each is about a gigabyte.
    rm -rf "$cache"/debian13-*
    local start=$SECONDS list
    list=$(IFS=,; echo "${packages[*]}")
    if ! mmdebstrap --variant=apt --include="$list" "$suite" "$root.tmp" "$mirror" \
        >"$cache/debian13.log" 2>&1; then
        rm -rf "$root.tmp"
        skip "mmdebstrap could not make the root (no network?): $(tail -n1 "$cache/debian13.log")"
    fi
    mv "$root.tmp" "$root"
    echo "Debian 13 root made in $((SECONDS - start)) s"
}

[[ ${1:-} == prepare ]] && { make_root; exit 0; }
make_root
# A mount namespace of its own: the binds go away with it, whatever happens.
mkdir -p "$cache/ccache-debian13" "$root/src" "$root/ccache"
rm -rf "${root:?}/build" "$root/tmp"/*
unshare --mount --propagation private -- /bin/bash -euc '
    mount --rbind /dev "$1/dev"
    mount -t proc proc "$1/proc"
    mount --bind -o ro "$2" "$1/src"
    mount --bind "$3" "$1/ccache"
    exec chroot "$1" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/tmp LANG=C.UTF-8 \
        CCACHE_DIR=/ccache CCACHE_BASEDIR=/src CCACHE_NOHASHDIR=1 TOVRA_CI_JOBS="$4" \
        /bin/bash /src/scripts/newer-qt-tests.sh inside
' stage "$root" "$PWD" "$cache/ccache-debian13" "$jobs"
