"""Restoring float32 images from a known blur."""
import operator

import numpy

from ._call import key
from ._operation import Operation, checked_shape, forgiving, image
from ._plan import make_call
from ._records import Buffers, memory, size_of
from .arithmetic import choice
from .raw import lib

__all__ = ["Deconvolver", "deconvolve", "richardson_lucy"]

_INVERSE = Operation("DeconvolveInverse", "src dst noise smoothness spec buffer")
_ITERATIVE = Operation("DeconvolveIterative", "src dst iterations threshold spec buffer")
_SIZE = make_call("qvpiDeconvolveGetSize_32f", "roiSize psfSize borderType specSize initBufSize bufferSize")
_INIT = make_call("qvpiDeconvolveInit_32f", "roiSize psf borderType spec initBuf", free=("psf",))
_BORDERS = {"replicate": lib.qvpBorderReplicate, "mirror": lib.qvpBorderMirror, "constant": lib.qvpBorderConst,
            "wrap": lib.qvpBorderWrap}


class Deconvolver:
    """Restores float32 images of one shape (H, W, ...) from one blur: d = Deconvolver(a.shape, psf); b = d.inverse(a).

    psf: what the blur makes of a single bright pixel, (h, w) in float32, not larger than the images; its middle is at
    row (h - 1) // 2 and column (w - 1) // 2, its sum should be 1. border: 'replicate', 'mirror', 'constant' (zeros) or
    'wrap' beyond the images. 1, 3 or 4 channels, each by itself.
    """

    def __init__(self, shape, psf, border="replicate"):
        height, width = checked_shape(shape)[:2]
        psf = image(numpy.asarray(psf, numpy.float32), name="psf")
        if psf.ndim != 2:
            raise TypeError(f"psf has the shape {psf.shape}, expected (h, w)")
        size, kind = (width, height), choice(_BORDERS, border, "border")
        sizes = size_of(_SIZE, size, psf.shape[::-1], kind, count=3)
        self._shape, self._spec, self._buffers = (height, width), memory(sizes[0]), Buffers(sizes[2])
        _INIT(size, psf, kind, self._spec, memory(sizes[1]))

    def inverse(self, a, out=None, *, noise=0.01, smoothness=0.0, copy=False):
        """Divides by the blur where it has left something. noise: power of the noise over the picture's; smoothness
        weighs fine detail more than coarse. The less of both, the sharper, and the noisier; not both 0."""
        return self._run(_INVERSE, image(a, copy), out, (float(noise), float(smoothness)))

    def iterative(self, a, out=None, *, iterations=30, threshold=1e-6, copy=False):
        """The picture without negative pixels that is most likely to have given the image, in so many steps
        (Richardson, Lucy). threshold: where the estimate's blur is not above it, a pixel says nothing."""
        return self._run(_ITERATIVE, image(a, copy), out, (operator.index(iterations), float(threshold)))

    def _run(self, operation, a, out, parameters):
        found = operation.find(key(a))
        if found is None:
            raise TypeError(operation._complaint(a, None))
        if a.shape[:2] != self._shape:
            raise ValueError(f"array has the shape {a.shape}, the object was made for {self._shape}")
        out = numpy.empty(a.shape, numpy.float32) if out is None else out
        buffer = self._buffers.take()
        forgiving(found[0], (a,), (out,), (*parameters, self._spec, buffer))
        self._buffers.give(buffer)
        return out


def deconvolve(a, psf, out=None, *, noise=0.01, smoothness=0.0, border="replicate", copy=False):
    """A float32 image restored from a known blur by the inverse filter; see Deconvolver.inverse."""
    return Deconvolver(image(a).shape, psf, border).inverse(a, out, noise=noise, smoothness=smoothness, copy=copy)


def richardson_lucy(a, psf, out=None, *, iterations=30, threshold=1e-6, border="replicate", copy=False):
    """A float32 image restored from a known blur by iteration; see Deconvolver.iterative."""
    return Deconvolver(image(a).shape, psf, border).iterative(a, out, iterations=iterations, threshold=threshold,
                                                              copy=copy)
