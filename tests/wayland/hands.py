"""The user's hands on Wayland: keys of a virtual keyboard, with the functions and names of tests/desktop/hands.py. There
is no pointer.
"""
import subprocess

KEY_DELAY = 8  # milliseconds between two typed characters
MODIFIERS = {"ctrl": "ctrl", "shift": "shift", "alt": "alt", "super": "logo"}  # as wtype names them
SHIFTED = {"Tab": "ISO_Left_Tab"}  # what a keyboard sends for a key that shift changes
NOWHERE = None


def _wtype(*words):
    subprocess.run(["wtype", *map(str, words)], check=True, timeout=30)


def press(*keys):
    """Key presses: "Return", "ctrl+z"."""
    for key in keys:
        *held, name = key.split("+")
        if "shift" in held:
            name = SHIFTED.get(name, name)
        down = [word for modifier in held for word in ("-M", MODIFIERS[modifier])]
        _wtype(*down, "-k", name)


def typeText(text):
    _wtype("-d", KEY_DELAY, "--", text)


def enter(text):
    """Types a line and ends it with Return."""
    typeText(text)
    press("Return")


def moveTo(_point):
    pass
