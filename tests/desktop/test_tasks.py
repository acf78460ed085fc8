"""What is done with tasks: they are typed, pasted and copied, edited in their rows, selected, ticked and deleted."""
import hands
from case import ADD, EDIT, DesktopCase, dayKey, nextKey


class Adding(DesktopCase):
    def testReturnAddsWhatTheEntryLanguageSays(self):
        self.start("old")
        for typed, lists in [
            ("milk // rye", {"today": ["old", "milk / rye"]}),
            (" ", {}),
            ("rent !", {"today": ["rent!", "old", "milk / rye"]}),
            ("call mum >22/9", {"scheduled": [f"{nextKey(9, 22)} call mum!"]}),
        ]:
            with self.subTest(typed):
                hands.enter(typed)
                self.expectDay(**lists)

    def testAPasteOfSeveralLinesBecomesTasksWhateverHasTheKeyboard(self):
        self.start("milk")
        self.putOnClipboard("oat bread")
        hands.press("ctrl+v")
        self.waitForFocus(ADD, text="oat bread")
        self.expectDay()
        hands.doubleClick(self.row("milk").point(across=0.2))
        self.waitForFocus(EDIT, "milk")
        self.putOnClipboard("- bread\n  rye\n- tea !\n")
        hands.press("ctrl+v")
        self.expectDay(today=["tea!", "milk", "bread / rye"])


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

    def testAClickElsewhereCommitsAlsoWhereNothingTakesTheKeyboard(self):
        self.start("milk", "bread")
        for elsewhere, text in [(self.window.find("field", ADD), "milk"), (self.window.find("list"), "oat milk")]:
            self.openByDoubleClick(text)
            hands.press("Home")
            hands.typeText("oat ")
            hands.click(elsewhere.point(down=0.9))
            self.waitUntilClosed(EDIT)
            self.expectDay(today=["oat " + text, "bread"])

    def testKeysWalkThroughTheNotesAndMakeAndDropBlankOnes(self):
        self.start("milk / oat", "bread")
        self.openByDoubleClick("milk")
        for key, shown in [("Down", "oat"), ("Up", "milk"), ("Tab", "oat")]:
            hands.press(key)
            self.waitForFocus(EDIT, shown)
        hands.typeText("ly ")
        hands.press("Down")
        self.waitUntilClosed(EDIT)
        self.expectDay(today=["milk / oatly", "bread"])
        self.openByDoubleClick("bread")
        for key, note, shown in [("Tab", " / ", ""), ("Up", "", "bread"), ("Tab", " / ", "")]:
            hands.press(key)
            self.expectDay(today=["milk / oatly", "bread" + note])
            self.waitForFocus(EDIT, shown)
        hands.enter("rye")
        self.expectDay(today=["milk / oatly", "bread / rye"])
        self.waitUntilClosed(EDIT)

    def testDoubleClickOpensANoteAndClearingRemovesIt(self):
        self.start("milk / oat / soy")
        hands.doubleClick(self.row("milk").find("label", "Note: soy").point(across=0.05))
        self.waitForFocus(EDIT, "soy")
        hands.press("ctrl+a", "BackSpace", "Escape")
        self.expectDay(today=["milk / oat"])
        self.waitUntilClosed(EDIT)


class Selecting(DesktopCase):
    def testClicksWithControlAndShiftAndKeys(self):
        self.start("milk", "bread", "tea", "eggs", "rice")
        for text, held, selected in [
            ("bread", None, ["bread"]),
            ("eggs", "ctrl", ["bread", "eggs"]),
            ("bread", "ctrl", ["eggs"]),
            ("rice", "shift", ["eggs", "rice"]),
        ]:
            with self.subTest(f"{held} {text}"):
                hands.click(self.row(text).point(), held=held)
                self.expectSelected(*selected)
        hands.click(self.window.find("list").point(down=0.9))
        self.expectSelected()
        self.select("milk")
        for key, selected in [("Down", ["bread"]), ("shift+Down", ["bread", "tea"]), ("Up", ["bread"])]:
            with self.subTest(key):
                hands.press(key)
                self.expectSelected(*selected)
        hands.press("ctrl+Up")
        self.expectDay(today=["bread", "milk", "tea", "eggs", "rice"])
        hands.press("Return")
        self.waitForFocus(EDIT, "bread")
        hands.typeText(" rye")
        hands.press("Escape")
        self.expectDay(today=["bread rye", "milk", "tea", "eggs", "rice"])
        self.waitUntilClosed(EDIT)
        self.expectSelected()

    def testKeysAndADotActOnAllAndUndoBringsThemBack(self):
        tasks = ["milk / oat", "bread / rye", "tea", "eggs*"]
        archive = [f"{dayKey()} milk+ / oat", f"{dayKey()} bread+ / rye", f"{dayKey()} eggs+"]
        ticked = {"today": ["tea", "eggs*+#"], "archive": archive}
        self.start(*tasks)
        for what, act, lists in [
            ("space", lambda: hands.press("space"), ticked),
            ("a dot", lambda: hands.click(self.row("bread").find("button", "Tick").point()), ticked),
            ("Backspace", lambda: hands.press("BackSpace"), {"today": ["tea"]}),
        ]:
            with self.subTest(what):
                self.select("milk", ctrl=["bread", "eggs"])
                hands.press("ctrl+c")
                self.expectCopied("milk // oat\nbread // rye\neggs")
                act()
                self.expectDay(**lists)
                self.undoUntil(today=tasks, archive=[])
                hands.press("Escape")
                self.expectSelected()


class ContextMenu(DesktopCase):
    def testItemsActOnTheRow(self):
        self.start("milk", "bread / rye", "tea")
        for text, item, lists in [
            ("bread", "Highlight", {"today": ["milk", "bread^ / rye", "tea"]}),
            ("milk", "Weekdays only", {"today": ["milk*%", "bread^ / rye", "tea"]}),
            ("tea", "Move to tomorrow", {"today": ["milk*%", "bread^ / rye"], "tomorrow": ["tea"]}),
        ]:
            with self.subTest(item):
                self.choose(self.row(text), item)
                self.expectDay(**lists)
        self.choose(self.row("bread"), "Add note")
        self.waitForFocus(EDIT, "")
        hands.enter("sliced")
        self.expectDay(today=["milk*%", "bread^ / rye / sliced"])

    def testEscapeClosesItAndNothingHappens(self):
        self.start("milk")
        hands.rightClick(self.row("milk").point())
        self.menus.waitUntilOpen()
        hands.press("Escape")
        self.menus.waitUntilClosed()
        self.expectInUse()

    def testThePinOfTheRowUnderThePointerPinsAndUnpins(self):
        self.start("milk", "bread")
        for button, today in [("Pin to top", ["bread!", "milk"]), ("Unpin", ["bread", "milk"])]:
            with self.subTest(button):
                hands.moveTo(self.row("bread").point())
                hands.click(self.row("bread").find("button", button).point())
                self.expectDay(today=today)
