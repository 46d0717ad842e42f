#!/usr/bin/env bash
# The client as a screen-reader user meets it: a private X server, session bus and AT-SPI bus,
# the demo daemon signed in (refusing system-proxy changes with 409), the client with its window
# shown, then accessibility_end_to_end.py, which Tabs through every page, acts through the
# accessible actions, and restarts the daemon to make a connect fail.
# Usage: accessibility_end_to_end.sh TOVRA DEMO_DAEMON TOVRA_CTL
set -euo pipefail
client=$1 daemon=$2 ctl=$3
here=$(cd "$(dirname "$0")" && pwd)
for tool in Xvfb dbus-launch xdotool /usr/libexec/at-spi-bus-launcher; do
    command -v "$tool" >/dev/null || { echo "SKIP: $tool is missing"; exit 0; }
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo "SKIP: python3-pyatspi is missing"; exit 0; }
work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    [[ -s $work/daemon.pid ]] && kill "$(cat "$work/daemon.pid")" 2>/dev/null || true
    wait 2>/dev/null || true
    if [[ ${failed:-1} != 0 ]]; then
        echo "--- client log"; grep -v "tovra.text: window.locations" "$work/client.log" | tail -n 60 || true
    fi
    rm -rf "$work"
}
trap cleanup EXIT
wait_for() {
    local deadline=$(( SECONDS + $1 )); shift
    until "$@"; do (( SECONDS < deadline )) || { echo "timed out: $*"; return 1; }; sleep 0.1; done
}

Xvfb -displayfd 5 -screen 0 1100x800x24 -nolisten tcp 5>"$work/display" 2>/dev/null &
pids+=($!)
wait_for 10 test -s "$work/display"
export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
eval "$(dbus-launch --sh-syntax)"
pids+=("$DBUS_SESSION_BUS_PID")
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
pids+=($!)

# Starts the daemon (options in $@) and signs in; its pid goes to daemon.pid.
start_daemon() {
    rm -f "$work/daemon.log"
    "$daemon" --socket "$work/control.sock" --data-dir "$work/data" "$@" >"$work/daemon.log" 2>&1 &
    echo $! >"$work/daemon.pid"
    wait_for 10 grep -qs "listening on" "$work/daemon.log"
    echo demo | "$ctl" --socket "$work/control.sock" login demo@tovra.invalid - true >/dev/null
}
start_daemon --fail /v1/proxy/system-proxy=409
mkdir -p "$work/config/Tovra" "$work/runtime"
chmod 700 "$work/runtime"
XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime TOVRA_CONTROL_SOCKET=$work/control.sock \
    TOVRA_GUI_TEXT_LOG=1 "$client" >"$work/client.log" 2>&1 &
pids+=($!)
wait_for 30 xdotool search --onlyvisible --name '^Tovra' >/dev/null

export -f start_daemon wait_for
export work daemon ctl
restart='kill "$(cat "$work/daemon.pid")"; start_daemon --fail /v1/connect=500'
failed=1
/usr/bin/python3 "$here/accessibility_end_to_end.py" "$work/data/log/tovra-daemon.log" "$restart"
failed=0
echo "Spoken by the client (its text log):"
grep -a "tovra.text: window.announce\|tovra.text: notice" "$work/client.log" | sed 's/^/  /' || true
