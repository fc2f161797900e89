#!/usr/bin/env python3
"""Real disks that are full, read-only or removed. Skipped if this user may not mount any."""

import places
from support import *

ROOMY = 100_000  # kilobytes


class DiskTest(FaultTest):
    """Base of tests with a disk in place of the folder."""

    def setUp(self):
        super().setUp()
        for file in self.disk.iterdir():
            file.unlink()
        places.own_mounts()
        places.mount(self.disk, ROOMY)
        self.addCleanup(places.libc.umount2, os.fsencode(self.disk), places.MNT_DETACH)

    def leave(self, kilobytes):
        """Fills the disk except for this much free space."""
        places.remount(self.disk, ROOMY - places.free_kilobytes(self.disk) + kilobytes)


class FullDisk(DiskTest, SaveTest):
    def test_save(self):
        needed = (len(self.whole["old"]) + len(self.whole["new"])) // 1024 + 16
        failed = 0
        for room in range(0, needed, 16 if FULL else 120):
            with self.subTest(room=room):
                places.remount(self.disk, ROOMY)
                self.put_old()
                self.leave(room)
                result = self.save("new")
                if result.status:
                    self.assertEqual((4, ["File Not Saved"]), (result.status, result.messages))
                    self.assertIn("61 - Disk full", result.err)
                    failed += 1
                place, name = self.state()
                self.assertEqual("new" if result.status == 0 else "old", name)
                count("Save on a full disk", f"{'done' if result.status == 0 else 'told'}, whole in the {place}")
                if result.status:
                    # The disk is still full, and the torn claim's side file is kept.
                    self.assertEqual(4, self.save("new").status)
                    self.assertEqual("old", self.state()[1])
                places.remount(self.disk, ROOMY)
                self.saves_again()
        self.assertGreater(failed, 3)


class FullDiskForExport(DiskTest, ExportTest):
    def test_export(self):
        results = Counter()
        for room in range(0, 2000, 20 if FULL else 150):
            with self.subTest(room=room):
                places.remount(self.disk, ROOMY)
                self.put_old()
                self.leave(room)
                result = self.export("new")
                if result.status:
                    self.assertEqual((4, 1), (result.status, len(result.messages)), result.err)
                self.assertEqual("old" if result.status else "new", self.state())
                results["told" if result.status else "done"] += 1
                places.remount(self.disk, ROOMY)
                self.exports_again()
        self.assertGreater(results["told"], 1)
        self.assertGreater(results["done"], 1)
        for word, number in results.items():
            count("Export on a full disk", word, number)


class ReadOnlyDisk(DiskTest, SaveTest):
    def test_save_and_export(self):
        self.put_old()
        places.remount(self.disk, ROOMY, places.MS_RDONLY)
        self.is_refused()
        places.remount(self.disk, ROOMY)
        self.saves_again()
        count("Read-only disk", "save and export told")


class RemovedDisk(DiskTest, SaveTest):
    def test_between_load_and_save(self):
        self.put_old()
        process = start("save", self.sources["new"], self.file, under=self.disk, at=1, do="stop", log=self.log)
        os.waitid(os.P_PID, process.pid, os.WSTOPPED | os.WNOWAIT)
        # The process shares this mount namespace, so the disk is removed for it too.
        places.remove(self.disk)
        process.send_signal(signal.SIGCONT)
        _, err = process.communicate(timeout=60)
        self.assertEqual((4, ["File Not Saved"]), (process.returncode, MESSAGE.findall(err.decode())))
        count("Real disk removed between load and save", "told")


if __name__ == "__main__":
    main()
