#!/usr/bin/env python3
"""Derive everything mechanical from the prototypes in the public headers.

The headers are the single list of exported names. For one CPU build this writes

  rename.h     one define per function: inside the library `name` means `<cpu>_name`
  entries.S    the entry table and the stub of each exported name, which jumps through its slot
  exports.map  the linker's version script
  static.syms  for the archive: the renames undone, so that a name stands for the function itself and not for a stub

and for the tests

  calls.cpp    one row per function: its name, its parameters, and a way to call it with arguments made at run time
"""
import argparse
import re
from pathlib import Path

PROTOTYPE = re.compile(r"^(?P<result>\w[\w ]*?[ *]+)(?P<name>(?:qvp|own)\w+)\((?P<params>[^()]*)\);", re.M)


def prototypes(headers):
    """[(result type, name, [parameter declarations])] in header order."""
    found = []
    for header in headers:
        for match in PROTOTYPE.finditer(header.read_text()):
            params = [p.strip() for p in match["params"].split(",")]
            found.append((match["result"].strip(), match["name"], [] if params == ["void"] else params))
    return found


def rename(names, cpu):
    lines = [f"#define {name} {cpu}_{name}" for name in names]
    # Declared hidden, so that calls from one function to another are direct ones.
    hidden = ["#pragma GCC visibility push(hidden)", '#include "qvpi.h"', "#pragma GCC visibility pop"]
    return "\n".join(lines + hidden) + "\n"


# The stub of one slot. Jumps are protected: a function that is reached through a register begins with a landing mark.
STUB = {
    ("x86", 64): "\t_CET_ENDBR\n\tjmp *(table + 8 * {slot})(%rip)\n",
    # The address of the next instruction comes from the return address of a call; only eax and ecx may be changed.
    ("x86", 32): "\t_CET_ENDBR\n\tcall pc_to_ecx\n0:\tjmp *(table + 4 * {slot} - 0b)(%ecx)\n",
    # Only x16 and x17 may be changed.
    ("aarch64", 64): "\tbti c\n\tadrp x16, table + 8 * {slot}\n\tldr x16, [x16, :lo12:table + 8 * {slot}]\n\tbr x16\n",
}
PROLOGUE = {
    ("x86", 64): "#include <cet.h>\n",
    ("x86", 32): "#include <cet.h>\n\t.text\npc_to_ecx:\n\tmovl (%esp), %ecx\n\tret\n",
    # The note tells the linker that the code is protected: property 0xC0000000, of branch targets (1) and returns (2).
    ("aarch64", 64): "\t.arch armv8.5-a\n"
                     '\t.section .note.gnu.property, "a"\n\t.p2align 3\n\t.word 4, 16, 5\n\t.asciz "GNU"\n'
                     "\t.word 0xC0000000, 4, 3, 0\n",
}


def entries(names, cpu, machine, bits):
    """Assembly: stubs in header order, then the table, filled by the loader and read-only from then on."""
    text = [PROLOGUE[machine, bits], "\t.text\n"]
    for slot, name in enumerate(names):
        text.append(f"\t.p2align 4\n\t.globl {name}\n\t.type {name}, @function\n{name}:\n"
                    f"{STUB[machine, bits].format(slot=slot)}\t.size {name}, . - {name}\n")
    text.append('\t.section .data.rel.ro, "aw", @progbits\n\t.p2align 6\n\t.type table, @object\ntable:\n')
    word = ".quad" if bits == 64 else ".long"
    for name in names:
        text.append(f"\t.hidden {cpu}_{name}\n\t{word} {cpu}_{name}\n")
    text.append('\t.size table, . - table\n\t.section .note.GNU-stack, "", @progbits\n')
    return "".join(text)


def exports(names):
    return "{\n  global:\n" + "".join(f"    {name};\n" for name in names) + "  local:\n    *;\n};\n"


def parameter(declaration):
    """(type, name) of a parameter; an array counts as a pointer."""
    match = re.fullmatch(r"(?P<type>.+?)(?P<name>\w+)(?P<array>\[\d*\])?(?P<inner>\[\d+\])?", declaration)
    kind = re.sub(r"\s*\*", "*", match["type"].strip())
    if match["inner"]:
        kind += f"(*){match['inner']}"
    elif match["array"]:
        kind += "*"
    return kind, match["name"]


def argument(index, kind):
    """How argument number `index` is taken out of an array of test::Argument."""
    if kind.endswith(("*", "]")):
        return f"reinterpret_cast<{kind}>(const_cast<void*>(a[{index}].pointer))"
    if kind.startswith("Qvpi") and ("Size" in kind or "Point" in kind or "Rect" in kind):
        return f"As<{kind}>(a[{index}])"
    return f"static_cast<{kind}>(a[{index}].number)"


def calls(functions):
    lines = ['#include "tests/support/calls.h"', "namespace test {", "const Call kCalls[] = {"]
    for result, name, params in functions:
        if result != "QvpStatus":
            continue
        split = [parameter(p) for p in params]
        arguments = ", ".join(argument(i, kind) for i, (kind, _) in enumerate(split))
        described = ";".join(f"{kind}|{label}" for kind, label in split)
        lines.append(f'{{"{name}", "{described}", [](const Argument* a) {{ return {name}({arguments}); }}}},')
    return "\n".join(lines + ["{nullptr, nullptr, nullptr}};", "}  // namespace test"]) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--cpu", help="code of the CPU build, as in g9; without it only an exports.map is written")
    parser.add_argument("--machine", choices=sorted({machine for machine, _ in STUB}), help="what that build runs on")
    parser.add_argument("--bits", type=int, choices=(32, 64), help="width of a pointer in that build")
    parser.add_argument("--calls", action="store_true", help="write the tests' calls.cpp instead")
    parser.add_argument("--out", type=Path, required=True, help="folder to write to")
    parser.add_argument("headers", nargs="+", type=Path)
    options = parser.parse_args()
    functions = prototypes(options.headers)
    names = [name for _, name, _ in functions]
    if len(names) != len(set(names)):
        raise SystemExit("a name is declared twice: " + ", ".join(sorted({n for n in names if names.count(n) > 1})))
    options.out.mkdir(parents=True, exist_ok=True)
    if options.calls:
        (options.out / "calls.cpp").write_text(calls(functions))
        return
    (options.out / "exports.map").write_text(exports(names))
    if options.cpu:
        (options.out / "rename.h").write_text(rename(names, options.cpu))
        (options.out / "entries.S").write_text(entries(names, options.cpu, options.machine, options.bits))
        (options.out / "static.syms").write_text("".join(f"{options.cpu}_{name} {name}\n" for name in names))


if __name__ == "__main__":
    main()
