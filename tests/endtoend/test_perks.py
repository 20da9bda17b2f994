"""Opens the perks of a region, tries a category, shows a perk; in German and in English."""

import sys

import accessibility
from accessibility import Reader, find
from desktop import Program, read_section, wait_for

for locale, language, show in (("de_DE.UTF-8", "Deutsch", "alt+z"), ("en_US.UTF-8", "English", "alt+s")):
    with Program(sys.argv[1], locale, accessibility.ENVIRONMENT, started=False) as program:
        with open(program.path("orvalis.ini"), "r+", encoding="windows-1252", newline="") as file:
            settings = file.read().replace("language=Deutsch", "language=" + language)
            file.seek(0)
            file.write(settings)
        program.start()
        reader = Reader(program)
        perk, heading, names = "Bogensch", "Arvenna: Lehrer für Bogenschütze", {}
        if language != "Deutsch":
            path = program.path("LANG", language, language + ".lng")
            texts, names = read_section(path, "frmPerks"), read_section(path, "entities")
            perk, heading = texts["Archer"], texts["ArvennaTeachersFor"] + " " + texts["Archer"]
        assert find(reader.open("the perks", "alt+a", "Up", "Return"), "tree")
        program.keys("Home", "Down", show)
        assert reader.windows(), "a category closes nothing"
        # The list jumps to the letters typed.
        program.type(perk[:6])
        reader.close("the perks", show)
        wait_for(lambda: reader.heading().strip() == heading, "the heading " + heading)
        teachers = read_section(program.path("arvenna.data"), "perk archer")
        expected = [names.get(key, key) for key in teachers if not key.startswith(";")]
        assert reader.markers() == expected, (reader.markers(), expected)
