"""Whatever is passed, there is a clear exception and nothing is written."""
import gc
import inspect
import resource
import sys
import warnings

import numpy
import pytest
import qvpi
from hypothesis import given, settings
from hypothesis import strategies as st
from images import random

settings.register_profile("short", max_examples=8, deadline=None, derandomize=True, database=None)
settings.load_profile("short")

A = random((20, 30, 3), "u1", 1)
LONG = random((400, 8), "u1", 2)
REFUSED = (TypeError, ValueError, OverflowError, MemoryError)


@pytest.mark.parametrize("call, kind, text", [
    (lambda: qvpi.add([[1]], A), TypeError, "numpy.asarray"),
    (lambda: qvpi.add(A[0, 0], A), TypeError, "expected"),
    (lambda: qvpi.add(A.astype(object), A), TypeError, "not there for object"),
    (lambda: qvpi.add(A, A.astype("u2")), TypeError, "expected uint8"),
    (lambda: qvpi.add(A.astype("u2"), A.astype(">u2")), TypeError, "swapped"),
    (lambda: qvpi.add(A.astype(">u2"), A), TypeError, "swapped"),
    (lambda: qvpi.add(A, A[:5]), ValueError, "height or width"),
    (lambda: qvpi.add(A[:0], A[:0]), ValueError, "no pixels"),
    (lambda: qvpi.add(A[:, ::2], A[:, ::2]), TypeError, "copy=True"),
    (lambda: qvpi.add(A, A, A[:5].copy()), ValueError, "height or width"),
    (lambda: qvpi.add(A, A, numpy.broadcast_to(A, A.shape)), ValueError, "read-only"),
    (lambda: qvpi.add(A[1:], A[1:], A[:-1]), ValueError, "overlaps"),
    (lambda: qvpi.add(A, 256), ValueError, "range"),
    (lambda: qvpi.add(A, 1.5), TypeError, "integer"),
    (lambda: qvpi.add(A, (1, 2)), ValueError, "each channel"),
    (lambda: qvpi.add(A, 1, scale=1 << 40), ValueError, "range"),
    (lambda: qvpi.divide(A, 0), qvpi.Error, "qvpStatusDivideByZeroError"),
    (lambda: qvpi.add(numpy.ma.masked_array(A), A), TypeError, "masked"),
    (lambda: qvpi.scale(A, numpy.nan), ValueError, "NaN"),
    (lambda: qvpi.box(A, 0), qvpi.Error, "qvpStatusMaskSize"),
    (lambda: qvpi.box(A, 3, border="wrap"), ValueError, "'replicate'"),
    (lambda: qvpi.box(A, (3, 1 << 40)), ValueError, "2147483647"),
    (lambda: qvpi.maximum(A[5:15], 3, A[8:18]), ValueError, "overlaps"),
    (lambda: qvpi.add(LONG[100:], LONG[:-100], LONG[100:], threads=4), ValueError, "overlaps"),
    (lambda: qvpi.box(LONG[:-100], 3, LONG[100:], threads=4), ValueError, "overlaps"),
    (lambda: qvpi.Box((10, 10, 3), "u1")(A), ValueError, "larger"),
    (lambda: qvpi.Box(A.shape, "u1")(A, tile=(15, 0, 6, 1)), ValueError, "tile"),
    (lambda: qvpi.gauss(A, numpy.nan), ValueError, "sigma"),
    (lambda: qvpi.resize(A, (0, 5)), qvpi.Error, "qvpStatusSize"),
    (lambda: qvpi.resize(A, (5, 1 << 32)), ValueError, "2147483647"),
    (lambda: qvpi.resize(A, (5, 5), numpy.empty((5, 5), "u1")), ValueError, "shape"),
    (lambda: qvpi.warp_affine(A, numpy.full((2, 3), numpy.nan)), ValueError, "finite"),
    (lambda: qvpi.warp_affine(A, numpy.zeros((2, 3))), qvpi.Error, "qvpStatusCoefficient"),
    (lambda: qvpi.remap(A, numpy.zeros((4, 4), "f4"), numpy.zeros((4, 5), "f4")), ValueError, "shape"),
    (lambda: qvpi.hog(A, [(0, 0)]), ValueError, "window"),
    (lambda: qvpi.hog(A, [(0, 0)], cell=1, window=(4, 4)), qvpi.Error, "HOGGetSize"),
    (lambda: qvpi.gauss_noise(A, -1), qvpi.Error, "BadArgument"),
    (lambda: qvpi.gauss_noise(A, 1, origin=(-1, 0)), qvpi.Error, "OutOfRange"),
    (lambda: qvpi.jaehne((9, 9), 1), qvpi.Error, "BadArgument"),
    (lambda: qvpi.histogram(A, 0), ValueError, "bins"),
    (lambda: qvpi.histogram(A, [1, 1]), ValueError, "rise"),
    (lambda: qvpi.fft2(A), TypeError, "complex64"),
    (lambda: qvpi.lookup(A, numpy.zeros(255, "u1")), ValueError, "256"),
    (lambda: qvpi.set_threads(-1), ValueError, "threads"),
])
def test_refusals(call, kind, text):
    before = A.copy()
    with pytest.raises(kind, match=text):
        call()
    numpy.testing.assert_array_equal(A, before)


def test_what_an_error_tells():
    with pytest.raises(qvpi.Error) as caught:
        qvpi.divide(A, 0)
    error = caught.value
    assert (error.status, error.name) == (qvpi.raw.qvpStatusDivideByZeroError, "qvpStatusDivideByZeroError")
    assert error.sentence.endswith(".") and error.function.startswith("qvpiDivC_")
    assert issubclass(qvpi.Error, ValueError) and issubclass(qvpi.Warning, Warning)


def test_images_beyond_what_the_functions_take():
    """No memory is touched: the rows all lie at one place."""
    huge = numpy.lib.stride_tricks.as_strided(numpy.zeros(1, "u1"), (1, 1 << 31), (1 << 31, 1))
    with pytest.raises(ValueError, match="2147483647"):
        qvpi.bitwise_not(huge, huge)


ARRAYS = [A, A[..., 0].copy(), A[::-1], A[:, ::2], A.astype("f4"), A[:0], A.T, A.astype(object), A[..., 0] > 9,
          A.astype("c8"), numpy.full((9, 9), numpy.nan, "f4"), numpy.zeros((3, 3, 3, 3)), numpy.float32(3),
          numpy.zeros((1, 1), "i2"), numpy.zeros((5, 4, 9), "u1"), numpy.zeros((4, 4), "i8"), numpy.array("x")]
garbage = st.one_of(
    st.sampled_from(ARRAYS).map(lambda a: a.copy(order="K") if isinstance(a, numpy.ndarray) else a),
    st.none(), st.booleans(), st.integers(-3, 9), st.integers(), st.floats(), st.text(max_size=3),
    st.binary(max_size=3), st.sampled_from(["replicate", "linear", "<", "x", "l2", "u1", object(), numpy.uint8, (3, 3),
                                          (2, 40), [1, 2, 3]]),
    st.lists(st.integers(-5, 300), max_size=4), st.lists(st.floats(), max_size=4).map(tuple))
FUNCTIONS = sorted(name for name in qvpi.__all__
                   if callable(getattr(qvpi, name)) and name not in ("Error", "Warning", "set_threads"))


def parameters_of(function):
    signature = inspect.signature(function)
    named = [p.name for p in signature.parameters.values() if p.kind != p.VAR_KEYWORD]
    return named + (["border", "value"] if len(named) < len(signature.parameters) else [])


@pytest.mark.parametrize("name", FUNCTIONS)
@given(st.data())
def test_garbage(name, data):
    function = getattr(qvpi, name)
    names = parameters_of(function)
    images = st.sampled_from(ARRAYS[:5])
    arguments = {}
    for i, parameter in enumerate(names):
        if parameter not in ("threads",) and (i == 0 or data.draw(st.booleans())):
            arguments[parameter] = data.draw(st.one_of(images, garbage) if i < 3 else garbage)
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        try:
            function(**arguments)
        except REFUSED:
            pass


def test_no_leaks():
    """100,000 calls leave reference counts and memory as they were."""
    a, b, out = (random((16, 16), "u1", seed) for seed in range(3))
    resizer = qvpi.Resizer(a.shape, (8, 8), a.dtype)

    def calls(n):
        for _ in range(n):
            qvpi.add(a, b, out)
            qvpi.add(a, (1,)[0])
            resizer(a)
            try:
                qvpi.add(a, b, out[:5])
            except ValueError:
                pass

    calls(1000)
    gc.collect()
    counts, peak = [sys.getrefcount(x) for x in (a, b, out)], resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    calls(25000)
    gc.collect()
    assert [sys.getrefcount(x) for x in (a, b, out)] == counts
    assert resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - peak < 4000  # KB


def test_raw_has_every_function():
    raw = qvpi.raw
    names = [name for name, _ in qvpi._call.names()]
    assert len(names) > 2800 and all(callable(getattr(raw, name)) for name in names)
    assert raw.qvpBorderMirror == 3 and raw.QVP_VERSION_MAJOR == 10
    size = raw.ffi.new("QvpiSize*", (4, 3))[0]
    pixels = raw.ffi.new("Qvp8u[12]")
    assert raw.qvpiSet_8u_C1R(7, pixels, 4, size) == 0 and list(pixels) == [7] * 12
    assert raw.qvpiSet_8u_C1R(7, raw.ffi.NULL, 4, size) == raw.qvpStatusNullPointer


def test_info():
    info = qvpi.info()
    assert info["version"] == qvpi.__version__ and info["name"].startswith("qvpIP") and info["cpu"]


def test_threads_are_set_for_all():
    a, b = random((200, 100), "u1", 1), random((200, 100), "u1", 2)
    one = qvpi.add(a, b), qvpi.box(a, 5), qvpi.resize(a, (99, 99))
    qvpi.set_threads(3)
    try:
        assert qvpi.get_threads() == 3
        for first, second in zip(one, (qvpi.add(a, b), qvpi.box(a, 5), qvpi.resize(a, (99, 99)))):
            numpy.testing.assert_array_equal(first, second)
    finally:
        qvpi.set_threads(1)
