"""Finding controls the way a screen reader does: by role and name in the accessibility tree. A control that is not on
the screen is not found.

The accessibility bus is spoken plainly: a control is asked anew at every question, so nothing seen here is ever stale. The
usual client library keeps copies, and waits for ever where an event comes in while it asks.
"""
import os
from contextlib import suppress
from functools import cache

import dbus
from waiting import connection, waitUntil

# What the tests call a role, where that is not what the bus calls it.
ROLES = {"button": "push button", "field": "text", "row": "list item", "window": "frame"}

_FOCUSED, _SHOWING = 12, 25  # bits of a state set


@cache
def _bus():
    session = connection(os.environ["DBUS_SESSION_BUS_ADDRESS"])
    return connection(session.call_blocking("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", "", []))


class Control:
    """Any question raises a DBusException once the control is gone."""

    def __init__(self, owner, path):
        self._place = owner, path

    def ask(self, method, signature="", *arguments):
        interface, _, name = method.rpartition(".")
        return _bus().call_blocking(*self._place, interface, name, signature, arguments)

    def _has(self, state):
        low, high = self.ask("org.a11y.atspi.Accessible.GetState")
        return bool((high << 32 | low) >> state & 1)

    @property
    def role(self):
        """In the bus's own words: "push button", "list item"."""
        return self.ask("org.a11y.atspi.Accessible.GetRoleName")

    @property
    def name(self):
        return self.ask("org.freedesktop.DBus.Properties.Get", "ss", "org.a11y.atspi.Accessible", "Name")

    @property
    def box(self):
        """Left, top, width, height, in pixels of the screen."""
        return self.ask("org.a11y.atspi.Component.GetExtents", "u", 0)

    def point(self, across=0.5, down=0.5):
        """A point in it, as fractions of its extents; the middle where none are given."""
        left, top, width, height = self.box
        return round(left + across * width), round(top + down * height)

    @property
    def text(self):
        """What stands in a field."""
        return self.ask("org.a11y.atspi.Text.GetText", "ii", 0, -1)

    @property
    def focused(self):
        return self._has(_FOCUSED)

    def all(self, role, named=None):
        """Every control in it with the role, of those on the screen, and with the name where one is given. A control in a
        control of the same role is not looked for."""
        found = []
        for child in self._shown():
            if child.role != ROLES.get(role, role):
                found += child.all(role, named)
            elif named in (None, child.name):
                found.append(child)
        return found

    def find(self, role, named=None):
        """The one such control in it, as soon as there is exactly one."""
        def one():
            found = self.all(role, named)
            return found[0] if len(found) == 1 else None
        return waitUntil(one, lambda: f"there is one {role} named {named!r}; there are\n{self.tree()}")

    def children(self):
        return [Control(*child) for child in self.ask("org.a11y.atspi.Accessible.GetChildren")]

    def _shown(self):
        return [child for child in self.children() if child._has(_SHOWING)]

    def tree(self, indent="  "):
        return "".join(f"{indent}{child.role} {child.name!r}{' with the keyboard' * child.focused}\n"
                       + child.tree(indent + "  ") for child in self._shown())


def application(name):
    """The controls of a program, once it is on the accessibility bus."""
    desktop = Control("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
    return waitUntil(lambda: next((one for one in desktop.children() if one.name == name), None),
                     f"{name} was on the accessibility bus")


class MenuWatch:
    """Notices menus, which are windows of their own that only their events lead to."""

    def __init__(self):
        self._open = {}  # by the owner and the path of each
        Control("org.a11y.atspi.Registry", "/org/a11y/atspi/registry").ask(
            "org.a11y.atspi.Registry.RegisterEvent", "s", "object:state-changed:showing")
        self.end = _bus().add_signal_receiver(
            self._changed, "StateChanged", "org.a11y.atspi.Event.Object", arg0="showing",
            sender_keyword="owner", path_keyword="path").remove

    def _changed(self, _state, shows, *_rest, owner, path):
        control = Control(owner, path)
        if not shows:
            self._open.pop((owner, path), None)
        with suppress(dbus.DBusException):  # it may be gone already
            if shows and control.role == "popup menu":
                self._open[owner, path] = control

    def waitUntilClosed(self):
        waitUntil(lambda: not self._open, "the menu was closed")

    def item(self, title):
        """The item of an open menu; its name may go on with its key."""
        def found():
            items = [item for menu in self._open.values() for item in menu.all("menu item")]
            return next((item for item in items if item.name.split("\t")[0] == title), None)
        return waitUntil(found, lambda: f"a menu had {title!r}; there are\n{''.join(menu.tree() for menu in self._open.values())}")
