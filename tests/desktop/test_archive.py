"""The archive: past days, and the days to come."""
import hands
from case import ADD, EDIT, DesktopCase, dayKey, nextKey

SEARCH = "Search archive"


class Archive(DesktopCase):
    def openArchive(self):
        hands.click(self.window.find("button", "Archive").point())
        hands.moveTo(hands.NOWHERE)
        self.window.find("list", "Archive")

    def testPastDaysAreSearchedBroughtBackAndDeleted(self):
        past = [f"{dayKey(-1)} milk+ / oat", f"{dayKey(-1)} bread", f"{dayKey(-9)} Oat cake+"]
        self.start("tea", archive=past)
        self.openArchive()
        self.window.find("heading", "Past days")
        hands.click(self.window.find("field", SEARCH).point())
        self.waitForFocus(SEARCH)
        for typed, found in [("OA", ["milk", "Oat cake"]), ("t c", ["Oat cake"]), ("x", [])]:
            with self.subTest(typed):
                hands.typeText(typed)
                self.expectRows(*found)
        self.window.find("label", "No matches")
        hands.press("Escape")
        self.expectRows("milk", "bread", "Oat cake")
        self.select("milk", ctrl=["Oat cake"])
        self.choose(self.row("milk"), "Bring back to today")
        self.expectDay(today=["tea", "milk / oat", "Oat cake"], archive=past[1:2])
        self.expectRows("bread")
        self.undoUntil(today=["tea"], archive=past)
        self.expectRows("milk", "bread", "Oat cake")
        hands.press("Down", "shift+Down")
        self.expectSelected("milk", "bread")
        hands.press("Delete")
        self.expectDay(archive=past[2:])
        hands.press("Escape")
        self.waitForFocus(ADD)

    def testTasksToComeAreEditedInTheirRowsAndByTheirMenu(self):
        """By double clicks, each at another place, so that one is never the continuation of the last."""
        self.start(scheduled=[f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea!"])
        self.openArchive()
        hands.scrollUp(self.window.find("list").point())
        self.window.find("heading", "Future days")
        hands.doubleClick(self.row("eggs").point(0.1, 0.2))
        self.waitForFocus(EDIT, "eggs")
        for key, shown in [("Down", "six"), ("Up", "eggs"), ("Tab", "six"), ("Down", "")]:
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.enter("brown")
        self.expectDay(scheduled=[f"{dayKey(1)} eggs / six / brown", f"{dayKey(1)} tea!"])
        self.waitUntilClosed(EDIT)
        hands.doubleClick(self.row("eggs").point(0.2, 0.2))
        self.waitForFocus(EDIT, "eggs")
        hands.typeText(" and ham")
        hands.press("Escape")
        self.waitUntilClosed(EDIT)
        hands.doubleClick(self.row("eggs").point(0.3, 0.2))
        self.waitForFocus(EDIT, "eggs")
        hands.enter(" >22/9")
        self.expectDay(scheduled=[f"{dayKey(1)} tea!", f"{nextKey(9, 22)} eggs / six / brown"])
        self.choose(self.row("tea"), "Add note")
        self.waitForFocus(EDIT, "")
        hands.enter("green")
        self.waitUntilClosed(EDIT)
        self.choose(self.row("tea"), "Move to today")
        self.expectDay(today=["tea! / green"], scheduled=[f"{nextKey(9, 22)} eggs / six / brown"])
