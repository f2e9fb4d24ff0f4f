#!/usr/bin/env python3
"""Makes the game's two faces: fonts/KovMenu.ttf, low enough for rows that stand 0.75 apart, and
fonts/KovText.ttf, wider, taller and heavier for pages, which are drawn at scale 0.75. Corners lie
on 64ths of the em, the grid on which the game's renderer places them, so that strokes keep one
weight. Bearings and advances put the stems where they get one width in pixels, and in the menu's
headings so does the kerning. Needs python3-fonttools and python3-shapely; the same bytes each
time."""

import itertools
import math
import os
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import newTable
from fontTools.ttLib.tables._k_e_r_n import KernTable_format_0
from shapely.geometry import CAP_STYLE, JOIN_STYLE, LineString, Polygon
from shapely.geometry.polygon import orient
from shapely.ops import unary_union

import glyphs
from kerning import KERNING, LEFTS, REACH

GRID = 64  # steps per em
UNITS = 1024  # font units per em
DIGITS = "0123456789"
MITRE_LIMIT = 1.5  # of half a stroke: corners of 90 degrees stay sharp
# The game's renderer looks up the kerning of the glyphs before this one when the face has no size
# yet, and gets none.
FIRST_KERNED = 128
TOLD_APART = 12 * (GRID / 20) ** 2  # two digits differ in 12 pixels at least, of 20 to the em
EPOCH = 3786825600  # seconds from 1904 to 2024: a fixed date
COPYRIGHT = "Made for KOV. CC0 1.0: no rights reserved."


class Style:
    """Lengths in 64ths of the em."""

    def __init__(self, name, strokes, stroke, bearings, lefts, advances, step, height, depth,
                 kerning, reach):
        self.name, self.strokes, self.half = name, strokes, stroke / 2
        self.left, self.right = bearings
        self.lefts, self.advances = lefts, advances  # of some characters, instead of the usual
        self.step = step  # the advances of all others are multiples of it
        self.height, self.depth = height, depth  # of a line, from its base
        self.kerning = kerning
        self.reach = reach  # from where a character measures, if not from its ink


STYLES = [
    Style("KovMenu", glyphs.MENU, 7, (4, 5), {**LEFTS, **dict.fromkeys(DIGITS, 2)},
          {" ": 16, **dict.fromkeys(DIGITS, 24)}, 8, 36, 9, KERNING, REACH),
    Style("KovText", glyphs.PAGE, 9, (-3, 13), dict.fromkeys(",:;", -6), {" ": 16}, 16, 49, 14,
          {}, {}),
]


def stroke(polyline, style):
    points = [tuple(float(v) + style.half for v in p.split(",")) for p in polyline.split()]
    if points[0] == points[-1] and len(points) > 2:  # closed: no caps
        ring = Polygon(points)
        grow = dict(join_style=JOIN_STYLE.mitre, mitre_limit=MITRE_LIMIT)
        return ring.buffer(style.half, **grow).difference(ring.buffer(-style.half, **grow))
    if len(points) == 2 and points[0] == points[1]:  # a dot
        points[1] = (points[1][0] + 1e-6, points[1][1])
    return LineString(points).buffer(style.half, cap_style=CAP_STYLE.square,
                                     join_style=JOIN_STYLE.mitre, mitre_limit=MITRE_LIMIT)


def on_grid(value):
    return math.floor(value + 0.5) * (UNITS // GRID)


def contours(shape):
    """Outer rings clockwise, holes the other way, as TrueType has them."""
    for part in getattr(shape, "geoms", [shape]):
        part = orient(part, -1.0)
        yield from [part.exterior, *part.interiors]


def extend(pen, x):
    """Adds a contour without area: nothing is drawn, but the box that is measured reaches x."""
    pen.moveTo((on_grid(x), 0))
    pen.lineTo((on_grid(x), on_grid(1)))
    pen.closePath()


def shape_of(character, style):
    return unary_union([stroke(polyline, style) for polyline in style.strokes[character]])


def require_told_apart(style):
    """Ends the program if two digits look too much alike in the display of a small screen."""
    for a, b in itertools.combinations(DIGITS, 2):
        if shape_of(a, style).symmetric_difference(shape_of(b, style)).area < TOLD_APART:
            sys.exit(f"{style.name}: {a} and {b} look too much alike")


def draw(character, style):
    """The glyph and its advance in font units."""
    pen = TTGlyphPen(None)
    left = style.lefts.get(character, style.left)
    advance = left + style.right
    if style.strokes[character]:
        shape = shape_of(character, style)
        advance += shape.bounds[2]
        for ring in contours(shape):
            placed = [(on_grid(x + left), on_grid(y)) for x, y in ring.coords[:-1]]
            pen.moveTo(placed[0])
            for i in range(1, len(placed)):
                if placed[i] != placed[i - 1]:
                    pen.lineTo(placed[i])
            pen.closePath()
    if character in style.reach:
        extend(pen, style.reach[character])
    stepped = math.floor(advance / style.step + 0.5) * style.step
    return pen.glyph(), on_grid(style.advances.get(character, stepped))


def kerning_table(pairs, names):
    """The only form of kerning that the game's renderer reads."""
    part = KernTable_format_0()
    part.coverage, part.apple = 1, False
    part.kernTable = {(names[ord(a)], names[ord(b)]): on_grid(by) for (a, b), by in pairs.items()}
    table = newTable("kern")
    table.version, table.kernTables = 0, [part]
    return table


def make(style, folder):
    require_told_apart(style)
    characters = sorted(style.strokes)
    names = {ord(c): f"uni{ord(c):04X}" for c in characters}
    drawn = {".notdef": draw(" ", style)}
    drawn.update((f"unused{i}", draw(" ", style)) for i in range(1, FIRST_KERNED))
    drawn.update((names[ord(c)], draw(c, style)) for c in characters)
    builder = FontBuilder(UNITS, isTTF=True)
    builder.setupGlyphOrder(list(drawn))
    builder.setupCharacterMap(names)
    builder.setupGlyf({name: glyph for name, (glyph, _) in drawn.items()})
    glyf = builder.font["glyf"]
    builder.setupHorizontalMetrics(
        {name: (advance, getattr(glyf[name], "xMin", 0)) for name, (_, advance) in drawn.items()}
    )
    ascent, descent = on_grid(style.height), on_grid(style.depth)
    builder.setupHorizontalHeader(ascent=ascent, descent=-descent)
    builder.setupNameTable(
        {
            "familyName": style.name,
            "styleName": "Regular",
            "copyright": COPYRIGHT,
            "uniqueFontIdentifier": style.name + " 1.0",
            "fullName": style.name,
            "psName": style.name + "-Regular",
            "version": "Version 1.0",
        }
    )
    builder.setupOS2(fsType=0, sTypoAscender=ascent, sTypoDescender=-descent, usWinAscent=ascent,
                     usWinDescent=descent)
    builder.setupPost(keepGlyphNames=False)
    if style.kerning:
        builder.font["kern"] = kerning_table(style.kerning, names)
    builder.font["head"].created = builder.font["head"].modified = EPOCH
    builder.font.recalcTimestamp = False
    builder.save(os.path.join(folder, style.name + ".ttf"))


if __name__ == "__main__":
    for a_style in STYLES:
        make(a_style, sys.argv[1] if len(sys.argv) > 1 else "fonts")
