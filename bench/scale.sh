#!/usr/bin/env bash
# A large catalogue from the demo daemon (50,000 nodes by default), each figure next to the same
# work in plain Qt: the longest stall of the interface thread once the window is up (the
# catalogue arriving, Locations shown, a search typed and cleared), against the plain Qt window
# filling its model; memory per 10,000 nodes, from the window on Locations with a fifth, three
# fifths and all of the nodes; and the tray menu and its location submenu opening, tray only,
# against the bare tray app with the same rows. Everything runs under Xvfb.
# Usage: bench/scale.sh [BUILD_DIR] [NODES] [RUNS]
set -euo pipefail
build=${1:-build} nodes=${2:-50000} runs=${3:-5}
source "$(dirname "$0")/lib.sh"
bare_tray=$build/bench/tovra-bench-bare-tray
require "$client" "$daemon" "$ctl" "$watch" "$bare_tray" "$build/bench/tovra-bench-plain-locations"
start_x

# Longest "tovra.stall" in a log, after its first line matching FROM (0 when none): for the
# client, once its window is first on screen.
longest_stall() { # LOG FROM
    awk -v from="$2" '$0 ~ from {on = 1} on && /^tovra.stall: [0-9]+ ms/ {
        if ($2 > max) max = $2 } END {print max + 0}' "$1"
}
# Types a search into the field at X,Y, then clears it, as a user looking for a node would.
search_and_clear() { # X Y
    xdotool mousemove "$1" "$2" click 1
    xdotool type --delay 120 "node 4"
    sleep 1
    xdotool key ctrl+a BackSpace
    sleep 1
}

start_daemon --catalog-size "$nodes"
export TOVRA_GUI_STALL_MS=16 # every stall longer than a frame is reported
client_on_locations "$nodes"
search_and_clear 440 200
stall_client=$(longest_stall "$work/client.log" '^tovra.text: window.shown:')
stop "$pid"
plain_on_locations "$nodes"
search_and_clear 400 22
stall_plain=$(longest_stall "$work/plain.log" '^tovra.stall: watching')
stop "$pid"
unset TOVRA_GUI_STALL_MS

# Memory at a fifth, three fifths and all of the nodes.
declare -A rss
for size in $(( nodes / 5 )) $(( nodes * 3 / 5 )) "$nodes"; do
    start_daemon --catalog-size "$size"
    client_on_locations "$size"
    rss[client,$size]=$(rss_kb "$pid")
    stop "$pid"
    plain_on_locations "$size"
    rss[plain,$size]=$(rss_kb "$pid")
    stop "$pid"
done
per10k() { # APP FROM TO: MB per 10,000 nodes between two sizes
    awk -v a="${rss[$1,$2]}" -v b="${rss[$1,$3]}" -v n="$(( $3 - $2 ))" \
        'BEGIN {printf "%.2f", (b - a) / 1024 / (n / 10000)}'
}

# The tray menu: right-click on the icon until the menu is painted, then Down to the location
# submenu and Right until the submenu is painted. Both menus open down and to the left of the
# icon at the top right, so each is watched at a pixel it covers.
icon_geometry() { # CLASS: "x y" of the icon's centre
    xwininfo -root -tree | sed -nE "s/.*\(\"$1\" \"[^\"]*\"\) +([0-9]+)x([0-9]+)\+[-0-9]+\+[-0-9]+ +\+([0-9]+)\+([0-9]+).*/\1 \2 \3 \4/p" |
        awk '$1 < 64 {print $3 + int($1 / 2), $4 + int($2 / 2); exit}'
}
menu_times() { # PROGRAM CLASS: prints "<menu ms> <submenu ms>" per run
    local program=$1 class=$2 run icon x y mx my
    fresh_config false
    "${client_env[@]}" "$program" >/dev/null 2>&1 &
    pid=$!
    wait_for 20 bash -c "xwininfo -root -tree | grep -q '(\"$class\" '"
    if [[ $program == "$client" ]]; then wait_for 90 answered /v1/nodes/groups; fi
    sleep 3
    read -r x y < <(icon_geometry "$class")
    for run in $(seq "$runs"); do
        read -r ms _ < <("$watch" $(( x - 120 )) $(( y + 80 )) 5000 xdotool mousemove "$x" "$y" click 3)
        sleep 0.3
        read -r mx my < <(xwininfo -root -tree | sed -nE "s/.*\(\"$class\" \"[^\"]*\"\) +[0-9]{3}x[0-9]{3}\+[-0-9]+\+[-0-9]+ +\+([0-9]+)\+([0-9]+).*/\1 \2/p" | head -1)
        xdotool key Down Down Down
        sleep 0.3
        read -r sub _ < <("$watch" $(( mx - 30 )) $(( my + 160 )) 5000 xdotool key Right)
        echo "$ms $sub"
        xdotool key Escape Escape
        sleep 0.5
    done
    stop "$pid"
}
start_daemon --catalog-size "$nodes"
menu_times "$client" tovra >"$work/menu-client"
menu_times "$bare_tray" tovra-bench-bare-tray >"$work/menu-bare"
column_median() { awk -v c="$2" '{print $c}' "$1" | median; }

header
section "$nodes nodes from the demo daemon (Xvfb); floor: plain Qt window and bare Qt tray"
row "longest stall after the window is up" "$stall_client" "$stall_plain" ms "" 100
for span in "$(( nodes / 5 )) $(( nodes * 3 / 5 ))" "$(( nodes * 3 / 5 )) $nodes"; do
    read -r from to <<<"$span"
    row "memory per 10,000 nodes, $from to $to" "$(per10k client $from $to)" \
        "$(per10k plain $from $to)" MB 1.5
done
row "resident, Locations, $nodes nodes" "$(( rss[client,$nodes] / 1024 ))" \
    "$(( rss[plain,$nodes] / 1024 ))" MB 1.5
row "tray menu open (median of $runs)" "$(column_median "$work/menu-client" 1)" \
    "$(column_median "$work/menu-bare" 1)" ms "" 100
row "tray location submenu open (median of $runs)" "$(column_median "$work/menu-client" 2)" \
    "$(column_median "$work/menu-bare" 2)" ms "" 100
