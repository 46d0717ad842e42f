#!/usr/bin/env bash
# End to end on a StatusNotifierItem tray host, the protocol of KDE and of GNOME's AppIndicator
# extension: a private session bus, a real X server (Xvfb), status-notifier-watcher and
# gtk-sni-tray-standalone as the host, the demo daemon and the client. The host's clicks are
# D-Bus calls, so the test makes them itself: it checks that the client's item registers and
# carries an icon, connects through the exported menu ("Connect"), sees the icon turn to
# connected, opens the window with Activate (a left click), and quits through the menu.
# Usage: tray_sni_end_to_end.sh CLIENT DAEMON CTL GRAB SCREENSHOT_DIR
set -euo pipefail

# Everything runs on a bus of its own, never on the caller's desktop session.
if [[ -z ${TOVRA_E2E_PRIVATE_BUS:-} ]]; then
    command -v dbus-run-session >/dev/null || { echo "FAIL: dbus-run-session is not installed" >&2; exit 1; }
    TOVRA_E2E_PRIVATE_BUS=1 exec dbus-run-session -- "$0" "$@"
fi

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
wait_for() {
    local deadline=$(( SECONDS + $1 )); shift
    until "$@"; do (( SECONDS < deadline )) || return 1; sleep 0.1; done
}

for tool in Xvfb xdotool xwininfo gdbus status-notifier-watcher gtk-sni-tray-standalone; do
    command -v "$tool" >/dev/null || fail "$tool is not installed (scripts/install-deps.sh installs it)"
done
mkdir -p "$shots" "$work/config/Tovra" "$work/runtime"
chmod 700 "$work/runtime"

Xvfb -displayfd 5 -screen 0 1280x800x24 -nolisten tcp 5>"$work/display" 2>"$work/xvfb.log" &
pids+=($!)
wait_for 10 test -s "$work/display" || fail "Xvfb did not start"
export DISPLAY=":$(head -n1 "$work/display")"
export QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
unset WAYLAND_DISPLAY

watcher() { # METHOD ARGS...: a call on the watcher
    gdbus call --session --dest org.kde.StatusNotifierWatcher --object-path /StatusNotifierWatcher \
        --method "$@" 2>/dev/null
}
watcher_property() { watcher org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierWatcher "$1"; }
status-notifier-watcher >"$work/watcher.log" 2>&1 &
pids+=($!)
wait_for 10 watcher_property ProtocolVersion >/dev/null || fail "status-notifier-watcher did not start"
gtk-sni-tray-standalone >"$work/host.log" 2>&1 &
pids+=($!)
host_registered() { watcher_property IsStatusNotifierHostRegistered | grep -q true; }
wait_for 10 host_registered || fail "gtk-sni-tray-standalone did not register as a host"

socket=$work/control.sock
"$daemon" --socket "$socket" >"$work/daemon.log" 2>&1 &
pids+=($!)
wait_for 10 grep -q "listening on" "$work/daemon.log" || fail "demo daemon did not start"
"$ctl" --socket "$socket" login demo@tovra.invalid demo false >/dev/null || fail "demo sign-in failed"

printf '[window]\nshowOnLaunch=false\n' >"$work/config/Tovra/TovraVPN.ini"
# Under the sanitizers: Qt keeps the D-Bus interface descriptions it builds for a
# StatusNotifierItem for the whole process; tests/lsan.supp names them, which needs full stacks.
if [[ -n ${ASAN_OPTIONS:-} ]]; then export ASAN_OPTIONS="$ASAN_OPTIONS:fast_unwind_on_malloc=0"; fi
start_ns=$(date +%s%N)
XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime TMPDIR=$work TOVRA_CONTROL_SOCKET=$socket \
    "$client" >"$work/client.log" 2>&1 &
client_pid=$!
pids+=("$client_pid")

# The client's item: the registered item whose bus connection belongs to the client's process.
find_item() {
    local name pid
    for name in $(watcher_property RegisteredStatusNotifierItems | grep -o "'[^']*'" | tr -d "'"); do
        name=${name%%/*}
        pid=$(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
            --method org.freedesktop.DBus.GetConnectionUnixProcessID "$name" 2>/dev/null \
            | grep -o '[0-9]\+' | tail -n1)
        [[ $pid == "$client_pid" ]] && { item=$name; return 0; }
    done
    return 1
}
wait_for 20 find_item || fail "the client's item did not register with the watcher"
echo "tray item $item registered after $(( ($(date +%s%N) - start_ns) / 1000000 )) ms"

item_call() { # PATH METHOD ARGS...
    local path=$1; shift
    gdbus call --session --dest "$item" --object-path "$path" --method "$@" 2>/dev/null
}
item_property() { item_call /StatusNotifierItem org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem "$1"; }
menu_path=$(item_property Menu | grep -o "'/[^']*'" | tr -d "'")
[[ -n $menu_path ]] || fail "the item exports no menu"

# The icon's average colour over its opaque pixels, from the ARGB bytes of its largest pixmap.
icon_colour() {
    item_property IconPixmap | grep -o '0x[0-9a-f][0-9a-f]' | awk '
        function hex(h) { return index("0123456789abcdef", substr(h, 3, 1)) * 16 + index("0123456789abcdef", substr(h, 4, 1)) - 17 }
        { v = hex($1); i = (NR - 1) % 4
          if (i == 0) a = v; else if (i == 1) r = v; else if (i == 2) g = v
          else if (a > 128) { n++; R += r; G += g; B += v } }
        END { if (n) printf "%d %d %d\n", R / n, G / n, B / n; else print "0 0 0" }'
}
icon_is_on() { local red green blue; read -r red green blue < <(icon_colour); (( green > red + 30 )); }
has_icon() { local red green blue; read -r red green blue < <(icon_colour); (( red + green + blue > 0 )); }
wait_for 10 has_icon || fail "the item carries no icon"
if icon_is_on; then fail "the icon shows connected while the tunnel is down"; fi

# The id of the enabled entry with this label, read from the layout as it is now.
entry_id() {
    local id
    id=$(item_call "$menu_path" com.canonical.dbusmenu.GetLayout 0 1 "['label','enabled','type']" \
        | grep -o "([0-9]*, {[^}]*'enabled': <true>, 'label': <'$1'>" | grep -o '^([0-9]*' | tr -d '(')
    [[ -n $id ]] && echo "$id"
}
# A host opens the menu (the client holds its entries steady while it is open), sends the click
# and closes the menu again.
menu_event() { item_call "$menu_path" com.canonical.dbusmenu.Event "$1" "$2" '<int32 0>' 0 >/dev/null; }
click_entry() { # LABEL
    local id clicked=1
    item_call "$menu_path" com.canonical.dbusmenu.AboutToShow 0 >/dev/null || true
    menu_event 0 opened || true
    id=$(entry_id "$1") && menu_event "$id" clicked && clicked=0
    menu_event 0 closed || true
    return "$clicked"
}
tunnel_state() { "$ctl" --socket "$socket" fetchStatus | sed -n 's/.*"tunnel_state": "\(.*\)".*/\1/p'; }
is_connected() { [[ $(tunnel_state) == connected ]]; }
is_moving() { [[ $(tunnel_state) == connect* ]]; }

# "Connect" is enabled once the tray's first status answer is in.
wait_for 15 entry_id Connect >/dev/null || fail "Connect did not become enabled in the exported menu"
click_entry Connect || fail "could not click Connect"
wait_for 5 is_moving || fail "Connect in the exported menu did not reach the daemon"
wait_for 10 is_connected || fail "the tunnel did not reach connected (state: $(tunnel_state))"
wait_for 10 icon_is_on || fail "the tray icon did not turn to connected"
"$grab" "$shots/tray-host.png" || fail "could not take the tray host picture"

window_visible() {
    local id width
    for id in $(xdotool search --onlyvisible --name '^Tovra$' 2>/dev/null); do
        width=$(xdotool getwindowgeometry "$id" | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p')
        (( ${width:-0} >= 300 )) && { window_id=$id; return 0; }
    done
    return 1
}
window_visible && fail "the window showed although showOnLaunch is off"
item_call /StatusNotifierItem org.kde.StatusNotifierItem.Activate 0 0 >/dev/null || fail "Activate failed"
wait_for 10 window_visible || fail "activating the item did not open the window"
"$grab" "$shots/window.png" || fail "could not take the window picture"
[[ -s $shots/window.png ]] || fail "window.png is empty"
# For AppStream: the window alone.
eval "$(xdotool getwindowgeometry --shell "$window_id")"
"$grab" "$shots/appstream-window.png" "$X" "$Y" "$WIDTH" "$HEIGHT" \
    || fail "could not take the AppStream window picture"

click_entry Quit || fail "Quit is not in the exported menu"
client_exited() { ! kill -0 "$client_pid" 2>/dev/null; }
wait_for 15 client_exited || fail "Quit did not end the client"
status=0
wait "$client_pid" || status=$?
(( status == 0 )) || fail "the client exited with status $status"
echo "end-to-end (StatusNotifierItem): item registered, connected through the menu, window opened, quit; pictures in $shots"
