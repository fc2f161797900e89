#!/usr/bin/env python3
"""Drives a headless word processor through the steps of one export and prints the seconds of each run.

    /usr/bin/python3 drive_writer.py TEMPLATES SHEETS.json RUNS

SHEETS.json describes a claim's sheets: the templates, and the steps for each. For each sheet a template is opened, its
placeholders are replaced, its cells are typed, and the sheet is stored and closed; then all sheets are inserted into
one document. The word processor is already running and has opened a document before the clock starts. Everything is as
fast as possible: no window, no screen, each movement of the cursor is a single jump, and all steps use one connection.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.style.BreakType import PAGE_BEFORE

FORMAT = "MS Word 2007 XML"


def properties(**values):
    return tuple(PropertyValue(Name=name, Value=value) for name, value in values.items())


class Writer:
    """A separate word processor, with its own profile and pipe, that is ended afterwards."""

    def __init__(self, folder):
        self.pipe = f"zr3bench{os.getpid()}"
        self.process = subprocess.Popen(
            ["soffice", "--headless", "--norestore", "--nologo", "--nodefault",
             f"-env:UserInstallation=file://{folder}/profile", f"--accept=pipe,name={self.pipe};urp;"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.desktop = self.connect()

    def connect(self):
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
        until = time.monotonic() + 120
        while True:
            try:
                context = resolver.resolve(f"uno:pipe,name={self.pipe};urp;StarOffice.ComponentContext")
                return context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)
            except NoConnectException:
                if time.monotonic() > until or self.process.poll() is not None:
                    raise
                time.sleep(0.2)

    def open(self, path):
        return self.desktop.loadComponentFromURL(path.as_uri(), "_blank", 0,
                                                 properties(Hidden=True, FilterName=FORMAT))

    def end(self):
        try:
            self.desktop.terminate()
        except Exception:       # the connection breaks as the process ends
            pass
        try:
            self.process.wait(30)
        except subprocess.TimeoutExpired:
            self.process.kill()


class Sheet:
    """An open document and the position of the next text."""

    def __init__(self, writer, path):
        self.document = writer.open(path)
        self.path = path
        self.steps = 0
        self.at_start()

    def at_start(self):
        self.cursor = self.document.CurrentController.ViewCursor
        self.cursor.gotoStart(False)
        self.table = None

    def down(self, lines):
        self.cursor.goDown(lines, False)
        self.enter_table()

    def enter_table(self):
        self.table = self.cursor.TextTable
        if self.table is not None:
            self.names = self.table.CellNames
            self.place = self.names.index(self.cursor.Cell.CellName)

    def row_of(self, place):
        return self.names[place].lstrip("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")

    def jump(self, place):
        self.place = place
        self.cursor.gotoRange(self.table.getCellByName(self.names[place]).getStart(), False)

    def right(self, cells):
        self.jump(min(self.place + cells, len(self.names) - 1))

    def rowstart(self):
        place = self.place
        while place and self.row_of(place - 1) == self.row_of(self.place):
            place -= 1
        self.jump(place)

    def nextrow(self):
        place = self.place
        while place < len(self.names) - 1 and self.row_of(place) == self.row_of(self.place):
            place += 1
        self.jump(place)

    def type(self, text):
        self.cursor.Text.insertString(self.cursor, text.replace("\v", "\n"), False)

    def replace(self, placeholder, text):
        search = self.document.createSearchDescriptor()
        search.SearchString = placeholder
        found = self.document.findFirst(search)
        if found is not None:
            found.setString(text.replace("\v", "\n"))

    def perform(self, step):
        kind, values = step[0], step[1:]
        self.steps += 1
        if kind == "open":
            self.at_start()
        elif kind == "replace":
            self.replace(values[0], values[1])
        elif kind in ("cell", "settext"):
            self.type(values[0])
        elif kind == "down":
            self.down(values[0])
        elif self.table is not None and kind == "right":
            self.right(values[0])
        elif self.table is not None and kind in ("rowstart", "nextrow"):
            getattr(self, kind)()
        elif kind == "newpara":
            self.cursor.Text.insertControlCharacter(self.cursor, 0, False)
        elif kind == "tabs":
            self.type("\t" * values[0])

    def store(self):
        self.document.storeToURL(self.path.as_uri(), properties(FilterName=FORMAT))
        self.document.close(True)


def export(writer, templates, account, folder):
    """Performs the steps of one export; returns their number, and the finished document."""
    steps = 0
    # A sheet that is made twice is filled twice.
    made = {sheet["Name"]: sheet for sheet in account["Sheets"]}
    for name in account["Order"]:
        path = folder / f"{name}.doc"
        shutil.copyfile(templates / f"{made[name]['Template']}.doc", path)
        sheet = Sheet(writer, path)
        for step in made[name]["Ops"]:
            sheet.perform(step)
        sheet.store()
        steps += sheet.steps
    finished = folder / "finished.doc"
    shutil.copyfile(folder / f"{account['Order'][0]}.doc", finished)
    document = writer.open(finished)
    cursor = document.Text.createTextCursor()
    for name in account["Order"][1:]:
        cursor.gotoEnd(False)
        document.Text.insertControlCharacter(cursor, 0, False)
        cursor.BreakType = PAGE_BEFORE
        cursor.insertDocumentFromURL((folder / f"{name}.doc").as_uri(), properties(FilterName=FORMAT))
    document.storeToURL(finished.as_uri(), properties(FilterName=FORMAT))
    document.close(True)
    return steps, finished


def main(templates, sheets, runs):
    account = json.loads(Path(sheets).read_text(encoding="utf-8"))
    templates = Path(templates).resolve()
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary)
        writer = Writer(folder)
        try:
            warm = folder / "warm.doc"
            shutil.copyfile(templates / f"{account['Sheets'][0]['Template']}.doc", warm)
            writer.open(warm).close(True)
            seconds = []
            for _ in range(runs):
                start = time.perf_counter()
                steps, finished = export(writer, templates, account, folder)
                seconds.append(time.perf_counter() - start)
            print(json.dumps({"seconds": seconds, "sheets": len(account["Order"]), "steps": steps,
                              "bytes": finished.stat().st_size}))
        finally:
            writer.end()


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2], int(sys.argv[3]))
