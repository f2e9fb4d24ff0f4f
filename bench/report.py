"""What bench/report.sh runs: measures, then writes docs/performance.md's table and its plot."""

import json
import os
import platform
import re
import statistics
import subprocess
import sys
import time

BUILD = os.path.realpath(sys.argv[1])
PAGE, PLOT = "docs/performance.md", "docs/performance.svg"
BEGIN, END = "<!-- written by bench/report.sh -->", "<!-- to here -->"
RECORDINGS = "tests/recordings"
BUSY = RECORDINGS + "/long-evening.kovreplay"
BUSY_FROM, BUSY_SECONDS = "2:20", 30  # where most happens in it
FRAMES_A_SECOND = 1000 / 30
USUAL = {"triangles": 200, "lines": 8, "substeps": 10, "bursts": 2}  # lines in each direction


def program(name):
    return os.path.join(BUILD, name)


def output(*command):
    print("...", *command[:3], file=sys.stderr)
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                          check=True).stdout


def figure(value):
    return "%.3g" % value if value < 100 else "%.0f" % value


def ms(value):
    return figure(value) + " ms"


# Ticks and frames without a window


def benchmarks():
    """All results of kov_bench by their names."""
    out = output(program("bench/kov_bench"), "--benchmark_format=json")
    return {b["name"]: b for b in json.loads(out)["benchmarks"]}


def tick_name(amounts):
    arguments = "/".join("%s:%d" % (name, amounts[name])
                         for name in ("lines", "triangles", "substeps", "bursts"))
    return "wholeTick/" + arguments + "/iterations:200"


def tick_rows(bench):
    def cost(name):
        return bench[name]["cpu_time"] / 1000  # ms

    def tick(**changed):
        return cost(tick_name({**USUAL, **changed}))

    def changing(count):
        return cost("changingTick/%d/iterations:200" % count)

    by = "`kov_bench`"
    for accuracy, plain in ((10, "worstFieldPlain/10"),
                            (1000, "worstFieldPlain/1000/iterations:3")):
        game = cost("worstField/%d" % accuracy)
        yield ("physics of the worst field, accuracy %d" % accuracy, ms(game),
               "plain loops " + ms(cost(plain)), cost(plain) / game, by)
    yield ("its whole tick, accuracy 1000", ms(tick(substeps=1000)), "", None, by)
    yield ("whole tick, 250 triangles, 16 lines", ms(tick(triangles=250)), "", None, by)
    yield ("1000 triangles", ms(tick(triangles=1000)), "250: " + ms(tick(triangles=250)),
           tick(triangles=1000) / tick(triangles=250), by)
    yield ("1000, one added or removed every tick", ms(changing(1000)), "250: " + ms(changing(250)),
           changing(1000) / changing(250), by)
    yield ("ordinary field: 25 triangles, 6 lines, 2 bursts", ms(tick(triangles=25, lines=3)), "",
           None, by)
    frame = bench["busyFrame"]
    yield ("busy frame, %.0f calls that are only counted" % frame["gl_calls"],
           ms(cost("busyFrame")), "", None, by)
    allocations = frame["allocations"] + bench[tick_name(USUAL)]["allocations"]
    yield ("allocations in such a tick and frame", "%.0f" % allocations, "", None, by)


def elementary_rows(bench):
    for name in ("sin", "cos", "atan", "atan2", "acos", "asin"):
        own, library = (1e9 / bench["elementary/" + name + kind]["items_per_second"]
                        for kind in ("", "/library"))
        yield ("`math::%s`" % name, "%.0f ns" % own, "C library %.0f ns" % library, own / library,
               "`kov_bench`")


# Frames in a window


def frame_rows():
    for line in output(program("bench/kov_frame_cost")).splitlines()[2:]:
        words = line.split()
        scene = " ".join(words[:-8])
        calls, game, bare, ratio, least, most, arrays, fewest = map(float, words[-8:])
        by = "`kov_frame_cost`"
        yield ("frame, %s: %d calls" % (scene, calls), ms(game), "the same calls " + ms(bare),
               "%.2f (%.2f to %.2f)" % (ratio, least, most), by)
        yield ("the same picture", ms(game), "in %d arrays %s" % (arrays, ms(fewest)),
               game / fewest, by)


# The whole game


def start_rows():
    for line in output("sh", "bench/start.sh", BUILD).splitlines():
        name, game, bare = re.match(r"(.*?) +game +([\d.]+) ms, bare +([\d.]+) ms", line).groups()
        yield ("start to " + name, ms(float(game)), "bare " + ms(float(bare)),
               float(game) / float(bare), "`bench/start.sh`")


def status(process, name):
    with open("/proc/%d/%s" % (process.pid, name), encoding="ascii") as file:
        return file.read()


def resident(process):
    return int(re.search(r"VmRSS:\s+(\d+)", status(process, "status")).group(1)) / 1024  # MiB


def watched(seconds, measure, *command):
    """What `measure` gives of the running program, once a second."""
    print("...", *command[:3], file=sys.stderr)
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        values = []
        for _ in range(seconds):
            time.sleep(1)
            values.append(measure(process))
        return values
    finally:
        process.kill()
        process.wait()


def play(seconds, measure, *options):
    return watched(seconds, measure, program("replay/kov-replay"), "watch", BUSY, *options)


def memory_rows():
    by = "`kov-replay watch`"
    bare = watched(3, resident, program("bench/kov_bare_start"), "--stay")[-1]
    menu = watched(3, resident, program("kov"))[-1]
    early = statistics.median(play(8, resident)[2:])
    busy = max(play(BUSY_SECONDS, resident, "--from", BUSY_FROM))
    for what, value, command in (
            ("main menu", menu, "`kov`"),
            ("first seconds of a game", early, by),
            ("the most in its busiest half minute", busy, by)):
        yield ("memory, " + what, "%.0f MiB" % value, "bare window %.0f MiB" % bare, value / bare,
               command)


def play_rows():
    def cost(*options):  # ms a frame
        used = play(BUSY_SECONDS, processor_seconds, *options)[2:]  # not the start
        return 1000 * (used[-1] - used[0]) / (len(used) - 1) / FRAMES_A_SECOND

    busy, early = cost("--from", BUSY_FROM), cost()
    yield ("frame and ticks, busiest half minute of a game", ms(busy), "its first " + ms(early),
           busy / early, "`kov-replay watch`")


def processor_seconds(process):
    user, system = status(process, "stat").rsplit(")", 1)[1].split()[11:13]
    return (int(user) + int(system)) / os.sysconf("SC_CLK_TCK")


def idle_rows():
    used = watched(9, processor_seconds, program("kov"), "-u")
    share = (used[-1] - used[0]) / (len(used) - 1)
    yield ("menu with Save CPU on", "%.0f %% of a core" % (share * 100), "", None, "`kov -u`")


def replay_rows():
    files = [os.path.join(RECORDINGS, name) for name in sorted(os.listdir(RECORDINGS))]
    played = 0
    for file in files:
        text = output(program("replay/kov-replay"), "show", file)
        minutes, seconds = re.search(r"length +(\d+):(\d+)", text).groups()
        played += int(minutes) * 60 + int(seconds)
    before = os.times()
    output(program("replay/kov-replay"), "verify", *files)
    after = os.times()
    used = sum(after[2:4]) - sum(before[2:4])
    yield ("%d:%02d of recorded play, played again" % divmod(played, 60), "%.2f s" % used, "",
           None, "`kov-replay verify`")


# The plot

AMOUNTS = (("triangles", "triangles", 1), ("lines", "lines", 2),
           ("substeps", "sub-steps a tick", 1), ("bursts", "rays", 100))
WIDTH, HEIGHT, GAP, MARGIN = 170, 120, 60, 50


def growth_of_ticks(bench):
    """(amount, ms) of the busy field's tick, by what is changed."""
    series = {name: [] for name, _, _ in AMOUNTS}
    for result in bench:
        amounts = {k: int(v) for k, v in re.findall(r"(\w+):(\d+)", result)}
        amounts.pop("iterations", None)
        for name in series:
            if amounts and {**USUAL, name: amounts[name]} == amounts:
                series[name].append((amounts[name], bench[result]["cpu_time"] / 1000))
    return {name: sorted(set(points)) for name, points in series.items()}


def growth_of_frames():
    series = {name: [] for name, _, _ in AMOUNTS}
    for line in output(program("bench/kov_frame_cost"), "growth").splitlines():
        name, amount, cost = line.split()
        series[name].append((int(amount), float(cost)))
    return series


def panel(left, top, points, label, factor, unit):
    """One curve with its axes."""
    points = [(x * factor, y) for x, y in points]
    far, high = max(x for x, _ in points), max(y for _, y in points) * 1.1
    place = [(left + WIDTH * x / far, top + HEIGHT * (1 - y / high)) for x, y in points]
    bottom = top + HEIGHT
    yield '<path d="M%d %dV%dH%d" class="axis"/>' % (left, top, bottom, left + WIDTH)
    yield '<path d="M%s" class="curve"/>' % "L".join("%.1f %.1f" % p for p in place)
    for x, y in place:
        yield '<circle cx="%.1f" cy="%.1f" r="2.5"/>' % (x, y)
    yield '<text x="%d" y="%d" text-anchor="end">%s</text>' % (
        left - 6, place[-1][1] + 4, figure(points[-1][1]))
    yield '<text x="%d" y="%d" text-anchor="end">0</text>' % (left - 6, bottom + 4)
    yield '<text x="%d" y="%d">%s</text>' % (left + 6, top + 4, unit)
    yield '<text x="%d" y="%d" text-anchor="end">%d %s</text>' % (
        left + WIDTH, bottom + 18, far, label)


def plot(rows):
    parts = []
    for row, (unit, series) in enumerate(rows):
        for column, (name, label, factor) in enumerate(AMOUNTS):
            if series[name]:
                parts += panel(MARGIN + column * (WIDTH + GAP), 20 + row * (HEIGHT + GAP),
                               series[name], label, factor, unit)
    width = MARGIN + len(AMOUNTS) * (WIDTH + GAP) - GAP + 20
    height = 20 + len(rows) * (HEIGHT + GAP) - 20
    return "\n".join([
        '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 %d %d">' % (width, height),
        '<title>What a tick and a frame cost as the field fills</title>',
        '<style>text{font:12px sans-serif;fill:#444}.axis{fill:none;stroke:#888}'
        '.curve{fill:none;stroke:#c2185b;stroke-width:2}circle{fill:#c2185b}</style>',
        '<rect width="100%" height="100%" fill="#fff"/>', *parts, "</svg>", ""])


# In a browser


def page_rows():
    figures = json.loads(output("node", "bench/web/measure.js"))
    by = "`bench/web`"
    yield ("page: fetched before the first song", "%.0f KB compressed" %
           (figures["compressed"] / 1000), "plain %.0f KB" % (figures["plain"] / 1000), None, by)
    yield ("page: navigation to the menu's first picture", ms(figures["firstPicture"]),
           "fastest of seven " + ms(figures["fastestFirstPicture"]), None, by)
    yield ("page: a frame of its thread, busiest half minute of a game", ms(figures["median"]),
           "99 of 100 within " + ms(figures["p99"]), None, by)
    yield ("page: a proof", "%.0f ticks a second" % figures["proof"], "played: 33", None, by)
    yield ("page: seeking six to seven minutes ahead", ms(figures["ahead"]),
           "back to the start " + ms(figures["back"]), None, by)


# The document


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"model name\s*: (.*)", file.read())
    with open(os.path.join(BUILD, "CMakeCache.txt"), encoding="utf-8") as file:
        compiler = re.search(r"CMAKE_CXX_COMPILER:\w+=(.*)", file.read()).group(1)
    version = output(compiler, "--version").splitlines()[0]
    return "%d cores of %s, %s" % (len(os.sched_getaffinity(0)),
                                   model.group(1) if model else platform.machine(), version)


def table(rows):
    lines = ["| | Game | Beside it | Ratio | By |", "|---|---|---|---|---|"]
    for what, game, beside, ratio, command in rows:
        text = figure(ratio) if isinstance(ratio, float) else ratio or ""
        lines.append("| %s | %s | %s | %s | %s |" % (what, game, beside, text, command))
    return "\n".join(lines)


def main():
    bench = benchmarks()
    rows = [*tick_rows(bench), *elementary_rows(bench), *frame_rows(), *start_rows(),
            *memory_rows(), *play_rows(), *idle_rows(), *replay_rows(), *page_rows()]
    curves = plot([("ms a tick", growth_of_ticks(bench)), ("ms a frame", growth_of_frames())])
    with open(PLOT, "w", encoding="utf-8") as file:
        file.write(curves)
    with open(PAGE, encoding="utf-8") as file:
        page = file.read()
    before, rest = page.split(BEGIN)
    text = "\n\n%s, release build, software rendering at 800 by 600.\n\n%s\n\n" % (machine(),
                                                                                  table(rows))
    with open(PAGE, "w", encoding="utf-8") as file:
        file.write(before + BEGIN + text + END + rest.split(END)[1])


main()
