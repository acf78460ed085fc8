"""The user's hands on Wayland: keys of a virtual keyboard, with the functions and names of tests/desktop/hands.py. There
is no pointer.
"""
import json
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


def keyboardOwner():
    """The process whose window has the keyboard; nothing where no window has it."""
    tree = subprocess.run(["swaymsg", "--raw", "-t", "get_tree"], capture_output=True, check=True, timeout=30).stdout
    nodes = [json.loads(tree)]
    while nodes:
        node = nodes.pop()
        if node["focused"]:
            return node.get("pid")
        nodes += node["nodes"] + node["floating_nodes"]
    return None
