"""The program on Wayland: a day by the keyboard alone, and the end of the compositor.

Weston, without the extensions of the large desktops, is shown in a window on X, so the hands are those of X. Where there
is no Weston the process ends at once with the status that counts as skipped.
"""
import os
import shutil
import sys
from pathlib import Path

import desktop
import hands
from case import DesktopCase
from waiting import waitUntil

SOCKET = "weston-of-the-tests"
SKIPPED = 77  # the exit status of a test that cannot run on this machine

if not shutil.which("weston"):
    print("skipped: there is no weston here", file=sys.stderr)
    sys.exit(SKIPPED)


class Wayland(DesktopCase):
    environment = {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET}

    def waitForKeyboard(self):
        """Weston tells nobody which of its windows has the keyboard; it gives it to the one that is opened."""

    def testADayByTheKeyboardAloneUntilTheCompositorGoesAway(self):
        weston = desktop.start("weston", "--backend=x11-backend.so", "--use-pixman", f"--socket={SOCKET}", "--idle-time=0")
        self.addCleanup(desktop.end, weston)
        waitUntil((Path(os.environ["XDG_RUNTIME_DIR"]) / SOCKET).is_socket, "weston was ready")
        waitUntil(lambda: hands.keyboardWindow().startswith("Weston"), "weston had the keyboard of X")
        self.start("tea")
        hands.enter("milk // oat")
        self.expectDay(today=["tea", "milk / oat"])
        hands.press("shift+Tab", "Up", "Up", "Delete")
        self.expectDay(today=["milk / oat"])
        hands.press("shift+F6", "shift+F6")
        self.waitForFocus(self.window.find("heading").name, role="heading")
        for height in 34, 400:
            hands.press("Return")
            self.expect(height, lambda: self.window.box[3], "the height of the window")
        desktop.end(weston)
        self.assertNotEqual(self.waitUntilEnded(), 0)
