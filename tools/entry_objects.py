#!/usr/bin/env python3
"""Add to a static archive an object for each exported function, with its stub and its entry: what a program gets of a
build for several levels is by the function then, with any linker. The objects are copies of one that was assembled, in
which a name as long as the longest is replaced; the rest of a shorter one is filled with zeros, which end it.
"""
import argparse
import subprocess
from pathlib import Path

from derive import placeholder, prototypes


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--template", type=Path, required=True, help="what entry.S of derive.py was assembled to")
    parser.add_argument("--ar", required=True, help="the archiver")
    parser.add_argument("--archive", type=Path, required=True)
    parser.add_argument("--out", type=Path, required=True, help="folder for the objects")
    parser.add_argument("headers", nargs="+", type=Path)
    options = parser.parse_args()
    names = [name for _, name, _ in prototypes(options.headers)]
    template, stand_in = options.template.read_bytes(), placeholder(names).encode()
    options.out.mkdir(parents=True, exist_ok=True)
    for name in names:
        (options.out / f"{name}.o").write_bytes(template.replace(stand_in, name.encode().ljust(len(stand_in), b"\0")))
    list_file = options.out / "all.txt"
    list_file.write_text("".join(f"{options.out / name}.o\n" for name in names))
    subprocess.run([options.ar, "qs", str(options.archive), f"@{list_file}"], check=True)


if __name__ == "__main__":
    main()
