#!/usr/bin/env python3
"""Finds types of the same name in two files: type_names.py FILE...

Two different types of the same name in one program are an error that no compiler has to report. The linker's check
covers the programs; this one covers the tests too. Types used in only one .cpp file belong in an unnamed namespace.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "cmake"))
from unity_groups import code_of  # noqa: E402

TYPE = re.compile(r"(?:^|\s)(?:class|struct|union|enum(?: class)?)\s+(\w+)(?:\s+final)?\s*(?::[^:].*)?$", re.DOTALL)


def types_of(code):
    """The types that a file defines with external linkage, with their namespaces."""
    blocks, begin = [], 0
    for match in re.finditer(r"[{};]", code):
        declaration = code[begin:match.start()].strip()
        begin = match.end()
        if match[0] == "{":
            space = re.search(r"\bnamespace\s*([\w:]*)$", declaration)
            found = TYPE.search(declaration)
            if space:
                blocks.append(space[1])
            else:
                if found and "" not in blocks and None not in blocks and "(" not in declaration:
                    yield "::".join(blocks + [found[1]])
                blocks.append(None)
        elif match[0] == "}" and blocks:
            blocks.pop()


def main(files):
    places = defaultdict(list)
    for file in files:
        for name in types_of(code_of(file)[0]):
            places[name].append(file)
    doubled = {name: where for name, where in places.items() if len(where) > 1}
    for name, where in sorted(doubled.items()):
        print(f"{name} is a type in {' and in '.join(where)}")
    return 1 if doubled else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
