#!/usr/bin/env python3
"""The installed program starts on a real display for users who may not write to its folder: no box, the claim in the
window, and a new database folder for users who had none.
"""

import shutil
import sys
import unittest
from pathlib import Path

sys.path[:0] = [str(Path(__file__).parent.parent / folder) for folder in ("documents", "window")]

import installed
from installed import FRESH, User, run
from real_desktop import NEEDED
from started import Started
from support import main, need


def setUpModule():
    global FOLDER, PREFIX, SCREEN
    need(*NEEDED)
    FOLDER = installed.work_folder()
    PREFIX = installed.install(FOLDER / "the programs")
    for command, folder in (("update-mime-database", "mime"), ("update-desktop-database", "applications")):
        if shutil.which(command):
            run(command, PREFIX / "share" / folder)
    installed.lock(PREFIX)
    SCREEN = Started(FOLDER / "screen")
    unittest.addModuleCleanup(SCREEN.close)


class Start(unittest.TestCase):
    def test_the_first_start_gives_a_folder_and_the_second_leaves_it(self):
        user = User(FOLDER / "the clerk", PREFIX)
        SCREEN.start_and_save(user, user.claim("Mrs M\u00fcller's claim.zr3"))
        self.assertEqual(FRESH.read_bytes(), user.preferences.read_bytes())
        self.assertEqual("700", f"{user.databases.stat().st_mode & 0o777:o}")
        user.write(user.preferences, FRESH.read_text().replace("17.50", "12.50"))
        before = user.preferences.read_bytes(), user.store.read_bytes()
        SCREEN.start_and_save(user, user.claim("another.zr3"))
        self.assertEqual(before, (user.preferences.read_bytes(), user.store.read_bytes()))
        self.assertEqual(["Preferences Database.vzp"], [path.name for path in user.databases.iterdir()])

    def test_who_has_a_folder_keeps_it(self):
        user = User(FOLDER / "the partner", PREFIX)
        user.write(user.home / "mine/Preferences Database.vzp", FRESH.read_text())
        stored = f"[General]\nDatabase%20Path={user.home}/mine\n"
        user.write(user.store, stored)
        SCREEN.start_and_save(user, user.claim())
        self.assertFalse(user.databases.exists())

    def test_who_went_back_to_the_programs_folder_is_given_their_own_again(self):
        user = User(FOLDER / "the costs clerk", PREFIX)
        user.write(user.preferences, FRESH.read_text())
        user.write(user.store, f"[General]\nDatabase%20Path={PREFIX}/lib/velmor-zr3/Databases\n")
        SCREEN.start_and_save(user, user.claim())
        self.assertIn(f"{user.home.name}/.local/share/Velmor/ZR3/Databases", user.store.read_text("utf-8"))

    def test_a_folder_for_all_users_is_used(self):
        user = User(FOLDER / "the trainee", PREFIX)
        user.write(FOLDER / "firm/Preferences Database.vzp", FRESH.read_text())
        user.write(user.machine / "Velmor/ZR3.conf", f"[General]\nDatabase%20Path={FOLDER}/firm\n")
        SCREEN.start_and_save(user, user.claim())
        self.assertFalse(user.store.exists())
        self.assertFalse(user.databases.exists())

    def test_a_double_click_opens_the_claim(self):
        need("gio", "update-mime-database", "update-desktop-database")
        user = User(FOLDER / "the fee earner", PREFIX)
        SCREEN.start_and_save(user, user.claim(), ["gio", "open"])
        self.assertEqual(FRESH.read_bytes(), user.preferences.read_bytes())


if __name__ == "__main__":
    main()
