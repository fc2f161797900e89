#!/usr/bin/env python3
"""Counts the results of test runs and ends with one line: "N passed, N failed". Skipped tests are listed before it.

    test_summary.py RESULTS.xml...

The results are CTest's own files. Every skipped test is named with its reason. The exit status is 0 only if every file
exists, tests passed, and none failed.
"""

import re
import sys
from collections import Counter
from pathlib import Path
from xml.etree import ElementTree


def ctest_says(case):
    skipped = case.find("skipped")
    return (skipped.get("message") if skipped is not None else "") or ""


def reason(case):
    """Why a test was skipped: the reason it printed, otherwise CTest's."""
    if case.get("status") == "disabled":
        return "disabled"
    output = case.findtext("system-out") or ""
    told = re.search(r": Skipped\n(.+)", output) or re.search(r"^skipped: *(.+)", output, re.IGNORECASE | re.MULTILINE)
    return told.group(1).strip() if told else ctest_says(case) or "no reason given"


def kind(case):
    if case.get("status") == "run" and case.find("failure") is None:
        return "passed"
    # CTest also calls a test "not run" if its program is missing: that is a failure.
    if case.get("status") == "disabled" or case.get("status") == "notrun" and ctest_says(case).startswith("SKIP_"):
        return "skipped"
    return "failed"


def main(paths):
    counts = Counter()
    complete = bool(paths)
    for path in map(Path, paths):
        if not path.is_file():
            print(f"There are no results in {path}: its tests did not run.")
            complete = False
            continue
        for case in ElementTree.parse(path).getroot().iter("testcase"):
            outcome = kind(case)
            counts[outcome] += 1
            if outcome == "failed":
                print(f"Failed: {case.get('name')} ({path.parent.name})")
            elif outcome == "skipped":
                print(f"Skipped: {case.get('name')} ({path.parent.name}): {reason(case)}")
    if counts["skipped"]:
        print(f"{counts['skipped']} skipped, for the reasons above")
    print(f"{counts['passed']} passed, {counts['failed']} failed")
    return 0 if complete and counts["passed"] and not counts["failed"] else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
