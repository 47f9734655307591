"""Filters: each pixel from its neighbourhood.

Images have the shape (H, W), or (H, W, C) with 3 or 4 channels; results have the same shape. What lies outside of the
image is told by `border`: 'replicate' (the nearest edge pixel), 'mirror' (reflection at the edge pixel, which is not
repeated), 'constant' (`value`, a number or one for each channel). Integers are rounded to the nearest, ties to even, and
saturated.

    f = qvpi.Gauss(image.shape, image.dtype, sigma=2)      the record is made once
    f(image)                                               the whole image
    f(image, tile=(row, column, height, width))            a part of the result, from all of the image
    qvpi.gauss(image, sigma=2)                             makes such an object behind the scenes, and keeps it

`out` may be the image itself, which is then copied first. `threads` splits the rows, with the same result to the bit.
"""
import math

import numpy

from . import _threads
from ._call import empty, key
from ._operation import Operation, channels, checked_shape, checked_tile, image
from ._plan import make_call
from ._records import Buffers, cached, memory, size_of
from .arithmetic import ROUNDING, choice
from .raw import lib
from .values import data_type

__all__ = ["Binomial", "Box", "Dilate", "Erode", "Filter2D", "Gauss", "Gradient", "HighPass", "Laplace", "Maximum",
           "Minimum", "Prewitt", "Roberts", "Scharr", "Separable", "Sharpen", "Sobel", "SobelMagnitude", "SumColumn",
           "SumRow", "binomial", "box", "dilate", "erode", "filter2d", "gauss", "gradient", "high_pass", "laplace",
           "maximum", "minimum", "prewitt", "roberts", "scharr", "separable", "sharpen", "sobel", "sobel_magnitude",
           "sum_column", "sum_row"]

BORDERS = {"replicate": lib.qvpBorderReplicate, "mirror": lib.qvpBorderMirror, "constant": lib.qvpBorderConst}
NORMS = {"l1": lib.qvpNormL1, "l2": lib.qvpNormL2, "inf": lib.qvpNormInf}
_TOP, _BOTTOM = lib.qvpBorderInMemTop, lib.qvpBorderInMemBottom
_LEFT, _RIGHT = lib.qvpBorderInMemLeft, lib.qvpBorderInMemRight


def _pair(size, name="size"):
    """(rows, columns) of a number or a pair."""
    pair = (size, size) if isinstance(size, int) else size
    if not isinstance(pair, (tuple, list)) or len(pair) != 2 or not all(isinstance(number, int) for number in pair):
        raise TypeError(f"{name} must be an integer, or a pair (rows, columns)")
    return tuple(pair)


class Filter:
    """What all filters share: tiles, strips, borders, work buffers.

    Subclasses tell the operation, the mask as (rows, columns), the operands of a call that are not images, and the size
    of the buffer. A filter serves images of its dtype and channels that are no larger than its shape.
    """

    operation = None
    values = ()  # operands between the destination and the border
    record = ()  # (spec,) of filters that have one

    def __init__(self, shape, dtype, mask):
        shape = checked_shape(shape)
        self.dtype, self.mask = numpy.dtype(dtype), mask
        self.shape, self.channels = tuple(shape[:2]), shape[2] if len(shape) == 3 else 1
        self.kind, self.roi = data_type(dtype), (shape[1], shape[0])

    def prepare(self, buffer_size):
        """Sets what calls need, once the record stands."""
        self._key = self.dtype.num * 100 + self.channels
        self._buffers = Buffers(buffer_size)
        self._found = self.operation.find(self._key)
        if self._found is None:
            raise TypeError(self.operation._complaint(numpy.empty((1, 1, self.channels), self.dtype), None))

    def __call__(self, a, out=None, *, border="replicate", value=0, tile=None, threads=None, copy=False):
        if copy or key(a) != self._key or not _goes_down(a):
            a = self._checked(a, copy)
        if a.shape[0] > self.shape[0] or a.shape[1] > self.shape[1]:
            raise ValueError(f"the image is larger than the filter's shape {self.shape}")
        kind = choice(BORDERS, border, "border")
        value = value if border == "constant" else None
        if tile is not None:
            return self._tile(a, out, kind, value, tile)
        return self._whole(a, out, kind, value, threads)

    def _checked(self, a, copy):
        a = image(a, copy)
        if key(a) != self._key:
            raise TypeError(f"the filter is for {self.dtype} with {self.channels} channels, "
                            f"not {a.dtype} with {channels(a)}")
        return a if _goes_down(a) else numpy.ascontiguousarray(a)

    def _whole(self, a, out, kind, value, threads):
        call, number, count = self._found
        if out is None:
            out = empty(a, number, count)
        else:
            image(out, name="out")
            if not _goes_down(out):
                return self._copied(a, out, kind, value, threads)
            if numpy.may_share_memory(out, a) and out.ctypes.data == a.ctypes.data and out.shape == a.shape:
                a = a.copy()
        height = a.shape[0]
        parts = [(0, height)]
        if out.shape[:1] == a.shape[:1]:
            parts = _threads.strips(height, _threads.count(threads), max(16, 2 * self.mask[0]))

        def strip(first, end):
            flags = kind | (_TOP if first else 0) | (_BOTTOM if end < height else 0)
            self._run(call, a[first:end], out[first:end], flags, value)

        if len(parts) == 1:
            self._run(call, a, out, kind, value)
        else:
            _threads.run(strip, parts)
        return out

    def _copied(self, a, out, kind, value, threads):
        """The result by way of a new array."""
        result = self._whole(a, None, kind, value, threads)
        return _assigned(out, result)

    def _tile(self, a, out, kind, value, tile):
        """A part of the result. At the image's edges parts are as large as the mask at least, and then cut."""
        row, column, height, width = checked_tile(tile, a.shape)
        top, bottom = _enlarged(row, row + height, a.shape[0], self.mask[0])
        left, right = _enlarged(column, column + width, a.shape[1], self.mask[1])
        call, number, count = self._found
        part = a[top:bottom, left:right]
        result = empty(part, number, count)
        kind |= (_TOP if top else 0) | (_BOTTOM if bottom < a.shape[0] else 0)
        kind |= (_LEFT if left else 0) | (_RIGHT if right < a.shape[1] else 0)
        self._run(call, part, result, kind, value)
        result = result[row - top:row - top + height, column - left:column - left + width]
        if out is None:
            return numpy.ascontiguousarray(result)
        return _assigned(image(out, name="out"), result)

    def _run(self, call, a, out, border, value):
        buffer = self._buffers.take()
        call(a, out, *self.values, border, value, *self.record, buffer)
        self._buffers.give(buffer)


def _assigned(out, result):
    if out.shape != result.shape or out.dtype != result.dtype or not out.flags.writeable:
        raise ValueError(f"out must be writeable, {result.dtype} of shape {result.shape}")
    out[...] = result
    return out


def _goes_down(a):
    """Whether rows follow each other in memory, as filters want it. A copy of a strip would not do: they look around it."""
    return a.strides[0] >= a.strides[1] * a.shape[1] or a.shape[0] == 1


def _enlarged(first, end, length, mask):
    """Rows first to end, with more of them where the mask would reach over an edge of the image from within.

    What begins or ends at an edge is two masks long at least, as reflection takes pixels from there.
    """
    least = 2 * mask
    if end > length - least:
        first, end = min(first, length - least), length
    if first < least:
        first, end = 0, max(end, least)
    return first, length if end > length - least else end


# ---- rectangles

_ROLES = "borderType borderValue buffer"
_QUERY = "maskSize roiSize dataType numChannels bufferSize"


def _operation(name, values="", roles=_ROLES):
    return Operation(f"Filter{name}Border", f"src dst {values} {roles}")


class _Rectangle(Filter):
    def __init__(self, shape, dtype, size=3, anchor=None):
        mask = _pair(size)
        super().__init__(shape, dtype, mask)
        row, column = (mask[0] // 2, mask[1] // 2) if anchor is None else _pair(anchor, "anchor")
        self.values = (mask[1], mask[0]), (column, row)
        self.prepare(size_of(self.query, self.values[0], self.roi, self.kind, self.channels))


class Box(_Rectangle):
    """The mean under a rectangle of `size`, (rows, columns), whose pixel `anchor` lies on the result: the middle at first.

    Sums of integers are exact. uint8, uint16, int16, float32.
    """

    operation = _operation("Box", "maskSize anchor")
    query = make_call("qvpiFilterBoxBorderGetBufferSize", _QUERY)


class Minimum(_Rectangle):
    """The least value under a rectangle. uint8, uint16, int16, float32, of which NaN is not taken."""

    operation = _operation("Min", "maskSize anchor")
    query = make_call("qvpiFilterMinBorderGetBufferSize", _QUERY)


class Maximum(_Rectangle):
    """The greatest value under a rectangle. uint8, uint16, int16, float32, of which NaN is not taken."""

    operation = _operation("Max", "maskSize anchor")
    query = make_call("qvpiFilterMaxBorderGetBufferSize", _QUERY)


class _Sum(Filter):
    def __init__(self, shape, dtype, size=3, anchor=None):
        if not isinstance(size, int):
            raise TypeError("size must be an integer")
        super().__init__(shape, dtype, (1, size) if isinstance(self, SumRow) else (size, 1))
        self.values = size, size // 2 if anchor is None else anchor
        self.prepare(size_of(self.query, size, self.roi, self.kind, self.channels))


class SumRow(_Sum):
    """The sum of `size` pixels of a row, as float32. uint8, uint16, int16, float32."""

    operation = _operation("SumRow", "maskSize anchor")
    query = make_call("qvpiFilterSumRowBorderGetBufferSize", _QUERY)


class SumColumn(_Sum):
    """The sum of `size` pixels of a column, as float32. uint8, uint16, int16, float32."""

    operation = _operation("SumColumn", "maskSize anchor")
    query = make_call("qvpiFilterSumColumnBorderGetBufferSize", _QUERY)


# ---- fixed kernels

class _Fixed(Filter):
    query = make_call("qvpiFilterFixedBorderGetBufferSize", _QUERY)

    def __init__(self, shape, dtype, size=3):
        super().__init__(shape, dtype, _pair(size))
        self.values = ((self.mask[1], self.mask[0]),)
        self.prepare(size_of(self.query, self.values[0], self.roi, self.kind, self.channels))


class Binomial(_Fixed):
    """Smoothing by a binomial kernel of size 3 or 5. uint8, uint16, int16, float32."""

    operation = _operation("Binomial", "maskSize")


class Sharpen(_Fixed):
    """Sharpening by a 3x3 kernel. uint8, uint16, int16, float32."""

    operation = _operation("Sharpen", "maskSize")


class Laplace(_Fixed):
    """The Laplacian, size 3 or 5: uint8 to int16, others to float32. 1 or 3 channels."""

    operation = _operation("Laplace", "maskSize")


class HighPass(_Fixed):
    """The pixel less the mean around it, size 3 or 5: uint8 to int16, others to float32. 1 or 3 channels."""

    operation = _operation("HighPass", "maskSize")


def _directions(name, directions):
    return {direction: _operation(name + direction.title() if name == "Roberts" else name + direction.upper(), "maskSize")
            for direction in directions}


class _Directed(_Fixed):
    def __init__(self, shape, dtype, direction, size=3):
        self.operation = choice(self.operations, direction, "direction")
        super().__init__(shape, dtype, size)


class Sobel(_Directed):
    """Sobel's derivatives 'x', 'y', 'xx', 'yy', 'xy', size 3 or 5: uint8 to int16, others to float32. 1 or 3 channels."""

    operations = _directions("Sobel", ("x", "y", "xx", "yy", "xy"))


class Scharr(_Directed):
    """Scharr's derivatives 'x', 'y', 3x3: uint8 to int16, others to float32. 1 or 3 channels."""

    operations = _directions("Scharr", ("x", "y"))


class Prewitt(_Directed):
    """Prewitt's derivatives 'x', 'y', 3x3: uint8 to int16, others to float32. 1 or 3 channels."""

    operations = _directions("Prewitt", ("x", "y"))


class Roberts(_Directed):
    """Roberts' differences along the diagonals, 'down' and 'up': uint8 to int16, others to float32. (H, W)."""

    operations = _directions("Roberts", ("down", "up"))


class SobelMagnitude(Filter):
    """The magnitude of Sobel's gradient as one picture, norm 'l1', 'l2' or 'inf', size 3 or 5. (H, W); no mirror."""

    operation = Operation("FilterSobel", f"src dst maskSize normType {_ROLES}")

    def __init__(self, shape, dtype, size=3, norm="l2"):
        super().__init__(shape, dtype, _pair(size))
        self.values = (self.mask[1], self.mask[0]), choice(NORMS, norm, "norm")
        self.prepare(size_of(_Fixed.query, self.values[0], self.roi, self.kind, self.channels))


# ---- kernels of the caller

class _Recorded(Filter):
    record_role = "borderType borderValue spec buffer"


class Gauss(_Recorded):
    """Gauss smoothing; size: odd, as many as hold 3 sigma at first. uint8, uint16, int16, float32."""

    operation = _operation("Gauss", "", _Recorded.record_role)

    def __init__(self, shape, dtype, sigma=1.0, size=None):
        rows, columns = numpy.broadcast_to(numpy.asarray(sigma, float), (2,)).tolist()
        if not all(0 < s < 1e6 for s in (rows, columns)):
            raise ValueError("sigma must be above 0, a number or (along columns, along rows)")
        mask = [2 * math.ceil(3 * s) + 1 for s in (rows, columns)] if size is None else _pair(size)
        super().__init__(shape, dtype, tuple(mask))
        size = mask[1], mask[0]
        spec, buffer = size_of(_GAUSS_SIZE, size, self.roi, self.kind, self.channels, count=2)
        self.record = (memory(spec),)
        _GAUSS_INIT(size, columns, rows, self.kind, self.channels, *self.record)
        self.prepare(buffer)


class Filter2D(_Recorded):
    """Convolution with any kernel, which convolution turns; correlate=True turns it once more, for a correlation.

    kernel: 2-D; of integers with a `divisor`, or of floats. rounding: 'near', 'zero', 'financial'. uint8, uint16, int16,
    float32, and float64 of one channel.
    """

    operation = _operation("", "", _Recorded.record_role)

    def __init__(self, shape, dtype, kernel, divisor=None, rounding="near", correlate=False):
        kernel = _kernel(kernel, dtype, divisor, 2)
        super().__init__(shape, dtype, kernel.shape)
        if correlate:
            kernel = numpy.ascontiguousarray(kernel[::-1, ::-1])
        size, values = (kernel.shape[1], kernel.shape[0]), () if divisor is None else (divisor,)
        taps = lib.qvp16s if divisor is not None else data_type(kernel.dtype)
        spec, buffer = size_of(_FILTER_SIZE, size, self.roi, self.kind, taps, self.channels, count=2)
        self.record = (memory(spec),)
        init = _FILTER_INIT["16s" if divisor is not None else "64f" if kernel.dtype == "f8" else "32f"]
        init(kernel, size, *values, self.kind, self.channels, choice(ROUNDING, rounding, "rounding"), *self.record)
        self.prepare(buffer)


class Separable(_Recorded):
    """Convolution with the product of a kernel along rows and one along columns, which are turned.

    Integers with a `divisor`, or floats. uint8, uint16, int16, float32.
    """

    operation = _operation("Separable", "", _Recorded.record_role)

    def __init__(self, shape, dtype, row, column, divisor=None, rounding="near"):
        row, column = (_kernel(kernel, "float32", divisor, 1) for kernel in (row, column))
        super().__init__(shape, dtype, (column.size, row.size))
        size, values = (row.size, column.size), () if divisor is None else (divisor,)
        taps = lib.qvp16s if divisor is not None else lib.qvp32f
        spec, buffer = size_of(_SEPARABLE_SIZE, size, self.roi, self.kind, self.kind, taps, self.channels, count=2)
        self.record = (memory(spec),)
        init = _SEPARABLE_INIT["16s" if divisor is not None else "32f"]
        init(row, column, size, *values, self.kind, self.kind, self.channels, choice(ROUNDING, rounding, "rounding"), *self.record)
        self.prepare(buffer)


def _kernel(kernel, dtype, divisor, rank):
    """The kernel in the dtype that the library takes for such images."""
    kernel = numpy.asarray(kernel)
    if kernel.ndim != rank or kernel.size == 0 or kernel.dtype.kind not in "uif":
        raise ValueError(f"a kernel must be an array of numbers of rank {rank}")
    if divisor is None:
        return numpy.ascontiguousarray(kernel, numpy.float64 if numpy.dtype(dtype) == "f8" else numpy.float32)
    if (kernel != kernel.astype(numpy.int16)).any():
        raise ValueError("a kernel with a divisor must have integers of 16 bits")
    return numpy.ascontiguousarray(kernel, numpy.int16)


class _Morphology(_Recorded):
    def __init__(self, shape, dtype, mask, anchor=None):
        mask = numpy.ascontiguousarray(numpy.asarray(mask) != 0, numpy.uint8)
        if mask.ndim != 2 or mask.size == 0:
            raise ValueError("the mask must be an array of rank 2")
        super().__init__(shape, dtype, mask.shape)
        row, column = (mask.shape[0] // 2, mask.shape[1] // 2) if anchor is None else _pair(anchor, "anchor")
        size = mask.shape[1], mask.shape[0]
        spec, buffer = size_of(_MORPHOLOGY_SIZE, size, self.roi, self.kind, self.channels, count=2)
        self.record = (memory(spec),)
        _MORPHOLOGY_INIT(mask, size, (column, row), *self.record)
        self.prepare(buffer)


class Erode(_Morphology):
    """The least value of the pixels that a mask selects. uint8, uint16, int16, float32."""

    operation = _operation("Erode", "", _Recorded.record_role)


class Dilate(_Morphology):
    """The greatest value of the pixels that a mask selects, which is not turned. uint8, uint16, int16, float32."""

    operation = _operation("Dilate", "", _Recorded.record_role)


_GAUSS_SIZE = make_call("qvpiFilterGaussBorderGetSize", "maskSize roiSize dataType numChannels specSize bufferSize")
_GAUSS_INIT = make_call("qvpiFilterGaussBorderInit", "maskSize sigmaX sigmaY dataType numChannels spec")
_FILTER_SIZE = make_call("qvpiFilterBorderGetSize",
                         "kernelSize dstRoiSize dataType kernelType numChannels specSize bufferSize")
_FILTER_INIT = {taps: make_call(f"qvpiFilterBorderInit_{taps}",
                                f"kernel kernelSize {divisor} dataType numChannels roundMode spec")
                for taps, divisor in {"16s": "divisor", "32f": "", "64f": ""}.items()}
_SEPARABLE_SIZE = make_call("qvpiFilterSeparableBorderGetSize",
                            "kernelSize roiSize srcType dstType kernelType numChannels specSize bufferSize")
_SEPARABLE_INIT = {taps: make_call(
    f"qvpiFilterSeparableBorderInit_{taps}",
    f"rowKernel columnKernel kernelSize {divisor} srcType dstType numChannels roundMode spec")
    for taps, divisor in {"16s": "divisor", "32f": ""}.items()}
_MORPHOLOGY_SIZE = make_call("qvpiFilterMorphologyBorderGetSize", _QUERY.replace("bufferSize", "specSize bufferSize"))
_MORPHOLOGY_INIT = make_call("qvpiFilterMorphologyBorderInit", "mask maskSize anchor spec")


# ---- gradients

class Gradient(Filter):
    """Derivatives, magnitude and angle in one pass: g = Gradient(shape, dtype); x, y, magnitude, angle = g(image).

    kernel 'sobel' (size 3 or 5) or 'scharr'; norm 'l1', 'l2' or 'inf'. Angles are radians from -pi to pi, clockwise on
    the screen. uint8 has int16 derivatives, others float32; of 3 channels the one with the largest gradient decides.
    """

    operations = {kernel: Operation(f"FilterGradient{kernel.title()}Border",
                                    f"src gx gy magnitude angle maskSize normType {_ROLES}")
                  for kernel in ("sobel", "scharr")}

    def __init__(self, shape, dtype, kernel="sobel", size=3, norm="l2"):
        super().__init__(shape, dtype, _pair(size))
        self.operation = choice(self.operations, kernel, "kernel")
        self.values = (self.mask[1], self.mask[0]), choice(NORMS, norm, "norm")
        self.prepare(size_of(_Fixed.query, self.values[0], self.roi, self.kind, self.channels))

    def __call__(self, a, *, border="replicate", value=0, threads=None, copy=False):
        a = self._checked(a, copy)
        kind, value = choice(BORDERS, border, "border"), value if border == "constant" else None
        call, number, _ = self._found
        outs = [empty(a, number if i < 2 else numpy.dtype("f4").num, 1) for i in range(4)]
        height = a.shape[0]

        def strip(first, end):
            flags = kind | (_TOP if first else 0) | (_BOTTOM if end < height else 0)
            buffer = self._buffers.take()
            call(a[first:end], *(out[first:end] for out in outs), *self.values, flags, value, buffer)
            self._buffers.give(buffer)

        _threads.run(strip, _threads.strips(height, _threads.count(threads)))
        return tuple(outs)


# ---- plain functions

@cached
def _made(kind, shape, dtype, *parameters):
    return kind(shape, dtype, *parameters)


def _apply(kind, a, parameters, out, options):
    if type(a) is not numpy.ndarray:
        a = image(a)
    return _made(kind, a.shape, a.dtype, *parameters)(a, out, **options)


def _once(kind, a, parameters, out, options):
    """For filters whose parameters are arrays."""
    a = image(a)
    return kind(a.shape, a.dtype, *parameters)(a, out, **options)


def box(a, size=3, out=None, *, anchor=None, **options):
    """See Box; options are border, value, threads, copy, as of every filter."""
    return _apply(Box, a, (size, anchor), out, options)


def minimum(a, size=3, out=None, *, anchor=None, **options):
    """See Minimum."""
    return _apply(Minimum, a, (size, anchor), out, options)


def maximum(a, size=3, out=None, *, anchor=None, **options):
    """See Maximum."""
    return _apply(Maximum, a, (size, anchor), out, options)


def sum_row(a, size=3, out=None, *, anchor=None, **options):
    """See SumRow."""
    return _apply(SumRow, a, (size, anchor), out, options)


def sum_column(a, size=3, out=None, *, anchor=None, **options):
    """See SumColumn."""
    return _apply(SumColumn, a, (size, anchor), out, options)


def binomial(a, size=3, out=None, **options):
    """See Binomial."""
    return _apply(Binomial, a, (size,), out, options)


def sharpen(a, size=3, out=None, **options):
    """See Sharpen."""
    return _apply(Sharpen, a, (size,), out, options)


def laplace(a, size=3, out=None, **options):
    """See Laplace."""
    return _apply(Laplace, a, (size,), out, options)


def high_pass(a, size=3, out=None, **options):
    """See HighPass."""
    return _apply(HighPass, a, (size,), out, options)


def sobel(a, direction, size=3, out=None, **options):
    """See Sobel."""
    return _apply(Sobel, a, (direction, size), out, options)


def scharr(a, direction, out=None, **options):
    """See Scharr."""
    return _apply(Scharr, a, (direction,), out, options)


def prewitt(a, direction, out=None, **options):
    """See Prewitt."""
    return _apply(Prewitt, a, (direction,), out, options)


def roberts(a, direction, out=None, **options):
    """See Roberts."""
    return _apply(Roberts, a, (direction, 2), out, options)


def sobel_magnitude(a, size=3, norm="l2", out=None, **options):
    """See SobelMagnitude."""
    return _apply(SobelMagnitude, a, (size, norm), out, options)


def gauss(a, sigma=1.0, size=None, out=None, **options):
    """See Gauss."""
    return _apply(Gauss, a, (sigma, size), out, options)


def filter2d(a, kernel, out=None, *, divisor=None, rounding="near", correlate=False, **options):
    """See Filter2D."""
    return _once(Filter2D, a, (kernel, divisor, rounding, correlate), out, options)


def separable(a, row, column, out=None, *, divisor=None, rounding="near", **options):
    """See Separable."""
    return _once(Separable, a, (row, column, divisor, rounding), out, options)


def erode(a, mask, out=None, *, anchor=None, **options):
    """See Erode."""
    return _once(Erode, a, (mask, anchor), out, options)


def dilate(a, mask, out=None, *, anchor=None, **options):
    """See Dilate."""
    return _once(Dilate, a, (mask, anchor), out, options)


def gradient(a, kernel="sobel", size=3, norm="l2", **options):
    """(x, y, magnitude, angle); see Gradient."""
    a = image(a)
    return _made(Gradient, a.shape, a.dtype, kernel, size, norm)(a, **options)
