"""A test of the real program: started by `start` on a day prepared for it, used by hand, judged by its day file, its
controls and the clipboard.
"""
import datetime
import os
import re
import shutil
import subprocess
import unittest
from dataclasses import replace
from pathlib import Path

import day_file
import desktop
import hands
from controls import MenuWatch, application
from day_file import Day
from waiting import DEADLINE, waitUntil

PROGRAM = os.environ.get("BRIMLE_PROGRAM", Path(__file__).parents[2] / "build/bin/brimle")
ADD = "Add a task"
EDIT = "Edit"

# What Qt says where a view or a call of ours is wrong. Of folders and displays it says what the tests did to them, and of
# keys that the accessibility service of a busy machine was slow to take note of them.
COMPLAINT = re.compile(r"^(qrc:|Q(?!StandardPaths|SpiApplication::keyEventError )[A-Za-z]+[ :])", re.MULTILINE)


def dayKey(offset=0):
    """The key of today's day, or of one some days later (or, below zero, earlier)."""
    return (datetime.date.today() + datetime.timedelta(days=offset)).isoformat()


def textOf(row):
    """The text of a row's task. What else is to be said of the row follows it in its name."""
    return row.name.split(", ")[0]


class DesktopCase(unittest.TestCase):
    # What a kind of case may have otherwise: the program's day, what its environment has besides, and the name that the
    # entry field has in its language.
    date = staticmethod(datetime.date.today)
    environment = {}
    add = ADD

    def start(self, *today, **lists):
        """Starts the program on a day with these lists and waits until its entry field has the keyboard."""
        self.menus = MenuWatch()  # first, since a program asks as it starts which events are wanted
        self.addCleanup(self.menus.end)
        self.startElsewhere(Day(list(today), **lists))
        self.app = application("Brimle")
        self.window = self.app.find("window", "Brimle")
        self.waitForFocus(self.add)

    def startElsewhere(self, day, **environment):
        """Starts the program on a day, in an environment in which it may be met by the keyboard alone: other buses than
        those of the tests. Waits until its window has the keyboard."""
        self.day = day
        self._file = Path(os.environ["XDG_DATA_HOME"]) / "Brimle/today.json"
        self._file.parent.mkdir(exist_ok=True)
        self._file.write_text(day_file.encoded(self.day, self.date().isoformat()), encoding="utf-8")
        hands.moveTo(hands.NOWHERE)
        self._messages = desktop.HOME / "messages"
        with self._messages.open("w") as messages:
            self._program = desktop.start(PROGRAM, stderr=messages, env=os.environ | self.environment | environment)
        self.addCleanup(self._end)
        self.waitForKeyboard()

    def waitForKeyboard(self):
        """Until the program's window has it: its field may say before that it has the keyboard."""
        self.expect("Brimle", hands.keyboardWindow, "the window with the keyboard")

    def expectInUse(self):
        """The entry field takes a task, and the day file has it."""
        hands.enter("tea")
        self.expectDay(today=[*self.day.today, "tea"])

    def waitUntilEnded(self):
        """Its exit status, as soon as it has ended by itself with its day file as at the last look."""
        status = self._program.wait(DEADLINE)
        self.assertEqual(self._read(), self.day)
        return status

    def _end(self):
        desktop.end(self._program)
        for variable in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"):
            shutil.rmtree(os.environ[variable])
            os.mkdir(os.environ[variable])
        self.assertNotRegex(self._messages.read_text(), COMPLAINT)

    def until(self, condition, what):
        """Waits until a condition holds."""
        def conditionWhileItRuns():
            if self._program.poll() is not None:
                self.fail(f"the program ended with {self._program.returncode}; it said:\n{self._messages.read_text()}")
            return condition()
        return waitUntil(conditionWhileItRuns, what)

    def expect(self, value, look, what, meanwhile=lambda: None):
        """Waits until a look gives this value, doing something before every look where that is given."""
        seen = None

        def isThere():
            nonlocal seen
            meanwhile()
            seen = look()
            return seen == value
        self.until(isThere, lambda: f"{what} is\n{value}\nwhile it is\n{seen}")

    # The day file.

    def expectDay(self, meanwhile=lambda: None, **lists):
        """Waits until these lists hold these tasks, and the others what they held at the last look."""
        self.day = replace(self.day, **lists)
        self.expect(self.day, self._read, "the day", meanwhile)

    def undoUntil(self, **lists):
        """Undoes step by step until the day is this. A typed change is one step or several, by how fast it is typed, and
        there may be steps that change nothing, such as the leaving of a note that was not touched."""
        self.day = replace(self.day, **lists)
        while (seen := self._read()) != self.day:
            before = self._fileOfLastSave()
            hands.press("ctrl+z")
            self.until(lambda: self._fileOfLastSave() != before, f"a step back to\n{self.day}\nfrom\n{seen}")

    def _fileOfLastSave(self):
        """What is different after every save, for each puts a new file in the place of the old."""
        status = self._file.stat()
        return status.st_ino, status.st_mtime_ns

    def _read(self):
        return day_file.decoded(self._file.read_text(encoding="utf-8"))

    # The rows of the list that is shown: today's, or the archive's.

    def rows(self):
        """The rows in sight, from the top down. The tree keeps them in the order in which they came."""
        shown = self.window.find("list")
        _, top, _, height = shown.box
        seen = [row for row in shown.all("row") if top - 1 <= row.box[1] and row.box[1] + row.box[3] <= top + height + 1]
        return sorted(seen, key=lambda row: row.box[1])

    def row(self, text):
        """The row of a task, when all rows have come to rest."""
        self.waitForRest()
        return self.until(lambda: next((row for row in self.rows() if textOf(row) == text), None),
                          f"there was a row {text!r}")

    def waitForRest(self):
        """Until no row moves from one look to the next, and none of today's list, whose rows move by themselves, lies over
        another or leaves a gap that is to close."""
        last = None

        def atRest():
            nonlocal last
            before, last = last, [row.box for row in self.rows()]
            shown = self.window.find("list")
            ends = [shown.box[1], *(top + height for _, top, _, height in last)]
            stacked = all(abs(top - end) <= 1 for (_, top, _, _), end in zip(last, ends))
            return last == before and (stacked or shown.name == "Archive")
        self.until(atRest, lambda: f"the rows were at rest; they are at {last}")

    def expectRows(self, *texts):
        self.expect(list(texts), lambda: [textOf(row) for row in self.rows()], "the list")

    def expectSelected(self, *texts):
        self.expect(list(texts), lambda: [textOf(row) for row in self.rows() if "selected" in row.name.split(", ")],
                    "what is selected")

    # The keyboard.

    def waitForFocus(self, name, text=None, role="field"):
        """Until the control of this name has the keyboard and, where it is given, holds this text."""
        def focused():
            return any(one.focused and (text is None or one.text == text) for one in self.window.all(role, name))
        self.until(focused, lambda: f"the {role} {name!r} with {text!r} had the keyboard; there are\n{self.window.tree()}")

    def waitUntilClosed(self, name):
        self.until(lambda: not self.window.all("field", name), f"the field {name!r} was closed")

    # Menus and the clipboard.

    def choose(self, control, *path, button=3):
        """Clicks what has a menu, an item of it, of its submenu, and so on."""
        hands.click(control.point(), button)
        for item in path:
            hands.click(self.menus.item(item).point())
        self.menus.waitUntilClosed()

    def copied(self):
        """The text on the clipboard."""
        return subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True, text=True, check=False,
                              timeout=30).stdout
