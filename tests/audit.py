#!/usr/bin/env python3
"""Audit a built library by disassembly: it uses no instruction beyond its CPU level, none whose result differs between
makers of CPUs, imports nothing that could allocate, print, wait or depend on the environment, exports its own functions
only, and is read-only once loaded.

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
    "core": (rf"{BMI}|v(?!err|erw)\w+|p(?:shufb|mulld)", r"%ymm|" + EVEX),
}
IMPORTS = {
    "core": r"aligned_alloc|free",
    "library": r"mem(?:cpy|set|move|cmp)|qvpFree|qvpMalloc|qvpMalloc_L|qvpGetMaxCacheSizeB|qvp_get_cache_line_size",
}
FROM_START_FILES = r"_ITM_\w+|__cxa_finalize|__gmon_start__|__stack_chk_fail"
INSTRUCTION = re.compile(r"^\s+[0-9a-f]+:\s+(?:(?:notrack|rep\w*|lock|bnd|data16|[cdefgs]s)\s+)*(\w+)\s*([^<#]*)")


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def offences(objdump, library, kind):
    mnemonics, forms = FORBIDDEN[kind]
    mnemonic_pattern, form_pattern = re.compile(f"(?:{mnemonics}|{EVERYWHERE})"), re.compile(forms)
    found, count = {}, 0
    for line in run(objdump, "-d", "--no-show-raw-insn", str(library)).splitlines():
        match = INSTRUCTION.match(line)
        if not match:
            continue
        count += 1
        mnemonic, operands = match.groups()
        if mnemonic_pattern.fullmatch(mnemonic) or form_pattern.search(f"{mnemonic} {operands}"):
            found.setdefault(mnemonic, line.strip())
    return count, found


def strange_imports(library, kind):
    allowed = re.compile(f"(?:{IMPORTS['core' if kind == 'core' else 'library']}|{FROM_START_FILES})")
    names = {line.split()[-1].split("@")[0] for line in run("nm", "-D", "--undefined-only", str(library)).splitlines()}
    return sorted(name for name in names if not allowed.fullmatch(name))


def strange_exports(library):
    names = [line.split()[-1] for line in run("nm", "-D", "--defined-only", str(library)).splitlines()]
    return [name for name in names if not re.fullmatch(r"qvp\w+|ownGetFeature", name)]


def is_read_only(library):
    """No relocation of code, and the entry table is made read-only before the program starts."""
    dynamic, segments = run("readelf", "-dW", str(library)), run("readelf", "-lW", str(library))
    relocated = re.search(r"GNU_RELRO", segments) and re.search(r"\.data\.rel\.ro", segments.split("GNU_RELRO")[-1])
    return "TEXTREL" not in dynamic and "BIND_NOW" in dynamic and ("core" in library.name or bool(relocated))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--objdump", default="objdump", help="the disassembler for that CPU")
    parser.add_argument("cpu", help="code of the CPU build")
    parser.add_argument("folder", type=Path, help="where its libraries are")
    options = parser.parse_args()
    failed = False
    for library in sorted(options.folder.glob("libqvp*.so.10")):
        kind = "core" if "core" in library.name else options.cpu
        count, found = offences(options.objdump, library, kind)
        imports, exports, fixed = strange_imports(library, kind), strange_exports(library), is_read_only(library)
        print(f"{library.name} for {kind}: {count} instructions, {len(found)} not allowed; imports not allowed: {imports}; "
              f"exports not allowed: {exports}; read-only: {fixed}")
        for line in found.values():
            print("   ", line)
        failed = failed or bool(found or imports or exports) or not fixed or count < 100
    sys.exit(failed)


if __name__ == "__main__":
    main()
