"""Where the letters of the menus stand, in 64ths of the em: found by a search over their texts,
most of all the headings, for even gaps and for places at which stems have one width at 800x600,
1280x800 and 1920x1080."""

# Where the ink of a letter starts, right of its origin, if not at the usual four.
LEFTS = {
    "A": 5, "C": 2, "I": 5, "M": 2, "O": 5, "P": 5, "S": 2, "a": 5, "d": 5, "f": 5, "g": 5,
    "i": 5, "n": 5, "r": 5, "u": 5,
}

# By how much the second letter of a pair moves. Pairs with a blank may move by eight.
KERNING = {
    "  ": 8, " E": 8, " O": 4, " a": -1, " g": -3, " l": -1, " o": -4, " t": -8, "AM": 3, "C ": 1,
    "Ca": -2, "Co": -2, "E ": 1, "En": -1, "GA": -1, "IS": 2, "MI": -1, "Pa": 1, "SC": -1,
    "Sa": -2, "So": -2, "VE": 1, "Vi": -1, "am": 3, "ap": -2, "at": 1, "av": 3, "ce": -2, "d ": 8,
    "d!": 1, "de": 2, "ed": -1, "el": 1, "eo": -3, "er": -1, "f ": -6, "fi": 2, "gu": 3, "id": -1,
    "ne": -1, "nf": 3, "ns": -1, "nt": 1, "o ": 1, "ps": 2, "pt": 2, "ra": 3, "ss": 2, "te": -1,
    "tr": -1, "un": -1, "ur": -1, "ve": 1,
}
