#!/usr/bin/env python3
"""Derive what the Python package needs of the public headers, at build time.

  raw.h        the declarations without comments and preprocessor lines, for cffi, which makes qvpi.raw of them
  functions.c  one row per function that returns a status: its name, its parameters, its code, and the trampoline of its
               signature, which takes the arguments out of an array. 2,900 functions have about 250 signatures
"""
import argparse
import re
from pathlib import Path

from derive import parameter, prototypes, write

# The field of `Argument` that a parameter is taken from; enumerations are plain integers.
STRUCTURES = ("QvpiSize", "QvpiSizeL", "QvpiPoint", "QvpiPointL", "QvpiRect", "QvpiRectL", "QvprVolume", "QvprPoint",
              "QvprCuboid")
REALS = ("Qvp32f", "Qvp64f", "double")


def raw(texts):
    """The declarations of the headers as cffi takes them: version numbers and texts are asked of the compiler."""
    text = "".join(texts)
    text = re.sub(r"/\*.*?\*/", "", text, flags=re.S)
    text = re.sub(r"^#ifdef __cplusplus\n.*?^#endif\n", "", text, flags=re.M | re.S)
    numbers = re.findall(r"^#define (QVP_\w+) +\d+ *$", text, re.M)
    strings = re.findall(r'^#define (QVP_\w+) +".*" *$', text, re.M)
    text = re.sub(r"^#.*\n", "", text, flags=re.M)
    text = re.sub(r"const (double \w+\[\d\]\[\d\])", r"\1", text)  # cffi cannot spell pointers to constant rows
    text += "".join(f"#define {name} ...\n" for name in numbers)
    text += "".join(f"static char* const {name};\n" for name in strings)
    return re.sub(r"\n\s*\n+", "\n", text)


def plain(kind):
    """The type of a parameter, of all pointers the same: these are passed alike."""
    return "const void*" if kind.endswith(("*", "]")) else kind


def argument(index, kind):
    if kind == "const void*":
        return f"a[{index}].pointer"
    if kind in STRUCTURES:
        return f"a[{index}].as{kind}"
    return f"({kind})a[{index}].{'real' if kind in REALS else 'integer'}"


def trampoline(index, kinds):
    arguments = ", ".join(argument(i, kind) for i, kind in enumerate(kinds))
    return (f"static int call{index}(Code code, const Argument* a) {{\n"
            f"    return ((QvpStatus (*)({', '.join(kinds)}))code)({arguments});\n}}\n")


def functions(found):
    signatures, rows = {}, []
    for result, name, declarations in found:
        if result != "QvpStatus":
            continue
        parameters = [parameter(declaration) for declaration in declarations]
        signature = tuple(plain(kind) for kind, _ in parameters)
        number = signatures.setdefault(signature, len(signatures))
        lengths = [re.search(r"\[(\d+)\]$", declaration) for declaration in declarations]
        described = ";".join(f"{kind}|{label}|{length[1] if length else ''}"
                             for (kind, label), length in zip(parameters, lengths))
        rows.append(f'    {{"{name}", "{described}", (Code){name}, call{number}}},\n')
    return "".join(['#include "call.h"\n#include "qvpi.h"\n#include "qvpcore.h"\n',
                    *(trampoline(number, kinds) for kinds, number in signatures.items()),
                    "const Function kFunctions[] = {\n", *rows, "    {0, 0, 0, 0},\n};\n"])


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--out", type=Path, required=True, help="folder to write to")
    parser.add_argument("--include", type=Path, required=True, help="folder of the public headers")
    options = parser.parse_args()
    first = ["qvptypes.h", "qvpcore.h"]
    headers = [options.include / name for name in first] + sorted(options.include.glob("qvpi_*.h"))
    options.out.mkdir(parents=True, exist_ok=True)
    write(options.out / "raw.h", raw(header.read_text() for header in headers))
    write(options.out / "functions.c", functions(prototypes(headers)))


if __name__ == "__main__":
    main()
