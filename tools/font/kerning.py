"""Where the letters of the menus stand, in 64ths of the em: found by a search over their texts,
most of all the headings, for even gaps and for places at which stems have one width at 800x600,
1280x800 and 1920x1080."""

# Where the ink of a letter starts, right of its origin, if not at the usual four.
LEFTS = {
    "A": 5, "C": 2, "I": 5, "M": 2, "O": 5, "P": 5, "S": 2, "a": 5, "d": 5, "f": 5, "g": 5,
    "i": 5, "n": 5, "r": 5, "u": 5,
}

# Where the box of a character starts, if left of its ink. The display centres its score as if it
# were "0", by half the width of that box: its digits then get stems of one width.
REACH = {"0": -1}

# By how much the second letter of a pair moves. Texts have runs of three to five blanks, and each
# is to look like one wider gap: so blanks draw together. One is 16 wide, three are 24, five are 32.
KERNING = {
    "  ": -12, " A": -6, " D": 8, " E": 12, " G": 4, " O": 7, " a": 6, " b": -1, " c": 4, " d": -1,
    " f": 2, " g": 1, " i": 4, " l": -1, " o": 10, " p": 4, " s": 4, " x": 4, "! ": -8, "A ": 2,
    "AM": 3, "C ": -2, "Ca": -2, "Co": -2, "E ": -2, "GA": -1, "IS": 2, "MI": -1, "Pa": 1,
    "Pr": -1, "SC": -1, "Sa": -2, "So": -2, "U ": -4, "VE": 1, "Vi": -1, "am": 3, "ap": -2,
    "at": 1, "av": 3, "ba": -1, "ce": -2, "d ": 5, "d!": 1, "de": 2, "e ": -4, "ed": -1, "el": 1,
    "eo": -3, "er": -1, "f ": 2, "fi": 2, "gu": 3, "id": -1, "ne": -1, "nf": 3, "ns": -1, "nt": 1,
    "o ": -2, "of": 1, "ps": 2, "pt": 2, "r ": -9, "ra": 3, "ry": 1, "ss": 2, "t ": -4, "te": -1,
    "tr": -2, "tt": 1, "un": -1, "ur": -1, "ve": 1, "x ": 4,
}
