"""What is done with tasks: they are pasted and copied, edited in their rows, selected, ticked and deleted."""
import subprocess

import hands
from case import ADD, EDIT, DesktopCase, dayKey


class Editing(DesktopCase):
    def openByDoubleClick(self, text):
        hands.doubleClick(self.row(text).point(across=0.4, down=0.2))
        self.waitForFocus(EDIT, text)

    def testDoubleClicksEditTextsAndNotesAndKeysWalkOnFromThere(self):
        tasks = ["call / ask / soon", "milk"]
        self.start(*tasks)
        self.openByDoubleClick("call")
        hands.typeText(" mum ")
        hands.press("Escape")
        self.waitUntilClosed(EDIT)
        self.expectDay(today=["call mum / ask / soon", "milk"])
        hands.doubleClick(self.row("call mum").find("label", "Note: soon").point(across=0.05))
        self.waitForFocus(EDIT, "soon")
        hands.press("ctrl+a", "BackSpace")
        for key, shown in [("Up", "ask"), ("Up", "call mum"), ("Down", "ask")]:
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.press("Escape")
        self.waitUntilClosed(EDIT)
        self.expectDay(today=["call mum / ask", "milk"])
        self.openByDoubleClick("milk")
        for key, today, shown in [("Tab", "milk / ", ""), ("Up", "milk", "milk"), ("Tab", "milk / ", "")]:
            hands.press(key)
            self.expectDay(today=["call mum / ask", today])
            self.waitForFocus(EDIT, shown)
        hands.enter("oat")
        self.waitUntilClosed(EDIT)
        self.openByDoubleClick("call mum")
        hands.enter(f" >{dayKey(40)}")
        self.expectDay(today=["milk / oat"], scheduled=[f"{dayKey(40)} call mum! / ask"])
        self.undoUntil(today=tasks, scheduled=[])

    def testAClickElsewhereCommitsAlsoWhereNothingTakesTheKeyboard(self):
        self.start("milk", "bread")
        for elsewhere, text in [(self.window.find("field", ADD), "milk"), (self.window.find("list"), "oat milk")]:
            self.openByDoubleClick(text)
            hands.press("Home")
            hands.typeText("oat ")
            hands.click(elsewhere.point(down=0.9))
            self.waitUntilClosed(EDIT)
            self.expectDay(today=["oat " + text, "bread"])

    def testAPasteOfSeveralLinesBecomesTasksWhateverHasTheKeyboard(self):
        self.start("milk")
        self.openByDoubleClick("milk")
        for text, today in [(" oat", ["milk oat"]), ("- bread\n  rye\n- tea !\n", ["tea!", "milk oat", "bread / rye"])]:
            subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), check=True, timeout=30,
                           stderr=subprocess.DEVNULL)
            self.expect(text, self.copied, "what is on the clipboard")
            hands.press("ctrl+v")
            self.expectDay(today=today)


class Rows(DesktopCase):
    def testClicksSelectAndADotActsOnAllAndUndoBringsThemBack(self):
        tasks = ["milk / oat", "bread / rye", "tea", "eggs*"]
        self.start(*tasks)
        for text, held, selected in [
            ("milk", None, ["milk"]), ("tea", "shift", ["milk", "bread", "tea"]),
            ("eggs", "ctrl", ["milk", "bread", "tea", "eggs"]), ("tea", "ctrl", ["milk", "bread", "eggs"]),
        ]:
            hands.click(self.row(text).point(), held=held)
            self.expectSelected(*selected)
        hands.press("ctrl+c")
        self.expect("milk // oat\nbread // rye\neggs", self.copied, "what is on the clipboard")
        hands.click(self.row("bread").find("button", "Tick").point())
        self.expectDay(today=["tea", "eggs*+#"],
                       archive=[f"{dayKey()} milk+ / oat", f"{dayKey()} bread+ / rye", f"{dayKey()} eggs+"])
        self.undoUntil(today=tasks, archive=[])
        hands.click(self.row("tea").point())
        self.expectSelected("tea")
        hands.click(self.window.find("list").point(down=0.9))
        self.expectSelected()

    def testTheMenuOfARowActsOnItUnlessEscapeClosesIt(self):
        self.start("milk", "bread / rye", "tea")
        hands.click(self.row("milk").point(), button=3)
        self.menus.item("Tick")
        hands.press("Escape")
        self.menus.waitUntilClosed()
        self.choose(self.row("tea"), "Weekdays only")
        self.expectDay(today=["milk", "bread / rye", "tea*%"])
        self.choose(self.row("bread"), "Add note")
        self.waitForFocus(EDIT, "")
        hands.enter("sliced")
        self.expectDay(today=["milk", "bread / rye / sliced", "tea*%"])

    def testThePinOfTheRowUnderThePointerPinsAndUnpins(self):
        self.start("milk", "bread")
        for button, today in [("Pin to top", ["bread!", "milk"]), ("Unpin", ["bread", "milk"])]:
            hands.moveTo(self.row("bread").point())
            hands.click(self.row("bread").find("button", button).point())
            self.expectDay(today=today)
