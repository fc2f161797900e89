"""Shared by the tests of finished documents: the folders passed to them, exports, and skipping.

    ZR3_TOOL       the headless program
    ZR3_TEMPLATES  the folder of the page templates
    ZR3_SAMPLES    the folder of the sample claims
    ZR3_VALIDATOR  the document validator's command; if it is not available, ZR3_VALIDATOR_MISSING says why
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SKIPPED = 77  # skipped, for ctest

TOOL = os.environ.get("ZR3_TOOL", "")
TEMPLATES = Path(os.environ.get("ZR3_TEMPLATES", ""))
SAMPLES = Path(os.environ.get("ZR3_SAMPLES", ""))

ALL_SAMPLES = sorted(path.stem for path in SAMPLES.glob("*.zr3"))


def work_folder():
    """A folder that is deleted after the tests."""
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    return Path(folder.name)


def need(*programs):
    """Skips all tests of the module if a program is missing."""
    for program in programs:
        if not shutil.which(program):
            raise unittest.SkipTest(f"there is no {program} on this machine")


def export(claim, folder):
    """Exports a claim and returns its document; its sheets stay beside it in ~ZR3Temp."""
    folder.mkdir(parents=True)
    subprocess.run([TOOL, "export", str(claim), str(folder), "--templates", str(TEMPLATES), "--keep-sheets", "--quiet"],
                   check=True)
    (document,) = folder.glob("*.doc")
    assert document.name in ("Claim1.doc", "Claim1A.doc"), document.name
    return document


def templates():
    found = sorted(TEMPLATES.glob("*.doc"))
    assert len(found) == 46, f"{len(found)} templates in {TEMPLATES}"
    return found


def expectations(name):
    return json.loads((SAMPLES / f"{name}.sheets.json").read_text(encoding="utf-8"))


def main():
    """Runs the tests of a file. If any is skipped the whole counts as skipped, unless one has failed."""
    result = unittest.main(module="__main__", exit=False, verbosity=2).result
    if not result.wasSuccessful() or result.testsRun == 0 and not result.skipped:
        sys.exit(1)
    for _, reason in result.skipped:
        print(f"skipped: {reason}")
    sys.exit(SKIPPED if result.skipped else 0)
