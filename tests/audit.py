#!/usr/bin/env python3
"""Audit a built library by disassembly: it uses no instruction beyond its CPU level, none whose result differs between
makers of CPUs, imports nothing that could allocate, print, wait or depend on the environment, exports its own functions
only, and is read-only once loaded. It keeps nothing between calls, so that threads need no locks. No data can be run as
code, and jumps through pointers land where they may. Archives give no symbol a name that something else could have, too:
the linker takes one definition of each, and that of a higher level would crash on a CPU of a lower one.
"""
import argparse
import re
import subprocess
import sys
from pathlib import Path

BMI = r"andn|bextr|blsi|blsmsk|blsr|bzhi|pdep|pext|rorx|sarx|shlx|shrx|mulx|lzcnt|movbe"
AVX2_ONLY = r"vpbroadcast\w+|vp?gather\w+|vps[lr][la]v\w+|vperm(?:d|q|ps|pd)|v(?:insert|extract)i128|vpblendd|vcvtp[hs]2p[hs]"
BEYOND_V4 = (r"vpdp\w+|vperm[it]2?b|vpermi2b|vpmultishiftqb|vpopcnt\w+|vpmadd52\w+|vgf2\w+|vdpbf16\w*|vcvtne\w*bf16"
             r"|vp(?:compress|expand)[bw]|vpsh[lr]d\w+|vpshufbitqmb")
EVERYWHERE = r"vfn?m(?:add|sub)\w+|v?r(?:cp|sqrt)(?:ps|ss|14\w+|28\w+)|v?aes\w+|v?pclmul\w+|sha(?:1|256)\w+|f(?:sin|cos|sincos|ptan|yl2x|2xm1)"
EVEX = r"%zmm|%k[0-7]\b|%[xy]mm(?:1[6-9]|2\d|3[01])"
# AArch64: what came after the first version, and what is not exact or fused.
BEYOND_N8 = (r"(?:cas|ldadd|ldclr|ldset|ldeor|swp|stadd)\w*|[su]dot|usdot|sq?rdml[as]h|fjcvtzs|(?:ret|bra|blra|aut|pac)[a-z]*[ab]"
             r"|\w*mmla|bf\w+dot|fcmla|fcadd|ldapr\w*|frint(?:32|64)\w")
FUSED_N8 = r"fn?m(?:add|sub)|fml[as]l?2?|fr(?:ecp|sqrt)[esx]|aes\w+|sha\w+|pmull2?"
LEGACY_SSE = r"(?!v|prefetch|ldmxcsr|stmxcsr|movnti).*"  # a mnemonic without VEX

# Per build: mnemonics that must not occur, and forms (mnemonic and operands) that must not.
FORBIDDEN = {
    "g9": (f"{BMI}|{AVX2_ONLY}", rf"{EVEX}|^vp(?!ermil|erm2f128|test)\w+ .*%ymm|^{LEGACY_SSE} .*%xmm"),
    "v2": (rf"{BMI}|v(?!err|erw)\w+", r"%ymm|" + EVEX),
    "v3": (r"(?!)", EVEX),
    "v4": (BEYOND_V4, r"(?!)"),
    "n8": (f"{BEYOND_N8}|{FUSED_N8}", r"\bz\d+\.|\bp\d+/|^f\w+ +v\d+\.[48]h"),
    "any": (BEYOND_V4, r"(?!)"),
    "core": (rf"{BMI}|v(?!err|erw)\w+|p(?:shufb|mulld)", r"%ymm|" + EVEX),
}
IMPORTS = {
    "core": r"aligned_alloc|free",
    "any": r"secure_getenv|mprotect|ownGetFeature",  # beside those of a library
    "library": r"mem(?:cpy|set|move|cmp)|qvpFree|qvpMalloc|qvpMalloc_L|qvpGetMaxCacheSizeB|qvp_get_cache_line_size",
}
VERSION = "@@QVPI_10"  # every export has it
VARIABLES = {"core": r".*largestCache.*"}  # found out once, and the same whoever does
PROTECTION = {"n8": "BTI"}  # that every object has; elsewhere both of x86
INSTRUCTION = re.compile(r"^\s+[0-9a-f]+:\s+(?:(?:notrack|rep\w*|lock|bnd|data16|[cdefgs]s)\s+)*(\w+)\s*([^<#]*)")


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def offences(listing, kind):
    mnemonics, forms = FORBIDDEN[kind]
    mnemonic_pattern, form_pattern = re.compile(f"(?:{mnemonics}|{EVERYWHERE})"), re.compile(forms)
    found, count = {}, 0
    for line in listing.splitlines():
        match = INSTRUCTION.match(line)
        if not match:
            continue
        count += 1
        mnemonic, operands = match.groups()
        if mnemonic_pattern.fullmatch(mnemonic) or form_pattern.search(f"{mnemonic} {operands}"):
            found.setdefault(mnemonic, line.strip())
    return count, found


def strange_imports(library, kind):
    own = IMPORTS["core"] if kind == "core" else IMPORTS["library"] + "|" + IMPORTS.get(kind, "(?!)")
    allowed = re.compile(f"(?:{own}|__stack_chk_fail)")
    names = {line.split()[-1].split("@")[0] for line in run("nm", "-D", "--undefined-only", str(library)).splitlines()}
    return sorted(name for name in names if not allowed.fullmatch(name))


def exports(library):
    """Names with their version, whose own name, an absolute symbol, is left out."""
    lines = run("nm", "-D", "--defined-only", str(library)).splitlines()
    return {line.split()[-1] for line in lines if " A " not in line}


def strange_exports(library):
    return [name for name in exports(library) if not re.fullmatch(rf"(?:qvp\w+|ownGetFeature){VERSION}", name)]


def bare_jumps(listing, mark):
    """Names of the functions that are a jump through a slot, behind a landing mark if there is one, and no more."""
    padding = "nop|cs nop|data16|xchg|int3"
    jump = rf"^[0-9a-f]+ <(\w+)[@\w]*>:\n{mark}.*\tjmp +\*0x\w+\(%rip\) .*\n(?!.*\t(?!{padding}))"
    return set(re.findall(jump, listing, re.M))


def strange_stubs(listing, library):
    """Those exports of a library of several levels that are more than a jump."""
    return sorted(exports(library) - {name + VERSION for name in bare_jumps(listing, r".*\tendbr64\s*\n")})


def strange_symbols(archive, levels):
    """Those that neither are exported names nor name one level; code that is for any CPU may have its own."""
    names = re.findall(r"^[0-9a-f]+ [A-Zuvw] (\w+)", run("nm", "--defined-only", str(archive)), re.M)
    own = re.compile(rf"(?:qvp|ownGet)\w+|(?:{'|'.join(levels)})_qvp\w+|_Z\w*?\d({'|'.join(levels)})_qvp\w*")
    of_two = [name for name in names if len(set(re.findall(r"\d?([a-z]\d)_qvp", name))) > 1]
    return sorted({name for name in names if not own.fullmatch(name)} | set(of_two))


def is_read_only(library):
    """No relocation of code, and the entry table is made read-only before the program starts: by the loader, or by the
    library itself, for which it must be on pages of its own."""
    dynamic, segments = run("readelf", "-dW", str(library)), run("readelf", "-lW", str(library))
    relocated = re.search(r"GNU_RELRO", segments) and re.search(r"\.data\.rel\.ro", segments.split("GNU_RELRO")[-1])
    entries = re.search(r" qvpi_entries +PROGBITS +([0-9a-f]+) [0-9a-f]+ ([0-9a-f]+)", run("readelf", "-SW", str(library)))
    paged = entries and all(int(word, 16) % 4096 == 0 for word in entries.groups())
    return "TEXTREL" not in dynamic and "BIND_NOW" in dynamic and ("core" in library.name or bool(relocated) or bool(paged))


def variables(options, library, kind):
    """What the library could write to after it is loaded."""
    allowed = re.compile(VARIABLES.get(kind, "(?!)"))
    names = re.findall(r"\s\.(?:data|bss|tdata|tbss)(?:\.(?!rel\.ro)\S+)?\t[0-9a-f]*[1-9a-f][0-9a-f]* +(?:\.hidden )?(\S+)$",
                       run(options.objdump, "-t", str(library)), re.M)
    return sorted(name for name in names if not allowed.fullmatch(name))


def is_protected(library, cpu):
    """No stack or segment is both code and data, and indirect jumps land where a marked instruction is."""
    segments, notes = run("readelf", "-lW", str(library)), run("readelf", "-nW", str(library))
    stack = re.search(r"GNU_STACK .* (\w+) +0x\w+$", segments, re.M)
    return bool(stack and stack.group(1) == "RW" and " RWE " not in segments and PROTECTION.get(cpu, "IBT, SHSTK") in notes)


def audit_library(options, library):
    kind = "core" if "core" in library.name else options.cpu
    listing = run(options.objdump, "-d", "--no-show-raw-insn", str(library))
    count, found = offences(listing, kind)
    imports, exports, fixed = strange_imports(library, kind), strange_exports(library), is_read_only(library)
    stubs = strange_stubs(listing, library) if options.levels and kind != "core" else []
    static, protected = variables(options, library, kind), is_protected(library, options.cpu)
    print(f"{library.name} for {kind}: {count} instructions, {len(found)} not allowed; imports not allowed: {imports}; "
          f"exports not allowed: {exports}; more than a jump: {stubs}; variables: {static}; "
          f"protected: {protected}; read-only: {fixed}")
    for line in found.values():
        print("   ", line)
    return not (found or imports or exports or stubs or static) and protected and fixed and count >= 100


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--objdump", default="objdump", help="the disassembler for that CPU")
    parser.add_argument("--levels", nargs="+", default=[], help="codes of the CPU builds whose code it has")
    parser.add_argument("cpu", help="code of the CPU build")
    parser.add_argument("folder", type=Path, help="where its libraries are")
    options = parser.parse_args()
    passed = [audit_library(options, library) for library in sorted(options.folder.glob("libqvp*.so.10"))]
    for archive in options.folder.glob("libqvp*.a"):
        symbols = strange_symbols(archive, options.levels or [options.cpu])
        print(f"{archive.name}: symbols not allowed: {symbols}")
        passed.append(not symbols)
    sys.exit(not all(passed) or len(passed) < 4)


if __name__ == "__main__":
    main()
