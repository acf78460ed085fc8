"""The desktop of tests/desktop on Wayland: sway without a screen of its own. Where sway cannot run the process ends at
once with the status that counts as skipped. Importing this starts it.

sway refuses to run as root. There it runs as an ordinary user, who owns nothing but its runtime folder; the programs
on it stay with the user of the tests, to whom the socket is open.
"""
import os
import sys

from session import SKIPPED, Session
from waiting import waitUntil

ORDINARY_USER = 65534  # owns no files anywhere
A_LONG_TIME = "3600000"  # milliseconds for which a keyboard is there: a seat without one tells nobody its first key
CONFIGURATION = """\
output * resolution 1280x800
xwayland disable
seat * hide_cursor 1
for_window [app_id="org.brimle.Brimle"] floating enable, move position 100 100
"""


class Desktop(Session):
    platform = "wayland"

    def startScreen(self):
        folder = self.home / "screen"
        folder.mkdir(mode=0o700)
        configuration = folder / "config"
        configuration.write_text(CONFIGURATION, encoding="utf-8")
        user = {}
        if os.geteuid() == 0:
            os.chmod(self.home, 0o711)
            os.chown(folder, ORDINARY_USER, ORDINARY_USER)
            user = {"user": ORDINARY_USER, "group": ORDINARY_USER, "extra_groups": []}
        environment = os.environ | {"XDG_RUNTIME_DIR": str(folder), "WLR_BACKENDS": "headless",
                                    "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
        sway = self._startOrSkip("sway", "-c", str(configuration), env=environment, cwd=folder, **user)
        waitUntil(lambda: sway.poll() is not None or self._sockets(folder), "sway was ready")
        if sway.poll() is not None:
            self._skip((self.home / "log").read_text(encoding="utf-8"))
        [os.environ["SWAYSOCK"]] = map(str, folder.glob("sway-ipc.*.sock"))
        [os.environ["WAYLAND_DISPLAY"]] = [str(path) for path in folder.glob("wayland-*") if path.is_socket()]
        self._startOrSkip("wtype", "-s", A_LONG_TIME)

    def _startOrSkip(self, *command, **options):
        try:
            return self.start(*command, **options)
        except OSError as error:
            self._skip(error)

    @staticmethod
    def _sockets(folder):
        return any(folder.glob("sway-ipc.*.sock")) and any(path.is_socket() for path in folder.glob("wayland-*"))

    @staticmethod
    def _skip(reason):
        print(f"skipped: no keys can be pressed on sway here: {reason}", file=sys.stderr)
        sys.exit(SKIPPED)


DESKTOP = Desktop()
