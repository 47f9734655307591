"""What resizing and warps share: a destination of one shape from a source of one shape, whole or by tiles."""
import numpy

from . import _threads
from ._call import key
from ._operation import checked_shape, checked_tile, image, refuse_overlap
from .raw import lib
from .values import data_type

INTERPOLATIONS = {"nearest": lib.qvpInterpolationNearest, "linear": lib.qvpInterpolationLinear,
                  "cubic": lib.qvpInterpolationCubic, "super": lib.qvpInterpolationSuper,
                  "lanczos": lib.qvpInterpolationLanczos}


class Mapped:
    """What makes a destination of one shape from a source of one shape, whole or by tiles."""

    def prepare(self, src_shape, dst_shape, dtype):
        src_shape, dst_shape = checked_shape(src_shape, "the source's shape"), checked_shape(dst_shape)
        self.dtype = numpy.dtype(dtype)
        self.kind = data_type(dtype)
        self.channels = src_shape[2] if len(src_shape) == 3 else 1
        self.src_shape = tuple(src_shape)
        self.dst_shape = tuple(dst_shape[:2]) + self.src_shape[2:]
        self.src, self.dst = (src_shape[1], src_shape[0]), (dst_shape[1], dst_shape[0])
        self._key = self.dtype.num * 100 + self.channels

    def find(self, operation):
        found = operation.find(self._key)
        if found is None:
            raise TypeError(operation._complaint(numpy.empty((1, 1, self.channels), self.dtype), None))
        return found[0]

    def new(self, shape):
        return numpy.empty(shape, self.dtype)

    def __call__(self, a, out=None, *, tile=None, threads=None, copy=False):
        """The destination, or its part tile=(row, column, height, width), in `out` or a new array."""
        if copy or key(a) != self._key or a.shape != self.src_shape:
            a = self._checked(a, copy)
        row, column, height, width = (0, 0, *self.dst_shape[:2]) if tile is None else checked_tile(tile, self.dst_shape)
        shape = (height, width, *self.src_shape[2:])
        if out is None:
            out = self.new(shape)
        elif not isinstance(out, numpy.ndarray) or out.shape != shape:
            raise ValueError(f"out must be an array of shape {shape}")
        if threads is None and tile is None and _threads._state["threads"] == 1:
            self._run(a, out, column, row)
            return out
        refuse_overlap(out, (a,))
        parts = _threads.strips(height, _threads.count(threads))
        _threads.run(lambda first, end: self._run(a, out[first:end], column, row + first), parts)
        return out

    def tile(self, part, origin, tile):
        """A tile of the destination from the part of the source that source(tile) tells, whose place is `origin`."""
        row, column, height, width = checked_tile(tile, self.dst_shape)
        part, needed = image(part), self.source(tile)
        if (part.shape[0] < needed[0] + needed[2] - origin[0] or part.shape[1] < needed[1] + needed[3] - origin[1]
                or needed[0] < origin[0] or needed[1] < origin[1]):
            raise ValueError(f"the tile needs the part {needed} of the source")
        out = self.new((height, width, *self.src_shape[2:]))
        self._run_on_part(part, origin, out, column, row)
        return out

    def _checked(self, a, copy):
        a = image(a, copy)
        if key(a) != self._key or a.shape != self.src_shape:
            raise ValueError(f"the source must be {self.dtype} of shape {self.src_shape}, not {a.dtype} of {a.shape}")
        return a
