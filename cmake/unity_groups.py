#!/usr/bin/env python3
"""Groups the source files of a target that can be compiled together: unity_groups.py SIZE FILE...

Prints one line for each group, with its files separated by semicolons. Files share a group, of at most SIZE files, only
if no file-local name of one occurs in another, so that compiling them together makes no difference. The code is
scanned, not parsed; a name that is missed leads to a compiler error, not to a different program.
"""

import re
import sys

NOT_CODE = re.compile(
    r'R"(?P<mark>\w*)\(.*?\)(?P=mark)"' r"|//[^\n]*|/\*.*?\*/" r'|"(?:\\.|[^"\\\n])*"' r"|(?<!\w)'(?:\\.|[^'\\\n])+'", re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#[ \t]*(?P<kind>\w+)(?:[ \t]+(?P<word>\w+))?(?:[^\n]*\\\n)*[^\n]*$", re.MULTILINE)
# A member with the same name as a file-local one doesn't count as a use of it.
MEMBER = re.compile(r"(?:\.|->|::)\s*[A-Za-z_]\w*")
NAME = re.compile(r"[A-Za-z_]\w*")


def declared(declaration):
    """The name that a file-level declaration introduces, if any."""
    previous = None
    while previous != declaration:
        previous, declaration = declaration, re.sub(r"<[^<>]*>", "", declaration)
    declaration = re.sub(r"\[\[.*?\]\]|^\s*(template|static|inline|constexpr)\b", "", declaration).strip()
    found = re.match(r"(?:class|struct|union|enum(?: class)?|using|namespace)\s+(\w+)", declaration) \
        or re.search(r"(\w+)\s*(?:[(\[=]|$)", declaration)
    # A name in capitals is a macro, such as that of a test.
    return found[1] if found and not found[1].isupper() else None


def kept_names(code):
    """The names with internal linkage in a file: in unnamed namespaces, or static."""
    names, blocks, begin, parentheses = set(), [], 0, 0
    for match in re.finditer(r"[{};()]", code):
        mark = match[0]
        if mark in "()":
            parentheses += 1 if mark == "(" else -1
            continue
        if parentheses == 0:
            declaration = code[begin:match.start()]
            if all(block is None for block in blocks) and (blocks or declaration.lstrip().startswith("static ")):
                names.add(declared(declaration))
            begin = match.end()
        if mark == "{":
            unnamed = parentheses == 0 and re.search(r"\bnamespace\s*$", code[:match.start()][-40:])
            blocks.append(None if unnamed else parentheses)
            parentheses = 0
        elif mark == "}" and blocks:
            parentheses = blocks.pop() or 0
            if parentheses == 0:
                begin = match.end()
    return names - {None}


def code_of(path):
    """A source without its comments, texts and directives; and the macros that it defines."""
    with open(path, encoding="utf-8") as source:
        code = NOT_CODE.sub(" ", source.read())
    macros = {match["word"] for match in DIRECTIVE.finditer(code) if match["kind"] == "define"}
    return DIRECTIVE.sub("", code), macros


class File:
    def __init__(self, path):
        self.path = path
        code, macros = code_of(path)
        self.kept = kept_names(code) | macros
        self.used = set(NAME.findall(MEMBER.sub(" ", code))) | self.kept
        # A type alias can be declared twice.
        self.aliases = dict(re.findall(r"^using (\w+) = ([^;]+);", code, re.MULTILINE))
        # These introduce names that must not be visible in other files.
        self.brings = set(re.findall(r"^using (?:enum|namespace) [^;]+;", code, re.MULTILINE))

    def agrees_with(self, other):
        same = {name for name, meaning in self.aliases.items() if other.aliases.get(name) == meaning}
        return self.brings == other.brings and not (self.kept & other.used | other.kept & self.used) - same


def groups(files, size):
    made = []
    for file in files:
        for group in made:
            if len(group) < size and all(file.agrees_with(other) for other in group):
                group.append(file)
                break
        else:
            made.append([file])
    return made


if __name__ == "__main__":
    for together in groups([File(path) for path in sys.argv[2:]], int(sys.argv[1])):
        print(";".join(file.path for file in together))
