"""What functions of volumes share: arrays of shape (D, H, W), results, tiles, slabs of planes."""
import operator

import numpy

from . import _threads
from ._operation import VOLUME, checked_shape, image, refuse_overlap
from ._plan import NUMBERS, make_call
from .values import data_type

TYPES = ("8u", "16u", "16s", "32f")
LEAST_PLANES = 4  # of a slab of a thread


def calls_of(name, roles, free=("src",)):
    """{number of a dtype: the call} of functions of volumes; free: what may have a size of its own."""
    return {NUMBERS[code]: make_call(f"qvpr{name}_{code}_C1V", roles, "C1", free) for code in TYPES}


def call_for(calls, dtype):
    try:
        return calls[numpy.dtype(dtype).num]
    except (KeyError, TypeError):
        raise TypeError(f"no volumes of dtype {dtype}; there are uint8, uint16, int16, float32") from None


def volume_shape(shape, name="shape"):
    return checked_shape(shape, name, VOLUME)


def volume_tile(tile, shape):
    """(first, lengths) of a part of a volume of this shape, each (planes, rows, columns)."""
    try:
        numbers = tuple(operator.index(number) for number in tile)
    except TypeError:
        numbers = ()
    if len(numbers) != 6:
        raise TypeError(f"a tile is (plane, row, column, depth, height, width), not {tile!r}")
    first, lengths = numbers[:3], numbers[3:]
    if min(first) < 0 or min(lengths) < 1 or any(a + n > end for a, n, end in zip(first, lengths, shape)):
        raise ValueError(f"the tile {tile} is not within {tuple(shape)}")
    return first, lengths


def part_of(a, first, lengths):
    return a[tuple(slice(begin, begin + n) for begin, n in zip(first, lengths))]


def xyz(numbers):
    """(plane, row, column) as the library has it, (x, y, z), and the other way."""
    return tuple(numbers[::-1])


def volume(a, copy=False, name="array"):
    """The array as functions take it: rows and planes follow each other upwards in memory, which views may not."""
    if copy or type(a) is not numpy.ndarray or a.ndim != 3 or a.size == 0 or not a.dtype.isnative:
        a = image(a, copy, name, VOLUME)
    (depth, height, _), (plane, row, _) = a.shape, a.strides
    goes_up = (plane > 0 or depth == 1) and (row > 0 or height == 1)
    return a if goes_up else numpy.ascontiguousarray(a)


def written(out, shape, dtype, fill, new=numpy.empty):
    """`out`, or a new array, after fill(of what functions can write)."""
    if out is None:
        out = new(shape, dtype)
        fill(out)
        return out
    result = volume(out, name="out")
    if result.shape != tuple(shape):
        raise ValueError(f"out must be an array of shape {tuple(shape)}")
    if result.dtype != dtype or not out.flags.writeable:
        raise ValueError(f"out must be writeable, {numpy.dtype(dtype)}")
    fill(result)
    if result is not out and not numpy.may_share_memory(result, out):
        out[...] = result
    return out


def in_slabs(work, out, sources, threads, least=LEAST_PLANES):
    """work(first, end) for slabs of planes of `out`, at once on so many threads."""
    n = _threads.count(threads)
    if n == 1:
        work(0, out.shape[0])
        return
    refuse_overlap(out, sources)
    _threads.run(work, _threads.strips(out.shape[0], n, least))


class Mapped3D:
    """What makes a destination of one shape from a source of one shape, whole or by tiles."""

    new = staticmethod(numpy.empty)  # of a destination that is not given

    def prepare(self, src_shape, dst_shape, dtype, calls):
        self.src_shape = volume_shape(src_shape, "the source's shape")
        self.dst_shape = volume_shape(dst_shape)
        self._call, self.dtype, self.kind = call_for(calls, dtype), numpy.dtype(dtype), data_type(dtype)
        self.src, self.dst = xyz(self.src_shape), xyz(self.dst_shape)

    def __call__(self, a, out=None, *, tile=None, threads=None, copy=False):
        """The destination, or its part tile=(plane, row, column, depth, height, width), in `out` or a new array."""
        a = volume(a, copy)
        if a.dtype != self.dtype or a.shape != self.src_shape:
            raise ValueError(f"the source must be {self.dtype} of shape {self.src_shape}, not {a.dtype} of {a.shape}")
        first, lengths = ((0, 0, 0), self.dst_shape) if tile is None else volume_tile(tile, self.dst_shape)

        def fill(result):
            def slab(begin, end):
                self._run(a, result[begin:end], (first[0] + begin, *first[1:]))

            in_slabs(slab, result, (a,), threads)

        return written(out, lengths, self.dtype, fill, self.new)
