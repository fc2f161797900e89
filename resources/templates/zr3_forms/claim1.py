"""The twenty sheets of Claim 1, as tables.

The key of a sheet is the name of its file without ".doc": the export asks for
it by that name.
"""

from . import look, recovery, shared
from .look import RIGHT
from .markup import Row, slot
from .pieces import (
    Column, Field, Form, Grid, answer_row, answered, definitions, fields, grid_heads, head,
    label_row, money, place, place_strip, printed, remark, section, sheet, spacer, strip,
    subheading, text_box,
)

FORM = Form("Claim 1")

# A sheet that continues a text repeats its section's title and its prompt.
LATE = ("Late submission", "Explanation", "explanation")
ENHANCEMENT = ("Enhancement",
               "If you are seeking an enhanced rate or uplift, state percentage sought and give "
               "full reasons",
               "detailsofenhancement")

PAGE_2 = sheet(
    head(FORM, 2, 5, "Case information"),
    fields(Field(60, "Date of issue of proceedings", "issueofproceedingsdate"),
           Field(60, "Date of final work on the case, excluding bill preparation",
                 "dateoffinalworkdate")),
    fields(Field(120, "Name(s) of court(s) or proposed court", "nameofcourt")),
    fields(Field(60, "Date of issue of emergency certificate", "emergencycertificatedate"),
           Field(60, "Date of issue of substantive certificate", "substantivecertificatedate")),

    section(6, "Outcome of case"),
    shared.outcome(codes=("g", "h", "i", "j", "k"), awarded=("l", "m", "n"), wasted=("q", "r")),

    section(7, LATE[0]),
    label_row(printed(30, "Date"),
              printed(90, "If this claim is made out of time, give the date and explain the delay.",
                      look.QUESTION, merge="restart")),
    answer_row(answered(30, slot("date")),
               printed(90, "", look.QUESTION, merge="continue")),
    strip(LATE[1]),
    text_box(LATE[2], 245))

PAGE_3 = sheet(
    head(FORM, 3, 8, shared.WORK[0]),
    strip(shared.WORK[1], height=20),
    text_box(shared.WORK[2], 322, look.LONG_BOX),
    section(9, ENHANCEMENT[0], 10),
    strip(ENHANCEMENT[1], height=20),
    text_box(ENHANCEMENT[2], 322, look.LONG_BOX))

PAGE_6 = sheet(
    # Marked for the additional information, the experts and the whole page.
    head(FORM, 6, 12, "Additional information", spares=2),
    place_strip(),
    place(10),
    section(13, "Experts", 10),
    shared.expert_standards(44),
    spacer(8),
    subheading("The columns below"),
    definitions(
        ("Expert, type", "The group of experts, such as paediatricians, and the type of expert "
                         "within the group"),
        ("PA", "Y if prior authority was obtained for the expert’s fee, N if it was not"),
        ("Preparation", "Hourly rate, and the cost of all time spent on preparation"),
        ("Court attendance", "Hourly rate, and the cost of all time spent at court"),
        ("Travel, other", "Cost of the time spent travelling, and all other costs of the expert"),
        ("Net", "Amount of the invoice without VAT"),
        ("VAT, total", "VAT on the invoice, and the amount with VAT")),
    spacer(8),
    shared.expert_grid())

COUNSEL_BY_ACCOUNT = Grid(row=24, heads=22, columns=(
    Column("Counsel’s account number", 36),
    Column("Fees with VAT £", 24, RIGHT),
    Column("Counsel’s account number", 36, begins_group=True),
    Column("Fees with VAT £", 24, RIGHT)),
    style=look.ANSWER, head_style=look.ANSWER_HEAD)


def counsel_by_account():
    """Two counsel to a row, three rows."""
    return [Row(COUNSEL_BY_ACCOUNT.row, tuple(
        answered(column.width, slot(name % counsel), align=column.align,
                 left=look.EDGE if column.begins_group else look.HAIR)
        for column, name, counsel in zip(COUNSEL_BY_ACCOUNT.columns, ("csl%d", "cslamt%d") * 2,
                                         (left, left, left + 1, left + 1))))
        for left in (1, 3, 5)]


PAGE_8 = sheet(
    head(FORM, 8, 16, "Letters and calls"),
    shared.letters_and_calls(24),

    section(17, "Summary of this claim", 16),
    grid_heads(shared.SUMS),
    shared.sums(("Profit costs: schedule of time, letters and calls", "npc", "vpc"),
                ("Experts", "nex", "vex"),
                ("Other disbursements, without counsel", "ndibs", "vdibs")),
    shared.sums_total("Total £", "ntotal", "vtotal"),
    Row(38, (printed(72, "Total of this claim, with VAT", look.GRAND_TOTAL_LABEL),
             money(48, "grandtotal", look.GRAND_TOTAL)), above=look.EDGE),

    section(18, "Counsel", 16),
    fields(Field(24, "Number of counsel", "counsel"),
           Field(32, "Fees, net", "ncf", is_money=True),
           Field(32, "VAT on fees", "vcf", is_money=True),
           Field(32, "Fees with VAT", "cftotal", is_money=True)),
    grid_heads(COUNSEL_BY_ACCOUNT),
    counsel_by_account(),
    remark("The fees of each counsel are listed where there are two counsel or more. Counsel’s "
           "fees stand apart from the total of this claim."))

PAGE_9 = sheet(
    recovery.costs_awarded(FORM, 9, 19, 20),
    section(21, "Money or property awarded"),
    fields(Field(60, "Value of award", "value", is_money=True),
           Field(60, "Amount recovered to date", "dmrcvrdtodate", is_money=True)))

SHEETS = {
    "Claim1 P1": shared.first_page(FORM, exceptional="9", final_bill=("7", "8"),
                                   other_providers=("5", "6")),
    "Claim1 P2": PAGE_2,
    "Claim1 P2 Late Submission Cont": shared.text_continuation(FORM, 2, 7, *LATE),
    "Claim1 P3": PAGE_3,
    "Claim1 P3 Case Details Cont": shared.text_continuation(FORM, 3, 8, *shared.WORK),
    "Claim1 P3 Enhancement Cont": shared.text_continuation(FORM, 3, 9, *ENHANCEMENT),
    "Claim1 P3 Panel Membership Cont": shared.panel_membership(FORM, 3, 9),
    "Claim1 P4": shared.counsels_fees(FORM, 4, 10),
    "Claim1 P4 Counsels Fees Cont": shared.counsels_fees_continuation(FORM, 4, 10),
    "Claim1 P5": shared.schedule_of_time(FORM, 5, 11),
    "Claim1 P6": PAGE_6,
    "Claim1 P6 Additional Info Cont": shared.additional_information_continuation(
        FORM, 6, 12, named_columns=True),
    "Claim1 P6 Expert Dibs Cont": shared.experts_continuation(FORM, 6, 13),
    "Claim1 P6 Expert Dibs Standards Cont": shared.expert_standards_continuation(FORM, 6, 13),
    "Claim1 P7": shared.disbursements(FORM, 7, joint=14, other=15,
                                      totals_names=("nettotal", "vattotal", "dibstotal")),
    "Claim1 P7 Expert Dibs Joint Instruction Cont": shared.joint_continuation(FORM, 7, 14),
    "Claim1 P7 Other Dibs Cont": shared.other_disbursements_continuation(FORM, 7, 15),
    "Claim1 P8": PAGE_8,
    "Claim1 P9": PAGE_9,
    "Claim1 P10": recovery.debtor(FORM, 10, person=22, employment=23, means=24),
}
