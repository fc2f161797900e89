#!/usr/bin/env python3
"""Every sound that the program plays is in the program folder, and is short and soft.

    test_sounds.py FOLDER OF THE SOURCES  FOLDER OF THE SOUNDS
"""

import re
import struct
import sys
import unittest
import wave
from pathlib import Path

SOURCES, SOUNDS = (Path(argument) for argument in sys.argv[1:3])
NAMES = {"Alert.wav", "Blip.wav", "Blip Low.wav"}


class Sounds(unittest.TestCase):
    def test_the_program_names_these_and_no_others(self):
        named = set()
        for folder in ("base", "commands", "controls", "editors", "shell", "wordexport"):
            for source in (SOURCES / folder).rglob("*.cpp"):
                named |= set(re.findall(r'"Sounds/([^"]+)"', source.read_text("utf-8")))
        self.assertEqual(NAMES, named)

    def test_each_is_there_short_and_neither_silent_nor_loud(self):
        for name in NAMES:
            with self.subTest(name), wave.open(str(SOUNDS / name)) as sound:
                frames = sound.readframes(sound.getnframes())
                samples = struct.unpack(f"<{len(frames) // 2}h", frames)
                self.assertLess(sound.getnframes() / sound.getframerate(), 0.5)
                self.assertLess(max(map(abs, samples)), 32767 // 2)
                self.assertGreater(max(map(abs, samples)), 32767 // 20)
                # It begins and ends in silence, so it doesn't click.
                self.assertLess(max(abs(samples[0]), abs(samples[-1])), 300)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
