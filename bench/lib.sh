# Shared by the benchmark scripts (sourced, not run): a private X server with a tray host, the
# demo daemon, fresh client settings, and the table lines every benchmark prints.
# The caller sets build (the build directory) before sourcing.

work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

daemon=$build/demo/tovra-demo-daemon ctl=$build/src/ctl/tovra-ctl client=$build/src/tovra
watch=$build/bench/tovra-bench-paintwatch

require() { # PROGRAM...
    local program
    for program in "$@"; do
        [[ -x $program ]] || { echo "missing $program: build first (make build)" >&2; exit 1; }
    done
}
wait_for() { # SECONDS COMMAND...
    local deadline=$(( SECONDS + $1 )); shift
    until "$@"; do (( SECONDS < deadline )) || return 1; sleep 0.05; done
}
median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : int((a[NR/2]+a[NR/2+1])/2)}'; }
rss_kb() { awk '/^VmRSS:/ {print $2}' "/proc/$1/status"; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }
stop() { kill "$1" 2>/dev/null || true; wait_for 10 bash -c "! kill -0 $1 2>/dev/null" || kill -9 "$1" 2>/dev/null || true; }

# A table line as the C++ benchmarks print it: what, client, floor, ratio and, when a target is
# given (a maximum ratio, or a maximum for the client's own figure), the target and the verdict.
row() { # WHAT CLIENT FLOOR UNIT [MAX_RATIO] [MAX_CLIENT]
    awk -v what="$1" -v a="$2" -v b="$3" -v unit="$4" -v max="${5:-}" -v limit="${6:-}" 'BEGIN {
        ratio = (b > 0) ? a / b : 0
        printf "%-48s %9.2f %-2s %9.2f %-2s ", what, a, unit, b, unit
        if (b > 0) printf "%7.2fx", ratio; else printf "%8s", "-"
        if (max != "") printf "  <= %.2fx  %s", max, (ratio <= max) ? "ok" : "OVER"
        else if (limit != "") printf "  < %d %s  %s", limit, unit, (a < limit) ? "ok" : "OVER"
        printf "\n" }'
}
header() { printf '%-48s %12s %12s %8s %9s\n' measure client floor ratio target; }
section() { printf -- '-- %s\n' "$1"; }

# Xvfb with trayer docked at the top right, and a session bus, as a desktop session has (without
# one, the first D-Bus client would have one started through the X server and wait for it).
start_x() {
    dbus-daemon --session --nofork --address="unix:path=$work/bus" >/dev/null 2>&1 &
    pids+=($!)
    wait_for 10 test -S "$work/bus"
    export DBUS_SESSION_BUS_ADDRESS="unix:path=$work/bus"
    Xvfb -displayfd 5 -screen 0 1280x800x24 -nolisten tcp 5>"$work/display" 2>/dev/null &
    pids+=($!)
    wait_for 10 test -s "$work/display"
    export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY
    trayer --edge top --align right --widthtype request --height 28 --SetDockType true \
        --transparent false >/dev/null 2>&1 &
    pids+=($!)
    wait_for 10 xdotool search --class trayer >/dev/null
    mkdir -p "$work/runtime" && chmod 700 "$work/runtime"
}

# The demo daemon, signed in, replacing the one before. ARGS go to the daemon.
start_daemon() { # ARGS...
    if [[ -n ${daemon_pid:-} ]]; then kill "$daemon_pid"; wait "$daemon_pid" 2>/dev/null || true; fi
    # The logs go before the programs start: the shell opens them in the background, and the
    # waits below must not read the last run's lines.
    rm -rf "$work/control.sock" "$work/daemon" "$work/daemon.log"
    "$daemon" --socket "$work/control.sock" --data-dir "$work/daemon" "$@" >"$work/daemon.log" 2>&1 &
    daemon_pid=$!
    pids+=("$daemon_pid")
    wait_for 10 grep -q "listening on" "$work/daemon.log"
    "$ctl" --socket "$work/control.sock" login demo@tovra.invalid demo false >/dev/null
}

# Whether the daemon has answered a request for PATH (such as /v1/nodes/groups).
answered() { grep -q "^.*GET $1[ ?].*-> 200" "$work/daemon/log/tovra-daemon.log" 2>/dev/null; }

# A fresh preference folder for each launch: English, the window shown at start or not.
fresh_config() { # [SHOW_ON_LAUNCH]
    rm -rf "$work/config" && mkdir -p "$work/config/Tovra"
    printf '[language]\nlastEffective=en\n[window]\nshowOnLaunch=%s\n' "${1:-true}" \
        >"$work/config/Tovra/TovraVPN.ini"
}
client_env=(env XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime" TMPDIR="$work"
    TOVRA_CONTROL_SOCKET="$work/control.sock")

# The client with its window on Locations once the whole catalogue (NODES) is listed there, and
# the plain Qt window with the same catalogue (bench/PlainLocationsApp.cpp); each sets pid and
# leaves its output in $work/<name>.log. Memory is read after the same pause: the daemon's
# ping run goes on changing rows for a few seconds.
client_on_locations() { # NODES
    fresh_config
    rm -f "$work/client.log"
    TOVRA_GUI_TEXT_LOG=1 "${client_env[@]}" "$client" >"$work/client.log" 2>&1 &
    pid=$!
    wait_for 20 grep -q '^tovra.text: window.page: VPN' "$work/client.log"
    wait_for 90 grep -q "^tovra.text: window.locations: Locations: $1" "$work/client.log"
    xdotool mousemove 46 141 click 1
    wait_for 10 grep -q '^tovra.text: window.page: Locations' "$work/client.log"
    sleep 3
}
plain_on_locations() { # NODES
    rm -f "$work/plain.log"
    "${client_env[@]}" "$build/bench/tovra-bench-plain-locations" "$work/control.sock" \
        >"$work/plain.log" 2>&1 &
    pid=$!
    wait_for 90 grep -q "^ready $1" "$work/plain.log"
    sleep 3
}
