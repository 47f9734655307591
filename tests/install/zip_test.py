#!/usr/bin/env python3
"""Packs the zip for Windows, unpacks it, and uses what is in it with GCC, which users have who do not have clang: the
README's example runs with the DLLs, at each level, and programs are linked with the archives and through CMake."""
import argparse
import re
import shutil
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from commands import require, run, unpacked  # noqa: E402

HERE = Path(__file__).resolve().parent
README = HERE.parents[1] / "README.md"
FLAGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
NAMES = {"v2": "SSE4.2", "v3": "AVX2", "v4": "AVX-512"}


def levels():
    """Those that this machine can run."""
    flags = Path("/proc/cpuinfo").read_text().split()
    return [level for level, flag in (("v2", "sse4_2"), ("v3", "avx2"), ("v4", "avx512vl")) if flag in flags]


class Zip:
    def __init__(self, folder, scratch, target, emulator):
        self.folder, self.scratch, self.emulator = folder, scratch, emulator.split()
        self.c, self.cpp = f"{target}-gcc-posix", f"{target}-g++-posix"

    def compile(self, source, name, *libraries):
        """A program beside the DLLs."""
        program = self.folder / "bin" / f"{name}.exe"
        run(self.c, *FLAGS, "-std=c11", f"-I{self.folder}/include", source, "-o", program, *libraries)
        return program

    def lines_of(self, program, **environment):
        return run(*self.emulator, program, **environment).splitlines()

    def require_output(self, program, level, **environment):
        lines = self.lines_of(program, **environment)
        require(lines[0] == level and lines[1].startswith("qvpStatusNullPointer: "), program, lines)

    def try_example(self):
        code, shown = re.search(r"```c\n(.*?)```\n\n```\n\$ .*?\n(.*?)```", README.read_text(), re.S).groups()
        source = self.scratch / "example.c"
        source.write_text(code)
        program = self.compile(source, "example", f"-L{self.folder}/lib", "-lqvpi", "-lqvpcore")
        for level in levels():
            expected = [f"qvpIP {NAMES[level]} ({level})", *shown.splitlines()[1:]]
            printed = self.lines_of(program, QVPI_CPU=level)
            require(printed == expected, "README's example prints", printed, "instead of", expected)

    def try_archives(self):
        """With the functions that the program calls and no others, the level chosen before main."""
        archives = [self.folder / "lib" / f"lib{name}.a" for name in ("qvpi", "qvpcore")]
        program = self.compile(HERE / "consumer.c", "static", *archives, "-Wl,--gc-sections")
        functions = re.findall(r" [tT] qvpi[A-Z]\w+", run("nm", program))
        require(len(functions) < 10, program, "has functions that it does not call:", functions)
        for level in levels():
            self.require_output(program, level, QVPI_CPU=level)

    def try_cmake(self, cmake):
        build = self.scratch / "cmake"
        run(cmake, "-S", HERE, "-B", build, "-DPACKAGE=qvpi", "-DLANGUAGE=C",
            f"-Dqvpi_DIR={self.folder}/lib/cmake/qvpi", "-DCMAKE_SYSTEM_NAME=Windows",
            f"-DCMAKE_C_COMPILER={self.c}", f"-DCMAKE_CXX_COMPILER={self.cpp}", f"-DCMAKE_C_FLAGS={' '.join(FLAGS)}",
            f"-DCMAKE_CXX_FLAGS={' '.join(FLAGS)}", "-DCMAKE_EXE_LINKER_FLAGS=-static",
            f"-DCMAKE_RUNTIME_OUTPUT_DIRECTORY={self.folder}/bin")
        run(cmake, "--build", build)
        for program in ("consumer", "consumer_cpp", "consumer_static", "consumer_cpp_static"):
            self.require_output(self.folder / "bin" / f"{program}.exe", levels()[-1])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cmake", default="cmake", help="the CMake program")
    parser.add_argument("--cpack", default="cpack", help="the CPack program")
    parser.add_argument("--build", type=Path, required=True, help="build folder to pack from")
    parser.add_argument("--target", required=True, help="the compilers' name of Windows, as in x86_64-w64-mingw32")
    parser.add_argument("--emulator", required=True, help="what starts its programs")
    options = parser.parse_args()
    scratch = options.build.resolve() / "zip_test"
    shutil.rmtree(scratch, ignore_errors=True)
    package = Zip(unpacked(options.cpack, options.build, scratch), scratch, options.target, options.emulator)
    package.try_example()
    package.try_archives()
    package.try_cmake(options.cmake)


if __name__ == "__main__":
    main()
