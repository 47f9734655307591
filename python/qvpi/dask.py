"""Images larger than memory: filters, resizing, warps and statistics over dask arrays, chunk by chunk.

Arrays have the shape (H, W) or (H, W, C), with all channels in each chunk. Results are the same to the bit as those of
the whole image, but for sums of floats, which are added in another order. Everything is lazy, like dask itself.
"""
import dask.array
import numpy
from dask import delayed

from . import filters, geometry, statistics
from ._operation import checked_shape
from .statistics import _levels

__all__ = ["apply", "filter", "histogram", "mean", "min_max", "resize", "sum", "warp"]


def _channels_in_one_chunk(a):
    if not isinstance(a, dask.array.Array) or a.ndim not in (2, 3):
        raise TypeError("expected a dask array of shape (H, W) or (H, W, C)")
    return a.rechunk({2: -1}) if a.ndim == 3 else a


def apply(function, *arrays, dtype=None, **options):
    """A function of single pixels, as qvpi.add, over the chunks of arrays of one shape: apply(qvpi.add, a, b, scale=1)."""
    arrays = [_channels_in_one_chunk(a) for a in arrays]
    dtype = arrays[0].dtype if dtype is None else dtype
    return dask.array.map_blocks(lambda *chunks: function(*map(numpy.ascontiguousarray, chunks), **options), *arrays,
                                 dtype=dtype, meta=numpy.empty((0,) * arrays[0].ndim, dtype))


# ---- filters

_EDGES = {"replicate": "nearest", "mirror": None, "constant": None}


def filter(kind, a, *parameters, border="replicate", value=0, **named):
    """A filter of qvpi.filters over an image: filter(qvpi.Gauss, a, 2.0, border='mirror').

    A chunk is filtered with as much of its neighbours as the mask reaches. At the edges of the image, where there are
    no neighbours, the filter's own border applies.
    """
    a = _channels_in_one_chunk(a)
    shape = tuple(max(sizes) for sizes in a.chunks[:2]) + a.shape[2:]
    probe = kind(shape, a.dtype, *parameters, **named)
    result = probe(numpy.zeros((1, 1, *a.shape[2:]), a.dtype))
    depth = {0: 2 * probe.mask[0], 1: 2 * probe.mask[1]}

    def work(chunk, block_info=None):
        place, whole = block_info[0]["array-location"], block_info[0]["num-chunks"]
        return _filtered(kind, parameters, named, chunk, depth, border, value, place, whole, block_info)

    return a.map_overlap(work, depth=depth, boundary="none", trim=False, dtype=result.dtype, chunks=a.chunks,
                         meta=numpy.empty((0,) * a.ndim, result.dtype))


def _filtered(kind, parameters, named, chunk, depth, border, value, place, whole, block_info):
    """The part of a chunk that is its own: what it was enlarged by is left out again."""
    chunk = numpy.ascontiguousarray(chunk)
    number = block_info[0]["chunk-location"]
    first = [depth[axis] if number[axis] > 0 else 0 for axis in (0, 1)]
    last = [depth[axis] if number[axis] < whole[axis] - 1 else 0 for axis in (0, 1)]
    size = [chunk.shape[axis] - first[axis] - last[axis] for axis in (0, 1)]
    made = filters._made(kind, chunk.shape, chunk.dtype, *parameters) if not named else kind(
        chunk.shape, chunk.dtype, *parameters, **named)
    return made(chunk, tile=(*first, *size), border=border, value=value)
