"""Functions of single pixels against numpy's formulas, over shapes, dtypes, layouts and values."""
import numpy
import pytest
import qvpi
from hypothesis import given, settings
from hypothesis import strategies as st
from images import images, laid_out, layouts, random, saturated

settings.register_profile("short", max_examples=25, deadline=None, derandomize=True, database=None)
settings.load_profile("short")

BINARY = {"add": lambda a, b: a + b, "subtract": lambda a, b: a - b, "multiply": lambda a, b: a * b}


def wide(a):
    return a.astype(float)


@pytest.mark.parametrize("name", BINARY)
@given(images(), st.integers(-3, 9), layouts)
def test_arithmetic(name, pair, scale, layout):
    a, b = pair
    scale = 0 if a.dtype.kind == "f" else scale
    expected = saturated(BINARY[name](wide(a), wide(b)) * 2.0 ** -scale, a.dtype)
    function = getattr(qvpi, name)
    numpy.testing.assert_array_equal(function(a, b, scale=scale), expected)
    out = laid_out(numpy.zeros_like(expected), layout)
    assert function(a, b, out, scale=scale, threads=3) is out
    numpy.testing.assert_array_equal(out, expected)
    in_place = laid_out(a.copy(), layout)
    numpy.testing.assert_array_equal(function(in_place, b, in_place, scale=scale), expected)
    constant = b[0, 0].item() if b.ndim == 2 or b.shape[2] == 1 else tuple(b[0, 0].tolist())
    expected = saturated(BINARY[name](wide(a), numpy.asarray(constant, float)) * 2.0 ** -scale, a.dtype)
    numpy.testing.assert_array_equal(function(a, constant, scale=scale), expected)


@given(images(("u1", "u2", "i2"), low=1))
def test_division(pair):
    a, b = pair
    numpy.testing.assert_array_equal(qvpi.divide(a, b, scale=-4), saturated(wide(a) / wide(b) * 16, a.dtype))
    numpy.testing.assert_array_equal(qvpi.divide(a, b, rounding="zero"), (wide(a) / wide(b)).astype(a.dtype))
    zero = numpy.zeros_like(a)
    with pytest.warns(qvpi.Warning, match="zero") as caught:
        assert (qvpi.divide(a, zero) == numpy.iinfo(a.dtype).max).all()
    assert caught[0].message.name == "qvpStatusDivideByZero"


@given(images(("u1", "u2", "i2", "f4"), count=1))
def test_one_operand(one):
    (a,) = one
    if a.dtype != numpy.uint16 and a.dtype != numpy.uint8:
        numpy.testing.assert_array_equal(qvpi.abs(a), saturated(abs(wide(a)), a.dtype))
    numpy.testing.assert_array_equal(qvpi.square(a), saturated(wide(a) ** 2, a.dtype))
    numpy.testing.assert_array_equal(qvpi.clip(a, 3, 200), numpy.clip(a, 3, 200))
    numpy.testing.assert_array_equal(qvpi.threshold(a, 9, replace=1), numpy.where(a > 9, 1, a))
    numpy.testing.assert_array_equal(qvpi.threshold(a, 9, mode="<"), numpy.maximum(a, 9))
    as_float = qvpi.convert(a, "f4") if a.dtype != numpy.float32 else a
    numpy.testing.assert_array_equal(as_float, a.astype("f4"))
    numpy.testing.assert_array_equal(qvpi.convert(as_float, "u1"), saturated(wide(a), "u1"))
    numpy.testing.assert_array_equal(qvpi.scale(a, 0.5, 3, dtype="i2"), saturated(wide(a) * 0.5 + 3, "i2"))


@given(images(), st.sampled_from(list(qvpi.values.RELATIONS)))
def test_comparisons(pair, relation):
    a, b = pair
    holds = {"<": a < b, "<=": a <= b, "==": a == b, ">=": a >= b, ">": a > b}[relation]
    holds = holds if a.ndim == 2 else holds.all(axis=2)
    numpy.testing.assert_array_equal(qvpi.compare(a, relation, b, threads=2), holds * numpy.uint8(255))
    chosen = holds[..., None] if a.ndim == 3 else holds
    numpy.testing.assert_array_equal(qvpi.where(holds, a, b), numpy.where(chosen, a, b))


@given(images(("u1", "u2")), st.integers(0, 8))
def test_bits(pair, shift):
    a, b = pair
    for function, expected in ((qvpi.bitwise_and, a & b), (qvpi.bitwise_or, a | b), (qvpi.bitwise_xor, a ^ b)):
        numpy.testing.assert_array_equal(function(a, b), expected)
    numpy.testing.assert_array_equal(qvpi.left_shift(a, shift), a << shift)
    numpy.testing.assert_array_equal(qvpi.right_shift(a, shift), a >> shift)


@given(images(("u1",), count=1), st.integers(0, 1 << 20))
def test_tables(one, seed):
    (a,) = one
    table = numpy.random.default_rng(seed).integers(0, 256, 256).astype("u1")
    numpy.testing.assert_array_equal(qvpi.lookup(a, table), table[a])
    gray = a if a.ndim == 2 else numpy.ascontiguousarray(a[..., 0])
    colors = numpy.stack([table, table ^ 1, table ^ 2], axis=1)
    for threads in (1, 3):
        numpy.testing.assert_array_equal(qvpi.palette(gray, colors, threads=threads), colors[gray])
    numpy.testing.assert_array_equal(qvpi.curve(a, [0, 255], [255, 0]), 255 - a)


@given(images(("u1", "u2", "i2", "f4"), count=1), st.tuples(*[st.integers(0, 5)] * 4), st.integers(0, 5))
def test_layout(one, widths, turns):
    (a,) = one
    rest = [(0, 0)] * (a.ndim - 2)
    pad = [widths[:2], widths[2:], *rest]
    numpy.testing.assert_array_equal(qvpi.copy_border(a, *widths, value=7), numpy.pad(a, pad, constant_values=7))
    numpy.testing.assert_array_equal(qvpi.copy_border(a, *widths, border="replicate"), numpy.pad(a, pad, "edge"))
    if min(a.shape[:2]) > 5:
        numpy.testing.assert_array_equal(qvpi.copy_border(a, *widths, border="mirror"), numpy.pad(a, pad, "reflect"))
    numpy.testing.assert_array_equal(qvpi.rot90(a, turns), numpy.rot90(a, turns))
    for axis in (0, 1):
        numpy.testing.assert_array_equal(qvpi.flip(a, axis), numpy.flip(a, axis))
    if a.ndim == 3 and a.shape[2] > 1:
        planes = qvpi.split(a)
        numpy.testing.assert_array_equal(planes, numpy.moveaxis(a, 2, 0))
        numpy.testing.assert_array_equal(qvpi.merge(planes), a)


def test_channels():
    a = random((9, 11, 3), "u1", 1)
    numpy.testing.assert_array_equal(qvpi.swap_channels(a, (2, 1, 0)), a[..., ::-1])
    rgba = qvpi.swap_channels(a, (2, 1, 0, 3), value=255)
    assert rgba.shape == (9, 11, 4) and (rgba[..., 3] == 255).all()
    numpy.testing.assert_array_equal(qvpi.gray_to_color(a[..., 0].copy()), a[..., :1].repeat(3, 2))
    assert (qvpi.fill(a, (1, 2, 3)) == (1, 2, 3)).all()
    mask = numpy.arange(11) % 2 * numpy.ones((9, 1)) != 0
    assert (qvpi.fill(a, 9, mask=mask)[:, 1::2] == 9).all() and (a[:, ::2] == (1, 2, 3)).all()


def test_what_is_no_image_is_not_cut_into_strips():
    """A palette with as many entries as the image has rows; a mask, which is cut."""
    a, colors = random((256, 40), "u1", 1), random((256, 3), "u1", 2)
    numpy.testing.assert_array_equal(qvpi.palette(a, colors, threads=4), colors[a])
    mask, out = a > 99, numpy.zeros_like(a)
    qvpi.copy_to(a, out, mask=mask, threads=4)
    numpy.testing.assert_array_equal(out, numpy.where(mask, a, 0))


def test_any_number_of_channels_where_they_are_independent():
    a, b = random((7, 9, 6), "u1", 1), random((7, 9, 6), "u1", 2)
    numpy.testing.assert_array_equal(qvpi.add(a, b, scale=1), saturated((wide(a) + b) / 2, "u1"))
    numpy.testing.assert_array_equal(qvpi.multiply(a, 2), saturated(wide(a) * 2, "u1"))


def test_layers():
    a, b = (random((8, 8, 4), "u1", seed) for seed in (1, 2))
    over = qvpi.composite(a, b)
    numpy.testing.assert_allclose(over, numpy.minimum(255, a + (255 - wide(a[..., 3:])) / 255 * b), atol=1)
    numpy.testing.assert_allclose(qvpi.premultiply(a)[..., :3], wide(a[..., :3]) * a[..., 3:] / 255, atol=0.51)
    color, other = a[..., :3].copy(), b[..., :3].copy()
    numpy.testing.assert_allclose(qvpi.blend(color, other, 102), 0.4 * color + 0.6 * other, atol=1.5)
    keyed = qvpi.color_key(color, (0, 0, 0), 0, (255, 128, 255))
    numpy.testing.assert_array_equal(keyed, numpy.where(color[..., 1:2] <= 128, 0, color))


@given(images())
def test_statistics(pair):
    a, b = pair
    axes = (0, 1)
    numpy.testing.assert_allclose(qvpi.sum(a), wide(a).sum(axes), rtol=1e-5, atol=0.1)
    numpy.testing.assert_allclose(qvpi.mean(a), wide(a).mean(axes), rtol=1e-5, atol=1e-3)
    numpy.testing.assert_array_equal(qvpi.min_max(a), (a.min(axes), a.max(axes)))
    value, row, column = qvpi.argmax(a)
    plane = a.reshape(*a.shape[:2], -1)
    for c in range(plane.shape[2]):
        place = numpy.unravel_index(plane[..., c].argmax(), a.shape[:2])
        assert (numpy.atleast_1d(row)[c], numpy.atleast_1d(column)[c]) == place
    numpy.testing.assert_array_equal(value, a.max(axes))
    difference = wide(a) - wide(b)
    numpy.testing.assert_allclose(qvpi.norm(a, b, "inf"), abs(difference).max(axes), rtol=1e-6)
    numpy.testing.assert_allclose(qvpi.norm(a, b), (difference ** 2).sum(axes) ** 0.5, rtol=1e-5)
    numpy.testing.assert_allclose(qvpi.dot(a, b), (wide(a) * b).sum(axes), rtol=1e-5, atol=1e3)
    levels = [-50, 0, 3, 100, 200.5]
    counts = qvpi.histogram(a, levels, threads=2).reshape(-1, 4)
    for c in range(plane.shape[2]):
        expected = numpy.histogram(plane[..., c][plane[..., c] < 200.5], levels)[0]
        numpy.testing.assert_array_equal(counts[c], expected)


def test_moments_count_and_otsu():
    a = random((30, 40), "u1", 3)
    y, x = numpy.mgrid[:30, :40]
    moments = qvpi.moments(a)
    assert moments.spatial(1, 2) == pytest.approx((x * y ** 2 * wide(a)).sum())
    xc = (x * wide(a)).sum() / a.sum()
    assert moments.central(2, 0) == pytest.approx(((x - xc) ** 2 * wide(a)).sum())
    assert qvpi.count_in_range(a, 10, 99) == ((a >= 10) & (a <= 99)).sum()
    a[:, :20] //= 8
    assert 25 <= qvpi.otsu(a) < 255
