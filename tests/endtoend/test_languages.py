"""Starts on a system of no language, picks English by keyboard, switches through all languages."""

import sys

import accessibility
from accessibility import Reader, find, walk
from desktop import Program, documented, read_section, wait_for

ROWS = {"Deutsch": 0, "English": 1, "Français": 2}
GERMAN_PROMPT = "------------ Bitte Auswählen ------------"


def texts(program, language, section):
    """The texts of a section in the manual's order, without access keys."""
    rows = documented(section)
    if language == "Deutsch":
        found = [german for _, _, german, *_ in rows]
    else:
        translated = read_section(program.path("LANG", language, language + ".lng"), section)
        found = [translated[key] for key, *_ in rows]
    return [text.replace("&", "").strip() for text in found]


def stored_language(program):
    return read_section(program.path("orvalis.ini"), "general")["language"]


def choose(program, reader, language):
    reader.opened("the languages")
    reader.close("the languages", "Home", *["Down"] * ROWS[language], "Return")
    wait_for(lambda: stored_language(program) == language, "the stored language")


def check_menus(program, reader, language):
    expected = texts(program, language, "menus")
    shown = [caption.strip() for caption in reader.captions() if caption != "|"]
    wrong = [pair for pair in zip(expected, shown) if pair[0] != pair[1]]
    assert len(shown) == len(expected) and not wrong, f"{language}: {len(shown)} captions, {wrong}"


def check_list(program, reader, language):
    program.keys("alt+a", "Home", "Right", "Return")
    box = wait_for(lambda: next(iter(find(reader.main, "combo box")), None), "the list")
    prompt = find(box, "list item")[0].get_name()
    expected = GERMAN_PROMPT if language == "Deutsch" else texts(program, language, "ui")[0]
    assert prompt.strip() == expected, f"{language}: {prompt}"


def check_dialog(program, reader, language):
    """The captions of the language dialog, which is open then."""
    dialog = reader.opened("the languages")
    shown = [node.get_name() for node in walk(dialog)]
    caption, available, current, author, mail, site, select, cancel = texts(program, language, "frmLang")
    assert shown[:2] == [caption, available], f"{language}: {shown}"
    assert [name for name in shown if name in (select, cancel)] == [select, cancel], f"{language}: {shown}"
    labels = [name for name in shown if name in (current, author, mail, site)]
    assert labels == [current, author, mail, site], f"{language}: {shown}"


def show_merchants(program, reader):
    """The heading of the same category, and its markers' names."""
    program.keys("alt+a", "Home", "Right", "Down", "Down", "Down", "Return")
    reader.shows("the merchants", lambda markers: len(markers) > 5)
    return reader.heading().strip(), reader.markers()


with Program(sys.argv[1], language="C", environment=accessibility.ENVIRONMENT) as program:
    reader = Reader(program)
    check_menus(program, reader, "Deutsch")
    check_dialog(program, reader, "Deutsch")
    choose(program, reader, "English")
    seen = {"English": show_merchants(program, reader)}
    for before, language in (("English", "English"), ("English", "Français"), ("Français", "Deutsch")):
        program.keys("ctrl+l")
        check_dialog(program, reader, before)
        choose(program, reader, language)
        assert reader.markers() == [], "a region is still shown"
        check_menus(program, reader, language)
        check_list(program, reader, language)
        seen[language] = show_merchants(program, reader)
    assert seen["Deutsch"][0] == "Arvenna: Händler", seen["Deutsch"][0]
    assert len({heading for heading, _ in seen.values()}) == 3
    assert len({len(markers) for _, markers in seen.values()}) == 1
