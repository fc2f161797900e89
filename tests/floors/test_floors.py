"""No include runs up, and no circle of files is longer than those that are known."""
import tempfile
import unittest
from pathlib import Path

import floors

ROOT = Path(__file__).resolve().parents[2]

# The circles of more than two rooms, each with its reason.
KNOWN_CIRCLES = {
    # An item reads the claim that holds it (its fee earner, its group), and the claim holds the items.
    ("formdata/clsOnBill", "formdata/clsSchedulePrices", "formdata/clsZR3FeeEarner", "formdata/clsZR3FeeEarnerGroup",
     "formdata/clsZR3Form", "formdata/clsZR3ScheduleOfTimeItem"),
    # Each file operation is logged, and the log is a file below the folder that the registry names.
    ("base/mdDatabasePath", "base/mdGetFolder", "base/mdLog", "base/mdRegistry", "base/mdTextDocumentHandling"),
    # A bill works out each figure once, with the routines of its parts, and these read the bill.
    ("costing/clsBill", "costing/mdFigureFaults", "costing/mdGetColumnTotals", "costing/mdGetCommsInfo",
     "costing/mdGetFASTotals"),
    # The list of a screen opens the editor of an item, which is a screen. What a screen drops is kept, and brought back
    # on a screen that is opened for it.
    ("editors/clsListActions", "editors/frmSection", "editors/mdBringBack", "editors/mdEditItem", "editors/mdSections",
     "editors/mdTypedTexts", "editors/mdWayTo"),
}


class Floors(unittest.TestCase):
    def test_every_include_names_a_file(self):
        # Made by the build: the widths of the forms' typeface, and the sums of the page templates.
        self.assertEqual(["wordexport/document/mdFontWidths.cpp includes FontWidths.inc",
                          "wordexport/mdShippedTemplates.cpp includes ShippedTemplates.inc"],
                         floors.unknown_includes(floors.includes_of(ROOT)))

    def test_no_include_runs_up(self):
        self.assertEqual([], floors.arrows_up(floors.includes_of(ROOT)))

    def test_every_circle_is_known(self):
        longer = [tuple(circle) for circle in floors.circles(floors.includes_of(ROOT)) if len(circle) > 2]
        self.assertEqual(sorted(KNOWN_CIRCLES), sorted(longer), "a known circle that is gone leaves the list too")

    def test_every_folder_of_code_is_a_floor(self):
        stray = {str(path.relative_to(ROOT)) for path in ROOT.glob("*/*.cpp")
                 if path.parts[len(ROOT.parts)] not in ("tests", "benchmarks", "docs")
                 and not path.parts[len(ROOT.parts)].startswith("build")
                 and not floors.floor_of(path.relative_to(ROOT).as_posix())}
        self.assertEqual(set(), stray)


class TheReader(unittest.TestCase):
    """The reader of includes sees what is wrong in a tree that is made wrong on purpose."""

    def includes(self, **files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder) / name.replace("__", "/").replace("_h", ".h").replace("_cpp", ".cpp")
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return floors.includes_of(folder)

    def test_an_arrow_up_is_seen(self):
        includes = self.includes(base__a_h='#include "shell/b.h"\n', shell__b_h="")
        self.assertEqual(["base/a.h includes shell/b.h: base must not know shell"], floors.arrows_up(includes))

    def test_the_document_layer_knows_no_claim(self):
        includes = self.includes(wordexport__document__a_cpp='#include "formdata/b.h"\n', formdata__b_h="")
        self.assertEqual(1, len(floors.arrows_up(includes)))

    def test_the_headless_program_knows_no_window(self):
        includes = self.includes(programs__zr3tool__main_cpp='#include "controls/b.h"\n', controls__b_h="")
        self.assertEqual(1, len(floors.arrows_up(includes)))

    def test_an_arrow_down_is_right(self):
        includes = self.includes(base__a_h="", shell__b_cpp='#include "base/a.h"\n')
        self.assertEqual([], floors.arrows_up(includes))

    def test_an_include_of_nothing_is_seen(self):
        includes = self.includes(base__a_cpp='#include "base/gone.h"\n')
        self.assertEqual(["base/a.cpp includes base/gone.h"], floors.unknown_includes(includes))

    def test_a_circle_is_seen_through_a_source_file(self):
        includes = self.includes(base__a_h="", base__a_cpp='#include "base/b.h"\n', base__b_h='#include "base/c.h"\n',
                                 base__c_h='#include "base/a.h"\n')
        self.assertEqual([["base/a", "base/b", "base/c"]], floors.circles(includes))


if __name__ == "__main__":
    unittest.main()
