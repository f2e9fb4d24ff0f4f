#!/usr/bin/env python3
"""Makes the game's ten sound effects: Sounds/*.wav, 44.1 kHz, 16 bit, mono.

Needs nothing but Python. The seed is fixed: every run writes the same bytes.
Each effect is a sum of voices; each voice is a sine with a few band-limited harmonics whose
pitch glides, under an envelope that starts and ends at zero.
"""

import math
import pathlib
import random
import struct
import sys
import wave

RATE = 44100  # Hz
PEAK = 10 ** (-1.5 / 20)  # -1.5 dBFS
SEED = 20261124


def envelope(t, length, attack, release):
    """Raised-cosine attack and release, with a gentle decay between."""
    rise = 0.5 - 0.5 * math.cos(math.pi * min(1.0, t / attack))
    fall = 0.5 - 0.5 * math.cos(math.pi * min(1.0, max(0.0, length - t) / release))
    return rise * fall * math.exp(-1.2 * t / length)


def voice(start, length, pitch, level=1.0, attack=0.005, release=0.05, harmonics=(1.0,), wobble=0.0):
    """Samples of one voice; `pitch` gives Hz by the share of its time that has gone."""
    samples = [0.0] * int((start + length) * RATE + 1)
    phase = 0.0
    first = int(start * RATE)
    count = int(length * RATE)
    for i in range(count):
        t = i / RATE
        hertz = pitch(t / length) * (1.0 + wobble * math.sin(2 * math.pi * 6.0 * t))
        phase += 2 * math.pi * hertz / RATE
        value = sum(
            h * math.sin((n + 1) * phase)
            for n, h in enumerate(harmonics)
            if (n + 1) * hertz < 16000  # nothing above: no aliasing
        )
        samples[first + i] = level * envelope(t, length, attack, release) * value
    return samples


def noise(rng, start, length, level, cutoff, attack=0.005, release=0.05):
    """Low-passed noise; `cutoff` gives Hz by the share of its time that has gone."""
    samples = [0.0] * int((start + length) * RATE + 1)
    first, count, low = int(start * RATE), int(length * RATE), 0.0
    for i in range(count):
        t = i / RATE
        share = 1.0 - math.exp(-2 * math.pi * cutoff(t / length) / RATE)
        low += share * (rng.uniform(-1, 1) - low)
        samples[first + i] = level * envelope(t, length, attack, release) * low
    return samples


def glide(a, b):
    return lambda share: a * (b / a) ** share


def steady(a):
    return lambda share: a


def notes(pitches, step, length, **options):
    return [voice(i * step, length, steady(p), **options) for i, p in enumerate(pitches)]


SOFT = (1.0, 0.35, 0.12)
BRIGHT = (1.0, 0.5, 0.33, 0.2, 0.12)
HOLLOW = (1.0, 0.0, 0.4, 0.0, 0.18)


def effects(rng):
    """Name, voices, peak as a share of the loudest allowed."""
    yield "bullet", [
        voice(0, 0.11, glide(1500, 420), 0.8, 0.002, 0.05, SOFT),
        noise(rng, 0, 0.04, 0.4, glide(7000, 1200), 0.002, 0.03),
    ], 0.35
    yield "hit", [
        voice(0, 0.13, glide(300, 140), 0.9, 0.002, 0.06, HOLLOW),
        noise(rng, 0, 0.05, 0.6, glide(3000, 600), 0.002, 0.04),
    ], 0.4
    yield "square", (
        notes([523.25, 659.26, 783.99, 1046.5], 0.07, 0.5, attack=0.004, release=0.3, harmonics=SOFT)
        + [voice(0.28, 0.7, steady(1568.0), 0.4, 0.004, 0.5, SOFT)]
    ), 1.0
    yield "alive", [
        voice(0, 0.7, glide(220, 880), 0.8, 0.05, 0.2, SOFT),
        voice(0.1, 0.7, glide(330, 1320), 0.5, 0.05, 0.25, SOFT),
    ], 0.9
    yield "death", [
        voice(0, 1.2, glide(660, 55), 0.8, 0.005, 0.4, BRIGHT, 0.02),
        voice(0, 1.2, glide(622, 52), 0.6, 0.005, 0.4, HOLLOW, 0.03),
        noise(rng, 0, 0.9, 0.8, glide(5000, 150), 0.005, 0.5),
    ], 1.0
    yield "Clear", [
        noise(rng, 0, 1.1, 1.6, lambda s: 200 + 7000 * math.sin(math.pi * s) ** 2, 0.15, 0.4),
        voice(0, 1.1, lambda s: 200 + 1200 * math.sin(math.pi * s), 0.5, 0.1, 0.4, SOFT),
    ], 1.0
    yield "Immune", [
        voice(0, 1.1, steady(p), 0.5, 0.08, 0.5, SOFT, w)
        for p, w in [(587.33, 0.006), (880.0, 0.009), (1174.66, 0.012), (1760.0, 0.015)]
    ], 0.9
    yield "Pup", notes(
        [1318.5, 1568.0, 1975.5, 2637.0], 0.055, 0.22, attack=0.003, release=0.15, harmonics=(1.0, 0.2)
    ), 0.9
    yield "Bad", [
        voice(start, 0.13, steady(p), 0.8, 0.004, 0.05, HOLLOW)
        for start in (0.0, 0.16)
        for p in (138.6, 146.8)
    ], 0.9
    yield "Pause", notes([440.0, 440.0], 0.14, 0.13, attack=0.006, release=0.07, harmonics=SOFT), 0.8


def write(path, voices, share, rng):
    mix = [0.0] * max(len(v) for v in voices)
    for samples in voices:
        for i, value in enumerate(samples):
            mix[i] += value
    loudest = max(abs(v) for v in mix)
    scale = PEAK * share / loudest * 32767
    data = [round(v * scale + (rng.random() - rng.random()) * (0.5 if v else 0)) for v in mix]
    data[0] = data[-1] = 0
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(struct.pack(f"<{len(data)}h", *data))


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "Sounds")
    folder.mkdir(exist_ok=True)
    for name, voices, share in effects(random.Random(SEED)):
        write(folder / f"{name}.wav", voices, share, random.Random(SEED))


if __name__ == "__main__":
    main()
