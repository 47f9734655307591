"""Filters of volumes: each voxel from its neighbourhood.

Volumes are as in qvpi.volumes; results have the same shape and dtype. Sizes and anchors are (planes, rows, columns).
What lies outside of the volume is told by `border`, as in qvpi.filters: 'replicate', 'mirror', 'constant' (`value`).

    f = qvpi.Median3D(a.shape, a.dtype, 3)                             the work buffers are kept
    f(a)                                                               the whole volume
    f(a, tile=(plane, row, column, depth, height, width))              a part of the result, from all of the volume
    qvpi.median3d(a, 3)                                                makes such an object, and keeps it

`out` may be the volume itself, which is then copied first. `threads` splits the planes, with the same result to the
bit.
"""
import numpy

from ._neighbourhood import BORDERS, BOTTOM, LEFT, RIGHT, TOP, enlarged, is_same, made
from ._plan import make_call
from ._records import Buffers, memory, size_of
from ._volume import (LEAST_PLANES, call_for, calls_of, in_slabs, part_of, volume, volume_shape, volume_tile, written,
                      xyz)
from .arithmetic import ROUNDING, choice
from .kernels import kernel_of
from .raw import lib
from .values import data_type

__all__ = ["Filter3D", "Median3D", "Separable3D", "filter3d", "median3d", "separable3d"]

_FACES = (lib.qvpBorderInMemFront, lib.qvpBorderInMemBack), (TOP, BOTTOM), (LEFT, RIGHT)


def _triple_of(size, name="size"):
    """(planes, rows, columns) of a number or a triple."""
    triple = (size,) * 3 if isinstance(size, int) else size
    if not isinstance(triple, (tuple, list)) or len(triple) != 3 or not all(isinstance(n, int) for n in triple):
        raise TypeError(f"{name} must be an integer, or (planes, rows, columns)")
    return tuple(triple)


class _Filter3D:
    """What filters of volumes share: tiles, slabs, borders, work buffers. Subclasses tell the size of these."""

    values = ()  # operands between the destination and the border
    record = ()  # (spec,) of filters that have one

    def __init__(self, shape, dtype, mask, calls):
        self.shape, self.mask = volume_shape(shape), mask
        self._call, self.dtype, self.kind = call_for(calls, dtype), numpy.dtype(dtype), data_type(dtype)
        self.region = xyz(self.shape)

    def __call__(self, a, out=None, *, border="replicate", value=0, tile=None, threads=None, copy=False):
        a = volume(a, copy)
        if a.dtype != self.dtype or any(n > most for n, most in zip(a.shape, self.shape)):
            raise ValueError(f"the filter is for {self.dtype} up to {self.shape}, not {a.dtype} of {a.shape}")
        outside = choice(BORDERS, border, "border"), value if border == "constant" else None
        first, lengths = ((0, 0, 0), a.shape) if tile is None else volume_tile(tile, a.shape)
        if isinstance(out, numpy.ndarray) and is_same(out, a):
            a = a.copy()

        def fill(result):
            def slab(begin, end):
                self._part(a, result[begin:end], (first[0] + begin, *first[1:]), *outside)

            in_slabs(slab, result, (a,), threads, max(LEAST_PLANES, 2 * self.mask[0]))

        return written(out, lengths, self.dtype, fill)

    def _part(self, a, out, first, border, value):
        """The result from `first` on. What is near a face is made up to that face, and then cut."""
        if out.shape == a.shape:
            self._run(a, out, border, value)
            return
        wide = [enlarged(begin, begin + n, *of) for begin, n, *of in zip(first, out.shape, a.shape, self.mask)]
        begins, lengths = [begin for begin, _ in wide], tuple(end - begin for begin, end in wide)
        for (begin, end), length, (before, behind) in zip(wide, a.shape, _FACES):
            border |= (before if begin else 0) | (behind if end < length else 0)
        result = out if lengths == out.shape else numpy.empty(lengths, out.dtype)
        self._run(part_of(a, begins, lengths), result, border, value)
        if result is not out:
            out[...] = part_of(result, [place - begin for place, begin in zip(first, begins)], out.shape)

    def _run(self, a, out, border, value):
        buffer = self._buffers.take()
        self._call(a, out, *self.values, border, value, *self.record, buffer)
        self._buffers.give(buffer)


_MEDIAN = calls_of("FilterMedianBorder", "src dst maskVolume borderType borderValue buffer", free=())
_MEDIAN_SIZE = make_call("qvprFilterMedianBorderGetBufferSize", "maskVolume dstVolume dataType bufferSize")


class Median3D(_Filter3D):
    """The median under a mask. Floats are in the order of numbers, NaN beyond the infinities.

    size: odd, at most 32767 voxels. border: not 'mirror'.
    """

    def __init__(self, shape, dtype, size=3):
        super().__init__(shape, dtype, _triple_of(size), _MEDIAN)
        self.values = (xyz(self.mask),)
        self._buffers = Buffers(size_of(_MEDIAN_SIZE, *self.values, self.region, self.kind))


_FILTER = calls_of("FilterBorder", "src dst borderType borderValue spec buffer", free=())
_FILTER_SIZE = make_call("qvprFilterBorderGetSize", "kernelVolume dstVolume dataType kernelType specSize bufferSize")
_OPTIONS = "kernelVolume anchor dataType roundMode spec"
_FILTER_INIT = {lib.qvp16s: make_call("qvprFilterBorderInit_16s", f"kernel divisor {_OPTIONS}"),
                lib.qvp32f: make_call("qvprFilterBorderInit_32f", f"kernel {_OPTIONS}")}
_SEPARABLE_INIT = make_call("qvprFilterBorderSeparableInit_32f", f"kernelX kernelY kernelZ {_OPTIONS}")


class _Convolution(_Filter3D):
    def prepare(self, init, operands, taps, anchor, rounding):
        """The record, by an Init with these operands before those that all have."""
        size = xyz(self.mask)
        anchor = tuple(n // 2 for n in self.mask) if anchor is None else _triple_of(anchor, "anchor")
        spec, buffer = size_of(_FILTER_SIZE, size, self.region, self.kind, taps, count=2)
        self.record = (memory(spec),)
        init(*operands, size, xyz(anchor), self.kind, choice(ROUNDING, rounding, "rounding"), *self.record)
        self._buffers = Buffers(buffer)


class Filter3D(_Convolution):
    """Convolution with any kernel, which convolution turns; correlate=True turns it once more, for a correlation.

    kernel: 3-D; of integers with a `divisor`, which sums are divided by exactly (not for float32), or of floats.
    anchor: the cell of the kernel that meets the result's voxel, at first the middle one. rounding: 'near', 'zero',
    'financial'.
    """

    def __init__(self, shape, dtype, kernel, divisor=None, rounding="near", correlate=False, anchor=None):
        kernel = kernel_of(kernel, "float32", divisor, 3)
        super().__init__(shape, dtype, kernel.shape, _FILTER)
        if correlate:
            kernel = numpy.ascontiguousarray(kernel[::-1, ::-1, ::-1])
            if anchor is not None:
                anchor = tuple(n - 1 - k for n, k in zip(kernel.shape, _triple_of(anchor, "anchor")))
        taps = lib.qvp32f if divisor is None else lib.qvp16s
        operands = (kernel,) if divisor is None else (kernel, divisor)
        self.prepare(_FILTER_INIT[taps], operands, taps, anchor, rounding)


class Separable3D(_Convolution):
    """Convolution with the product of kernels of floats along rows, columns, and through the planes, which are turned.

    The sums between the three are single precision. anchor, rounding: as of Filter3D.
    """

    def __init__(self, shape, dtype, row, column, axial, rounding="near", anchor=None):
        kernels = [kernel_of(kernel, "float32", None, 1) for kernel in (row, column, axial)]
        super().__init__(shape, dtype, tuple(kernel.size for kernel in kernels[::-1]), _FILTER)
        self.prepare(_SEPARABLE_INIT, kernels, lib.qvp32f, anchor, rounding)


def median3d(a, size=3, out=None, **options):
    """See Median3D; options are border, value, threads, copy, as of every filter."""
    a = volume(a)
    return made(Median3D, a.shape, a.dtype, size)(a, out, **options)


def filter3d(a, kernel, out=None, *, divisor=None, rounding="near", correlate=False, anchor=None, **options):
    """See Filter3D."""
    a = volume(a)
    return Filter3D(a.shape, a.dtype, kernel, divisor, rounding, correlate, anchor)(a, out, **options)


def separable3d(a, row, column, axial, out=None, *, rounding="near", anchor=None, **options):
    """See Separable3D."""
    a = volume(a)
    return Separable3D(a.shape, a.dtype, row, column, axial, rounding, anchor)(a, out, **options)
