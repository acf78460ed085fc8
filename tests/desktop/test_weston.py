"""The program on Weston, a Wayland compositor without the extensions of the large desktops, shown in a window on X."""
import os
import shutil
import sys
from pathlib import Path
from unittest import mock

import hands
from case import DesktopCase
from desktop import DESKTOP
from session import SKIPPED
from waiting import waitUntil

SOCKET = "weston-of-the-tests"


class Weston(DesktopCase):
    def waitForKeyboard(self):
        """Weston tells nobody which of its windows has the keyboard; it gives it to the one that is opened."""

    def testACompositorThatGoesAwayEndsTheProgramAndLosesNothing(self):
        weston = DESKTOP.start("weston", "--backend=x11-backend.so", "--use-pixman", f"--socket={SOCKET}", "--idle-time=0")
        self.addCleanup(lambda: weston.poll() is None and DESKTOP.end(weston))
        waitUntil((Path(os.environ["XDG_RUNTIME_DIR"]) / SOCKET).is_socket, "weston was ready")
        waitUntil(lambda: hands.keyboardWindow().startswith("Weston"), "weston had the keyboard of X")
        with mock.patch.dict(os.environ, QT_QPA_PLATFORM="wayland", WAYLAND_DISPLAY=SOCKET):
            self.start("milk")
        self.expectInUse()
        DESKTOP.end(weston)
        self.assertNotEqual(self.waitUntilEnded(), 0)


if not shutil.which("weston"):
    print("skipped: there is no weston here", file=sys.stderr)
    sys.exit(SKIPPED)
