"""A run through many claims that is interrupted and resumed, compared with one that is not.

    many.py [--claims N]

The claims are small, in folders of twenty with the same names, and a few of them are broken. One run exports them all;
a second one is stopped twice, resumed with --newer, and must have made the same documents, byte for byte. After each
stop there are only complete documents. If GNU parallel is installed, the guide's recipe must give the same result.
Prints claims per second and the largest memory of a process. ZR3_TOOL is the headless program, ZR3_SAMPLES the folder
of the samples.
"""

import argparse
import hashlib
import json
import os
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

TOOL = os.environ["ZR3_TOOL"]
SAMPLE = Path(os.environ["ZR3_SAMPLES"]) / "housing-typical.zr3"
IN_A_FOLDER = 20
EVERY_BROKEN = 50
TO_END = 1.0            # seconds in which a run must end after the signal


def made_claims(folder, count):
    """Claims of one page, each with its name in it."""
    text = re.sub(r"<(includepage(?!1>)\d+)>[^<]*<", r"<\1>False<", SAMPLE.read_text("latin-1"))
    for number in range(count):
        path = folder / f"{number // IN_A_FOLDER:05}" / f"client {number % IN_A_FOLDER}.zr3"
        path.parent.mkdir(exist_ok=True)
        broken = number % EVERY_BROKEN == EVERY_BROKEN - 1
        path.write_text("no claim" if broken else
                        re.sub("(?<=<surname>)[^<]*", f"Client{number}", text), "latin-1")
    return sum(1 for number in range(count) if number % EVERY_BROKEN == EVERY_BROKEN - 1)


def sums(folder):
    """The checksums of the files in a folder, by name; every file must be a document."""
    found = {}
    for path in folder.rglob("*"):
        if path.is_file() or path.suffix != "":
            assert path.suffix == ".doc" and path.is_file(), f"{path} is left behind"
            found[str(path.relative_to(folder))] = hashlib.sha256(path.read_bytes()).hexdigest()
        elif path.name.startswith(("~", ".")):
            raise AssertionError(f"{path} is left behind")
    return found


def export(claims, out, *more):
    return [TOOL, "export", "--jsonl", *more, claims, out]


def lines_of(text):
    return [json.loads(line) for line in text.splitlines()]


def broken_off(command, out, after, how):
    """Starts a run and sends a signal once there are that many documents."""
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as run:
        while run.poll() is None and sum(1 for _ in os.scandir(out)) < after:
            time.sleep(0.01)
        begun = time.monotonic()
        run.send_signal(how)
        status = run.wait()
    took = time.monotonic() - begun
    assert status == -how, f"the run ended with {status} when it was asked to end"
    assert took <= TO_END, f"the run took {took:.1f} s to end"
    return took


def compare(folder, count):
    claims, whole, resumed = (folder / name for name in ("claims", "whole", "resumed"))
    for path in (claims, whole, resumed):
        path.mkdir()
    broken = made_claims(claims, count)
    begun = time.monotonic()
    run = subprocess.run(export(claims, whole), capture_output=True, text=True)
    seconds = time.monotonic() - begun
    memory = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024
    told = lines_of(run.stdout)
    assert run.returncode == 2 and len(told) == count, (run.returncode, len(told), run.stderr[:500])
    assert sum("Error" in line for line in told) == broken == run.stderr.count("\n"), run.stderr[:500]
    documents = sums(whole)
    assert len(documents) == count - broken, len(documents)
    assert len(set(documents.values())) == len(documents), "two claims came to one document"
    print(f"{count} claims exported in {seconds:.1f} s: {count / seconds:.0f} a second, {memory:.0f} MB at most")

    ends = [broken_off(export(claims, resumed, "--newer"), resumed, count // 4, signal.SIGINT)]
    first = sums(resumed)
    ends.append(broken_off(export(claims, resumed, "--newer"), resumed, count // 2, signal.SIGTERM))
    second = sums(resumed)
    assert 0 < len(first) < len(second) < len(documents), (len(first), len(second))
    run = subprocess.run(export(claims, resumed, "--newer"), capture_output=True, text=True)
    assert run.returncode == 2, run.stderr[:500]
    again = lines_of(run.stdout)
    passed = [line.get("PassedBy", False) for line in again]
    assert sum(passed) == len(second), (sum(passed), len(second))
    assert sums(resumed) == documents, "the run that was taken up came to other documents"
    assert [line.get("Document", "").replace(str(resumed), str(whole)) for line in again] == [
        line.get("Document", "") for line in told]
    print(f"broken off at {len(first)} and {len(second)} documents, within {max(ends):.2f} s; taken up, the same came out")
    return claims


def list_all(claims, count):
    begun = time.monotonic()
    run = subprocess.run([TOOL, "list", "--csv", claims], capture_output=True)
    seconds = time.monotonic() - begun
    assert run.stdout.count(b"\r\n") == count + 1, run.stdout[:200]
    print(f"listed in {seconds:.1f} s: {count / seconds:.0f} a second")


def by_engine(folder, claims):
    """The guide's recipe, on this machine only, compared with runs without GNU parallel."""
    if shutil.which("parallel") is None:
        print("there is no GNU parallel on this machine: its recipe was not tried")
        return
    slices = sorted(path.name for path in claims.iterdir())
    recipe = f"mkdir -p engine/{{/}} && {TOOL} export --jsonl --newer --force {{}} engine/{{/}}"
    words = ["parallel", "--will-cite", "--sshlogin", "2/:", "--workdir", folder, "--joblog", "run.log", recipe]
    paths = "".join(f"claims/{name}\n" for name in slices)
    for expected in (False, True):  # the second time everything is skipped
        run = subprocess.run(words, input=paths, cwd=folder, capture_output=True, text=True)
        told = [line for line in lines_of(run.stdout) if "Error" not in line]
        assert told and all(line.get("PassedBy", False) == expected for line in told), run.stderr[:500]
    for name in slices:
        (folder / "alone" / name).mkdir(parents=True)
        subprocess.run(export(claims / name, folder / "alone" / name), capture_output=True)
    assert sums(folder / "engine") == sums(folder / "alone"), "the engine's documents are others"
    print(f"GNU parallel: {len(slices)} slices, the same documents")


def main():
    options = argparse.ArgumentParser()
    options.add_argument("--claims", type=int, default=120)
    count = options.parse_args().claims
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        claims = compare(folder, count)
        list_all(claims, count)
        few = sorted(claims.iterdir())[3:]
        for path in few[20:]:
            shutil.rmtree(path)
        by_engine(folder, claims)
    return 0


if __name__ == "__main__":
    sys.exit(main())
