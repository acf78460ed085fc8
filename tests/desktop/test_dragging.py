"""Dragging rows with the mouse: to another place of the list, to another program, and from there."""
import sys
import unittest
from itertools import cycle
from pathlib import Path

import hands
from case import DesktopCase
from controls import applicationOf
from desktop import DESKTOP


def trembling(point):
    """A hand that holds something over a point is never quite still: a drag only hears of a place when it is moved."""
    places = cycle([point, (point[0] + 3, point[1])])
    return lambda: hands.moveTo(next(places))


class DraggingRows(DesktopCase):
    def dragOver(self, end, **lists):
        """Goes on with a drag until the pointer is over the middle of a row, then waits until the day is this."""
        target = self.row(end).point()
        hands.glide(self.place, target)
        self.place = target
        self.expectDay(trembling(target), **lists)

    def takeHold(self, text):
        self.place = self.row(text).point()
        hands.takeHold(self.place)

    def testARowMovesAlongWithThePointer(self):
        self.start("milk", "bread", "tea", "eggs")
        self.takeHold("tea")
        self.dragOver("bread", today=["milk", "tea", "bread", "eggs"])
        self.dragOver("milk", today=["tea", "milk", "bread", "eggs"])
        self.dragOver("milk", today=["milk", "tea", "bread", "eggs"])
        hands.letGo()
        self.selectAndExpect("eggs")
        self.undoUntil(today=["milk", "bread", "tea", "eggs"])

    def testEscapeEndsADragAndNothingIsStuck(self):
        self.start("milk", "bread", "tea")
        self.takeHold("tea")
        self.dragOver("bread", today=["milk", "tea", "bread"])
        hands.press("Escape")
        hands.glide(self.place, self.row("milk").point())
        hands.letGo()
        self.selectAndExpect("bread")
        self.expectDay()
        self.takeHold("tea")
        self.dragOver("milk", today=["tea", "milk", "bread"])
        hands.letGo()
        self.selectAndExpect("bread")

    def selectAndExpect(self, text):
        """The mouse is an ordinary one again: a click selects a row."""
        hands.click(self.row(text).point())
        self.expectSelected(text)


class DraggingText(DesktopCase):
    def startOther(self, text):
        """Another program's window with a text in it, all of it selected, beside the program's own."""
        left, top, width, _ = self.window.box
        program = Path(__file__).with_name("text_window.py")
        process = DESKTOP.start(sys.executable, str(program), text, str(left + width + 40), str(top))
        self.addCleanup(DESKTOP.end, process)
        self.other = self.until(lambda: applicationOf(process), "the other program was on the accessibility bus")
        self.field = self.other.find("field")

    def title(self):
        return self.other.find("window").name

    def testARowsTextGoesIntoAnotherProgram(self):
        self.start("milk / oat", "bread")
        self.startOther("")
        start = self.row("milk").point()
        end = (self.field.point()[0], start[1])
        hands.takeHold(start)
        hands.glide(start, end)
        self.until(lambda: self.title() == "Text, answered", "the drag was welcome", trembling(end))
        hands.letGo()
        self.until(lambda: self.field.text == "milk", lambda: f"the text was dropped; there is {self.field.text!r}")
        self.expectDay()

    def testATextDroppedOnTheListBecomesTasks(self):
        self.start("milk")
        self.startOther("bread // rye\ntea")
        for place, today in [(self.row("milk").point(), ["milk", "bread / rye", "tea"]),
                             (self.window.find("list").point(down=0.9), ["milk", *["bread / rye", "tea"] * 2])]:
            with self.subTest(place):
                start = self.field.point(0.06, 0.06)
                hands.takeHold(start)
                hands.glide(start, place)
                self.until(lambda: self.title() == "Text, welcome", "the drop was welcome", trembling(place))
                hands.letGo()
                self.expectDay(today=today)


if __name__ == "__main__":
    unittest.main()
