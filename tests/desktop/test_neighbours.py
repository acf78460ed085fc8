"""Bad neighbours on the session bus, and buses that are no help: the program starts, takes what is typed and keeps it.

A call that the program waited for would hold it up longer than any test here waits.
"""
import os
import signal
from pathlib import Path

import dbus
import hands
from case import ADD, DesktopCase, dayKey
from desktop import DESKTOP
from neighbours import Neighbour, refusal, reply, silence, silentBus
from waiting import waitUntil

NAME, PATH, INTERFACE = "org.brimle.Brimle", "/org/brimle/Brimle", "org.freedesktop.Application"
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
BAD_CHANGES = [  # of settings of the desktop
    *NONSENSE,
    (["org.gnome.desktop.interface", "text-scaling-factor", dbus.Double("-1e300")], "ssv"),
    (["org.kde.kdeglobals.KDE", "AnimationDurationFactor", "\n"], "ssv"),
]
BAD_CALLS = [
    ("Activate", [], ""),
    *[("Activate", [{"activation-token": dbus.Array([1], variant_level=1), "": "x" * 999}], "a{sv}")] * 1000,
    ("ActivateAction", ["quit", [], {}], "sava{sv}"), ("ActivateAction", ["", [1, "x"], {}], "sava{sv}"),
    ("ActivateAction", [1], "i"), ("Open", [["file:///etc/passwd"] * 100, {}], "asa{sv}"), ("deleteLater", [], ""),
]


class Neighbours(DesktopCase):
    def meet(self, *names, answer=silence):
        neighbour = Neighbour(*names, answer=answer)
        self.addCleanup(neighbour.end)
        return neighbour

    def remindNow(self):
        """Has a reminder wait that is due today: it is delivered as soon as the program runs."""
        file = Path(os.environ["XDG_STATE_HOME"]) / "brimle/notifications"
        file.parent.mkdir(exist_ok=True)
        file.write_text(f"{dayKey()} 0\tarrival-x\tmilk\tOn your list today.\n", encoding="utf-8")

    def expectEndByClosing(self):
        hands.press("F6", "Return")
        self.assertEqual(self.waitUntilEnded(), 0, "nobody could have brought the window back")

    def testNoAnswerOfTheDesktopIsWaitedForOrTrusted(self):
        for what, answer in [("silence", silence), ("errors", refusal),
                             *((f"answers {signature!r}", reply(*arguments, signature=signature))
                               for arguments, signature in NONSENSE)]:
            with self.subTest(what):
                self.doCleanups()
                neighbour = self.meet(*SERVICES, answer=answer)
                self.remindNow()
                self.start("milk")
                waitUntil(lambda: ASKED <= set(neighbour.calls), lambda: f"all were asked; {neighbour.calls} were")
                self.expectInUse()
                neighbour.end()
                self.expectInUse()

    def testASettingOfTheDesktopChangesToNonsense(self):
        portal = self.meet(PORTAL, answer=refusal)
        self.start("milk")
        for arguments, signature in BAD_CHANGES:
            portal.signal("/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged", *arguments,
                          signature=signature)
        self.expectInUse()

    def testCallsUponTheProgramThatMakeNoSense(self):
        self.start("milk")
        stranger = self.meet()
        waitUntil(lambda: stranger.sees(NAME), "the program had its name")
        for method, arguments, signature in [*BAD_CALLS, ("ActivateAction", ["new-task", [], {}], "sava{sv}")]:
            stranger.call(NAME, PATH, INTERFACE, method, *arguments, signature=signature)
        self.waitForFocus(ADD)
        self.expectInUse()

    def testAnotherHasTheName(self):
        self.meet(NAME)
        self.start("milk")
        self.expectInUse()
        self.expectEndByClosing()

    def testTheBusGoesAway(self):
        bus, address = DESKTOP.startBus()
        self.startElsewhere("milk", DBUS_SESSION_BUS_ADDRESS=address)
        DESKTOP.end(bus)
        self.expectInUse()
        self.expectEndByClosing()

    def testTheBusFallsSilent(self):
        bus, address = DESKTOP.startBus()
        self.startElsewhere("milk", DBUS_SESSION_BUS_ADDRESS=address)
        bus.send_signal(signal.SIGSTOP)
        self.addCleanup(bus.kill)
        self.expectInUse()
        hands.press("alt+Return", "ctrl+z", "ctrl+shift+z")
        self.expectInUse()

    def testBusesThatNeverAnswer(self):
        address = self.enterContext(silentBus())
        self.remindNow()
        self.startElsewhere("milk", DBUS_SESSION_BUS_ADDRESS=address, DBUS_SYSTEM_BUS_ADDRESS=address)
        self.expectInUse()
