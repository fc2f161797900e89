#!/usr/bin/env python3
"""Files are compiled together only where this makes no difference to any of them."""

import os
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(os.environ["ZR3_ROOT"]) / "cmake"))
from unity_groups import File, groups  # noqa: E402


class Groups(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def file(self, code):
        path = self.folder / f"{len(list(self.folder.iterdir()))}.cpp"
        path.write_text(code)
        return File(str(path))

    def kept(self, code):
        return self.file(code).kept

    def together(self, *codes):
        return len(groups([self.file(code) for code in codes], 10)) == 1

    def test_what_an_unnamed_namespace_declares_is_kept(self):
        self.assertEqual({"Width", "Names", "isDigit", "Row", "Rows", "Reader", "sum", "read", "Kind"}, self.kept("""
            namespace {
            constexpr int Width = 3;
            const char *const Names[] = {"one", "two; {"};
            [[maybe_unused]] bool isDigit(char c, int d = f(3)) { int local = c; return local > d; }
            struct Row { int member; void inside() { } };
            const Row Rows[] { {1}, {2} };
            using Reader = int (*)(char);
            template <class T, class U> T sum(std::map<T, U> values) { for (;;) { } }
            static std::function<bool(int)> read;
            enum class Kind { One, Two };
            } // namespace
            int global() { int inside = 0; return inside; }
            struct Shared { int member; };
            """))

    def test_what_is_static_and_what_is_a_macro_is_kept(self):
        self.assertEqual({"start", "TWICE"}, self.kept("#define TWICE(x) \\\n  ((x) + (x))\nstatic void start() { }\nvoid go() { }\n"))

    def test_what_stands_after_an_unnamed_namespace_is_not(self):
        self.assertEqual({"one", "two"}, self.kept("namespace {\nint one;\n}\nvoid shared() { }\nnamespace {\nint two() { return 1; }\n}\n"))

    def test_two_that_keep_the_same_name_are_parted(self):
        self.assertFalse(self.together("namespace {\nvoid rules() { }\n}\n", "namespace {\nint rules = 0;\n}\n"))

    def test_one_that_uses_a_name_that_another_keeps_is_parted_from_it(self):
        keeper = "namespace {\nusing Form = int;\n}\n"
        self.assertFalse(self.together(keeper, "void f() { Form.reset(); }\n"))
        self.assertFalse(self.together("void f() { Form.reset(); }\n", keeper))

    def test_a_member_of_that_name_parts_nobody(self):
        keeper = "namespace {\nvoid rules() { }\n}\n"
        self.assertTrue(self.together(keeper, "void f(Screen &s) { s.rules = 0; Screen::rules(); p->rules(); }\n"))

    def test_comments_and_texts_part_nobody(self):
        keeper = "namespace {\nvoid rules() { }\n}\n"
        self.assertTrue(self.together(keeper, 'const char *a = "rules"; // rules\n/* rules */ auto b = R"x(rules)x";\n'))

    def test_two_that_give_one_type_the_same_other_name_stay_together(self):
        self.assertTrue(self.together("namespace {\nusing Error = clsError;\n}\n", "namespace {\nusing Error = clsError;\n}\n"))
        self.assertFalse(self.together("namespace {\nusing Error = clsError;\n}\n", "namespace {\nusing Error = int;\n}\n"))
        self.assertFalse(self.together("namespace {\nusing Error = clsError;\n}\n", "void f(Error);\n"))

    def test_a_test_is_no_name(self):
        self.assertEqual({"Fixture"}, self.kept("namespace {\nclass Fixture { };\nTEST_F(Fixture, Does) { EXPECT_EQ(1, 1); }\n}\n"))

    def test_what_brings_names_along_stays_with_its_like(self):
        self.assertFalse(self.together("using enum Kind;\nint a;\n", "int b;\n"))
        self.assertFalse(self.together("int b;\n", "using namespace other;\n"))
        self.assertTrue(self.together("using enum Kind;\nint a;\n", "using enum Kind;\nint b;\n"))

    def test_a_group_has_its_size_and_nothing_is_lost(self):
        files = [self.file(f"int number{n};\n") for n in range(23)]
        made = groups(files, 10)
        self.assertEqual([10, 10, 3], [len(group) for group in made])
        self.assertEqual(files, [file for group in made for file in group])


if __name__ == "__main__":
    unittest.main()
