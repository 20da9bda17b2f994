"""page_lint.py FOLDER: what can be said about page.html, page.js and page.css without a browser."""

import os
import re
import subprocess
import sys

MOST_BYTES = 40 * 1024
MOST_COLUMNS = 110


def read(folder, name):
    with open(os.path.join(folder, name), encoding="utf-8") as file:
        return file.read()


def complaints(folder):
    html, script, style = (read(folder, "page." + kind) for kind in ("html", "js", "css"))
    size = len((script + style).encode())
    if size > MOST_BYTES:
        yield f"script and style have {size} bytes, more than {MOST_BYTES}"
    for text in ("</script", "<!--", "innerHTML", "eval("):
        if text in script:
            yield f"page.js must not hold {text}"
    for number, line in enumerate(script.splitlines(), 1):
        if len(line) > MOST_COLUMNS or line != line.rstrip():
            yield f"page.js:{number}: too long, or blanks at its end"
    ids = set(re.findall(r' id="(\w+)"', html))
    for name in sorted(set(re.findall(r"\bui\.(\w+)", script)) - ids):
        yield f"page.js asks for #{name}, which page.html lacks"
    for name in sorted(ids):
        if not re.search(rf"\bui\.{name}\b|#{name}\b|=\"{name}\"|'{name}'",
                         script + style + html.replace(f' id="{name}"', "")):
            yield f"nothing uses #{name}"
    for name in sorted(set(re.findall(r"(?<![&-])#([a-zA-Z]\w*)\b(?=[^;{]*\{)", style)) - ids):
        yield f"page.css styles #{name}, which page.html lacks"
    for name in re.findall(r"(?:function\*?|const|let) (\w+)", script):
        if len(re.findall(rf"\b{name}\b", script)) < 2:
            yield f"page.js: {name} is not used"


def main():
    folder = sys.argv[1]
    subprocess.run(["node", "--check", os.path.join(folder, "page.js")], check=True)
    found = list(complaints(folder))
    print("\n".join(found) or "The page's files are in order.")
    sys.exit(bool(found))


main()
