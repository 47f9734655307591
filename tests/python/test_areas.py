"""Filters, resizing, warps and transforms: formulas, tiles, threads, records."""
import threading

import numpy
import pytest
import qvpi
import scipy.fft
import scipy.ndimage
import scipy.signal
from hypothesis import given, settings
from hypothesis import strategies as st
from images import images, layouts, laid_out, random, saturated

settings.register_profile("short", max_examples=15, deadline=None, derandomize=True, database=None)
settings.load_profile("short")

MODES = {"replicate": "nearest", "mirror": "mirror", "constant": "constant"}
sizes = st.tuples(st.integers(1, 7), st.integers(1, 7))


def by_channel(function, a):
    """What scipy makes of each channel."""
    if a.ndim == 2:
        return function(a.astype(float))
    return numpy.stack([function(a[..., c].astype(float)) for c in range(a.shape[2])], axis=2)


@given(images(count=1, least=8), sizes, st.sampled_from(list(MODES)), layouts)
def test_rectangles(one, size, border, layout):
    (a,) = one
    options = {"mode": MODES[border], "cval": 7}
    mean = by_channel(lambda c: scipy.ndimage.correlate(c, numpy.ones(size), **options), a) / (size[0] * size[1])
    out = laid_out(numpy.zeros_like(a), layout)
    assert qvpi.box(a, size, out, border=border, value=7, threads=2) is out
    numpy.testing.assert_allclose(out, saturated(mean, a.dtype), rtol=1e-5, atol=2e-3 if a.dtype.kind == "f" else 0)
    least = by_channel(lambda c: scipy.ndimage.minimum_filter(c, size, **options), a)
    numpy.testing.assert_array_equal(qvpi.minimum(a, size, border=border, value=7), least)
    greatest = by_channel(lambda c: scipy.ndimage.maximum_filter(c, size, **options), a)
    numpy.testing.assert_array_equal(qvpi.maximum(a, size, border=border, value=7), greatest)


@given(images(("u1",), count=1, least=6), sizes, st.sampled_from(list(MODES)), st.integers(0, 1 << 20))
def test_any_kernel(one, size, border, seed):
    (a,) = one
    kernel = numpy.random.default_rng(seed).integers(-9, 10, size)
    turned = kernel[::-1, ::-1]
    origin = [-1 if n % 2 == 0 else 0 for n in size]  # the library's middle of an even side is the lower one
    exact = by_channel(lambda c: scipy.ndimage.correlate(c, turned.astype(float), mode=MODES[border], cval=7,
                                                         origin=origin), a)
    filtered = qvpi.filter2d(a, kernel, divisor=8, border=border, value=7)
    numpy.testing.assert_array_equal(filtered, saturated(exact / 8, "u1"))
    correlated = qvpi.filter2d(a, turned, divisor=8, border=border, value=7, correlate=True)
    numpy.testing.assert_array_equal(filtered, correlated)


FILTERS = {
    "Box": (5,), "Minimum": ((3, 5),), "Maximum": ((4, 3),), "SumRow": (7,), "SumColumn": (7,), "Binomial": (5,),
    "Sharpen": (), "Laplace": (5,), "HighPass": (3,), "Sobel": ("x", 5), "Scharr": ("y",), "Prewitt": ("x",),
    "Roberts": ("down", 2), "SobelMagnitude": (), "Gauss": (1.5,), "Bilateral": (30.0,), "Wiener": (0.01, 5),
    "Median": (5,), "Guided": (5, 0.01), "MedianCenter": ((3, 5), 4), "LocalThreshold": ((5, 3), 1.5),
    "Filter2D": (numpy.arange(20.0).reshape(4, 5) / 190,),
    "Separable": ([1, 2, 1], [1, 0, 3]), "Erode": (numpy.eye(5),), "Dilate": ([[0, 1, 0], [1, 1, 1]],),
}


@pytest.mark.parametrize("name", FILTERS)
@given(st.sampled_from(list(MODES)), st.tuples(*[st.integers(0, 59)] * 4), st.sampled_from(["u1", "i2", "f4"]))
def test_tiles_and_threads_are_the_whole(name, border, corners, dtype):
    lacking = {"SobelMagnitude": "mirror", "Median": "mirror", "MedianCenter": "mirror", "Guided": "constant"}
    if border == lacking.get(name) or dtype == "i2" and name in ("Bilateral", "Guided", "LocalThreshold"):
        return  # there are none
    a = random((61, 60), dtype, 5)
    made = getattr(qvpi, name)(a.shape, a.dtype, *FILTERS[name])
    whole = made(a, border=border, value=3)
    numpy.testing.assert_array_equal(made(a, border=border, value=3, threads=3), whole)
    (top, bottom), (left, right) = sorted(corners[:2]), sorted(corners[2:])
    tile = top, left, bottom - top + 1, right - left + 1
    numpy.testing.assert_array_equal(made(a, tile=tile, border=border, value=3), whole[top:bottom + 1, left:right + 1])
    if whole.dtype == a.dtype:
        in_place = a.copy()
        assert made(in_place, in_place, border=border, value=3) is in_place
        numpy.testing.assert_array_equal(in_place, whole)


@pytest.mark.parametrize("dtype", ["u1", "u2", "f4"])
def test_guides(dtype):
    a, grey, colors = random((61, 60), dtype, 5), random((61, 60), dtype, 6), random((61, 60, 3), dtype, 7)
    numpy.testing.assert_array_equal(qvpi.guided(a, size=5), qvpi.guided(a, a.copy(), 5))
    means = scipy.ndimage.uniform_filter(scipy.ndimage.uniform_filter(a.astype(float), 3), 3)
    for guide in (grey, colors):
        check_parts(lambda image, **options: qvpi.guided(image, guide, (5, 3), 0.01, **options), a)
        flat = qvpi.guided(a, numpy.zeros_like(guide), 3)[2:-2, 2:-2]
        numpy.testing.assert_allclose(flat, means[2:-2, 2:-2], rtol=1e-5, atol=0.51)
    with pytest.raises(ValueError, match="guide"):
        qvpi.guided(a, grey[1:])


def test_gradient():
    a = (3 * numpy.arange(40) + 4 * numpy.arange(30)[:, None]).astype("f4")
    x, y, magnitude, angle = (part[1:-1, 1:-1] for part in qvpi.gradient(a, threads=2))
    assert (x == 24).all() and (y == 32).all() and (magnitude == 40).all()
    numpy.testing.assert_allclose(angle, numpy.arctan2(32, 24), atol=5e-6)


def check_parts(made, a):
    """By threads and by a tile as the whole, which is the result."""
    whole = made(a)
    numpy.testing.assert_array_equal(made(a, threads=3), whole)
    height, width = whole.shape[:2]
    top, left, below, right = height // 5, width // 6, height - height // 5 + 1 >> 1, width - width // 6 + 1 >> 1
    tile = made(a, tile=(top, left, below, right))
    numpy.testing.assert_array_equal(tile, whole[top:top + below, left:left + right])
    return whole


@given(st.sampled_from(["nearest", "linear", "cubic", "lanczos", "super"]), st.booleans(),
       st.tuples(st.integers(1, 50), st.integers(1, 60)), st.sampled_from(["u1", "u2", "i2", "f4"]), layouts,
       st.sampled_from([(), (3,), (4,)]))
def test_resize(method, antialias, shape, dtype, layout, rest):
    a = laid_out(random((50, 60, *rest), dtype, 5), layout)
    whole = check_parts(qvpi.Resizer(a.shape, shape, a.dtype, method, antialias), a)
    assert whole.shape == (*shape, *rest)
    numpy.testing.assert_array_equal(qvpi.resize(a, shape, method=method, antialias=antialias), whole)
    if method == "nearest":
        rows, columns = (numpy.ceil((numpy.arange(n) + 0.5) * m / n - 1).astype(int) for n, m in zip(shape, (50, 60)))
        numpy.testing.assert_array_equal(whole, a[rows][:, columns])


@pytest.mark.parametrize("dtype", ["u1", "u2", "i2", "f4", "f8"])
@given(st.sampled_from(["nearest", "linear", "cubic"]), st.sampled_from(["constant", "replicate", "transparent"]),
       st.sampled_from(["affine", "perspective", "bilinear"]), st.booleans(), st.floats(-180, 180))
def test_warps(dtype, method, border, kind, inverse, angle):
    a = random((50, 60, 3), "f4" if dtype == "f8" else dtype, 5).astype(dtype)
    turned = qvpi.rotation(angle, (29.5, 24.5))
    matrix = {"affine": turned, "perspective": numpy.vstack([turned, [1e-4, 0, 1]]),
              "bilinear": qvpi.bilinear_transform(a.shape, [(3, 2), (55, -4), (58, 47), (1, 41)])}[kind]
    options = {"border": border, "value": 9, "inverse": inverse}
    whole = check_parts(qvpi.Warp(a.shape, a.dtype, matrix, (45, 70), method, **options), a)
    function = getattr(qvpi, "warp_" + kind)
    numpy.testing.assert_array_equal(function(a, matrix, (45, 70), method=method, **options), whole)


@pytest.mark.parametrize("inverse", [False, True])
def test_bilinear_quads(inverse):
    a = random((50, 60, 3), "u1", 5)
    quads = [[(5, 4), (50, 2), (55, 40), (2, 45)], [(3, 2), (60, -4), (69, 40), (1, 41)]]
    whole = check_parts(qvpi.Warp(a.shape, a.dtype, quads, (45, 70), inverse=inverse), a)
    if not inverse:
        out = numpy.full_like(whole, 7)
        qvpi.warp_bilinear_quad(a, *quads, out=out)
        numpy.testing.assert_array_equal(out[whole != 0], whole[whole != 0])
        assert (out[44] == 7).all()


def test_bilinear_formulas():
    a = random((20, 30), "f4", 1).astype("f8")
    corners = [(0, 0), (29, 0), (29, 19), (0, 19)]
    matrix = qvpi.bilinear_transform(a.shape, [corners[1], corners[0], corners[3], corners[2]])
    numpy.testing.assert_array_equal(qvpi.warp_bilinear(a, matrix), a[:, ::-1])
    numpy.testing.assert_allclose(qvpi.warp_bilinear_quad(a, corners, corners), a, atol=1e-9)


def test_warp_formulas():
    a = random((20, 30), "f4", 1)
    turned = qvpi.warp_affine(a, qvpi.rotation(180, (14.5, 9.5)), method="nearest")
    numpy.testing.assert_array_equal(turned[1:-1, 1:-1], a[::-1, ::-1][1:-1, 1:-1])
    moved = qvpi.warp_affine(a, [[1, 0, 2.5], [0, 1, 0]], border="replicate")
    numpy.testing.assert_allclose(moved[:, 3:], (a[:, :-3] + a[:, 1:-2]) / 2, rtol=1e-6)
    corners, others = [(0, 0), (29, 0), (29, 19), (0, 19)], [(3, 2), (25, 1), (28, 18), (1, 15)]
    homogeneous = numpy.array([(x, y, 1) for x, y in corners])
    u, v, w = qvpi.perspective_transform(corners, others) @ homogeneous.T
    numpy.testing.assert_allclose(numpy.transpose([u / w, v / w]), others, atol=1e-9)
    affine = qvpi.affine_transform(corners[:3], others[:3]) @ homogeneous[:3].T
    numpy.testing.assert_allclose(affine.T, others[:3], atol=1e-9)
    half, centre = numpy.sqrt(3) * numpy.eye(2) + [[0, 1], [-1, 0]], (3, 4)
    matrix = qvpi.rotation(30, centre, 2, to=(5, 7))
    numpy.testing.assert_allclose(matrix, numpy.column_stack([half, (5, 7) - half @ centre]))
    numpy.testing.assert_array_equal(qvpi.rotate(a, 90, method="nearest"), numpy.rot90(a))
    canvas, inside = qvpi.rotate(numpy.ones_like(a), 10), qvpi.rotate(numpy.ones_like(a), 10, fit="inside")
    assert canvas.shape == (25, 33) and (inside > 0.99).all() and inside.size > 150
    y, x = numpy.mgrid[:20, :30].astype("f4")
    numpy.testing.assert_array_equal(qvpi.remap(a, x[:, ::-1].copy(), y, threads=2), a[:, ::-1])
    assert (qvpi.remap(a, x + 100, y) == 0).all()


@given(st.tuples(st.integers(1, 40), st.integers(1, 40)), st.sampled_from(["backward", "forward", "ortho"]),
       st.integers(0, 1 << 20))
def test_fourier(shape, norm, seed):
    a = numpy.random.default_rng(seed).standard_normal(shape).astype("f4")
    expected = numpy.fft.fft2(a, norm=norm)
    tolerance = {"rtol": 0, "atol": 1e-5 * abs(expected).max()}
    numpy.testing.assert_allclose(qvpi.fft2(a, norm), expected, **tolerance)
    numpy.testing.assert_allclose(qvpi.dft2(a.astype("c8"), norm), expected, **tolerance)
    numpy.testing.assert_allclose(qvpi.ifft2(qvpi.fft2(a, norm), norm), a, atol=1e-4)
    packed = qvpi.packed_dft2(a, norm=norm)
    numpy.testing.assert_allclose(qvpi.magnitude(packed), abs(expected), **tolerance)
    numpy.testing.assert_array_equal(qvpi.pack(qvpi.unpack(packed)), packed)
    numpy.testing.assert_allclose(qvpi.packed_idft2(packed, norm=norm), a, atol=1e-4)


@pytest.mark.parametrize("kind, weights", [("bartlett", numpy.bartlett), ("hann", numpy.hanning),
                                           ("hamming", numpy.hamming), ("blackman", numpy.blackman)])
def test_windows(kind, weights):
    exact = numpy.outer(weights(40), weights(51))
    numpy.testing.assert_allclose(qvpi.window((40, 51), kind), exact, atol=2e-7)
    a = random((40, 51, 3), "u1", 4)
    close = numpy.abs(qvpi.apply_window(a, kind) - exact[..., None] * a) <= 0.5001
    assert close.all()
    longer = numpy.outer(weights(41), weights(52))[:-1, :-1]
    numpy.testing.assert_allclose(qvpi.window((40, 51), kind, periodic=True), longer, atol=2e-7)


@pytest.mark.parametrize("dtype, method, channels", [("u1", "auto", 1), ("i2", "direct", 3), ("f4", "fourier", 4),
                                                     ("f4", "direct", 1), ("u1", "fourier", 3)])
def test_convolutions(dtype, method, channels):
    a, b = random((21, 30, channels), dtype, 1), random((6, 9, channels), dtype, 2)
    divisor = 1 if dtype == "f4" else 1000
    for mode in ("full", "same", "valid"):
        exact = numpy.dstack([scipy.signal.convolve2d(a[..., c].astype(float), b[..., c].astype(float), mode)
                              for c in range(channels)]) / divisor
        result = qvpi.convolve(a.squeeze(), b.squeeze(), mode=mode, divisor=divisor, method=method)
        tolerance = 3e-6 * abs(exact).max() if dtype == "f4" else 0
        numpy.testing.assert_allclose(result.reshape(exact.shape), saturated(exact, dtype), rtol=0, atol=tolerance)
    with pytest.raises(ValueError):
        qvpi.convolve(b.squeeze(), a.squeeze(), mode="valid")
    with pytest.raises(TypeError):
        qvpi.convolve(a.squeeze(), b.squeeze().astype("u2"))


def test_deconvolution():
    a, psf = random((24, 30, 3), "u1", 1).astype("f4") / 255, random((5, 4), "u1", 2) / 2550
    psf[2, 1] = 5
    psf /= psf.sum()
    blurred = by_channel(lambda c: scipy.ndimage.convolve(c, psf, mode="wrap", origin=(0, -1)), a).astype("f4", "C")
    restored = qvpi.deconvolve(blurred, psf, noise=1e-6, border="wrap")
    numpy.testing.assert_allclose(restored, a, atol=1e-4)
    grey = qvpi.deconvolve(blurred[..., 1].copy(), psf, noise=0.25, border="wrap")
    numpy.testing.assert_allclose(grey.mean(), a[..., 1].mean() / 1.25, rtol=1e-5)
    nearer = qvpi.richardson_lucy(blurred, psf, iterations=20, border="wrap")
    assert abs(nearer - a).mean() < 0.7 * abs(blurred - a).mean() and nearer.min() >= 0
    with pytest.raises(ValueError):
        qvpi.Deconvolver((9, 9), psf).inverse(a)


@pytest.mark.parametrize("dtype", ["u1", "u2", "i2", "f4"])
@pytest.mark.parametrize("method", ["direct", "fourier"])
@pytest.mark.parametrize("count, joint", [(1, False), (3, False), (3, True), (4, True)])
def test_matches(dtype, method, count, joint):
    a, template = random((21, 30, count), dtype, 1), random((6, 9, count), dtype, 2)
    window, used = a[7:13, 9:18], slice(3)  # no alpha
    for norm in ("plain", "normed", "centred", "coefficient"):
        w, t = (x.reshape(54, count)[:, used].astype(float) for x in (window, template))
        if norm in ("centred", "coefficient"):
            w, t = w - w.mean(0), t - t.mean(0)
        axes = (0, 1) if joint else 0
        divisor = numpy.sqrt((w ** 2).sum(axes) * (t ** 2).sum(axes)) if norm in ("normed", "coefficient") else 1
        for measure, exact in (("correlation", (w * t).sum(axes)), ("distance", ((w - t) ** 2).sum(axes))):
            found = qvpi.match(a.squeeze(), template.squeeze(), measure=measure, norm=norm, joint=joint, method=method)
            assert found.shape[:2] == (16, 22)
            numpy.testing.assert_allclose(found[7, 9], (exact / divisor).squeeze(), rtol=1e-5)
    for wrong, kind in ((numpy.zeros((22, 9, count), dtype), ValueError), (template.astype("f8"), TypeError)):
        with pytest.raises(kind):
            qvpi.match(a.squeeze(), wrong.squeeze())


@given(st.sampled_from(["ortho", "backward", "forward", "none"]), st.tuples(st.integers(1, 40), st.integers(1, 40)))
def test_cosine_transforms(norm, shape):
    a = random((*shape, 3), "f4", 8) % 1
    transformed = qvpi.dct2(a, norm=norm)
    exact = scipy.fft.dctn(a.astype(float), 2, axes=(0, 1), norm="ortho" if norm == "ortho" else None)
    factor = {"ortho": 1, "backward": 0.25, "none": 0.25, "forward": 0.25 / (shape[0] * shape[1])}[norm]
    numpy.testing.assert_allclose(transformed, exact * factor, atol=4e-6 * abs(exact * factor).max())
    back = qvpi.idct2(transformed, norm=norm) / (shape[0] * shape[1] if norm == "none" else 1)
    numpy.testing.assert_allclose(back, a, atol=1e-5)


def test_cosine_transforms_of_blocks():
    a, steps = random((41, 50), "u1", 6), numpy.arange(1, 65).reshape(8, 8)
    blocks = (numpy.pad(a, ((0, 7), (0, 6)), "edge").astype(float) - 128).reshape(6, 8, 7, 8).swapaxes(1, 2)
    exact = scipy.fft.dctn(blocks, 2, axes=(-2, -1), norm="ortho")
    assert numpy.abs(qvpi.dct_blocks(a) - exact).max() <= 0.5001
    assert numpy.abs(qvpi.dct_blocks(a, steps) - exact / steps).max() <= 0.5001
    assert numpy.abs(qvpi.idct_blocks(qvpi.dct_blocks(a), a.shape).astype(int) - a).max() <= 1
    pattern = numpy.zeros((6, 7, 8, 8), "i2")
    pattern[:, :, 2, 1] = 1
    wave = scipy.fft.idctn(pattern * steps * 10.0, 2, axes=(-2, -1), norm="ortho").swapaxes(1, 2).reshape(48, 56)
    assert numpy.abs(qvpi.idct_blocks(pattern, a.shape, quantizer=steps * 10) - wave[:41, :50] - 128).max() <= 0.51
    floats = a.astype("f4")
    numpy.testing.assert_allclose(qvpi.idct_blocks(qvpi.dct_blocks(floats), a.shape, "f4"), floats, atol=1e-3)


def test_wavelets():
    root, a = numpy.sqrt(2), random((20, 30), "f4", 8) % 1
    def halves(x):
        return numpy.hstack([x[:, ::2] + x[:, 1::2], x[:, ::2] - x[:, 1::2]]) / root

    exact = halves(halves(a).T).T
    numpy.testing.assert_allclose(qvpi.dwt2(a, bank="haar"), exact, atol=2e-6)
    low, high = (numpy.array([-1, 2, 6, 2, -1]) * root / 8, 2), (numpy.array([-1, 2, -1]) * root / 4, 1)
    back = (numpy.array([1, 2, 1]) * root / 4, 1), (numpy.array([-1, -2, 6, -2, -1]) * root / 8, 2)
    colour = numpy.dstack([a, a / 2, -a])
    for border, levels in (("mirror", 3), ("wrap", 1)):
        own = qvpi.Wavelet((low, high, *back), border)
        bands = qvpi.dwt2(colour, levels, bank="cdf53", border=border)
        numpy.testing.assert_array_equal(own.forward(colour, levels), bands)
        numpy.testing.assert_allclose(own.inverse(bands, levels), colour, atol=1e-5)
        numpy.testing.assert_allclose(qvpi.idwt2(bands, levels, bank="cdf53", border=border), colour, atol=1e-5)


def test_convolution_by_packed_spectra():
    a, kernel = random((16, 24), "f4", 1), numpy.zeros((16, 24), "f4")
    kernel[0, :3] = 1, 2, 3
    product = qvpi.multiply_packed(qvpi.packed_dft2(a), qvpi.packed_dft2(kernel))
    expected = a + 2 * numpy.roll(a, 1, 1) + 3 * numpy.roll(a, 2, 1)
    numpy.testing.assert_allclose(qvpi.packed_idft2(product), expected, atol=0.05)


def test_smoothing_that_keeps_edges():
    a = random((40, 30, 3), "u2", 3)
    exact = by_channel(lambda c: scipy.ndimage.median_filter(c, (3, 5), mode="nearest"), a)
    numpy.testing.assert_array_equal(qvpi.median(a, (3, 5)), exact)
    assert qvpi.median_vector(a).shape == a.shape
    line, steps, dot = numpy.full((9, 9), 10, "u1"), numpy.zeros((5, 5), "f4"), numpy.full((5, 5), 10, "u1")
    line[:, 4], steps[:, 2:], dot[2, 2] = 200, 100, 200
    assert qvpi.median_center(line, weight=4).max() == 10 and (qvpi.median_center(line, weight=5) == line).all()
    numpy.testing.assert_allclose(qvpi.bilateral(steps, 100, 1.0, radius=1)[2], [0, 12, 88, 100, 100], atol=0.5)
    assert qvpi.wiener(dot, 0.01)[2, 1:3].tolist() == [14, 169]
    rising = numpy.array([[10, 20, 30, 40, 50, 60]], "u1")
    assert qvpi.local_threshold(rising, (1, 3), 0.1).tolist() == [[0, 255, 255, 255, 255, 255]]
    for bound, most in ((-138.2, 255), (-138.3, 0)):  # the mean at the dot is 61.779
        assert qvpi.local_threshold(dot, 3, bound, sigma=0.8).max() == most
    row = numpy.array([[100, 104, 100, 200, 204, 200]], "u1")
    assert qvpi.least_squares(row).tolist() == [[104, 104, 104, 199, 199, 199]]


def frames(dtype):
    """Of two planes and of three."""
    luma, chroma = random((48, 80), dtype, 1), [random((24, 40), dtype, seed) for seed in (2, 3)]
    return (luma, numpy.dstack(chroma)), (luma, *chroma)


def test_frames():
    """Decimation by whole numbers is a mean of squares; halves go up."""
    for frame in (*frames("u1"), *frames("u2")):
        for n in (2, 4, 8):
            for plane, result in zip(frame, qvpi.decimate_frame(frame, f"1/{n}")):
                rows, columns = result.shape[:2]
                sums = plane.reshape(rows, n, columns, n, -1).astype(int).sum((1, 3)).reshape(result.shape)
                numpy.testing.assert_array_equal(result, (2 * sums + n * n) // (2 * n * n))
    assert [plane.shape for plane in qvpi.decimate_frame(frame, "3/8")] == [(18, 30), (9, 15), (9, 15)]
    with pytest.raises(ValueError, match="expected"):
        qvpi.decimate_frame((*frame[:2], frame[2][1:]), "1/2")


@pytest.mark.parametrize("dtype, method", [("u1", "linear"), ("u2", "lanczos"), ("u1", "super")])
def test_resized_frames(dtype, method):
    """Luma is resized as an image, and between its pixels chroma too."""
    for frame in frames(dtype):
        small = qvpi.resize_frame(frame, (30, 52), method, site="centre")
        for plane, result in zip(frame, small):
            channel = (..., 0) if plane.ndim == 3 else ...
            expected = qvpi.resize(plane[channel].copy(), (30, 52) if plane is frame[0] else (15, 26), method=method)
            numpy.testing.assert_array_equal(result[channel], expected)
    packed = numpy.dstack((frame[0], random((48, 80), dtype, 4)))
    for place, pixels in (("first", packed), ("second", packed[..., ::-1])):
        result = qvpi.resize_packed(pixels, (30, 52), method, luma=place, site="centre")
        numpy.testing.assert_array_equal(result[..., 0 if place == "first" else 1], small[0])


def test_sites_of_chroma_and_what_has_none():
    ramp = numpy.tile(numpy.arange(60000, 62000, 600).astype("u2"), (2, 1))
    frame = numpy.zeros((4, 8), "u2"), ramp, ramp
    for options, row in (({}, [60050, 60850, 61650]), ({"site": "centre"}, [60100, 60900, 61700])):
        assert qvpi.resize_frame(frame, (4, 6), **options)[1][0].tolist() == row
    for wrong in (lambda: qvpi.resize_frame(frame, (5, 6), "super"),
                  lambda: qvpi.resize_packed(numpy.zeros((4, 8, 2), "u1"), (4, 5))):
        with pytest.raises(qvpi.Error):
            wrong()


def test_hog():
    a = random((160, 100, 3), "u1", 1)
    made = qvpi.Hog()
    both = made(a, [(0, 0), (17, 30)])
    assert both.shape == (2, 3780)
    numpy.testing.assert_array_equal(both[1], qvpi.hog(a, [(17, 30)])[0])
    numpy.testing.assert_array_equal(both[1], made(a, [(17, 32), (17, 30)])[1])
    with pytest.raises(ValueError, match="whole blocks"):
        made(a, [(17, 33)])
    numpy.testing.assert_allclose((both[0].reshape(-1, 36) ** 2).sum(1), 1, atol=1e-3)


@given(images(count=1), st.integers(0, 1 << 20), layouts)
def test_noise(one, seed, layout):
    """A function of the place: by threads, by tiles, in place."""
    (a,) = one
    half, options = a.shape[0] // 2, {"seed": seed, "stream": 3, "index": 7}
    kinds = [(qvpi.uniform_noise, -9, 30), (qvpi.gauss_noise, 12.5), (qvpi.speckle_noise, 0.2),
             (qvpi.shot_noise, 2, 5), (qvpi.salt_pepper, 0.4)]
    for noise, *values in kinds:
        noisy = noise(a, *values, **options)
        out = laid_out(a.copy(), layout)
        assert noise(out, *values, out=out, threads=2, **options) is out
        numpy.testing.assert_array_equal(out, noisy)
        numpy.testing.assert_array_equal(noise(a[half:], *values, origin=(half, 0), **options), noisy[half:])
    with pytest.raises(qvpi.Error, match="NoiseRange"):
        qvpi.salt_pepper(a, 1)


@pytest.mark.parametrize("dtype", ["u1", "u2", "i2", "f4"])
def test_formulas(dtype):
    y, x = numpy.mgrid[:50, :70].astype(float)
    starts, across = (1, 2.5, -3), (0.5, 0, 7)
    made = qvpi.ramp((50, 70, 3), starts, across, 1.25, dtype)
    exact = numpy.array(starts) + 1.25 * y[..., None] + numpy.array(across) * x[..., None]
    numpy.testing.assert_array_equal(made, saturated(exact, dtype))
    tile = qvpi.ramp((50, 70), dtype=dtype, tile=(3, 9, 7, 5))
    numpy.testing.assert_array_equal(tile, saturated(x, dtype)[3:10, 9:14])
    wave = numpy.cos(2 * numpy.pi * ((2 * x - 69) ** 2 + (2 * y - 49) ** 2) / (4 * 3 * 50))
    low, high = (0, 1) if dtype == "f4" else (numpy.iinfo(dtype).min, numpy.iinfo(dtype).max)
    exact = low + (high - low) * (1 + wave) / 2
    numpy.testing.assert_allclose(qvpi.jaehne((50, 70), 3, dtype), exact, atol=1e-7 if dtype == "f4" else 0.5001)
    tile = qvpi.jaehne((50, 70, 3), 3, dtype, tile=(3, 9, 7, 5))
    numpy.testing.assert_array_equal(tile, numpy.repeat(qvpi.jaehne((50, 70), 3, dtype)[3:10, 9:14, None], 3, 2))


def test_local_patterns():
    a = random((40, 50), "u1", 4)
    places = [(0, 1), (-1, 1), (-1, 0), (-1, -1), (0, -1), (1, -1), (1, 0), (1, 1)]  # (row, column)
    padded = numpy.pad(a, 1, "edge")
    code = sum((padded[1 + y:41 + y, 1 + x:51 + x] >= a).astype("u1") << k for k, (y, x) in enumerate(places))
    numpy.testing.assert_array_equal(qvpi.local_patterns(a), code)
    wide = qvpi.LocalPatterns(a.shape, a.dtype, 16, mode="uniform")
    whole = check_parts(wide, a)
    assert whole.dtype == "u2" and whole.max() == 242
    with pytest.raises(qvpi.Error, match="LBP"):
        qvpi.local_patterns(a, 16, radius=1)


@pytest.mark.parametrize("dtype", ["u1", "u2", "f4"])
def test_quality(dtype):
    a, b = random((40, 50, 3), dtype, 1), random((40, 50, 3), dtype, 2)
    top = numpy.iinfo(a.dtype).max if a.dtype.kind == "u" else 1
    flat = numpy.full_like(a, 3 * top / 4), numpy.full_like(a, top / 4)
    light, dark = (float(image[0, 0, 0]) for image in flat)
    exact = (2 * light * dark + 1e-4 * top ** 2) / (light ** 2 + dark ** 2 + 1e-4 * top ** 2)
    numpy.testing.assert_allclose(qvpi.ssim(*flat), [exact] * 3, atol=1e-6)
    x, y = a.reshape(-1, 3).astype(float), b.reshape(-1, 3).astype(float)
    mx, my, covariance = x.mean(0), y.mean(0), (x * y).mean(0) - x.mean(0) * y.mean(0)
    exact = 4 * covariance * mx * my / ((x.var(0) + y.var(0)) * (mx ** 2 + my ** 2))
    numpy.testing.assert_allclose(qvpi.quality_index(a, b), exact, atol=1e-11)
    grey, black = a[..., 0].copy(), numpy.zeros((40, 50), dtype)
    assert qvpi.ssim(grey, a[..., 0], copy=True) == 1 and qvpi.quality_index(black, black) == 1


def test_threads_share_a_record():
    """Each call has a buffer of its own."""
    a = [random((200, 150), "u1", seed) for seed in range(8)]
    kind = a[0].shape, a[0].dtype
    for made in (qvpi.Gauss(*kind, 2.0), qvpi.Resizer(a[0].shape, (77, 99), a[0].dtype, "lanczos", True),
                 qvpi.Histogram(*kind), qvpi.Erode(*kind, numpy.eye(5))):
        expected, failures = [made(image) for image in a], []

        def work(i):
            for _ in range(30):
                if not numpy.array_equal(made(a[i]), expected[i]):
                    failures.append(i)

        workers = [threading.Thread(target=work, args=(i,)) for i in range(8)]
        [worker.start() for worker in workers]
        [worker.join() for worker in workers]
        assert not failures
