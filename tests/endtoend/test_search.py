"""Finds entities by name in all regions, and opens what was found with the pointer."""

import re
import sys

import accessibility
from accessibility import Reader
from desktop import MARKER_OFFSET, Program, Screen, positions, wait_for

REGIONS = ("arvenna", "skaldor", "sarrakh", "ostrakh", "ancestors")
TERM = "Schmied T"


def hits(program, term):
    """Name and position of every entity that the search finds, in its order."""
    for region in REGIONS:
        path = program.path(region + ".data")
        with open(path, encoding="windows-1252") as file:
            sections = re.findall(r"^\[(.*)\]", file.read(), re.MULTILINE)
        for section in sections:
            for name, *position in positions(path, section):
                if name.startswith(term):
                    yield name, tuple(position)


# What a search shows stands with its corner on the point, until a resize draws it like a pick.
def shows(program, reader, name, position, offset=0):
    reader.shows(name, lambda markers: markers == [name])
    wait_for(lambda: Screen().marked(*program.spot(position, offset)), f"{name} at {position}")


def search(program, reader):
    expected = list(hits(program, TERM))
    assert len(set(expected)) > 1
    reader.search(TERM)
    reader.close("the search")
    shows(program, reader, *expected[0])
    for before, hit in zip(expected, expected[1:]):
        program.keys("F3")
        shows(program, reader, *hit)
        assert hit == before or not Screen().marked(*program.spot(before[1], 0)), "left behind"
    reader.open("the message at the end", "F3")
    reader.close("the message", "Return")
    return expected[-1]


def open_by_pointer(program, reader, name, x, y):
    program.double_click(x, y)
    assert reader.opened("the information window").get_name().strip() == name
    reader.close("the information window", "Escape")
    assert reader.markers() == [name]


with Program(sys.argv[1], environment=accessibility.ENVIRONMENT) as program:
    reader = Reader(program)
    name, position = search(program, reader)
    program.resize(700, 500)
    shows(program, reader, name, position, MARKER_OFFSET)
    program.resize(1200, 900)
    shows(program, reader, name, position, MARKER_OFFSET)
    x, y = program.spot(position)
    open_by_pointer(program, reader, name, x, y)
    open_by_pointer(program, reader, name, x + 30, y)
