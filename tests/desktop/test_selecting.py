"""Selecting rows with the mouse and the arrows, and acting on several at once."""
import unittest

import hands
from case import ADD, DesktopCase, dayKey


class Selecting(DesktopCase):
    def testClicksWithControlAndShift(self):
        self.start("milk", "bread", "tea", "eggs", "rice")
        for text, held, selected in [
            ("bread", None, ["bread"]),
            ("eggs", "ctrl", ["bread", "eggs"]),
            ("bread", "ctrl", ["eggs"]),
            ("rice", "shift", ["eggs", "rice"]),
            ("milk", None, ["milk"]),
        ]:
            with self.subTest(f"{held} {text}"):
                hands.click(self.row(text).point(), held=held)
                self.expectSelected(*selected)
        hands.click(self.window.find("list").point(down=0.9))
        self.expectSelected()

    def testArrowsWalkExtendAndMoveAndEscapeLeaves(self):
        self.start("milk", "bread", "tea")
        self.select("milk")
        for key, selected in [("Down", ["bread"]), ("shift+Down", ["bread", "tea"]), ("Up", ["bread"]),
                              ("ctrl+a", ["milk", "bread", "tea"]), ("Down", ["tea"])]:
            with self.subTest(key):
                hands.press(key)
                self.expectSelected(*selected)
        hands.press("ctrl+Up")
        self.expectDay(today=["milk", "tea", "bread"])
        hands.press("Escape")
        self.waitForFocus(ADD)
        self.expectSelected()

    def testKeysAndADotActOnAllAndUndoBringsThemBack(self):
        tasks = ["milk", "bread / rye", "tea", "eggs*"]
        ticked = [f"{dayKey()} milk+", f"{dayKey()} bread+ / rye", f"{dayKey()} eggs+"]
        self.start(*tasks)
        for what, act, lists in [
            ("space", lambda: hands.press("space"), {"today": ["tea", "eggs*+#"], "archive": ticked}),
            ("a dot", lambda: hands.click(self.row("bread").find("button", "Tick").point()),
             {"today": ["tea", "eggs*+#"], "archive": ticked}),
            ("Backspace", lambda: hands.press("BackSpace"), {"today": ["tea"]}),
        ]:
            with self.subTest(what):
                hands.press("Escape")
                self.expectSelected()
                self.select("milk", ctrl=["bread", "eggs"])
                act()
                self.expectDay(**lists)
                self.undoUntil(today=tasks, archive=[])


if __name__ == "__main__":
    unittest.main()
