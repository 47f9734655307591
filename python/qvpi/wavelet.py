"""Wavelet transforms of float32 images, with bands of detail by its scale."""
import operator

import numpy

from . import raw
from ._call import key
from ._operation import Operation, channels, forgiving, image
from ._plan import make_call
from ._records import Buffers, cached, memory, size_of
from .arithmetic import choice
from .raw import lib

__all__ = ["Wavelet", "dwt2", "idwt2"]

_PASSES = [Operation(f"Wavelet{way}", "src dst levels spec buffer", in_place=True) for way in ("Fwd", "Inv")]
_BANK = make_call("qvpiWaveletGetBank_32f", "wavelet bank")
_SIZE = make_call("qvpiWaveletGetSize_32f", "bank specSize")
_INIT = make_call("qvpiWaveletInit_32f", "bank borderType spec")
_BUFFER = make_call("qvpiWaveletGetBufferSize_32f", "spec roiSize numChannels bufferSize")
_KINDS = {"haar": 0, "daubechies4": 1, "daubechies6": 2, "daubechies8": 3, "cdf53": 4, "cdf97": 5}
_BORDERS = {"mirror": lib.qvpBorderMirror, "wrap": lib.qvpBorderWrap}
_FILTERS = "analysisLow", "analysisHigh", "synthesisLow", "synthesisHigh"


def _own_bank(filters):
    """(bytes of the C structure, what they point at) of four (taps, anchor)."""
    pairs = [(numpy.ascontiguousarray(taps, numpy.float32), operator.index(anchor)) for taps, anchor in filters]
    if len(pairs) != len(_FILTERS) or any(taps.ndim != 1 for taps, _ in pairs):
        raise ValueError("a bank has four filters, each (taps, anchor)")
    bank = raw.ffi.new("QvpiWaveletBank*", {
        name: {"pTaps": raw.ffi.cast("Qvp32f*", taps.ctypes.data), "length": len(taps), "anchor": anchor}
        for name, (taps, anchor) in zip(_FILTERS, pairs)})
    return numpy.frombuffer(raw.ffi.buffer(bank), numpy.uint8), (bank, pairs)


def _known_bank(name):
    bank = raw.ffi.new("QvpiWaveletBank*")
    packed = numpy.frombuffer(raw.ffi.buffer(bank), numpy.uint8)
    _BANK(choice(_KINDS, name, "bank"), packed)
    return packed, bank


class Wavelet:
    """Wavelet transforms of float32 images: w = Wavelet('cdf97'); bands = w.forward(a, 3); a = w.inverse(bands, 3).

    bank: 'haar', 'daubechies4', 'daubechies6', 'daubechies8', 'cdf53', 'cdf97'; or four filters, each (taps, anchor):
    analysis low and high, synthesis low and high. border: 'mirror', or 'wrap' of sides that are multiples of 2^depth.
    The bands are one image: the lower ones left and above, of ceil(n / 2) pixels, the higher ones right and below; each
    further level, of `depth` in all, transforms the corner with both lower ones. 1, 3 or 4 channels, each by itself.
    """

    def __init__(self, bank="cdf97", border="mirror"):
        packed, self._kept = _known_bank(bank) if isinstance(bank, str) else _own_bank(bank)
        self._spec = memory(size_of(_SIZE, packed))
        _INIT(packed, choice(_BORDERS, border, "border"), self._spec)
        self._buffers = {}

    def forward(self, a, depth=1, out=None, *, copy=False):
        """The bands. `out` may be the image."""
        return self._run(_PASSES[0], image(a, copy), depth, out)

    def inverse(self, bands, depth=1, out=None, *, copy=False):
        """The image of bands. `out` may be these."""
        return self._run(_PASSES[1], image(bands, copy), depth, out)

    def _run(self, operation, a, depth, out):
        found = operation.find(key(a))
        if found is None:
            raise TypeError(operation._complaint(a, None))
        out = numpy.empty(a.shape, numpy.float32) if out is None else out
        shape = a.shape[1], a.shape[0], channels(a)
        if shape not in self._buffers:
            self._buffers[shape] = Buffers(size_of(_BUFFER, self._spec, shape[:2], shape[2]))
        buffer = self._buffers[shape].take()
        forgiving(found[0], (a,), (out,), (operator.index(depth), self._spec, buffer))
        self._buffers[shape].give(buffer)
        return out


@cached
def _wavelet(bank, border):
    return Wavelet(bank, border)


def dwt2(a, depth=1, bank="cdf97", border="mirror", out=None, *, copy=False):
    """The bands of a float32 image; see Wavelet. bank: a name."""
    return _wavelet(bank, border).forward(a, depth, out, copy=copy)


def idwt2(bands, depth=1, bank="cdf97", border="mirror", out=None, *, copy=False):
    """The image of bands; see Wavelet. bank: a name."""
    return _wavelet(bank, border).inverse(bands, depth, out, copy=copy)
