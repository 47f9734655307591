"""How an exported function is called with numpy arrays: a plan made from the parameters of its prototype.

A parameter's role is its name without the p of pointers: pSrc1 and src1Step are both of the role "src1". An operation
lists the roles in the order in which Python passes them; from them the plan tells what each operand must be, and from
which operand each parameter is made. Sizes come from the images unless an operation lists them.
"""
import re
import struct

import numpy

from . import _call

# Exported names of element types, and numpy's. Complex integers have no type in numpy.
DTYPES = {"8u": "u1", "8s": "i1", "16u": "u2", "16s": "i2", "32u": "u4", "32s": "i4", "32f": "f4", "64f": "f8",
          "32fc": "c8"}
NUMBERS = {name: numpy.dtype(code).num for name, code in DTYPES.items()}
NAMES = {number: name for name, number in NUMBERS.items()}
_C_TYPES = {f"Qvp{name}": number for name, number in NUMBERS.items()} | {
    "int": NUMBERS["32s"], "double": NUMBERS["64f"], "QvpiPoint": NUMBERS["32s"],
    "QvpiSize": NUMBERS["32s"], "QvpiRect": NUMBERS["32s"], "QvpiBorderSize": NUMBERS["32u"],
    "QvprCuboid": NUMBERS["32s"], "QvpSizeL": numpy.dtype(numpy.intp).num}
# Structures: the operand that they are made from, the slot for it, and the slot for an image of that size.
_STRUCTURES = {"QvpiSize": ("P", "z", "z"), "QvpiPoint": ("P", "o", "z"), "QvpiRect": ("Q", "r", "e"),
               "QvprVolume": ("T", "v", "v"), "QvprPoint": ("T", "q", "v"), "QvprCuboid": ("S", "c", "d")}

# Channels of images that the layout does not tell, by the beginning of a name and the role.
UNLIKE_THEIR_LAYOUT = {("qvpiCompare", "dst"): 1, ("qvpiFilterGuidedColor", "guide"): 3}

# What None stands for where a function has such a parameter.
DEFAULTS = {"scaleFactor": 0, "roundMode": 1, "hint": 1}

WRITTEN, SAME_SIZE, IN_PLACE, OPTIONAL, ANY_FLOAT, UNUSED = 1, 2, 4, 8, 16, 32

FUNCTIONS = {name: (index, parameters) for index, (name, parameters) in enumerate(_call.names())}


def role_of(label):
    """pSrc1 -> src1, pxMap -> xMap, roiSize -> roiSize."""
    bare = re.sub(r"^p{1,2}(?=[A-Z]|[xyz]Map)", "", label)
    return bare[0].lower() + bare[1:]


def channels_of(layout, role):
    """Channels of an image with this role: C3C1 has three in sources and templates and one elsewhere; masks and maps have one."""
    if role in ("mask", "xMap", "yMap"):
        return 1
    counts = [int(count) for count in re.findall(r"[CP](\d)", layout)] or [1]
    return counts[0] if role.startswith(("src", "tpl")) else counts[-1]


class Plan:
    """Collects the operands and slots of one function."""

    def __init__(self, name, layout, roles, free, in_place):
        self.index, described = FUNCTIONS[name]
        self.name, self.layout, self.roles, self.free, self.in_place = name, layout, roles, free, in_place
        self.parameters = [row.split("|") for row in described.split(";")]
        self.operands, self.slots = {}, []
        for kind, label, length in self.parameters:
            self.slots.append(self.slot(kind, label, length))

    def slot(self, kind, label, length):
        """(code, role) of one parameter."""
        role = role_of(label)
        if kind.endswith(("*", "]")):
            self.pointer(kind, role, length)
            return "p", role
        if label.endswith("Step") and role not in self.roles:
            return self.step(label)
        if kind in _STRUCTURES and role not in self.roles:
            return _STRUCTURES[kind][2], self.image_for(role)
        return self.value(kind, role)

    def step(self, label):
        """A step of rows or planes; maps of volumes share theirs."""
        code = "t" if label.endswith("PlaneStep") else "s"
        image = label.removesuffix("Step").removesuffix("Plane")
        return code, "xMap" if image == "map" else image

    def has_step(self, role, step="Step"):
        shared = role.endswith("Map") and ["int", f"map{step}", ""] in self.parameters
        return shared or ["int", f"{role}{step}", ""] in self.parameters

    def pointer(self, kind, role, length):
        """An image has a step of its name, a volume also one of planes."""
        pointee = kind.removeprefix("const ").removesuffix("*").strip()
        is_const = kind.startswith("const ")
        if self.has_step(role) and pointee in _C_TYPES:
            self.image(role, _C_TYPES[pointee], is_const)
        elif is_const and (length or role == "borderValue" and self.layout) and pointee in _C_TYPES:
            count = int(length) if length else 3 if self.layout.startswith("AC") else channels_of(self.layout, "src")
            self.operands[role] = ("C", _C_TYPES[pointee], count, ANY_FLOAT)
        else:
            self.memory(role, pointee, is_const)

    def image(self, role, number, is_const):
        channels = channels_of(self.layout, role)
        for (prefix, other), count in UNLIKE_THEIR_LAYOUT.items():
            channels = count if self.name.startswith(prefix) and role == other else channels
        flags = 0 if is_const else WRITTEN | (IN_PLACE if self.in_place else 0)
        flags |= 0 if role in self.free else SAME_SIZE
        flags |= OPTIONAL if role in ("gx", "gy", "magnitude", "angle") else 0
        self.operands[role] = ("V" if self.has_step(role, "PlaneStep") else "I", number, channels, flags)

    def memory(self, role, pointee, is_const):
        """A buffer, a record (bytes), an array of numbers, or one of pointers."""
        rows = re.sub(r"\(\*\)\[\d+\]$", "", pointee)  # of matrices
        if "*" in rows:
            number = numpy.dtype(numpy.uintp).num
        else:
            number = _C_TYPES.get(rows, NUMBERS["8u"])
        self.operands[role] = ("M", number, 0, 0 if is_const else WRITTEN)

    def image_for(self, role):
        """The image whose size stands for a size that is not passed."""
        images = [name for name, operand in self.operands.items() if operand[0] in "IV"]
        named = re.sub("(Roi)?Size$|Roi$|Volume$|Cuboid$", "", role)
        if named in images:
            return named
        if role.startswith("src"):
            return images[0]
        return "dst" if "dst" in images else next((name for name in images if name not in self.free), images[0])

    def value(self, kind, role):
        if kind in _STRUCTURES:
            operand, code, _ = _STRUCTURES[kind]
            self.operands[role] = (operand, 0, 0, 0)
            return code, role
        number = _C_TYPES.get(kind, NUMBERS["32s"])  # enumerations are integers
        self.operands[role] = ("N", number, DEFAULTS.get(role, -1), ANY_FLOAT if role == "value" else 0)
        return "f" if number in (NUMBERS["32f"], NUMBERS["64f"]) else "i", role

    def call(self):
        missing = set(self.operands) - set(self.roles)
        if missing:
            raise LookupError(f"{self.name} needs {', '.join(sorted(missing))}")
        operands = [self.operands.get(role, ("N", 0, 0, UNUSED)) for role in self.roles]
        packed = b"".join(struct.pack("cbbb", kind.encode(), *numbers) for kind, *numbers in operands)
        slots = b"".join(struct.pack("cB", code.encode(), self.roles.index(role)) for code, role in self.slots)
        return _call.Call(self.index, tuple(self.roles), packed, slots)


def make_call(name, roles, layout="", free=(), in_place=False):
    """The call of an exported function whose operands have these roles."""
    return Plan(name, layout, roles.split(), free, in_place).call()
