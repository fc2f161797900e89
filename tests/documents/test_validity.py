#!/usr/bin/env python3
"""Every template and every finished document is valid.

The claims with everything over and the empty ones, which together hold every sheet of both forms, are looked at for every
office version that the validator knows; the rest, which is made of the same sheets, and the templates themselves for the
oldest and the newest, since each look takes seconds.  ZR3_VALIDATE=all looks at everything for every version.
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
OLDEST_AND_NEWEST = ("Office2007", "Microsoft365")
IN_FULL = {"over", "empty", "over-1a", "empty-1a"}
WORK = None


def setUpModule():
    global WORK
    validator = os.environ.get("ZR3_VALIDATOR")
    if not validator or not Path(validator).exists():
        raise unittest.SkipTest(os.environ.get("ZR3_VALIDATOR_MISSING", "there is no document validator here"))
    support.need("node")
    WORK = support.work_folder()


def findings(files, in_full=lambda file: True):
    """What the validator says of each file: lines such as "Office2007: word/document.xml: ..."."""
    complete = {str(file): os.environ.get("ZR3_VALIDATE") == "all" or in_full(file) for file in files}

    def run(some):
        arguments = [str(file) + ("" if complete[str(file)] else "=" + ",".join(OLDEST_AND_NEWEST)) for file in some]
        return subprocess.run(["node", str(SCRIPT), os.environ["ZR3_VALIDATOR"], *arguments], check=True,
                              stdout=subprocess.PIPE, text=True).stdout.splitlines()

    halves = [half for half in (files[::2], files[1::2]) if half]
    found = {str(file): [] for file in files}
    versions = {str(file): set() for file in files}
    with ThreadPoolExecutor(2) as pool:
        for line in [line for lines in pool.map(run, halves) for line in lines]:
            entry = json.loads(line)
            versions[entry["file"]].add(entry["version"])
            found[entry["file"]] += [f"{entry['version']}: {finding['part']}: {finding['description']} {finding['path']}"
                                     for finding in entry["findings"]]
    for file, seen in versions.items():
        wanted = VERSIONS if complete[file] else len(OLDEST_AND_NEWEST)
        assert len(seen) == wanted, f"{file} was looked at for {sorted(seen)} only"
    return found


class Validity(unittest.TestCase):
    maxDiff = None

    def check(self, files, in_full=lambda file: True):
        for file, problems in findings(files, in_full).items():
            with self.subTest(file=Path(file).parent.name if Path(file).stem in ("Claim1", "Claim1A") else Path(file).stem):
                self.assertEqual(problems[:10], [])

    def test_a_broken_document_is_found_out(self):
        """Else the other tests would prove nothing."""
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
        self.check(support.templates(), lambda file: False)

    def test_finished_documents(self):
        documents = [support.export(support.SAMPLES / f"{name}.zr3", WORK / name) for name in support.ALL_SAMPLES]
        for name, claim in claims.made("full", "over"):
            documents.append(support.export(claim.write(WORK / f"{name}.zr3"), WORK / name))
        self.check(documents, lambda file: file.parent.name in IN_FULL)


if __name__ == "__main__":
    support.main()
