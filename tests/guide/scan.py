"""The program's messages, read from its sources: every text passed to one of the functions that show texts (the doors).

A text is in the call itself, or in a function or a constant named in the call. A call for which no text is found in one
of these ways is an error, so that no text escapes the scan.
"""

import re
from dataclasses import dataclass, field

FOLDERS = ["base", "formdata", "costing", "commands", "wordexport", "controls", "preview", "editors", "shell", "programs"]

# Functions that show a text to the user or pass it on to one that does, and the indices of their text arguments.
DOORS = {
    "mdCustomMessages": [0, 1], "customMessage": [0, 1], "systemMessage": [0, 1], "mdSystemFailure": [0, 1],
    "trapped": [0, 1], "logged": [1], "mdDocumentError": [0], "GetFolder": [0], "mdSetProgress": [2], "tell": [0, 1],
    "tellLine": [0],
}
# Has words of its own only if a text is passed.
ERROR = "clsRunTimeError"

# Calls that pass on texts from elsewhere, each of which is scanned where it is created.
HANDS_ON = {
    "base/clsUserInterface.h": "*", "base/clsQuietUserInterface.h": "*", "shell/clsWindowUserInterface.h": "*",
    "shell/clsWindowUserInterface.cpp": "*", "base/mdCustomMessages.h": "*", "base/mdGetFolder.h": "*",
    "base/mdSetProgress.h": "*", "base/mdSetProgress.cpp": "*", "base/clsConsoleUserInterface.h": "*",
    "base/clsConsoleUserInterface.cpp": "*", "base/mdRegistry.cpp": "mdSystemFailure",
    "programs/zr3tool/clsClaimWork.cpp": "tell", "programs/zr3tool/mdDiff.cpp": "tell",
    "base/mdTextDocumentHandling.cpp": "mdSystemFailure", "wordexport/document/mdDocumentError.h": ERROR,
    "base/clsRunTimeError.h": ERROR, "controls/mdSpellingMenu.cpp": "tell",
    "costing/mdTotalsReport.cpp": "tell", "wordexport/mdForecast.cpp": "mdCustomMessages",
}

LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
WORD = re.compile(r"[A-Za-z]{2}")
NO_TEXT = re.compile(r"path|folder|file|document$|^(QStringLiteral|QLatin1String|QString|GetResourceData)$", re.IGNORECASE)


@dataclass
class Call:
    place: str
    door: str
    pieces: list = field(default_factory=list)  # its words, split at placeholders and line ends


def without_comments(code):
    def blank(match):
        return match[0] if match[0].startswith('"') else re.sub(r"[^\n]", " ", match[0])
    return re.sub(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*|/\*.*?\*/', blank, code, flags=re.DOTALL)


def literals(code):
    """The string literals of a piece of code; adjacent literals are joined."""
    code = re.sub(r'(?<!\\)"\s+"', "", code)
    return [text.replace(r"\r", "\r").replace(r"\n", "\n").replace(r"\"", '"') for text in LITERAL.findall(code)]


def pieces(text):
    return [" ".join(piece.split()) for piece in re.split(r"%\d|%n|[\r\n]+|'\d+'", text) if WORD.search(piece)]


def bracketed(code, start):
    """The text between the bracket at start and the matching one."""
    depth, position = 0, start
    while position < len(code):
        quoted = re.compile(r'"(?:[^"\\\n]|\\.)*"').match(code, position)
        if quoted:
            position = quoted.end()
            continue
        depth += code[position] in "([{"
        depth -= code[position] in ")]}"
        if depth == 0:
            return code[start + 1:position]
        position += 1
    raise ValueError("a bracket without its partner")


def arguments(code):
    """The arguments of a call, split at its own commas."""
    parts, depth, last, position = [], 0, 0, 0
    while position < len(code):
        quoted = re.compile(r'"(?:[^"\\\n]|\\.)*"').match(code, position)
        if quoted:
            position = quoted.end()
            continue
        depth += code[position] in "([{"
        depth -= code[position] in ")]}"
        if code[position] == "," and depth == 0:
            parts.append(code[last:position])
            last = position + 1
        position += 1
    return parts + [code[last:]]


class Sources:
    """The program's sources, without their comments."""

    def __init__(self, root):
        self.files = {path.relative_to(root).as_posix(): without_comments(path.read_text(encoding="utf-8"))
                      for folder in FOLDERS for path in sorted((root / folder).rglob("*"))
                      if path.suffix in (".cpp", ".h")}
        self.all = "\n".join(self.files.values())
        # The functions that return a text, by name.
        self.makers = {match[1]: bracketed(self.all, match.end())
                       for match in re.finditer(r"^QString (?:\w+::)?(\w+)\([^;{}]*\)\s*(?:const\s*)?(?=\{)", self.all,
                                                flags=re.MULTILINE)}

    def body(self, name):
        """The body of the function of that name; empty if there is none."""
        return self.makers.get(name, "")

    def value(self, file, name):
        """The initial value of a text constant in its file."""
        match = re.search(rf"\bQString {name}\s*=([^;]*);", self.files[file])
        return match[1] if match else ""

    def words(self, file, code, known=()):
        """The literals of an expression, and those of the functions and constants that it names."""
        found = [text for text in literals(code) if WORD.search(text)]
        for name, called in re.findall(r"\b([A-Za-z_]\w*)\b\s*(\()?", re.sub(LITERAL, " ", code)):
            if name in known or name in DOORS or NO_TEXT.search(name):
                continue
            inner = self.body(name) if called else self.value(file, name)
            if inner:
                found += self.words(file, inner, (*known, name))
        return found

    def calls(self):
        names = "|".join([*DOORS, ERROR])
        for file, code in self.files.items():
            for match in re.finditer(rf"\b({names})\s*(?:<[^<>()]*>)?\(", code):
                door, handed_on = match[1], HANDS_ON.get(file)
                if handed_on == "*" or handed_on == door or door == "tell" and "zr3tool" not in file:
                    continue
                inside = bracketed(code, match.end() - 1)
                # Definitions, declarations and copies of an error are not calls.
                if re.match(r"\s*(const|int|QString)\b", inside):
                    continue
                place = f"{file}:{code.count(chr(10), 0, match.start()) + 1}"
                yield self.call(file, place, door, arguments(inside))

    def call(self, file, place, door, given):
        made = Call(place, door)
        texts = [given[i] for i in DOORS.get(door, [1]) if i < len(given)]
        for text in texts:
            # The name of a resource is not a text for the user.
            text = re.sub(r"GetResourceData\([^()]*(?:\([^()]*\)[^()]*)*\)", " ", text)
            for word in self.words(file, text):
                made.pieces += pieces(word)
        return made
