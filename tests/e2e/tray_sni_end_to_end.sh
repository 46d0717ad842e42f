#!/usr/bin/env bash
# End to end on a StatusNotifierItem tray host, the protocol of KDE and of GNOME's AppIndicator
# extension: a private session bus, a real X server (Xvfb), status-notifier-watcher and
# gtk-sni-tray-standalone as the host, the demo daemon and the client. The host's clicks are
# D-Bus calls, so the test makes them itself: it checks that the client's item registers and
# carries an icon, connects through the exported menu ("Connect"), sees the icon turn to
# connected, opens the window with Activate (a left click), and quits through the menu.
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
[[ -n $(menu_path) ]] || fail "the item exports no menu"
wait_for 10 item_has_icon || fail "the item carries no icon"
! item_is_on || fail "the icon shows connected while the tunnel is down"

# "Connect" is enabled once the tray's first status answer is in.
wait_for 15 entry_id Connect >/dev/null || fail "Connect did not become enabled in the exported menu"
click_entry Connect || fail "could not click Connect"
wait_for 5 is_moving || fail "Connect in the exported menu did not reach the daemon"
wait_for 10 is_connected || fail "the tunnel did not reach connected (state: $(tunnel_state))"
wait_for 10 item_is_on || fail "the tray icon did not turn to connected"
"$grab" "$shots/tray-host.png" || fail "could not take the tray host picture"

! window_visible || fail "the window showed although showOnLaunch is off"
activate_item || fail "Activate failed"
wait_for 10 window_visible || fail "activating the item did not open the window"
"$grab" "$shots/window.png" || fail "could not take the window picture"
[[ -s $shots/window.png ]] || fail "window.png is empty"
# For AppStream: the window alone.
"$grab" "$shots/appstream-window.png" "$win_x" "$win_y" "$win_w" "$win_h" \
    || fail "could not take the AppStream window picture"

click_entry Quit || fail "Quit is not in the exported menu"
client_exits 15
echo "end-to-end (StatusNotifierItem): item registered, connected through the menu, window opened, quit; pictures in $shots"
