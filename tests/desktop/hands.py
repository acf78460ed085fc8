"""The user's hands: key presses and mouse events made by the X server, the same as from real devices. Points are
(x, y) in pixels of the screen. The server takes events in their order, so nothing here waits.
"""
import math
import subprocess

STEP = 5  # pixels between two events of a pointer on its way
KEY_DELAY = 8  # milliseconds between two typed characters
NOWHERE = (5, 790)  # a corner of the screen without windows


def _xdotool(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True, timeout=30)


def press(*keys):
    """Key presses, as xdotool names them: "Return", "ctrl+z"."""
    _xdotool("key", "--delay", KEY_DELAY, *keys)


def typeText(text):
    _xdotool("type", "--delay", KEY_DELAY, "--", text)


def enter(text):
    """Types a line and ends it with Return."""
    typeText(text)
    press("Return")


def moveTo(point):
    _xdotool("mousemove", *point)


def click(point, button=1, held=None):
    """A click, with the modifier `held` where one is named ("ctrl", "shift")."""
    holding = (["keydown", held], ["keyup", held]) if held else ([], [])
    _xdotool("mousemove", *point, *holding[0], "click", button, *holding[1])


def rightClick(point):
    click(point, button=3)


def doubleClick(point):
    """Two clicks with nothing between them, since `click` waits within itself: on a busy machine for too long."""
    _xdotool("mousemove", *point, *["mousedown", 1, "mouseup", 1] * 2)


def scrollUp(point, turns=15):
    """Turns the wheel towards what is above, a good deal unless told otherwise."""
    _xdotool("mousemove", *point, "click", "--repeat", turns, 4)


def takeHold(point, button=1):
    """The button goes down, and stays."""
    _xdotool("mousemove", *point, "mousedown", button)


def letGo(button=1):
    _xdotool("mouseup", button)


def glide(start, end):
    """The pointer goes from one point to another, through those between."""
    steps = max(1, math.ceil(math.dist(start, end) / STEP))
    words = []
    for step in range(1, steps + 1):
        words += ["mousemove", *(round(a + (b - a) * step / steps) for a, b in zip(start, end))]
    _xdotool(*words)


def _answer(*words):
    """What xdotool says; empty where it finds nothing."""
    return subprocess.run(["xdotool", *words], capture_output=True, text=True, check=False, timeout=30).stdout.strip()


def keyboardOwner():
    """The process whose window has the keyboard; nothing where no window has it."""
    return int(_answer("getwindowfocus", "getwindowpid") or 0) or None


def keyboardWindow():
    """The title of the window that has the keyboard; empty where no window has it."""
    return _answer("getwindowfocus", "getwindowname")


def windowOf(process):
    """The window of a program, as X numbers it; empty while none is in sight."""
    return _answer("search", "--onlyvisible", "--pid", str(process.pid)).partition("\n")[0]


def focus(window):
    """Gives the keyboard to a window where there is no window manager to do so."""
    _xdotool("windowfocus", window)


def boxOf(window):
    """Left, top, width, height, in pixels of the screen."""
    values = dict(line.split("=") for line in _answer("getwindowgeometry", "--shell", window).split())
    return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))
