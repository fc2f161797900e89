"""Shared by the tests of the installed program: a clean folder to install into, and an ordinary user who starts it.

    ZR3_BUILD    the build folder
    ZR3_SOURCES  the folder of the sources
"""

import os
import shutil
import stat
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = Path(os.environ.get("ZR3_BUILD", ""))
SOURCES = Path(os.environ.get("ZR3_SOURCES", ""))
SAMPLES = SOURCES / "tests/samples"
FRESH = SOURCES / "resources/VELMORZR3XML/xmlZR3PreferencesDatabase"
TYPE = "application/vnd.velmor.zr3+xml"
NOBODY = 65534
PATIENCE = 60


def run(*command, **options):
    """The output of a command; if it fails, the error includes its output."""
    done = subprocess.run([str(word) for word in command], text=True, encoding="utf-8", errors="replace",
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=PATIENCE, **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def work_folder():
    """A folder with unusual characters that other users may enter; deleted after the tests."""
    folder = Path(tempfile.mkdtemp(prefix="zr3 \u00fcber "))
    folder.chmod(0o755)

    def clear():
        lock(folder, False)
        shutil.rmtree(folder)

    unittest.addModuleCleanup(clear)
    return folder


def lock(folder, locked=True):
    """Removes or restores write permission for a folder, for its owner too."""
    for path in [folder, *folder.rglob("*")]:
        if not path.is_symlink():
            mode = stat.S_IMODE(path.stat().st_mode)
            path.chmod(mode & ~0o222 if locked else mode | 0o200)


def install(prefix):
    """Installs into a folder, created if necessary, under the strictest umask: the permissions of installed files must
    not depend on it.
    """
    run("sh", "-c", 'umask 077; exec cmake --install "$1" --prefix "$2"', "--", BUILD, prefix)
    return prefix


class User:
    """An ordinary user with an initially empty home folder."""

    def __init__(self, folder, prefix):
        self.home = folder
        self.machine = folder.parent / (folder.name + " machine")
        folder.mkdir()
        if os.geteuid() == 0:
            os.chown(folder, NOBODY, NOBODY)
        self.surroundings = {
            "HOME": str(folder),
            "LANG": "C.UTF-8",
            "PATH": f"{prefix}/bin:/usr/bin:/bin",
            "XDG_CONFIG_DIRS": str(self.machine),
            "XDG_DATA_DIRS": f"{prefix}/share:/usr/share",
        }
        self.store = folder / ".config/Velmor/ZR3.conf"
        self.databases = folder / ".local/share/Velmor/ZR3/Databases"
        self.preferences = self.databases / "Preferences Database.vzp"

    def command(self, *words):
        """The command line that runs a command as this user."""
        as_user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if os.geteuid() == 0 else []
        settings = [f"{name}={value}" for name, value in self.surroundings.items()]
        return [*as_user, "env", "-u", "XDG_CONFIG_HOME", "-u", "XDG_DATA_HOME", *settings, *map(str, words)]

    def run(self, *words):
        return run(*self.command(*words), cwd=self.home)

    def own(self, path):
        """Makes this user the owner of a file or folder and the folders leading to it."""
        while os.geteuid() == 0 and path != self.home:
            os.chown(path, NOBODY, NOBODY)
            path = path.parent

    def write(self, path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, "utf-8")
        if self.home in path.parents:
            self.own(path)

    def claim(self, name="a claim.zr3"):
        claim = self.home / name
        shutil.copy(SAMPLES / "housing-typical.zr3", claim)
        self.own(claim)
        return claim
