"""Uses the whole program without a pointer, and reads every window as a screen reader does."""

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
    program.keys("Return")
    assert reader.opened("the information window").get_name().strip() == name[0]
    program.keys("Escape")
    reader.closed("the information window")
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


def search(program, reader):
    program.keys("ctrl+f")
    reader.opened("the search")
    program.type("Schmied B")
    program.keys("Return")
    reader.closed("the search")
    reader.shows("the hit", lambda markers: len(markers) == 1 and markers[0].startswith("Schmied B"))
    program.keys("ctrl+f")
    reader.opened("the search")
    program.type("qqqq")
    program.keys("Return")
    wait_for(lambda: reader.windows() and not find(reader.windows()[0], "radio button"), "the message", 30)
    reader.opened("the message")
    program.keys("Return")
    reader.closed("the message")


def show_a_perk(program, reader):
    program.keys("alt+a", "Up", "Return")
    window = reader.opened("the perks")
    assert find(window, "tree")
    program.keys("End", "alt+z")
    reader.closed("the perks")
    reader.shows("the teachers of a perk", lambda markers: bool(markers))


def read_the_other_windows(program, reader):
    for what, *keys in (("about", "ctrl+a"), ("print", "ctrl+p"), ("extras", "alt+e")):
        program.keys(*keys)
        reader.opened(what)
        program.keys("Escape")
        reader.closed(what)


def change_the_language(program, reader):
    program.keys("ctrl+l")
    reader.opened("the languages")
    program.keys("Home", "Down", "alt+u")
    reader.closed("the languages")
    bar = find(reader.main, "menu bar")[0]
    wait_for(lambda: "File" in [item.get_name() for item in children(bar)], "English menus", 30)


def main():
    program = Program(sys.argv[1], environment=accessibility.ENVIRONMENT)
    try:
        reader = Reader(program)
        for part in (cycle_through_menus, walk_the_map, pick_from_the_list, search, show_a_perk,
                     read_the_other_windows, change_the_language):
            part(program, reader)
        program.quit()
    finally:
        program.end()


main()
