"""Images of another shape: warps by a matrix, and the matrices.

Images have the shape (H, W), or (H, W, C) with 3 or 4 channels. Positions are (x, y), x to the right and y down, and
pixels lie at whole coordinates; sizes are shapes, (H, W). The result is the same to the bit by tiles, on any number of
threads, and as a whole.
"""
from functools import partial

import numpy

from ._errors import Error
from ._mapped import INTERPOLATIONS, Mapped
from ._operation import Operation, checked_tile, image
from ._plan import make_call
from ._records import Buffers, cached, memory, size_of
from .arithmetic import choice
from .raw import ffi, lib

__all__ = ["Warp", "affine_transform", "bilinear_transform", "perspective_transform", "rotate", "rotation",
           "warp_affine", "warp_bilinear", "warp_bilinear_quad", "warp_perspective", "warp_quad"]

_OUTSIDE = {"replicate": lib.qvpBorderReplicate, "constant": lib.qvpBorderConst,
            "transparent": lib.qvpBorderTransparent}
_WARP_METHODS = ("nearest", "linear", "cubic")
# The family of functions, by the shape of what describes the transform: coefficients or two quadrangles.
_KINDS = {(2, 3): "Affine", (3, 3): "Perspective", (2, 4): "Bilinear", (2, 4, 2): "BilinearQuad"}
_CALL = "src dst dstRoiOffset spec buffer"
_WARPS = {(kind, method): Operation(f"Warp{kind}{method.title()}", _CALL, free=("src",))
          for kind in ("Affine", "Perspective") for method in _WARP_METHODS}
_ANY_METHOD = {kind: Operation(f"Warp{kind}", _CALL, free=("src",))
               for kind in ("Bilinear", "BilinearBack", "BilinearQuad")}
_GEOMETRY = {kind: "srcQuad dstQuad" if kind == "BilinearQuad" else "coeffs direction" for kind in _KINDS.values()}
_WARP_SIZE = {kind: make_call(f"qvpiWarp{kind}GetSize", "srcSize dstSize dataType "
                              f"{given} interpolation borderType specSize initBufSize")
              for kind, given in _GEOMETRY.items()}
_OPTIONS = "numChannels borderType borderValue smoothEdge spec"
_CUBIC = " valueB valueC initBuf"
_WARP_INIT = {(kind, method): make_call(f"qvpiWarp{kind}{method.title()}Init", f"srcSize dstSize dataType {given} "
                                        f"{_OPTIONS}{_CUBIC if method == 'cubic' else ''}")
              for kind, given in _GEOMETRY.items() for method in _WARP_METHODS}
_WARP_BUFFER = make_call("qvpiWarpGetBufferSize", "spec dstSize bufSize")


class Warp(Mapped):
    """Warps by a matrix: w = Warp(a.shape, a.dtype, matrix); w(a).

    The matrix maps source points (x, y) to destination points; inverse=True the other way. Its shape tells what it is:
    (2, 3) affine, (3, 3) perspective, (2, 4) bilinear, of x y, x, y and 1; (2, 4, 2) the corners of a quadrangle of the
    source and of one of the destination, which is all that is written. method: 'nearest', 'linear', 'cubic' (with `b`
    and `c`). border: 'constant' (`value`), 'replicate', or 'transparent', which leaves pixels of `out` alone that fall
    outside. smooth: edges blend into what was there. All five dtypes.
    """

    def __init__(self, shape, dtype, matrix, dst_shape=None, method="linear", *, inverse=False, border="constant",
                 value=0.0, smooth=False, b=0.0, c=0.5):
        self.prepare(shape, shape if dst_shape is None else dst_shape, dtype)
        matrix = numpy.ascontiguousarray(matrix, numpy.float64)
        if matrix.shape not in _KINDS or not numpy.isfinite(matrix).all():
            raise ValueError("the matrix must have finite numbers, of shape (2, 3), (3, 3), (2, 4) or (2, 4, 2)")
        kind = _KINDS[matrix.shape]
        if method not in _WARP_METHODS:
            raise ValueError(f"method must be one of {', '.join(map(repr, _WARP_METHODS))}, not {method!r}")
        outside, direction = choice(_OUTSIDE, border, "border"), int(bool(inverse))
        back = "Back" if inverse and kind == "Bilinear" else ""
        operation = _WARPS.get((kind, method)) or _ANY_METHOD[kind + back]
        self._call = self.find(operation)
        self._name = operation.name_for(self._key)
        self._keeps = border == "transparent" or smooth or kind == "BilinearQuad"
        given = tuple(matrix) if kind == "BilinearQuad" else (matrix, direction)
        sizes = size_of(_WARP_SIZE[kind], self.src, self.dst, self.kind, *given, INTERPOLATIONS[method], outside,
                        count=2)
        self._spec = memory(sizes[0])
        values = numpy.ascontiguousarray(numpy.broadcast_to(numpy.asarray(value, numpy.float64), (self.channels,)))
        cubic = (b, c, memory(sizes[1])) if method == "cubic" else ()
        _WARP_INIT[kind, method](self.src, self.dst, self.kind, *given, self.channels, outside, values,
                                 int(bool(smooth)), self._spec, *cubic)
        self._buffers = Buffers(size_of(_WARP_BUFFER, self._spec, self.dst))
        self._to_source = _back(matrix, inverse) if kind in ("Affine", "Perspective") else None

    def source(self, tile):
        """(row, column, height, width) of what a tile of the destination is made from, of an affine warp or a
        perspective: a part of the source, around where the corners of the tile come from.
        """
        if self._to_source is None:
            raise TypeError("only for matrices of shape (2, 3) and (3, 3)")
        row, column, height, width = checked_tile(tile, self.dst_shape)
        right = column + width + _VECTOR  # kernels place points by whole vectors
        corners = numpy.array([(x, y, 1.0) for x in (column, right) for y in (row, row + height)])
        points = corners @ self._to_source.T
        if points[:, 2].min() <= 0 <= points[:, 2].max():
            return (0, 0, *self.src_shape[:2])  # a line of the tile comes from infinity
        places = (points[:, :2] / points[:, 2:])[:, ::-1]
        limits = numpy.array(self.src_shape[:2])
        first = numpy.clip(numpy.floor(places.min(0)) - _REACH, 0, limits - 1).astype(int)
        end = numpy.clip(numpy.ceil(places.max(0)) + _REACH, first + 1, limits).astype(int)
        return (*first.tolist(), *(end - first).tolist())

    def _run_on_part(self, part, origin, out, x, y):
        """As _run, with the address where the whole source would begin if there were more of it than the part."""
        part = numpy.ascontiguousarray(part)
        row, pixel = part.strides[:2]
        begin = part.ctypes.data - origin[0] * row - origin[1] * pixel
        buffer = self._buffers.take()
        src, dst, spec, work = (ffi.cast("void*", address) for address in
                                (begin, out.ctypes.data, self._spec.ctypes.data, buffer.ctypes.data))
        status = getattr(lib, self._name)(src, row, dst, out.strides[0], (x, y), out.shape[1::-1], spec, work)
        self._buffers.give(buffer)
        if status < 0:
            raise Error(status, self._name)

    def new(self, shape):
        return numpy.zeros(shape, self.dtype) if self._keeps else numpy.empty(shape, self.dtype)

    def _run(self, a, out, x, y):
        buffer = self._buffers.take()
        self._call(a, out, (x, y), self._spec, buffer)
        self._buffers.give(buffer)


# Pixels that taps and loads of whole words may take around a point, and points that a kernel may place at once.
_REACH, _VECTOR = 8, 64


def _back(matrix, inverse):
    """The (3, 3) matrix from destination to source points."""
    square = matrix if matrix.shape == (3, 3) else numpy.vstack([matrix, (0, 0, 1)])
    return square if inverse else numpy.linalg.inv(square)


@cached
def _warp(shape, dtype, matrix, matrix_shape, dst_shape, method, options):
    return Warp(shape, dtype, numpy.frombuffer(matrix).reshape(matrix_shape), dst_shape, method, **dict(options))


def _maker(shape, dtype, matrix, matrix_shape, dst_shape, method, options):
    """Makes a Warp, or takes the one that was made for the same arguments."""
    matrix = numpy.ascontiguousarray(matrix, numpy.float64)
    if matrix.shape != matrix_shape:
        raise ValueError(f"the matrix must have the shape {matrix_shape}")
    values = {name: tuple(value) if isinstance(value, (list, numpy.ndarray)) else value
              for name, value in options.items()}
    return partial(_warp, shape, dtype, matrix.tobytes(), matrix_shape, dst_shape and tuple(dst_shape), method,
                   tuple(values.items()))


def _warped(a, matrix, matrix_shape, dst_shape, method, out, threads, copy, options):
    a = image(a)
    made = _maker(a.shape, a.dtype, matrix, matrix_shape, dst_shape, method, options)()
    return made(a, out, threads=threads, copy=copy)


def warp_affine(a, matrix, shape=None, out=None, *, method="linear", threads=None, copy=False, **options):
    """The image moved by a (2, 3) matrix from source to destination points, into an image of `shape`; see Warp."""
    return _warped(a, matrix, (2, 3), shape, method, out, threads, copy, options)


def warp_perspective(a, matrix, shape=None, out=None, *, method="linear", threads=None, copy=False, **options):
    """The image moved by a (3, 3) matrix from source to destination points, into an image of `shape`; see Warp."""
    return _warped(a, matrix, (3, 3), shape, method, out, threads, copy, options)


def warp_quad(a, src_quad, dst_quad, shape=None, out=None, **options):
    """Warps so that four source points fall on four destination points; see Warp for the options."""
    return warp_perspective(a, perspective_transform(src_quad, dst_quad), shape, out, **options)


def warp_bilinear(a, matrix, shape=None, out=None, *, method="linear", threads=None, copy=False, **options):
    """The image moved by a (2, 4) matrix from source to destination points, into an image of `shape`; see Warp."""
    return _warped(a, matrix, (2, 4), shape, method, out, threads, copy, options)


def warp_bilinear_quad(a, src_quad, dst_quad, shape=None, out=None, *, method="linear", threads=None, copy=False,
                       **options):
    """A quadrangle of the image, laid bilinearly into one of `out`, or of a new black image; see Warp.

    Corners are (x, y), around each quadrangle. Meshes of quadrangles leave no gap.
    """
    if out is not None and shape is None:
        shape = numpy.shape(out)[:2]
    return _warped(a, (src_quad, dst_quad), (2, 4, 2), shape, method, out, threads, copy, options)


def bilinear_transform(shape, quad):
    """The (2, 4) matrix that takes the corners of an image of `shape` to four points, clockwise from the top left."""
    matrix = numpy.zeros((2, 4))
    _BILINEAR((0, 0, shape[1], shape[0]), numpy.ascontiguousarray(quad, float), matrix)
    return matrix


_BILINEAR = make_call("qvpiGetBilinearTransform", "srcRoi quad coeffs")


def _transform(call, src, dst, points, rows):
    src, dst = (numpy.asarray(corners, float) for corners in (src, dst))
    if src.shape != (points, 2) or dst.shape != (points, 2):
        raise ValueError(f"{'three' if points == 3 else 'four'} points (x, y) are needed on both sides")
    order = [0, 1, 1, 2] if points == 3 else [0, 1, 2, 3]  # the affine form takes the corners 0, 1 and 3
    matrix = numpy.zeros((rows, 3))
    call(src[order], dst[order], matrix)
    return matrix


def affine_transform(src, dst):
    """The (2, 3) matrix that takes three points to three others."""
    return _transform(_AFFINE_QUAD, src, dst, 3, 2)


def perspective_transform(src, dst):
    """The (3, 3) matrix that takes the corners of a convex quadrangle to those of another."""
    return _transform(_PERSPECTIVE_QUAD, src, dst, 4, 3)


def rotation(angle, center, factor=1.0, to=None):
    """The (2, 3) matrix that turns by `angle` degrees counter-clockwise about `center`, (x, y), and scales by `factor`.

    to: where the center goes, if it does not stay.
    """
    matrix = numpy.zeros((2, 3))
    _ROTATE_SCALE(*center, *(center if to is None else to), angle, factor, matrix)
    return matrix


def rotate(a, angle, out=None, *, fit="canvas", method="linear", threads=None, copy=False, **options):
    """The whole image turned by `angle` degrees counter-clockwise; see Warp for the options.

    fit: 'canvas', just large enough for all corners; 'inside', what of it has pixels of the image only.
    """
    a = image(a, copy)
    size, roi, shift = numpy.zeros(2, numpy.int32), numpy.zeros(4, numpy.int32), numpy.zeros((2, 1))
    _ROTATE_FIT((a.shape[1], a.shape[0]), angle, size, shift[0], shift[1])
    if fit == "inside":
        _ROTATE_INSIDE((a.shape[1], a.shape[0]), angle, roi)
    elif fit == "canvas":
        roi[2:] = size
    else:
        raise ValueError(f"fit must be one of 'canvas', 'inside', not {fit!r}")
    matrix = numpy.zeros((2, 3))
    _ROTATE(angle, shift[0, 0] - roi[0], shift[1, 0] - roi[1], matrix)
    return warp_affine(a, matrix, (int(roi[3]), int(roi[2])), out, method=method, threads=threads, **options)


_AFFINE_QUAD = make_call("qvpiGetAffineQuadTransform", "srcQuad dstQuad coeffs")
_PERSPECTIVE_QUAD = make_call("qvpiGetPerspectiveQuadTransform", "srcQuad dstQuad coeffs")
_ROTATE_SCALE = make_call("qvpiGetRotateScaleTransform", "xSrc ySrc xDst yDst angle scale coeffs")
_ROTATE_FIT = make_call("qvpiGetRotateFit", "srcSize angle dstSize shiftX shiftY")
_ROTATE_INSIDE = make_call("qvpiGetRotateInside", "srcSize angle roi")
_ROTATE = make_call("qvpiGetRotateTransform", "angle shiftX shiftY coeffs")
