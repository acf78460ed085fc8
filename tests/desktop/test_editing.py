"""Editing a task's text in its row, and walking between the text and the notes."""
import unittest

import hands
from case import ADD, EDIT, DesktopCase, dayKey, nextKey


class EditingTexts(DesktopCase):
    def openByDoubleClick(self, text):
        hands.doubleClick(self.row(text).point(across=0.4))
        self.waitForFocus(EDIT, text)

    def testDoubleClickEditsAtTheEndAndReturnCommits(self):
        self.start("milk", "bread")
        self.openByDoubleClick("milk")
        hands.enter(" and tea ")
        self.expectDay(today=["milk and tea", "bread"])
        self.waitUntilClosed(EDIT)
        self.undoUntil(today=["milk", "bread"])

    def testReturnOnTheSelectedRowEditsAndEscapeCommitsToo(self):
        self.start("milk", "bread")
        hands.click(self.row("bread").point())
        self.expectSelected("bread")
        hands.press("Return")
        self.waitForFocus(EDIT, "bread")
        hands.press("Home")
        hands.typeText("rye ")
        hands.press("Escape")
        self.expectDay(today=["milk", "rye bread"])
        self.waitUntilClosed(EDIT)
        self.expectSelected()

    def testClickingElsewhereCommits(self):
        self.start("milk", "bread")
        self.openByDoubleClick("milk")
        hands.typeText("shake")
        hands.click(self.app.find("field", ADD).point())
        self.waitForFocus(ADD)
        self.waitUntilClosed(EDIT)
        self.expectDay(today=["milkshake", "bread"])

    def testClearingTheTextDeletesTheTask(self):
        self.start("milk", "bread")
        self.openByDoubleClick("milk")
        hands.press("ctrl+a", "space", "Return")
        self.expectDay(today=["bread"])
        self.undoUntil(today=["milk", "bread"])

    def testADateAtTheEndSendsTheTaskToThatDayPinned(self):
        self.start("call / ask for her number", "milk", scheduled=[f"{dayKey(1)} eggs"])
        self.openByDoubleClick("call")
        hands.enter(" mum >22/9")
        self.expectDay(today=["milk"],
                       scheduled=[f"{dayKey(1)} eggs", f"{nextKey(9, 22)} call mum! / ask for her number"])
        self.undoUntil(today=["call / ask for her number", "milk"], scheduled=[f"{dayKey(1)} eggs"])


class WalkingTheNotes(DesktopCase):
    def editNotesOf(self, text):
        hands.doubleClick(self.row(text).point(across=0.4, down=0.2))
        self.waitForFocus(EDIT, text)

    def testDownTabAndUpGoFromNoteToNote(self):
        self.start("milk / oat / soy", "bread")
        self.editNotesOf("milk")
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
        self.editNotesOf("milk")
        hands.press("Tab")
        self.expectDay(today=["milk / "])
        hands.press("Up")
        self.expectDay(today=["milk"])
        self.waitForFocus(EDIT, "milk")
        hands.press("Tab")
        self.expectDay(today=["milk / "])
        self.waitForFocus(EDIT, "")
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
