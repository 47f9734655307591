#!/usr/bin/env python3
"""Packs the archive for WebAssembly, unpacks it, and uses what is in it: the README's example runs with the module, and
a C program is linked with emcc and through the CMake package."""
import argparse
import json
import os
import re
import shutil
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from commands import require, run, unpacked  # noqa: E402

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
# Scripts of emscripten need Debian's packages for Node.js, which one that is not Debian's has to be told; and code
# beside a program is not found by newer releases of Node.js.
os.environ["NODE_PATH"] = "/usr/share/nodejs"
FLAGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
LINK_FLAGS = ["-sSINGLE_FILE=1"]


def try_module(module, exports):
    """The module needs nothing but word of growing memory, and has every function."""
    script = ("const m = new WebAssembly.Module(require('fs').readFileSync(process.argv[1]));"
              "console.log(JSON.stringify([WebAssembly.Module.imports(m), WebAssembly.Module.exports(m)]));")
    imported, exported = json.loads(run("node", "-e", script, module / "qvpi.wasm"))
    require([entry["name"] for entry in imported] == ["emscripten_notify_memory_growth"], "imports", imported)
    missing = {line.removeprefix("_") for line in exports.split()} - {entry["name"] for entry in exported}
    require(not missing, "the module lacks", missing)


def try_example(module):
    code, shown = re.search(r"```js\n(.*?)```\n\n```\n(.*?)```", (ROOT / "README.md").read_text(), re.S).groups()
    (module / "example.mjs").write_text(code)
    printed = run("node", "example.mjs", cwd=module)
    require(printed == shown, "README's example prints", printed, "instead of", shown)


def try_growth(module):
    """Views of the memory hold after an image that the memory had to grow for."""
    (module / "growth.mjs").write_text("""
        import {load} from './qvpi.mjs';
        const q = await load(), size = q.malloc(8), step = q.malloc(4), before = q.HEAPU8;
        q.HEAP32.set([4000, 8000], size / 4);
        const image = q.qvpiMalloc_16u_C1(4000, 8000, step), rowBytes = q.HEAP32[step / 4];
        const status = q.qvpiSet_16u_C1R(54321, image, rowBytes, size);
        console.log(status, before.length, q.HEAPU16[(image + 7999 * rowBytes) / 2 + 3999]);
        """)
    printed = run("node", "growth.mjs", cwd=module)
    require(printed == "0 0 54321\n", "after growth", printed)


def require_output(program, cpu):
    lines = run("node", program).splitlines()
    require(lines[0] == cpu and lines[1].startswith("qvpStatusNullPointer: "), program, lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--cmake", default="cmake", help="the CMake program")
    parser.add_argument("--cpack", default="cpack", help="the CPack program")
    parser.add_argument("--build", type=Path, required=True, help="build folder to pack from")
    parser.add_argument("--toolchain", type=Path, required=True, help="CMake's toolchain file")
    parser.add_argument("--cpu", required=True, help="code of the build")
    options = parser.parse_args()
    scratch = options.build.resolve() / "archive_test"
    shutil.rmtree(scratch, ignore_errors=True)
    folder = unpacked(options.cpack, options.build, scratch)

    try_module(folder / "module", (options.build / "derived/module/exports.txt").read_text())
    try_example(folder / "module")
    try_growth(folder / "module")
    program = scratch / "consumer.js"
    run("emcc", *FLAGS, *LINK_FLAGS, "-std=c11", HERE / "consumer.c", f"-I{folder}/include", f"-L{folder}/lib", "-lqvpi",
        "-lqvpcore", "-o", program)
    require_output(program, options.cpu)
    build = scratch / "cmake"
    run(options.cmake, "-S", HERE, "-B", build, "-DPACKAGE=qvpi", "-DLANGUAGE=C", f"-Dqvpi_DIR={folder}/lib/cmake/qvpi",
        f"-DCMAKE_TOOLCHAIN_FILE={options.toolchain}", "-DQVPI_MACHINE=wasm", f"-DCMAKE_C_FLAGS={' '.join(FLAGS)}",
        f"-DCMAKE_EXE_LINKER_FLAGS={' '.join(LINK_FLAGS)}")
    run(options.cmake, "--build", build)
    require_output(build / "consumer_static.js", options.cpu)
    require_output(build / "consumer_cpp_static.js", options.cpu)


if __name__ == "__main__":
    main()
