"""The compiled table of widths equals what its script makes of the font files, and has the width of each character of
the fonts.
"""

import os
import re
import sys
import unittest
from pathlib import Path

from fontTools.ttLib import TTFont

SCRIPTS = Path(__file__).resolve().parents[2] / "wordexport/document"
sys.path.insert(0, str(SCRIPTS))

import make_font_widths  # noqa: E402

REGULAR, BOLD = Path(os.environ["ZR3_FONT_REGULAR"]), Path(os.environ["ZR3_FONT_BOLD"])
COMPILED = Path(os.environ["ZR3_FONT_WIDTHS"]).read_text(encoding="ascii")


def numbers(name):
    return [int(number, 0) for number in re.findall(r"\w+", re.search(rf"{name}\[\] = {{(.*?)\n}};", COMPILED, re.S)[1])]


def compiled_widths(name):
    bounds, values = numbers(name + "Ranges"), numbers(name + "Widths")
    return {code: values[index + code - first]
            for first, last, index in zip(bounds[::3], bounds[1::3], bounds[2::3])
            for code in range(first, last + 1)}


class Widths(unittest.TestCase):
    def test_the_table_is_what_the_script_makes(self):
        self.assertEqual(COMPILED, make_font_widths.tables(REGULAR, BOLD))

    def test_each_character_has_the_width_that_the_font_gives_it(self):
        for name, path in (("Regular", REGULAR), ("Bold", BOLD)):
            font = TTFont(path)
            glyphs = {}
            for subtable in font["cmap"].tables:
                if subtable.isUnicode():
                    glyphs.update({code: glyph for code, glyph in subtable.cmap.items() if 0x20 <= code <= 0xFFFF})
            expected = {code: font["hmtx"].metrics[glyph][0] for code, glyph in glyphs.items()}
            self.assertGreater(len(expected), 600)
            self.assertEqual(compiled_widths(name), expected)


if __name__ == "__main__":
    unittest.main()
