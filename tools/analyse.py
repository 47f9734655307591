#!/usr/bin/env python3
"""Run clang-tidy over the sources of the library, as compiled for one CPU build.

A source that passed is not looked at again as long as its preprocessed text, the checks and the tool stay the same:
what passed is remembered by the hash of those, in the user's cache folder.
"""
import argparse
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

BUILD = "v3"
CACHE = Path(os.environ.get("XDG_CACHE_HOME", Path.home() / ".cache")) / "qvpip-analysis"


def commands(folder):
    """The compile commands of the library's own sources in that build, and of those that only `any` has."""
    entries = json.loads((folder / "compile_commands.json").read_text())
    own = re.compile(rf"_{BUILD}_objects\.dir|qvpi_any_objects\.dir")
    return [e for e in entries if own.search(e["command"]) and e["file"].endswith(".cpp")]


def state_of(entry, tool):
    """A hash of all that the result depends on."""
    words = shlex.split(entry["command"])
    output = words.index("-o")
    preprocess = words[:output] + ["-E", "-P"] + [word for word in words[output + 2:] if word != "-c"]
    source = subprocess.run(preprocess, cwd=entry["directory"], check=True, capture_output=True).stdout
    return hashlib.sha256(tool + source).hexdigest()


def analyse(entry, folder, tool):
    """Whether the source passes; prints what is said of it."""
    known = CACHE / state_of(entry, tool)
    if known.exists():
        return True
    run = subprocess.run(["clang-tidy", "--quiet", "-p", str(folder), entry["file"]], capture_output=True, text=True)
    print(run.stdout, end="", flush=True)
    if run.returncode == 0:
        known.touch()
    else:
        print(run.stderr, end="", file=sys.stderr, flush=True)
    return run.returncode == 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    options = parser.parse_args()
    folder = Path("build/analysis")
    folder.mkdir(parents=True, exist_ok=True)
    CACHE.mkdir(parents=True, exist_ok=True)
    entries = commands(Path("build"))
    (folder / "compile_commands.json").write_text(json.dumps(entries))
    version = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout
    tool = version + Path(".clang-tidy").read_bytes()
    with ThreadPoolExecutor(options.jobs) as pool:
        passed = list(pool.map(lambda entry: analyse(entry, folder, tool), entries))
    print(f"analysed {len(passed)} sources, {passed.count(False)} with findings")
    sys.exit(not all(passed) or not passed)


if __name__ == "__main__":
    main()
