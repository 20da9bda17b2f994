"""Looks closer with a real wheel, a drag and keys: markers stay on their spots of the picture."""

import sys
import time

from desktop import (MARKER_OFFSET, MARKER_SIZE, TWIPS_PER_PIXEL, Program, Screen, missing_markers,
                     positions, wait_for, xdotool)

SECTION = "teachers"
STEP = 1.25
CENTRE = (MARKER_SIZE / 2 - MARKER_OFFSET) / TWIPS_PER_PIXEL


class View:
    """The part of the picture that has to be on the map, worked out from what was done."""

    def __init__(self, program):
        self.left, self.top, self.width, self.height = program.map()
        self.scale, self.x, self.y = 1, 0, 0

    def zoom(self, at, factor):
        scale = min(max(self.scale * factor, 1), 8)
        self.x = (self.x + at[0]) * scale / self.scale - at[0]
        self.y = (self.y + at[1]) * scale / self.scale - at[1]
        self.scale = scale
        self.pan(0, 0)

    def pan(self, right, down):
        self.x = min(max(self.x - right, 0), (self.scale - 1) * self.width)
        self.y = min(max(self.y - down, 0), (self.scale - 1) * self.height)

    def spot(self, x, y):
        """Where a marker's middle is on the map."""
        return (x / 1024 * self.width * self.scale - self.x + CENTRE,
                y / 768 * self.height * self.scale - self.y + CENTRE)

    def wrong(self, program):
        """The entities whose marker is not where it should be; those near the edge don't count."""
        screen = Screen()
        found = []
        seen = 0
        for key, *position in positions(program.path("arvenna.data"), SECTION):
            x, y = self.spot(*position)
            if 20 < x < self.width - 20 and 40 < y < self.height - 20:
                seen += 1
                if not screen.marked(round(self.left + x), round(self.top + y)):
                    found.append(key)
        assert seen, "no marker in view"
        return found


def expect(program, view):
    wait_for(lambda: not view.wrong(program), "markers on their spots: " + ", ".join(view.wrong(program)))


with Program(sys.argv[1]) as program:
    program.keys("alt+a", "Right", "l")
    time.sleep(0.5)
    assert not missing_markers(program, "arvenna.data", SECTION)
    view = View(program)
    at = next(position for _, *position in positions(
        program.path("arvenna.data"), SECTION) if 200 < position[0] < 800)
    at = tuple(round(value) for value in view.spot(*at))
    program.point(view.left + at[0] + 12, view.top + at[1] + 12)
    at = (at[0] + 12, at[1] + 12)
    for _ in range(4):
        xdotool("click", 4)
        view.zoom(at, STEP)
    expect(program, view)
    xdotool("mousedown", 1)
    xdotool("mousemove_relative", "--sync", "--", -90, -60)
    xdotool("mouseup", 1)
    view.pan(-90, -60)
    expect(program, view)
    program.keys("plus", "plus", "shift+Right", "shift+Down")
    middle = ((view.width - 1) // 2, (view.height - 1) // 2)
    view.zoom(middle, STEP)
    view.zoom(middle, STEP)
    view.pan(-(view.width * TWIPS_PER_PIXEL // 8) / TWIPS_PER_PIXEL, 0)
    view.pan(0, -(view.height * TWIPS_PER_PIXEL // 8) / TWIPS_PER_PIXEL)
    expect(program, view)
    program.keys("0")
    wait_for(lambda: not missing_markers(program, "arvenna.data", SECTION), "all markers at 100 %")
