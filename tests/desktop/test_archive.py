"""The archive: past days, and the days to come."""
import unittest

import hands
from case import ADD, EDIT, DesktopCase, dayKey, nextKey

SEARCH = "Search archive"


class Archive(DesktopCase):
    def openArchive(self):
        hands.click(self.window.find("button", "Archive").point())
        hands.moveTo(hands.NOWHERE)
        self.window.find("list", "Archive")

    def openFuture(self):
        self.openArchive()
        hands.scrollUp(self.window.find("list").point())
        self.window.find("heading", "Future days")

    def testSearchLooksThroughTextsAndNotes(self):
        self.start(archive=[f"{dayKey(-1)} milk+ / oat", f"{dayKey(-1)} bread", f"{dayKey(-9)} Oat cake+"])
        self.openArchive()
        self.window.find("heading", "Past days")
        self.expectRows("milk", "bread", "Oat cake")
        hands.click(self.window.find("field", SEARCH).point())
        self.waitForFocus(SEARCH)
        for typed, found in [("OA", ["milk", "Oat cake"]), ("t c", ["Oat cake"]), ("x", [])]:
            with self.subTest(typed):
                hands.typeText(typed)
                self.expectRows(*found)
        self.window.find("label", "No matches")
        hands.press("Escape")
        self.expectRows("milk", "bread", "Oat cake")
        hands.press("Escape")
        self.waitForFocus(ADD)

    def testSelectedEntriesAreBroughtBackOrDeleted(self):
        past = [f"{dayKey(-1)} milk+ / oat", f"{dayKey(-1)} bread", f"{dayKey(-2)} eggs+"]
        self.start("tea", archive=past)
        self.openArchive()
        self.select("milk", ctrl=["eggs"])
        self.choose(self.row("eggs"), "Bring back to today")
        self.expectDay(today=["tea", "milk / oat", "eggs"], archive=past[1:2])
        self.expectRows("bread")
        self.undoUntil(today=["tea"], archive=past)
        self.expectRows("milk", "bread", "eggs")
        hands.press("Down", "shift+Down")
        self.expectSelected("milk", "bread")
        hands.press("Delete")
        self.expectDay(archive=past[2:])

    def testATaskToComeIsEditedInItsRow(self):
        """By double clicks, each at another place, so that one is never the continuation of the last."""
        self.start(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea"])
        self.openFuture()
        hands.doubleClick(self.row("eggs").point(0.02, 0.2))
        self.waitForFocus(EDIT, "eggs")
        hands.typeText(" and ham")
        self.waitForFocus(EDIT, "eggs and ham")
        hands.press("Escape")
        self.waitUntilClosed(EDIT)
        self.expectDay()
        hands.doubleClick(self.row("eggs").point(0.1, 0.2))
        for key, shown in [("Down", "six"), ("Up", "eggs"), ("Tab", "six"), ("Down", "")]:
            self.waitForFocus(EDIT)
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.enter("brown")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs / six / brown", f"{dayKey(1)} tea"])
        self.waitUntilClosed(EDIT)
        hands.doubleClick(self.row("eggs").point(0.2, 0.2))
        self.waitForFocus(EDIT, "eggs")
        hands.enter(" >22/9")
        self.expectDay(scheduled=[f"{dayKey(1)} tea", f"{nextKey(9, 22)} eggs / six / brown"])
        self.undoUntil(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea"])

    def testTheMenuOfATaskToCome(self):
        self.start("milk", scheduled=[f"{dayKey(1)} eggs", f"{dayKey(1)} tea!"])
        self.openFuture()
        self.choose(self.row("eggs"), "Add note")
        self.waitForFocus(EDIT)
        hands.enter("six")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea!"])
        self.choose(self.row("tea"), "Move to today")
        self.expectDay(today=["tea!", "milk"], scheduled=[f"{dayKey(1)} eggs / six"])


if __name__ == "__main__":
    unittest.main()
