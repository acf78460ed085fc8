"""Finding controls the way a screen reader does: by role and name in the accessibility tree. A control that is not on
the screen is not found.

The accessibility bus is spoken plainly: a control is asked anew at every question, so nothing seen here is ever stale. The
usual client library keeps copies, and waits for ever where an event comes in while it asks.
"""
from functools import cache

from gi.repository import Gio, GLib
from waiting import waitUntil

# What the tests call a role, where that is not what the bus calls it.
ROLES = {"button": "push button", "field": "text", "row": "list item", "window": "frame"}

_FOCUSED, _SHOWING = 12, 25  # bits of a state set
_REGISTRY = "org.a11y.atspi.Registry"
_TIMEOUT = 10000  # milliseconds


def _call(bus, owner, path, method, arguments=None):
    interface, _, name = method.rpartition(".")
    answer = bus.call_sync(owner, path, interface, name, arguments, None, Gio.DBusCallFlags.NONE, _TIMEOUT).unpack()
    return answer[0] if answer else None


@cache
def _bus():
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    session.set_exit_on_close(False)
    address = _call(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress")
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)


class Control:
    """Any question raises GLib.Error once the control is gone."""

    def __init__(self, owner, path):
        self._owner, self._path = owner, path

    def __eq__(self, other):
        return (self._owner, self._path) == (other._owner, other._path)

    def _ask(self, method, arguments=None):
        return _call(_bus(), self._owner, self._path, "org.a11y.atspi." + method, arguments)

    def _has(self, state):
        low, high = self._ask("Accessible.GetState")
        return bool((high << 32 | low) >> state & 1)

    @property
    def role(self):
        """In the bus's own words: "push button", "list item"."""
        return self._ask("Accessible.GetRoleName")

    @property
    def name(self):
        return _call(_bus(), self._owner, self._path, "org.freedesktop.DBus.Properties.Get",
                     GLib.Variant("(ss)", ("org.a11y.atspi.Accessible", "Name")))

    @property
    def box(self):
        """Left, top, width, height, in pixels of the screen."""
        return self._ask("Component.GetExtents", GLib.Variant("(u)", (0,)))

    def point(self, across=0.5, down=0.5):
        """A point in it, as fractions of its extents; the middle where none are given."""
        left, top, width, height = self.box
        return round(left + across * width), round(top + down * height)

    @property
    def text(self):
        """What stands in a field, its lines ended by newlines."""
        return self._ask("Text.GetText", GLib.Variant("(ii)", (0, -1))).replace("\N{LINE SEPARATOR}", "\n")

    @property
    def focused(self):
        return self._has(_FOCUSED)

    def all(self, role, named=None):
        """Every control in it with the role, of those on the screen, and with the name where one is given."""
        return [control for control in self._withRole(ROLES.get(role, role)) if named in (None, control.name)]

    def find(self, role, named=None):
        """The one such control in it, as soon as there is exactly one."""
        def one():
            found = self.all(role, named)
            return found[0] if len(found) == 1 else None
        return waitUntil(one, lambda: f"there is one {role} named {named!r}; there are\n{self.tree()}")

    def processId(self):
        """Nothing where the program has ended."""
        try:
            return _call(_bus(), "org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetConnectionUnixProcessID",
                         GLib.Variant("(s)", (self._owner,)))
        except GLib.Error:
            return None

    def children(self):
        return [Control(*child) for child in self._ask("Accessible.GetChildren")]

    def tree(self, indent="  "):
        return "".join(f"{indent}{child.role} {child.name!r}{' with the keyboard' * child.focused}\n"
                       + child.tree(indent + "  ") for child in self._shown())

    def _shown(self):
        return [child for child in self.children() if child._has(_SHOWING)]

    def _withRole(self, role):
        """A control in a control of the same role is not looked for."""
        for child in self._shown():
            if child.role == role:
                yield child
            else:
                yield from child._withRole(role)


def applicationOf(process):
    """The controls of a program; nothing while it is not on the accessibility bus."""
    applications = Control(_REGISTRY, "/org/a11y/atspi/accessible/root").children()
    return next((found for found in applications if found.processId() == process.pid), None)


class MenuWatch:
    """Notices menus, which are windows of their own that only their events lead to."""

    def __init__(self):
        self._open = []
        _call(_bus(), _REGISTRY, "/org/a11y/atspi/registry", _REGISTRY + ".RegisterEvent",
              GLib.Variant("(s)", ("object:state-changed:showing",)))
        self._subscription = _bus().signal_subscribe(
            None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing", Gio.DBusSignalFlags.NONE, self._changed)

    def end(self):
        _bus().signal_unsubscribe(self._subscription)

    def _changed(self, _bus, owner, path, _interface, _member, details):
        control, shows = Control(owner, path), details.unpack()[1] == 1
        try:
            if shows and control.role == "popup menu":
                self._open.append(control)
        except GLib.Error:
            return  # it is gone already
        if not shows and control in self._open:
            self._open.remove(control)

    def waitUntilOpen(self):
        waitUntil(lambda: self._open, "a menu was open")

    def item(self, title):
        """The item of an open menu; its name may go on with its key."""
        def found():
            items = [item for menu in self._open for item in menu.all("menu item")]
            return next((item for item in items if item.name.split("\t")[0] == title), None)
        return waitUntil(found, lambda: f"a menu had {title!r}; there are\n" + "\n".join(menu.tree() for menu in self._open))

    def waitUntilClosed(self):
        waitUntil(lambda: not self._open, "the menu was closed")
