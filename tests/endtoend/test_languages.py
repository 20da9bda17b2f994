"""Starts on a system of no language, picks English by keyboard, switches through all languages."""

import os
import sys

import accessibility
from accessibility import Reader
from desktop import Program, read_section, wait_for

ROWS = {"Deutsch": 0, "English": 1, "Français": 2}


def captions_in_file(program, language):
    path = os.path.join(program.folder, "LANG", language, language + ".lng")
    return {caption.replace("&", "") for caption in read_section(path, "menus").values()}


def stored_language(program):
    return read_section(os.path.join(program.folder, "orvalis.ini"), "general")["language"]


def choose(program, reader, language):
    reader.opened("the languages")
    program.keys("Home", *["Down"] * ROWS[language], "Return")
    reader.closed("the languages")
    wait_for(lambda: stored_language(program) == language, "the stored language")


def check_captions(program, reader, language, german):
    shown = set(reader.captions())
    expected = german if language == "Deutsch" else captions_in_file(program, language)
    missing = {caption for caption in expected if caption.strip() not in {name.strip() for name in shown}}
    assert not missing, f"{language}: not shown: {sorted(missing)}"


def show_merchants(program, reader):
    """The heading of the same category, and its markers' names."""
    program.keys("alt+a", "Home", "Right", "Down", "Down", "Down", "Return")
    reader.shows("the merchants", lambda markers: len(markers) > 5)
    return reader.heading().strip(), reader.markers()


def main():
    program = Program(sys.argv[1], language="C", environment=accessibility.ENVIRONMENT)
    try:
        reader = Reader(program)
        german = set(reader.captions())
        assert len(german) > 90
        choose(program, reader, "English")
        check_captions(program, reader, "English", german)
        seen = {}
        for language in ("English", "Français", "Deutsch"):
            program.keys("ctrl+l")
            choose(program, reader, language)
            assert reader.markers() == [], "a region is still shown"
            check_captions(program, reader, language, german)
            seen[language] = show_merchants(program, reader)
        assert seen["Deutsch"][0] == "Arvenna: Händler", seen["Deutsch"][0]
        assert len({heading for heading, _ in seen.values()}) == 3
        assert len({len(markers) for _, markers in seen.values()}) == 1
        program.keys("ctrl+w")
        program.process.wait(10)
    finally:
        program.end()


main()
