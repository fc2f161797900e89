#!/usr/bin/env python3
"""The program is ended in every possible way while its user types, saves and exports, and started again.

    ends.py [--kills N] [--seed S]

Each typed word has a number, and its time is recorded. The journal runs twenty times as fast as in the program, so that
the promised thirty seconds are one and a half here; otherwise most ends would come too soon after the start. No word
typed longer than that before an end may be missing.

    ZR3_ENDS       the program with its typist
    ZR3_PROGRAM    the program as it is delivered
    ZR3_SAMPLES    the folder of the sample claims
    ZR3_CLOCKS     the library of the jumping clock
"""

import argparse
import concurrent.futures
import json
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent.parent / "window"))
from real_desktop import NEEDED, Desktop, DesktopFailure

SKIPPED = 77
SPEED = 20
PROMISED = 30 / SPEED
PATIENCE = 300
ENDS, PROGRAM = os.environ["ZR3_ENDS"], os.environ["ZR3_PROGRAM"]
SAMPLE = Path(os.environ["ZR3_SAMPLES"]) / "housing-typical.zr3"
CLOCKS = os.environ["ZR3_CLOCKS"]

WORD = re.compile(r"zq(\d+)")


def whole(words):
    """The number up to which all words are there."""
    number = 0
    while number + 1 in words:
        number += 1
    return number


def words_in(text):
    return {int(number) for number in WORD.findall(text)}


class Life:
    """A folder in which the program is started and ended."""

    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="zr3-ends-"))
        (self.folder / "claims").mkdir()
        self.claim = self.folder / "claims" / "claim.zr3"
        shutil.copy(SAMPLE, self.claim)
        export = self.folder / "export"
        export.mkdir()
        text = self.claim.read_text("latin-1")
        path = str(export).replace("/", "%2F").replace("-", "%2D").replace("_", "%5F")
        self.claim.write_text(re.sub(r"<exportpath>[^<]*</exportpath>|<exportpath/>",
                                     f"<exportpath>{path}</exportpath>", text), "latin-1")
        self.state = self.folder / "state"

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)

    def environment(self, **more):
        home = {name: str(self.folder / "home") for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS",
                                                             "XDG_DATA_HOME", "XDG_RUNTIME_DIR")}
        return {**os.environ, **home, "XDG_STATE_HOME": str(self.state), "QT_QPA_PLATFORM": "offscreen",
                "UserProfile": str(self.folder), **more}

    def start(self, **options):
        environment = self.environment(**options.pop("environment", {}))
        return subprocess.Popen([ENDS, "type", self.folder, self.claim, str(SPEED)], env=environment,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)

    def rows(self):
        """The typist's notes: what, number, and the time in seconds."""
        log = self.folder / "typed"
        rows = [line.split() for line in log.read_text().splitlines()] if log.exists() else []
        return [(row[0], int(row[1]), int(row[2]) / 1e9) for row in rows if len(row) == 3]

    def wait_for_words(self, process, count):
        end = time.monotonic() + PATIENCE
        while sum(what == "word" for what, _, _ in self.rows()) < count:
            if process.poll() is not None or time.monotonic() > end:
                raise AssertionError("The program doesn't type: " + process.communicate()[0].decode())
            time.sleep(0.01)

    def wait_for(self, what):
        """Waits, for a limited time, until the typist starts something: its actions are random."""
        end = time.monotonic() + 4 * PROMISED
        while what and time.monotonic() < end and self.rows()[-1][0] != what:
            time.sleep(0.002)

    def journals(self):
        return sorted((self.state / "Velmor" / "Journal").glob("*.journal"))

    def recovered(self):
        """The words on the disk: in the claim, in its side file and in the journal."""
        found = []
        for file in [self.claim, self.claim.with_suffix(".zr3a"), *self.journals()]:
            if file.exists():
                found.append(whole(words_in(file.read_bytes().decode("latin-1"))))
        return max(found)

    def lost(self, ended):
        """The seconds and characters that are lost, and what the typist was doing at the end."""
        rows = self.rows()
        words = [(number, moment) for what, number, moment in rows if what == "word"]
        have = self.recovered()
        missing = [(number, moment) for number, moment in words if number > have]
        last = rows[-1][0] if rows else "start"
        doing = {"save": "saving", "export": "exporting"}.get(last, "typing")
        seconds = ended - missing[0][1] if missing else 0.0
        return seconds, sum(len(f"zq{number} ") for number, _ in missing), doing

    def next(self):
        """The next start: the bar's message, and the words left after the claim was recovered, saved and closed."""
        done = subprocess.run([ENDS, "next", self.folder], env=self.environment(), capture_output=True, text=True,
                              timeout=PATIENCE)
        assert done.returncode == 0, done.stdout + done.stderr
        assert "box Run-time" not in done.stdout, done.stdout
        return done.stdout


class Figures:
    def __init__(self):
        self.rows = {}

    def add(self, name, seconds, characters):
        count, most, chars = self.rows.get(name, (0, 0.0, 0))
        self.rows[name] = (count + 1, max(most, seconds), max(chars, characters))

    def print(self):
        print(f"\n{'end':44} {'times':>6} {'most lost: seconds':>20} {'characters':>11}")
        for name, (count, seconds, characters) in self.rows.items():
            print(f"{name:44} {count:6} {seconds:20.2f} {characters:11}")
        print(f"One second here is one of {SPEED} in the program. For the ends on a display it is a true one: how long it took")
        print("until what was typed was kept, which is what would have been lost before.")


def look_after(life, ended, bound=PROMISED):
    """Checks the promised limit of the loss, and that the next start recovers what is on the disk."""
    seconds, characters, doing = life.lost(ended)
    assert seconds <= bound, f"{seconds:.2f} s of typing are lost while {doing}"
    have = life.recovered()
    offered = bool(life.journals())
    said = life.next()
    if offered and "bar -" not in said:
        assert "was not closed properly: changes until" in said, said
        texts = re.split(r"^(?:claim|typed) ", said, flags=re.MULTILINE)[1:]
        assert max(whole(words_in(text)) for text in texts) == have, said
    assert not life.journals(), "a journal is left after an orderly end"
    return seconds, characters, doing


# What a kill interrupts, how many kills of a hundred, and how many seconds that work lasts at most.
MOMENTS = ((None, 50, PROMISED), ("save", 30, 0.06), ("export", 20, 0.6))


def killed(seed):
    """A SIGKILL at a random moment."""
    chance = random.Random(seed)
    (awaited, _, longest), = chance.choices(MOMENTS, [share for _, share, _ in MOMENTS])
    with Life() as life:
        process = life.start()
        life.wait_for_words(process, 1)
        life.wait_for(awaited)
        time.sleep(chance.uniform(0, longest))
        ended = time.clock_gettime(time.CLOCK_MONOTONIC)
        process.kill()
        process.communicate()
        seconds, characters, doing = look_after(life, ended)
        return f"SIGKILL while {doing}", seconds, characters


def signalled(number, log_off=False, environment=None, bound=None):
    """A signal on which the program ends itself, keeping everything that was typed."""
    with Life() as life:
        if log_off:
            (life.folder / "log-off").touch()
        def prepare():
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            # The program would inherit that it is ignored, as under nohup.
            signal.signal(signal.SIGHUP, signal.SIG_DFL)

        process = life.start(environment=environment or {}, preexec_fn=prepare)
        life.wait_for_words(process, 150)
        process.send_signal(number)
        process.communicate(timeout=PATIENCE)
        ended = time.clock_gettime(time.CLOCK_MONOTONIC)
        orderly = process.returncode == 0
        assert orderly == (bound is None and not log_off), process.returncode
        return look_after(life, ended, 0 if bound is None else bound)[:2]


JUMPS = "0,86400,-86400,31536000,-31536000,3600,-3600"

# A title, and the function that ends the program. Only SIGQUIT ends it at once: required behaviour.
WAYS = {
    "SIGTERM": lambda: signalled(signal.SIGTERM),
    "SIGHUP": lambda: signalled(signal.SIGHUP),
    "SIGINT": lambda: signalled(signal.SIGINT),
    "SIGQUIT": lambda: signalled(signal.SIGQUIT, bound=PROMISED),
    "log-off, then killed": lambda: signalled(signal.SIGTERM, log_off=True),
    "SIGKILL with a clock that jumps": lambda: signalled(
        signal.SIGKILL, environment={"LD_PRELOAD": CLOCKS, "ZR3_CLOCK": JUMPS}, bound=PROMISED),
}


def elsewhere(life):
    return list((life.folder / "elsewhere").glob("*"))


def without_a_place(prepare):
    """The state folder can't be written: work continues, and the claim can be saved."""
    with Life() as life:
        prepare(life)
        process = life.start()
        life.wait_for_words(process, 300)
        assert process.poll() is None
        process.kill()
        out = process.communicate()[0].decode()
        assert "box" not in out.replace("box Export Complete", "").replace("box Word Instances", ""), out
        assert not life.journals() and life.recovered() > 0, "no save got through"
        assert not elsewhere(life), "written through the link"
        assert life.next()
        return 0.0, 0


def state_is_a_file(life):
    life.state.write_text("no folder")


def state_is_a_foreign_link(life):
    target = life.folder / "elsewhere"
    target.mkdir()
    life.state.mkdir()
    (life.state / "Velmor").symlink_to(target)
    if os.geteuid() == 0:
        os.lchown(life.state / "Velmor", 65534, 65534)


def fill(file):
    """Writes a file until the disk is full."""
    descriptor = os.open(file, os.O_WRONLY | os.O_CREAT)
    try:
        while True:
            os.write(descriptor, b"x" * 4096)
    except OSError:
        pass
    os.close(descriptor)


def full_disk(end):
    """The state folder is on a disk that becomes full while the journal is written; the claim is elsewhere."""
    import ctypes
    libc = ctypes.CDLL(None, use_errno=True)
    with Life() as life:
        life.state.mkdir()
        if libc.mount(b"zr3", os.fsencode(life.state), b"tmpfs", 0, b"size=256k") != 0:
            return None
        try:
            process = life.start()
            life.wait_for_words(process, 200)
            fill(life.state / "filler")
            life.wait_for_words(process, 400)
            (life.state / "filler").unlink()
            life.wait_for_words(process, 400 + int(1.5 * PROMISED * 1000 / 7 / 3))
            time.sleep(PROMISED)
            ended = time.clock_gettime(time.CLOCK_MONOTONIC)
            end(process)
            process.communicate()
            return look_after(life, ended)[:2]
        finally:
            libc.umount2(os.fsencode(life.state), 2)


class Display:
    """The program as it is delivered, on a display of its own, with something typed that is not stored."""

    TITLE = "Zarquon"

    def __enter__(self):
        self.life = Life()
        self.desktop = Desktop(self.life.folder)
        state = {"XDG_STATE_HOME": str(self.life.state)}
        self.process = self.desktop.start("program", ["env", *(f"{name}={value}" for name, value in state.items()),
                                                      PROGRAM, str(self.life.claim)])
        self.desktop.wait("the main window",
                          lambda: self.desktop.title() == "Velmor ZR3" and self.desktop.fills_the_screen())
        self.desktop.key("Right", "Return", "Tab", "Return")
        self.desktop.wait("the screen", lambda: self.desktop.title() == "Client Details")
        self.desktop.key("Tab", "ctrl+a")
        self.desktop.type(self.TITLE)
        return self

    def __exit__(self, *_):
        self.desktop.close()
        self.life.__exit__()

    def kept(self):
        return any(self.TITLE in file.read_bytes().decode("latin-1") for file in self.life.journals())

    def end(self, how):
        """Waits until the typed text is kept, ends the program, and looks for the text."""
        typed = time.monotonic()
        while not self.kept():
            assert time.monotonic() - typed < 30, "not kept within thirty seconds"
            time.sleep(0.1)
        took = time.monotonic() - typed
        how(self)
        # A process still running without a window would keep its journal from the next start.
        self.process.wait(PATIENCE)
        assert self.kept(), "what was typed is gone"
        said = self.life.next()
        assert "was not closed properly" in said and f"typed {self.TITLE}" in said, said
        return took, 0


def window_of(display):
    return display.desktop.tell("getactivewindow")


DISPLAY_WAYS = {
    "X server killed": lambda display: display.desktop.processes["display server"].kill(),
    "connection cut by the X server": lambda display: display.desktop.tell("windowkill", window_of(display)),
    "window destroyed from outside": lambda display: display.desktop.tell("windowclose", window_of(display)),
}


def main():
    asked = argparse.ArgumentParser()
    asked.add_argument("--kills", type=int, default=50)
    asked.add_argument("--seed", type=int, default=random.SystemRandom().randrange(1, 10**6))
    asked.add_argument("--at-once", type=int, default=2)
    options = asked.parse_args()
    print(f"seed {options.seed}", flush=True)
    began = time.monotonic()
    figures, skipped = Figures(), []
    seeds = [options.seed * 100_000 + number for number in range(options.kills)]
    with concurrent.futures.ThreadPoolExecutor(options.at_once) as pool:
        for row in pool.map(killed, seeds):
            figures.add(*row)
    for name, way in WAYS.items():
        figures.add(name, *way())
    figures.add("SIGKILL, state folder is a file", *without_a_place(state_is_a_file))
    figures.add("SIGKILL, state folder is another's link", *without_a_place(state_is_a_foreign_link))
    lost = full_disk(lambda process: process.kill())
    if lost is None:
        skipped.append("a full disk: this user may not mount one")
    else:
        figures.add("SIGKILL after a disk was full for a while", *lost)
    if missing := [name for name in NEEDED if not shutil.which(name)]:
        skipped.append(f"the ends on a display: there is no {' and no '.join(missing)} on this machine")
    else:
        for name, how in DISPLAY_WAYS.items():
            with Display() as display:
                figures.add(name, *display.end(how))
    figures.print()
    print(f"{time.monotonic() - began:.0f} s")
    for reason in skipped:
        print(f"skipped: {reason}")
    return SKIPPED if skipped else 0


if __name__ == "__main__":
    sys.exit(main())
