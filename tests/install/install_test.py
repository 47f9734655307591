#!/usr/bin/env python3
"""Installs the build below a scratch prefix, and builds and runs programs against it in the ways that users have."""
import argparse
import re
import shutil
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from commands import require, run  # noqa: E402

HERE = Path(__file__).resolve().parent
FLAGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
COMPILERS = {"C": ["cc", "-std=c11"], "CXX": ["c++", "-std=c++17", "-xc++"]}
EMULATOR = []  # what programs start with


def require_output(program, cpu, **environment):
    """The program works, and the library that it has loaded is the build for this CPU."""
    lines = run(*EMULATOR, program, **environment).splitlines()
    require(lines[0] == cpu and lines[1].startswith("qvpStatusNullPointer: "), program, lines, "but not from", cpu)


def require_needs(file, allowed):
    needed = re.findall(r"NEEDED.*\[(.*)\]", run("readelf", "-d", file))
    require(set(needed) <= set(allowed), file, "needs", needed)


def supported(cpus):
    """Those of the 64-bit builds that the dynamic linker would load on this machine, lowest first."""
    if "n8" in cpus:
        return ["n8"]
    levels = re.findall(r"x86-64-(v\d) \(supported", run("/lib64/ld-linux-x86-64.so.2", "--help"))
    return [cpu for cpu in sorted(cpus) if cpu in levels]


def check_files(prefix, build):
    for file in [*prefix.rglob("*.pc"), *prefix.rglob("*.cmake")]:
        for folder in (prefix, build, HERE.parents[1]):
            require(str(folder) not in file.read_text(), file, "names", folder)
    for library in prefix.rglob("lib*.so.10"):
        require_needs(library, ["libc.so.6", "libm.so.6", "libqvpcore.so.10"])
        if EMULATOR:
            continue
        for companion in re.findall(r"libqvpcore.so.10 => ([^(\n]*)", run("ldd", library)):
            require(prefix in Path(companion.strip()).resolve().parents, library, "finds", companion)


class Package:
    """The libraries of one pointer width: `name` in `libdir`, of which `cpus` can run here, lowest first."""

    def __init__(self, name, prefix, libdir, cpus, flags, has_any=False):
        self.name, self.prefix, self.libdir, self.flags = name, prefix, prefix / libdir, [*flags, *FLAGS]
        self.cpus, self.baseline, self.best = cpus, cpus[0], cpus[-1]
        # (the archive of a build, the level as which it runs)
        self.archives = [(cpu, cpu) for cpu in cpus] + ([("any", self.best)] if has_any else [])

    def compile(self, output, language, compile_flags, link_flags):
        program = self.prefix.parent / f"{self.name}_{language}_{output}"
        run(*COMPILERS[language], *self.flags, *compile_flags, "-c", HERE / "consumer.c", "-o", f"{program}.o")
        run(COMPILERS[language][0], *self.flags, f"{program}.o", "-o", program, *link_flags)
        return program

    def require_static(self, program, language):
        require_output(program, self.baseline)
        functions = re.findall(r" [tT] (?:\w\d_)?(qvpi\w+)", run("nm", program))
        require(len(functions) < 25, program, "has functions that it does not call:", functions)
        if language == "C":
            require_needs(program, ["libc.so.6"])

    def cmake_hint(self):
        """CMake searches few library folders for 32-bit programs, so these name the package's own."""
        own = f"-D{self.name}_DIR={self.libdir}/cmake/{self.name}"
        return own if "-m32" in self.flags else f"-DCMAKE_PREFIX_PATH={self.prefix}"

    def try_cmake(self, cmake, language):
        build = self.prefix.parent / f"{self.prefix.name}_{self.name}_{language}_cmake"
        flags = [f"-DCMAKE_{name}_FLAGS={' '.join(self.flags)}" for name in COMPILERS]
        flags += [f"-DCMAKE_{name}_COMPILER={command[0]}" for name, command in COMPILERS.items() if EMULATOR]
        run(cmake, "-S", HERE, "-B", build, f"-DPACKAGE={self.name}", f"-DLANGUAGE={language}", self.cmake_hint(),
            *flags)
        run(cmake, "--build", build)
        require_output(build / "consumer", self.best)
        require_output(build / "consumer_cpp", self.best)
        self.require_static(build / "consumer_static", language)
        for archive, cpu in self.archives[1:]:
            require_output(build / f"consumer_static_{archive}", cpu)

    def pkgconfig(self, *options, module=None):
        return run("pkg-config", *options, module or self.name, PKG_CONFIG_PATH=f"{self.libdir}/pkgconfig").split()

    def try_pkgconfig(self, language):
        include = self.pkgconfig("--cflags")
        shared = self.compile("pc", language, include, self.pkgconfig("--libs"))
        require_output(shared, self.best, LD_LIBRARY_PATH=str(self.libdir))
        for archive, cpu in self.archives:
            libraries = self.pkgconfig("--libs", module=f"{self.name}-static-{archive}")
            static = self.compile(f"pc_static_{archive}", language, include, libraries)
            require_output(static, cpu)
        whole = self.compile("pc_static", language, include, ["-static", *self.pkgconfig("--static", "--libs")])
        require_output(whole, self.baseline)

    def try_compiler(self, language):
        include = [f"-I{self.prefix}/include"]
        shared = self.compile("cc", language, include, [f"-L{self.libdir}", f"-l{self.name}", "-lqvpcore"])
        require_output(shared, self.best, LD_LIBRARY_PATH=str(self.libdir))
        if language == "C":
            archives = [f"{self.libdir}/lib{self.name}.a", f"{self.libdir}/libqvpcore.a"]
            static = self.compile("cc_static", language, include, [*archives, "-Wl,--gc-sections"])
            self.require_static(static, language)
        return shared

    def try_lower_levels(self, program):
        """A build below the best can be had from its own folder, or by hiding features of the CPU."""
        if len(self.cpus) == 1:
            return
        for cpu in self.cpus[1:]:
            path = f"{self.libdir}/glibc-hwcaps/x86-64-{cpu}:{self.libdir}"
            require_output(program, cpu, LD_LIBRARY_PATH=path)
        hidden = "glibc.cpu.hwcaps=-AVX2"
        require_output(program, self.baseline, LD_LIBRARY_PATH=str(self.libdir), GLIBC_TUNABLES=hidden)

    def try_any(self, program):
        """The shared library of the build for every x86-64, with its companion, from the folder that it is put into."""
        folder = self.libdir / "qvpi-any"
        require_output(program, self.best, LD_LIBRARY_PATH=str(folder))
        require_output(program, self.baseline, LD_LIBRARY_PATH=str(folder), QVPI_CPU=self.baseline)

    def try_all(self, cmake):
        for language in COMPILERS:
            self.try_cmake(cmake, language)
            self.try_pkgconfig(language)
            program = self.try_compiler(language)
        self.try_lower_levels(program)
        if self.archives[-1][0] == "any":
            self.try_any(program)


def packages(options, prefix):
    if cpus := supported(options.cpus):
        yield Package("qvpi", prefix, options.libdir, cpus, [], "any" in options.cpus)
    if "g9" in options.cpus:
        yield Package("qvpig9", prefix, options.libdir32, ["g9"], ["-m32"])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cmake", default="cmake", help="the CMake program")
    parser.add_argument("--build", type=Path, required=True, help="build folder to install from")
    parser.add_argument("--libdir", default="lib", help="library folder below the prefix")
    parser.add_argument("--libdir32", default="lib32", help="that of the 32-bit build")
    parser.add_argument("--cpus", nargs="+", required=True, help="codes of the CPU builds made")
    parser.add_argument("--target", help="clang's name of another machine, as in aarch64-linux-gnu")
    parser.add_argument("--emulator", default="", help="what starts its programs")
    options = parser.parse_args()
    EMULATOR.extend(options.emulator.split())
    if options.target:
        for command, compiler in zip(COMPILERS.values(), ("clang", "clang++")):
            command[0] = compiler
        FLAGS.append(f"--target={options.target}")

    scratch = options.build.resolve() / "install_test"
    shutil.rmtree(scratch, ignore_errors=True)
    prefix = scratch / "prefix"
    run(options.cmake, "--install", options.build, "--prefix", prefix)
    require(not list(prefix.rglob("qvpi-any/*.so*")), "the build any was installed without being asked for")
    run(options.cmake, "--install", options.build, "--prefix", prefix, "--component", "any")
    check_files(prefix, options.build.resolve())
    for package in packages(options, prefix):
        package.try_all(options.cmake)
    for package in packages(options, prefix.rename(scratch / "moved")):
        package.try_cmake(options.cmake, "C")


if __name__ == "__main__":
    main()
