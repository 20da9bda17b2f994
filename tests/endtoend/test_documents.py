"""Opens documents and addresses with a fake opener on the path that writes down what it is given."""

import os
import sys
import tempfile

from desktop import Program, wait_for

TOOLS = {
    "xdg-open": "#!/bin/sh\nprintf '%s\\n' \"$#:$1\" >>\"$OPENED\"\n",
    # No viewer for help files; a browser for pages.
    "xdg-mime": "#!/bin/sh\n[ \"$3\" = text/html ] && echo browser.desktop\nexit 0\n",
}


def opened():
    with open(log) as file:
        return file.read().splitlines()


def gives(keys, target):
    before = len(opened())
    program.keys(*keys)
    wait_for(lambda: len(opened()) > before, "something opened by " + " ".join(keys))
    assert opened()[before:] == ["1:" + target], (keys, opened()[before:])


tools = tempfile.mkdtemp(prefix="orvalis-tools-")
log = os.path.join(tools, "opened")
open(log, "w").close()
for name, content in TOOLS.items():
    with open(os.path.join(tools, name), "w", opener=lambda path, flags: os.open(path, flags, 0o755)) as script:
        script.write(content)
with Program(sys.argv[1], environment={"PATH": tools + ":" + os.environ["PATH"], "OPENED": log}) as program:
    gives(["F1"], program.path("orvalis.html"))
    gives(["ctrl+r"], program.path("readme.html"))
    gives(["ctrl+u"], "http://www.orvalis.example/download/")
    program.keys("alt+e")
    program.dialog("^Extras")
    gives(["Home", "Return"], program.path("EXTRAS/cheatlist.html"))
    gives(["Down", "Return"], program.path("EXTRAS/perklist.html"))
    program.keys("Escape")
    with open(program.path("orvalis.ini"), "wb") as settings:
        settings.write(b"[urls]\r\nDownload=www.update.example/new\r\nduskholdpatch=-x\r\n"
                       b"tranlatorsdk=javascript:alert(1)\r\n")
    before = len(opened())
    program.keys("ctrl+g", "ctrl+t")
    gives(["ctrl+u"], "http://www.update.example/new")
    assert len(opened()) == before + 1, opened()[before:]
    os.remove(program.path("orvalis.html"))
    program.keys("F1")
    assert program.running()
