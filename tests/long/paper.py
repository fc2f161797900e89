"""Generated claims as printed: no typed text is missing or partly hidden, and each sheet is one page.

    paper.py [--claims N] [--seed S] [--keep FOLDER]

Each claim is exported and printed twice: as it is, and as a copy in which every row of exact height may grow. If a row
cuts something off, a word of the copy is additional, on another page or further down. Within the allowances there are
as many pages as sheets; beyond them a sheet that runs on has a row that was allowed to grow. Amounts are not broken,
nor are words that at the smallest size are not wider than their cell. Each run also plants a cut, which must be found.

    ZR3_TOOL       the headless program
    ZR3_TEMPLATES  the folder of the page templates
    ZR3_SAMPLES    the folder of the sample claims
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile
from collections import Counter
from pathlib import Path

sys.dont_write_bytecode = True

import cells                    # noqa: E402
import made_claims              # noqa: E402
import page_words               # noqa: E402

SKIPPED = 77
AT_ONCE = 24                    # claims per start of the word processor


def export(made, folder):
    claim = made.claim.write(folder / f"{made.name}.zr3")
    into = folder / f"{made.name}-export"
    into.mkdir()
    subprocess.run([os.environ["ZR3_TOOL"], "export", str(claim), str(into), "--templates", os.environ["ZR3_TEMPLATES"],
                    "--quiet"], check=True)
    (finished,) = into.glob("*.doc")
    document = folder / f"{made.name}.doc"
    finished.rename(document)
    return document


def print_all(documents, folder):
    subprocess.run(["soffice", "--headless", f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--convert-to", "pdf",
                    "--outdir", str(folder), *map(str, documents)], check=True, capture_output=True, timeout=900)


def growing_name(document):
    return document.with_name(f"{document.stem}-growing.doc")


def plant_cut(document, planted):
    """Lowers the last row that has an answer's typed text."""
    with zipfile.ZipFile(document) as source, zipfile.ZipFile(planted, "w") as target:
        for name in source.namelist():
            data = source.read(name)
            if name == "word/document.xml":
                data = cells.with_low_row(data)
            target.writestr(name, data)


def faults(made, document):
    """The faults of a printed claim, and its counts for the statistics."""
    printed = page_words.pages(document.with_suffix(".pdf"))
    found = page_words.hidden(printed, page_words.pages(growing_name(document).with_suffix(".pdf")))
    told = cells.Document(document)
    if len(printed) != told.sheets and (made.is_within or not told.grown_rows):
        found.append(f"{told.sheets} sheets on {len(printed)} pages, {told.grown_rows} rows grown")
    if made.is_within and told.grown_rows:
        found.append(f"{told.grown_rows} rows grown within the allowances")
    shown = sum((page_words.texts(page) for page in printed), Counter())
    found += told.broken(shown)
    return found, Counter(pages=len(printed), sheets=told.sheets, smaller=told.smaller_cells, grown=told.grown_rows,
                          running_on=len(printed) != told.sheets, words=sum(shown.values()))


def run(claims, folder):
    total, faulty = Counter(), 0
    planted = False
    for start in range(0, len(claims), AT_ONCE):
        part = {made: export(made, folder) for made in claims[start:start + AT_ONCE]}
        for document in part.values():
            page_words.write_growing(document, growing_name(document))
        extra = []
        if not planted:
            extra = [folder / "planted.doc", folder / "planted-growing.doc"]
            plant_cut(next(iter(part.values())), extra[0])
            page_words.write_growing(*extra)
        print_all([*part.values(), *map(growing_name, part.values()), *extra], folder)
        if extra and not page_words.hidden(*(page_words.pages(path.with_suffix(".pdf")) for path in extra)):
            print("the planted cut was not found: the comparison is blind")
            return False
        planted = True
        for made, document in part.items():
            found, counts = faults(made, document)
            total += counts
            faulty += bool(found)
            for fault in found:
                print(f"{made.name} ({'within' if made.is_within else 'beyond'}): {fault}", flush=True)
    print(f"{len(claims)} claims, {total['sheets']} sheets on {total['pages']} pages, {total['words']} words; "
          f"{total['smaller']} cells printed smaller, {total['grown']} rows grown, {total['running_on']} claims that run "
          f"on; {faulty} claims at fault")
    return not faulty


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--claims", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", type=int, help="one claim of the seed alone")
    parser.add_argument("--keep", type=Path, help="a folder for the documents and what was printed")
    arguments = parser.parse_args()
    for program in ("soffice", "pdftotext"):
        if not shutil.which(program):
            print(f"skipped: there is no {program} on this machine")
            sys.exit(SKIPPED)
    if arguments.only is not None:
        claims = [made_claims.made(arguments.seed, arguments.only)]
    else:
        claims = [*made_claims.at_allowance(),
                  *(made_claims.made(arguments.seed, number) for number in range(arguments.claims))]
    with tempfile.TemporaryDirectory() as work:
        if arguments.keep:
            arguments.keep.mkdir(parents=True)
        sys.exit(0 if run(claims, arguments.keep or Path(work)) else 1)
