#!/usr/bin/env python3
"""What `cmake --install` installs where, that the desktop recognises it, and that it runs from there without a window.
"""

import gzip
import json
import os
import struct
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent.parent / "documents"))

import installed
from installed import BUILD, FRESH, SAMPLES, SOURCES, TYPE, User, run
from support import main, need

SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def setUpModule():
    global FOLDER, PREFIX, PROGRAM
    FOLDER = installed.work_folder()
    PREFIX = installed.install(FOLDER / "for all/the programs")
    PROGRAM = PREFIX / "lib/velmor-zr3"


def built(folder):
    return {path.relative_to(BUILD / "program") for path in (BUILD / "program" / folder).rglob("*") if path.is_file()}


class Files(unittest.TestCase):
    def test_the_program_folder_is_whole(self):
        expected = {Path(name) for name in ("velmor-zr3", "zr3tool", "Installed files.txt",
                                               "Databases/Preferences Database.vzp")}
        for paper in ("User Guide", "Keyboard Shortcuts"):
            expected.add(Path(f"Documentation/Velmor ZR3 {paper}.pdf"))
        for folder in ("Sounds", "Templates"):
            expected |= built(folder)
        self.assertTrue(any(path.parts[0] == "Templates" for path in expected))
        self.assertEqual(expected, {path.relative_to(PROGRAM) for path in PROGRAM.rglob("*") if path.is_file()})
        self.assertTrue((PROGRAM / "Logs").is_dir())
        self.assertEqual(FRESH.read_bytes(), (PROGRAM / "Databases/Preferences Database.vzp").read_bytes())

    def test_everybody_may_read_it_and_only_its_owner_write(self):
        for path in [PREFIX.parent, *PREFIX.parent.rglob("*")]:
            if not path.is_symlink():
                programs = path.is_dir() or path.parent == PREFIX / "bin" or path in (PROGRAM / "velmor-zr3", PROGRAM / "zr3tool")
                self.assertEqual("755" if programs else "644", f"{path.stat().st_mode & 0o7777:o}", path)

    def test_nothing_names_the_place_where_it_was_built(self):
        for path in PREFIX.rglob("*"):
            if path.is_file() and path.suffix not in ("", ".doc"):
                self.assertNotIn(os.fsencode(f"{BUILD.parent}/"), path.read_bytes(), path)
        self.assertEqual("../lib/velmor-zr3/zr3tool", os.readlink(PREFIX / "bin/zr3tool"))

    def test_each_icon_has_its_size(self):
        for size in SIZES:
            themed = PREFIX / f"share/icons/hicolor/{size}x{size}"
            for icon in (themed / "apps/velmor-zr3.png", themed / f"mimetypes/{TYPE.replace('/', '-')}.png"):
                head = icon.read_bytes()[:24]
                self.assertEqual(b"\x89PNG\r\n\x1a\n", head[:8])
                self.assertEqual((size, size), struct.unpack(">II", head[16:]))
        for drawing in ("apps/velmor-zr3.svg", f"mimetypes/{TYPE.replace('/', '-')}.svg"):
            self.assertIn("<svg", (PREFIX / "share/icons/hicolor/scalable" / drawing).read_text("utf-8"))

    def test_the_papers_are_there_and_of_this_version(self):
        version = run(PREFIX / "bin/zr3tool", "--version").split()[-1]
        with gzip.open(PREFIX / "share/doc/velmor-zr3/changelog.gz", "rt") as changelog:
            self.assertTrue(changelog.readline().startswith(f"velmor-zr3 ({version}) "))
        self.assertIn(f'version="{version}"', (PREFIX / "share/metainfo/example.velmor.zr3.metainfo.xml").read_text())
        self.assertTrue((PREFIX / "share/doc/velmor-zr3/copyright").is_file())

    def test_the_manual_page_tells_what_the_tool_tells(self):
        def page_of(command):
            return gzip.decompress((PREFIX / f"share/man/man1/{command}.1.gz").read_bytes()).decode().replace("\\", "")

        page = page_of("zr3tool")
        told = run(PREFIX / "bin/zr3tool", "--help").split()
        for word in (word.rstrip(",;.:") for word in told):
            if word.startswith("--") or word in ("list", "totals", "export", "check", "save", "forecast", "why", "diff",
                                                   "table", "import"):
                self.assertIn(word, page)
        self.assertIn("velmor-zr3", page_of("velmor-zr3"))

    def test_bash_completes_what_the_tool_takes(self):
        def completed(*words):
            answer = run("bash", "-c", """source "$0"; complete -p zr3tool >/dev/null; COMP_WORDS=(zr3tool "$@")
                COMP_CWORD=$#; compopt() { :; }; _zr3tool zr3tool "${!#}" "${COMP_WORDS[$# - 1]}"
                printf '%s\\n' "${COMPREPLY[@]}" """, PREFIX / "share/bash-completion/completions/zr3tool", *words,
                         cwd=SAMPLES)
            return set(answer.split())

        told = run(PREFIX / "bin/zr3tool", "--help")
        options = {word.rstrip(",;.:") for word in told.split() if word.startswith("--")} - {"--help", "--version"}
        commands = {line.split()[1] for line in told.splitlines() if line.startswith("  zr3tool ")} - {"--help"}
        self.assertEqual(commands | {"--help", "--version"}, completed(""))
        self.assertEqual(options, set().union(*(completed(command, "--") for command in commands)))
        self.assertEqual({"--jobs", "--json", "--jsonl"}, completed("list", "--j"))
        self.assertEqual({"housing-typical.zr3"}, completed("totals", "housing-t"))
        self.assertEqual(set(), completed("totals", "README"))
        self.assertEqual({"experts", "enhancements"}, completed("table", "a.zr3", "e"))

    def test_installing_again_leaves_preferences_that_are_there(self):
        prefix = installed.install(FOLDER / "again")
        preferences = prefix / "lib/velmor-zr3/Databases/Preferences Database.vzp"
        preferences.write_text("mine")
        installed.install(prefix)
        self.assertEqual("mine", preferences.read_text())


class Desktop(unittest.TestCase):
    def test_the_menu_entry_is_valid(self):
        need("desktop-file-validate")
        self.assertEqual("", run("desktop-file-validate", PREFIX / "share/applications/velmor-zr3.desktop"))

    def test_the_description_is_valid(self):
        need("appstreamcli")
        run("appstreamcli", "validate", "--no-net", PREFIX / "share/metainfo/example.velmor.zr3.metainfo.xml")

    def test_a_manual_page_has_no_mistakes(self):
        need("man")
        for page in (PREFIX / "share/man/man1").iterdir():
            self.assertEqual("", subprocess.run(["man", "--warnings", "-l", "-Tutf8", "-Z", page], text=True,
                                                env=os.environ | {"MANROFFSEQ": "", "MANWIDTH": "80"},
                                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE).stderr)

    def test_a_claim_is_known_and_opens_in_the_program(self):
        need("update-mime-database", "update-desktop-database", "gio")
        run("update-mime-database", PREFIX / "share/mime")
        run("update-desktop-database", PREFIX / "share/applications")
        user = User(FOLDER / "clerk", PREFIX)
        # By its name, and by its content.
        for name in ("claim.zr3", "claim"):
            kind = user.run("gio", "info", "-a", "standard::content-type", user.claim(name))
            self.assertIn(f"standard::content-type: {TYPE}\n", kind + "\n")
        self.assertIn("velmor-zr3.desktop", user.run("gio", "mime", TYPE).splitlines()[0])


class WithoutAWindow(unittest.TestCase):
    def test_the_tool_runs_from_a_folder_that_nobody_may_write(self):
        prefix = installed.install(FOLDER / "read only")
        installed.lock(prefix)
        user = User(FOLDER / "fee earner", prefix)
        claim = user.claim()
        expected = json.loads((SAMPLES / "housing-typical.totals.json").read_text("utf-8"))
        self.assertEqual(expected, json.loads(user.run("zr3tool", "totals", claim)))
        user.run("zr3tool", "export", "--quiet", claim, user.home)
        self.assertTrue((user.home / "Claim1.doc").is_file())
        self.assertFalse((user.home / "~ZR3Temp").exists())

    def test_what_was_moved_or_linked_to_runs_all_the_same(self):
        prefix = installed.install(FOLDER / "before").rename(FOLDER / "after")
        link = FOLDER / "my tool"
        link.symlink_to(prefix / "bin/zr3tool")
        user = User(FOLDER / "mover", prefix)
        user.run(link, "export", "--quiet", user.claim(), user.home)
        self.assertTrue((user.home / "Claim1.doc").is_file())


class Uninstall(unittest.TestCase):
    def removed(self, prefix):
        """Installs, adds a file that is not part of the program, and uninstalls."""
        installed.install(prefix)
        (prefix / "bin/another").write_text("")
        run("cmake", f"-DPREFIX={prefix}", "-P", SOURCES / "packaging/uninstall.cmake")

    def test_it_takes_its_own_files_and_no_others(self):
        prefix = FOLDER / "removed [it]"
        self.removed(prefix)
        self.assertEqual(["bin", "bin/another"], sorted(str(path.relative_to(prefix)) for path in prefix.rglob("*")))

    def test_it_leaves_preferences_that_somebody_has_there(self):
        prefix = FOLDER / "removed too"
        preferences = prefix / "lib/velmor-zr3/Databases/Preferences Database.vzp"
        preferences.parent.mkdir(parents=True)
        preferences.write_text("mine")
        self.removed(prefix)
        self.assertEqual("mine", preferences.read_text())


if __name__ == "__main__":
    main()
