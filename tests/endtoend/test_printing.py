"""Prints the map through queues of a print server of its own, which keeps what it is sent."""

import os
import re
import shutil
import subprocess
import sys
import tempfile

from desktop import Picture, Program, marker_centre, positions, wait_for

SERVER = """Listen {folder}/socket
DefaultAuthType None
WebInterface No
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""
FILES = """
ServerRoot {folder}
CacheDir {folder}/cache
RequestRoot {folder}/spool
StateDir {folder}/state
TempDir {folder}/spool/tmp
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
FileDevice Yes
"""
DOTS_PER_INCH = 96
QUEUES = ["Aushang", "Kontor"]


class PrintServer:
    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="orvalis-cups-")
        os.chmod(self.folder, 0o755)
        for name in ("cache", "spool", "spool/tmp", "state"):
            os.mkdir(self.path(name))
        for name, content in (("cupsd.conf", SERVER), ("cups-files.conf", FILES)):
            with open(self.path(name), "w") as file:
                file.write(content.format(folder=self.folder))
        self.environment = {"CUPS_SERVER": self.path("socket")}
        self.process = subprocess.Popen(["/usr/sbin/cupsd", "-f", "-c", self.path("cupsd.conf"),
                                         "-s", self.path("cups-files.conf")])

    def __enter__(self):
        wait_for(lambda: os.path.exists(self.path("socket")), "the print server")
        for queue in QUEUES:
            self.admin("/usr/sbin/lpadmin", "-p", queue, "-E", "-v", "file:/dev/null")
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(10)
        shutil.rmtree(self.folder)

    def path(self, name):
        return os.path.join(self.folder, name)

    def admin(self, *args):
        return subprocess.run(args, check=True, capture_output=True, text=True,
                              env={**os.environ, **self.environment}).stdout

    def jobs(self, queue):
        """The documents that a queue has printed, as they were sent, by job number."""
        listed = self.admin("/usr/bin/lpstat", "-W", "completed", "-o", queue)
        numbers = sorted(int(number) for number in re.findall(rf"^{queue}-(\d+) ", listed, re.MULTILINE))
        return [self.path(f"spool/d{number:05}-001") for number in numbers]


def page_size(document):
    info = subprocess.run(["pdfinfo", document], check=True, capture_output=True, text=True).stdout
    assert re.search(r"Pages:\s+1\n", info), info
    return tuple(round(float(side)) for side in re.search(r"Page size:\s+([\d.]+) x ([\d.]+)", info).groups())


class Page(Picture):
    """The pixels of a printed page, at the screen's resolution."""

    def __init__(self, document):
        super().__init__("pdftoppm", "-r", str(DOTS_PER_INCH), document)

    def row(self, y):
        return self.pixels[y * self.width * 3:(y + 1) * self.width * 3]

    def inked(self):
        """Left, top, right and bottom of what is not white."""
        rows = [y for y in range(self.height) if self.row(y).strip(b"\xff")]
        left = min(self.width * 3 - len(self.row(y).lstrip(b"\xff")) for y in rows) // 3
        right = max(len(self.row(y).rstrip(b"\xff")) + 2 for y in rows) // 3
        return left, rows[0], right, rows[-1] + 1


def check_page(document, map_size, markers):
    """One upright page that shows the whole map at its size on screen, with every marker in place."""
    width, height = page_size(document)
    assert width < height, (width, height)
    page = Page(document)
    left, top, right, bottom = page.inked()
    assert abs(right - left - map_size[0]) <= 2, (left, right)
    assert abs(bottom - top - map_size[1]) <= 2, (top, bottom)
    for key, *position in markers:
        x, y = marker_centre(position, map_size)
        assert page.marked(left + x, top + y), f"{key} is not at {x}, {y}"


def choose_second_queue():
    program.keys("ctrl+p")
    program.dialog("^Karte Drucken$")
    program.keys("Down", "alt+h")


with PrintServer() as server, Program(sys.argv[1], environment=server.environment) as program:
    program.resize(700, 500)
    program.keys("alt+a", "Right", "f")
    choose_second_queue()
    program.keys("alt+d")
    [document] = wait_for(lambda: server.jobs(QUEUES[1]), "the printed page")
    markers = positions(program.path("arvenna.data"), "friendsX")
    check_page(document, (700, 500 - program.menu_height), markers)

    choose_second_queue()
    server.admin("/usr/sbin/lpadmin", "-x", QUEUES[1])
    program.keys("alt+d")
    wait_for(lambda: not program.find("^Karte Drucken$"), "the end of the print window")
    assert program.running() and not server.jobs(QUEUES[0])
