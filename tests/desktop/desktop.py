"""A desktop of its own for the tests: a virtual X server, a window manager, a session bus with the accessibility bus on
it. Importing this starts it, and it is there until the process ends.
"""
import os
import subprocess
from pathlib import Path

from session import Session
from waiting import waitUntil

WIDTH, HEIGHT = 1280, 800  # of the screen, in pixels


class Desktop(Session):
    platform = "xcb"

    def startScreen(self):
        _, os.environ["DISPLAY"] = self.startServer()
        self.start("openbox")
        waitUntil(self._managed, "the window manager was ready")

    def startServer(self):
        """Starts an X server; its process and its display."""
        server, number = self.startAndRead(
            "Xvfb", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp", "-noreset", "-displayfd", "{fd}")
        return server, ":" + number

    def picture(self, path):
        Path(path).parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["import", "-silent", "-window", "root", str(path)], check=False, timeout=30)

    @staticmethod
    def _managed():
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True, check=False)
        return "window id" in answer.stdout


DESKTOP = Desktop()
