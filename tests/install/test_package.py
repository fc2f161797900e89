#!/usr/bin/env python3
"""The Debian package: its content, how it was built, and that it can be installed, started and removed without
affecting the users' claims and preferences.

It is installed into an empty root, so that the machine is not changed. This can't test the triggers of desktop
packages, nor whether the packages that it depends on are available.
"""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

sys.path[:0] = [str(Path(__file__).parent.parent / folder) for folder in ("documents", "window")]

import installed
from installed import BUILD, FRESH, User, run
from real_desktop import NEEDED
from started import Started
from support import main, need

PROGRAMS = ("usr/lib/velmor-zr3/velmor-zr3", "usr/lib/velmor-zr3/zr3tool", "usr/bin/velmor-zr3")


def packed(config, made):
    """A package, made once more under the strictest umask, which must not affect it."""
    run("sh", "-c", 'umask 077; exec cpack --config "$1" -B "$2" -D CPACK_OUTPUT_FILE_PREFIX="$2"', "--",
        BUILD / config, made)
    [package] = made.glob("*.deb")
    return package


def setUpModule():
    global FOLDER, PACKAGE, UNPACKED, SERVER, SERVER_UNPACKED
    need("cpack", "dpkg-deb", "dpkg-shlibdeps", "strip", "file")
    FOLDER = installed.work_folder()
    PACKAGE = packed("CPackConfig.cmake", FOLDER / "made")
    UNPACKED = FOLDER / "unpacked"
    run("dpkg-deb", "-x", PACKAGE, UNPACKED)
    SERVER = packed("CPackServerConfig.cmake", FOLDER / "made for servers")
    SERVER_UNPACKED = FOLDER / "unpacked for servers"
    run("dpkg-deb", "-x", SERVER, SERVER_UNPACKED)


def field(name, package=None):
    return run("dpkg-deb", "-f", package or PACKAGE, name).strip()


class Contents(unittest.TestCase):
    def test_it_is_named_after_the_version(self):
        version = run(UNPACKED / PROGRAMS[1], "--version").split()[-1]
        architecture = run("dpkg", "--print-architecture").strip()
        self.assertEqual(f"velmor-zr3_{version}_{architecture}.deb", PACKAGE.name)
        self.assertEqual("Velmor <support@velmor.example>", field("Maintainer"))

    def test_it_depends_on_what_it_runs_with(self):
        depends = {word.split()[0] for word in field("Depends").split(",")}
        for package in ("hunspell-en-gb", "libc6", "libqt6widgets6", "libqt6gui6", "libqt6core6", "libqt6multimedia6", "libqt6pdf6",
                        "libhunspell-1.7-0", "libpugixml1v5", "libzip4"):
            self.assertIn(package, depends)

    def test_it_brings_no_scripts_and_no_files_of_the_machines_settings(self):
        control = FOLDER / "control"
        run("dpkg-deb", "-e", PACKAGE, control)
        self.assertEqual(["control", "md5sums"], sorted(path.name for path in control.iterdir()))
        for line in (control / "md5sums").read_text("utf-8").splitlines():
            total, name = line.split(maxsplit=1)
            self.assertEqual(total, hashlib.md5((UNPACKED / name).read_bytes()).hexdigest(), name)

    def test_all_of_it_is_the_administrators_and_readable_by_everybody(self):
        for line in run("dpkg-deb", "-c", PACKAGE).splitlines():
            mode, owner = line.split()[:2]
            self.assertEqual("root/root", owner, line)
            self.assertIn(mode, ("drwxr-xr-x", "-rwxr-xr-x", "-rw-r--r--", "lrwxrwxrwx"), line)
            self.assertEqual(mode == "-rwxr-xr-x", line.split()[-1].removeprefix("./") in PROGRAMS, line)

    def test_the_programs_are_stripped_hardened_and_find_their_libraries_by_name(self):
        for program in PROGRAMS:
            kind = run("file", UNPACKED / program)
            self.assertIn("pie executable", kind)
            self.assertIn(", stripped", kind)
            headers = run("objdump", "-p", UNPACKED / program)
            self.assertNotRegex(headers, "RUNPATH|RPATH")
            self.assertRegex(headers, r"RELRO")
            self.assertRegex(headers, r"FLAGS_1 +0x0*8000001")  # all symbols are bound at the start
            self.assertTrue("__stack_chk_fail" in run("objdump", "-T", UNPACKED / program), "the stack is not checked")


class ForServers(unittest.TestCase):
    """The package of the command-line program alone."""

    def test_it_has_what_the_headless_program_needs_and_no_more(self):
        files = {str(path.relative_to(SERVER_UNPACKED)) for path in SERVER_UNPACKED.rglob("*") if not path.is_dir()}
        templates = {f"usr/lib/velmor-zr3/Templates/{path.name}" for path in (BUILD / "program/Templates").iterdir()}
        self.assertGreater(len(templates), 10)
        self.assertEqual(templates | {
            "usr/bin/zr3tool", "usr/lib/velmor-zr3/zr3tool", "usr/share/bash-completion/completions/zr3tool",
            "usr/share/doc/zr3tool/changelog.gz", "usr/share/doc/zr3tool/copyright", "usr/share/man/man1/zr3tool.1.gz",
        }, files)

    def test_it_needs_nothing_that_draws(self):
        depends = {word.split()[0] for word in field("Depends", SERVER).split(",")}
        self.assertLessEqual({"libc6", "libqt6core6", "libpugixml1v5", "libzip4"}, depends)
        self.assertEqual(["libqt6core6"], [package for package in depends if "qt" in package])
        self.assertFalse({"hunspell-en-gb", "libhunspell-1.7-0"} & depends)

    def test_the_two_are_not_installed_together(self):
        self.assertEqual("zr3tool", field("Package", SERVER))
        self.assertEqual("velmor-zr3", field("Conflicts", SERVER))
        self.assertEqual("zr3tool", field("Conflicts"))
        self.assertEqual(field("Version"), field("Version", SERVER))

    def test_all_of_it_is_readable_by_everybody(self):
        for line in run("dpkg-deb", "-c", SERVER).splitlines():
            self.assertRegex(line, r"^(drwxr-xr-x|-rwxr-xr-x|-rw-r--r--|lrwxrwxrwx) root/root ")

    def test_it_runs(self):
        user = User(FOLDER / "server's user", SERVER_UNPACKED / "usr")
        claim = user.claim()
        self.assertIn(str(claim), user.run("zr3tool", "list", "--csv", claim))
        user.run("zr3tool", "export", "--quiet", claim, user.home)
        self.assertTrue((user.home / "Claim1.doc").is_file())


class Life(unittest.TestCase):
    """Installed, started, removed."""

    def dpkg(self, *words):
        as_root = [] if os.geteuid() == 0 else ["fakeroot"]
        # The empty root has neither the packages it depends on nor a folder for the log.
        run(*as_root, "dpkg", f"--root={self.root}", "--force-depends", "--force-not-root", "--log=/dev/null", *words)

    def setUp(self):
        need("dpkg")
        if os.geteuid() != 0:
            need("fakeroot")
        self.root = FOLDER / self._testMethodName
        database = self.root / "var/lib/dpkg"
        for folder in ("info", "updates", "triggers"):
            (database / folder).mkdir(parents=True)
        (database / "status").touch()
        self.dpkg("-i", PACKAGE)
        # Only ordinary users are affected by a folder without write permission.
        installed.lock(self.root / "usr")

    def everything(self, folder):
        return {path: path.read_bytes() for path in folder.rglob("*") if path.is_file()}

    def remove_and_expect_all_left(self, user):
        before = self.everything(user.home)
        installed.lock(self.root / "usr", False)
        self.dpkg("--purge", "velmor-zr3")
        self.assertEqual([], [path for path in self.root.rglob("*velmor*")])
        self.assertEqual([], [path for path in self.root.rglob("*zr3*")])
        self.assertEqual(before, self.everything(user.home))

    def test_removal_leaves_claims_and_preferences(self):
        user = User(FOLDER / "clerk", self.root / "usr")
        claim = user.claim()
        user.run("zr3tool", "export", "--quiet", claim, user.home)
        self.assertTrue((user.home / "Claim1.doc").is_file())
        user.write(user.preferences, "mine")
        user.write(user.store, f"[General]\nDatabase%20Path={user.databases}\n")
        self.remove_and_expect_all_left(user)

    def test_the_window_comes_up_at_the_first_start(self):
        need(*NEEDED)
        user = User(FOLDER / "fee earner", self.root / "usr")
        screen = Started(FOLDER / "screen")
        self.addCleanup(screen.close)
        screen.start_and_save(user, user.claim())
        self.assertEqual(FRESH.read_bytes(), user.preferences.read_bytes())
        self.remove_and_expect_all_left(user)


if __name__ == "__main__":
    main()
