#!/usr/bin/env python3
"""The program is killed while it saves and while it exports."""

import time

from support import *


def microseconds(steps):
    return steps[-1].microseconds - steps[0].microseconds


def killed_at(seconds, row, *words):
    """Runs zr3tool and kills it after a time, or counts that it had already ended."""
    process = start(*words)
    time.sleep(seconds)
    process.kill()
    process.communicate()
    count(row, "kills" if process.returncode == -signal.SIGKILL else "ended before")


class SaveKilled(SaveTest):
    def kill(self, row, name, **faults):
        """Kills a save, and counts whether it was killed in time; the claim is complete before and after."""
        place, before = self.state()
        result = self.save(name, under=self.disk, log=self.log, **faults)
        after = self.checked(row, place, before, name)
        if result.status == -signal.SIGKILL:
            count(row, "kills")
        else:
            self.assertEqual((0, "", "file", name), (result.status, result.err, *after))
            count(row, "ended before")

    def checked(self, row, place, before, name):
        after = self.state()
        # There is a complete claim: the one from before, or the one being saved.
        self.assertIn(after[1], (before, name), f"before: {before} in the {place}")
        count(row, f"whole in the {after[0]}: {'new' if after[1] == name else 'old'}")
        return after

    def test_at_each_step(self):
        steps = self.save("new", under=self.disk, log=self.log).steps
        for step in steps:
            for do in ["kill", "killafter"] + ["killmid"] * (step.operation == "write"):
                with self.subTest(step=step.number, operation=step.operation, do=do):
                    self.put_old()
                    self.kill("Save killed at each step", "new", at=step.number, do=do)
                    self.saves_again()

    def test_at_random_moments_of_the_writing(self):
        self.put_old()
        span = microseconds(self.save("new", under=self.disk, log=self.log).steps)
        for number in range(KILLS // 2):
            moment = chance.randrange(span)
            with self.subTest(number=number, microseconds=moment, seed=SEED):
                self.put_old()
                self.kill("Save killed at random while it writes", "new", at=1, do=f"timer={moment}")
                self.saves_again()

    def test_at_random_moments_of_the_whole_run(self):
        row = "Save killed at random over its whole run"
        self.put_old()
        began = time.monotonic()
        self.save("new")
        span = time.monotonic() - began
        for number in range(KILLS // 4):
            moment = chance.uniform(0, span)
            with self.subTest(number=number, seconds=moment, seed=SEED):
                self.put_old()
                killed_at(moment, row, "save", self.sources["new"], self.file)
                self.checked(row, "file", "old", "new")
                self.saves_again()

    def test_again_and_again_with_no_good_save_between(self):
        """The next save starts from what a kill leaves: it must not damage the side file of a torn claim."""
        row = "Save killed again and again"
        self.put_old()
        steps = self.save("new", under=self.disk, log=self.log).steps
        span = microseconds(steps)
        self.put_old()
        for number in range(KILLS // 4):
            name = chance.choice(["old", "new"])
            faults = (dict(at=chance.randrange(1, len(steps) + 1), do=chance.choice(["kill", "killmid", "killafter"]))
                      if number % 2 else dict(at=1, do=f"timer={chance.randrange(span)}"))
            with self.subTest(number=number, **faults, seed=SEED):
                self.kill(row, name, **faults)
        self.saves_again()

    def test_twice_at_any_two_steps(self):
        """Every pair of moments: the second kill starts from what the first one leaves."""
        row = "Save killed twice, at each pair of steps"
        steps = self.save("new", under=self.disk, log=self.log).steps
        moments = [(step.number, do) for step in steps for do in ["kill"] + ["killmid"] * (step.operation == "write")]
        pairs = [(one, two) for one in moments for two in moments]
        for one, two in pairs if FULL else chance.sample(pairs, 60):
            with self.subTest(first=one, second=two):
                self.put_old()
                self.kill(row, "new", at=one[0], do=one[1])
                self.kill(row, "new", at=two[0], do=two[1])


class FirstSaveKilled(SaveTest):
    def test_at_each_step(self):
        """A claim that was never saved has nothing on the disk to lose; the next save still works."""
        self.file.unlink()
        steps = self.save("new", under=self.disk, log=self.log).steps
        for step in steps:
            with self.subTest(step=step.number, operation=step.operation):
                self.file.unlink(missing_ok=True)
                result = self.save("new", under=self.disk, log=self.log, at=step.number, do="kill")
                self.assertEqual(-signal.SIGKILL, result.status)
                self.assertLessEqual(set(names(self.disk)), {"claim.zr3", LOCK})
                count("First save killed at each step", "kills")
                self.saves_again()


class ExportKilled(ExportTest):
    def test_at_each_step(self):
        steps = self.export("new", under=self.disk, log=self.log).steps
        self.assertGreater(len(steps), 100)
        for step in a_part(steps):
            with self.subTest(step=step.number, operation=step.operation):
                self.put_old()
                result = self.export("new", under=self.disk, log=self.log, at=step.number, do="kill")
                self.assertEqual(-signal.SIGKILL, result.status)
                count("Export killed at each step", "kills")
                count("Export killed at each step", f"{self.state()} document")
                self.exports_again()

    def test_at_random_moments(self):
        began = time.monotonic()
        self.export("new")
        span = time.monotonic() - began
        for number in range(KILLS // 10):
            moment = chance.uniform(0, span)
            with self.subTest(number=number, seconds=moment, seed=SEED):
                self.put_old()
                row = "Export killed at random"
                killed_at(moment, row, "export", "--force", self.claims["new"], self.disk)
                count(row, f"{self.state()} document")
                self.exports_again()


if __name__ == "__main__":
    main()
