"""exported.py PROGRAM: what is in the page of a world whose names, texts and pictures are no friends of pages."""

import base64
import hashlib
import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from html.parser import HTMLParser

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
NASTY = '</script><!-- {{title}} & "\u0153\u201c\u00ad'


def png(width, height):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    header = struct.pack(">IIBBBBB", width, height, 8, 0, 0, 0, 0)
    rows = zlib.compress(b"\0" * (width + 1) * min(height, 10))
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", rows) + chunk(b"IEND", b"")


SMALL, LARGE = png(4, 3), png(8000, 6000)
GIF = base64.b64decode("R0lGODdhAQABAIAAAP///////ywAAAAAAQABAAACAkQBADs=")
FILES = {
    "arvenna.data": f"[NPC]\nA{NASTY}=1,2\nLang=3,4\n[smiths]\n[hunters]\n"
                    + "".join(f"Hase {number}={number % 1024},5\n" for number in range(10000)),
    "info.data": f"[info]\nA{NASTY}={NASTY}\nLang={'x' * 3000}\n",
    "PICS/pic.ini": "[pics]\nLang=a.gif\nHase 1=arvenna.jpg\nHase 2=none.jpg\n",
    "skaldor.data": "[NPC]\nLang=1,2\n", "sarrakh.data": "[NPC]\n", "ostrakh.data": "[items]\n",
    "arvenna.jpg": SMALL, "skaldor.jpg": LARGE, "sarrakh.jpg": b"GIF", "PICS/a.gif": GIF,
}


class Elements(HTMLParser):
    """The texts of scripts and styles in their order, with their attributes; and the policy."""

    def __init__(self, page):
        super().__init__()
        self.found = []
        self.policy = None
        self.open = False
        self.feed(page)

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        if attributes.get("http-equiv") == "Content-Security-Policy":
            self.policy = attributes["content"]
        self.open = tag in ("script", "style")
        if self.open:
            self.found.append([tag, attributes, ""])

    def handle_endtag(self, tag):
        self.open = False

    def handle_data(self, data):
        if self.open:
            self.found[-1][2] += data


def export(folder, *arguments):
    return subprocess.run([PROGRAM, "export", "--world", folder, "--format", "html", *arguments],
                          capture_output=True, check=True).stdout.decode()


class Exported(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        for name, content in FILES.items():
            path = cls.folder / name
            path.parent.mkdir(exist_ok=True)
            path.write_bytes(content if isinstance(content, bytes) else content.encode("cp1252"))
        cls.page = Elements(export(cls.folder, "--title", NASTY))
        cls.world = json.loads(cls.texts(id="world")[0])

    @classmethod
    def texts(cls, **attributes):
        return [text for _, has, text in cls.page.found if attributes.items() <= has.items()]

    def test_names_and_texts_arrive_as_they_are(self):
        self.assertEqual(NASTY, self.world["title"])
        entity, long = self.world["regions"][0]["categories"][0]["entities"]
        self.assertEqual(("A" + NASTY, NASTY), (entity["key"], entity["text"]))
        self.assertEqual(2047, len(long["text"]))
        smiths, hunters = self.world["regions"][0]["categories"][1:]
        self.assertEqual((0, 10000), (len(smiths["entities"]), len(hunters["entities"])))

    def test_pictures_go_in_as_they_stand_and_only_those_that_can_be_shown(self):
        regions = self.world["regions"]
        self.assertEqual([0, None, None, None], [region.get("picture") for region in regions[:4]])
        self.assertEqual([f"data:image/{kind};base64,{base64.b64encode(data).decode()}"
                          for kind, data in (("png", SMALL), ("gif", GIF))],
                         self.texts(type="text/plain"))
        self.assertEqual(1, regions[0]["categories"][0]["entities"][1]["portrait"])
        self.assertNotIn("portrait", regions[0]["categories"][2]["entities"][2])
        without = Elements(export(self.folder, "--no-pictures", "--no-portraits"))
        self.assertFalse([has for _, has, _ in without.found if has.get("type") == "text/plain"])

    def test_the_policy_allows_what_is_there_and_no_more(self):
        for tag in ("script", "style"):
            texts = [text for kind, has, text in self.page.found if kind == tag and not has]
            hashes = ["'sha256-%s'" % base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()
                      for text in texts]
            self.assertEqual(2, len(texts))
            self.assertIn(f"{tag}-src {' '.join(hashes)};", self.page.policy)
        self.assertTrue(self.page.policy.startswith("default-src 'none'; img-src data:; "))
        self.assertFalse(re.search("sourceMappingURL", "".join(text for *_, text in self.page.found)))

    def test_who_stops_reading_ends_it(self):
        with subprocess.Popen([PROGRAM, "export", "--world", self.folder, "--format", "html"],
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE) as run:
            run.stdout.read(1)
            run.stdout.close()
            self.assertIn(b"could not be written", run.stderr.read())
        self.assertEqual(2, run.returncode)


unittest.main()
