"""Lines of a sheet and the markup they become.

A sheet is a flat list of lines, each a `Paragraph` of the body or a `Row`.
Rows that follow one another are one table: two tables without a paragraph
between them would melt into one in most word processors anyway.

The export walks a sheet by lines to find a grid, so this list *is* the count.
"""

from itertools import groupby
from typing import NamedTuple, Optional, Tuple, Union

from docx.oxml import OxmlElement
from docx.oxml.ns import qn

from . import look


class Run(NamedTuple):
    text: str
    size: Optional[float] = None        # None: as its paragraph
    bold: Optional[bool] = None
    hidden: bool = False


class Tab(NamedTuple):
    align: str
    twips: int


class Paragraph(NamedTuple):
    style: look.Style
    content: Tuple[Union[str, Run], ...] = ()
    align: Optional[str] = None
    bold: Optional[bool] = None
    tabs: Tuple[Tab, ...] = ()
    line: Optional[float] = None


class Cell(NamedTuple):
    width: int                          # twips
    paragraphs: Tuple[Paragraph, ...]
    fill: Optional[str] = None
    left: look.Line = look.HAIR
    above: Optional[look.Line] = None   # None: as its row
    below: look.Line = look.NONE        # besides what the row below draws
    stands: str = "center"              # top, center or bottom
    merge: Optional[str] = None         # downwards: restart or continue


class Row(NamedTuple):
    height: float
    cells: Tuple[Cell, ...]
    above: look.Line = look.HAIR
    ruled_below: bool = True            # False: whatever the row below would draw


def slot(name, size=None, bold=None, hidden=False):
    """A placeholder.  Always one run: the export looks for it within one text."""
    return Run("{%s}" % name, size, bold, hidden)


# --- Elements --------------------------------------------------------------

def element(tag, *children, **attributes):
    made = OxmlElement("w:" + tag)
    for name, value in attributes.items():
        made.set(qn("w:" + name), str(value))
    made.extend(child for child in children if child is not None)
    return made


def style_id(style):
    if style not in look.STYLES:
        raise ValueError("no style of the sheets has this look: %s" % (style,))
    return "ZR3" + style.name.replace(" ", "")


def run_look(style, size=None, bold=None, hidden=False):
    """Size and weight stand at every run and paragraph mark, not in the style
    alone: text that is typed later copies them from there."""
    bold = style.bold if bold is None else bold
    half_points = round(2 * (size or style.size))
    weight = element("b") if bold else element("b", val="0") if style.bold else None
    colour = element("color", val=style.colour) if style.colour != look.BLACK else None
    return element("rPr", weight, element("vanish") if hidden else None, colour,
                   element("sz", val=half_points), element("szCs", val=half_points))


def spacing(style, line=None):
    return element("spacing", before=look.twips(style.before), after=look.twips(style.after),
                   line=look.twips(line or style.line), lineRule="exact")


def run_element(run, paragraph):
    bold = paragraph.bold if run.bold is None else run.bold
    made = element("r", run_look(paragraph.style, run.size, bold, run.hidden))
    for i, line in enumerate(run.text.split("\n")):
        if i:
            made.append(element("br"))
        for j, text in enumerate(line.split("\t")):
            if j:
                made.append(element("tab"))
            if text:
                part = element("t")
                part.text = text
                part.set("{http://www.w3.org/XML/1998/namespace}space", "preserve")
                made.append(part)
    return made


def paragraph_element(paragraph):
    style = paragraph.style
    properties = element(
        "pPr",
        element("pStyle", val=style_id(style)),
        element("tabs", *(element("tab", val=tab.align, pos=tab.twips) for tab in paragraph.tabs))
        if paragraph.tabs else None,
        spacing(style, paragraph.line) if paragraph.line else None,
        element("jc", val=paragraph.align) if paragraph.align else None,
        run_look(style, bold=paragraph.bold))
    runs = (part if isinstance(part, Run) else Run(part) for part in paragraph.content)
    return element("p", properties, *(run_element(run, paragraph) for run in runs))


# --- Tables ----------------------------------------------------------------

def edges(cells):
    """Where the cells of a row begin, and where the last one ends, in twips."""
    stops = [0]
    for cell in cells:
        stops.append(stops[-1] + cell.width)
    return stops


def line_element(side, line):
    if line is look.NONE:
        return element(side, val="nil")
    return element(side, val="single", sz=line.eighths, space=0, color=line.colour)


def cell_element(cell, span, top, left, bottom, right):
    """A line between two cells is stated by one of them: as a rule by the lower
    one and by the right one."""
    return element(
        "tc",
        element(
            "tcPr",
            element("tcW", w=cell.width, type="dxa"),
            element("gridSpan", val=span) if span > 1 else None,
            element("vMerge", val=cell.merge) if cell.merge else None,
            element("tcBorders", line_element("top", top), line_element("left", left),
                    line_element("bottom", bottom), line_element("right", right)),
            element("shd", val="clear", color="auto", fill=cell.fill) if cell.fill else None,
            element("vAlign", val=cell.stands) if cell.stands != "top" else None),
        *(paragraph_element(paragraph) for paragraph in cell.paragraphs))


def row_element(row, grid, row_above, is_last):
    """`row_above` is None for the first row of a table."""
    stops = edges(row.cells)
    made = element("tr", element("trPr", element("cantSplit"),
                                 element("trHeight", val=look.twips(row.height), hRule="exact")))
    for i, cell in enumerate(row.cells):
        top = look.EDGE
        if row_above:
            top = row.above if cell.above is None else cell.above
            if not row_above.ruled_below:
                top = look.NONE
        made.append(cell_element(
            cell, grid.index(stops[i + 1]) - grid.index(stops[i]), top,
            left=cell.left if i else look.EDGE,
            bottom=look.EDGE if is_last else cell.below,
            right=look.EDGE if i == len(row.cells) - 1 else look.NONE))
    return made


def table_element(rows):
    """The columns of the file are all edges of all rows; a cell spans as many as
    it needs, and still counts as one cell."""
    grid = sorted({stop for row in rows for stop in edges(row.cells)})
    width = look.units(look.ACROSS)
    if any(edges(row.cells)[-1] != width for row in rows):
        raise ValueError("a row is not as wide as the sheet")
    return element(
        "tbl",
        element("tblPr",
                element("tblW", w=width, type="dxa"),
                element("tblInd", w=0, type="dxa"),
                element("tblLayout", type="fixed"),
                # Insets are paragraph indents: a cell's own margins at the top
                # would widen those of the whole row in some word processors.
                element("tblCellMar", *(element(side, w=0, type="dxa")
                                        for side in ("top", "left", "bottom", "right")))),
        element("tblGrid", *(element("gridCol", w=right - left)
                             for left, right in zip(grid, grid[1:]))),
        *(row_element(row, grid, rows[i - 1] if i else None, i == len(rows) - 1)
          for i, row in enumerate(rows)))


# --- The whole sheet -------------------------------------------------------

def height(lines):
    """Twips that a sheet's lines take from the top margin down."""
    return sum(look.twips(line.height) if isinstance(line, Row)
               else look.twips(line.style.before + line.style.after)
               + look.twips(line.line or line.style.line)
               for line in lines)


def section_element():
    """The section begins a new page: a sheet is joined to the one before it as
    it stands, and nothing else parts the two."""
    return element(
        "sectPr",
        element("type", val="nextPage"),
        element("pgSz", w=look.SHEET_WIDTH, h=look.SHEET_HEIGHT),
        element("pgMar", top=look.MARGIN_TOP, right=look.MARGIN_SIDE, bottom=look.MARGIN_TOP,
                left=look.MARGIN_SIDE, header=0, footer=0, gutter=0))


def document_element(lines):
    if height(lines) > look.FULLEST:
        raise ValueError("a sheet of %d twips does not fit its page" % height(lines))
    body = element("body")
    for is_table, group in groupby(lines, lambda line: isinstance(line, Row)):
        if is_table:
            body.append(table_element(list(group)))
        else:
            body.extend(paragraph_element(line) for line in group)
    body.append(section_element())
    return element("document", body)
