#!/usr/bin/env bash
# End to end: the demo daemon, a real X server (Xvfb) with a tray host (trayer), and the client.
# Checks that the tray icon appears, that a click opens the window, that "Connect" in the tray
# menu connects, and that "Quit" ends the client; takes pictures of the menu and the window.
# Usage: tray_end_to_end.sh CLIENT DAEMON CTL GRAB SCREENSHOT_DIR [HOST]
# HOST is the kind of tray host: xembed (trayer, the default) or sni (StatusNotifierItem, whose
# clicks are D-Bus calls: tray_sni_end_to_end.sh).
set -euo pipefail
if [[ ${6:-xembed} == sni ]]; then exec "$(dirname "$0")/tray_sni_end_to_end.sh" "${@:1:5}"; fi
[[ ${6:-xembed} == xembed ]] || { echo "FAIL: unknown tray host kind $6" >&2; exit 2; }

client=$1 daemon=$2 ctl=$3 grab=$4 shots=$5
work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

fail() { echo "FAIL: $*" >&2; [[ -f $work/client.log ]] && tail -n 30 "$work/client.log" >&2; exit 1; }
# Polls a command every 0.1 s until it succeeds or the deadline (in seconds) passes.
wait_for() {
    local deadline=$(( SECONDS + $1 )); shift
    until "$@"; do (( SECONDS < deadline )) || return 1; sleep 0.1; done
}

# xdotool, retried: under load it can fail to open the display once.
xdo() { local attempt; for attempt in 1 2 3; do xdotool "$@" && return 0; sleep 0.2; done; return 1; }

for tool in Xvfb trayer xdotool xwininfo; do
    command -v "$tool" >/dev/null || fail "$tool is not installed (scripts/install-deps.sh installs it)"
done
mkdir -p "$shots" "$work/config/Tovra" "$work/runtime"
chmod 700 "$work/runtime"

# A private X server; -displayfd picks a free display number.
Xvfb -displayfd 5 -screen 0 1280x800x24 -nolisten tcp 5>"$work/display" 2>"$work/xvfb.log" &
pids+=($!)
wait_for 10 test -s "$work/display" || fail "Xvfb did not start"
export DISPLAY=":$(head -n1 "$work/display")"
# The tray needs the real X server, whatever platform the caller's environment asks for.
export QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

trayer --edge top --align right --widthtype request --height 28 --SetDockType true \
    --transparent false >"$work/trayer.log" 2>&1 &
pids+=($!)
wait_for 10 xdotool search --class trayer >/dev/null || fail "trayer did not start"

socket=$work/control.sock
"$daemon" --socket "$socket" >"$work/daemon.log" 2>&1 &
pids+=($!)
wait_for 10 grep -q "listening on" "$work/daemon.log" || fail "demo daemon did not start"
"$ctl" --socket "$socket" login demo@tovra.invalid demo false >/dev/null || fail "demo sign-in failed"

# The window stays hidden at start, so that the tray is the way in.
printf '[window]\nshowOnLaunch=false\n' >"$work/config/Tovra/TovraVPN.ini"
start_ns=$(date +%s%N)
XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime TMPDIR=$work TOVRA_CONTROL_SOCKET=$socket \
    "$client" >"$work/client.log" 2>&1 &
client_pid=$!
pids+=("$client_pid")

# The icon is the client's small window embedded in trayer's panel.
icon_line() { xwininfo -root -tree 2>/dev/null | grep -E '\("tovra" "Tovra"\) +[0-9]{1,2}x[0-9]{1,2}\+' | head -n1; }
wait_for 20 icon_line >/dev/null || fail "tray icon did not appear"
echo "tray icon shown after $(( ($(date +%s%N) - start_ns) / 1000000 )) ms"
# The panel may still lay the icon out after it first appears, so its place is read again before
# every click.
locate_icon() {
    read -r icon_left icon_top icon_width icon_height < <(icon_line \
        | sed -E 's/.* ([0-9]+)x([0-9]+)\+-?[0-9]+\+-?[0-9]+ +\+(-?[0-9]+)\+(-?[0-9]+).*/\3 \4 \1 \2/')
    icon_x=$(( icon_left + icon_width / 2 )) icon_y=$(( icon_top + icon_height / 2 ))
}
locate_icon
# The connected icon is the green one: its average green clearly above its red.
icon_is_on() {
    local red green blue
    read -r red green blue < <("$grab" --average "$icon_left" "$icon_top" "$icon_width" "$icon_height")
    (( green > red + 30 ))
}

# The main window: a visible window of the client at least 300 pixels wide (the icon is small).
window_visible() {
    local id width
    for id in $(xdotool search --onlyvisible --name '^Tovra$' 2>/dev/null); do
        width=$(xdotool getwindowgeometry "$id" | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p')
        (( ${width:-0} >= 300 )) && return 0
    done
    return 1
}
window_visible && fail "the window showed although showOnLaunch is off"

# The context menu: a visible window of the client, taller than the icon and narrower than the
# main window. (Counting the client's windows misleads: the menu warmed up off screen at start
# can hide just as the real one shows.)
menu_visible() {
    local id size
    for id in $(xdotool search --onlyvisible --class tovra 2>/dev/null); do
        size=$(xdotool getwindowgeometry "$id" | sed -n 's/.*Geometry: \([0-9]*\)x\([0-9]*\).*/\1 \2/p')
        read -r width height <<<"${size:-0 0}"
        (( height >= 150 && width < 600 )) && { menu_id=$id; return 0; }
    done
    return 1
}
# Right-clicks the icon until the menu shows; xdotool itself can fail to reach a busy server.
open_menu() {
    local attempt
    for attempt in 1 2 3 4 5; do
        locate_icon
        xdo mousemove "$icon_x" "$icon_y" click 3 || continue
        wait_for 3 menu_visible && return 0
    done
    return 1
}
tunnel_state() { "$ctl" --socket "$socket" fetchStatus | sed -n 's/.*"tunnel_state": "\(.*\)".*/\1/p'; }
is_connected() { [[ $(tunnel_state) == connected ]]; }
is_moving() { [[ $(tunnel_state) == connect* ]]; }

if icon_is_on; then fail "the icon shows connected while the tunnel is down"; fi

# "Connect" is the second enabled entry, after "Open Tovra...". The tray enables it once its first
# status answer is in, so the attempt is repeated until the daemon starts connecting.
connected=0
for attempt in 1 2 3 4 5 6 7 8 9 10; do
    open_menu || fail "tray menu did not open"
    xdo key Down Down Return
    if wait_for 3 is_moving; then connected=1; break; fi
    xdo key Escape
done
(( connected )) || fail "Connect in the tray menu did not reach the daemon"
wait_for 10 is_connected || fail "the tunnel did not reach connected (state: $(tunnel_state))"
wait_for 10 icon_is_on || fail "the tray icon did not turn to connected"

open_menu || fail "tray menu did not open after connecting"
"$grab" "$shots/tray-menu.png" || fail "could not take the menu picture"
# For AppStream: the menu with the panel above it, to the right edge of the screen.
eval "$(xdotool getwindowgeometry --shell "$menu_id")"
"$grab" "$shots/appstream-tray-menu.png" $((X - 24)) 0 $((1280 - X + 24)) $((Y + HEIGHT + 24)) \
    || fail "could not take the AppStream menu picture"
xdo key Escape

# A plain click on the icon opens the window.
locate_icon
xdo mousemove "$icon_x" "$icon_y" click 1
wait_for 10 window_visible || fail "a click on the tray icon did not open the window"
"$grab" "$shots/window.png" || fail "could not take the window picture"

for picture in tray-menu window; do
    [[ -s $shots/$picture.png ]] || fail "$picture.png is empty"
done

# "Quit" is the last entry: Up from the top wraps to it.
open_menu || fail "tray menu did not open for Quit"
xdo key Up Return
client_exited() { ! kill -0 "$client_pid" 2>/dev/null; }
wait_for 15 client_exited || fail "Quit did not end the client"
status=0
wait "$client_pid" || status=$?
(( status == 0 )) || fail "the client exited with status $status"
echo "end-to-end: icon shown, window opened, connected through the menu, quit; pictures in $shots"
