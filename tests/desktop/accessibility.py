"""The accessibility bus, spoken plainly: an element is asked anew at every question, so nothing seen here is ever stale.

The usual client library keeps copies, and waits for ever where an event comes in while it asks.
"""
from functools import cache

from gi.repository import Gio, GLib

ACTIVE, FOCUSED, SHOWING = 1, 12, 25  # bits of a state set

_REGISTRY = "org.a11y.atspi.Registry"
_REGISTRY_PATH = "/org/a11y/atspi/registry"
_ROOT = "/org/a11y/atspi/accessible/root"
_TIMEOUT = 10000  # milliseconds


@cache
def address():
    """Where the accessibility bus is. Programs that find this in their environment need no session bus to meet it."""
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    session.set_exit_on_close(False)
    return session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                             Gio.DBusCallFlags.NONE, _TIMEOUT).unpack()[0]


@cache
def _bus():
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address(), flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)


def _call(owner, path, method, arguments=None):
    interface, _, name = method.rpartition(".")
    answer = _bus().call_sync(owner, path, interface, name, arguments, None, Gio.DBusCallFlags.NONE, _TIMEOUT)
    values = answer.unpack()
    return values[0] if values else None


class Element:
    """One element of a tree. Any question raises GLib.Error once the element is gone."""

    def __init__(self, owner, path):
        self._owner, self._path = owner, path

    def __eq__(self, other):
        return (self._owner, self._path) == (other._owner, other._path)

    def _ask(self, method, arguments=None):
        return _call(self._owner, self._path, "org.a11y.atspi." + method, arguments)

    def processId(self):
        """Nothing where the program has ended."""
        try:
            return _call("org.freedesktop.DBus", "/", "org.freedesktop.DBus.GetConnectionUnixProcessID",
                         GLib.Variant("(s)", (self._owner,)))
        except GLib.Error:
            return None

    def name(self):
        arguments = GLib.Variant("(ss)", ("org.a11y.atspi.Accessible", "Name"))
        return _call(self._owner, self._path, "org.freedesktop.DBus.Properties.Get", arguments)

    def role(self):
        """In words: "push button", "list item"."""
        return self._ask("Accessible.GetRoleName")

    def children(self):
        return [Element(owner, path) for owner, path in self._ask("Accessible.GetChildren")]

    def has(self, state):
        low, high = self._ask("Accessible.GetState")
        return bool((high << 32 | low) >> state & 1)

    def box(self):
        """Left, top, width, height, in pixels of the screen."""
        return self._ask("Component.GetExtents", GLib.Variant("(u)", (0,)))

    def text(self):
        return self._ask("Text.GetText", GLib.Variant("(ii)", (0, -1)))


def applicationOf(process):
    """The root of a program's tree; nothing while it has none."""
    applications = Element(_REGISTRY, _ROOT).children()
    return next((found for found in applications if found.processId() == process.pid), None)


def watchShowing(appeared):
    """Calls `appeared(element, shows)` whenever an element comes into view or goes; gives the means to end it."""
    _call(_REGISTRY, _REGISTRY_PATH, _REGISTRY + ".RegisterEvent",
          GLib.Variant("(s)", ("object:state-changed:showing",)))

    def changed(_bus, owner, path, _interface, _member, details):
        appeared(Element(owner, path), details.unpack()[1] == 1)
    subscription = _bus().signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing",
                                           Gio.DBusSignalFlags.NONE, changed)
    return lambda: _bus().signal_unsubscribe(subscription)
