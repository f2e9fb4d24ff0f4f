#!/usr/bin/env python3
"""Draws the window icon data/kov.ico (a BMP, 32 by 32) from the logo's shapes: an arrow in a ring
beside a stroke, on the game's background. Needs nothing but Python; the same bytes each time."""

import math
import struct
import sys

SIZE = 32  # pixels
SAMPLES = 4  # per pixel and axis
BACKGROUND = (27, 27, 27)
LINE = (64, 242, 217)
FILL = (255, 92, 77)


def distance_to_segment(x, y, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    t = max(0.0, min(1.0, ((x - a[0]) * dx + (y - a[1]) * dy) / (dx * dx + dy * dy)))
    return math.hypot(x - a[0] - t * dx, y - a[1] - t * dy)


SEGMENTS = [((6, 4), (6, 28)), ((26, 4), (12, 16)), ((12, 16), (26, 28))]  # the letter K
TRIANGLE = [(19, 16), (27, 12), (27, 20)]


def inside_triangle(x, y):
    sides = [
        (b[0] - a[0]) * (y - a[1]) - (b[1] - a[1]) * (x - a[0])
        for a, b in zip(TRIANGLE, TRIANGLE[1:] + TRIANGLE[:1])
    ]
    return all(s <= 0 for s in sides) or all(s >= 0 for s in sides)


def colour_at(x, y):
    if min(distance_to_segment(x, y, a, b) for a, b in SEGMENTS) < 2.0:
        return LINE
    return FILL if inside_triangle(x, y) else BACKGROUND


def pixel(column, row):
    total = [0, 0, 0]
    for i in range(SAMPLES):
        for j in range(SAMPLES):
            sample = colour_at(column + (i + 0.5) / SAMPLES, row + (j + 0.5) / SAMPLES)
            total = [t + s for t, s in zip(total, sample)]
    return [t // SAMPLES**2 for t in total]


def main():
    path = sys.argv[1] if len(sys.argv) > 1 else "data/kov.ico"
    rows = bytearray()
    for row in reversed(range(SIZE)):  # bottom-up, blue first
        for column in range(SIZE):
            rows += bytes(reversed(pixel(column, row)))
    header = struct.pack("<2sIHHI", b"BM", 54 + len(rows), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    with open(path, "wb") as file:
        file.write(header + info + rows)


if __name__ == "__main__":
    main()
