#!/usr/bin/env python3
"""Do the tests notice small faults? Puts them into a copy of the tree, one at a time.

    tools/mutants.py --seed S --count N [FOLDER...]
    tools/mutants.py --again FILE

draws N places from the seed, each line of code as likely as any other, in the folders (Framework,
game, platform/fmodex and replay unless named), and makes one fault at each: a comparison turned, a
constant changed, a statement left out, two arguments swapped, a sign. For every fault the copy is
built and the whole suite run, the quickest tests first, up to the first that fails. Printed is each
fault that all tests pass, and last "N mutants, K survive, M do not build". A fault that leaves the
programs the same to the byte is none: another is drawn for it. Some survivors change nothing that
can be seen; a reader has to say which. The copy is kept in build/mutants, so that the next run has
less to build; two runs at once want two trees.

With --again the faults are those of the lines that a former run has printed, kept in a file: after
a change of the tests, those that the changed ones had found. A fault whose line has gone is passed
over. --quick runs but the tests that need no process of their own, two thirds of all; what survives
these may still be found by the others.
"""

import argparse
import filecmp
import hashlib
import os
import random
import re
import resource
import shutil
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DEFAULT_FOLDERS = ["Framework", "game", "platform/fmodex", "replay"]
WHOLE_PROGRAMS = {  # run in one process, before all else; and the programs that they start
    "tests/kov_tests": [],
    "tests/kov_sound_tests": [],
    "tests/kov_replay_tests": ["replay/kov-replay-verify", "tools/kov_record"],
}
OTHER_PROGRAMS = ["tests/kov_fault_tests", "kov", "replay/kov-replay"]
SLOW_SECONDS = 1  # a test that takes longer waits until the others have passed
MEMORY_LIMIT = 4 << 30  # bytes a test process may map: a fault may ask for all there is
FILE_LIMIT = 8 << 30  # bytes that it may write to a file; tests make some with large holes
OUTPUT = "mutants.log"  # of the last command
FAILED_TEST = re.compile(r"^\[  FAILED  \] ([\w./]+)|^\s+\d+ - (\S+) \(", re.M)
SLACK_SECONDS = 30  # on top of three times what the same tests take without a fault

NUMBER = re.compile(r"(?<![\w.])(\d+\.\d*|\.\d+|\d+)(?:[eE][+-]?\d+)?(?=[uUlLfF]*\b|[^\w.]|$)")
SWAPS = {  # operators, with their blanks so that templates and pointers are left alone
    " < ": [" <= ", " > "], " <= ": [" < ", " >= "],
    " > ": [" >= ", " < "], " >= ": [" > ", " <= "],
    " == ": [" != "], " != ": [" == "], " && ": [" || "], " || ": [" && "],
    " + ": [" - "], " - ": [" + "], " += ": [" -= "], " -= ": [" += "],
    " * ": [" / "], " / ": [" * "],
}
NOT_A_STATEMENT = re.compile(
    r"^(return|break|continue|using|typedef|class|struct|enum|friend|public|private|protected|case|"
    r"default|namespace|template|virtual|extern|static_assert|goto|else|#)\b")
DECLARATION = re.compile(r"^(?!delete\b)[\w:<>,*&\s]*[\w>*&]\s+[*&]*\w+\s*(=|;|\{|\(|\[)")
PARAMETER = re.compile(r"^\s*(const\s+)?[\w:<>*&]+\s*[*&\s]\s*\w+\s*(=.*)?$")
ORDERLESS = {"max", "min", "swap", "fuzzyEqual"}  # their arguments may change places


class Fault:
    def __init__(self, path, line, before, after):
        self.path, self.line, self.before, self.after = path, line, before, after

    def __str__(self):
        return f"{self.path}:{self.line}: {self.before.strip()}  ->  {self.after.strip()}"


def blank_comments_and_strings(text):
    """The text at the same length, with comments, strings and characters blanked out."""
    pattern = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|'
                         r'"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S)
    return pattern.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def closing(code, opening):
    """Where the bracket at `opening` closes, and the commas between at its own level; None if not
    on this line."""
    depth, commas = 0, []
    for at in range(opening, len(code)):
        if code[at] in "([{":
            depth += 1
        elif code[at] in ")]}":
            depth -= 1
            if depth == 0:
                return at, commas
        elif code[at] == "," and depth == 1:
            commas.append(at)
    return None


def swapped_arguments(line, code):
    for call in re.finditer(r"(\w+)\(", code):
        found = closing(code, call.end() - 1)
        if not found or not found[1] or call.group(1) in ORDERLESS:
            continue
        end, commas = found
        bounds = [call.end() - 1, *commas, end]
        for a, b, c in zip(bounds, bounds[1:], bounds[2:]):
            first, second = line[a + 1:b].strip(), line[b + 1:c].strip()
            if first != second and not PARAMETER.match(first) and not PARAMETER.match(second):
                yield line[:a + 1] + second + ", " + first + line[c:]


def changed_constants(line, code):
    for number in NUMBER.finditer(code):
        text = number.group(1)
        others = [str(int(text) + 1)] if text.isdigit() else [repr(float(text) * 1.25 + 0.125)]
        if text.isdigit() and int(text) > 0:
            others.append(str(int(text) - 1))
        for other in others:
            yield line[:number.start(1)] + other + line[number.end(1):]
    for word, other in (("true", "false"), ("false", "true")):
        for found in re.finditer(rf"\b{word}\b", code):
            yield line[:found.start()] + other + line[found.end():]


def turned_operators(line, code):
    for operator, others in SWAPS.items():
        at = code.find(operator)
        while at >= 0:
            for other in others:
                yield line[:at] + other + line[at + len(operator):]
            at = code.find(operator, at + 1)
    for sign in re.finditer(r"(?:(?<=[(,=] )|(?<=\()|(?<=return ))-(?=[\w(.])", code):
        yield line[:sign.start()] + line[sign.end():]


def left_out(line, code, before):
    statement = code.strip()
    last = before.strip()
    starts_here = last[-1:] in ("", ";", "{", "}", ":", ")") and not last.startswith("#")
    if (starts_here and statement.endswith(";") and re.search(r"[=(]|\+\+|--|^delete\b", statement)
            and not NOT_A_STATEMENT.match(statement) and not DECLARATION.match(statement)
            and statement.count("(") == statement.count(")")):
        yield re.sub(r"\S.*", ";", line)  # an empty one, as it may be all that an `if` has


def faults_of(path, number, lines, codes):
    line, code = lines[number], codes[number]
    if code.lstrip().startswith(("#", "static_assert", "using", "namespace")):
        return []
    before = next((codes[i] for i in range(number - 1, -1, -1) if codes[i].strip()), "")
    kinds = [list(turned_operators(line, code)), list(changed_constants(line, code)),
             list(left_out(line, code, before)), list(swapped_arguments(line, code))]
    return [[Fault(path, number + 1, line, after) for after in kind] for kind in kinds if kind]


class Draw:
    """Faults without end, each line with any code as likely as any other."""

    def __init__(self, root, folders, seed):
        self.random, self.places, self.drawn = random.Random(seed), [], set()
        for folder in folders:
            for path in sorted((root / folder).rglob("*")):
                if path.suffix not in (".cpp", ".h"):
                    continue
                text = path.read_text()
                lines, codes = text.split("\n"), blank_comments_and_strings(text).split("\n")
                relative = path.relative_to(root)
                self.places += [(relative, n, lines, codes)
                                for n in range(len(lines)) if codes[n].strip()]
        if not self.places:
            sys.exit("mutants.py: there is no C++ in these folders")

    def next(self):
        for _ in range(100000):
            kinds = faults_of(*self.random.choice(self.places))
            if not kinds:
                continue
            fault = self.random.choice(self.random.choice(kinds))
            key = (str(fault.path), fault.line, fault.after)
            if key not in self.drawn:
                self.drawn.add(key)
                return fault
        sys.exit("mutants.py: there are not so many different faults in these folders")


PRINTED = re.compile(r"(?:[a-z ]*|dies by .*): (\S+):(\d+): (.*)  ->  (.*)")


def made_again(root, text):
    """The faults that a run has printed, each where its line is now, nearest to its old place."""
    for path, line, before, after in PRINTED.findall(text):
        lines = (root / path).read_text().split("\n") if (root / path).exists() else []
        places = [n for n, now in enumerate(lines, 1) if now.strip() == before]
        if not places:
            print(f"gone: {path}: {before}", flush=True)
            continue
        place = min(places, key=lambda n: abs(n - int(line)))
        indent = lines[place - 1][:-len(lines[place - 1].lstrip())]
        yield Fault(Path(path), place, lines[place - 1], indent + after)


class Copy:
    """A copy of the tree with a build of its own, in which the faults are made."""

    def __init__(self, folder, quick):
        self.folder, self.build = folder, folder / "build"
        self.renew()
        self.must(["cmake", "-G", "Ninja", "-B", str(self.build), "-S", str(folder),
                   "-DKOV_TESTS=ON"])
        self.limits, self.slow, self.quick = {}, "none", quick
        programs = [*WHOLE_PROGRAMS, *sum(WHOLE_PROGRAMS.values(), []),
                    *([] if quick else OTHER_PROGRAMS)]
        self.must(["cmake", "--build", str(self.build),
                   *(["--target", *map(lambda name: Path(name).name, programs)] if quick else [])])
        self.digests = {name: self.digest(name) for name in programs}
        if any(self.fails(program) for program in WHOLE_PROGRAMS) or self.rest_fails():
            sys.exit("mutants.py: the tests fail without any fault")
        self.slow = "none" if quick else self.slow_tests()

    def renew(self):
        """A file that is the same keeps its date, and so what is built of it."""
        listed = subprocess.check_output(["git", "ls-files", "-z"], cwd=ROOT, text=True).split("\0")
        names = {name for name in listed if name and (ROOT / name).exists()}
        for path in self.folder.rglob("*"):
            is_copied = path.is_file() and self.build not in path.parents
            if is_copied and str(path.relative_to(self.folder)) not in names:
                path.unlink()
        for name in names:
            original, copy = ROOT / name, self.folder / name
            if copy.exists() and filecmp.cmp(original, copy, shallow=False):
                continue
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(original, copy)

    def must(self, command):
        if self.run(command) != 0:
            sys.exit("mutants.py: this fails without any fault: " + " ".join(command))

    def run(self, command, limit=None, are_tests=False):
        """The exit code; None if it took too long, which ends all that it has started."""
        def own_group():
            os.setsid()
            if are_tests:
                resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
                resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_LIMIT, FILE_LIMIT))
        with open(self.folder / OUTPUT, "wb") as output:
            cwd = self.build if self.build.exists() else self.folder
            process = subprocess.Popen(command, cwd=cwd, stdout=output, stderr=output,
                                       stdin=subprocess.DEVNULL, preexec_fn=own_group)
        try:
            return process.wait(limit)
        except subprocess.TimeoutExpired:
            return None
        finally:
            try:
                os.killpg(process.pid, 9)
            except ProcessLookupError:
                pass
            process.wait()

    def compile(self, *target):
        return self.run(["cmake", "--build", str(self.build), *target], 900) == 0

    def digest(self, program):
        return hashlib.sha256((self.build / program).read_bytes()).digest()

    def has_changed(self, program):
        return self.digest(program) != self.digests[program]

    def test(self, *command):
        """Whether these tests pass, in time."""
        started = time.monotonic()
        passed = self.run(command, self.limits.get(command[0]), True) == 0
        self.limits.setdefault(command[0], 3 * (time.monotonic() - started) + SLACK_SECONDS)
        return passed

    def killer(self):
        """The first test that has failed, by what the last command has printed."""
        output = (self.folder / OUTPUT).read_text(errors="replace")
        found = FAILED_TEST.search(output)
        return found.group(1) or found.group(2) if found else "a crash or the limit of time"

    def fails(self, program):
        return not self.test(self.build / program, "--gtest_fail_fast")

    def slow_tests(self):
        """A regular expression, of what CTest has measured: name, runs and seconds a line."""
        log = (self.build / "Testing" / "Temporary" / "CTestCostData.txt").read_text()
        costs = [line.split() for line in log.split("---")[0].splitlines()]
        return "|".join(re.escape(name)
                        for name, _, seconds in costs if float(seconds) > SLOW_SECONDS)

    def rest_fails(self):
        """Whether any test fails but those of the programs that have run whole."""
        if self.quick:
            return False
        suite = ["ctest", "--stop-on-failure", "-j", str(os.cpu_count()), "-LE", "whole"]
        return not all(self.test(*suite, choice, f"^({self.slow})$") for choice in ("-E", "-R"))

    def outcome(self):
        """"survives", "dies by …", "does not build" or "changes nothing". The programs that run
        whole come first: they are quick to build and run, and see most faults."""
        for program, started in WHOLE_PROGRAMS.items():
            if not self.compile("--target", Path(program).name):
                return "does not build"
            if any(map(self.has_changed, [program, *started])) and self.fails(program):
                return f"dies by {self.killer()}"
        if not self.quick and not self.compile():
            return "does not build"
        if not any(self.has_changed(program) for program in self.digests):
            return "changes nothing"
        return f"dies by {self.killer()}" if self.rest_fails() else "survives"

    def try_out(self, fault):
        path = self.folder / fault.path
        original = path.read_text()
        lines = original.split("\n")
        lines[fault.line - 1] = fault.after
        path.write_text("\n".join(lines))
        try:
            return self.outcome()
        finally:
            path.write_text(original)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--seed", type=int)
    parser.add_argument("--count", type=int, metavar="N")
    parser.add_argument("--again", type=Path, metavar="FILE", help="what a former run has printed")
    parser.add_argument("--quick", action="store_true", help="without the slower half of the tests")
    parser.add_argument("--verbose", action="store_true",
                        help="also print the faults that are found, and by which test")
    parser.add_argument("folders", nargs="*", default=DEFAULT_FOLDERS, metavar="FOLDER")
    arguments = parser.parse_args()
    if arguments.again is None and None in (arguments.seed, arguments.count):
        parser.error("--seed and --count, or --again")
    faults = (made_again(ROOT, arguments.again.read_text()) if arguments.again
              else iter(Draw(ROOT, arguments.folders, arguments.seed).next, None))
    ends = {"survives": 0, "dies": 0, "does not build": 0}
    copy = Copy(ROOT / "build" / "mutants", arguments.quick)
    for fault in faults:
        end = copy.try_out(fault)
        kind = "dies" if end.startswith("dies") else end
        if kind in ends:
            ends[kind] += 1
        if end == "survives" or arguments.verbose:
            print(f"{end}: {fault}", flush=True)
        if sum(ends.values()) == arguments.count:
            break
    print(f"{sum(ends.values())} mutants, {ends['survives']} survive, "
          f"{ends['does not build']} do not build")


if __name__ == "__main__":
    main()
