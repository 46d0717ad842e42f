#!/usr/bin/env bash
# The client as a screen-reader user meets it: a private X server, session bus and AT-SPI bus,
# the demo daemon signed in (refusing system-proxy changes with 409), the client with its window
# shown, then accessibility_end_to_end.py, which Tabs through every page, acts through the
# accessible actions, and restarts the daemon to make a connect fail.
# Usage: accessibility_end_to_end.sh TOVRA DEMO_DAEMON TOVRA_CTL
set -euo pipefail
client=$1 daemon=$2 ctl=$3
source "$(dirname "$0")/lib.sh"
e2e_init
need Xvfb xdotool
start_xvfb
start_bus
start_a11y
start_daemon --data-dir "$work/data" --fail /v1/proxy/system-proxy=409
sign_in
start_client
wait_for 30 window_visible || fail "the window did not show"

# The walk restarts the daemon through this harness, in a shell of its own; that daemon is
# ended with the rest.
restart="source '$e2e_dir/lib.sh'; work='$work' daemon='$daemon' ctl='$ctl' socket='$socket'
    kill $daemon_pid; start_daemon --data-dir '$work/data' --fail /v1/connect=500; sign_in
    echo \$daemon_pid >>'$work/more.pids'"
/usr/bin/python3 "$e2e_dir/accessibility_end_to_end.py" "$work/data/log/tovra-daemon.log" "$restart" \
    || fail "the accessibility walk failed"
