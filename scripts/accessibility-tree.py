#!/usr/bin/python3
"""Prints the accessibility tree of the running Tovra client as a screen reader reads it over
AT-SPI: role, name and the states that matter (selected, checked, focusable), indented."""
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


desktop = pyatspi.Registry.getDesktop(0)
for index in range(desktop.childCount):
    app = desktop.getChildAtIndex(index)
    if app is not None and (app.name or "").lower() == "tovra":
        walk(app)
