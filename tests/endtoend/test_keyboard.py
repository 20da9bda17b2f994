"""Uses menus, map and list without a pointer, and reads the windows that no other run opens."""

import sys

import accessibility
from accessibility import Reader, children, find, states
from desktop import Program, wait_for, xdotool


def open_menus(reader):
    return [menu.get_name() for menu in children(find(reader.main, "menu bar")[0]) if "focused" in states(menu)]


def cycle_through_menus(program, reader):
    """Three menus share an access key: it goes on from each to the next, however Alt is used."""
    def press(menu, *keys):
        program.keys(*keys)
        wait_for(lambda: open_menus(reader) == [menu], "the menu " + menu)

    def shut():
        program.keys("Escape", "Escape")
        wait_for(lambda: not open_menus(reader), "shut menus")
    for menu in ("Skaldor", "Sarrakh", "Suchen", "Skaldor", "Sarrakh", "Suchen"):
        press(menu, "alt+s")
    shut()
    press("Datei", "Alt_L")
    for menu in ("Skaldor", "Sarrakh", "Suchen"):
        press(menu, "s")
    shut()
    xdotool("keydown", "Alt_L")
    for menu in ("Skaldor", "Sarrakh", "Suchen"):
        xdotool("key", "s")
        wait_for(lambda: open_menus(reader) == [menu], "the menu " + menu + " while Alt is held")
    xdotool("keyup", "Alt_L")
    shut()


def walk_the_map(program, reader):
    program.keys("alt+a", "Right", "l")
    reader.shows("the teachers", lambda markers: len(markers) > 5)
    reader.read(reader.main)
    assert reader.focus() == []
    program.keys("Tab", "End")
    assert reader.focus() == reader.markers()[-1:]
    program.keys("Home")
    first = wait_for(reader.focus, "a focus")
    assert first == reader.markers()[:1]
    program.keys("Left")
    name = wait_for(reader.focus, "a focus")
    assert name != first
    assert reader.open("the information window", "Return").get_name().strip() == name[0]
    reader.close("the information window", "Escape")
    assert reader.focus() == name


def pick_from_the_list(program, reader):
    program.keys("alt+a", "Right", "n")
    reader.shows("the empty map of the list", lambda markers: markers == [])
    program.type("sch")
    reader.shows("the pick", lambda markers: len(markers) == 1 and markers[0].lower().startswith("sch"))
    program.keys("Tab", "Tab")
    wait_for(lambda: reader.focus() == reader.markers(), "the focus on the marker")
    program.keys("Escape")
    wait_for(lambda: not reader.focus(), "the focus on the list")


def read_the_other_windows(program, reader):
    for what, keys in (("about", "ctrl+a"), ("print", "ctrl+p"), ("extras", "alt+e")):
        reader.open(what, keys)
        reader.close(what, "Escape")


with Program(sys.argv[1], environment=accessibility.ENVIRONMENT) as program:
    reader = Reader(program)
    for part in (cycle_through_menus, walk_the_map, pick_from_the_list, read_the_other_windows):
        part(program, reader)
