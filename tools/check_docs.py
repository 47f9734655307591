#!/usr/bin/env python3
"""Check that the headers describe every function, and the parameters that they document, group by group.

A group is one comment for prototypes that may differ in parameters: plain and in-place forms, forms with and without a
constant. So every documented parameter has to be one of some prototype in the group, and every parameter of a prototype
has to be documented, unless the group documents none at all. Blank lines in comments stand alone.
"""
import re
import sys
from pathlib import Path

from derive import GROUP

PROTOTYPE = re.compile(r"\w+\((?P<parameters>[^()]*)\);")
NAME = re.compile(r"(\w+)(?:\[\w*\])*$")


def parameters(prototypes):
    for match in PROTOTYPE.finditer(prototypes):
        for parameter in match["parameters"].split(","):
            if parameter.strip() != "void":
                yield NAME.search(parameter.strip())[1]


def complaints(text):
    for group in GROUP.finditer(text):
        line = text[:group.start()].count("\n") + 1
        documented = {name for names in re.findall(r"@param ([\w,]+)", group["comment"]) for name in names.split(",")}
        given = set(parameters(group["prototypes"]))
        if documented:
            yield from ((line, f"{name} is documented, and no parameter") for name in sorted(documented - given))
            yield from ((line, f"{name} is not documented") for name in sorted(given - documented))
    groups = "".join(group["prototypes"] for group in GROUP.finditer(text) if "@name" not in group["comment"])
    for match in re.finditer(r"^\w.*\b(\w+)\([^()]*\);$", text, re.M):
        if f"{match[1]}(" not in groups:
            yield text[:match.start()].count("\n") + 1, f"{match[1]} is not described"
    for match in re.finditer(r"\n \*\n \*\n", text):
        yield text[:match.start()].count("\n") + 2, "two blank lines in a comment"


found = [f"{header}:{line}: {what}" for header in sorted(Path("include").glob("*.h"))
         for line, what in complaints(header.read_text())]
print("\n".join(found), end="\n" if found else "")
sys.exit(bool(found))
