"""Two-dimensional Fourier transforms in single precision, of any size; powers of two have a faster method.

The spectrum of a real image has its own compact form here, *packed*: as many floats as the image. `norm` is as in
numpy: 'backward' (1 / N in the inverse), 'forward' (1 / N in the forward transform), 'ortho' (1 / sqrt(N) in both).
"""
import functools

import numpy

from ._call import key
from ._operation import Operation, checked_shape, forgiving, image
from ._plan import make_call
from ._records import Buffers, cached, memory, size_of
from .arithmetic import choice

__all__ = ["Cosine", "Fourier", "apply_window", "dct2", "dct_blocks", "dft2", "fft2", "idct2", "idct_blocks",
           "idft2", "ifft2", "magnitude", "multiply_packed", "pack", "packed_dft2", "packed_idft2", "phase",
           "unpack", "window"]

_FLAGS = {"forward": 1, "backward": 2, "ortho": 4}
_FORMS = {"f": ("R_32f", "RToPack", "PackToR"), "c": ("C_32fc", "CToC", "CToC")}
_ROLES = "src dst spec buffer"
_PASSES = {(method, form): tuple(Operation(f"{method}{name}", _ROLES, in_place=True)
                                 for name in (f"Fwd_{forward}", f"Inv_{inverse}"))
           for method in ("FFT", "DFT") for form, (_, forward, inverse) in _FORMS.items()}


class Fourier:
    """Transforms of images of one shape and dtype: f = Fourier(a.shape, a.dtype); s = f.forward(a); a = f.inverse(s).

    complex64 of shape (H, W) has complex spectra; float32 of 1, 3 or 4 channels packed ones, of each channel by itself.
    """

    def __init__(self, shape, dtype, norm="backward", method=None):
        dtype = numpy.dtype(dtype)
        if dtype not in (numpy.float32, numpy.complex64):
            raise TypeError(f"there are transforms of float32 and complex64, not of {dtype}")
        shape = checked_shape(shape)
        flag, form = choice(_FLAGS, norm, "norm"), dtype.kind
        height, width = shape[:2]
        is_power = all(n > 0 and n & (n - 1) == 0 for n in (height, width))
        method = method or ("FFT" if is_power else "DFT")
        sizes = (width.bit_length() - 1, height.bit_length() - 1) if method == "FFT" else ((width, height),)
        places = "orderX orderY" if method == "FFT" else "roiSize"
        name = _FORMS[form][0]
        query = make_call(f"qvpi{method}GetSize_{name}", f"{places} flag hint specSize specBufferSize bufferSize")
        spec, init, buffer = size_of(query, *sizes, flag, None, count=3)
        self.shape, self.dtype = tuple(shape), dtype
        self._spec, self._buffers = memory(spec), Buffers(buffer)
        make_call(f"qvpi{method}Init_{name}", f"{places} flag hint spec memInit")(*sizes, flag, None, self._spec,
                                                                                 memory(init))
        count = shape[2] if len(shape) == 3 else 1
        self._key = dtype.num * 100 + count
        self._passes = [operation.find(self._key) for operation in _PASSES[method, form]]
        if None in self._passes:
            raise TypeError(f"there are no transforms of {dtype} with {count} channels")

    def forward(self, a, out=None, *, copy=False):
        """The spectrum. `out` may be the image."""
        return self._run(self._passes[0][0], a, out, copy)

    def inverse(self, spectrum, out=None, *, copy=False):
        """The image of a spectrum. `out` may be the spectrum."""
        return self._run(self._passes[1][0], spectrum, out, copy)

    def _run(self, call, a, out, copy):
        if copy or key(a) != self._key or a.shape != self.shape:
            a = image(a, copy)
            if key(a) != self._key or a.shape != self.shape:
                raise ValueError(f"the image must be {self.dtype} of shape {self.shape}, not {a.dtype} of {a.shape}")
        if out is None:
            out = numpy.empty(self.shape, self.dtype)
        buffer = self._buffers.take()
        forgiving(call, (a,), (out,), (self._spec, buffer))
        self._buffers.give(buffer)
        return out


@cached
def _fourier(shape, dtype, norm, method):
    return Fourier(shape, dtype, norm, method)


def _transform(a, norm, method, inverse, copy):
    """The complex spectrum or image of a real or complex image of shape (H, W)."""
    a = image(a, copy)
    if a.dtype == numpy.float32 and not inverse and a.ndim == 2:
        return unpack(_fourier(a.shape, a.dtype, norm, method).forward(a))
    if a.dtype != numpy.complex64 or a.ndim != 2:
        wanted = "complex64" if inverse else "complex64 or float32"
        raise TypeError(f"expected {wanted} of shape (H, W), not {a.dtype} of {a.shape}")
    made = _fourier(a.shape, a.dtype, norm, method)
    return made.inverse(a) if inverse else made.forward(a)


def fft2(a, norm="backward", *, copy=False):
    """The complex spectrum of a float32 or complex64 image of shape (H, W), as numpy.fft.fft2."""
    return _transform(a, norm, None, False, copy)


def ifft2(a, norm="backward", *, copy=False):
    """The complex image of a complex64 spectrum of shape (H, W), as numpy.fft.ifft2."""
    return _transform(a, norm, None, True, copy)


def dft2(a, norm="backward", *, copy=False):
    """fft2 by the method for any size, for powers of two as well."""
    return _transform(a, norm, "DFT", False, copy)


def idft2(a, norm="backward", *, copy=False):
    """ifft2 by the method for any size, for powers of two as well."""
    return _transform(a, norm, "DFT", True, copy)


def packed_dft2(a, out=None, norm="backward", *, copy=False):
    """The packed spectrum of a float32 image of 1, 3 or 4 channels."""
    a = image(a, copy)
    return _fourier(a.shape, a.dtype, norm, None).forward(a, out)


def packed_idft2(spectrum, out=None, norm="backward", *, copy=False):
    """The float32 image of a packed spectrum."""
    spectrum = image(spectrum, copy)
    return _fourier(spectrum.shape, spectrum.dtype, norm, None).inverse(spectrum, out)


_MULTIPLY = Operation("MulPack", "src1 src2 dst", in_place=True)
_MULTIPLY_CONJUGATE = Operation("MulPackConj", "src1 src2 dst", in_place=True)
_MAGNITUDE, _PHASE = Operation("MagnitudePack", "src dst buffer"), Operation("PhasePack", "src dst")
_UNPACK, _PACK = Operation("PackToCplxExtend", "src dst"), Operation("CplxExtendToPack", "src dst")
_MAGNITUDE_SIZE = make_call("qvpiMagnitudePackGetBufferSize_32f", "numChannels roiSize bufferSize")


def multiply_packed(a, b, out=None, *, conjugate=False, copy=False):
    """The product of two packed spectra, a * conj(b) if conjugate: a convolution, or a correlation, of images."""
    return (_MULTIPLY_CONJUGATE if conjugate else _MULTIPLY).apply((a, b), out, (), None, None, None, copy)


def magnitude(packed, out=None, *, copy=False):
    """|X| of a packed spectrum, at every frequency: float32 of the same shape."""
    a = image(packed, copy)
    count = a.shape[2] if a.ndim == 3 else 1
    return _MAGNITUDE.apply((a,), out, (memory(size_of(_MAGNITUDE_SIZE, count, (a.shape[1], a.shape[0]))),))


def phase(packed, out=None, *, copy=False):
    """The angle of X of a packed spectrum, in radians, at every frequency: float32 of the same shape."""
    return _PHASE.apply((packed,), out, (), None, None, None, copy)


def unpack(packed, out=None, *, copy=False):
    """The whole complex64 spectrum of a packed one, (H, W)."""
    return _UNPACK.apply((packed,), out, (), None, None, None, copy)


def pack(spectrum, out=None, *, copy=False):
    """The packed spectrum of a complex64 one that is symmetric, as those of real images are, (H, W)."""
    return _PACK.apply((spectrum,), out, (), None, None, None, copy)


_WINDOWS = {"bartlett": 0, "hann": 1, "hamming": 2, "blackman": 3}
_APPLY_WINDOW = Operation("ApplyWindow", "src dst window", in_place=True)
_SET_WINDOW = make_call("qvpiSetWindow_32f_C1R", "dst window")


def _selector(kind, periodic):
    return choice(_WINDOWS, kind, "kind") | (0x10 if periodic else 0)


def window(shape, kind="hann", *, periodic=False):
    """The weights of a window, (H, W) of float32: the product of one of its columns and one of its rows.

    kind: 'bartlett', 'hann', 'hamming', 'blackman'. periodic: without the last place, as transforms want it.
    """
    out = numpy.empty(checked_shape(shape)[:2], numpy.float32)
    _SET_WINDOW(out, _selector(kind, periodic))
    return out


def apply_window(a, kind="hann", out=None, *, periodic=False, copy=False):
    """The image times a window, so that its spectrum does not show its edges. uint8, uint16, int16, float32."""
    return _APPLY_WINDOW.apply((a,), out, (_selector(kind, periodic),), None, None, None, copy)


_PIXELS, _QUANTISED = {"u1": "8u16s", "i2": "16s", "f4": "32f"}, {"u1": "16s8u", "i2": "16s", "f4": "32f"}


_COSINES = Operation("DCTFwd", _ROLES, in_place=True), Operation("DCTInv", _ROLES, in_place=True)
_COSINE_SIZE = make_call("qvpiDCTGetSize_32f", "roiSize flag hint specSize specBufferSize bufferSize")
_COSINE_INIT = make_call("qvpiDCTInit_32f", "roiSize flag hint spec memInit")
_COSINE_FLAGS = {"forward": 1, "backward": 2, "ortho": 4, "none": 8}


class Cosine:
    """Cosine transforms of float32 images of one shape: f = Cosine(a.shape); c = f.forward(a); a = f.inverse(c).

    norm: 'ortho' keeps sums of squares; 'backward' and 'forward' divide the inverse or the forward transform by the
    number of pixels, 'none' neither. 1, 3 or 4 channels, each by itself.
    """

    def __init__(self, shape, norm="ortho"):
        self.shape = checked_shape(shape)
        count, size = self.shape[2] if len(self.shape) == 3 else 1, (self.shape[1], self.shape[0])
        flag = choice(_COSINE_FLAGS, norm, "norm")
        self._key = numpy.dtype(numpy.float32).num * 100 + count
        self._passes = [operation.find(self._key) for operation in _COSINES]
        if None in self._passes:
            raise TypeError(f"there are no transforms of float32 with {count} channels")
        spec, init, buffer = size_of(_COSINE_SIZE, size, flag, None, count=3)
        self._spec, self._buffers = memory(spec), Buffers(buffer)
        _COSINE_INIT(size, flag, None, self._spec, memory(init))

    def forward(self, a, out=None, *, copy=False):
        """The transform. `out` may be the image."""
        return self._run(self._passes[0][0], a, out, copy)

    def inverse(self, transform, out=None, *, copy=False):
        """The image of a transform. `out` may be the transform."""
        return self._run(self._passes[1][0], transform, out, copy)

    def _run(self, call, a, out, copy):
        a = image(a, copy)
        if key(a) != self._key or a.shape != self.shape:
            raise ValueError(f"the image must be float32 of shape {self.shape}, not {a.dtype} of {a.shape}")
        out = numpy.empty(self.shape, numpy.float32) if out is None else out
        buffer = self._buffers.take()
        forgiving(call, (a,), (out,), (self._spec, buffer))
        self._buffers.give(buffer)
        return out


@cached
def _cosine(shape, norm):
    return Cosine(shape, norm)


def dct2(a, out=None, norm="ortho", *, copy=False):
    """The cosine transform of a float32 image, (H, W) or with 3 or 4 channels; see Cosine."""
    a = image(a, copy)
    return _cosine(a.shape, norm).forward(a, out)


def idct2(transform, out=None, norm="ortho", *, copy=False):
    """The image of a cosine transform; see Cosine."""
    transform = image(transform, copy)
    return _cosine(transform.shape, norm).inverse(transform, out)


@functools.lru_cache
def _blocks_call(name, roles):
    return make_call(name, roles, "C1", ("src", "dst"))


def _blocks(direction, types, quantizer, images, size):
    name, roles, values = f"qvpiDCTBlocks{direction}_{types}_C1R", "src dst roiSize", (size,)
    if quantizer is not None:
        steps = numpy.asarray(quantizer)
        if steps.shape != (8, 8) or steps.dtype.kind not in "iu" or not 0 <= steps.min() <= steps.max() <= 65535:
            raise ValueError("quantizer must be 8 x 8 integers from 0 to 65535")
        name, roles = name.replace("Blocks", "BlocksQuant"), roles + " quantizer"
        values = size, numpy.ascontiguousarray(steps, numpy.uint16).reshape(64)
    _blocks_call(name, roles)(*images, *values)


def _code(dtype):
    dtype = numpy.dtype(dtype)
    code = dtype.str[1:]
    if code not in _PIXELS or not dtype.isnative:
        raise TypeError(f"there are transforms of blocks of uint8, int16 and float32, not of {dtype}")
    return code


def dct_blocks(a, quantizer=None, *, copy=False):
    """The cosine transforms of blocks of 8 x 8 pixels, (ceil(H / 8), ceil(W / 8), 8, 8): one block at each place.

    a: (H, W) of uint8, taken as a - 128, or int16: int16 coefficients; or float32. The last row and column are repeated
    up to a whole block. quantizer: 8 x 8 integers that coefficients are divided by; not of float32.
    """
    a = image(a, copy)
    code = _code(a.dtype)
    if a.ndim != 2 or quantizer is not None and code == "f4":
        raise TypeError("expected an image of shape (H, W), of integers with a quantizer")
    height, width = a.shape
    out = numpy.empty((-(-height // 8), -(-width // 8) * 64), numpy.float32 if code == "f4" else numpy.int16)
    _blocks("Fwd", _PIXELS[code], quantizer, (a, out), (width, height))
    return out.reshape(out.shape[0], -1, 8, 8)


def idct_blocks(blocks, shape, dtype="uint8", quantizer=None):
    """The image, (H, W) = shape, of what dct_blocks makes of it."""
    code = _code(dtype)
    blocks = numpy.ascontiguousarray(blocks, numpy.float32 if code == "f4" else numpy.int16)
    height, width = checked_shape(shape)[:2]
    if blocks.shape != (-(-height // 8), -(-width // 8), 8, 8) or quantizer is not None and code == "f4":
        raise ValueError(f"expected blocks of an image of {height} x {width}, of integers with a quantizer")
    out = numpy.empty((height, width), dtype)
    _blocks("Inv", _QUANTISED[code], quantizer, (blocks.reshape(blocks.shape[0], -1), out), (width, height))
    return out
