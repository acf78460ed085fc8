"""Screens that shrink, and a display that goes away, with no window manager to help."""
import os
import subprocess
from unittest import mock

import hands
from case import DesktopCase, frame
from day_file import Day
from desktop import DESKTOP


class Screens(DesktopCase):
    def startOnAnotherDisplay(self):
        """Starts the program on an X server that has no window manager; the server's process."""
        server, display = DESKTOP.startServer()
        self.addCleanup(lambda: server.poll() is None and DESKTOP.end(server))
        self.enterContext(mock.patch.dict(os.environ, DISPLAY=display))
        self.launch(Day(["milk"]))
        hands.focus(self.until(lambda: hands.windowOf(self._program), "the window was there"))
        self.waitForKeyboard()
        return server

    def waitForBox(self, *box):
        def now():
            return hands.boxOf(hands.windowOf(self._program))
        self.until(lambda: now() == box, lambda: f"the window was at {box}; it is at {now()}")

    def testTheWindowComesBackOntoAScreenThatShrank(self):
        file = DESKTOP.home / "config/brimle/settings.ini"
        file.parent.mkdir(exist_ok=True)
        file.write_text(frame("900 500 300 250"), encoding="utf-8")
        self.startOnAnotherDisplay()
        self.waitForBox(900, 500, 300, 250)
        for command in ["--newmode small 25 800 800 800 800 400 400 400 400", "--addmode screen small",
                        "--output screen --mode small"]:
            subprocess.run(["xrandr", *command.split()], check=True, timeout=30)
        self.waitForBox(500, 150, 300, 250)
        self.expectInUse()

    def testADisplayThatGoesAwayEndsTheProgramAndLosesNothing(self):
        server = self.startOnAnotherDisplay()
        self.expectInUse()
        hands.press("F6", "F6", "F6", "F6", "Return")  # folds the window: its frame is about to be saved
        DESKTOP.end(server)
        self.assertNotEqual(self.waitUntilEnded(), 0)
