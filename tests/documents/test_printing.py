#!/usr/bin/env python3
"""Every finished document prints as it should: one page for each sheet, and on it all that was filled in."""

import re
import subprocess
import unittest
from collections import Counter
from pathlib import Path

import claims
import support

WORK = None
PDFS = {}

# How ticked and empty boxes come out as text.
TICKED, EMPTY = "\uf0fe\u2611\u2612\u00fe", "\uf0a8\u2610\u00a8"


def setUpModule():
    global WORK
    support.need("soffice", "pdftotext", "pdfinfo")
    WORK = support.work_folder()
    made = {name: support.SAMPLES / f"{name}.zr3" for name in support.CLAIM1_SAMPLES}
    for name, claim in (("full", claims.full(claims.Words())), ("over", claims.over(claims.Words())),
                        ("wide", claims.full(claims.wide))):
        made[name] = claim.write(WORK / f"{name}.zr3")
    printed = WORK / "printed"
    printed.mkdir()
    for name, claim in made.items():
        (printed / f"{name}.doc").write_bytes(support.export(claim, WORK / name).read_bytes())
    # One start of the word processor for all of them, in a profile of its own.
    subprocess.run(["soffice", "--headless", f"-env:UserInstallation={(WORK / 'profile').as_uri()}", "--convert-to", "pdf",
                    "--outdir", str(printed), *map(str, sorted(printed.glob("*.doc")))],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=240)
    for name in made:
        pdf = printed / f"{name}.pdf"
        assert pdf.exists(), f"{name} was not printed"
        PDFS[name] = pdf


def pages(name):
    text = subprocess.run(["pdftotext", "-layout", str(PDFS[name]), "-"], check=True, stdout=subprocess.PIPE).stdout
    found = text.decode("utf-8").split("\f")
    assert found[-1].strip() == ""
    return found[:-1]


def sheets(name):
    """The names of the sheets of an export in the order in which they were joined; only for those where no sheet was
    made twice."""
    def key(path):
        return [int(number) for number in re.findall(r"\d+", path.stem)]

    return [path.stem for path in sorted((WORK / name / "~ZR3Temp").glob("*.doc"), key=key)]


def words(text):
    """The words of a text; ticks and blanks of all kinds aside. Marks that found no placeholder stand side by side."""
    text = text.replace(")(", ") (")
    return [word for word in re.split(r"[\s\u00a0\u000b]+", text) if word and not set(word) <= set(TICKED + EMPTY)]


def typed_texts(sheet):
    """Every text that was typed on a sheet, and how many boxes it has of each kind."""
    texts, ticked, empty = [], 0, 0
    for op in sheet["Ops"]:
        if op[0] in ("cell", "settext") or op[0] == "replace":
            text = op[2] if op[0] == "replace" else op[1]
            if isinstance(op[-1], dict) and op[-1]["tick"]:
                ticked += text == "\u00fe"
                empty += text == "\u00a8"
            else:
                texts.append(text)
    return texts, ticked, empty


class Samples(unittest.TestCase):
    """Against what was worked out for the samples independently of the program."""

    maxDiff = None

    def test_one_page_for_each_sheet_and_no_blank_one(self):
        for name in support.CLAIM1_SAMPLES:
            with self.subTest(claim=name):
                found = pages(name)
                self.assertEqual(len(found), len(support.expectations(name)["CombinedOrder"]))
                for number, page in enumerate(found, 1):
                    self.assertGreater(len(words(page)), 10, f"page {number} is blank")

    def test_no_placeholder_is_left(self):
        for name in support.CLAIM1_SAMPLES:
            with self.subTest(claim=name):
                self.assertEqual([line for page in pages(name) for line in page.splitlines() if re.search(r"[{}]", line)], [])

    def test_each_page_bears_its_number_and_mark(self):
        for name in support.CLAIM1_SAMPLES:
            expected = support.expectations(name)
            ops = {sheet["Name"]: sheet["Ops"] for sheet in expected["Sheets"]}
            for file, page in zip(expected["CombinedOrder"], pages(name), strict=True):
                sheet = file.removesuffix(".doc")
                number = sheet.split("(")[0]
                # The first mark takes the placeholder beside the page's number.
                mark = next((op[2].strip() for op in ops[sheet] if op[0] == "replace" and op[1] == "{or}"), "")
                beside = rf"Page {number}" if number != "1" else r"\b1"
                with self.subTest(claim=name, sheet=sheet):
                    if number == "1":
                        self.assertIn("Page", page)
                    self.assertRegex(page, beside + (r" +" + re.escape(mark) if mark else r"(?! *\()(?!\d)"))

    def test_every_typed_word_is_printed_on_its_page(self):
        for name in support.CLAIM1_SAMPLES:
            expected = support.expectations(name)
            by_name = {sheet["Name"]: sheet for sheet in expected["Sheets"]}
            for file, page in zip(expected["CombinedOrder"], pages(name), strict=True):
                texts, _, _ = typed_texts(by_name[file.removesuffix(".doc")])
                wanted = Counter(word for text in texts for word in words(text))
                missing = wanted - Counter(words(page))
                with self.subTest(claim=name, sheet=file):
                    self.assertEqual(dict(missing), {})

    def test_boxes_are_printed_ticked_and_empty(self):
        for name in support.CLAIM1_SAMPLES:
            expected = support.expectations(name)
            by_name = {sheet["Name"]: sheet for sheet in expected["Sheets"]}
            for file, page in zip(expected["CombinedOrder"], pages(name), strict=True):
                _, ticked, empty = typed_texts(by_name[file.removesuffix(".doc")])
                with self.subTest(claim=name, sheet=file):
                    self.assertEqual(sum(page.count(c) for c in TICKED), ticked)
                    self.assertEqual(sum(page.count(c) for c in EMPTY), empty)


class Fullest(unittest.TestCase):
    maxDiff = None

    def test_one_page_for_each_sheet(self):
        # Ten pages and the panel sheet; in the other claim every grid and every long text has gone over.
        self.assertEqual(sheets("full"), "1(1) 2(1) 3(1) 3(2) 4(1) 5(1) 6(1) 7(1) 8(1) 9(1) 10(1)".split())
        self.assertEqual(sheets("wide"), sheets("full"))
        for name in ("full", "wide"):
            with self.subTest(claim=name):
                self.assertEqual(len(pages(name)), 11)
        order = ("1(1) 2(1) 2(2) 3(1) 3(2) 3(3) 3(4) 4(1) 4(5) 4(6) 5(1) 5(2) 6(1) 6(2) 6(3) 6(4) 6(5) 6(6) "
                 "7(1) 7(2) 7(3) 8(1) 9(1) 10(1)").split()
        self.assertEqual(sheets("over"), order)
        # The second grid of page 7 made its 7(2) over that of the first, which stands twice.
        self.assertEqual(len(pages("over")), len(order) + 1)

    def test_each_page_is_full_and_bears_its_number(self):
        for name in ("full", "wide"):
            for sheet, page in zip(sheets(name), pages(name), strict=True):
                with self.subTest(claim=name, sheet=sheet):
                    self.assertGreater(len(words(page)), 20)
                    if not sheet.startswith("1("):
                        self.assertRegex(page, rf"Page {sheet.split('(')[0]}\b")

    def test_nothing_is_cut_at_the_allowances(self):
        claim = claims.full(claims.Words())
        found = pages("full")
        where = {"latesubmission": 2, "caseinformation": 2, "detailsofwork": 3, "expertsmeetmojstandardreasons": 7,
                 "detailsofcostsawarded": 10, "debtorsdetails": 11}
        for path in claims.ALLOWANCES:
            wanted = Counter(words(claim.root.find(path).text.replace("+", " ")))
            self.assertTrue(wanted)
            page = found[where.get(path.split("/")[0], 1) - 1]
            with self.subTest(text=path):
                self.assertEqual(dict(wanted - Counter(words(page))), {})

    def test_nothing_is_cut_on_continuation_sheets(self):
        claim = claims.over(claims.Words())
        found = dict(zip(sheets("over")[:20], pages("over")[:20]))
        for path, sheet in (("latesubmission/explanation", "2(2)"), ("detailsofwork/detailsofcase", "3(2)"),
                            ("detailsofwork/detailsofenhancement", "3(3)"), ("expertsmeetmojstandardreasons", "6(6)")):
            wanted = Counter(words(claim.root.find(path).text.replace("+", " ")))
            with self.subTest(text=path):
                self.assertGreater(sum(wanted.values()), 400)
                self.assertEqual(dict(wanted - Counter(words(found[sheet]))), {})

    def test_nothing_is_cut_in_the_grids(self):
        claim = claims.full(claims.Words())
        found = dict(zip(sheets("full"), pages("full"), strict=True))
        for plural, sheet, names in (("jointinstructions", "7(1)", ("experttype", "partyname", "solicitor",
                                                                    "certificatereference", "percentapportioned")),
                                     ("disbursements", "7(1)", ("description",)), ("counsel", "4(1)", ("name",)),
                                     ("expertinvoices", "6(1)", ("expertgroup", "experttype", "netamount", "othercosts"))):
            for name in names:
                wanted = Counter(word for item in claim.root.find(plural) for word in words((item.find(name).text or "").replace("+", " ").replace("%2E", ".")))
                with self.subTest(grid=plural, cell=name):
                    self.assertTrue(wanted)
                    self.assertEqual(dict(wanted - Counter(words(found[sheet]))), {})

    def test_no_amount_is_cut(self):
        claim = claims.full(claims.Words())
        found = dict(zip(sheets("full"), pages("full"), strict=True))
        for sheet, amount, count in (("1(1)", "8,888,888.88", 1), ("9(1)", "8,888,888.88", 9), ("10(1)", "8,888,888.88", 1),
                                     ("4(1)", "97,777.76", 32), ("4(1)", "3,128,888.32", 1),
                                     ("6(1)", "97,777.76", 11), ("6(1)", "97,777.68", 1),
                                     ("7(1)", "888,888.88", 12), ("7(1)", "977,777.76", 12), ("7(1)", "11,733,333.12", 1),
                                     ("5(1)", "88:59", 33), ("5(1)", "133,473.66", 33)):
            with self.subTest(sheet=sheet, amount=amount):
                self.assertGreaterEqual(Counter(words(found[sheet]))[amount], count)
        self.assertEqual(claim.root.find("detailsofmonies/value").text, claims.quote_plus(claims.MILLIONS, safe=""))

    def test_no_total_of_a_dense_grid_is_parted(self):
        found = dict(zip(sheets("full"), pages("full"), strict=True))
        # Of 33 items seven stand in each of the first three columns and six in the last two, at 133,473.66 each.
        for sheet, amount, count in (("5(1)", "934,315.62", 3), ("5(1)", "800,841.96", 2), ("5(1)", "4,404,630.78", 1),
                                     ("6(1)", "977,777.68", 1), ("6(1)", "1,075,555.36", 1)):
            with self.subTest(sheet=sheet, amount=amount):
                self.assertEqual(Counter(words(found[sheet]))[amount], count)

    def test_notes_are_whole(self):
        for name, claim, expected in (("full", claims.full(claims.Words()), ["6(1)"]),
                                      ("over", claims.over(claims.Words()), ["6(2)", "6(3)"])):
            found = " ".join(page for sheet, page in zip(sheets(name), pages(name)) if sheet in expected)
            wanted = Counter(word for item in claim.root.find("scheduleoftimeitems")
                             for word in words((item.find("description").text or "").replace("+", " ")))
            with self.subTest(claim=name):
                self.assertTrue(wanted)
                self.assertEqual(dict(wanted - Counter(words(found))), {})


if __name__ == "__main__":
    support.main()
