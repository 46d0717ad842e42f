#!/usr/bin/env bash
# The tray alone (the window hidden at start), next to a bare Qt tray app with the same menu rows
# (tovra-bench-bare-tray), both against the demo daemon under Xvfb with trayer: start-up to the
# icon in the tray, resident memory once started, CPU time over an idle stretch.
# Usage: bench/tray_startup.sh [BUILD_DIR] [RUNS] [IDLE_SECONDS]
set -euo pipefail
build=${1:-build} runs=${2:-10} idle=${3:-60}
source "$(dirname "$0")/lib.sh"
bare=$build/bench/tovra-bench-bare-tray
require "$client" "$bare" "$daemon" "$ctl"
start_x
start_daemon

# Milliseconds from exec to the icon embedded in the tray host (class given as "name" "Name").
icon_embedded() { xwininfo -root -tree 2>/dev/null | grep -qE "\(\"$1\" \"[^\"]*\"\) +[0-9]{1,2}x[0-9]{1,2}\+"; }
measure_start() { # PROGRAM CLASS
    local start
    fresh_config false
    start=$(date +%s%N)
    "${client_env[@]}" "$1" >/dev/null 2>&1 &
    pid=$!
    until icon_embedded "$2"; do sleep 0.002; done
    echo $(( ($(date +%s%N) - start) / 1000000 ))
    stop "$pid"
    wait_for 5 bash -c "! xwininfo -root -tree 2>/dev/null | grep -qE '\(\"$2\" '"
}

# In turns, so that a change in the machine's load falls on both alike.
measure_start "$client" tovra >/dev/null # warm the file cache
measure_start "$bare" tovra-bench-bare-tray >/dev/null
for _ in $(seq "$runs"); do
    measure_start "$client" tovra >>"$work/start-client"
    measure_start "$bare" tovra-bench-bare-tray >>"$work/start-bare"
done
declare -A startup=([client]=$(median <"$work/start-client") [bare]=$(median <"$work/start-bare"))
declare -A rss cpu
for app in client bare; do
    if [[ $app == client ]]; then binary=$client class=tovra; else binary=$bare class=tovra-bench-bare-tray; fi
    fresh_config false
    "${client_env[@]}" "$binary" >/dev/null 2>&1 &
    pid=$!
    wait_for 20 icon_embedded "$class"
    sleep 2 # the first status answers and the catalogue
    rss[$app]=$(rss_kb "$pid")
    before=$(cpu_ticks "$pid")
    sleep "$idle"
    cpu[$app]=$(( ($(cpu_ticks "$pid") - before) * 1000 / $(getconf CLK_TCK) ))
    stop "$pid"
done

header
section "tray only (Xvfb, trayer); floor: bare Qt tray app with the same menu rows"
row "start-up to tray icon (median of $runs)" "${startup[client]}" "${startup[bare]}" ms 1.5
row "resident after start" "$(( rss[client] / 1024 ))" "$(( rss[bare] / 1024 ))" MB 1.5
# The client polls the daemon every 10 s; the bare app does nothing at all.
row "CPU time over ${idle} s idle" "${cpu[client]}" "${cpu[bare]}" ms "" $(( idle * 2 ))
