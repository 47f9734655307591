#!/usr/bin/env python3
"""Run the hash program of every CPU build and compare the lines. Each argument is <library folder>=<program>."""
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor


def hashes(argument):
    folder, program = argument.split("=")
    output = subprocess.run([program], check=True, capture_output=True, text=True,
                            env={**os.environ, "LD_LIBRARY_PATH": folder}).stdout
    return dict(line.split() for line in output.splitlines())


with ThreadPoolExecutor(os.cpu_count()) as pool:
    builds = dict(zip((os.path.basename(argument.split("=")[0]) for argument in sys.argv[1:]),
                      pool.map(hashes, sys.argv[1:])))
reference, expected = next(iter(builds.items()))
differing = sorted({name for found in builds.values() for name in expected.keys() | found.keys()
                    if found.get(name) != expected.get(name)})
for name in differing:
    print(name, *(f"{build} {found.get(name)}" for build, found in builds.items()))
print(f"{len(expected)} functions, {len(differing)} differing, on {', '.join(builds)}")
sys.exit(bool(differing) or not expected)
