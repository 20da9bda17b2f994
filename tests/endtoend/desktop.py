"""Drives Orvalis on an X server as a user does: keys, the pointer, and what the screen shows."""

import os
import re
import shutil
import subprocess
import tempfile
import time

GOLD = (255, 215, 0)
MARKER_OFFSET = 65
MARKER_SIZE = 160
TWIPS_PER_PIXEL = 15
# Of the map, in pixels, when the program starts.
START_HEIGHT = 769


def xdotool(*args):
    return subprocess.run(["xdotool", *map(str, args)], check=True, capture_output=True, text=True).stdout


def wait_for(condition, what, seconds=10):
    end = time.time() + seconds
    while time.time() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.1)
    raise AssertionError("waited in vain for " + what)


class Picture:
    """The pixels that a command writes as a portable pixmap."""

    def __init__(self, *command):
        data = subprocess.run(command, check=True, capture_output=True).stdout
        header, size, depth, self.pixels = data.split(b"\n", 3)
        assert header == b"P6" and depth == b"255"
        self.width, self.height = map(int, size.split())

    def at(self, x, y):
        start = (y * self.width + x) * 3
        return tuple(self.pixels[start:start + 3])

    def marked(self, x, y):
        """Whether the middle of a marker is here, give or take a pixel for rounding; it is gold."""
        return GOLD in [self.at(x + dx, y + dy) for dx in (-1, 0, 1) for dy in (-1, 0, 1)
                        if 0 <= x + dx < self.width and 0 <= y + dy < self.height]


class Screen(Picture):
    """The pixels of the whole screen."""

    def __init__(self):
        super().__init__("import", "-window", "root", "-depth", "8", "ppm:-")


class Program:
    """A copy of the program folder, with the program running in it."""

    def __init__(self, folder, language="de_DE.UTF-8", environment=None, started=True):
        self.home = tempfile.mkdtemp(prefix="orvalis-")
        self.folder = os.path.join(self.home, "program")
        shutil.copytree(folder, self.folder)
        self.manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        time.sleep(0.5)
        self.environment = {**os.environ, "LANG": language, "LC_ALL": language, "LANGUAGE": "",
                            "HOME": self.home, **(environment or {})}
        self.process = None
        if started:
            self.start()

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        """Ends the program as a user does, unless something failed; cleans up in any case."""
        try:
            if kind is None:
                self.keys("ctrl+w")
                assert self.process.wait(10) == 0
        finally:
            self.end()

    def end(self):
        if self.running():
            self.process.terminate()
            self.process.wait(10)
        self.manager.terminate()
        self.manager.wait(10)
        shutil.rmtree(self.home)

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def start(self):
        self.process = subprocess.Popen([self.path("orvalis")], env=self.environment, stderr=subprocess.DEVNULL)
        self.window = wait_for(lambda: self.find("^Orvalis "), "the main window")
        xdotool("windowfocus", "--sync", self.window)
        self.menu_height = self.geometry()[3] - START_HEIGHT

    def find(self, name):
        result = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", name],
                                capture_output=True, text=True)
        return result.stdout.split()[-1] if result.stdout.split() else None

    def dialog(self, name):
        """Waits for a dialog of that caption and gives it the focus."""
        window = wait_for(lambda: self.find(name), "a window named " + name)
        xdotool("windowfocus", "--sync", window)
        time.sleep(0.2)
        return window

    def keys(self, *keys):
        for key in keys:
            xdotool("key", "--clearmodifiers", key)
            time.sleep(0.25)

    def type(self, text):
        xdotool("type", "--delay", "40", text)
        time.sleep(0.2)

    def geometry(self, window=None):
        """Left, top, width and height of the client area on the screen."""
        info = subprocess.run(["xwininfo", "-id", window or self.window], check=True, capture_output=True,
                              text=True).stdout
        return tuple(int(re.search(name + r":\s+(-?\d+)", info).group(1))
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def map(self):
        """Left, top, width and height of the map on the screen."""
        left, top, width, height = self.geometry()
        return left, top + self.menu_height, width, height - self.menu_height

    def spot(self, position, offset=MARKER_OFFSET):
        """Where the middle of a marker is on the screen."""
        left, top, *size = self.map()
        x, y = marker_centre(position, size, offset)
        return left + x, top + y

    def point(self, x, y):
        # What follows the pointer follows its movement, not its place.
        xdotool("mousemove", x + 1, y)
        xdotool("mousemove", x, y)
        time.sleep(0.2)

    def double_click(self, x, y):
        self.point(x, y)
        xdotool("click", "--repeat", 2, "--delay", 60, 1)

    def resize(self, width, height):
        xdotool("windowsize", "--sync", self.window, width, height)
        time.sleep(0.7)

    def running(self):
        return self.process is not None and self.process.poll() is None


def read_section(path, section):
    """The key lines of a section of a profile file, in file order."""
    lines = {}
    inside = False
    with open(path, encoding="windows-1252", newline="") as file:
        for line in file.read().replace("\r\n", "\n").split("\n"):
            if line.startswith("["):
                inside = line == "[" + section + "]"
            elif inside and "=" in line:
                key, value = line.split("=", 1)
                lines[key.strip()] = value.strip()
    return lines


def positions(path, section):
    """The frame positions of the entities that a category shows as markers."""
    found = []
    for key, value in read_section(path, section).items():
        if key.startswith(";"):
            continue
        fields = [field.strip() for field in value.split(",")]
        if fields[0] == "#":
            fields = read_section(path, fields[1])[key].split(",")
        found.append((key, int(fields[0]), int(fields[1])))
    return found


def marker_centre(position, map_size, offset=MARKER_OFFSET):
    """Where the middle of a marker is on the map, in pixels."""
    x = position[0] / 1024 * map_size[0] * TWIPS_PER_PIXEL - offset + MARKER_SIZE / 2
    y = position[1] / 768 * map_size[1] * TWIPS_PER_PIXEL - offset + MARKER_SIZE / 2
    return round(x / TWIPS_PER_PIXEL), round(y / TWIPS_PER_PIXEL)


def missing_markers(program, data, section):
    """The entities of a category whose marker is not where it should be on the screen."""
    screen = Screen()
    return [key for key, *position in positions(program.path(data), section)
            if not screen.marked(*program.spot(position))]


def documented(section):
    """The rows of the translators' manual about a section: key, English, German or meaning."""
    manual = os.path.join(os.path.dirname(__file__), "../../docs/translators.md")
    with open(manual, encoding="utf-8") as file:
        part = file.read().split("### [" + section + "]\n", 1)[1].split("\n#", 1)[0]
    return [[cell.strip(" `") for cell in line.split("|")[1:-1]] for line in part.splitlines()
            if line.startswith("| `")]
