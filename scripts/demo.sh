#!/usr/bin/env bash
# Starts the demo daemon on its per-user socket and runs the client against it. Without a
# client build, shows the daemon at work through tovra-ctl instead.
#
#   scripts/demo.sh [BUILD_DIR] [client arguments...]
#
# TOVRA_DEMO_ARGS adds daemon options, e.g. TOVRA_DEMO_ARGS="--latency 400 --lockdown".
set -euo pipefail
cd "$(dirname "$0")/.."

build_dir=${1:-build}
[ $# -gt 0 ] && shift
daemon="$build_dir/demo/tovra-demo-daemon"
client="$build_dir/src/tovra"
ctl="$build_dir/src/ctl/tovra-ctl"

if [ ! -x "$daemon" ]; then
    echo "demo.sh: $daemon is not built; run 'make build' first" >&2
    exit 1
fi

if [ -n "${XDG_RUNTIME_DIR:-}" ] && [ -d "$XDG_RUNTIME_DIR" ]; then
    socket="$XDG_RUNTIME_DIR/tovra-demo/control.sock"
else
    socket="/tmp/tovra-demo-$(id -u)/control.sock"
fi

out=$(mktemp)
daemon_pid=
stop_daemon() {
    if [ -n "$daemon_pid" ] && kill -0 "$daemon_pid" 2>/dev/null; then
        kill -TERM "$daemon_pid" 2>/dev/null || true
        wait "$daemon_pid" 2>/dev/null || true
        echo "demo daemon stopped"
    fi
    daemon_pid=
    rm -f "$out"
}
trap stop_daemon EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# shellcheck disable=SC2086 # TOVRA_DEMO_ARGS is a list of options
"$daemon" --socket "$socket" ${TOVRA_DEMO_ARGS:-} >"$out" &
daemon_pid=$!
for _ in $(seq 100); do
    grep -q "^listening on " "$out" && break
    if ! kill -0 "$daemon_pid" 2>/dev/null; then
        wait "$daemon_pid" || true
        daemon_pid=
        echo "demo.sh: the demo daemon did not start" >&2
        exit 1
    fi
    sleep 0.1
done
if ! grep -q "^listening on " "$out"; then
    echo "demo.sh: the demo daemon did not start listening within 10 s" >&2
    exit 1
fi
export TOVRA_CONTROL_SOCKET="$socket"
echo "demo daemon listening on $socket (sign in with demo@tovra.invalid / demo)"

if [ -x "$client" ]; then
    if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
        "$client" "$@"
        exit $?
    fi
    echo "no graphical session here (DISPLAY and WAYLAND_DISPLAY are unset), so the client cannot"
    echo "show its tray; from a desktop session 'make demo' runs it. Meanwhile, through tovra-ctl:"
fi

if [ -x "$ctl" ]; then
    # Shows the answer's lines that match a pattern (all of it when none is given).
    step() {
        local pattern=$1
        shift
        printf '\n$ tovra-ctl %s\n' "$*"
        local answer status=0
        answer=$("$ctl" "$@" 2>&1) || status=$?
        if [ $status -ne 0 ]; then
            printf '%s\n(exit %d)\n' "$answer" "$status"
        elif [ -n "$pattern" ]; then
            printf '%s\n' "$answer" | grep -E "$pattern" || true
        else
            printf '%s\n' "$answer"
        fi
    }
    status_keys='"(daemon_version|auth_state|tunnel_state|mode_summary|selected_node|connected_node|connected_since)"'
    [ -x "$client" ] || echo "no client at $client yet; the daemon at work through tovra-ctl:"
    step "$status_keys" fetchStatus
    step "$status_keys" login demo@tovra.invalid demo true
    step '"(email|role|left_days|max_device_count)"' fetchUser
    # The first nodes of the catalogue, after its "connected" and "selected" entries.
    printf '\n$ tovra-ctl fetchNodes false\n'
    "$ctl" fetchNodes false | sed -n '/"nodes": \[/,$p' | grep -E '"(id|name|region|type|pingMs)"' |
        head -n 10 || true
    echo "    ..."
    step "$status_keys" connectRuntime
    sleep 2
    step "$status_keys" fetchStatus
else
    echo "neither $client nor $ctl is built; the daemon alone is running"
fi

if [ -t 0 ]; then
    printf '\nThe demo daemon keeps running; try\n  TOVRA_CONTROL_SOCKET=%s %s fetchStatus\nPress Ctrl-C to stop it.\n' \
        "$socket" "$ctl"
    wait "$daemon_pid" || true
fi
