"""The program on Wayland: a day by the keyboard alone, beside a portal that never answers."""
import hands
from case import dayKey
from neighbours import Neighbour
from waiting import waitUntil
from weston import WestonCase


class Wayland(WestonCase):
    def testADayByTheKeyboardAlone(self):
        portal = Neighbour("org.freedesktop.portal.Desktop")
        self.addCleanup(portal.end)
        self.start("old", "tea")
        waitUntil(lambda: {"ReadAll", "Register"} <= set(portal.calls), lambda: f"it was asked; {portal.calls} were")
        hands.enter("milk // oat")
        self.expectDay(today=["old", "tea", "milk / oat"])
        hands.press("shift+Tab", "Up", "Up")
        self.expectSelected("tea")
        hands.press("space")
        self.expectDay(today=["old", "milk / oat"], archive=[f"{dayKey()} tea+"])
        hands.press("shift+F6", "shift+F6")
        self.waitForFocus(self.window.find("heading").name, role="heading")
        for height in 34, 400:
            hands.press("Return")
            self.until(lambda: self.window.box[3] == height, lambda: f"the window was {height} high; it is {self.window.box}")
        self.quit()
