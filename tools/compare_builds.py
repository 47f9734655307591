#!/usr/bin/env python3
"""Time every function on several CPU builds by turns, and print where a higher level is slower than a lower one.

A higher level has wider vectors and more instructions: where it loses, a kernel suits the lower one only. What is
found slower is timed again, so that a disturbance of the machine does not count.
"""
import argparse
import subprocess
from pathlib import Path

SIZES = ((64, 64), (640, 480))


def times(program, names, size, modules):
    """{function: [nanoseconds on each build]}; functions that cannot be called for such a region are left out."""
    command = [str(program), names, *map(str, size), *map(str, modules)]
    output = subprocess.run(command, check=True, capture_output=True, text=True).stdout
    rows = (line.split() for line in output.splitlines())
    return {name: [float(time) for time in found] for name, *found in rows if found}


def least(first, second):
    return {name: [min(pair) for pair in zip(found, second.get(name, found))] for name, found in first.items()}


def slower(measured, builds, most):
    """[(ratio, function, higher, lower, ns, ns)], the worst first."""
    found = []
    for name, row in measured.items():
        for lower in range(len(row) - 1):
            ratio = row[lower + 1] / row[lower]
            if ratio > most:
                found.append((ratio, name, builds[lower + 1], builds[lower], row[lower + 1], row[lower]))
    return sorted(found, reverse=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", type=Path, required=True, help="time_builds of the build folder")
    parser.add_argument("--most", type=float, default=1.1, help="ratio beyond which a row is printed")
    parser.add_argument("--runs", type=int, default=2, help="how often all functions are timed; the least time counts")
    parser.add_argument("--only", default="", help="regular expression: time only the functions that match")
    parser.add_argument("modules", nargs="+", type=Path, help="calls_<build>, the lowest level first")
    options = parser.parse_args()
    modules = [module.with_suffix(".so") for module in options.modules]
    builds = [module.stem.removeprefix("calls_") for module in modules]
    for size in SIZES:
        measured = times(options.program, options.only, size, modules)
        for _ in range(options.runs - 1):
            measured = least(measured, times(options.program, options.only, size, modules))
        found = slower(measured, builds, options.most)
        print(f"{size[0]}x{size[1]}: {len(measured)} functions, {len(found)} slower than a level below")
        for ratio, name, higher, lower, worse, better in found:
            print(f"{ratio:6.2f} {name} {higher} {worse:.0f} ns, {lower} {better:.0f} ns")


if __name__ == "__main__":
    main()
