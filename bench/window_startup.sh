#!/usr/bin/env bash
# The default launch (the window shown at start), against the demo daemon under Xvfb, signed in:
# start-up to the window's first paint next to a bare Qt window app, and resident memory with the
# window open on Locations for the 154-node demo catalogue and a generated 10,000-node one next
# to a bare Qt window showing the same catalogue with plain Qt classes (PlainLocationsApp).
# Usage: bench/window_startup.sh [BUILD_DIR] [RUNS]
set -euo pipefail
build=${1:-build} runs=${2:-10}
source "$(dirname "$0")/lib.sh"
bare=$build/bench/tovra-bench-bare-window
require "$client" "$bare" "$watch" "$daemon" "$ctl" "$build/bench/tovra-bench-plain-locations"
start_x
start_daemon

# Milliseconds from exec to the first pixel of the window at (400, 300) on the X server: the
# watcher reads that pixel every 2 ms (bench/PaintWatch.cpp).
first_paint() { # PROGRAM
    local ms pid
    fresh_config
    read -r ms pid < <("${client_env[@]}" "$watch" 400 300 20000 "$1")
    stop "$pid"
    echo "$ms"
}
# In turns, so that a change in the machine's load falls on both alike.
first_paint "$client" >/dev/null # warm the file cache
first_paint "$bare" >/dev/null
for _ in $(seq "$runs"); do
    first_paint "$client" >>"$work/paint-client"
    first_paint "$bare" >>"$work/paint-bare"
done
declare -A paint=([client]=$(median <"$work/paint-client") [bare]=$(median <"$work/paint-bare"))

declare -A rss
for nodes in 154 10000; do
    if (( nodes == 154 )); then start_daemon; else start_daemon --catalog-size "$nodes"; fi
    client_on_locations "$nodes"
    rss[client,$nodes]=$(rss_kb "$pid")
    stop "$pid"
    plain_on_locations "$nodes"
    rss[plain,$nodes]=$(rss_kb "$pid")
    stop "$pid"
done

header
section "window shown at start (Xvfb); floor: bare Qt window, plain Qt catalogue window"
row "start-up to first window paint (median of $runs)" "${paint[client]}" "${paint[bare]}" ms 1.6
for nodes in 154 10000; do
    row "resident, window on Locations, $nodes nodes" "$(( rss[client,$nodes] / 1024 ))" \
        "$(( rss[plain,$nodes] / 1024 ))" MB 1.5
done
