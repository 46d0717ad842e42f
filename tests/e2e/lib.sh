# The end-to-end harness, sourced by every script here: a private work folder removed at exit,
# polling waits, the display servers (Xvfb, weston's headless backend), a private session bus, the
# tray hosts (trayer; status-notifier-watcher with gtk-sni-tray-standalone), the demo daemon, the
# client with private XDG folders, and readers of what the client shows and exports.
# Scripts set client, daemon and ctl to the three programs, then call e2e_init.
e2e_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# ---- work folder, failures, waits ----

e2e_init() { # [FOLDER]: the work folder (made when not given) and its cleanup at exit
    work=${1:-$(mktemp -d)}
    mkdir -p "$work/config/Tovra" "$work/runtime"
    chmod 700 "$work/runtime"
    export XDG_RUNTIME_DIR=$work/runtime
    pids=() client_pid="" daemon_pid=""
    trap 'e2e_cleanup 2>/dev/null' EXIT
}

e2e_cleanup() {
    set +e
    local pid
    # The client first, so that it never sees its display or bus go away.
    # more.pids: processes that a helper shell started for the script.
    for pid in $client_pid $daemon_pid $(cat "$work/more.pids" 2>/dev/null); do kill -9 "$pid" 2>/dev/null; done
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; kill -CONT "$pid" 2>/dev/null; done
    wait 2>/dev/null
    [[ -n ${E2E_KEEP_WORK:-} ]] || rm -rf "$work"
}

fail() {
    echo "FAIL${case_name:+ $case_name}: $*" >&2
    if [[ -f $work/client.log ]]; then
        echo "--- client log (last 25 lines)" >&2
        grep -av 'wl_\|xdg_\|zxdg_\|zwp_\|wp_' "$work/client.log" | tail -n 25 >&2
    fi
    exit 1
}

# ctest reports a test that exits with 77 as skipped (SKIP_RETURN_CODE).
skip() { echo "SKIP${case_name:+ $case_name}: $*"; exit 77; }

need() { # TOOL...: each must be installed
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null || fail "$tool is not installed (scripts/install-deps.sh installs it)"
    done
}

now_ms() { local now=${EPOCHREALTIME/./}; echo $(( now / 1000 )); }

wait_for() { # SECONDS CMD...: polls CMD every 50 ms until it succeeds or the time is up
    local deadline=$(( $(now_ms) + $1 * 1000 )); shift
    until "$@"; do (( $(now_ms) < deadline )) || return 1; sleep 0.05; done
}

gone() { ! kill -0 "$1" 2>/dev/null; }

# ---- display servers ----

start_xvfb() { # a private X server: DISPLAY, QT_QPA_PLATFORM=xcb
    new_x_server
    export DISPLAY=$x_display QT_QPA_PLATFORM=xcb
    unset WAYLAND_DISPLAY
}

new_x_server() { # sets x_display
    local attempt x_pid
    for attempt in 1 2 3; do
        # Listening on its abstract socket alone: an X server of someone else's that exits
        # removes the socket file of its display number, which a newer server may have taken.
        # Never reset when the last client leaves: a reset opens the socket anew, and a server
        # starting beside it can take the display number meanwhile.
        rm -f "$work/display"
        Xvfb -displayfd 5 -screen 0 1280x800x24 -nolisten tcp -nolisten unix -noreset 5>"$work/display" \
            2>>"$work/xvfb.log" &
        x_pid=$!
        wait_for 10 test -s "$work/display"
        x_display=":$(head -n1 "$work/display" 2>/dev/null)"
        if wait_for 5 xwininfo -display "$x_display" -root >/dev/null 2>&1; then
            pids+=("$x_pid")
            return 0
        fi
        kill "$x_pid" 2>/dev/null
        wait "$x_pid" 2>/dev/null
    done
    fail "Xvfb did not start: $(head -n3 "$work/xvfb.log")"
}

start_weston() { # weston's headless backend on its own socket: WAYLAND_DISPLAY, no DISPLAY
    command -v weston >/dev/null || skip "weston is not installed (scripts/install-deps.sh installs it)"
    weston --backend=headless-backend.so --shell=kiosk-shell.so --socket=tovra-e2e --idle-time=0 \
        --no-config >"$work/weston.log" 2>&1 &
    weston_pid=$!
    pids+=("$weston_pid")
    wait_for 10 test -S "$XDG_RUNTIME_DIR/tovra-e2e" \
        || fail "weston did not start: $(tail -n3 "$work/weston.log")"
    export WAYLAND_DISPLAY=tovra-e2e QT_QPA_PLATFORM=wayland
    unset DISPLAY
}

# ---- session bus, accessibility and tray hosts ----

start_bus() { # a private session bus: DBUS_SESSION_BUS_ADDRESS
    dbus-daemon --session --nofork --nopidfile --print-address=5 5>"$work/bus" 2>/dev/null &
    pids+=($!)
    private_bus=1
    wait_for 10 test -s "$work/bus" || fail "dbus-daemon did not start"
    DBUS_SESSION_BUS_ADDRESS=$(head -n1 "$work/bus")
    export DBUS_SESSION_BUS_ADDRESS
}

start_a11y() { # the accessibility bus on the session bus, and the client's bridge always on
    [[ -x /usr/libexec/at-spi-bus-launcher ]] && /usr/bin/python3 -c 'import pyatspi' 2>/dev/null \
        || fail "at-spi2-core and python3-pyatspi are not installed (scripts/install-deps.sh installs them)"
    /usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
    pids+=($!)
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
}
drive() { # STEP...: drives the client through its accessibility tree (atspi_drive.py)
    /usr/bin/python3 "$e2e_dir/atspi_drive.py" "$@" >>"$work/atspi.log" 2>&1 \
        || fail "$(tail -n1 "$work/atspi.log")"
}

watcher() { # METHOD ARGS...: a call on the StatusNotifierItem watcher
    gdbus call --session --dest org.kde.StatusNotifierWatcher --object-path /StatusNotifierWatcher \
        --method "$@" 2>/dev/null
}
watcher_property() { watcher org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierWatcher "$1"; }
host_registered() { watcher_property IsStatusNotifierHostRegistered | grep -q true; }

start_sni_watcher() {
    status-notifier-watcher >>"$work/watcher.log" 2>&1 &
    sni_watcher_pid=$!
    pids+=("$sni_watcher_pid")
    wait_for 20 watcher_property ProtocolVersion >/dev/null || fail "status-notifier-watcher did not start"
}

start_sni_host() { # the panel that shows the items; needs the watcher
    # The panel draws on X11 only: under Wayland it gets an X server of its own, as the panel
    # of a Wayland desktop is its own business.
    local display=${DISPLAY:-}
    if [[ -z $display ]]; then
        [[ -n ${host_display:-} ]] || { new_x_server; host_display=$x_display; }
        display=$host_display
    fi
    DISPLAY=$display NO_AT_BRIDGE=1 GDK_BACKEND=x11 gtk-sni-tray-standalone >>"$work/host.log" 2>&1 &
    sni_host_pid=$!
    pids+=("$sni_host_pid")
    wait_for 20 host_registered || fail "gtk-sni-tray-standalone did not register as a host"
}

start_trayer() { # an XEmbed tray on the X server
    trayer --edge top --align right --widthtype request --height 28 --SetDockType true \
        --transparent false >>"$work/trayer.log" 2>&1 &
    trayer_pid=$!
    pids+=("$trayer_pid")
    wait_for 20 xdotool search --class trayer >/dev/null || fail "trayer did not start"
}

stop() { # PID...: ends each and waits for it
    local pid
    for pid in "$@"; do kill "$pid" 2>/dev/null; wait "$pid" 2>/dev/null; done
    return 0
}

# ---- the demo daemon ----

start_daemon() { # ARGS...: the demo daemon on $socket (default $work/control.sock)
    socket=${socket:-$work/control.sock}
    rm -f "$socket"
    local before
    before=$(grep -c "^listening on" "$work/daemon.log" 2>/dev/null || true)
    "$daemon" --socket "$socket" "$@" >>"$work/daemon.log" 2>&1 &
    daemon_pid=$!
    daemon_listens() { (( $(grep -c "^listening on" "$work/daemon.log") > ${before:-0} )); }
    wait_for 10 daemon_listens || fail "demo daemon did not start"
}

stop_daemon() { kill -9 "$daemon_pid" 2>/dev/null; wait "$daemon_pid" 2>/dev/null; daemon_pid=""; }

ctl() { "$ctl" --socket "$socket" "$@"; }
sign_in() { ctl login demo@tovra.invalid demo false >/dev/null || fail "demo sign-in failed"; }
status_field() { ctl fetchStatus | sed -n "s/.*\"$1\": \"\\([^\"]*\\)\".*/\\1/p"; }
tunnel_state() { status_field tunnel_state; }
is_connected() { [[ $(tunnel_state) == connected ]]; }
is_moving() { [[ $(tunnel_state) == connect* ]]; }
signed_in() { [[ $(status_field auth_state) == logged_in ]]; }

# ---- the client ----

# The client's own folders: $client_home (default $work) holds its config, runtime and temporary
# files, and is its HOME.
client_settings() { # INI LINES...
    mkdir -p "${client_home:-$work}/config/Tovra"
    printf '%s\n' "$@" >"${client_home:-$work}/config/Tovra/TovraVPN.ini"
}

start_client() { # [ENV=VALUE...] [RUN-AS...]: the client in its own folders
    local home=${client_home:-$work} asan=()
    # Under the sanitizers: Qt keeps the D-Bus interface descriptions it builds for a
    # StatusNotifierItem for the whole process; tests/lsan.supp names them, which needs full
    # stacks, too slow to pay where no tray host talks D-Bus.
    [[ -n ${ASAN_OPTIONS:-} && -n ${private_bus:-} ]] && asan=(ASAN_OPTIONS="$ASAN_OPTIONS:fast_unwind_on_malloc=0")
    start_ms=$(now_ms)
    env "${asan[@]}" XDG_CONFIG_HOME="$home/config" XDG_RUNTIME_DIR="$home/runtime" TMPDIR="$home" HOME="$home" \
        TOVRA_CONTROL_SOCKET="$socket" TOVRA_GUI_TEXT_LOG=1 "$@" "$client" >"$work/client.log" 2>&1 &
    client_pid=$!
}

since_start_ms() { echo $(( $(now_ms) - start_ms )); }

client_exits() { # SECONDS [STATUS]: the client ends within the time, with this status (0)
    wait_for "$1" gone "$client_pid" || fail "the client did not end"
    local status=0
    wait "$client_pid" || status=$?
    client_pid=""
    (( status == ${2:-0} )) || fail "the client exited with status $status"
}

# What the client shows, from its "tovra.text: SOURCE: TEXT" lines (TOVRA_GUI_TEXT_LOG).
text_of() { grep -a "^tovra.text: $1: " "$work/client.log" | tail -n1 | cut -d' ' -f3-; }
shows() { [[ $(text_of "$1") =~ $2 ]]; }
log_lines() { wc -l <"$work/client.log"; }
since() { tail -n +"$1" "$work/client.log" | grep -aqE "^tovra.text: $2"; } # LINE PATTERN
noticed() { since "$1" "(window\\.)?notice: .*$2"; } # LINE PATTERN: a notice after LINE
stalls_since() { tail -n +"$1" "$work/client.log" | grep -aE '^tovra.stall: [0-9]+ ms'; }

# ---- the client's StatusNotifierItem and its exported menu ----

client_items() { # the registered items whose bus connection is the client's
    local name
    for name in $(watcher_property RegisteredStatusNotifierItems | grep -o "'[^']*'" | tr -d "'"); do
        name=${name%%/*}
        [[ $(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
            --method org.freedesktop.DBus.GetConnectionUnixProcessID "$name" 2>/dev/null \
            | grep -o '[0-9]\+' | tail -n1) == "$client_pid" ]] && echo "$name"
    done
    return 0
}
find_item() { item=$(client_items | head -n1); [[ -n $item ]]; } # sets item
item_call() { # PATH METHOD ARGS...
    local path=$1; shift
    gdbus call --session --dest "$item" --object-path "$path" --method "$@" 2>/dev/null
}
item_property() { item_call /StatusNotifierItem org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem "$1"; }
menu_path() { item_property Menu | grep -o "'/[^']*'" | tr -d "'"; }

# The icon's average colour over its opaque pixels, from the ARGB bytes of its pixmaps.
item_colour() {
    item_property IconPixmap | grep -o '0x[0-9a-f][0-9a-f]' | awk '
        function hex(h) { return index("0123456789abcdef", substr(h, 3, 1)) * 16 + index("0123456789abcdef", substr(h, 4, 1)) - 17 }
        { v = hex($1); i = (NR - 1) % 4
          if (i == 0) a = v; else if (i == 1) r = v; else if (i == 2) g = v
          else if (a > 128) { n++; R += r; G += g; B += v } }
        END { if (n) printf "%d %d %d\n", R / n, G / n, B / n; else print "0 0 0" }'
}
item_is_on() { local red green blue; read -r red green blue < <(item_colour); (( green > red + 30 )); }
item_has_icon() { local red green blue; read -r red green blue < <(item_colour); (( red + green + blue > 0 )); }

# What the panel draws at the top left of its screen, where the client's icon is the only one
# ($grab reads it).
panel_average() { DISPLAY=${host_display:-$DISPLAY} QT_QPA_PLATFORM=xcb "$grab" --average 0 0 40 30; }
panel_shows_icon() { local red green blue; read -r red green blue < <(panel_average); (( red + green + blue > 30 )); }
panel_shows_on() { local red green blue; read -r red green blue < <(panel_average); (( green > red + 30 )); }

# The id of the enabled entry with this label, read from the layout as it is now.
entry_id() { # LABEL
    local id
    id=$(item_call "$(menu_path)" com.canonical.dbusmenu.GetLayout 0 1 "['label','enabled','type']" \
        | grep -o "([0-9]*, {[^}]*'enabled': <true>, 'label': <'$1'>" | grep -o '^([0-9]*' | tr -d '(')
    [[ -n $id ]] && echo "$id"
}
# A host opens the menu (the client holds its entries steady while it is open), sends the click
# and closes the menu again.
click_entry() { # LABEL
    local id clicked=1 path
    path=$(menu_path)
    menu_event() { item_call "$path" com.canonical.dbusmenu.Event "$1" "$2" '<int32 0>' 0 >/dev/null; }
    item_call "$path" com.canonical.dbusmenu.AboutToShow 0 >/dev/null || true
    menu_event 0 opened || true
    id=$(entry_id "$1") && menu_event "$id" clicked && clicked=0
    menu_event 0 closed || true
    return "$clicked"
}
activate_item() { item_call /StatusNotifierItem org.kde.StatusNotifierItem.Activate 0 0 >/dev/null; }

# ---- X11 windows ----

xdo() { local attempt; for attempt in 1 2 3; do xdotool "$@" 2>/dev/null && return 0; sleep 0.2; done; return 1; }

# The main window: a visible window of the client at least 300 pixels wide (an icon is small).
# Sets win_x, win_y, win_w, win_h.
window_visible() {
    local id size
    for id in $(xdotool search --onlyvisible --name '^Tovra$' 2>/dev/null); do
        size=$(xdotool getwindowgeometry "$id" 2>/dev/null | sed -n \
            -e 's/.*Position: \([0-9-]*\),\([0-9-]*\).*/\1 \2/p' \
            -e 's/.*Geometry: \([0-9]*\)x\([0-9]*\).*/\1 \2/p' | tr '\n' ' ')
        read -r win_x win_y win_w win_h <<<"$size"
        (( ${win_w:-0} >= 300 )) && return 0
    done
    return 1
}

# The client's XEmbed icon in trayer's panel: icon_left, icon_top, icon_width, icon_height and
# its centre icon_x, icon_y. The panel may still lay the icon out after it first appears, so
# its place is read again before every click.
locate_icon() {
    local box
    box=$(xwininfo -root -tree 2>/dev/null | grep -E '\("tovra" "Tovra"\) +[0-9]{1,2}x[0-9]{1,2}\+' \
        | head -n1 | sed -E 's/.* ([0-9]+)x([0-9]+)\+-?[0-9]+\+-?[0-9]+ +\+(-?[0-9]+)\+(-?[0-9]+).*/\3 \4 \1 \2/')
    [[ -n $box ]] || return 1
    read -r icon_left icon_top icon_width icon_height <<<"$box"
    icon_x=$(( icon_left + icon_width / 2 )) icon_y=$(( icon_top + icon_height / 2 ))
}
# The connected icon is the green one: its average green clearly above its red ($grab reads it).
icon_is_on() {
    local red green blue
    locate_icon || return 1
    read -r red green blue < <("$grab" --average "$icon_left" "$icon_top" "$icon_width" "$icon_height")
    (( green > red + 30 ))
}
# The context menu: a visible window of the client, taller than the icon and narrower than the
# main window (sets menu_id). Counting the client's windows misleads: the menu warmed up off
# screen at start can hide just as the real one shows.
menu_visible() {
    local id size width height
    for id in $(xdotool search --onlyvisible --class tovra 2>/dev/null); do
        size=$(xdotool getwindowgeometry "$id" 2>/dev/null | sed -n 's/.*Geometry: \([0-9]*\)x\([0-9]*\).*/\1 \2/p')
        read -r width height <<<"${size:-0 0}"
        (( height >= 150 && width < 600 )) && { menu_id=$id; return 0; }
    done
    return 1
}
# Right-clicks the icon until the menu shows; xdotool itself can fail to reach a busy server.
open_menu() {
    local attempt
    for attempt in 1 2 3 4 5; do
        locate_icon || return 1
        xdo mousemove "$icon_x" "$icon_y" click 3 || continue
        wait_for 3 menu_visible && return 0
    done
    return 1
}

# ---- cases side by side ----

# Runs run_case NAME for each name, JOBS at a time, each in a subshell with a work folder of its
# own, and prints each report. A case reports "ok NAME ..." or "SKIP NAME: ..." as its last
# words. Exits 1 when any failed, 77 when all were skipped, else 0.
run_cases() { # JOBS NAME...
    local jobs=$1 top name running=0 status=0 skipped=0 start=$SECONDS
    shift
    top=$(mktemp -d)
    chmod 711 "$top" # a case may run its client as another user below it
    for name in "$@"; do
        ( case_name=$name; e2e_init "$top/$name"; run_case "$name" ) >"$top/$name.report" 2>&1 &
        (( ++running >= jobs )) && { wait -n; (( running-- )); }
    done
    wait
    for name in "$@"; do
        if grep -q "^ok " "$top/$name.report"; then
            grep "^ok \|^  " "$top/$name.report"
        elif grep -q "^SKIP " "$top/$name.report"; then
            grep "^SKIP " "$top/$name.report"
            (( ++skipped ))
        else
            status=1
            cat "$top/$name.report"
            [[ -s $top/$name.report ]] || echo "FAIL $name: no report"
        fi
    done
    [[ -n ${E2E_KEEP_WORK:-} ]] && echo "kept $top" || rm -rf "$top"
    echo "$# cases in $(( SECONDS - start )) s"
    (( status == 0 && skipped == $# )) && return 77
    return "$status"
}
