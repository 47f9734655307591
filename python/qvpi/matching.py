"""Matching: where in an image a template is."""
import numpy

from ._call import key
from ._operation import Operation, channels, forgiving, image
from ._plan import NUMBERS, make_call
from ._records import memory, size_of
from .arithmetic import choice
from .values import DATA_TYPES

__all__ = ["match"]

_ROLES = "src tpl dst shape norm method buffer"
_MEASURES = {measure: {alpha: Operation(f"Match{measure.title()}", _ROLES, free=("src", "tpl", "dst"), alpha=alpha)
                       for alpha in (False, True)} for measure in ("correlation", "distance")}
_MODES = {"valid": (0, -1), "same": (1, 0), "full": (2, 1)}
_NORMS = {"plain": 0, "normed": 1, "centred": 2, "coefficient": 3}
_METHODS = {"auto": 0, "direct": 1, "fourier": 2}
_SIZE = make_call("qvpiMatchGetBufferSize", "dataType numChannels srcRoiSize tplRoiSize shape norm method bufferSize")


def match(a, template, out=None, *, measure="correlation", mode="valid", norm="coefficient", joint=False,
          method="auto", copy=False):
    """How alike a template and each window of an image are, float32: the template is where the correlation is largest.

    Both of the same dtype, uint8, uint16, int16 or float32, and channels, 1, 3 or 4. measure: 'correlation', or
    'distance', the squared one, which is least there. mode: 'valid' (windows inside the image; result [y, x] is that
    of the window that begins there), 'same' (one around each pixel), 'full'; outside are zeros. norm: 'plain' sums,
    'normed' by the lengths of both, 'centred', less the means, or both, the 'coefficient' from -1 to 1. joint: one
    result of all channels, but alpha, instead of one of each. method: 'direct', 'fourier', or 'auto', the one that is
    faster; of integers the results are exact, by whatever method.
    """
    a, template = image(a, copy), image(template, copy, "template")
    count, (shape, more) = channels(a), choice(_MODES, mode, "mode")
    operation = choice(_MEASURES, measure, "measure")[bool(joint) and count == 4]
    found = operation.find(key(a), NUMBERS["32f"], 1 if joint else count)
    if found is None or key(a) != key(template):
        raise TypeError(f"there is matching of uint8, uint16, int16 and float32 with 1, 3 or 4 channels, of two alike; "
                        f"not of {a.dtype} {a.shape} and {template.dtype} {template.shape}")
    sides = tuple(n + more * (k - 1) for n, k in zip(a.shape[:2], template.shape[:2]))
    if min(sides) < 1:
        raise ValueError(f"the template, of shape {template.shape}, does not lie within the image, of {a.shape}")
    wanted = sides if joint else sides + a.shape[2:]
    if out is None:
        out = numpy.empty(wanted, numpy.float32)
    elif out.shape != wanted:
        raise ValueError(f"out has the shape {out.shape}, expected {wanted}")
    values = shape, choice(_NORMS, norm, "norm"), choice(_METHODS, method, "method")
    sizes = [n.shape[1::-1] for n in (a, template)]
    buffer = memory(size_of(_SIZE, DATA_TYPES[a.dtype.num], count, *sizes, *values))
    forgiving(found[0], (a, template), (out,), (*values, buffer))
    return out
