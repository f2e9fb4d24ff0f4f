#!/usr/bin/env python3
"""Puts together the folder that a web server serves.
  make_site.py SOURCE PROGRAM OUTPUT
SOURCE is the project's folder, PROGRAM that of kov.js, kov.wasm and the effects. KOV_ADDRESS in the
environment is where the page will be: only with it can others show a picture beside a link to the
page."""
import hashlib
import json
import os
import pathlib
import shutil
import sys

source, program, output = map(pathlib.Path, sys.argv[1:])
page = source / "platform/web/page"

# Fetched when a game is first proved.
prover = ("kov-prove.js", "kov-prove.wasm")
# What goes where, songs apart.
files = {path.name: path for path in page.iterdir() if path.name != "worker.js"}
files |= {name: program / name for name in ("kov.js", "kov.wasm", *prover)}
files["manual.html"] = source / "manual.html"
files["pad.svg"] = source / "docs/pad.svg"
files["picture.png"] = source / "docs/gallery/fence.png"
for name in ("kov.svg", "kov-48.png", "kov-128.png", "kov-256.png"):
    files[f"icons/{name}"] = source / "packaging/icons" / name
files |= {f"Sounds/{path.name}": path for path in (program / "Sounds").glob("*.flac")}
songs = {f"Songs/{path.name}": path for path in (source / "Songs").iterdir()
         if path.suffix in (".mp3", ".ogg")}
# Of the game, and of what is in its program.
licences = [source / name for name in ("LICENSE", "Songs/LICENSE", "Sounds/LICENSE",
                                       "fonts/LICENSE-Kov.txt", "fonts/LICENSE-Vera.txt")]
licences += [pathlib.Path("/usr/share/doc", package, "copyright")
             for package in ("emscripten", "libboost-dev", "node-pako")]

shutil.rmtree(output, ignore_errors=True)
version = hashlib.sha256()
for name, path in sorted((files | songs).items()):
    (output / name).parent.mkdir(parents=True, exist_ok=True)
    shutil.copyfile(path, output / name)
    version.update(name.encode() + path.read_bytes())

(output / "licences.txt").write_text("\n\n".join(
    f"==== {path.relative_to(source) if path.is_relative_to(source) else path.parent.name} ====\n\n"
    + path.read_text() for path in licences if path.exists()))

if address := os.environ.get("KOV_ADDRESS"):
    index = output / "index.html"
    index.write_text(index.read_text().replace('content="picture.png"',
                                               f'content="{address.rstrip("/")}/picture.png"'))

kept = ["./", *sorted(set(files) - {"index.html", "picture.png", *prover})]
worker = (page / "worker.js").read_text()
worker = worker.replace("@version@", version.hexdigest()[:16])
worker = worker.replace("@files@", json.dumps(kept))
(output / "worker.js").write_text(worker)
