"""Generated claims: the fullest that the printed form holds, and one over in every grid and every text."""

import itertools
import xml.etree.ElementTree as ElementTree
from typing import NamedTuple
from urllib.parse import quote_plus

from support import SAMPLES

MILLIONS = "8888888.88"

# The allowances of the texts, by their elements: of both forms, and of each.
ALLOWANCES = {
    "stagenumber": 40, "typeofcase": 40,
    "clientdetails/casereferencenumber": 30, "clientdetails/title": 7, "clientdetails/firstname": 7,
    "clientdetails/surname": 17, "clientdetails/morethan1certificate": 130,
    "solicitordetails/accountnumber": 7, "solicitordetails/rollnumber": 7, "solicitordetails/nameoffirm": 42,
    "solicitordetails/casereference": 40, "solicitordetails/contactnameforenquiries": 35,
    "solicitordetails/telephoneforenquiries": 17, "solicitordetails/emailforenquiries": 35,
    "detailsofwork/detailsofcase": 770,
    "detailsofcostsawarded/interestbreakdown": 60, "detailsofcostsawarded/addressofservice": 75,
    "detailsofcostsawarded/offerbydebtordetails": 85,
    "debtorsdetails/title": 9, "debtorsdetails/initials": 9, "debtorsdetails/surnameororganisation": 25,
    "debtorsdetails/firstname": 25, "debtorsdetails/nationalinsurancenumber": 50, "debtorsdetails/address": 60,
    "debtorsdetails/phonework": 27, "debtorsdetails/phonehome": 27, "debtorsdetails/mobile": 30,
    "debtorsdetails/fax": 30, "debtorsdetails/email": 55, "debtorsdetails/solicitorsfirmname": 51,
    "debtorsdetails/job": 65, "debtorsdetails/employersname": 55, "debtorsdetails/employersaddress": 55,
    "debtorsdetails/assets": 330, "debtorsdetails/casereference": 45, "debtorsdetails/information": 820,
}
DATES = ["clientdetails/dateofbirth", "previousadvice/datelegalhelpformsigned",
         "detailsofcostsawarded/dateinterestcommenced", "detailsofcostsawarded/dateorderserved",
         "debtorsdetails/dateofbirth"]
AMOUNTS = ["previousadvice/totalcostsincurred", "detailsofcostsawarded/precertificatecosts",
           "detailsofcostsawarded/duringcertificatecostslsc", "detailsofcostsawarded/duringcertificatecostsmarketrates",
           "detailsofcostsawarded/legalhelpinprecertificatecostsamount", "detailsofcostsawarded/interestonallcosts",
           "detailsofcostsawarded/amountrecoveredtodate", "detailsofcostsawarded/determinationamount",
           "debtorsdetails/debtorsincome"]
TICKS = ["", "previousadvice", "outcomeofcase", "counseloutstandingclaims", "detailsofcostsawarded", "debtorsdetails"]


class Form(NamedTuple):
    """What a form prints."""
    sample: str                 # an empty claim
    allowances: dict
    long_texts: dict            # texts that may go to a continuation sheet, and the length that one such sheet takes
    dates: list
    amounts: list
    ticks: list                 # sections


CLAIM1 = Form(
    "empty",
    {**ALLOWANCES, "previousadvice/inclusiveofallsolicitorsreasons": 115, "caseinformation/nameofcourt": 30,
     "latesubmission/explanation": 400, "detailsofwork/detailsofenhancement": 710, "expertsmeetmojstandardreasons": 100},
    {"latesubmission/explanation": 3000, "detailsofwork/detailsofcase": 2750, "detailsofwork/detailsofenhancement": 2620,
     "expertsmeetmojstandardreasons": 2750},
    [*DATES, "caseinformation/issueofproceedingsdate", "caseinformation/dateoffinalworkdate",
     "caseinformation/emergencycertificatedate", "caseinformation/substantivecertificatedate", "latesubmission/ddate"],
    [*AMOUNTS, "detailsofmonies/value", "detailsofmonies/amountrecovered"],
    TICKS)

CLAIM1A = Form(
    "empty-1a",
    {**ALLOWANCES, "natureofproceedings/detailsofcase": 570, "actualcostsincurred/privatelawworkatalllevelsreasons": 100,
     "expertsmeetmojstandardreasons": 250},
    {"natureofproceedings/detailsofcase": 2750, "actualcostsincurred/privatelawworkatalllevelsreasons": 2750,
     "detailsofwork/detailsofcase": 2750, "expertsmeetmojstandardreasons": 2750},
    [*DATES, "outcomeofcase/issueofproceedingsdate", "outcomeofcase/emergencycertificatedate",
     "outcomeofcase/substantivecertificatedate", "outcomeofcase/dateoffinalorder"],
    [*AMOUNTS, "actualcostsincurred/careandsupervisionprofitcosts", "actualcostsincurred/careandsupervisionprofitcostsvat",
     "actualcostsincurred/privatelawprofitcosts", "actualcostsincurred/privatelawprofitcostsvat",
     "actualcostsincurred/fixedfee", "detailsofcostsawarded/totalcostsawarded"],
    [*TICKS, "natureofproceedings", "actualcostsincurred"])

LETTERS = "NRTUDHGAEBKMPSWO"  # as wide as capitals are in running text: 6.9 pt of 10


class Words:
    """Capitals that can be found again: no two words are alike."""

    def __init__(self):
        self._made = itertools.product(LETTERS, repeat=5)

    def __call__(self, length):
        text = ""
        while len(text) < length:
            text += "".join(next(self._made))[::-1] + " "
        text = text[:length]
        return text[:-1] + "X" if text.endswith(" ") else text


def wide(length):
    """The widest text of this length."""
    text = ("WWWWW " * length)[:length]
    return text[:-1] + "W" if text.endswith(" ") else text


class Claim:
    def __init__(self, form, text):
        self.root = ElementTree.parse(SAMPLES / f"{form.sample}.zr3").getroot()
        self.form = form
        self.text = text
        self.typed = []  # what the printed pages must contain

    def set(self, path, value):
        element = self.root.find(path)
        assert element is not None, path
        element.text = quote_plus(value, safe="")

    def add(self, plural, single, **values):
        collection = self.root.find(plural)
        item = ElementTree.SubElement(collection, single)
        for name, value in {"orderid": len(collection), **values}.items():
            ElementTree.SubElement(item, name).text = quote_plus(str(value), safe="")

    def fill_texts(self, overrunning=False):
        for path, allowance in self.form.allowances.items():
            length = self.form.long_texts[path] - 1 if overrunning and path in self.form.long_texts else allowance
            self.set(path, self.text(length))
        self.fill_dates_and_ticks(lambda: MILLIONS)

    def fill_dates_and_ticks(self, amount):
        for path in self.form.dates:
            self.set(path, "28/09/2026")
        for path in self.form.amounts:
            self.set(path, amount())
        for section in self.form.ticks:
            for element in self.root.find(section) if section else self.root:
                if element.text == "False" and element.tag != "excludenonadvocacy":
                    element.text = "True"
        for name, place in {"stageofcaseend": 12, "howdidcaseend": 3, "result": 4, "adrproposed": 1,
                            "publicbenefitsachieved": 2}.items():
            self.set(f"outcomeofcase/{name}", str(place))

    def add_people(self, counsel):
        for n in (1, 2):
            self.add("feeearnergroups", "feeearnergroup", uniqueid=f"G{n}", reference=f"G{n}", name="Group", enhance="True",
                     enhancementrate="50.00", enhancecomms="True", hourlyrate="999.99", callsrate="99.99",
                     lettersinrate="99.99", lettersoutrate="99.99", advocacyrate="999.99", counselrate="999.99",
                     travelandwaitingrate="999.99")
            self.add("feeearners", "feeearner", uniqueid=f"E{n}", reference="WW", groupuniqueid=f"G{n}", calls=9999,
                     lettersin=9999, lettersout=9999)
        for n in range(1, counsel + 1):
            self.add("counsel", "counsel", uniqueid=f"C{n}", name=self.text(30), accountnumber=f"W88{n}W", vat="True")

    def add_items(self, count, note_lines=()):
        """Adds schedule items; the first ones have notes of the given numbers of lines."""
        notes = list(note_lines)
        for n in range(count):
            # A word of 52 characters and one of 7, with a space between them, fill a line of 60.
            description = " ".join(self.text(59).replace(" ", "-") for _ in range(notes[n])) if n < len(notes) else ""
            self.add("scheduleoftimeitems", "scheduleoftimeitem", feeearneruniqueid=f"E{n % 2 + 1}", ddate="28/09/26",
                     code="AOT DPL HDI AOT AOT".split()[n % 5], description=description, ttime="88:59", advocacy="False",
                     counsel="False", travel=str(n % 5 == 3), waiting=str(n % 5 == 4), usehourlyrate="False",
                     includeinenhancements="False", enhancementuniqueid="")

    def add_fees(self, count, counsel):
        for n in range(count):
            self.add("disbursements", "disbursement", counsel="True", counseluniqueid=f"C{n % counsel + 1}",
                     dateofwork="28/09/2026", description="", amount="88888.88", vat="8888.88")

    def add_experts(self, count):
        for _ in range(count):
            self.add("expertinvoices", "expertinvoice", expertgroup="Interpreter", experttype="Independent",
                     priorauthorityobtained="True", preparationhourlyrate="888.88", totalprepcost="8888.88",
                     courtattendancehourlyrate="888.88", totalcourtcost="8888.88", traveltimecosts="8888.88",
                     othercosts="8888.88", netamount="88888.88", vatamount="8888.88")

    def add_joint_instructions(self, count):
        for _ in range(count):
            self.add("jointinstructions", "jointinstruction", experttype=self.text(15), partyname=self.text(22),
                     solicitor=self.text(22), certificatereference=self.text(18), percentapportioned="88.88")

    def add_disbursements(self, count):
        for _ in range(count):
            self.add("disbursements", "disbursement", counsel="False", counseluniqueid="", dateofwork="28/09/2026",
                     description=self.text(50), amount="888888.88", vat="88888.88")

    # Plausible entries for a hearing, including the longest of each kind.
    JUDGES = ("Lay Justices or Clerks", "Deputy District Judge", "Circuit judge", "High Court Judge")
    HEARINGS = ("FDR", "FHDRA", "Interim", "Hearing")
    DISTANCES = ("62 miles", "150 miles each way by train and car", "888 miles there and back")

    def add_hearings(self, count, bolt_ons, travels):
        """Adds hearings; the first ones with a bolt-on description, and with exceptional travel."""
        for n in range(count):
            self.add("fasitems", "fasitem", ddate="28/09/26", levelofcourt=self.JUDGES[n % 4], fdr=self.HEARINGS[n % 4],
                     actualtimespent=1440, hearingunits=88, rateforunits="888.88", boltonclaimed="88.88",
                     boltondescription=self.text(35) if n < bolt_ons else "", courtbundlepayment="8888.88",
                     settlementfee="8888.88", exceptionaltravel="8888.88",
                     exceptionaltraveldistance=self.DISTANCES[n % 3] if n < travels else "",
                     exceptionaltravelreason=self.text(35) if n < travels else "", vatforfas="8888.88")

    def write(self, path):
        path.write_bytes(ElementTree.tostring(self.root, encoding="us-ascii", xml_declaration=False))
        return path


def full(form, text):
    """Everything at its allowance and every grid full, so that every page but the panel sheet is one sheet."""
    claim = Claim(form, text)
    claim.fill_texts()
    claim.add_people(6)
    claim.add_items(33, [8] if form is CLAIM1 else [8, 7, 5])
    claim.add_fees(32, 6)
    claim.add_experts(11)
    claim.add_joint_instructions(14)
    claim.add_disbursements(12)
    if form is CLAIM1A:
        claim.add_hearings(16, 6, 10)
    return claim


def over(form, text):
    """One more than fits in every grid, and the long texts as long as one continuation sheet takes."""
    claim = Claim(form, text)
    claim.fill_texts(overrunning=True)
    claim.add_people(6)
    claim.add_items(34, [9, 38, 24, 23])
    claim.add_fees(33 + 38, 6)
    claim.add_experts(12 + 32)
    claim.add_joint_instructions(15)
    claim.add_disbursements(13 + 32)
    if form is CLAIM1A:
        claim.add_hearings(17 + 36 + 36, 7 + 46, 11 + 46)
    return claim


def made(*texts):
    """The generated claims: "full", "over" and "wide" for Claim 1, and the same with "-1a"."""
    for form, ending in ((CLAIM1, ""), (CLAIM1A, "-1a")):
        for name, make, text in (("full", full, Words), ("over", over, Words), ("wide", full, lambda: wide)):
            if name in texts:
                yield name + ending, make(form, text())
