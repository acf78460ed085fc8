"""The archive: past days, and the days to come."""
import hands
from case import ADD, EDIT, DesktopCase, dayKey

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
        hands.click(self.window.find("field", SEARCH).point())
        self.waitForFocus(SEARCH)
        for typed, found in [("OA", ["milk", "Oat cake"]), ("t c", ["Oat cake"]), ("x", [])]:
            hands.typeText(typed)
            self.expectRows(*found)
        self.window.find("label", "No matches")
        hands.press("Escape")
        self.expectRows("milk", "bread", "Oat cake")
        hands.click(self.row("milk").point())
        hands.click(self.row("Oat cake").point(), held="ctrl")
        self.expectSelected("milk", "Oat cake")
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
        for across, typed, key, scheduled in [
            (0.1, " and ham", "Escape", [f"{dayKey(1)} eggs / six", f"{dayKey(1)} tea!"]),
            (0.2, f" >{dayKey(40)}", "Return", [f"{dayKey(1)} tea!", f"{dayKey(40)} eggs / six"]),
        ]:
            hands.doubleClick(self.row("eggs").point(across, 0.2))
            self.waitForFocus(EDIT, "eggs")
            hands.typeText(typed)
            hands.press(key)
            self.waitUntilClosed(EDIT)
            self.expectDay(scheduled=scheduled)
        self.choose(self.row("tea"), "Add note")
        self.waitForFocus(EDIT, "")
        for key, shown in [("Up", "tea"), ("Down", ""), ("Up", "tea"), ("Tab", "")]:
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.enter("green")
        self.waitUntilClosed(EDIT)
        self.choose(self.row("tea"), "Move to today")
        self.expectDay(today=["tea! / green"], scheduled=[f"{dayKey(40)} eggs / six"])
