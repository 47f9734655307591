#!/usr/bin/env python3
"""Changes the library in small ways, one at a time, and looks whether the unit tests notice.

Of all places in a folder's sources where a comparison, an operator, a constant, a pair of arguments or the like can be
another, a sample is drawn. For each the objects that see the place are compiled with the build's own commands, the
source being replaced for the compiler alone; the library is linked with them, and the tests of their folders run on it.
Mutants that do not compile, or whose code is the same, do not count. What survives is printed: a test is missing, or
both forms do the same.
"""
import argparse
import json
import random
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from threading import Lock

BUILD, CPU = Path("build"), "v3"
MOST_OBJECTS = 3  # that see a place: headers that nearly all include would take minutes

# The beginnings of the names of the test files that a folder has.
TESTS = {
    "arith": ["arith", "compare", "composite", "convert", "logic", "lookup", "table", "threshold"],
    "core": ["alloc", "fill", "moves", "streaming"],
    "feature": ["hog", "jaehne", "lbp", "noise", "ramp", "tiles"],
    "filter": ["copy_border", "filter", "tiles"],
    "geometry": ["decimate", "frame", "mirror", "remap", "resize", "transforms", "warp"],
    "signal": ["arith", "convolve", "dct", "deconvolve", "fourier", "match", "noise", "window"],
    "stats": ["histogram", "match", "moments", "quality_index", "ssim", "stats"],
    "transform": ["convolve", "dct", "deconvolve", "fourier", "wavelet", "window"],
    "volume": ["volume"],
    "base": [""],
}

SWAPPED = [(" < ", " <= "), (" > ", " >= "), (" == ", " != "), (" && ", " || "), (" + ", " - "), (" / ", " * "),
           (" >> ", " << "), (" & ", " | "), ("std::min", "std::max"), ("hn::Min(", "hn::Max("), ("hn::Add(", "hn::Sub("),
           ("hn::Lt(", "hn::Le("), ("hn::And(", "hn::Or("), ("true", "false")]
ONE_WAY = [(" * ", " + "), (" % ", " / ")]
CONSTANT = re.compile(r"(?<![\w.#])(?<!p[-+])(\d+)(?![\w.'])")
ARGUMENTS = re.compile(r"(?<=\w)\((\w+), (\w+)\)")
# Lines without code that runs, or where a change is one of types.
NO_CODE = re.compile(r"\s*(?://|#|/\*|\*|static_assert|template|using|namespace|public:|private:)|.*\bHWY_ALIGN\b")


class Mutant:
    """A place of a source, and the text to have there instead."""

    def __init__(self, file, text, begin, end, new):
        self.file, self.begin, self.end, self.new = file, begin, end, new
        self.mutated = text[:begin] + new + text[end:]
        self.line = text.count("\n", 0, begin) + 1
        self.column = begin - text.rfind("\n", 0, begin)
        self.source = text.splitlines()[self.line - 1].strip()
        self.old = text[begin:end]

    def __str__(self):
        return f"{self.file}:{self.line}:{self.column}: {self.old.strip()} to {self.new.strip()} in: {self.source}"


def changes_of(line):
    """(begin, end, new text) of all changes of a line of code."""
    code = line.split(" //")[0]
    for one, other in SWAPPED + [(b, a) for a, b in SWAPPED] + ONE_WAY:
        for match in re.finditer(re.escape(one), code):
            yield match.start(), match.end(), other
    for match in CONSTANT.finditer(code):
        yield match.start(), match.end(), str(int(match.group(1)) + 1)
        if match.group(1) != "0":
            yield match.start(), match.end(), str(int(match.group(1)) - 1)
    for match in ARGUMENTS.finditer(code):
        if match.group(1) != match.group(2):
            yield match.start(), match.end(), f"({match.group(2)}, {match.group(1)})"


def mutants_of(file):
    text, at = file.read_text(), 0
    for line in text.splitlines(keepends=True):
        if not NO_CODE.match(line) and '"' not in line:
            for begin, end, new in changes_of(line.rstrip("\n")):
                yield Mutant(file, text, at + begin, at + end, new)
        at += len(line)


class Library:
    """The finished build, and how its objects and the library were made."""

    def __init__(self):
        entries = json.loads((BUILD / "compile_commands.json").read_text())
        own = f"qvpi_{CPU}_objects.dir"
        self.commands = {}
        for entry in entries:
            words = shlex.split(entry["command"])
            if own in entry["command"] and entry["file"].endswith(".cpp"):
                self.commands[words[words.index("-o") + 1]] = words
        self.link = shlex.split(run("ninja", "-C", BUILD, "-t", "commands", f"{CPU}/libqvpi.so.10").splitlines()[-1]
                                .removeprefix(": && ").removesuffix(" && :"))
        self.seen = {}
        listing = run("ninja", "-C", BUILD, "-t", "deps")
        for block in listing.split("\n\n"):
            target, *lines = block.strip().splitlines() or [""]
            if (target := target.split(":")[0]) in self.commands:
                for line in lines:
                    self.seen.setdefault((BUILD / line.strip()).resolve(), []).append(target)

    def objects_of(self, file):
        return self.seen.get(file.resolve(), [])


def run(*words, **more):
    return subprocess.run([str(word) for word in words], check=True, capture_output=True, text=True, **more).stdout


def compile_mutant(library, mutant, folder):
    """The objects that differ, by the names of those that they replace; none if it does not compile."""
    source, overlay = folder / "mutated", folder / "overlay.json"
    source.write_text(mutant.mutated)
    overlay.write_text(json.dumps({"version": 0, "roots": [
        {"type": "file", "name": str(mutant.file.resolve()), "external-contents": str(source.resolve())}]}))
    objects = {}
    for number, name in enumerate(library.objects_of(mutant.file)):
        words, out = list(library.commands[name]), folder.resolve() / f"{number}.o"
        words[words.index("-o") + 1] = str(out)
        done = subprocess.run([*words, "-ivfsoverlay", str(overlay.resolve()), "-Wno-error"], cwd=BUILD, capture_output=True)
        if done.returncode != 0:
            return {}
        if out.read_bytes() != (BUILD / name).read_bytes():
            objects[name] = out
    return objects


def is_killed(library, objects, tests, folder, seconds):
    words = [str(objects.get(word, word)) for word in library.link]
    out = folder.resolve() / "libqvpi.so.10"
    words[words.index("-o") + 1] = str(out)
    run(*words, cwd=BUILD)
    program = (BUILD / "tests" / "unit_64").resolve()
    path = f"{folder.resolve()}:{(BUILD / CPU).resolve()}"
    try:
        done = subprocess.run([program, f"--gtest_filter={tests}", "--gtest_fail_fast", "--gtest_brief=1"],
                              env={"LD_LIBRARY_PATH": path}, cwd=folder, capture_output=True, timeout=seconds)
    except subprocess.TimeoutExpired:
        return True
    return done.returncode != 0


def filter_for(folders):
    """The tests of the folders that see a place."""
    names, beginnings = [], tuple(name for folder in folders for name in TESTS[folder])
    for test in sorted(Path("tests").glob("*_test.cpp")):
        if test.stem.startswith(beginnings):
            tests = re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+), (\w+)\)", test.read_text(), re.M)
            names += [f"*{suite}*.{name}*" for suite, name in tests if suite != "EveryKernel"]
    return ":".join(["EveryFunction.*", *names])


def judge(library, mutant, scratch, seconds):
    folder = scratch / f"{abs(hash((str(mutant.file), mutant.begin, mutant.new)))}"
    folder.mkdir(parents=True, exist_ok=True)
    objects = compile_mutant(library, mutant, folder)
    verdict = "no mutant"
    if objects:
        folders = {mutant.file.parts[0], *(Path(name).parts[-2] for name in objects)}
        killed = is_killed(library, objects, filter_for(sorted(folders)), folder, seconds)
        verdict = "killed" if killed else "SURVIVES"
    for file in folder.iterdir():
        file.unlink()
    folder.rmdir()
    return verdict


def examine(library, candidates, options):
    """How many of the candidates, until the sample is full, are killed, survive, or are no mutants."""
    counts, left, turn = {"killed": 0, "SURVIVES": 0, "no mutant": 0}, iter(candidates), Lock()

    def work():
        while counts["killed"] + counts["SURVIVES"] < options.sample:
            with turn:
                mutant = next(left, None)
            if mutant is None:
                return
            verdict = judge(library, mutant, BUILD / "mutants", options.seconds)
            with turn:
                counts[verdict] += 1
                if verdict == "SURVIVES":
                    print(counts["killed"], "killed;", mutant, flush=True)

    with ThreadPoolExecutor(options.jobs) as pool:
        for worker in [pool.submit(work) for _ in range(options.jobs)]:
            worker.result()
    return counts


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folders", nargs="*", help=f"of the library; by default all: {' '.join(TESTS)}")
    parser.add_argument("--sample", type=int, default=30, help="mutants that count")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--seconds", type=int, default=300, help="for the tests of a mutant")
    parser.add_argument("--jobs", type=int, default=1)
    options = parser.parse_args()
    library = Library()
    files = [file for folder in options.folders or TESTS for file in sorted(Path(folder).glob("*"))
             if 1 <= len(library.objects_of(file)) <= MOST_OBJECTS]
    candidates = [mutant for file in files for mutant in mutants_of(file)]
    random.Random(options.seed).shuffle(candidates)
    counts = examine(library, candidates, options)
    print(f"of {len(candidates)} places, seed {options.seed}: {counts}")
    sys.exit(counts["killed"] + counts["SURVIVES"] == 0)


if __name__ == "__main__":
    main()
