#!/usr/bin/env python3
"""Every finished document prints correctly: one page for each sheet, with everything that was filled in."""

import re
import subprocess
import unittest
from collections import Counter
from urllib.parse import unquote_plus

import claims
import support

WORK = None
PDFS = {}

# Ticked and empty boxes in the extracted text.
TICKED, EMPTY = "\uf0fe\u2611\u2612\u00fe", "\uf0a8\u2610\u00a8"


def setUpModule():
    global WORK
    support.need("soffice", "pdftotext", "pdfinfo")
    WORK = support.work_folder()
    made = {name: support.SAMPLES / f"{name}.zr3" for name in support.ALL_SAMPLES}
    for name, claim in claims.made("full", "over", "wide"):
        made[name] = claim.write(WORK / f"{name}.zr3")
    printed = WORK / "printed"
    printed.mkdir()
    for name, claim in made.items():
        (printed / f"{name}.doc").write_bytes(support.export(claim, WORK / name).read_bytes())
    # The word processor is started once for all of them, with a profile of its own.
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
    """The names of the sheets of an export in the order in which they were joined; valid only if no sheet was written
    twice.
    """
    def key(path):
        return [int(number) for number in re.findall(r"\d+", path.stem)]

    return [path.stem for path in sorted((WORK / name / "~ZR3Temp").glob("*.doc"), key=key)]


def words(text):
    """The words of a text, without ticks and spaces of any kind. Marks without a placeholder are adjacent."""
    text = text.replace(")(", ") (")
    return [word for word in re.split(r"[\s\u00a0\u000b]+", text) if word and not set(word) <= set(TICKED + EMPTY)]


def typed_texts(sheet):
    """Every text that was typed on a sheet, and its number of boxes of each kind."""
    texts, ticked, empty = [], 0, 0
    marked = False
    for op in sheet["Ops"]:
        if op[:2] == ["replace", "{or}"]:
            if marked:
                continue  # only the first mark of a sheet shows
            marked = True
        if op[0] in ("cell", "settext") or op[0] == "replace":
            text = op[2] if op[0] == "replace" else op[1]
            if isinstance(op[-1], dict) and op[-1]["tick"]:
                ticked += text == "\u00fe"
                empty += text == "\u00a8"
            else:
                texts.append(text)
    return texts, ticked, empty


class Samples(unittest.TestCase):
    """Compared with results worked out for the samples independently of the program."""

    maxDiff = None

    def test_one_page_for_each_sheet_and_no_blank_one(self):
        for name in support.ALL_SAMPLES:
            with self.subTest(claim=name):
                found = pages(name)
                self.assertEqual(len(found), len(support.expectations(name)["CombinedOrder"]))
                for number, page in enumerate(found, 1):
                    self.assertGreater(len(words(page)), 10, f"page {number} is blank")

    def test_no_placeholder_is_left(self):
        for name in support.ALL_SAMPLES:
            with self.subTest(claim=name):
                self.assertEqual([line for page in pages(name) for line in page.splitlines() if re.search(r"[{}]", line)], [])

    def test_each_page_bears_its_number_and_mark(self):
        for name in support.ALL_SAMPLES:
            expected = support.expectations(name)
            ops = {sheet["Name"]: sheet["Ops"] for sheet in expected["Sheets"]}
            for file, page in zip(expected["CombinedOrder"], pages(name), strict=True):
                sheet = file.removesuffix(".doc")
                number = sheet.split("(")[0]
                # The first mark replaces the placeholder beside the page number.
                mark = next((op[2].strip() for op in ops[sheet] if op[0] == "replace" and op[1] == "{or}"), "")
                beside = rf"Page {number}" if number != "1" else r"\b1"
                with self.subTest(claim=name, sheet=sheet):
                    if number == "1":
                        self.assertIn("Page", page)
                    self.assertRegex(page, beside + (r" +" + re.escape(mark) if mark else r"(?! *\()(?!\d)"))

    def test_every_typed_word_is_printed_on_its_page(self):
        for name in support.ALL_SAMPLES:
            expected = support.expectations(name)
            by_name = {sheet["Name"]: sheet for sheet in expected["Sheets"]}
            for file, page in zip(expected["CombinedOrder"], pages(name), strict=True):
                texts, _, _ = typed_texts(by_name[file.removesuffix(".doc")])
                wanted = Counter(word for text in texts for word in words(text))
                missing = wanted - Counter(words(page))
                with self.subTest(claim=name, sheet=file):
                    self.assertEqual(dict(missing), {})

    def test_boxes_are_printed_ticked_and_empty(self):
        for name in support.ALL_SAMPLES:
            expected = support.expectations(name)
            by_name = {sheet["Name"]: sheet for sheet in expected["Sheets"]}
            for file, page in zip(expected["CombinedOrder"], pages(name), strict=True):
                _, ticked, empty = typed_texts(by_name[file.removesuffix(".doc")])
                with self.subTest(claim=name, sheet=file):
                    self.assertEqual(sum(page.count(c) for c in TICKED), ticked)
                    self.assertEqual(sum(page.count(c) for c in EMPTY), empty)


class Fullest(unittest.TestCase):
    maxDiff = None

    # The pages and the panel sheet; in "over" every grid and every long text has a continuation sheet.
    ORDERS = {
        "full": "1(1) 2(1) 3(1) 3(2) 4(1) 5(1) 6(1) 7(1) 8(1) 9(1) 10(1)",
        "over": "1(1) 2(1) 2(2) 3(1) 3(2) 3(3) 3(4) 4(1) 4(5) 4(6) 5(1) 5(2) 6(1) 6(2) 6(3) 6(4) 6(5) 6(6) "
                "7(1) 7(2) 7(3) 8(1) 9(1) 10(1)",
        "full-1a": "1(1) 2(1) 3(1) 4(1) 5(1) 6(1) 7(1) 8(1) 9(1) 9(2) 10(1) 11(1) 12(1) 13(1)",
        "over-1a": "1(1) 2(1) 3(1) 3(2) 4(1) 4(2) 5(1) 5(3) 5(4) 6(1) 6(2) 6(3) 6(4) 7(1) 7(2) 7(3) 7(4) "
                   "8(1) 8(2) 8(3) 8(4) 8(5) 8(6) 8(7) 8(8) 9(1) 9(2) 9(3) 10(1) 10(2) 11(1) 11(2) 11(3) 12(1) 13(1)",
    }
    FULL = ("full", "wide", "full-1a", "wide-1a")

    def test_one_page_for_each_sheet(self):
        for name in (*self.FULL, "over", "over-1a"):
            order = self.ORDERS[name.replace("wide", "full")].split()
            with self.subTest(claim=name):
                self.assertEqual(sheets(name), order)
                # The second grid of Claim 1's page 7 writes its 7(2) over that of the first, so it is in the document
                # twice.
                self.assertEqual(len(pages(name)), len(order) + (name == "over"))

    def test_each_page_is_full_and_bears_its_number(self):
        for name in self.FULL:
            for sheet, page in zip(sheets(name), pages(name), strict=True):
                with self.subTest(claim=name, sheet=sheet):
                    self.assertGreater(len(words(page)), 20)
                    if not sheet.startswith("1("):
                        self.assertRegex(page, rf"Page {sheet.split('(')[0]}\b")

    def test_nothing_is_cut_at_the_allowances(self):
        for name, form, where in (
                ("full", claims.CLAIM1, {
                    "latesubmission": "2(1)", "caseinformation": "2(1)", "detailsofwork": "3(1)",
                    "expertsmeetmojstandardreasons": "6(1)", "detailsofcostsawarded": "9(1)", "debtorsdetails": "10(1)"}),
                ("full-1a", claims.CLAIM1A, {
                    "natureofproceedings": "3(1)", "actualcostsincurred": "4(1)", "detailsofwork": "9(1)",
                    "expertsmeetmojstandardreasons": "6(1)", "detailsofcostsawarded": "12(1)", "debtorsdetails": "13(1)"})):
            claim = claims.full(form, claims.Words())
            found = dict(zip(sheets(name), pages(name), strict=True))
            for path in form.allowances:
                wanted = Counter(words(claim.root.find(path).text.replace("+", " ")))
                self.assertTrue(wanted)
                page = found[where.get(path.split("/")[0], "1(1)")]
                with self.subTest(claim=name, text=path):
                    self.assertEqual(dict(wanted - Counter(words(page))), {})

    def test_nothing_is_cut_on_continuation_sheets(self):
        for name, form, where in (
                ("over", claims.CLAIM1, {
                    "latesubmission/explanation": "2(2)", "detailsofwork/detailsofcase": "3(2)",
                    "detailsofwork/detailsofenhancement": "3(3)", "expertsmeetmojstandardreasons": "6(6)"}),
                ("over-1a", claims.CLAIM1A, {
                    "natureofproceedings/detailsofcase": "3(2)", "detailsofwork/detailsofcase": "9(2)",
                    "actualcostsincurred/privatelawworkatalllevelsreasons": "4(2)",
                    "expertsmeetmojstandardreasons": "6(4)"})):
            self.assertEqual(set(where), set(form.long_texts))
            claim = claims.over(form, claims.Words())
            # After page 7 of Claim 1, whose 7(2) is there twice, names and pages no longer match one to one.
            found = dict(zip(sheets(name)[:20] if form is claims.CLAIM1 else sheets(name), pages(name)))
            for path, sheet in where.items():
                wanted = Counter(words(claim.root.find(path).text.replace("+", " ")))
                with self.subTest(claim=name, text=path):
                    self.assertGreater(sum(wanted.values()), 400)
                    self.assertEqual(dict(wanted - Counter(words(found[sheet]))), {})

    def test_nothing_is_cut_in_the_grids(self):
        joint = ("jointinstructions", "7(1)", ("experttype", "partyname", "solicitor", "certificatereference",
                                               "percentapportioned"))
        others = ("disbursements", "7(1)", ("description",))
        experts = ("expertinvoices", "6(1)", ("expertgroup", "experttype", "netamount", "othercosts"))
        hearings = ("fasitems", "8(1)", ("ddate", "levelofcourt", "fdr", "actualtimespent", "boltonclaimed",
                                         "boltondescription", "exceptionaltraveldistance", "exceptionaltravelreason"))
        for name, form, grids in (
                ("full", claims.CLAIM1, (joint, others, experts, ("counsel", "4(1)", ("name",)))),
                ("full-1a", claims.CLAIM1A, (joint, others, experts, hearings, ("counsel", "5(1)", ("name",))))):
            claim = claims.full(form, claims.Words())
            found = dict(zip(sheets(name), pages(name), strict=True))
            for plural, sheet, cells in grids:
                for cell in cells:
                    wanted = Counter(word for item in claim.root.find(plural)
                                     for word in words(unquote_plus(item.find(cell).text or "")))
                    with self.subTest(claim=name, grid=plural, cell=cell):
                        self.assertTrue(wanted)
                        self.assertEqual(dict(wanted - Counter(words(found[sheet]))), {})

    def test_the_longest_judge_stands_on_two_lines(self):
        # A third line would be hidden by the row's edge, although the PDF still contains its words.
        page = str(sheets("full-1a").index("8(1)") + 1)
        boxes = subprocess.run(["pdftotext", "-bbox", "-f", page, "-l", page, str(PDFS["full-1a"]), "-"], check=True,
                               stdout=subprocess.PIPE).stdout.decode("utf-8")
        first, last = ([float(top) for top in re.findall(rf'yMin="([\d.]+)"[^>]*>{word}<', boxes)]
                       for word in ("Lay", "Clerks"))
        self.assertEqual(len(first), 4)
        for top, bottom in zip(sorted(first), sorted(last), strict=True):
            self.assertLess(bottom - top, 9)

    def test_no_amount_is_cut(self):
        for name, form, amounts in (
                ("full", claims.CLAIM1, (
                    ("1(1)", "8,888,888.88", 1), ("9(1)", "8,888,888.88", 9), ("10(1)", "8,888,888.88", 1),
                    ("4(1)", "97,777.76", 32), ("4(1)", "3,128,888.32", 1),
                    ("6(1)", "97,777.76", 11), ("6(1)", "97,777.68", 1),
                    ("7(1)", "888,888.88", 12), ("7(1)", "977,777.76", 12), ("7(1)", "11,733,333.12", 1),
                    ("5(1)", "88:59", 33), ("5(1)", "133,473.66", 33))),
                ("full-1a", claims.CLAIM1A, (
                    ("1(1)", "8,888,888.88", 1), ("3(1)", "8,888,888.88", 2), ("4(1)", "8,888,888.88", 3),
                    ("12(1)", "8,888,888.88", 8), ("13(1)", "8,888,888.88", 1),
                    ("5(1)", "97,777.76", 32), ("5(1)", "3,128,888.32", 1), ("6(1)", "97,777.76", 11),
                    ("7(1)", "888,888.88", 12), ("7(1)", "977,777.76", 12), ("7(1)", "11,733,333.12", 1),
                    # 88 units at 888.88, of which 88.88 per cent are 69,523.2159; three fixed payments and the VAT of
                    # 8,888.88 each.
                    ("8(1)", "78,221.44", 16), ("8(1)", "69,523.22", 16), ("8(1)", "8,888.88", 64),
                    ("8(1)", "174,411.30", 16),
                    ("10(1)", "88:59", 33), ("10(1)", "133,473.66", 33),
                    # On page 11 the total of the hearings again.
                    ("11(1)", "2,790,580.73", 1), ("11(1)", "142,222.08", 1)))):
            claim = claims.full(form, claims.Words())
            found = dict(zip(sheets(name), pages(name), strict=True))
            for sheet, amount, count in amounts:
                with self.subTest(claim=name, sheet=sheet, amount=amount):
                    self.assertGreaterEqual(Counter(words(found[sheet]))[amount], count)
            self.assertEqual(claim.root.find("detailsofcostsawarded/interestonallcosts").text,
                             claims.quote_plus(claims.MILLIONS, safe=""))

    def test_no_total_of_a_dense_grid_is_parted(self):
        # Of the 33 items the first three columns have seven each and the last two six, at 133,473.66 each.
        schedule = (("934,315.62", 3), ("800,841.96", 2), ("4,404,630.78", 1))
        experts = (("977,777.68", 1), ("1,075,555.36", 1))
        # Sixteen hearings at 174,411.2959 and 8,888.88.
        hearings = (("2,790,580.73", 1), ("142,222.08", 1))
        # The same for 34 items, 44 experts and 89 hearings.
        many_items = (("934,315.62", 4), ("800,841.96", 1), ("4,538,104.44", 1))
        many_experts = (("3,911,110.72", 1), ("391,110.72", 1), ("4,302,221.44", 1))
        many_hearings = (("15,522,605.34", 1), ("791,110.32", 1))
        for name, grids in (
                ("full", (("5(1)", schedule), ("6(1)", experts))),
                ("full-1a", (("10(1)", schedule), ("6(1)", experts), ("8(1)", hearings))),
                ("over-1a", (("10(2)", many_items), ("6(1)", many_experts), ("8(1)", many_hearings)))):
            found = dict(zip(sheets(name), pages(name), strict=True))
            for sheet, amounts in grids:
                for amount, count in amounts:
                    with self.subTest(claim=name, sheet=sheet, amount=amount):
                        self.assertEqual(Counter(words(found[sheet]))[amount], count)

    def test_notes_are_whole(self):
        for name, make, form, expected in (("full", claims.full, claims.CLAIM1, ["6(1)"]),
                                           ("over", claims.over, claims.CLAIM1, ["6(2)", "6(3)"]),
                                           ("full-1a", claims.full, claims.CLAIM1A, ["11(1)"]),
                                           ("over-1a", claims.over, claims.CLAIM1A, ["11(1)", "11(2)", "11(3)"])):
            claim = make(form, claims.Words())
            found = " ".join(page for sheet, page in zip(sheets(name), pages(name)) if sheet in expected)
            wanted = Counter(word for item in claim.root.find("scheduleoftimeitems")
                             for word in words((item.find("description").text or "").replace("+", " ")))
            with self.subTest(claim=name):
                self.assertTrue(wanted)
                self.assertEqual(dict(wanted - Counter(words(found))), {})


if __name__ == "__main__":
    support.main()
