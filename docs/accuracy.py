#!/usr/bin/env python3
"""Measure the largest errors of functions of floats against their formulas in extended precision; write a page."""
import argparse
import sys
import warnings
from pathlib import Path

import numpy
import qvpi
import scipy.fft
import scipy.signal

sys.path.insert(0, str(Path(__file__).parent / "tools"))
import references as exact  # noqa: E402
from references import EXTENDED  # noqa: E402

RANDOM = numpy.random.default_rng(1)
TYPES = {"f4": "32f", "f8": "64f", "u1": "8u", "u2": "16u", "c8": "32fc"}
HEAD = """# Accuracy {{#accuracy}}

The largest errors that were found against the formulas of the functions in extended precision, with {bits} bits of mantissa,
on random images and, of functions of one number, on 2 million floats over the whole range. They were measured when this
manual was made, with the build {build}; every build gives the same results. Descriptions tell bounds where there are
any.
Resizing takes Lanczos' function from samples between which it is interpolated, 5e-5 off at most, and warps compute points
in double precision: it is from these points that their results are measured.

- *levels*: of integers, the distance from the exact result; 0.5 is what correct rounding gives. Behind it the share of
  pixels that are not the nearest integer.
- *ulp*: units in the last place of the exact result; 0.5 is correct rounding.
- *of the largest*: of floats, in units of 2^-24 of the largest magnitude of the source; for 64f of 2^-53.
- *of the rms*: in units of 2^-24 of the root mean square of the result.

| function | what | type | largest | rms | in |
|---|---|---|---|---|---|
"""


def image(dtype, shape=(160, 240)):
    """Random pixels of the whole range, of floats from 0 to 1."""
    if numpy.dtype(dtype).kind == "f":
        return RANDOM.random(shape).astype(dtype)
    return RANDOM.integers(0, numpy.iinfo(dtype).max + 1, shape).astype(dtype)


def signal(dtype, shape):
    """Random numbers from -1 to 1, for transforms: a mean that is far from 0 would hide errors behind the first number."""
    parts = 2 * RANDOM.random((2, *shape)) - 1
    return (parts[0] + 1j * parts[1] if dtype == "c8" else parts[0]).astype(dtype)


def row(function, what, dtype, largest, rms, unit):
    return f"| {function} | {what} | {TYPES[numpy.dtype(dtype).str[1:]]} | {largest} | {rms} | {unit} |\n"


def root(values):
    return float(numpy.sqrt(numpy.mean(numpy.square(abs(values)))))


def compared(function, what, result, reference, source, inside=slice(None)):
    """A row for results that are compared with the largest pixel of the source, or in levels."""
    dtype = result.dtype
    errors = abs(result.astype(EXTENDED) - reference)[inside, inside]
    if dtype.kind == "u":
        wrong = float(numpy.mean(result[inside, inside] != numpy.rint(reference[inside, inside])))
        return row(function, what, dtype, f"{errors.max():.3f} ({100 * wrong:.2g} %)", f"{root(errors):.2g}", "levels")
    errors = errors / abs(source).max() * (2.0**53 if dtype == "f8" else 2.0**24)
    return row(function, what, dtype, f"{errors.max():.2f}", f"{root(errors):.2f}", "of the largest")


def by_rms(function, what, result, reference):
    errors = abs(result.astype(reference.dtype) - reference) / root(reference) * 2.0**24
    return row(function, what, result.dtype, f"{errors.max():.2f}", f"{root(errors):.2f}", "of the rms")


def of_numbers():
    """Functions of one number or two: floats of all magnitudes."""
    bits = numpy.arange(0, 2**32, 2039, dtype=numpy.uint32)
    floats = bits[:bits.size // 1024 * 1024].view("f4").reshape(-1, 1024)
    other = RANDOM.permutation(floats.ravel()).reshape(floats.shape)
    cases = {"Ln": (qvpi.log, numpy.log, (floats,)), "Exp": (qvpi.exp, numpy.exp, (floats,)),
             "Sqrt": (qvpi.sqrt, numpy.sqrt, (floats,)), "Sqr": (qvpi.square, numpy.square, (floats,)),
             "Div": (qvpi.divide, numpy.divide, (floats, other)), "Mul": (qvpi.multiply, numpy.multiply, (floats, other)),
             "Add": (qvpi.add, numpy.add, (floats, other))}
    for name, (function, reference, values) in cases.items():
        with numpy.errstate(all="ignore"):
            result, expected = function(*values), reference(*(value.astype(EXTENDED) for value in values))
            ulp = numpy.spacing(abs(expected).astype("f4")).astype(EXTENDED)
            errors = abs(result.astype(EXTENDED) - expected) / ulp
        errors = errors[numpy.isfinite(errors)]
        yield row(f"qvpi{name}", "all magnitudes", "f4", f"{errors.max():.4f}", f"{root(errors):.2f}", "ulp")


def of_resizing():
    for dtype in ("u1", "u2", "f4"):
        a = image(dtype)
        for method, antialias, shape in [("linear", False, (221, 317)), ("cubic", False, (221, 317)),
                                         ("lanczos", False, (221, 317)), ("super", False, (67, 101)),
                                         ("linear", True, (67, 101)), ("cubic", True, (67, 101)),
                                         ("lanczos", True, (67, 101))]:
            result = qvpi.resize(a, shape, method=method, antialias=antialias)
            name = "Antialiasing" if antialias else method.title()
            reference = exact.resized(a, shape, method, antialias)
            yield compared(f"qvpiResize{name}", f"{method}, to {shape[1]} x {shape[0]}", result, clipped(reference, a), a)
    a = image("f8")
    yield compared("qvpiResizeLinear", "linear, to 317 x 221", qvpi.resize(a, (221, 317)),
                   exact.resized(a, (221, 317), "linear"), a)


def clipped(reference, a):
    return numpy.clip(reference, 0, numpy.iinfo(a.dtype).max) if a.dtype.kind == "u" else reference


def of_warps():
    turn = numpy.array([[0.97, -0.11, 20.3], [0.09, 0.98, -10.7]])
    lean = numpy.array([[0.97, -0.11, 20.3], [0.09, 0.98, 5.7], [1e-4, 2e-4, 1.0]])
    for dtype in ("u1", "u2", "f4", "f8"):
        a = image(dtype)
        for method in ("linear", "cubic"):
            for name, matrix, warp in (("Affine", turn, qvpi.warp_affine), ("Perspective", lean, qvpi.warp_perspective)):
                result = warp(a, matrix, method=method, inverse=True)
                yield sampled_row(f"qvpiWarp{name}", method, a, *exact.transformed(a, matrix), result)
        for method in ("linear", "cubic", "lanczos"):
            x, y = (numpy.asarray(place, "f8" if dtype == "f8" else "f4") for place in exact.transformed(a, turn))
            yield sampled_row("qvpiRemap", method, a, x.astype(EXTENDED), y.astype(EXTENDED),
                              qvpi.remap(a, x, y, method=method))


def sampled_row(function, method, a, x, y, result):
    """Compares the pixels whose neighbours all lie in the source."""
    inside = (x > 3) & (x < a.shape[1] - 5) & (y > 3) & (y < a.shape[0] - 5)
    reference = clipped(exact.sampled(a, x[inside], y[inside], method), a)
    return compared(function, method, result[inside][None], reference[None], a)


def of_filters():
    for dtype in ("u1", "u2", "f4"):
        a = image(dtype)
        full = 1 if dtype == "f4" else numpy.iinfo(dtype).max
        for sigma in (1.0, 4.0):
            yield compared("qvpiFilterGaussBorder", f"sigma {sigma:g}", qvpi.gauss(a, sigma),
                           exact.along_axes(a, exact.bell(sigma)), a)
        yield compared("qvpiFilterBoxBorder", "9 x 9", qvpi.box(a, 9),
                       exact.along_axes(a, numpy.full(9, EXTENDED(1) / 9)), a)
        yield compared("qvpiFilterWienerBorder", "5 x 5, noise 0.01", qvpi.wiener(a, 0.01, 5),
                       exact.wiener(a, EXTENDED(0.01) * full * full, 5), a)
        if dtype != "u2":
            yield compared("qvpiFilterBilateralBorder", "radius 4", qvpi.bilateral(a, full / 4, 2.0, radius=4),
                           exact.bilateral(a, EXTENDED(numpy.float32(full / 4)), EXTENDED(2), 4), a)


def of_transforms():
    for shape, kind in (((512, 512), "powers of two"), ((375, 500), "small factors"), ((257, 509), "primes")):
        a, c = signal("f4", shape), signal("c8", shape)
        spectrum = exact.spectrum(c)
        what = f"{shape[1]} x {shape[0]}, {kind}"
        yield by_rms("qvpiDFTFwd_CToC", what, qvpi.fft2(c), spectrum)
        single = spectrum.astype("c8")
        yield by_rms("qvpiDFTInv_CToC", what, qvpi.ifft2(single), scipy.fft.ifft2(single.astype(spectrum.dtype)))
        yield by_rms("qvpiDFTFwd_RToPack", what, qvpi.unpack(qvpi.packed_dft2(a)), exact.spectrum(a))
        yield by_rms("qvpiDCTFwd", what, qvpi.dct2(a), scipy.fft.dctn(a.astype(EXTENDED), norm="ortho"))
        yield by_rms("qvpiDCTInv", what, qvpi.idct2(a), scipy.fft.idctn(a.astype(EXTENDED), norm="ortho"))
    a = signal("f4", (512, 512))
    for bank in ("haar", "cdf97"):
        yield by_rms("qvpiWaveletFwd, Inv", f"there and back, {bank}, 4 levels",
                     qvpi.idwt2(qvpi.dwt2(a, 4, bank), 4, bank), a.astype(EXTENDED))
    b = signal("f4", (31, 31))
    yield by_rms("qvpiConvolve", "31 x 31, by transforms", qvpi.convolve(a, b, method="fourier"),
                 scipy.signal.fftconvolve(a.astype("f8"), b.astype("f8"), "same").astype(EXTENDED))
    packed = qvpi.packed_dft2(a)
    whole = qvpi.unpack(packed).astype(numpy.clongdouble)
    for name, function, reference in (("Magnitude", qvpi.magnitude, abs(whole)), ("Phase", qvpi.phase, numpy.angle(whole))):
        errors = abs(function(packed) - reference) / numpy.spacing(abs(reference).astype("f4"))
        yield row(f"qvpi{name}Pack", "a spectrum", "f4", f"{errors.max():.4f}", f"{root(errors):.2f}", "ulp")


def of_statistics():
    a, b = image("f4", (1080, 1920)), image("f4", (1080, 1920))
    x, y = a.astype(EXTENDED), b.astype(EXTENDED)
    cases = {"Mean": (lambda accurate: qvpi.mean(a, accurate=accurate), x.mean()),
             "Sum": (lambda accurate: qvpi.sum(a, accurate=accurate), x.sum()),
             "Norm_L2": (lambda accurate: qvpi.norm(a, accurate=accurate), numpy.sqrt((x * x).sum())),
             "NormDiff_L1": (lambda accurate: qvpi.norm(a, b, "l1", accurate=accurate), abs(x - y).sum()),
             "DotProd": (lambda accurate: qvpi.dot(a, b, accurate=accurate), (x * y).sum())}
    for name, (function, expected) in cases.items():
        for accurate in (False, True):
            error = abs(EXTENDED(function(accurate)) - expected) / expected
            what = f"1920 x 1080, {'accurate' if accurate else 'fast'}"
            yield row(f"qvpi{name}", what, "f4", f"{error:.1e}", "", "of the result")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("page", type=Path, help="the page to write")
    options = parser.parse_args()
    warnings.simplefilter("ignore", qvpi.Warning)  # of divisors that are 0
    parts = [of_numbers, of_resizing, of_warps, of_filters, of_transforms, of_statistics]
    rows = [line for part in parts for line in part()]
    head = HEAD.format(build=qvpi.info()["build"].strip(), bits=numpy.finfo(EXTENDED).nmant + 1)
    options.page.write_text(head + "".join(rows))


if __name__ == "__main__":
    main()
