#!/usr/bin/env python3
"""Draws the game's icon, the K of the logo with its outer arrow as a filled triangle, from the
strokes in game/Logo.cpp: data/kov.ico (a BMP, 32 by 32, for the window), and for desktops
packaging/icons/kov.svg and kov-<size>.png. Needs nothing but Python; the same bytes each time."""

import math
import os
import re
import struct
import sys
import zlib

WINDOW_SIZE = 32  # pixels
DESKTOP_SIZES = [16, 22, 24, 32, 48, 64, 128, 256]  # pixels

# World units of the logo.
CENTRE = (-5.45, 0.0)
REACH = 3.95  # from the centre to the icon's edge
CORNER = 1.3  # radius of the plate's corners
HALF_STROKE = 0.46  # heavier than the logo's, so that it holds at 16 pixels
ARROW_INSET = 0.25
BLUNT_FROM = 64  # pixels: smaller icons have round ends, which hold their shape there

PLATE = (18, 20, 24)
LINE = (26, 237, 255)  # "Line Colour"
PREY = (254, 134, 76)  # "Badguy Colour"

PAIR = re.compile(r"\{(-?[\d.]+), (-?[\d.]+)\}")


def read_logo(root):
    """The three strokes of the K, and the corners of the outer arrow."""
    with open(os.path.join(root, "game/Logo.cpp"), encoding="utf-8") as file:
        text = file.read()

    def pairs(table, count):
        return [(float(x), float(y)) for x, y in PAIR.findall(text.split(table)[1])[:count]]

    back, arms = pairs("k_back[]", 2), pairs("k_arms[]", 3)
    upper = pairs("arrows[][4][2]", 4)
    top, tip = upper[0], upper[3]
    left = back[0][0] + HALF_STROKE + ARROW_INSET
    arrow = [(left, top[1]), (tip[0] + ARROW_INSET, tip[1]), (left, -top[1])]
    return [tuple(back), (arms[1], arms[0]), (arms[1], arms[2])], arrow


def segment_distance(p, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    t = ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / (dx * dx + dy * dy)
    t = max(0.0, min(1.0, t))
    return math.hypot(p[0] - a[0] - t * dx, p[1] - a[1] - t * dy)


def stroke_distance(p, stroke, blunt):
    """To the outline of a stroke, negative inside. Blunt ends are cut at its far end; the near one
    of an arm is the tip of the K, where the two join in a round."""
    a, b = stroke
    length = math.hypot(b[0] - a[0], b[1] - a[1])
    beyond = ((p[0] - a[0]) * (b[0] - a[0]) + (p[1] - a[1]) * (b[1] - a[1])) / length - length
    cuts = [beyond]
    if a[0] == b[0]:  # the back has two free ends
        cuts.append(-beyond - length)
    return max([segment_distance(p, a, b) - HALF_STROKE] + (cuts if blunt else []))


def triangle_distance(p, corners):
    """Negative inside."""
    sides = list(zip(corners, corners[1:] + corners[:1]))
    turns = [(b[0] - a[0]) * (p[1] - a[1]) - (b[1] - a[1]) * (p[0] - a[0]) for a, b in sides]
    inside = all(t <= 0 for t in turns) or all(t >= 0 for t in turns)
    nearest = min(segment_distance(p, a, b) for a, b in sides)
    return -nearest if inside else nearest


def plate_distance(p):
    """Negative inside."""
    x = abs(p[0] - CENTRE[0]) - REACH + CORNER
    y = abs(p[1] - CENTRE[1]) - REACH + CORNER
    return math.hypot(max(x, 0.0), max(y, 0.0)) + min(max(x, y), 0.0) - CORNER


def mix(under, over, share):
    return tuple(u + (o - u) * share for u, o in zip(under, over))


def pixels(logo, size):
    """Rows of (r, g, b, alpha), from the top."""
    strokes, arrow = logo
    step = 2 * REACH / size

    def cover(distance):
        return max(0.0, min(1.0, 0.5 - distance / step))

    for row in range(size):
        y = CENTRE[1] + REACH - (row + 0.5) * step
        line = []
        for column in range(size):
            p = (CENTRE[0] - REACH + (column + 0.5) * step, y)
            colour = mix(PLATE, PREY, cover(triangle_distance(p, arrow)))
            nearest = min(stroke_distance(p, s, size >= BLUNT_FROM) for s in strokes)
            colour = mix(colour, LINE, cover(nearest))
            line.append((*colour, 255 * cover(plate_distance(p))))
        yield [tuple(round(v) for v in pixel) for pixel in line]


def write(path, data):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(data)


def bmp(rows, size):
    body = b"".join(bytes((b, g, r)) for row in reversed(rows) for r, g, b, _ in row)
    info = struct.pack("<IiiHHIIiiII", 40, size, size, 1, 24, 0, len(body), 2835, 2835, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54) + info + body


def png(rows, size):
    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data
                + struct.pack(">I", zlib.crc32(kind + data)))

    body = b"".join(b"\0" + bytes(v for pixel in row for v in pixel) for row in rows)
    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(body, 9))
            + chunk(b"IEND", b""))


def svg(logo):
    strokes, arrow = logo

    def place(p):
        return f"{p[0] - CENTRE[0] + REACH:.3f} {REACH - p[1] + CENTRE[1]:.3f}"

    def colour(rgb):
        return "#%02x%02x%02x" % rgb

    (top, bottom), (tip, upper), (_, lower) = strokes
    lines = f"M{place(top)}L{place(bottom)} M{place(upper)}L{place(tip)}L{place(lower)}"
    triangle = "L".join(place(p) for p in arrow)
    side = 2 * REACH
    box = f'viewBox="0 0 {side} {side}"'
    ends = 'stroke-linejoin="round" fill="none"'
    return f"""<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" {box}>
<rect width="{side}" height="{side}" rx="{CORNER}" fill="{colour(PLATE)}"/>
<path d="M{triangle}Z" fill="{colour(PREY)}"/>
<path d="{lines}" stroke="{colour(LINE)}" stroke-width="{2 * HALF_STROKE}" {ends}/>
</svg>
"""


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else "."
    logo = read_logo(root)
    write(os.path.join(root, "data/kov.ico"), bmp(list(pixels(logo, WINDOW_SIZE)), WINDOW_SIZE))
    icons = os.path.join(root, "packaging/icons")
    write(os.path.join(icons, "kov.svg"), svg(logo).encode())
    for size in DESKTOP_SIZES:
        write(os.path.join(icons, f"kov-{size}.png"), png(list(pixels(logo, size)), size))


if __name__ == "__main__":
    main()
