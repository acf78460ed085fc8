"""Tasks that come into the day from outside: typed into the entry field, pasted; and rows that are copied."""
import unittest

import hands
from case import ADD, EDIT, DesktopCase, nextKey


class Adding(DesktopCase):
    def testReturnAddsWhatTheEntryLanguageSays(self):
        self.start("old")
        for typed, lists in [
            ("milk // rye", {"today": ["old", "milk / rye"]}),
            (" ", {}),
            ("rent !", {"today": ["rent!", "old", "milk / rye"]}),
            ("call mum >22/9", {"scheduled": [f"{nextKey(9, 22)} call mum!"]}),
        ]:
            with self.subTest(typed):
                hands.enter(typed)
                self.expectDay(**lists)

    def testAPasteOfSeveralLinesBecomesTasksWhateverHasTheKeyboard(self):
        self.start("milk")
        self.putOnClipboard("- bread\n  rye\n- tea !\n")
        hands.press("ctrl+v")
        self.expectDay(today=["tea!", "milk", "bread / rye"])
        self.waitForFocus(ADD, text="")
        self.undoUntil(today=["milk"])
        hands.doubleClick(self.row("milk").point(across=0.2))
        self.waitForFocus(EDIT, "milk")
        hands.press("ctrl+v")
        self.expectDay(today=["tea!", "milk", "bread / rye"])

    def testAPasteOfOneLineIsAnOrdinaryOne(self):
        self.start("milk")
        self.putOnClipboard("oat bread")
        hands.press("ctrl+v")
        self.waitForFocus(ADD, text="oat bread")
        self.expectDay()

    def testSelectedRowsAreCopiedAsTheyCanBeTyped(self):
        self.start("milk / oat / ", "bread", "tea! / green")
        self.select("tea", ctrl=["milk"])
        hands.press("ctrl+c")
        self.expectCopied("milk // oat\ntea // green")


if __name__ == "__main__":
    unittest.main()
