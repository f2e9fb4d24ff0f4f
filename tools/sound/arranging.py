"""Turns a song's note data into sound. See songs.py for the data, and for how it is written."""

import dataclasses
import re

import numpy as np

import mixing
import synth
from synth import KIT, RATE

STEPS = 16  # in a bar: sixteenths of 4/4
LEAD_IN = 0.02  # s before the first note
NAMES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}
QUALITIES = {
    "": (0, 4, 7),
    "m": (0, 3, 7),
    "maj7": (0, 4, 7, 11),
    "m7": (0, 3, 7, 10),
    "7": (0, 4, 7, 10),
    "m7b5": (0, 3, 6, 10),
    "sus4": (0, 5, 7),
    "add9": (0, 2, 4, 7),
    "madd9": (0, 2, 3, 7),
}


@dataclasses.dataclass
class Section:
    chords: str  # one a bar; "~" holds the one before; slash basses as in "D/F#"
    lead: str = ""
    counter: str = ""
    arp: str = ""  # per sixteenth the index of a chord tone, or "."
    bass: str = ""  # per sixteenth r root, 5 fifth, o octave; "-" holds, "." is silent
    drums: str = ""  # names of the song's patterns, one a bar; the last stays
    pad: bool = True
    fill: str = "toms"  # at the end of each eight bars: toms, roll, or none
    crash: bool = True  # on the first beat
    rise: bool = False  # noise that climbs through the last two bars
    arp_cut: tuple = (2600, 2600)  # Hz, from the first bar to the last
    pad_cut: tuple = (1500, 1500)
    lead_sound: str = "lead"
    levels: dict = dataclasses.field(default_factory=dict)  # by part, 1 where not given


@dataclasses.dataclass
class Song:
    title: str
    file: str
    tempo: float  # beats a minute
    sections: list
    patterns: dict  # name: {drum: per sixteenth x loud, o soft, "." silent}
    lead_shape: str = "saw"
    arp_shape: str = "saw"
    lead_bright: float = 4200  # Hz
    bass_bright: float = 900  # Hz
    arp_low: int = 64  # lowest pitch of the arpeggio
    pad_low: int = 52
    echo_steps: int = 3
    room: float = 1.8  # s
    duck: float = 0.55
    mix: dict = dataclasses.field(default_factory=dict)


MIX = {"drums": 0.85, "bass": 0.62, "pad": 0.5, "arp": 0.54, "lead": 0.54, "counter": 0.36,
       "noise": 0.4}
ECHO = {"arp": 0.3, "lead": 0.26, "counter": 0.2}  # sent to the echo
ROOM = {"pad": 0.25, "arp": 0.14, "lead": 0.2, "counter": 0.3, "noise": 0.2, "drums": 0.035}
FILLS = {
    "toms": {"snare": "....x...x.......", "high": "..........xx....", "mid": "............xx..",
             "low": "..............xx"},
    "roll": {"snare": "x.o.x.o.x.oox.xx"},
}


def pitch_of(name):
    letter, accidental, octave = re.fullmatch(r"([A-G])([#b]?)(-?\d)?", name).groups()
    return NAMES[letter] + {"#": 1, "b": -1, "": 0}[accidental] + 12 * (int(octave or 0) + 1)


def chord_of(symbol):
    """Pitch classes, the root first, and the class of the bass."""
    upper, _, below = symbol.partition("/")
    root, quality = re.fullmatch(r"([A-G][#b]?)(.*)", upper).groups()
    classes = [(pitch_of(root) + step) % 12 for step in QUALITIES[quality]]
    return classes, pitch_of(below) % 12 if below else classes[0]


def tones_from(classes, low, count):
    """The first `count` chord tones upwards from a pitch: neighbouring chords stay close."""
    return [p for p in range(low, low + 60) if p % 12 in classes][:count]


def tiled(patterns, bars):
    """A part's patterns, one after the other and over again, as one line of sixteenths."""
    line = "".join(patterns.split())
    assert len(line) % STEPS == 0, f"not whole bars: {patterns}"
    return (line * bars)[: bars * STEPS]


def melody_of(text):
    """(step, pitch, steps) of a line such as "E5.6 -.2 ~.8 |": pitch.length, rest, tie."""
    notes, at = [], 0
    for bar in filter(None, (b.strip() for b in text.split("|"))):
        start = at
        for token in bar.split():
            name, length = token.rsplit(".", 1)
            if name == "~":
                step, pitch, before = notes[-1]
                notes[-1] = (step, pitch, before + int(length))
            elif name != "-":
                notes.append((at, pitch_of(name), int(length)))
            at += int(length)
        assert at - start == STEPS, f"a bar of {at - start} steps: {bar}"
    return notes


class Arrangement:
    """Plays a song, section by section, onto a bus for each part."""

    def __init__(self, song):
        self.song = song
        self.step = 60 / song.tempo / 4  # s
        self.mix = {**MIX, **song.mix}
        bars = sum(len(s.chords.split()) for s in song.sections)
        seconds = LEAD_IN + bars * STEPS * self.step + 2.5
        self.length = int(np.ceil(seconds * 10)) * RATE // 10
        self.buses = {part: np.zeros((2, self.length)) for part in MIX}
        self.kicks = []

    def place(self, part, step, sound, level=1.0):
        at = int((LEAD_IN + step * self.step) * RATE)
        sound = sound[:, : self.length - at]
        self.buses[part][:, at : at + sound.shape[1]] += sound * level

    def play(self):
        first = 0
        for section in self.song.sections:
            self.bars = self.chords_of(section)
            self.play_pad(section, first)
            self.play_bass(section, first)
            self.play_arp(section, first)
            self.play_lines(section, first)
            self.play_drums(section, first)
            first += len(self.bars) * STEPS
        return self.mixed()

    def chords_of(self, section):
        bars = []
        for symbol in section.chords.split():
            bars.append((*bars[-1][:2], True) if symbol == "~" else (*chord_of(symbol), False))
        return bars

    def cut(self, ends, bar):
        share = bar / max(1, len(self.bars) - 1)
        return ends[0] * (ends[1] / ends[0]) ** share

    def play_pad(self, section, first):
        if not section.pad:
            return
        for bar, (classes, _, held) in enumerate(self.bars):
            if held:
                continue
            count = 1
            while bar + count < len(self.bars) and self.bars[bar + count][2]:
                count += 1
            sound = synth.pad(
                tuple(tones_from(classes, self.song.pad_low, 4)),
                count * STEPS * self.step,
                section.levels.get("pad", 1.0),
                self.cut(section.pad_cut, bar),
                self.cut(section.pad_cut, bar + count),
            )
            self.place("pad", first + bar * STEPS, sound)

    def play_bass(self, section, first):
        line = tiled(section.bass, len(self.bars))
        for run in re.finditer(r"[r5o]-*", line):
            classes, root, _ = self.bars[run.start() // STEPS]
            low = 28 + (root - 28) % 12  # E1 to D#2
            pitch = low + {"r": 0, "o": 12, "5": (classes[2] - classes[0]) % 12}[run.group()[0]]
            accent = 1.0 if run.start() % 4 == 0 else 0.88
            held = len(run.group()) * self.step * 0.92
            sound = synth.bass(pitch, held, accent, self.song.bass_bright)
            self.place("bass", first + run.start(), sound, section.levels.get("bass", 1.0))

    def play_arp(self, section, first):
        for step, tone in enumerate(tiled(section.arp, len(self.bars))):
            if tone == ".":
                continue
            bar = step // STEPS
            pitch = tones_from(self.bars[bar][0], self.song.arp_low, 10)[int(tone)]
            accent = 1.0 if step % 4 == 0 else 0.78 if step % 2 == 0 else 0.64
            bright = round(self.cut(section.arp_cut, bar))
            sound = synth.pluck(pitch, self.step * 1.1, accent, bright, self.song.arp_shape)
            self.place("arp", first + step, sound, section.levels.get("arp", 1.0))

    def play_lines(self, section, first):
        bright = self.song.lead_bright
        before = None
        for step, pitch, length in melody_of(section.lead):
            held, level = length * self.step * 0.94, 1.0 if step % 8 == 0 else 0.9
            if section.lead_sound == "bell":
                sound = synth.bell(pitch, held, level, bright)
            else:
                sound = synth.lead(pitch, held, level, bright, self.song.lead_shape, before)
            self.place("lead", first + step, sound, section.levels.get("lead", 1.0))
            before = pitch
        for step, pitch, length in melody_of(section.counter):
            sound = synth.lead(pitch, length * self.step * 0.96, 0.9, bright * 0.45, "square")
            self.place("counter", first + step, sound, section.levels.get("counter", 1.0))

    def play_drums(self, section, first):
        count = len(self.bars)
        if section.crash:
            self.place("drums", first, KIT["crash"], 0.7)
        if section.rise:
            self.place("noise", first + (count - 2) * STEPS, synth.riser(2 * STEPS * self.step))
        names = section.drums.split()
        for bar in range(count if names else 0):
            name = names[min(bar, len(names) - 1)]
            pattern = dict(self.song.patterns[name])
            if section.fill in FILLS and (bar % 8 == 7 or bar == count - 1):
                pattern.update(FILLS[section.fill])
            for drum, line in pattern.items():
                self.play_drum(drum, line, first + bar * STEPS, section.levels.get("drums", 1.0))

    def play_drum(self, drum, line, first, level):
        for step, mark in enumerate(line):
            if mark == ".":
                continue
            self.place("drums", first + step, KIT[drum], level * (1.0 if mark == "x" else 0.45))
            if drum == "kick":
                self.kicks.append(int((LEAD_IN + (first + step) * self.step) * RATE))

    def mixed(self):
        """The buses ducked under the kick, with echo and room, to the end's fade."""
        song = self.song
        duck = mixing.ducking(self.length, self.kicks, song.duck, 0.13)
        depth = {"pad": 1.0, "bass": 0.8, "arp": 0.6, "lead": 0.2, "counter": 0.4}
        for part, bus in self.buses.items():
            bus *= self.mix[part] * (1 - (1 - duck) * depth.get(part, 0.0))
        sent = sum(self.buses[part] * share for part, share in ECHO.items())
        echoes = mixing.echo(sent, song.echo_steps * self.step, 0.55)
        roomy = sum(self.buses[part] * share for part, share in ROOM.items()) + echoes * 0.3
        total = sum(self.buses.values()) + echoes + mixing.reverb(roomy, song.room)
        fade = np.clip((self.length - np.arange(self.length)) / (1.8 * RATE), 0, 1)
        return total * (0.5 - 0.5 * np.cos(np.pi * fade))
