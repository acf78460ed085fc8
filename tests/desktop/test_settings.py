"""Settings and folders in every bad state: the program starts with what can be read of them, and works."""
import os
from pathlib import Path

from case import DesktopCase, frame
from desktop import HEIGHT, WIDTH

FOLDER = Path(os.environ["XDG_CONFIG_HOME"]) / "brimle"
FILE = FOLDER / "settings.ini"


def write(content):
    FOLDER.mkdir()
    FILE.write_bytes(content)


class Settings(DesktopCase):
    def testWhatCannotBeReadIsLeftAside(self):
        for what, prepare in {
            "no text, and long": lambda: write(bytes(range(256)) * 40000),
            "a far place and a large size": lambda: write(frame("90000 -90000 99999 99999").encode()),
            "a folder in the place of the file": lambda: FILE.mkdir(parents=True),
            "a file in the place of the folder": lambda: FOLDER.write_bytes(b"mine"),
        }.items():
            with self.subTest(what):
                self.doCleanups()
                prepare()
                self.start("milk")
                self.expectInUse()
                left, top, width, height = self.window.box
                self.assertTrue(left >= 0 and top >= 0 and left + width <= WIDTH and top + height <= HEIGHT, self.window.box)
                self.quit()
                if FILE.is_file():
                    self.assertIn(b"migratedFromQuorel=true", FILE.read_bytes())
        self.assertEqual(FOLDER.read_bytes(), b"mine")

    def testFoldersThatAreMissing(self):
        missing = FOLDER / "missing"
        folders = {f"XDG_{name}_HOME": str(missing / name.lower()) for name in ("CONFIG", "STATE", "CACHE")}
        self.startElsewhere("milk", HOME=str(missing), XDG_RUNTIME_DIR=str(missing / "run"), **folders)
        self.expectInUse()
        self.quit()
        self.assertTrue((missing / "config/brimle/settings.ini").is_file())
