"""The public headers as the manual shows them: modules, which are headers; families, a page each; sections; forms.

A section begins with `@name`. Below it, one comment stands for all the prototypes that follow it.
"""
import re
import sys
from dataclasses import dataclass, field
from functools import cached_property
from pathlib import Path

sys.path.append(str(Path(__file__).parents[2] / "tools"))
from derive import GROUP  # noqa: E402

from names import parts  # noqa: E402

SECTION = re.compile(r"/\*\* @name (?P<title>[^\n]*)\n(?P<text>(?: \*[^\n]*\n)*?) \*  @\{ \*/\n"
                     r"(?P<body>.*?)/\*\* @\} \*/\n", re.S)
IMAGE = re.compile(r"_A?[CP]\dI?[A-Z]*\w*\(")
FUNCTION = re.compile(r"(\w+)\([^()]*\);")

MODULES = {
    "qvpi_core": "Copying and setting", "qvpi_arith": "Pixel by pixel", "qvpi_filter": "Filters and borders",
    "qvpi_denoise": "Filters against noise", "qvpi_geometry": "Geometry", "qvpi_stats": "Statistics and matching",
    "qvpi_feature": "Features and patterns", "qvpi_transform": "Transforms", "qvpi_volume": "Volumes",
    "qvptypes": "Types", "qvpcore": "Companion library",
}
# Sections that share a page though their titles differ in what stands before a colon: the title's beginning, the page.
SHARED = [
    ("Minimum and maximum:", "Minimum and maximum of a neighbourhood"), ("Minimum", "Minimum and maximum"),
    ("Maximum", "Minimum and maximum"), ("Division", "Division"), ("Absolute value", "Absolute value"),
    ("Conversion", "Conversion"), ("Bits to", "Bit images"), ("Grey values to", "Bit images"), ("Scale", "Scale"),
    ("Bitwise", "Logic"), ("Shift", "Shifts"), ("Compare", "Comparison"), ("Compositing", "Compositing"),
    ("Premultiplication", "Premultiplication"), ("Copy with a constant", "Border: constant"),
    ("Copy with a replicated", "Border: replicated"), ("Copy with a mirrored", "Border: mirrored"),
    ("Copy with a wrapped", "Border: wrapped"), ("Copy", "Copy"), ("Set", "Set"), ("Swap", "Swap channels"),
    ("Norms of differences", "Norms of differences"), ("Relative norms", "Relative norms"),
    ("MulPack", "Packed spectra"), ("MagnitudePack", "Packed spectra"), ("PhasePack", "Packed spectra"),
    ("PackTo", "Packed spectra"), ("CplxExtend", "Packed spectra"),
    ("Threshold: values above are", "Threshold with replacement"),
    ("Threshold: values below are", "Threshold with replacement"),
    ("Threshold: values on", "Threshold with replacement"), ("Resize: nearest", "Resize: nearest"),
    ("Resize: linear", "Resize: linear"), ("Resize: cubic", "Resize: cubic and Lanczos"),
    ("Resize: Lanczos", "Resize: cubic and Lanczos"), ("Resize: super", "Resize: super-sampling"),
    ("Resize: antialiased", "Resize: antialiased"), ("Warp: affine", "Warp: affine"),
    ("Warp: perspective", "Warp: perspective"), ("Warp: bilinear", "Warp: bilinear"),
    ("Warp: size of the record, bilinear", "Warp: bilinear"), ("Warp: size", "Warp: sizes and quadrangles"),
    ("Warp: quadrangle,", "Warp: sizes and quadrangles"), ("Warp:", "Warp: transforms and bounds"),
]
VARIANTS = re.compile(r"( of floats| of float images| by a constant| of a constant| of fractions)+$")


@dataclass
class Section:
    title: str
    text: str  # what stands at @name
    body: str


@dataclass
class Family:
    name: str
    module: str
    sections: list[Section] = field(default_factory=list)

    @property
    def id(self):
        return f"{self.module}_" + re.sub(r"\W+", "_", self.name.lower())

    @cached_property
    def groups(self):
        """(section, comment, prototypes) for each comment of functions."""
        return [(section, group["comment"], group["prototypes"])
                for section in self.sections for group in GROUP.finditer(section.body)]

    @cached_property
    def functions(self):
        return [name for _, _, prototypes in self.groups for name in FUNCTION.findall(prototypes)]

    @cached_property
    def operations(self):
        return {parts(function)[0] for function in self.functions}

    @property
    def about(self):
        """A sentence: the first one on functions over images, which comes behind what prepares them."""
        comments = [comment for _, comment, prototypes in self.groups if IMAGE.search(prototypes)]
        return brief((comments or [comment for _, comment, _ in self.groups] or [""])[0])


def family_of(title):
    for beginning, page in SHARED:
        if title.startswith(beginning):
            return page
    if title.startswith("Volumes: "):
        return title.split(", ")[0]
    return VARIANTS.sub("", title.split(": ")[0])


def families(header):
    """The families of a header in the order of their first sections."""
    found = {}
    for match in SECTION.finditer(header.read_text()):
        name = family_of(match["title"])
        family = found.setdefault(name, Family(name, header.stem))
        text = "".join(line[3:].rstrip() + "\n" for line in match["text"].splitlines())
        family.sections.append(Section(match["title"], text.strip(), match["body"]))
    return list(found.values())


def all_families(include):
    return [family for module in MODULES for family in families(Path(include) / f"{module}.h")]


def plain(comment):
    """The lines of a comment without what frames them."""
    lines = [re.sub(r"^ ?\* {0,2}", "", line) for line in comment.strip().splitlines()]
    return "\n".join(line.rstrip() for line in lines).strip().replace("@return,", "@return")


def brief(comment):
    """Its first sentence."""
    text = re.sub(r"\s+", " ", plain(comment).split("\n\n")[0].split("\n@")[0])
    return re.split(r"(?<=[.;:])\s", text, maxsplit=1)[0].rstrip(";: ")
