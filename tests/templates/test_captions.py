#!/usr/bin/env python3
"""Each answer of the page templates is beside the printed words that ask for it.

    ZR3_TEMPLATES=FOLDER /usr/bin/python3 test_captions.py
"""

import re
import unittest
from typing import NamedTuple

import reading
from asked import GRIDS, PLACEHOLDERS, TICKS
from captions import CAPTIONS, HEADS, IN_ORDER, InRow, Sum, Tick
from reading import Template, W, find, number, value, words

BAND, TINT = "1F3A4A", "E9EEF1"
SHEETS = {}


def setUpModule():
    folder = reading.templates_folder()
    for name in PLACEHOLDERS:
        SHEETS[name] = Sheet(Template(folder / (name + ".doc")))


def wording(node):
    """The words of a cell, with its lines joined."""
    parts = (" " if part.tag != W + "t" else part.text for part in node.iter(W + "t", W + "tab", W + "br"))
    return " ".join("".join(parts).replace("\u00a0", " ").split())


class Box(NamedTuple):
    """A cell of a table; its edges are in twips."""
    begin: int
    end: int
    text: str
    fill: str

    @property
    def is_printed(self):
        return self.fill == TINT and self.text != ""

    @property
    def is_key(self):
        """Whether it is the letter of a question."""
        return re.fullmatch("[a-z]", self.text) is not None


def boxes(row):
    begin, found = 0, []
    for cell in row.findall(W + "tc"):
        end = begin + number(find(cell, "tcPr", "tcW"), "w")
        fill = value(find(cell, "tcPr", "shd"), "fill") or ""
        found.append(Box(begin, end, wording(cell), fill))
        begin = end
    return found


class Sheet:
    """The rows of a template from the top, without tables, and the positions of the placeholders on them."""

    def __init__(self, template):
        self.template = template
        rows = list(template.document.iter(W + "tr"))
        self.rows = [boxes(row) for row in rows]
        self.places = {}
        for r, row in enumerate(rows):
            for c, cell in enumerate(row.findall(W + "tc")):
                for t in cell.iter(W + "t"):
                    if t.text.startswith("{"):
                        self.places[t.text[1:-1]] = (r, c)

    def section(self, name):
        """The title on the nearest band above: the cell after the section's number."""
        for row in reversed(self.rows[:self.places[name][0] + 1]):
            banded = [box.text for box in row if box.fill == BAND]
            if len(banded) == 2:
                return banded[1]
        return ""

    def word(self, name):
        """The text directly after a box."""
        return wording(self.template.run_of(name).getnext())

    def label_above(self, name):
        """The label of a field, on the row directly above and as wide as its answer."""
        r, c = self.places[name]
        box = self.rows[r][c]
        return " ".join(above.text for above in self.rows[r - 1]
                        if above.is_printed and (above.begin, above.end) == (box.begin, box.end))

    def label_beside(self, name):
        """The nearest printed words on the left. A blank cell continues what is above it."""
        r, c = self.places[name]
        left = self.rows[r][:c]
        while left and left[-1].fill != TINT:
            left.pop()
        found = []
        while left and left[-1].fill == TINT:
            box = left.pop()
            found.insert(0, box if box.text else self.filled_above(r, box))
        return " ".join(box.text for box in found if not box.is_key)

    def filled_above(self, r, box):
        return next(above for row in reversed(self.rows[:r]) for above in row
                    if (above.begin, above.end) == (box.begin, box.end) and above.text)

    def head_above(self, name):
        """The column heading of an amount: the nearest printed words above that end where its cell ends."""
        r, c = self.places[name]
        end = self.rows[r][c].end
        return next((box.text for row in reversed(self.rows[:r]) for box in row if box.is_printed and box.end == end),
                    "")

    def question(self, name):
        """On the left; above if a row has only boxes."""
        beside = self.label_beside(name)
        if beside:
            return beside
        r, c = self.places[name]
        box = self.rows[r][c]
        for row in reversed(self.rows[:r]):
            over = [above for above in row if above.begin <= box.begin and above.end >= box.end]
            if over and over[0].is_printed:
                return over[0].text
            if row[0].fill == BAND:
                return self.section(name)
        return ""

    def caption(self, name, kind):
        if kind is Tick:
            return Tick(self.question(name), self.word(name))
        if kind is InRow:
            return InRow(self.label_beside(name))
        if kind is Sum:
            return Sum(self.label_beside(name), self.head_above(name))
        return self.label_above(name)

    def heads(self, first_row):
        """The headings of the grid's columns, each with its group."""
        r = next(i for i, row in enumerate(self.template.document.iter(W + "tr")) if row is first_row)
        groups = self.rows[r - 2] if r >= 2 else []
        has_groups = len(groups) > 1 and all(box.is_printed for box in groups)
        found = []
        for head in self.rows[r - 1]:
            group = [box.text + ": " for box in groups
                     if has_groups and box.begin <= head.begin and head.end <= box.end]
            found.append("".join(group) + head.text)
        return found


class Captions(unittest.TestCase):
    maxDiff = None

    def test_the_tables_know_every_placeholder_once(self):
        for name in PLACEHOLDERS:
            known = [placeholder for section in CAPTIONS.get(name, {}).values() for placeholder in section]
            with self.subTest(template=name):
                self.assertEqual(sorted(known), sorted(words(PLACEHOLDERS, name)))

    def test_the_tables_tell_ticks_from_other_answers(self):
        for name in PLACEHOLDERS:
            ticks = [placeholder for section in CAPTIONS.get(name, {}).values()
                     for placeholder, caption in section.items() if isinstance(caption, Tick)]
            with self.subTest(template=name):
                self.assertEqual(sorted(ticks), sorted(words(TICKS, name)))

    def test_each_answer_stands_beside_its_caption_in_its_section(self):
        for name, sections in CAPTIONS.items():
            sheet = SHEETS[name]
            for section, answers in sections.items():
                for placeholder, caption in answers.items():
                    with self.subTest(template=name, placeholder=placeholder):
                        self.assertEqual((sheet.section(placeholder), sheet.caption(placeholder, type(caption))),
                                         (section, caption))

    def test_only_answers_in_order_share_their_captions(self):
        for name, sections in CAPTIONS.items():
            with self.subTest(template=name):
                once = [(section, caption) for section, answers in sections.items()
                        for placeholder, caption in answers.items() if placeholder not in words(IN_ORDER, name)]
                self.assertEqual(len(set(once)), len(once))

    def test_answers_with_the_same_captions_stand_in_order(self):
        for name in IN_ORDER:
            expected = words(IN_ORDER, name)
            with self.subTest(template=name):
                found = [placeholder for placeholder in SHEETS[name].places if placeholder in expected]
                self.assertEqual(found, expected)

    def test_each_column_of_a_grid_stands_below_its_head(self):
        self.assertEqual(set(HEADS), set(GRIDS))
        for name, grids in GRIDS.items():
            sheet = SHEETS[name]
            lines = list(sheet.template.lines())
            with self.subTest(template=name):
                self.assertEqual([sheet.heads(lines[offset][1]) for offset, *_ in grids], HEADS[name])


if __name__ == "__main__":
    reading.main()
