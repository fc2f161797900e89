"""Pages that both forms have, written once.

A page differs between the forms in its number, the numbers of its sections and
a few names of placeholders: those are the arguments.
"""

from . import look
from .look import CENTRE, LEFT, RIGHT
from .markup import Row, slot
from .pieces import (
    Column, Field, Grid, Total, answered, code_question, fields, grid_heads, grid_table, head,
    masthead, notes, place, place_strip, printed, question, remark, section, sheet, spacer, strip,
    subheading, text_box, ticks, totals,
)


# --- The first pages -------------------------------------------------------

def first_page(form, exceptional, final_bill, other_providers=None):
    """The ticks have other numbers on each form, and only one form asks about
    the costs of other providers."""
    final_key = "c" if other_providers else "b"
    return sheet(
        masthead(form, 1),
        section(1, "This claim"),
        ticks((60, "1", "Claim for costs to be assessed by the LAA"),
              (60, "2", "Claim for costs assessed by the Court")),
        ticks((50, exceptional, "Exceptional Case Funding determination"),
              (45, "10", "Mental Health / Court of Protection"),
              (25, "11", "VHCC / HCC")),
        fields(Field(60, "Type of case", "typeofcase"),
               Field(60, "Stage number", "stagenumber")),

        section(2, "Client"),
        fields(Field(25, "Title", "title"),
               Field(25, "First name", "firstname"),
               Field(70, "Surname", "surname")),
        fields(Field(50, "Date of birth", "dateofbirth"),
               Field(70, "Our case reference number", "casereferencenumber")),
        strip("Does this claim cover more than one certificate?\n"
              "If so, give the other case reference numbers and the percentage apportionments "
              "between the cases", lines=2),
        text_box("morethan1certificate", 57),

        section(3, "Solicitor"),
        fields(Field(25, "Account number", "accountnumber"),
               Field(25, "Roll number", "rollnumber"),
               Field(70, "Case reference", "casereference")),
        fields(Field(70, "Name of firm", "nameoffirm"),
               Field(50, "Tel. no.", "telephoneforenquiries")),
        fields(Field(60, "Contact name for enquiries", "contactnameforenquiries"),
               Field(60, "Email address for enquiries", "emailforenquiries")),

        section(4, "Previous advice and related claims"),
        question("a", "Did your client receive advice under legal help, family help (lower) or "
                      "help with family mediation in this matter?", "3", "4", lines=2),
        fields(Field(60, "Date Legal Help form signed", "datelegalhelpformsigned"),
               Field(60, "Total costs reported", "totalcostsincurred", is_money=True)),
        [question("b", "Does this claim include the costs of all other providers that have been "
                       "instructed?", *other_providers),
         strip("If no, give reasons"),
         text_box("inclusiveofallsolicitorsreasons", 44)] if other_providers else [],
        question(final_key, "Is this the final bill on this certificate?", *final_bill),
        remark("A number in brackets beside a page number marks a further sheet of that page: "
               "Page 3 (2) is the second sheet of page 3."))


def outcome(codes, awarded, wasted):
    questions = ("At what stage did case end?",
                 "How did case end?",
                 "What was the result?",
                 "Was ADR proposed or used?",
                 "Were significant wider public benefits achieved?")
    return [
        strip("Enter the code of the outcome in the box beside each question"),
        [code_question(key, text, code, 27)
         for key, text, code in zip("abcde", questions, codes)],
        strip("Indicate which, if any, of the following were awarded"),
        ticks(*zip((40, 40, 40), awarded, ("Costs", "Damages", "Property"))),
        question("f", "Was a wasted costs order made?", *wasted)]


# --- Continuation of a text ------------------------------------------------

WORK = ("Details of work being claimed",
        "Describe the work done for which you claim, and anything that explains the time it took",
        "detailsofcase")


def text_continuation(form, page, number, title, prompt, name):
    """Fifty lines, which hold the longest piece that the export cuts."""
    return sheet(
        head(form, page, number, title, continued=True),
        strip(prompt, height=20),
        text_box(name, 655, look.SHEET_BOX))


def panel_membership(form, page, number):
    grid = Grid(row=26, heads=18, columns=(
        Column("Fee earner", 40),
        Column("Panel", 36),
        Column("Membership number", 24),
        Column("Member since", 20)))
    return sheet(
        head(form, page, number, "Panel membership", continued=True),
        notes("An enhanced rate is sought for work by fee earners who are members of a "
              "specialist panel.", "Enter each of them below, with the panel, the number of the "
              "membership and the date from which it has been held.", height=15),
        grid_table(grid, 12))


# --- Counsel's fees --------------------------------------------------------

COUNSEL = Grid(row=17.5, heads=18, columns=(
    Column("Number", 10, CENTRE),
    Column("Counsel", 70),
    Column("Date", 18, CENTRE),
    Column("Amount £", 22, RIGHT)))


def counsels_fees(form, page, number):
    return sheet(
        # Marked once for the sheets of the page before it, and once for its own.
        head(form, page, number, "Counsel’s fees", spares=1),
        question("a", "Have all outstanding claims for payment by counsel been paid by LAA?",
                 "1", "2"),
        spacer(10),
        subheading("Fees claimed"),
        notes("One line for each fee. Give counsel’s account number and name, and the date of "
              "the work.",
              "Amounts are in pounds and include VAT.",
              "Counsel’s fees are reported apart from profit costs and from other "
              "disbursements."),
        grid_table(COUNSEL, 32),
        totals(COUNSEL, Total(3, "Total for counsel £"), Total(1, name="ctotal")))


def counsels_fees_continuation(form, page, number):
    return sheet(
        head(form, page, number, "Counsel’s fees", continued=True),
        grid_table(COUNSEL._replace(row=18), 38))


# --- Schedule of time ------------------------------------------------------

SCHEDULE = Grid(
    row=18, heads=26, style=look.SCHEDULE, head_style=look.SCHEDULE_HEAD,
    groups=(("Work", 4), ("Time (hours : minutes)", 5), ("Price", 4)),
    columns=(
        Column("Item", 6, CENTRE),
        Column("Fee\nearner", 9, CENTRE),
        Column("Date", 10.6, CENTRE),
        Column("Code", 7, CENTRE),
        Column("Attend /\nconfer", 9.6, CENTRE, begins_group=True),
        Column("Docs", 9.6, CENTRE),
        Column("Hearing", 9.6, CENTRE),
        Column("Travel", 9.6, CENTRE),
        Column("Waiting", 9.6, CENTRE),
        Column("Rate\n£", 9, RIGHT, begins_group=True),
        Column("Basic\nclaim £", 11.4, RIGHT),
        Column("Enh.\n%", 7, RIGHT),
        Column("Claim\n£", 12, RIGHT)))


def schedule_of_time(form, page, number):
    """Every sheet of the schedule is this one; the totals are filled on the last."""
    return sheet(
        head(form, page, number, "Schedule of time"),
        notes("One line for each piece of work. The time stands in the column of its kind. "
              "Amounts are in pounds and do not include VAT.", height=16),
        grid_table(SCHEDULE, 33),
        totals(SCHEDULE, Total(4, "Time", align=LEFT),
               *(Total(1, name=name, align=CENTRE)
                 for name in ("actm", "dtm", "htm", "ttm", "wtm")),
               Total(4), style=look.DENSE_TOTAL, height=20),
        totals(SCHEDULE, Total(4, "Claim £", align=LEFT),
               *(Total(1, name=name) for name in ("actl", "dtl", "htl", "ttl", "wtl")),
               Total(3, "Total £"), Total(1, name="total"),
               style=look.DENSE_TOTAL, above=look.HAIR))


# --- Additional information ------------------------------------------------

def additional_information_continuation(form, page, number, named_columns):
    return sheet(
        head(form, page, number, "Additional information", continued=True),
        [place_strip()] if named_columns else [],
        place(50))


# --- Experts ---------------------------------------------------------------

EXPERTS = Grid(
    row=20, heads=24, style=look.DENSE_GRID, head_style=look.DENSE_HEAD,
    groups=(("Expert", 3), ("Preparation", 2), ("Court attendance", 2), ("Costs", 2),
            ("Claim", 3)),
    columns=(
        Column("Expert", 15.2),
        Column("Type", 15),
        Column("PA", 4, CENTRE),
        Column("Rate\n£", 8, RIGHT, begins_group=True),
        Column("Cost\n£", 9.8, RIGHT),
        Column("Rate\n£", 8, RIGHT, begins_group=True),
        Column("Cost\n£", 9.8, RIGHT),
        Column("Travel\n£", 9.8, RIGHT, begins_group=True),
        Column("Other\n£", 9.8, RIGHT),
        Column("Net\n£", 9.8, RIGHT, begins_group=True),
        Column("VAT\n£", 9.8, RIGHT),
        Column("Total\n£", 11, RIGHT)))

EXPERT_STANDARDS_PROMPT = "If no, give reasons"


def expert_standards(reasons_height):
    return [
        question("a", "If these are proceedings involving a dispute about children, are you "
                      "satisfied that the experts used meet the Ministry of Justice standards for "
                      "experts in England and Wales?", "1", "2", lines=3),
        Row(reasons_height, (
            printed(look.KEY_UNITS, "b", look.KEY),
            printed(28, EXPERT_STANDARDS_PROMPT, look.QUESTION),
            answered(84, slot("expertsmeetmojstandardreasons"), style=look.BOX, stands="top")))]


def expert_standards_continuation(form, page, number):
    return text_continuation(form, page, number, "Experts", EXPERT_STANDARDS_PROMPT,
                             "expertsmeetmojstandardreasons")


def expert_grid():
    return [
        grid_table(EXPERTS, 11),
        # The net sum of many invoices needs more room than the column of one has.
        totals(EXPERTS, Total(8, "Total for experts £"),
               Total(2, name="exnet"), Total(1, name="exvat"), Total(1, name="extot"),
               style=look.DENSE_TOTAL)]


def experts_continuation(form, page, number, *note_lines):
    return sheet(
        head(form, page, number, "Experts", continued=True),
        notes(*note_lines),
        grid_table(EXPERTS, 32))


# --- Joint instruction and other disbursements -----------------------------

JOINT = Grid(row=20, heads=18, columns=(
    Column("Type of expert", 20),
    Column("Party", 29),
    Column("Solicitor", 29),
    Column("Certificate reference", 30),
    Column("Share %", 12, RIGHT)))

OTHER = Grid(row=20, heads=18, columns=(
    Column("Description", 66),
    Column("Amount £", 18, RIGHT),
    Column("VAT £", 18, RIGHT),
    Column("Total £", 18, RIGHT)))

JOINT_TITLE = "Joint instruction of experts"
LIST_EACH = "List each expert who was instructed jointly with another party to the proceedings."
SHARES = ("One line for each party to the instruction. The share is a percentage of the "
          "expert’s fee.")


def disbursements(form, page, joint, other, totals_names, before_joint=(), spares=0):
    """`joint` and `other` are the numbers of the sections; `before_joint` are
    lines that a form has between the notes and the first grid."""
    return sheet(
        head(form, page, joint, JOINT_TITLE, spares=spares),
        notes(LIST_EACH, SHARES,
              "Give the reference of the certificate of a party who is legally aided."),
        before_joint,
        grid_table(JOINT, 14),
        notes("The shares of all parties to one instruction add up to 100 per cent.", height=14,
              above=look.HAIR),
        section(other, "Other disbursements", 10),
        notes("One line for each disbursement, without experts and without counsel. Amounts are "
              "in pounds.", height=14),
        grid_table(OTHER, 12),
        totals(OTHER, Total(1, "Total for other disbursements £"),
               *(Total(1, name=name) for name in totals_names)))


def joint_continuation(form, page, number):
    return sheet(
        head(form, page, number, JOINT_TITLE, continued=True),
        notes(LIST_EACH, SHARES),
        grid_table(JOINT, 30))


def other_disbursements_continuation(form, page, number):
    return sheet(
        head(form, page, number, "Other disbursements", continued=True),
        grid_table(OTHER, 32))


# --- Letters, calls and sums -----------------------------------------------

LETTERS_AND_CALLS = Grid(row=24, heads=22, columns=(
    Column("Kind", 34),
    Column("Fee earners at", 18),
    Column("Number", 14, RIGHT),
    Column("Rate £", 17, RIGHT),
    Column("Enhancement £", 18, RIGHT),
    Column("Claim £", 19, RIGHT, begins_group=True)),
    style=look.ANSWER, head_style=look.ANSWER_HEAD)

KINDS = (("Letters out", "lo"), ("Letters in", "li"), ("Telephone calls", "tc"))


def letters_and_calls(row_height):
    """Two lines for each kind, with no line between them in the column of the kind."""
    grid = LETTERS_AND_CALLS
    rows = []
    for kind, short in KINDS:
        for number, rate in ((1, "First rate"), (2, "Second rate")):
            amounts = ("%s%d", "%sir%d", "%senh%d", "%stotal%d")
            rows.append(Row(row_height, (
                printed(grid.columns[0].width, kind if number == 1 else "", look.QUESTION,
                        bold=True, above=None if number == 1 else look.NONE),
                printed(grid.columns[1].width, rate, look.QUESTION),
                *(answered(column.width, slot(name % (short, number)), align=RIGHT,
                           left=look.EDGE if column.begins_group else look.HAIR)
                  for column, name in zip(grid.columns[2:], amounts)))))
    return [
        grid_heads(grid), rows,
        totals(grid, Total(5, "Total for letters and calls £"), Total(1, name="cmtotal"),
               height=row_height + 3)]


SUMS = Grid(row=27, heads=22, columns=(
    Column("", 72),
    Column("Net £", 24, RIGHT),
    Column("VAT £", 24, RIGHT)),
    style=look.ANSWER, head_style=look.ANSWER_HEAD)


def sums(*rows, height=SUMS.row):
    """Rows of a label with its net amount and its VAT."""
    return [Row(height, (printed(72, label, look.QUESTION),
                         answered(24, slot(net), align=RIGHT),
                         answered(24, slot(vat), align=RIGHT)))
            for label, net, vat in rows]


def sums_total(label, net, vat, height=SUMS.row, above=look.EDGE):
    return totals(SUMS, Total(1, label), Total(1, name=net), Total(1, name=vat), height=height,
                  above=above)
