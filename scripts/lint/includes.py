#!/usr/bin/env python3
"""Checks the #include lines of C++ sources: includes.py ROOT FILE...

Each kind of header has its own block, and the blocks are in the order of KINDS. A first block with a single header is
the file's own header, or the one whose functions it defines. Headers of this program are named from the root, and must
exist. clang-format sorts each block. Prints one line for each finding; the status is 1 if there are any.
"""

import re
import sys
from itertools import groupby
from pathlib import Path

LIBRARIES = ("benchmark/", "gmock/", "gtest/", "hunspell/", "pugixml.hpp", "zip.h", "zlib.h")
# In their required order.
KINDS = ["the file's own header", "a header of this program", "a header of Qt", "a header of another library",
         "a standard header", "a header of the system"]
OWN, PROGRAM, QT, LIBRARY, STANDARD, SYSTEM = range(len(KINDS))

INCLUDE = re.compile(r'#\s*include\s*(?P<mark>["<])(?P<name>[^">]+)[">]')


def kind_of(mark, name):
    if mark == '"':
        return PROGRAM
    if re.match(r"Q\w+$|Qt\w*/", name):
        return QT
    if name.startswith(LIBRARIES):
        return LIBRARY
    return SYSTEM if name.endswith(".h") else STANDARD


def blocks_of(text):
    """The blocks of includes at the head of a file: lists of line number, delimiter and name. A preprocessor condition
    ends them.
    """
    blocks, previous = [], None
    for number, line in enumerate(text.splitlines(), 1):
        found = INCLUDE.match(line)
        if found:
            if previous != number - 1:
                blocks.append([])
            blocks[-1].append((number, found["mark"], found["name"]))
            previous = number
        elif re.match(r"#\s*if|namespace|class|struct|extern", line):
            break
    return blocks


def findings(root, file):
    """Line number and message of each finding."""
    text = (root / file).read_text(encoding="utf-8")
    own = str(Path(file).with_suffix(".h"))
    blocks = blocks_of(text)
    seen, last = set(), -1
    for place, block in enumerate(blocks):
        kinds = [kind_of(mark, name) for _, mark, name in block]
        if place == 0 and len(block) == 1 and kinds == [PROGRAM] and file.endswith(".cpp"):
            kinds = [OWN]
        for (number, mark, name), kind in zip(block, kinds):
            if name in seen:
                yield number, f"{name} is included twice"
            seen.add(name)
            if mark == '"' and not name.endswith(".moc") and not (root / name).is_file():
                yield number, f"there is no {name} below the root"
            if name == own and file.endswith(".cpp") and kind != OWN:
                yield number, f"{name} is the file's own header: it stands first, in a block of its own"
        if len(set(kinds)) > 1:
            yield block[0][0], "the block mixes " + " and ".join(KINDS[kind] for kind, _ in groupby(sorted(kinds)))
        elif kinds[0] <= last:
            yield block[0][0], f"{KINDS[kinds[0]]} comes after {KINDS[last]}"
        last = max(last, *kinds)


# For rules about several files, such as which folder may include which. Each takes the root and the files, and yields a
# file, a line number and a message.
RULES_OF_THE_TREE = []


def main(root, files):
    count = 0
    for file in files:
        for number, message in findings(root, file):
            print(f"{file}:{number}: {message}")
            count += 1
    for rule in RULES_OF_THE_TREE:
        for file, number, message in rule(root, files):
            print(f"{file}:{number}: {message}")
            count += 1
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]), sys.argv[2:]))
