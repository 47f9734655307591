#!/usr/bin/env python3
"""Builds a CPU build again from a copy of the sources in another folder, and compares the bytes: by default the companion
library and some of the objects, with --all the libraries and archives.
"""
import argparse
import random
import shutil
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent / "support"))
from commands import require, run  # noqa: E402

SOURCES = Path(__file__).resolve().parents[1]
OBJECTS = 4


def cache(build, name):
    lines = (build / "CMakeCache.txt").read_text().splitlines()
    return next(line.split("=", 1)[1] for line in lines if line.startswith(f"{name}:"))


def copy_sources(folder):
    hidden = shutil.ignore_patterns("build", ".*", "__pycache__")
    shutil.copytree(SOURCES, folder, ignore=hidden)


def configure(options, sources, build):
    compilers = [f"-DCMAKE_{language}_COMPILER={cache(options.build, f'CMAKE_{language}_COMPILER')}"
                 for language in ("C", "CXX", "ASM")]
    run(options.cmake, "-S", sources, "-B", build, "-G", "Ninja", *compilers, f"-DQVPI_CPUS={options.cpu}",
        f"-DCMAKE_BUILD_TYPE={cache(options.build, 'CMAKE_BUILD_TYPE')}")


def chosen(options):
    """Files of a build folder to compare, and the targets that make them."""
    libraries = [f"{options.cpu}/libqvpcore.so.10", f"{options.cpu}/libqvpcore.a"]
    if options.all:
        return [*libraries, f"{options.cpu}/libqvpi.so.10", f"{options.cpu}/libqvpi.a"], [options.cpu]
    folder = options.build / "CMakeFiles" / f"qvpi_{options.cpu}_objects.dir"
    objects = sorted(str(file.relative_to(options.build)) for file in folder.glob("*/*.o"))
    some = random.Random(options.seed).sample(objects, OBJECTS)
    return libraries + some, [f"qvpcore_{options.cpu}", f"qvpcore_{options.cpu}_static", *some]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--build", type=Path, default=SOURCES / "build", help="the folder that holds the build")
    parser.add_argument("--cpu", default="v3")
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--seed", type=int, default=1, help="of the choice of objects")
    options = parser.parse_args()
    files, targets = chosen(options)
    with tempfile.TemporaryDirectory(prefix="another place ") as folder:
        copy_sources(Path(folder) / "sources")
        again = Path(folder) / "another" / "build"
        configure(options, Path(folder) / "sources", again)
        run(options.cmake, "--build", again, "-j", "2", "--target", *targets)
        for file in files:
            require((options.build / file).read_bytes() == (again / file).read_bytes(), file, "differs")
    print(len(files), "files are equal")


if __name__ == "__main__":
    main()
