"""Screens that shrink, and a display that goes away, with no window manager to help."""
import os
import subprocess
import unittest
from unittest import mock

import hands
from case import DesktopCase
from day_file import Day
from desktop import DESKTOP


class Screens(DesktopCase):
    def startOnAnotherDisplay(self, *today):
        """Starts the program on an X server that has no window manager; the server's process."""
        server, display = DESKTOP.startServer()
        self.addCleanup(lambda: server.poll() is None and DESKTOP.end(server))
        environment = mock.patch.dict(os.environ, DISPLAY=display)
        environment.start()
        self.addCleanup(environment.stop)
        self.day = Day(list(today))
        self._launch(os.environ)
        self.until(lambda: hands.windowOf(self._program), "the window was there")
        hands.focus(hands.windowOf(self._program))
        self.waitForKeyboard()
        return server

    def testTheWindowComesBackOntoAScreenThatShrank(self):
        self.keepFrame("900 500 300 250")
        self.startOnAnotherDisplay("milk")
        self.until(lambda: self.box() == (900, 500, 300, 250), lambda: f"the window was at its place; it is at {self.box()}")
        for command in [("--newmode", "small", 25, 800, 800, 800, 800, 400, 400, 400, 400), ("--addmode", "screen", "small"),
                        ("--output", "screen", "--mode", "small")]:
            subprocess.run(["xrandr", *map(str, command)], check=True, timeout=30)
        self.until(lambda: self.box() == (500, 150, 300, 250), lambda: f"the window was back; it is at {self.box()}")
        hands.enter("tea")
        self.expectDay(today=["milk", "tea"])

    def keepFrame(self, numbers):
        file = DESKTOP.home / "config/brimle/settings.ini"
        file.parent.mkdir(exist_ok=True)
        file.write_text(f"[General]\nNSWindow%20Frame%20TodayWindow={numbers}\n", encoding="utf-8")

    def box(self):
        return hands.boxOf(hands.windowOf(self._program))

    def testADisplayThatGoesAwayEndsTheProgramAndLosesNothing(self):
        server = self.startOnAnotherDisplay("milk")
        hands.enter("tea")
        self.expectDay(today=["milk", "tea"])
        hands.press("F6", "F6", "F6", "F6", "Return")  # folds the window: its frame is about to be saved
        DESKTOP.end(server)
        self.assertNotEqual(self.waitUntilEnded(), 0)
        self.assertEqual(self._read(), self.day)


if __name__ == "__main__":
    unittest.main()
