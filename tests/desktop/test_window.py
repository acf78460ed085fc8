"""The window itself, its menu, and doing without the mouse."""
import hands
from case import ADD, PROGRAM, DesktopCase
from desktop import DESKTOP
from neighbours import Neighbour, reply
from waiting import waitUntil

FOLDED = 34  # the height of the header alone, in pixels


class Window(DesktopCase):
    def testADoubleClickOnTheHeaderFoldsItAndTheKeyForANewTaskUnfoldsIt(self):
        self.start("milk")
        height = self.window.box[3]
        for across, expected, lists in [(0.2, FOLDED, 0), (0.6, height, 1), (0.2, FOLDED, 0), (None, height, 1)]:
            with self.subTest(expected):
                if across:
                    hands.doubleClick(self.window.find("heading").point(across))
                else:
                    hands.press("ctrl+n")
                self.until(lambda: self.window.box[3] == expected,
                           lambda: f"the window was {expected} high; it is {self.window.box[3]}")
                self.until(lambda: len(self.window.all("list")) == lists, f"{lists} lists were shown")
        self.waitForFocus(ADD)

    def testClosingHidesItAndAnotherStartBringsItForward(self):
        self.start("milk")
        hands.click(self.window.find("button", "Close").point())
        self.until(lambda: not self.app.all("window"), "the window was hidden")
        again = DESKTOP.start(PROGRAM)
        self.addCleanup(DESKTOP.end, again)
        self.until(lambda: again.poll() is not None, "the second start was over")
        self.assertEqual(again.returncode, 0)
        self.window = self.app.find("window", "Brimle")
        self.waitForFocus(ADD)
        self.expectInUse()


class MainMenu(DesktopCase):
    def testIsInTheDesktopsOwnBarToo(self):
        bar = Neighbour("com.canonical.AppMenu.Registrar", answer=reply(signature=""))
        self.addCleanup(bar.end)
        self.start("milk")
        waitUntil(lambda: "RegisterWindow" in bar.calls, "the window's menus were registered")
        menus = "org.brimle.Brimle", "/org/brimle/Brimle/MenuBar", "com.canonical.dbusmenu"
        _, (_, _, shown) = bar.ask(*menus, "GetLayout", 0, -1, [], signature="iias")
        rows = {item[1].get("label"): item[0] for menu in shown for item in menu[2]}
        bar.ask(*menus, "Event", rows["Copy Day as Text"], "clicked", "", 0, signature="isvu")
        self.until(lambda: self.copied().endswith("\n○ milk"), lambda: f"the day was copied: {self.copied()!r}")

    def testShowsTheShortcutsCardAsOftenAsItIsWanted(self):
        self.start()
        for _ in range(2):
            self.chooseFromMainMenu("Help", "Shortcuts")
            self.app.find("window", "Shortcuts").find("label", "!: Pin to top")
            self.until(lambda: hands.keyboardWindow() == "Shortcuts", "the card had the keyboard")
            hands.press("Escape")
            self.until(lambda: not self.app.all("window", "Shortcuts"), "the card was closed")
            self.waitForFocus(ADD)


class WithoutTheMouse(DesktopCase):
    def testEveryControlIsReachedForwardsAndBackwards(self):
        self.start("milk")
        title = self.window.find("heading").name
        around = [("button", "Close"), ("button", "Minimise"), ("button", "Menu"), ("heading", title),
                  ("button", "Archive"), ("list", "Task list"), ("field", ADD)]
        for key, controls in [("F6", around), ("shift+F6", [*reversed(around[:-1]), around[-1]])]:
            for role, name in controls:
                with self.subTest(f"{key} to {name}"):
                    hands.press(key)
                    self.waitForFocus(name, role=role)

    def testARowIsChosenAndItsMenuUsed(self):
        self.start("milk", "bread", "tea")
        hands.press("shift+F6")
        self.waitForFocus("Task list", role="list")
        for key, today in [("Menu", ["bread", "tea"]), ("shift+F10", ["tea"])]:
            with self.subTest(key):
                hands.press("Down")
                self.until(lambda: len(self.selected()) == 1, "a row was selected")
                hands.press(key)
                self.menus.waitUntilOpen()
                hands.press("Up", "Return")
                self.menus.waitUntilClosed()
                self.expectDay(today=today)
