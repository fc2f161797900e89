"""Shared by the fault tests: running the tool with a plan of faults, the claims, and what counts as complete.

    ZR3_TOOL         the headless program
    ZR3_SAMPLES      the folder of the sample claims
    ZR3_FAULTS       the library that makes file operations fail
    ZR3_CLOCKS       the library of the jumping clock
    ZR3_FAULTS_FULL  set for the full run: every moment and every error, not a selection
    ZR3_KILLS        the number of kills at random moments in the full run
    ZR3_SEED         the random seed; printed, so that a run can be repeated
"""

import errno
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from collections import Counter
from dataclasses import dataclass
from pathlib import Path

SKIPPED = 77  # skipped, for ctest

LOCK = ".velmor-zr3.lock"  # stays after a kill during a save, until the next save there

TOOL = os.environ.get("ZR3_TOOL", "")
SAMPLES = Path(os.environ.get("ZR3_SAMPLES", ""))
FAULTS = os.environ.get("ZR3_FAULTS", "")
CLOCKS = os.environ.get("ZR3_CLOCKS", "")
FULL = bool(os.environ.get("ZR3_FAULTS_FULL"))
KILLS = int(os.environ.get("ZR3_KILLS", "1000")) if FULL else 40
SEED = int(os.environ.get("ZR3_SEED", "0")) or random.SystemRandom().randrange(1, 10**6)
chance = random.Random(SEED)

figures = Counter()

# Each message is a block that begins with its title.
MESSAGE = re.compile(r"^(File Not Saved|File Not Read|File Saved|Word Automation Error|Export|Export Path|Error|"
                     r"Standard output|Run-time error(?: '\d+')?): ", re.MULTILINE)


def count(row, column, number=1):
    figures[(row, column)] += number


@dataclass
class Step:
    """A file operation of the program."""
    number: int
    microseconds: int
    operation: str
    path: str
    fired: bool


@dataclass
class Result:
    status: int  # negative if a signal ended it
    out: str
    err: str
    steps: list

    @property
    def fired(self):
        return sum(step.fired for step in self.steps)

    @property
    def messages(self):
        return MESSAGE.findall(self.err)


def steps_of(log):
    if not log.exists():
        return []
    pattern = re.compile(r"(\d+) (\d+) (\S+) (.*?)( fired)?$")
    rows = [pattern.match(line).groups() for line in log.read_text().splitlines()]
    return [Step(int(number), int(moment), operation, path, bool(fired))
            for number, moment, operation, path, fired in rows]


def environment(under=None, at=0, do="", log=None, **more):
    """The environment of a run in which operation number `at` below a folder is changed as `do` says."""
    wanted = {**os.environ, "XDG_CONFIG_HOME": "/nonexistent", "XDG_CONFIG_DIRS": "/nonexistent"}
    if under:
        wanted |= {"LD_PRELOAD": FAULTS, "ZR3_FAULTS_UNDER": str(under), "ZR3_FAULTS_AT": str(at),
                   "ZR3_FAULTS_DO": do, "ZR3_FAULTS_LOG": str(log)}
    return wanted | more


def run(*words, under=None, at=0, do="", log=None, **options):
    """Runs the tool and waits for it."""
    if log:
        log.unlink(missing_ok=True)
    done = subprocess.run([TOOL, *map(str, words)], env=environment(under, at, do, log), capture_output=True,
                          timeout=120, **options)
    return Result(done.returncode, done.stdout.decode("utf-8", "replace"), done.stderr.decode("utf-8", "replace"),
                  steps_of(log) if log else [])


def start(*words, under=None, at=0, do="", log=None):
    """Starts the tool without waiting for it."""
    return subprocess.Popen([TOOL, *map(str, words)], env=environment(under, at, do, log), stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE)


def claim(sample, notes=0):
    """A sample's text, with its notes filled up by that many characters."""
    text = (SAMPLES / f"{sample}.zr3").read_text("latin-1")
    if notes:
        text, found = re.subn(r"<notes>[^<]*</notes>|<notes/>", f"<notes>{sample[0] * notes}</notes>", text)
        assert found == 1
    return text


def names(folder):
    return sorted(entry.name for entry in folder.iterdir())


def a_part(steps):
    """All steps in the full run; in the short one a selection with a random start."""
    if FULL or len(steps) < 40:
        return steps
    stride = len(steps) // 20
    return steps[chance.randrange(stride)::stride]


class FaultTest(unittest.TestCase):
    """Base of tests with a folder: claims to save in `source`, and `disk`, below which the faults occur."""

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="zr3-faults-")).resolve()
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.source = self.folder / "source"
        self.disk = self.folder / "disk"
        self.log = self.folder / "log"
        self.source.mkdir()
        self.disk.mkdir()

    def put(self, name, text):
        file = self.source / f"{name}.zr3"
        file.write_text(text, "latin-1")
        return file


class SaveTest(FaultTest):
    """Base of tests that save two claims of different sizes under one name and know the bytes of both."""

    SAMPLES = {"old": ("housing-typical", 600_000), "new": ("care-typical", 900_000)}

    def setUp(self):
        super().setUp()
        self.file = self.disk / "claim.zr3"
        self.side = self.disk / "claim.zr3a"
        self.sources = {name: self.put(name, claim(*sample)) for name, sample in self.SAMPLES.items()}
        self.whole = {}
        for name, (sample, _) in self.SAMPLES.items():
            self.assertEqual(0, self.save(name).status)
            self.whole[name] = self.file.read_bytes()
            self.assertEqual(json.loads((SAMPLES / f"{sample}.totals.json").read_text("utf-8")),
                             json.loads(run("totals", self.file).out))
        self.assertNotEqual(*self.whole.values())

    def save(self, name, **faults):
        return run("save", self.sources[name], self.file, **faults)

    def put_old(self):
        self.side.unlink(missing_ok=True)
        (self.disk / LOCK).unlink(missing_ok=True)
        self.file.write_bytes(self.whole["old"])

    def named(self, file):
        """Which of the claims a file contains completely; None if neither."""
        content = file.read_bytes() if file.exists() else None
        return next((name for name, whole in self.whole.items() if content == whole), None)

    def state(self):
        """Which complete claim there is after a fault, and in which file; fails if there is none or there are stray
        files.
        """
        self.assertLessEqual(set(names(self.disk)), {"claim.zr3", "claim.zr3a", LOCK}, "litter")
        if name := self.named(self.file):
            return "file", name
        name = self.named(self.side)
        self.assertIsNotNone(name, "neither the claim nor its side file is whole")
        return "side file", name

    def is_refused(self, **options):
        """Neither a save nor an export writes to the folder, and each reports it once."""
        result = self.save("new", **options)
        self.assertEqual((4, ["File Not Saved"]), (result.status, result.messages))
        self.assertEqual((["claim.zr3"], ("file", "old")), (names(self.disk), self.state()))
        result = run("export", self.sources["old"], self.disk, **options)
        self.assertEqual((4, 1), (result.status, len(result.messages)), result.err)
        self.assertEqual(["claim.zr3"], names(self.disk))

    def saves_again(self, name="new"):
        """The next save works, and leaves only the claim."""
        again = self.save(name)
        self.assertEqual((0, ""), (again.status, again.err))
        self.assertEqual(["claim.zr3"], names(self.disk))
        self.assertEqual(name, self.named(self.file))


class ExportTest(FaultTest):
    """Base of tests that export a claim over the document of another and know the bytes of both."""

    PAGES = {1, 5}  # the exported pages: a short run that still has continuation sheets

    def setUp(self):
        super().setUp()
        self.document = self.disk / "Claim1.doc"
        self.claims = {name: self.put(name, self.with_few_pages(claim(sample)))
                       for name, sample in (("old", "housing-typical"), ("new", "many-sheets"))}
        self.whole = {}
        for name in self.claims:
            self.assertEqual(0, self.export(name).status)
            self.whole[name] = self.document.read_bytes()
        self.assertNotEqual(*self.whole.values())

    def with_few_pages(self, text):
        for page in range(1, 14):
            text = re.sub(rf"<includepage{page}>\w+<", f"<includepage{page}>{page in self.PAGES}<", text)
        return text

    def export(self, name, *options, **faults):
        return run("export", "--force", *options, self.claims[name], self.disk, **faults)

    def put_old(self):
        shutil.rmtree(self.disk / "~ZR3Temp", ignore_errors=True)
        self.document.write_bytes(self.whole["old"])

    def state(self):
        """Which document there is; fails if it is not a complete one, or there are stray files."""
        self.assertLessEqual(set(names(self.disk)), {"Claim1.doc", "~ZR3Temp"}, "litter")
        content = self.document.read_bytes()
        for name, whole in self.whole.items():
            if content == whole:
                return name
        return self.fail("the document is neither the old one nor the new one")

    def exports_again(self):
        again = self.export("new")
        self.assertEqual((0, ""), (again.status, again.err))
        self.assertEqual(["Claim1.doc"], names(self.disk))
        self.assertEqual("new", self.state())


def print_figures():
    """Prints a line for each row."""
    print(f"\nseed {SEED}")
    rows = list(dict.fromkeys(row for row, _ in figures))
    width = max(map(len, rows), default=0)
    for row in rows:
        cells = [f"{number} {column}" for (of, column), number in sorted(figures.items()) if of == row]
        print(f"{row:{width}}  {', '.join(cells)}")


def main():
    """Runs the tests of a file and prints their figures. If any is skipped the whole counts as skipped, unless another
    has failed.
    """
    result = unittest.main(module="__main__", exit=False, verbosity=2).result
    print_figures()
    if not result.wasSuccessful() or result.testsRun == 0 and not result.skipped:
        sys.exit(1)
    for _, reason in result.skipped:
        print(f"skipped: {reason}")
    sys.exit(SKIPPED if result.skipped else 0)
