"""Worlds for trials: a complete small one, and what can happen to its files."""

import os
import re
import shutil
import struct
import tempfile

SETTINGS = ("; kept by hand\r\n[folders]\r\nextras=EXTRAS\r\n\r\n[special]\r\nNoExtras=no\r\n"
            "LocalizedString= \"Probe\"\r\n[general]\r\nlanguage=\r\n;language=alt\r\n"
            "[mine]\r\nk\xe4se = ja\r\n").encode("cp1252")
LANGUAGE = re.compile(rb"\s*language\s*(=|$)", re.IGNORECASE)
NOBODY = 65534
REGIONS = ("arvenna", "skaldor", "sarrakh", "ostrakh", "ancestors")


def bitmap(width, height, color):
    """A picture; programs look at what a file is and not at its name."""
    row = bytes(color) * width
    row += b"\0" * (-len(row) % 4)
    header = struct.pack("<2sIHHIIiiHHIIiiII", b"BM", 54 + len(row) * height, 0, 0, 54,
                         40, width, height, 1, 24, 0, len(row) * height, 2835, 2835, 0, 0)
    return header + row * height


def write(path, data):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(data)


class World:
    """A program folder of its own, with the program in it."""

    def __init__(self, program, source):
        self.folder = tempfile.mkdtemp(prefix="orvalis-world-")
        shutil.copytree(source, self.folder, dirs_exist_ok=True)
        self.program = os.path.join(self.folder, "orvalis")
        self.user = {}
        shutil.copy(program, self.program)
        for number, region in enumerate(REGIONS):
            write(self.path(region + ".jpg"), bitmap(320 + number, 240, (40 * number, 90, 60)))
        write(self.path("orvalis.ini"), SETTINGS)

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def files(self):
        found = [os.path.join(folder, name) for folder, _, names in os.walk(self.folder)
                 for name in names]
        return sorted(path for path in found if path != self.program)

    def state(self):
        """What a change of anything in the folder would change."""
        return {path: (at.st_mode, at.st_size, at.st_mtime_ns)
                for folder, folders, names in os.walk(self.folder)
                for path in [os.path.join(folder, name) for name in folders + names]
                for at in [os.lstat(path)]}

    def environment(self):
        """What every run of the program here finds, whoever runs it."""
        return {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LANG": "de_DE.UTF-8",
                "LC_ALL": "de_DE.UTF-8", "HOME": self.folder, "PATH": ""}

    def hand_over(self):
        """Root may do everything, so that a world of root's is run by somebody else, who owns it."""
        if os.getuid() != 0:
            return
        self.user = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        for folder, _, names in os.walk(self.folder):
            for path in [folder, *(os.path.join(folder, name) for name in names)]:
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)

    def missing_files(self):
        """Files of regions that are not there with any content under a name in any letter case."""
        there = {name.lower() for name in os.listdir(self.folder)
                 if os.path.isfile(self.path(name)) and os.path.getsize(self.path(name)) > 0}
        return {region + end for region in REGIONS for end in (".data", ".jpg")} - there

    def settings(self):
        """The lines of the settings, whatever letter case their name is in and whoever may read."""
        lines = []
        for name in os.listdir(self.folder):
            path = self.path(name)
            if name.lower() != "orvalis.ini" or not os.path.isfile(path):
                continue
            mode = os.stat(path).st_mode
            os.chmod(path, 0o600)
            with open(path, "rb") as file:
                lines += file.read().splitlines()
            os.chmod(path, mode)
        return lines

    def lost_settings(self, before):
        """The lines of before that a run has lost; the language is the program's to change."""
        now = set(self.settings())
        return [line for line in before if line not in now and not LANGUAGE.match(line)]

    def remove(self):
        shutil.rmtree(self.folder, ignore_errors=True)


def flip_bytes(random, path, data):
    changed = bytearray(data)
    for _ in range(random.randint(1, 1 + len(data) // 50)):
        if changed:
            changed[random.randrange(len(changed))] = random.randrange(256)
    write(path, changed)


def cut(random, path, data):
    write(path, data[:random.randrange(len(data) + 1)])


def remove(random, path, data):
    os.remove(path)


def make_folder(random, path, data):
    os.remove(path)
    os.mkdir(path)


def make_pipe(random, path, data):
    os.remove(path)
    os.mkfifo(path)


def link_to_itself(random, path, data):
    os.remove(path)
    os.symlink(os.path.basename(path), path)


def forbid(random, path, data):
    os.chmod(path, 0)


def make_read_only(random, path, data):
    os.chmod(path, 0o444)


def other_case(random, path, data):
    folder, name = os.path.split(path)
    os.rename(path, os.path.join(folder, name.upper()))


def long_line(random, path, data):
    write(path, data + b"[info]\r\nx=" + b"y" * 10_000_000)


def many_sections(random, path, data):
    write(path, data + b"".join(b"[s%d]\r\nk=1\r\n" % i for i in range(40_000)))


def other_line_ends(random, path, data):
    write(path, data.replace(b"\r\n", random.choice((b"\r", b"\n", b"\n\r", b"\0\r\n"))))


def repeat(random, path, data):
    write(path, data * 3)


def noise(random, path, data):
    write(path, random.randbytes(random.randrange(5000)))


FAULTS = (flip_bytes, flip_bytes, flip_bytes, cut, cut, remove, make_folder, make_pipe,
          link_to_itself, forbid, make_read_only, other_case, long_line, many_sections,
          other_line_ends, repeat, noise)


def spoil(random, world):
    """Does one thing to one file; what it was, in words."""
    path = random.choice(world.files())
    if not os.path.isfile(path) or os.stat(path).st_mode & 0o200 == 0:
        return "nothing"
    with open(path, "rb") as file:
        data = file.read()
    fault = random.choice(FAULTS)
    fault(random, path, data)
    return f"{fault.__name__} {os.path.relpath(path, world.folder)}"
