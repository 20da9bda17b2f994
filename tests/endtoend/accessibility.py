"""What a screen reader sees of Orvalis: its tree on the accessibility bus."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

from desktop import wait_for  # noqa: E402

# Qt puts its tree on the bus when it is asked to, or when a screen reader runs.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

# Frames without content of their own.
UNNAMED_ROLES = {"filler", "panel", "separator", "layered pane", "scroll pane", "viewport", "unknown"}


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


def walk(node, depth=0):
    yield node, depth
    for child in children(node):
        yield from walk(child, depth + 1)


def find(node, role, name=None):
    """The nodes of this role below a node, with this name if one is given."""
    return [found for found, _ in walk(node)
            if found.get_role_name() == role and name in (None, found.get_name())]


def focused(node):
    return [found for found, _ in walk(node) if "focused" in states(found)]


def nameless(node):
    """The paths of all controls below a node that a screen reader could not name."""
    faults = []

    def look(current, path):
        path = path + "/" + current.get_role_name() + " " + repr(current.get_name())
        if current.get_role_name() not in UNNAMED_ROLES and not current.get_name().strip():
            faults.append(path)
        for child in children(current):
            look(child, path)
    look(node, "")
    return faults


def dump(node):
    return "\n".join("  " * depth + f"{found.get_role_name()} {found.get_name()!r} "
                     f"{found.get_description()!r} {' '.join(sorted(states(found)))}"
                     for found, depth in walk(node))
