"""The window itself, its menu, and doing without the mouse."""
import desktop
import hands
from case import ADD, PROGRAM, DesktopCase
from neighbours import Neighbour, reply
from waiting import waitUntil

FOLDED = 34  # the height of the header alone, in pixels


class Window(DesktopCase):
    def testADoubleClickOnTheHeaderFoldsItAndTheKeyForANewTaskUnfoldsIt(self):
        self.start("milk")
        height = self.window.box[3]
        for across, expected in [(0.2, (FOLDED, 0)), (0.6, (height, 1)), (0.2, (FOLDED, 0)), (None, (height, 1))]:
            if across:
                hands.doubleClick(self.window.find("heading").point(across))
            else:
                hands.press("ctrl+n")
            self.expect(expected, lambda: (self.window.box[3], len(self.window.all("list"))), "the height and the lists")
        self.waitForFocus(ADD)

    def testClosingHidesItAndAnotherStartBringsItForward(self):
        self.start("milk")
        hands.click(self.window.find("button", "Close").point())
        self.expect([], lambda: self.app.all("window"), "what is shown")
        again = desktop.start(PROGRAM)
        self.addCleanup(desktop.end, again)
        self.expect(0, again.poll, "the end of the second start")
        self.window = self.app.find("window", "Brimle")
        self.waitForFocus(ADD)
        self.expectInUse()

    def testItsMenuIsInTheDesktopsOwnBarToo(self):
        bar = Neighbour("com.canonical.AppMenu.Registrar", answer=reply(signature=""))
        self.addCleanup(bar.bus.close)
        self.start("milk")
        waitUntil(lambda: "RegisterWindow" in bar.calls, "the window's menus were registered")
        menus = "org.brimle.Brimle", "/org/brimle/Brimle/MenuBar", "com.canonical.dbusmenu"
        _, (_, _, shown) = bar.bus.call_blocking(*menus, "GetLayout", "iias", [0, -1, []])
        rows = {item[1].get("label"): item[0] for menu in shown for item in menu[2]}
        bar.bus.call_blocking(*menus, "Event", "isvu", [rows["Copy Day as Text"], "clicked", "", 0])
        self.expect("○ milk", lambda: self.copied().rpartition("\n")[2], "the last line on the clipboard")

    def testItsMenuShowsTheShortcutsCardAsOftenAsItIsWanted(self):
        self.start()
        for _ in range(2):
            self.choose(self.window.find("button", "Menu"), "Help", "Shortcuts", button=1)
            self.app.find("window", "Shortcuts").find("label", "!: Pin to top")
            self.expect("Shortcuts", hands.keyboardWindow, "the window with the keyboard")
            hands.press("Escape")
            self.waitForKeyboard()


class WithoutTheMouse(DesktopCase):
    def testEveryControlIsReachedForwardsAndBackwards(self):
        self.start("milk")
        title = self.window.find("heading").name
        around = [("button", "Close"), ("button", "Minimise"), ("button", "Menu"), ("heading", title),
                  ("button", "Archive"), ("list", "Task list"), ("field", ADD)]
        for key, controls in [("F6", around), ("shift+F6", [*reversed(around[:-1]), around[-1]])]:
            for role, name in controls:
                hands.press(key)
                self.waitForFocus(name, role=role)

    def testARowIsChosenAndItsMenuUsed(self):
        self.start("milk", "bread", "tea")
        hands.press("shift+F6")
        self.waitForFocus("Task list", role="list")
        for key, chosen, today in [("Menu", "milk", ["bread", "tea"]), ("shift+F10", "bread", ["tea"])]:
            hands.press("Down")
            self.expectSelected(chosen)
            hands.press(key)
            self.menus.item("Delete")
            hands.press("Up", "Return")
            self.menus.waitUntilClosed()
            self.expectDay(today=today)
