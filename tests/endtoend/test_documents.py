"""Opens documents and addresses with a fake opener on the path that writes down what it is given."""

import os
import sys
import tempfile

from desktop import Program, wait_for

OPENER = """#!/bin/sh
printf '%s\\n' "$#:$1" >>"$OPENED"
"""
# No viewer for help files; a browser for pages.
TYPES = """#!/bin/sh
[ "$3" = text/html ] && echo browser.desktop
exit 0
"""


def fake_tools():
    folder = tempfile.mkdtemp(prefix="orvalis-tools-")
    for name, content in (("xdg-open", OPENER), ("xdg-mime", TYPES)):
        path = os.path.join(folder, name)
        with open(path, "w") as file:
            file.write(content)
        os.chmod(path, 0o755)
    return folder


def main():
    tools = fake_tools()
    log = os.path.join(tools, "opened")
    program = Program(sys.argv[1], environment={"PATH": tools + ":" + os.environ["PATH"], "OPENED": log})

    def opened():
        if not os.path.exists(log):
            return []
        with open(log) as file:
            return file.read().splitlines()

    def gives(keys, target):
        before = len(opened())
        program.keys(*keys)
        wait_for(lambda: len(opened()) > before, "something opened by " + " ".join(keys))
        assert opened()[before:] == ["1:" + target], (keys, opened()[before:])

    def settings(lines):
        with open(os.path.join(program.folder, "orvalis.ini"), "wb") as file:
            file.write(lines)

    try:
        page = lambda name: os.path.join(program.folder, name)
        gives(["F1"], page("orvalis.html"))
        gives(["ctrl+r"], page("readme.html"))
        gives(["ctrl+u"], "http://www.orvalis.example/download/")
        program.keys("alt+e")
        program.dialog("^Extras")
        gives(["Home", "Return"], page("EXTRAS/cheatlist.html"))
        gives(["Down", "Return"], page("EXTRAS/perklist.html"))
        program.keys("Escape")
        settings(b"[urls]\r\nDownload=www.update.example/new\r\nduskholdpatch=-x\r\n"
                 b"tranlatorsdk=javascript:alert(1)\r\n")
        before = len(opened())
        program.keys("ctrl+g", "ctrl+t")
        gives(["ctrl+u"], "http://www.update.example/new")
        assert len(opened()) == before + 1, opened()[before:]
        os.remove(page("orvalis.html"))
        program.keys("F1")
        assert program.running()
        program.quit()
    finally:
        program.end()


main()
