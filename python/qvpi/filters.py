"""Filters: each pixel from its neighbourhood.

Images have the shape (H, W), or (H, W, C) with 3 or 4 channels; results have the same shape. What lies outside of the
image is told by `border`: 'replicate' (the nearest edge pixel), 'mirror' (reflection at the edge pixel, which is not
repeated), 'constant' (`value`, a number or one for each channel). Integers are rounded to the nearest, ties to even,
and saturated.

    f = qvpi.Gauss(image.shape, image.dtype, sigma=2)      the record is made once
    f(image)                                               the whole image
    f(image, tile=(row, column, height, width))            a part of the result, from all of the image
    qvpi.gauss(image, sigma=2)                             makes such an object behind the scenes, and keeps it

`out` may be the image itself, which is then copied first. `threads` splits the rows, with the same result to the bit.
"""
import numpy

from . import _threads
from ._call import empty
from ._neighbourhood import BORDERS, BOTTOM, NORMS, QUERY, ROLES, TOP, Filter, apply, made, operation_of, pair_of
from ._operation import Operation, image
from ._plan import make_call
from ._records import size_of
from .arithmetic import choice

__all__ = ["Binomial", "Box", "Gradient", "HighPass", "Laplace", "Maximum", "Minimum", "Prewitt", "Roberts", "Scharr",
           "Sharpen", "Sobel", "SobelMagnitude", "SumColumn", "SumRow", "binomial", "box", "gradient", "high_pass",
           "laplace", "maximum", "minimum", "prewitt", "roberts", "scharr", "sharpen", "sobel", "sobel_magnitude",
           "sum_column", "sum_row"]


# ---- rectangles

class _Rectangle(Filter):
    def __init__(self, shape, dtype, size=3, anchor=None):
        mask = pair_of(size)
        super().__init__(shape, dtype, mask)
        row, column = (mask[0] // 2, mask[1] // 2) if anchor is None else pair_of(anchor, "anchor")
        self.values = (mask[1], mask[0]), (column, row)
        self.prepare(size_of(self.query, self.values[0], self.roi, self.kind, self.channels))


class Box(_Rectangle):
    """The mean under a rectangle of `size`, (rows, columns), of which `anchor`, at first the middle, is the result's.

    Sums of integers are exact. uint8, uint16, int16, float32.
    """

    operation = operation_of("Box", "maskSize anchor")
    query = make_call("qvpiFilterBoxBorderGetBufferSize", QUERY)


class Minimum(_Rectangle):
    """The least value under a rectangle. uint8, uint16, int16, float32, of which NaN is not taken."""

    operation = operation_of("Min", "maskSize anchor")
    query = make_call("qvpiFilterMinBorderGetBufferSize", QUERY)


class Maximum(_Rectangle):
    """The greatest value under a rectangle. uint8, uint16, int16, float32, of which NaN is not taken."""

    operation = operation_of("Max", "maskSize anchor")
    query = make_call("qvpiFilterMaxBorderGetBufferSize", QUERY)


class _Sum(Filter):
    def __init__(self, shape, dtype, size=3, anchor=None):
        if not isinstance(size, int):
            raise TypeError("size must be an integer")
        super().__init__(shape, dtype, (1, size) if isinstance(self, SumRow) else (size, 1))
        self.values = size, size // 2 if anchor is None else anchor
        self.prepare(size_of(self.query, size, self.roi, self.kind, self.channels))


class SumRow(_Sum):
    """The sum of `size` pixels of a row, as float32. uint8, uint16, int16, float32."""

    operation = operation_of("SumRow", "maskSize anchor")
    query = make_call("qvpiFilterSumRowBorderGetBufferSize", QUERY)


class SumColumn(_Sum):
    """The sum of `size` pixels of a column, as float32. uint8, uint16, int16, float32."""

    operation = operation_of("SumColumn", "maskSize anchor")
    query = make_call("qvpiFilterSumColumnBorderGetBufferSize", QUERY)


# ---- fixed kernels

class _Fixed(Filter):
    query = make_call("qvpiFilterFixedBorderGetBufferSize", QUERY)

    def __init__(self, shape, dtype, size=3):
        super().__init__(shape, dtype, pair_of(size))
        self.values = ((self.mask[1], self.mask[0]),)
        self.prepare(size_of(self.query, self.values[0], self.roi, self.kind, self.channels))


class Binomial(_Fixed):
    """Smoothing by a binomial kernel of size 3 or 5. uint8, uint16, int16, float32."""

    operation = operation_of("Binomial", "maskSize")


class Sharpen(_Fixed):
    """Sharpening by a 3x3 kernel. uint8, uint16, int16, float32."""

    operation = operation_of("Sharpen", "maskSize")


class Laplace(_Fixed):
    """The Laplacian, size 3 or 5: uint8 to int16, others to float32. 1 or 3 channels."""

    operation = operation_of("Laplace", "maskSize")


class HighPass(_Fixed):
    """The pixel less the mean around it, size 3 or 5: uint8 to int16, others to float32. 1 or 3 channels."""

    operation = operation_of("HighPass", "maskSize")


def _directions(name, directions):
    """{direction: operation}: SobelXX, but RobertsDown."""
    return {direction: operation_of(name + (direction.title() if name == "Roberts" else direction.upper()), "maskSize")
            for direction in directions}


class _Directed(_Fixed):
    def __init__(self, shape, dtype, direction, size=3):
        self.operation = choice(self.operations, direction, "direction")
        super().__init__(shape, dtype, size)


class Sobel(_Directed):
    """Sobel's derivatives 'x', 'y', 'xx', 'yy', 'xy', size 3 or 5: uint8 to int16, else to float32. 1 or 3 channels."""

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

    operation = Operation("FilterSobel", f"src dst maskSize normType {ROLES}")

    def __init__(self, shape, dtype, size=3, norm="l2"):
        super().__init__(shape, dtype, pair_of(size))
        self.values = (self.mask[1], self.mask[0]), choice(NORMS, norm, "norm")
        self.prepare(size_of(_Fixed.query, self.values[0], self.roi, self.kind, self.channels))


# ---- gradients

class Gradient(Filter):
    """Derivatives, magnitude and angle in one pass: g = Gradient(shape, dtype); x, y, magnitude, angle = g(image).

    kernel 'sobel' (size 3 or 5) or 'scharr'; norm 'l1', 'l2' or 'inf'. Angles are radians from -pi to pi, clockwise on
    the screen. uint8 has int16 derivatives, others float32; of 3 channels the one with the largest gradient decides.
    """

    operations = {kernel: Operation(f"FilterGradient{kernel.title()}Border",
                                    f"src gx gy magnitude angle maskSize normType {ROLES}")
                  for kernel in ("sobel", "scharr")}

    def __init__(self, shape, dtype, kernel="sobel", size=3, norm="l2"):
        super().__init__(shape, dtype, pair_of(size))
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
            flags = kind | (TOP if first else 0) | (BOTTOM if end < height else 0)
            buffer = self._buffers.take()
            call(a[first:end], *(out[first:end] for out in outs), *self.values, flags, value, buffer)
            self._buffers.give(buffer)

        _threads.run(strip, _threads.strips(height, _threads.count(threads)))
        return tuple(outs)


# ---- plain functions

def box(a, size=3, out=None, *, anchor=None, **options):
    """See Box; options are border, value, threads, copy, as of every filter."""
    return apply(Box, a, (size, anchor), out, options)


def minimum(a, size=3, out=None, *, anchor=None, **options):
    """See Minimum."""
    return apply(Minimum, a, (size, anchor), out, options)


def maximum(a, size=3, out=None, *, anchor=None, **options):
    """See Maximum."""
    return apply(Maximum, a, (size, anchor), out, options)


def sum_row(a, size=3, out=None, *, anchor=None, **options):
    """See SumRow."""
    return apply(SumRow, a, (size, anchor), out, options)


def sum_column(a, size=3, out=None, *, anchor=None, **options):
    """See SumColumn."""
    return apply(SumColumn, a, (size, anchor), out, options)


def binomial(a, size=3, out=None, **options):
    """See Binomial."""
    return apply(Binomial, a, (size,), out, options)


def sharpen(a, size=3, out=None, **options):
    """See Sharpen."""
    return apply(Sharpen, a, (size,), out, options)


def laplace(a, size=3, out=None, **options):
    """See Laplace."""
    return apply(Laplace, a, (size,), out, options)


def high_pass(a, size=3, out=None, **options):
    """See HighPass."""
    return apply(HighPass, a, (size,), out, options)


def sobel(a, direction, size=3, out=None, **options):
    """See Sobel."""
    return apply(Sobel, a, (direction, size), out, options)


def scharr(a, direction, out=None, **options):
    """See Scharr."""
    return apply(Scharr, a, (direction,), out, options)


def prewitt(a, direction, out=None, **options):
    """See Prewitt."""
    return apply(Prewitt, a, (direction,), out, options)


def roberts(a, direction, out=None, **options):
    """See Roberts."""
    return apply(Roberts, a, (direction, 2), out, options)


def sobel_magnitude(a, size=3, norm="l2", out=None, **options):
    """See SobelMagnitude."""
    return apply(SobelMagnitude, a, (size, norm), out, options)


def gradient(a, kernel="sobel", size=3, norm="l2", **options):
    """(x, y, magnitude, angle); see Gradient."""
    a = image(a)
    return made(Gradient, a.shape, a.dtype, kernel, size, norm)(a, **options)
