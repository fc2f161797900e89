#!/usr/bin/env python3
"""What the export relies on in the page templates.

    ZR3_TEMPLATES=FOLDER /usr/bin/python3 test_templates.py
"""

import functools
import os
import re
import tempfile
import unittest
from collections import Counter
from pathlib import Path

from lxml import etree

import reading
from asked import GRIDS, MONEY, PLACEHOLDERS, PLACES, SPARES, TICKS, TOTALS, WITHOUT_MARK
from reading import SCRIPT, Template, W, find, make, number, text, value, words

SPACE = "{http://www.w3.org/XML/1998/namespace}space"

FULLEST = 15300                         # twips, of the 15590 between the margins

PARTS = ["[Content_Types].xml", "_rels/.rels", "word/document.xml", "docProps/core.xml",
         "word/_rels/document.xml.rels", "word/settings.xml", "word/styles.xml"]

# The order in which word processors expect the children of an element.
ORDERS = {
    "pPr": "pStyle keepNext keepLines pageBreakBefore framePr widowControl numPr pBdr shd tabs "
           "spacing ind contextualSpacing jc textAlignment outlineLvl rPr sectPr pPrChange",
    "rPr": "rStyle rFonts b bCs i iCs caps strike vanish color spacing w kern position sz szCs "
           "highlight u shd vertAlign lang",
    "tcPr": "tcW gridSpan hMerge vMerge tcBorders shd noWrap tcMar textDirection tcFitText vAlign",
    "tcBorders": "top start left bottom end right insideH insideV",
    "tblPr": "tblStyle tblpPr tblOverlap bidiVisual tblStyleRowBandSize tblStyleColBandSize tblW "
             "jc tblCellSpacing tblInd tblBorders shd tblLayout tblCellMar tblLook",
    "tblCellMar": "top start left bottom end right",
    "tbl": "tblPr tblGrid tr",
    "tr": "tblPrEx trPr tc",
    "tc": "tcPr p",
    "p": "pPr r",
    "r": "rPr t tab br",
    "sectPr": "headerReference footerReference type pgSz pgMar pgBorders pgNumType cols titlePg "
              "docGrid",
    "style": "name aliases basedOn next link autoRedefine hidden uiPriority semiHidden "
             "unhideWhenUsed qFormat locked pPr rPr tblPr trPr tcPr",
    "styles": "docDefaults latentStyles style",
    "settings": "zoom defaultTabStop characterSpacingControl compat decimalSymbol listSeparator",
}
FREE_ORDER = {"r": {"t", "tab", "br"}}  # these are in the order of the text


FOLDER = None
TEMPLATES = {}


def setUpModule():
    global FOLDER
    FOLDER = reading.templates_folder()
    for name in PLACEHOLDERS:
        TEMPLATES[name] = Template(FOLDER / (name + ".doc"))


def span(cell):
    found = find(cell, "tcPr", "gridSpan")
    return 1 if found is None else number(found)


def without_borders(row):
    """The last row of a table has its bottom border; otherwise a grid's rows are equal."""
    copy = etree.fromstring(etree.tostring(row))
    for borders in list(copy.iter(W + "tcBorders")):
        borders.getparent().remove(borders)
    return etree.tostring(copy)


def on_each(check):
    """Turns a check of one template into a test of them all, which names the template that fails."""
    @functools.wraps(check)
    def test(self):
        self.assertEqual(len(TEMPLATES), 20 + 26)
        for name, template in TEMPLATES.items():
            with self.subTest(template=name):
                check(self, template)
    return test


# --- Contents --------------------------------------------------------------

class Placeholders(unittest.TestCase):
    @on_each
    def test_exactly_those_of_the_table_each_once_and_whole(self, template):
        expected = words(PLACEHOLDERS, template.name)
        if template.name not in WITHOUT_MARK:
            expected += ["or"] * (1 + SPARES.get(template.name, 0))
        found = Counter(t.text for t in template.document.iter(W + "t")
                        if "{" in t.text or "}" in t.text)
        self.assertEqual(found, Counter("{%s}" % name for name in expected))
        # The search ignores case, and a match may span several runs.
        whole = "".join(text(p) for p in template.document.iter(W + "p")).lower()
        for name in expected:
            self.assertEqual(whole.count("{%s}" % name), expected.count(name), name)

    @on_each
    def test_only_the_spare_marks_are_hidden(self, template):
        hidden = [text(run) for run in template.document.iter(W + "r") if find(run, "rPr", "vanish") is not None]
        self.assertEqual(hidden, ["{or}"] * SPARES.get(template.name, 0))
        if template.name not in WITHOUT_MARK:
            self.assertIsNone(find(template.run_of("or"), "rPr", "vanish"), "the first is the one that shows")

    @on_each
    def test_mark_stands_beside_the_page_number(self, template):
        page = re.match(r"Claim1[Aa]? P(\d+)", template.name).group(1)
        numbers = [text(p) for p in template.document.iter(W + "p")
                   if re.search(r"^%s \{or\}$|Page %s( (\{or\})+)?$" % (page, page), text(p))]
        self.assertEqual(len(numbers), 1)
        self.assertEqual("{or}" in numbers[0], template.name not in WITHOUT_MARK)

    @on_each
    def test_names_its_form_once(self, template):
        texts = [t.text for t in template.document.iter(W + "t")]
        self.assertEqual([text for text in texts if text.startswith("Claim 1")], [template.form])

    @on_each
    def test_tick_stands_in_a_large_run_of_its_own_before_its_word(self, template):
        for name in words(TICKS, template.name):
            run = template.run_of(name)
            self.assertEqual([child.tag for child in run], [W + "rPr", W + "t"], name)
            self.assertEqual(value(find(run, "rPr", "sz")), "26", name)
            self.assertRegex(text(run.getnext()), "^\u00a0\\w", name)

    @on_each
    def test_money_stands_at_the_right(self, template):
        for name in words(MONEY, template.name):
            self.assertTrue(template.is_right(template.run_of(name)), name)

    @on_each
    def test_totals_are_bold_also_when_typed(self, template):
        for name in words(TOTALS, template.name):
            run = template.run_of(name)
            for look in (find(run, "rPr"), find(run.getparent(), "pPr", "rPr")):
                bold = find(look, "b")
                self.assertIsNotNone(bold, name)
                self.assertNotEqual(value(bold), "0", name)

    @on_each
    def test_answers_are_not_bold(self, template):
        special = words(TOTALS, template.name) + ["or"]
        for t in template.document.iter(W + "t"):
            if t.text.startswith("{") and t.text[1:-1] not in special:
                self.assertIsNone(find(t.getparent(), "rPr", "b"), t.text)


# --- Lines and grids -------------------------------------------------------

class Grids(unittest.TestCase):
    @on_each
    def test_first_row_lies_at_its_offset_and_the_grid_holds_its_capacity(self, template):
        lines = list(template.lines())
        for offset, capacity, cells, money in GRIDS.get(template.name, []):
            rows = [row for _, row in lines[offset:offset + capacity]]
            self.assertEqual(len(rows), capacity)
            self.assertNotIn(None, rows)
            self.assertEqual(len({row.getparent() for row in rows}), 1)
            self.assertEqual(len({without_borders(row) for row in rows}), 1,
                             "all rows of a grid are equal")
            self.assertEqual(len(rows[0].findall(W + "tc")), cells)
            self.assertEqual(text(rows[0]), "")
            for i, cell in enumerate(rows[0].findall(W + "tc")):
                self.assertEqual([child.tag for child in cell], [W + "tcPr", W + "p"])
                self.assertEqual([child.tag for child in find(cell, "p")], [W + "pPr"])
                self.assertIsNotNone(find(cell, "p", "pPr", "rPr", "sz"),
                                     "typed text takes the look of the paragraph mark")
                if i in money:
                    self.assertEqual(value(template.property(find(cell, "p"), "jc")), "right")
            self.assertEqual(len(lines[offset - 1][1].findall(W + "tc")), cells,
                             "the heads stand right above")
            self.assertNotEqual(text(lines[offset - 1][1]), "")
            self.assertLess(offset + capacity, len(lines), "a line below the last row")

    @on_each
    def test_lines_above_are_one_short_paragraph_each(self, template):
        offsets = [grid[0] for grid in GRIDS.get(template.name, [])]
        offsets += [PLACES[template.name][0]] if template.name in PLACES else []
        for paragraph, row in list(template.lines())[:max(offsets, default=0)]:
            width = 10200
            if row is not None:
                cell = find(row, "tc")
                self.assertEqual(len(cell.findall(W + "p")), 1)
                self.assertIsNone(find(cell, "tcPr", "vMerge"))
                width = number(find(cell, "tcPr", "tcW"), "w")
            self.assertIsNone(next(paragraph.iter(W + "br"), None))
            size = number(find(paragraph, "pPr", "rPr", "sz")) / 2
            # Half an em per letter is more than running text takes.
            self.assertLess(len(text(paragraph)) * size / 2 * 20, width, text(paragraph))

    @on_each
    def test_place_is_one_cell_with_one_empty_line(self, template):
        if template.name not in PLACES:
            return
        offset, capacity = PLACES[template.name]
        paragraph, row = list(template.lines())[offset]
        self.assertEqual(len(row.findall(W + "tc")), 1)
        self.assertEqual([child.tag for child in find(row, "tc")], [W + "tcPr", W + "p"])
        self.assertEqual([child.tag for child in paragraph], [W + "pPr"])
        self.assertEqual([(value(tab), value(tab, "pos"))
                          for tab in find(paragraph, "pPr", "tabs")],
                         [("right", "450"), ("left", "600")])
        line = number(template.property(paragraph, "spacing"), "line")
        self.assertGreaterEqual(number(find(row, "trPr", "trHeight")), capacity * line)

    def test_each_line_typed_in_the_place_moves_the_grid_of_page_6_by_one(self):
        template = Template(FOLDER / "Claim1 P6.doc")
        first_row = list(template.lines())[20][1]
        paragraph = list(template.lines())[3][0]
        for used in range(1, 10):
            paragraph.addnext(etree.fromstring(etree.tostring(paragraph)))
            self.assertIs(list(template.lines())[20 + used][1], first_row)

    @on_each
    def test_grids_are_free_of_cells_that_confuse_a_cursor(self, template):
        self.assertIsNone(next(template.document.iter(W + "gridBefore"), None))
        self.assertIsNone(next(template.document.iter(W + "gridAfter"), None))
        if template.name in GRIDS or template.name in PLACES:
            self.assertIsNone(next(template.document.iter(W + "vMerge"), None))


# --- One sheet is one page -------------------------------------------------

class Sheets(unittest.TestCase):
    @on_each
    def test_begins_with_the_quiet_line(self, template):
        first = template.body[0]
        self.assertEqual([child.tag for child in first], [W + "pPr"])
        self.assertEqual(value(template.property(first, "jc")), "right")
        self.assertIsNotNone(find(first, "pPr", "rPr", "b"))
        self.assertEqual(template.body[1].tag, W + "tbl")

    @on_each
    def test_ends_with_two_tails_and_a_section_of_its_own(self, template):
        *_, before, first, second, section = template.body
        for tail in (first, second):
            self.assertEqual([child.tag for child in tail], [W + "pPr"])
            self.assertEqual(value(find(tail, "pPr", "rPr", "sz")), "2")
            self.assertEqual(number(template.property(tail, "spacing"), "line"), 20)
        self.assertEqual(section.tag, W + "sectPr")
        self.assertEqual(value(find(section, "type")), "nextPage")
        self.assertEqual((value(find(section, "pgSz"), "w"), value(find(section, "pgSz"), "h")),
                         ("11906", "16838"))
        self.assertEqual(len(list(template.document.iter(W + "sectPr"))), 1)
        self.assertIsNone(next(template.document.iter(W + "headerReference"), None))
        self.assertIsNone(next(template.document.iter(W + "footerReference"), None))

    @on_each
    def test_every_row_is_exact_and_whole(self, template):
        for row in template.document.iter(W + "tr"):
            self.assertEqual(value(find(row, "trPr", "trHeight"), "hRule"), "exact")
            self.assertIsNotNone(find(row, "trPr", "cantSplit"))

    @on_each
    def test_every_line_of_type_is_exact(self, template):
        for paragraph in template.document.iter(W + "p"):
            self.assertEqual(value(template.property(paragraph, "spacing"), "lineRule"),
                             "exact")

    @on_each
    def test_heights_leave_room_at_the_foot(self, template):
        self.assertLessEqual(template.height(), FULLEST)

    @on_each
    def test_tables_are_fixed_and_their_columns_add_up(self, template):
        for table in template.document.iter(W + "tbl"):
            self.assertEqual(value(find(table, "tblPr", "tblLayout"), "type"), "fixed")
            self.assertEqual(value(find(table, "tblPr", "tblInd"), "w"), "0")
            columns = [number(column, "w") for column in find(table, "tblGrid")]
            self.assertEqual(sum(columns), 10200)
            for row in table.findall(W + "tr"):
                begin = 0
                for cell in row.findall(W + "tc"):
                    end = begin + span(cell)
                    self.assertEqual(number(find(cell, "tcPr", "tcW"), "w"),
                                     sum(columns[begin:end]))
                    begin = end
                self.assertEqual(begin, len(columns))


# --- Packages --------------------------------------------------------------

class Packages(unittest.TestCase):
    def test_the_folder_holds_these_templates_and_nothing_else(self):
        self.assertEqual(sorted(path.name for path in FOLDER.iterdir()),
                         sorted(name + ".doc" for name in PLACEHOLDERS))

    @on_each
    def test_parts_are_the_fewest_and_in_order(self, template):
        self.assertEqual([entry.filename for entry in template.entries], PARTS)
        self.assertEqual({entry.date_time for entry in template.entries},
                         {(1980, 1, 1, 0, 0, 0)})

    def test_all_stand_on_one_base(self):
        for part in set(PARTS) - {"word/document.xml", "docProps/core.xml"}:
            with self.subTest(part=part):
                self.assertEqual(len({template.parts[part] for template in TEMPLATES.values()}), 1)

    @on_each
    def test_properties_differ_in_nothing_but_the_name_of_the_form(self, template):
        tagged = b"<dc:title>%s</dc:title>"
        own, first = (each.parts["docProps/core.xml"] for each in (template, TEMPLATES["Claim1 P1"]))
        self.assertEqual(own, first.replace(tagged % b"Claim 1", tagged % template.form.encode()))
        self.assertEqual(own.count(tagged % template.form.encode()), 1)

    def test_base_is_a_current_document_in_british_english(self):
        template = TEMPLATES["Claim1 P1"]
        settings = etree.fromstring(template.parts["word/settings.xml"])
        modes = {value(setting, "name"): value(setting)
                 for setting in settings.iter(W + "compatSetting")}
        self.assertEqual(modes["compatibilityMode"], "15")
        self.assertEqual(value(find(settings, "defaultTabStop")), "720")
        styles = etree.fromstring(template.parts["word/styles.xml"])
        defaults = find(styles, "docDefaults", "rPrDefault", "rPr")
        self.assertEqual(value(find(defaults, "lang")), "en-GB")
        self.assertEqual(value(find(defaults, "rFonts"), "ascii"), "Arial")

    def test_two_runs_give_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as one, tempfile.TemporaryDirectory() as two:
            make(one, TZ="UTC", PYTHONHASHSEED="1")
            make(two, TZ="Asia/Tokyo", PYTHONHASHSEED="2")
            for name in PLACEHOLDERS:
                with self.subTest(template=name):
                    made = [(Path(folder) / (name + ".doc")).read_bytes()
                            for folder in (one, two, FOLDER)]
                    self.assertEqual(made[0], made[1])
                    self.assertEqual(made[0], made[2])

    @on_each
    def test_nothing_a_word_processor_left_behind(self, template):
        everything = b"".join(template.parts.values())
        for trace in (b"rsid", b"paraId", b"bookmarkStart", b"proofErr", b"mc:Ignorable",
                      b"http://127", b"/tmp/", b"/home/", os.fsencode(SCRIPT.parents[2])):
            self.assertNotIn(trace, everything)

    @on_each
    def test_texts_keep_their_blanks(self, template):
        for t in template.document.iter(W + "t"):
            self.assertTrue(t.text)
            self.assertNotRegex(t.text, "[\t\n\r]")
            if " " in t.text:
                self.assertEqual(t.get(SPACE), "preserve", t.text)

    @on_each
    def test_children_stand_in_order(self, template):
        for part in ("word/document.xml", "word/styles.xml", "word/settings.xml"):
            for node in etree.fromstring(template.parts[part]).iter():
                tag = node.tag.replace(W, "")
                if tag not in ORDERS:
                    continue
                order, free = ORDERS[tag].split(), FREE_ORDER.get(tag, set())
                children = [child.tag.replace(W, "") for child in node]
                self.assertLessEqual(set(children), set(order), tag)
                places = [order.index(child) for child in children if child not in free]
                self.assertEqual(places, sorted(places), tag)

    @on_each
    def test_every_style_in_use_is_defined(self, template):
        used = {value(style) for style in template.document.iter(W + "pStyle")}
        self.assertLessEqual(used, set(template.styles))

    def test_every_style_defined_is_in_use(self):
        used = {value(style) for template in TEMPLATES.values()
                for style in template.document.iter(W + "pStyle")}
        own = {name for name in TEMPLATES["Claim1 P1"].styles if name.startswith("ZR3")}
        self.assertEqual(own, used)

    @on_each
    def test_every_run_and_mark_states_its_size(self, template):
        for run in template.document.iter(W + "r"):
            self.assertIsNotNone(find(run, "rPr", "sz"), text(run))
        for paragraph in template.document.iter(W + "p"):
            self.assertIsNotNone(find(paragraph, "pPr", "rPr", "sz"))


if __name__ == "__main__":
    reading.main()
