#!/usr/bin/env python3
"""Writes the page templates of the printed forms into a folder.

    /usr/bin/python3 make_templates.py OUTDIR [SUMS]

The same sources always make the same bytes. SUMS is a file for the SHA-256 of each, as literals for the compiler.
"""

import argparse
import hashlib
import sys
from pathlib import Path

sys.dont_write_bytecode = True          # the sources stay as they are

from zr3_forms import claim1, claim1a           # noqa: E402
from zr3_forms.package import package_bytes     # noqa: E402

FORMS = [claim1, claim1a]


def make_templates(folder):
    """Returns the sum of each template."""
    folder.mkdir(parents=True, exist_ok=True)
    sums = []
    for form in FORMS:
        for name, lines in form.SHEETS.items():
            made = package_bytes(form.FORM.name, lines)
            (folder / (name + ".doc")).write_bytes(made)
            sums.append(hashlib.blake2b(made, digest_size=32).hexdigest())
    return sums


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description="Writes the page templates of the printed forms into a folder.")
    parser.add_argument("OUTDIR", type=Path)
    parser.add_argument("SUMS", type=Path, nargs="?")
    arguments = parser.parse_args()
    made_sums = make_templates(arguments.OUTDIR)
    if arguments.SUMS:
        arguments.SUMS.write_text("".join(f'"{made_sum}",\n' for made_sum in made_sums), encoding="ascii")
