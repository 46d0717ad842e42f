#!/usr/bin/env bash
# The client on Wayland: weston's headless backend on a socket of its own, no X server for the
# client, a private session bus, the demo daemon. A headless compositor has no keyboard or
# pointer, so the test drives the tray through its D-Bus menu, as a host does, and the window
# through its accessibility tree, as assistive technology does. Cases, side by side:
#   sni         a StatusNotifierItem watcher and host: the item registers; Connect in its menu
#               connects and turns the icon green; Activate opens the window with the app id of
#               the menu entry; every page opens, twice, the second round without a stall over
#               the threshold; signing out and in again on the Account page; Quit ends it
#   compositor  the compositor dies under the client: it ends at once with one clear line, and
#               no signal (no core dump)
# What the client shows comes from its "tovra.text:" lines, stalls from "tovra.stall:" lines.
# Usage: wayland_end_to_end.sh CLIENT DAEMON CTL DESKTOP_ENTRY [CASE...]
# Environment: TOVRA_E2E_STALL_MS (threshold, default 50).
set -uo pipefail
client=$1 daemon=$2 ctl=$3 app_id=$(basename "$4" .desktop)
shift 4
source "$(dirname "$0")/lib.sh"
stall_ms=${TOVRA_E2E_STALL_MS:-50}

run_case() {
    need gdbus
    start_weston
    start_bus
    start_a11y
    start_daemon
    sign_in
    case $1 in
    sni) with_tray ;;
    compositor) compositor_dies ;;
    esac
}

with_tray() {
    need status-notifier-watcher gtk-sni-tray-standalone
    start_sni_watcher
    start_sni_host
    client_settings '[window]' 'showOnLaunch=false'
    start_client TOVRA_GUI_STALL_MS="$stall_ms" WAYLAND_DEBUG=1
    wait_for 20 find_item || fail "the client's item did not register"
    local icon_ms
    icon_ms=$(since_start_ms)
    wait_for 10 item_has_icon || fail "the item carries no icon"
    ! item_is_on || fail "the icon shows connected while the tunnel is down"

    wait_for 15 entry_id Connect >/dev/null || fail "Connect did not become enabled in the menu"
    click_entry Connect || fail "could not click Connect"
    wait_for 15 is_connected || fail "the tunnel did not reach connected ($(tunnel_state))"
    wait_for 10 item_is_on || fail "the icon did not turn to connected"
    wait_for 5 shows tray '^Tovra: connected \|' || fail "tray: $(text_of tray)"

    activate_item || fail "Activate failed"
    drive shown
    grep -aq "xdg_toplevel@[0-9]*\.set_app_id(\"$app_id\")" "$work/client.log" \
        || fail "the window's app id is not $app_id: $(grep -ao 'set_app_id([^)]*)' "$work/client.log")"
    wait_for 10 shows window.status '^Connected' || fail "window: $(text_of window.status)"
    # The first visit of each page lays it out for the first time, which belongs to start-up.
    drive page Locations page Mode page Settings page Account page VPN
    local mark
    mark=$(log_lines)
    drive page Locations page Mode page Settings page Account page VPN
    local page
    for page in Locations Mode Settings Account VPN; do
        since "$mark" "window.page: $page\$" || fail "the $page page did not show"
    done
    grep -aq '^tovra.stall: watching' "$work/client.log" || fail "the stall monitor did not start"
    [[ -z $(stalls_since "$mark") ]] || fail "stalled after start-up: $(stalls_since "$mark")"

    drive page Account press "Sign Out"
    wait_for 10 shows tray 'Account: Login Required$' || fail "tray after signing out: $(text_of tray)"
    ! signed_in || fail "the daemon is still signed in"
    wait_for 10 shows window.status '^Signed out' || fail "window: $(text_of window.status)"
    drive type "Email or user ID" demo@tovra.invalid type Password demo press "Sign In"
    wait_for 10 signed_in || fail "signing in on the Account page did not reach the daemon"
    wait_for 10 shows tray 'Account: demo@tovra.invalid$' || fail "tray after signing in: $(text_of tray)"

    click_entry Quit || fail "Quit is not in the menu"
    client_exits 15
    echo "ok $case_name: icon after $icon_ms ms, connected, pages, signed out and in, quit"
}

compositor_dies() {
    start_client
    wait_for 20 shows window.page VPN || fail "the window did not show"
    kill -9 "$weston_pid"
    wait_for 10 gone "$client_pid" || fail "the client outlived its compositor"
    local status=0
    wait "$client_pid" || status=$?
    client_pid=""
    (( status > 0 && status < 128 )) || fail "the client ended with status $status"
    local said
    said=$(grep -av '^tovra\.' "$work/client.log")
    [[ $(grep -c . <<<"$said") == 1 && $said == *Wayland* ]] || fail "the client said: $said"
    echo "ok $case_name: ended with status $status and one line: $said"
}

cases=("$@")
(( ${#cases[@]} )) || cases=(sni compositor)
run_cases 2 "${cases[@]}"
