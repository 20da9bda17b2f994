"""Worlds for trials: a complete small one, and what can happen to its files."""

import os
import shutil
import struct
import tempfile

SETTINGS = ("; kept by hand\r\n[folders]\r\nextras=EXTRAS\r\n\r\n[special]\r\nNoExtras=no\r\n"
            "LocalizedString= \"Probe\"\r\n[general]\r\nlanguage=\r\n;language=alt\r\n"
            "[mine]\r\nk\xe4se = ja\r\n").encode("cp1252")
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

    def lost_settings(self):
        """The lines of the settings that a run has lost; the language is the program's to change."""
        with open(self.path("orvalis.ini"), "rb") as file:
            now = file.read().split(b"\r\n")
        return [line for line in SETTINGS.split(b"\r\n")
                if line not in now and not line.startswith(b"language=")]

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
    if not os.path.isfile(path):
        return "nothing"
    with open(path, "rb") as file:
        data = file.read()
    fault = random.choice(FAULTS)
    fault(random, path, data)
    return f"{fault.__name__} {os.path.relpath(path, world.folder)}"
