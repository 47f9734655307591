#!/usr/bin/env python3
"""What the Python package takes, beside other packages for numpy arrays: calls of 64x64 pixels, 1920x1080 uint8, and
volumes.

Each row takes the least time of many repetitions, ours and the others' by turns, on one thread; the last rows on all
cores. `raw` is the same call by qvpi.raw with all arguments at hand.
"""
import argparse
import os
import re
import time

import cv2
import numpy
import qvpi
import scipy.fft
import scipy.ndimage
import skimage.filters
import skimage.transform
from PIL import Image, ImageChops, ImageFilter

generator = numpy.random.default_rng(1)


def least(functions, seconds):
    """The least time of a call of each function, in microseconds, by turns."""
    counts, best = [], []
    for function in functions:
        function()
        start = time.perf_counter()
        function()
        counts.append(max(1, int(0.002 / max(time.perf_counter() - start, 1e-7))))
        best.append(float("inf"))
    end = time.perf_counter() + seconds
    while time.perf_counter() < end:
        for i, function in enumerate(functions):
            start = time.perf_counter()
            for _ in range(counts[i]):
                function()
            best[i] = min(best[i], (time.perf_counter() - start) / counts[i])
    return [1e6 * t for t in best]


def overhead(seconds):
    """Calls of small images beside qvpi.raw's and numpy's."""
    a, b, out = (generator.integers(0, 256, (64, 64), numpy.uint8) for _ in range(3))
    half = numpy.empty((48, 48), numpy.uint8)
    resizer = qvpi.Resizer(a.shape, half.shape, a.dtype)
    raw = qvpi.raw
    pointer = [raw.ffi.cast("Qvp8u*", array.ctypes.data) for array in (a, b, out, half)]
    size, offset = raw.ffi.new("QvpiSize*", (64, 64))[0], raw.ffi.new("QvpiPoint*", (0, 0))[0]
    half_size = raw.ffi.new("QvpiSize*", (48, 48))[0]
    spec = raw.ffi.cast("QvpiResizeSpec*", resizer._spec.ctypes.data)
    work = resizer._buffers.take()
    buffer = raw.ffi.cast("Qvp8u*", work.ctypes.data)
    empty = raw.lib.qvp_get_cache_line_size
    rows = {
        "add": (lambda: qvpi.add(a, b, out),
                lambda: raw.lib.qvpiAdd_8u_C1RSfs(pointer[0], 64, pointer[1], 64, pointer[2], 64, size, 0)),
        "add, new result": (lambda: qvpi.add(a, b), None),
        "resize, cached record": (lambda: resizer(a, half),
                                  lambda: raw.lib.qvpiResizeLinear_8u_C1R(
                                      pointer[0], 64, pointer[3], 48, offset, half_size, 1, raw.ffi.NULL, spec,
                                      buffer)),
    }
    print(f"{'64x64 uint8':34}{'ours us':>10}{'raw us':>10}{'numpy us':>10}")
    numpy_add = least([lambda: numpy.add(a, b, out), empty], seconds)[0]
    for name, (ours, plain) in rows.items():
        times = least([ours, plain or empty], seconds)
        shown = f"{times[1]:10.2f}" if plain else f"{'':10}"
        print(f"{name:34}{times[0]:10.2f}{shown}{numpy_add if 'add' in name else float('nan'):10.2f}")


def deviation(a):
    """(mean, standard deviation) of each channel: of bytes the sum of squares is exact."""
    mean = qvpi.mean(a)
    return mean, numpy.sqrt(qvpi.norm(a) ** 2 / (a.shape[0] * a.shape[1]) - mean ** 2)


def rows_of(channels):
    """{row: {package: call}} for an image of 1920x1080."""
    shape = (1080, 1920) if channels == 1 else (1080, 1920, channels)
    a, b = (generator.integers(0, 256, shape, numpy.uint8) for _ in range(2))
    out = numpy.empty_like(a)
    small = 648, 1152
    reduced = numpy.empty((*small, *shape[2:]), numpy.uint8)
    pillow, other = Image.fromarray(a), Image.fromarray(b)
    kernel = numpy.outer([1, 4, 6, 4, 1], [1, 4, 6, 4, 1])
    matrix = qvpi.rotation(10, (960, 540))
    image_filter = qvpi.Filter2D(a.shape, a.dtype, kernel, divisor=256)
    scipy_kernel = (kernel if channels == 1 else kernel[..., None]) / 256
    warp = qvpi.Warp(a.shape, a.dtype, matrix)
    rows = {
        "add": {"ours": lambda: qvpi.add(a, b, out), "cv2": lambda: cv2.add(a, b, out),
                "numpy": lambda: numpy.add(a, b, out), "Pillow": lambda: ImageChops.add(pillow, other)},
        "threshold": {"ours": lambda: qvpi.threshold(a, 99, out),
                      "cv2": lambda: cv2.threshold(a, 99, 255, cv2.THRESH_TRUNC, out),
                      "numpy": lambda: numpy.minimum(a, 99, out)},
        "filter 5x5": {"ours": lambda: image_filter(a, out),
                       "cv2": lambda: cv2.filter2D(a, -1, kernel / 256, out),
                       "Pillow": lambda: pillow.filter(ImageFilter.Kernel((5, 5), kernel.ravel().tolist(), 256)),
                       "scipy": lambda: scipy.ndimage.convolve(a, scipy_kernel, out, "nearest")},
        "affine": {"ours": lambda: warp(a, out),
                   "cv2": lambda: cv2.warpAffine(a, matrix, (1920, 1080), out),
                   "Pillow": lambda: pillow.rotate(10, Image.Resampling.BILINEAR)},
        "histogram": {"ours": lambda: qvpi.histogram(a),
                      "cv2": lambda: [cv2.calcHist([a], [c], None, [256], [0, 256]) for c in range(channels)],
                      "Pillow": pillow.histogram},
        "mean": {"ours": lambda: qvpi.mean(a), "cv2": lambda: cv2.mean(a), "numpy": lambda: a.mean((0, 1))},
        "mean, standard deviation": {"ours": lambda: deviation(a), "cv2": lambda: cv2.meanStdDev(a),
                                     "numpy": lambda: (a.mean((0, 1)), a.std((0, 1)))},
    }
    filters = {"linear": (cv2.INTER_LINEAR, Image.Resampling.BILINEAR, 1),
               "cubic": (cv2.INTER_CUBIC, Image.Resampling.BICUBIC, 3), "lanczos": (cv2.INTER_LANCZOS4, None, None)}
    for method, (theirs, antialiased, order) in filters.items():
        made = qvpi.Resizer(a.shape, small, a.dtype, method)
        rows[f"resize {method}"] = {"ours": lambda made=made: made(a, reduced),
                                    "cv2": lambda how=theirs: cv2.resize(a, small[::-1], reduced, interpolation=how)}
        if channels == 1 and order:
            rows[f"resize {method}"]["skimage"] = lambda order=order: skimage.transform.resize(
                a, small, order, preserve_range=True, anti_aliasing=False)
        wide = qvpi.Resizer(a.shape, small, a.dtype, method, antialias=True)
        how = antialiased or Image.Resampling.LANCZOS
        rows[f"resize {method}, antialiased"] = {"ours": lambda wide=wide: wide(a, reduced),
                                                 "Pillow": lambda how=how: pillow.resize(small[::-1], how)}
    if channels == 1:
        real = a.astype(numpy.float32)
        rows["fft2 (packed)"] = {"ours": lambda: qvpi.packed_dft2(real), "cv2": lambda: cv2.dft(real),
                                 "scipy": lambda: scipy.fft.rfft2(real), "numpy": lambda: numpy.fft.rfft2(real)}
    return rows


def volume_rows(side):
    """{row: {package: call}} for volumes of this side."""
    shape, half = (side,) * 3, (side * 3 // 5,) * 3
    a = generator.integers(0, 65536, shape, numpy.uint16)
    out, reduced, floats = numpy.empty_like(a), numpy.empty(half, a.dtype), a.astype(numpy.float32)
    kernel = numpy.arange(27.0).reshape(3, 3, 3) / 351
    middle = ((side - 1) / 2,) * 3
    matrix = qvpi.affine_product3d(qvpi.rotation3d(10, (0, 0, 1), middle), qvpi.rotation3d(7, (1, 0, 0), middle))
    theirs = matrix[::-1, [2, 1, 0, 3]]  # axes (z, y, x)
    warp = qvpi.Warp3D(shape, a.dtype, matrix, inverse=True, border="replicate")
    resizer, smooth = qvpi.Resizer3D(shape, half, a.dtype), qvpi.Filter3D(shape, floats.dtype, kernel)
    result = numpy.empty_like(floats)
    z, y, x = maps = numpy.einsum("ij,jzyx->izyx", theirs[:, :3], numpy.indices(shape)) + theirs[:, 3, None, None, None]
    fields = [axis.astype(numpy.float32) for axis in (x, y, z)]
    ndimage = scipy.ndimage
    return {
        "border of 4": {"ours": lambda: qvpi.copy_border3d(a, *[4] * 6, border="replicate"),
                        "numpy": lambda: numpy.pad(a, 4, "edge")},
        "resize linear x0.6": {"ours": lambda: resizer(a, reduced),
                               "scipy": lambda: ndimage.zoom(a, half[0] / side, reduced, 1, "nearest", grid_mode=True)},
        "affine linear": {"ours": lambda: warp(a, out), "scipy": lambda: ndimage.affine_transform(
            a, theirs[:, :3], theirs[:, 3], output=out, order=1, mode="nearest")},
        "remap linear": {"ours": lambda: qvpi.remap3d(a, *fields, out),
                         "scipy": lambda: ndimage.map_coordinates(a, maps, out, 1, "nearest")},
        "filter 3x3x3 float32": {"ours": lambda: smooth(floats, result),
                                 "scipy": lambda: ndimage.convolve(floats, kernel, result, "nearest")},
        "median 3x3x3": {"ours": lambda: qvpi.median3d(a, 3, out),
                         "scipy": lambda: ndimage.median_filter(a, 3, output=out, mode="nearest")},
    }


def compare(title, rows, seconds, only):
    packages = ["ours", "cv2", "Pillow", "skimage", "scipy", "numpy"]
    rows = {name: calls for name, calls in rows.items() if only.search(f"{title} {name}")}
    if rows:
        print(f"\n{title:34}" + "".join(f"{package + ' ms':>12}" for package in packages))
    for name, calls in rows.items():
        times = dict(zip(calls, least(list(calls.values()), seconds)))
        print(f"{name:34}" + "".join(f"{times[p] / 1000:12.3f}" if p in times else f"{'':12}" for p in packages))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seconds", type=float, default=1.0, help="for each row")
    parser.add_argument("--only", type=re.compile, default=re.compile(""), help="rows that are wanted")
    options = parser.parse_args()
    cv2.setNumThreads(1)
    if options.only.search("64x64 overhead"):
        overhead(options.seconds)
    for channels in (1, 3):
        compare(f"1920x1080 uint8 C{channels}", rows_of(channels), options.seconds, options.only)
    for side in (16, 64):
        compare(f"{side}x{side}x{side} uint16", volume_rows(side), options.seconds, options.only)
    cores = os.cpu_count()
    cv2.setNumThreads(cores)
    qvpi.set_threads(cores)
    for channels in (1, 3):
        rows = {name: {p: call for p, call in calls.items() if p in ("ours", "cv2")}
                for name, calls in rows_of(channels).items() if "cv2" in calls and not name.startswith(("mean", "fft"))}
        compare(f"1920x1080 uint8 C{channels}, {cores} cores", rows, options.seconds, options.only)


if __name__ == "__main__":
    main()
