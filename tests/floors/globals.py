"""Finds the mutable globals and function statics of the floors: what the libraries keep in writable memory, less what
the sources define const."""
import re
import subprocess
from pathlib import Path

# What the compiler and the toolkit make: guards of function statics, the types of the toolkit's values, references of
# the error handling, and what the standard library's headers bring.
MADE = re.compile(
    r"^(guard variable|vtable|typeinfo|TLS (init|wrapper) function|DW\.ref\.|QtPrivate::|QMetaTypeId|std::)")
# What the toolkit's resource compiler writes into the build, where the sources do not define it.
WRITTEN_BY_TOOLS = {"dummy"}

SYMBOL = re.compile(r"^[0-9a-f]+ (.{7}) (\.\S+)\s+[0-9a-f]+ (?:\.(?:hidden|protected|internal) )?(.+)$")
WRITABLE = re.compile(r"^\.(bss|tbss|tdata|data(?!\.rel\.ro))")
ANONYMOUS = "(anonymous namespace)::"


def writable_objects(objdump, files):
    """Each object in writable memory as (demangled name, whether it stems from a header)."""
    text = subprocess.run([objdump, "-t", "-C", *files], capture_output=True, text=True, check=True).stdout
    found = set()
    for line in text.splitlines():
        symbol = SYMBOL.match(line)
        if not symbol or not WRITABLE.match(symbol[2]):
            continue
        # What is local to a thread is not marked as an object.
        is_object = symbol[1][6] == "O" or (symbol[2].startswith(".t") and "d" not in symbol[1])
        if is_object and not MADE.match(symbol[3]):
            found.add((symbol[3], symbol[1][0] == "u" or symbol[1][1] == "w"))
    return sorted(found)


def without_brackets(text):
    """A text without what stands in brackets of any kind."""
    depth, result = 0, ""
    for letter in text:
        if letter in "([{<":
            depth += 1
        elif letter in ")]}>":
            depth -= 1
        elif depth == 0:
            result += letter
    return result


def short_name(symbol):
    """A name without its anonymous namespace, its arguments and those of its templates."""
    parts = without_brackets(symbol.replace(ANONYMOUS, "")).replace(" const", "").split("::")
    return "::".join(part for part in parts if part)


def is_const(declared):
    """Whether what stands before a name makes the object itself const: a pointer to const is none."""
    words = without_brackets(declared)
    if re.search(r"\bconstexpr\b", words):
        return True
    return bool(re.search(r"\bconst\b", words.rpartition("*")[2] if "*" in words else words))


def definitions(symbol, texts):
    """What stands before the name at each place where it may be defined: a line at the left edge, or a static one. What
    belongs to a function or a class is looked for where that is named."""
    *around, name = [part for part in short_name(symbol).split("::") if part != "operator"]
    in_function = "(" in symbol.replace(ANONYMOUS, "")
    declared, dimensions, begins = r"[^\n/#=]*?[\s*&>}:]", r"(?:\[[^\]\n]*\])*", r"(?:[={;]|$|\(.*;$)"
    line = re.compile(rf"^([ \t]*)({declared})\b{re.escape(name)}[ \t]*{dimensions}[ \t]*{begins}", re.MULTILINE)
    found = []
    for text in texts:
        if around and not re.search(rf"\b{re.escape(around[-1])}\b", text):
            continue
        for match in line.finditer(text):
            words = without_brackets(match[2]).split()
            if not words or words[0] in ("extern", "return", "using", "throw", "case", "delete", "else", "namespace"):
                continue
            is_static = any(word in ("static", "thread_local") for word in words)
            if is_static or (not match[1] and not in_function):
                found.append(match[2])
    return found


class Floors:
    """The sources of each floor, which do not reach into another floor's folder."""

    def __init__(self, root, folders):
        root = Path(root)
        self.texts = {}
        for folder in folders:
            inner = [root / other for other in folders if other.startswith(folder + "/")]
            self.texts[folder] = {path: path.read_text(encoding="utf-8") for path in sorted((root / folder).rglob("*"))
                                  if path.suffix in (".h", ".cpp") and not any(i in path.parents for i in inner)}

    def of_header(self, symbol):
        """The floor whose header defines what several libraries have; nothing where none does."""
        for folder, texts in self.texts.items():
            if definitions(symbol, [text for path, text in texts.items() if path.suffix == ".h"]):
                return folder
        return None


def mutable_globals(objdump, root, libraries):
    """The names of each floor's mutable objects, by the floor. `libraries` has the files of each floor's code."""
    floors = Floors(root, list(libraries))
    result = {folder: set() for folder in libraries}
    for folder, files in libraries.items():
        for symbol, stems_from_header in writable_objects(objdump, files):
            owner = (floors.of_header(symbol) if stems_from_header else None) or folder
            found = definitions(symbol, floors.texts[owner].values())
            if not found and short_name(symbol) in WRITTEN_BY_TOOLS:
                continue
            # One that is not found counts as mutable, so that no way of writing it hides it.
            if not found or not all(is_const(declared) for declared in found):
                result[owner].add(short_name(symbol))
    return result


def faults(found, listed):
    """A sentence on each mutable object without a row, on each row without its object, and on each without a reason."""
    wrong = []
    for folder in sorted(found.keys() | listed.keys()):
        names, rows = found.get(folder, set()), listed.get(folder, {})
        wrong += [f"{folder}: {name} can change, and globals.toml has no reason for it"
                  for name in sorted(names - rows.keys())]
        wrong += [f"{folder}: {name} is in globals.toml and is no more" for name in sorted(rows.keys() - names)]
        wrong += [f"{folder}: {name} has no reason in globals.toml"
                  for name, why in sorted(rows.items()) if not why.strip()]
    return wrong
