#!/usr/bin/env python3
"""The desktop program, on a display of its own, is killed at each step of the save started by Ctrl+S.

    ZR3_PROGRAM   the desktop program; also needed are the variables of support.py
"""

import sys
from pathlib import Path

from support import *

sys.path.insert(0, str(Path(__file__).parent.parent / "window"))
from real_desktop import NEEDED, Desktop

PROGRAM = os.environ.get("ZR3_PROGRAM", "")
MAIN = "Velmor ZR3"


class WindowKilled(SaveTest):
    def setUp(self):
        for program in NEEDED:
            if not shutil.which(program):
                self.skipTest(f"there is no {program} on this machine")
        super().setUp()
        # A claim that was last saved elsewhere, so that saving changes it.
        elsewhere = self.folder / "elsewhere.zr3"
        self.assertEqual(0, run("save", self.sources["new"], elsewhere).status)
        self.whole = {"old": elsewhere.read_bytes(), "new": self.whole["new"]}
        home = self.folder / "home"
        home.mkdir()
        self.desktop = self.enterContext(Desktop(home))
        # How often an open claim's file is checked before the save depends on the time that passes.
        self.begun = self.folder / "begun"

    def begin(self, at=0, do=""):
        """Opens the claim in the window and returns the process. Operations are counted from the save on."""
        self.log.unlink(missing_ok=True)
        self.begun.unlink(missing_ok=True)
        self.put_old()
        faults = environment(self.disk, at, do, self.log, ZR3_FAULTS_FROM=str(self.begun))
        plan = {name: value for name, value in faults.items()
                if name == "LD_PRELOAD" or name.startswith("ZR3_FAULTS")}
        process = self.desktop.start("program", ["env", *(f"{name}={value}" for name, value in plan.items()), PROGRAM,
                                                 str(self.file)])
        # The splash has the main window's title, but only the main window fills the screen.
        self.desktop.wait("the main window", lambda: self.desktop.title() == MAIN and self.desktop.fills_the_screen())
        return process

    def begin_save(self):
        self.begun.touch()
        self.desktop.key("ctrl+s")

    def test_at_the_steps_of_a_save(self):
        process = self.begin()
        self.begin_save()
        self.desktop.wait("the save", lambda: self.named(self.file) == "new" and names(self.disk) == ["claim.zr3"])
        steps = steps_of(self.log)
        process.kill()
        process.wait()
        self.put_old()
        tool = self.save("new", under=self.disk, log=self.log)
        wanted, made = ([step.operation for step in of] for of in (tool.steps, steps))
        # The window first checks whether another program has changed the file, and afterwards reads it back.
        begins = [place for place in range(len(made)) if made[place:place + len(wanted)] == wanted]
        self.assertTrue(begins, f"the window doesn't save as the tool does: {made}")
        around = made[:begins[0]] + made[begins[0] + len(wanted):]
        self.assertLessEqual(set(around), {"stat", "open", "read", "close"})
        for step in steps if FULL else chance.sample(steps, 3):
            with self.subTest(step=step.number, operation=step.operation, seed=SEED):
                process = self.begin(step.number, "killmid" if step.operation == "write" else "kill")
                self.begin_save()
                self.assertEqual(-signal.SIGKILL, process.wait(30))
                place, name = self.state()
                row = "Window killed at each step of its save"
                count(row, "kills")
                count(row, f"whole in the {place}: {name}")
                self.saves_again()


if __name__ == "__main__":
    main()
