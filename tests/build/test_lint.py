#!/usr/bin/env python3
"""What ./lint reports of faulty sources."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LINT = Path(os.environ["ZR3_ROOT"]) / "scripts/lint"


class Lint(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def findings(self, script, **sources):
        """What a script finds in sources, named with __ for / and ending in the letter of their kind."""
        names = []
        for name, code in sources.items():
            path = name.replace("__", "/").replace("_h", ".h").replace("_cpp", ".cpp")
            (self.folder / path).parent.mkdir(exist_ok=True)
            (self.folder / path).write_text(code)
            names.append(path)
        arguments = [self.folder] if script == "includes.py" else []
        run = subprocess.run([sys.executable, "-B", LINT / script, *arguments, *names], cwd=self.folder,
                             capture_output=True, text=True)
        self.assertEqual("", run.stderr)
        self.assertEqual(1 if run.stdout else 0, run.returncode)
        return run.stdout.splitlines()


class Includes(Lint):
    def of(self, code):
        return self.findings("includes.py", floor__own_cpp=code, floor__own_h="", floor__other_h="",
                             floor__third_h="")

    def test_each_kind_in_its_place_is_no_finding(self):
        self.assertEqual([], self.of("""// A word on the file.

#include "floor/own.h"

#include "floor/other.h"

#include <QString>
#include <QtTest/qtestspontaneevent.h>

#include <pugixml.hpp>

#include <memory>

#include <unistd.h>

#ifdef __linux__
#include <QFile>
#endif
"""))

    def test_what_the_file_implements_may_stand_alone_before_the_others(self):
        self.assertEqual([], self.of('#include "floor/other.h"\n\n#include "floor/third.h"\n'))

    def test_a_header_that_is_not_there(self):
        self.assertEqual(["floor/own.cpp:1: there is no other.h below the root"], self.of('#include "other.h"\n'))

    def test_blocks_in_another_order(self):
        self.assertEqual(["floor/own.cpp:3: a header of Qt comes after a standard header"],
                         self.of("#include <memory>\n\n#include <QString>\n"))

    def test_two_blocks_of_one_kind(self):
        self.assertEqual(["floor/own.cpp:3: a header of Qt comes after a header of Qt"],
                         self.of("#include <QDate>\n\n#include <QString>\n"))

    def test_two_kinds_in_one_block(self):
        self.assertEqual(["floor/own.cpp:1: the block mixes a header of Qt and a standard header"],
                         self.of("#include <QDate>\n#include <memory>\n"))

    def test_a_header_twice(self):
        self.assertEqual(["floor/own.cpp:2: QDate is included twice"], self.of("#include <QDate>\n#include <QDate>\n"))

    def test_its_own_header_among_others(self):
        self.assertEqual(
            ["floor/own.cpp:2: floor/own.h is the file's own header: it stands first, in a block of its own"],
            self.of('#include "floor/other.h"\n#include "floor/own.h"\n'))


class TypeNames(Lint):
    def of(self, one, other):
        return self.findings("type_names.py", one_h=one, other_cpp=other)

    def test_one_name_for_two_types(self):
        for other in ("struct clsCell { };", "class clsCell final : public A, public b::B {\n};", "enum class clsCell : int { One };"):
            with self.subTest(other):
                self.assertEqual(["clsCell is a type in one.h and in other.cpp"], self.of("struct clsCell {\n    int a;\n};\n", other))

    def test_types_that_nobody_else_sees_may_share_it(self):
        self.assertEqual([], self.of("struct clsCell { };\n", "namespace {\nstruct clsCell { };\n} // namespace\n"))

    def test_a_type_within_another_or_within_a_namespace_has_another_name(self):
        self.assertEqual([], self.of("struct clsCell { };\n",
                                     "class clsGrid {\n    struct clsCell { };\n};\nnamespace Other {\nstruct clsCell { };\n}\n"))

    def test_a_type_that_is_only_announced_is_none(self):
        self.assertEqual([], self.of("struct clsCell { };\n", "struct clsCell;\nvoid f(struct clsCell *c) { }\n"))


if __name__ == "__main__":
    unittest.main()
