"""Every measure, tone, line and letter of the printed forms, in one place.

One idea carries the design: what is printed stands on tint, what is answered
stands on white.  Two tones, two line weights, one typeface, one set of columns.

Lengths are points unless a name says otherwise; widths of cells are units.
"""

from typing import NamedTuple

# --- The sheet -------------------------------------------------------------

TWIPS = 20                      # to the point
UNIT = 85                       # twips; 120 units fill the sheet's width
ACROSS = 120
SHEET_WIDTH, SHEET_HEIGHT = 11906, 16838            # A4 upright, in twips
MARGIN_SIDE, MARGIN_TOP = 853, 624                  # in twips
FULLEST = 15300                 # twips; 290 less than there is, so that a sheet
                                # never spills, in whatever program prints it


def twips(points):
    return round(points * TWIPS)


def units(count):
    return round(count * UNIT)


# --- Tones and lines -------------------------------------------------------

BAND = "1F3A4A"                 # deep slate, near black on an office printer
TINT = "E9EEF1"                 # about 7 % grey
RULE = "7F8C94"
BLACK, WHITE = "000000", "FFFFFF"   # no grey type: laser printers break it into dots


class Line(NamedTuple):
    """A line at the edge of a cell."""
    eighths: int                # of a point
    colour: str


NONE = Line(0, "")
HAIR = Line(4, RULE)
GAP = Line(4, WHITE)         # parts the number from the title within a band
EDGE = Line(6, BAND)         # the outer edge, groups of columns, above totals


# --- Type ------------------------------------------------------------------

TYPEFACE = "Arial"
LANGUAGE = "en-GB"
LEFT, CENTRE, RIGHT = "left", "center", "right"


class Style(NamedTuple):
    """A paragraph style.  `line` is exact, so no program can lay it out taller."""
    name: str
    size: float
    line: float
    bold: bool = False
    colour: str = BLACK
    align: str = LEFT
    before: float = 0
    after: float = 0
    left: int = 0               # insets in twips
    right: int = 0


MARK = Style("Mark", 9, 12, bold=True, align=RIGHT, right=100)
SPACER = Style("Spacer", 1, 10)
TAIL = Style("Tail", 1, 1)

FORM_NAME = Style("Form Name", 27, 30, bold=True, colour=WHITE, align=CENTRE)
FORM_TITLE = Style("Form Title", 19, 23, bold=True, left=280)
FORM_SUBTITLE = Style("Form Subtitle", 10, 13, left=280)
PAGE_WORD = Style("Page Word", 8, 10, align=CENTRE)
PAGE_NUMBER = Style("Page Number", 17, 21, bold=True, align=CENTRE)
PAGE_BOX = Style("Page Box", 11, 13, bold=True, left=100, right=100)
PAGE_BOX_FORM = 8               # size of the form's name in the page box
BAND_NUMBER = Style("Band Number", 11, 13, bold=True, colour=WHITE, align=CENTRE)
BAND_TITLE = Style("Band Title", 11, 13, bold=True, colour=WHITE, left=160)
CONTINUED = 9                   # size of ", continued" beside a title
SUBHEADING = Style("Subheading", 9.5, 14, bold=True, before=3)

QUESTION = Style("Question", 9.5, 12, left=100, right=100)
KEY = Style("Key", 9.5, 12, bold=True, align=CENTRE)
TICK = Style("Tick", 9.5, 15, left=100)
TICK_BOX = 13                   # size of the box beside its word
LABEL = Style("Label", 8, 10, left=100, right=100)
NOTE = Style("Note", 8, 10)

HEAD = Style("Head", 8, 9.5, bold=True, after=3, left=80, right=80)
DENSE_HEAD = Style("Dense Head", 7.5, 8.6, bold=True, after=2.5, left=30, right=35)
ANSWER_HEAD = Style("Answer Head", 8, 9.5, bold=True, after=3, left=100, right=100)
GROUP_HEAD = Style("Group Head", 7.5, 9, bold=True, align=CENTRE)
SCHEDULE_HEAD = Style("Schedule Head", 7.5, 8.6, bold=True, after=2.5, left=40, right=40)

# Two lines of it leave room in a row of 25 points for the line below a table.
ANSWER = Style("Answer", 10, 12, left=100, right=100)
BOX = Style("Text Box", 10, 12.5, before=5, left=100, right=100)
LONG_BOX = Style("Long Text Box", 10, 14, before=5, left=280, right=280)
SHEET_BOX = Style("Sheet Text Box", 10, 13, before=5, left=280, right=280)
PLACE = Style("Place", 10, 13, left=100, right=100)
GRAND_TOTAL = Style("Grand Total", 14, 18, bold=True, left=100, right=100)
GRAND_TOTAL_LABEL = Style("Grand Total Label", 11, 13, bold=True, align=RIGHT,
                          left=100, right=100)

# Two lines of a grid's type stand clear of the rules in a row of 20 points, from
# which the line above it takes half a point: a certificate reference of twenty
# capitals needs both.  Capitals stand high in so low a line; the point before it
# centres them.
GRID = Style("Grid", 9, 9.25, before=1, left=80, right=80)
# An amount must never break: half a figure reads as another figure. Hence the small type and the narrow insets where
# columns are many. The columns hold six figures before the point, those of hourly rates four, of hearings'
# rates and fixed payments five, the sums seven.
DENSE_GRID = Style("Dense Grid", 7.5, 8, left=30, right=35)
DENSEST_GRID = Style("Densest Grid", 7.5, 8, left=15, right=35)
SCHEDULE = Style("Schedule", 8.5, 10, left=40, right=40)
DENSE_TOTAL = Style("Dense Total", 7.5, 10, bold=True, left=0, right=30)

STYLES = [
    MARK, SPACER, TAIL,
    FORM_NAME, FORM_TITLE, FORM_SUBTITLE, PAGE_WORD, PAGE_NUMBER, PAGE_BOX,
    BAND_NUMBER, BAND_TITLE, SUBHEADING,
    QUESTION, KEY, TICK, LABEL, NOTE,
    HEAD, ANSWER_HEAD, DENSE_HEAD, SCHEDULE_HEAD, GROUP_HEAD,
    ANSWER, BOX, LONG_BOX, SHEET_BOX, PLACE, GRAND_TOTAL, GRAND_TOTAL_LABEL,
    GRID, DENSE_GRID, DENSEST_GRID, SCHEDULE, DENSE_TOTAL,
]

# --- Heights of the pieces -------------------------------------------------

MASTHEAD = 58
HEAD_BAND = 24
BAND_HEIGHT = 20
LABEL_ROW = 13
ANSWER_ROW = 25                 # two lines: an allowance's worth of wide letters
TICK_ROW = 27
QUESTION_ROW = {1: 24, 2: 31, 3: 43}   # by lines of the question
TOTAL_ROW = 22
GROUP_HEADS = 14

# --- Stops of the pieces that stand on every page, in units ----------------

KEY_UNITS = 8
YES_NO_UNITS = 12
PAGE_BOX_UNITS = 28
MASTHEAD_UNITS = (32, 68, 20)

# Stops of an additional information note, in twips from the edge of its place.
NOTE_NUMBER_STOP, NOTE_TEXT_STOP = 450, 600
