#!/usr/bin/env bash
# End to end on a StatusNotifierItem tray host, the protocol of KDE and of GNOME's AppIndicator
# extension: a private session bus, a real X server (Xvfb), status-notifier-watcher and
# gtk-sni-tray-standalone as the host, the demo daemon and the client. The host's clicks are
# D-Bus calls, so the test makes them itself: it checks that the client's item registers,
# connects through the exported menu ("Connect"), sees the icon the panel draws turn to connected,
# and opens the X11 window with Activate (a left click); cuts the AppStream picture of the window.
# (The item's own icon and Quit from the menu: wayland_end_to_end.sh and tray_hosts.sh.)
# Usage: tray_sni_end_to_end.sh CLIENT DAEMON CTL GRAB SCREENSHOT_DIR
set -euo pipefail
client=$1 daemon=$2 ctl=$3 grab=$4 shots=$5
source "$(dirname "$0")/lib.sh"
e2e_init
need Xvfb xdotool xwininfo gdbus status-notifier-watcher gtk-sni-tray-standalone
mkdir -p "$shots"
start_xvfb
start_bus
start_sni_watcher
start_sni_host
start_daemon
sign_in

client_settings '[window]' 'showOnLaunch=false'
start_client
wait_for 20 find_item || fail "the client's item did not register with the watcher"
echo "tray item $item registered after $(since_start_ms) ms"

# "Connect" is enabled once the tray's first status answer is in.
wait_for 15 entry_id Connect >/dev/null || fail "Connect did not become enabled in the exported menu"
click_entry Connect || fail "could not click Connect"
wait_for 5 is_moving || fail "Connect in the exported menu did not reach the daemon"
wait_for 10 is_connected || fail "the tunnel did not reach connected (state: $(tunnel_state))"
wait_for 10 panel_shows_on || fail "the panel's icon did not turn to connected"

! window_visible || fail "the window showed although showOnLaunch is off"
activate_item || fail "Activate failed"
wait_for 10 window_visible || fail "activating the item did not open the window"
# For AppStream: the window alone.
"$grab" "$shots/appstream-window.png" "$win_x" "$win_y" "$win_w" "$win_h" \
    || fail "could not take the AppStream window picture"
echo "end-to-end (StatusNotifierItem): item registered, connected through the menu, window opened; picture in $shots"
