"""pictures.py PROGRAM_FOLDER PICTURES: a picture of every window for the documents."""

import os
import re
import subprocess
import sys
import time

from desktop import START_HEIGHT, Program, marker_centre, positions, wait_for, xdotool

DARK = """[Colors:Window]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:View]
BackgroundNormal=35,38,41
ForegroundNormal=239,240,241
[Colors:Button]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
[Colors:Selection]
BackgroundNormal=61,174,233
ForegroundNormal=252,252,252
[Colors:Tooltip]
BackgroundNormal=49,54,59
ForegroundNormal=239,240,241
"""
DARK_DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}


class Photographer:
    """Drives the program and takes what it shows."""

    def __init__(self, program, pictures):
        self.program = program
        self.pictures = pictures

    def save(self, name, *what):
        time.sleep(0.6)
        target = os.path.join(self.pictures, name + ".jpg")
        subprocess.run(["import", *what, "-quality", "80", target], check=True)

    def window(self, name, window=None):
        """A window with its frame."""
        xdotool("mousemove", 1279, 999)
        self.save(name, "-frame", "-window", window or self.program.window)

    def screen(self, name):
        """The part of the screen that the main window has, with what lies over it."""
        left, top, width, height = self.program.geometry()
        self.save(name, "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage")

    def dialog(self, name, caption):
        self.window(name, self.program.dialog(caption))
        self.program.keys("Escape")
        wait_for(lambda: not self.program.find(caption), "the end of " + caption)
        xdotool("windowfocus", "--sync", self.program.window)

    def over(self, data, section, entity, beside=0):
        """Puts the pointer on a marker, or that many pixels right of it."""
        left, top, width, height = self.program.geometry()
        place = next(place for key, *place in positions(os.path.join(self.program.folder, data), section)
                     if key == entity)
        x, y = marker_centre(place, (width, START_HEIGHT))
        for step in (3, 0):
            xdotool("mousemove", left + x + beside + step, top + height - START_HEIGHT + y)
            time.sleep(0.2)


def set_language(program, language):
    path = os.path.join(program.folder, "orvalis.ini")
    with open(path, "rb") as file:
        settings = file.read()
    with open(path, "wb") as file:
        file.write(re.sub(rb"language=\w+", b"language=" + language, settings))


def german(camera):
    keys = camera.program.keys
    keys("alt+a", "Home", "Right", "f")
    camera.window("main")
    camera.over("arvenna.data", "friendsX", "Mirka die Heilerin", beside=-60)
    time.sleep(1)
    camera.screen("tooltip")
    camera.over("arvenna.data", "friendsX", "Mirka die Heilerin")
    xdotool("click", "--repeat", 2, "--delay", 80, 1)
    camera.dialog("info", "Mirka die Heilerin")
    keys("alt+a", "Escape", "Right", "Right", "Down", "Right", "h")
    camera.window("crowded")
    keys("plus", "plus", "plus", "plus")
    camera.window("closer")
    keys("ctrl+f")
    camera.program.dialog("^Suchen$")
    camera.program.type("Schmied")
    camera.dialog("find", "^Suchen$")
    keys("alt+a", "Up", "Return")
    camera.dialog("perks", "Perks")
    keys("alt+e")
    camera.dialog("extras", "^Extras$")
    keys("ctrl+p")
    camera.dialog("print", "Drucken")
    keys("ctrl+l")
    camera.dialog("languages", "Sprache")
    keys("ctrl+a")
    camera.dialog("about", "ber Orvalis")


def english(camera):
    camera.program.keys("alt+a", "Home", "Right")
    camera.screen("english")


def dark(camera):
    camera.program.keys("ctrl+l")
    camera.dialog("dark", "Choose|language|Language")


def session(folder, pictures, language, locale, take, desktop=None):
    program = Program(folder, language=locale, environment=desktop, started=False)
    try:
        set_language(program, language)
        if desktop:
            os.makedirs(os.path.join(program.home, ".config"))
            with open(os.path.join(program.home, ".config", "kdeglobals"), "w", encoding="ascii") as file:
                file.write(DARK)
        program.start()
        time.sleep(0.5)
        take(Photographer(program, pictures))
    finally:
        program.end()


def main():
    folder, pictures = sys.argv[1:]
    session(folder, pictures, b"Deutsch", "de_DE.UTF-8", german)
    session(folder, pictures, b"English", "en_US.UTF-8", english)
    session(folder, pictures, b"English", "en_US.UTF-8", dark, DARK_DESKTOP)


main()
