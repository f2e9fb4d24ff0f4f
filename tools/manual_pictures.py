#!/usr/bin/env python3
"""Puts the pictures of manual.html into it again: each image names its file in data-file. The
manual is linked from folders where those files are not, so it carries them itself."""
import base64
import pathlib
import re
import textwrap

root = pathlib.Path(__file__).resolve().parent.parent
kinds = {".png": "image/png", ".svg": "image/svg+xml"}


def embedded(image):
    file = root / image["file"]
    data = "\n".join(textwrap.wrap(base64.b64encode(file.read_bytes()).decode(), 120))
    return f'{image["before"]}src="data:{kinds[file.suffix]};base64,{data}"'


manual = root / "manual.html"
text = re.sub(r'(?P<before><img data-file="(?P<file>[^"]+)"[^>]*?)src="[^"]*"', embedded,
              manual.read_text())
manual.write_text(text)
