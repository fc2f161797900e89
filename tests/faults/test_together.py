#!/usr/bin/env python3
"""Two programs at one file, and two exports into one folder."""

import threading
import time

from support import *


class TwoSaves(SaveTest):
    ROUNDS = 300 if FULL else 15

    def both(self, first, second, between=0.0, **faults):
        """Two saves side by side, the second begun after the first; both results."""
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
        """The one stands still in the midst of its save while the other comes."""
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
        """A program that hangs in its save holds no other up for ever: that one says so, and loses nothing."""
        self.put_old()
        one = start("save", self.sources["new"], self.file, under=self.disk, at=20, do="stop", log=self.log)
        os.waitid(os.P_PID, one.pid, os.WSTOPPED | os.WNOWAIT)
        other = self.save("old")
        self.assertEqual((4, ["File Not Saved"]), (other.status, other.messages))
        self.assertIn("70 - Permission denied", other.err)
        self.state()
        one.send_signal(signal.SIGCONT)
        self.ended([one])
        count("A save that hangs", "rounds")

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
                # Whichever of them was the last: the killed one may have begun after the other had ended.
                self.state()
                self.saves_again()
                count("Two saves, one of them killed", "rounds")

    def test_while_others_look(self):
        """Whoever opens the claim while it is being saved sees the one or the other whole."""
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

    def test_behind_one_that_hangs(self):
        """It is told that another export is running, and touches neither that one's sheets nor the document."""
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
