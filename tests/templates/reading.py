"""Reading page templates, and their folder.

    ZR3_TEMPLATES  the folder of the page templates; if unset they are made in a temporary folder
"""

import os
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

from lxml import etree

SCRIPT = Path(__file__).resolve().parents[2] / "resources" / "templates" / "make_templates.py"
SKIPPED = 77  # skipped, for ctest

W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"


def find(node, *path):
    for tag in path:
        node = None if node is None else node.find(W + tag)
    return node


def value(node, name="val"):
    return None if node is None else node.get(W + name)


def number(node, name="val"):
    return int(value(node, name))


def text(node):
    return "".join(t.text or "" for t in node.iter(W + "t"))


def words(table, name):
    return table.get(name, "").split()


class Template:
    def __init__(self, path):
        self.name = path.stem
        self.form = "Claim 1A" if path.stem.lower().startswith("claim1a ") else "Claim 1"
        with zipfile.ZipFile(path) as package:
            self.entries = package.infolist()
            self.parts = {entry.filename: package.read(entry) for entry in self.entries}
        self.document = etree.fromstring(self.parts["word/document.xml"])
        self.body = find(self.document, "body")
        self.styles = {value(style, "styleId"): style for style in
                       etree.fromstring(self.parts["word/styles.xml"]).iter(W + "style")}

    def lines(self):
        """The lines that the export's cursor counts on its way down: a paragraph of the body, or a row with the
        paragraphs of its first cell.
        """
        for block in self.body:
            if block.tag == W + "p":
                yield block, None
            for row in block.iter(W + "tr"):
                for paragraph in find(row, "tc").findall(W + "p"):
                    yield paragraph, row

    def property(self, paragraph, tag):
        """A paragraph's own property, or its style's."""
        found = find(paragraph, "pPr", tag)
        if found is None:
            found = find(self.styles[value(find(paragraph, "pPr", "pStyle"))], "pPr", tag)
        return found

    def height(self):
        total = 0
        for block in self.body:
            if block.tag == W + "p":
                spacing = self.property(block, "spacing")
                total += sum(number(spacing, name) for name in ("before", "after", "line"))
            for row in block.iter(W + "tr"):
                total += number(find(row, "trPr", "trHeight"))
        return total

    def run_of(self, name):
        return next(t.getparent() for t in self.document.iter(W + "t")
                    if t.text == "{%s}" % name)

    def is_right(self, run):
        """Whether it is at the right end of its cell, by its paragraph or a right tab."""
        paragraph = run.getparent()
        if value(self.property(paragraph, "jc")) == "right":
            return True
        before = run.getprevious()
        tab = find(paragraph, "pPr", "tabs", "tab")
        if tab is None or find(before, "tab") is None or value(tab) != "right":
            return False
        cell = paragraph.getparent()
        inset = number(self.property(paragraph, "ind"), "right")
        return number(tab, "pos") == number(find(cell, "tcPr", "tcW"), "w") - inset


def make(folder, **environment):
    subprocess.run(["/usr/bin/python3", str(SCRIPT), str(folder)], check=True,
                   env={**os.environ, **environment})


def templates_folder():
    given = os.environ.get("ZR3_TEMPLATES")
    if given:
        return Path(given)
    made = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(made.cleanup)
    make(made.name)
    return Path(made.name)


def main():
    result = unittest.main(exit=False).result
    sys.exit(1 if not result.wasSuccessful() else SKIPPED if result.skipped else 0)
