"""Every exported function, constant and structure of the C interface, made from its headers by cffi.

    from qvpi import raw
    raw.qvpiGetLibVersion().targetCpu
    size = raw.ffi.new("QvpiSize*", (640, 480))[0]

Functions check nothing but the C types of their arguments; pointers are the caller's to keep alive. Other threads of
Python run during a call.
"""
from ._raw import ffi, lib  # noqa: F401


def __getattr__(name):
    return getattr(lib, name)


def __dir__():
    return ["ffi", "lib", *dir(lib)]
