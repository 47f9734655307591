"""Layers with alpha: composites after Porter and Duff, premultiplication, color keys.

Images with alpha have the shape (H, W, 4), alpha last. uint8, uint16, float32 (alpha from 0 to 1).
"""
from ._operation import Operation
from .arithmetic import choice, is_image
from .raw import lib

__all__ = ["blend", "color_key", "composite", "premultiply", "unpremultiply"]

OPERATORS = {"clear": lib.qvpCompositeClear, "first": lib.qvpCompositeFirst, "second": lib.qvpCompositeSecond,
             "over": lib.qvpCompositeFirstOver, "under": lib.qvpCompositeSecondOver, "in": lib.qvpCompositeFirstIn,
             "second in": lib.qvpCompositeSecondIn, "out": lib.qvpCompositeFirstOut,
             "second out": lib.qvpCompositeSecondOut, "atop": lib.qvpCompositeFirstAtop,
             "second atop": lib.qvpCompositeSecondAtop, "xor": lib.qvpCompositeXor}

_COMPOSITE = Operation("Composite", "src1 src2 dst op", by_rows=True, alpha=True)
_STRAIGHT = Operation("CompositeStraight", "src1 src2 dst op", by_rows=True, alpha=True)
_BLEND = Operation("CompositeC", "src1 src2 dst alpha1 alpha2 op", by_rows=True)
_PREMULTIPLY = Operation("Premultiply", "src dst", by_rows=True, alpha=True)
_UNPREMULTIPLY = Operation("Unpremultiply", "src dst", by_rows=True, alpha=True)
_KEY = Operation("ColorKey", "src1 src2 dst lowerBound upperBound", by_rows=True)
_KEY_C = Operation("ColorKeyC", "src dst value lowerBound upperBound", by_rows=True)


def composite(a, b, out=None, *, op="over", premultiplied=True, threads=None, copy=False):
    """The layer `a` with the layer `b`: op 'over' puts a over b. See OPERATORS for all twelve.

    premultiplied: colors are times their alpha, in operands and result.
    """
    operation = _COMPOSITE if premultiplied else _STRAIGHT
    return operation.apply((a, b), out, (choice(OPERATORS, op, "op"),), None, None, threads, copy)


def blend(a, b, alpha_a, alpha_b=None, out=None, *, op="over", threads=None, copy=False):
    """Two layers with one opacity each: 1 is the greatest value of integers, 1.0 of floats. Channels: 1 or 3."""
    if alpha_b is None:
        alpha_b = 1 if is_image(a) and a.dtype.kind == "f" else {1: 255, 2: 65535}.get(getattr(a, "itemsize", 1), 255)
    values = alpha_a, alpha_b, choice(OPERATORS, op, "op")
    return _BLEND.apply((a, b), out, values, None, None, threads, copy)


def premultiply(a, out=None, *, threads=None, copy=False):
    """Colors times their alpha."""
    return _PREMULTIPLY.apply((a,), out, (), None, None, threads, copy)


def unpremultiply(a, out=None, *, threads=None, copy=False):
    """Colors divided by their alpha."""
    return _UNPREMULTIPLY.apply((a,), out, (), None, None, threads, copy)


def color_key(a, b, low, high, out=None, *, threads=None, copy=False):
    """b where low <= a <= high in all channels, else a. b: an image like `a`, or a color. uint8, uint16 (1 or 3)."""
    if is_image(b):
        return _KEY.apply((a, b), out, (low, high), None, None, threads, copy)
    return _KEY_C.apply((a,), out, (b, low, high), None, None, threads, copy)
