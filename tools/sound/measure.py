#!/usr/bin/env python3
"""Measures sound files with ffmpeg (EBU R128) and prints a table in Markdown.

    measure.py file ...

Length in seconds; peaks in dBFS of the left side's samples and dBTP between them on both;
loudness: integrated, and the greatest of any 400 ms with silence around the file, so that a short
sound counts by its energy; mono is taken as heard from both sides. Ends: the greatest of the first
and the last two samples, of 32768.
"""

import array
import math
import pathlib
import re
import subprocess
import sys

RATE = 44100  # Hz
QUIET = "adelay=500:all=1,apad=pad_dur=0.5"


def ffmpeg(path, *options):
    command = ["ffmpeg", "-nostdin", "-hide_banner", "-nostats", "-i", str(path), *options, "-"]
    done = subprocess.run(command, capture_output=True, check=True)
    return done.stdout, done.stderr.decode()


def decoded(path):
    """The left side, 16 bits, at RATE."""
    side = "aformat=sample_fmts=s16,pan=mono|c0=c0"
    return array.array("h", ffmpeg(path, "-af", side, "-ar", str(RATE), "-f", "s16le")[0])


def loudness(path):
    """Integrated and greatest momentary loudness in LUFS, true peak in dBTP."""
    meter = "ebur128=peak=true:dualmono=true:framelog=info"
    report = ffmpeg(path, "-af", f"{QUIET},{meter}", "-f", "null")[1]
    momentary = max(float(m) for m in re.findall(r"M: *(-?[\d.]+)", report))
    summary = report[report.rindex("Summary:") :]
    return (
        float(re.search(r"I: +(-?[\d.]+) LUFS", summary).group(1)),
        momentary,
        float(re.search(r"Peak: +(-?[\d.]+) dBFS", summary).group(1)),
    )


def main():
    print("| File | Length | Size | Peak | True peak | Integrated | Loudest 400 ms | Ends |")
    print("|---|---|---|---|---|---|---|---|")
    for path in map(pathlib.Path, sys.argv[1:]):
        samples = decoded(path)
        peak = 20 * math.log10(max(map(abs, samples)) / 32768)
        ends = max(map(abs, samples[:2])), max(map(abs, samples[-2:]))
        integrated, momentary, true_peak = loudness(path)
        print(
            f"| {path.name} | {len(samples) / RATE:.3f} | {path.stat().st_size // 1000} kB |"
            f" {peak:.1f} | {true_peak:.1f} | {integrated:.1f} | {momentary:.1f} |"
            f" {ends[0]}, {ends[1]} |"
        )


if __name__ == "__main__":
    main()
