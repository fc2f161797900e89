"""Each mutable global or function static is listed in globals.toml, with its reason.

test_globals.py COMPILER OBJDUMP FLOOR=FILE[:FILE...]...
"""
import subprocess
import sys
import tempfile
import tomllib
import unittest
from pathlib import Path

import globals as reader

ROOT = Path(__file__).resolve().parents[2]
COMPILER, OBJDUMP, *ARGUMENTS = sys.argv[1:]
LIBRARIES = {floor: files.split(":") for floor, _, files in (argument.partition("=") for argument in ARGUMENTS)}


class Globals(unittest.TestCase):
    maxDiff = None

    def test_every_one_that_can_change_has_a_reason(self):
        listed = tomllib.loads((Path(__file__).parent / "globals.toml").read_text(encoding="utf-8"))
        found = reader.mutable_globals(OBJDUMP, ROOT, LIBRARIES)
        self.assertEqual([], reader.faults(found, listed))
        self.assertIn("document", found["formdata"], "the libraries are read")


class TheReader(unittest.TestCase):
    """Tests the reader on a small source tree that is compiled here."""

    def mutable(self, **sources):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            libraries = {}
            for name, text in sources.items():
                (root / name).mkdir()
                source = root / name / "a.cpp"
                source.write_text(("#include <string>\n" if "std::" in text else "") + text, encoding="utf-8")
                compiled = root / f"{name}.o"
                subprocess.run([COMPILER, "-std=c++20", "-O2", "-fPIC", "-c", source, "-o", compiled], check=True)
                libraries[name] = [compiled]
            return reader.mutable_globals(OBJDUMP, root, libraries)

    def test_a_static_of_a_function_is_seen(self):
        found = self.mutable(base="int next()\n{\n    static int last = 0;\n    return ++last;\n}\n")
        self.assertEqual({"base": {"next::last"}}, found)

    def test_a_global_is_seen(self):
        found = self.mutable(base="int count = 1;\nnamespace {\nstd::string text;\n}\n"
                                  "std::string &change()\n{\n    ++count;\n    return text;\n}\n")
        self.assertEqual({"base": {"count", "text"}}, found)

    def test_a_static_member_is_seen(self):
        found = self.mutable(base="struct A {\n    static int Count;\n    static inline int Last = 1;\n};\n"
                                  "int A::Count = 0;\nint next()\n{\n    return ++A::Count + ++A::Last;\n}\n")
        self.assertEqual({"base": {"A::Count", "A::Last"}}, found)

    def test_what_is_local_to_a_thread_is_seen(self):
        found = self.mutable(base="thread_local int depth = 0;\nint next()\n{\n    return ++depth;\n}\n")
        self.assertEqual({"base": {"depth"}}, found)

    def test_a_pointer_to_const_can_change(self):
        found = self.mutable(base='const char *word = "a";\nvoid change()\n{\n    word = "b";\n}\n')
        self.assertEqual({"base": {"word"}}, found)

    def test_what_is_const_is_left_out_although_it_is_made_at_the_start(self):
        found = self.mutable(base="extern const std::string Word;\nconst std::string Word(100, 'a');\n"
                                  "const std::string &other()\n{\n    static const std::string Other(100, 'b');\n"
                                  "    return Other;\n}\n")
        self.assertEqual({"base": set()}, found)

    def test_one_of_that_name_that_is_const_elsewhere_hides_nothing(self):
        found = self.mutable(base="extern const std::string Word;\nconst std::string Word(100, 'a');\n",
                             shell="namespace {\nstd::string Word;\n}\nstd::string &word()\n{\n    return Word;\n}\n")
        self.assertEqual({"base": set(), "shell": {"Word"}}, found)

    def test_one_of_that_name_that_is_const_in_another_function_hides_nothing(self):
        found = self.mutable(base="const std::string &a()\n{\n    static const std::string text(100, 'a');\n"
                                  "    return text;\n}\n"
                                  "std::string &b()\n{\n    static std::string text;\n    return text;\n}\n")
        self.assertIn("b::text", found["base"])

    def test_what_is_written_in_no_known_way_is_seen(self):
        found = self.mutable(base="int *next()\n{\n    static struct {\n        int number;\n    } last;\n"
                                  "    return &last.number;\n}\n")
        self.assertEqual({"base": {"next::last"}}, found)

    def test_a_row_that_is_gone_and_one_without_a_reason_are_faults(self):
        self.assertEqual(["base: a can change, and globals.toml has no reason for it",
                          "base: b is in globals.toml and is no more",
                          "base: c has no reason in globals.toml"],
                         reader.faults({"base": {"a", "c"}}, {"base": {"b": "It was needed.", "c": " "}}))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
