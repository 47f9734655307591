"""Volumes: formulas of scipy and numpy, and that views, tiles and threads make no difference."""
import numpy
import pytest
import qvpi
import scipy.ndimage
import scipy.spatial.transform
from hypothesis import given, settings
from hypothesis import strategies as st
from images import random, saturated

settings.register_profile("short", max_examples=15, deadline=None, derandomize=True, database=None)
settings.load_profile("short")

DTYPES = ["u1", "u2", "i2", "f4"]
MODES = {"replicate": "nearest", "mirror": "mirror", "constant": "constant"}
shapes = st.tuples(*[st.integers(5, 24)] * 3)
sizes = st.tuples(*[st.integers(1, 4)] * 3)
TURN = qvpi.affine_product3d(qvpi.rotation3d(20, (1, 2, 3), (9, 8, 6)), numpy.eye(3, 4) * 0.9)


def close(result, exact):
    """As near as single precision brings it: integers as rounded, but for ties that are none any more."""
    limit = 2e-6 * abs(exact).max()
    if result.dtype.kind == "f":
        numpy.testing.assert_allclose(result, exact, rtol=0, atol=limit)
    else:
        info = numpy.iinfo(result.dtype)
        assert abs(result - numpy.clip(exact, info.min, info.max)).max() <= 0.5 + limit


def laid_out(a, layout):
    """The same values in a view: with gaps, the axes of planes and rows exchanged in memory, or backwards."""
    if layout == "coronal":
        return numpy.ascontiguousarray(a.transpose(1, 0, 2)).transpose(1, 0, 2)
    if layout == "padded":
        wide = numpy.zeros([n + 3 for n in a.shape], a.dtype)
        wide[1:-2, 2:-1, 1:-2] = a
        return wide[1:-2, 2:-1, 1:-2]
    if layout == "backwards":
        return numpy.ascontiguousarray(a[::-1, ::-1])[::-1, ::-1]
    return a.copy()


def deformed(a, out=None, **options):
    z, y, x = numpy.mgrid[:11, :20, :16].astype("f4")
    return qvpi.remap3d(a, x + numpy.sin(y), laid_out(y, "coronal"), z + x / 4, out, **options)


def turned(border, **options):
    return lambda a, out=None, **more: qvpi.warp_affine3d(a, TURN, (20, 11, 25), out, border=border, **options, **more)


# By name: what makes a volume of another one in `out`, and the object for tiles, if there are any.
OPERATIONS = {
    "border": (lambda a, out=None, threads=None: qvpi.copy_border3d(a, 1, 2, 0, 3, 4, 0, out, value=7), None),
    "resize": (lambda a, out=None, **options: qvpi.resize3d(a, (30, 9, 23), out, method="cubic", **options),
               lambda a: qvpi.Resizer3D(a.shape, (30, 9, 23), a.dtype, "cubic")),
    "warp": (turned("constant"), lambda a: qvpi.Warp3D(a.shape, a.dtype, TURN, (20, 11, 25))),
    "warp within": (turned("transparent", method="cubic"), None),
    "remap": (deformed, None),
    "median": (lambda a, out=None, **options: qvpi.median3d(a, (3, 1, 5), out, **options),
               lambda a: qvpi.Median3D(a.shape, a.dtype, (3, 1, 5))),
    "filter": (lambda a, out=None, **options: qvpi.filter3d(a, numpy.ones((4, 3, 2)) / 25, out, **options),
               lambda a: qvpi.Filter3D(a.shape, a.dtype, numpy.ones((4, 3, 2)) / 25)),
    "separable": (lambda a, out=None, **options: qvpi.separable3d(a, [1, 2], [1, 0, -1], [.5, .5, .5], out, **options),
                  lambda a: qvpi.Separable3D(a.shape, a.dtype, [1, 2], [1, 0, -1], [.5, .5, .5])),
}


@pytest.mark.parametrize("name", OPERATIONS)
@pytest.mark.parametrize("dtype", DTYPES)
def test_views_threads_and_tiles_make_no_difference(name, dtype):
    make, maker = OPERATIONS[name]
    a = random((26, 18, 21), dtype, 5)
    whole = make(a)
    for layout in ("coronal", "padded", "backwards"):
        out = laid_out(numpy.zeros_like(whole), layout)
        assert make(laid_out(a, layout), out, threads=3) is out
        numpy.testing.assert_array_equal(out, whole)
    if maker:
        made = maker(a)
        for first, lengths in (((0, 0, 0), (1, 1, 1)), ((2, 5, 1), (9, 4, 20)), ((17, 0, 6), (3, 9, 7))):
            tile = tuple(slice(begin, begin + n) for begin, n in zip(first, lengths))
            numpy.testing.assert_array_equal(made(a, tile=(*first, *lengths), threads=2), whole[tile])
    if whole.shape == a.shape and maker:
        assert make(a, a) is a
        numpy.testing.assert_array_equal(a, whole)


@given(shapes, sizes, st.sampled_from(DTYPES), st.sampled_from(list(MODES)), st.integers(0, 1 << 20))
def test_filters(shape, size, dtype, border, seed):
    a, options = random(shape, dtype, seed), {"mode": MODES[border], "cval": 7}
    generator = numpy.random.default_rng(seed)
    kernel, anchor = generator.integers(-9, 10, size), tuple(int(generator.integers(n)) for n in size)
    origin = [place - n // 2 for place, n in zip(anchor, size)]
    exact = scipy.ndimage.convolve(a.astype(float), kernel.astype(float), origin=origin, **options)
    close(qvpi.filter3d(a, kernel / 16, anchor=anchor, border=border, value=7), exact / 16)
    if dtype != "f4":
        whole = qvpi.filter3d(a, kernel, divisor=8, anchor=anchor, border=border, value=7)
        numpy.testing.assert_array_equal(whole, saturated(exact / 8, dtype))
        turned_back = tuple(n - 1 - place for n, place in zip(size, anchor))
        numpy.testing.assert_array_equal(whole, qvpi.filter3d(
            a, kernel[::-1, ::-1, ::-1], divisor=8, anchor=turned_back, border=border, value=7, correlate=True))
    factors = [generator.integers(-4, 5, n) / 8 for n in size]
    product = numpy.einsum("i,j,k", *factors)
    exact = scipy.ndimage.convolve(a.astype(float), product, **options)
    close(qvpi.separable3d(a, *factors[::-1], border=border, value=7), exact)
    if border != "mirror":
        odd = tuple(n | 1 for n in size)
        numpy.testing.assert_array_equal(qvpi.median3d(a, odd, border=border, value=7),
                                         scipy.ndimage.median_filter(a, odd, **options))


@given(shapes, shapes, st.sampled_from(DTYPES), st.integers(0, 1 << 20))
def test_resizing(shape, target, dtype, seed):
    a = random(shape, dtype, seed)
    factors = [(m + 1e-9) / n for n, m in zip(shape, target)]
    exact = scipy.ndimage.zoom(a.astype(float), factors, order=1, grid_mode=True, mode="nearest")
    result = qvpi.resize3d(a, target)
    assert abs(result - exact).max() <= (0.57 if dtype == "u1" else 0.5 + 2e-6 * 65535)
    places = [((2 * numpy.arange(m) + 1) * n - 1) // (2 * m) for n, m in zip(shape, target)]
    numpy.testing.assert_array_equal(qvpi.resize3d(a, target, method="nearest"), a[numpy.ix_(*places)])
    halves = a[:shape[0] // 2 * 2, :shape[1] // 2 * 2, :shape[2] // 2 * 2].astype(float)
    means = halves.reshape(shape[0] // 2, 2, shape[1] // 2, 2, shape[2] // 2, 2).mean((1, 3, 5))
    close(qvpi.resize3d(halves.astype(dtype), means.shape, method="super"), means)
    made = qvpi.Resizer3D(shape, target, dtype, "lanczos", border="mirror")
    tile = tuple(n // 3 for n in target) + tuple((n + 1) // 2 for n in target)
    plane, row, column, depth, height, width = made.source(tile)
    part = a[plane:plane + depth, row:row + height, column:column + width]
    numpy.testing.assert_array_equal(made.tile(part, (plane, row, column), tile), made(a, tile=tile))
    with pytest.raises(ValueError, match="needs the part"):
        made.tile(part[:-1], (plane, row, column), tile)


@pytest.mark.parametrize("dtype", DTYPES)
def test_points(dtype):
    a = random((17, 23, 20), dtype, 3)
    matrix = qvpi.affine_inverse3d(TURN)[::-1, [2, 1, 0, 3]]  # scipy's axes are (z, y, x)
    for method, order, limit in (("nearest", 0, 0), ("linear", 1, 0.54 if dtype == "u1" else 0.51)):
        for border, mode in (("replicate", "nearest"), ("constant", "grid-constant")):
            exact = scipy.ndimage.affine_transform(a.astype(float), matrix, order=order, mode=mode, cval=7)
            result = qvpi.warp_affine3d(a, TURN, method=method, border=border, value=7)
            assert abs(result - exact).max() <= limit
            back = qvpi.warp_affine3d(a, qvpi.affine_inverse3d(TURN), method=method, border=border, value=7,
                                      inverse=True)
            numpy.testing.assert_array_equal(back, result)
    z, y, x = (numpy.random.default_rng(5).uniform(-1, n, (9, 8, 30)).astype("f4") for n in a.shape)
    exact = scipy.ndimage.map_coordinates(a.astype(float), (z, y, x), order=1)
    inside = (x >= 0) & (x <= 19) & (y >= 0) & (y <= 22) & (z >= 0) & (z <= 16)
    out = numpy.full(x.shape, 99, dtype)
    qvpi.remap3d(a, x, y, z, out)
    assert abs(out - exact)[inside].max() <= 0.54 and (out[~inside] == 99).all() and 100 < inside.sum() < inside.size


@given(st.tuples(*[st.integers(0, 5)] * 6), st.sampled_from(DTYPES))
def test_borders(widths, dtype):
    a, pairs = random((4, 7, 9), dtype, 1), list(zip(widths[::2], widths[1::2]))
    numpy.testing.assert_array_equal(qvpi.copy_border3d(a, *widths, border="replicate"), numpy.pad(a, pairs, "edge"))
    numpy.testing.assert_array_equal(qvpi.copy_border3d(a, *widths, value=9), numpy.pad(a, pairs, constant_values=9))


@given(st.floats(-720, 720), st.tuples(*[st.floats(-9, 9)] * 3).filter(any), st.tuples(*[st.floats(-99, 99)] * 3))
def test_matrices(angle, axis, center):
    unit = numpy.array(axis) / max(map(abs, axis))
    matrix = qvpi.rotation3d(angle, axis, center)
    turn = scipy.spatial.transform.Rotation.from_rotvec(-numpy.radians(angle) * unit / numpy.linalg.norm(unit))
    numpy.testing.assert_allclose(matrix[:, :3], turn.as_matrix(), atol=1e-12)
    numpy.testing.assert_allclose(matrix @ (*center, 1), center, atol=1e-10)
    moved = numpy.array([[2, 0, 0, 1], [0, 3, 1, -4], [1, 0, 1, 5.0]])
    square = [numpy.vstack([m, (0, 0, 0, 1)]) for m in (matrix, moved)]
    both = qvpi.affine_product3d(matrix, moved)
    numpy.testing.assert_allclose(both, (square[1] @ square[0])[:3], atol=1e-9)
    numpy.testing.assert_allclose(qvpi.affine_inverse3d(both), numpy.linalg.inv(square[1] @ square[0])[:3], atol=1e-8)
    corners = numpy.array(numpy.meshgrid([0, 8], [0, 6], [0, 4], [1])).reshape(4, -1)  # of (5, 7, 9)
    ends = both @ corners
    numpy.testing.assert_allclose(qvpi.affine_bound3d((5, 7, 9), both), [ends.min(1), ends.max(1)], atol=1e-9)
    points = (both @ [[0, 8, 0, 0], [0, 0, 6, 0], [0, 0, 0, 4], [1, 1, 1, 1]]).T
    numpy.testing.assert_allclose(qvpi.affine_transform3d((5, 7, 9), points), both, atol=1e-9)


A = random((9, 12, 20), "u1", 1)


@pytest.mark.parametrize("call, kind, text", [
    (lambda: qvpi.median3d(A[0]), TypeError, r"expected \(D, H, W\)"),
    (lambda: qvpi.median3d(A.astype("f8")), TypeError, "float64"),
    (lambda: qvpi.median3d(A[..., ::2]), TypeError, "copy=True"),
    (lambda: qvpi.median3d(A, 4), qvpi.Error, "qvpStatusMaskSize"),
    (lambda: qvpi.median3d(A, border="mirror"), qvpi.Error, "qvpStatusBorder"),
    (lambda: qvpi.median3d(A[2:], 3, A[:-2]), ValueError, "overlaps"),
    (lambda: qvpi.median3d(A[2:], 3, A[:-2], threads=2), ValueError, "overlaps"),
    (lambda: qvpi.median3d(A, 3, numpy.broadcast_to(A, A.shape)), ValueError, "writeable"),
    (lambda: qvpi.Median3D((9, 9, 9), "u1")(A), ValueError, "up to"),
    (lambda: qvpi.Median3D(A.shape, "u1")(A, tile=(8, 0, 0, 2, 1, 1)), ValueError, "tile"),
    (lambda: qvpi.filter3d(A, numpy.ones((2, 2, 2)), anchor=(0, 2, 0)), qvpi.Error, "qvpStatusAnchor"),
    (lambda: qvpi.filter3d(A.astype("f4"), numpy.ones((1, 1, 1)), divisor=2), qvpi.Error, "qvpStatusDataType"),
    (lambda: qvpi.resize3d(A, (9, 12, 0)), qvpi.Error, "qvpStatusSize"),
    (lambda: qvpi.resize3d(A, (10, 12, 20), method="super"), qvpi.Error, "qvpStatusSize"),
    (lambda: qvpi.warp_affine3d(A, numpy.zeros((3, 4))), qvpi.Error, "qvpStatusCoefficient"),
    (lambda: qvpi.remap3d(A, *[numpy.zeros((2, 2, n), "f4") for n in (2, 2, 3)]), ValueError, "one shape"),
    (lambda: qvpi.remap3d(A, *[numpy.zeros((2, 2, 2))] * 3), TypeError, "expected float32"),
    (lambda: qvpi.copy_border3d(A, 0, 0, 0, 0, 0, 0, A[1:]), ValueError, "shape"),
    (lambda: qvpi.rotation3d(90, (0, 0, 0), (1, 1, 1)), qvpi.Error, "qvpStatusBadArgument"),
])
def test_refusals(call, kind, text):
    before = A.copy()
    with pytest.raises(kind, match=text):
        call()
    numpy.testing.assert_array_equal(A, before)
