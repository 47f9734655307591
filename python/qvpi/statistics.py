"""Numbers from images: sums, norms, extremes, histograms, moments.

Images have the shape (H, W), or (H, W, C) with 3 or 4 channels. Results are a number for (H, W), else an array with one
number for each channel. uint8, uint16, int16, float32. `copy=True` copies what has gaps within its rows.
"""
import numpy

from . import _threads
from ._operation import Operation, channels, checked_shape, forgiving, image
from ._plan import make_call
from ._records import Buffers, addresses, cached, memory, size_of
from .arithmetic import choice
from .values import _found, data_type

__all__ = ["Histogram", "Moments", "argmax", "argmin", "dot", "histogram", "max", "mean", "min", "min_max", "moments",
           "norm", "sum"]

_SUM = Operation("Sum", "src sum hint")
_MEAN = Operation("Mean", "src mean hint")
_MIN, _MAX = Operation("Min", "src min"), Operation("Max", "src max")
_MIN_MAX = Operation("MinMax", "src min max")
_ARGMIN, _ARGMAX = Operation("MinIndx", "src min indexX indexY"), Operation("MaxIndx", "src max indexX indexY")
_DOT = Operation("DotProd", "src1 src2 dp hint")
_NORMS = {kind: {name: Operation(f"{name}_{suffix}", f"{sources} value hint") for name, sources in
                 {"Norm": "src", "NormDiff": "src1 src2", "NormRel": "src1 src2"}.items()}
          for kind, suffix in {"inf": "Inf", "l1": "L1", "l2": "L2"}.items()}
_HISTOGRAM = Operation("Histogram", "src hist spec buffer")
_MOMENTS = Operation("Moments64f", "src state")


def _result(numbers, a):
    return numbers if a.ndim == 3 else numbers[0].item()


def _reduce(operation, sources, copy, dtype=numpy.float64, count=1, values=()):
    """Calls an operation that writes `count` numbers for each channel."""
    if copy:
        sources = [image(a, True) for a in sources]
    a, call = _found(operation, sources[0])
    results = [numpy.zeros(channels(a), dtype if i == 0 else numpy.int32) for i in range(count)]
    forgiving(call, sources, (), (*results, *values))
    return [_result(result, a) for result in results]


def _hint(accurate):
    return (2 if accurate else None,)


def sum(a, *, accurate=False, copy=False):
    """The sum, as float64; exact for integers. accurate, of float32: with partial sums in double precision."""
    return _reduce(_SUM, (a,), copy, values=_hint(accurate))[0]


def mean(a, *, accurate=False, copy=False):
    """The mean, as float64. accurate, of float32: with partial sums in double precision."""
    return _reduce(_MEAN, (a,), copy, values=_hint(accurate))[0]


def min(a, *, copy=False):
    """The least value, of the image's dtype; numbers that are NaN do not count."""
    return _reduce(_MIN, (a,), copy, image(a).dtype)[0]


def max(a, *, copy=False):
    """The greatest value, of the image's dtype; numbers that are NaN do not count."""
    return _reduce(_MAX, (a,), copy, image(a).dtype)[0]


def min_max(a, *, copy=False):
    """(least value, greatest value) in one pass."""
    a, call = _found(_MIN_MAX, a, copy)
    least, greatest = (numpy.zeros(channels(a), a.dtype) for _ in range(2))
    forgiving(call, (a,), (), (least, greatest))
    return _result(least, a), _result(greatest, a)


def argmin(a, *, copy=False):
    """(least value, row, column) of the first place that has it."""
    value, column, row = _reduce(_ARGMIN, (a,), copy, image(a).dtype, 3)
    return value, row, column


def argmax(a, *, copy=False):
    """(greatest value, row, column) of the first place that has it."""
    value, column, row = _reduce(_ARGMAX, (a,), copy, image(a).dtype, 3)
    return value, row, column


def dot(a, b, *, accurate=False, copy=False):
    """The sum of a * b, as float64. Also int32 and uint32."""
    return _reduce(_DOT, (a, b), copy, values=_hint(accurate))[0]


def norm(a, b=None, kind="l2", *, relative=False, accurate=False, copy=False):
    """A norm of the image, or of a - b: 'l1' sum |v|, 'l2' sqrt(sum v * v), 'inf' max |v|.

    relative: divided by the norm of b.
    """
    operations = choice(_NORMS, kind, "kind")
    if b is None:
        return _reduce(operations["Norm"], (a,), copy, values=_hint(accurate))[0]
    return _reduce(operations["NormRel" if relative else "NormDiff"], (a, b), copy, values=_hint(accurate))[0]


class Histogram:
    """Counts values by bins: h = Histogram(a.shape, a.dtype, bins, (low, high)); h(a).

    bins: how many there are between low and high, or the levels between them, which rise: bin i has the values with
    level[i] <= v < level[i + 1]. The result is uint32 of shape (bins,), or (C, bins).
    """

    def __init__(self, shape, dtype, bins=256, range=(0, 256)):
        shape = checked_shape(shape)
        self._dtype, self._channels = numpy.dtype(dtype), shape[2] if len(shape) == 3 else 1
        levels = _levels(bins, range)
        self.bins = len(levels) - 1
        kind, n = data_type(dtype), self._channels
        counts = numpy.full(n, len(levels), numpy.int32)
        spec, buffer = size_of(_HISTOGRAM_SIZE, kind, (shape[1], shape[0]), counts, n, 1, count=2)
        self._spec, self._buffers = memory(spec), Buffers(buffer)
        _HISTOGRAM_INIT(kind, addresses([levels] * n), counts, n, self._spec)

    def __call__(self, a, *, threads=None, copy=False):
        """The counts of an image of the object's dtype and channels, of any size."""
        a, call = _found(_HISTOGRAM, a, copy)
        if a.dtype != self._dtype or channels(a) != self._channels:
            raise ValueError(f"the histogram is for {self._dtype} with {self._channels} channels")
        parts = _threads.strips(a.shape[0], _threads.count(threads), 64)
        counts = _threads.run(lambda first, end: self._strip(call, a[first:end]), parts)
        total = counts[0]
        for more in counts[1:]:
            total += more
        return total if a.ndim == 3 else total[0]

    def _strip(self, call, a):
        counts = numpy.zeros((self._channels, self.bins), numpy.uint32)
        buffer = self._buffers.take() if self._dtype.kind != "f" else None  # floats need none
        forgiving(call, (a,), (), (addresses(counts), self._spec, buffer))
        if buffer is not None:
            self._buffers.give(buffer)
        return counts


def _levels(bins, range):
    if isinstance(bins, int):
        if bins < 1 or not range[0] < range[1]:
            raise ValueError("bins must be at least 1, and range a pair that rises")
        return numpy.linspace(range[0], range[1], bins + 1).astype(numpy.float32)
    levels = numpy.ascontiguousarray(bins, numpy.float32)
    if levels.ndim != 1 or levels.size < 2 or not (numpy.diff(levels) > 0).all():
        raise ValueError("levels must be two or more numbers that rise")
    return levels


_HISTOGRAM_SIZE = make_call("qvpiHistogramGetBufferSize",
                            "dataType roiSize nLevels numChannels uniform specSize bufferSize")
_HISTOGRAM_INIT = make_call("qvpiHistogramInit", "dataType levels nLevels numChannels spec")


@cached
def _histogram(shape, dtype, bins, range):
    return Histogram(shape, dtype, bins, range)


def histogram(a, bins=256, range=None, *, threads=None, copy=False):
    """The counts of Histogram; range is at first that of an integer dtype, (0, 256) for uint8, and (0, 1) of floats."""
    a = image(a, copy)
    if range is None:
        info = numpy.iinfo(a.dtype) if a.dtype.kind in "ui" else None
        range = (info.min, info.max + 1) if info else (0, 1)
    bins = bins if isinstance(bins, int) else tuple(bins)
    return _histogram(a.shape, a.dtype, bins, tuple(range))(a, threads=threads)


class Moments:
    """The moments of an image up to the third order; `m = qvpi.moments(a)`.

    x counts columns and y rows from the first pixel. Channels are chosen by `channel`.
    """

    def __init__(self, a, accurate=False, copy=False):
        hint = 2 if accurate else 1
        a, call = _found(_MOMENTS, a, copy)
        self._state = memory(size_of(_STATE_SIZE, hint))
        _STATE_INIT(self._state, hint)
        forgiving(call, (a,), (), (self._state,))

    def _get(self, call, *operands):
        result = numpy.zeros(1)
        call(self._state, *operands, result)
        return float(result[0])

    def spatial(self, m, n, channel=0, offset=(0, 0)):
        """The sum of x**m * y**n * v, with x and y counted from `offset`, (x, y)."""
        return self._get(_SPATIAL, m, n, channel, tuple(offset))

    def central(self, m, n, channel=0):
        """The sum of (x - xc)**m * (y - yc)**n * v around the centre of gravity."""
        return self._get(_CENTRAL, m, n, channel)

    def normalized(self, m, n, channel=0):
        """The central moment divided by M00 ** ((m + n) / 2 + 1)."""
        return self._get(_NORMALIZED, m, n, channel)

    def hu(self, channel=0):
        """Hu's seven invariants."""
        result = numpy.zeros(7)
        _HU(self._state, channel, result)
        return result


_STATE_SIZE = make_call("qvpiMomentGetStateSize_64f", "hint size")
_STATE_INIT = make_call("qvpiMomentInit_64f", "state hint")
_SPATIAL = make_call("qvpiGetSpatialMoment_64f", "state mOrd nOrd nChannel roiOffset value")
_CENTRAL = make_call("qvpiGetCentralMoment_64f", "state mOrd nOrd nChannel value")
_NORMALIZED = make_call("qvpiGetNormalizedCentralMoment_64f", "state mOrd nOrd nChannel value")
_HU = make_call("qvpiGetHuMoments_64f", "state nChannel hm")


def moments(a, *, accurate=False, copy=False):
    """The moments of uint8, uint16 and float32 images of 1 or 3 channels; see Moments."""
    return Moments(a, accurate, copy)
