#!/usr/bin/env python3
"""Writes the page templates of the printed forms into a folder.

    /usr/bin/python3 make_templates.py OUTDIR

The same sources always make the same bytes.
"""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True          # the sources stay as they are

from zr3_forms import claim1, claim1a           # noqa: E402
from zr3_forms.package import package_bytes     # noqa: E402

FORMS = [claim1, claim1a]


def make_templates(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for form in FORMS:
        for name, lines in form.SHEETS.items():
            (folder / (name + ".doc")).write_bytes(package_bytes(form.FORM.name, lines))


if __name__ == "__main__":
    arguments = argparse.ArgumentParser(description="Writes the page templates of the printed forms into a folder.")
    arguments.add_argument("OUTDIR", type=Path)
    make_templates(arguments.parse_args().OUTDIR)
