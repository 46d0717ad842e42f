#!/usr/bin/env bash
# Every benchmark, one table (`make bench`): each line is a figure of the client next to its
# floor, the same work done with plain Qt in the same run, their ratio and the target.
# Environment: BENCH_RUNS (repetitions, default 10), BENCH_IDLE (idle seconds, default 60),
# BENCH_NODES (the large catalogue, default 50000).
# Usage: bench/run.sh [BUILD_DIR]
set -uo pipefail
build=${1:-build}
dir=$(dirname "$0")
runs=${BENCH_RUNS:-10}
load() { cut -d' ' -f1-3 /proc/loadavg; }
echo "load average before: $(load) ($(nproc) cores)"
{
    "$build/bench/tovra-bench-control" || echo "-- control benchmark failed"
    "$build/bench/tovra-bench-catalog" || echo "-- catalogue benchmark failed"
    "$dir/tray_startup.sh" "$build" "$runs" "${BENCH_IDLE:-60}" || echo "-- tray benchmark failed"
    "$dir/window_startup.sh" "$build" "$runs" || echo "-- window benchmark failed"
    "$dir/scale.sh" "$build" "${BENCH_NODES:-50000}" "$(( (runs + 1) / 2 ))" ||
        echo "-- scale benchmark failed"
} 2>/dev/null | awk '/^measure / { if (seen++) next } { print; fflush() }'
echo "load average after: $(load)"
