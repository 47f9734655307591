#!/usr/bin/env python3
"""Keep a fuzzer's corpus in one file: corpus.py pack FOLDER FILE | unpack FILE FOLDER | reach FILE...

In the file each input is a byte with its length and that many bytes. `reach` adds up what fuzzers have reached.
"""
import collections
import hashlib
import sys
from pathlib import Path


def pack(folder, file):
    inputs = sorted({path.read_bytes() for path in Path(folder).iterdir()})
    Path(file).write_bytes(b"".join(bytes([len(each)]) + each for each in inputs))
    print(f"{file}: {len(inputs)} inputs, {Path(file).stat().st_size} bytes")


def unpack(file, folder):
    packed, at = Path(file).read_bytes(), 0
    Path(folder).mkdir(parents=True, exist_ok=True)
    while at < len(packed):
        each = packed[at + 1:at + 1 + packed[at]]
        (Path(folder) / hashlib.sha1(each).hexdigest()).write_bytes(each)
        at += 1 + packed[at]


def reach(*files):
    calls, successes = collections.Counter(), collections.Counter()
    for file in files:
        for line in Path(file).read_text().splitlines():
            name, called, succeeded = line.split()
            calls[name] += int(called)
            successes[name] += int(succeeded)
    missed = sorted(name for name in calls if not successes[name])
    few = sorted((n for n in calls if successes[n]), key=successes.get)[:3]
    print(f"{sum(calls.values())} calls, {sum(successes.values())} of them succeeded")
    print(f"{len(calls) - len(missed)} of {len(calls)} functions succeeded; least often",
          ", ".join(f"{name} {successes[name]}" for name in few))
    for name in missed:
        print(f"never succeeded: {name}, called {calls[name]} times")
    return bool(missed)


if __name__ == "__main__":
    sys.exit({"pack": pack, "unpack": unpack, "reach": reach}[sys.argv[1]](*sys.argv[2:]))
