"""What the tests of finished documents share: the folders that they are told, exports, and skipping.

    ZR3_TOOL       the headless program
    ZR3_TEMPLATES  the folder of the page templates
    ZR3_SAMPLES    the folder of the sample claims
    ZR3_VALIDATOR  the document validator's command; where it can't be had, ZR3_VALIDATOR_MISSING says why
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SKIPPED = 77  # what ctest knows as skipped

TOOL = os.environ.get("ZR3_TOOL", "")
TEMPLATES = Path(os.environ.get("ZR3_TEMPLATES", ""))
SAMPLES = Path(os.environ.get("ZR3_SAMPLES", ""))

ALL_SAMPLES = sorted(path.stem for path in SAMPLES.glob("*.zr3"))


def work_folder():
    """A folder that goes when the tests are done."""
    folder = tempfile.TemporaryDirectory()
    unittest.addModuleCleanup(folder.cleanup)
    return Path(folder.name)


def need(*programs):
    """Skips all tests of the module where a program is missing."""
    for program in programs:
        if not shutil.which(program):
            raise unittest.SkipTest(f"there is no {program} on this machine")


def export(claim, folder):
    """The finished document of a claim; its sheets stay beside it in ~ZR3Temp."""
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
    """Runs the tests of a file. Any that are skipped make the whole a skipped one, unless one has failed."""
    result = unittest.main(module="__main__", exit=False, verbosity=2).result
    if not result.wasSuccessful() or result.testsRun == 0 and not result.skipped:
        sys.exit(1)
    for _, reason in result.skipped:
        print(f"skipped: {reason}")
    sys.exit(SKIPPED if result.skipped else 0)
