"""Bad neighbours on the session bus, and buses that are no help: the program starts, takes what is typed and keeps it.

A call that the program waited for would hold it up longer than any test here waits.
"""
import os
import signal
import unittest
from pathlib import Path

import dbus
import hands
from case import ADD, DesktopCase, dayKey
from desktop import DESKTOP
from neighbours import Neighbour, SilentBus, refusal, reply, silence
from waiting import waitUntil

NAME, PATH, INTERFACE = "org.brimle.Brimle", "/org/brimle/Brimle", "org.freedesktop.Application"
PORTAL, SETTINGS = "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings"
SERVICES = ["org.freedesktop.portal.Desktop", "org.freedesktop.Notifications", "org.kde.StatusNotifierWatcher",
            "com.canonical.AppMenu.Registrar"]
ASKED = {"ReadAll", "GetCapabilities", "RegisterStatusNotifierItem", "RegisterWindow"}  # of each of them
NONSENSE = [  # arguments and their signature
    ([], ""),
    (["text"], "s"),
    ([{"org.freedesktop.appearance": {"color-scheme": dbus.Array(["x"], variant_level=1)},
       "org.gnome.desktop.interface": {"text-scaling-factor": dbus.Double("nan", variant_level=3),
                                       "enable-animations": dbus.Struct([1, "x"], variant_level=1)}}], "a{sa{sv}}"),
    ([{"": {"": "x"}}], "a{sa{sv}}"),
    ([dbus.Array([1], signature="i")], "v"),
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

    def expectInUse(self):
        """The entry field takes a task, and the day file has it."""
        hands.enter("tea")
        self.expectDay(today=[*self.day.today, "tea"])

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

    def testAPortalTalksNonsenseAndDies(self):
        portal = self.meet("org.freedesktop.portal.Desktop", answer=refusal)
        self.start("milk")
        for arguments, signature in [
            *NONSENSE,
            (["org.freedesktop.appearance", "color-scheme", dbus.Double("inf")], "ssv"),
            (["org.freedesktop.appearance", "contrast", dbus.Array([], signature="(ss)")], "ssv"),
            (["org.gnome.desktop.interface", "text-scaling-factor", dbus.Double("-1e300")], "ssv"),
            (["org.kde.kdeglobals.KDE", "AnimationDurationFactor", "\n"], "ssv"),
            ([1, 2, 3], "iii"),
        ]:
            portal.signal(PORTAL, SETTINGS, "SettingChanged", *arguments, signature=signature)
        self.expectInUse()
        portal.end()
        self.expectInUse()

    def testCallsUponTheProgramThatMakeNoSense(self):
        self.start("milk")
        stranger = self.meet()
        waitUntil(lambda: stranger.owner(NAME), "the program had its name")
        for count in range(1000):
            data = {"activation-token": dbus.Array([count], variant_level=1), "desktop-startup-id": "x" * count, "": count}
            stranger.call(NAME, PATH, INTERFACE, "Activate", data, signature="a{sv}")
        for method, arguments, signature in [
            ("Activate", [], ""), ("Activate", ["x"], "s"), ("Activate", [{"a": "b"}], "a{ss}"),
            ("ActivateAction", ["quit", [], {}], "sava{sv}"), ("ActivateAction", ["", [1, "x"], {}], "sava{sv}"),
            ("ActivateAction", [1], "i"), ("Open", [["file:///etc/passwd"] * 100, {}], "asa{sv}"), ("Open", [[]], "ai"),
            ("deleteLater", [], ""), ("destroyed", [], ""),
        ]:
            stranger.call(NAME, PATH, INTERFACE, method, *arguments, signature=signature)
        stranger.call(NAME, PATH, INTERFACE, "ActivateAction", "new-task", [], {}, signature="sava{sv}")
        self.waitForFocus(ADD)
        self.expectInUse()

    def closeWindow(self):
        hands.press("F6", "Return")

    def testAnotherHasTheName(self):
        self.meet(NAME)
        self.start("milk")
        self.expectInUse()
        self.closeWindow()
        self.assertEqual(self.waitUntilEnded(), 0, "nobody could have brought the window back")

    def testTheBusGoesAway(self):
        bus, address = DESKTOP.startBus()
        self.startElsewhere("milk", DBUS_SESSION_BUS_ADDRESS=address)
        DESKTOP.end(bus)
        self.expectInUse()
        self.closeWindow()
        self.assertEqual(self.waitUntilEnded(), 0, "nobody could have brought the window back")

    def testTheBusFallsSilent(self):
        bus, address = DESKTOP.startBus()
        self.startElsewhere("milk", DBUS_SESSION_BUS_ADDRESS=address)
        bus.send_signal(signal.SIGSTOP)
        self.addCleanup(bus.kill)
        self.expectInUse()
        hands.press("alt+Return", "ctrl+z", "ctrl+shift+z")
        self.expectInUse()

    def testBusesThatNeverAnswer(self):
        bus = SilentBus()
        self.addCleanup(bus.end)
        self.remindNow()
        self.startElsewhere("milk", DBUS_SESSION_BUS_ADDRESS=bus.address, DBUS_SYSTEM_BUS_ADDRESS=bus.address)
        self.expectInUse()

    def testASystemBusThatNeverAnswers(self):
        bus = SilentBus()
        self.addCleanup(bus.end)
        self.startElsewhere("milk", DBUS_SYSTEM_BUS_ADDRESS=bus.address)
        self.expectInUse()


if __name__ == "__main__":
    unittest.main()
