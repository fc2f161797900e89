#!/usr/bin/env python3
"""Runs clang-tidy over sources: tidy.py BUILD_FOLDER FILE...

The checks are those of .clang-tidy. Several files are checked at a time, as they are compiled, for at most LONGEST
seconds: the rest are named. A header is checked with the source of its name, or another that includes it. The status is
1 if there is a finding.
"""

import json
import os
import re
import shlex
import subprocess
import sys
import time
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "cmake"))
from unity_groups import File, groups  # noqa: E402

ROOT = Path(__file__).resolve().parents[2]
LONGEST = 240  # seconds
TOGETHER = 6  # files; with more, one of two processors would have to wait for the other

# Options only for the build's compiler, including its warnings.
NOT_FOR_TIDY = re.compile(r"-(W.*|fpch-preprocess|flto.*|fno-fat-lto-objects)$")


def options_of(command):
    """The options of a compilation, without its compiler, its files and its precompiled header."""
    words = iter(shlex.split(command))
    for word in words:
        if word == "-include":
            header = next(words)
            if "cmake_pch" not in header:
                yield from (word, header)
        elif word == "-isystem":
            yield from (word, next(words))
        elif word in ("-o", "-c", "-MT", "-MF"):
            next(words)
        elif word.startswith("-") and word != "-MD" and not NOT_FOR_TIDY.match(word):
            yield word


def compilations(build):
    """The options with which each source is compiled."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = Path(entry["file"])
        united = re.findall(r'^#include "(.+)"$', file.read_text(), re.MULTILINE) if "Unity" in file.parts else [file]
        options = tuple(options_of(entry["command"][entry["command"].index(" -"):]))
        for source in map(Path, united):
            if source.is_relative_to(ROOT) and not source.is_relative_to(build):
                found.setdefault(str(source.relative_to(ROOT)), options)
    return found


def reader_of(header, sources, headers):
    """A compiled source that reads a header: the one of its name, or one that includes it directly or indirectly."""
    own = str(Path(header).with_suffix(".cpp"))
    if own in sources:
        return own
    asked, seen = [header], {header}
    for name in asked:
        line = f'#include "{name}"'
        for file in [*sources, *headers]:
            if file not in seen and line in (ROOT / file).read_text(encoding="utf-8"):
                if file in sources:
                    return file
                seen.add(file)
                asked.append(file)
    return None


def tidy(files, options, changed, folder, deadline):
    """The findings in some files, or None if time ran out."""
    left = deadline - time.monotonic()
    if left <= 0:
        return None
    together = folder / (re.sub(r"\W", "_", files[0]) + ".cpp")
    together.write_text("".join(f'#include "{ROOT / file}"\n' for file in files))
    looked_at = "|".join(re.escape(str(ROOT / file)) for file in changed)
    try:
        made = subprocess.run(["clang-tidy-14", "--quiet", f"--header-filter=^({looked_at})$", str(together), "--",
                               *options],
                              cwd=ROOT, capture_output=True, text=True, timeout=left)
    except subprocess.TimeoutExpired:
        return None
    found = re.sub(rf"^{re.escape(str(ROOT))}/", "", made.stdout, flags=re.MULTILINE)
    return found if made.returncode else ""


def main(build, changed):
    sources = compilations(build)
    headers = subprocess.check_output(["git", "ls-files", "*.h"], cwd=ROOT, text=True).splitlines()
    readers = {}
    for file in changed:
        readers[file] = file if file in sources else reader_of(file, sources, headers) if file.endswith(".h") else None
        if not readers[file]:
            print(f"  {file} is compiled nowhere here, and not looked at")
    by_options = defaultdict(list)
    for file in sorted({reader for reader in readers.values() if reader}):
        by_options[sources[file]].append(file)
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    deadline = time.monotonic() + LONGEST
    jobs, findings, late = [], False, []
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for options, files in by_options.items():
            for group in groups([File(str(ROOT / file)) for file in files], TOGETHER):
                names = [str(Path(file.path).relative_to(ROOT)) for file in group]
                jobs.append((names, pool.submit(tidy, names, options, changed, folder, deadline)))
        for names, job in jobs:
            found = job.result()
            if found is None:
                late += names
            elif found:
                findings = True
                print(found.rstrip())
    if late:
        print(f"  After {LONGEST} seconds these are left, and not looked at: {' '.join(late)}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve(), sys.argv[2:]))
