#!/usr/bin/env python3
"""Two programs on one file, and two exports to one folder."""

import contextlib
import fcntl
import threading
import time

from support import *


@contextlib.contextmanager
def locked(folder):
    """Holds a lock on a folder, which anyone who may read it can take."""
    descriptor = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    try:
        fcntl.flock(descriptor, fcntl.LOCK_EX)
        yield
    finally:
        os.close(descriptor)


class TwoSaves(SaveTest):
    ROUNDS = 300 if FULL else 15

    def both(self, first, second, between=0.0, **faults):
        """Runs two saves at once, the second started after the first; returns both results."""
        processes = [start("save", self.sources[first], self.file, **faults)]
        time.sleep(between)
        processes.append(start("save", self.sources[second], self.file))
        return processes

    def ended(self, processes):
        for process in processes:
            out, err = process.communicate(timeout=60)
            self.assertEqual((0, b"", b""), (process.returncode, out, err))
        self.assertEqual(["claim.zr3"], names(self.disk))
        self.assertIsNotNone(self.named(self.file), "the claim is neither of the two that were saved")

    def test_side_by_side(self):
        for number in range(self.ROUNDS):
            between = chance.uniform(0, 0.03)
            with self.subTest(number=number, between=between, seed=SEED):
                self.put_old()
                self.ended(self.both("old", "new", between))
                count("Two saves of one claim side by side", "rounds")
                count("Two saves of one claim side by side", f"{self.named(self.file)} at the end")

    def test_one_held_up_at_each_step(self):
        """One save is stopped halfway while the other starts."""
        self.put_old()
        steps = self.save("new", under=self.disk, log=self.log).steps
        for step in a_part(steps):
            with self.subTest(step=step.number, operation=step.operation, seed=SEED):
                self.put_old()
                one = start("save", self.sources["new"], self.file, under=self.disk, at=step.number, do="stop",
                            log=self.log)
                os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
                other = start("save", self.sources["old"], self.file)
                time.sleep(0.06)
                self.state()
                one.send_signal(signal.SIGCONT)
                self.ended([one, other])
                count("A save held up at each step while another comes", "rounds")

    def test_one_that_never_goes_on(self):
        """A program that hangs in its save doesn't block another for ever: that one takes over the turn, saves and
        reports it. If the first continues after all, it notices and saves again: no mixture of both is left.
        """
        self.put_old()
        steps = self.save("new", under=self.disk, log=self.log).steps
        held = [step for step in steps if step.operation == "flock"][0].number
        inside = [step for step in steps if step.number > held and step.path != str(self.disk / LOCK)]
        for step in inside if FULL else chance.sample(inside, 4):
            with self.subTest(step=step.number, operation=step.operation, path=step.path, seed=SEED):
                self.put_old()
                one = start("save", self.sources["new"], self.file, under=self.disk, at=step.number, do="stop",
                            log=self.log)
                os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
                other = self.save("old")
                self.assertEqual((0, ["File Saved"]), (other.status, other.messages), other.err)
                self.assertIn("another program may have been writing to it at the same time", other.err)
                self.assertEqual(("file", "old"), self.state())
                one.send_signal(signal.SIGCONT)
                self.ended([one])
                count("A save that hangs", "rounds")

    def test_readers_never_wait(self):
        """They wait neither for a lock on the folder, which other readers can take, nor for a save that hangs."""
        self.put_old()
        with locked(self.disk):
            began = time.monotonic()
            look = run("totals", self.file)
            saved = self.save("new")
            self.assertLess(time.monotonic() - began, 4)
        self.assertEqual((0, "", 0, ""), (look.status, look.err, saved.status, saved.err))
        self.put_old()
        steps = self.save("new", under=self.disk, log=self.log).steps
        for step in a_part(steps):
            with self.subTest(step=step.number, operation=step.operation, path=step.path, seed=SEED):
                self.put_old()
                one = start("save", self.sources["new"], self.file, under=self.disk, at=step.number, do="stop",
                            log=self.log)
                os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
                place, _ = self.state()
                began = time.monotonic()
                look = run("totals", self.file)
                self.assertLess(time.monotonic() - began, 4)
                # A file that stays torn is reported as it is: opening the side file is left to the user.
                self.assertEqual(0 if place == "file" else 2, look.status, look.err)
                one.send_signal(signal.SIGCONT)
                self.ended([one])
                count("A claim opened while a save hangs", "whole" if place == "file" else "told")

    def test_only_who_may_write_can_hold_writers_up(self):
        """Only those who may write to the folder can open the lock file."""
        for folder_mode, mode in ((0o700, 0o600), (0o755, 0o600), (0o775, 0o660), (0o2770, 0o660), (0o777, 0o666)):
            with self.subTest(folder=oct(folder_mode)):
                self.put_old()
                self.disk.chmod(folder_mode)
                steps = self.save("new", under=self.disk, log=self.log).steps
                self.put_old()
                held = [step for step in steps if step.operation == "flock"][0].number
                one = start("save", self.sources["new"], self.file, under=self.disk, at=held + 2, do="stop",
                            log=self.log)
                os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
                self.assertEqual(mode, (self.disk / LOCK).stat().st_mode & 0o7777)
                one.send_signal(signal.SIGCONT)
                self.ended([one])

    def test_a_lock_that_can_not_be_had(self):
        """It doesn't stop a save, and the user is told."""
        self.put_old()
        (self.disk / LOCK).mkdir()
        result = self.save("new")
        self.assertEqual((0, ["File Saved"]), (result.status, result.messages), result.err)
        self.assertEqual("new", self.named(self.file))
        self.assertEqual([LOCK, "claim.zr3"], names(self.disk))

    def test_a_lock_that_was_left_behind(self):
        """Left by a killed program: it doesn't stop a save, and the next save deletes it."""
        self.put_old()
        (self.disk / LOCK).touch(0o600)
        began = time.monotonic()
        self.saves_again()
        self.assertLess(time.monotonic() - began, 4)

    def test_one_killed(self):
        for number in range(self.ROUNDS):
            between, until = chance.uniform(0, 0.03), chance.uniform(0, 0.06)
            with self.subTest(number=number, between=between, until=until, seed=SEED):
                self.put_old()
                one, other = self.both("new", "old", between)
                time.sleep(until)
                one.kill()
                one.communicate()
                out, err = other.communicate(timeout=60)
                self.assertEqual((0, b"", b""), (other.returncode, out, err))
                # Either may have been the last: the killed one may have started after the other had ended.
                self.state()
                self.saves_again()
                count("Two saves, one of them killed", "rounds")

    def test_while_others_look(self):
        """Anyone who opens the claim during a save sees one complete version or the other."""
        ended = threading.Event()
        worked_out = [json.loads((SAMPLES / f"{sample}.totals.json").read_text("utf-8"))
                      for sample, _ in self.SAMPLES.values()]
        self.put_old()

        def save_all_along():
            while not ended.is_set():
                self.ended(self.both("old", "new"))

        saver = threading.Thread(target=save_all_along)
        saver.start()
        try:
            for number in range(self.ROUNDS):
                with self.subTest(number=number):
                    look = run("totals", self.file)
                    self.assertEqual((0, ""), (look.status, look.err))
                    self.assertIn(json.loads(look.out), worked_out)
                    count("A claim opened while it is saved", "rounds")
        finally:
            ended.set()
            saver.join()


class TwoExports(ExportTest):
    def test_into_one_folder(self):
        """No document has pages of the other claim: the second export waits until the first has ended."""
        for number in range(200 if FULL else 10):
            between = chance.uniform(0, 0.1)
            with self.subTest(number=number, between=between, seed=SEED):
                self.put_old()
                processes = []
                for name in ("old", "new"):
                    processes.append(start("export", "--force", self.claims[name], self.disk))
                    time.sleep(between)
                for process in processes:
                    err = process.communicate(timeout=60)[1]
                    self.assertEqual((0, b""), (process.returncode, err))
                count("Two exports into one folder", "rounds")
                count("Two exports into one folder", f"{self.state()} document at the end")
                self.assertEqual(["Claim1.doc"], names(self.disk))

    def test_without_force_behind_another(self):
        """The document that the other export has just created is not replaced."""
        self.document.unlink()
        steps = run("export", self.claims["new"], self.disk, under=self.disk, log=self.log).steps
        locks = [step.number for step in steps if step.operation == "flock"]
        renames = [step.number for step in steps if step.path == str(self.document) and step.operation == "rename"]
        for at in (locks[0] + 1, renames[0]):
            with self.subTest(at=at):
                self.document.unlink(missing_ok=True)
                one = start("export", self.claims["new"], self.disk, under=self.disk, at=at, do="stop", log=self.log)
                os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
                other = start("export", self.claims["old"], self.disk)
                time.sleep(0.5)
                self.assertIsNone(other.poll(), "it doesn't wait for the other")
                one.send_signal(signal.SIGCONT)
                self.assertEqual((b"", b""), one.communicate(timeout=60))
                err = other.communicate(timeout=60)[1].decode()
                self.assertEqual((0, 5, ["Export"]), (one.returncode, other.returncode, MESSAGE.findall(err)), err)
                self.assertIn("exists already. Give --force to replace it.", err)
                self.assertEqual(("new", ["Claim1.doc"]), (self.state(), names(self.disk)))

    def test_without_force_where_a_document_comes_meanwhile(self):
        """A document from elsewhere is not replaced either."""
        self.document.unlink()
        steps = run("export", self.claims["new"], self.disk, under=self.disk, log=self.log).steps
        self.document.unlink()
        one = start("export", self.claims["new"], self.disk, under=self.disk, at=len(steps) // 2, do="stop",
                    log=self.log)
        os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
        self.document.write_bytes(self.whole["old"])
        one.send_signal(signal.SIGCONT)
        err = one.communicate(timeout=60)[1].decode()
        self.assertEqual((5, ["Export"]), (one.returncode, MESSAGE.findall(err)), err)
        self.assertEqual(("old", ["Claim1.doc"]), (self.state(), names(self.disk)))

    def test_behind_one_that_hangs(self):
        """It reports that another export is running, and touches neither its sheets nor the document."""
        self.put_old()
        one = start("export", "--force", self.claims["new"], self.disk, under=self.disk, at=100, do="stop",
                    log=self.log)
        os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
        sheets = names(self.disk / "~ZR3Temp")
        other = self.export("old")
        self.assertEqual((4, ["Export"]), (other.status, other.messages))
        self.assertIn("Another export into this folder is still running.", other.err)
        self.assertEqual(("old", sheets), (self.state(), names(self.disk / "~ZR3Temp")))
        one.send_signal(signal.SIGCONT)
        self.assertEqual((b"", b""), one.communicate(timeout=60))
        self.assertEqual((0, "new", ["Claim1.doc"]), (one.returncode, self.state(), names(self.disk)))
        count("An export behind one that hangs", "rounds")


if __name__ == "__main__":
    main()
