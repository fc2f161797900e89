#!/usr/bin/env python3
"""A limit on the size of files, a read-only folder, and a drive that is removed at each step."""

import resource

from support import *


def set_limit(size):
    """Limits the size of a program's files; by default the system sends a signal that ends the program there."""
    def limit():
        signal.signal(signal.SIGXFSZ, signal.SIG_DFL)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
    return limit


class FileSizeLimit(SaveTest):
    def test_save(self):
        largest = max(map(len, self.whole.values()))
        for size in chance.sample(range(largest), 60 if FULL else 8) + [0, largest - 1]:
            with self.subTest(size=size, seed=SEED):
                self.put_old()
                result = self.save("new", preexec_fn=set_limit(size))
                self.assertEqual((4, ["File Not Saved"]), (result.status, result.messages))
                self.assertIn("61 - Disk full", result.err)
                self.assertEqual("old", self.state()[1])
                self.saves_again()
                count("Save with a limit on the size of files", "told")

    def test_totals_into_a_file(self):
        with open(self.folder / "totals.json", "wb") as out:
            result = subprocess.run([TOOL, "totals", self.sources["old"]], env=environment(), stdout=out,
                                    stderr=subprocess.PIPE, preexec_fn=set_limit(100))
        self.assertEqual((4, b"Standard output: The result could not be written.\n"),
                         (result.returncode, result.stderr))


class ExportSizeLimit(ExportTest):
    def test_export(self):
        size = len(self.whole["new"])
        for limit in chance.sample(range(size), 30 if FULL else 4) + [0, size - 1]:
            with self.subTest(limit=limit, seed=SEED):
                self.put_old()
                result = self.export("new", preexec_fn=set_limit(limit))
                self.assertEqual((4, 1, "old"), (result.status, len(result.messages), self.state()))
                self.exports_again()
                count("Export with a limit on the size of files", "told")


class ReadOnlyFolder(SaveTest):
    def test_save_and_export(self):
        """Runs as a user to whom the folder's mode applies, unlike root."""
        self.put_old()
        options = {}
        if os.geteuid() == 0:
            options["user"] = 65534
            for folder in (self.folder, self.source):
                folder.chmod(0o755)
            if subprocess.run([TOOL, "--version"], capture_output=True, **options).returncode:
                self.skipTest("an ordinary user can't run the program where it lies")
            for file in (self.file, *self.sources.values()):
                file.chmod(0o644)
        self.disk.chmod(0o555)
        self.is_refused(**options)
        self.disk.chmod(0o755)
        self.saves_again()
        count("Read-only folder", "save and export told")


class RemovedDrive(SaveTest):
    def setUp(self):
        super().setUp()
        self.gone = self.folder / "gone"

    def put_back(self):
        if self.gone.exists():
            shutil.rmtree(self.disk, ignore_errors=True)
            self.gone.rename(self.disk)
        self.put_old()

    def test_at_each_step_of_the_save(self):
        self.put_back()
        steps = self.save("new", under=self.disk, log=self.log).steps
        for step in steps:
            with self.subTest(step=step.number, operation=step.operation):
                self.put_back()
                result = self.save("new", under=self.disk, log=self.log, at=step.number, do=f"vanish={self.gone}")
                self.assertEqual(1, result.fired)
                if result.status:
                    self.assertEqual((4, ["File Not Saved"]), (result.status, result.messages))
                self.assertFalse(self.disk.exists())
                # The work is saved elsewhere.
                elsewhere = self.folder / "elsewhere.zr3"
                self.assertEqual(0, run("save", self.sources["new"], elsewhere).status)
                # The content of the drive when it is mounted again.
                self.gone.rename(self.disk)
                place, name = self.state()
                self.assertTrue(result.status or (place, name) == ("file", "new"))
                self.saves_again()
                count("Drive removed at each step of the save", f"{'told' if result.status else 'done'}: {name} whole "
                      f"in the {place}")

    def test_before_the_save_and_the_export(self):
        self.disk.rename(self.gone)
        result = self.save("new")
        self.assertEqual((4, ["File Not Saved"]), (result.status, result.messages))
        self.assertIn("76 - Path not found", result.err)
        result = run("export", self.sources["old"], self.disk)
        self.assertEqual((4, ["Export Path"]), (result.status, result.messages))
        result = run("totals", self.file)
        self.assertEqual((2, ["File Not Read"]), (result.status, result.messages))
        self.assertFalse(self.disk.exists())

class RemovedDriveForExport(ExportTest):
    def test_at_each_step_of_the_export(self):
        gone = self.folder / "gone"
        self.put_old()
        steps = self.export("new", under=self.disk, log=self.log).steps
        for step in a_part(steps):
            with self.subTest(step=step.number, operation=step.operation, seed=SEED):
                self.put_old()
                result = self.export("new", under=self.disk, log=self.log, at=step.number, do=f"vanish={gone}")
                self.assertIn((result.status, len(result.messages)), [(0, 0), (4, 1)], result.err)
                shutil.rmtree(self.disk, ignore_errors=True)
                gone.rename(self.disk)
                self.assertEqual("old" if result.status else "new", self.state())
                self.exports_again()
                count("Drive removed at each step of the export", "told" if result.status else "done")


if __name__ == "__main__":
    main()
