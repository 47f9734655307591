"""Frames whose chroma is subsampled: 4:2:0, as video and JPEG files have it.

A frame is a sequence of planes of uint8 or uint16: luma of shape (H, W), and chroma either as pairs, of shape
((H + 1) // 2, (W + 1) // 2, 2), or as two planes of shape ((H + 1) // 2, (W + 1) // 2).
"""
import numpy

from ._operation import image
from ._plan import FUNCTIONS, NAMES, make_call
from ._records import addresses, cached
from .arithmetic import choice
from .raw import lib

__all__ = ["decimate_frame"]

_FRACTIONS = {"1/2": lib.qvpDecimate1of2, "1/3": lib.qvpDecimate1of3, "1/4": lib.qvpDecimate1of4,
              "1/8": lib.qvpDecimate1of8, "2/3": lib.qvpDecimate2of3, "3/4": lib.qvpDecimate3of4,
              "3/8": lib.qvpDecimate3of8}


def _chroma(shape):
    return (shape[0] + 1) // 2, (shape[1] + 1) // 2


def _planes(frame):
    """The planes of a frame, of one dtype and of shapes that fit, with packed rows."""
    planes = [image(plane, name="plane") for plane in frame]
    if len(planes) not in (2, 3):
        raise ValueError("a frame has two or three planes")
    half = _chroma(planes[0].shape)
    shapes = [planes[0].shape[:2], half + (2,)] if len(planes) == 2 else [planes[0].shape[:2], half, half]
    for plane, shape in zip(planes, shapes):
        if plane.shape != shape or plane.dtype != planes[0].dtype:
            raise ValueError(f"a plane has the shape {plane.shape} of {plane.dtype}, expected {shape} of "
                             f"{planes[0].dtype}")
    return [numpy.ascontiguousarray(plane) for plane in planes]


def _empty(shape, like):
    """Planes of a frame with luma of this shape, of the kind that another one has."""
    half = _chroma(shape)
    return tuple(numpy.empty(shape if i == 0 else half + plane.shape[2:], plane.dtype) for i, plane in enumerate(like))


def _steps(planes):
    return numpy.array([plane.strides[0] for plane in planes], numpy.int32)


@cached
def _decimate_call(dtype, count):
    name = f"qvpiDecimate420_{NAMES.get(dtype.num)}_P{count}R"
    if name not in FUNCTIONS:
        raise TypeError(f"there are no frames of {dtype}")
    return make_call(name, "src srcStep dst dstStep dstSize fraction")


def decimate_frame(frame, fraction):
    """The frame at '1/2', '1/3', '1/4', '1/8', '2/3', '3/4' or '3/8' of its size: exact means of what samples cover.

    Lengths that no whole number of samples makes are cut: 1080 rows at 3/8 become 405, 1081 as well.
    """
    code = choice(_FRACTIONS, fraction, "fraction")
    planes = _planes(frame)
    to, of = (int(number) for number in fraction.split("/"))
    shape = tuple(length * to // of for length in planes[0].shape)
    results = _empty(shape, planes)
    call = _decimate_call(planes[0].dtype, len(planes))
    call(addresses(planes), _steps(planes), addresses(results), _steps(results), shape[::-1], code)
    return results
