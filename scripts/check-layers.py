#!/usr/bin/env python3
"""Checks the link graph of the libraries under src/ against the layer order.

  check-layers.py BUILD/link-graph.txt

The graph is written at configure time by cmake/LayerCheck.cmake. A target may link only what
lies in a layer below its own; Qt modules have their layer too, so that nothing below the views
reaches for a widget. Every edge that breaks the order is printed, and the exit status is 1.
"""

import sys

# Bottom to top. docs/ARCHITECTURE.md draws the same picture.
LAYERS = [
    ("base", ["tovra_common", "Qt6::Core", "Qt6::Network"]),
    ("control", ["tovra_control"]),
    ("routing, ctl", ["tovra_routing", "tovra_ctl_lib"]),
    ("Qt Gui", ["Qt6::Gui", "PkgConfig::XCB"]),  # XCB: the X connection Qt holds, for the tray
    ("catalog, app", ["tovra_catalog", "tovra_app"]),
    ("Qt Widgets", ["Qt6::Widgets", "Qt6::Svg", "Qt6::DBus"]),
    ("ui", ["tovra_ui"]),
    ("tray, window", ["tovra_tray", "tovra_window"]),
    ("shell", ["tovra_shell"]),
    ("programs", ["tovra", "tovra-ctl"]),
]
LAYER_OF = {name: (index, title) for index, (title, names) in enumerate(LAYERS) for name in names}


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    problems = []
    edges = 0
    with open(sys.argv[1], encoding="utf-8") as graph:
        for line in graph:
            target, *links = line.split()
            if target not in LAYER_OF:
                # The tools (flag and icon renderers, the gallery) sit outside the layers; a new
                # library does not.
                if target.startswith("tovra_"):
                    problems.append(f"{target}: a library with no layer; add it to LAYERS here")
                continue
            level, title = LAYER_OF[target]
            for link in links:
                edges += 1
                if link not in LAYER_OF:
                    problems.append(f"{target} -> {link}: {link} has no layer")
                elif LAYER_OF[link][0] >= level:
                    problems.append(f"{target} -> {link}: layer '{title}' may not link layer "
                                    f"'{LAYER_OF[link][1]}', which is not below it")
    for problem in problems:
        print(problem)
    print(f"{edges} links checked, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
