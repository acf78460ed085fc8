"""The context menu of a row, and its pin."""
import unittest

import hands
from case import EDIT, DesktopCase, dayKey


class ContextMenu(DesktopCase):
    def testItemsActOnTheRow(self):
        self.start("milk", "bread", "tea")
        for text, item, lists in [
            ("bread", "Highlight", {"today": ["milk", "bread^", "tea"]}),
            ("bread", "Remove highlight", {"today": ["milk", "bread", "tea"]}),
            ("tea", "Pin to top", {"today": ["tea!", "milk", "bread"]}),
            ("tea", "Unpin", {"today": ["tea", "milk", "bread"]}),
            ("milk", "Weekdays only", {"today": ["tea", "milk*%", "bread"]}),
            ("milk", "Every day", {"today": ["tea", "milk*", "bread"]}),
            ("milk", "No repeat", {"today": ["tea", "milk", "bread"]}),
            ("tea", "Move to tomorrow", {"today": ["milk", "bread"], "tomorrow": ["tea"]}),
            ("bread", "Delete", {"today": ["milk"]}),
            ("milk", "Tick", {"today": [], "archive": [f"{dayKey()} milk+"]}),
        ]:
            with self.subTest(item):
                self.choose(self.row(text), item)
                self.expectDay(**lists)

    def testAddNoteOpensTheEditorOfANewNote(self):
        self.start("milk / oat")
        self.choose(self.row("milk"), "Add note")
        self.waitForFocus(EDIT, "")
        hands.enter("soy")
        self.expectDay(today=["milk / oat / soy"])

    def testARowOfTheSelectionActsForAllOfIt(self):
        self.start("milk", "bread", "tea")
        hands.click(self.row("milk").point())
        hands.click(self.row("tea").point(), held="ctrl")
        self.expectSelected("milk", "tea")
        self.choose(self.row("tea"), "Move to tomorrow")
        self.expectDay(today=["bread"], tomorrow=["milk", "tea"])
        self.undoUntil(today=["milk", "bread", "tea"], tomorrow=[])

    def testEscapeClosesItAndNothingHappens(self):
        self.start("milk")
        hands.rightClick(self.row("milk").point())
        self.menus.waitUntilOpen()
        hands.press("Escape")
        self.menus.waitUntilClosed()
        hands.enter("tea")
        self.expectDay(today=["milk", "tea"])

    def testThePinOfTheRowUnderThePointerPinsAndUnpins(self):
        self.start("milk", "bread")
        for button, today in [("Pin to top", ["bread!", "milk"]), ("Unpin", ["bread", "milk"])]:
            with self.subTest(button):
                hands.moveTo(self.row("bread").point())
                hands.click(self.row("bread").find("button", button).point())
                self.expectDay(today=today)


if __name__ == "__main__":
    unittest.main()
