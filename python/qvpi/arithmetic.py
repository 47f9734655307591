"""Arithmetic, logic and shifts: each pixel from the pixels at its place.

Images have the shape (H, W) or (H, W, C), any number of channels. A second operand is an image of the same shape and
dtype, or a constant: one number, or for 3 or 4 channels one for each. `out` may be an operand. Integer results are
rounded to the nearest, ties to even, and saturated; they are multiplied by 2**-scale before. `threads` splits the rows;
`copy=True` copies what has gaps within its rows instead of refusing it.
"""
import numpy

from ._operation import Operation

ROUNDING = {None: None, "zero": 0, "near": 1, "financial": 2}

__all__ = ["abs", "add", "bitwise_and", "bitwise_not", "bitwise_or", "bitwise_xor", "divide", "exp", "left_shift",
           "log", "multiply", "multiply_full_scale", "right_shift", "sqrt", "square", "subtract"]


def choice(options, value, name):
    """The value of a named option."""
    try:
        return options[value]
    except (KeyError, TypeError):
        raise ValueError(f"{name} must be one of {', '.join(map(repr, options))}, not {value!r}") from None


def is_image(operand):
    """Whether an operand is an image; other arrays are constants for each channel."""
    return isinstance(operand, numpy.ndarray) and operand.ndim > 1


class _Binary:
    """An operation of two images, and that of an image and a constant."""

    def __init__(self, name, constant, first="src1", second="src2", rest="scaleFactor"):
        self.images = Operation(name, f"{first} {second} dst {rest}", is_pixelwise=True)
        self.constant = Operation(constant, f"src dst value {rest}", is_pixelwise=True)

    def __call__(self, a, b, out, values, threads, copy):
        if is_image(b):
            return self.images.apply((a, b), out, values, None, None, threads, copy)
        return self.constant.apply((a,), out, (b, *values), None, None, threads, copy)


def _unary(name, rest="scaleFactor"):
    return Operation(name, f"src dst {rest}", is_pixelwise=True)


_ADD = _Binary("Add", "AddC")
_SUBTRACT = _Binary("Sub", "SubC", "src2", "src1")  # the library takes the first from the second
_MULTIPLY = _Binary("Mul", "MulC")
_MULTIPLY_FULL_SCALE = _Binary("MulScale", "MulCScale", rest="")
_DIVIDE = _Binary("Div", "DivC", "src2", "src1")
_DIVIDE_ROUNDED = Operation("Div_Round", "src2 src1 dst scaleFactor roundMode", is_pixelwise=True)
_AND, _OR, _XOR = (_Binary(name, name + "C", rest="") for name in ("And", "Or", "Xor"))
_NOT = _unary("Not", "")
_ABS, _SQUARE, _SQRT, _LOG, _EXP = (_unary(name) for name in ("Abs", "Sqr", "Sqrt", "Ln", "Exp"))
_LEFT, _RIGHT = (_unary(name, "value") for name in ("ShiftLeftC", "ShiftRightC"))


def add(a, b, out=None, *, scale=0, threads=None, copy=False):
    """(a + b) * 2**-scale. uint8, uint16, int16, float32 (no scale)."""
    return _ADD(a, b, out, (scale,), threads, copy)


def subtract(a, b, out=None, *, scale=0, threads=None, copy=False):
    """(a - b) * 2**-scale; unsigned results saturate at 0. uint8, uint16, int16, float32 (no scale)."""
    return _SUBTRACT(a, b, out, (scale,), threads, copy)


def multiply(a, b, out=None, *, scale=0, threads=None, copy=False):
    """a * b * 2**-scale. uint8, uint16, int16, float32 (no scale)."""
    return _MULTIPLY(a, b, out, (scale,), threads, copy)


def multiply_full_scale(a, b, out=None, *, threads=None, copy=False):
    """a * b / M with M the greatest value of the dtype, which stands for 1. uint8, uint16."""
    return _MULTIPLY_FULL_SCALE(a, b, out, (), threads, copy)


def divide(a, b, out=None, *, scale=0, rounding=None, threads=None, copy=False):
    """a / b * 2**-scale. uint8, uint16, int16, float32 (no scale).

    rounding, of integer images: 'near' (ties to even), 'zero', 'financial' (ties away from zero). A divisor of zero
    gives the greatest or least value of the dtype, 0 for 0 / 0, and qvpi.Warning; of a constant, qvpi.Error.
    """
    if rounding is None:
        return _DIVIDE(a, b, out, (scale,), threads, copy)
    if not is_image(b):
        raise TypeError("rounding= is for two images")
    values = scale, choice(ROUNDING, rounding, "rounding")
    return _DIVIDE_ROUNDED.apply((a, b), out, values, None, None, threads, copy)


def abs(a, out=None, *, scale=0, threads=None, copy=False):
    """|a| * 2**-scale. int16, float32 (no scale)."""
    return _ABS.apply((a,), out, (scale,), None, None, threads, copy)


def square(a, out=None, *, scale=0, threads=None, copy=False):
    """a * a * 2**-scale. uint8, uint16, int16, float32 (no scale)."""
    return _SQUARE.apply((a,), out, (scale,), None, None, threads, copy)


def sqrt(a, out=None, *, scale=0, threads=None, copy=False):
    """The square root, times 2**-scale; of negative pixels qvpi.Warning. uint8, uint16, int16, float32 (no scale)."""
    return _SQRT.apply((a,), out, (scale,), None, None, threads, copy)


def log(a, out=None, *, scale=0, threads=None, copy=False):
    """The natural logarithm, times 2**-scale. uint8, uint16, int16, float32 (no scale)."""
    return _LOG.apply((a,), out, (scale,), None, None, threads, copy)


def exp(a, out=None, *, scale=0, threads=None, copy=False):
    """e to the power of a, times 2**-scale. uint8, uint16, int16, float32 (no scale)."""
    return _EXP.apply((a,), out, (scale,), None, None, threads, copy)


def bitwise_and(a, b, out=None, *, threads=None, copy=False):
    """a & b. uint8, uint16, int32 of one channel."""
    return _AND(a, b, out, (), threads, copy)


def bitwise_or(a, b, out=None, *, threads=None, copy=False):
    """a | b. uint8, uint16, int32 of one channel."""
    return _OR(a, b, out, (), threads, copy)


def bitwise_xor(a, b, out=None, *, threads=None, copy=False):
    """a ^ b. uint8, uint16, int32 of one channel."""
    return _XOR(a, b, out, (), threads, copy)


def bitwise_not(a, out=None, *, threads=None, copy=False):
    """~a. uint8."""
    return _NOT.apply((a,), out, (), None, None, threads, copy)


def left_shift(a, bits, out=None, *, threads=None, copy=False):
    """a << bits, a number or one for each channel. uint8, uint16, int32 of one channel."""
    return _LEFT.apply((a,), out, (bits,), None, None, threads, copy)


def right_shift(a, bits, out=None, *, threads=None, copy=False):
    """a >> bits, a number or one for each channel. uint8, uint16, int16, int32 of one channel."""
    return _RIGHT.apply((a,), out, (bits,), None, None, threads, copy)
