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


class DraggingCase(DesktopCase):
    def takeHold(self, text):
        self.place = self.row(text).point()
        hands.takeHold(self.place)
        self.addCleanup(hands.letGo)

    def dragOver(self, end, **lists):
        """Goes on with a drag until the pointer is over the middle of a row, then waits until the day is this."""
        target = self.row(end).point()
        hands.glide(self.place, target)
        self.place = target
        self.expectDay(trembling(target), **lists)

    def cancel(self):
        """Escape, and the button is let go over another row."""
        hands.press("Escape")
        hands.glide(self.place, self.rows()[0].point())
        hands.letGo()

    def selectAndExpect(self, text):
        """The mouse is an ordinary one again: a click selects a row."""
        hands.click(self.row(text).point())
        self.expectSelected(text)


class DraggingRows(DraggingCase):
    def testARowMovesAlongWithThePointer(self):
        self.start("milk", "bread", "tea", "eggs")
        self.takeHold("tea")
        self.dragOver("bread", today=["milk", "tea", "bread", "eggs"])
        self.dragOver("milk", today=["tea", "milk", "bread", "eggs"])
        self.dragOver("bread", today=["milk", "bread", "tea", "eggs"])
        self.dragOver("eggs", today=["milk", "bread", "eggs", "tea"])
        hands.letGo()
        self.selectAndExpect("eggs")
        self.undoUntil(today=["milk", "bread", "tea", "eggs"])

    def testTheListScrollsUnderADragAtItsEdge(self):
        tasks = [f"task {number}" for number in range(20)]
        self.start(*tasks)
        self.takeHold("task 1")
        for down, moved in [(0.97, [tasks[0], *tasks[2:], tasks[1]]), (0.03, [tasks[1], tasks[0], *tasks[2:]])]:
            edge = self.window.find("list").point(down=down)
            hands.glide(self.place, edge)
            self.place = edge
            self.expectDay(trembling(edge), today=moved)
        hands.letGo()
        self.undoUntil(today=tasks)

    def testEscapeEndsADragAndTheNextIsLikeTheFirst(self):
        self.start("milk", "bread", "tea")
        self.takeHold("tea")
        self.dragOver("bread", today=["milk", "tea", "bread"])
        self.cancel()
        self.selectAndExpect("bread")
        self.expectDay()
        self.takeHold("tea")
        self.dragOver("milk", today=["tea", "milk", "bread"])
        hands.letGo()
        self.selectAndExpect("bread")


class DraggingText(DraggingCase):
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
        self.addCleanup(hands.letGo)
        hands.glide(start, end)
        self.until(lambda: self.title() == "Text, answered", "the drag was welcome", trembling(end))
        hands.letGo()
        self.until(lambda: self.field.text == "milk", lambda: f"the text was dropped; there is {self.field.text!r}")
        self.expectDay()

    def dropText(self, place, drag, **lists):
        """Drags the other program's text to a place; it is its first drag, or its second and so on."""
        start = self.field.point(0.06, 0.06)
        hands.takeHold(start)
        self.addCleanup(hands.letGo)
        hands.glide(start, place)
        self.until(lambda: self.title() == f"Text, welcome {drag}", "the drop was welcome", trembling(place))
        hands.letGo()
        self.expectDay(**lists)

    def testATextDroppedOnARowOrBelowBecomesTasks(self):
        self.start("milk")
        self.startOther("bread // rye\ntea")
        self.dropText(self.row("milk").point(), drag=1, today=["milk", "bread / rye", "tea"])
        self.dropText(self.window.find("list").point(down=0.9), drag=2, today=["milk", *["bread / rye", "tea"] * 2])

    def testATextIsTakenAfterARowsDragWasCancelled(self):
        self.start("milk", "bread")
        self.startOther("tea")
        self.takeHold("bread")
        self.dragOver("milk", today=["bread", "milk"])
        self.cancel()
        self.dropText(self.row("milk").point(), drag=1, today=["bread", "milk", "tea"])


if __name__ == "__main__":
    unittest.main()
