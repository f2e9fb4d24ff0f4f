#!/usr/bin/env python3
"""Draws docs/architecture.svg: a row for each room of the tree, and who includes whom.
    tools/draw_architecture.py [--check]
With --check it writes nothing, and fails if a folder or an arrow is missing from the drawing."""

import pathlib
import re
import sys
from xml.sax.saxutils import escape

ROOT = pathlib.Path(__file__).resolve().parent.parent
DRAWING = ROOT / "docs/architecture.svg"

# From the top: a room stands above those that it uses. Kind (its colour), folders and files, what
# it is, and a name where the folders' own won't do. A file belongs to the most precise entry; "/*"
# are a folder's own files. Inner rooms are those in the frame before them.
ROOMS = [
    ("check", ["bench"], "measures ticks, frames, starts"),
    ("check", ["fuzz"], "hostile input"),
    ("check", ["tests"], "mirrors the tree; pictures, recorded games"),
    ("check", ["tools"], "bot runs; make sounds, fonts, pictures"),
    ("system", ["platform/web"], "the game in a browser"),
    ("system", ["packaging"], "launcher, menu entry, man pages, icons"),
    ("game", ["keys"], "kov-keys: asks for keys and buttons"),
    ("game", ["replay"], "kov-replay: keeps games, plays them again"),
    ("check", ["headless"], "whole games without a window: bot, state hash"),
    ("system", ["platform/standins"], "SDL, GL and sound, as recorders"),
    ("game", ["game"], "main, level, player, lines, triangles, score, music"),
    ("frame", ["Framework"], "the engine"),
    ("inner world", ["Framework/menus"], "main menu, configuration"),
    ("inner world", ["Framework/physics"], "moves, tests, closes rectangles"),
    ("inner world", ["Framework/input"], "keys and joysticks"),
    ("inner world", ["Framework/Managers"], "colours, fonts, points by name"),
    ("inner world", ["Framework/Graphics"], "layers, shapes, letters, GL"),
    ("inner core", ["Framework/*"], "entities, beats, messages", "Engine, Entity, Messages, Timer"),
    ("inner core", ["Framework/config", "Framework/Config"], "settings, options",
     "Config, config/"),
    ("inner core", ["Framework/Primitives"], "a box"),
    ("inner core", ["Framework/math"], "points, matrices, random numbers"),
    ("inner core", ["Framework/Constants", "Framework/Files", "Framework/GameInfo",
                    "Framework/Singleton", "Framework/Utility"],
     "helpers without a subject", "Files, Singleton, Utility"),
    ("system", ["platform/fmodex"], "the sound layer, over OpenAL"),
    ("system", ["platform/loki"], "singletons, where a system has no Loki"),
    ("data", ["data", "fonts", "textures", "Sounds", "Songs"], "what the game reads"),
    ("data", ["docs", "debian"], "these pages; the Debian packages"),
]

SOURCES = {".cpp", ".h", ".hpp", ".js", ".py", ".sh"}
INCLUDE = re.compile(r"""^\s*#\s*include\s*"([^"]+)"|^import\b[^;]*?\bfrom\s+'(\.[^']+)'""",
                     re.MULTILINE)

# Pixels.
ROW, HEIGHT, GAP = 37, 29, 10  # from row to row, a box, and what sets a frame apart
LEFT, INDENT, BOX = 0, 14, 500  # of the boxes; the width of one that isn't in the frame
RAIL = 24  # from rail to rail, and from the boxes to the first
IN, OUT = -6, 6  # where arrows end and begin, from the middle of a box

STYLE = """
      rect { stroke: #7d8590; stroke-width: 1 }
      .check { fill: #e3e6ea } .game { fill: #ffe3c2 } .world { fill: #d5e5f7 }
      .core { fill: #d9efdc } .system { fill: #eaddf5 } .data { fill: #f3eed6 }
      .frame { fill: none; stroke-dasharray: 5 4 }
      text { fill: #1c2128 }
      .name { font-weight: bold; font-size: 14px }
      .words { text-anchor: end }
      .loose { fill: #7d8590 }
      path { fill: none; stroke: currentColor; stroke-width: 1.5 }
      .tip, circle { fill: currentColor; stroke: none }"""

# Of the rails, by the room that they lead to. All read on white and on black.
GREY, UP = "#7d8590", "#d9480f"
RAILS = {"check": GREY, "frame": GREY, "game": "#b58a2e", "world": "#4f86c6", "core": "#48a05e",
         "system": "#a274cc"}


class Room:
    def __init__(self, kind, entries, words, name=None):
        self.isInner = kind.startswith("inner")
        self.isFrame = kind == "frame"
        self.kind = kind.split()[-1]
        self.entries = entries
        self.words = words
        short = [entry.removeprefix("Framework/") for entry in entries]
        self.name = name or "  ".join(entry + "/" for entry in short)

    def reach(self, path):
        """How precisely the room names a file: the length of its longest entry that does."""
        folder, stem = path.rpartition("/")[0], path.rsplit(".", 1)[0]
        return max((len(entry) for entry in self.entries if not self.isFrame and
                    (path.startswith(entry + "/") or entry in (stem, folder + "/*"))), default=0)


rooms = [Room(*row) for row in ROOMS]
frame = next(room for room in rooms if room.isFrame)


def room_of(path):
    room = max(rooms, key=lambda each: each.reach(path))
    return room if room.reach(path) else None


def is_made(path):
    """Whether a folder holds what a build has made, or a tool keeps."""
    return (path == ROOT / "build" or (path / "CMakeCache.txt").exists() or
            path.name.startswith(".") or path.name in ("CMakeFiles", "node_modules"))


def sources(folder=ROOT):
    for path in sorted(folder.iterdir()):
        if path.is_dir() and not path.is_symlink() and not is_made(path):
            yield from sources(path)
        elif path.suffix in SOURCES and path.is_file():
            yield path


def included(path):
    """The tree's own files that a file includes, by their path from the root or from itself."""
    for include, script in INCLUDE.findall(path.read_text(errors="replace")):
        target = ROOT / include if include and (ROOT / include).is_file() else (
            path.parent / (include or script))
        if target.is_file():
            yield str(target.resolve().relative_to(ROOT))


def read_tree():
    """Arrows, each with the files that make it; and folders that have no room."""
    arrows, homeless = {}, set()
    for path in sources():
        name = str(path.relative_to(ROOT))
        user = room_of(name)
        if user is None:
            depth = 2 if name.startswith(("Framework/", "platform/")) else 1
            homeless.update(["/".join(name.split("/")[:depth])] if "/" in name else [])
            continue
        for target in included(path):
            used = room_of(target)
            if used is not None and used.isInner and not user.isInner:
                used = frame
            if used not in (None, user):
                arrows.setdefault((user, used), []).append(f"{name} includes {target}")
    return arrows, sorted(homeless)


def place_rooms():
    y = 10 + HEIGHT / 2
    for before, room in zip([None] + rooms, rooms):
        if before is not None and (room.isFrame or before.isInner and not room.isInner):
            y += GAP if room.isFrame else GAP + INDENT
        room.x = LEFT + (INDENT if room.isInner else 0)
        room.right = LEFT + BOX - (INDENT if room.isInner else 0)
        room.y = y
        y += ROW
    return y


def box(room):
    lines = [f"<title>{escape(' '.join(room.entries))}</title>"]
    if room.isFrame:
        inner = [each for each in rooms if each.isInner]
        height = inner[-1].y + HEIGHT / 2 + INDENT - room.y + HEIGHT / 2
        lines.append(f'<rect class="frame" x="{room.x}" y="{room.y - HEIGHT / 2:g}" '
                     f'width="{BOX}" height="{height:g}" rx="8"/>')
    else:
        lines.append(f'<rect class="{room.kind}" x="{room.x}" y="{room.y - HEIGHT / 2:g}" '
                     f'width="{room.right - room.x}" height="{HEIGHT}" rx="5"/>')
    loose = " loose" if room.isFrame else ""
    lines.append(f'<text class="name{loose}" x="{room.x + 10}" y="{room.y + 5:g}">'
                 f'{escape(room.name)}</text>')
    lines.append(f'<text class="words{loose}" x="{room.right - 10}" y="{room.y + 4.5:g}">'
                 f'{escape(room.words)}</text>')
    return group(lines)


def group(lines, colour=GREY):
    inside = "".join(f"\n    {line}" for line in lines)
    return f'  <g color="{colour}">{inside}\n  </g>'


class Rail:
    """All arrows to a room in one direction: a line that goes past its users and turns to its edge.
    Those that lead down are on the right of the boxes, the others on the left."""

    def __init__(self, used, users, is_down):
        self.used, self.users = used, users
        self.side = 1 if is_down else -1
        self.end = used.y + (IN if is_down else OUT)
        self.edge = used.right if is_down else used.x
        self.ports = [user.y + (OUT if is_down else IN) for user in users]
        self.start = min(self.ports) if is_down else max(self.ports)
        self.colour = RAILS.get(used.kind, GREY) if is_down else UP

    def place(self, inner):
        """As near to the boxes as those that are placed already leave room."""
        low, high = sorted([self.start, self.end])
        beside = [each.column for each in inner
                  if low < max(each.start, each.end) and min(each.start, each.end) < high]
        self.column = max(beside, default=-1) + 1
        self.x = (LEFT + BOX if self.side > 0 else LEFT) + self.side * RAIL * (self.column + 1)

    def lines(self):
        bend = 6 if self.end > self.start else -6
        yield (f'<path d="M{self.x} {self.start:g}V{self.end - bend:g}'
               f'q0 {bend} {-6 * self.side} {bend}H{self.edge + 6 * self.side}"/>')
        yield f'<path class="tip" d="M{self.edge} {self.end:g}l{9 * self.side} -4.5v9z"/>'
        for user, y in zip(self.users, self.ports):
            yield (f'<circle cx="{self.x}" cy="{y:g}" r="3.8">'
                   f'<title>{title(user, self.used)}</title></circle>')


def title(user, used):
    return escape(f"{user.name} uses {used.name}")


def rails_of(arrows):
    order = {room: i for i, room in enumerate(rooms)}
    users = {}
    for user, used in sorted(arrows, key=lambda arrow: order[arrow[0]]):
        users.setdefault((order[user] < order[used], used), []).append(user)
    for is_down in (True, False):
        placed = []
        targets = [used for down, used in users if down == is_down]
        for used in sorted(targets, key=order.get, reverse=not is_down):
            rail = Rail(used, users[is_down, used], is_down)
            rail.place(placed)
            placed.append(rail)
        yield from placed


def draw(arrows):
    height = place_rooms()
    body = [box(room) for room in rooms]
    rails = list(rails_of(arrows))
    for side in (1, -1):  # from a room's edge to its farthest rail
        for user in rooms:
            far = [rail.x * side for rail in rails if rail.side == side and user in rail.users]
            if far:
                edge, y = (user.right, user.y + OUT) if side > 0 else (user.x, user.y + IN)
                body.append(group([f'<path d="M{edge} {y:g}H{max(far) * side}"/>'],
                                  GREY if side > 0 else UP))
    body += [group(rail.lines(), rail.colour) for rail in rails]
    left, right = min(rail.x for rail in rails) - 20, max(rail.x for rail in rails) + 20

    label = "The folders of KOV, and which of them use which"
    head = ('<svg xmlns="http://www.w3.org/2000/svg" '
            f'viewBox="{left} 0 {right - left} {height - HEIGHT / 2:g}" '
            'font-family="Helvetica, Arial, sans-serif" font-size="13" role="img" '
            f'aria-label="{label}">\n'
            "  <!-- Written by tools/draw_architecture.py. Every box brings its own background; "
            "all else reads on white and on black. -->\n"
            f"  <style>{STYLE}\n  </style>\n")
    return head + "\n".join(body) + "\n</svg>\n"


def findings(arrows, homeless, drawn):
    """What is wrong, each with what to do."""
    order = {room: i for i, room in enumerate(rooms)}
    found = [f"{folder}/ isn't in the drawing: give it a row of ROOMS in tools/draw_architecture.py"
             for folder in homeless]
    for room in rooms:
        found += [f"{entry} is gone: take it out of ROOMS in tools/draw_architecture.py"
                  for entry in room.entries
                  if not (ROOT / entry.removesuffix("/*")).is_dir()
                  and not (ROOT / (entry + ".h")).exists()]
    for (user, used), makers in arrows.items():
        headers = [each for each in makers if each.split()[0].endswith((".h", ".hpp"))]
        if order[used] < order[user] and headers:
            found.append(f"{headers[0]}, upwards: only a .cpp file may; declare the class instead")
        if title(user, used) not in drawn:
            found.append(f"no arrow yet for: {makers[0]}")
    return found


def main():
    arrows, homeless = read_tree()
    drawing = draw(arrows)
    if "--check" in sys.argv[1:]:
        drawn = DRAWING.read_text() if DRAWING.exists() else ""
        found = findings(arrows, homeless, drawn)
        if drawn != drawing:
            found.append("docs/architecture.svg isn't up to date: run tools/draw_architecture.py, "
                         "and look at it")
    else:
        DRAWING.write_text(drawing)
        found = findings(arrows, homeless, drawing)
    sys.exit("\n".join(found) or 0)


if __name__ == "__main__":
    main()
