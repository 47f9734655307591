"""Images of another size.

Images have the shape (H, W), or (H, W, C) with 3 or 4 channels; sizes are shapes, (H, W). The result is the same to the
bit by tiles, on any number of threads, and as a whole.
"""
import numpy

from ._mapped import INTERPOLATIONS, Mapped
from ._operation import Operation, checked_tile, image
from ._plan import NUMBERS, make_call
from ._records import Buffers, cached, memory, size_of
from .arithmetic import choice
from .raw import lib

__all__ = ["Resizer", "resize"]

_EDGES = {"replicate": lib.qvpBorderReplicate, "mirror": lib.qvpBorderMirror}
_TAIL = "border borderValue spec buffer"
_METHODS = {
    "nearest": Operation("ResizeNearest", "src dst dstOffset spec buffer", free=("src",)),
    "linear": Operation("ResizeLinear", f"src dst dstOffset {_TAIL}", free=("src",)),
    "cubic": Operation("ResizeCubic", f"src dst dstOffset {_TAIL}", free=("src",)),
    "lanczos": Operation("ResizeLanczos", f"src dst dstOffset {_TAIL}", free=("src",)),
    "super": Operation("ResizeSuper", "src dst dstOffset spec buffer", free=("src",)),
}
_ANTIALIASED = Operation("ResizeAntialiasing", f"src dst dstOffset {_TAIL}", free=("src",))
_RESIZE_ROLES = {"Nearest": "spec", "Linear": "spec", "Super": "spec", "Cubic": "valueB valueC spec initBuf",
                 "Lanczos": "numLobes spec initBuf", "AntialiasingLinear": "spec initBuf",
                 "AntialiasingCubic": "valueB valueC spec initBuf", "AntialiasingLanczos": "numLobes spec initBuf"}


def _resize_call(name, roles, suffix):
    return make_call(f"qvpiResize{name}{suffix}", roles)


class Resizer(Mapped):
    """Resizes images of one shape to another: r = Resizer(a.shape, (h, w), a.dtype, method='lanczos'); r(a).

    method: 'nearest', 'linear', 'cubic' (Mitchell and Netravali's `b` and `c`), 'lanczos' (2 or 3 `lobes`), 'super',
    the mean over the area of a destination pixel, for reductions. antialias: linear, cubic and Lanczos kernels widened
    so that every source pixel counts. border: 'replicate' or 'mirror', beyond the source. Centres of pixels:
    destination column d lies at (d + 0.5) * W_src / W_dst - 0.5. uint8, uint16, int16, float32, float64 by 'linear'.
    accurate=True: uint8 in single precision instead of 16-bit weights.
    """

    def __init__(self, src_shape, dst_shape, dtype, method="linear", antialias=False, *, border="replicate", b=0.0,
                 c=0.5, lobes=3, accurate=False):
        self.prepare(src_shape, dst_shape, dtype)
        interpolation = choice(INTERPOLATIONS, method, "method")
        antialias = bool(antialias) and method in ("linear", "cubic", "lanczos")
        self._call = self.find(_ANTIALIASED if antialias else _METHODS[method])
        code = next(name for name, number in NUMBERS.items() if number == self.dtype.num)
        size = _resize_call("GetSize", "srcSize dstSize interpolation antialiasing specSize initBufSize", f"_{code}")
        spec, init = size_of(size, self.src, self.dst, interpolation, int(antialias), count=2)
        self._spec, self._init = memory(spec), memory(init)
        self._fill(method, antialias, code, {"valueB": b, "valueC": c, "numLobes": lobes})
        if accurate and not antialias and method in ("linear", "cubic", "lanczos"):
            _RESIZE_MODE(lib.qvpAlgHintAccurate, self._spec)
        buffer = _resize_call("GetBufferSize", "spec dstSize numChannels bufSize", f"_{code}")
        self._buffers = Buffers(size_of(buffer, self._spec, self.dst, self.channels))
        self._offset = _resize_call("GetSrcOffset", "spec dstOffset srcOffset", f"_{code}")
        edge = choice(_EDGES, border, "border")
        self._edge = () if method in ("nearest", "super") else (edge, None)

    def _fill(self, method, antialias, code, parameters):
        name = f"{'Antialiasing' if antialias else ''}{method.title()}"
        roles = _RESIZE_ROLES[name]
        init = _resize_call(f"{name}Init", f"srcSize dstSize {roles}", "" if antialias else f"_{code}")
        places = {"spec": self._spec, "initBuf": self._init, **parameters}
        init(self.src, self.dst, *(places[role] for role in roles.split()))

    def source(self, tile):
        """(row, column, height, width) of what a tile of the destination is made from."""
        row, column, height, width = checked_tile(tile, self.dst_shape)
        offset, size, sides = numpy.zeros(2, numpy.int32), numpy.zeros(2, numpy.int32), numpy.zeros(4, numpy.uint32)
        _SRC_ROI(self._spec, (column, row, width, height), offset, size)
        _REACH(self._spec, sides)
        reach = sides.astype(int)
        first = numpy.maximum(offset - reach[:2], 0)
        end = numpy.minimum(offset + size + reach[2:], self.src)
        return int(first[1]), int(first[0]), int(end[1] - first[1]), int(end[0] - first[0])

    def _run(self, a, out, x, y):
        self._run_on_part(a, (0, 0), out, x, y)

    def _run_on_part(self, a, origin, out, x, y):
        if x or y:
            offset = numpy.zeros(2, numpy.int32)
            self._offset(self._spec, (x, y), offset)
            a = a[offset[1] - origin[0]:, offset[0] - origin[1]:]
        buffer = self._buffers.take()
        self._call(a, out, (x, y), *self._edge, self._spec, buffer)
        self._buffers.give(buffer)


# The same for every type of records without `_L`.
_SRC_ROI = _resize_call("GetSrcRoi", "spec dstRoi srcRoiOffset srcRoiSize", "_8u")
_REACH = _resize_call("GetBorderSize", "spec borderSize", "_8u")
_RESIZE_MODE = make_call("qvpiResizeSetMode", "hint spec")


@cached
def _resizer(src_shape, dst_shape, dtype, method, antialias, options):
    return Resizer(src_shape, dst_shape, dtype, method, antialias, **dict(options))


def resize(a, shape, out=None, *, method="linear", antialias=False, threads=None, copy=False, **options):
    """The image in another shape, (H, W); see Resizer for the options."""
    if type(a) is not numpy.ndarray:
        a = image(a)
    made = _resizer(a.shape, tuple(shape), a.dtype, method, antialias, tuple(options.items()))
    return made(a, out, threads=threads, copy=copy)
