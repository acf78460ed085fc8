"""The user's hands: key presses and mouse events made by the X server, the same as from real devices. Points are
(x, y) in pixels of the screen. The server takes events in their order, so nothing here waits.
"""
import math
import subprocess

STEP = 5  # pixels between two events of a pointer on its way
KEY_DELAY = 8  # milliseconds between two typed characters
NOWHERE = (5, 790)  # a corner of the screen without windows


def _xdotool(*words, check=True):
    """What it says."""
    answer = subprocess.run(["xdotool", *map(str, words)], check=check, timeout=30, capture_output=True, text=True)
    return answer.stdout.strip()


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


def keyboardWindow():
    """The title of the window that has the keyboard; empty where no window has it."""
    return _xdotool("getwindowfocus", "getwindowname", check=False)


def giveKeyboardTo(title):
    """For where there is no window manager to do so; does nothing while no such window is in sight."""
    _xdotool("search", "--onlyvisible", "--name", f"^{title}$", "windowfocus", check=False)
