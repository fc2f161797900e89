#!/usr/bin/env python3
"""Makes the sounds of the program: make_sounds.py FOLDER.

    Blip.wav      a letter or a call more
    Blip Low.wav  one less
    Alert.wav     a message box
"""

import math
import struct
import sys
import wave
from pathlib import Path

RATE = 44100
LOUDNESS = 0.3
# Seconds: long enough not to click, short enough to count at the speed of typing.
ATTACK = 0.004

# Each sound as its notes one after the other: hertz and seconds.
SOUNDS = {
    "Blip.wav": [(880.0, 0.07)],
    "Blip Low.wav": [(440.0, 0.09)],
    "Alert.wav": [(659.26, 0.11), (880.0, 0.22)],
}


def note(hertz, seconds):
    """The samples of a soft note that dies away, with a little of its octave for colour."""
    for i in range(round(seconds * RATE)):
        time = i / RATE
        swell = min(1.0, time / ATTACK) * math.exp(-4.0 * time / seconds) * min(1.0, (seconds - time) / ATTACK)
        wave_ = math.sin(2 * math.pi * hertz * time) + 0.25 * math.sin(4 * math.pi * hertz * time)
        yield LOUDNESS * swell * wave_ / 1.25


def make(path, notes):
    samples = [value for hertz, seconds in notes for value in note(hertz, seconds)]
    with wave.open(str(path), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(b"".join(struct.pack("<h", round(32767 * value)) for value in samples))


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name, notes in SOUNDS.items():
        make(folder / name, notes)


if __name__ == "__main__":
    main(Path(sys.argv[1]))
