"""Editing a task's text and its notes in its row, and walking between them."""
import unittest

import hands
from case import ADD, EDIT, DesktopCase, nextKey


class Editing(DesktopCase):
    def openByDoubleClick(self, text):
        hands.doubleClick(self.row(text).point(across=0.4, down=0.2))
        self.waitForFocus(EDIT, text)

    def testDoubleClickEditsAtTheEndAndReturnCommits(self):
        self.start("call / ask for her number", "milk")
        self.openByDoubleClick("call")
        hands.enter(" mum ")
        self.expectDay(today=["call mum / ask for her number", "milk"])
        self.waitUntilClosed(EDIT)
        self.openByDoubleClick("call mum")
        hands.enter(" >22/9")
        self.expectDay(today=["milk"], scheduled=[f"{nextKey(9, 22)} call mum! / ask for her number"])
        self.undoUntil(today=["call / ask for her number", "milk"], scheduled=[])

    def testReturnEditsTheSelectedRowAndEscapeOrAClickElsewhereCommits(self):
        self.start("milk", "bread")
        self.select("bread")
        hands.press("Return")
        self.waitForFocus(EDIT, "bread")
        hands.press("Home")
        hands.typeText("rye ")
        hands.press("Escape")
        self.expectDay(today=["milk", "rye bread"])
        self.waitUntilClosed(EDIT)
        self.expectSelected()
        self.openByDoubleClick("milk")
        hands.typeText("shake")
        hands.click(self.window.find("field", ADD).point())
        self.waitForFocus(ADD)
        self.waitUntilClosed(EDIT)
        self.expectDay(today=["milkshake", "rye bread"])

    def testKeysWalkFromNoteToNoteAndOutOfTheLast(self):
        self.start("milk / oat / soy", "bread")
        self.openByDoubleClick("milk")
        for key, shown in [("Down", "oat"), ("Tab", "soy"), ("Up", "oat"), ("Up", "milk"), ("Tab", "oat")]:
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.typeText("ly ")
        hands.press("Down")
        self.waitForFocus(EDIT, "soy")
        self.expectDay(today=["milk / oatly / soy", "bread"])
        hands.press("Down")
        self.waitUntilClosed(EDIT)

    def testTabMakesTheFirstNoteAndUpDropsItWhileBlank(self):
        self.start("milk")
        self.openByDoubleClick("milk")
        for key, note, shown in [("Tab", " / ", ""), ("Up", "", "milk"), ("Tab", " / ", "")]:
            hands.press(key)
            self.expectDay(today=["milk" + note])
            self.waitForFocus(EDIT, shown)
        hands.enter("oat")
        self.expectDay(today=["milk / oat"])
        self.waitUntilClosed(EDIT)

    def testDoubleClickOpensANoteAndClearingRemovesIt(self):
        self.start("milk / oat / soy")
        hands.doubleClick(self.row("milk").find("label", "Note: soy").point(across=0.05))
        self.waitForFocus(EDIT, "soy")
        hands.press("ctrl+a", "BackSpace", "Escape")
        self.expectDay(today=["milk / oat"])
        self.waitUntilClosed(EDIT)
        self.undoUntil(today=["milk / oat / soy"])


if __name__ == "__main__":
    unittest.main()
