"""Images made by formulas, and noise that is a function of seed and place: the same for tiles, threads and machines.

Options of noise: seed and stream, integers below 2**32, are the key of its numbers; index is that of an image in a
sequence, whose noise differs from that of the others; origin is the place (row, column) of the array's first pixel in
the whole image. threads and copy are as in qvpi.arithmetic. Images: uint8, uint16, int16, float32 of 1, 3 or 4
channels.
"""
import numpy

from . import _threads
from ._call import key
from ._neighbourhood import pair_of
from ._operation import Operation, checked_shape, checked_tile, forgiving, image, refuse_overlap
from ._plan import make_call
from ._records import cached, memory, size_of

__all__ = ["gauss_noise", "jaehne", "ramp", "salt_pepper", "shot_noise", "speckle_noise", "uniform_noise"]

_RAMP = Operation("Ramp", "dst start slopeX slopeY dstOffset")
_JAEHNE = Operation("Jaehne", "dst imageSize minPeriod dstOffset")
_NOISE = Operation("Noise", "src dst dstOffset frame spec", in_place=True)
_SIZE = make_call("qvpiNoiseGetSize", "specSize")
_INITS = {name: make_call(f"qvpiNoise{name}Init", f"{roles} seed stream spec") for name, roles in
          {"Uniform": "low high", "Gauss": "mean sigma", "Speckle": "sigma", "Shot": "gain sigma",
           "SaltPepper": "level saltShare pepper salt"}.items()}


def _found(operation, a):
    found = operation.find(key(a))
    if found is None:
        raise TypeError(operation._complaint(a, None))
    return found[0]


def _checked_out(out, shape, dtype):
    """The array for a result of this shape: `out`, or a new one."""
    if out is None:
        return numpy.empty(shape, dtype)
    if image(out, name="out").shape != tuple(shape):
        raise ValueError(f"out has the shape {out.shape}, expected {tuple(shape)}")
    return out


def _drawn(operation, shape, dtype, out, tile, values):
    """A new image of this shape, or `out`, or the tile of it, from an operation without sources."""
    shape = checked_shape(shape)
    row, column, height, width = (0, 0, *shape[:2]) if tile is None else checked_tile(tile, shape)
    out = _checked_out(out, (height, width, *shape[2:]), dtype)
    forgiving(_found(operation, out), (), (out,), (*values, (column, row)))
    return out


def ramp(shape, start=0, across=1, down=0, dtype="u1", out=None, *, tile=None):
    """start + down * row + across * column, in double precision, as uint8, uint16, int16 or float32.

    start, across, down: a number, or one for each channel. tile: (row, column, height, width), the part to be made.
    """
    shape = checked_shape(shape)
    count = shape[2] if len(shape) == 3 else 1

    def each(number):
        values = numpy.broadcast_to(numpy.asarray(number, float), count).tolist()
        return values if count > 1 else values[0]

    return _drawn(_RAMP, shape, dtype, out, tile, (each(start), each(across), each(down)))


def jaehne(shape, period=2, dtype="u1", out=None, *, tile=None):
    """All frequencies and directions in one image: rings whose period falls to `period` pixels at the nearer edge.

    uint8, uint16 and int16 span the type, float32 0 to 1; shapes (H, W) or (H, W, 3). tile: as of ramp.
    """
    shape = checked_shape(shape)
    return _drawn(_JAEHNE, shape, dtype, out, tile, ((shape[1], shape[0]), period))


@cached
def _record(kind, values, seed, stream):
    spec = memory(size_of(_SIZE))
    _INITS[kind](*values, seed, stream, spec)
    return spec


def _noisy(kind, values, a, out, seed=0, stream=0, index=0, origin=(0, 0), threads=None, copy=False):
    a, spec = image(a, copy), _record(kind, values, seed, stream)
    call, (row, column) = _found(_NOISE, a), pair_of(origin, "origin")
    out = _checked_out(out, a.shape, a.dtype)
    refuse_overlap(out, (a,), in_place=True)

    def strip(first, end):
        forgiving(call, (a[first:end],), (out[first:end],), ((column, row + first), index, spec))

    _threads.run(strip, _threads.strips(a.shape[0], _threads.count(threads)))
    return out


def uniform_noise(a, low, high, out=None, **options):
    """Adds numbers from `low` to `high`, all as likely."""
    return _noisy("Uniform", (low, high), a, out, **options)


def gauss_noise(a, sigma, mean=0, out=None, **options):
    """Adds numbers of a normal distribution, with this standard deviation and mean."""
    return _noisy("Gauss", (mean, sigma), a, out, **options)


def speckle_noise(a, sigma, out=None, **options):
    """Adds to each pixel itself times a number of a normal distribution, as ultrasound and radar show it."""
    return _noisy("Speckle", (sigma,), a, out, **options)


def shot_noise(a, gain, sigma=0, out=None, **options):
    """The noise of a camera: of photons, each of which adds `gain`, and of its read-out, with the deviation sigma."""
    return _noisy("Shot", (gain, sigma), a, out, **options)


def salt_pepper(a, level, share=0.5, pepper=0, salt=255, out=None, **options):
    """Replaces a part of the pixels, `level`, of which a part, `share`, becomes `salt` and the rest `pepper`."""
    return _noisy("SaltPepper", (level, share, pepper, salt), a, out, **options)
