"""Images of another shape by two maps, which tell for each destination pixel the source point (x, y) that it takes.

Images have the shape (H, W), or (H, W, C) with 3 or 4 channels; pixels lie at whole coordinates. The result is the same
to the bit on any number of threads.
"""
import numpy

from . import _threads
from ._call import key
from ._mapped import INTERPOLATIONS
from ._operation import Operation, forgiving, image, refuse_overlap
from .raw import lib

__all__ = ["Remap", "remap"]

_REMAP = Operation("Remap", "src xMap yMap dst srcRoi interpolation", free=("src",))
_REMAP_METHODS = INTERPOLATIONS | {"cubic classic": lib.qvpInterpolationCubicClassic}
_WHOLE = ("nearest", "linear", "cubic", "cubic classic", "lanczos")


class Remap:
    """Each destination pixel from the source point that two maps tell: m = Remap(x, y); m(a).

    x, y: float32 of the destination's shape (float64 for float64 images). method: 'nearest', 'linear', 'cubic', 'cubic
    classic', 'lanczos'. Pixels whose points are outside the source keep the value that `out` has; in a new array 0.
    smooth: points up to a pixel outside blend into it.
    """

    def __init__(self, x, y, method="linear", smooth=False):
        if method not in _WHOLE:
            raise ValueError(f"method must be one of {', '.join(map(repr, _WHOLE))}, not {method!r}")
        self.x, self.y = image(x, name="x"), image(y, name="y")
        self._method = _REMAP_METHODS[method] | (lib.qvpSmoothEdge if smooth else 0)

    def __call__(self, a, out=None, *, threads=None, copy=False):
        a = image(a, copy)
        found = _REMAP.find(key(a))
        if found is None:
            raise TypeError(_REMAP._complaint(a, None))
        if out is None:
            out = numpy.zeros((*self.x.shape, *a.shape[2:]), a.dtype)
        image(out, name="out")
        if out.shape[:2] != self.x.shape or self.x.shape != self.y.shape:
            raise ValueError("maps and destination must have one shape")
        refuse_overlap(out, (a, self.x, self.y))
        roi = 0, 0, a.shape[1], a.shape[0]

        def strip(first, end):
            forgiving(found[0], (a, self.x[first:end], self.y[first:end]), (out[first:end],), (roi, self._method))

        _threads.run(strip, _threads.strips(out.shape[0], _threads.count(threads)))
        return out


def remap(a, x, y, out=None, *, method="linear", smooth=False, threads=None, copy=False):
    """The image at the points of two maps; see Remap."""
    return Remap(x, y, method, smooth)(a, out, threads=threads, copy=copy)
