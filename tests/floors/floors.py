"""Reads the includes of the program's code: the floor of each file, includes of higher floors, and include cycles."""
import re
from pathlib import Path

# From the bottom up. A file includes only its own floor and the floors listed for it.
FLOORS = {
    "base": (),
    "formdata": ("base",),
    "costing": ("base", "formdata"),
    "wordexport/document": ("base",),
    "wordexport": ("base", "formdata", "costing", "wordexport/document"),
    "commands": ("base", "formdata", "costing"),
    "controls": ("base", "formdata"),
    "preview": ("base", "formdata", "costing", "controls"),
    "editors": ("base", "formdata", "costing", "wordexport/document", "wordexport", "commands", "controls"),
    "shell": ("base", "formdata", "costing", "wordexport/document", "wordexport", "commands", "controls", "preview",
              "editors"),
    "programs/zr3tool": ("base", "formdata", "costing", "wordexport/document", "wordexport"),
    "programs/launcher": ("base",),
    "programs/velmor-zr3": ("base", "shell"),
}

INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)


def floor_of(file):
    """The floor of a file, by its folder; None outside the floors."""
    folder = file.rpartition("/")[0]
    while folder and folder not in FLOORS:
        folder = folder.rpartition("/")[0]
    return folder or None


def includes_of(root):
    """Each source file of the floors, with the files that it includes, as paths from the root."""
    root = Path(root)
    files = [path.relative_to(root).as_posix() for top in {floor.split("/")[0] for floor in FLOORS}
             for path in (root / top).rglob("*") if path.suffix in (".h", ".cpp")]
    return {file: INCLUDE.findall((root / file).read_text(encoding="utf-8")) for file in sorted(files)}


def unknown_includes(includes):
    """Quoted includes that are not files of a floor."""
    return sorted(f"{file} includes {included}" for file, those in includes.items() for included in those
                  if included not in includes and not included.endswith(".moc"))


def arrows_up(includes):
    """Includes that the file's floor does not permit, as sentences."""
    wrong = []
    for file, those in includes.items():
        own = floor_of(file)
        for included in those:
            floor = floor_of(included)
            if floor and floor != own and floor not in FLOORS[own]:
                wrong.append(f"{file} includes {included}: {own} must not know {floor}")
    return wrong


def room_of(file):
    """A header and its source count as one unit (room), as do the sources of one service for several systems."""
    return re.sub(r"_(posix|linux|windows)$", "", file.rpartition(".")[0])


def circles(includes):
    """The sets of rooms that include each other, each sorted, the longest first."""
    rooms = {}
    for file, those in includes.items():
        rooms.setdefault(room_of(file), set()).update(room_of(i) for i in those if i in includes)
    order, low, stack, found = {}, {}, [], []

    def visit(room):
        order[room] = low[room] = len(order)
        stack.append(room)
        for other in sorted(rooms.get(room, ())):
            if other not in order:
                visit(other)
                low[room] = min(low[room], low[other])
            elif other in stack:
                low[room] = min(low[room], order[other])
        if low[room] == order[room]:
            circle = []
            while not circle or circle[-1] != room:
                circle.append(stack.pop())
            if len(circle) > 1:
                found.append(sorted(circle))

    for room in sorted(rooms):
        if room not in order:
            visit(room)
    return sorted(found, key=lambda circle: (-len(circle), circle))
