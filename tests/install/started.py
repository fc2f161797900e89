"""Starts the installed program on a real display and checks its windows."""

import os

from real_desktop import Desktop

MAIN = "Velmor ZR3"


class Started:
    def __init__(self, folder):
        folder.mkdir()
        self.desktop = Desktop(folder)

    def close(self):
        self.desktop.close()

    def windows(self):
        """The titles of all visible windows."""
        found = self.desktop.tell("search", "--onlyvisible", "--name", ".", check=False).split()
        return sorted(self.desktop.tell("getwindowname", window, check=False) for window in found)

    def main_window_is_up(self):
        # The splash has the main window's title, but only the main window fills the screen.
        return self.desktop.title() == MAIN and self.desktop.fills_the_screen()

    def running(self, claim):
        """Whether a process has this claim on its command line."""
        for process in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{process}/cmdline", "rb") as words:
                    if words.read().endswith(os.fsencode(claim) + b"\0"):
                        return True
            except OSError:
                pass
        return False

    def start_and_save(self, user, claim, opener=("velmor-zr3",)):
        """Starts the program on a claim as this user, expects only the main window, saves the claim and exits."""
        user.surroundings["DISPLAY"] = self.desktop.surroundings["DISPLAY"]
        self.desktop.start("program", user.command(*opener, claim))
        before = claim.read_bytes()
        try:
            self.desktop.wait("the main window", self.main_window_is_up, AssertionError)
            assert self.windows() == [MAIN], f"These windows are up: {self.windows()}"
            self.desktop.key("ctrl+s")
            # The claim stores its own path, so a change shows that this claim is in the window.
            self.desktop.wait("the claim to be saved", lambda: claim.read_bytes() != before, AssertionError)
            self.desktop.key("ctrl+q")
            self.desktop.wait("the end of the program", lambda: not self.running(claim), AssertionError)
        except AssertionError:
            print(f"These windows are up: {self.windows()}")
            self.desktop.report()
            raise
        status = self.desktop.processes.pop("program").wait()
        assert status == 0, f"The program ended with {status}."
