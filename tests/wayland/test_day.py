"""The program on Wayland: a day by the keyboard alone, and compositors that offer little or go away."""
import unittest

import hands
from case import ADD, DesktopCase, dayKey
from desktop import DESKTOP
from neighbours import Neighbour
from waiting import waitUntil


class Wayland(DesktopCase):
    def focused(self, role):
        return [control.name for control in self.window.all(role) if control.focused]

    def testADayByTheKeyboardAlone(self):
        self.start("old", "tea")
        hands.enter("milk // oat")
        self.expectDay(today=["old", "tea", "milk / oat"])
        hands.press("shift+Tab", "Up", "Up")
        self.expectSelected("tea")
        hands.press("space")
        self.expectDay(today=["old", "milk / oat"], archive=[f"{dayKey()} tea+"])
        self.until(lambda: self.focused("heading"), "the title had the keyboard", meanwhile=lambda: hands.press("F6"))
        hands.press("Return")
        self.until(lambda: self.window.box[3] == 34, lambda: f"the window was folded; it is {self.window.box}")
        hands.press("Return")
        self.until(lambda: self.window.box[3] == 400, lambda: f"the window was unfolded; it is {self.window.box}")
        hands.press("ctrl+q")
        self.assertEqual(self.waitUntilEnded(), 0)
        self.assertEqual(self._read(), self.day)

    def testAPortalThatNeverAnswers(self):
        portal = Neighbour("org.freedesktop.portal.Desktop")
        self.addCleanup(portal.end)
        self.start("milk")
        waitUntil(lambda: {"ReadAll", "Register"} <= set(portal.calls), lambda: f"it was asked; {portal.calls} were")
        hands.enter("tea")
        self.expectDay(today=["milk", "tea"])


if __name__ == "__main__":
    unittest.main()
