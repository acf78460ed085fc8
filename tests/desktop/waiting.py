"""Waiting for something to become true. Nothing here waits for time: a condition is looked at until it holds, and the
deadline only ends a wait that would never end. While it waits, events of the accessibility bus are delivered.
"""
import time

from gi.repository import GLib

DEADLINE = 20  # seconds; far more than anything takes
POLL = 0.015  # seconds between two looks


def _deliverEvents():
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass


def waitUntil(condition, what):
    """The first true value that `condition()` gives. `what` finishes the sentence "still waiting until …"; it may be a
    function, asked when the deadline is over. A control that vanishes while it is looked at counts as not yet."""
    end = time.monotonic() + DEADLINE
    while True:
        _deliverEvents()
        try:
            value = condition()
        except GLib.Error:
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("still waiting until " + (what() if callable(what) else what))
        time.sleep(POLL)
