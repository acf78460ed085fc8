"""A test of the real program: started by `start` on a day prepared for it, used by hand, judged by its day file, its
controls and the clipboard.
"""
import datetime
import os
import shutil
import subprocess
import unittest
from dataclasses import replace
from pathlib import Path

import day_file
import hands
from controls import MenuWatch, applicationOf
from day_file import Day
from desktop import DESKTOP
from waiting import DEADLINE, waitUntil

PROGRAM = os.environ.get("BRIMLE_PROGRAM", Path(__file__).parents[2] / "build/bin/brimle")
ADD = "Add a task"
EDIT = "Edit"


def dayKey(offset=0):
    """The key of today's day, or of one some days later (or, below zero, earlier)."""
    return (datetime.date.today() + datetime.timedelta(days=offset)).isoformat()


def nextKey(month, day):
    """The key of the next such date after today."""
    today = datetime.date.today()
    date = datetime.date(today.year, month, day)
    return (date if date > today else date.replace(year=today.year + 1)).isoformat()


def frame(numbers):
    """The settings in which the window had this place and size."""
    return f"[General]\nNSWindow%20Frame%20TodayWindow={numbers}\n"


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
        self.launch(Day(list(today), **lists))
        self.menus = MenuWatch()
        self.addCleanup(self.menus.end)
        self.app = self.until(lambda: applicationOf(self._program), "the program was on the accessibility bus")
        self.window = self.app.find("window", "Brimle")
        # The field may say that it has the keyboard before its window has.
        self.waitForKeyboard()
        self.waitForFocus(self.add)

    def startElsewhere(self, *today, **environment):
        """Starts the program on a day with this list, in an environment in which it may be met by the keyboard alone:
        other buses than those of the tests. Waits until its window has the keyboard."""
        self.launch(Day(list(today)), **environment)
        self.waitForKeyboard()

    def launch(self, day, **environment):
        """Starts the program on a day and waits for nothing."""
        self.day = day
        self._file = Path(os.environ["XDG_DATA_HOME"]) / "Brimle/today.json"
        self._file.parent.mkdir(exist_ok=True)
        self._file.write_text(day_file.encoded(day, self.date().isoformat()), encoding="utf-8")
        hands.moveTo(hands.NOWHERE)
        self._messages = (DESKTOP.home / "messages").open("w+", encoding="utf-8")
        self._program = DESKTOP.start(PROGRAM, stderr=self._messages, env=os.environ | self.environment | environment)
        self.addCleanup(self._end)

    def waitForKeyboard(self):
        """Until the program's window has it."""
        self.until(lambda: hands.keyboardOwner() == self._program.pid, "the window had the keyboard")

    def expectInUse(self):
        """The entry field takes a task, and the day file has it."""
        hands.enter("tea")
        self.expectDay(today=[*self.day.today, "tea"])

    def quit(self):
        hands.press("ctrl+q")
        self.assertEqual(self.waitUntilEnded(), 0, self._said())

    def waitUntilEnded(self):
        """Its exit status, as soon as it has ended by itself with its day file as at the last look."""
        status = self._program.wait(DEADLINE)
        self.assertEqual(self._read(), self.day)
        return status

    def _said(self):
        self._messages.seek(0)
        return self._messages.read()

    def _end(self):
        DESKTOP.end(self._program)
        messages = self._said()
        self._messages.close()
        for variable in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"):
            for entry in Path(os.environ[variable]).glob("[Bb]rimle"):
                shutil.rmtree(entry) if entry.is_dir() else entry.unlink()
        self.assertNotIn("qrc:", messages, "a view complained")

    def until(self, condition, what, meanwhile=lambda: None):
        """Waits until a condition holds, doing something before every look at it where that is given."""
        def conditionWhileItRuns():
            if self._program.poll() is not None:
                self.fail(f"the program ended with {self._program.returncode}; it said:\n{self._said()}")
            meanwhile()
            return condition()
        return waitUntil(conditionWhileItRuns, what)

    # The day file.

    def expectDay(self, meanwhile=lambda: None, **lists):
        """Waits until these lists hold these tasks, and the others what they held at the last look."""
        self.day = replace(self.day, **lists)
        self.until(lambda: self._read() == self.day, lambda: f"the day is\n{self.day}\nwhile it is\n{self._read()}",
                   meanwhile)

    def _read(self):
        return day_file.decoded(self._file.read_text(encoding="utf-8"))

    # The rows of the list that is shown: today's, or the archive's.

    def rows(self):
        """The rows in sight, from the top down. The tree keeps them in the order in which they came."""
        shown = self.window.find("list")
        _, top, _, height = shown.box
        placed = [(row.box, row) for row in shown.all("row")]
        seen = [(box[1], row) for box, row in placed if top - 1 <= box[1] and box[1] + box[3] <= top + height + 1]
        return [row for _, row in sorted(seen, key=lambda one: one[0])]

    def row(self, text):
        """The row of a task, when all rows have come to rest."""
        self.waitForRest()
        found = self.until(lambda: [row for row in self.rows() if textOf(row) == text],
                           lambda: f"there was a row {text!r}; there are {[row.name for row in self.rows()]}")
        self.assertEqual(len(found), 1)
        return found[0]

    def waitForRest(self):
        """Until no row moves from one look to the next, and none lies over another or leaves a gap that is to close."""
        last = None

        def atRest():
            nonlocal last
            before, last = last, [row.box for row in self.rows()]
            return last == before and self._stacked(last)
        self.until(atRest, lambda: f"the rows were at rest; they are at {last}")

    def _stacked(self, boxes):
        """Whether the rows of today's list stand one below the other from its top. The archive's never move alone."""
        shown = self.window.find("list")
        top = shown.box[1]
        for _, y, _, height in boxes if shown.name == "Task list" else []:
            if abs(y - top) > 1:
                return False
            top = y + height
        return True

    def expectRows(self, *texts):
        self.until(lambda: [textOf(row) for row in self.rows()] == list(texts),
                   lambda: f"the rows were {texts}; they are {[row.name for row in self.rows()]}")

    def selected(self):
        """The texts of the selected rows."""
        return [textOf(row) for row in self.rows() if "selected" in row.name.split(", ")]

    def expectSelected(self, *texts):
        self.until(lambda: self.selected() == list(texts), lambda: f"{texts} were selected; {self.selected()} are")

    def select(self, text, **more):
        """Clicks a row, then others with a key held: `ctrl=["milk", "tea"]`."""
        hands.click(self.row(text).point())
        for held, texts in more.items():
            for other in texts:
                hands.click(self.row(other).point(), held=held)
        clicked = {text}.union(*more.values())
        self.until(lambda: clicked <= set(self.selected()), lambda: f"{clicked} were selected; {self.selected()} are")

    # The keyboard.

    def waitForFocus(self, name, text=None, role="field"):
        """Until the control of this name has the keyboard and, where it is given, holds this text."""
        def focused():
            controls = [control for control in self.window.all(role, name) if control.focused]
            return controls and (text is None or controls[0].text == text)
        self.until(focused, lambda: f"the {role} {name!r} had the keyboard"
                   + ("" if text is None else f" and held {text!r}") + f"; there are\n{self.window.tree()}")

    def waitUntilClosed(self, name):
        self.until(lambda: not self.window.all("field", name), f"the field {name!r} was closed")

    def undoUntil(self, **lists):
        """Undoes step by step until the day is this: a typed change is one step or several, by how fast it is typed."""
        self.day = replace(self.day, **lists)
        while self._read() != self.day:
            before = self._stamp()
            hands.press("ctrl+z")
            self.until(lambda: self._stamp() != before, lambda: f"a step back to\n{self.day}\nfrom\n{self._read()}")

    def _stamp(self):
        status = self._file.stat()
        return status.st_ino, status.st_mtime_ns

    # Menus and the clipboard.

    def choose(self, row, item):
        """Opens the context menu of a row and clicks an item of it."""
        hands.rightClick(row.point())
        hands.click(self.menus.item(item).point())
        self.menus.waitUntilClosed()

    def chooseFromMainMenu(self, *path):
        """Opens the program's menu and clicks an item of it, of its submenu, and so on."""
        hands.click(self.window.find("button", "Menu").point())
        for item in path:
            hands.click(self.menus.item(item).point())
        self.menus.waitUntilClosed()

    def copied(self):
        """The text on the clipboard."""
        answer = subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True, check=False,
                                timeout=30)
        return answer.stdout.decode()

    def expectCopied(self, text):
        self.until(lambda: self.copied() == text, lambda: f"the text {text!r} was copied; it is {self.copied()!r}")

    def putOnClipboard(self, text):
        subprocess.run(["xclip", "-selection", "clipboard", "-in"], input=text.encode(), check=True, timeout=30,
                       stderr=DESKTOP.log)
        self.expectCopied(text)
