#!/usr/bin/env python3
"""Derive everything mechanical from the prototypes in the public headers.

The headers are the single list of exported names. For one CPU build this writes

  rename.h     one define per function: inside the library `name` means `<cpu>_name`; and one for the namespace of all
               that is internal, so that no symbol of one build is taken for one of another in a program with both
  entries.S    the entry table and the stub of each exported name, which jumps through its slot
  exports.map  the linker's version script; exports.def for Windows
  static.syms  for the archive: the renames undone, so that a name stands for the function itself and not for a stub

For a build that holds the code of several others, its levels, and chooses between them at load:

  entries.S    the table of entries and the stub of each exported name, for the shared library
  entry.S      one stub with its entry, for the archive: tools/entry_objects.py makes an object of it for each name
  exports.map  as above

and for the tests

  calls.cpp    one row per function: its name, its parameters, the statuses of its comment in the order of the checks,
               and a way to call it with arguments made at run time

and for the module for JavaScript

  exports.txt  the names as emscripten takes them, a line each: all, or those that scripts use
"""
import argparse
import re
from pathlib import Path

# One comment, and the prototypes that it describes.
GROUP = re.compile(r"/\*\*(?P<comment>(?:(?!\*/).)*)\*/\n(?P<prototypes>(?:\w[^\n]*\([^()]*\);\n)+)", re.S)
PROTOTYPE = re.compile(r"^(?P<result>\w[\w ]*?[ *]+)(?P<name>(?:qvp|own)\w+)\((?P<params>[^()]*)\);", re.M)


def prototypes(headers):
    """[(result type, name, [parameter declarations])] in header order."""
    found = []
    for header in headers:
        for match in PROTOTYPE.finditer(header.read_text()):
            params = [p.strip() for p in match["params"].split(",")]
            found.append((match["result"].strip(), match["name"], [] if params == ["void"] else params))
    return found


def write(file, text):
    """Leaves a file alone that says the same already, so that nothing is compiled again."""
    if not file.exists() or file.read_text() != text:
        file.write_text(text)


def rename(names, cpu, machine):
    lines = [f"#define {name} {cpu}_{name}" for name in ["qvp", *names]] if has_stubs(machine) else []
    # Declared hidden, so that calls from one function to another are direct ones.
    hidden = ["#pragma GCC visibility push(hidden)", '#include "qvpi.h"', "#pragma GCC visibility pop"]
    return "\n".join(lines + hidden) + "\n"


# The stub that jumps through the slot at an address. Jumps are protected: a function that is reached through a register
# begins with a landing mark.
STUB = {
    ("x86", 64): "\t_CET_ENDBR\n\tjmp *({slot})(%rip)\n",
    # The address of the next instruction comes from the return address of a call; only eax and ecx may be changed.
    ("x86", 32): "\t_CET_ENDBR\n\tcall pc_to_ecx\n0:\tjmp *({slot} - 0b)(%ecx)\n",
    # Only x16 and x17 may be changed.
    ("aarch64", 64): "\tbti c\n\tadrp x16, {slot}\n\tldr x16, [x16, :lo12:{slot}]\n\tbr x16\n",
}
PROLOGUE = {
    ("x86", 64): "#include <cet.h>\n",
    ("x86", 32): "#include <cet.h>\n\t.text\npc_to_ecx:\n\tmovl (%esp), %ecx\n\tret\n",
    # The note tells the linker that the code is protected: property 0xC0000000, of branch targets (1) and returns (2).
    ("aarch64", 64): "\t.arch armv8.5-a\n"
                     '\t.section .note.gnu.property, "a"\n\t.p2align 3\n\t.word 4, 16, 5\n\t.asciz "GNU"\n'
                     "\t.word 0xC0000000, 4, 3, 0\n",
}


def has_stubs(machine):
    """WebAssembly has no shared libraries: there the implementations have the exported names."""
    return machine != "wasm"


# What formats of objects write differently. A build of several levels has its entries in a section of their own: the
# slot, which begins as the code of the lowest level, and the way from each word to the code of a higher one. The linker
# tells the bounds of the section or, for Windows, sorts what lies in it by what stands behind the dollar.
FORMAT = {
    "elf": {
        "function": "\t.type {name}, @function\n", "end": "\t.size {name}, . - {name}\n", "internal": "\t.hidden {name}\n",
        "entries": '\t.section qvpi_entries, "aw", @progbits\n',
        # An excluded section makes a program that has an entry have what fills it, too.
        "needs": '\t.section .qvpi_needs, "e", @progbits\n\t.quad {name}\n',
        "epilogue": '\t.section .note.GNU-stack, "", @progbits\n',  # no code is put on the stack
    },
    "coff": {
        "function": "\t.def {name}\n\t.scl 2\n\t.type 32\n\t.endef\n", "end": "", "internal": "",
        "entries": '\t.section .qvpi$m, "dw"\n',
        "needs": "\t.globl {name}\n",
        "epilogue": "",
    },
}


def stub(name, slot, machine, bits, form):
    return (f"\t.p2align 4\n\t.globl {name}\n{form['function'].format(name=name)}{name}:\n"
            f"{STUB[machine, bits].format(slot=slot)}{form['end'].format(name=name)}")


def entries(names, cpu, machine, bits):
    """Assembly: stubs in header order, then the table, filled by the loader and read-only from then on."""
    size, word = bits // 8, ".quad" if bits == 64 else ".long"
    form = FORMAT["elf"]
    text = [PROLOGUE[machine, bits], "\t.text\n"]
    text += [stub(name, f"table + {size} * {i}", machine, bits, form) for i, name in enumerate(names)]
    text.append('\t.section .data.rel.ro, "aw", @progbits\n\t.p2align 6\n\t.type table, @object\ntable:\n')
    text += [f"\t.hidden {cpu}_{name}\n\t{word} {cpu}_{name}\n" for name in names]
    return "".join([*text, "\t.size table, . - table\n", form["epilogue"]])


ENTRY_SIZE = 16


def entry(name, levels, form):
    lowest, *higher = [f"{level}_{name}" for level in levels]
    text = "".join(form["internal"].format(name=code) for code in [lowest, *higher]) + f"\t.quad {lowest}\n"
    return text + "".join(f"\t.long {code} - .\n" for code in higher)


def union_entries(names, levels, machine, bits, form):
    """Assembly: stubs in header order, then the entries, on pages of their own, which can be made read-only."""
    text = [PROLOGUE[machine, bits], "\t.text\n"]
    text += [stub(name, f"table + {ENTRY_SIZE} * {i}", machine, bits, form) for i, name in enumerate(names)]
    text += [form["entries"], "\t.p2align 12\ntable:\n", *(entry(name, levels, form) for name in names)]
    return "".join([*text, "\t.p2align 12\n", form["epilogue"]])


def placeholder(names):
    """What stands for the name of a function in the template of its object, and is as long as the longest."""
    return "qvpi".ljust(max(map(len, names)), "_")


def entry_template(names, levels, machine, bits, form):
    """Assembly: one stub with its entry."""
    name = placeholder(names)
    return "".join([PROLOGUE[machine, bits], "\t.text\n", form["internal"].format(name=name),
                    stub(name, "entry", machine, bits, form), form["entries"], "\t.p2align 3\nentry:\n",
                    entry(name, levels, form), form["needs"].format(name="qvpi_fill_entries"), form["epilogue"]])


# Of all symbols: programs name it, so that the next interface could live beside this one in a process.
VERSION = "QVPI_10"


def write_exports(folder, names, form):
    if form is FORMAT["coff"]:
        write(folder / "exports.def", "EXPORTS\n" + "".join(f"  {name}\n" for name in names))
    else:
        write(folder / "exports.map", version_script(names))


def version_script(names):
    return VERSION + " {\n  global:\n" + "".join(f"    {name};\n" for name in names) + "  local:\n    *;\n};\n"


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
    if re.fullmatch(r"Qvpi\w*Size\w?|Qvp[ir](Point\w*|Rect\w*|Volume|Cuboid)", kind):
        return f"As<{kind}>(a[{index}])"
    return f"static_cast<{kind}>(a[{index}].number)"


def documented_statuses(headers):
    """{name: the statuses that its comment lists, each before a colon or a full stop, in that order}."""
    listed = re.compile(r"qvpStatus\w+(?=(?:, qvpStatus\w+)*(?:, a warning[^:.]*)?[:.])")
    found = {}
    for header in headers:
        for group in GROUP.finditer(header.read_text()):
            statuses = listed.findall(group["comment"].partition("@return")[2].replace("\n *", " "))
            for match in PROTOTYPE.finditer(group["prototypes"]):
                found[match["name"]] = [status for status in statuses if status != "qvpStatusNoError"]
    return found


def calls(functions, statuses):
    lines = ['#include "tests/support/calls.h"', "namespace test {", "const Call kCalls[] = {"]
    for result, name, params in functions:
        if result != "QvpStatus":
            continue
        split = [parameter(p) for p in params]
        arguments = ", ".join(argument(i, kind) for i, (kind, _) in enumerate(split))
        described = ";".join(f"{kind}|{label}" for kind, label in split)
        order = ", ".join([*statuses.get(name, []), "qvpStatusNoError"])
        lines.append(f'{{"{name}", "{described}", {{{order}}}, '
                     f"[](const Argument* a) {{ return {name}({arguments}); }}}},")
    return "\n".join(lines + ["{nullptr, nullptr, {}, nullptr}};", "}  // namespace test"]) + "\n"


def used(names, scripts):
    """Those of the names that the scripts have in them."""
    words = {word for script in scripts for word in re.findall(r"\w+", script.read_text())}
    return [name for name in names if name in words]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--cpu", help="code of the CPU build, as in g9; without it only an exports.map is written")
    parser.add_argument("--levels", nargs="+",
                        help="the codes of those whose code a build for several levels holds, lowest first")
    parser.add_argument("--machine", choices=sorted({machine for machine, _ in STUB} | {"wasm"}),
                        help="what that build runs on")
    parser.add_argument("--bits", type=int, choices=(32, 64), help="width of a pointer in that build")
    parser.add_argument("--format", choices=FORMAT, default="elf", help="that of the objects of that build")
    parser.add_argument("--module", action="store_true", help="write the module's exports.txt instead")
    parser.add_argument("--used-in", nargs="+", type=Path, help="export to the module what these scripts name alone")
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
        write(options.out / "calls.cpp", calls(functions, documented_statuses(options.headers)))
        return
    if options.module:
        names = used(names, options.used_in) if options.used_in else names
        write(options.out / "exports.txt", "".join(f"_{name}\n" for name in ["malloc", "free", *names]))
        return
    form = FORMAT[options.format]
    write_exports(options.out, names, form)
    if options.cpu:
        write(options.out / "rename.h", rename(names, options.cpu, options.machine))
    if options.cpu and has_stubs(options.machine):
        write(options.out / "entries.S", entries(names, options.cpu, options.machine, options.bits))
        write(options.out / "static.syms", "".join(f"{options.cpu}_{name} {name}\n" for name in names))
    if options.levels:
        build = options.levels, options.machine, options.bits, form
        write(options.out / "entries.S", union_entries(names, *build))
        write(options.out / "entry.S", entry_template(names, *build))


if __name__ == "__main__":
    main()
