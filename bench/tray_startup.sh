#!/usr/bin/env bash
# Start-up to the tray icon being shown, resident memory after start, and CPU time over an idle
# minute: the client (tray only, against the demo daemon) side by side with a bare Qt tray app,
# both under Xvfb with trayer. Usage: bench/tray_startup.sh [BUILD_DIR] [RUNS] [IDLE_SECONDS]
set -euo pipefail
build=${1:-build} runs=${2:-10} idle=${3:-60}
client=$build/src/tovra bare=$build/bench/tovra-bench-bare-tray daemon=$build/demo/tovra-demo-daemon
for binary in "$client" "$bare" "$daemon"; do
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
export DISPLAY=":$(head -n1 "$work/display")"
trayer --edge top --align right --widthtype request --height 28 --SetDockType true --transparent false >/dev/null 2>&1 &
pids+=($!)
wait_for 10 xdotool search --class trayer >/dev/null
"$daemon" --socket "$work/control.sock" >"$work/daemon.log" 2>&1 &
pids+=($!)
wait_for 10 grep -q "listening on" "$work/daemon.log"
mkdir -p "$work/config/Tovra" "$work/runtime" && chmod 700 "$work/runtime"
printf '[window]\nshowOnLaunch=false\n' >"$work/config/Tovra/TovraVPN.ini"

# Milliseconds from exec to the icon embedded in the tray host (class given as "name" "Name").
icon_embedded() { xwininfo -root -tree 2>/dev/null | grep -qE "\(\"$1\" \"[^\"]*\"\) +[0-9]{1,2}x[0-9]{1,2}\+"; }
start_app() {
    XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime TMPDIR=$work \
        TOVRA_CONTROL_SOCKET=$work/control.sock "$1" >/dev/null 2>&1 &
    echo $!
}
measure_start() {
    local binary=$1 class=$2 start pid
    start=$(date +%s%N)
    pid=$(start_app "$binary")
    until icon_embedded "$class"; do sleep 0.002; done
    echo $(( ($(date +%s%N) - start) / 1000000 ))
    kill "$pid"; wait "$pid" 2>/dev/null || true
    wait_for 5 bash -c "! xwininfo -root -tree 2>/dev/null | grep -qE '\(\"$class\" '"
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN {printf "%.2f", (b > 0) ? a / b : 0}'; }
median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : int((a[NR/2]+a[NR/2+1])/2)}'; }
rss_kb() { awk '/^VmRSS:/ {print $2}' "/proc/$1/status"; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }

declare -A startup rss cpu
for app in client bare; do
    if [[ $app == client ]]; then binary=$client class=tovra; else binary=$bare class=tovra-bench-bare-tray; fi
    startup[$app]=$(for _ in $(seq "$runs"); do measure_start "$binary" "$class"; done | median)
    pid=$(start_app "$binary")
    wait_for 20 icon_embedded "$class"
    sleep 2 # let the first status answers and deferred start-up work settle
    rss[$app]=$(rss_kb "$pid")
    before=$(cpu_ticks "$pid")
    sleep "$idle"
    cpu[$app]=$(( ($(cpu_ticks "$pid") - before) * 1000 / $(getconf CLK_TCK) ))
    kill "$pid"; wait "$pid" 2>/dev/null || true
done

printf '%-36s %12s %12s %8s   %s\n' "measure" "client" "bare Qt" "ratio" "target"
printf '%-36s %9s ms %9s ms %7.2fx   %s\n' "start-up to tray icon (median of $runs)" "${startup[client]}" "${startup[bare]}" \
    "$(ratio "${startup[client]}" "${startup[bare]}")" "< 5x and < 150 ms"
printf '%-36s %9s MB %9s MB %7.2fx   %s\n' "resident memory after start" "$(( rss[client] / 1024 ))" "$(( rss[bare] / 1024 ))" \
    "$(ratio "${rss[client]}" "${rss[bare]}")" "< 40 MB"
printf '%-36s %9s ms %9s ms %8s   %s\n' "CPU time over ${idle} s idle" "${cpu[client]}" "${cpu[bare]}" "" "only the 10 s status poll"
