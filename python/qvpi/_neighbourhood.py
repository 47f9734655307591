"""What all filters share: tiles, strips of rows, borders, work buffers."""
import numpy

from . import _threads
from ._call import empty, key
from ._operation import Operation, channels, checked_shape, checked_tile, image, refuse_overlap
from ._records import Buffers, cached
from .arithmetic import choice
from .raw import lib
from .values import data_type

ROLES = "borderType borderValue buffer"
QUERY = "maskSize roiSize dataType numChannels bufferSize"
BORDERS = {"replicate": lib.qvpBorderReplicate, "mirror": lib.qvpBorderMirror, "constant": lib.qvpBorderConst}
NORMS = {"l1": lib.qvpNormL1, "l2": lib.qvpNormL2, "inf": lib.qvpNormInf}
TOP, BOTTOM = lib.qvpBorderInMemTop, lib.qvpBorderInMemBottom
LEFT, RIGHT = lib.qvpBorderInMemLeft, lib.qvpBorderInMemRight


def operation_of(name, values="", roles=ROLES, images="src dst"):
    """The operation of a filter whose functions take these values between the images and the border."""
    return Operation(f"Filter{name}Border", f"{images} {values} {roles}")


def pair_of(size, name="size"):
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
        return self._filtered((a,), out, border, value, tile, threads)

    def _filtered(self, sources, out, border, value, tile, threads):
        """Of images of one size, which are ready for calls. The first one is what is filtered."""
        a = sources[0]
        if a.shape[0] > self.shape[0] or a.shape[1] > self.shape[1]:
            raise ValueError(f"the image is larger than the filter's shape {self.shape}")
        kind = choice(BORDERS, border, "border")
        value = value if border == "constant" else None
        if tile is not None:
            return self._tile(sources, out, kind, value, tile)
        return self._whole(sources, out, kind, value, threads)

    def _checked(self, a, copy):
        a = image(a, copy)
        if key(a) != self._key:
            raise TypeError(f"the filter is for {self.dtype} with {self.channels} channels, "
                            f"not {a.dtype} with {channels(a)}")
        return contiguous_down(a)

    def _whole(self, sources, out, kind, value, threads):
        call, number, count = self._found
        a = sources[0]
        if out is None:
            out = empty(a, number, count)
        else:
            image(out, name="out")
            if not _goes_down(out):
                return self._copied(sources, out, kind, value, threads)
            sources = tuple(s.copy() if is_same(out, s) else s for s in sources)
        height = a.shape[0]
        parts = [(0, height)]
        if out.shape[:1] == a.shape[:1]:
            parts = _threads.strips(height, _threads.count(threads), max(16, 2 * self.mask[0]))

        def strip(first, end):
            flags = kind | (TOP if first else 0) | (BOTTOM if end < height else 0)
            self._run(call, [source[first:end] for source in sources], out[first:end], flags, value)

        if len(parts) == 1:
            self._run(call, sources, out, kind, value)
        else:
            refuse_overlap(out, sources)
            _threads.run(strip, parts)
        return out

    def _copied(self, sources, out, kind, value, threads):
        """The result by way of a new array."""
        result = self._whole(sources, None, kind, value, threads)
        return _assigned(out, result)

    def _tile(self, sources, out, kind, value, tile):
        """A part of the result. At the image's edges parts are as large as the mask at least, and then cut."""
        a = sources[0]
        row, column, height, width = checked_tile(tile, a.shape)
        top, bottom = enlarged(row, row + height, a.shape[0], self.mask[0])
        left, right = enlarged(column, column + width, a.shape[1], self.mask[1])
        call, number, count = self._found
        parts = [source[top:bottom, left:right] for source in sources]
        result = empty(parts[0], number, count)
        kind |= (TOP if top else 0) | (BOTTOM if bottom < a.shape[0] else 0)
        kind |= (LEFT if left else 0) | (RIGHT if right < a.shape[1] else 0)
        self._run(call, parts, result, kind, value)
        result = result[row - top:row - top + height, column - left:column - left + width]
        if out is None:
            return numpy.ascontiguousarray(result)
        return _assigned(image(out, name="out"), result)

    def _run(self, call, sources, out, border, value):
        buffer = self._buffers.take()
        call(*sources, out, *self.values, border, value, *self.record, buffer)
        self._buffers.give(buffer)


def is_same(out, a):
    return numpy.may_share_memory(out, a) and out.ctypes.data == a.ctypes.data and out.shape == a.shape


def _assigned(out, result):
    if out.shape != result.shape or out.dtype != result.dtype or not out.flags.writeable:
        raise ValueError(f"out must be writeable, {result.dtype} of shape {result.shape}")
    out[...] = result
    return out


def _goes_down(a):
    """Whether rows follow each other in memory, as filters want it: a copy of a strip would lack what is around it."""
    return a.strides[0] >= a.strides[1] * a.shape[1] or a.shape[0] == 1


def contiguous_down(a):
    return a if _goes_down(a) else numpy.ascontiguousarray(a)


def enlarged(first, end, length, mask):
    """Rows first to end, with more of them where the mask would reach over an edge of the image from within.

    What begins or ends at an edge is two masks long at least, as reflection takes pixels from there.
    """
    least = 2 * mask
    if end > length - least:
        first, end = min(first, length - least), length
    if first < least:
        first, end = 0, max(end, least)
    return first, length if end > length - least else end


@cached
def made(kind, shape, dtype, *parameters):
    return kind(shape, dtype, *parameters)


def apply(kind, a, parameters, out, options):
    if type(a) is not numpy.ndarray:
        a = image(a)
    return made(kind, a.shape, a.dtype, *parameters)(a, out, **options)


def apply_once(kind, a, parameters, out, options):
    """For filters whose parameters are arrays."""
    a = image(a)
    return kind(a.shape, a.dtype, *parameters)(a, out, **options)
