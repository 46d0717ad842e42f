#!/usr/bin/env bash
# End to end: the demo daemon, a real X server (Xvfb) with a tray host (trayer), and the client.
# Checks that the tray icon appears, that "Connect" in the tray menu connects and turns the icon
# green, and that a click opens the window; cuts the AppStream pictures of the menu and the window.
# (The same through a StatusNotifierItem host: wayland_end_to_end.sh; Quit from the menu, and the
# menu after a host restart: tray_hosts.sh.)
# Usage: tray_end_to_end.sh CLIENT DAEMON CTL GRAB SCREENSHOT_DIR
set -euo pipefail
client=$1 daemon=$2 ctl=$3 grab=$4 shots=$5
source "$(dirname "$0")/lib.sh"
e2e_init
need Xvfb trayer xdotool xwininfo
mkdir -p "$shots"
start_xvfb
start_trayer
start_daemon
sign_in

# The window stays hidden at start, so that the tray is the way in.
client_settings '[window]' 'showOnLaunch=false'
start_client
wait_for 20 locate_icon || fail "tray icon did not appear"
echo "tray icon shown after $(since_start_ms) ms"
! window_visible || fail "the window showed although showOnLaunch is off"
! icon_is_on || fail "the icon shows connected while the tunnel is down"

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
# For AppStream: the menu with the panel above it, to the right edge of the screen.
eval "$(xdotool getwindowgeometry --shell "$menu_id")"
"$grab" "$shots/appstream-tray-menu.png" $((X - 24)) 0 $((1280 - X + 24)) $((Y + HEIGHT + 24)) \
    || fail "could not take the AppStream menu picture"
xdo key Escape

# A plain click on the icon opens the window.
locate_icon || fail "the icon went away"
xdo mousemove "$icon_x" "$icon_y" click 1
wait_for 10 window_visible || fail "a click on the tray icon did not open the window"
"$grab" "$shots/appstream-window.png" "$win_x" "$win_y" "$win_w" "$win_h" \
    || fail "could not take the AppStream window picture"
echo "end-to-end: icon shown, connected through the menu, window opened; pictures in $shots"
