"""Dragging rows with the mouse: to another place of the list, to another program, and from there."""
import sys
from itertools import cycle
from pathlib import Path

import desktop
import hands
from case import DesktopCase
from controls import application


class Dragging(DesktopCase):
    def takeHold(self, place):
        self.place = place
        hands.takeHold(place)
        self.addCleanup(hands.letGo)

    def dragTo(self, place):
        """Goes on with a drag to a place, and gives what keeps it there alive: a hand that holds something is never quite
        still, and a drag only hears of a place when it is moved."""
        hands.glide(self.place, place)
        self.place = place
        places = cycle([place, (place[0] + 3, place[1])])
        return lambda: hands.moveTo(next(places))

    def dragOver(self, text, **lists):
        """Goes on with a drag until the pointer is over the middle of a row, then waits until the day is this."""
        self.expectDay(self.dragTo(self.row(text).point()), **lists)

    def cancel(self):
        """Escape, and the button is let go over another row."""
        hands.press("Escape")
        self.dragTo(self.rows()[0].point())
        hands.letGo()

    def testARowMovesAlongWithThePointerOfTheLeftButtonUntilEscape(self):
        tasks = ["milk", "bread", "tea", "eggs"]
        self.start(*tasks)
        for button in 2, 3:
            place = self.row("tea").point()
            hands.takeHold(place, button)
            hands.glide(place, self.row("milk").point())
            hands.letGo(button)
        self.takeHold(self.row("tea").point())
        self.dragOver("bread", today=["milk", "tea", "bread", "eggs"])
        self.dragOver("milk", today=["tea", "milk", "bread", "eggs"])
        self.dragOver("eggs", today=["milk", "bread", "eggs", "tea"])
        hands.letGo()
        hands.click(self.row("eggs").point())
        self.expectSelected("eggs")
        self.undoUntil(today=tasks)
        self.takeHold(self.row("tea").point())
        self.dragOver("bread", today=["milk", "tea", "bread", "eggs"])
        self.cancel()
        hands.click(self.row("bread").point())
        self.expectSelected("bread")
        self.expectDay()
        self.takeHold(self.row("tea").point())
        self.dragOver("milk", today=["tea", "milk", "bread", "eggs"])

    def testTheListScrollsUnderADragAtItsEdge(self):
        tasks = [f"task {number}" for number in range(20)]
        self.start(*tasks)
        self.takeHold(self.row("task 1").point())
        for down, moved in [(0.97, [tasks[0], *tasks[2:], tasks[1]]), (0.03, [tasks[1], tasks[0], *tasks[2:]])]:
            self.expectDay(self.dragTo(self.window.find("list").point(down=down)), today=moved)

    def testTextsGoFromProgramToProgram(self):
        """Also when a row's drag was cancelled before."""
        self.start("milk / oat", "bread")
        left, top, width, _ = self.window.box
        program = Path(__file__).with_name("text_window.py")
        process = desktop.start(sys.executable, program, "rice // red\ntea", str(left + width + 40), str(top))
        self.addCleanup(desktop.end, process)
        other = application(program.name)
        window, field = other.find("window"), other.find("field")
        self.takeHold(self.row("bread").point())
        self.dragOver("milk", today=["bread", "milk / oat"])
        self.cancel()
        self.takeHold(field.point(0.06, 0.06))
        self.expect("Text, welcome", lambda: window.name, "the title of the other window",
                    self.dragTo(self.row("milk").point()))
        hands.letGo()
        self.expectDay(today=["bread", "milk / oat", "rice / red", "tea"])
        self.takeHold(self.row("milk").point())
        self.expect("Text, answered", lambda: window.name, "the title of the other window",
                    self.dragTo((field.point()[0], self.place[1])))
        hands.letGo()
        self.until(lambda: "milk" in field.text, "the text was dropped")
        self.expectDay()
