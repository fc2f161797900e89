#!/usr/bin/env python3
"""Each file operation of the save and of the export fails once, with each error that it may fail with."""

from errno import EACCES, EDQUOT, EIO, EMFILE, ENOSPC, EPERM, EROFS

from support import *

ERRORS = {
    "open": [EIO, EACCES, EMFILE],
    "open-write": [ENOSPC, EIO, EROFS, EACCES, EDQUOT, EMFILE],
    "read": [EIO],
    "write": [ENOSPC, EIO, EDQUOT, EROFS],
    "fsync": [ENOSPC, EIO, EDQUOT],
    "close": [ENOSPC, EIO, EDQUOT],
    "rename": [ENOSPC, EIO, EROFS, EACCES, EDQUOT],
    "unlink": [EIO, EROFS, EACCES],
    "mkdir": [ENOSPC, EIO, EROFS, EACCES, EDQUOT],
    "truncate": [EIO, EROFS, ENOSPC],
    "chmod": [EIO, EPERM, EROFS],
    "stat": [EIO, EACCES],
    "access": [EIO, EACCES],
    "realpath": [EIO, EACCES],
    "readdir": [EIO],
    "flock": [EIO],
}
# Errors that persist until somebody corrects the cause.
LASTING = [ENOSPC, EROFS, EIO]


def plans(step):
    """All faults for a step, each with the word under which it is counted."""
    for error in ERRORS[step.operation]:
        yield f"fail={error}", errno.errorcode[error]
    if step.operation in ("read", "write"):
        yield "short", "short"
    if step.operation == "write":
        yield f"shortfail={ENOSPC}", "short, then ENOSPC"
    # On a network mount a signal may interrupt any call.
    yield "eintr", "EINTR"


def lasting_plans(step):
    if step.operation != "close":
        for error in LASTING:
            yield f"failon={error}", f"{errno.errorcode[error]} from then on"


def some(ways):
    """All of them in the full run; in the short one two."""
    return ways if FULL else chance.sample(ways, min(2, len(ways)))


# Interrupted or partial operations, which are not failures: the program must continue normally.
HARMLESS = ("short", "eintr")


def interrupted(step):
    yield "eintr", "EINTR"


def some_of_each(steps):
    """All in the full run; in the short one some steps of each operation."""
    if FULL:
        return steps
    kinds = {operation: [step for step in steps if step.operation == operation]
             for operation in {step.operation for step in steps}}
    return [step for same in kinds.values() for step in chance.sample(same, min(4, len(same)))]


class Steps(FaultTest):
    def each(self, row, make, prepare, check, steps, kinds=plans):
        """Runs `make` with each plan at each step, and checks the result."""
        for step in steps:
            for do, word in some(list(kinds(step))):
                with self.subTest(step=step.number, operation=step.operation, do=do, path=step.path, seed=SEED):
                    prepare()
                    result = make(under=self.under, log=self.log, at=step.number, do=do)
                    self.assertGreaterEqual(result.fired, 1, "the fault did not come")
                    count(f"{row}, {step.operation}", word)
                    check(result, do)


class SaveFails(SaveTest, Steps):
    def setUp(self):
        super().setUp()
        self.under = self.disk

    def save_new(self, **faults):
        return self.save("new", **faults)

    def steps(self, prepare):
        prepare()
        steps = self.save_new(under=self.under, log=self.log).steps
        self.assertGreater(len(steps), 5)
        return steps

    def is_whole(self, result, do):
        """Whether the save succeeded: then the failed operation did not affect the file's safety."""
        if do not in HARMLESS and result.status != 0:
            return False
        self.assertEqual((0, "new"), (result.status, self.named(self.file)))
        # Problems with the lock file do not stop a save: if it can't be created the user is told, and if it can't be
        # deleted it stays.
        turn = do not in HARMLESS and any(step.fired and step.path == str(self.disk / LOCK) for step in result.steps)
        self.assertIn(result.messages, [[], ["File Saved"]] if turn else [[]], result.err)
        self.assertIn(names(self.disk), [["claim.zr3"], [LOCK, "claim.zr3"]] if turn else [["claim.zr3"]])
        return True

    def is_safe(self, result, do):
        place, name = self.state()
        if not self.is_whole(result, do):
            self.assertEqual((4, ["File Not Saved"], ""), (result.status, result.messages, result.out), result.err)
            self.assertIn(str(self.file), result.err)
            self.assertTrue(name == "old" or place == "file")
        self.saves_again()

    def test_at_each_step(self):
        steps = self.steps(self.put_old)
        for kinds in (plans, lasting_plans):
            self.each("Save", self.save_new, self.put_old, self.is_safe, steps, kinds)

    def test_interrupted(self):
        self.each("Save", self.save_new, self.put_old, self.is_whole, self.steps(self.put_old), interrupted)

    def test_of_the_first_save(self):
        def remove():
            self.put_old()
            self.file.unlink()

        def check(result, do):
            if not self.is_whole(result, do):
                self.assertEqual((4, ["File Not Saved"]), (result.status, result.messages), result.err)
                self.assertLessEqual(set(names(self.disk)), {"claim.zr3", LOCK})
            self.saves_again()

        self.each("First save", self.save_new, remove, check, self.steps(remove))

    def test_after_a_save_that_broke_off(self):
        """The file is torn and the side file complete: no failure of the next save may lose it."""
        def tear():
            self.file.write_bytes(self.whole["new"][:5000])
            self.side.write_bytes(self.whole["old"])

        self.each("Save after one that broke off", self.save_new, tear, self.is_safe, self.steps(tear))

    def test_while_the_claim_is_read(self):
        """Nothing is written from a claim that could not be read."""
        def check(result, do):
            if not self.is_whole(result, do):
                self.assertEqual((2, ["File Not Read"]), (result.status, result.messages), result.err)
                self.assertEqual((["claim.zr3"], ("file", "old")), (names(self.disk), self.state()))

        self.under = self.source
        self.each("Reading the claim", self.save_new, self.put_old, check, self.steps(self.put_old))


class ExportFails(ExportTest, Steps):
    def setUp(self):
        super().setUp()
        self.under = self.disk

    def export_new(self, **faults):
        return self.export("new", **faults)

    def is_safe(self, result, do):
        if do in HARMLESS or result.status == 0:
            self.assertEqual((0, "", "new"), (result.status, result.err, self.state()))
        else:
            self.assertEqual((4, 1, "old"), (result.status, len(result.messages), self.state()), result.err)

    def is_safe_and_works_again(self, result, do):
        self.is_safe(result, do)
        self.exports_again()

    def test_at_each_step(self):
        steps = self.export_new(under=self.disk, log=self.log).steps
        self.assertGreater(len(steps), 100)
        for kinds in (plans, lasting_plans):
            self.each("Export", self.export_new, self.put_old, self.is_safe_and_works_again, a_part(steps), kinds)

    def test_interrupted(self):
        self.put_old()
        steps = self.export_new(under=self.disk, log=self.log).steps
        self.each("Export", self.export_new, self.put_old, self.is_safe, some_of_each(steps), interrupted)

    def test_of_the_last_steps(self):
        """Renaming the document and deleting the sheets; in the short run too."""
        steps = self.export_new(under=self.disk, log=self.log).steps
        place = next(step.number for step in steps if step.operation == "rename" and step.path == str(self.document))
        near = [step for step in steps if place - 6 <= step.number <= place + 6]
        self.each("End of the export", self.export_new, self.put_old, self.is_safe_and_works_again, near)

    def test_brings_the_document_to_the_disk(self):
        """Syncs the document's content before it is renamed, and the folder afterwards."""
        steps = [(step.operation, step.path.rstrip("/")) for step in
                 self.export_new(under=self.disk, log=self.log).steps]
        place = steps.index(("rename", str(self.document)))
        self.assertIn("fsync", [operation for operation, _ in steps[:place]])
        self.assertIn(("fsync", str(self.disk)), steps[place:])

    def test_the_sheets_are_private_from_the_start(self):
        """A file that others could open even for a moment, they could lock."""
        steps = self.export_new(under=self.disk, log=self.log).steps
        made = next(step.number for step in steps if step.operation == "mkdir")
        one = start("export", "--force", self.claims["new"], self.disk, under=self.disk, at=made + 1, do="stop",
                    log=self.log)
        os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
        self.assertEqual(0o700, (self.disk / "~ZR3Temp").stat().st_mode & 0o7777)
        one.send_signal(signal.SIGCONT)
        self.assertEqual((b"", b""), one.communicate(timeout=60))

    def test_while_the_templates_are_read(self):
        def check(result, do):
            self.is_safe(result, do)
            self.assertEqual(["Claim1.doc"], names(self.disk))

        def make(**faults):
            return self.export("new", "--templates", self.under, **faults)

        self.under = self.folder / "templates"
        shutil.copytree(Path(TOOL).parent / "Templates", self.under)
        steps = make(under=self.under, log=self.log).steps
        self.each("Reading the templates", make, self.put_old, check, a_part(steps))


class EveryOperationIsSeen(SaveTest):
    def test_by_the_plan_of_faults(self):
        """The operations counted are all those that the system reports."""
        if not shutil.which("strace") or subprocess.run(["strace", "true"], capture_output=True).returncode:
            self.skipTest("system calls can't be traced here")
        for seen, words in ((self.disk, ["save", self.sources["new"], self.file]),
                            (self.disk, ["export", self.sources["old"], self.disk])):
            trace = self.folder / "trace"
            subprocess.run(["strace", "-y", "-e", "trace=%file,%desc", "-o", trace, TOOL, *words], check=True,
                           env=environment(), capture_output=True)
            told = Counter(re.findall(r"^(\w+)\(.*?" + re.escape(str(seen)), trace.read_text(), re.MULTILINE))
            (self.disk / "Claim1.doc").unlink(missing_ok=True)
            own = Counter(step.operation.removesuffix("-write")
                          for step in run(*words, under=seen, log=self.log).steps)
            for operation, calls in {"open": ["openat"], "write": ["write", "writev"], "fsync": ["fsync", "fdatasync"],
                                     "rename": ["rename", "renameat", "renameat2"], "close": ["close"],
                                     "read": ["read", "pread64"], "mkdir": ["mkdir"], "truncate": ["ftruncate"],
                                     "unlink": ["unlink", "unlinkat"], "flock": ["flock"],
                                     "chmod": ["fchmod", "fchmodat"], "access": ["access", "faccessat"]}.items():
                self.assertEqual(sum(told[call] for call in calls), own[operation], f"{words[0]}: {operation}")
            count("File operations seen", words[0], sum(own.values()))


if __name__ == "__main__":
    main()
