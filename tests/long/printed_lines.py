"""Compares the lines counted by the layout with those printed by the word processor, for random texts and cells.

    printed_lines.py [--texts N] [--seed S]

The texts are like those of real claims: words, names, capitals, amounts, dates, references, addresses with line breaks,
e-mail addresses, parts in another size or weight. The cells have the styles of the forms and any width. At most one
text in 500 may be counted with more lines than are printed, and none with fewer. An amount after a pound sign is
excepted from the first rule: if it is too wide for its cell, it is printed into the inset, which the layout doesn't
use. ZR3_FIT_LINES is the program that counts.
"""

import argparse
import io
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path
from typing import NamedTuple

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "resources" / "templates"))

from zr3_forms import look                                      # noqa: E402
from zr3_forms.markup import Cell, Paragraph, Row, Run, Tab     # noqa: E402
from zr3_forms.package import package_bytes                     # noqa: E402

SKIPPED = 77
ONE_IN = 500
STYLES = [look.ANSWER, look.GRID, look.DENSE_GRID, look.SCHEDULE, look.BOX, look.LONG_BOX, look.SHEET_BOX,
          look.GRAND_TOTAL, look.QUESTION]
ANCHOR = 1300                   # twips: space for the number of a text
MOST_LINES = 40

WORDS = """the of and to in a client counsel conference advice hearing possession disrepair landlord tenant damp mould
report expert surveyor considered drafted reviewed telephone attended court county application order directions bundle
instructions witness statement correspondence defendant claimant solicitors re whether further considering preparation
without prejudice offer settlement costs assessment reasonable proportionate urgent interim injunction housing benefit
arrears council representative psychiatrist adolescent""".split()
NAMES = "Maribelle Okonkwo O'Brien Smith-Jones Wilhelmina McAllister Featherstonehaugh Li Abdulrahman D'Souza".split()
STREETS = "High Street,Old Mill Lane,Queen's Road,Flat 3B,The Laurels,Walthamstow,London,Birmingham,c/o 12 Mews".split(",")
ODD = ["and/or", "him/her", "(see p.4)", "[sic]", "N/A", "50%", "e.g.", "i.e.", "\u00a326.50", "\u2013", "\u2014",
       "\u2026", "\u201cquoted\u201d", "it\u2019s", "A&E", "12\u20133", "co-operate", "re-draft", "non-molestation",
       "what?", "No!", "a\u00a0b", "1st", "#4", "+44", "@", "10:30-11:45", "caf\u00e9", "Co.,", "s.21", "/", "-", "(a)"]


def amount(random):
    return f"{random.randrange(10 ** random.randint(1, 8)):,}.{random.randrange(100):02}"


def postcode(random):
    return (random.choice("ABENSW") + random.choice("ABCLMNW1") + str(random.randrange(1, 20)) + " "
            + str(random.randrange(10)) + random.choice("ABDEFG") + random.choice("HJLNP"))


def slashed(random):
    """A web address, or words and numbers with slashes and hyphens."""
    parts = [random.choice(WORDS) for _ in range(random.randint(2, 5))] + [str(random.randrange(3000))]
    random.shuffle(parts)
    start = random.choice(["", "", "www.", "https://"])
    return start + "".join(part + random.choice("/-/.") for part in parts[:-1]) + parts[-1]


def word(random):
    return random.choices([
        lambda: random.choice(WORDS),
        lambda: random.choice(WORDS).capitalize(),
        lambda: random.choice(WORDS).upper(),
        lambda: random.choice(NAMES),
        lambda: random.choice(ODD),
        lambda: amount(random),
        lambda: "\u00a3" + amount(random),
        lambda: f"{random.randrange(1, 29):02}/{random.randrange(1, 13):02}/{random.randrange(20, 27)}",
        lambda: f"{random.randrange(100):02}:{random.randrange(60):02}",
        lambda: random.choice(STREETS),
        lambda: postcode(random),
        lambda: f"{random.choice(NAMES).lower()}.{random.choice(WORDS)}@{random.choice(WORDS)}-law.co.uk",
        lambda: slashed(random),
        lambda: "".join(random.choice("abcdefghijklmnopqrstuvwxyzWM") for _ in range(random.randint(12, 60))),
    ], [50, 8, 6, 6, 6, 4, 2, 3, 2, 4, 2, 1, 2, 1])[0]()


def text(random):
    words = []
    for _ in range(random.choice([1, 2, 3, 5, 8, 13, 21, 34])):
        words.append(word(random) + random.choices(["", ",", ".", ";"], [85, 8, 6, 1])[0])
        words.append(random.choices([" ", "\n", "  ", "\n\n"], [88, 9, 2, 1])[0])
    return "".join(words[:-1]) + random.choices(["", " ", "\n"], [90, 8, 2])[0]


def content(random):
    """The runs of a paragraph: usually one, sometimes several of different sizes and weights."""
    if random.random() < 0.85:
        return (Run(text(random)),)
    return tuple(Run(text(random) + " ", size=random.choice([None, 6, 7.5, 9]), bold=random.choice([None, True, False]))
                 for _ in range(random.randint(2, 3)))


class Made(NamedTuple):
    row: Row
    paragraph: Paragraph
    width: int
    style: look.Style


def row(random, number):
    style = random.choice(STYLES)
    width = min(int(random.triangular(700, 6600, 1800)) + style.left + style.right, 6600)
    if random.random() < 0.06:              # an amount after a pound sign
        paragraph = Paragraph(style, ("\u00a3\t", amount(random)), tabs=(Tab(look.RIGHT, width - style.right),))
    else:
        paragraph = Paragraph(style, content(random), align=random.choice([look.LEFT, look.LEFT, look.RIGHT, look.CENTRE]))
    mark = Paragraph(style, (Run("#%d" % number, size=6),), align=look.LEFT)
    before = random.choice([0, random.randint(20, 90)]) * 10
    rest = look.units(look.ACROSS) - width - 2 * ANCHOR - before
    cells = (Cell(width, (paragraph,), stands="top"), Cell(ANCHOR, (mark,), stands="top"),
             Cell(ANCHOR, (mark,), stands="bottom"), Cell(rest, (Paragraph(look.NOTE),)))
    if before:
        cells = (Cell(before, (Paragraph(look.NOTE),)), *cells)
    return Made(Row(12, cells), paragraph, width, style)


def document(rows, spanned):
    """Rows that grow with their text. Below a first row that spans them, their cells are printed narrower."""
    if spanned:
        rows = [Row(12, (Cell(look.units(look.ACROSS), (Paragraph(look.NOTE),)),)), *rows]
    fullest, look.FULLEST = look.FULLEST, 10 ** 9
    made = package_bytes("Lines", [*rows, Paragraph(look.TAIL)])
    look.FULLEST = fullest
    out = io.BytesIO()
    with zipfile.ZipFile(io.BytesIO(made)) as source, zipfile.ZipFile(out, "w") as target:
        for name in source.namelist():
            data = source.read(name)
            if name == "word/document.xml":
                data = data.replace(b'w:hRule="exact"', b'w:hRule="atLeast"')
            target.writestr(name, data)
    return out.getvalue()


def printed(path, folder, lines):
    subprocess.run(["soffice", "--headless", f"-env:UserInstallation=file://{folder}/profile", "--convert-to", "pdf",
                    "--outdir", str(folder), str(path)], check=True, capture_output=True, timeout=600)
    words = subprocess.run(["pdftotext", "-bbox", str(path.with_suffix(".pdf")), "-"], check=True, capture_output=True,
                           text=True).stdout
    tops = {}
    for y, mark in re.findall(r'yMin="([\d.]+)" xMax="[\d.]+" yMax="[\d.]+">#(\d+)<', words):
        tops.setdefault(int(mark), []).append(float(y))
    counted = {}
    for number, ys in tops.items():
        if len(ys) == 2:
            counted[number] = round((max(ys) - min(ys)) / lines[number]) + 1
    return counted


def counted(path):
    out = subprocess.run([os.environ["ZR3_FIT_LINES"], str(path)], check=True, capture_output=True, text=True).stdout
    return {int(number): int(lines) for number, lines in (line.split() for line in out.splitlines())}


def compare(texts, seed, folder):
    source = random.Random(seed)
    made = [row(source, number) for number in range(texts)]
    path = folder / "lines.docx"
    path.write_bytes(document([one.row for one in made], seed % 2 == 0))
    ours = counted(path)
    theirs = printed(path, folder, [one.style.line for one in made])
    judged = [number for number in range(texts) if number in theirs and ours[number] <= MOST_LINES]
    higher = [number for number in judged if ours[number] > theirs[number] and not made[number].paragraph.tabs]
    lower = [number for number in judged if ours[number] < theirs[number]]
    for number in higher + lower:
        one = made[number]
        words = "".join(part if isinstance(part, str) else part.text for part in one.paragraph.content)
        print(f"text {number}: {theirs[number]} lines printed, {ours[number]} counted; {one.style.name} "
              f"{one.style.size}, {one.width} twips: {words!r}")
    print(f"seed {seed}: {len(judged)} texts of {texts}, {len(higher)} counted higher than printed, {len(lower)} lower")
    assert len(judged) > texts * 0.9, "too few texts could be found on the pages"
    return len(higher) <= max(1, texts // ONE_IN) and not lower


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--texts", type=int, default=2000)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    for program in ("soffice", "pdftotext"):
        if not shutil.which(program):
            print(f"skipped: there is no {program} on this machine")
            sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory() as work:
        sys.exit(0 if compare(arguments.texts, arguments.seed, Path(work)) else 1)
