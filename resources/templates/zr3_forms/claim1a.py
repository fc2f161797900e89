"""The twenty-six sheets of Claim 1A, as tables.

The key of a sheet is the name of its file without ".doc": the export asks for
it by that name, to the letter.
"""

from . import look, recovery, shared
from .look import CENTRE, RIGHT
from .pieces import (
    Column, Field, Form, Grid, Total, choice, definitions, fields, grid_heads, grid_table, head,
    money_row, notes, place, question, section, sheet, spacer, strip, subheading,
    text_box, ticks, totals,
)

FORM = Form("Claim 1A")

# A sheet that continues a text repeats its section's title and its prompt.
NATURE = ("Nature of proceedings",
          "Give details of the case, including any factors in support of time spent in attendance "
          "and preparation",
          "detailsofcase")
LEVELS = ("Actual costs: private law cases",
          "If you did not undertake work at all levels covered by your certificate, please explain "
          "why",
          "workatalllevelsreasons")

PAGE_2 = sheet(
    head(FORM, 2, 5, "Case information"),
    fields(Field(60, "Date of issue of proceedings", "issueofproceedingsdate"),
           Field(60, "Date of final order", "dateoffinalorder")),
    fields(Field(60, "Date of issue of emergency certificate", "emergencycertificatedate"),
           Field(60, "Date of issue of substantive certificate", "substantivecertificatedate")),

    section(6, "Outcome of case"),
    shared.outcome(codes=("1", "2", "3", "4", "5"), awarded=("6", "7", "8"), wasted=("b", "c")))


# --- Actual costs ----------------------------------------------------------

def profit_costs(net, vat):
    return fields(Field(60, "Profit costs, without advocacy and enhancement", net, is_money=True),
                  Field(60, "VAT on profit costs", vat, is_money=True))


def region(key, *choices):
    return choice(key, "In which region are you based?", *choices)


def finished_before(key, high, county, family):
    return choice(key, "In front of whom did case finish?",
                  (23, high, "High Court Judge"),
                  (29.2, county, "District or Circuit Judge"),
                  (27.8, family, "Lay Justices or Clerks"))


PAGE_3 = sheet(
    head(FORM, 3, 7, NATURE[0]),
    strip(NATURE[1], height=20),
    text_box(NATURE[2], 288, look.LONG_BOX),
    strip("Indicate each kind of proceedings that applies"),
    ticks((60, "1", "Care and supervision proceedings"),
          (60, "2", "Other public law children case")),
    ticks((40, "3", "Private law children case"),
          (40, "4", "Finance case"),
          (40, "5", "Domestic Abuse case")),
    question("a", "Have any other providers acted in this matter?", "6", "7"),
    question("b", "Is this a change of solicitor half fee?", "8", "9"),

    section(8, "Actual costs: care and supervision cases"),
    profit_costs("caspc", "caspcv"),
    region("a", (20, "a", "Midlands"), (20, "b", "North"), (20, "c", "South"), (20, "d", "Wales")),
    choice("b", "Is your client", (26, "e", "A child"), (27, "f", "A parent"), (27, "g", "Joined")),
    choice("c", "How many are you acting for?", (40, "h", "1"), (40, "i", "2 or more")),
    finished_before("d", "j", "k", "l"))

PAGE_4 = sheet(
    head(FORM, 4, 9, LEVELS[0]),
    profit_costs("plpc", "plpcv"),
    region("a", (40, "1", "London"), (40, "2", "Non-London")),
    question("b", "Have you made a previous claim for payment on account in these proceedings?",
             "3", "4"),
    finished_before("c", "5", "6", "7"),
    question("d", "Are you claiming a settlement fee?", "8", "9"),
    choice("e", "Which levels of work did you undertake?",
           (26, "a", "Level 3"), (27, "b", "Level 4"), (27, "c", "Enforcement")),
    strip(LEVELS[1]),
    text_box(LEVELS[2], 69),

    section(10, "Exceptional case and fixed fee"),
    question("a", "Is this an Exceptional Case?", "d", "e"),
    grid_heads(shared.SUMS),
    shared.sums(("Fixed fee that would apply", "fixedfee", "fixedfeevat"),
                ("Experts", "nex", "vex"),
                ("Other disbursements, without counsel", "dibs", "dibsvat")),
    shared.sums_total("Total £", "total", "totalvat"),
    shared.sums(("Apart from the total: advocacy", "adv", "advvat"),
                ("Apart from the total: counsel", "csl", "cslvat")))

PAGE_6 = sheet(
    head(FORM, 6, 12, "Experts"),
    shared.expert_standards(96),
    spacer(8),
    subheading("The columns below"),
    definitions(
        ("Expert", "The group of experts, such as paediatricians"),
        ("Type", "The type of expert within the group"),
        ("PA", "Y if prior authority was obtained for the expert’s fee, N if it was not"),
        ("Preparation rate", "Hourly rate for preparation"),
        ("Preparation cost", "Cost of all time spent on preparation"),
        ("Court rate", "Hourly rate for attendance at court"),
        ("Court cost", "Cost of all time spent at court"),
        ("Travel", "Cost of the time spent travelling"),
        ("Other", "All other costs of the expert"),
        ("Net", "Amount of the invoice without VAT"),
        ("VAT", "VAT on the invoice"),
        ("Total", "Amount of the invoice with VAT")),
    spacer(8),
    subheading("Experts’ invoices"),
    shared.expert_grid())


# --- Family Advocacy Scheme ------------------------------------------------

ADVOCACY = Grid(
    row=17, heads=24, style=look.DENSEST_GRID, head_style=look.DENSE_HEAD,
    groups=(("Hearing", 4), ("Hearing units", 3), ("Bolt-on", 2), ("Fixed payments", 3),
            ("Claim", 2)),
    columns=(
        Column("Date", 7.8, CENTRE),
        Column("Judge", 12.6, CENTRE),
        Column("FDR", 8, CENTRE),
        Column("Time\n(mins)", 6.2, CENTRE),
        Column("Units", 5.4, CENTRE, begins_group=True),
        Column("Rate\n£", 8.6, RIGHT),
        Column("Payment\n£", 9.6, RIGHT),
        Column("%", 6.2, RIGHT, begins_group=True),
        Column("Amount\n£", 9.6, RIGHT),
        Column("Bundle\n£", 8.8, RIGHT, begins_group=True),
        Column("Settle-\nment £", 8.8, RIGHT),
        Column("Travel\n£", 8.8, RIGHT),
        Column("Total\n£", 10, RIGHT, begins_group=True),
        Column("VAT\n£", 9.6, RIGHT)))

BOLT_ONS = Grid(row=17, heads=17, columns=(
    Column("Date", 14),
    Column("Description of the bolt-on", 106)))

TRAVEL = Grid(row=17, heads=17, columns=(
    Column("Date", 14),
    Column("Distance", 50),
    Column("Reason", 56)))

SCHEME = "Costs under Family Advocacy Scheme"
EACH_HEARING = ("One line for each hearing. Amounts are in pounds. The total of a line does not include "
                "VAT.")
EACH_JOURNEY = "One line for each hearing to which travel was exceptional."
CONTINUED_ROW = 14.5

PAGE_8 = sheet(
    # Marked for the bolt-on payments, the travel and the whole page.
    head(FORM, 8, 15, SCHEME, spares=2),
    notes(EACH_HEARING),
    spacer(5),
    subheading("A\u2003Advocacy costs"),
    grid_table(ADVOCACY, 16),
    # The sum of so many hearings needs more room than the column of their totals has.
    totals(ADVOCACY, Total(11, "Total for advocacy £"), Total(2, name="actot"),
           Total(1, name="acvat"), style=look.DENSE_TOTAL, height=20),
    spacer(5),
    subheading("B\u2003Bolt-on payments"),
    grid_table(BOLT_ONS, 6),
    # No line is left to count between these two tables: the sub-heading alone keeps them apart.
    subheading("C\u2003Exceptional travel", line=19),
    grid_table(TRAVEL, 10))

SHEETS = {
    "Claim1A P1": shared.first_page(FORM, exceptional="7", final_bill=("5", "6")),
    "Claim1A P2": PAGE_2,
    "Claim1A P3": PAGE_3,
    "Claim1A P3 NoP Cont": shared.text_continuation(FORM, 3, 7, *NATURE),
    "Claim1A P4": PAGE_4,
    "Claim1A P4 Reasons For Not Undertaking Work At All Levels Cont":
        shared.text_continuation(FORM, 4, 9, *LEVELS),
    "Claim1A P5": shared.counsels_fees(FORM, 5, 11),
    "Claim1A P5 Counsels Fees Cont": shared.counsels_fees_continuation(FORM, 5, 11),
    "Claim1A P6": PAGE_6,
    "Claim1A P6 Expert Dibs Cont": shared.experts_continuation(
        FORM, 6, 12, "One line for each invoice. Amounts are in pounds."),
    "Claim1A P6 Expert Dibs Standards Cont": shared.expert_standards_continuation(FORM, 6, 12),
    "Claim1A P7": shared.disbursements(
        FORM, 7, joint=13, other=14, totals_names=("dibsnet", "dibsvat", "dibstotal"),
        before_joint=(spacer(8), subheading("Share of each party")), spares=1),
    "Claim1A P7 Expert Dibs Joint Instruction Cont": shared.joint_continuation(FORM, 7, 13),
    # With a small letter: the export asks for it so.
    "Claim1a P7 Other Dibs Cont": shared.other_disbursements_continuation(FORM, 7, 14),
    "Claim1A P8": PAGE_8,
    "Claim1A P8 Advocacy Costs Cont": sheet(
        head(FORM, 8, 15, SCHEME + ": advocacy", continued=True),
        notes(EACH_HEARING),
        grid_table(ADVOCACY._replace(row=18), 36)),
    "Claim1A P8 Bolt on Payments Cont": sheet(
        head(FORM, 8, 15, SCHEME + ": bolt-ons", continued=True),
        notes("One line for each hearing with a bolt-on.",
              "The amounts stand with the hearings under advocacy costs."),
        grid_table(BOLT_ONS._replace(row=CONTINUED_ROW), 46)),
    "Claim1A P8 Exceptional travel bolt-on Cont": sheet(
        head(FORM, 8, 15, SCHEME + ": travel", continued=True),
        notes(EACH_JOURNEY),
        grid_table(TRAVEL._replace(row=CONTINUED_ROW), 46)),
    "Claim1A P9": sheet(
        head(FORM, 9, 16, shared.WORK[0]),
        strip(shared.WORK[1], height=20),
        text_box(shared.WORK[2], 640, look.LONG_BOX)),
    "Claim1A P9 Case Details Cont": shared.text_continuation(FORM, 9, 16, *shared.WORK),
    "Claim1A P9 Panel Membership Cont": shared.panel_membership(FORM, 9, 16),
    "Claim1A P10": shared.schedule_of_time(FORM, 10, 17),
    "Claim1A P11": sheet(
        head(FORM, 11, 18, "Additional information"),
        place(25, line=12.5),

        section(19, "Letters and calls", 10),
        shared.letters_and_calls(19),

        section(20, "Summary of this claim", 10),
        grid_heads(shared.SUMS),
        shared.sums(("Profit costs: schedule of time, letters and calls", "npc", "vpc"),
                    ("Experts", "nex", "vex"),
                    ("Other disbursements, without counsel", "ndibs", "vdibs"), height=19),
        shared.sums_total("Subtotal £", "nsubtotal", "vsubtotal", height=19, above=look.HAIR),
        shared.sums(("Family Advocacy Scheme", "nfas", "vfas"),
                    ("Counsel", "ncsl", "vcsl"), height=19),
        shared.sums_total("Total £", "ntotal", "vtotal", height=22)),
    "Claim1A P11 Additional Info Cont": shared.additional_information_continuation(
        FORM, 11, 18, named_columns=False),
    "Claim1A P12": sheet(
        recovery.costs_awarded(FORM, 12, 21, 22, money_row("Total costs awarded", "totalcosts"))),
    "Claim1A P13": recovery.debtor(FORM, 13, person=23, employment=24, means=25),
}
