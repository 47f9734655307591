#!/usr/bin/env python3
"""Audit the DLLs of a build for Windows: they use no instruction beyond the CPU levels that they hold, need no DLL but
those of the system, its C library and the companion, export the functions of the headers and nothing else, each as one
jump. Of the archives, that they call no function that could allocate, print or wait, and give no symbol a name that
something else could have, too.
"""
import argparse
import re
import sys
from pathlib import Path

from audit import IMPORTS, bare_jumps, offences, run, strange_symbols

ROOT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tools"))
from derive import prototypes  # noqa: E402

HEADERS = {"qvpcore": ["qvpcore.h"], "qvpi": sorted(header.name for header in (ROOT / "include").glob("qvpi_*.h"))}
SYSTEM = {"KERNEL32.dll", "msvcrt.dll"}
CALLS = {
    "qvpcore": r"__imp__aligned_(?:malloc|free)",
    # The last is what the compiler calls in functions with more than a page of variables.
    "qvpi": rf"{IMPORTS['library']}|ownGetFeature|__imp_(?:VirtualProtect|GetEnvironmentVariableA)|___chkstk_ms",
}


def without_tables(listing):
    """Tables of jumps lie behind the code of their function, where the disassembler takes them for more of it. So what
    follows the last way out before something that is no instruction is left out."""
    kept = []
    for function in re.split(r"(?=^[0-9a-f]+ <)", listing, flags=re.M):
        code, wrong, _ = function.partition("(bad)")
        ways_out = [match.end() for match in re.finditer(r"\t(?:ret|jmp)\b.*\n", code)] if wrong else []
        kept.append(code[:ways_out[-1]] if ways_out else function)
    return "".join(kept)


def differing_exports(tables, name):
    """What the table of exports lacks of the headers' functions, or has beside them."""
    found = set(re.findall(r"^\t\[ *\d+\] (\w+)$", tables, re.M))
    return sorted(found ^ {function for _, function, _ in prototypes(ROOT / "include" / h for h in HEADERS[name])})


def strange_dlls(tables, name):
    allowed = SYSTEM if name == "qvpcore" else SYSTEM | {"qvpcore.dll"}
    return sorted(set(re.findall(r"DLL Name: (\S+)", tables)) - allowed)


def strange_calls(archive, name):
    defined, undefined = (set(re.findall(pattern, run("nm", str(archive)), re.M))
                          for pattern in (r"^[0-9a-f]+ [A-Z] (\w+)", r"^ +U (\w+)"))
    return sorted(call for call in undefined - defined if not re.fullmatch(CALLS[name], call))


def audit(options, name):
    library, archive = options.folder / f"{name}.dll", options.folder / f"lib{name}.a"
    tables = run(options.objdump, "-p", str(library))
    listing = run(options.objdump, "-d", "--no-show-raw-insn", str(library))
    count, found = offences(without_tables(listing), "core" if name == "qvpcore" else "any")
    functions = {function for _, function, _ in prototypes(ROOT / "include" / h for h in HEADERS[name])}
    wrong = {
        "instructions": list(found.values()),
        "imports": strange_dlls(tables, name),
        "exports": differing_exports(tables, name),
        "more than a jump": sorted(functions - bare_jumps(listing, "")) if name == "qvpi" else [],
        "calls": strange_calls(archive, name),
        "symbols": strange_symbols(archive, options.levels),
    }
    print(f"{library.name}: {count} instructions, {len(functions)} functions; not allowed: "
          f"{ {what: things[:10] for what, things in wrong.items() if things} }")
    return count >= 100 and not any(wrong.values())


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--objdump", required=True, help="the disassembler")
    parser.add_argument("--levels", nargs="+", required=True, help="codes of the CPU builds whose code it has")
    parser.add_argument("cpu", help="code of the build")
    parser.add_argument("folder", type=Path, help="where its libraries are")
    options = parser.parse_args()
    sys.exit(not all([audit(options, name) for name in HEADERS]))


if __name__ == "__main__":
    main()
