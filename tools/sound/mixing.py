"""Echo, reverberation, ducking, loudness and the limiter of the songs. Sounds as in synth.py."""

import numpy as np

from synth import RATE, SEED, filtered, spectrum_size

BLOCK, STRIDE = int(0.4 * RATE), int(0.1 * RATE)  # of the loudness measure
TREBLE = 10 ** (4 / 20)  # the master's shelf
ABSOLUTE_GATE, RELATIVE_GATE = -70.0, -10.0  # LUFS, LU


def convolved(sound, response):
    size = spectrum_size(sound.shape[1] + response.shape[1])
    wet = np.fft.irfft(np.fft.rfft(sound, size) * np.fft.rfft(response, size), size)
    return wet[:, : sound.shape[1]]


def echo(sound, step, feedback, repeats=7):
    """Repeats from side to side, each darker than the one before. `step` in seconds."""
    response = np.zeros((2, int((repeats * step + 0.2) * RATE)))
    for repeat in range(1, repeats + 1):
        tap = np.zeros(response.shape[1])
        tap[int(repeat * step * RATE)] = feedback ** (repeat - 1)
        tap = filtered(tap, 180, 6500 / repeat**0.7)
        near, far = (0, 1) if repeat % 2 else (1, 0)
        response[near] += tap
        response[far] += 0.25 * tap
    return convolved(sound.mean(axis=0, keepdims=True), response)


def reverb(sound, seconds):
    """A room: two sides of noise that dies away, the treble sooner than the bass."""
    rng = np.random.RandomState(SEED + 50)
    count = int(seconds * 1.3 * RATE)
    t = np.arange(count) / RATE
    response = np.zeros((2, count))
    for low, high, share in ((150, 700, 1.0), (700, 2500, 0.8), (2500, 7000, 0.5)):
        noise = filtered(rng.normal(size=(2, count)), low, high)
        response += noise * 10.0 ** (-3 * t / (seconds * share))
    response *= np.clip(t / 0.012, 0, 1) * np.clip((t[-1] - t) / 0.05, 0, 1)
    response /= np.sqrt((response**2).sum(axis=1, keepdims=True))
    return convolved(filtered(sound, 220, 9000), response)


def ducking(length, hits, depth, life):
    """A gain that dips at each hit (sample numbers) and swells back."""
    t = np.arange(-int(0.006 * RATE), int(5 * life * RATE)) / RATE
    dip = np.where(t < 0, 0.5 + 0.5 * np.cos(np.pi * t / 0.006), np.exp(-((t / life) ** 2)))
    gain = np.zeros(length)
    for hit in hits:
        first = max(0, hit + int(t[0] * RATE))
        part = dip[: length - first]
        gain[first : first + part.size] = np.maximum(gain[first : first + part.size], part)
    return 1 - depth * gain


def oversampled(sound, times):
    count = sound.shape[-1]
    size = spectrum_size(count)
    return np.fft.irfft(np.fft.rfft(sound, size), size * times)[..., : count * times] * times


def saturated(sound, drive):
    """Soft clipping at four times the rate, so that its overtones don't fold back."""
    count = sound.shape[-1]
    size = spectrum_size(count)
    fine = np.tanh(oversampled(sound, 4) * drive) / drive
    spectrum = np.fft.rfft(fine, size * 4)[..., : size // 2 + 1]
    return np.fft.irfft(spectrum, size)[..., :count] / 4


def least_around(values, reach):
    """The least of the values up to `reach` to either side."""
    least, span = values, 1
    while span < 2 * reach + 1:
        step = min(span, 2 * reach + 1 - span)
        least = np.minimum(least[: least.size - step], least[step:])
        span += step
    return np.pad(least, reach, mode="edge")


def true_peaks(sound):
    """For each sample the greatest level between it and the next, of both sides."""
    return np.abs(oversampled(sound, 4)).max(axis=0).reshape(-1, 4).max(axis=1)


def limited(sound, peaks, ceiling):
    """Holds the true peaks under `ceiling`; the gain moves smoothly, 2 ms ahead of a peak."""
    reach = int(0.002 * RATE)
    gain = least_around(np.minimum(1, ceiling / np.maximum(peaks, 1e-9)), reach)
    window = np.hanning(2 * reach + 1)
    gain = np.convolve(np.pad(gain, reach, mode="edge"), window / window.sum(), "valid")
    return sound * gain


def loudness(sound):
    """Integrated loudness in LUFS, gated, by ITU-R BS.1770-4."""
    size = spectrum_size(sound.shape[1])
    turn = np.exp(-2j * np.pi * np.fft.rfftfreq(size, 1 / RATE) / 48000)
    shelf = (1.53512485958697 - 2.69169618940638 * turn + 1.19839281085285 * turn**2) / (
        1 - 1.69065929318241 * turn + 0.73248077421585 * turn**2
    )
    high = (1 - turn) ** 2 / (1 - 1.99004745483398 * turn + 0.99007225036621 * turn**2)
    heard = np.fft.irfft(np.fft.rfft(sound, size) * shelf * high, size)[:, : sound.shape[1]]
    sums = np.concatenate([[0], np.cumsum((heard**2).sum(axis=0))])
    starts = np.arange(0, sound.shape[1] - BLOCK, STRIDE)
    power = (sums[starts + BLOCK] - sums[starts]) / BLOCK
    decibels = lambda p: -0.691 + 10 * np.log10(np.maximum(p, 1e-12))
    power = power[decibels(power) > ABSOLUTE_GATE]
    return decibels(power[decibels(power) > decibels(power.mean()) + RELATIVE_GATE].mean())


def mastered(sound, target, ceiling):
    """Low rumble out, glued by saturation, at `target` LUFS with true peaks under `ceiling`."""
    sound = filtered(sound, 28, 17500, treble=TREBLE)
    sound = saturated(sound * 10 ** ((-15 - loudness(sound)) / 20), 1.1)
    peaks, gain = true_peaks(sound), 1.0
    for _ in range(3):
        result = limited(sound * gain, peaks * gain, ceiling)
        gain *= 10 ** ((target - loudness(result)) / 20)
    return limited(sound * gain, peaks * gain, ceiling)
