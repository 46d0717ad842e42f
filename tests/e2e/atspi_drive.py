#!/usr/bin/python3
"""Drives the running Tovra client through its accessibility tree, as assistive technology does,
where no keyboard or pointer can be sent (a headless Wayland compositor has no input devices).
Runs the steps given on the command line in order and exits non-zero at the first that fails:
  shown                 the main window is on screen
  hidden                no window of the client is on screen
  page NAME             presses the sidebar tab NAME and waits until it is selected
  press NAME            does the action of the button NAME once it is on screen and enabled
  type NAME TEXT        replaces the text of the field NAME
  close                 does the main window's close action
"""
import sys
import time

import pyatspi

TIMEOUT_S = 15


def find(node, test):
    if node is None:
        return None
    try:
        if test(node):
            return node
        for index in range(node.childCount):
            found = find(node.getChildAtIndex(index), test)
            if found is not None:
                return found
    except Exception:  # a node that went away while it was read
        return None
    return None


def showing(node):
    states = node.getState()
    return states.contains(pyatspi.STATE_SHOWING) and states.contains(pyatspi.STATE_VISIBLE)


def client():
    desktop = pyatspi.Registry.getDesktop(0)
    for index in range(desktop.childCount):
        app = desktop.getChildAtIndex(index)
        if app is not None and (app.name or "").lower() == "tovra":
            return app
    return None


def main_window():
    app = client()
    if app is None:
        return None
    return find(app, lambda n: n.getRole() in (pyatspi.ROLE_FRAME, pyatspi.ROLE_WINDOW)
                and n.name == "Tovra" and showing(n))


def until(what, test):
    deadline = time.monotonic() + TIMEOUT_S
    while True:
        found = test()
        if found:
            return found
        if time.monotonic() > deadline:
            sys.exit(f"atspi: {what}")
        time.sleep(0.05)


def control(name, roles):
    window = main_window()
    return window and find(window, lambda n: n.getRole() in roles and n.name == name and showing(n)
                           and n.getState().contains(pyatspi.STATE_ENABLED))


def run(steps):
    while steps:
        step = steps.pop(0)
        if step == "shown":
            until("the window did not show", main_window)
        elif step == "hidden":
            until("the window did not hide", lambda: client() is not None and main_window() is None)
        elif step == "page":
            name = steps.pop(0)
            tab = until(f"no tab {name!r}", lambda: control(name, (pyatspi.ROLE_PAGE_TAB,)))
            tab.queryAction().doAction(0)
            until(f"page {name!r} did not open",
                  lambda: tab.getState().contains(pyatspi.STATE_SELECTED))
        elif step == "press":
            name = steps.pop(0)
            button = until(f"no button {name!r}", lambda: control(name, (pyatspi.ROLE_PUSH_BUTTON,)))
            button.queryAction().doAction(0)
        elif step == "type":
            name, text = steps.pop(0), steps.pop(0)
            field = until(f"no field {name!r}", lambda: control(
                name, (pyatspi.ROLE_ENTRY, pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_TEXT)))
            field.queryEditableText().setTextContents(text)
        elif step == "close":
            window = until("no window to close", main_window)
            action = window.queryAction()
            names = [action.getName(i) for i in range(action.nActions)]
            if "close" not in names:
                sys.exit(f"atspi: the window offers no close action ({names})")
            action.doAction(names.index("close"))
        else:
            sys.exit(f"atspi: unknown step {step!r}")


if __name__ == "__main__":
    run(sys.argv[1:])
