#!/usr/bin/env python3
"""Prints which digits of the display look most alike, and how wide the zeros of the next life are,
in pixels, from pictures of the display as binary PPM, all of one size.

    digits.py display-SCORE.ppm...

Two digits are laid over each other in that place, at most a pixel to the side, where they differ
least; and each in all the places where the scores have it, as it falls on the pixels."""
import itertools
import pathlib
import sys

from stems import read, runs

ZEROS = 5  # at the end of the row
DISPLAY = 10  # the row lies in this part of the picture's height
MIDDLE = 0.49  # of its width: the score starts right of it
CLOSEST = 5  # pairs to print


def display_row(path):
    """The row's lines of pixels."""
    tops = [lit[:len(lit) // DISPLAY] for lit in read(path)]
    return max(tops, key=lambda lit: sum(map(sum, lit)))


def glyphs(row):
    """What dark columns set apart: (first column, lit pixels as (x from there, y))."""
    for left, right in runs([any(column) for column in zip(*row)]):
        yield left, {(x - left, y) for y, line in enumerate(row)
                     for x in range(left, right) if line[x]}


def difference(one, other):
    return min(len(one ^ {(x + by, y) for x, y in other}) for by in (-1, 0, 1))


def width(glyph):
    return max(x for x, _ in glyph) + 1


def main(paths):
    digits = []
    for path in paths:
        row = display_row(path)
        found = list(glyphs(row))
        score = [glyph for left, glyph in found if left > MIDDLE * len(row[0])]
        digits += zip(pathlib.Path(path).stem.split("-")[1], score)
        print(f"{path}: zeros", *[width(glyph) for _, glyph in found[-ZEROS:]], "wide")
    least = {}
    for (c, a), (d, b) in itertools.permutations(digits, 2):
        if c < d:
            least[c, d] = min(difference(a, b), least.get((c, d), len(a | b)))
    for by, (c, d) in sorted((by, pair) for pair, by in least.items())[:CLOSEST]:
        print(f"  {c} and {d} differ in {by} pixels")


if __name__ == "__main__":
    main(sys.argv[1:])
