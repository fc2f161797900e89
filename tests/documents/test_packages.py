#!/usr/bin/env python3
"""Finished documents are consistent: checks that no schema makes, of faults for which a word processor offers repair.
"""

import posixpath
import re
import unittest
import zipfile
from collections import Counter
from xml.etree import ElementTree

import claims
import support

WORK = None
DOCUMENTS = {}
W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"
R = "{http://schemas.openxmlformats.org/officeDocument/2006/relationships}"
TYPES = "{http://schemas.openxmlformats.org/package/2006/content-types}"
SPACE = "{http://www.w3.org/XML/1998/namespace}space"
OFFICE_DOCUMENT = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument"

# The order in which strict readers expect the children of an element.
ORDERS = {
    "pPr": "pStyle keepNext keepLines pageBreakBefore framePr widowControl numPr suppressLineNumbers pBdr shd tabs "
           "suppressAutoHyphens kinsoku wordWrap overflowPunct topLinePunct autoSpaceDE autoSpaceDN bidi adjustRightInd "
           "snapToGrid spacing ind contextualSpacing mirrorIndents suppressOverlap jc textDirection textAlignment "
           "textboxTightWrap outlineLvl divId cnfStyle rPr sectPr pPrChange",
    "rPr": "rStyle rFonts b bCs i iCs caps smallCaps strike dstrike outline shadow emboss imprint noProof snapToGrid "
           "vanish webHidden color spacing w kern position sz szCs highlight u effect bdr shd fitText vertAlign rtl cs em "
           "lang eastAsianLayout specVanish oMath",
    "tcPr": "cnfStyle tcW gridSpan hMerge vMerge tcBorders shd noWrap tcMar textDirection tcFitText vAlign hideMark",
    "sectPr": "headerReference footerReference footnotePr endnotePr type pgSz pgMar paperSrc pgBorders lnNumType "
              "pgNumType cols formProt vAlign noEndnote titlePg textDirection bidi rtlGutter docGrid printerSettings",
    "tbl": "bookmarkStart bookmarkEnd tblPr tblGrid tr",
    "body": None,
}


def setUpModule():
    global WORK
    WORK = support.work_folder()
    for name in support.ALL_SAMPLES:
        DOCUMENTS[name] = support.export(support.SAMPLES / f"{name}.zr3", WORK / name)
    for name, claim in claims.made("full", "over"):
        DOCUMENTS[name] = support.export(claim.write(WORK / f"{name}.zr3"), WORK / name)


class Document:
    def __init__(self, path):
        with zipfile.ZipFile(path) as package:
            self.entries = package.infolist()
            self.parts = {entry.filename: package.read(entry) for entry in self.entries}
        self.trees = {name: ElementTree.fromstring(data) for name, data in self.parts.items()
                      if name.endswith((".xml", ".rels"))}
        self.main = next(target for _, kind, target, _ in self.relationships("") if kind == OFFICE_DOCUMENT)
        self.body = self.trees[self.main].find(W + "body")

    def relationships(self, part):
        """(id, type, target part, external) of a part's relationships; of the package's for an empty name."""
        folder, name = posixpath.split(part)
        tree = self.trees.get(posixpath.join(folder, "_rels", name + ".rels"))
        for relationship in [] if tree is None else tree:
            target = relationship.get("Target")
            external = relationship.get("TargetMode") == "External"
            if not external:
                target = posixpath.normpath(target[1:] if target.startswith("/") else posixpath.join(folder, target))
            yield relationship.get("Id"), relationship.get("Type"), target, external


def on_each(check):
    def test(self):
        self.assertEqual(len(DOCUMENTS), 15 + 4)
        for name, path in DOCUMENTS.items():
            with self.subTest(document=name):
                check(self, Document(path))
    test.__doc__ = check.__doc__
    return test


def local(element):
    return element.tag.rsplit("}", 1)[-1]


class Packages(unittest.TestCase):
    @on_each
    def test_entries_are_plain_and_bear_no_clock(self, document):
        names = [entry.filename for entry in document.entries]
        self.assertEqual(names[0], "[Content_Types].xml")
        self.assertEqual([name for name, count in Counter(map(str.lower, names)).items() if count > 1], [])
        self.assertEqual([name for name in names if name.endswith("/")], [])
        self.assertEqual(len({entry.date_time for entry in document.entries}), 1)
        self.assertLessEqual(document.entries[0].date_time[0], 1980)

    @on_each
    def test_relationships_lead_somewhere_and_are_all_there(self, document):
        for part in ["", *document.parts]:
            found = list(document.relationships(part))
            ids = [relationship[0] for relationship in found]
            self.assertEqual(len(ids), len(set(ids)), part)
            for _, _, target, external in found:
                if not external:
                    self.assertIn(target, document.parts, part)
            if part in document.trees and not part.endswith(".rels"):
                used = {value for element in document.trees[part].iter() for name, value in element.attrib.items()
                        if name.startswith(R)}
                self.assertLessEqual(used, set(ids), part)

    @on_each
    def test_every_part_is_reached_and_has_a_content_type(self, document):
        types = document.trees["[Content_Types].xml"]
        defaults = {entry.get("Extension").lower() for entry in types.findall(TYPES + "Default")}
        overrides = [entry.get("PartName") for entry in types.findall(TYPES + "Override")]
        self.assertEqual(len(overrides), len(set(overrides)))
        for name in overrides:
            self.assertIn(name.lstrip("/"), document.parts)
        reached, waiting = set(), [""]
        while waiting:
            for _, _, target, external in document.relationships(waiting.pop()):
                if not external and target not in reached:
                    reached.add(target)
                    waiting.append(target)
        for name in document.parts:
            if name == "[Content_Types].xml" or name.endswith(".rels"):
                continue
            self.assertTrue("/" + name in overrides or name.rsplit(".", 1)[-1].lower() in defaults, name)
            self.assertIn(name, reached)


class Stories(unittest.TestCase):
    @on_each
    def test_no_placeholder_is_left(self, document):
        self.assertEqual([t.text for t in document.body.iter(W + "t") if t.text and re.search(r"[{}]", t.text)], [])

    @on_each
    def test_ids_are_used_once(self, document):
        drawings = [element.get("id") for tree in document.trees.values() for element in tree.iter()
                    if local(element) == "docPr"]
        bookmarks = [element.get(W + "id") for element in document.body.iter(W + "bookmarkStart")]
        ends = [element.get(W + "id") for element in document.body.iter(W + "bookmarkEnd")]
        names = [element.get(W + "name") for element in document.body.iter(W + "bookmarkStart")]
        for ids in (drawings, bookmarks, ends, names):
            self.assertEqual([item for item, count in Counter(ids).items() if count > 1], [])
        self.assertEqual(sorted(bookmarks), sorted(ends))

    @on_each
    def test_styles_and_lists_are_defined(self, document):
        styles_part = next(target for _, kind, target, _ in document.relationships(document.main)
                           if kind.endswith("/styles"))
        styles = [style.get(W + "styleId") for style in document.trees[styles_part].iter(W + "style")]
        self.assertEqual(len(styles), len(set(styles)))
        used = {element.get(W + "val") for tag in ("pStyle", "rStyle", "tblStyle") for element in document.body.iter(W + tag)}
        self.assertLessEqual(used, set(styles))
        numbering = [target for _, kind, target, _ in document.relationships(document.main) if kind.endswith("/numbering")]
        lists = {num.get(W + "numId") for part in numbering for num in document.trees[part].iter(W + "num")}
        self.assertLessEqual({n.get(W + "val") for n in document.body.iter(W + "numId")} - {"0"}, lists)

    @on_each
    def test_blanks_are_kept(self, document):
        for t in document.body.iter(W + "t"):
            text = t.text or ""
            self.assertFalse(re.search(r"[\t\n\r\u000b]", text), repr(text))
            if text != text.strip(" ") or "  " in text:
                self.assertEqual(t.get(SPACE), "preserve", repr(text))

    @on_each
    def test_cells_and_tables_are_whole(self, document):
        for cell in document.body.iter(W + "tc"):
            self.assertEqual(local(cell[-1]), "p", "a cell ends with a paragraph")
        for table in document.body.iter(W + "tbl"):
            columns = len(table.find(W + "tblGrid"))
            for row in table.findall(W + "tr"):
                spans = [cell.find(f"{W}tcPr/{W}gridSpan") for cell in row.findall(W + "tc")]
                self.assertEqual(sum(1 if span is None else int(span.get(W + "val")) for span in spans), columns)
        previous = None
        for block in document.body:
            self.assertFalse(previous == "tbl" and local(block) == "tbl", "two tables in a row become one")
            previous = local(block)

    @on_each
    def test_children_stand_in_their_order(self, document):
        for element in document.body.iter():
            order = (ORDERS.get(local(element)) or "").split()
            if not order:
                continue
            children = [local(child) for child in element]
            places = [order.index(child) for child in children if child in order]
            self.assertEqual(places, sorted(places), f"{local(element)}: {children}")

    @on_each
    def test_each_sheet_is_a_section_of_its_own(self, document):
        sections = list(document.body.iter(W + "sectPr"))
        self.assertEqual(local(document.body[-1]), "sectPr", "the last section closes the body")
        for section in sections[1:]:
            kind = section.find(W + "type")
            self.assertIn("nextPage" if kind is None else kind.get(W + "val"), ("nextPage",))
        for section in sections:
            size = section.find(W + "pgSz")
            self.assertEqual((size.get(W + "w"), size.get(W + "h")), ("11906", "16838"))

    def test_there_are_as_many_sections_as_sheets(self):
        for name in support.ALL_SAMPLES:
            with self.subTest(document=name):
                self.assertEqual(len(list(Document(DOCUMENTS[name]).body.iter(W + "sectPr"))),
                                 len(support.expectations(name)["CombinedOrder"]))

    def test_every_typed_text_stands_in_the_document(self):
        """Compared with what was worked out for the samples; line breaks split a text."""
        for name in support.ALL_SAMPLES:
            expected = support.expectations(name)
            by_name = {sheet["Name"]: sheet for sheet in expected["Sheets"]}
            wanted = Counter()
            for file in expected["CombinedOrder"]:
                for op in by_name[file.removesuffix(".doc")]["Ops"]:
                    if op[0] not in ("replace", "cell", "settext") or isinstance(op[-1], dict) and op[-1]["tick"]:
                        continue
                    text = op[2] if op[0] == "replace" else op[1]
                    wanted.update(piece for piece in text.split("\u000b") if piece)
            found = Counter(t.text for t in Document(DOCUMENTS[name]).body.iter(W + "t") if t.text)
            with self.subTest(document=name):
                self.assertEqual(dict(list((wanted - found).items())[:5]), {})


if __name__ == "__main__":
    support.main()
