#!/usr/bin/env bash
# The default launch (the window shown at start): start-up to the window's first paint next to a
# bare Qt window app, resident memory with the window open on Locations for the 154-node demo
# catalogue and for a generated 10,000-node one, and CPU time over an idle stretch with the window
# hidden. Everything runs under Xvfb against the demo daemon, signed in.
# Usage: bench/window_startup.sh [BUILD_DIR] [RUNS] [IDLE_SECONDS]
set -euo pipefail
build=${1:-build} runs=${2:-10} idle=${3:-60}
client=$build/src/tovra bare=$build/bench/tovra-bench-bare-window
watch=$build/bench/tovra-bench-paintwatch daemon=$build/demo/tovra-demo-daemon ctl=$build/src/ctl/tovra-ctl
for binary in "$client" "$bare" "$watch" "$daemon" "$ctl"; do
    [[ -x $binary ]] || { echo "missing $binary: build first (make build)" >&2; exit 1; }
done

work=$(mktemp -d)
pids=()
cleanup() { for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done; wait 2>/dev/null || true; rm -rf "$work"; }
trap cleanup EXIT
wait_for() { local deadline=$(( SECONDS + $1 )); shift; until "$@"; do (( SECONDS < deadline )) || return 1; sleep 0.05; done; }

Xvfb -displayfd 5 -screen 0 1280x800x24 -nolisten tcp 5>"$work/display" 2>/dev/null &
pids+=($!)
wait_for 10 test -s "$work/display"
export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
# A tray host, so that the window can also stay hidden at start.
trayer --edge top --align right --widthtype request --height 28 --SetDockType true --transparent false >/dev/null 2>&1 &
pids+=($!)
wait_for 10 xdotool search --class trayer >/dev/null
mkdir -p "$work/runtime" && chmod 700 "$work/runtime"

start_daemon() { # ARGS...
    [[ -n ${daemon_pid:-} ]] && { kill "$daemon_pid"; wait "$daemon_pid" 2>/dev/null || true; }
    rm -f "$work/control.sock"
    "$daemon" --socket "$work/control.sock" "$@" >"$work/daemon.log" 2>&1 &
    daemon_pid=$!
    pids+=("$daemon_pid")
    wait_for 10 grep -q "listening on" "$work/daemon.log"
    "$ctl" --socket "$work/control.sock" login demo@tovra.invalid demo false >/dev/null
}
# A fresh preference folder for each launch: the language the daemon reports, the window's default.
fresh_config() { # [SHOW_ON_LAUNCH]
    rm -rf "$work/config" && mkdir -p "$work/config/Tovra"
    printf '[language]\nlastEffective=en\n[window]\nshowOnLaunch=%s\n' "${1:-true}" \
        >"$work/config/Tovra/TovraVPN.ini"
}
client_env=(env XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime" TMPDIR="$work"
    TOVRA_CONTROL_SOCKET="$work/control.sock")
stop() { kill "$1" 2>/dev/null || true; wait_for 10 bash -c "! kill -0 $1 2>/dev/null" || kill -9 "$1" 2>/dev/null || true; }
# Milliseconds from exec to the first pixel of the window at (400, 300) on the X server.
first_paint() { # PROGRAM
    local result ms pid
    fresh_config
    result=$("${client_env[@]}" "$watch" 400 300 20000 "$1")
    read -r ms pid <<<"$result"
    stop "$pid"
    echo "$ms"
}
median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : int((a[NR/2]+a[NR/2+1])/2)}'; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN {printf "%.2f", (b > 0) ? a / b : 0}'; }
rss_kb() { awk '/^VmRSS:/ {print $2}' "/proc/$1/status"; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }

start_daemon
declare -A paint
for app in client bare; do
    if [[ $app == client ]]; then binary=$client; else binary=$bare; fi
    first_paint "$binary" >/dev/null # warm the file cache
    paint[$app]=$(for _ in $(seq "$runs"); do first_paint "$binary"; done | median)
done

# Resident memory with the window on Locations once the whole catalogue is listed there.
locations_rss() { # NODE_COUNT
    local pid
    fresh_config
    : >"$work/client.log"
    TOVRA_GUI_TEXT_LOG=1 "${client_env[@]}" "$client" >"$work/client.log" 2>&1 &
    pid=$!
    wait_for 20 grep -q '^tovra.text: window.page: VPN' "$work/client.log"
    wait_for 30 grep -q "^tovra.text: window.locations: Locations: $1" "$work/client.log"
    xdotool mousemove 46 141 click 1
    wait_for 10 grep -q '^tovra.text: window.page: Locations' "$work/client.log"
    # The ping run updates rows for a while; memory is read once the page has settled.
    sleep 3
    rss_kb "$pid"
    stop "$pid"
}
rss_demo=$(locations_rss 154)
start_daemon --catalog-size 10000
rss_large=$(locations_rss 10000)
start_daemon

# CPU over an idle stretch with the window hidden: the tray icon alone, as the tray benchmark.
fresh_config false
"${client_env[@]}" "$client" >/dev/null 2>&1 &
pid=$!
sleep 2
before=$(cpu_ticks "$pid")
sleep "$idle"
cpu=$(( ($(cpu_ticks "$pid") - before) * 1000 / $(getconf CLK_TCK) ))
stop "$pid"

printf '%-44s %10s %10s %8s   %s\n' "measure" "client" "bare Qt" "ratio" "target"
printf '%-44s %7s ms %7s ms %7.2fx   %s\n' "start-up to first window paint (median of $runs)" "${paint[client]}" \
    "${paint[bare]}" "$(ratio "${paint[client]}" "${paint[bare]}")" "< 250 ms and < 3x"
printf '%-44s %7s MB %10s %8s   %s\n' "resident, Locations, 154 nodes" "$(( rss_demo / 1024 ))" "" "" "< 60 MB"
printf '%-44s %7s MB %10s %8s   %s\n' "resident, Locations, 10,000 nodes" "$(( rss_large / 1024 ))" "" "" "< 90 MB"
printf '%-44s %7s ms %10s %8s   %s\n' "CPU time over ${idle} s idle, window hidden" "$cpu" "" "" "as the tray alone"
