"""A headless Chromium, driven by WebDriver over HTTP."""

import base64
import json
import socket
import subprocess
import time
import urllib.error
import urllib.request

KEYS = {"Tab": "\ue004", "Enter": "\ue007", "Escape": "\ue00c", "Space": " ",
        "PageDown": "\ue00f", "Home": "\ue011", "Left": "\ue012",
        "Right": "\ue014", "Down": "\ue015"}


def wait_for(condition, what, seconds=10):
    end = time.monotonic() + seconds
    while not (result := condition()):
        assert time.monotonic() < end, f"waited in vain for {what}"
        time.sleep(0.02)
    return result


class Browser:
    """One browser with one tab; `phone` is a phone's width and height, `traced` notes the requests."""

    def __init__(self, size=(1280, 860), phone=None, traced=False):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        self.driver = subprocess.Popen(["chromedriver", f"--port={port}"],
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.root = f"http://127.0.0.1:{port}"
        wait_for(self.listens, "the driver")
        options = {"args": ["--headless=new", "--no-sandbox", "--disable-gpu",
                            f"--window-size={size[0]},{size[1]}"]}
        if phone:
            options["mobileEmulation"] = {"deviceMetrics": {
                "width": phone[0], "height": phone[1], "pixelRatio": 2, "touch": True, "mobile": True}}
        session = self.send("POST", "/session", {"capabilities": {"alwaysMatch": {
            "goog:chromeOptions": options,
            "goog:loggingPrefs": {"browser": "ALL", "performance": "ALL" if traced else "OFF"}}}})
        self.root += "/session/" + session["sessionId"]

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self.send("DELETE", "")
        finally:
            self.driver.terminate()
            self.driver.wait()

    def listens(self):
        try:
            return self.send("GET", "/status")["ready"]
        except OSError:
            return False

    def send(self, method, path, body=None):
        request = urllib.request.Request(
            self.root + path, method=method, headers={"Content-Type": "application/json"},
            data=json.dumps(body or {}).encode() if method == "POST" else None)
        try:
            with urllib.request.urlopen(request) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise AssertionError(json.load(error)["value"]["message"]) from error

    def command(self, name, **parameters):
        """A command of the browser's own protocol."""
        return self.send("POST", "/goog/cdp/execute", {"cmd": name, "params": parameters})

    def open(self, address):
        # A change behind the # alone would not load the page anew.
        self.send("POST", "/url", {"url": "about:blank"})
        self.send("POST", "/url", {"url": address})

    def run(self, script, *arguments):
        return self.send("POST", "/execute/sync", {"script": script, "args": arguments})

    def find(self, css):
        return next(iter(self.send("POST", "/element", {"using": "css selector", "value": css}).values()))

    def click(self, css):
        self.send("POST", f"/element/{self.find(css)}/click")

    def click_at(self, x, y):
        self.pointer({"type": "pointerMove", "x": round(x), "y": round(y), "duration": 0},
                     {"type": "pointerDown", "button": 0}, {"type": "pointerUp", "button": 0})

    def point_at(self, x, y):
        self.pointer({"type": "pointerMove", "x": round(x), "y": round(y), "duration": 0})

    def pointer(self, *actions):
        self.send("POST", "/actions", {"actions": [{"type": "pointer", "id": "mouse",
                                                    "actions": list(actions)}]})

    def press(self, *keys):
        """Presses keys, one after the other, by their names in KEYS."""
        actions = [{"type": kind, "value": KEYS[key]} for key in keys for kind in ("keyDown", "keyUp")]
        self.send("POST", "/actions", {"actions": [{"type": "key", "id": "keys", "actions": actions}]})

    def picture(self, file):
        with open(file, "wb") as target:
            target.write(base64.b64decode(self.send("GET", "/screenshot")))

    def pdf(self, file):
        with open(file, "wb") as target:
            target.write(base64.b64decode(self.send("POST", "/print", {})))

    def complaints(self):
        """What the browser has written to its console since the last call."""
        return [entry["message"] for entry in self.send("POST", "/se/log", {"type": "browser"})]

    def requests(self):
        """The addresses that were asked for since the last call, if the browser is traced."""
        entries = self.send("POST", "/se/log", {"type": "performance"})
        messages = [json.loads(entry["message"])["message"] for entry in entries]
        return [message["params"]["request"]["url"] for message in messages
                if message["method"] == "Network.requestWillBeSent"]

    def spoken(self):
        """The accessibility tree: (role, name) of everything that is spoken."""
        nodes = self.command("Accessibility.getFullAXTree")["nodes"]
        return [(node["role"]["value"], node.get("name", {}).get("value", ""))
                for node in nodes if not node["ignored"]]
