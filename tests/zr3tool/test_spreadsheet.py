#!/usr/bin/env python3
"""The list of claims opened in a spreadsheet: no text becomes a date or a formula, and the amounts are numbers.

ZR3_TOOL is the headless program, ZR3_SAMPLES the folder of the samples.
"""

import csv
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from urllib.parse import quote_plus

SKIPPED = 77
TOOL = os.environ["ZR3_TOOL"]
SAMPLE = Path(os.environ["ZR3_SAMPLES"]) / "housing-typical.zr3"
REFERENCES = ["=1+1", "+44 20 7946 0000", "-2-3", "@SUM(1)", '=HYPERLINK("http://x","y")', "1/2", "03/06/25", "2025-06-03",
              "12:30", "3-4-5", "12.5%", "Jan 5", "TRUE", 'it\'s, "so"']
# The defaults of the import window: comma, UTF-8, British English, no detection of special numbers.
READ = "Text - txt - csv (StarCalc):44,34,76,1,,2057,false,false,false"
# Exported as formulas, not as their values.
WRITTEN = "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,true"


def rows_of(path):
    with open(path, newline="", encoding="utf-8") as file:
        return list(csv.reader(file))


class Spreadsheet(unittest.TestCase):
    def test_no_text_becomes_a_date_or_a_formula(self):
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            (folder / "claims").mkdir()
            text = SAMPLE.read_text("latin-1")
            for number, reference in enumerate(REFERENCES):
                (folder / "claims" / f"{number:02}.zr3").write_text(
                    re.sub("(?<=<casereferencenumber>)[^<]*", lambda _: quote_plus(reference).replace("+", "%20"), text),
                    "latin-1")
            table = folder / "list.csv"
            table.write_bytes(subprocess.run([TOOL, "list", "--csv", folder / "claims"], check=True,
                                             capture_output=True).stdout)
            subprocess.run(["soffice", "--headless", f"-env:UserInstallation={(folder / 'profile').as_uri()}",
                            f"--infilter={READ}", "--convert-to", WRITTEN, "--outdir", folder / "opened", table],
                           capture_output=True, timeout=200)
            if not (folder / "opened/list.csv").is_file():
                print("skipped: no spreadsheet program is installed")
                sys.exit(SKIPPED)
            before, after = rows_of(table), rows_of(folder / "opened/list.csv")
        self.assertEqual(before, after)
        column = before[0].index("reference")
        for reference, row in zip(REFERENCES, after[1:], strict=True):
            self.assertEqual(("'" if reference[0] in "=+-@" else "") + reference, row[column])
        self.assertRegex(after[1][before[0].index("total")], r"^\d+\.\d\d$")


if __name__ == "__main__":
    if shutil.which("soffice") is None:
        print("skipped: no office program is installed")
        sys.exit(SKIPPED)
    unittest.main()
