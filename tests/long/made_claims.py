"""Generates claims for the long-running tests: every field and grid cell has a text with line breaks, long words, long
names and capitals, within the capacity of the printed boxes or beyond it. The same seed gives the same claims.
"""

import math
import random
import sys
from pathlib import Path
from typing import NamedTuple

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "documents"))

from claims import CLAIM1, CLAIM1A, Claim                       # noqa: E402

# The lines of six points that each box holds, and the widest letters that fit on one: the limits of a text within its
# allowance. Each of the other fields has its own row of two lines.
FULL_WIDTH = 80
BOXES = {
    "clientdetails/morethan1certificate": (5, FULL_WIDTH),
    "previousadvice/inclusiveofallsolicitorsreasons": (5, FULL_WIDTH),
    "latesubmission/explanation": (16, FULL_WIDTH),
    "natureofproceedings/detailsofcase": (40, FULL_WIDTH),
    "detailsofwork/detailsofcase": (45, FULL_WIDTH),
    "detailsofwork/detailsofenhancement": (45, FULL_WIDTH),
    "actualcostsincurred/privatelawworkatalllevelsreasons": (9, FULL_WIDTH),
    "expertsmeetmojstandardreasons": (5, 58),
    "detailsofcostsawarded/interestbreakdown": (3, FULL_WIDTH),
    "detailsofcostsawarded/addressofservice": (5, FULL_WIDTH),
    "detailsofcostsawarded/offerbydebtordetails": (5, FULL_WIDTH),
    "debtorsdetails/address": (5, 29),
    "debtorsdetails/employersname": (2, 40),
    "debtorsdetails/employersaddress": (5, 40),
    "debtorsdetails/assets": (12, FULL_WIDTH),
    "debtorsdetails/information": (28, FULL_WIDTH),
}
FIELD = (2, 40)
# The number of the widest letters on a line of a cell at six points, by the cell's content, and its characters.
CELLS = {
    "counsel": (30, 30), "experttype": (15, 12), "partyname": (20, 20), "solicitor": (20, 20),
    "certificatereference": (20, 20), "description": (50, 50), "boltondescription": (35, 80), "distance": (30, 36),
    "reason": (35, 40),
}

WORDS = """the of and to in a client counsel conference advice hearing possession disrepair landlord tenant damp mould
report expert surveyor considered drafted reviewed telephone attended court county application order directions bundle
instructions witness statement correspondence defendant claimant further considering preparation without prejudice
offer settlement costs assessment reasonable proportionate urgent interim injunction housing benefit arrears""".split()
LONG = """Featherstonehaugh Abdulrahman-Okonkwo Wilhelmina Llanfairpwllgwyngyll representative unrepresented
Psychiatrist uncharacteristically counter-proposals Cholmondeley-Marjoribanks misrepresentation McAllister O'Brien
interdisciplinary maribelle.okonkwo@featherstone-hartwell.co.uk www.hartwell-disrepair.example/2026/bundle""".split()
NAMES = """Maribelle Okonkwo O'Brien Smith-Jones Wilhelmina McAllister D'Souza Li Hartwell Ngozi Aoife Siobhan
Christopher Bartholomew""".split()
STREETS = ["14 Mill Lane", "Flat 3B", "The Laurels", "Headingley", "Leeds", "LS6 2QJ", "c/o Hartwell & Co.", "Unit 7",
           "Old Kent Road", "West Yorkshire", "Birmingham", "B1 1AA"]
EXPERT_GROUPS = ["Psychiatrist", "Interpreter", "Surveyor", "Child and Adolescent Psychiatrist", "Paediatrician",
                 "Independent Social Worker"]
JUDGES = ["Lay Justices or Clerks", "Deputy District Judge", "Circuit judge", "High Court Judge",
          "Family Proceedings Court"]
HEARINGS = ["FDR", "FHDRA", "Interim", "Hearing", "Final hearing"]


class Writer:
    """Generates texts of several styles."""

    def __init__(self, source):
        self.random = source

    def words(self, length, pick):
        text = ""
        while len(text) < length:
            text += pick() + " "
        return text[:length].strip()

    def prose(self, length):
        return self.words(length, lambda: self.random.choice(WORDS))

    def capitals(self, length):
        return self.prose(length).upper()

    def long_words(self, length):
        return self.words(length, lambda: self.random.choice(LONG))

    def names(self, length):
        return self.words(length, lambda: self.random.choice(NAMES))

    def letters(self, length):
        return self.words(length, lambda: "W" * self.random.randint(3, 9))

    def one_word(self, length):
        return "".join(self.random.choice("abcdefghijklmnopqrstuvwxyz") for _ in range(length))

    def text(self, length):
        manner = self.random.choices([self.prose, self.capitals, self.long_words, self.names, self.letters, self.one_word],
                                     [8, 5, 5, 4, 2, 1])[0]
        return manner(length)

    def lines(self, length, count):
        """A text of at most that many characters on at most that many lines, some of them empty."""
        if count == 1 or length < 4 or self.random.random() < 0.3:
            return self.text(length)
        if self.random.random() < 0.3:
            parts = [self.random.choice(STREETS) for _ in range(count)]
        else:
            breaks = sorted(self.random.randint(0, length) for _ in range(self.random.randint(1, count - 1)))
            ends = [*breaks, length]
            parts = [self.text(max(0, end - start - 2)) for start, end in zip([0, *breaks], ends)]
        return self.random.choice(["\r\n", "\r\n", "\n"]).join(parts)[:length].strip()

    def within(self, length, count, across):
        """At most as many lines as the box has, however wide its letters are."""
        while True:
            text = self.lines(length, count)
            if sum(max(1, math.ceil(len(line) / across)) for line in text.splitlines()) <= count:
                return text

    def beyond(self, length, count):
        return self.lines(self.random.randint(length, 3 * length + 10), self.random.randint(1, 3 * count))


class Made(NamedTuple):
    name: str
    claim: Claim
    is_within: bool


def amount(source, digits):
    return f"{source.randrange(10 ** source.randint(1, digits))}.{source.randrange(100):02}"


class Maker:
    def __init__(self, form, source, is_within):
        self.random = source
        self.writer = Writer(source)
        self.is_within = is_within
        self.claim = Claim(form, None)
        self.digits = 6 if is_within else 8

    def field(self, path, allowance):
        if self.random.random() < 0.12:
            return ""
        count, across = BOXES.get(path, FIELD)
        if self.is_within:
            return self.writer.within(allowance, count, across)
        return self.writer.beyond(allowance, count)

    def cell(self, kind):
        allowance, across = CELLS[kind]
        if self.is_within:
            return self.writer.within(allowance, 2, across)
        return self.writer.beyond(allowance, 2)

    def line(self, kind):
        """The text of a cell from which the export moves by counting lines, so it must have no line break."""
        return " ".join(self.cell(kind).split())

    def amount(self, digits=None):
        return amount(self.random, digits or self.digits)

    def count(self, capacity):
        return self.random.choice([0, 1, 2, capacity // 2, capacity, self.random.randint(0, 2 * capacity)])

    def fill_fields(self):
        claim, form = self.claim, self.claim.form
        claim.fill_dates_and_ticks(lambda: self.amount())
        for path, allowance in form.allowances.items():
            text = self.field(path, allowance)
            if path in form.long_texts and self.random.random() < 0.25:
                text = self.writer.text(self.random.randint(allowance + 1, 2 * form.long_texts[path]))
            claim.set(path, text)

    def fill_lists(self):
        claim, pick = self.claim, self.random.choice
        counsel = self.random.randint(1, 6)
        claim.text = lambda length: self.cell("counsel")
        claim.add_people(counsel)
        for n in range(self.count(33)):
            claim.add("scheduleoftimeitems", "scheduleoftimeitem", feeearneruniqueid=pick(["E1", "E2"]), ddate="28/09/26",
                      code=pick("AOT DPL HDI".split()), description=self.note(n), ttime=pick(["00:06", "03:20", "88:59"]),
                      advocacy="False", counsel="False", travel=str(n % 5 == 3), waiting=str(n % 5 == 4),
                      usehourlyrate="False", includeinenhancements="False", enhancementuniqueid="")
        for n in range(self.count(32)):
            claim.add("disbursements", "disbursement", counsel="True", counseluniqueid=f"C{n % counsel + 1}",
                      dateofwork="28/09/2026", description="", amount=self.amount(), vat=self.amount(5))
        for _ in range(self.count(11)):
            claim.add("expertinvoices", "expertinvoice", expertgroup=pick(EXPERT_GROUPS), experttype=self.cell("experttype"),
                      priorauthorityobtained=pick(["True", "False"]), preparationhourlyrate=self.amount(4),
                      totalprepcost=self.amount(), courtattendancehourlyrate=self.amount(4), totalcourtcost=self.amount(),
                      traveltimecosts=self.amount(), othercosts=self.amount(), netamount=self.amount(),
                      vatamount=self.amount(5))
        for _ in range(self.count(14)):
            claim.add("jointinstructions", "jointinstruction", experttype=self.line("experttype"),
                      partyname=self.cell("partyname"), solicitor=self.cell("solicitor"),
                      certificatereference=self.cell("certificatereference"), percentapportioned="88.88")
        for _ in range(self.count(12)):
            claim.add("disbursements", "disbursement", counsel="False", counseluniqueid="", dateofwork="28/09/2026",
                      description=self.cell("description"), amount=self.amount(), vat=self.amount(5))
        if claim.form is CLAIM1A:
            self.add_hearings()

    def note(self, n):
        """The description of an item, for the additional information."""
        if n > 3 or self.random.random() < 0.5:
            return ""
        return self.writer.text(self.random.randint(5, 300))

    def add_hearings(self):
        pick = self.random.choice
        for _ in range(self.count(16)):
            self.claim.add(
                "fasitems", "fasitem", ddate="28/09/26", levelofcourt=pick(JUDGES), fdr=pick(HEARINGS),
                actualtimespent=self.random.randint(1, 1440), hearingunits=self.random.randint(1, 88),
                rateforunits=self.amount(4), boltonclaimed="88.88",
                boltondescription=self.line("boltondescription") if self.random.random() < 0.4 else "",
                courtbundlepayment=self.amount(4), settlementfee=self.amount(4), exceptionaltravel=self.amount(4),
                exceptionaltraveldistance=pick(["", self.cell("distance")]),
                exceptionaltravelreason=pick(["", self.line("reason")]), vatforfas=self.amount(4))


def made(seed, number):
    """Claim `number` of a seed: alternating between both forms, and between texts within and beyond the allowances."""
    source = random.Random(f"{seed}/{number}")
    maker = Maker(CLAIM1A if number % 2 else CLAIM1, source, number // 2 % 2 == 0)
    maker.fill_fields()
    maker.fill_lists()
    return Made(f"{number:04}", maker.claim, maker.is_within)


def at_allowance():
    """Every box of both forms at its allowance: in lines, in words and in capitals."""
    for form in (CLAIM1, CLAIM1A):
        for manner in ("lines", "words", "capitals"):
            writer = Writer(random.Random(manner))
            claim = Claim(form, writer.prose if manner == "words" else writer.capitals)
            claim.fill_dates_and_ticks(lambda: "888888.88")
            for path, allowance in form.allowances.items():
                count, _ = BOXES.get(path, FIELD)
                text = claim.text(allowance)
                if manner == "lines":
                    text = "\r\n".join(split_evenly(text, count))[:allowance]
                claim.set(path, text)
            yield Made(f"{manner}-{form.sample}", claim, True)


def split_evenly(text, count):
    step = max(1, len(text) // count - 2)
    pieces = [text[start:start + step].strip() for start in range(0, len(text), step)]
    return pieces[:count]
