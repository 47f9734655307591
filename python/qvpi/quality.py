"""How much of a picture is left in another one: the quality index, structural similarity.

Both images have the same shape and dtype, (H, W) or (H, W, C) with 3 or 4 channels. Results are a number for (H, W),
else an array with one number for each channel. `copy=True` copies what has gaps within its rows.
"""
import numpy

from ._errors import Error
from ._operation import Operation, channels, forgiving, image
from ._plan import make_call
from ._records import memory, size_of
from .raw import lib
from .statistics import _result
from .values import _found

__all__ = ["quality_index", "ssim"]

_INDEX = Operation("QualityIndex", "src1 src2 value")
_SIMILARITY = Operation("SSIM", "src1 src2 value windowSize sigma c1 c2 buffer")
_BUFFER = make_call("qvpiSSIMGetBufferSize", "roiSize windowSize numChannels bufferSize")


def quality_index(a, b, *, copy=False):
    """The index of Wang and Bovik (2002) over the whole image: 1 for the same image, down to -1.

    A factor whose denominator is zero, as of flat images, counts as 1. uint8, uint16, int16, float32.
    """
    b = image(b, copy)
    a, call = _found(_INDEX, a, copy)
    values = numpy.zeros(channels(a))
    try:
        forgiving(call, (a, b), (), (values,))
    except Error as error:  # all values are there
        if error.status != lib.qvpStatusQualityIndex:
            raise
    return _result(values, a)


def ssim(a, b, *, size=11, sigma=1.5, peak=None, factors=(0.01, 0.03), copy=False):
    """Structural similarity (Wang, Bovik, Sheikh, Simoncelli, 2004): the mean over all windows within the image.

    size: the side of a window, 2 to 31 pixels. sigma: of its weights, in pixels; 0 for equal ones. peak: the greatest
    value of the pixels, at first 255 of uint8, 65535 of uint16 and 1 of float32; the constants of the index are
    (factor * peak)**2.
    """
    b = image(b, copy)
    a, call = _found(_SIMILARITY, a, copy)
    if peak is None:
        peak = numpy.iinfo(a.dtype).max if a.dtype.kind == "u" else 1
    n = channels(a)
    values, buffer = numpy.zeros(n), memory(size_of(_BUFFER, (a.shape[1], a.shape[0]), size, n))
    c1, c2 = ((float(factor) * peak) ** 2 for factor in factors)
    forgiving(call, (a, b), (), (values, size, float(sigma), c1, c2, buffer))
    return _result(values, a)
