#!/usr/bin/env python3
"""Run benchmark programs and compare each row with its peer and with the machine's limit, worst first.

Every row is timed several times, its parts taking turns, and the fastest time counts: other work on the machine only
ever adds. What was measured at several sizes in the caches also tells what a call, a row and a pixel cost.
"""
import argparse
import datetime
import json
import os
import re
import subprocess
from pathlib import Path

import numpy
import scipy.optimize

LIMITS = ("limit", "limit streaming")
PART = re.compile(r"(?P<row>.*) @(?P<bytes>\d+)/(?P<part>ours|peer: (?P<peer>.*) >= (?P<least>[\d.]+)|limit.*)")


def run(program, library, repetitions, only):
    """{row: {part: nanoseconds}} of one program."""
    command = [str(program), "--benchmark_format=json", f"--benchmark_repetitions={repetitions}",
               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.02"]
    if only:
        command.append(f"--benchmark_filter={only}")
    output = subprocess.run(command, check=True, capture_output=True, text=True,
                            env={**os.environ, "LD_LIBRARY_PATH": str(library)}).stdout
    rows = {}
    if not output:  # no row of this program matches
        return rows
    for entry in json.loads(output)["benchmarks"]:
        match = PART.fullmatch(entry["run_name"])
        if entry["run_type"] != "iteration" or not match:
            continue
        row = rows.setdefault(match["row"], {"bytes": int(match["bytes"]), "peers": {}})
        times, key = (row["peers"], (match["peer"], float(match["least"]))) if match["peer"] else (row, match["part"])
        times[key] = min(entry["real_time"], times.get(key, entry["real_time"]))
    return rows


def limit(row):
    return min(row[part] for part in LIMITS if part in row)


def machine_line(name, row):
    rates = [f"{row['bytes'] / row[part]:.1f}" if part in row else "" for part in LIMITS]
    return f"| {name.removeprefix('machine ')} | {rates[0]} | {rates[1]} |"


def lines(name, row):
    """[(rank, line)] of a row, one for each of its peers. Worst first: by how far it is from its target, or from the peer
    where there is none; rows without a peer come last, by their share of the limit."""
    ours, share = row["ours"], limit(row) / row["ours"]
    start = f"| {name} | {ours:,.0f} | {row['bytes'] / ours:.1f} | {100 * share:.0f} % |"
    found = []
    for (peer, least), time in row["peers"].items():
        ratio = time / ours
        target = f"{least:g} | {'reached' if ratio >= least else 'SHORT'}" if least else " | "
        found.append((ratio / (least or 1), f"{start} {peer} | {ratio:.2f} | {target} |"))
    return found or [(1000 + share, f"{start} | | | |")]


SIZED = re.compile(r"(?P<what>.*) (?P<width>\d+)x(?P<height>\d+)")
PIXELS_IN_CACHES = 640 * 480


def fits(rows):
    """{what: (ns a call, ns a row, ns a pixel)} of what was measured at three sizes or more: the costs, none below 0,
    with the least relative errors."""
    measured = {}
    for name, row in rows.items():
        match = SIZED.fullmatch(name)
        if match and "ours" in row and int(match["width"]) * int(match["height"]) <= PIXELS_IN_CACHES:
            width, height = int(match["width"]), int(match["height"])
            measured.setdefault(match["what"], []).append((1, height, width * height, row["ours"]))
    return {what: scipy.optimize.nnls(*relative(numpy.array(times)))[0] for what, times in measured.items()
            if len(times) >= 3}


def relative(times):
    """Equations of costs whose results are all 1."""
    return times[:, :3] / times[:, 3:], numpy.ones(len(times))


def fit_lines(rows):
    """Worst first: by how many times 30 ns a call takes, or 20 ns a row."""
    ranked = sorted(fits(rows).items(), key=lambda item: -max(item[1][0] / 30, item[1][1] / 20))
    return [f"| {what} | {call:.0f} | {row:.1f} | {pixel:.3f} |" for what, (call, row, pixel) in ranked]


def conditions(library):
    """What was measured, when, and on what."""
    model = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())
    return (f"Build {library.name}, {datetime.date.today()}, {model[1] if model else 'an unknown processor'}, "
            f"{os.cpu_count()} cores. Times are the least of several runs.")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--library", type=Path, required=True, help="folder of the CPU build to measure")
    parser.add_argument("--out", type=Path, required=True, help="file for the report")
    parser.add_argument("--repetitions", type=int, default=9)
    parser.add_argument("--only", help="regular expression: measure only the rows that match")
    parser.add_argument("programs", nargs="+", type=Path)
    options = parser.parse_args()
    rows = {}
    for program in options.programs:
        rows.update(run(program, options.library, options.repetitions, options.only))
    if not rows:
        parser.error(f"no row matches {options.only}")
    machine = {name: row for name, row in rows.items() if "ours" not in row}
    text = [conditions(options.library), "", "| machine limit | ordinary stores, GB/s | streaming stores, GB/s |", "|---|---|---|"]
    text += [machine_line(name, row) for name, row in sorted(machine.items())]
    text += ["", "| row | ours, ns | GB/s | of the limit | peer | peer / ours | at least | |", "|---|---|---|---|---|---|---|---|"]
    compared = [ranked for name, row in rows.items() if "ours" in row for ranked in lines(name, row)]
    text += [line for _, line in sorted(compared)]
    text += ["", "| what | a call, ns | a row, ns | a pixel, ns |", "|---|---|---|---|", *fit_lines(rows)]
    options.out.parent.mkdir(parents=True, exist_ok=True)
    options.out.write_text("\n".join(text) + "\n")
    print("\n".join(text))


if __name__ == "__main__":
    main()
