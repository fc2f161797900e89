"""A real display with a window manager and keyboard, for tests."""

import contextlib
import os
import select
import shutil
import subprocess
import time
from pathlib import Path

NEEDED = ("Xvfb", "openbox", "xdotool")
PATIENCE = 30
WIDTH, HEIGHT = 1366, 768


class DesktopFailure(Exception):
    """The display or its window manager failed, which is not the program's fault."""


def ended(process):
    process.terminate()
    try:
        process.wait(PATIENCE)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def last_lines(log, count=20):
    return log.read_text("utf-8", "replace").splitlines()[-count:] if log.exists() else []


class Desktop:
    """Starts when it is created; the output of its processes is in files of the folder."""

    def __init__(self, folder):
        self.folder = folder
        self.processes = {}
        self.surroundings = {name: value for name, value in os.environ.items() if not name.startswith(("QT_", "XDG_"))}
        self.surroundings |= {"HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
                              "XDG_RUNTIME_DIR": str(folder)}
        try:
            self.surroundings["DISPLAY"] = self.display()
            self.start("window manager", ["openbox"])
            self.wait("the window manager", self.manages, DesktopFailure)
        except BaseException:
            self.report()
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, kind, *_):
        if kind:
            self.report()
        self.close()

    def display(self):
        # The server chooses a free number itself, so that any number of these can run in parallel. -r: otherwise a key
        # released late, on a busy machine, would repeat. Without -noreset it restarts whenever its last client leaves,
        # and refuses connections meanwhile: the first clients are the short-lived ones that check whether the window
        # manager is running.
        reader, writer = os.pipe()
        with os.fdopen(reader) as told:
            self.start("display server", ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
                                          "-nolisten", "tcp", "-noreset", "-r"], pass_fds=[writer])
            os.close(writer)
            number = told.readline().strip() if select.select([told], [], [], PATIENCE)[0] else ""
        if not number:
            with contextlib.suppress(subprocess.TimeoutExpired):
                self.processes["display server"].wait(1)
            raise DesktopFailure("The display server did not come up.")
        return ":" + number

    def manages(self):
        """Whether the window manager carries out requests. It announces itself before it listens."""
        self.tell("set_num_desktops", "1", check=False)
        return self.tell("get_num_desktops", check=False) == "1"

    def log(self, name):
        return self.folder / f"{name}.log"

    def start(self, name, command, **options):
        """Starts a process whose output goes to a file of its name."""
        with self.log(name).open("wb") as log:
            self.processes[name] = subprocess.Popen(command, env=self.surroundings, stdin=subprocess.DEVNULL,
                                                    stdout=log, stderr=subprocess.STDOUT, **options)
        return self.processes[name]

    def close(self):
        for process in reversed(self.processes.values()):
            ended(process)

    def report(self):
        """Prints the state of each process and its last output."""
        for name, process in self.processes.items():
            state = process.poll()
            print(f"The {name} " + ("runs." if state is None else f"has ended with status {state}."))
            for line in last_lines(self.log(name)):
                print(f"    {line}")

    def check(self):
        """Raises DesktopFailure if the desktop is broken."""
        for name in ("display server", "window manager"):
            if name in self.processes and self.processes[name].poll() is not None:
                raise DesktopFailure(f"The {name} has ended.")

    def wait(self, what, holds, failure=SystemExit):
        end = time.monotonic() + PATIENCE
        while not holds():
            self.check()
            if time.monotonic() > end:
                raise failure(f"Waited in vain for {what}.")
            time.sleep(0.05)

    def tell(self, *words, check=True):
        return subprocess.run(["xdotool", *words], env=self.surroundings, check=check, capture_output=True,
                              text=True).stdout.strip()

    def title(self):
        return self.tell("getactivewindow", "getwindowname", check=False)

    def fills_the_screen(self):
        """Whether the active window is as wide as the screen."""
        return f"WIDTH={WIDTH}" in self.tell("getactivewindow", "getwindowgeometry", "--shell", check=False).split()

    def key(self, *keys):
        self.tell("key", "--delay", "40", *keys)

    def type(self, text):
        self.tell("type", "--delay", "20", text)

    def picture(self, folder, name):
        if folder and shutil.which("import"):
            subprocess.run(["import", "-window", "root", Path(folder) / f"{name}.png"], env=self.surroundings,
                           check=True)
