"""Conversions, thresholds, comparisons and look-ups: each pixel from the pixel at its place.

Shapes, `out`, `threads` and `copy` are as in qvpi.arithmetic.
"""
import numpy

from ._call import key
from ._operation import Operation, channels, forgiving, image
from ._plan import NUMBERS, make_call
from ._records import addresses
from .arithmetic import ROUNDING, choice, is_image
from .raw import lib

__all__ = ["Curve", "clip", "compare", "convert", "count_in_range", "curve", "equal_within", "lookup", "otsu",
           "palette", "scale", "scale_range", "threshold", "where"]

RELATIONS = {"<": lib.qvpCmpLess, "<=": lib.qvpCmpLessEq, "==": lib.qvpCmpEq, ">=": lib.qvpCmpGreaterEq,
             ">": lib.qvpCmpGreater}
_CURVES = {"step": lib.qvpLookupStep, "linear": lib.qvpLookupLinear, "cubic": lib.qvpLookupCubic}
DATA_TYPES = {numpy.dtype(name).num: number for name, number in
              {"u1": lib.qvp8u, "u2": lib.qvp16u, "i2": lib.qvp16s, "f4": lib.qvp32f, "f8": lib.qvp64f}.items()}

_CONVERT = Operation("Convert", "src dst roundMode scaleFactor", is_pixelwise=True)
_SCALE = Operation("ScaleC", "src dst mVal aVal hint", is_pixelwise=True)
_SCALE_RANGE = Operation("Scale", "src dst vMin vMax", is_pixelwise=True)
_THRESHOLD = Operation("Threshold", "src dst threshold cmpOp", is_pixelwise=True)
_ABOVE = Operation("Threshold_GTVal", "src dst threshold value", is_pixelwise=True)
_BELOW = Operation("Threshold_LTVal", "src dst threshold value", is_pixelwise=True)
_CLIP = Operation("Threshold_LTValGTVal", "src dst thresholdLT valueLT thresholdGT valueGT", is_pixelwise=True)
_COMPARE = Operation("Compare", "src1 src2 dst cmpOp", by_rows=True)
_COMPARE_C = Operation("CompareC", "src dst value cmpOp", by_rows=True)
_EQUAL = Operation("CompareEqualEps", "src1 src2 dst eps", by_rows=True)
_EQUAL_C = Operation("CompareEqualEpsC", "src dst value eps", by_rows=True)
_COUNT = Operation("CountInRange", "src counts lowerBound upperBound")
_OTSU = Operation("ComputeThreshold_Otsu", "src threshold")
_TABLE = Operation("LookupTable", "src dst table", by_rows=True)
_CURVE = Operation("Lookup", "src dst spec", by_rows=True)
_PALETTE = Operation("Palette", "src dst palette nBits", by_rows=True)
_COPY_MASKED = Operation("Copy", "src dst mask", by_rows=True, masked=True)


def data_type(dtype):
    """The library's selector of a dtype."""
    try:
        return DATA_TYPES[numpy.dtype(dtype).num]
    except (KeyError, TypeError):
        raise TypeError(f"no images of dtype {dtype} here; there are uint8, uint16, int16, float32, float64") from None


def _number(dtype):
    number = numpy.dtype(dtype).num
    if number not in NUMBERS.values():
        raise TypeError(f"there are no images of dtype {numpy.dtype(dtype)}")
    return number


def convert(a, dtype, out=None, *, scale=0, rounding=None, threads=None, copy=False):
    """The same values as another dtype, times 2**-scale where that is supported; integers saturate.

    rounding, from floats or with a scale: 'near' (ties to even), 'zero', 'financial' (ties away from zero). Pairs of
    dtypes that the library does not convert raise TypeError with those that it does.
    """
    values = choice(ROUNDING, rounding, "rounding"), scale
    return _CONVERT.apply((a,), out, values, _number(dtype), None, threads, copy)


def scale(a, factor, offset=0.0, out=None, *, dtype=None, accurate=True, threads=None, copy=False):
    """a * factor + offset, rounded to the nearest and saturated, as `dtype`, or that of `a`. All dtypes but uint32.

    accurate=False computes in single precision, faster.
    """
    number = _number(a.dtype if dtype is None and isinstance(a, numpy.ndarray) else dtype)
    values = float(factor), float(offset), 2 if accurate else 1
    return _SCALE.apply((a,), out, values, number, None, threads, copy)


def scale_range(a, dtype, out=None, *, low=None, high=None, threads=None, copy=False):
    """The whole range of one integer dtype mapped to that of another: uint8 with uint16, int16, int32, both ways.

    Between uint8 and float32, the range of the floats is low to high.
    """
    return _SCALE_RANGE.apply((a,), out, (low, high), _number(dtype), None, threads, copy)


def threshold(a, value, out=None, *, mode=">", replace=None, threads=None, copy=False):
    """Pixels above (mode '>') or below ('<') `value` become `replace`, or `value` itself; the others stay.

    value, replace: a number, or one for each channel. uint8, uint16, int16, float32. compare makes images of 0 and 255.
    """
    relation = choice({">": lib.qvpCmpGreater, "<": lib.qvpCmpLess}, mode, "mode")
    if replace is None:
        return _THRESHOLD.apply((a,), out, (value, relation), None, None, threads, copy)
    operation = _ABOVE if mode == ">" else _BELOW
    return operation.apply((a,), out, (value, replace), None, None, threads, copy)


def clip(a, low, high, out=None, *, threads=None, copy=False):
    """min(max(a, low), high), with low <= high. uint8, uint16, int16, float32."""
    return _CLIP.apply((a,), out, (low, low, high, high), None, None, threads, copy)


def compare(a, relation, b, out=None, *, threads=None, copy=False):
    """255 where `a relation b` holds for all channels, else 0, as uint8 of shape (H, W). relation: < <= == >= >.

    b: an image like `a`, a number, or one for each channel. uint8, uint16, int16, float32.
    """
    values = (choice(RELATIONS, relation, "relation"),)
    if is_image(b):
        return _COMPARE.apply((a, b), _mask_for(a, out), values, None, None, threads, copy)
    return _COMPARE_C.apply((a,), _mask_for(a, out), (b, *values), None, None, threads, copy)


def equal_within(a, b, tolerance, out=None, *, threads=None, copy=False):
    """255 where |a - b| <= tolerance holds for all channels, else 0, as uint8 of shape (H, W). float32."""
    if is_image(b):
        return _EQUAL.apply((a, b), _mask_for(a, out), (tolerance,), None, None, threads, copy)
    return _EQUAL_C.apply((a,), _mask_for(a, out), (b, tolerance), None, None, threads, copy)


def _mask_for(a, out):
    return numpy.empty(a.shape[:2], numpy.uint8) if out is None and is_image(a) else out


def where(mask, a, b, out=None, *, threads=None, copy=False):
    """a where mask is not zero, else b. mask: uint8 or bool of shape (H, W); a, b of one shape and dtype."""
    mask = mask.view(numpy.uint8) if isinstance(mask, numpy.ndarray) and mask.dtype == bool else mask
    image(mask, name="mask"), image(a, name="a")
    result = numpy.array(image(b, name="b"), order="C")
    _COPY_MASKED.apply((a,), result, (mask,), None, None, threads, copy)
    if out is None:
        return result
    image(out, name="out")
    if out.shape != result.shape or out.dtype != result.dtype:
        raise ValueError(f"out is {out.dtype} of shape {out.shape}, expected {result.dtype} of {result.shape}")
    out[...] = result
    return out


def _found(operation, a, copy=False):
    """(array, call) of an operation without a destination image."""
    a = image(a, copy)
    found = operation.find(key(a))
    if found is None:
        raise TypeError(operation._complaint(a, None))
    return a, found[0]


def count_in_range(a, low, high, *, copy=False):
    """How many pixels have low <= value <= high, both inclusive: an int, or one for each of 3 channels.

    uint8, float32.
    """
    a, call = _found(_COUNT, a, copy)
    counts = numpy.zeros(channels(a), numpy.int32)
    forgiving(call, (a,), (), (counts, low, high))
    return int(counts[0]) if counts.size == 1 else counts


def otsu(a, *, copy=False):
    """Otsu's threshold, which best separates dark from bright pixels, for compare(a, '>', t). uint8, (H, W)."""
    a, call = _found(_OTSU, a, copy)
    result = numpy.zeros(1, numpy.uint8)
    forgiving(call, (a,), (), (result,))
    return int(result[0])


def lookup(a, table, out=None, *, threads=None, copy=False):
    """table[a]: a table of 256 uint8 or 65536 uint16 entries, of the image's dtype, or a row for each channel."""
    a = image(a, copy)
    table = numpy.ascontiguousarray(table)
    entries = 256 if a.dtype == numpy.uint8 else 65536
    if table.dtype != a.dtype or table.shape not in ((entries,), (channels(a), entries)):
        raise ValueError(f"the table must be {a.dtype} of shape ({entries},) or (channels, {entries})")
    if channels(a) > 1:
        rows = numpy.broadcast_to(table, (channels(a), entries))
        table = addresses(rows)
    return _TABLE.apply((a,), out, (table,), None, None, threads)


def palette(a, entries, out=None, *, threads=None, copy=False):
    """entries[a mod n] of n = 2**k entries, shape (n,), or (n, 3) or (n, 4) for colours. a: uint8 or uint16, (H, W)."""
    entries = numpy.ascontiguousarray(entries)
    bits = len(entries).bit_length() - 1 if entries.ndim in (1, 2) else 0
    if bits < 1 or len(entries) != 1 << bits:
        raise ValueError("a palette has 2, 4, 8 ... entries, of one number or of 3 or 4 channels each")
    count = 1 if entries.ndim == 1 else entries.shape[1]
    return _PALETTE.apply((a,), out, (entries, bits), _number(entries.dtype), count, threads, copy)


class Curve:
    """A curve through points (level, value), the same for all channels: c = Curve(uint8, levels, values); c(image).

    method: 'step', 'linear', or 'cubic', which is smooth and does not overshoot. levels rise strictly; below the first
    and above the last the curve is constant. uint8, uint16, int16, float32 of 1, 3 or 4 channels.
    """

    def __init__(self, dtype, levels, values, method="linear"):
        kind, way = data_type(dtype), choice(_CURVES, method, "method")
        points = [numpy.ascontiguousarray(array, numpy.float32) for array in (levels, values)]
        if points[0].ndim != 1 or points[0].shape != points[1].shape:
            raise ValueError("levels and values must be sequences of one length")
        count, size = numpy.array([points[0].size], numpy.int32), numpy.zeros(1, numpy.int32)
        _LOOKUP_SIZE(kind, way, count, 1, size)
        self._spec = numpy.zeros(int(size[0]), numpy.uint8)
        _LOOKUP_INIT(kind, way, *(addresses([array]) for array in points), count, 1, self._spec)

    def __call__(self, a, out=None, *, threads=None, copy=False):
        return _CURVE.apply((a,), out, (self._spec,), None, None, threads, copy)


_LOOKUP_SIZE = make_call("qvpiLookupGetSize", "dataType method nLevels numChannels specSize")
_LOOKUP_INIT = make_call("qvpiLookupInit", "dataType method levels values nLevels numChannels spec")


def curve(a, levels, values, out=None, *, method="linear", threads=None, copy=False):
    """The image through a curve; see Curve."""
    return Curve(image(a).dtype, levels, values, method)(a, out, threads=threads, copy=copy)
