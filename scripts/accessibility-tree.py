#!/usr/bin/python3
"""Prints the accessibility tree of the running Tovra client as a screen reader reads it over
AT-SPI: role, name and the states that matter (selected, checked, focusable), indented. With
--pages it opens each page through its sidebar tab, as a screen-reader user would, and prints
the tree once per page."""
import sys
import time

import pyatspi

KEPT = (pyatspi.STATE_SELECTED, pyatspi.STATE_CHECKED, pyatspi.STATE_FOCUSABLE)


def walk(node, depth=0):
    states = node.getState().getStates()
    if pyatspi.STATE_SHOWING not in states and depth > 2:
        return
    marks = ",".join(pyatspi.stateToString(s) for s in states if s in KEPT)
    print(f"{'  ' * depth}[{node.getRoleName()}] {node.name!r} {marks}".rstrip())
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            walk(child, depth + 1)


def page_tabs(node):
    if node.getRole() == pyatspi.ROLE_PAGE_TAB and node.parent.getRole() == pyatspi.ROLE_PAGE_TAB_LIST:
        yield node
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield from page_tabs(child)


desktop = pyatspi.Registry.getDesktop(0)
for index in range(desktop.childCount):
    app = desktop.getChildAtIndex(index)
    if app is None or (app.name or "").lower() != "tovra":
        continue
    if "--pages" not in sys.argv:
        walk(app)
        continue
    for tab in list(page_tabs(app)):
        tab.queryAction().doAction(0)
        deadline = time.monotonic() + 5
        while pyatspi.STATE_SELECTED not in tab.getState().getStates():
            if time.monotonic() > deadline:
                sys.exit(f"page {tab.name!r} did not open")
            time.sleep(0.05)
        time.sleep(0.3)  # the page's children are announced after the tab
        print(f"== page {tab.name!r}")
        walk(app)
