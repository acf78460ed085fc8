"""A desktop of its own for the tests: a virtual X server, a window manager, a session bus with the accessibility bus on
it, and folders that the user's own files stay out of. Importing this starts it, and it is there until the process ends.
"""
import atexit
import os
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

from waiting import waitUntil

SCREEN = os.environ.get("BRIMLE_SCREEN", "1280x800x24")
FOLDERS = {"XDG_DATA_HOME": "data", "XDG_CONFIG_HOME": "config", "XDG_STATE_HOME": "state", "XDG_CACHE_HOME": "cache",
           "XDG_RUNTIME_DIR": "run"}


def _zoneAroundNoon():
    """A time zone in which it is about noon, so that no test meets midnight."""
    return f"Etc/GMT{time.gmtime().tm_hour - 12:+d}"


class Desktop:
    def __init__(self):
        self.home = Path(tempfile.mkdtemp(prefix="brimle-desktop-"))
        self.log = (self.home / "log").open("w+", encoding="utf-8")
        self._started = []
        atexit.register(self._end)
        self._setEnvironment()
        os.environ["DISPLAY"] = ":" + self._startAndRead(
            "Xvfb", "-screen", "0", SCREEN, "-nolisten", "tcp", "-noreset", "-displayfd", "{fd}")
        self.start("openbox")
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._startAndRead(
            "dbus-daemon", "--session", "--nofork", "--print-address={fd}")
        waitUntil(self._managed, "the window manager was ready")

    def start(self, *command, **options):
        """A program on this desktop; its messages go to the log unless `options`, those of Popen, say otherwise."""
        process = subprocess.Popen(command, **({"stdout": self.log, "stderr": self.log} | options))
        self._started.append(process)
        return process

    def end(self, process):
        self._started.remove(process)
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()

    def picture(self, path):
        """The screen as it is now, to look at why a test failed."""
        Path(path).parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["import", "-silent", "-window", "root", str(path)], check=False, timeout=30)

    def _setEnvironment(self):
        kept = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS") if name in os.environ}
        os.environ.clear()
        os.environ.update(kept, HOME=str(self.home), LC_ALL="C.UTF-8", TZ=_zoneAroundNoon(), QT_QPA_PLATFORM="xcb",
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        time.tzset()
        for variable, name in FOLDERS.items():
            folder = self.home / name
            folder.mkdir(mode=0o700)
            os.environ[variable] = str(folder)

    def _startAndRead(self, *command):
        """The line that a program, once it is ready, writes to the descriptor that stands for {fd} in its arguments."""
        readEnd, writeEnd = os.pipe()
        self.start(*(word.format(fd=writeEnd) for word in command), pass_fds=[writeEnd])
        os.close(writeEnd)
        with os.fdopen(readEnd) as pipe:
            return pipe.readline().strip()

    @staticmethod
    def _managed():
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True, check=False)
        return "window id" in answer.stdout

    def _end(self):
        for process in reversed(self._started[:]):
            self.end(process)
        self.log.close()
        shutil.rmtree(self.home, ignore_errors=True)


DESKTOP = Desktop()
