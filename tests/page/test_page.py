"""test_page.py EXPORTED.html: the exported page of the demonstration world, in a real browser."""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
from urllib.parse import quote

from browser import Browser, wait_for

EXPORTED = pathlib.Path(sys.argv.pop(1)).resolve()
WORLD = re.compile(r'(?<=<script type="application/json" id="world">).*?(?=</script>)', re.DOTALL)

ENTITIES = "return [...document.querySelectorAll('.marker')].map(m => m.textContent)"
ROWS = "return [...document.querySelectorAll('#list .entity')].map(e => e.textContent)"
FOCUS = """const at = document.activeElement;
return [at.closest('[id]')?.id, at.ariaLabel || at.textContent, at.localName]"""
RECTANGLE = "const r = arguments[0].getBoundingClientRect(); return [r.x, r.y, r.width, r.height]"


def world_of(page):
    return json.loads(WORLD.search(page).group())


def with_world(page, world):
    text = json.dumps(world).replace("<", "\\u003c")
    return WORLD.sub(lambda _: text, page)


class Page(unittest.TestCase):
    phone = None

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.browser = cls.enterClassContext(Browser(phone=cls.phone))
        cls.text = EXPORTED.read_text(encoding="utf-8")
        cls.world = world_of(cls.text)
        cls.words = cls.world["words"]
        cls.arvenna = cls.world["regions"][0]
        cls.teachers = cls.category("teachers")

    @classmethod
    def category(cls, section):
        return next(each for each in cls.arvenna["categories"] if each["section"] == section)

    def setUp(self):
        self.browser.open(EXPORTED.as_uri())
        self.browser.run("localStorage.clear()")
        self.show()

    def tearDown(self):
        self.assertEqual([], self.browser.complaints())

    def show(self, link="", page=EXPORTED):
        self.browser.open(page.as_uri() + link)
        wait_for(lambda: self.browser.run("return document.readyState") == "complete", "the page")

    def variant(self, name, change):
        """The page of the same world after a change."""
        world = world_of(self.text)
        change(world)
        page = pathlib.Path(self.folder.name, name + ".html")
        page.write_text(with_world(self.text, world), encoding="utf-8")
        return page

    def choose(self, *sections):
        """Ticks exactly these categories of the region."""
        boxes = [each["section"] for each in self.arvenna["categories"]]
        self.browser.run("""document.querySelectorAll('.category input').forEach((box, index) => {
            if (box.checked !== arguments[0].includes(index)) box.click(); });""",
                         [boxes.index(section) for section in sections])

    def link(self, category, entity):
        return "#" + "/".join(quote(part, safe="") for part in
                              (self.arvenna["key"], category["section"], entity["key"]))

    def shown(self, css):
        return self.browser.run("return Boolean(document.querySelector(arguments[0])?.offsetParent)", css)

    def content(self, css):
        return self.browser.run("return document.querySelector(arguments[0]).textContent", css)

    def search(self, text):
        self.browser.run("""const box = document.getElementById('search'); box.value = arguments[0];
            box.dispatchEvent(new Event('input'))""", text)
        wait_for(lambda: self.browser.run("return sought") == text, "the search")
        return self.browser.run(ROWS)

    def found_title(self, done, count):
        return self.words["foundOf"].replace("%s", str(done), 1).replace("%s", str(count), 1)


class Desktop(Page):
    def test_categories_show_their_markers_together(self):
        smiths = self.category("smiths")
        for sections in (["teachers"], ["teachers", "smiths"]):
            self.choose(*sections)
            entities = [e for each in (self.teachers, smiths) if each["section"] in sections
                        for e in each["entities"]]
            names = {(e["name"], e["x"], e["y"]) for e in entities}
            self.assertEqual(sorted(name for name, *_ in names), sorted(self.browser.run(ENTITIES)))
            self.assertEqual(len(names), len(self.browser.run(ROWS)))
        self.assertIn(str(len(self.teachers["entities"])), self.content(".category:nth-of-type(3)"))
        self.browser.click("#none")
        self.assertEqual([], self.browser.run(ENTITIES))

    def test_markers_stand_where_the_file_says(self):
        self.choose("teachers")
        wait_for(lambda: self.browser.run(
            "return document.querySelector('.leaflet-image-layer')?.complete"), "the picture")
        x, y, width, height = self.browser.run(RECTANGLE.replace(
            "arguments[0]", "document.querySelector('.leaflet-image-layer')"))
        spots = self.browser.run("""return [...document.querySelectorAll('.marker')].map(m => {
            const r = m.getBoundingClientRect(); return [m.textContent, r.x + 8, r.y + 8]; })""")
        places = {entity["name"]: entity for entity in self.teachers["entities"]}
        for name, left, top in spots:
            self.assertAlmostEqual(x + width * places[name]["x"] / 1024, left, delta=1.1)
            self.assertAlmostEqual(y + height * places[name]["y"] / 768, top, delta=1.1)

    def test_a_pointer_shows_the_name_and_a_click_the_description(self):
        self.choose("teachers")
        entity = next(e for e in self.teachers["entities"] if "text" in e and "portrait" in e)
        x, y, *_ = self.browser.run(f"""const m = [...document.querySelectorAll('.marker')]
            .find(m => m.textContent === arguments[0]); {RECTANGLE.replace("arguments[0]", "m")}""",
                                    entity["name"])
        self.assertFalse(self.shown(".hovered .name"))
        self.browser.point_at(x + 8, y + 8)
        self.assertEqual(entity["name"], self.content(".hovered .name"))
        self.browser.click_at(x + 8, y + 8)
        self.assertEqual(entity["name"], self.content("#entityName"))
        self.assertEqual(entity["text"], self.content("#entityText"))
        self.assertEqual(105, self.browser.run("return ui.portrait.naturalWidth"))

    def test_names_always(self):
        self.choose("smiths")
        count = "return [...document.querySelectorAll('.marker .name')].filter(n => n.offsetParent).length"
        self.assertEqual(0, self.browser.run(count))
        self.browser.click("#names")
        self.assertEqual(len(self.category("smiths")["entities"]), self.browser.run(count))

    def test_search_reads_all_regions_whatever_case_and_accents(self):
        letters = str.maketrans("äöüéèê", "aoueee")
        entities = [e for region in self.world["regions"] for each in region["categories"]
                    for e in each["entities"]]
        entity = next(e for e in entities if re.search("[äöüéèê]", e["name"]) and "ß" not in e["name"])
        hits = self.search(entity["name"].translate(letters).upper())
        self.assertIn(entity["name"], hits)
        other = self.world["regions"][2]["categories"][0]["entities"][0]
        self.search(other["name"])
        self.browser.click("#list button")
        self.assertEqual(other["name"], self.content("#entityName"))
        self.assertEqual(self.world["regions"][2]["caption"], self.content("[aria-selected=true]"))
        self.assertIn(other["name"], self.browser.run(ENTITIES))
        text = next(e for e in entities if len(e.get("text", "")) > 200)
        self.assertIn(text["name"], self.search(text["text"][120:150].strip()))
        self.assertEqual([], self.search("no such name"))

    def test_ticks_stay_and_travel(self):
        self.choose("teachers")
        count = len(self.teachers["entities"])
        for row in (1, 3):
            self.browser.click(f"#list li:nth-child({row}) input")
        self.assertIn(self.found_title(2, count), self.content("#listTitle"))
        self.show()
        self.assertIn(self.found_title(2, count), self.content("#listTitle"))
        self.assertEqual(2, self.browser.run("return document.querySelectorAll('.marker.found').length"))

        self.browser.click("#ticks")
        text = self.browser.run("return ui.ticksText.value")
        self.assertEqual(2, len(text.splitlines()))
        self.browser.click("#ticksRemove")
        self.browser.click("#ticksClose")
        self.assertIn(self.found_title(0, count), self.content("#listTitle"))
        self.browser.click("#ticks")
        self.browser.run("ui.ticksText.value = arguments[0]", text.replace("\n", "\r\n") + "\nnonsense\n")
        self.browser.click("#ticksTake")
        self.assertIn("1", self.content("#ticksState"))
        self.browser.click("#ticksClose")
        self.assertIn(self.found_title(2, count), self.content("#listTitle"))

    def test_ticks_survive_a_new_export(self):
        self.choose("teachers")
        name = self.browser.run(ROWS)[2]
        self.browser.click("#list li:nth-child(3) input")

        def change(world):
            for category in world["regions"][0]["categories"]:
                category["entities"] = [e for e in category["entities"] if e["name"] == name][:1] + [
                    {"key": "new", "name": "Aaa new", "x": 5, "y": 5}]
        self.show(page=self.variant("anew", change))
        self.assertEqual([name], self.browser.run(
            "return [...document.querySelectorAll('.marker.found')].map(m => m.textContent)"))

    def test_who_stands_in_two_categories_is_found_in_both(self):
        smith = next(e for e in self.category("NPC")["entities"] if e.get("home") == "smiths")
        self.show(self.link(self.category("NPC"), smith))
        self.browser.click("#entityFound")
        self.choose("smiths")
        self.assertEqual([smith["name"]], self.browser.run(
            "return [...document.querySelectorAll('.marker.found')].map(m => m.textContent)"))

    def test_a_browser_that_keeps_nothing_says_so(self):
        script = self.browser.command("Page.addScriptToEvaluateOnNewDocument", source="""
            Object.defineProperty(window, 'localStorage', {get() { throw new DOMException('no'); }})""")
        self.addCleanup(self.browser.command, "Page.removeScriptToEvaluateOnNewDocument", **script)
        self.show()
        self.assertEqual(self.words["noStorage"], self.content("#message"))
        self.browser.click("#list li input")
        self.assertIn("1/", self.content(".count"))
        self.browser.click("#ticks")
        self.assertEqual(self.words["noStorage"], self.content("#ticksState"))

    def test_links_open_and_say_what_is_gone(self):
        entity = self.teachers["entities"][3]
        self.show(self.link(self.teachers, entity))
        self.assertEqual(entity["name"], self.content("#entityName"))
        self.assertTrue(self.shown(".marker.opened"))
        self.assertEqual(self.link(self.teachers, entity), self.browser.run("return location.hash"))
        for link in (self.link(self.teachers, {"key": "gone"}), "#nowhere/teachers/gone", "#arvenna/none/gone"):
            self.show(link)
            self.assertEqual(self.words["gone"].replace("%s", "gone"), self.content("#message"))
            self.assertFalse(self.shown("#entity"))
        self.show("#%E4%zz")
        self.assertTrue(self.shown("#message"))

    def test_everything_by_keyboard(self):
        stops = []
        for _ in range(40):
            self.browser.press("Tab")
            where, name, tag = self.browser.run(FOCUS)
            if where is None or stops and where == stops[0][0]:
                break
            stops.append((where, name, tag))
        self.assertEqual(["tab-0", "names", "groups", "none", "ticks", "map", "search", "list", "list"],
                         [where for where, *_ in stops])

        self.show()
        self.browser.press("Tab", "Right")
        self.assertEqual(self.world["regions"][1]["caption"], self.content("[aria-selected=true]"))
        self.browser.press("Left", "Tab", "Tab", "Down", "Space", "Down", "Space")
        chosen = self.arvenna["categories"][1]
        self.assertEqual(len(chosen["entities"]), len(self.browser.run(ROWS)))
        self.browser.press("Tab", "Tab", "Tab", "PageDown", "Right")
        where, name, _ = self.browser.run(FOCUS)
        self.assertEqual("map", where)
        self.browser.press("Space")
        self.assertEqual(["map", f"{name}, {self.words['found']}"], self.browser.run(FOCUS)[:2])
        self.browser.press("Enter")
        self.assertEqual(["entityName", name], self.browser.run(FOCUS)[:2])
        self.browser.press("Escape")
        self.assertFalse(self.shown("#entity"))
        self.assertEqual("map", self.browser.run(FOCUS)[0])
        self.browser.press("Home", "Tab", "Down", "Down", "Enter")
        self.assertEqual(self.content("#list li:nth-child(2) .entity"), self.content("#entityName"))

    def test_arrows_reach_every_marker(self):
        self.choose("teachers")
        self.browser.run("document.querySelector('.marker').focus()")
        for key, down in (("Right", False), ("Down", True)):
            before = self.browser.run("return [current.x, current.y]")
            self.browser.press(key)
            after = self.browser.run("return [current.x, current.y]")
            self.assertGreater(after[down], before[down])
        seen = set()
        self.browser.press("Home")
        for _ in self.teachers["entities"]:
            seen.add(self.browser.run(FOCUS)[1])
            self.browser.press("PageDown")
        self.assertEqual({e["name"] for e in self.teachers["entities"]}, seen)

    def test_all_that_can_be_used_has_a_name(self):
        self.choose("teachers")
        self.browser.click("#list button")
        nodes = self.browser.spoken()
        used = [node for node in nodes if node[0] in
                ("button", "checkbox", "tab", "link", "searchbox", "application", "tablist", "tabpanel",
                 "navigation", "list", "region", "image", "article", "DisclosureTriangle")]
        self.assertEqual([], [node for node in used if not node[1].strip()])
        self.assertIn(("application", self.words["mapOf"].replace("%s", self.arvenna["caption"])), nodes)
        self.assertIn(("tabpanel", self.arvenna["caption"]), nodes)
        self.assertIn(("searchbox", self.words["search"]), nodes)
        for entity in self.teachers["entities"]:
            self.assertIn(("button", entity["name"]), nodes)
            self.assertIn(("checkbox", f"{self.words['found']}: {entity['name']}"), nodes)

    def test_paper_has_the_map_and_a_box_for_each_name(self):
        self.choose("teachers")
        document = os.path.join(self.folder.name, "page.pdf")
        self.browser.pdf(document)
        text = subprocess.run(["pdftotext", "-layout", document, "-"], check=True, capture_output=True,
                              text=True).stdout
        for entity in self.teachers["entities"]:
            self.assertIn(entity["name"].split()[0], text)
        for word in ("categories", "namesAlways", "hideAll"):
            self.assertNotIn(self.words[word], text)
        images = subprocess.run(["pdfimages", "-list", document], check=True, capture_output=True,
                                text=True).stdout
        self.assertRegex(images, r"image +\d{3,}")
        wait_for(lambda: self.browser.run("return ui.map.style.width") == "", "the screen's size")

    def test_names_are_never_taken_for_markup(self):
        hostile = ["</script><script>document.title = 'lost'</script>", "<img src=x onerror=alert(1)>",
                   "\u202eright to left", "a \"b\" 'c' & %s $&", "W" * 400, "Smørrebrød"]

        def change(world):
            del world["regions"][0]["picture"]
            world["regions"][0]["caption"] = hostile[1]
            world["regions"][0]["categories"] = [
                {"section": "a/b|c", "caption": hostile[0], "group": hostile[1], "entities": [
                    {"key": name, "name": name, "x": 100 * at, "y": 50, "text": (name * 2047)[:2047]}
                    for at, name in enumerate(hostile)]},
                {"section": "none", "caption": "None", "group": "None", "entities": []}]
        page = self.variant("hostile", change)
        self.show(page=page)
        self.assertEqual(sorted(hostile), sorted(self.browser.run(ENTITIES)))
        self.assertEqual(self.words["noPicture"], self.content("#noPicture"))
        self.assertTrue(self.shown("#noPicture"))
        self.assertEqual(["Smørrebrød"], self.search("SMORREBROD"))
        for name in hostile:
            self.show("#" + "/".join(quote(part, safe="") for part in ("arvenna", "a/b|c", name)), page)
            self.assertEqual(name, self.content("#entityName"))
            self.assertEqual(2047, len(self.content("#entityText")))
            self.browser.click("#entityFound")
        self.assertEqual([self.world["title"], 0], self.browser.run(
            "return [document.title, document.querySelectorAll('#parts script, #map img[src=x]').length]"))
        self.show(page=page)
        self.assertEqual(6, self.browser.run("return document.querySelectorAll('.marker.found').length"))

    def test_ten_thousand_in_a_category(self):
        def change(world):
            world["regions"][0]["categories"] = [{"section": "many", "caption": "Many", "group": "", "entities": [
                {"key": f"N{at}", "name": f"Name {at}", "x": at * 37 % 1024, "y": at * 101 % 768}
                for at in range(10_000)]}]
        page = self.variant("many", change)
        self.show(page=page)
        drawn = "return document.querySelectorAll('.leaflet-marker-icon').length"
        self.assertLess(self.browser.run(drawn), 1000)
        crowds = self.browser.run("""return [...document.querySelectorAll('.crowd')]
            .reduce((sum, crowd) => sum + Number(crowd.textContent), 0)""")
        self.assertEqual(10_000, crowds)
        rows = len(self.browser.run(ROWS))
        self.assertLess(rows, 1000)
        self.browser.run("ui.list.scrollTop = ui.list.scrollHeight")
        wait_for(lambda: len(self.browser.run(ROWS)) > rows, "more rows")
        self.show("#arvenna/many/N7777", page)
        self.assertEqual("Name 7777", self.content("#entityName"))
        self.assertTrue(self.shown(".marker.opened"))
        wait_for(lambda: self.browser.run(drawn) < 1000, "the zoomed map")
        self.assertIn("Name 4321", self.search("4321"))


class Phone(Page):
    phone = (390, 780)

    def test_one_hand(self):
        self.assertEqual(390, self.browser.run("return document.documentElement.scrollWidth"))
        self.assertFalse(self.shown("#categories") or self.shown("#entities"))
        self.browser.click("[data-part=categories]")
        self.assertTrue(self.shown("#categories"))
        self.small_targets("categories")
        self.browser.click("[data-part=entities]")
        self.assertFalse(self.shown("#categories"))
        self.small_targets("entities")
        # What stands lowest is the hardest to show above the description.
        self.browser.run("""const [first, ...rest] = ui.list.children;
            rest.reduce((low, row) => row.entity.y > low.entity.y ? row : low, first)
              .querySelector('button').click()""")
        self.assertFalse(self.shown("#entities"))
        self.small_targets("entity")
        wait_for(lambda: self.opened_is_above_the_panel(), "the marker above the description")
        self.browser.click("#close")
        self.assertFalse(self.shown("#entity"))

    def small_targets(self, part):
        """Nothing that a finger meets in a part is smaller than 44 pixels."""
        self.assertEqual([], self.browser.run("""
            return [...document.getElementById(arguments[0]).querySelectorAll('button, a, label, input')]
              .filter(each => each.offsetParent && !each.closest('label label') &&
                              !(each.localName === 'input' && each.closest('label')))
              .map(each => [each.textContent, each.getBoundingClientRect()])
              .filter(([, box]) => box.width < 43.9 || box.height < 43.9)""", part))

    def opened_is_above_the_panel(self):
        return self.browser.run("""const marker = document.querySelector('.marker.opened');
            return marker && marker.getBoundingClientRect().bottom < ui.entity.getBoundingClientRect().top""")

    def test_a_finger_near_a_marker_picks_it(self):
        self.choose("smiths")
        x, y, *_ = self.browser.run(RECTANGLE.replace(
            "arguments[0]", "document.querySelector('.marker')"))
        name = self.content(".marker")
        self.browser.click_at(x + 8, y - 8)
        self.assertEqual(name, self.content("#entityName"))


class Requests(unittest.TestCase):
    def test_nothing_is_asked_for(self):
        with Browser(traced=True) as browser:
            browser.open(EXPORTED.as_uri())
            for region in range(len(world_of(EXPORTED.read_text(encoding="utf-8"))["regions"])):
                browser.click(f"#tab-{region}")
                browser.click("#list button")
                wait_for(lambda: browser.run(
                    "return [...document.images].every(each => each.hidden || each.complete)"), "the pictures")
            asked = {address.split(",")[0] for address in browser.requests()}
            self.assertIn(EXPORTED.as_uri(), asked)
            self.assertEqual([], [each for each in asked - {EXPORTED.as_uri(), "about:blank"}
                                  if not each.startswith("data:image/")])
            self.assertEqual([], browser.complaints())


if __name__ == "__main__":
    unittest.main()
