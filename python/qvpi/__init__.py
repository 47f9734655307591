"""qvpIP for numpy: exact image processing at the library's speed.

    import numpy, qvpi
    small = qvpi.resize(image, (270, 480), method="lanczos", antialias=True)

Images are arrays of shape (H, W) or (H, W, C), volumes of shape (D, H, W). Slices, negative and padded row strides
are passed as they are; what has gaps within its rows is refused, or copied with copy=True. Functions have `out=` for
results and, where rows or tiles are independent, `threads=`; classes keep what takes preparation. A call that is
refused raises Error, a ValueError, or TypeError, and writes nothing.
"""
from . import (arithmetic, compositing, convolution, deconvolution, denoise, features, filters, fourier, frames,
               kernels, layout, matching, quality, raw, remapping, resizing, statistics, synthesis, values,
               volume_filters, volumes, warps, wavelet)
from ._errors import Error, Warning
from ._threads import get_threads, set_threads

_MODULES = (arithmetic, compositing, convolution, deconvolution, denoise, features, filters, fourier, frames, kernels,
            layout, matching, quality, remapping, resizing, statistics, synthesis, values, volume_filters, volumes,
            warps, wavelet)
__all__ = ["Error", "Warning", "get_threads", "info", "raw", "set_threads"]
for _module in _MODULES:
    __all__ += _module.__all__
    globals().update({_name: getattr(_module, _name) for _name in _module.__all__})

__version__ = raw.ffi.string(raw.lib.QVP_VERSION).decode()
_FEATURES = {name.removeprefix("qvpFeature"): getattr(raw.lib, name) for name in dir(raw.lib)
             if name.startswith("qvpFeature")}


def info():
    """Facts about the library that was loaded: its version, release, build, and the processor's extensions."""
    record = raw.lib.qvpiGetLibVersion()
    bits = raw.lib.ownGetFeature()
    return {"version": __version__, "name": raw.ffi.string(record.Name).decode(),
            "release": raw.ffi.string(record.Version).decode(),
            "build": raw.ffi.string(record.targetCpu).decode(),
            "cpu": sorted(name for name, bit in _FEATURES.items() if bits & bit)}
