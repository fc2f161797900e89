#!/usr/bin/env python3
"""The printed page templates, laid out by a word processor.

    ZR3_TEMPLATES=FOLDER /usr/bin/python3 test_paper.py
"""

import re
import shutil
import subprocess
import tempfile
import unittest
import zipfile
from collections import Counter
from pathlib import Path

from lxml import etree

import reading
from asked import (
    ALLOWANCES, CELL_ALLOWANCES, GRIDS, MONEY, NARROW, PLACEHOLDERS, TICKS,
)
from reading import Template, W, find, text, words

FOLDER = None

# Capitals, the widest that an answer is in practice; each ends with its own mark.
CAPITALS = ("THE CLIENT APPLIED FOR AN ORDER THAT THE CHILD LIVE WITH HER. THE RESPONDENT FATHER "
            "OPPOSED, AND A REPORT WAS DIRECTED. ")
AMOUNT = "123,456.78"

TOOLS = [tool for tool in ("soffice", "pdfinfo", "pdftotext") if not shutil.which(tool)]


def setUpModule():
    global FOLDER
    FOLDER = reading.templates_folder()


def capitals(length, mark):
    whole = CAPITALS * (length // len(CAPITALS) + 1)
    return whole[:length - len(mark) - 1] + " " + mark


def type_into(paragraph, typed):
    """In the format of the paragraph mark, as in the export."""
    run = etree.SubElement(paragraph, W + "r")
    run.append(etree.fromstring(etree.tostring(find(paragraph, "pPr", "rPr"))))
    etree.SubElement(run, W + "t").text = typed


def tick(run):
    run.remove(find(run, "t"))
    etree.SubElement(run, W + "sym", {W + "font": "Wingdings", W + "char": "F0FE"})


def write(template, folder):
    template.parts["word/document.xml"] = etree.tostring(template.document)
    with zipfile.ZipFile(folder / (template.name + ".doc"), "w") as package:
        for part, content in template.parts.items():
            package.writestr(part, content)


class Filled:
    """A template with every answer at its allowance and every grid full, and what the printed page must show for it."""

    def __init__(self, path):
        self.template = Template(path)
        self.marks, self.amounts, self.cells = [], Counter(), 0
        self.tick_words = []
        name = self.template.name
        for tick_name in words(TICKS, name):
            run = self.template.run_of(tick_name)
            self.tick_words.append(text(run.getnext()).strip("\u00a0"))
            tick(run)
        for money in words(MONEY, name):
            self.answer(money, AMOUNT)
            self.amounts[AMOUNT] += 1
        for number, (long, length) in enumerate(ALLOWANCES.get(name, {}).items()):
            self.marks.append("Q%02d" % number)
            self.answer(long, capitals(length, self.marks[-1]))
        lines = list(self.template.lines())
        for offset, capacity, count, money in GRIDS.get(name, []):
            for _, row in lines[offset:offset + capacity]:
                self.fill(row, count, money)

    def answer(self, name, typed):
        find(self.template.run_of(name), "t").text = typed

    def fill(self, row, count, money):
        lengths = CELL_ALLOWANCES.get(count, {}) if count != 4 or len(money) == 3 else {}
        for i, cell in enumerate(row.findall(W + "tc")):
            if i in money:
                amount = NARROW.get(count, {}).get(i, AMOUNT)
                type_into(find(cell, "p"), amount)
                self.amounts[amount] += 1
            elif i in lengths:
                type_into(find(cell, "p"), capitals(lengths[i], "QQ"))
                self.cells += 1


@unittest.skipIf(TOOLS, "not installed here: " + ", ".join(TOOLS))
class Paper(unittest.TestCase):
    """One page, whatever is filled in; and everything within the allowances is legible on it."""

    def lay_out(self, folder):
        subprocess.run(
            ["soffice", "--headless", "-env:UserInstallation=" + (folder / "profile").as_uri(),
             "--convert-to", "pdf", "--outdir", str(folder),
             *(str(path) for path in sorted(folder.glob("*.doc")))],
            check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=300)

    def told(self, *command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout

    def pages(self, folder):
        self.lay_out(folder)
        return {path.stem: int(re.search(r"Pages:\s+(\d+)", self.told("pdfinfo", str(path))).group(1))
                for path in folder.glob("*.pdf")}

    def test_empty_sheets_are_one_page_each(self):
        with tempfile.TemporaryDirectory() as made:
            for name in PLACEHOLDERS:
                shutil.copy(FOLDER / (name + ".doc"), made)
            self.assertEqual(self.pages(Path(made)), dict.fromkeys(PLACEHOLDERS, 1))

    def test_sheets_with_far_too_much_in_every_box_are_one_page_each(self):
        cell, box, sheet = "W" * 100, "W" * 1000, "W" * 4000
        with tempfile.TemporaryDirectory() as made:
            for name in PLACEHOLDERS:
                template = Template(FOLDER / (name + ".doc"))
                for paragraph in template.document.iter(W + "p"):
                    if find(paragraph, "r") is None and paragraph.getparent().tag == W + "tc":
                        type_into(paragraph, cell)
                type_into(template.body[0], "(1)(2)")
                for t in template.document.iter(W + "t"):
                    if t.text.startswith("{"):
                        t.text = ("(12)" if t.text == "{or}"
                                  else sheet if name.endswith("Cont") else box)
                write(template, Path(made))
            self.assertEqual(self.pages(Path(made)), dict.fromkeys(PLACEHOLDERS, 1))

    def test_what_is_allowed_stands_whole_on_the_paper(self):
        with tempfile.TemporaryDirectory() as made:
            sheets = [Filled(FOLDER / (name + ".doc")) for name in PLACEHOLDERS]
            for sheet in sheets:
                write(sheet.template, Path(made))
            self.assertEqual(self.pages(Path(made)), dict.fromkeys(PLACEHOLDERS, 1))
            for sheet in sheets:
                with self.subTest(template=sheet.template.name):
                    self.check(sheet, str(Path(made) / (sheet.template.name + ".pdf")))

    def check(self, sheet, paper):
        shown = self.told("pdftotext", paper, "-").split()
        self.assertEqual([mark for mark in sheet.marks if mark not in shown], [], "cut answers")
        self.assertEqual(shown.count("QQ"), sheet.cells, "cells with whole texts")
        for amount, count in sheet.amounts.items():
            self.assertEqual(shown.count(amount), count, "amounts on one line: " + amount)
        lines = [" ".join(line.split())
                 for line in self.told("pdftotext", "-layout", paper, "-").splitlines()]
        self.assertEqual([word for word in sheet.tick_words
                          if not any(word in line for line in lines)], [], "broken words of ticks")


if __name__ == "__main__":
    reading.main()
