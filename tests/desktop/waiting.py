"""Waiting for something to become true. Nothing here waits for time: a condition is looked at until it holds, and the
deadline only ends a wait that would never end. While it waits, what comes from the buses is delivered.
"""
import time

import dbus.bus
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

DEADLINE = 20  # seconds; far more than anything takes
POLL = 0.015  # seconds between two looks


def connection(address):
    """To a bus."""
    bus = dbus.bus.BusConnection(address, mainloop=DBusGMainLoop())
    bus.set_exit_on_disconnect(False)
    return bus


def waitUntil(condition, what):
    """The first true value that `condition()` gives. `what` finishes the sentence "still waiting until …"; it may be a
    function, asked when the deadline is over. A control that vanishes while it is looked at counts as not yet."""
    end = time.monotonic() + DEADLINE
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        try:
            value = condition()
        except dbus.DBusException:
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("still waiting until " + (what() if callable(what) else what))
        time.sleep(POLL)
