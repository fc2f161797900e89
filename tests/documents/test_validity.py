#!/usr/bin/env python3
"""Every template and every finished document is valid.

Each check takes seconds. The templates, the claims with everything over and the empty ones, which together contain
every sheet of both forms, are checked for the oldest and the newest office version; the rest, which consist of the same
sheets, for the newest. With ZR3_VALIDATE=all everything is checked for every version that the validator knows: see
tests/long.
"""

import json
import os
import subprocess
import unittest
import zipfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import claims
import support

SCRIPT = Path(__file__).with_name("validate_documents.mjs")
VERSIONS = 7
NEWEST = ["Microsoft365"]
OLDEST_AND_NEWEST = ["Office2007", *NEWEST]
EVERY_SHEET = {"over", "empty", "over-1a", "empty-1a"}
WORK = None


def setUpModule():
    global WORK
    validator = os.environ.get("ZR3_VALIDATOR")
    if not validator or not Path(validator).exists():
        raise unittest.SkipTest(os.environ.get("ZR3_VALIDATOR_MISSING", "there is no document validator here"))
    support.need("node")
    WORK = support.work_folder()


def findings(files, versions_of=lambda file: OLDEST_AND_NEWEST):
    """The validator's findings for each file: lines such as "Office2007: word/document.xml: ..."."""
    everything = os.environ.get("ZR3_VALIDATE") == "all"

    def run(some):
        arguments = [str(file) + ("" if everything else "=" + ",".join(versions_of(file))) for file in some]
        return subprocess.run(["node", str(SCRIPT), os.environ["ZR3_VALIDATOR"], *arguments], check=True,
                              stdout=subprocess.PIPE, text=True).stdout.splitlines()

    halves = [half for half in (files[::2], files[1::2]) if half]
    found = {str(file): [] for file in files}
    looks = {str(file): set() for file in files}
    with ThreadPoolExecutor(2) as pool:
        for line in [line for lines in pool.map(run, halves) for line in lines]:
            entry = json.loads(line)
            looks[entry["file"]].add(entry["version"])
            found[entry["file"]] += [f"{entry['version']}: {finding['part']}: {finding['description']} {finding['path']}"
                                     for finding in entry["findings"]]
    for file in files:
        wanted = VERSIONS if everything else len(versions_of(file))
        assert len(looks[str(file)]) == wanted, f"{file} was looked at for {sorted(looks[str(file)])} only"
    return found


class Validity(unittest.TestCase):
    maxDiff = None

    def check(self, files, versions_of=lambda file: OLDEST_AND_NEWEST):
        for file, problems in findings(files, versions_of).items():
            with self.subTest(file=Path(file).parent.name if Path(file).stem in ("Claim1", "Claim1A") else Path(file).stem):
                self.assertEqual(problems[:10], [])

    def test_a_broken_document_is_found_out(self):
        """Makes sure that the validator works at all."""
        broken = WORK / "broken.doc"
        with zipfile.ZipFile(support.TEMPLATES / "Claim1 P9.doc") as package, zipfile.ZipFile(broken, "w") as out:
            for name in package.namelist():
                data = package.read(name)
                if name == "word/document.xml":
                    data = data.replace(b"<w:tblGrid>", b"<w:noSuchThing/><w:tblGrid>", 1)
                    self.assertIn(b"noSuchThing", data)
                out.writestr(name, data)
        self.assertNotEqual(findings([broken])[str(broken)], [])

    def test_templates(self):
        self.check(support.templates())

    def test_finished_documents(self):
        documents = [support.export(support.SAMPLES / f"{name}.zr3", WORK / name) for name in support.ALL_SAMPLES]
        for name, claim in claims.made("full", "over"):
            documents.append(support.export(claim.write(WORK / f"{name}.zr3"), WORK / name))
        self.check(documents, lambda file: OLDEST_AND_NEWEST if file.parent.name in EVERY_SHEET else NEWEST)


if __name__ == "__main__":
    support.main()
