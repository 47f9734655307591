"""Builds the stubs and two compiled modules: `_raw`, every function by cffi, and `_call`, which calls with arrays.

QVPI_LIBRARY names the folder of libqvpi.so and libqvpcore.so to link; without it the system's are taken if there are
any, else the library is built with cmake and put beside the modules, as in wheels.
"""
import os
import shutil
import subprocess
import sys
from pathlib import Path

import cffi
import numpy
from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

here = Path(__file__).resolve().parent
root = here.parent
include = root / "include"
LIBRARIES = ["qvpi", "qvpcore"]


def is_installed():
    return subprocess.run(["pkg-config", "--exists", "qvpi"], check=False).returncode == 0


class Build(build_ext):
    """Derives sources from the headers and stubs from the sources, and finds or builds the library."""

    def run(self):
        self.derived = Path(self.build_temp).resolve() / "derived"
        tool = root / "tools" / "derive_python.py"
        subprocess.run([sys.executable, tool, "--out", self.derived, "--include", include], check=True)
        self.write_raw()
        self.link(os.environ.get("QVPI_LIBRARY"))
        super().run()
        package = Path(self.get_ext_fullpath("qvpi._call")).parent
        for module in package.glob("*.py"):
            if not (here / "qvpi" / module.name).exists():
                module.unlink()  # of a build before it was renamed
        subprocess.run([sys.executable, root / "tools" / "derive_stubs.py", here / "qvpi", package], check=True)

    def write_raw(self):
        ffi = cffi.FFI()
        ffi.cdef((self.derived / "raw.h").read_text())
        ffi.set_source("qvpi._raw", '#include "qvpi.h"\n#include "qvpcore.h"')
        ffi.emit_c_code(str(self.derived / "raw.c"))

    def link(self, folder):
        if folder is None and not is_installed():
            folder = self.bundle()
        for extension in self.extensions:
            extension.sources = [source.replace("derived/", f"{self.derived}/") for source in extension.sources]
            extension.library_dirs += [folder] if folder else []

    def bundle(self):
        """Builds the library for every CPU of this machine in one file, and copies it beside the modules."""
        folder = Path(self.build_temp).resolve() / "library"
        code = "any" if os.uname().machine == "x86_64" else "n8"
        options = ["-DQVPI_TESTS=OFF", f"-DQVPI_CPUS={'v2;v3;v4;any' if code == 'any' else code}",
                   "-DCMAKE_BUILD_RPATH_USE_ORIGIN=ON"]  # the copies find each other
        subprocess.run(["cmake", "-S", root, "-B", folder, "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_C_COMPILER=clang",
                        *options], check=True)
        subprocess.run(["cmake", "--build", folder, "-j", str(os.cpu_count()), "--target", code], check=True)
        package = Path(self.get_ext_fullpath("qvpi._call")).parent
        package.mkdir(parents=True, exist_ok=True)
        for name in LIBRARIES:
            shutil.copy(folder / code / f"lib{name}.so.10", package)
        for extension in self.extensions:
            extension.runtime_library_dirs = ["$ORIGIN"]
        return str(folder / code)


def extension(name, sources, *flags):
    return Extension(f"qvpi.{name}", sources, include_dirs=[str(include), str(here / "native"), numpy.get_include()],
                     libraries=LIBRARIES, extra_compile_args=[*flags, "-fvisibility=hidden"])


setup(
    ext_modules=[
        # Thousands of wrappers that only convert arguments: optimising them takes a minute and gains nothing.
        extension("_raw", ["derived/raw.c"], "-O0", "-g0", "-U_FORTIFY_SOURCE"),
        extension("_call", ["native/call.c", "native/images.c", "native/numbers.c", "derived/functions.c"],
                  "-O2", "-g0"),
    ],
    cmdclass={"build_ext": Build},
)
