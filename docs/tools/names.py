"""What the names of functions tell: operation, types, layout, and how a form is called."""
import re

TYPE = re.compile(r"(\d+)(uc|sc|fc|u|s|f)")
TYPES = {"u": "unsigned", "s": "signed", "f": "float", "fc": "complex float", "sc": "complex signed"}
LAYOUTS = {"C1": "1 channel", "C2": "2 channels", "C3": "3 channels", "C4": "4 channels",
           "AC4": "3 of 4 channels, alpha stays", "AP4": "4 planes, the last alpha", "P2": "2 planes",
           "P3": "3 planes", "P4": "4 planes", "V": "volume", "PV": "planes of a volume"}
ENDS = {"M": "under a mask", "I": "in place", "Sfs": "with a scale factor"}
LAYOUT = re.compile(r"AC4|AP4|C[1234]|P[234]|PV|V")
PART = re.compile(LAYOUT.pattern + "|Sfs|[MIR]")


def parts(name):
    """(operation, [types], layout word) of a name: `qvpiAdd`, ["8u"], "C3IRSfs"; the last two may be empty."""
    words = name.removesuffix("_L").split("_")
    types, layout, operation = [], "", [words[0]]
    for word in words[1:]:
        if re.fullmatch(r"(?:\d+(?:[usf]c?))+", word) and not layout:
            types = [a + b for a, b in TYPE.findall(word)]
        elif types and re.fullmatch(r"(?:A?C\d|A?P\d|P?V)+(?:[A-Z]\w*)?", word) and not layout:
            layout = word
        else:
            operation.append(word)
    return "_".join(operation), types, layout


def layouts(word):
    return LAYOUT.findall(word)


def described(name):
    """A few words on a form: its types, its layout, and how it is called."""
    _, types, layout = parts(name)
    words = []
    if types:
        words.append(" to ".join(f"{bits} bits {TYPES[kind]}" for bits, kind in
                                 (TYPE.fullmatch(kind).groups() for kind in types)))
    if layout:
        words.append(" to ".join(LAYOUTS[part] for part in layouts(layout)))
        words += [text for part, text in ENDS.items() if part in PART.findall(layout)]
    if name.endswith("_L"):
        words.append("sizes as wide as a pointer")
    return ", ".join(words)
