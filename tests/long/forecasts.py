"""The forecasts of generated claims, compared with their exports and the printed pages.

    forecasts.py [--claims N] [--seed S]

The claims are the samples with texts of any length and with line breaks in every field and grid, within the allowances
and far beyond. For each, the forecast must have the sheets of the export, with their names and order, and the number of
paper pages on which each is printed. ZR3_TOOL is the headless program, ZR3_SAMPLES the folder of the samples.
"""

import argparse
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from urllib.parse import quote_plus

SKIPPED = 77
AT_A_TIME = 20          # claims printed by one start of the word processor
TOOL = os.environ["ZR3_TOOL"]
SAMPLES = sorted(Path(os.environ["ZR3_SAMPLES"]).glob("*.zr3"))

FIELDS = """clientdetails/surname clientdetails/morethan1certificate solicitordetails/nameoffirm
solicitordetails/casereference solicitordetails/emailforenquiries previousadvice/inclusiveofallsolicitorsreasons
caseinformation/nameofcourt latesubmission/explanation natureofproceedings/detailsofcase
actualcostsincurred/privatelawworkatalllevelsreasons detailsofwork/detailsofcase detailsofwork/detailsofenhancement
expertsmeetmojstandardreasons detailsofcostsawarded/interestbreakdown detailsofcostsawarded/addressofservice
detailsofcostsawarded/offerbydebtordetails debtorsdetails/surnameororganisation debtorsdetails/address
debtorsdetails/employersaddress debtorsdetails/assets debtorsdetails/casereference debtorsdetails/information""".split()
CELLS = {"disbursements": "description", "expertinvoices": "experttype", "jointinstructions": "solicitor",
         "counsel": "name", "fasitems": "exceptionaltravelreason"}
WORDS = """the of a client counsel conference advice possession disrepair considering correspondence Wilhelmina
Featherstonehaugh 12/03/25 1,250.00 and/or POSSESSION instructions re-draft e.g. MMMMWWWW""".split()


def text(source, words, breaks):
    """A text with that many words, and line breaks after that percentage of them."""
    return "".join(source.choice(WORDS) + ("\r\n" if source.randrange(100) < breaks else " ") for _ in range(words)).strip()


def claim(source, path):
    tree = ElementTree.parse(source.choice(SAMPLES))
    root = tree.getroot()
    for name in FIELDS:
        field = root.find(name)
        if field is not None and source.random() < 0.4:
            words = source.choice([2, 5, 12, 30, 80, 250, 600])
            field.text = quote_plus(text(source, words, source.choice([0, 10, 40, 95])), safe="")
    for plural, cell in CELLS.items():
        for field in root.findall(f"{plural}/*/{cell}"):
            if source.random() < 0.2:
                field.text = quote_plus(text(source, source.choice([2, 6, 20]), source.choice([0, 30])), safe="")
    tree.write(path)


def run(*arguments):
    return subprocess.run([TOOL, *map(str, arguments)], capture_output=True, text=True)


def printed(folder, documents):
    """The pages of the printed documents, as text."""
    subprocess.run(["soffice", "--headless", f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--convert-to",
                    "pdf", "--outdir", str(folder), *map(str, documents)], check=True, capture_output=True, timeout=900)
    for document in documents:
        pages = subprocess.run(["pdftotext", "-layout", str(document.with_suffix(".pdf")), "-"], check=True,
                               capture_output=True, text=True).stdout.split("\f")
        yield pages[:-1]


def runs_of(pages):
    """The page number of each printed sheet, and its paper pages. A sheet begins with its head."""
    runs = []
    for number, page in enumerate(pages):
        head = re.search(r"Claim 1A? +Page (\d+)", "\n".join(page.split("\n")[:6]))
        if number == 0 or head:
            runs.append([1 if number == 0 else int(head[1]), 1])
        else:
            runs[-1][1] += 1
    return runs


def compare(claims, seed, folder):
    source = random.Random(seed)
    wrong = running_on = failing = 0
    waiting = []
    for number in range(claims):
        path = folder / f"{number}.zr3"
        claim(source, path)
        out = folder / str(number)
        out.mkdir()
        exported = run("export", "--keep-sheets", "--quiet", path, out)
        told = run("forecast", "--json", path)
        if told.returncode != exported.returncode or told.stderr != exported.stderr:
            print(f"claim {number}: {told.returncode} {told.stderr!r}, the export {exported.returncode} {exported.stderr!r}")
            wrong += 1
        if exported.returncode != 0:
            failing += 1
            continue
        forecast = json.loads(told.stdout)
        sheets = [sheet["Sheet"] for sheet in forecast["Sheets"]]
        made = {sheet.stem for sheet in (out / "~ZR3Temp").glob("*.doc")} - {"Joined"}
        if set(sheets) != made:
            print(f"claim {number}: {sorted(set(sheets) ^ made)} were told and not made, or made and not told")
            wrong += 1
        document = folder / f"{number}.doc"
        (finished,) = out.glob("*.doc")
        finished.rename(document)
        shutil.rmtree(out)
        running_on += any(sheet["PaperPages"] > 1 for sheet in forecast["Sheets"])
        waiting.append((number, forecast, document))
    for start in range(0, len(waiting), AT_A_TIME):
        batch = waiting[start:start + AT_A_TIME]
        for (number, forecast, _), pages in zip(batch, printed(folder, [one[2] for one in batch]), strict=True):
            theirs = runs_of(pages)
            ours = [[sheet["Page"], sheet["PaperPages"]] for sheet in forecast["Sheets"]]
            if theirs != ours or forecast["PaperPages"] != len(pages):
                print(f"claim {number}: printed {theirs}, told {ours}")
                wrong += 1
    print(f"seed {seed}: {claims} claims, {failing} that can't be exported, {running_on} that run on, {wrong} wrong")
    assert claims < 8 or (len(waiting) > claims / 2 and running_on), "too few claims that tell anything"
    return wrong == 0


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--claims", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    for program in ("soffice", "pdftotext"):
        if not shutil.which(program):
            print(f"skipped: there is no {program} on this machine")
            sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory() as work:
        sys.exit(0 if compare(arguments.claims, arguments.seed, Path(work)) else 1)
