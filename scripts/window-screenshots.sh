#!/usr/bin/env bash
# Pictures of every page of the main window, as a person sees them: the client against the demo
# daemon (signed in, connected) on a private X server, once per look. Besides the five pages:
# Locations with a continent selected and opened down to its nodes (locations-open), with a
# search's first match current and its star focused (locations-star), while the catalogue is
# still loading (locations-loading) and when it could not be fetched (locations-failed), the
# tray menu (tray-menu), a sidebar tool tip (tooltip), the keyboard shortcuts dialog (shortcuts,
# F1), the update dialog over the window (update-dialog) and the widget gallery (gallery-*).
# Drawn offscreen by the tools in scripts/shots (built here if needed): the Mode page's special
# states and its two dialogs (mode-page, mode-killswitch, mode-regions, mode-rules, ...) and every
# phase of the update dialog, offered and required (update-offer, update-downloading-forced, ...).
# For reviewing the window after a change; nothing here is a test.
# Usage: scripts/window-screenshots.sh [BUILD_DIR] [OUT_DIR] [LOOK...]
#   LOOK is light, dark, rtl, dark-rtl, hc or dark-hc; the first four by default. The hc looks
#   run the client on a private session bus whose portal (scripts/contrast-portal.py) asks
#   for higher contrast, as a desktop with its high-contrast setting on does. The right-to-left
#   looks run in Arabic (TOVRA_SHOT_RTL_LANG, default ar); TOVRA_SHOT_LANG=de (any tag) picks the language
#   of the others. TOVRA_SHOT_SCALE=1.25 (1.5, 2, ...) scales everything through QT_SCALE_FACTOR
#   and names the pictures light-vpn@1.25x.png and so on. TOVRA_SHOT_ACCOUNT=free signs in the
#   Free plan, whose locked locations show their lock. TOVRA_SHOT_TABS=N presses Tab N times
#   on each page before the picture, to look at the focus ring of the control it lands on.
set -euo pipefail

build=${1:-build}
out=${2:-/tmp/tovra-shots}
shift $(( $# > 2 ? 2 : $# )) || true
looks=("$@")
(( ${#looks[@]} )) || looks=(light dark rtl dark-rtl)
scale=${TOVRA_SHOT_SCALE:-1}
suffix=; [[ $scale == 1 ]] || suffix="@${scale}x"
account=demo@tovra.invalid; [[ ${TOVRA_SHOT_ACCOUNT:-} == free ]] && account=free@tovra.invalid

client=$build/src/tovra daemon=$build/demo/tovra-demo-daemon ctl=$build/src/ctl/tovra-ctl
grab=$build/scripts/shots/tovra-shot-grab gallery=$build/src/ui/tovra-gallery
for program in "$client" "$daemon" "$ctl" "$grab"; do
    [[ -x $program ]] || { echo "missing $program: build first" >&2; exit 1; }
done
mode_shots=$build/scripts/shots/tovra-mode-shots update_shots=$build/scripts/shots/tovra-update-shots
cmake --build "$build" --target tovra-mode-shots tovra-update-shots >/dev/null \
    || { echo "could not build the picture tools in $build" >&2; exit 1; }
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
# Logical pixels to the screen's pixels.
px() { awk -v v="$1" -v s="$scale" 'BEGIN { printf "%d", v * s + 0.5 }'; }

Xvfb -displayfd 5 -screen 0 "$(px 1100)x$(px 800)x24" -nolisten tcp 5>"$work/display" 2>/dev/null &
pids+=($!)
wait_for 10 test -s "$work/display"
export DISPLAY=":$(head -n1 "$work/display")" QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$scale
# A tray host below the window, for the tray icon and its menu.
have_tray=0
if command -v trayer >/dev/null; then
    trayer --edge bottom --align right --widthtype request --height "$(px 28)" --SetDockType true \
        --transparent false >/dev/null 2>&1 &
    pids+=($!)
    wait_for 10 xdotool search --class trayer >/dev/null && have_tray=1
fi

# A demo daemon signed in on its own socket; extra arguments go to the daemon.
start_daemon() {
    local name=$1; shift
    "$daemon" --socket "$work/$name.sock" "$@" >"$work/$name.log" 2>&1 &
    pids+=($!)
    wait_for 10 grep -qs "listening on" "$work/$name.log"
    echo demo | "$ctl" --socket "$work/$name.sock" login "$account" - true >/dev/null
}
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
version+=+$(sed -n 's/^TOVRA_BUILD_NUMBER:STRING=//p' "$build/CMakeCache.txt")
start_daemon main
"$ctl" --socket "$work/main.sock" connectSmart DE >/dev/null
# The tunnel takes a moment to come up; the pictures show it up.
daemon_connected() {
    "$ctl" --socket "$work/main.sock" fetchStatus | grep -q '"tunnel_state": "connected"'
}
wait_for 10 daemon_connected || { echo "the demo daemon never connected" >&2; exit 1; }
start_daemon loading --hang /v1/nodes --hang /v1/nodes/refresh
start_daemon failing --fail /v1/nodes=503 --fail /v1/nodes/refresh=503
start_daemon update --force-upgrade

# A private session bus with a portal asking for higher contrast, started at first use; its
# address lands in $work/contrast-bus.
start_contrast_bus() {
    [[ -s $work/contrast-bus ]] && return 0
    dbus-daemon --session --nofork --print-address=5 5>"$work/contrast-bus" 2>/dev/null &
    pids+=($!)
    wait_for 10 test -s "$work/contrast-bus"
    local address; address=$(head -n1 "$work/contrast-bus")
    DBUS_SESSION_BUS_ADDRESS=$address "$(dirname "$0")/contrast-portal.py" 1 >/dev/null 2>&1 &
    pids+=($!)
    wait_for 10 env DBUS_SESSION_BUS_ADDRESS="$address" gdbus call --session \
        --dest org.freedesktop.portal.Desktop --object-path /org/freedesktop/portal/desktop \
        --method org.freedesktop.portal.Settings.ReadOne org.freedesktop.appearance contrast \
        >/dev/null 2>&1
}

window_id() {
    local id width
    for id in $(xdotool search --onlyvisible --name '^Tovra' 2>/dev/null); do
        width=$(xdotool getwindowgeometry "$id" | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p')
        (( ${width:-0} >= $(px 300) )) && { echo "$id"; return 0; }
    done
    return 1
}

# Starts the client for a look against a daemon and places its window; sets window, wx, wy, ww
# and wh.
# The language a look is shown in.
look_language() {
    if [[ $1 == *rtl ]]; then echo "${TOVRA_SHOT_RTL_LANG:-ar}"; else echo "${TOVRA_SHOT_LANG:-en}"; fi
}
start_client() {
    local look=$1 name=$2 appearance=${1%-rtl} language
    language=$(look_language "$look")
    appearance=${appearance%-hc}
    [[ $appearance == rtl || $appearance == hc ]] && appearance=light
    local bus=()
    if [[ $look == *hc* ]]; then
        start_contrast_bus
        bus=(DBUS_SESSION_BUS_ADDRESS="$(head -n1 "$work/contrast-bus")")
    fi
    # The client takes its language, and with it the direction, from the daemon at start.
    "$ctl" --socket "$work/$name.sock" setLanguage user "$language" >/dev/null
    local config=$work/config-$look-$name
    mkdir -p "$config/Tovra" "$work/runtime-$look-$name"
    chmod 700 "$work/runtime-$look-$name"
    printf '[General]\nappearance=%s\n' "$appearance" >"$config/Tovra/TovraVPN.ini"
    # A required update seen before is checked again at once, so its dialog opens at start.
    [[ $name == update ]] && printf '[update]\ncurrentVersion=%s\nforceUpgrade=true\n' \
        "$version" >>"$config/Tovra/TovraVPN.ini"
    local log=$work/client-$look-$name.log
    env "${bus[@]}" XDG_CONFIG_HOME=$config XDG_RUNTIME_DIR=$work/runtime-$look-$name \
        TOVRA_GUI_TEXT_LOG=1 TOVRA_CONTROL_SOCKET=$work/$name.sock "$client" >"$log" 2>&1 &
    client_pid=$!
    wait_for 20 window_id >/dev/null \
        || { echo "no window for $look" >&2; tail "$log" >&2; exit 1; }
    # The VPN page's first line says the service has not answered yet; the next one is the
    # daemon's state (in the look's language), which the pictures must show.
    wait_for 20 status_shown "$log" || echo "no status from the daemon in $look" >&2
    window=$(window_id)
    xdo windowmove "$window" 0 0
    xdo windowsize "$window" "$(px 1000)" "$(px 720)"
    sleep 1.5
    read -r wx wy < <(xdotool getwindowgeometry "$window" | sed -n 's/.*Position: \([0-9]*\),\([0-9]*\).*/\1 \2/p')
    read -r ww wh < <(xdotool getwindowgeometry "$window" | sed -n 's/.*Geometry: \([0-9]*\)x\([0-9]*\).*/\1 \2/p')
}
status_shown() { (( $(grep -ac 'tovra.text: window.status:' "$1") >= 2 )); }
stop_client() { kill "$client_pid"; wait "$client_pid" 2>/dev/null || true; }
# A point of the window in logical pixels from its leading edge, mirrored for right to left.
click_at() {
    local x=$(( wx + $(px "$2") )) y=$(( wy + $(px "$3") ))
    [[ $1 == *rtl ]] && x=$(( wx + ww - $(px "$2") ))
    xdo mousemove "$x" "$y" click 1
}
park_mouse() { xdo mousemove $(( wx + ww / 2 )) $(( wy + wh - 4 )); }
# The sidebar: about 92 px wide, entries about 89 px high from 8 px down; Account at the bottom.
show_page() {
    local index=$2
    if (( index == 4 )); then
        click_at "$1" 46 $(( $(awk -v h="$wh" -v s="$scale" 'BEGIN { printf "%d", h / s }') - 52 ))
    else
        click_at "$1" 46 $(( 52 + 89 * index ))
    fi
    park_mouse
    sleep 1
}
shot() { "$grab" "$out/$1$suffix.png"; }

mkdir -p "$out"
pages=(vpn locations mode settings account)
for look in "${looks[@]}"; do
    start_client "$look" main
    for index in 0 1 2 3 4; do
        show_page "$look" "$index"
        for (( tab = 0; tab < ${TOVRA_SHOT_TABS:-0}; tab++ )); do xdo key Tab; done
        shot "$look-${pages[$index]}"
    done
    # Locations: from the search field into the tree, then North America (selected) opened down
    # to the nodes of its first city; Europe stays folded with the connection's mark.
    show_page "$look" 1
    click_at "$look" 500 200
    open=Right; [[ $look == *rtl ]] && open=Left
    xdo key Down Down "$open" Down "$open" Down "$open" Up Up
    park_mouse
    sleep 0.5
    shot "$look-locations-open"
    # The first match of a search is the current row; its star sits before the search field.
    xdo key ctrl+f
    xdo type "tokyo 02"
    xdo key shift+Tab
    sleep 0.5
    shot "$look-locations-star"
    if (( have_tray )); then
        # The icon sits in the panel at the bottom right; its menu opens above it.
        xdo mousemove $(( $(px 1100) - $(px 14) )) $(( $(px 800) - $(px 14) )) click 3
        sleep 1
        shot "$look-tray-menu"
        xdo key Escape
    fi
    # A sidebar entry's tool tip (with its key), then the keyboard shortcuts dialog (F1).
    hover_x=$(( wx + $(px 46) )); [[ $look == *rtl ]] && hover_x=$(( wx + ww - $(px 46) ))
    xdo mousemove "$hover_x" $(( wy + $(px 141) ))
    sleep 2
    shot "$look-tooltip"
    park_mouse
    xdo key F1
    sleep 1.5
    shot "$look-shortcuts"
    xdo key Escape
    stop_client
    start_client "$look" loading
    show_page "$look" 1
    shot "$look-locations-loading"
    stop_client
    start_client "$look" failing
    show_page "$look" 1
    shot "$look-locations-failed"
    stop_client
    # A required update opens its dialog over the window at start.
    start_client "$look" update
    sleep 2
    shot "$look-update-dialog"
    stop_client
    for tool in "$mode_shots" "$update_shots"; do
        TOVRA_SHOT_LANG=$(look_language "$look") QT_QPA_PLATFORM=offscreen \
            "$tool" "$out" "$look" "$suffix" >/dev/null 2>&1 || echo "$tool failed for $look" >&2
    done
done
if [[ -x $gallery ]]; then
    QT_QPA_PLATFORM=offscreen "$gallery" --screenshot "$work/gallery" >/dev/null 2>&1 \
        && for picture in "$work"/gallery/*.png; do
            cp "$picture" "$out/gallery-$(basename "$picture" .png)$suffix.png"
        done
fi
echo "pictures in $out"
