"""What tools/derive_cpp.py cannot tell from a prototype: names, and sizes of images that differ from each other's."""
import re

# The names that Python has, too. Others are those of C without Filter and Border, in snake case.
_NAMES = {
    "add": "Add AddC", "subtract": "Sub SubC", "multiply": "Mul MulC", "multiply_full_scale": "MulScale MulCScale",
    "divide": "Div DivC Div_Round", "square": "Sqr", "log": "Ln", "bitwise_and": "And AndC", "bitwise_or": "Or OrC",
    "bitwise_xor": "Xor XorC", "bitwise_not": "Not", "left_shift": "ShiftLeftC", "right_shift": "ShiftRightC",
    "scale": "ScaleC", "scale_range": "Scale", "lookup": "LookupTable", "otsu": "ComputeThreshold_Otsu",
    "compare": "Compare CompareC", "equal_within": "CompareEqualEps CompareEqualEpsC", "blend": "CompositeC",
    "color_key": "ColorKey ColorKeyC", "copy_to": "Copy", "fill": "Set", "gray_to_color": "Dup", "flip": "Mirror",
    "rot90": "RotateQuarter", "argmin": "MinIndx", "argmax": "MaxIndx", "dot": "DotProd", "minimum": "FilterMinBorder",
    "maximum": "FilterMaxBorder", "sobel_magnitude": "FilterSobel", "local_patterns": "FilterLBPBorder",
    "local_threshold_box": "ThresholdLocalBoxBorder", "local_threshold_gauss": "ThresholdLocalGaussBorder",
    "multiply_packed": "MulPack", "multiply_packed_conjugate": "MulPackConj", "magnitude": "MagnitudePack",
    "phase": "PhasePack", "unpack": "PackToCplxExtend", "pack": "CplxExtendToPack", "window": "SetWindow",
    "dct_blocks": "DCTBlocksFwd DCTBlocksQuantFwd", "idct_blocks": "DCTBlocksInv DCTBlocksQuantInv",
}
_CPP_NAMES = {operation: name for name, operations in _NAMES.items() for operation in operations.split()}

# Operations of two images that in C take the first from the second, or divide by it; in C++ as they are written.
FROM_SECOND = ("Sub", "Div", "Div_Round")

# Parameters in another order than in C.
ORDER = {name: ("a", "b") for name in FROM_SECOND} | {"Set": ("dst", "value"), "Ramp": ("dst",), "Jaehne": ("dst",)}

# Parameters with another name than in C.
PARAMETERS = {"m_val": "factor", "a_val": "offset", "v_min": "low", "v_max": "high", "val": "value", "flip": "axis",
              "cmp_op": "relation", "n_bits": "bits", "border_type": "border", "border_id": "border",
              "top_border_height": "top", "left_border_width": "left", "dst_order": "order", "round_mode": "rounding",
              "src_order": "order", "scale_factor": "scale", "eps": "tolerance", "lower_bound": "low",
              "upper_bound": "high"}

# Functions over video frames, whose planes differ in size, and over lists of rows.
LEFT_OUT = re.compile(r"qvpi(Resize42\d|Decimate420|DotProdCol|CopyManaged|BinToGray|GrayToBin)")

# Operations that take the fourth channel of AC4 images as what it is: their views are those of four channels.
WITH_ALPHA = {"Premultiply", "Unpremultiply", "Composite", "CompositeStraight", "ColorKeyComposite"}

# The function that tells the size of the buffer, where it has another name.
QUERIES = ("Match", "Convolve")

# The image that has the region's size, and the size of the destination, where they are not the destination's.
REQUIRED_SIZE = {
    "Transpose": ("src", "transposed(src.size())"),
    "RotateQuarter": ("src", "turned(src.size(), turns)"),
    "DCTBlocksFwd": ("src", "blocks(src.size())"), "DCTBlocksQuantFwd": ("src", "blocks(src.size())"),
    "DCTBlocksInv": ("dst", "blocks(dst.size())"), "DCTBlocksQuantInv": ("dst", "blocks(dst.size())"),
    "ConvolveFull": ("a", "full(a.size(), b.size())"), "ConvolveSame": ("a", "a.size()"),
    "ConvolveValid": ("a", "valid(a.size(), b.size())"),
    "MatchCorrelation": ("src", "matched(shape, src.size(), tpl.size())"),
    "MatchDistance": ("src", "matched(shape, src.size(), tpl.size())"),
}


# Functions with a record, whose type tells them apart.
CALLS = {"FilterBorder": "filter", "FilterSeparableBorder": "filter", "FilterGaussBorder": "filter",
         "FilterBilateralBorder": "filter"}


def snake(name):
    """borderValue -> border_value, SobelXX -> sobel_xx"""
    name = re.sub(r"([a-z\d])([A-Z])", r"\1_\2", name.replace("_", ""))
    return re.sub(r"([A-Z])([A-Z][a-z])", r"\1_\2", name).lower()


def cpp_name(operation):
    bare = re.sub(r"^Filter(?=[A-Z])|Border$", "", operation) if "Filter" in operation else operation
    return _CPP_NAMES.get(operation) or snake(bare)


def query_of(operation, exported):
    """The name of the function that tells how large the buffer of an operation must be."""
    start = next((name for name in QUERIES if operation.startswith(name)), operation)
    for name in (f"qvpi{start}GetBufferSize", f"qvpi{start}GetBufferSize_32f", "qvpiFilterFixedBorderGetBufferSize"):
        if name in exported:
            return name
