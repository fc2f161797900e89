"""Costs awarded and the debtor who owes them: pages that both forms have."""

from . import look
from .markup import slot
from .pieces import (
    Field, answer_row, answered, fields, follow_up, head, label_row, money_row, printed, question,
    section, sheet, strip, text_box, tick, ticks,
)


def costs_awarded(form, page, costs, recovery, *more_money_rows):
    """The lines of both sections; a form may have more sections on the sheet.
    The page takes no mark: its exporter looks for none."""
    return [
        head(form, page, costs, "Costs awarded", marked=False),
        money_row("Pre-certificate costs awarded", "precertcosts"),
        money_row("During certificate costs awarded (legal aid prescribed rates)",
                  "duringcertlsc"),
        money_row("During certificate costs awarded (market rates)", "duringcertmr"),
        more_money_rows,
        question("a", "Are legal advice and assistance, and/or Legal Help costs included in the "
                      "pre-certificate costs awarded?", "1", "2", lines=2),
        follow_up("If yes, tell us the amount", "lhipccamount"),
        fields(Field(60, "Interest on all costs", "interest", is_money=True),
               Field(60, "Date interest commenced or commences", "dateinterestcommenced")),
        strip("Please provide a breakdown where interest has been calculated"),
        text_box("interestbreakdown", 57),

        section(recovery, "Recovery"),
        fields(Field(60, "Amount recovered to date", "rcvrdtodate", is_money=True),
               Field(60, "Date order was served", "dateorderserved")),
        strip("Address of service"),
        text_box("addressofservice", 69),
        question("a", "Does the court order say leave of the court is required before enforcement "
                      "can take place?", "3", "4", lines=2),
        question("b", "Has a determination of the debtor’s means been undertaken by the court?",
                 "5", "6"),
        follow_up("If yes, give the amount", "detmamount"),
        question("c", "Has any offer been made by the debtor?", "7", "8"),
        strip("If so, give details"),
        text_box("offerbydebtordetails", 69)]


def debtor(form, page, person, employment, means):
    address, beside = 42, 78
    return sheet(
        head(form, page, person, "Debtor"),
        fields(Field(16, "Title", "title"),
               Field(16, "Initials", "initials"),
               Field(40, "First name", "firstname"),
               Field(48, "Surname or organisation", "surnameororganisation")),
        fields(Field(16, "Date of birth", "dateofbirth"),
               Field(62, "National Insurance no.", "nationalinsurancenumber"),
               Field(42, "Fax", "fax")),
        fields(Field(38, "Phone (work)", "phonework"),
               Field(38, "Phone (home)", "phonehome"),
               Field(44, "Mobile", "mobile")),
        # The address has a corner of its own: five lines beside two fields.
        label_row(printed(address, "Address"), printed(beside, "Email address")),
        answer_row(answered(address, slot("address"), style=look.BOX, stands="top",
                            merge="restart"),
                   answered(beside, slot("email"))),
        label_row(answered(address, style=look.BOX, merge="continue", above=look.NONE),
                  printed(beside, "Solicitor’s firm name")),
        answer_row(answered(address, style=look.BOX, merge="continue"),
                   answered(beside, slot("solicitorsfirmname")), height=31),

        section(employment, "Employment", 8),
        ticks((40, "1", "Employed"), (40, "2", "Self-employed"), (40, "3", "Unemployed"),
              height=22),
        fields(Field(80, "Job", "job"),
               Field(40, "Debtor’s income", "debtorsincome", is_money=True)),
        fields(Field(60, "Employer’s name", "employersname"),
               Field(60, "Employer’s address", "employersaddress"), height=46),

        section(means, "Means and information", 8),
        strip("Debtor’s assets"),
        text_box("assets", 93),
        label_row(printed(40, "Was the debtor legally aided?"), printed(80, "Case reference")),
        answer_row(tick(20, "4", "Yes"), tick(20, "5", "No"),
                   answered(80, slot("casereference"))),
        strip("Information"),
        text_box("information", 199))
