"""The songs, as notes.

A melody is written bar by bar, note.sixteenths: "E5.6 B4.2 |". "-" rests, "~" ties. Chords go one
to a bar. Arpeggios, basses and drums are patterns of sixteen steps; several arpeggio patterns, with
blanks between, take turns. What each part does is told in arranging.py.
"""

from arranging import Section, Song

# Phosphor: E minor, 132. Straight ahead: one leaping motif, answered and then turned to the major.

PHOSPHOR_A = """
E5.6 B4.2 E5.4 F#5.4 | G5.6 F#5.2 E5.8 | D5.6 B4.2 D5.4 E5.4 | F#5.8 D5.4 A4.4 |
E5.6 B4.2 E5.4 F#5.4 | G5.6 A5.2 B5.8 | C6.6 B5.2 A5.4 G5.4 | F#5.8 D#5.4 B4.4 |
"""
PHOSPHOR_A2 = """
E5.3 E5.3 B4.2 E5.4 F#5.4 | G5.6 F#5.2 E5.4 G5.4 | B5.6 A5.2 G5.4 D5.4 | A5.8 F#5.4 D5.4 |
G5.3 G5.3 F#5.2 E5.4 B5.4 | C6.6 B5.2 A5.4 G5.4 | A5.6 G5.2 F#5.4 E5.4 | D#5.4 F#5.4 B5.8 |
"""
PHOSPHOR_B = """
B5.8 A5.4 G5.4 | A5.12 D5.4 | G5.8 F#5.4 E5.4 | F#5.8 D5.8 |
E5.8 G5.4 C6.4 | B5.12 G5.4 | A5.4 B5.4 C6.4 E5.4 | F#5.8 A5.8 |
B5.8 A5.4 G5.4 | A5.8 D6.8 | B5.6 A5.2 G5.4 E5.4 | F#5.8 D#5.4 F#5.4 |
G5.6 E5.2 G5.4 C6.4 | A5.6 F#5.2 A5.4 D6.4 | E6.12 D6.4 | B5.16 |
"""
PHOSPHOR_COUNTER = """
-.8 G4.4 A4.4 | G4.8 C5.8 | B4.8 G4.8 | -.8 F#4.4 A4.4 |
G4.8 B4.8 | E4.8 G4.8 | A4.8 E4.8 | D#4.8 F#4.8 |
-.8 B4.4 A4.4 | G4.12 E4.4 | D4.8 G4.8 | A4.12 F#4.4 |
B4.16 | E4.8 G4.8 | C5.8 A4.8 | B4.8 F#4.8 |
"""
PHOSPHOR_A_CHORDS = "Em C G D Em C Am B "
PHOSPHOR = Song(
    title="Phosphor",
    file="Phosphor.mp3",
    tempo=132,
    patterns={
        "soft": {"kick": "x...x...x...x...", "hat": "..o...o...o...o."},
        "drive": {
            "kick": "x...x...x...x...",
            "clap": "....x.......x...",
            "hat": "xoxoxoxoxoxoxoxo",
            "open": "..o...o...o...o.",
        },
        "full": {
            "kick": "x...x...x...x..o",
            "snare": "....x.......x...",
            "clap": "....x.......x...",
            "hat": "xoxoxoxoxoxoxoxo",
            "open": "..x...x...x...x.",
        },
        "build": {"kick": "x...x...x...x...", "snare": "o.o.o.o.o.o.x.x."},
        "end": {"kick": "x...............", "snare": "x...............", "crash": "x..............."},
        "none": {},
    },
    sections=[
        Section("Em ~ C ~", arp="0.1.2.3.2.1.2.1.", arp_cut=(500, 1100), pad_cut=(350, 800), crash=False),
        Section(
            "Em Em D B",
            arp="0121232124323212",
            drums="soft",
            bass="r-----r-..r-r-r-",
            arp_cut=(1100, 2600),
            pad_cut=(800, 1600),
            fill="roll",
            rise=True,
        ),
        Section(
            PHOSPHOR_A_CHORDS * 2,
            lead=PHOSPHOR_A + PHOSPHOR_A2,
            arp="0121232124323212",
            bass="r-r-r-o-r-r-r-o-",
            drums="drive",
            arp_cut=(1700, 2600),
            levels={"arp": 0.8},
        ),
        Section(
            "G D/F# Em D C G/B Am D G D/F# Em B C D Em Em",
            lead=PHOSPHOR_B,
            arp="0.2.4.2.3.2.4.2. 0.2.4.5.4.2.3.1.",
            bass="r--r--r-r--r-5o-",
            drums="full",
            arp_cut=(2400, 3400),
            pad_cut=(1800, 2400),
        ),
        Section(
            "Am Em Am Em",
            lead="E5.12 C5.4 | B4.16 | E5.12 F#5.4 | G5.16 |",
            lead_sound="bell",
            arp="0...2...1...3...",
            bass="r---------------",
            arp_cut=(900, 1300),
            pad_cut=(900, 1400),
            levels={"bass": 0.7, "pad": 1.2, "lead": 1.15},
        ),
        Section(
            "C G/B Am B",
            lead="G5.8 E5.8 | D5.8 B4.8 | C5.4 E5.4 A5.8 | B5.12 -.4 |",
            lead_sound="bell",
            arp="0121232124323212",
            bass="r-r-r-r-r-r-r-r-",
            drums="build",
            arp_cut=(900, 3000),
            pad_cut=(900, 2600),
            fill="roll",
            crash=False,
            rise=True,
            levels={"drums": 0.8, "lead": 1.1},
        ),
        Section(
            PHOSPHOR_A_CHORDS * 2,
            lead=PHOSPHOR_A2 + PHOSPHOR_A,
            counter=PHOSPHOR_COUNTER,
            arp="0121232124323212 0323432354345343",
            bass="r-r-r-o-r-r-r-o-",
            drums="full",
            arp_cut=(2400, 3600),
            pad_cut=(1800, 2600),
        ),
        Section(
            "C D Em ~",
            lead="G5.6 E5.2 G5.4 C6.4 | A5.6 F#5.2 A5.4 D6.4 | E6.16 | ~.16 |",
            counter="E4.8 G4.8 | F#4.8 A4.8 | B4.16 | ~.16 |",
            arp="0121232124323212 0121232124323212 0............... ................",
            bass="r-r-r-r-r-r-r-r- r-r-r-r-r-r-r-r- r--------------- ----------------",
            drums="full full end none",
            fill="none",
            arp_cut=(3400, 3000),
            pad_cut=(2400, 1600),
        ),
    ],
)

# Right Angles: D minor, 144. Threes against fours; its second theme walks the circle of fifths.

ANGLES_A = """
D5.3 D5.3 A4.2 D5.3 E5.3 F5.2 | E5.3 D5.3 C5.2 A4.8 | D5.3 D5.3 Bb4.2 D5.3 F5.3 G5.2 | E5.3 F5.3 E5.2 C5.8 |
D5.3 D5.3 A4.2 D5.3 F5.3 A5.2 | A5.3 G5.3 F5.2 E5.4 F5.4 | G5.3 A5.3 Bb5.2 A5.3 G5.3 F5.2 | E5.6 C#5.6 A4.4 |
"""
ANGLES_A2 = """
F5.3 F5.3 D5.2 F5.3 G5.3 A5.2 | G5.3 F5.3 E5.2 D5.8 | D5.3 F5.3 Bb5.2 A5.3 G5.3 F5.2 | G5.3 E5.3 C5.2 G5.8 |
A5.3 A5.3 F5.2 A5.3 Bb5.3 C6.2 | D6.6 C6.2 A5.4 F5.4 | Bb5.3 A5.3 G5.2 D5.3 G5.3 Bb5.2 | A5.6 G5.2 E5.4 C#5.4 |
"""
ANGLES_B1 = """
Bb5.8 A5.4 G5.4 | G5.6 E5.2 C5.8 | A5.8 G5.4 F5.4 | F5.6 D5.2 Bb4.8 |
G5.8 F5.4 E5.4 | E5.4 C#5.4 E5.4 A5.4 | F5.12 E5.4 | D5.8 A4.8 |
"""
ANGLES_B2 = """
Bb5.4 D6.4 C6.4 Bb5.4 | G5.8 C6.8 | A5.4 C6.4 Bb5.4 A5.4 | F5.8 Bb5.8 |
G5.4 Bb5.4 A5.4 G5.4 | A5.4 C#6.4 E6.8 | D6.16 | ~.8 A5.4 F5.4 |
"""
ANGLES_A_CHORDS = "Dm Dm Bb C Dm Dm Gm A "
ANGLES_B_CHORDS = "Gm C7 F Bbmaj7 Em7b5 A7 Dm Dm Gm C7 F Bbmaj7 Gm A7 Dm Dm "
ANGLES = Song(
    title="Right Angles",
    file="RightAngles.ogg",
    tempo=144,
    patterns={
        "tick": {"hat": "x..o..o.x..o..o.", "kick": "x..............."},
        "broken": {
            "kick": "x..x..x...x..x..",
            "snare": "....x.......x...",
            "hat": "x.o.x.o.x.o.x.oo",
        },
        "straight": {
            "kick": "x...x...x...x.x.",
            "snare": "....x.......x..o",
            "clap": "....x.......x...",
            "hat": "o.x.o.x.o.x.o.x.",
            "open": "..............x.",
        },
        "half": {"kick": "x.........x.....", "snare": "........x.......", "hat": "o...o...o...o.o."},
        "build": {"kick": "x.....x.x.....x.", "snare": "x..o..o.x..o..oo", "hat": "o.o.o.o.o.o.o.o."},
        "stabs": {"kick": "x.....x.....x...", "snare": "x.....x.....x..."},
        "end": {"kick": "x...............", "snare": "x...............", "crash": "x..............."},
    },
    lead_shape="square",
    lead_bright=4600,
    arp_shape="square",
    arp_low=62,
    pad_low=50,
    bass_bright=1250,
    echo_steps=6,
    room=1.3,
    duck=0.42,
    mix={"pad": 0.4, "bass": 0.66, "arp": 0.46, "drums": 0.9},
    sections=[
        Section(
            "Dm ~ Eb ~",
            bass="r..r..r-........",
            drums="tick",
            arp="................ ..............24",
            pad_cut=(300, 700),
            arp_cut=(900, 1500),
            fill="none",
            crash=False,
        ),
        Section(
            "Dm Dm Bb A",
            bass="r..r..r-r..r..o-",
            drums="build",
            arp="0.30.30.0.30.30.",
            pad_cut=(700, 1700),
            arp_cut=(900, 2400),
            fill="roll",
            rise=True,
        ),
        Section(
            ANGLES_A_CHORDS * 2,
            lead=ANGLES_A + ANGLES_A2,
            arp="0.30.30.1.31.31. 0.30.30.2.42.42.",
            bass="r-.r-.r-r-.r-.o-",
            drums="broken",
            arp_cut=(1500, 2300),
            levels={"arp": 0.8, "pad": 0.9},
        ),
        Section(
            ANGLES_B_CHORDS,
            lead=ANGLES_B1 + ANGLES_B2,
            arp="0213243542312010",
            bass="r-r-5-r-o-r-5-r-",
            drums="straight",
            arp_cut=(2200, 3400),
            pad_cut=(1500, 2400),
        ),
        Section(
            "Bb C Dm Dm/C",
            lead="D5.16 | E5.8 G5.8 | F5.12 E5.4 | D5.16 |",
            counter="Bb3.8 F4.8 | C4.8 E4.8 | A3.8 D4.8 | C4.8 A3.8 |",
            arp="0.....2.....3... 0.....3.....4...",
            bass="r---------r-----",
            drums="half",
            arp_cut=(1100, 1500),
            pad_cut=(1000, 1500),
            fill="none",
            levels={"lead": 0.85, "pad": 1.3},
        ),
        Section(
            "Bb Gm A A7",
            lead="D5.3 D5.3 Bb4.2 D5.8 | G5.3 G5.3 D5.2 G5.8 | A5.3 A5.3 E5.2 A5.3 Bb5.3 A5.2 | C#6.3 C#6.3 A5.2 E5.8 |",
            arp="0.30.30.1.31.31.",
            bass="r..r..r-r..r..r-",
            drums="build",
            arp_cut=(1200, 3600),
            pad_cut=(1100, 2800),
            fill="roll",
            crash=False,
            rise=True,
        ),
        Section(
            ANGLES_A_CHORDS,
            lead=ANGLES_A2,
            counter="A4.8 D4.8 | F4.8 A4.8 | Bb4.8 F4.8 | G4.8 E4.8 | A4.8 D5.8 | F4.8 D5.8 | D5.8 Bb4.8 | C#5.8 A4.8 |",
            arp="0.30.30.1.31.31. 0.30.30.2.42.42.",
            bass="r-.r-.r-r-.r-.o-",
            drums="broken",
            arp_cut=(2400, 3000),
            pad_cut=(1600, 2200),
        ),
        Section(
            ANGLES_B_CHORDS,
            lead=ANGLES_B1 + ANGLES_B2,
            counter="""
            D5.8 G4.8 | E4.8 Bb4.8 | C5.8 A4.8 | D5.8 F4.8 | Bb4.8 G4.8 | C#5.8 G4.8 | A4.8 D5.8 | F4.16 |
            G4.8 Bb4.8 | E4.8 Bb4.8 | F4.8 C5.8 | A4.8 D5.8 | Bb4.8 D5.8 | C#5.8 E5.8 | A4.8 F5.8 | A4.16 |
            """,
            arp="0213243542312010 0435241302142534",
            bass="r-r-5-r-o-r-5-r-",
            drums="straight",
            arp_cut=(2800, 3600),
            pad_cut=(1900, 2800),
        ),
        Section(
            "Bb C Bb C",
            lead="D5.3 D5.3 Bb4.2 D5.3 F5.3 G5.2 | E5.3 E5.3 C5.2 E5.3 G5.3 A5.2 | F5.3 F5.3 D5.2 F5.3 Bb5.3 D6.2 | E6.3 D6.3 C6.2 G5.3 A5.3 C6.2 |",
            arp="0.30.30.1.31.31.",
            bass="r-.r-.r-r-.r-.o-",
            drums="broken",
            fill="roll",
            arp_cut=(3000, 3600),
        ),
        Section(
            "Dm ~",
            lead="D6.6 A5.6 F5.4 | D5.16 |",
            counter="A4.6 F4.6 D4.4 | A3.16 |",
            bass="r-----r-----r--- r---------------",
            drums="stabs end",
            fill="none",
            pad_cut=(2400, 900),
        ),
    ],
)

# Afterglow: A major, 124. Warm and a little sad: a falling answer, borrowed G and D minor chords.

AFTERGLOW_A = """
C#5.4 E5.4 A5.6 G#5.2 | G#5.6 F#5.2 E5.8 | A5.4 C#6.4 B5.6 A5.2 | F#5.12 E5.4 |
C#5.4 E5.4 A5.6 B5.2 | B5.6 G#5.2 E5.8 | D6.4 C#6.4 B5.4 A5.4 | G#5.8 B5.8 |
"""
AFTERGLOW_A2 = """
C#6.6 B5.2 A5.4 E5.4 | B5.6 A5.2 G#5.4 E5.4 | A5.6 G#5.2 F#5.4 C#5.4 | F#5.4 A5.4 D6.8 |
C#6.6 B5.2 A5.4 C#6.4 | B5.4 E6.4 B5.8 | D6.6 C#6.2 B5.4 F#5.4 | A5.4 G#5.4 E5.8 |
"""
AFTERGLOW_B = """
F#5.6 G#5.2 A5.8 | G#5.6 E5.2 C#5.8 | F#5.6 G#5.2 A5.4 D6.4 | C#6.12 A5.4 |
B5.6 A5.2 F#5.4 D5.4 | C#5.4 F#5.4 A5.8 | B5.8 G5.4 D5.4 | E5.4 G#5.4 B5.8 |
C#6.6 B5.2 A5.8 | G#5.6 A5.2 B5.8 | A5.6 F#5.2 D5.4 A5.4 | E6.12 C#6.4 |
D6.6 C#6.2 A5.4 F#5.4 | F5.8 A5.4 D6.4 | C#6.8 E5.4 A5.4 | B5.12 G#5.4 |
"""
AFTERGLOW_A_CHORDS = "A E/G# F#m Dmaj7 A E/G# Bm7 E "
AFTERGLOW = Song(
    title="Afterglow",
    file="Afterglow.ogg",
    tempo=124,
    patterns={
        "soft": {"kick": "x...x...x...x...", "hat": "..o...o...o...oo"},
        "groove": {
            "kick": "x...x...x...x...",
            "clap": "....x.......x...",
            "hat": "o.xoo.x.o.xoo.xo",
            "open": "..o...o...o...o.",
        },
        "wide": {
            "kick": "x...x...x..xx...",
            "snare": "....x.......x...",
            "clap": "....o.......o...",
            "hat": "ooxoooxoooxoooxo",
            "open": "......x.......x.",
        },
        "build": {"kick": "x...x...x...x...", "snare": "....o.......o.oo", "hat": "o.o.o.o.o.o.o.o."},
        "end": {"kick": "x...............", "crash": "o..............."},
        "none": {},
    },
    lead_bright=3600,
    arp_shape="pulse",
    arp_low=61,
    pad_low=52,
    bass_bright=750,
    echo_steps=3,
    room=2.6,
    duck=0.6,
    mix={"pad": 0.6, "lead": 0.5, "bass": 0.6, "arp": 0.58},
    sections=[
        Section(
            "Amaj7 F#m7 Dmaj7 Esus4",
            lead="-.8 E5.4 C#5.4 | A4.16 | -.8 F#5.4 C#5.4 | B4.16 |",
            lead_sound="bell",
            arp="0..2..4.3..2..1.",
            arp_cut=(500, 900),
            pad_cut=(400, 900),
            crash=False,
        ),
        Section(
            "Amaj7 F#m7 Dmaj7 E",
            lead="-.8 E5.4 A5.4 | G#5.8 E5.8 | F#5.4 A5.4 C#6.8 | B5.16 |",
            lead_sound="bell",
            arp="0.2.4.2.3.2.4.5.",
            bass="..r-..r-..r-..o-",
            drums="soft",
            arp_cut=(900, 2000),
            pad_cut=(900, 1600),
            rise=True,
        ),
        Section(
            AFTERGLOW_A_CHORDS * 2,
            lead=AFTERGLOW_A + AFTERGLOW_A2,
            arp="0.2.4.2.3.2.4.5.",
            bass="..r-..r-..r-..o-",
            drums="groove",
            arp_cut=(1500, 2200),
            levels={"arp": 0.85},
        ),
        Section(
            "F#m C#m Dmaj7 A Bm F#m G E F#m C#m Dmaj7 A Dmaj7 Dm A E",
            lead=AFTERGLOW_B,
            arp="0123432101234321 0234543202345432",
            bass="r-.r..r-..r-o-5-",
            drums="wide",
            arp_cut=(1800, 2800),
            pad_cut=(1600, 2300),
        ),
        Section(
            "Dmaj7 E C#m F#m",
            lead="F#4.8 A4.8 | B4.8 G#4.8 | E5.12 C#5.4 | A4.16 |",
            lead_sound="bell",
            counter="D4.16 | E4.16 | C#4.16 | F#4.16 |",
            arp="0..2..4.3..2..1.",
            arp_cut=(900, 1200),
            pad_cut=(1000, 1500),
            levels={"pad": 1.15, "lead": 1.25},
        ),
        Section(
            "Dmaj7 E Esus4 E",
            lead="F#5.8 A5.8 | B5.8 G#5.8 | E5.4 A5.4 B5.8 | -.8 G#5.4 B5.4 |",
            lead_sound="bell",
            arp="0123432101234321",
            bass="..r-..r-..r-..r-",
            drums="build",
            arp_cut=(1200, 3200),
            pad_cut=(1200, 2800),
            fill="roll",
            crash=False,
            rise=True,
            levels={"lead": 1.15},
        ),
        Section(
            AFTERGLOW_A_CHORDS * 2,
            lead=AFTERGLOW_A2 + AFTERGLOW_A,
            counter="""
            E4.8 A4.8 | G#4.8 B4.8 | A4.8 F#4.8 | A4.8 F#4.8 | A4.8 E4.8 | G#4.8 E4.8 | F#4.8 B4.8 | B4.8 G#4.8 |
            -.8 C#5.4 B4.4 | B4.8 G#4.8 | F#4.8 A4.8 | C#5.12 A4.4 | A4.8 C#5.8 | B4.8 G#4.8 | B4.8 D5.8 | E5.8 D5.8 |
            """,
            arp="0123432101234321 0234543202345432",
            bass="r-.r..r-..r-o-5-",
            drums="wide",
            arp_cut=(2300, 3200),
            pad_cut=(1800, 2600),
        ),
        Section(
            "Dmaj7 Dm Amaj7 ~",
            lead="F#5.6 A5.2 D6.8 | F5.6 A5.2 D6.8 | C#6.16 | ~.16 |",
            counter="A4.16 | A4.16 | E4.16 | ~.16 |",
            arp="0.2.4.2.3.2.4.5. 0.2.4.2.3.2.4.5. 0.1.2.3.4.5.6.7. ................",
            bass="r-----------r-r- r-----------r-r- r--------------- ----------------",
            drums="soft soft end none",
            fill="none",
            arp_cut=(2800, 1600),
            pad_cut=(2200, 900),
        ),
    ],
)

SONGS = (PHOSPHOR, ANGLES, AFTERGLOW)
