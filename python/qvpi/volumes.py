"""Volumes: arrays of shape (D, H, W), planes of rows, of uint8, uint16, int16 or float32.

Positions are (x, y, z): x to the right, y down, z from plane to plane, and voxels lie at whole coordinates. Sizes are
shapes, tiles (plane, row, column, depth, height, width). Planes and rows may lie anywhere: a.transpose(1, 0, 2), which
shows them from above, is taken without a copy; what runs backwards is copied first. Integers are rounded to the
nearest, ties to even, and saturated. The result is the same to the bit by tiles, on any number of threads, and as a
whole.
"""
import numpy

from ._errors import Error
from ._mapped import INTERPOLATIONS
from ._plan import NAMES, make_call
from ._records import Buffers, cached, memory, size_of
from ._volume import Mapped3D, call_for, calls_of, in_slabs, volume, volume_shape, volume_tile, written, xyz
from .arithmetic import choice
from .raw import ffi, lib

__all__ = ["Remap3D", "Resizer3D", "Warp3D", "affine_bound3d", "affine_inverse3d", "affine_product3d",
           "affine_transform3d", "copy_border3d", "remap3d", "resize3d", "rotation3d", "warp_affine3d"]

_WIDTHS = "topBorderHeight leftBorderWidth frontBorderDepth"
_BORDERS = {"replicate": calls_of("CopyReplicateBorder", f"src dst {_WIDTHS}"),
            "constant": calls_of("CopyConstBorder", f"src dst {_WIDTHS} value")}


def copy_border3d(a, front, back, top, bottom, left, right, out=None, *, border="constant", value=0, copy=False):
    """The volume with planes, rows and columns around it, as numpy.pad.

    border: 'constant' (`value`) or 'replicate' (the nearest voxel of the volume).
    """
    a = volume(a, copy)
    widths = [int(width) for width in (front, back, top, bottom, left, right)]
    if min(widths) < 0:
        raise ValueError("borders cannot be narrower than nothing")
    shape = [n + before + behind for n, before, behind in zip(a.shape, widths[::2], widths[1::2])]
    call = call_for(choice(_BORDERS, border, "border"), a.dtype)
    values = (value,) if border == "constant" else ()
    return written(out, shape, a.dtype, lambda result: call(a, result, widths[2], widths[4], widths[0], *values))


# ---- resizing

_METHODS = {"nearest": "", "linear": "", "cubic": "valueB valueC", "lanczos": "numLobes", "super": ""}
_EDGES = {"replicate": lib.qvpBorderReplicate, "mirror": lib.qvpBorderMirror}
_RESIZE = calls_of("Resize", "src dst dstOffset borderType spec buffer")
_RESIZE_SIZE = make_call("qvprResizeGetSize", "srcVolume dstVolume dataType interpolation specSize")
_RESIZE_INIT = {method: make_call(f"qvprResize{method.title()}Init", f"srcVolume dstVolume dataType {given} spec")
                for method, given in _METHODS.items()}
_RESIZE_BUFFER = make_call("qvprResizeGetBufferSize", "spec dstVolume bufSize")
_RESIZE_SOURCE = make_call("qvprResizeGetSrcCuboid", "spec dstCuboid srcCuboid")


class Resizer3D(Mapped3D):
    """Resizes volumes of one shape to another: r = Resizer3D(a.shape, (d, h, w), a.dtype, method='cubic'); r(a).

    method: 'nearest', 'linear', 'cubic' (Mitchell and Netravali's `b` and `c`), 'lanczos' (2 or 3 `lobes`), 'super',
    the mean over the space of a destination voxel, for reductions. border: 'replicate' or 'mirror', beyond the source.
    Centres of voxels: destination column d lies at (d + 0.5) * W_src / W_dst - 0.5, rows and planes likewise.
    """

    def __init__(self, src_shape, dst_shape, dtype, method="linear", *, border="replicate", b=0.0, c=0.5, lobes=3):
        self.prepare(src_shape, dst_shape, dtype, _RESIZE)
        given = choice(_METHODS, method, "method")
        self._edge = choice(_EDGES, border, "border")
        self._spec = memory(size_of(_RESIZE_SIZE, self.src, self.dst, self.kind, INTERPOLATIONS[method]))
        parameters = {"valueB": b, "valueC": c, "numLobes": lobes}
        _RESIZE_INIT[method](self.src, self.dst, self.kind, *(parameters[role] for role in given.split()), self._spec)
        self._buffers = Buffers(size_of(_RESIZE_BUFFER, self._spec, self.dst))

    def source(self, tile):
        """(plane, row, column, depth, height, width) of what a tile of the destination is made from."""
        first, lengths = volume_tile(tile, self.dst_shape)
        cuboid = numpy.zeros(6, numpy.int32)
        _RESIZE_SOURCE(self._spec, (*xyz(first), *xyz(lengths)), cuboid)
        numbers = cuboid.tolist()
        return *xyz(numbers[:3]), *xyz(numbers[3:])

    def tile(self, part, origin, tile):
        """A tile of the destination from the part of the source that source(tile) tells, whose place is `origin`."""
        first, lengths = volume_tile(tile, self.dst_shape)
        part, needed = volume(part), self.source(tile)
        if part.dtype != self.dtype or not all(
                place <= begin and begin + n <= place + length
                for place, length, begin, n in zip(origin, part.shape, needed[:3], needed[3:])):
            raise ValueError(f"the tile needs the part {needed} of the source, {self.dtype}")
        part, out = numpy.ascontiguousarray(part), numpy.empty(lengths, self.dtype)
        self._run_on_part(part, origin, out, first)
        return out

    def _run(self, a, out, first):
        buffer = self._buffers.take()
        self._call(a, out, xyz(first), self._edge, self._spec, buffer)
        self._buffers.give(buffer)

    def _run_on_part(self, part, origin, out, first):
        """As _run, with the address where the whole source would begin if there were more of it than the part."""
        begin = part.ctypes.data - sum(place * stride for place, stride in zip(origin, part.strides))
        buffer = self._buffers.take()
        src, dst, spec, work = (ffi.cast("void*", address) for address in
                                (begin, out.ctypes.data, self._spec.ctypes.data, buffer.ctypes.data))
        name = f"qvprResize_{NAMES[self.dtype.num]}_C1V"
        status = getattr(lib, name)(src, part.strides[1], part.strides[0], dst, out.strides[1], out.strides[0],
                                    xyz(first), xyz(out.shape), self._edge, spec, work)
        self._buffers.give(buffer)
        if status < 0:
            raise Error(status, name)


@cached
def _resizer(src_shape, dst_shape, dtype, method, options):
    return Resizer3D(src_shape, dst_shape, dtype, method, **dict(options))


def resize3d(a, shape, out=None, *, method="linear", threads=None, copy=False, **options):
    """The volume in another shape, (D, H, W); see Resizer3D for the options."""
    a = volume(a, copy)
    return _resizer(a.shape, tuple(shape), a.dtype, method, tuple(options.items()))(a, out, threads=threads)


# ---- warps

_OUTSIDE = {"replicate": lib.qvpBorderReplicate, "constant": lib.qvpBorderConst,
            "transparent": lib.qvpBorderTransparent}
_WARP = calls_of("WarpAffine", "src dst dstOffset spec buffer")
_WARP_SIZE = make_call("qvprWarpAffineGetSize",
                       "srcVolume dstVolume dataType coeffs direction borderType interpolation specSize")
_WARP_INIT = {method: make_call(f"qvprWarpAffine{method.title()}Init", "srcVolume dstVolume dataType coeffs direction "
                                f"borderType borderValue {'valueB valueC' if method == 'cubic' else ''} spec")
              for method in ("nearest", "linear", "cubic")}
_WARP_BUFFER = make_call("qvprWarpGetBufferSize", "spec dstVolume bufSize")


class Warp3D(Mapped3D):
    """Moves volumes by a (3, 4) matrix: w = Warp3D(a.shape, a.dtype, matrix); w(a).

    The matrix maps source points (x, y, z) to destination points; inverse=True the other way. method: 'nearest',
    'linear', 'cubic' (with `b` and `c`). border: 'constant' (`value`), 'replicate', or 'transparent', which leaves
    voxels of `out` alone that come from outside.
    """

    def __init__(self, shape, dtype, matrix, dst_shape=None, method="linear", *, inverse=False, border="constant",
                 value=0.0, b=0.0, c=0.5):
        self.prepare(shape, shape if dst_shape is None else dst_shape, dtype, _WARP)
        init = choice(_WARP_INIT, method, "method")
        given = _numbers(matrix, (3, 4), "the matrix"), int(bool(inverse)), choice(_OUTSIDE, border, "border")
        sizes = self.src, self.dst, self.kind
        self._spec = memory(size_of(_WARP_SIZE, *sizes, *given, INTERPOLATIONS[method]))
        init(*sizes, *given, _numbers([value], (1,), "value"), *((b, c) if method == "cubic" else ()), self._spec)
        self._buffers = Buffers(size_of(_WARP_BUFFER, self._spec, self.dst))
        self.new = numpy.zeros if border == "transparent" else numpy.empty

    def _run(self, a, out, first):
        buffer = self._buffers.take()
        self._call(a, out, xyz(first), self._spec, buffer)
        self._buffers.give(buffer)


@cached
def _warp(shape, dtype, matrix, dst_shape, method, options):
    return Warp3D(shape, dtype, numpy.frombuffer(matrix).reshape(3, 4), dst_shape, method, **dict(options))


def warp_affine3d(a, matrix, shape=None, out=None, *, method="linear", threads=None, copy=False, **options):
    """The volume moved by a (3, 4) matrix from source to destination points, into one of `shape`; see Warp3D."""
    a = volume(a, copy)
    matrix = _numbers(matrix, (3, 4), "the matrix").tobytes()
    made = _warp(a.shape, a.dtype, matrix, shape and tuple(shape), method, tuple(options.items()))
    return made(a, out, threads=threads)


# ---- remap

_REMAP = calls_of("Remap", "src xMap yMap zMap dst interpolation")
_REMAP_METHODS = {"nearest": lib.qvpInterpolationNearest, "linear": lib.qvpInterpolationLinear,
                  "cubic": lib.qvpInterpolationCubic, "cubic classic": lib.qvpInterpolationCubicClassic}


class Remap3D:
    """Each destination voxel from the source point that three maps tell: m = Remap3D(x, y, z); m(a).

    x, y, z: float32 of the destination's shape. method: 'nearest', 'linear', 'cubic', 'cubic classic'. Voxels whose
    points are outside the source keep the value that `out` has; in a new array 0.
    """

    def __init__(self, x, y, z, method="linear"):
        self._method = choice(_REMAP_METHODS, method, "method")
        maps = [volume(axis, name=name) for axis, name in zip((x, y, z), "xyz")]
        if len({axis.shape for axis in maps}) > 1:
            raise ValueError("maps must have one shape")
        if len({axis.strides for axis in maps}) > 1:
            maps = [numpy.ascontiguousarray(axis) for axis in maps]
        self.maps = maps

    def __call__(self, a, out=None, *, threads=None, copy=False):
        a = volume(a, copy)
        call = call_for(_REMAP, a.dtype)

        def fill(result):
            def slab(begin, end):
                call(a, *(axis[begin:end] for axis in self.maps), result[begin:end], self._method)

            in_slabs(slab, result, (a, *self.maps), threads)

        return written(out, self.maps[0].shape, a.dtype, fill, numpy.zeros)


def remap3d(a, x, y, z, out=None, *, method="linear", threads=None, copy=False):
    """The volume at the points of three maps; see Remap3D."""
    return Remap3D(x, y, z, method)(a, out, threads=threads, copy=copy)


# ---- matrices

_ROTATE = make_call("qvprGetRotateTransform", "angle axis center coeffs")
_AFFINE = make_call("qvprGetAffineTransform", "srcCuboid corners coeffs")
_BOUND = make_call("qvprGetAffineBound", "srcCuboid bound coeffs")
_PRODUCT = make_call("qvprGetAffineProduct", "first second coeffs")
_INVERSE = make_call("qvprGetAffineInverse", "coeffs inverse")


def _numbers(values, shape, name):
    """As float64 of this shape."""
    values = numpy.ascontiguousarray(values, numpy.float64)
    if values.shape != shape:
        raise ValueError(f"{name} must have the shape {shape}, not {values.shape}")
    return values


def rotation3d(angle, axis, center):
    """The (3, 4) matrix that turns by `angle` degrees about an axis through `center`, both (x, y, z).

    Counter-clockwise for who looks along the axis: (0, 0, 1) turns each plane as qvpi.rotation does.
    """
    matrix = numpy.zeros((3, 4))
    _ROTATE(angle, tuple(_numbers(axis, (3,), "axis")), tuple(_numbers(center, (3,), "center")), matrix)
    return matrix


def affine_transform3d(shape, corners):
    """The (3, 4) matrix that takes the first voxel of a volume of `shape`, and the last ones from it along x, y and z,
    to four points (x, y, z).
    """
    matrix = numpy.zeros((3, 4))
    _AFFINE((0, 0, 0, *xyz(volume_shape(shape))), _numbers(corners, (4, 3), "corners"), matrix)
    return matrix


def affine_bound3d(shape, matrix):
    """The least and the greatest (x, y, z) to which a (3, 4) matrix takes voxels of a volume of `shape`: (2, 3)."""
    bound = numpy.zeros((2, 3))
    _BOUND((0, 0, 0, *xyz(volume_shape(shape))), bound, _numbers(matrix, (3, 4), "the matrix"))
    return bound


def affine_product3d(first, second):
    """The (3, 4) matrix that does `first`, then `second`."""
    matrix = numpy.zeros((3, 4))
    _PRODUCT(_numbers(first, (3, 4), "first"), _numbers(second, (3, 4), "second"), matrix)
    return matrix


def affine_inverse3d(matrix):
    """The (3, 4) matrix that undoes another one."""
    inverse = numpy.zeros((3, 4))
    _INVERSE(_numbers(matrix, (3, 4), "the matrix"), inverse)
    return inverse
