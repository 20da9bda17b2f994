"""page_opening.py EXPORTED.html [TIMES]: how long the page takes to a region with 81 markers, against bare Leaflet.

The bare page carries the same bytes, shows the same picture and the same markers, and nothing else.
Times run from the start of navigation to the frame in which picture and markers are there.
"""

import base64
import hashlib
import json
import pathlib
import re
import statistics
import sys
import tempfile

sys.path.append(str(pathlib.Path(__file__).parent.parent / "tests/page"))
from browser import Browser, wait_for

MARKERS = 81
BARE = """
const world = JSON.parse(document.getElementById('world').textContent);
const map = L.map('map', {crs: L.CRS.Simple, minZoom: -3, fadeAnimation: false});
const bounds = [[-768, 0], [0, 1024]];
map.fitBounds(bounds);
for (const {x, y, name} of world.regions[0].categories[0].entities)
  L.marker([-y, x], {title: name, icon: L.divIcon({className: 'marker', iconSize: [16, 16]})}).addTo(map);
(function show() {
  const picture = document.getElementById('picture-0');
  if (picture && picture.nextElementSibling)
    L.imageOverlay(picture.textContent, bounds).addTo(map);
  else
    setTimeout(show, 10);
})();
"""
STYLE = "#map { height: 100vh } .marker { border: 2px solid #c00000; border-radius: 50%; background: gold }"
WATCH = """
(function watch() {
  const picture = document.querySelector('.leaflet-image-layer');
  if (picture?.complete && document.querySelectorAll('.leaflet-marker-icon').length >= %d)
    requestAnimationFrame(() => { window.openedAfter = performance.now(); });
  else
    requestAnimationFrame(watch);
})();
""" % MARKERS


def with_81_markers(page):
    """The page with exactly that many entities in its first category."""
    world = re.compile(r'(?<= id="world">).*?(?=</script>)', re.DOTALL)
    data = json.loads(world.search(page).group())
    first = data["regions"][0]["categories"][0]
    first["entities"] = (first["entities"] * MARKERS)[:MARKERS]
    for number, entity in enumerate(first["entities"]):
        entity["key"] = f"{number} {entity['key']}"
    text = json.dumps(data, ensure_ascii=False, separators=(",", ":")).replace("<", "\\u003c")
    return world.sub(lambda _: text, page, count=1)


def bare(page):
    """The same bytes around Leaflet alone, padded by what our script and style took."""
    styles = re.findall(r"<style>(.*?)</style>", page, re.DOTALL)
    scripts = re.findall(r"<script>(.*?)</script>", page, re.DOTALL)
    body = re.search(r"<body>.*?(?=<script type)", page, re.DOTALL).group()
    removed = len(styles[1]) + len(scripts[1]) + len(body) - len(STYLE) - len(BARE)
    page = page.replace(body, f'<body><div id="map"></div><!--{"x" * max(0, removed)}-->')
    page = page.replace(styles[1], STYLE).replace(scripts[1], BARE)
    hashes = {name: " ".join("'sha256-%s'" % base64.b64encode(hashlib.sha256(text.encode()).digest()).decode()
                             for text in texts)
              for name, texts in (("script", [scripts[0], BARE]), ("style", [styles[0], STYLE]))}
    for name, policy in hashes.items():
        page = re.sub(rf"{name}-src [^;]*", lambda _: f"{name}-src {policy}", page, count=1)
    return page


def opened_after(browser, page):
    browser.open(page.as_uri())
    return wait_for(lambda: browser.run("return window.openedAfter"), f"markers in {page.name}", 60)


def main():
    times = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    exported = with_81_markers(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    with tempfile.TemporaryDirectory() as folder, Browser() as browser:
        pages = {"page": exported, "bare": bare(exported)}
        files = {name: pathlib.Path(folder, name + ".html") for name in pages}
        for name, text in pages.items():
            files[name].write_text(text, encoding="utf-8")
        browser.command("Page.addScriptToEvaluateOnNewDocument", source=WATCH)
        taken = {name: [] for name in pages}
        for _ in range(times + 1):
            for name, file in files.items():
                taken[name].append(opened_after(browser, file))
        assert not browser.complaints()
        # The first round fills the caches of the system; what else runs can only add to a time.
        least = {name: min(values[1:]) for name, values in taken.items()}
        middle = {name: statistics.median(values[1:]) for name, values in taken.items()}
    ratio = least["page"] / least["bare"]
    print(f"page {least['page']:.0f} ms (median {middle['page']:.0f}), "
          f"bare Leaflet {least['bare']:.0f} ms (median {middle['bare']:.0f}), ratio {ratio:.2f} (at most 1.3)")
    sys.exit(ratio > 1.3)


main()
