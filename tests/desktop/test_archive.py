"""The archive: past days, and the days to come."""
import unittest

import hands
from case import ADD, EDIT, DesktopCase, dayKey, nextKey

SEARCH = "Search archive"


class ArchiveCase(DesktopCase):
    def openArchive(self):
        hands.click(self.window.find("button", "Archive").point())
        hands.moveTo(hands.NOWHERE)
        self.archive = self.window.find("list", "Archive")


class PastDays(ArchiveCase):
    def testSearchLooksThroughTextsAndNotes(self):
        self.start(archive=[f"{dayKey(-1)} milk+ / oat", f"{dayKey(-1)} bread", f"{dayKey(-9)} Oat cake+"])
        self.openArchive()
        self.window.find("heading", "Past days")
        self.window.find("heading", "Yesterday")
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

    def testSelectedEntriesAreBroughtBack(self):
        self.start("tea", archive=[f"{dayKey(-1)} milk+ / oat", f"{dayKey(-1)} bread", f"{dayKey(-2)} eggs+"])
        self.openArchive()
        hands.click(self.row("milk").point())
        hands.click(self.row("eggs").point(), held="ctrl")
        self.expectSelected("milk", "eggs")
        self.choose(self.row("eggs"), "Bring back to today")
        self.expectDay(today=["tea", "milk / oat", "eggs"], archive=[f"{dayKey(-1)} bread"])
        self.expectRows("bread")
        hands.press("ctrl+z")
        self.expectDay(today=["tea"],
                       archive=[f"{dayKey(-1)} milk+ / oat", f"{dayKey(-1)} bread", f"{dayKey(-2)} eggs+"])

    def testKeysSelectDeleteAndLeave(self):
        self.start(archive=[f"{dayKey(-1)} milk+", f"{dayKey(-1)} bread", f"{dayKey(-2)} eggs+"])
        self.openArchive()
        self.expectRows("milk", "bread", "eggs")
        hands.press("Down", "shift+Down")
        self.expectSelected("milk", "bread")
        hands.press("Delete")
        self.expectDay(archive=[f"{dayKey(-2)} eggs+"])
        hands.press("ctrl+z")
        self.expectDay(archive=[f"{dayKey(-1)} milk+", f"{dayKey(-1)} bread", f"{dayKey(-2)} eggs+"])
        hands.press("ctrl+a")
        self.expectSelected("milk", "bread", "eggs")
        hands.press("Escape")
        self.expectSelected()
        hands.press("Escape")
        self.waitForFocus(ADD)


class DaysToCome(ArchiveCase):
    def openFuture(self):
        self.openArchive()
        hands.scrollUp(self.archive.point())
        self.window.find("heading", "Future days")

    def edit(self, text, across):
        """By double click, each time at another place, so that one is never the continuation of the last."""
        hands.doubleClick(self.row(text).point(across, 0.2))
        self.waitForFocus(EDIT, text)

    def testReturnCommitsAndEscapeDropsWhatWasTyped(self):
        self.start(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea"])
        self.openFuture()
        self.edit("eggs", across=0.02)
        hands.typeText(" and ham")
        self.waitForFocus(EDIT, "eggs and ham")
        hands.press("Escape")
        self.waitUntilClosed(EDIT)
        self.expectDay()
        self.edit("eggs", across=0.1)
        hands.enter(" and ham")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs and ham / six", f"{dayKey(1)} tea"])
        self.waitUntilClosed(EDIT)
        self.edit("eggs and ham", across=0.2)
        hands.enter(" >22/9")
        moved = [f"{dayKey(1)} tea", f"{nextKey(9, 22)} eggs and ham / six"]
        self.expectDay(scheduled=moved)
        self.undoUntil(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea"])

    def testArrowsWalkFromTheTextToItsNotesAndBack(self):
        self.start(scheduled=[f"{dayKey(1)} eggs / six"])
        self.openFuture()
        self.edit("eggs", across=0.02)
        for key, shown in [("Down", "six"), ("Up", "eggs"), ("Tab", "six"), ("Down", "")]:
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.enter("brown")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs / six / brown"])

    def testTheMenuAddsANoteMovesToTodayAndDeletes(self):
        self.start("milk", scheduled=[f"{dayKey(1)} eggs", f"{dayKey(1)} tea!", f"{dayKey(2)} rice"])
        self.openFuture()
        self.choose(self.row("eggs"), "Add note")
        self.waitForFocus(EDIT)
        hands.enter("six")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea!", f"{dayKey(2)} rice"])
        self.choose(self.row("tea"), "Move to today")
        self.expectDay(today=["tea!", "milk"], scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(2)} rice"])
        self.choose(self.row("rice"), "Delete")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs / six"])
        self.undoUntil(today=["milk"], scheduled=[f"{dayKey(1)} eggs", f"{dayKey(1)} tea!", f"{dayKey(2)} rice"])


if __name__ == "__main__":
    unittest.main()
