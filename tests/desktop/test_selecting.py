"""Selecting rows with the mouse and the arrows, and acting on several with a key."""
import unittest

import hands
from case import ADD, DesktopCase, dayKey


class Selecting(DesktopCase):
    def select(self, *clicks):
        for text, held in clicks:
            hands.click(self.row(text).point(), held=held)

    def testClicksWithControlAndShift(self):
        self.start("milk", "bread", "tea", "eggs", "rice")
        for text, held, selected in [
            ("bread", None, ["bread"]),
            ("eggs", "ctrl", ["bread", "eggs"]),
            ("bread", "ctrl", ["eggs"]),
            ("rice", "shift", ["eggs", "rice"]),
            ("bread", "shift", ["bread", "tea", "eggs"]),
            ("milk", None, ["milk"]),
        ]:
            with self.subTest(f"{held} {text}"):
                self.select((text, held))
                self.expectSelected(*selected)
        hands.click(self.window.find("list").point(down=0.9))
        self.expectSelected()

    def testArrowsWalkExtendAndMove(self):
        self.start("milk", "bread", "tea")
        self.select(("milk", None))
        self.expectSelected("milk")
        for key, selected in [("Down", ["bread"]), ("shift+Down", ["bread", "tea"]), ("shift+Up", ["bread"]),
                              ("Up", ["milk"]), ("Up", ["milk"]), ("ctrl+a", ["milk", "bread", "tea"]),
                              ("Down", ["tea"])]:
            with self.subTest(key):
                hands.press(key)
                self.expectSelected(*selected)
        hands.press("ctrl+Up")
        self.expectDay(today=["milk", "tea", "bread"])
        hands.press("ctrl+z")
        self.expectDay(today=["milk", "bread", "tea"])

    def testEscapeGoesBackToTheEntryField(self):
        self.start("milk")
        self.select(("milk", None))
        self.expectSelected("milk")
        hands.press("Escape")
        self.waitForFocus(ADD)
        self.expectSelected()

    def testSpaceTicksAllAndUndoBringsThemBack(self):
        self.start("milk", "bread / rye", "tea", "eggs*")
        self.select(("milk", None), ("bread", "ctrl"), ("eggs", "ctrl"))
        self.expectSelected("milk", "bread", "eggs")
        hands.press("space")
        self.expectDay(today=["tea", "eggs*+#"],
                       archive=[f"{dayKey()} milk+", f"{dayKey()} bread+ / rye", f"{dayKey()} eggs+"])
        self.undoUntil(today=["milk", "bread / rye", "tea", "eggs*"], archive=[])

    def testBackspaceDeletesAllAndUndoBringsThemBack(self):
        self.start("milk", "bread", "tea", "eggs")
        self.select(("bread", None), ("eggs", "shift"))
        self.expectSelected("bread", "tea", "eggs")
        hands.press("BackSpace")
        self.expectDay(today=["milk"])
        hands.press("ctrl+z")
        self.expectDay(today=["milk", "bread", "tea", "eggs"])
        hands.press("ctrl+shift+z")
        self.expectDay(today=["milk"])

    def testADotOfTheSelectionTicksAllOfIt(self):
        self.start("milk", "bread", "tea")
        self.select(("milk", None), ("bread", "ctrl"))
        self.expectSelected("milk", "bread")
        hands.click(self.row("bread").find("button", "Tick").point())
        self.expectDay(today=["tea"], archive=[f"{dayKey()} milk+", f"{dayKey()} bread+"])


if __name__ == "__main__":
    unittest.main()
