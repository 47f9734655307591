"""Chunk by chunk: the same bits as of the whole image."""
import numpy
import pytest
import qvpi
from images import random

dask = pytest.importorskip("dask.array")
chunked = pytest.importorskip("qvpi.dask")


@pytest.fixture(autouse=True)
def one_thread():
    import dask as settings
    with settings.config.set(scheduler="synchronous"):
        yield


@pytest.mark.parametrize("chunks", [(40, 50), (100, 33), (17, 90)])
@pytest.mark.parametrize("rest", [(), (3,)])
def test_areas(chunks, rest):
    a = random((101, 90, *rest), "u1", 1)
    lazy = dask.from_array(a, chunks=(*chunks, *rest))
    for border in ("replicate", "mirror", "constant"):
        for kind, *parameters in ((qvpi.Gauss, 1.5), (qvpi.Box, (3, 7)), (qvpi.Sharpen,), (qvpi.Sobel, "x")):
            filtered = chunked.filter(kind, lazy, *parameters, border=border, value=9)
            whole = kind(a.shape, a.dtype, *parameters)(a, border=border, value=9)
            numpy.testing.assert_array_equal(filtered.compute(), whole)
    for method, antialias in (("linear", False), ("cubic", True), ("super", False), ("nearest", False),
                              ("lanczos", True)):
        for shape in ((37, 41), (150, 99)):
            if method != "super" or shape[0] < 90:
                resized = chunked.resize(lazy, shape, chunks=23, method=method, antialias=antialias)
                whole = qvpi.resize(a, shape, method=method, antialias=antialias)
                numpy.testing.assert_array_equal(resized.compute(), whole)


def test_warps():
    a = random((120, 150, 3), "u1", 1)
    lazy = dask.from_array(a, chunks=(50, 60, 3))
    tilted = qvpi.perspective_transform([(0, 0), (149, 0), (149, 119), (0, 119)],
                                        [(20, 5), (140, -10), (160, 130), (5, 100)])
    for method in ("nearest", "linear", "cubic"):
        for border in ("constant", "replicate"):
            options = {"method": method, "border": border, "chunks": 37}
            for matrix in (qvpi.rotation(30, (70, 60), 0.8), [[1, 0, 7], [0, 1, -3]], [[0.3, 0, 0], [0, 3, -90]]):
                warped = chunked.warp_affine(lazy, matrix, (101, 170), value=7, **options)
                whole = qvpi.warp_affine(a, matrix, (101, 170), method=method, border=border, value=7)
                numpy.testing.assert_array_equal(warped.compute(), whole)
            warped = chunked.warp_perspective(lazy, tilted, **options)
            numpy.testing.assert_array_equal(warped.compute(),
                                             qvpi.warp_perspective(a, tilted, method=method, border=border))
    grey = random((300, 280), "f4", 2)
    warped = chunked.warp_affine(dask.from_array(grey, chunks=100), qvpi.rotation(-100, (140, 150)), chunks=64)
    numpy.testing.assert_array_equal(warped.compute(), qvpi.warp_affine(grey, qvpi.rotation(-100, (140, 150))))


def test_pixels_and_statistics():
    a, b = random((60, 70, 3), "u2", 1), random((60, 70, 3), "u2", 2)
    x, y = (dask.from_array(image, chunks=(23, 31, 3)) for image in (a, b))
    numpy.testing.assert_array_equal(chunked.apply(qvpi.add, x, y, scale=1).compute(), qvpi.add(a, b, scale=1))
    numpy.testing.assert_array_equal(chunked.sum(x).compute(), qvpi.sum(a))
    numpy.testing.assert_array_equal(chunked.mean(x).compute(), qvpi.mean(a))
    numpy.testing.assert_array_equal(chunked.min_max(x).compute(), qvpi.min_max(a))
    numpy.testing.assert_array_equal(chunked.histogram(x, 50).compute(), qvpi.histogram(a, 50))
    for kind in ("inf", "l1", "l2"):
        numpy.testing.assert_allclose(chunked.norm(x, y, kind).compute(), qvpi.norm(a, b, kind), rtol=1e-12)
