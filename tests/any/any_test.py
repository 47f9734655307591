#!/usr/bin/env python3
"""Builds a program with the build for every x86-64 in the ways that users link it, and runs it as each level.

Whatever the linker, it has the functions that it calls and no others, in each level once; the level is chosen before
its first constructor runs, and QVPI_CPU lowers it unless the program has more rights than its user.
"""
import argparse
import os
import re
import shutil
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from commands import require, run  # noqa: E402

HERE = Path(__file__).resolve().parent
INCLUDE = f"-I{HERE.parents[1] / 'include'}"
COLLECT = "-Wl,--gc-sections"
USED = {"qvpiGetLibVersion", "qvpiSet_8u_C3R", "qvpiSwapChannels_8u_C3IR", "qvpiMirror_8u_C3R", "qvpiAdd_8u_C3RSfs"}
# What chooses, the five entries and stubs, and the gaps between them; the code of each level comes on top.
MOST_BESIDE_CODE = 2048


def best_level():
    """What the dynamic linker of this machine has found out by itself."""
    levels = re.findall(r"x86-64-(v\d) \(supported", run("/lib64/ld-linux-x86-64.so.2", "--help"))
    return max(levels, default="v2")


def require_levels(program, best):
    wanted = [("", best), ("v1", best), ("v5", best), ("v33", best), ("best", best)]
    wanted += [(level, min(level, best)) for level in ("v2", "v3", "v4")]
    for asked, level in wanted:
        line = run(program, QVPI_CPU=asked)
        require(line.split() == [level, level, "6", "4", "2"], program, "asked for", repr(asked), "has", line)
    os.environ.pop("QVPI_CPU", None)
    require(run(program).startswith(f"{best} {best} "), program, "is not at", best)


def require_own_functions(program):
    symbols = re.findall(r" [tT] ((?:v\d_)?)(qvpi[A-Z]\w+)", run("nm", program))
    require({name for level, name in symbols if not level} == USED, program, "has stubs", symbols)
    for level in ("v2_", "v3_", "v4_"):
        found = {name for of, name in symbols if of == level}
        require(USED <= found and len(found) < 25, program, "has of", level, found)


def size_of(program):
    text, data, bss = run("size", program).splitlines()[1].split()[:3]
    return int(text) + int(data) + int(bss)


def require_small(build, scratch, program):
    """No more than what programs with each level's archive have together."""
    empty = scratch / "empty"
    (scratch / "empty.c").write_text("int main(void) { return 0; }\n")
    run("gcc", scratch / "empty.c", COLLECT, "-o", empty)
    alone = []
    for level in ("v2", "v3", "v4"):
        one = scratch / f"alone_{level}"
        run("gcc", INCLUDE, HERE / "five_functions.c", *archives(build, level), COLLECT, "-o", one)
        alone.append(size_of(one) - size_of(empty))
    growth = size_of(program) - size_of(empty)
    print(f"five functions: {growth} bytes, of v2, v3 and v4 alone {alone}")
    require(growth < sum(alone) + MOST_BESIDE_CODE, program, "grows by", growth)


def require_deaf_with_rights(program, best):
    """Owned by somebody else and set to run as its owner, it does not listen to its user's environment."""
    if os.getuid() != 0 or os.statvfs(program).f_flag & os.ST_NOSUID:
        print("not root: not tried with other rights")
        return
    other = program.with_name("with_rights")
    shutil.copy(program, other)
    os.chown(other, 65534, 65534)
    other.chmod(0o4755)
    require(run(other, QVPI_CPU="v2").startswith(f"{best} {best} "), other, "listens")


def require_on_lesser_cpus(program):
    """The emulator refuses instructions that such a CPU lacks, wherever the linker may have taken them from; it warns of
    some that it lacks itself."""
    if not shutil.which("qemu-x86_64"):
        print("no qemu-x86_64: not tried on lesser CPUs")
        return
    for cpu, level in (("Nehalem", "v2"), ("Haswell", "v3")):
        line = run("qemu-x86_64", "-cpu", cpu, program, QVPI_CPU="v4")
        require(line.splitlines()[-1].split() == [level, level, "6", "4", "2"], program, "has on", cpu, line)


def archives(build, code):
    return [build / code / "libqvpi.a", build / code / "libqvpcore.a"]


def ways(build):
    """name: compiler and flags that are there"""
    found = {
        "shared": ["gcc", f"-L{build / 'any'}", f"-Wl,-rpath,{build / 'any'}", "-lqvpi", "-lqvpcore"],
        "archive": ["gcc", *archives(build, "any"), COLLECT],
        "whole": ["gcc", *archives(build, "any")],
        "fixed": ["gcc", "-no-pie", *archives(build, "any"), COLLECT],
        "static": ["gcc", "-static", *archives(build, "any"), COLLECT],
        "static_pie": ["gcc", "-static-pie", *archives(build, "any"), COLLECT],
        "lld": ["clang", "-fuse-ld=lld", *archives(build, "any"), COLLECT],
        "musl": ["musl-gcc", "-static", *archives(build, "any"), COLLECT],
    }
    if not shutil.which("ld.lld"):
        del found["lld"]
    if not shutil.which("musl-gcc"):
        del found["musl"]
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, required=True, help="build folder")
    build = parser.parse_args().build.resolve()
    scratch = build / "any_test"
    shutil.rmtree(scratch, ignore_errors=True)
    scratch.mkdir()
    best = best_level()
    for name, (compiler, *flags) in ways(build).items():
        program = scratch / name
        run(compiler, "-O1", INCLUDE, HERE / "five_functions.c", *flags, "-o", program)
        require_levels(program, best)
        if COLLECT in flags:
            require_own_functions(program)
    require_small(build, scratch, scratch / "archive")
    require_on_lesser_cpus(scratch / "static")
    require_deaf_with_rights(scratch / "static", best)


if __name__ == "__main__":
    main()
