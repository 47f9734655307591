"""Filters with kernels and masks of the caller, and Gauss smoothing; see qvpi.filters for what all filters share."""
import math

import numpy

from ._neighbourhood import QUERY, Filter, apply, apply_once, operation_of, pair_of
from ._plan import make_call
from ._records import memory, size_of
from .arithmetic import ROUNDING, choice
from .raw import lib
from .values import data_type

__all__ = ["Dilate", "Erode", "Filter2D", "Gauss", "Separable", "dilate", "erode", "filter2d", "gauss", "separable"]


class _Recorded(Filter):
    record_role = "borderType borderValue spec buffer"


class Gauss(_Recorded):
    """Gauss smoothing; size: odd, as many as hold 3 sigma at first. uint8, uint16, int16, float32."""

    operation = operation_of("Gauss", "", _Recorded.record_role)

    def __init__(self, shape, dtype, sigma=1.0, size=None):
        rows, columns = numpy.broadcast_to(numpy.asarray(sigma, float), (2,)).tolist()
        if not all(0 < s < 1e6 for s in (rows, columns)):
            raise ValueError("sigma must be above 0, a number or (along columns, along rows)")
        mask = [2 * math.ceil(3 * s) + 1 for s in (rows, columns)] if size is None else pair_of(size)
        super().__init__(shape, dtype, tuple(mask))
        size = mask[1], mask[0]
        spec, buffer = size_of(_GAUSS_SIZE, size, self.roi, self.kind, self.channels, count=2)
        self.record = (memory(spec),)
        _GAUSS_INIT(size, columns, rows, self.kind, self.channels, *self.record)
        self.prepare(buffer)


class Filter2D(_Recorded):
    """Convolution with any kernel, which convolution turns; correlate=True turns it once more, for a correlation.

    kernel: 2-D; of integers with a `divisor`, or of floats. rounding: 'near', 'zero', 'financial'. uint8, uint16,
    int16, float32, and float64 of one channel.
    """

    operation = operation_of("", "", _Recorded.record_role)

    def __init__(self, shape, dtype, kernel, divisor=None, rounding="near", correlate=False):
        kernel = kernel_of(kernel, dtype, divisor, 2)
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

    operation = operation_of("Separable", "", _Recorded.record_role)

    def __init__(self, shape, dtype, row, column, divisor=None, rounding="near"):
        row, column = (kernel_of(kernel, "float32", divisor, 1) for kernel in (row, column))
        super().__init__(shape, dtype, (column.size, row.size))
        size, values = (row.size, column.size), () if divisor is None else (divisor,)
        taps = lib.qvp16s if divisor is not None else lib.qvp32f
        spec, buffer = size_of(_SEPARABLE_SIZE, size, self.roi, self.kind, self.kind, taps, self.channels, count=2)
        self.record = (memory(spec),)
        init = _SEPARABLE_INIT["16s" if divisor is not None else "32f"]
        how = choice(ROUNDING, rounding, "rounding")
        init(row, column, size, *values, self.kind, self.kind, self.channels, how, *self.record)
        self.prepare(buffer)


def kernel_of(kernel, dtype, divisor, rank):
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
        row, column = (mask.shape[0] // 2, mask.shape[1] // 2) if anchor is None else pair_of(anchor, "anchor")
        size = mask.shape[1], mask.shape[0]
        spec, buffer = size_of(_MORPHOLOGY_SIZE, size, self.roi, self.kind, self.channels, count=2)
        self.record = (memory(spec),)
        _MORPHOLOGY_INIT(mask, size, (column, row), *self.record)
        self.prepare(buffer)


class Erode(_Morphology):
    """The least value of the pixels that a mask selects. uint8, uint16, int16, float32."""

    operation = operation_of("Erode", "", _Recorded.record_role)


class Dilate(_Morphology):
    """The greatest value of the pixels that a mask selects, which is not turned. uint8, uint16, int16, float32."""

    operation = operation_of("Dilate", "", _Recorded.record_role)


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
_MORPHOLOGY_SIZE = make_call("qvpiFilterMorphologyBorderGetSize", QUERY.replace("bufferSize", "specSize bufferSize"))
_MORPHOLOGY_INIT = make_call("qvpiFilterMorphologyBorderInit", "mask maskSize anchor spec")


# ---- plain functions

def gauss(a, sigma=1.0, size=None, out=None, **options):
    """See Gauss."""
    return apply(Gauss, a, (sigma, size), out, options)


def filter2d(a, kernel, out=None, *, divisor=None, rounding="near", correlate=False, **options):
    """See Filter2D."""
    return apply_once(Filter2D, a, (kernel, divisor, rounding, correlate), out, options)


def separable(a, row, column, out=None, *, divisor=None, rounding="near", **options):
    """See Separable."""
    return apply_once(Separable, a, (row, column, divisor, rounding), out, options)


def erode(a, mask, out=None, *, anchor=None, **options):
    """See Erode."""
    return apply_once(Erode, a, (mask, anchor), out, options)


def dilate(a, mask, out=None, *, anchor=None, **options):
    """See Dilate."""
    return apply_once(Dilate, a, (mask, anchor), out, options)
