#!/usr/bin/env python3
"""Runs the measurements and prints them as a table of ratios beside their bounds.

    report.py BUILD_FOLDER

Everything is measured in one run on one machine: pieces by the processor time that they take, whole processes by the
clock.  A ratio says little about the machine, so that the bounds hold on a slow one as well as on a fast one; the times
beside the ratios are for whoever looks for their cause.  The exit status is 0 when every bound that was measured is met.
"""

import json
import os
import platform
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
# Claims of many sheets, by their form types.
SAMPLES = {"Claim1": ROOT / "tests" / "samples" / "many-sheets", "Claim1A": ROOT / "tests" / "samples" / "many-sheets-1a"}
ITEMS = 10000
PREVIEW_ITEMS = 2000
SCREEN_ITEMS = 2000
FORECAST_ITEMS = 2000
FORECAST_TIME = 500
# What comes within a tenth of a second of a key seems to come at once; beyond it the user notices that there is a wait.
AT_ONCE = 100
REPETITIONS = 9
PROCESS_RUNS = 15
WRITER_RUNS = 3
SPLASH = 750

rows = []
notes = []


def row(work, measured, bound, at_most=True, detail=""):
    """One line of the table; what was measured is None where it could not be."""
    if measured is None:
        rows.append((work, "-", f"{bound:g}", f"not measured: {detail}", True))
        return
    met = measured <= bound if at_most else measured >= bound
    away = abs(measured - bound) / bound * 100
    verdict = f"{'met' if met else 'MISSED'} by {away:.0f} %"
    rows.append((work, f"{measured:.2f}", f"{'at most' if at_most else 'at least'} {bound:g}", f"{verdict}; {detail}", met))


def pieces(program):
    """The medians of the benchmark program: name to (processor time, real time) in milliseconds, and counters."""
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        subprocess.run(
            [program, f"--benchmark_repetitions={REPETITIONS}", "--benchmark_enable_random_interleaving=true",
             "--benchmark_min_time=0.1", "--benchmark_report_aggregates_only=true",
             f"--benchmark_out={out.name}", "--benchmark_out_format=json"],
            check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        runs = json.load(out)["benchmarks"]
    failed = [run["run_name"] + ": " + run["error_message"] for run in runs if run.get("error_occurred")]
    if failed:
        sys.exit("\n".join(failed))
    return {run["run_name"]: run for run in runs if run.get("aggregate_name") == "median"}


def claim_rows(medians):
    for name, title in (("current", f"Open and serialise {ITEMS:,} items"),
                        ("older", "The same, of an older version: migrated")):
        ours = medians[f"openAndSerialise/{name}/{ITEMS}"]
        floor = medians[f"parseAndSerialise/{name}/{ITEMS}"]["cpu_time"]
        row(title, ours["cpu_time"] / floor, 4,
            detail=f"{ours['cpu_time']:.1f} ms against {floor:.1f} ms, file of {ours['file'] / 1e6:.1f} MB")
    once = medians[f"totalsAndLists/{ITEMS}"]["cpu_time"]
    twice = medians[f"totalsAndLists/{2 * ITEMS}"]["cpu_time"]
    row(f"All totals and both lists, {2 * ITEMS:,} to {ITEMS:,}", twice / once, 2.4,
        detail=f"{twice:.0f} ms against {once:.0f} ms")


def export_row(medians, form):
    ours = medians[f"exportClaim/{form}/real_time"]
    floor = medians[f"exportFloor/{form}/real_time"]
    row(f"Export of {ours['sheets']:.0f} sheets of {form} to the floor", ours["cpu_time"] / floor["cpu_time"], 4,
        detail=f"{ours['cpu_time']:.0f} ms against {floor['cpu_time']:.0f} ms; with the waiting for disk and processor "
               f"{ours['real_time']:.0f} ms against {floor['real_time']:.0f} ms")


def forecast_row(medians):
    ours = medians[f"forecastClaim/{FORECAST_ITEMS}/real_time"]
    row(f"Forecast of {FORECAST_ITEMS:,} items, ms", ours["real_time"], FORECAST_TIME,
        detail=f"{ours['sheets']:.0f} sheets; {ours['cpu_time']:.0f} ms of the processor")


def preview_row(medians):
    def times(work):
        runs = [medians[f"preview/{name}/{PREVIEW_ITEMS}"] for name in (f"redraw{work}", f"fill{work}")]
        if runs[0]["rows"] != runs[1]["rows"]:
            sys.exit("The preview and the bare filling do not show the same rows.")
        return [run["cpu_time"] for run in runs]

    redraw, fill = times("_seen")
    bare = times("")
    row(f"Preview redraw, {PREVIEW_ITEMS:,} items, to its filling", redraw / fill, 3,
        detail=f"{redraw:.1f} ms against {fill:.1f} ms until it is painted; without the painting "
               f"{bare[0]:.1f} ms against {bare[1]:.1f} ms")


def whole_export(tool, sample):
    """The median of the seconds that the headless tool takes for a sample, from its start to its end."""
    seconds = []
    with tempfile.TemporaryDirectory() as folder:
        for _ in range(PROCESS_RUNS):
            start = time.perf_counter()
            subprocess.run([tool, "export", "--force", "--quiet", f"{sample}.zr3", folder], check=True)
            seconds.append(time.perf_counter() - start)
    return statistics.median(seconds)


def writer_row(build, form):
    title = f"Export of {form} by a word processor to ours"
    try:
        answer = subprocess.run(
            ["/usr/bin/python3", ROOT / "benchmarks" / "drive_writer.py", build / "program" / "Templates",
             f"{SAMPLES[form]}.sheets.json", str(WRITER_RUNS)],
            check=True, capture_output=True, text=True, timeout=900)
    except (OSError, subprocess.SubprocessError) as error:
        last = (getattr(error, "stderr", None) or str(error)).strip().splitlines()
        row(title, None, 100, detail=last[-1] if last else "no reason given")
        return
    writer = json.loads(answer.stdout)
    theirs = statistics.median(writer["seconds"])
    ours = whole_export(build / "program" / "zr3tool", SAMPLES[form])
    row(title, theirs / ours, 100, at_most=False,
        detail=f"{theirs:.1f} s (warm, {writer['sheets']} sheets, median of {WRITER_RUNS}) "
               f"against {ours * 1000:.0f} ms (whole process)")


def memory_row(build):
    def memory(items, folder):
        claim = Path(folder) / f"claim{items}.zr3"
        subprocess.run([build / "benchmarks" / "zr3-make-claim", str(items), claim], check=True)
        told = subprocess.run([build / "benchmarks" / "zr3-claim-memory", claim], check=True, capture_output=True).stdout
        return json.loads(told), claim.stat().st_size / 1024

    with tempfile.TemporaryDirectory() as folder:
        empty, _ = memory(0, folder)
        full, size = memory(ITEMS, folder)
    row(f"Memory of {ITEMS:,} items, in file sizes", (full["peak"] - empty["peak"]) / size, 25,
        detail=f"peak {full['peak'] / 1024:.0f} MB over {empty['peak'] / 1024:.0f} MB of an empty claim, "
               f"held afterwards {full['held'] / 1024:.0f} MB")


def start_row(build):
    """From the start of the process to a window that waits for its user, as the clock has it."""
    def start(folder, *claim):
        surroundings = os.environ | {"QT_QPA_PLATFORM": "offscreen", "HOME": folder, "XDG_CONFIG_HOME": folder}
        begun = time.perf_counter()
        with subprocess.Popen([build / "benchmarks" / "zr3-start-window", *claim], env=surroundings,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as program:
            told = program.stdout.readline()
            seconds = time.perf_counter() - begun
        if told != "usable\n":
            sys.exit("The window did not come up.")
        return seconds * 1000 - SPLASH

    with tempfile.TemporaryDirectory() as folder:
        empty = statistics.median(start(folder) for _ in range(PROCESS_RUNS))
        claim = Path(folder) / "claim.zr3"
        subprocess.run([build / "benchmarks" / "zr3-make-claim", str(ITEMS), claim], check=True)
        full = statistics.median(start(folder, claim) for _ in range(3))
    row("Start to a usable window, ms", empty, 300,
        detail=f"without the splash's {SPLASH} ms; on a claim of {ITEMS:,} items {full:,.0f} ms")


def screen_rows(build):
    """What a user waits for on a screen with a long list, as the clock has it."""
    told = subprocess.run([build / "benchmarks" / "zr3-list-screen", str(SCREEN_ITEMS)], check=True, capture_output=True,
                          text=True).stdout
    times = json.loads(told)
    row(f"Open a list of {SCREEN_ITEMS:,} items, ms", times["open"], AT_ONCE, detail="to the painted screen")
    row("Add an item to it, ms", max(times["editor"], times["save"]), AT_ONCE,
        detail=f"the longer wait: {times['editor']:.0f} ms from Insert to the painted editor, {times['save']:.0f} ms from "
               f"Save to the painted list")


def machine():
    model = next((line.split(":", 1)[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
                  if line.startswith("model name")), platform.machine())
    load = os.getloadavg()[0]
    if load > 0.5 * os.cpu_count():
        notes.append(f"The machine had other work (load {load:.1f}): the figures are less certain than they look.")
    return f"{os.cpu_count()} x {model}, {platform.system()} {platform.release()}"


def main(build):
    print(f"Measured on {machine()}; medians of {REPETITIONS} interleaved repetitions.\n", flush=True)
    medians = pieces(build / "benchmarks" / "zr3-bench")
    claim_rows(medians)
    for form in SAMPLES:
        export_row(medians, form)
    forecast_row(medians)
    preview_row(pieces(build / "benchmarks" / "zr3-bench-preview"))
    for form in SAMPLES:
        writer_row(build, form)
    memory_row(build)
    start_row(build)
    screen_rows(build)
    widths = [max(len(line[i]) for line in rows) for i in range(3)]
    for line in rows:
        print("  ".join([line[0].ljust(widths[0]), line[1].rjust(widths[1]), line[2].ljust(widths[2]), line[3]]))
    if notes:
        print("\n" + "\n".join(notes))
    return 0 if all(line[4] for line in rows) else 1


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve()))
