#!/usr/bin/env python3
"""Compares the disassembly of each function cpp_<name> of an object file with that of c_<name>."""
import argparse
import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from commands import require, run  # noqa: E402


def functions(text):
    """{name: its instructions}, with jumps told by how far they go, and what throws not by its place."""
    found = {}
    for name, body in re.findall(r"^[0-9a-f]+ <((?:cpp|c)_\w+)>:\n(.*?)(?=\n\n|\Z)", text, re.M | re.S):
        lines = [re.sub(r"^\s*[0-9a-f]+:\s*", "", line) for line in body.splitlines()]
        lines = [re.sub(r"[0-9a-f]+ <(?:cpp|c)_\w+(\+0x[0-9a-f]+)?>", r"\1", line) for line in lines]
        lines = [re.sub(r"(\.text\.unlikely).*", r"\1", line) for line in lines]
        while lines and re.match(r"nop|int3|cs nop|data16|xchg +%ax,%ax", lines[-1]):
            lines.pop()
        found[name] = lines
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--objdump", default="objdump")
    parser.add_argument("objects", nargs="+")
    options = parser.parse_args()
    for file in options.objects:
        found = functions(run(options.objdump, "-dr", "--no-show-raw-insn", file))
        names = [name.removeprefix("cpp_") for name in found if name.startswith("cpp_")]
        require(len(names) >= 2, "found only", names)
        for name in names:
            cpp, c = found[f"cpp_{name}"], found[f"c_{name}"]
            require(cpp == c, name, *cpp, "is not", *c)


if __name__ == "__main__":
    main()
