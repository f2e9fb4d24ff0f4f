"""Oscillators, instruments and drums of the songs.

A sound is an array of two rows, left and right, at RATE. Levels are linear, pitches are MIDI
numbers (69 = 440 Hz), times are seconds, cutoffs Hz.
"""

import functools

import numpy as np

RATE = 44100  # Hz
TOP = 16000.0  # Hz: no oscillator has a partial above it, so nothing folds back
TABLE = 4096  # samples of a cycle
ROWS, ROWS_PER_OCTAVE = 44, 4  # a table's filters: from half the pitch up, by quarter octaves
SEED = 20261124


def hertz(pitch):
    return 440.0 * 2.0 ** ((pitch - 69) / 12)


def clock(seconds):
    return np.arange(int(seconds * RATE)) / RATE


def both(mono, pan=0.0):
    """Equal-power panning, -1 left to 1 right."""
    angle = (pan + 1) * np.pi / 4
    return np.stack([mono * np.cos(angle), mono * np.sin(angle)]) * np.sqrt(2)


# Oscillators


@functools.lru_cache(maxsize=256)
def cycles(shape, partials, resonance):
    """A cycle of a wave of so many partials; each row lets a quarter octave more through."""
    n = np.arange(1, partials + 1)
    levels = {"saw": 1 / n, "square": (n % 2) / n * 1.3,
              "pulse": np.sin(n * np.pi * 0.22) / n * 1.5}
    rows = []
    for row in range(ROWS):
        x = n / 2.0 ** (row / ROWS_PER_OCTAVE - 1)
        spectrum = np.zeros(TABLE // 2 + 1, complex)
        spectrum[1 : partials + 1] = -1j * levels[shape] / np.hypot(1 - x * x, x / resonance)
        rows.append(np.fft.irfft(spectrum) * TABLE / 2)
    rows = np.array(rows)
    return np.concatenate([rows, rows[:, :1]], axis=1).astype(np.float32).ravel()


def wave(shape, pitch_hz, cutoff, resonance=0.9, phase=0.0):
    """A wave through a low-pass of two poles. `pitch_hz` and `cutoff` are arrays of one length."""
    partials = max(1, min(256, int(TOP / pitch_hz.max())))
    table = cycles(shape, partials, resonance)
    place = (phase + np.cumsum(pitch_hz) / RATE) % 1.0 * TABLE
    row = np.clip((np.log2(cutoff / pitch_hz) + 1) * ROWS_PER_OCTAVE, 0, ROWS - 1.001)
    column, line = place.astype(int), row.astype(int)
    right, up = place - column, row - line
    at = line * (TABLE + 1) + column
    low = table[at] * (1 - right) + table[at + 1] * right
    high = table[at + TABLE + 1] * (1 - right) + table[at + TABLE + 2] * right
    return low * (1 - up) + high * up


def ramp(a, b, count):
    """From a to b by equal ratios."""
    return a * (b / a) ** np.linspace(0, 1, count)


def envelope(held, attack, decay, sustain, release):
    """Raised-cosine attack, exponential decay, a release that reaches zero."""
    t = clock(held + release)
    rise = 0.5 - 0.5 * np.cos(np.pi * np.clip(t / attack, 0, 1))
    body = sustain + (1 - sustain) * np.exp(-np.maximum(0, t - attack) / decay)
    fall = 0.5 + 0.5 * np.cos(np.pi * np.clip((t - held) / release, 0, 1))
    return rise * body * fall**2


# Instruments: pitch, time held, level, brightness (Hz)


@functools.lru_cache(maxsize=4096)
def bass(pitch, held, level, bright):
    shape = envelope(held, 0.004, 0.25, 0.55, 0.05)
    t = np.arange(len(shape)) / RATE
    tone = np.full(len(t), hertz(pitch))
    cutoff = bright * (0.25 + 0.75 * np.exp(-t / 0.11))
    dry = 0.6 * wave("saw", tone, cutoff, 1.3) + 0.3 * wave("square", tone * 1.003, cutoff, 1.3)
    low = 0.75 * np.sin(2 * np.pi * hertz(pitch) * t)
    return both(np.tanh(1.4 * (dry + low)) * 0.7 * shape * level)


@functools.lru_cache(maxsize=4096)
def pluck(pitch, held, level, bright, shape="saw"):
    form = envelope(held, 0.003, 0.13, 0.12, 0.09)
    t = np.arange(len(form)) / RATE
    tone = np.full(len(t), hertz(pitch))
    cutoff = 320 + 1.3 * bright * np.exp(-t / 0.09)
    left = wave(shape, tone * 0.9985, cutoff, 1.6)
    right = wave(shape, tone * 1.0015, cutoff, 1.6, 0.3)
    return np.stack([left, right]) * form * level * 0.5


@functools.lru_cache(maxsize=4096)
def lead(pitch, held, level, bright, shape="saw", before=None):
    """`before` is the pitch that it slides from."""
    form = envelope(held, 0.008, 0.35, 0.72, 0.12)
    t = np.arange(len(form)) / RATE
    slide = (before - pitch if before else 0) * np.exp(-t / 0.018)
    vibrato = 0.16 * np.sin(2 * np.pi * 5.4 * t) * np.clip((t - 0.22) / 0.25, 0, 1)
    tone = hertz(pitch + slide + vibrato)
    cutoff = bright * (0.55 + 0.45 * np.exp(-t / 0.25))
    middle = wave("pulse", tone, cutoff)
    left = wave(shape, tone * 0.9965, cutoff, 0.9, 0.2)
    right = wave(shape, tone * 1.0035, cutoff, 0.9, 0.6)
    return np.stack([middle + left, middle + right]) * form * level * 0.36


@functools.lru_cache(maxsize=4096)
def bell(pitch, held, level, bright):
    del bright
    form = envelope(held, 0.003, 0.5, 0.15, 0.5)
    t = np.arange(len(form)) / RATE
    tone = 2 * np.pi * hertz(pitch) * t
    partials = ((1, 1.0, 2.0), (2, 0.35, 0.7), (3.01, 0.22, 0.3), (5.04, 0.1, 0.12))
    mono = sum(a * np.sin(n * tone) * np.exp(-t / life) for n, a, life in partials)
    return both(mono * form * level * 0.42)


def pad(pitches, held, level, bright, brighter):
    """A chord of detuned saws, opening from one cutoff to the other."""
    form = envelope(held, min(0.35, held / 3), 1.0, 0.9, 0.5)
    rng = np.random.RandomState(SEED)
    cutoff = ramp(bright, brighter, len(form))
    sound = np.zeros((2, len(form)))
    for pitch in pitches:
        for cents, pan in ((-9, -0.8), (-3, 0.5), (4, -0.4), (10, 0.8)):
            tone = np.full(len(form), hertz(pitch + cents / 100))
            sound += both(wave("saw", tone, cutoff, 0.8, rng.rand()), pan)
    return sound * form * level * 0.1


# Drums


def spectrum_size(count):
    """A length of few prime factors, at most a sixteenth longer: its transform is quick."""
    unit = 1 << max(0, count.bit_length() - 5)
    return -(-count // unit) * unit


def filtered(samples, low, high, treble=1.0):
    """Band-pass with soft edges, by spectrum; `treble` is the gain far above 3 kHz."""
    count = samples.shape[-1]
    size = spectrum_size(count)
    f = np.fft.rfftfreq(size, 1 / RATE)
    shape = 1 / np.sqrt(1 + (low / np.maximum(f, 1)) ** 6) / np.sqrt(1 + (f / high) ** 8)
    shape *= 1 + (treble - 1) / (1 + (3000 / np.maximum(f, 1)) ** 2)
    return np.fft.irfft(np.fft.rfft(samples, size) * shape, size)[..., :count]


def hiss(seconds, low, high, salt, sides=2):
    rng = np.random.RandomState(SEED + salt)
    return filtered(rng.uniform(-1, 1, (sides, int(seconds * RATE))), low, high)


def decaying(seconds, life, attack=0.0015):
    """An envelope that starts and ends at zero."""
    t = clock(seconds)
    tail = 0.5 + 0.5 * np.cos(np.pi * np.clip(1 - (seconds - t) / (0.3 * seconds), 0, 1))
    return np.clip(t / attack, 0, 1) * np.exp(-t / life) * tail


def kick(deep=46.0, life=0.16):
    t = clock(0.42)
    sweep = (deep * t + 115 * 0.028 * (1 - np.exp(-t / 0.028))
             + 180 * 0.006 * (1 - np.exp(-t / 0.006)))
    body = np.tanh(1.8 * np.sin(2 * np.pi * sweep) * decaying(0.42, life)) * 0.95
    click = hiss(0.42, 1500, 7000, 1, 1)[0] * decaying(0.42, 0.006) * 0.35
    return both(body + click) * 0.85


def snare(tone=190.0, life=0.11):
    t = clock(0.36)
    body = np.sin(2 * np.pi * (tone * t + 1.2 * (1 - np.exp(-t / 0.012)))) * decaying(0.36, 0.07)
    return both(body * 0.5) + hiss(0.36, 900, 9500, 2) * decaying(0.36, life) * 0.75


def clap():
    sound = np.zeros((2, int(0.4 * RATE)))
    for start, level in ((0.0, 0.6), (0.011, 0.7), (0.023, 1.0)):
        life = 0.1 if level == 1.0 else 0.006
        burst = hiss(0.37, 800, 6500, 3) * decaying(0.37, life) * level
        at = int(start * RATE)
        sound[:, at : at + burst.shape[1]] += burst
    return sound * 0.8


def hat(seconds, life, salt):
    return hiss(seconds, 7500, 14000, salt) * decaying(seconds, life) * 0.55


def tom(tone):
    t = clock(0.4)
    sweep = tone * t + 1.6 * (1 - np.exp(-t / 0.04))
    return both(np.sin(2 * np.pi * sweep) * decaying(0.4, 0.13) * 0.8)


def crash():
    return hiss(1.9, 3000, 13000, 7) * decaying(1.9, 0.55, 0.003) * 0.5


def riser(seconds):
    """Noise whose band climbs; it ends softly just before the bar line."""
    t = clock(seconds)
    share = t / seconds
    layers = [hiss(seconds, f, f * 2, 20 + i, 2) for i, f in enumerate((400, 900, 2000, 4500))]
    peaks = [np.exp(-(((share * 4.2 - i) / 0.9) ** 2)) for i in range(4)]
    swell = share**1.6 * np.clip((seconds - t) / 0.06, 0, 1)
    return sum(layer * peak for layer, peak in zip(layers, peaks)) * swell * 0.5


KIT = {
    "kick": kick(),
    "snare": snare(),
    "clap": clap(),
    "hat": hat(0.09, 0.022, 4),
    "open": hat(0.34, 0.12, 5),
    "high": tom(150.0),
    "mid": tom(112.0),
    "low": tom(82.0),
    "crash": crash(),
}
