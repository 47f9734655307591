"""Images in all the ways that numpy can lay them out, for hypothesis."""
import numpy
from hypothesis import strategies as st

DTYPES = {"u1": (0, 255), "u2": (0, 65535), "i2": (-32768, 32767), "f4": (-1000, 1000)}
shapes = st.tuples(st.integers(1, 40), st.integers(1, 70))
channel_counts = st.sampled_from([None, 1, 3, 4])


def random(shape, dtype, seed, low=None, high=None):
    """An image of any values, extreme ones often; of floats whole numbers, so that formulas are exact."""
    generator = numpy.random.default_rng(seed)
    bounds = DTYPES[numpy.dtype(dtype).str[1:]]
    low, high = bounds[0] if low is None else low, bounds[1] if high is None else high
    image = generator.integers(low, high + 1, shape)
    extreme = generator.random(shape) < 0.1
    image[extreme] = generator.choice([low, high], int(extreme.sum()))
    return image.astype(dtype)


def laid_out(image, layout):
    """The same values in an array of another layout: a view with gaps between its rows, or rows backwards."""
    if layout == "padded":
        wide = numpy.zeros((image.shape[0], image.shape[1] + 3, *image.shape[2:]), image.dtype)
        wide[:, 1:-2] = image
        return wide[:, 1:-2]
    if layout == "upwards":
        return numpy.ascontiguousarray(image[::-1])[::-1]
    if layout == "every other row":
        return numpy.repeat(image, 2, axis=0)[::2]
    return image


layouts = st.sampled_from(["plain", "padded", "upwards", "every other row"])


@st.composite
def images(draw, dtypes=tuple(DTYPES), counts=channel_counts, count=2, low=None, high=None, least=1):
    """`count` images of one shape and dtype, each laid out in its way."""
    height, width = draw(shapes)
    channels, dtype, seed = draw(counts), draw(st.sampled_from(dtypes)), draw(st.integers(0, 1 << 20))
    shape = (max(height, least), max(width, least), *([] if channels is None else [channels]))
    return [laid_out(random(shape, dtype, seed + i, low, high), draw(layouts)) for i in range(count)]


def saturated(values, dtype):
    """Rounded to the nearest, ties to even, and saturated, as the library does; floats as they are."""
    dtype = numpy.dtype(dtype)
    if dtype.kind == "f":
        return values.astype(dtype)
    info = numpy.iinfo(dtype)
    return numpy.clip(numpy.rint(values), info.min, info.max).astype(dtype)
