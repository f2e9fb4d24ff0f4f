#!/usr/bin/env python3
"""Makes the game's two faces from one set of strokes: fonts/KovMenu.ttf, low enough for rows that
stand 0.75 apart, and fonts/KovText.ttf, taller and heavier for pages, which are drawn at scale
0.75. Corners lie on 64ths of the em, the grid on which the game's renderer places them, so that
strokes keep one weight. Needs python3-fonttools; the same bytes each time."""

import math
import os
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen

from glyphs import GLYPHS

GRID = 64  # steps per em
UNITS = 1024  # font units per em
DIGITS = "0123456789"
MITER_LIMIT = 2.2  # of half the stroke
EPOCH = 3786825600  # seconds from 1904 to 2024: a fixed date


class Style:
    def __init__(self, name, scale, stroke, bearings, digit_advance, blank):
        self.name, self.scale, self.stroke = name, scale, stroke
        self.left, self.right = bearings
        self.digit_advance, self.blank = digit_advance, blank


# All in 64ths of the em.
STYLES = [
    Style("KovMenu", 1.0, 6, (3, 4), 24, 15),
    Style("KovText", 4 / 3, 8, (4, 5), 33, 20),
]


def parse(polyline, style):
    points = [tuple(float(v) for v in p.split(",")) for p in polyline.split()]
    half = style.stroke / 2
    return [(x * style.scale + half, y * style.scale + half) for x, y in points]


def unit(a, b):
    length = math.dist(a, b)
    return ((b[0] - a[0]) / length, (b[1] - a[1]) / length)


def corner(point, before, after, half):
    """The point of the outline left of a joint: mitred, or cut where that would stick out."""
    n1, n2 = (-before[1], before[0]), (-after[1], after[0])
    mx, my = n1[0] + n2[0], n1[1] + n2[1]
    dot = (mx * n1[0] + my * n1[1]) or 1e-9
    if math.hypot(mx, my) / dot > MITER_LIMIT:
        turn_left = before[0] * after[1] - before[1] * after[0] > 0
        if not turn_left:  # the outer side: cut it square
            reach = half * 0.8
            return [(point[0] + half * n1[0] + reach * before[0], point[1] + half * n1[1] + reach * before[1]),
                    (point[0] + half * n2[0] - reach * after[0], point[1] + half * n2[1] - reach * after[1])]
    return [(point[0] + half * mx / dot, point[1] + half * my / dot)]


def side(points, half, closed):
    """The left outline of a polyline."""
    ways = [unit(a, b) for a, b in zip(points, points[1:])]
    outline = []
    if closed:
        for i, point in enumerate(points[:-1]):
            outline += corner(point, ways[i - 1], ways[i], half)
        return outline
    first, last = points[0], points[-1]
    d = ways[0]
    outline.append((first[0] - half * d[0] - half * d[1], first[1] - half * d[1] + half * d[0]))
    for i, point in enumerate(points[1:-1], 1):
        outline += corner(point, ways[i - 1], ways[i], half)
    d = ways[-1]
    outline.append((last[0] + half * d[0] - half * d[1], last[1] + half * d[1] + half * d[0]))
    return outline


def contours(polyline, style):
    points, half = parse(polyline, style), style.stroke / 2
    if points[0] == points[-1] and len(points) == 2:  # a dot
        x, y = points[0]
        return [[(x - half, y - half), (x - half, y + half), (x + half, y + half), (x + half, y - half)]]
    backwards = points[::-1]
    if points[0] == points[-1]:
        return [side(points, half, True), side(backwards, half, True)]
    return [side(points, half, False) + side(backwards, half, False)]


def area(contour):
    return sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(contour, contour[1:] + contour[:1])) / 2


def on_grid(value):
    return math.floor(value + 0.5) * (UNITS // GRID)


def draw(character, style):
    pen = TTGlyphPen(None)
    right = 0.0
    for polyline in GLYPHS[character]:
        shapes = contours(polyline, style)
        shapes.sort(key=lambda c: -abs(area(c)))
        for index, shape in enumerate(shapes):  # the outer one clockwise, its hole the other way
            if (area(shape) > 0) == (index == 0):
                shape = shape[::-1]
            right = max([right] + [x for x, _ in shape])
            placed = [(on_grid(x + style.left), on_grid(y)) for x, y in shape]
            pen.moveTo(placed[0])
            for point in placed[1:]:
                pen.lineTo(point)
            pen.closePath()
    advance = right + style.left + style.right
    if character in DIGITS:
        advance = style.digit_advance
    if character == " ":
        advance = style.blank
    return pen.glyph(), on_grid(advance)


def notdef(style):
    pen = TTGlyphPen(None)
    return pen.glyph(), on_grid(style.blank)


def make(style, folder):
    drawn = {".notdef": notdef(style)}
    names = {}
    for character in sorted(GLYPHS):
        name = f"uni{ord(character):04X}"
        names[ord(character)] = name
        drawn[name] = draw(character, style)
    builder = FontBuilder(UNITS, isTTF=True)
    builder.setupGlyphOrder(list(drawn))
    builder.setupCharacterMap(names)
    builder.setupGlyf({name: glyph for name, (glyph, _) in drawn.items()})
    glyf = builder.font["glyf"]
    builder.setupHorizontalMetrics(
        {name: (advance, getattr(glyf[name], "xMin", 0)) for name, (_, advance) in drawn.items()}
    )
    ascent = on_grid(36 * style.scale)
    descent = -on_grid(9 * style.scale)
    builder.setupHorizontalHeader(ascent=ascent, descent=descent)
    builder.setupNameTable(
        {
            "familyName": style.name,
            "styleName": "Regular",
            "copyright": "Made for KOV. CC0 1.0: no rights reserved.",
            "uniqueFontIdentifier": style.name + " 1.0",
            "fullName": style.name,
            "psName": style.name + "-Regular",
            "version": "Version 1.0",
        }
    )
    builder.setupOS2(sTypoAscender=ascent, sTypoDescender=descent, usWinAscent=ascent,
                     usWinDescent=-descent)
    builder.setupPost()
    builder.font["head"].created = builder.font["head"].modified = EPOCH
    builder.font.recalcTimestamp = False
    builder.save(os.path.join(folder, style.name + ".ttf"))


if __name__ == "__main__":
    for a_style in STYLES:
        make(a_style, sys.argv[1] if len(sys.argv) > 1 else "fonts")
