"""A case on Weston, a Wayland compositor without the extensions of the large desktops, shown in a window on X: the hands
are those of X. Where there is no Weston the process ends at once with the status that counts as skipped.
"""
import os
import shutil
import sys
from pathlib import Path

import hands
from case import DesktopCase
from desktop import DESKTOP
from waiting import waitUntil

SOCKET = "weston-of-the-tests"
SKIPPED = 77  # the exit status of a test that cannot run on this machine

if not shutil.which("weston"):
    print("skipped: there is no weston here", file=sys.stderr)
    sys.exit(SKIPPED)


class WestonCase(DesktopCase):
    environment = {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": SOCKET}

    def setUp(self):
        self.weston = DESKTOP.start("weston", "--backend=x11-backend.so", "--use-pixman", f"--socket={SOCKET}", "--idle-time=0")
        self.addCleanup(lambda: self.weston.poll() is None and DESKTOP.end(self.weston))
        waitUntil((Path(os.environ["XDG_RUNTIME_DIR"]) / SOCKET).is_socket, "weston was ready")
        waitUntil(lambda: hands.keyboardWindow().startswith("Weston"), "weston had the keyboard of X")

    def waitForKeyboard(self):
        """Weston tells nobody which of its windows has the keyboard; it gives it to the one that is opened."""
