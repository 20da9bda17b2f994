"""page_pictures.py EXPORTED.html FOLDER: the manual's pictures of the exported page, at a desk and in a hand."""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/page"))
from browser import Browser, wait_for  # noqa: E402

CHOOSE = """const wanted = arguments[0];
document.querySelectorAll('.category').forEach((each, index) => {
  const box = each.querySelector('input');
  if (box.checked !== wanted.includes(region.categories[index].section)) box.click(); });"""


def shot(browser, folder, name, width):
    time.sleep(0.7)
    with tempfile.NamedTemporaryFile(suffix=".png") as file:
        browser.picture(file.name)
        subprocess.run(["convert", file.name, "-resize", f"{width}x>", "-quality", "82",
                        os.path.join(folder, name + ".jpg")], check=True)


def open_page(browser, page, link=""):
    browser.open(page.as_uri() + link)
    wait_for(lambda: browser.run("return document.querySelector('.leaflet-image-layer')?.complete"),
             "the picture")


def main():
    page, folder = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2]
    with Browser(size=(1360, 900)) as browser:
        open_page(browser, page, "#arvenna/teachers/J%C3%A4gerin%20Fenja")
        browser.run(CHOOSE, ["teachers", "cities"])
        browser.run("fitMap(); document.querySelectorAll('#list li:nth-child(3n) input').forEach(box => box.click());"
                    "ui.names.click()")
        shot(browser, folder, "page-desktop", 1360)
    with Browser(phone=(390, 760)) as browser:
        open_page(browser, page, "#arvenna/teachers/J%C3%A4gerin%20Fenja")
        shot(browser, folder, "page-phone", 390)


main()
