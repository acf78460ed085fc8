"""A desktop of its own for the tests: a virtual X server, a window manager, a session bus with the accessibility bus on
it. Importing this starts it, and it is there until the process ends.
"""
import os

from session import Session
from waiting import waitUntil

WIDTH, HEIGHT = map(int, os.environ.get("BRIMLE_SCREEN", "1280x800").split("x"))  # in pixels


class Desktop(Session):
    platform = "xcb"

    def startScreen(self):
        _, os.environ["DISPLAY"] = self.startServer()
        # It says that it manages windows a good while before it does; the command is run when it really does.
        managing = self.home / "managing"
        self.start("openbox", "--startup", f"touch {managing}")
        waitUntil(managing.exists, "the window manager was ready")

    def startServer(self):
        """Starts an X server; its process and its display."""
        server, number = self.startAndRead(
            "Xvfb", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp", "-noreset", "-displayfd", "{fd}")
        return server, ":" + number


DESKTOP = Desktop()
