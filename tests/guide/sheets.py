"""Claims made to test what one page prints, and the content of their sheets."""

import json
import re
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
import zipfile
from pathlib import Path
from urllib.parse import quote_plus

WORDS = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"
LISTS = ["scheduleoftimeitems", "expertinvoices", "jointinstructions", "disbursements", "fasitems"]


class Claim:
    """The people of a sample claim with an empty bill; only page 1 and the named pages are exported."""

    def __init__(self, sample, form, *pages):
        self.root = ElementTree.fromstring(sample.read_bytes())
        self.root.find("formtype").text = form
        for number in range(1, 14):
            self.root.find(f"includepage{number}").text = str(number in (1, *pages))
        self.models = {name: self.root.find(name)[0] for name in LISTS if len(self.root.find(name))}
        for name in LISTS:
            self.root.find(name)[:] = []
        for path in ("expertsmeetmojstandardreasons", "detailsofwork/detailsofcase", "detailsofwork/detailsofenhancement",
                     "actualcostsincurred/privatelawworkatalllevelsreasons"):
            self.write(path, "")

    def write(self, path, text):
        self.root.find(path).text = quote_plus(text)
        return self

    def add(self, name, count, **fields):
        """Adds that many items to a list; a field given as a function is called with the item's number."""
        element = {"fasitems": "fasitem"}.get(name, name.removesuffix("s"))
        for number in range(1, count + 1):
            item = ElementTree.SubElement(self.root.find(name), element)
            model = self.models.get(name)
            for child in model if model is not None else []:
                ElementTree.SubElement(item, child.tag).text = child.text
            for field, value in {"orderid": str, **fields}.items():
                child = item.find(field)
                child = child if child is not None else ElementTree.SubElement(item, field)
                child.text = quote_plus(value(number) if callable(value) else value)
        return self

    def add_descriptions(self, *lines):
        """Adds schedule items, each with a description of the given number of lines."""
        return self.add("scheduleoftimeitems", len(lines),
                        description=lambda number: " ".join(["n" * 59] * lines[number - 1]))

    def add_fees(self, count):
        counsel = self.root.find("counsel")[0].find("uniqueid").text
        return self.add("disbursements", count, counsel="True", counseluniqueid=counsel)

    def written(self):
        """A temporary folder with the claim's file."""
        folder = tempfile.TemporaryDirectory()
        (Path(folder.name) / "claim.zr3").write_bytes(ElementTree.tostring(self.root, encoding="us-ascii"))
        return folder

    def figures(self, tool):
        with self.written() as folder:
            return json.loads(subprocess.run([tool, "totals", Path(folder) / "claim.zr3"], check=True,
                                             capture_output=True).stdout)

    def export(self, tool, *options):
        """A folder with the finished document."""
        folder = self.written()
        subprocess.run([tool, "export", "--quiet", *options, Path(folder.name) / "claim.zr3", folder.name], check=True)
        return folder

    def sheets(self, tool):
        """The sheets of an export by name, as lists of their paragraphs' texts."""
        with self.export(tool, "--keep-sheets") as folder:
            return {path.stem: paragraphs(path) for path in Path(folder).glob("~ZR3Temp/*(*).doc")}

    def joined(self, tool):
        """The paragraphs of the finished document."""
        with self.export(tool) as folder:
            return paragraphs(next(Path(folder).glob("*.doc")))


def paragraphs(path):
    with zipfile.ZipFile(path) as package:
        body = ElementTree.fromstring(package.read("word/document.xml")).find(WORDS + "body")
    return ["".join(text.text or "" for run in paragraph.iter(WORDS + "r") if not is_hidden(run)
                    for text in run.iter(WORDS + "t")) for paragraph in body.iter(WORDS + "p")]


def is_hidden(run):
    return run.find(f"{WORDS}rPr/{WORDS}vanish") is not None


def marks(sheet):
    """The mark in brackets beside a sheet's page number, and the text above its first line."""
    beside = next(re.sub(r"^.*Page \d+", "", text).strip() for text in sheet if re.search(r"Page \d+( |$)", text))
    return beside, sheet[0].strip()
