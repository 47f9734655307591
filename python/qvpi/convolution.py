"""Convolutions of two images."""
import numpy

from ._call import key
from ._operation import Operation, channels, forgiving, image
from ._plan import make_call
from ._records import memory, size_of
from .arithmetic import choice
from .values import DATA_TYPES

__all__ = ["convolve"]

_MODES = {mode: {divided: Operation(f"Convolve{mode.title()}", f"src1 src2 dst {divided}method buffer",
                                      free=("src1", "src2", "dst")) for divided in ("", "divisor ")}
           for mode in ("full", "same", "valid")}
_METHODS = {"auto": 0, "direct": 1, "fourier": 2}
_CONVOLVE_SIZE = make_call("qvpiConvolveGetBufferSize", "src1Size src2Size dataType numChannels method bufferSize")


def _convolved(mode, a, b):
    """Sides of a convolution."""
    more = {"full": 1, "valid": -1}.get(mode, 0)
    return tuple(n + more * (k - 1) for n, k in zip(a.shape[:2], b.shape[:2])) + a.shape[2:]


def convolve(a, b, out=None, *, mode="same", divisor=1, method="auto", copy=False):
    """The convolution of two images, of the same dtype and channels: uint8, int16, float32.

    mode: 'full', 'same' (as large as a), 'valid' (where b lies within a). Integers are divided by the divisor, rounded
    and saturated: exactly, by whatever method. method: 'direct', 'fourier', or 'auto', the one that is faster.
    """
    a, b = image(a, copy), image(b, copy)
    operation = choice(_MODES, mode, "mode")["divisor " if a.dtype.kind in "iu" else ""]
    found, way = operation.find(key(a)), choice(_METHODS, method, "method")
    if found is None or key(a) != key(b):
        raise TypeError(f"there are convolutions of uint8, int16 and float32 with 1, 3 or 4 channels, of two alike; "
                        f"not of {a.dtype} {a.shape} and {b.dtype} {b.shape}")
    wanted = _convolved(mode, a, b)
    if min(wanted) < 1:
        raise ValueError(f"b, of shape {b.shape}, does not lie within a, of shape {a.shape}")
    if out is None:
        out = numpy.empty(wanted, a.dtype)
    elif out.shape != wanted:
        raise ValueError(f"out has the shape {out.shape}, expected {wanted}")
    count, sizes = channels(a), [n.shape[1::-1] for n in (a, b)]
    buffer = memory(size_of(_CONVOLVE_SIZE, *sizes, DATA_TYPES[a.dtype.num], count, way))
    forgiving(found[0], (a, b), (out,), (divisor, way, buffer) if a.dtype.kind in "iu" else (way, buffer))
    return out
