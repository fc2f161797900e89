"""Where words are on the pages of a printed document, and what rows of exact height hide."""

import html
import re
import subprocess
import zipfile
from collections import Counter
from typing import NamedTuple

NEAR = 0.6                      # points: nothing moves by less if a row grows

WORD = re.compile(r'<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="[-\d.]+" yMax="[-\d.]+">(.*?)</word>', re.S)


class Word(NamedTuple):
    text: str
    x: float
    y: float


def write_growing(document, copy):
    """Writes a copy of a document in which every row grows with its text."""
    with zipfile.ZipFile(document) as source, zipfile.ZipFile(copy, "w", zipfile.ZIP_DEFLATED) as target:
        for name in source.namelist():
            data = source.read(name)
            if name == "word/document.xml":
                data = data.replace(b'w:hRule="exact"', b'w:hRule="atLeast"')
            target.writestr(name, data)


def pages(pdf):
    """The words of each page."""
    told = subprocess.run(["pdftotext", "-bbox", str(pdf), "-"], check=True, capture_output=True).stdout.decode("utf-8")
    return [[Word(html.unescape(text), float(x), float(y)) for x, y, text in WORD.findall(page)]
            for page in told.split("<page ")[1:]]


def texts(page):
    return Counter(word.text for word in page)


def hidden(printed, growing):
    """What the pages don't show completely, as sentences: if the rows may grow, a word appears, is on another page or
    further down. Empty if nothing is hidden.
    """
    found = []
    if len(printed) != len(growing):
        found.append(f"{len(printed)} pages, {len(growing)} where rows grow")
    for number, (page, other) in enumerate(zip(printed, growing), 1):
        missing, surplus = texts(other) - texts(page), texts(page) - texts(other)
        if missing or surplus:
            found.append(f"page {number}: {sorted(missing)[:8]} missing, {sorted(surplus)[:8]} elsewhere")
            continue
        moved = [one for one, two in zip(sorted(page), sorted(other)) if two.y - one.y > NEAR]
        if moved:
            highest = sorted(moved, key=lambda word: (word.y, word.x))[:8]
            found.append(f"page {number}: a row grows above {[word.text for word in highest]}")
    return found
