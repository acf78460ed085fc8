"""A test of the real program: started by `start` on a day prepared for it, used by hand, judged by its day file, its
controls and the clipboard.
"""
import datetime
import os
import subprocess
import unittest
from dataclasses import replace
from pathlib import Path

import day_file
import hands
from controls import MenuWatch, applicationOf
from day_file import Day
from desktop import DESKTOP
from waiting import waitUntil

PROGRAM = os.environ.get("BRIMLE_PROGRAM", str(Path(__file__).parents[2] / "build/bin/brimle"))
PICTURES = Path(PROGRAM).parents[1] / "desktop-tests"
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


class DesktopCase(unittest.TestCase):
    def start(self, *today, **lists):
        """Starts the program on a day with these lists and waits until its entry field has the keyboard."""
        self.day = Day(list(today), **lists)
        self._folder = Path(os.environ["XDG_DATA_HOME"]) / "Brimle"
        self._file = self._folder / "today.json"
        self._folder.mkdir(exist_ok=True)
        self._file.write_text(day_file.encoded(self.day, dayKey()), encoding="utf-8")
        hands.moveTo(hands.NOWHERE)
        self._messages = (DESKTOP.home / "messages").open("w+", encoding="utf-8")
        self._program = DESKTOP.start(PROGRAM, stderr=self._messages)
        self.addCleanup(self._end)
        self.app = applicationOf(self._program)
        self.menus = MenuWatch()
        self.window = self.app.find("window", "Brimle")
        self.waitForFocus(ADD)

    def _end(self):
        DESKTOP.end(self._program)
        self.menus.end()
        self._messages.seek(0)
        messages = self._messages.read()
        self._messages.close()
        for path in self._folder.rglob("*"):
            if path.is_file():
                path.unlink()
        self.assertNotIn("qrc:", messages, "a view complained")

    def until(self, condition, what):
        def conditionWhileItRuns():
            self.assertIsNone(self._program.poll(), "the program ended")
            return condition()
        try:
            return waitUntil(conditionWhileItRuns, what)
        except AssertionError:
            DESKTOP.picture(PICTURES / f"{self.id()}.png")
            raise

    # The day file.

    def expectDay(self, **lists):
        """Waits until these lists hold these tasks, and the others what they held at the last look."""
        self.day = replace(self.day, **lists)
        self.until(lambda: self._read() == self.day, lambda: f"the day is\n{self.day}\nwhile it is\n{self._read()}")

    def _read(self):
        return day_file.decoded(self._file.read_text(encoding="utf-8"))

    # Today's list.

    def rows(self):
        """The rows from the top down. The tree keeps them in the order in which they came."""
        return sorted(self.window.all("row"), key=lambda row: row.box[1])

    def row(self, text):
        """The row of a task, when all rows have come to rest."""
        self.waitForRest()
        return self.window.find("row", lambda name: name == text or name.startswith(text + ", "))

    def waitForRest(self):
        """Until the rows stand one below the other from the top of their list, twice in succession."""
        last = None

        def atRest():
            nonlocal last
            before, last = last, [row.box for row in self.rows()]
            return last == before and self._stacked(last)
        self.until(atRest, lambda: f"the rows were at rest; they are at {last}")

    def _stacked(self, boxes):
        _, top, _, _ = self.window.find("list").box
        for _, y, _, height in boxes:
            if abs(y - top) > 1:
                return False
            top = y + height
        return True

    def selected(self):
        """The texts of the selected rows."""
        return [row.name.split(", ")[0] for row in self.rows() if "selected" in row.name.split(", ")]

    def expectSelected(self, *texts):
        self.until(lambda: self.selected() == list(texts), lambda: f"{texts} were selected; {self.selected()} are")

    # The keyboard.

    def waitForFocus(self, name, text=None):
        """The field of this name, with this text where one is given, as soon as it has the keyboard."""
        def focused():
            fields = [field for field in self.window.all("field", name) if field.focused]
            return fields[0] if fields and text in (None, fields[0].text) else None
        return self.until(focused, f"the field {name!r} had the keyboard" + ("" if text is None else f" and held {text!r}"))

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
        hands.click(self.menus.menu().find("menu item", item).point())
        self.menus.waitUntilClosed()

    def copied(self):
        """The text on the clipboard."""
        answer = subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True, check=False, timeout=30)
        return answer.stdout.decode()

    def putOnClipboard(self, text):
        subprocess.run(["xclip", "-selection", "clipboard", "-in"], input=text.encode(), check=True, timeout=30)
        self.until(lambda: self.copied() == text, "the text was on the clipboard")
