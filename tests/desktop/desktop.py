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

SCREEN = os.environ.get("BRIMLE_SCREEN", "1280x800")  # in pixels
KEPT = ("PATH", "BRIMLE_PROGRAM", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")  # of the environment of the tests
FOLDERS = "DATA_HOME", "CONFIG_HOME", "STATE_HOME", "CACHE_HOME", "RUNTIME_DIR"  # as the environment has them
HOME = Path(tempfile.mkdtemp(prefix="brimle-desktop-"))


def start(*command, **options):
    """A program on this desktop, with these options of Popen; what it says is lost unless they tell otherwise."""
    process = subprocess.Popen(command, **({"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL} | options))
    atexit.register(end, process)
    return process


def end(process):
    """Nothing happens where it has ended already."""
    process.terminate()
    try:
        process.wait(10)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def startServer():
    """Starts an X server; its process and its display."""
    server, number = _startAndRead(
        "Xvfb", "-screen", "0", f"{SCREEN}x24", "-nolisten", "tcp", "-noreset", "-displayfd", "{fd}")
    return server, ":" + number


def startBus():
    """Starts a session bus; its process and its address."""
    return _startAndRead("dbus-daemon", "--session", "--nofork", "--print-address={fd}")


def _startAndRead(*command):
    """A program's process and, once it is ready, the line that it writes to the descriptor that stands for {fd}."""
    readEnd, writeEnd = os.pipe()
    process = start(*(word.format(fd=writeEnd) for word in command), pass_fds=[writeEnd])
    os.close(writeEnd)
    with os.fdopen(readEnd) as pipe:
        return process, pipe.readline().strip()


atexit.register(shutil.rmtree, HOME, ignore_errors=True)
kept = {name: os.environ[name] for name in KEPT if name in os.environ}
os.environ.clear()
# In the time zone in which it is about noon, so that no test meets midnight.
os.environ.update(kept, HOME=str(HOME), LC_ALL="C.UTF-8", TZ=f"Etc/GMT{time.gmtime().tm_hour - 12:+d}",
                  QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
time.tzset()
for folder in FOLDERS:
    os.environ[f"XDG_{folder}"] = str(HOME / folder)
    (HOME / folder).mkdir(mode=0o700)
_, os.environ["DISPLAY"] = startServer()
# Without its own uses of the mouse: to see every click first, the window manager holds them back, and loses one in
# hundreds where another follows at once.
(HOME / "openbox.xml").write_text('<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>')
# It says that it manages windows a good while before it does; the command is run when it really does.
start("openbox", "--config-file", HOME / "openbox.xml", "--startup", f"touch {HOME}/managing")
waitUntil((HOME / "managing").exists, "the window manager was ready")
_, os.environ["DBUS_SESSION_BUS_ADDRESS"] = startBus()
