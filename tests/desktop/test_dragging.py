"""Dragging rows with the mouse: to another place of the list, to another program, and from there."""
import sys
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


class Dragging(DesktopCase):
    def takeHold(self, place):
        self.place = place
        hands.takeHold(place)
        self.addCleanup(hands.letGo)

    def dragTo(self, place):
        """Goes on with a drag to a place, and gives what keeps it there alive."""
        hands.glide(self.place, place)
        self.place = place
        return trembling(place)

    def dragOver(self, text, **lists):
        """Goes on with a drag until the pointer is over the middle of a row, then waits until the day is this."""
        self.expectDay(self.dragTo(self.row(text).point()), **lists)

    def cancel(self):
        """Escape, and the button is let go over another row."""
        hands.press("Escape")
        self.dragTo(self.rows()[0].point())
        hands.letGo()

    def startOther(self, text):
        """Another program's window with a text in it, all of it selected, beside the program's own."""
        left, top, width, _ = self.window.box
        program = Path(__file__).with_name("text_window.py")
        process = DESKTOP.start(sys.executable, str(program), text, str(left + width + 40), str(top))
        self.addCleanup(DESKTOP.end, process)
        self.other = self.until(lambda: applicationOf(process), "the other program was on the accessibility bus")
        self.field = self.other.find("field")

    def waitForTitle(self, title, meanwhile):
        self.until(lambda: self.other.find("window").name == title, f"the title was {title!r}", meanwhile)

    def testARowMovesAlongWithThePointerUntilEscape(self):
        tasks = ["milk", "bread", "tea", "eggs"]
        self.start(*tasks)
        self.takeHold(self.row("tea").point())
        self.dragOver("bread", today=["milk", "tea", "bread", "eggs"])
        self.dragOver("milk", today=["tea", "milk", "bread", "eggs"])
        self.dragOver("eggs", today=["milk", "bread", "eggs", "tea"])
        hands.letGo()
        self.select("eggs")
        self.undoUntil(today=tasks)
        self.takeHold(self.row("tea").point())
        self.dragOver("bread", today=["milk", "tea", "bread", "eggs"])
        self.cancel()
        self.select("bread")
        self.expectDay()
        self.takeHold(self.row("tea").point())
        self.dragOver("milk", today=["tea", "milk", "bread", "eggs"])

    def testOnlyTheLeftButtonDrags(self):
        self.start("milk", "bread", "tea")
        self.select("tea")
        for button in 2, 3:
            place = self.row("tea").point()
            hands.takeHold(place, button)
            hands.glide(place, self.row("milk").point())
            hands.letGo(button)
        self.takeHold(self.row("tea").point())
        self.dragOver("bread", today=["milk", "tea", "bread"])

    def testTheListScrollsUnderADragAtItsEdge(self):
        tasks = [f"task {number}" for number in range(20)]
        self.start(*tasks)
        self.takeHold(self.row("task 1").point())
        for down, moved in [(0.97, [tasks[0], *tasks[2:], tasks[1]]), (0.03, [tasks[1], tasks[0], *tasks[2:]])]:
            self.expectDay(self.dragTo(self.window.find("list").point(down=down)), today=moved)
        hands.letGo()
        self.undoUntil(today=tasks)

    def testARowsTextGoesIntoAnotherProgram(self):
        self.start("milk / oat", "bread")
        self.startOther("")
        self.takeHold(self.row("milk").point())
        self.waitForTitle("Text, answered", self.dragTo((self.field.point()[0], self.place[1])))
        hands.letGo()
        self.until(lambda: self.field.text == "milk", lambda: f"the text was dropped; there is {self.field.text!r}")
        self.expectDay()

    def testATextDroppedOnARowOrBelowBecomesTasks(self):
        """Also when a row's drag was cancelled before."""
        self.start("milk", "bread")
        self.startOther("rice // red\ntea")
        self.takeHold(self.row("bread").point())
        self.dragOver("milk", today=["bread", "milk"])
        self.cancel()
        dropped, below = ["rice / red", "tea"], self.window.find("list").point(down=0.9)
        for drag, place in enumerate([self.row("milk").point(), below], start=1):
            self.takeHold(self.field.point(0.06, 0.06))
            self.waitForTitle(f"Text, welcome {drag}", self.dragTo(place))
            hands.letGo()
            self.expectDay(today=["bread", "milk", *dropped * drag])
