"""Typing tasks into the entry field."""
import unittest

import hands
from case import ADD, DesktopCase, nextKey


class Adding(DesktopCase):
    def testReturnAddsWhatTheEntryLanguageSays(self):
        self.start("old", "pinned!")
        for typed, lists in [
            ("milk", {"today": ["old", "pinned!", "milk"]}),
            ("bread // rye // sliced", {"today": ["old", "pinned!", "milk", "bread / rye / sliced"]}),
            ("rent !", {"today": ["rent!", "old", "pinned!", "milk", "bread / rye / sliced"]}),
            ("tea *", {"today": ["rent!", "old", "pinned!", "milk", "bread / rye / sliced", "tea*"]}),
            ("call mum >22/9", {"scheduled": [f"{nextKey(9, 22)} call mum!"]}),
        ]:
            with self.subTest(typed):
                hands.enter(typed)
                self.expectDay(**lists)

    def testAltReturnAddsForTomorrow(self):
        self.start()
        hands.typeText("milk // oat")
        hands.press("alt+Return")
        self.expectDay(tomorrow=["milk / oat"])
        self.waitForFocus(ADD, text="")

    def testShiftReturnBreaksTheLineAndReturnAddsAllLines(self):
        self.start()
        hands.typeText("milk")
        hands.press("shift+Return")
        hands.typeText("  oat")
        hands.press("shift+Return")
        hands.typeText("bread")
        self.waitForFocus(ADD, text="milk\n  oat\nbread")
        hands.press("Return")
        self.expectDay(today=["milk / oat", "bread"])

    def testBlanksAddNothing(self):
        self.start("old")
        hands.press("space", "Return")
        hands.enter("milk")
        self.expectDay(today=["old", "milk"])

    def testAnAddedTaskCanBeTakenBackAndAddedAgain(self):
        self.start("old")
        hands.enter("milk")
        self.expectDay(today=["old", "milk"])
        hands.press("ctrl+z")
        self.expectDay(today=["old"])
        hands.press("ctrl+shift+z")
        self.expectDay(today=["old", "milk"])


if __name__ == "__main__":
    unittest.main()
