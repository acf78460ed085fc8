"""Copying rows, and pasting lines."""
import unittest

import hands
from case import ADD, DesktopCase


class Clipboard(DesktopCase):
    def testSelectedRowsAreCopiedAsTheyCanBeTyped(self):
        self.start("milk / oat / ", "bread", "tea! / green")
        hands.click(self.row("tea").point())
        hands.click(self.row("milk").point(), held="ctrl")
        self.expectSelected("milk", "tea")
        hands.press("ctrl+c")
        lines = "milk // oat\ntea // green"
        self.until(lambda: self.copied() == lines, lambda: f"the rows were copied: {self.copied()!r}")

    def testSeveralLinesBecomeTasksWhateverHasTheKeyboard(self):
        self.start("milk")
        self.putOnClipboard("- bread\n  rye\n- tea !\n")
        hands.press("ctrl+v")
        self.expectDay(today=["tea!", "milk", "bread / rye"])
        self.waitForFocus(ADD, text="")
        hands.press("ctrl+z")
        self.expectDay(today=["milk"])
        hands.doubleClick(self.row("milk").point(across=0.2))
        self.waitForFocus("Edit", "milk")
        hands.press("ctrl+v")
        self.expectDay(today=["tea!", "milk", "bread / rye"])

    def testOneLineIsAnOrdinaryPaste(self):
        self.start("milk")
        self.putOnClipboard("oat bread")
        hands.press("ctrl+v")
        self.waitForFocus(ADD, text="oat bread")
        self.expectDay()
        hands.press("Return")
        self.expectDay(today=["milk", "oat bread"])


if __name__ == "__main__":
    unittest.main()
