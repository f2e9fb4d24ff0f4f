#!/usr/bin/env python3
"""Prints how wide the upright stems of each row of text are, in pixels, from pictures of pages as
binary PPM. A row whose stems don't all have the width of most of them looks blotched.

    stems.py PICTURE.ppm...

A stem is a column of lit pixels with straight edges, at least a quarter of its row high; curves,
slopes and cut corners don't count. Rows of different colours are different rows: headings are
larger than what they touch."""
import sys
from collections import Counter

LIT = 24  # levels of the brightest channel above the ground's
LEAST_AREA = 100  # pixels of one colour: fewer are edges of the logo


def read(path):
    """For each colour that texts have, which pixels have it, line by line."""
    kind, size, _, pixels = open(path, "rb").read().split(b"\n", 3)
    assert kind == b"P6", path
    width, height = map(int, size.split())
    lines = [[pixels[i:i + 3] for i in range(3 * width * y, 3 * width * (y + 1), 3)]
             for y in range(height)]
    ground = max(lines[0][0])
    areas = Counter(pixel for line in lines for pixel in line)
    return [[[pixel == colour for pixel in line] for line in lines]
            for colour, area in areas.items() if max(colour) > ground + LIT and area >= LEAST_AREA]


def runs(flags):
    """Of true ones: (first, behind the last)."""
    start = None
    for i, flag in enumerate([*flags, False]):
        if flag and start is None:
            start = i
        if not flag and start is not None:
            yield start, i
            start = None


def stems(row):
    """Widths of the stems of a row of text, given as its lines of pixels."""
    least = max(3, len(row) // 4)
    widths = Counter()
    open_runs = {}  # of the line above: how many lines high
    for line in [*row, [False] * len(row[0])]:
        now = {run: open_runs.pop(run, 0) + 1 for run in runs(line)}
        widths.update(end - start for (start, end), high in open_runs.items()
                      if high >= least and end - start <= len(row) // 3)
        open_runs = now
    return widths


def main(paths):
    all_stems = all_odd = 0
    for path in paths:
        count = odd = 0
        for lit in read(path):
            for top, bottom in runs([any(line) for line in lit]):
                widths = stems(lit[top:bottom])
                if not widths:
                    continue
                count += sum(widths.values())
                odd += sum(widths.values()) - max(widths.values())
                print(f"  {top:4}: " + ", ".join(f"{n} of {w}" for w, n in sorted(widths.items())))
        print(f"{path}: {odd} of {count} stems are odd")
        all_stems, all_odd = all_stems + count, all_odd + odd
    print(f"{all_odd} of {all_stems} in all")


if __name__ == "__main__":
    main(sys.argv[1:])
