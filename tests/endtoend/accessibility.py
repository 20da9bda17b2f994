"""What a screen reader sees of Orvalis: its tree on the accessibility bus."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

from desktop import wait_for  # noqa: E402

# Qt puts its tree on the bus when it is asked to, or when a screen reader runs.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

# What only holds or divides others.
UNNAMED_ROLES = {"filler", "panel", "separator", "scroll bar"}


def children(node):
    node.clear_cache()
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count())) if child]


def application(pid):
    def find():
        for node in children(Atspi.get_desktop(0)):
            if node.get_process_id() == pid:
                return node
        return None
    return wait_for(find, "the program on the accessibility bus")


def states(node):
    return {state.value_nick for state in node.get_state_set().get_states()}


def walk(node):
    yield node
    for child in children(node):
        yield from walk(child)


def find(node, role, name=None):
    """The nodes of this role below a node, with this name if one is given."""
    return [found for found in walk(node)
            if found.get_role_name() == role and name in (None, found.get_name())]


def needs_name(node, parent):
    role = node.get_role_name()
    # A message's icon and the lines of a window are decoration.
    decoration = {("alert", "image"), ("dialog", "frame")}
    return role not in UNNAMED_ROLES and (parent, role) not in decoration


def nameless(node):
    """The paths of all controls below a node that a screen reader could not name."""
    faults = []

    def look(current, parent, path):
        role = current.get_role_name()
        path = path + "/" + role + " " + repr(current.get_name())
        if needs_name(current, parent) and not current.get_name().strip():
            faults.append(path)
        for child in children(current):
            # Menus are read closed, too; of a window's other parts only what is on the screen.
            if "menu" in child.get_role_name() or "showing" in states(child):
                look(child, role, path)
    look(node, "", "")
    return faults


class Reader:
    """The program through its tree on the accessibility bus."""

    def __init__(self, program):
        self.program = program
        self.application = application(program.process.pid)
        self.read(self.main)

    @property
    def main(self):
        return next(window for window in children(self.application) if window.get_role_name() == "frame")

    def read(self, window):
        faults = nameless(window)
        assert not faults, "controls without a name:\n" + "\n".join(faults)

    def windows(self):
        return [window for window in children(self.application)
                if window.get_role_name() in ("dialog", "alert") and "showing" in states(window)]

    def open(self, what, *keys):
        self.program.keys(*keys)
        return self.opened(what)

    def close(self, what, *keys):
        self.program.keys(*keys)
        wait_for(lambda: not self.windows(), "the end of " + what, 30)

    def search(self, term):
        self.open("the search", "ctrl+f")
        self.program.type(term)
        self.program.keys("Return")

    def opened(self, what):
        window = wait_for(lambda: next(iter(self.windows()), None), what, 30)
        assert window.get_name().strip(), what + " has no caption"
        self.read(window)
        return window

    def map(self):
        view = next(child for child in children(self.main) if child.get_role_name() == "filler")
        return next(child for child in children(view) if child.get_role_name() == "list")

    def markers(self):
        return [marker.get_name() for marker in children(self.map())]

    def shows(self, what, condition):
        wait_for(lambda: condition(self.markers()), what, 30)

    def focus(self):
        return [node.get_name() for node in walk(self.map()) if "focused" in states(node)]

    def heading(self):
        return self.map().get_name()

    def captions(self):
        """The captions in the menu bar and in all its menus in order, without their access keys."""
        return [item.get_name() for item in find(find(self.main, "menu bar")[0], "menu item") if item.get_name()]
