#!/usr/bin/env bash
# Pictures of every page of the main window, as a person sees them: the client against the demo
# daemon (signed in, connected) on a private X server, once per look. For reviewing the window
# after a change; nothing here is a test.
# Usage: scripts/window-screenshots.sh [BUILD_DIR] [OUT_DIR] [LOOK...]
#   LOOK is light, dark, rtl or dark-rtl; all four by default. The right-to-left looks run in
#   Arabic (TOVRA_SHOT_RTL_LANG, default ar); TOVRA_SHOT_LANG=de (any tag) picks the language
#   of the others. TOVRA_SHOT_TABS=N presses Tab N times on each page before the picture, to
#   look at the focus ring of the control it lands on.
set -euo pipefail

build=${1:-build}
out=${2:-/tmp/tovra-shots}
shift $(( $# > 2 ? 2 : $# )) || true
looks=("$@")
(( ${#looks[@]} )) || looks=(light dark rtl dark-rtl)

client=$build/src/tovra daemon=$build/demo/tovra-demo-daemon ctl=$build/src/ctl/tovra-ctl
grab=$build/tests/e2e/tovra-e2e-grab
for program in "$client" "$daemon" "$ctl" "$grab"; do
    [[ -x $program ]] || { echo "missing $program: build first" >&2; exit 1; }
done
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
xdo() { local attempt; for attempt in 1 2 3; do xdotool "$@" && return 0; sleep 0.2; done; return 1; }

Xvfb -displayfd 5 -screen 0 1100x760x24 -nolisten tcp 5>"$work/display" 2>/dev/null &
pids+=($!)
wait_for 10 test -s "$work/display"
export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb

socket=$work/control.sock
"$daemon" --socket "$socket" >"$work/daemon.log" 2>&1 &
pids+=($!)
wait_for 10 grep -q "listening on" "$work/daemon.log"
echo demo | "$ctl" --socket "$socket" login demo@tovra.invalid - true >/dev/null
"$ctl" --socket "$socket" connectSmart DE >/dev/null

window_id() {
    local id width
    for id in $(xdotool search --onlyvisible --name '^Tovra' 2>/dev/null); do
        width=$(xdotool getwindowgeometry "$id" | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p')
        (( ${width:-0} >= 300 )) && { echo "$id"; return 0; }
    done
    return 1
}

mkdir -p "$out"
pages=(vpn locations mode settings account)
for look in "${looks[@]}"; do
    appearance=${look%-rtl}; [[ $appearance == rtl ]] && appearance=light
    language=${TOVRA_SHOT_LANG:-en}; [[ $look == *rtl ]] && language=${TOVRA_SHOT_RTL_LANG:-ar}
    # The client takes its language, and with it the direction, from the daemon at start.
    "$ctl" --socket "$socket" setLanguage user "$language" >/dev/null
    config=$work/config-$look
    mkdir -p "$config/Tovra" "$work/runtime-$look"
    chmod 700 "$work/runtime-$look"
    printf '[General]\nappearance=%s\n' "$appearance" >"$config/Tovra/TovraVPN.ini"
    XDG_CONFIG_HOME=$config XDG_RUNTIME_DIR=$work/runtime-$look TOVRA_CONTROL_SOCKET=$socket \
        "$client" >"$work/client-$look.log" 2>&1 &
    client_pid=$!
    wait_for 20 window_id >/dev/null || { echo "no window for $look" >&2; tail "$work/client-$look.log" >&2; exit 1; }
    window=$(window_id)
    xdo windowmove "$window" 0 0
    xdo windowsize "$window" 1000 720
    sleep 1.5
    read -r wx wy < <(xdotool getwindowgeometry "$window" | sed -n 's/.*Position: \([0-9]*\),\([0-9]*\).*/\1 \2/p')
    read -r ww wh < <(xdotool getwindowgeometry "$window" | sed -n 's/.*Geometry: \([0-9]*\)x\([0-9]*\).*/\1 \2/p')
    # The sidebar: about 92 px wide, entries about 89 px high from 8 px down; Account at the bottom.
    side_x=$(( wx + 46 )); [[ $look == *rtl ]] && side_x=$(( wx + ww - 46 ))
    for index in 0 1 2 3 4; do
        y=$(( wy + 8 + 44 + 89 * index )); (( index == 4 )) && y=$(( wy + wh - 8 - 44 ))
        xdo mousemove "$side_x" "$y" click 1
        xdo mousemove $(( wx + ww / 2 )) $(( wy + wh - 4 ))
        for (( tab = 0; tab < ${TOVRA_SHOT_TABS:-0}; tab++ )); do xdo key Tab; done
        sleep 1
        "$grab" "$out/$look-${pages[$index]}.png"
    done
    kill "$client_pid"; wait "$client_pid" 2>/dev/null || true
done
echo "pictures in $out"
