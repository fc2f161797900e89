#!/usr/bin/env python3
"""The clock jumps, between runs and at each reading. None of the program's files depends on it."""

import time

from support import *

YEAR = 366 * 24 * 3600
NOW = int(time.time())
JUMPS = {
    "1 January 1970": f"{-NOW}",
    "before 1970": f"{-NOW - YEAR}",
    "1980, before archives begin": f"{-NOW + 9 * YEAR}",
    "2040": f"{2040 * YEAR - 1970 * YEAR - NOW}",
    "2110, after archives end": f"{140 * YEAR - NOW}",
    "forwards and back": f"0,{YEAR},{-YEAR}",
    "an hour at each look": ",".join(str(hour * 3600) for hour in range(24)),
    "backwards": ",".join(str(-hour * 3600) for hour in range(24)),
}


def with_clock(seconds, zone="Europe/London"):
    return environment() | {"LD_PRELOAD": CLOCKS, "ZR3_CLOCK": seconds, "TZ": zone}


class Clock(SaveTest):
    def run_at(self, seconds, *words):
        return subprocess.run([TOOL, *map(str, words)], env=with_clock(seconds), capture_output=True, timeout=120)

    def test_jumps_for_certain(self):
        """Programs do see the changed clock."""
        for name, seconds in JUMPS.items():
            seen = subprocess.run(["date", "+%s"], env=with_clock(seconds), capture_output=True, text=True, check=True)
            self.assertLess(abs(int(seen.stdout) - time.time() - int(seconds.split(",")[0])), 60, name)

    def test_save(self):
        for name, seconds in JUMPS.items():
            with self.subTest(clock=name):
                self.put_old()
                done = self.run_at(seconds, "save", self.sources["new"], self.file)
                self.assertEqual((0, b""), (done.returncode, done.stderr))
                self.assertEqual((["claim.zr3"], "new"), (names(self.disk), self.named(self.file)))
                count("Saves and exports with a clock that jumps", name)

    def test_export(self):
        source = self.sources["old"]
        self.assertEqual(0, run("export", source, self.disk).status)
        document = self.disk / "Claim1.doc"
        before = document.read_bytes()
        for name, seconds in JUMPS.items():
            with self.subTest(clock=name):
                document.unlink()
                done = self.run_at(seconds, "export", source, self.disk)
                self.assertEqual((0, b""), (done.returncode, done.stderr))
                self.assertEqual(before, document.read_bytes(), "the document depends on the time")
                count("Saves and exports with a clock that jumps", name)

    def test_files_from_times_to_come(self):
        """A file written while the clock was wrong is read and overwritten like any other."""
        for year in (0, 10, 200):
            self.put_old()
            self.side.write_bytes(self.whole["old"])
            for file in (self.file, self.side):
                os.utime(file, (year * YEAR, year * YEAR))
            self.saves_again()


if __name__ == "__main__":
    main()
