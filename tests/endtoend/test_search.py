"""Finds entities by name in all regions, and uses markers and names with the pointer."""

import re
import sys

import accessibility
from accessibility import Reader
from desktop import GOLD, MARKER_OFFSET, Program, Screen, positions, read_section, wait_for

REGIONS = ("arvenna", "skaldor", "sarrakh", "ostrakh", "ancestors")
TERM = "Schmied T"
# Beside a marker, in pixels: where a name's ground shows for certain.
BESIDE = range(10, 60)


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


def rest_on_a_name(program, reader):
    """Rests on a marker whose name shows only then, on the name, and on another marker."""
    program.keys("alt+a", "Right", "l")
    reader.shows("the teachers", lambda markers: len(markers) > 5)
    teachers = positions(program.path("arvenna.data"), "teachers")
    descriptions = read_section(program.path("info.data"), "info")
    name, *position = next(teacher for teacher in teachers if teacher[0].startswith("Bibliothekar"))
    x, y = program.spot(position)

    def side_of_name():
        screen = Screen()
        for side in (-1, 1):
            gold = [screen.at(x + side * beside, y + dy) == GOLD for beside in BESIDE for dy in range(-4, 5)]
            if sum(gold) > len(gold) / 3:
                return side
        return None
    assert side_of_name() is None, "names show before the pointer comes"
    program.point(x, y)
    side = wait_for(side_of_name, "the name beside the marker")
    wait_for(lambda: reader.tool_tip() == name, "the marker's tooltip")
    program.point(x + side * 30, y)
    wait_for(lambda: reader.tool_tip() == descriptions[name].replace("\\n", " ")[:80] + "...", "the name's tooltip")
    program.point(*program.spot(teachers[0][1:]))
    wait_for(lambda: side_of_name() is None, "the end of the name")


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
    rest_on_a_name(program, reader)
