#!/usr/bin/env python3
"""Uses the program as it is delivered, in a window on a real display, by keyboard alone.

    real_window.py PROGRAM CLAIM [FOLDER FOR PICTURES]

Exit status 77, with the reason, if this machine has no display server, window manager or keyboard driver. A desktop
that fails before the program has a window is restarted; a failure of the program is not retried.
"""

import re
import shutil
import sys
import tempfile
import time
import zipfile
from pathlib import Path
from urllib.parse import quote

from real_desktop import NEEDED, PATIENCE, Desktop, DesktopFailure

MAIN = "Velmor ZR3"
TITLE = "Zarquon"
ATTEMPTS = 3


def exports_into(claim, folder):
    """Gives the claim an export folder, in the file's encoding."""
    text = claim.read_text("latin-1")
    encoded = quote(str(folder), safe="")
    for character, code in (("-", "%2D"), ("_", "%5F"), (".", "%2E"), ("~", "%7E")):
        encoded = encoded.replace(character, code)
    text, count = re.subn(r"<exportpath>[^<]*</exportpath>|<exportpath/>", f"<exportpath>{encoded}</exportpath>", text)
    assert count == 1
    claim.write_text(text, "latin-1")


class Walk:
    """The program on a desktop, used by keyboard."""

    def __init__(self, desktop, program, claim, pictures):
        self.desktop = desktop
        self.claim = claim
        self.pictures = pictures
        self.program = desktop.start("program", [program, str(claim)])
        self.up = False

    def picture(self, name):
        self.desktop.picture(self.pictures, name)

    def runs(self):
        """Ends the test if the program has ended by itself."""
        if self.program.poll() is None:
            return
        if not self.up and "could not connect to display" in self.desktop.log("program").read_text("utf-8", "replace"):
            raise DesktopFailure("The display server refused the program.")
        sys.exit("The program has ended.")

    def window(self, *titles):
        """Waits until one of these windows is active, and returns its title."""
        def shown():
            self.runs()
            self.title = self.desktop.title()
            # The splash has the main window's title, but only the main window fills the screen.
            return self.title in titles and (self.title != MAIN or self.desktop.fills_the_screen())

        try:
            self.desktop.wait(" or ".join(titles), shown)
        except SystemExit:
            print(f'The active window is "{self.title}".')
            raise
        self.up = True
        time.sleep(0.3)
        return self.title

    def edit(self):
        desktop = self.desktop
        self.window(MAIN)
        self.picture("main")
        desktop.key("Right", "Return", "Tab", "Return")
        self.window("Client Details")
        desktop.key("Tab", "ctrl+a")
        desktop.type(TITLE)
        self.picture("client")
        desktop.key("alt+x")
        self.window("Solicitor Details")
        self.picture("solicitor")
        desktop.key("alt+s")
        self.window(MAIN)
        desktop.key("ctrl+s")
        desktop.wait("the claim to be saved", lambda: TITLE in self.claim.read_text("latin-1"))

    def export(self):
        desktop = self.desktop
        desktop.key("ctrl+w")
        self.window("Export to Word")
        self.picture("export")
        desktop.key("Return")
        if self.window("Word Instances", "Export Complete") == "Word Instances":
            desktop.key("Return")
            self.window("Export Complete")
        self.picture("exported")
        desktop.key("Return")
        self.window("Export to Word")
        desktop.key("Escape")

    def quit(self):
        self.window(MAIN)
        self.desktop.key("ctrl+q")
        if self.program.wait(PATIENCE) != 0:
            sys.exit("The program did not end well.")


def walk(program, source, folder, pictures):
    claim = folder / "claim.zr3"
    shutil.copy(source, claim)
    finished = folder / "export"
    finished.mkdir()
    exports_into(claim, finished)
    with Desktop(folder) as desktop:
        whole = Walk(desktop, program, claim, pictures)
        try:
            whole.edit()
            whole.export()
            whole.quit()
        except DesktopFailure as failure:
            if whole.up:
                sys.exit(f"{failure} The program had its window already.")
            raise

    left = sorted(path.name for path in finished.iterdir())
    if left != ["Claim1.doc"]:
        sys.exit(f"In the export folder lies {left}.")
    with zipfile.ZipFile(finished / "Claim1.doc") as document:
        if TITLE not in document.read("word/document.xml").decode("utf-8"):
            sys.exit("What was typed is not in the document.")


def main(program, claim, pictures=None):
    missing = [name for name in NEEDED if not shutil.which(name)]
    if missing:
        print(f"skipped: there is no {' and no '.join(missing)} on this machine")
        return 77
    for attempt in range(1, ATTEMPTS + 1):
        try:
            with tempfile.TemporaryDirectory() as folder:
                walk(program, claim, Path(folder), pictures)
        except DesktopFailure as failure:
            print(f"{failure} This was attempt {attempt} of {ATTEMPTS}.", flush=True)
        else:
            print("walked from the start to the document")
            return 0
    return 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
