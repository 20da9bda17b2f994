"""Shows a category of each region by keyboard, resizes, and looks where the markers are."""

import sys

from desktop import START_HEIGHT, Program, missing_markers

CATEGORIES = [
    ("arvenna.data", "friendsX", ["alt+a", "Right", "f"]),
    ("skaldor.data", "friendsX", ["alt+a", "Escape", "Right", "Down", "Right", "f"]),
    ("sarrakh.data", "friendsX", ["alt+a", "Escape", "Right", "Right", "Down", "Right", "f"]),
    ("ostrakh.data", "NPC", ["alt+o", "Right", "n"]),
    ("ancestors.data", "orcs", ["alt+h", "Right", "o"]),
]


with Program(sys.argv[1]) as program:
    assert 10 < program.menu_height < 40, f"the map is not {START_HEIGHT} pixels high"
    for size in ((1024, START_HEIGHT + program.menu_height), (1500, 1000), (700, 500)):
        program.resize(*size)
        for data, section, keys in CATEGORIES:
            program.keys(*keys)
            missing = missing_markers(program, data, section)
            assert not missing, f"{data} [{section}] at {size}: {missing}"
    program.resize(1200, 900)
    assert not missing_markers(program, "ancestors.data", "orcs"), "after a resize"
