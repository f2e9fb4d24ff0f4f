#!/usr/bin/env python3
"""Makes the game's ten sound effects: Sounds/*.wav, 44.1 kHz, 16 bit, mono.

Needs nothing but Python. The seed is fixed: every run writes the same bytes.
Each effect is a sum of voices; each voice is a sine with a few band-limited harmonics whose
pitch glides, under an envelope that starts and ends at zero. The mix is then brought to the
effect's loudness.
"""

import math
import pathlib
import random
import struct
import sys
import wave

RATE = 44100  # Hz
PEAK = 10 ** (-1.2 / 20)  # -1.2 dBFS: none may be louder
WINDOW = int(0.4 * RATE)  # of the loudness measure
SEED = 20261124


def envelope(t, length, attack, release):
    """Raised-cosine attack and release, with a gentle decay between."""
    rise = 0.5 - 0.5 * math.cos(math.pi * min(1.0, t / attack))
    fall = 0.5 - 0.5 * math.cos(math.pi * min(1.0, max(0.0, length - t) / release))
    return rise * fall * math.exp(-1.2 * t / length)


def voice(start, length, pitch, level=1.0, attack=0.005, release=0.05, harmonics=(1.0,),
          wobble=0.0):
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


def swept(rng, start, length, level, centre, attack=0.005, release=0.05, width=0.5):
    """Noise through a band-pass whose `centre` moves: Hz by the share of its time that has gone."""
    samples = [0.0] * int((start + length) * RATE + 1)
    first, low, band = int(start * RATE), 0.0, 0.0
    for i in range(int(length * RATE)):
        t = i / RATE
        f = 2 * math.sin(math.pi * centre(t / length) / RATE)  # Chamberlin's two-pole filter
        low += f * band
        band += f * (rng.uniform(-1, 1) - low - width * band)
        samples[first + i] = level * envelope(t, length, attack, release) * band
    return samples


def pulsing(samples, rate, depth):
    """Tremolo at `rate` Hz by the share of its time that has gone."""
    phase, out = 0.0, []
    for i, value in enumerate(samples):
        phase += 2 * math.pi * rate(i / len(samples)) / RATE
        out.append(value * (1 - depth * (0.5 - 0.5 * math.cos(phase))))
    return out


def glide(a, b):
    return lambda share: a * (b / a) ** share


def steady(a):
    return lambda share: a


def notes(pitches, step, length, **options):
    return [voice(i * step, length, steady(p), **options) for i, p in enumerate(pitches)]


SOFT = (1.0, 0.35, 0.12)
BRIGHT = (1.0, 0.5, 0.33, 0.2, 0.12)
HOLLOW = (1.0, 0.0, 0.4, 0.0, 0.18)
BUZZ = (0.7, 0.7, 0.6, 0.5, 0.4, 0.3, 0.25, 0.2, 0.15, 0.1)
GLASS = (1.0, 0.0, 0.25, 0.0, 0.0, 0.12)


def effects(rng):
    """Name, voices, loudest 400 ms in LUFS."""
    yield "bullet", [
        voice(0, 0.11, glide(1500, 420), 0.8, 0.002, 0.05, SOFT),
        noise(rng, 0, 0.04, 0.4, glide(7000, 1200), 0.002, 0.03),
    ], -23.0
    yield "hit", [
        voice(0, 0.13, glide(300, 140), 0.9, 0.002, 0.06, HOLLOW),
        noise(rng, 0, 0.05, 0.9, glide(3000, 600), 0.002, 0.04),
    ], -21.5
    yield "square", (  # a major chord climbs and rings
        notes([523.25, 659.26, 783.99, 1046.5], 0.07, 0.5, attack=0.004, release=0.3,
              harmonics=SOFT)
        + [voice(0.28, 0.7, steady(p), 0.4, 0.004, 0.5, SOFT, 0.003) for p in (1318.5, 1568.0)]
    ), -10.5
    yield "alive", [  # octaves and a fifth rise together
        voice(0, 0.7, glide(220, 880), 0.8, 0.05, 0.2, SOFT),
        voice(0.1, 0.7, glide(330, 1320), 0.5, 0.05, 0.25, SOFT),
        swept(rng, 0, 0.75, 0.25, glide(500, 6000), 0.2, 0.2),
    ], -11.5
    yield "death", [  # falls three octaves, out of tune with itself, onto a thud
        voice(0, 1.2, glide(660, 55), 0.8, 0.005, 0.4, BRIGHT, 0.02),
        voice(0, 1.2, glide(622, 52), 0.6, 0.005, 0.4, HOLLOW, 0.03),
        swept(rng, 0, 1.0, 0.5, glide(5000, 120), 0.005, 0.5),
        voice(0.78, 0.45, glide(110, 38), 0.9, 0.01, 0.3),
    ], -10.5
    yield "Clear", [  # a band of noise sweeps up over the field and a chord opens behind it
        swept(rng, 0, 1.0, 1.0, glide(180, 9000), 0.12, 0.3, 0.35),
        swept(rng, 0.25, 0.95, 0.5, glide(9000, 300), 0.3, 0.5, 0.5),
        voice(0, 0.9, glide(98, 784), 0.5, 0.1, 0.4, SOFT),
    ], -10.5
    yield "Immune", [  # high partials that beat and flicker, quicker and quicker
        pulsing(voice(0, 1.1, steady(p * tune), 0.5, 0.08, 0.5, SOFT, w),
                lambda s, r=r: r + 9 * s, 0.75)
        for p, w, r in [(587.33, 0.004, 5), (880.0, 0.006, 7), (1174.66, 0.008, 8),
                        (2349.3, 0.01, 11)]
        for tune in (0.996, 1.004)
    ], -11.5
    yield "Pup", (  # quick glassy notes up, two left ringing
        notes([1318.5, 1568.0, 1975.5, 2637.0], 0.045, 0.2, attack=0.002, release=0.14,
              harmonics=GLASS)
        + [voice(0.18, 0.34, steady(p), 0.6, 0.002, 0.3, GLASS) for p in (3136.0, 3951.1)]
    ), -12.0
    yield "Bad", [  # two buzzes a semitone rub, the second lower
        voice(start, length, steady(p * ratio), 0.8, 0.004, 0.06, BUZZ)
        for start, length, ratio in ((0.0, 0.15, 1.0), (0.18, 0.26, 0.84))
        for p in (138.6, 146.8)
    ], -13.0
    yield "Pause", notes([440.0, 440.0], 0.14, 0.13, attack=0.006, release=0.07,
                         harmonics=SOFT), -13.0


def filtered(samples, feed, back):
    """Two poles, two zeros; `back` without its leading 1."""
    x1 = x2 = y1 = y2 = 0.0
    out = []
    for x in samples:
        y = feed[0] * x + feed[1] * x1 + feed[2] * x2 - back[0] * y1 - back[1] * y2
        x1, x2, y1, y2 = x, x1, y, y1
        out.append(y)
    return out


def loudness(samples):
    """The loudest 400 ms as heard from both sides, in LUFS: ITU-R BS.1770, weights of 44.1 kHz."""
    shelf = (1.530841, -2.650980, 1.169079), (-1.663655, 0.712595)
    low_cut = (1.0, -2.0, 1.0), (-1.989170, 0.989199)
    heard = filtered(filtered(samples + [0.0] * WINDOW, *shelf), *low_cut)
    total = best = 0.0
    for i, value in enumerate(heard):
        total += value * value - (heard[i - WINDOW] ** 2 if i >= WINDOW else 0.0)
        best = max(best, total)
    return -0.691 + 10 * math.log10(2 * best / WINDOW)


def write(path, voices, target, rng):
    mix = [0.0] * max(len(v) for v in voices)
    for samples in voices:
        for i, value in enumerate(samples):
            mix[i] += value
    scale = 10 ** ((target - loudness(mix)) / 20)
    assert max(map(abs, mix)) * scale <= PEAK, f"{path.name} can't be that loud"
    dither = ((rng.random() - rng.random()) * (0.5 if v else 0) for v in mix)
    data = [round(v * scale * 32767 + d) for v, d in zip(mix, dither)]
    data[0] = data[-1] = 0
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(struct.pack(f"<{len(data)}h", *data))


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "Sounds")
    folder.mkdir(exist_ok=True)
    for name, voices, target in effects(random.Random(SEED)):
        write(folder / f"{name}.wav", voices, target, random.Random(SEED))


if __name__ == "__main__":
    main()
