"""A Wayland compositor that goes away ends the program, and nothing is lost."""
from desktop import DESKTOP
from weston import WestonCase


class Weston(WestonCase):
    def testACompositorThatGoesAwayEndsTheProgramAndLosesNothing(self):
        self.start("milk")
        self.expectInUse()
        DESKTOP.end(self.weston)
        self.assertNotEqual(self.waitUntilEnded(), 0)
