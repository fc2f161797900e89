#!/usr/bin/env python3
"""Walks through the program as it is delivered, in a real window of a real display, with nothing but the keyboard.

    real_window.py PROGRAM CLAIM [FOLDER FOR PICTURES]

Exit status 77, with the reason, where this machine has no display server, window manager or keyboard driver to try it
with.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path
from urllib.parse import quote

NEEDED = ("Xvfb", "openbox", "xdotool")
PATIENCE = 30
TITLE = "Zarquon"


class Desktop:
    """A display of its own with a window manager, and a keyboard."""

    def __init__(self, folder):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
            pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as told:
            self.display = ":" + told.readline().strip()
        self.surroundings = {name: value for name, value in os.environ.items() if not name.startswith(("QT_", "XDG_"))}
        self.surroundings |= {"DISPLAY": self.display, "HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
                              "XDG_RUNTIME_DIR": str(folder)}
        self.manager = subprocess.Popen(["openbox"], env=self.surroundings, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def tell(self, *words, check=True):
        return subprocess.run(["xdotool", *words], env=self.surroundings, check=check, capture_output=True,
                              text=True).stdout.strip()

    def title(self):
        return self.tell("getactivewindow", "getwindowname", check=False)

    def key(self, *keys):
        self.tell("key", "--delay", "40", *keys)

    def type(self, text):
        self.tell("type", "--delay", "20", text)

    def picture(self, folder, name):
        if folder and shutil.which("import"):
            subprocess.run(["import", "-window", "root", Path(folder) / f"{name}.png"], env=self.surroundings, check=True)


def wait(what, holds):
    end = time.monotonic() + PATIENCE
    while not holds():
        if time.monotonic() > end:
            sys.exit(f"Waited in vain for {what}.")
        time.sleep(0.05)


def exports_into(claim, folder):
    """Gives the claim an export folder, in the encoding of the file."""
    text = claim.read_text("latin-1")
    encoded = quote(str(folder), safe="").replace("-", "%2D").replace("_", "%5F").replace(".", "%2E").replace("~", "%7E")
    text, count = re.subn(r"<exportpath>[^<]*</exportpath>|<exportpath/>", f"<exportpath>{encoded}</exportpath>", text)
    assert count == 1
    claim.write_text(text, "latin-1")


def walk(program, source, folder, pictures):
    claim = folder / "claim.zr3"
    shutil.copy(source, claim)
    finished = folder / "export"
    finished.mkdir()
    exports_into(claim, finished)
    desktop = Desktop(folder)
    running = None
    try:
        # The window manager is up when it answers.
        wait("the window manager", lambda: desktop.tell("get_desktop", check=False) == "0")
        running = subprocess.Popen([program, str(claim)], env=desktop.surroundings)

        def title_is(title):
            wait(f'the window "{title}"', lambda: desktop.title() == title)
            time.sleep(0.3)

        title_is("Velmor ZR3")
        desktop.picture(pictures, "main")
        desktop.key("Right", "Return", "Tab", "Return")
        title_is("Client Details")
        desktop.key("Tab", "ctrl+a")
        desktop.type(TITLE)
        desktop.picture(pictures, "client")
        desktop.key("alt+e")
        title_is("Solicitor Details")
        desktop.picture(pictures, "solicitor")
        desktop.key("alt+s")
        title_is("Velmor ZR3")
        desktop.key("ctrl+s")
        wait("the claim to be saved", lambda: TITLE in claim.read_text("latin-1"))
        desktop.key("ctrl+w")
        title_is("Export to Word")
        desktop.picture(pictures, "export")
        desktop.key("Return")
        title = lambda: desktop.title() in ("Word Instances", "Export Complete")
        wait("the end of the export", title)
        if desktop.title() == "Word Instances":
            desktop.key("Return")
        title_is("Export Complete")
        desktop.picture(pictures, "exported")
        desktop.key("Return")
        title_is("Export to Word")
        desktop.key("Escape")
        title_is("Velmor ZR3")
        desktop.key("ctrl+q")
        if running.wait(PATIENCE) != 0:
            sys.exit(f"The program ended with status {running.returncode}.")
    finally:
        if running and running.poll() is None:
            print(f'The active window was "{desktop.title()}".')
            running.kill()
            running.wait()
        desktop.close()

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
    with tempfile.TemporaryDirectory() as folder:
        walk(program, claim, Path(folder), pictures)
    print("walked from the start to the document")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
