"""The printed words beside each answer, by sheet and section.

These tables are kept by hand, from the content of each placeholder and its name on the screens, independently of the
sources from which the templates are made. {or}, which is beside the page number, is not included.
"""

from typing import NamedTuple


class Tick(NamedTuple):
    """A box before its word; the question is on its left or above."""
    question: str
    word: str


class InRow(NamedTuple):
    """An answer with its label on the left."""
    label: str


class Sum(NamedTuple):
    """An amount of a table: its row's label on the left, its column heading above."""
    row: str
    column: str


# A plain text is a label directly above its answer, with the same width.


def yes_no(question, yes, no):
    return {yes: Tick(question, "Yes"), no: Tick(question, "No")}


def words(question, placeholders):
    """`placeholders` by the words of their boxes."""
    return {name: Tick(question, word) for word, name in placeholders.items()}


def net_and_vat(rows):
    """`rows` has the net amount and its VAT by the label of their row."""
    return {name: Sum(label, column)
            for label, names in rows.items() for name, column in zip(names.split(), ("Net £", "VAT £"))}


# --- First pages -----------------------------------------------------------

CLIENT = {
    "title": "Title",
    "firstname": "First name",
    "surname": "Surname",
    "dateofbirth": "Date of birth",
    "casereferencenumber": "Our case reference number",
    "morethan1certificate": "Does this claim cover more than one certificate? If so, give the other case reference "
                            "numbers and the percentage apportionments between the cases",
}
SOLICITOR = {
    "accountnumber": "Account number",
    "rollnumber": "Roll number",
    "nameoffirm": "Name of firm",
    "casereference": "Case reference",
    "contactnameforenquiries": "Contact name for enquiries",
    "telephoneforenquiries": "Tel. no.",
    "emailforenquiries": "Email address for enquiries",
}


def this_claim(exceptional):
    return {
        **words("This claim", {"Claim for costs to be assessed by the LAA": "1",
                               "Claim for costs assessed by the Court": "2",
                               "Exceptional Case Funding determination": exceptional,
                               "Mental Health / Court of Protection": "10",
                               "VHCC / HCC": "11"}),
        "typeofcase": "Type of case",
        "stagenumber": "Stage number",
    }


def previous_advice(final_bill):
    return {
        **yes_no("Did your client receive advice under legal help, family help (lower) or help with family mediation "
                 "in this matter?", "3", "4"),
        "datelegalhelpformsigned": "Date Legal Help form signed",
        "totalcostsincurred": "Total costs reported",
        **yes_no("Is this the final bill on this certificate?", *final_bill),
    }


# --- Outcome ---------------------------------------------------------------

def outcome(stage, how, result, adr, benefits, costs, damages, prop, wasted):
    return {
        stage: InRow("At what stage did case end?"),
        how: InRow("How did case end?"),
        result: InRow("What was the result?"),
        adr: InRow("Was ADR proposed or used?"),
        benefits: InRow("Were significant wider public benefits achieved?"),
        **words("Indicate which, if any, of the following were awarded",
                {"Costs": costs, "Damages": damages, "Property": prop}),
        **yes_no("Was a wasted costs order made?", *wasted),
    }


# --- Pages of both forms ---------------------------------------------------

DETAILS_OF_WORK = {
    "detailsofcase": "Describe the work done for which you claim, and anything that explains the time it took",
}
COUNSELS_FEES = {
    **yes_no("Have all outstanding claims for payment by counsel been paid by LAA?", "1", "2"),
    "ctotal": Sum("Total for counsel £", "Amount £"),
}
SCHEDULE = {
    "actm": Sum("Time", "Attend / confer"), "actl": Sum("Claim £", "Attend / confer"),
    "dtm": Sum("Time", "Docs"), "dtl": Sum("Claim £", "Docs"),
    "htm": Sum("Time", "Hearing"), "htl": Sum("Claim £", "Hearing"),
    "ttm": Sum("Time", "Travel"), "ttl": Sum("Claim £", "Travel"),
    "wtm": Sum("Time", "Waiting"), "wtl": Sum("Claim £", "Waiting"),
    "total": Sum("Total £", "Claim £"),
}
EXPERTS = {
    **yes_no("If these are proceedings involving a dispute about children, are you satisfied that the experts used "
             "meet the Ministry of Justice standards for experts in England and Wales?", "1", "2"),
    "expertsmeetmojstandardreasons": InRow("If no, give reasons"),
    "exnet": Sum("Total for experts £", "Net £"),
    "exvat": Sum("Total for experts £", "VAT £"),
    "extot": Sum("Total for experts £", "Total £"),
}
EXPERTS_CONTINUED = {"expertsmeetmojstandardreasons": "If no, give reasons"}


def other_disbursements(net, vat, total):
    label = "Total for other disbursements £"
    return {net: Sum(label, "Amount £"), vat: Sum(label, "VAT £"), total: Sum(label, "Total £")}


def letters_and_calls():
    found = {"cmtotal": Sum("Total for letters and calls £", "Claim £")}
    for short, kind in (("lo", "Letters out"), ("li", "Letters in"), ("tc", "Telephone calls")):
        for line, rate in ("1", "First rate"), ("2", "Second rate"):
            row = kind + " " + rate
            found.update({short + line: Sum(row, "Number"), short + "ir" + line: Sum(row, "Rate £"),
                          short + "enh" + line: Sum(row, "Enhancement £"), short + "total" + line: Sum(row, "Claim £")})
    return found


PROFIT_COSTS = "Profit costs: schedule of time, letters and calls"
OTHERS = "Other disbursements, without counsel"

COSTS_AWARDED = {
    "precertcosts": InRow("Pre-certificate costs awarded"),
    "duringcertlsc": InRow("During certificate costs awarded (legal aid prescribed rates)"),
    "duringcertmr": InRow("During certificate costs awarded (market rates)"),
    **yes_no("Are legal advice and assistance, and/or Legal Help costs included in the pre-certificate costs awarded?",
             "1", "2"),
    "lhipccamount": InRow("If yes, tell us the amount"),
    "interest": "Interest on all costs",
    "dateinterestcommenced": "Date interest commenced or commences",
    "interestbreakdown": "Please provide a breakdown where interest has been calculated",
}
RECOVERY = {
    "rcvrdtodate": "Amount recovered to date",
    "dateorderserved": "Date order was served",
    "addressofservice": "Address of service",
    **yes_no("Does the court order say leave of the court is required before enforcement can take place?", "3", "4"),
    **yes_no("Has a determination of the debtor’s means been undertaken by the court?", "5", "6"),
    "detmamount": InRow("If yes, give the amount"),
    **yes_no("Has any offer been made by the debtor?", "7", "8"),
    "offerbydebtordetails": "If so, give details",
}
DEBTOR = {
    "Debtor": {
        "title": "Title",
        "initials": "Initials",
        "surnameororganisation": "Surname or organisation",
        "firstname": "First name",
        "dateofbirth": "Date of birth",
        "nationalinsurancenumber": "National Insurance no.",
        "address": "Address",
        "phonework": "Phone (work)",
        "phonehome": "Phone (home)",
        "mobile": "Mobile",
        "fax": "Fax",
        "email": "Email address",
        "solicitorsfirmname": "Solicitor’s firm name",
    },
    "Employment": {
        **words("Employment", {"Employed": "1", "Self-employed": "2", "Unemployed": "3"}),
        "job": "Job",
        "employersname": "Employer’s name",
        "employersaddress": "Employer’s address",
        "debtorsincome": "Debtor’s income",
    },
    "Means and information": {
        "assets": "Debtor’s assets",
        **yes_no("Was the debtor legally aided?", "4", "5"),
        "casereference": "Case reference",
        "information": "Information",
    },
}

# --- Claim 1 ---------------------------------------------------------------

EXPLANATION = {"explanation": "Explanation"}
ENHANCEMENT = {
    "detailsofenhancement":
        "If you are seeking an enhanced rate or uplift, state percentage sought and give full reasons",
}

CLAIM1 = {
    "Claim1 P1": {
        "This claim": this_claim(exceptional="9"),
        "Client": CLIENT,
        "Solicitor": SOLICITOR,
        "Previous advice and related claims": {
            **previous_advice(final_bill=("7", "8")),
            **yes_no("Does this claim include the costs of all other providers that have been instructed?", "5", "6"),
            "inclusiveofallsolicitorsreasons": "If no, give reasons",
        },
    },
    "Claim1 P2": {
        "Case information": {
            "issueofproceedingsdate": "Date of issue of proceedings",
            "dateoffinalworkdate": "Date of final work on the case, excluding bill preparation",
            "nameofcourt": "Name(s) of court(s) or proposed court",
            "emergencycertificatedate": "Date of issue of emergency certificate",
            "substantivecertificatedate": "Date of issue of substantive certificate",
        },
        "Outcome of case": outcome("g", "h", "i", "j", "k", "l", "m", "n", wasted=("q", "r")),
        "Late submission": {"date": "Date", **EXPLANATION},
    },
    "Claim1 P2 Late Submission Cont": {"Late submission, continued": EXPLANATION},
    "Claim1 P3": {"Details of work being claimed": DETAILS_OF_WORK, "Enhancement": ENHANCEMENT},
    "Claim1 P3 Case Details Cont": {"Details of work being claimed, continued": DETAILS_OF_WORK},
    "Claim1 P3 Enhancement Cont": {"Enhancement, continued": ENHANCEMENT},
    "Claim1 P4": {"Counsel’s fees": COUNSELS_FEES},
    "Claim1 P5": {"Schedule of time": SCHEDULE},
    "Claim1 P6": {"Experts": EXPERTS},
    "Claim1 P6 Expert Dibs Standards Cont": {"Experts, continued": EXPERTS_CONTINUED},
    "Claim1 P7": {"Other disbursements": other_disbursements("nettotal", "vattotal", "dibstotal")},
    "Claim1 P8": {
        "Letters and calls": letters_and_calls(),
        "Summary of this claim": {
            **net_and_vat({PROFIT_COSTS: "npc vpc", "Experts": "nex vex", OTHERS: "ndibs vdibs",
                           "Total £": "ntotal vtotal"}),
            "grandtotal": InRow("Total of this claim, with VAT"),
        },
        "Counsel": {
            "counsel": "Number of counsel",
            "ncf": "Fees, net",
            "vcf": "VAT on fees",
            "cftotal": "Fees with VAT",
            **{"csl%d" % line: Sum("", "Counsel’s account number") for line in range(1, 7)},
            **{"cslamt%d" % line: Sum("", "Fees with VAT £") for line in range(1, 7)},
        },
    },
    "Claim1 P9": {
        "Costs awarded": COSTS_AWARDED,
        "Recovery": RECOVERY,
        "Money or property awarded": {"value": "Value of award", "dmrcvrdtodate": "Amount recovered to date"},
    },
    "Claim1 P10": DEBTOR,
}

# --- Claim 1A --------------------------------------------------------------

NATURE = {
    "detailsofcase": "Give details of the case, including any factors in support of time spent in attendance and "
                     "preparation",
}
LEVELS = {
    "workatalllevelsreasons":
        "If you did not undertake work at all levels covered by your certificate, please explain why",
}
KINDS, COURT = "Indicate each kind of proceedings that applies", "In front of whom did case finish?"

CLAIM1A = {
    "Claim1A P1": {
        "This claim": this_claim(exceptional="7"),
        "Client": CLIENT,
        "Solicitor": SOLICITOR,
        "Previous advice and related claims": previous_advice(final_bill=("5", "6")),
    },
    "Claim1A P2": {
        "Case information": {
            "issueofproceedingsdate": "Date of issue of proceedings",
            "emergencycertificatedate": "Date of issue of emergency certificate",
            "substantivecertificatedate": "Date of issue of substantive certificate",
            "dateoffinalorder": "Date of final order",
        },
        "Outcome of case": outcome("1", "2", "3", "4", "5", "6", "7", "8", wasted=("b", "c")),
    },
    "Claim1A P3": {
        "Nature of proceedings": {
            **NATURE,
            **words(KINDS, {"Care and supervision proceedings": "1", "Other public law children case": "2",
                           "Private law children case": "3", "Finance case": "4", "Domestic Abuse case": "5"}),
            **yes_no("Have any other providers acted in this matter?", "6", "7"),
            **yes_no("Is this a change of solicitor half fee?", "8", "9"),
        },
        "Actual costs: care and supervision cases": {
            "caspc": "Profit costs, without advocacy and enhancement",
            "caspcv": "VAT on profit costs",
            **words("In which region are you based?", {"Midlands": "a", "North": "b", "South": "c", "Wales": "d"}),
            **words("Is your client", {"A child": "e", "A parent": "f", "Joined": "g"}),
            **words("How many are you acting for?", {"1": "h", "2 or more": "i"}),
            **words(COURT, {"High Court Judge": "j", "District or Circuit Judge": "k", "Lay Justices or Clerks": "l"}),
        },
    },
    "Claim1A P3 NoP Cont": {"Nature of proceedings, continued": NATURE},
    "Claim1A P4": {
        "Actual costs: private law cases": {
            "plpc": "Profit costs, without advocacy and enhancement",
            "plpcv": "VAT on profit costs",
            **words("In which region are you based?", {"London": "1", "Non-London": "2"}),
            **yes_no("Have you made a previous claim for payment on account in these proceedings?", "3", "4"),
            **words(COURT, {"High Court Judge": "5", "District or Circuit Judge": "6", "Lay Justices or Clerks": "7"}),
            **yes_no("Are you claiming a settlement fee?", "8", "9"),
            **words("Which levels of work did you undertake?", {"Level 3": "a", "Level 4": "b", "Enforcement": "c"}),
            **LEVELS,
        },
        "Exceptional case and fixed fee": {
            **yes_no("Is this an Exceptional Case?", "d", "e"),
            **net_and_vat({"Fixed fee that would apply": "fixedfee fixedfeevat", "Experts": "nex vex",
                           OTHERS: "dibs dibsvat", "Total £": "total totalvat",
                           "Apart from the total: advocacy": "adv advvat",
                           "Apart from the total: counsel": "csl cslvat"}),
        },
    },
    "Claim1A P4 Reasons For Not Undertaking Work At All Levels Cont": {
        "Actual costs: private law cases, continued": LEVELS},
    "Claim1A P5": {"Counsel’s fees": COUNSELS_FEES},
    "Claim1A P6": {"Experts": EXPERTS},
    "Claim1A P6 Expert Dibs Standards Cont": {"Experts, continued": EXPERTS_CONTINUED},
    "Claim1A P7": {"Other disbursements": other_disbursements("dibsnet", "dibsvat", "dibstotal")},
    "Claim1A P8": {
        "Costs under Family Advocacy Scheme": {
            "actot": Sum("Total for advocacy £", "Total £"),
            "acvat": Sum("Total for advocacy £", "VAT £"),
        },
    },
    "Claim1A P9": {"Details of work being claimed": DETAILS_OF_WORK},
    "Claim1A P9 Case Details Cont": {"Details of work being claimed, continued": DETAILS_OF_WORK},
    "Claim1A P10": {"Schedule of time": SCHEDULE},
    "Claim1A P11": {
        "Letters and calls": letters_and_calls(),
        "Summary of this claim": {
            **net_and_vat({PROFIT_COSTS: "npc vpc", "Experts": "nex vex", OTHERS: "ndibs vdibs",
                           "Subtotal £": "nsubtotal vsubtotal", "Family Advocacy Scheme": "nfas vfas",
                           "Counsel": "ncsl vcsl", "Total £": "ntotal vtotal"}),
        },
    },
    "Claim1A P12": {
        "Costs awarded": {**COSTS_AWARDED, "totalcosts": InRow("Total costs awarded")},
        "Recovery": RECOVERY,
    },
    "Claim1A P13": DEBTOR,
}

CAPTIONS = {**CLAIM1, **CLAIM1A}

# Answers with the same captions, in reading order.
IN_ORDER = {
    "Claim1 P8": "csl1 cslamt1 csl2 cslamt2 csl3 cslamt3 csl4 cslamt4 csl5 cslamt5 csl6 cslamt6",
}

# --- Grid headings ---------------------------------------------------------

# From the left, in the order in which the export fills a row's cells; with the group of a column, if any.
COUNSEL_HEADS = ["Number", "Counsel", "Date", "Amount £"]
SCHEDULE_HEADS = [
    "Work: Item", "Work: Fee earner", "Work: Date", "Work: Code",
    *("Time (hours : minutes): " + kind for kind in ("Attend / confer", "Docs", "Hearing", "Travel", "Waiting")),
    "Price: Rate £", "Price: Basic claim £", "Price: Enh. %", "Price: Claim £"]
EXPERT_HEADS = [
    "Expert: Expert", "Expert: Type", "Expert: PA", "Preparation: Rate £", "Preparation: Cost £",
    "Court attendance: Rate £", "Court attendance: Cost £", "Costs: Travel £", "Costs: Other £", "Claim: Net £",
    "Claim: VAT £", "Claim: Total £"]
JOINT_HEADS = ["Type of expert", "Party", "Solicitor", "Certificate reference", "Share %"]
OTHER_HEADS = ["Description", "Amount £", "VAT £", "Total £"]
ADVOCACY_HEADS = [
    "Hearing: Date", "Hearing: Judge", "Hearing: FDR", "Hearing: Time (mins)", "Hearing units: Units",
    "Hearing units: Rate £", "Hearing units: Payment £", "Bolt-on: %", "Bolt-on: Amount £", "Fixed payments: Bundle £",
    "Fixed payments: Settle- ment £", "Fixed payments: Travel £", "Claim: Total £", "Claim: VAT £"]
BOLT_ON_HEADS = ["Date", "Description of the bolt-on"]
TRAVEL_HEADS = ["Date", "Distance", "Reason"]

HEADS = {
    "Claim1 P4": [COUNSEL_HEADS],
    "Claim1 P4 Counsels Fees Cont": [COUNSEL_HEADS],
    "Claim1 P5": [SCHEDULE_HEADS],
    "Claim1 P6": [EXPERT_HEADS],
    "Claim1 P6 Expert Dibs Cont": [EXPERT_HEADS],
    "Claim1 P7": [JOINT_HEADS, OTHER_HEADS],
    "Claim1 P7 Expert Dibs Joint Instruction Cont": [JOINT_HEADS],
    "Claim1 P7 Other Dibs Cont": [OTHER_HEADS],

    "Claim1A P5": [COUNSEL_HEADS],
    "Claim1A P5 Counsels Fees Cont": [COUNSEL_HEADS],
    "Claim1A P6": [EXPERT_HEADS],
    "Claim1A P6 Expert Dibs Cont": [EXPERT_HEADS],
    "Claim1A P7": [JOINT_HEADS, OTHER_HEADS],
    "Claim1A P7 Expert Dibs Joint Instruction Cont": [JOINT_HEADS],
    "Claim1a P7 Other Dibs Cont": [OTHER_HEADS],
    "Claim1A P8": [ADVOCACY_HEADS, BOLT_ON_HEADS, TRAVEL_HEADS],
    "Claim1A P8 Advocacy Costs Cont": [ADVOCACY_HEADS],
    "Claim1A P8 Bolt on Payments Cont": [BOLT_ON_HEADS],
    "Claim1A P8 Exceptional travel bolt-on Cont": [TRAVEL_HEADS],
    "Claim1A P10": [SCHEDULE_HEADS],
}
