"""Moves of pixels: copies, fills, channels, borders, mirrors. Values keep every bit.

uint8, uint16, int16, int32, float32, of 1, 3 or 4 channels unless a function says more.
"""
import numpy

from ._call import key
from ._operation import Operation, channels, image
from ._plan import FUNCTIONS, NAMES, make_call
from ._records import addresses, cached
from .arithmetic import choice
from .raw import lib

__all__ = ["copy_border", "copy_to", "fill", "flip", "gray_to_color", "merge", "rot90", "split", "swap_channels",
           "transpose"]

_COPY = Operation("Copy", "src dst", is_pixelwise=True)
_COPY_MASKED = Operation("Copy", "src dst mask", by_rows=True, masked=True)
_SET = Operation("Set", "dst value", is_pixelwise=True)
_SET_MASKED = Operation("Set", "dst value mask", by_rows=True, masked=True)
_SWAP = Operation("SwapChannels", "src dst dstOrder val", by_rows=True)
_DUPLICATE = Operation("Dup", "src dst")
_MIRROR = Operation("Mirror", "src dst roiSize flip", free=("src", "dst"), in_place=True)
_TRANSPOSE = Operation("Transpose", "src dst roiSize", free=("src", "dst"), in_place=True)
_QUARTERS = Operation("RotateQuarter", "src dst roiSize turns", free=("src", "dst"), in_place=True)
_BORDERS = {
    "constant": Operation("CopyConstBorder", "src dst topBorderHeight leftBorderWidth value", free=("src",)),
    "replicate": Operation("CopyReplicateBorder", "src dst topBorderHeight leftBorderWidth value", free=("src",)),
    "mirror": Operation("CopyMirrorBorder", "src dst topBorderHeight leftBorderWidth value", free=("src",)),
    "wrap": Operation("CopyWrapBorder", "src dst topBorderHeight leftBorderWidth value", free=("src",)),
}
_AXES = {0: lib.qvpAxisHorizontal, 1: lib.qvpAxisVertical, None: lib.qvpAxisBoth}


def copy_to(a, out=None, *, mask=None, threads=None, copy=False):
    """The pixels of `a` in `out`, or a new image; with mask=, of uint8 or bool and shape (H, W), where it is not 0."""
    if mask is None:
        return _COPY.apply((a,), out, (), None, None, threads, copy)
    if out is None:
        raise ValueError("a copy under a mask needs out=, whose other pixels stay")
    return _COPY_MASKED.apply((a,), out, (_bytes(mask),), None, None, threads, copy)


def _bytes(mask):
    image(mask, name="mask")
    return mask.view(numpy.uint8) if mask.dtype == bool else mask


def fill(out, value, *, mask=None):
    """Sets the pixels of `out` to a number, or to one for each channel; with mask= those where it is not zero."""
    image(out, name="out")
    operation = _SET if mask is None else _SET_MASKED
    found = operation.find(key(out))
    if found is None:
        raise TypeError(operation._complaint(out, None))
    found[0](out, value, *(() if mask is None else (_bytes(mask),)))
    return out


def swap_channels(a, order, out=None, *, value=None, threads=None, copy=False):
    """Channel i of the result is channel order[i] of `a`: (2, 1, 0) turns BGR into RGB.

    From 3 channels to 4, an entry of 3 stands for `value`: (2, 1, 0, 3) with value=255 turns BGR into opaque RGBA.
    """
    return _SWAP.apply((a,), out, (tuple(order), value), None, len(order), threads, copy)


def gray_to_color(a, out=None, *, count=3, copy=False):
    """The one channel of `a` three or four times: (H, W) to (H, W, count)."""
    return _DUPLICATE.apply((a,), out, (), None, count, None, copy)


@cached
def _planar(dtype, count, is_split):
    """The call between interleaved and planar pixels."""
    layout, roles = (f"C{count}P{count}", "src dst dstStep") if is_split else (f"P{count}C{count}", "src srcStep dst")
    name = f"qvpiCopy_{NAMES.get(dtype.num)}_{layout}R"
    if name not in FUNCTIONS:
        raise TypeError(f"there are no planes of {dtype} with {count} channels")
    return make_call(name, roles, f"C{count}")


def split(a, *, copy=False):
    """The 3 or 4 channels of an image as an array of shape (C, H, W)."""
    a = image(a, copy)
    planes = numpy.empty((channels(a), *a.shape[:2]), a.dtype)
    _planar(a.dtype, channels(a), True)(a, addresses(planes), planes.strides[1])
    return planes


def merge(planes, out=None):
    """An image of shape (H, W, C) from 3 or 4 images of one shape (H, W), or an array of shape (C, H, W)."""
    planes = numpy.ascontiguousarray(planes)
    if planes.ndim != 3 or planes.size == 0:
        raise ValueError("planes must be images of one shape (H, W)")
    count, height, width = planes.shape
    shape = height, width, count
    result = numpy.empty(shape, planes.dtype) if out is None else _of_shape(out, shape)
    _planar(planes.dtype, count, False)(addresses(planes), planes.strides[1], result)
    return result


def copy_border(a, top, bottom, left, right, out=None, *, border="constant", value=0, copy=False):
    """The image with rows and columns around it, as numpy.pad.

    border: 'constant' (value=, a number or one for each channel), 'replicate' (the nearest edge pixel), 'mirror'
    (reflection at the edge pixel, which is not repeated), 'wrap' (int32 and float32 of one channel).
    """
    a = image(a, copy)
    widths = [int(width) for width in (top, bottom, left, right)]
    if min(widths) < 0:
        raise ValueError("borders cannot be narrower than nothing")
    shape = (a.shape[0] + widths[0] + widths[1], a.shape[1] + widths[2] + widths[3], *a.shape[2:])
    result = numpy.empty(shape, a.dtype) if out is None else _of_shape(out, shape)
    operation = choice(_BORDERS, border, "border")
    return operation.apply((a,), result, (widths[0], widths[2], value if border == "constant" else None))


def _of_shape(out, shape):
    if not isinstance(out, numpy.ndarray) or out.shape != shape:
        raise ValueError(f"out must be an array of shape {shape}")
    return out


def flip(a, axis=None, out=None, *, copy=False):
    """Mirrored: axis 0 upside down, 1 left to right, None both, as numpy.flip. `out` may be `a`."""
    a = image(a, copy)
    size = a.shape[1], a.shape[0]
    result = numpy.empty(a.shape, a.dtype) if out is None else _of_shape(out, a.shape)
    return _MIRROR.apply((a,), result, (size, choice(_AXES, axis, "axis")))


def transpose(a, out=None, *, copy=False):
    """Rows and columns exchanged: (H, W, C) to (W, H, C). Also complex64 of one channel. `out` may be a square `a`."""
    a = image(a, copy)
    shape = a.shape[1], a.shape[0], *a.shape[2:]
    result = numpy.empty(shape, a.dtype) if out is None else _of_shape(out, shape)
    return _TRANSPOSE.apply((a,), result, ((a.shape[1], a.shape[0]),))


def rot90(a, k=1, out=None, *, copy=False):
    """Turned by k quarters counter-clockwise, as numpy.rot90."""
    a = image(a, copy)
    shape = (a.shape[1], a.shape[0], *a.shape[2:]) if k % 2 else a.shape
    result = numpy.empty(shape, a.dtype) if out is None else _of_shape(out, shape)
    views = [array.view(numpy.float32) if array.dtype == numpy.int32 else array for array in (a, result)]
    _QUARTERS.apply(views[:1], views[1], ((a.shape[1], a.shape[0]), k % 4))  # only bits move
    return result
