"""What is amiss around the program: folders that it cannot use, a screen that shrinks, a display that goes away."""
import os
import subprocess
from pathlib import Path
from unittest import mock

import desktop
import hands
from case import DesktopCase
from day_file import Day

STATE = Path(os.environ["XDG_STATE_HOME"])


class Folders(DesktopCase):
    def testThatAreMissingOrCannotBeMade(self):
        home, settings = STATE / "home", STATE / "home/config/brimle/settings.ini"
        folders = {f"XDG_{name}_HOME": str(home / name.lower()) for name in ("CONFIG", "STATE", "CACHE")}
        for what, prepare, written in [
            ("a file in the place of the folders", home.touch, False),
            ("a folder in the place of the file", lambda: settings.mkdir(parents=True), False),
            ("nothing", lambda: None, True),
        ]:
            with self.subTest(what):
                self.doCleanups()
                prepare()
                self.startElsewhere(Day(["milk"]), HOME=str(home), XDG_RUNTIME_DIR=str(home / "run"), **folders)
                self.expectInUse()
                hands.press("ctrl+q")
                self.assertEqual(self.waitUntilEnded(), 0)
                self.assertEqual(settings.is_file(), written)


class WithoutAWindowManager(DesktopCase):
    def waitForKeyboard(self):
        self.expect("Brimle", hands.keyboardWindow, "the window with the keyboard", lambda: hands.giveKeyboardTo("Brimle"))

    def testTheWindowFollowsItsScreenAndEndsWithItsDisplayAndLosesNothing(self):
        server, display = desktop.startServer()
        self.addCleanup(desktop.end, server)
        self.enterContext(mock.patch.dict(os.environ, DISPLAY=display, XDG_CONFIG_HOME=str(STATE)))
        (STATE / "brimle").mkdir()
        (STATE / "brimle/settings.ini").write_text("[General]\nNSWindow%20Frame%20TodayWindow=900 500 300 250\n")
        self.start("milk")
        self.expect((900, 500, 300, 250), lambda: self.window.box, "the window")
        for command in ["--newmode small 25 800 800 800 800 400 400 400 400", "--addmode screen small",
                        "--output screen --mode small"]:
            subprocess.run(["xrandr", *command.split()], check=True, timeout=30)
        self.expect((500, 150, 300, 250), lambda: self.window.box, "the window")
        self.expectInUse()
        hands.press("F6", "F6", "F6", "F6", "Return")  # folds the window: its frame is about to be saved
        desktop.end(server)
        self.assertNotEqual(self.waitUntilEnded(), 0)
