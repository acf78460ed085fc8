"""Bad neighbours on the session bus, and buses that are no help: the program starts, takes what is typed and keeps it.

A call that the program waited for would hold it up longer than any test here waits.
"""
import os
import signal
from pathlib import Path

import dbus
import desktop
import hands
from case import ADD, DesktopCase, dayKey
from day_file import Day
from neighbours import Neighbour, refusal, reply
from waiting import waitUntil

PROGRAM = "org.brimle.Brimle", "/org/brimle/Brimle", "org.freedesktop.Application"
PORTAL = "org.freedesktop.portal.Desktop"
SERVICES = [PORTAL, "org.freedesktop.Notifications", "org.kde.StatusNotifierWatcher", "com.canonical.AppMenu.Registrar"]
ASKED = {"ReadAll", "GetCapabilities", "RegisterStatusNotifierItem", "RegisterWindow"}  # of each of them
NONSENSE = [  # arguments and their signature
    ([], ""),
    ([{"org.freedesktop.appearance": {"color-scheme": dbus.Array(["x"], variant_level=1)},
       "org.gnome.desktop.interface": {"text-scaling-factor": dbus.Double("nan", variant_level=3),
                                       "enable-animations": dbus.Struct([1, "x"], variant_level=1)}}], "a{sa{sv}}"),
    ([dbus.Array([1], signature="i")], "v"),
]
BAD_CHANGES = [*NONSENSE, (["org.gnome.desktop.interface", "text-scaling-factor", dbus.Double("-1e300")], "ssv")]
BAD_CALLS = [
    *[("Activate", [{"activation-token": dbus.Array([1], variant_level=1), "": "x" * 999}], "a{sv}")] * 1000,
    ("ActivateAction", ["quit", [], {}], "sava{sv}"), ("ActivateAction", ["", [1, "x"], {}], "sava{sv}"),
    ("ActivateAction", [1], "i"), ("deleteLater", [], ""),
]


class Neighbours(DesktopCase):
    def meet(self, *names, answer=None):
        neighbour = Neighbour(*names, answer=answer)
        self.addCleanup(neighbour.bus.close)
        return neighbour

    def remindNow(self):
        """Has a reminder wait that is due today: it is delivered as soon as the program runs."""
        file = Path(os.environ["XDG_STATE_HOME"]) / "brimle/notifications"
        file.parent.mkdir()
        file.write_text(f"{dayKey()} 0\tarrival-x\tmilk\tOn your list today.\n", encoding="utf-8")

    def expectEndByClosing(self):
        hands.press("F6", "Return")
        self.assertEqual(self.waitUntilEnded(), 0, "nobody could have brought the window back")

    def testNoAnswerOfTheDesktopIsWaitedForOrTrusted(self):
        nonsense = [reply(*arguments, signature=signature) for arguments, signature in NONSENSE]
        for number, answer in enumerate([None, refusal, *nonsense]):
            with self.subTest(number):
                self.doCleanups()
                neighbour = self.meet(*SERVICES, answer=answer)
                self.remindNow()
                self.start("milk")
                waitUntil(lambda: ASKED <= set(neighbour.calls), lambda: f"all were asked; {neighbour.calls} were")
                self.expectInUse()
                neighbour.bus.close()
                self.expectInUse()

    def testSignalsAndCallsThatMakeNoSense(self):
        neighbour = self.meet(PORTAL, answer=refusal)
        self.start("milk")
        waitUntil(lambda: neighbour.bus.name_has_owner(PROGRAM[0]), "the program had its name")
        for arguments, signature in BAD_CHANGES:
            neighbour.signal("/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged",
                             *arguments, signature=signature)
        for method, arguments, signature in [*BAD_CALLS, ("ActivateAction", ["new-task", [], {}], "sava{sv}")]:
            neighbour.bus.call_async(*PROGRAM, method, signature, arguments, None, None)
        self.waitForFocus(ADD)
        self.expectInUse()

    def testAnotherHasTheName(self):
        self.meet(PROGRAM[0])
        self.start("milk")
        self.expectInUse()
        self.expectEndByClosing()

    def testBusesThatGoAwayFallSilentOrNeverAnswer(self):
        for sent, early in [(signal.SIGKILL, False), (signal.SIGSTOP, False), (signal.SIGSTOP, True)]:
            with self.subTest(f"{sent.name} {'before' if early else 'after'} the start"):
                self.doCleanups()
                bus, address = desktop.startBus()
                self.addCleanup(bus.kill)
                if early:
                    bus.send_signal(sent)
                self.remindNow()
                self.startElsewhere(Day(["milk"]), DBUS_SESSION_BUS_ADDRESS=address, DBUS_SYSTEM_BUS_ADDRESS=address)
                bus.send_signal(sent)
                self.expectInUse()
                hands.press("alt+Return", "ctrl+z", "ctrl+shift+z")
                self.expectInUse()
                if early or sent == signal.SIGKILL:
                    self.expectEndByClosing()
