"""The pieces that pages are put together from.

Each piece is one function.  It gives a line, or a list of lines, for `sheet`.
Widths are units; a row of cells is 120 of them.
"""

from typing import NamedTuple, Optional, Tuple

from . import look
from .look import CENTRE, LEFT, RIGHT
from .markup import Cell, Paragraph, Row, Run, Tab, slot

NO_BREAK_SPACE = "\u00a0"


class Form(NamedTuple):
    name: str                   # as printed


# --- A sheet and what stands on each ---------------------------------------

def flat(pieces):
    for piece in pieces:
        if isinstance(piece, (Row, Paragraph)):
            yield piece
        else:
            yield from flat(piece)


def sheet(*pieces):
    """The quiet line comes first and stays empty: a sheet number for which no
    mark is left would be typed there, right above the page box.  The export takes one
    character off the very end of the document; the second tail makes up for it."""
    tail = Paragraph(look.TAIL)
    return [Paragraph(look.MARK), *flat(pieces), tail, tail]


def page_mark(marked, spares=0):
    """Room for the number of a further sheet.  Only the first is seen.  A sheet that the
    export marks more often has a hidden spare for each further time; those that are left
    over it removes."""
    return (slot("or"), *[slot("or", hidden=True)] * spares) if marked else ()


def masthead(form, page):
    name, title, box = look.MASTHEAD_UNITS
    return Row(look.MASTHEAD, (
        Cell(look.units(name), (Paragraph(look.FORM_NAME, (form.name,)),), look.BAND),
        Cell(look.units(title), (Paragraph(look.FORM_TITLE, ("Claim for costs",)),
                                 Paragraph(look.FORM_SUBTITLE, ("Civil legal aid",))),
             left=look.EDGE),
        Cell(look.units(box), (Paragraph(look.PAGE_WORD, ("Page",)),
                               Paragraph(look.PAGE_NUMBER, ("%d " % page, *page_mark(True)))),
             look.TINT, left=look.EDGE)))


def banded(number, title, width):
    return (Cell(look.units(look.KEY_UNITS), (Paragraph(look.BAND_NUMBER, (str(number),)),),
                 look.BAND),
            Cell(look.units(width), (Paragraph(look.BAND_TITLE, title),), look.BAND,
                 left=look.GAP))


def head(form, page, number, title, continued=False, marked=True, spares=0):
    """Masthead and first section band in one, so that grids begin high up."""
    going_on = (Run(", continued", size=look.CONTINUED, bold=False),) if continued else ()
    width = look.units(look.PAGE_BOX_UNITS)
    box = Paragraph(
        look.PAGE_BOX,
        (Run(form.name, size=look.PAGE_BOX_FORM, bold=False), "\tPage %d" % page,
         *((" ", *page_mark(True, spares)) if marked else ())),
        tabs=(Tab(RIGHT, width - look.PAGE_BOX.right),))
    number_and_title = banded(number, (title, *going_on),
                              look.ACROSS - look.KEY_UNITS - look.PAGE_BOX_UNITS)
    return Row(look.HEAD_BAND,
               (*number_and_title,
                Cell(width, (box,), look.TINT, left=look.EDGE, below=look.EDGE)),
               ruled_below=False)


def band(number, title):
    """Without a line below: beside so dark a fill it shows only as a flaw."""
    return Row(look.BAND_HEIGHT, banded(number, (title,), look.ACROSS - look.KEY_UNITS),
               ruled_below=False)


def spacer(height):
    return Paragraph(look.SPACER, line=height)


def section(number, title, space=13):
    return [spacer(space), band(number, title)]


def subheading(text, line=None):
    """`line` where the sub-heading alone has to keep two tables apart."""
    return Paragraph(look.SUBHEADING, (text,), line=line)


def remark(text):
    """One line on no fill, below a table."""
    return [spacer(8), Paragraph(look.NOTE, (text,))]


# --- Cells -----------------------------------------------------------------

def printed(width, text, style=look.LABEL, align=None, bold=None, **cell):
    """What the form says: on tint."""
    content = (text,) if text else ()
    return Cell(look.units(width), (Paragraph(style, content, align, bold),), look.TINT, **cell)


def answered(width, *content, style=look.ANSWER, align=None, bold=None, **cell):
    """What the claim says: on white."""
    return Cell(look.units(width), (Paragraph(style, content, align, bold),), **cell)


def money(width, name, style=look.ANSWER, **cell):
    """The pound sign at the left, the amount at the right."""
    end = look.units(width) - style.right
    return Cell(look.units(width), (Paragraph(style, ("£\t", slot(name)),
                                              tabs=(Tab(RIGHT, end),)),), **cell)


def tick(width, name, word):
    return answered(width, slot(name, size=look.TICK_BOX), NO_BREAK_SPACE + word,
                    style=look.TICK)


def two_ticks(yes, no):
    return tick(look.YES_NO_UNITS, yes, "Yes"), tick(look.YES_NO_UNITS, no, "No")


# --- Rows of questions and answers -----------------------------------------

class Field(NamedTuple):
    width: int
    label: str
    name: str
    is_money: bool = False


def label_row(*cells):
    return Row(look.LABEL_ROW, cells)


def answer_row(*cells, height=look.ANSWER_ROW):
    """Without a line to the labels above: the change of tone parts them."""
    return Row(height, cells, above=look.NONE)


def fields(*row, height=look.ANSWER_ROW):
    return [label_row(*(printed(field.width, field.label) for field in row)),
            answer_row(*(money(field.width, field.name) if field.is_money
                         else answered(field.width, slot(field.name)) for field in row),
                       height=height)]


def ticks(*row, height=look.TICK_ROW):
    return Row(height, tuple(tick(*choice) for choice in row))


def question(key, text, yes, no, lines=1):
    words = look.ACROSS - look.KEY_UNITS - 2 * look.YES_NO_UNITS
    return Row(look.QUESTION_ROW[lines], (printed(look.KEY_UNITS, key, look.KEY),
                                          printed(words, text, look.QUESTION),
                                          *two_ticks(yes, no)))


def choice(key, text, *choices):
    """A question whose answers, more than yes and no, are ticks beside it."""
    words = look.ACROSS - look.KEY_UNITS - sum(width for width, _, _ in choices)
    return Row(look.TICK_ROW, (printed(look.KEY_UNITS, key, look.KEY),
                               printed(words, text, look.QUESTION),
                               *(tick(*answer) for answer in choices)))


def code_question(key, text, name, height):
    words = look.ACROSS - look.KEY_UNITS - look.YES_NO_UNITS
    return Row(height, (printed(look.KEY_UNITS, key, look.KEY),
                        printed(words, text, look.QUESTION),
                        answered(look.YES_NO_UNITS, slot(name), align=CENTRE)))


def money_row(text, name, height=26):
    return Row(height, (printed(90, text, look.QUESTION), money(30, name)))


def follow_up(text, name, height=26):
    """An amount that belongs to the question above: no line parts their keys."""
    return Row(height, (printed(look.KEY_UNITS, "", look.KEY, above=look.NONE),
                        printed(82, text, look.QUESTION), money(30, name)))


def strip(text, lines=1, height=None):
    return Row(height or look.LABEL_ROW * lines, (printed(look.ACROSS, text),))


def text_box(name, height, style=look.BOX):
    return Row(height, (answered(look.ACROSS, slot(name), style=style, stands="top"),),
               above=look.NONE)


def notes(*texts, height=13, above=look.NONE):
    """One line each, one cell each: they are counted on the way to a grid."""
    return [Row(height, (printed(look.ACROSS, text),), above=above if i == 0 else look.NONE)
            for i, text in enumerate(texts)]


def definitions(*rows, height=13):
    return [Row(height, (printed(20, term, bold=True), printed(100, meaning, left=look.NONE)),
                above=look.NONE)
            for term, meaning in rows]


# --- Additional information ------------------------------------------------

NOTE_STOPS = (Tab(RIGHT, look.NOTE_NUMBER_STOP), Tab(LEFT, look.NOTE_TEXT_STOP))


def place_strip():
    width = look.units(look.ACROSS)
    return Row(14, (Cell(width, (Paragraph(look.LABEL, ("\tItem\tNote",), tabs=NOTE_STOPS),),
                         look.TINT),))


def place(lines, line=look.PLACE.line):
    """Notes fill it from within and push nothing else on the sheet further down
    the paper.  It ends on a part of a line that nothing is typed in."""
    empty = Paragraph(look.PLACE, tabs=NOTE_STOPS,
                      line=line if line != look.PLACE.line else None)
    return Row(lines * line + 4, (Cell(look.units(look.ACROSS), (empty,), stands="top"),),
               above=look.NONE)


# --- Grids -----------------------------------------------------------------

class Column(NamedTuple):
    head: str                   # "\n" where the head goes on to a second line
    width: float
    align: str = LEFT
    begins_group: bool = False


class Grid(NamedTuple):
    columns: Tuple[Column, ...]
    row: float
    heads: float
    groups: Tuple[Tuple[str, int], ...] = ()    # title, number of columns
    style: look.Style = look.GRID
    head_style: look.Style = look.HEAD


def left_edge(column):
    return look.EDGE if column.begins_group else look.HAIR


def width_of(columns):
    return sum(column.width for column in columns)


def group_row(grid):
    cells, begin = [], 0
    for title, count in grid.groups:
        columns = grid.columns[begin:begin + count]
        cells.append(printed(width_of(columns), title, look.GROUP_HEAD,
                             left=left_edge(columns[0])))
        begin += count
    return Row(look.GROUP_HEADS, tuple(cells))


def grid_heads(grid):
    heads = Row(grid.heads, tuple(
        printed(column.width, column.head, grid.head_style, align=column.align,
                left=left_edge(column), stands="bottom")
        for column in grid.columns))
    return [group_row(grid), heads] if grid.groups else [heads]


def grid_rows(grid, count):
    row = Row(grid.row, tuple(
        answered(column.width, style=grid.style, align=column.align, left=left_edge(column))
        for column in grid.columns))
    return [row] * count


def grid_table(grid, count):
    return [*grid_heads(grid), *grid_rows(grid, count)]


class Total(NamedTuple):
    """A cell of the row of totals: a label over some columns, or an amount."""
    columns: int
    label: Optional[str] = None
    name: Optional[str] = None
    align: str = RIGHT


def totals(grid, *parts, style=None, height=look.TOTAL_ROW, above=look.EDGE):
    """A row of totals; `style` is the amounts' where they need a smaller one than the grid's."""
    cells, begin = [], 0
    for part in parts:
        columns = grid.columns[begin:begin + part.columns]
        looks = dict(align=part.align, bold=True, left=left_edge(columns[0]))
        cells.append(printed(width_of(columns), part.label, style=grid.style, **looks)
                     if part.name is None else
                     answered(width_of(columns), slot(part.name), style=style or grid.style, **looks))
        begin += part.columns
    return Row(height, tuple(cells), above=above)
