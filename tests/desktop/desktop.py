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

WIDTH, HEIGHT = map(int, os.environ.get("BRIMLE_SCREEN", "1280x800").split("x"))  # in pixels
FOLDERS = {"XDG_DATA_HOME": "data", "XDG_CONFIG_HOME": "config", "XDG_STATE_HOME": "state", "XDG_CACHE_HOME": "cache",
           "XDG_RUNTIME_DIR": "run"}
KEPT = ("PATH", "BRIMLE_PROGRAM", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")  # of the environment of the tests


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
        _, os.environ["DISPLAY"] = self.startServer()
        # It says that it manages windows a good while before it does; the command is run when it really does.
        managing = self.home / "managing"
        # Without its own uses of the mouse: to see every click first, it holds them back, and loses one in hundreds where
        # another follows at once.
        settings = self.home / "openbox.xml"
        settings.write_text('<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>')
        self.start("openbox", "--config-file", settings, "--startup", f"touch {managing}")
        waitUntil(managing.exists, "the window manager was ready")
        _, os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.startBus()

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

    def startServer(self):
        """Starts an X server; its process and its display."""
        server, number = self._startAndRead(
            "Xvfb", "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp", "-noreset", "-displayfd", "{fd}")
        return server, ":" + number

    def startBus(self):
        """Starts a session bus; its process and its address."""
        return self._startAndRead("dbus-daemon", "--session", "--nofork", "--print-address={fd}")

    def _startAndRead(self, *command):
        """A program's process and, once it is ready, the line that it writes to the descriptor that stands for {fd}."""
        readEnd, writeEnd = os.pipe()
        process = self.start(*(word.format(fd=writeEnd) for word in command), pass_fds=[writeEnd])
        os.close(writeEnd)
        with os.fdopen(readEnd) as pipe:
            return process, pipe.readline().strip()

    def _setEnvironment(self):
        kept = {name: os.environ[name] for name in KEPT if name in os.environ}
        os.environ.clear()
        os.environ.update(kept, HOME=str(self.home), LC_ALL="C.UTF-8", TZ=_zoneAroundNoon(), QT_QPA_PLATFORM="xcb",
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        time.tzset()
        for variable, name in FOLDERS.items():
            folder = self.home / name
            folder.mkdir(mode=0o700)
            os.environ[variable] = str(folder)

    def _end(self):
        for process in reversed(self._started[:]):
            self.end(process)
        self.log.close()
        shutil.rmtree(self.home, ignore_errors=True)


DESKTOP = Desktop()
