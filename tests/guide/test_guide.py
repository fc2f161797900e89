#!/usr/bin/env python3
"""The user guide and the list of keys: sound as documents, and complete and word for word as in the program.

    ZR3_ROOT           the root of the repository
    ZR3_DOCUMENTATION  the folder of the finished documents
    ZR3_TOOL           the headless program
    ZR3_VERSION        the program's version
"""

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import tomllib
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import scan
import sheets

ROOT = Path(os.environ["ZR3_ROOT"])
DOCUMENTATION = Path(os.environ["ZR3_DOCUMENTATION"])
SOURCES = ROOT / "docs/guide"
GUIDE, SHORTCUTS = DOCUMENTATION / "Velmor ZR3 User Guide.pdf", DOCUMENTATION / "Velmor ZR3 Keyboard Shortcuts.pdf"

SKIPPED = 77  # skipped, for ctest

# Texts that no user can see, and why. Nothing else may be missing from the guide.
NEVER_SHOWN = {
    "Are you sure you wish to delete the selected": "no list lets more than one row be selected",
}


def same(text):
    """A text normalised for comparison: typographic quotation marks and line ends make no difference."""
    for mark, plain in {"‘": "'", "’": "'", "“": '"', "”": '"', "…": "...", "–": "-", "\u00a0": " "}.items():
        text = text.replace(mark, plain)
    return " ".join(text.split())


def printed(path, first=None, last=None, layout=False):
    options = ["-layout"] if layout else []
    options += ["-f", str(first)] if first else []
    options += ["-l", str(last)] if last else []
    return subprocess.run(["pdftotext", *options, path, "-"], check=True, capture_output=True, text=True).stdout


def information(path):
    lines = subprocess.run(["pdfinfo", path], check=True, capture_output=True, text=True).stdout.splitlines()
    return {name: value.strip() for name, _, value in (line.partition(":") for line in lines)}


def table(name):
    with open(SOURCES / name, "rb") as file:
        return tomllib.load(file)


def spoken(text):
    """A message of the table, split at the texts in braces, which vary."""
    return [same(piece) for piece in re.split(r"\{.+?\}|\n", text) if scan.WORD.search(piece)]


class Documents(unittest.TestCase):
    def setUp(self):
        if not (GUIDE.is_file() or SHORTCUTS.is_file()) and subprocess.run(
                [sys.executable, "-c", "import weasyprint, markdown"], capture_output=True).returncode:
            self.skipTest("the guide is not made without WeasyPrint and Python-Markdown")
        for program in ("pdfinfo", "pdftotext", "pdffonts"):
            if not shutil.which(program):
                self.skipTest(f"there is no {program} on this machine")

    def test_titles_and_sizes(self):
        for path, title, fewest, most in ((GUIDE, "Velmor ZR3 User Guide", 40, 140),
                                          (SHORTCUTS, "Velmor ZR3 Keyboard Shortcuts", 1, 2)):
            told = information(path)
            self.assertEqual(told["Title"], title)
            self.assertEqual(told["Tagged"], "yes")
            self.assertIn("A4", told["Page size"])
            self.assertTrue(fewest <= int(told["Pages"]) <= most, f"{told['Pages']} pages")
            self.assertLess(path.stat().st_size, 6 << 20)
            self.assertIn(b"/Lang (en-GB)", path.read_bytes())
            self.assertIn(os.environ["ZR3_VERSION"], printed(path, 1, 1))

    def test_fonts_are_embedded(self):
        for path in (GUIDE, SHORTCUTS):
            rows = subprocess.run(["pdffonts", path], check=True, capture_output=True, text=True).stdout.splitlines()[2:]
            self.assertTrue(rows)
            for row in rows:
                self.assertIn("Liberation", row)
                self.assertEqual(row.split()[-5], "yes", row)

    def test_the_same_sources_make_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", SOURCES / "make_guide.py", folder, os.environ["ZR3_VERSION"]], check=True)
            for path in (GUIDE, SHORTCUTS):
                self.assertEqual((Path(folder) / path.name).read_bytes(), path.read_bytes(), path.name)

    def test_contents_lead_to_their_pages(self):
        pages = printed(GUIDE).split("\f")
        self.assertEqual(len(pages) - 1, int(information(GUIDE)["Pages"]))
        # With the layout kept: otherwise the number of a chapter that starts a page comes before the page's head.
        contents = [page for page in printed(GUIDE, 2, 4, layout=True).split("\f") if same(page).startswith("Contents")]
        self.assertTrue(contents)
        rows = re.findall(r"^\s*(?:(\d+)\s+)?(\S.*?)[ .]{3,}(\d+)$", "\n".join(contents), flags=re.MULTILINE)
        chapters = [row for row in rows if row[0]]
        self.assertEqual([row[0] for row in chapters], [str(n + 1) for n in range(len(chapters))])
        self.assertEqual(len(chapters), len(list(SOURCES.glob("[0-9]*.md"))) - 2)  # appendix and index have no number
        for number, heading, page in rows:
            lines = [same(line) for line in pages[int(page) - 1].splitlines()]
            self.assertIn(same(f"{number} {heading}") if number else same(heading), lines, f"{heading} on page {page}")
            self.assertEqual([line for line in lines if line][-1], page)
        headings = re.findall(r"^##? (.+?)(?: \{#.*)?$", "\n".join(path.read_text(encoding="utf-8")
                              for path in SOURCES.glob("[0-9]*.md")), flags=re.MULTILINE)
        listed = [same(row[1]) for row in rows]
        for heading in headings:
            self.assertIn(same(heading), listed)

    def test_references_lead_somewhere(self):
        # A reference without a target would be printed without a number, or with a zero.
        text = same(printed(GUIDE))
        self.assertNotRegex(text, r"\(page \)|\(page 0\)")
        for page in re.findall(r"\(page (\d+)\)", text):
            self.assertLessEqual(int(page), int(information(GUIDE)["Pages"]))

    def test_index_leads_to_the_messages(self):
        pages = [same(page) for page in printed(GUIDE).split("\f")]
        start = next(i for i, page in enumerate(pages) if "Index of messages" in page and "first words" in page)
        rows = re.findall(r"(\S[^\n]*?)[ .]{3,}(\d+)$", "\n".join(printed(GUIDE, start + 1).split("\f")), flags=re.MULTILINE)
        self.assertGreater(len(rows), 80)
        for words, page in rows:
            part = max(re.split(r"\.\.\.", same(words)), key=len).strip()
            self.assertIn(part, pages[int(page) - 1], f"page {page}")


class Sources(unittest.TestCase):
    def setUp(self):
        self.text = "\n".join(path.read_text(encoding="utf-8") for path in sorted(SOURCES.glob("[0-9]*.md")))

    def test_pictures_are_there(self):
        names = re.findall(r"^!\[.+?\]\(([\w.-]+)", self.text, flags=re.MULTILINE)
        self.assertGreater(len(names), 40)
        for name in names:
            self.assertTrue((ROOT / "docs/screens" / name).is_file() or (ROOT / "docs/pictures" / name).is_file(), name)
        # Every screenshot is shown.
        for path in (ROOT / "docs/screens").glob("*.png"):
            self.assertIn(path.name, names)

    def test_every_tab_has_its_place(self):
        headings = re.findall(r"^#+ (.+?)(?: \{#.*)?$", self.text, flags=re.MULTILINE)
        tabs = (ROOT / "formdata/mdSectionTabs.cpp").read_text(encoding="utf-8")
        sections = (ROOT / "editors/mdSections.cpp").read_text(encoding="utf-8")
        first_row = re.findall(r'^\s*\{"([^"]+)",$', tabs, flags=re.MULTILINE)
        second_row = {name for row in re.findall(r"texts\(\{(.*?)\}\)", tabs, flags=re.DOTALL) for name in re.findall(r'"([^"]+)"', row)}
        known = set(re.findall(r'^\s*\{"([^"]+)",', sections, flags=re.MULTILINE))
        self.assertEqual(len(first_row), 4)
        self.assertEqual(second_row, known)
        for name in first_row:
            self.assertIn(f"The screens under {name}", headings)
        for name in sorted(known):
            self.assertIn(name, headings)

    def test_every_menu_entry_and_preference_is_told(self):
        menus = (ROOT / "shell/mdMainMenu.cpp").read_text(encoding="utf-8")
        entries = [entry.replace("&", "") for entry in re.findall(r'\{"&\w+",\s*"([^"]+)"', menus)]
        self.assertEqual(len(entries), 23)
        edit = (ROOT / "editors/clsEditMenu.cpp").read_text(encoding="utf-8")
        edited = [entry.replace("&", "") for entry in re.findall(r'^    \{"([^"]+)",\s*"mnu', edit, flags=re.MULTILINE)]
        self.assertEqual(edited, ["Undo", "Redo", "Paste Items...", "Import Items...", "Copy List", "Same Again",
                                  "Bring Back", "Find...", "Change Selected..."])
        entries += edited
        preferences = (ROOT / "editors/frmPreferences.cpp").read_text(encoding="utf-8")
        captions = re.findall(r'\{(?:Decimal|Tick|Text),\s*"\w+",\s*"([^"*]+)\*?"', preferences)
        self.assertEqual(len(captions), 7)
        told = (SOURCES / "13-preferences.md").read_text(encoding="utf-8")
        for entry in entries:
            self.assertIn(f"**{entry}**", self.text)
        for caption in captions:
            self.assertIn(f"| **{caption}** |", told)

    def test_every_caption_is_told(self):
        """The guide names every field and question of every screen; texts common to all questions need one mention."""
        quoted = r'(?:"(?:[^"\\]|\\.)*"\s*)+'
        row = re.compile(r'\{(?:\.kind = )?(?:Text|Tick|Decimal|Integer|Date|Time|List|Other|Button|Question),\s*'
                         rf'(?:\.control = )?"\w*",\s*(?:\.caption = )?({quoted})')
        screens = [path.read_text(encoding="utf-8") for name in ("frm*.cpp", "mdRateRows.cpp")
                   for path in sorted((ROOT / "editors").glob(name))]
        captions = {"".join(scan.literals(caption)).rstrip("*").rstrip(":") for code in screens for caption in row.findall(code)}
        captions -= {"Yes", "No", "%", "", *map(str, range(1, 14))}
        self.assertGreater(len(captions), 150)
        told = set(re.findall(r"\*\*(.+?)\*\*|(?<!\*)\*([^*\n]+?)\*(?!\*)|^(.+)\n: ", self.text, flags=re.MULTILINE))
        told = {name.strip().rstrip(":") for names in told for whole in names for name in (whole, *whole.split(", "))}
        for caption in sorted(captions):
            self.assertIn(caption, told)

    def test_every_code_is_told(self):
        code = (ROOT / "formdata/mdScheduleOfTimeCodesCollection.cpp").read_text(encoding="utf-8")
        codes = set(re.findall(r"\b[A-Z]{3}\b", " ".join(scan.literals(code))))
        self.assertEqual(len(codes), 32)
        self.assertEqual(codes, codes & set(re.findall(r"\b[A-Z]{3}\b", self.text)))


class Keys(unittest.TestCase):
    """The program's keys are those of the table."""

    NAMES = {"Return": "Enter", "Backtab": "Shift+Tab", "Escape": "Esc", "Plus": "Ctrl+Plus", "Equal": "Ctrl+Plus",
             "Minus": "Ctrl+Minus", "0": "Ctrl+0", "Y": "Ctrl+Y", "F": "Ctrl+F"}
    # Told with the keys that they go with; the last two only say which keys type a character.
    PARTS = {"Alt", "AltGr", "Control", "Meta", "Shift", "F10", "S", "Backspace", "ydiaeresis"}

    def setUp(self):
        self.keys = {key for group in table("keys.toml")["group"] for row in group["key"]
                     for key in re.findall(r"\[\[(.+?)\]\]", row["keys"])}
        self.sources = scan.Sources(ROOT)

    def test_menu_keys(self):
        keys = re.findall(r'"(Ctrl\+\w)"', self.sources.files["shell/mdMainMenu.cpp"])
        self.assertEqual(len(keys), 11)
        edit = re.findall(r'"mnu\w+",\s*"(Ctrl[^"]*)"', self.sources.files["editors/clsEditMenu.cpp"])
        edited = [key for row in edit for key in row.split("; ")]
        self.assertEqual(edited, ["Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+Y", "Ctrl+Shift+V", "Ctrl+Shift+C", "Ctrl+D", "Ctrl+F"])
        self.assertLessEqual({*keys, *edited}, self.keys)

    def test_no_other_file_sets_a_shortcut(self):
        for file, code in self.sources.files.items():
            for set_here in re.findall(r"(?:setShortcut|QShortcut)\(([^;]*)\);", code):
                # The menus; letters with Alt; what enlarges pages; Save and Add; what goes from section to section,
                # from finding to finding, or from one wrong cell to the next; Find where a screen has no menu for it.
                if file not in ("shell/mdMainMenu.cpp", "editors/oScreenFrame.cpp", "preview/oFormPages.cpp",
                                "editors/oScreenBar.cpp", "shell/frmMainCheck.cpp", "shell/frmMainSections.cpp",
                                "editors/frmPasteItems.cpp", "editors/frmScreenLists.cpp"):
                    self.assertIn("Qt::CTRL | Qt::Key_S", set_here, file)
            for standard in set(re.findall(r"QKeySequence::(\w+)", code)) - {"listFromString", "PortableText"}:
                self.assertIn(standard, ("mnemonic", "InsertLineSeparator", "Paste"), file)
        self.assertLessEqual({"Ctrl+S", "Ctrl+Up", "Ctrl+Down"}, self.keys)
        self.assertIn("Shift+Enter", self.keys)
        self.assertIn("Ctrl+Enter", self.keys)
        self.assertIn("Ctrl+V", self.keys)

    def test_every_key_that_the_code_names(self):
        named = set(re.findall(r"Qt::Key_(\w+)", self.sources.all))
        self.assertGreater(len(named), 20)
        for key in named - self.PARTS:
            self.assertIn(self.NAMES.get(key, key), self.keys)
        self.assertIn("Shift+F10", self.keys)

    def test_keys_of_the_start(self):
        keys = re.findall(r"\{u'(\w)', \w+\}", self.sources.files["shell/frmSplash.cpp"])
        self.assertEqual(keys, ["p", "r", "d"])
        self.assertLessEqual(set(keys), self.keys)

    def test_tiers_of_the_fee_earners(self):
        tiers = re.findall(r'\{(Qt::\w+(?: \| Qt::\w+)*),\s*(\d+),', self.sources.files["editors/oFeeEarnerCombo.cpp"])
        self.assertEqual(len(tiers), 8)
        rows = {row["does"]: row["keys"] for group in table("keys.toml")["group"] for row in group["key"]}
        for held, offset in tiers:
            keys = rows[f"Fee earners {int(offset) + 1} to {int(offset) + 12}"]
            told = set(re.findall(r"\[\[(.+?)\]\]", keys)[0].split("+")) - {"F1"}
            self.assertEqual(told, {name for name, flag in (("Shift", "Shift"), ("Ctrl", "Control"), ("Alt", "Alt")) if flag in held})

    def test_the_list_holds_the_table(self):
        if not shutil.which("pdftotext") or not SHORTCUTS.is_file():
            self.skipTest("the list can't be read here")
        text = same(printed(SHORTCUTS))
        for group in table("keys.toml")["group"]:
            self.assertIn(same(group["title"]), text)
            for row in group["key"]:
                plain = same(re.sub(r"\*\*|\[\[|\]\]", "", row["does"]))
                self.assertIn(plain.split()[0], text)


class Messages(unittest.TestCase):
    """Every text of the program has its entry, and every entry is a text of the program, word for word."""

    def setUp(self):
        self.sources = scan.Sources(ROOT)
        self.table = table("messages.toml")
        self.entries = [same(message["title"] + " | " + re.sub(r"\{.+?\}", "{}", message["text"]))
                        for group in self.table["group"] for message in group["message"]]
        self.rows = {name: [same(re.sub(r"\{.+?\}", "{}", row["words"])) for row in self.table[name]]
                     for name in ("error", "progress", "note", "tool")}
        self.calls = list(self.sources.calls())

    def told(self, pieces, entries):
        return any(all(same(piece) in entry for piece in pieces) for entry in entries)

    def places(self, call):
        """The entries that may contain a call's text."""
        if "zr3tool" in call.place:
            return self.rows["tool"] + self.rows["error"]
        if call.door in ("mdDocumentError", scan.ERROR):
            return self.rows["error"]
        if call.door == "mdSetProgress":
            return self.rows["progress"]
        if call.door == "tellLine":
            return self.rows["note"]
        return self.entries

    def test_the_scan_finds_what_there_is(self):
        doors = {call.door for call in self.calls}
        self.assertEqual(doors, {*scan.DOORS, scan.ERROR} - {"customMessage"})
        self.assertGreater(len([call for call in self.calls if call.pieces]), 55)

    def test_no_text_goes_round_the_scan(self):
        for call in self.calls:
            if call.door != scan.ERROR:
                self.assertTrue(call.pieces, f"{call.place} shows a text that the scan does not find")

    def test_there_is_no_other_door(self):
        for file, code in self.sources.files.items():
            used = set(re.findall(r"\b(QMessageBox|QErrorMessage|QInputDialog)\b", code))
            self.assertLessEqual(used, {"QMessageBox"} if file == "shell/clsWindowUserInterface.cpp" else set(), file)
            if "frmMessageBox" in code:
                self.assertIn(file, ("controls/frmMessageBox.h", "controls/frmMessageBox.cpp", "shell/clsWindowUserInterface.cpp"))
            self.assertLessEqual(set(re.findall(r"UserInterface\(\)\.(\w+)", code)), {
                "customMessage", "systemMessage", "showProgress", "clearProgress", "chooseFolder", "chooseFileToOpen",
                "chooseFileToSave", "chooseFileToExport", "playSound", "openTarget", "tellLine"}, file)

    def test_every_text_has_its_entry(self):
        for call in self.calls:
            pieces = [piece for piece in call.pieces if piece not in NEVER_SHOWN]
            # If one call has several possible messages, each piece must be found.
            whole = self.told(pieces, self.places(call))
            for piece in pieces if not whole else []:
                self.assertTrue(self.told([piece], self.places(call)),
                                f'{call.place}: the guide does not tell the message "{piece}"')

    def test_every_error_has_its_row(self):
        code = self.sources.files["base/clsRunTimeError.cpp"]
        numbers = dict(re.findall(r"(\w+) = (\d+),", self.sources.files["base/clsRunTimeError.h"]))
        rows = re.findall(r'\{clsRunTimeError::(\w+), "([^"]+)"\}', code)
        self.assertEqual(len(rows), len(numbers))
        told = {(row["number"], row["words"]) for row in self.table["error"]}
        for name, words in rows:
            self.assertIn((int(numbers[name]), words), told)

    def test_the_tool_says_nothing_else(self):
        written = [text for file, code in self.sources.files.items() for text in
                   re.findall(r'f(?:puts|printf)\(\s*(?:\w+, )?"([^"]*[a-z]{2} [^"]*)"', code)]
        self.assertEqual(len(written), 1)
        for text in written:
            self.assertTrue(self.told(scan.pieces(text.replace(r"\n", "\n")), self.rows["tool"]), text)

    def test_every_note_is_told(self):
        notes = re.findall(r'\.(?:empty|whyNoTick|whatFits)\s*=\s*(?:QLatin1String\()?"([^"]+)"', self.sources.all)
        for name in set(re.findall(r"\bwhyNo[A-Z]\w*", self.sources.all)) | {"wordsOf"}:
            notes += scan.literals(self.sources.body(name))
        notes += [text for text in scan.literals(self.sources.files["editors/oSpellingNote.cpp"]) if " " in text]
        notes += [text for text in scan.literals(self.sources.files["editors/mdLoadMenuFromCollection.cpp"]) if " " in text]
        # The bar under the header: its sentences and their reasons, and no captions.
        for file in ("shell/clsJournalKeeper.cpp", "shell/frmMainFirm.cpp", "commands/mdFailureInWords.cpp", "commands/clsJournal.cpp"):
            notes += [text for text in scan.literals(self.sources.files[file])
                      if text.count(" ") > 1 and "&" not in text and "%" not in text.replace("%1", "")]
        self.assertGreater(len(notes), 28)
        told = [same(re.sub(r"\{.+?\}", "{}", row["words"])) for row in self.table["note"]]
        for note in notes:
            for piece in scan.pieces(note):
                self.assertTrue(self.told([piece], told), f'the guide does not tell the note "{note}"')

    def test_every_entry_is_said(self):
        said = [same(piece) for text in scan.literals(self.sources.all) for piece in scan.pieces(text)]
        for group in self.table["group"]:
            for message in group["message"]:
                for piece in spoken(message["title"]) + spoken(message["text"]):
                    self.assertTrue(any(piece.strip(" .?,:") in text for text in said), f'nothing says "{piece}"')
        for name in self.rows:
            for row in self.table[name]:
                for piece in spoken(row["words"]):
                    piece = piece.split(": ", 1)[-1] if name == "tool" else piece
                    self.assertTrue(any(piece.strip(" .?,:") in text for text in said), f'nothing says "{piece}"')

    def test_entries_are_complete(self):
        for group in self.table["group"]:
            for message in group["message"]:
                self.assertTrue(message["means"].strip() and message["do"].strip(), message["text"])

    def test_the_guide_prints_them(self):
        if not shutil.which("pdftotext") or not GUIDE.is_file():
            self.skipTest("the guide can't be read here")
        text = same(printed(GUIDE))
        for group in self.table["group"]:
            for message in group["message"]:
                for piece in spoken(message["title"]) + spoken(message["text"]):
                    self.assertIn(piece, text)


class Example(unittest.TestCase):
    """The claim of the guide's walkthrough has the figures that the guide states."""

    def totals(self, name):
        claim = Path(__file__).resolve().parent / f"{name}.zr3"
        return json.loads(subprocess.run([os.environ["ZR3_TOOL"], "totals", claim], check=True, capture_output=True).stdout)

    def test_figures(self):
        text = (SOURCES / "10-figures.md").read_text(encoding="utf-8").partition("## A worked example")[2]
        figures = self.totals("okafor")
        told = re.findall(r"^\| (\d) \|.*\| ([\d.]+) \| [\d.]+ \| ([\d.]+) \| (?:(\d+) %|none)[^|]*\| ([\d.]+) \|$", text, flags=re.MULTILINE)
        self.assertEqual(len(told), 6)
        for (number, rate, basic, percentage, claim), item in zip(told, figures["ScheduleItems"], strict=True):
            self.assertEqual([int(number), float(rate), float(basic), float(percentage or 0), float(claim)],
                             [item["SOTItemNumber"], *(float(item[name]) for name in
                                                       ("Rate", "BasicClaim", "TotalEnhancementPercentage", "Claim"))])
        for amount in [*figures["ColumnClaimTotal"], figures["ScheduleTotal"], figures["CommsTotal"], figures["ProfitCostsTotal"],
                       figures["ProfitCostsVAT"], *(line["Claim"] for line in figures["Communications"] if line["Claim"] != "0"),
                       *(value for value in figures["Summary"].values() if value != "0")]:
            self.assertRegex(text.replace(",", ""), rf"(?<![\d.]){re.escape(amount)}0?0?(?![\d])", amount)

    def test_the_first_claim_says_the_same(self):
        text = (SOURCES / "03-first-claim.md").read_text(encoding="utf-8")
        figures = self.totals("okafor")
        for amount in [*figures["ColumnClaimTotal"], figures["ScheduleTotal"], figures["CommsTotal"], figures["ProfitCostsTotal"]]:
            self.assertIn(f"*{float(amount):.2f}*", text)
        self.assertIn(f'*{float(figures["Summary"]["grandtotal"]):,.2f}*', text)

    def test_load_from_bill_gives_what_the_second_claim_says(self):
        text = (SOURCES / "04-claim-1a.md").read_text(encoding="utf-8")
        before, after = self.totals("okafor"), self.totals("okafor-1a")
        loaded = float(before["ProfitCostsTotal"]) - float(before["AdvocacyTotal"])
        self.assertIn(f"*{loaded:.2f}* and *{loaded * 0.2:.2f}*", text)
        # The hearing is removed from the schedule when the scheme bills it, so the rest equals what the button gave
        # before.
        self.assertEqual(f"{loaded:.2f}", after["ProfitCostsTotal"])
        plain = sum(float(item["BasicClaim"]) for item in after["ScheduleItems"]) + 44.55 + 11.85 + 8.20 + 24.30
        self.assertIn(f"*{plain:.2f}* and *{plain * 0.2:.2f}*", text)

    def test_the_item_of_the_scheme(self):
        text = (SOURCES / "10-figures.md").read_text(encoding="utf-8")
        figures = self.totals("okafor-1a")
        self.assertEqual(figures["FASItemsTotal"], "226.475")
        self.assertIn("the item is 226.475, printed as 226.48", text)
        self.assertEqual(figures["AdvocacyTotal"], "226.48")
        two = sheets.Claim(ROOT / "tests/samples/housing-typical.zr3", "Claim1A").add(
            "fasitems", 2, hearingunits="2", rateforunits="90.59", boltonclaimed="25", courtbundlepayment="0.00",
            settlementfee="0.00", exceptionaltravel="0.00", vatforfas="0.00")
        self.assertEqual(two.figures(os.environ["ZR3_TOOL"])["FASItemsTotal"], "452.95")
        self.assertIn("two of these, each printed as 226.48, are 452.95 together", text)


class Sheets(unittest.TestCase):
    """What the guide says of the sheets is what the program prints."""

    LONG = "word " * 180

    def claim(self, form, *pages):
        return sheets.Claim(ROOT / "tests/samples/housing-typical.zr3", form, *pages)

    def hearings(self, hearings, bolt_ons=0, travel=0):
        return self.claim("Claim1A", 8).add(
            "fasitems", hearings, ddate="03/02/26", hearingunits="1", rateforunits="10.00", boltonclaimed="0",
            courtbundlepayment="0.00", settlementfee="0.00", exceptionaltravel="0.00", vatforfas="0.00",
            boltondescription=lambda number: "at risk" if number <= bolt_ons else "",
            exceptionaltraveldistance="", exceptionaltravelreason=lambda number: "far" if number <= travel else "")

    def rows(self):
        """The rows of the table of odd marks: the page, the case, the mark beside the page number."""
        text = (SOURCES / "12-export.md").read_text(encoding="utf-8")
        table = text.split("{#odd-marks}")[1].split("\n\n", 2)[2].split("\n\n")[0]
        rows, page = [], ""
        for line in table.splitlines()[2:]:
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            page = cells[0] or page
            rows.append((page, *cells[1:]))
        return rows

    def test_marks_that_look_odd(self):
        reasons, case = "expertsmeetmojstandardreasons", "detailsofwork/detailsofcase"
        levels = "actualcostsincurred/privatelawworkatalllevelsreasons"
        counsel, page_6, page_8 = "Claim 1, page 4; Claim 1A, page 5", "Claim 1, page 6", "Claim 1A, page 8"
        six, joint_7 = self.claim, "Only the joint instructions have one."
        made = [
            (counsel, "fees have none.", "4(1)", self.claim("Claim1", 3, 4).write(case, self.LONG)),
            (counsel, "fees have none.", "5(1)", self.claim("Claim1A", 4, 5).write(levels, self.LONG)),
            (counsel, "Both", "4(1)", self.claim("Claim1", 3, 4).write(case, self.LONG).add_fees(33)),
            (counsel, "Both", "5(1)", self.claim("Claim1A", 4, 5).write(levels, self.LONG).add_fees(33)),
            (page_6, "Only the experts", "6(1)", six("Claim1", 6).add("expertinvoices", 12)),
            (page_6, "only the reasons", "6(1)", six("Claim1", 6).write(reasons, self.LONG)),
            (page_6, "only its last", "6(1)", six("Claim1", 6).add_descriptions(8, 8)),
            ("Claim 1, page 7", joint_7, "7(1)", self.claim("Claim1", 7).add("jointinstructions", 15)),
            ("Claim 1A, page 6", "Only the reasons", "6(1)", six("Claim1A", 6).write(reasons, self.LONG)),
            ("Claim 1A, page 7", joint_7, "7(1)", self.claim("Claim1A", 7).add("jointinstructions", 15)),
            (page_8, "Only the hearings", "8(1)", self.hearings(17)),
            (page_8, "only the bolt-on", "8(1)", self.hearings(7, bolt_ons=7)),
            (page_8, "hearings and the bolt-on", "8(1)", self.hearings(17, bolt_ons=7)),
            (page_8, "hearings and the exceptional", "8(1)", self.hearings(17, travel=11)),
            ("Claim 1A, page 11", "only its last", "11(1)", self.claim("Claim1A", 11).add_descriptions(10, 15)),
        ]
        rows = self.rows()
        used = set()
        for page, when, name, claim in made:
            with self.subTest(page=page, when=when, sheet=name):
                fitting = [row for row in rows if row[0] == page and when in row[1]]
                self.assertEqual(len(fitting), 1)
                used.add(fitting[0])
                told = "" if fitting[0][2] == "nothing" else re.match(r"\(\d\)", fitting[0][2])[0]
                printed_marks = sheets.marks(claim.sheets(os.environ["ZR3_TOOL"])[name])
                self.assertEqual(printed_marks, (told, ""), "beside the page number, and above the first line")
        self.assertEqual(used, set(rows))

    def test_further_sheets_of_counsel_count_on(self):
        made = self.claim("Claim1", 3, 4).write("detailsofwork/detailsofcase", self.LONG).add_fees(33)
        self.assertIn("4(3)", made.sheets(os.environ["ZR3_TOOL"]))
        self.assertIn("the first is (3)", self.rows()[1][1])

    def test_page_7_loses_each_sheet_that_both_lists_have(self):
        text = (SOURCES / "12-export.md").read_text(encoding="utf-8")
        for joint, other, lost in ((15, 13, [15]), (75, 13, range(15, 45)), (45, 45, range(15, 46)), (15, 77, [15])):
            made = self.claim("Claim1", 7)
            made.add("jointinstructions", joint, experttype=lambda number: f"Joint {number}")
            made.add("disbursements", other, counsel="False", description=lambda number: f"Other {number}")
            printed_lines = made.joined(os.environ["ZR3_TOOL"])
            missing = [number for number in range(1, joint + 1) if f"Joint {number}" not in printed_lines]
            self.assertEqual(missing, list(lost), (joint, other))
            self.assertEqual([number for number in range(1, other + 1) if f"Other {number}" not in printed_lines], [])
        for words in ("each further sheet of the other disbursements takes the place",
                      "With two further sheets of each, both sheets of the joint instructions are lost",
                      "with three of the joint instructions and one of the others, the first"):
            self.assertIn(words, text)

    def test_the_room_for_descriptions(self):
        text = (SOURCES / "12-export.md").read_text(encoding="utf-8")
        told = re.search(r"first sheet holds (\d+) lines on Claim 1 and (\d+) on Claim 1A, a further one (\d+)", text)
        first, first_1a, further = (int(number) for number in told.groups())
        for form, page, room in (("Claim1", 6, first), ("Claim1A", 11, first_1a)):
            # The rule below each description takes one more line.
            rest = further - (room + 1) - 1
            for lines, count in (([room - 1], 1), ([room], 2), ([room, rest], 2), ([room, rest + 1], 3)):
                made = self.claim(form, page).add_descriptions(*lines).sheets(os.environ["ZR3_TOOL"])
                self.assertEqual(len([name for name in made if name.startswith(f"{page}(")]), count, (form, lines))
        self.assertIn(f"One of more than {further - 1} lines", text)


class Ways(unittest.TestCase):
    """Prev and Next lead where the guide says."""

    def setUp(self):
        self.sources = scan.Sources(ROOT)
        self.text = (SOURCES / "05-entering.md").read_text(encoding="utf-8")

    def routes(self):
        code = re.sub(r"\bSame\b", '"same"', re.sub(r"\bNowhere\b", '""', self.sources.files["editors/mdSectionRoutes.cpp"]))
        return {row[0]: row[1:] for row in re.findall(r'\{' + ",\\s*".join(['"([^"]*)"'] * 5) + r"\}", code)}

    def way(self, start, key, form):
        """The screens that a key leads to, until it leads nowhere or to one already visited."""
        routes, passed = self.routes(), [start]
        while True:
            ways = routes[passed[-1]][2 * (key == "Next >>"):][:2]
            target = ways[0] if form == "Claim 1" or ways[1] == "same" else ways[1]
            if not target:
                return passed, ""
            if target in passed:
                return passed, target
            passed.append(target)

    def test_prev_and_next(self):
        tabs = (ROOT / "docs/guide/02-first-start.md").read_text(encoding="utf-8")
        columns = {"Claim 1": 1, "Claim 1A": 2}
        rows = re.findall(r"^\|(.*?)\| \*\*(<< Prev|Next >>)\*\* \| (.*?) \| (.*?) \|$", self.text, re.MULTILINE)
        self.assertEqual(len(rows), 4)
        form = ""
        for named, key, screens, left_out in rows:
            form = named.strip() or form
            passed, again = self.way("Client Details" if key == "Next >>" else "Debtor's Details", key, form)
            self.assertEqual(screens, ", ".join(passed) + (f", and again {again}" if again else ""))
            sections = [name for tab in ("Pre-Bill", "Bill", "Post-Bill Sections") for name in
                        re.search(rf"^\| \*\*{tab}.*", tabs, re.MULTILINE)[0].split("|")[columns[form] + 1].strip().split(", ")]
            missing = [name for name in sections if name not in passed]
            self.assertEqual(left_out, ", ".join(missing) or "none")

    def test_the_screens_on_which_esc_stores(self):
        closing = [code for code in self.sources.files.values() if ".ending = clsScreenEnding::Close" in code]
        screens = {(re.search(r'\.section = "([^"]+)"', code) or re.search(r'\.header = "([^"]+)"', code))[1]
                   for code in closing}
        told = re.search(r"^: (\*\*Form Setup\*\*.*?)\. \*\*Close\*\*", self.text, re.MULTILINE)[1]
        self.assertEqual(set(re.findall(r"\*\*(.+?)\*\*", told)), screens)
        self.assertIn("On a screen with **Close**, [[Esc]] does the same as **Close**: it stores.", self.text)


def main():
    result = unittest.main(exit=False, verbosity=2).result
    if not result.wasSuccessful() or not result.testsRun:
        sys.exit(1)
    for _, reason in result.skipped:
        print(f"skipped: {reason}")
    sys.exit(SKIPPED if result.skipped else 0)


if __name__ == "__main__":
    main()
