"""Smoothing that keeps edges, and thresholds by what is around; see qvpi.filters for what filters share."""
import numpy

from ._call import key
from ._neighbourhood import NORMS, QUERY, ROLES, Filter, apply, contiguous_down, made, operation_of, pair_of
from ._operation import Operation, channels, checked_shape, forgiving, image
from ._plan import make_call
from ._records import Buffers, memory, size_of
from .arithmetic import choice
from .values import data_type

__all__ = ["Bilateral", "Guided", "LeastSquares", "LocalThreshold", "Median", "MedianCenter", "MedianVector", "Wiener",
           "bilateral", "guided", "least_squares", "local_threshold", "median", "median_center", "median_vector",
           "wiener"]


class _Median(Filter):
    query = "MedianCenter"

    def __init__(self, shape, dtype, size, *values):
        super().__init__(shape, dtype, pair_of(size))
        self.values = (self.mask[1], self.mask[0]), *values
        query = make_call(f"qvpiFilter{self.query}BorderGetBufferSize", QUERY)
        self.prepare(size_of(query, self.values[0], self.roi, self.kind, self.channels))


class Median(_Median):
    """The median under a mask, channel by channel. Floats are in the order of numbers, NaN beyond the infinities.

    size: odd, 1 to 255. border: not 'mirror'. uint8, uint16, int16, float32.
    """

    operation = operation_of("Median", "maskSize")

    def __init__(self, shape, dtype, size=3):
        super().__init__(shape, dtype, size)


class MedianCenter(_Median):
    """The median with the middle pixel counted `weight` times, which keeps lines (Ko, Lee 1991); else as Median."""

    operation = operation_of("MedianCenter", "maskSize weight")

    def __init__(self, shape, dtype, size=3, weight=3):
        super().__init__(shape, dtype, size, weight)


class MedianVector(_Median):
    """That pixel of a mask whose colour is nearest to all others (Astola, Haavisto, Neuvo 1990).

    size: odd, 1 to 7. norm: of differences of colours, 'l1' or 'l2'. border: not 'mirror'. uint8, uint16, float32 of 3
    channels.
    """

    operation = operation_of("MedianVector", "maskSize normType")
    query = "MedianVector"

    def __init__(self, shape, dtype, size=3, norm="l1"):
        super().__init__(shape, dtype, size, choice(NORMS, norm, "norm"))


class Bilateral(Filter):
    """Each pixel the mean of a disc, in which pixels count by nearness and likeness (Tomasi, Manduchi 1998).

    sigma_range, sigma_space: standard deviations of the weights, in pixel values and in pixels; radius: 1 to 127, two
    sigma_space at first. norm: how differences of colours make one, 'l1' or 'l2'. uint8, uint16, float32.
    """

    operation = operation_of("Bilateral", "", "borderType borderValue spec buffer")

    def __init__(self, shape, dtype, sigma_range, sigma_space=2.0, radius=None, norm="l2"):
        if radius is None:
            radius = min(127, max(1, round(2 * sigma_space)))
        if not isinstance(radius, int):
            raise TypeError("radius must be an integer")
        super().__init__(shape, dtype, (2 * radius + 1, 2 * radius + 1))
        spec, buffer = size_of(_BILATERAL_SIZE, radius, self.roi, self.kind, self.channels, count=2)
        self.record = (memory(spec),)
        _BILATERAL_INIT(radius, choice(NORMS, norm, "norm"), sigma_range, sigma_space, self.kind, self.channels,
                        *self.record)
        self.prepare(buffer)


class Wiener(Filter):
    """Removes noise of a known variance: where a mask sees no more than that, a pixel becomes the mean (Lim 1990).

    noise: the variance of pixels between 0 and 1, a number or one for each channel: of a standard deviation of 10
    levels of 8 bits (10 / 255) ** 2. size: odd, 1 to 255. uint8, uint16, int16, float32.
    """

    operation = operation_of("Wiener", "maskSize noise")

    def __init__(self, shape, dtype, noise, size=3):
        super().__init__(shape, dtype, pair_of(size))
        self.values = (self.mask[1], self.mask[0]), noise
        self.prepare(size_of(_WIENER_SIZE, self.values[0], self.roi, self.kind, self.channels))


class LocalThreshold(Filter):
    """`above` where a pixel is above the mean under a mask less `delta`, else `others`: scans under uneven light.

    size: odd, 1 to 1023. sigma: of Gauss weights; None: all weigh the same. above: the largest value of the dtype at
    first, 1 of floats. uint8, uint16, float32 of 1 channel.
    """

    def __init__(self, shape, dtype, size, delta=0.0, above=None, others=0, sigma=None):
        super().__init__(shape, dtype, pair_of(size))
        kind = "Box" if sigma is None else "Gauss"
        if above is None:
            above = numpy.iinfo(self.dtype).max if self.dtype.kind in "iu" else 1
        weights = () if sigma is None else (sigma,)
        self.values = (self.mask[1], self.mask[0]), *weights, delta, above, others
        self.operation = _LOCAL_THRESHOLDS[kind]
        self.prepare(size_of(_LOCAL_THRESHOLD_SIZES[kind], self.values[0], self.roi, self.kind))


class Guided(Filter):
    """Edges are those of a guide: by itself an image keeps its own, and loses noise (He, Sun, Tang 2013).

    size: odd, 1 to 255. eps: variance of the guide, of values between 0 and 1, below which there is no edge. colors:
    the image has one channel, its guide three; else the guide is an image like it. border: not 'constant'. uint8,
    uint16, float32.
    """

    def __init__(self, shape, dtype, size=9, eps=0.001, colors=False):
        height, width = pair_of(size)
        super().__init__(shape, dtype, (2 * height - 1, 2 * width - 1))
        self.values = (width, height), eps
        self.operation = _GUIDED_BY_COLORS if colors else _GUIDED
        self.guides = 3 if colors else self.channels
        parameters = (self.values[0], self.roi, self.kind) + (() if colors else (self.channels,))
        self.prepare(size_of(_GUIDED_BY_COLORS_SIZE if colors else _GUIDED_SIZE, *parameters))

    def __call__(self, a, out=None, *, guide=None, border="replicate", tile=None, threads=None, copy=False, value=0):
        a = self._checked(a, copy)
        guide = a if guide is None else image(guide, copy, "guide")
        if guide.dtype != self.dtype or channels(guide) != self.guides or guide.shape[:2] != a.shape[:2]:
            raise ValueError(f"the guide must be {self.dtype} of {a.shape[:2]} with {self.guides} channels, not "
                             f"{guide.dtype} of {guide.shape[:2]} with {channels(guide)}")
        return self._filtered((a, contiguous_down(guide)), out, border, value, tile, threads)


class LeastSquares:
    """Smooths everywhere but across edges, without halos (Liu, Zhang, Huang, Yang 2020); what it takes away is detail.

    strength: 0 or more; power: of the penalty of gradients, above 0 to 2; eps: gradients whose square is below it, of
    values between 0 and 1, are smoothed as with the power 2. All of an image at once. uint8, uint16, float32, of 1 or 3
    channels.
    """

    def __init__(self, shape, dtype, strength=1.0, power=0.8, eps=1e-4, iterations=4):
        self.shape, self.dtype = checked_shape(shape), numpy.dtype(dtype)
        count, size = self.shape[2] if len(self.shape) == 3 else 1, (self.shape[1], self.shape[0])
        self._key = self.dtype.num * 100 + count
        found = _LEAST_SQUARES.find(self._key)
        if found is None:
            raise TypeError(_LEAST_SQUARES._complaint(numpy.empty((1, 1, count), self.dtype), None))
        self._call, kind = found[0], data_type(dtype)
        spec, buffer = size_of(_LEAST_SQUARES_SIZE, size, kind, count, count=2)
        self._spec, self._buffers = memory(spec), Buffers(buffer)
        _LEAST_SQUARES_INIT(size, strength, power, eps, iterations, kind, count, self._spec)

    def __call__(self, a, out=None, *, copy=False):
        a = image(a, copy)
        if key(a) != self._key or a.shape != self.shape:
            raise ValueError(f"the image must be {self.dtype} of shape {self.shape}, not {a.dtype} of {a.shape} with "
                             f"{channels(a)} channels")
        out = numpy.empty(a.shape, a.dtype) if out is None else out
        buffer = self._buffers.take()
        forgiving(self._call, (a,), (image(out, name="out"),), (self._spec, buffer))
        self._buffers.give(buffer)
        return out


_LOCAL_THRESHOLDS = {
    kind: Operation(f"ThresholdLocal{kind}Border", f"src dst maskSize {sigma}delta valueGT valueLE {ROLES}")
    for kind, sigma in (("Box", ""), ("Gauss", "sigma "))}
_LOCAL_THRESHOLD_SIZES = {
    kind: make_call(f"qvpiThresholdLocal{kind}BorderGetBufferSize", "maskSize roiSize dataType bufferSize")
    for kind in _LOCAL_THRESHOLDS}
_GUIDED = operation_of("Guided", "maskSize eps", images="src guide dst")
_GUIDED_BY_COLORS = operation_of("GuidedColor", "maskSize eps", images="src guide dst")
_GUIDED_SIZE = make_call("qvpiFilterGuidedBorderGetBufferSize", QUERY)
_GUIDED_BY_COLORS_SIZE = make_call("qvpiFilterGuidedColorBorderGetBufferSize", "maskSize roiSize dataType bufferSize")
_WIENER_SIZE = make_call("qvpiFilterWienerBorderGetBufferSize", QUERY)
_BILATERAL_SIZE = make_call("qvpiFilterBilateralBorderGetSize",
                            "radius roiSize dataType numChannels specSize bufferSize")
_BILATERAL_INIT = make_call("qvpiFilterBilateralBorderInit",
                            "radius normType sigmaRange sigmaSpace dataType numChannels spec")
_LEAST_SQUARES = Operation("FilterLeastSquares", "src dst spec buffer")
_LEAST_SQUARES_SIZE = make_call("qvpiFilterLeastSquaresGetSize", "roiSize dataType numChannels specSize bufferSize")
_LEAST_SQUARES_INIT = make_call("qvpiFilterLeastSquaresInit",
                                "roiSize lambda power eps numIterations dataType numChannels spec")


def median(a, size=3, out=None, **options):
    """See Median; options are border, value, threads, copy, as of every filter."""
    return apply(Median, a, (size,), out, options)


def median_center(a, size=3, weight=3, out=None, **options):
    """See MedianCenter."""
    return apply(MedianCenter, a, (size, weight), out, options)


def median_vector(a, size=3, out=None, *, norm="l1", **options):
    """See MedianVector."""
    return apply(MedianVector, a, (size, norm), out, options)


def bilateral(a, sigma_range, sigma_space=2.0, out=None, *, radius=None, norm="l2", **options):
    """See Bilateral; options are border, value, threads, copy, as of every filter."""
    return apply(Bilateral, a, (sigma_range, sigma_space, radius, norm), out, options)


def wiener(a, noise, size=3, out=None, **options):
    """See Wiener."""
    return apply(Wiener, a, (noise, size), out, options)


def local_threshold(a, size, delta=0.0, out=None, *, above=None, others=0, sigma=None, **options):
    """See LocalThreshold."""
    return apply(LocalThreshold, a, (size, delta, above, others, sigma), out, options)


def guided(a, guide=None, size=9, eps=0.001, out=None, **options):
    """See Guided; without a guide the image is its own. The guide of an image of one channel may have three."""
    a = image(a)
    guide = a if guide is None else image(guide, name="guide")
    colors = channels(a) == 1 and channels(guide) == 3
    return made(Guided, a.shape, a.dtype, size, eps, colors)(a, out, guide=guide, **options)


def least_squares(a, strength=1.0, out=None, *, power=0.8, eps=1e-4, iterations=4, copy=False):
    """See LeastSquares."""
    a = image(a, copy)
    return made(LeastSquares, a.shape, a.dtype, strength, power, eps, iterations)(a, out)
