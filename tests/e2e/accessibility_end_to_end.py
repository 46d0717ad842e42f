#!/usr/bin/python3
"""Drives the running client the way a screen-reader or switch-access user does, over AT-SPI:
every page through its sidebar tab, every control reached with Tab (and back with Shift+Tab),
the request-style controls performed through their accessible action with the request checked in
the demo daemon's log, a refused change that must read as unchanged, and the spoken
announcements on connect and on a failed connect.

Usage: accessibility_end_to_end.py DAEMON_LOG RESTART_COMMAND
RESTART_COMMAND is run through the shell to replace the daemon with one that refuses to connect.
"""
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import GLib  # noqa: E402
import pyatspi  # noqa: E402
from atspi_drive import client as app  # noqa: E402

DAEMON_LOG, RESTART = sys.argv[1], sys.argv[2]
CONTROL_ROLES = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_TEXT,
    pyatspi.ROLE_ENTRY, pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_TREE,
    pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_LIST, pyatspi.ROLE_TABLE, pyatspi.ROLE_PAGE_TAB_LIST,
}
events = []      # (kind, role, name) of every event heard, in order
focused = []     # objects that took the focus, in order
failures = []


def fail(message):
    failures.append(message)
    print(f"FAIL: {message}", flush=True)


def on_event(event):
    source = event.source
    try:
        role, name = source.getRoleName(), source.name or ""
    except Exception:  # the object went away meanwhile
        return
    if event.type.startswith("object:state-changed:focused"):
        if event.detail1:
            focused.append(source)
        return
    if event.type.startswith("object:state-changed:showing") and not event.detail1:
        return
    if event.type.startswith("object:state-changed:") and not event.type.endswith("showing"):
        name += f" = {event.detail1}"
    events.append((event.type, role, name))


for kind in ("object:state-changed:checked", "object:state-changed:selected",
             "object:state-changed:focused",
             "object:state-changed:showing", "object:property-change:accessible-name",
             "object:announcement"):
    pyatspi.Registry.registerEventListener(on_event, kind)


def pump(condition, seconds, what):
    """Runs the event loop until condition() holds; fails the test after `seconds`."""
    deadline = time.monotonic() + seconds
    context = GLib.MainContext.default()
    while True:
        while context.iteration(False):
            pass
        if condition():
            return True
        if time.monotonic() > deadline:
            fail(f"timed out waiting for {what}")
            return False
        context.iteration(False) or time.sleep(0.02)


def states(node):
    return node.getState().getStates()


def walk(node):
    yield node
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None and pyatspi.STATE_SHOWING in states(child):
            yield from walk(child)


def key(node):
    # The object's own path: its place on screen moves as the page scrolls to the focus.
    return (node.getRoleName(), node.name, node.path)


def group(node):
    """Radio buttons and page tabs of one parent are one Tab stop; arrows move among them."""
    if node.getRole() in (pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_PAGE_TAB):
        return key(node.parent)
    return None


def find(root, role, name):
    for node in walk(root):
        if node.getRole() == role and node.name == name:
            return node
    return None


def top_level(role):
    for index in range(client.childCount):
        node = client.getChildAtIndex(index)
        if node is not None and node.getRole() == role and pyatspi.STATE_SHOWING in states(node):
            return node
    return None


def window():
    return top_level(pyatspi.ROLE_FRAME)


def press_keys(*keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


def act(node, action):
    if node is None:
        fail(f"no control to {action.lower()}")
        return
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    if action not in names:
        fail(f"{node.getRoleName()} {node.name!r} offers {names}, not {action!r}")
        return
    actions.doAction(names.index(action))


def requests():
    with open(DAEMON_LOG, encoding="utf-8") as log:
        return log.read()


def expect_request(line, why):
    pump(lambda: line in requests(), 8, f"{line!r} in the daemon's log after {why}")


def move_focus(keys):
    """Presses keys; returns the key of the object that then holds the focus, or None."""
    seen = len(focused)
    press_keys(keys)
    # A late event of an earlier move names an object that no longer has the focus.
    if pump(lambda: len(focused) > seen and pyatspi.STATE_FOCUSED in states(focused[-1]), 3,
            f"the focus to move with {keys}"):
        return key(focused[-1])
    return None


def tab_cycle():
    """Tabs until the focus comes back to where it started; returns the keys in order."""
    order = [move_focus("Tab")]
    for _ in range(120):
        step = move_focus("Tab")
        if step is None or step == order[0]:
            return order
        order.append(step)
    fail("Tab never came back to where it started")
    return order


def check_page(title, root):
    controls = {}
    for node in walk(root):
        node_states = states(node)
        if node.getRole() == pyatspi.ROLE_PUSH_BUTTON and not node.name:
            fail(f"{title}: an unnamed button at {key(node)}")
        if (node.getRole() in CONTROL_ROLES and pyatspi.STATE_FOCUSABLE in node_states
                and pyatspi.STATE_SENSITIVE in node_states):
            if not node.name:
                fail(f"{title}: an unnamed {node.getRoleName()} at {key(node)}")
            controls[key(node)] = node
    forward = tab_cycle()
    reached_groups = {group(controls[k]) for k in forward if k in controls} | set(forward)
    missed = [k[:2] for k, node in controls.items()
              if k not in forward and group(node) not in reached_groups]
    if missed:
        fail(f"{title}: not reached with Tab: {missed}")
    # Back again with Shift+Tab: the same order, reversed.
    backward = [move_focus("shift+Tab") for _ in forward]
    expected = [forward[-i] for i in range(1, len(forward) + 1)]
    if backward != expected:
        fail(f"{title}: Shift+Tab does not retrace Tab: {[k[:2] for k in forward]} vs "
             f"{[k[:2] for k in backward]}")
    print(f"{title}: {len(forward)} stops with Tab, {len(controls)} controls, all named",
          flush=True)


def open_page(name):
    tab = find(window(), pyatspi.ROLE_PAGE_TAB, name)
    act(tab, "Press")
    # The page shows: its title (the VPN page has none, but its search field).
    shown = (lambda: find(window(), pyatspi.ROLE_TEXT, "Quick connect search")) if name == "VPN" \
        else (lambda: find(window(), pyatspi.ROLE_LABEL, name))
    pump(lambda: pyatspi.STATE_SELECTED in states(tab) and shown() is not None, 5,
         f"page {name!r} to open")


def checked(role, name):
    node = find(window(), role, name)
    return node is not None and pyatspi.STATE_CHECKED in states(node)


client = None
pump(lambda: app() is not None, 20, "the client on the accessibility bus")
client = app()
pump(lambda: window() is not None, 10, "the window")
subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Tovra", "windowfocus",
                "--sync"], check=True, stdout=subprocess.DEVNULL)


def connect_offered():
    button = find(window(), pyatspi.ROLE_PUSH_BUTTON, "Connect")
    return button is not None and pyatspi.STATE_SENSITIVE in states(button)


# The daemon's state has arrived once Connect can be pressed.
pump(connect_offered, 20, "the client to show the daemon's state")

# Every page: named controls, all reached with Tab both ways.
for page in ("VPN", "Locations", "Mode", "Settings", "Account"):
    open_page(page)
    check_page(page, window())

# The request-style controls, performed through their accessible action.
open_page("Mode")
act(find(window(), pyatspi.ROLE_RADIO_BUTTON, "WireGuard"), "Toggle")
expect_request("POST /v1/mode -> 200", "the WireGuard card")
pump(lambda: checked(pyatspi.ROLE_RADIO_BUTTON, "WireGuard"), 8, "WireGuard to read checked")
act(find(window(), pyatspi.ROLE_RADIO_BUTTON, "Protected"), "Toggle")
expect_request("POST /v1/local-network -> 200", "the Protected segment")
pump(lambda: checked(pyatspi.ROLE_RADIO_BUTTON, "Protected"), 8, "Protected to read checked")
# A refused change: the daemon answers 409 and the segment reads as it was.
act(find(window(), pyatspi.ROLE_RADIO_BUTTON, "On"), "Toggle")
expect_request("POST /v1/proxy/system-proxy -> 409", "the refused System proxy segment")
pump(lambda: any("demo failure injected" in name for _, _, name in events), 8,
     "the refusal to be shown")
if checked(pyatspi.ROLE_RADIO_BUTTON, "On") or not checked(pyatspi.ROLE_RADIO_BUTTON, "Off"):
    fail("the refused System proxy change reads as made")

# The current location's star: a search makes its first match current, the star's press asks,
# and the star reads as the daemon answered.
open_page("Locations")
find(window(), pyatspi.ROLE_TEXT, "Search locations").queryComponent().grabFocus()
subprocess.run(["xdotool", "type", "tokyo 02"], check=True)
star = lambda name: find(window(), pyatspi.ROLE_PUSH_BUTTON, name)
pump(lambda: star("Add to favourites") is not None
     and pyatspi.STATE_SENSITIVE in states(star("Add to favourites")), 5, "the star of Tokyo 02")
act(star("Add to favourites"), "Press")
expect_request("POST /v1/nodes/favorite -> 200", "the location's star")
pump(lambda: star("Remove from favourites") is not None, 8, "the star to read as a favourite")

open_page("Settings")
act(find(window(), pyatspi.ROLE_CHECK_BOX, "Kill Switch"), "Toggle")
expect_request("POST /v1/kill-switch -> 200", "the Kill Switch switch")
pump(lambda: checked(pyatspi.ROLE_CHECK_BOX, "Kill Switch"), 8, "Kill Switch to read on")
act(find(window(), pyatspi.ROLE_RADIO_BUTTON, "Kill Switch mode: Always"), "Toggle")
expect_request("POST /v1/kill-switch/mode -> 200", "the Always option")
pump(lambda: checked(pyatspi.ROLE_RADIO_BUTTON, "Kill Switch mode: Always"), 8, "Always")
# Buttons are named by what they do, not by their row.
act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "Repair connection"), "Press")
expect_request("POST /v1/vpn/repair", "Repair connection")
act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "Check for updates"), "Press")
expect_request("/v1/gui/update/check", "Check for updates")


def check_dialog(title):
    """Every control of the dialog reached with Tab, and Escape closes it."""
    if pump(lambda: top_level(pyatspi.ROLE_DIALOG) is not None, 8, f"the {title}"):
        check_page(title, top_level(pyatspi.ROLE_DIALOG))
        press_keys("Escape")
        pump(lambda: top_level(pyatspi.ROLE_DIALOG) is None, 5, f"Escape to close the {title}")


check_dialog("update dialog")  # the demo daemon offers an update
act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "Change language"), "Press")
check_dialog("language dialog")

# Connecting is spoken, and so is a connect that fails.
open_page("VPN")
act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "Connect"), "Press")
expect_request("POST /v1/connect -> 200", "Connect")
spoken = lambda text: any(kind != "object:state-changed:checked" and role == "notification"
                          and name.startswith(text) for kind, role, name in events)
pump(lambda: spoken("Connected to "), 10, "\"Connected to ...\" to be announced")
subprocess.run(["bash", "-c", RESTART], check=True)
pump(connect_offered, 20, "the client to find the restarted daemon")
act(find(window(), pyatspi.ROLE_PUSH_BUTTON, "Connect"), "Press")
pump(lambda: spoken("demo failure injected for /v1/connect"), 10,
     "the failed connect to be announced")

if failures:
    sys.exit(f"{len(failures)} failed")
print("1 passed, 0 failed")
