#!/usr/bin/env python3
"""Runs the unit tests on the build with counters, and writes what of the library they reach: a table of files, report.txt,
and the sources with counts, report/index.html.
"""
import argparse
import os
import subprocess
from pathlib import Path

FOLDER = Path("build/coverage").resolve()
LIBRARY, PROFILE = FOLDER / "v3" / "libqvpi.so.10", FOLDER / "unit.profdata"
# Tests of what surrounds a call, such as the stack, would see the counters.
FILTER = "-EveryKernel.*"
# The library's own files, but for one whose functions the compiler alone runs, when it makes tables of networks.
COUNTED = "-ignore-filename-regex=/(build|usr)/|/sorting_networks.h$"


def start(shard, shards):
    environment = {**os.environ, "LD_LIBRARY_PATH": str(FOLDER / "v3"), "GTEST_TOTAL_SHARDS": str(shards),
                   "GTEST_SHARD_INDEX": str(shard), "LLVM_PROFILE_FILE": str(FOLDER / f"{shard}-%p.profraw")}
    return subprocess.Popen([FOLDER / "tests" / "unit_64", "--gtest_brief=1", f"--gtest_filter={FILTER}"], env=environment)


def llvm_cov(command, *words):
    done = subprocess.run(["llvm-cov", command, LIBRARY, f"-instr-profile={PROFILE}", COUNTED, *words], check=True,
                          stdout=subprocess.PIPE, text=True)
    return done.stdout


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    options = parser.parse_args()
    for old in FOLDER.glob("*.profraw"):
        old.unlink()
    tests = [start(shard, options.jobs) for shard in range(options.jobs)]
    if any([test.wait() for test in tests]):
        raise SystemExit("a test has failed")
    subprocess.run(["llvm-profdata", "merge", "-o", PROFILE, *FOLDER.glob("*.profraw")], check=True)
    llvm_cov("show", "-format=html", "-show-branches=count", "-show-instantiations=false",
             f"-output-dir={FOLDER / 'report'}")
    report = llvm_cov("report")
    (FOLDER / "report.txt").write_text(report)
    lines = report.splitlines()
    print(lines[0], lines[-1], sep="\n")


if __name__ == "__main__":
    main()
