"""By how much the second letter of a pair moves, in 64ths of the face's em: found by a search over
the texts of the first pages for places at which all stems have one width at 800x600, 1280x800 and
1920x1080. No pair moves by more than three, but one with a blank may grow by eight."""

KERNING = {
    "KovMenu": {
        " 1": 2, " 3": -1, " 6": -2, " 8": -2, " A": 4, " C": -2, " D": 6, " E": 4, " G": 7,
        " L": 2, " O": 7, " V": -2, " a": -1, " c": 8, " f": 2, " g": 6, " h": 4, " l": 2, " m": 2,
        " n": -2, " p": -1, " t": 1, " w": 1, " x": 4, "! ": 3, "!!": -1, "0 ": 2, "10": 2,
        "12": -1, "1U": 1, "20": 2, "28": 1, "3 ": -1, "AL": -2, "Ab": 1, "C ": 2, "Ca": 2,
        "Co": 1, "De": 1, "EN": -3, "ER": 1, "EX": 2, "FX": -3, "Fu": 1, "Ga": -1, "Hi": -2,
        "IS": 1, "L!": -1, "Li": -3, "ME": -1, "Ma": 3, "Mu": 1, "NT": -2, "Ne": -1, "Op": 1,
        "P!": 2, "Re": -1, "SC": -1, "Sa": 1, "Sc": -1, "So": 2, "St": -1, "TA": 2, "U ": 1,
        "UP": 3, "Vi": 2, "Vo": -2, "Wi": 1, "X ": -1, "ac": -1, "am": -3, "an": -3, "ap": -3,
        "ar": -1, "at": -1, "be": -1, "c ": 4, "cc": 1, "ce": -3, "co": -2, "cr": 1, "ct": 1,
        "cu": 3, "cy": 1, "d ": 2, "d!": 3, "de": -2, "e ": 2, "e!": -1, "ec": 2, "ef": -1,
        "el": -2, "eo": -1, "er": 3, "es": -2, "f ": 1, "fi": -2, "ga": 3, "gu": -1, "he": -1,
        "hi": -2, "ho": -1, "ic": 1, "if": -1, "ig": 3, "il": -3, "in": -3, "io": 2, "is": -3,
        "iv": 1, "ke": -2, "li": 1, "lp": 2, "ls": -1, "lu": 1, "ma": -2, "me": -2, "nc": 3,
        "nd": -1, "ne": 1, "nf": -1, "ns": -1, "nt": 3, "o ": 2, "of": -1, "or": 1, "ou": -1,
        "ow": -3, "p ": 6, "pr": -3, "ps": 1, "pt": -1, "r ": 8, "re": 1, "ro": 1, "rt": 1,
        "ry": -3, "sc": -1, "se": 2, "sl": 1, "so": 3, "ss": 1, "t ": 6, "ta": 2, "th": 1,
        "ti": -1, "to": -1, "tr": 1, "tw": 1, "um": 1, "un": -2, "us": -2, "ut": -1, "w ": -2,
        "we": 2, "wh": -2, "x ": 4,
    },
}
