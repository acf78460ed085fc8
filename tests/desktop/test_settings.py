"""Settings and folders in every bad state: the program starts with what can be read of them, and works."""
import os
import unittest
from pathlib import Path

import hands
from case import DesktopCase
from desktop import HEIGHT, WIDTH

MEGABYTE = 1 << 20


def frame(numbers):
    return f"[General]\nNSWindow%20Frame%20TodayWindow={numbers}\n".encode()


class Settings(DesktopCase):
    def setUp(self):
        self.folder = Path(os.environ["XDG_CONFIG_HOME"]) / "brimle"
        self.file = self.folder / "settings.ini"

    def expectInUse(self):
        hands.enter("tea")
        self.expectDay(today=["milk", "tea"])

    def expectOnScreen(self):
        left, top, width, height = self.window.box
        self.assertTrue(left >= 0 and top >= 0 and left + width <= WIDTH and top + height <= HEIGHT, self.window.box)

    def quit(self):
        hands.press("ctrl+q")
        self.assertEqual(self.waitUntilEnded(), 0)

    def testWhatCannotBeReadIsLeftAside(self):
        for what, content in {
            "broken lines": b"[[[\n=x\nfoo\n\\\n[a\n%%%=1\ntextSize=\n[General\n",
            "no text": bytes(range(256)) * 64,
            "a long line": b"x=" + b"y" * 10 * MEGABYTE,
            "no numbers": frame("nan nan inf 400"),
            "far numbers": frame("1e9 -1e9 1e9 1e9"),
            "a far place": frame("90000 -90000 300 400"),
            "a large size": frame("10 10 99999 99999"),
            "a small size": frame("10 10 1 1"),
        }.items():
            with self.subTest(what):
                self.doCleanups()
                self.setUp()
                self.folder.mkdir()
                self.file.write_bytes(content)
                self.start("milk")
                self.expectInUse()
                self.expectOnScreen()
                self.quit()
                self.assertIn(b"migratedFromQuorel=true", self.file.read_bytes())

    def testAFolderInThePlaceOfTheFile(self):
        self.file.mkdir(parents=True)
        self.start("milk")
        self.expectInUse()
        self.quit()

    def testAFileInThePlaceOfTheFolder(self):
        self.folder.write_text("mine", encoding="utf-8")
        self.start("milk")
        self.expectInUse()
        self.quit()
        self.assertEqual(self.folder.read_text(encoding="utf-8"), "mine")

    def testFoldersThatAreMissing(self):
        missing = str(self.folder / "missing")
        self.startElsewhere("milk", HOME=missing, XDG_CONFIG_HOME=missing + "/config", XDG_STATE_HOME=missing + "/state",
                            XDG_CACHE_HOME=missing + "/cache", XDG_RUNTIME_DIR=missing + "/run")
        self.expectInUse()
        self.quit()
        self.assertTrue((self.folder / "missing/config/brimle/settings.ini").is_file())


if __name__ == "__main__":
    unittest.main()
