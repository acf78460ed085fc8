"""The context menu of a row, and its pin."""
import unittest

import hands
from case import EDIT, DesktopCase


class ContextMenu(DesktopCase):
    def testItemsActOnTheRow(self):
        self.start("milk", "bread / rye", "tea")
        for text, item, lists in [
            ("bread", "Highlight", {"today": ["milk", "bread^ / rye", "tea"]}),
            ("milk", "Weekdays only", {"today": ["milk*%", "bread^ / rye", "tea"]}),
            ("tea", "Move to tomorrow", {"today": ["milk*%", "bread^ / rye"], "tomorrow": ["tea"]}),
        ]:
            with self.subTest(item):
                self.choose(self.row(text), item)
                self.expectDay(**lists)
        self.choose(self.row("bread"), "Add note")
        self.waitForFocus(EDIT, "")
        hands.enter("sliced")
        self.expectDay(today=["milk*%", "bread^ / rye / sliced"])

    def testEscapeClosesItAndNothingHappens(self):
        self.start("milk")
        hands.rightClick(self.row("milk").point())
        self.menus.waitUntilOpen()
        hands.press("Escape")
        self.menus.waitUntilClosed()
        self.expectInUse()

    def testThePinOfTheRowUnderThePointerPinsAndUnpins(self):
        self.start("milk", "bread")
        for button, today in [("Pin to top", ["bread!", "milk"]), ("Unpin", ["bread", "milk"])]:
            with self.subTest(button):
                hands.moveTo(self.row("bread").point())
                hands.click(self.row("bread").find("button", button).point())
                self.expectDay(today=today)


if __name__ == "__main__":
    unittest.main()
