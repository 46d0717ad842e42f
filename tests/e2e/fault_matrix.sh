#!/usr/bin/env bash
# The running client under each fault the demo daemon can inject: a real X server with a tray
# host, the window shown at launch and switched through every page. For each case the client
# must show the fault's text in the tray and the window, never stall its interface thread after
# start-up, show the daemon's true state within 12 s once a healthy daemon answers again (without
# a restart), and not grow in memory. The cases run side by side, each on its own X server.
# What the client shows is read from its "tovra.text:" lines (TOVRA_GUI_TEXT_LOG), stalls from
# its "tovra.stall:" lines (TOVRA_GUI_STALL_MS).
# Usage: fault_matrix.sh CLIENT DAEMON CTL [CASE...]   (no case: all of them)
# Environment: TOVRA_FAULT_STALL_MS (threshold, default 50), TOVRA_FAULT_JOBS (cases at a time,
# default 3), TOVRA_FAULT_RSS_MARGIN_MB (allowed growth, default 25: the catalogue arrives after
# the fault), E2E_KEEP_WORK=1 keeps the per-case folders for a look.
set -uo pipefail

client=$1 daemon=$2 ctl=$3
shift 3
source "$(dirname "$0")/lib.sh"
all_cases=(latency hang-status hang-all garbage-nodes truncate-groups chunked incompatible
    fail-connect kill-connect denied)
cases=("$@")
(( ${#cases[@]} )) || cases=("${all_cases[@]}")
stall_ms=${TOVRA_FAULT_STALL_MS:-50}
jobs=${TOVRA_FAULT_JOBS:-3}
rss_margin_mb=${TOVRA_FAULT_RSS_MARGIN_MB:-25}
recover_s=12

# ---- one case, in its own subshell and folder; the last line of its report is the verdict ----
run_case() {
    local name=$1
    need Xvfb trayer xdotool
    start_xvfb
    start_trayer
    # The socket sits in its own folder, so that the permission case can close it.
    mkdir -p "$work/sock"
    socket=$work/sock/control.sock
    # A daemon with a fault may never answer the sign-in; it is signed in when it can be.
    start_signed_in() { start_daemon "$@"; timeout 3 "$ctl" --socket "$socket" --timeout 2000 \
        login demo@tovra.invalid demo false >/dev/null 2>&1 || true; }
    # The client's own folders, which the permission case hands to another user.
    client_home=$work/home
    mkdir -p "$client_home/runtime"
    chmod 700 "$client_home/runtime"
    # The language the daemon reports: a slow daemon that misses the start-up language probe
    # must not make the client restart itself into it later.
    client_settings '[language]' 'lastEffective=en'
    rss_kb() { awk '/^VmRSS:/ {print $2}' "/proc/$client_pid/status" 2>/dev/null || echo 0; }

    # Sidebar entries are 89 px high from 8 px down; Account sits at the bottom.
    show_page() { # NAME INDEX (-1: the bottom entry)
        local y attempt
        if (( $2 < 0 )); then y=$(( win_y + win_h - 52 )); else y=$(( win_y + 52 + 89 * $2 )); fi
        for attempt in 1 2 3; do
            xdo mousemove $(( win_x + 46 )) "$y" click 1
            wait_for 3 shows window.page "^$1\$" && return 0
        done
        fail "the $1 page did not open"
    }
    cycle_pages() {
        show_page Locations 1; show_page Mode 2; show_page Settings 3; show_page Account -1
        show_page VPN 0
    }
    # Connect from the VPN page's quick entry, as a user would: Ctrl+F, a country, Enter.
    # The catalogue may still be on its way, so a search that finds nothing is tried again.
    connect_from_window() {
        local attempt mark
        show_page VPN 0
        for attempt in 1 2 3 4 5; do
            mark=$(log_lines)
            xdo key ctrl+f && xdo type --delay 20 'germany' && xdo key Return
            wait_for 3 since "$mark" 'window.status: Connecting' && return 0
            xdo key Escape
        done
        fail "no connect started: $(text_of window.status)"
    }

    local healthy_args=() fault_args=()
    case $name in
    latency) fault_args=(--latency 3000) ;;
    hang-status) fault_args=(--hang /v1/status) ;;
    hang-all) fault_args=(--hang '*') ;;
    garbage-nodes) fault_args=(--garbage /v1/nodes) ;;
    truncate-groups) fault_args=(--truncate /v1/nodes/groups) ;;
    chunked) fault_args=(--chunked) healthy_args=(--chunked) ;;
    incompatible) fault_args=(--incompatible) ;;
    fail-connect) fault_args=(--fail /v1/connect=500) ;;
    kill-connect) fault_args=(--connect-ms 4000 --latency 1000) ;;
    denied) fault_args=() ;;
    *) fail "unknown case" ;;
    esac

    start_signed_in "${fault_args[@]}"
    local run_as=()
    if [[ $name == denied ]]; then
        command -v setpriv >/dev/null || skip "setpriv is missing"
        (( EUID == 0 )) || skip "needs root to run the client as another user"
        chmod 700 "$work/sock"
        chmod 711 "$work"
        chown -R 65534:65534 "$client_home"
        run_as=(setpriv --reuid 65534 --regid 65534 --clear-groups)
        setpriv --reuid 65534 --regid 65534 --clear-groups test -x "$client" \
            || skip "the client is not executable by nobody"
    fi
    start_client TOVRA_GUI_STALL_MS="$stall_ms" "${run_as[@]}"
    wait_for 30 window_visible || fail "the window did not show"
    wait_for 20 grep -aq '^tovra.stall: watching' "$work/client.log" || fail "the stall monitor did not start"

    # ---- the fault as the user sees it ----
    local mark
    case $name in
    latency | hang-status | hang-all)
        wait_for 15 shows tray 'daemon unavailable \| control request timed out' \
            || fail "tray: $(text_of tray)"
        wait_for 10 shows window.status '^Service unavailable \| control request timed out' \
            || fail "window: $(text_of window.status)" ;;
    garbage-nodes)
        wait_for 15 shows tray '\| Could not load nodes \|' || fail "tray: $(text_of tray)" ;;
    truncate-groups)
        wait_for 15 shows tray '\| Could not load node groups \|' || fail "tray: $(text_of tray)"
        wait_for 10 shows window.locations "Grouping by region until the service's groups arrive" \
            || fail "locations: $(text_of window.locations)" ;;
    chunked)
        wait_for 15 shows tray '^Tovra: disconnected \| Daemon: running' || fail "tray: $(text_of tray)"
        wait_for 10 shows window.locations '^Locations: 154' || fail "locations: $(text_of window.locations)" ;;
    incompatible)
        local incompatible='Tovra GUI and daemon are incompatible. Update Tovra before continuing.'
        wait_for 15 shows tray "$incompatible" || fail "tray: $(text_of tray)"
        wait_for 10 shows window.status "$incompatible" || fail "window: $(text_of window.status)"
        noticed 1 "$incompatible" || fail "no incompatibility notice" ;;
    fail-connect)
        wait_for 15 shows window.status '^Disconnected' || fail "window: $(text_of window.status)"
        mark=$(log_lines)
        connect_from_window
        wait_for 10 noticed "$mark" 'error: (Could not connect|demo failure injected)' \
            || fail "no connect failure notice" ;;
    kill-connect)
        wait_for 15 shows window.status '^Disconnected' || fail "window: $(text_of window.status)"
        connect_from_window
        # Every answer takes a second: the daemon dies while the client waits for it.
        stop_daemon
        wait_for 15 shows tray 'daemon unavailable \| Tovra daemon is not running\.' \
            || fail "tray: $(text_of tray)"
        wait_for 10 shows window.status '^Service unavailable \| Tovra daemon is not running\.' \
            || fail "window: $(text_of window.status)" ;;
    denied)
        local denied='Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.'
        wait_for 15 shows tray "$denied" || fail "tray: $(text_of tray)"
        wait_for 10 shows window.status "$denied" || fail "window: $(text_of window.status)" ;;
    esac
    # The first visit of each page lays it out for the first time, which belongs to start-up;
    # from the second round on no stall is allowed.
    cycle_pages
    local after_startup
    after_startup=$(log_lines)
    cycle_pages
    local rss_fault
    rss_fault=$(rss_kb)

    # ---- a healthy daemon again ----
    if [[ $name == denied ]]; then
        chmod 755 "$work/sock"
        chmod 666 "$socket"
    else
        stop_daemon
        start_signed_in "${healthy_args[@]}"
    fi
    local healed_at
    healed_at=$(now_ms)
    true_state() {
        # The middle of the tray text is the daemon line, which keeps the last message by design.
        shows tray '^Tovra: disconnected \| .* \| Account: demo@tovra.invalid$' &&
            shows window.status '^Disconnected \| '
    }
    wait_for "$recover_s" true_state \
        || fail "not recovered within ${recover_s} s: tray: $(text_of tray); window: $(text_of window.status)"
    # The catalogue follows: the Locations page lists every node again, grouped.
    show_page Locations 1
    local remaining=$(( recover_s * 1000 - ($(now_ms) - healed_at) ))
    wait_for "$(( remaining > 0 ? (remaining + 999) / 1000 : 0 ))" \
        shows window.locations '^Locations: 154( · Measuring latency\.\.\.)?$' \
        || fail "Locations did not recover: $(text_of window.locations) $(text_of window.locations.empty)"
    local recovered_ms=$(( $(now_ms) - healed_at ))
    cycle_pages
    local rss_end
    rss_end=$(rss_kb)

    # ---- stalls and memory ----
    local largest largest_after
    largest=$(grep -aoE '^tovra.stall: [0-9]+ ms.*' "$work/client.log" | sort -k2,2n | tail -n1 | cut -d' ' -f2-)
    largest_after=$(stalls_since "$after_startup")
    [[ -z $largest_after ]] || fail "stalled after start-up: $largest_after"
    # The healthy catalogue arrives after the fault phase; beyond it nothing may pile up.
    (( rss_end <= rss_fault + rss_margin_mb * 1024 )) \
        || fail "memory grew from $(( rss_fault / 1024 )) MB to $(( rss_end / 1024 )) MB"
    ! gone "$client_pid" || fail "the client died"
    printf 'ok   %-16s recovered in %5d ms, %3d -> %3d MB, largest stall in start-up: %s\n' \
        "$name" "$recovered_ms" \
        $(( rss_fault / 1024 )) $(( rss_end / 1024 )) "${largest:-none}"
}

run_cases "$jobs" "${cases[@]}"
status=$?
echo "fault matrix: stall threshold ${stall_ms} ms"
exit "$status"
