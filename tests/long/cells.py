"""The sheets, rows and cells of a finished document."""

import re
import subprocess
import zipfile
from collections import Counter
from functools import cache

from fontTools.ttLib import TTFont
from lxml import etree

W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"
SMALLEST = 6
LINES = 16                      # twips that a cell's borders take from its width, at most
AMOUNT = re.compile(r"\d[\d,]*\.\d\d")
# The parts of a word between which a line may break.
PARTS = re.compile(r"[^\s\u00a0/-]+[/-]*|[/-]+")


@cache
def font(bold):
    weight = "Bold" if bold else "Regular"
    path = subprocess.run(["fc-match", "-f", "%{file}", f"Liberation Sans:style={weight}"], check=True,
                          capture_output=True, text=True).stdout
    found = TTFont(path)
    return found.getBestCmap(), found["hmtx"], found["head"].unitsPerEm


def width(word, bold):
    """The width of a word at the smallest size, in twips."""
    characters, advances, em = font(bold)
    return sum(advances[characters.get(ord(c), ".notdef")][0] for c in word) * SMALLEST * 20 / em


def fits(word, bold, across):
    """Whether a word, or each of its parts between hyphens, fits into a cell of this width."""
    # The office program doesn't break a word after a slash: if there is no nearer break, it cuts the word at the letter
    # that no longer fits.
    parts = [word] if "/" in word else PARTS.findall(word) or [word]
    return max(width(part, bold) for part in parts) <= across - LINES


def attribute(node, path, name="val"):
    found = node.find("/".join(W + step for step in path.split("/")))
    return None if found is None else found.get(W + name)


def text(node):
    return "".join({"t": part.text or "", "tab": " ", "br": " "}.get(etree.QName(part).localname, "")
                   for part in node.iter(W + "t", W + "tab", W + "br"))


def with_low_row(document):
    """The markup of a document in which the row of the longest text is a third of its height."""
    root = etree.fromstring(document)
    rows = [row for row in root.iter(W + "tr") if attribute(row, "trPr/trHeight", "hRule") == "exact"]
    longest = max(rows, key=lambda row: max(len(text(cell)) for cell in row.iter(W + "tc")))
    height = longest.find(f"{W}trPr/{W}trHeight")
    height.set(W + "val", str(int(height.get(W + "val")) // 3))
    return etree.tostring(root)


def stands_in_parts(parts, shown):
    """Whether `shown` knows the parts of a word, or some of them joined."""
    return not parts or any(shown("".join(parts[:end])) and stands_in_parts(parts[end:], shown)
                            for end in range(1, len(parts) + 1))


class Document:
    def __init__(self, path):
        with zipfile.ZipFile(path) as package:
            self.root = etree.fromstring(package.read("word/document.xml"))
            styles = etree.fromstring(package.read("word/styles.xml"))
        self.insets = {style.get(W + "styleId"): sum(int(attribute(style, "pPr/ind", side) or 0) for side in ("left", "right"))
                       for style in styles.iter(W + "style")}
        self.sizes = {style.get(W + "styleId"): attribute(style, "rPr/sz") for style in styles.iter(W + "style")}
        self.sheets = sum(1 for _ in self.root.iter(W + "sectPr"))
        self.grown_rows = sum(height.get(W + "hRule") != "exact" for height in self.root.iter(W + "trHeight"))

    def paragraphs(self):
        """The paragraphs of cells, each with its cell's width less its insets."""
        for cell in self.root.iter(W + "tc"):
            across = int(attribute(cell, "tcPr/tcW", "w"))
            for paragraph in cell.findall(W + "p"):
                yield paragraph, across - self.insets[attribute(paragraph, "pPr/pStyle")]

    @property
    def smaller_cells(self):
        return sum(any(int(size.get(W + "val")) < int(self.sizes[attribute(paragraph, "pPr/pStyle")])
                       for size in paragraph.iterfind(f"{W}r/{W}rPr/{W}sz"))
                   for paragraph, _ in self.paragraphs())

    def broken(self, shown):
        """The amounts and words that are broken on the pages although they are narrow enough."""
        expected, narrow = Counter(), set()
        for paragraph, across in self.paragraphs():
            bold = attribute(paragraph, "pPr/rPr/b") is not None
            for word in (word for run in paragraph.iter(W + "r") for word in text(run).replace("\u00a0", " ").split()):
                expected[word] += 1
                if fits(word, bold, across):
                    narrow.add(word)
        found = []
        for word, count in expected.items():
            if word not in narrow or shown[word] >= count:
                continue
            if AMOUNT.fullmatch(word):
                found.append(f"amount {word} is broken")
            elif not stands_in_parts(PARTS.findall(word), shown.__getitem__):
                found.append(f"word {word!r} is broken")
        return found
