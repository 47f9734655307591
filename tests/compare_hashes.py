#!/usr/bin/env python3
"""Compare what the hash program prints for every CPU build.

Each argument is <library folder>=<program>, with the emulator before the program if it needs one, or a file of lines
that --save has written, <folder>/<code>.txt for each build. A library that chooses between levels is told to take one
by <library folder>@<level>.
"""
import argparse
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


def lines_of(argument):
    """(name of the build, what the program prints)"""
    if "=" not in argument:
        return Path(argument).stem, Path(argument).read_text()
    library, command = argument.split("=", 1)
    folder, _, level = library.partition("@")
    output = subprocess.run(command.split(), check=True, capture_output=True, text=True,
                            env={**os.environ, "LD_LIBRARY_PATH": folder, "QVPI_CPU": level}).stdout
    return Path(library).name, output


parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
parser.add_argument("--save", type=Path, help="folder for the lines")
parser.add_argument("builds", nargs="+")
options = parser.parse_args()
with ThreadPoolExecutor(os.cpu_count()) as pool:
    printed = dict(pool.map(lines_of, options.builds))
if options.save:
    options.save.mkdir(parents=True, exist_ok=True)
    for name, lines in printed.items():
        (options.save / f"{name}.txt").write_text(lines)
builds = {name: dict(line.split() for line in lines.splitlines()) for name, lines in printed.items()}
reference, expected = next(iter(builds.items()))
differing = sorted({name for found in builds.values() for name in expected.keys() | found.keys()
                    if found.get(name) != expected.get(name)})
for name in differing:
    print(name, *(f"{build} {found.get(name)}" for build, found in builds.items()))
print(f"{len(expected)} functions, {len(differing)} differing, on {', '.join(builds)}")
sys.exit(bool(differing) or not expected)
