#!/usr/bin/python3
"""Makes the game's songs: Songs/*.mp3 and *.ogg, at -16 LUFS.

    make_songs.py [folder] [title ...]

Takes Debian's python3-numpy, lame and vorbis-tools. The seed is fixed and nothing is drawn but
noise: every run plays the same.
"""

import pathlib
import subprocess
import sys
import tempfile
import wave

import numpy as np

from arranging import Arrangement
from mixing import mastered
from songs import SONGS
from synth import RATE, SEED

LOUDNESS = -16.0  # LUFS
CEILING = 10 ** (-2.5 / 20)  # of true peaks: lossy coding adds up to a decibel
ARTIST, LICENCE = "KOV", "CC0 1.0"


def write_wav(path, sound):
    """16 bits with triangular dither, except where there is silence."""
    rng = np.random.RandomState(SEED)
    dither = rng.uniform(-0.5, 0.5, sound.shape) + rng.uniform(-0.5, 0.5, sound.shape)
    samples = np.round(sound * 32767 + dither * (np.abs(sound) > 1e-7)).astype("<i2")
    with wave.open(str(path), "wb") as out:
        out.setnchannels(2)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(samples.T.tobytes())


def encode(wav, path, title):
    if path.suffix == ".mp3":
        tags = ["--tt", title, "--ta", ARTIST, "--tv", f"TCOP={LICENCE}"]
        command = ["lame", "--quiet", "-V", "4", *tags, wav, path]
    else:
        tags = ["-t", title, "-a", ARTIST, "-c", f"LICENSE={LICENCE}"]
        command = ["oggenc", "-Q", "-q", "4", "-s", "1", *tags, "-o", path, wav]
    subprocess.run(list(map(str, command)), check=True)


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "Songs")
    folder.mkdir(exist_ok=True)
    for song in SONGS:
        if sys.argv[2:] and song.title not in sys.argv[2:]:
            continue
        sound = mastered(Arrangement(song).play(), LOUDNESS, CEILING)
        with tempfile.TemporaryDirectory() as scratch:
            wav = pathlib.Path(scratch) / "song.wav"
            write_wav(wav, sound)
            encode(wav, folder / song.file, song.title)
        print(f"{song.title}: {sound.shape[1] / RATE:.1f} s", flush=True)


if __name__ == "__main__":
    main()
