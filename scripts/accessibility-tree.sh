#!/usr/bin/env bash
# Reads the client's accessibility tree the way a screen reader does: a private X server,
# session bus and AT-SPI bus, the demo daemon signed in, the client with its window shown, then
# scripts/accessibility-tree.py. Needs Debian's at-spi2-core, python3-pyatspi and dbus-x11.
# Usage: scripts/accessibility-tree.sh [BUILD_DIR] [--pages]
#   TOVRA_A11Y_LANG=ru (any tag) runs the client in that language, as the daemon's choice.
set -euo pipefail
build=${1:-build}
shift $(( $# > 0 ? 1 : 0 ))
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
wait_for() {
    local deadline=$(( SECONDS + $1 )); shift
    until "$@"; do (( SECONDS < deadline )) || return 1; sleep 0.1; done
}

Xvfb -displayfd 5 -screen 0 1100x760x24 -nolisten tcp 5>"$work/display" 2>/dev/null &
pids+=($!)
wait_for 10 test -s "$work/display"
export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
eval "$(dbus-launch --sh-syntax)"
pids+=("$DBUS_SESSION_BUS_PID")
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
pids+=($!)

"$build/demo/tovra-demo-daemon" --socket "$work/control.sock" >"$work/daemon.log" 2>&1 &
pids+=($!)
wait_for 10 grep -qs "listening on" "$work/daemon.log"
echo demo | "$build/src/ctl/tovra-ctl" --socket "$work/control.sock" login demo@tovra.invalid - true >/dev/null
if [[ -n ${TOVRA_A11Y_LANG:-} ]]; then
    "$build/src/ctl/tovra-ctl" --socket "$work/control.sock" setLanguage user "$TOVRA_A11Y_LANG" >/dev/null
fi
mkdir -p "$work/config/Tovra" "$work/runtime"
chmod 700 "$work/runtime"
XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime TOVRA_CONTROL_SOCKET=$work/control.sock \
    "$build/src/tovra" >"$work/client.log" 2>&1 &
pids+=($!)
wait_for 20 xdotool search --onlyvisible --name '^Tovra' >/dev/null
sleep 1
/usr/bin/python3 "$here/accessibility-tree.py" "$@"
