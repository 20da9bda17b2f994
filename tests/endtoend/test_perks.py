"""Opens the perks of a region, tries a category, shows a perk; in German and in English."""

import os
import sys

import accessibility
from accessibility import Reader, find
from desktop import Program, read_section, wait_for

CASES = [
    ("de_DE.UTF-8", "Deutsch", "alt+z", "Arvenna: Lehrer für Bogenschütze"),
    ("en_US.UTF-8", "English", "alt+s", None),
]


def set_language(program, language):
    path = os.path.join(program.folder, "orvalis.ini")
    with open(path, "rb") as file:
        settings = file.read()
    with open(path, "wb") as file:
        file.write(settings.replace(b"language=Deutsch", b"language=" + language.encode("windows-1252")))


def run(folder, locale, language, show, heading):
    program = Program(folder, language=locale, environment=accessibility.ENVIRONMENT, started=False)
    try:
        set_language(program, language)
        program.start()
        reader = Reader(program)
        texts = names = {}
        if language != "Deutsch":
            path = os.path.join(program.folder, "LANG", language, language + ".lng")
            texts, names = read_section(path, "frmPerks"), read_section(path, "entities")
            heading = texts["ArvennaTeachersFor"] + " " + texts["Archer"]
        program.keys("alt+a", "Up", "Return")
        window = reader.opened("the perks")
        assert find(window, "tree")
        program.keys("Home", "Down", show)
        assert reader.windows(), "a category closes nothing"
        # The list jumps to the letters typed.
        program.type((texts.get("Archer") or "Bogensch")[:6])
        program.keys(show)
        reader.closed("the perks")
        wait_for(lambda: reader.heading().strip() == heading, "the heading " + heading)
        teachers = read_section(os.path.join(program.folder, "arvenna.data"), "perk archer")
        expected = [names.get(key, key) for key in teachers if not key.startswith(";")]
        assert reader.markers() == expected, (reader.markers(), expected)
    finally:
        program.end()


def main():
    for case in CASES:
        run(sys.argv[1], *case)


main()
