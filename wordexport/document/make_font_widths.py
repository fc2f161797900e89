#!/usr/bin/env python3
"""Writes the widths of the characters of two fonts, as tables for the compiler.

    /usr/bin/python3 make_font_widths.py REGULAR.ttf BOLD.ttf OUT

The widths are the fonts' own units. Characters that follow one another without a gap are one range, whose widths stand
behind each other from an index on. The same fonts always make the same bytes.
"""

import hashlib
import sys
from pathlib import Path

from fontTools.ttLib import TTFont

UNITS = 2048                            # to the em; the layout counts on it
LAST = 0xFFFF
ON_A_LINE = 20


def widths(path):
    font = TTFont(path)
    if font["head"].unitsPerEm != UNITS:
        raise ValueError(f"{path} has {font['head'].unitsPerEm} units to the em, not {UNITS}")
    advances = font["hmtx"]
    return {code: advances[glyph][0] for code, glyph in sorted(font.getBestCmap().items()) if 0x20 <= code <= LAST}


def ranges(codes):
    """First and last character of each range, and the index of the first one's width."""
    found = []
    for index, code in enumerate(codes):
        if found and found[-1][1] == code - 1:
            found[-1][1] = code
        else:
            found.append([code, code, index])
    return found


def table(name, path):
    by_code = widths(path)
    values = [str(width) for width in by_code.values()]
    lines = [f"constexpr const char *{name}Sum = \"{hashlib.sha256(path.read_bytes()).hexdigest()}\";",
             f"constexpr Range {name}Ranges[] = {{"]
    lines += [f"    {{0x{first:04X}, 0x{last:04X}, {index}}}," for first, last, index in ranges(by_code)]
    lines += ["};", f"constexpr std::uint16_t {name}Widths[] = {{"]
    lines += ["    " + ", ".join(values[i:i + ON_A_LINE]) + "," for i in range(0, len(values), ON_A_LINE)]
    return lines + ["};", ""]


def tables(regular, bold):
    return "\n".join(table("Regular", regular) + table("Bold", bold))


if __name__ == "__main__":
    regular_file, bold_file, out = map(Path, sys.argv[1:])
    out.write_text(tables(regular_file, bold_file), encoding="ascii")
