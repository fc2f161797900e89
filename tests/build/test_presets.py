#!/usr/bin/env python3
"""What a user builds, and what is tested."""

import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(os.environ["ZR3_ROOT"])


def compilations(preset):
    """The options with which each file is compiled."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["cmake", "--preset", preset, "-B", folder, "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"], cwd=ROOT,
                       check=True, capture_output=True)
        return {entry["file"]: entry["command"].split() for entry in
                json.loads((Path(folder) / "compile_commands.json").read_text())}


class Presets(unittest.TestCase):
    def test_a_user_builds_without_tests_and_debug_data_and_no_warning_stops_it(self):
        made = compilations("default")
        self.assertTrue(made)
        for file, options in made.items():
            with self.subTest(file):
                self.assertFalse([option for option in options if option.startswith("-g")])
                self.assertNotIn("-Werror", options)
                self.assertIn("-O2", options)
        self.assertFalse([file for file in made if "tests" in Path(file).parts or "benchmarks" in Path(file).parts])

    def test_where_the_tests_are_built_a_warning_stops_it(self):
        made = compilations("test")
        tests = [file for file in made if "/tests/" in file]
        self.assertTrue(tests)
        for file, options in made.items():
            if Path(file).name != "qrc_icons.cpp":
                with self.subTest(file):
                    self.assertIn("-Werror", options)


if __name__ == "__main__":
    unittest.main()
