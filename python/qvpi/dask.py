"""Images larger than memory: filters, resizing, warps and statistics over dask arrays, chunk by chunk.

Arrays have the shape (H, W) or (H, W, C). Results are the same to the bit as those of the whole image, but for sums of
floats, which are added in another order. Everything is lazy, as in dask itself.
"""
from functools import partial

import dask
import dask.array
import numpy
from dask.array import overlap

from . import _neighbourhood, resizing, statistics, warps

__all__ = ["apply", "filter", "histogram", "mean", "min_max", "norm", "resize", "sum", "warp_affine",
           "warp_perspective"]


def _image(a):
    """The array with all channels in each chunk."""
    if not isinstance(a, dask.array.Array) or a.ndim not in (2, 3):
        raise TypeError("expected a dask array of shape (H, W) or (H, W, C)")
    return a.rechunk({2: -1}) if a.ndim == 3 else a


def _blocks(function, *arrays, dtype, chunks=None):
    meta = numpy.empty((0,) * arrays[0].ndim, dtype)
    return dask.array.map_blocks(function, *arrays, dtype=dtype, meta=meta, chunks=chunks)


def apply(function, *arrays, dtype=None, **options):
    """A function of single pixels over arrays of one shape: apply(qvpi.add, a, b, scale=1)."""
    arrays = [_image(a) for a in arrays]

    def work(*chunks):
        return function(*(numpy.ascontiguousarray(chunk) for chunk in chunks), **options)

    return _blocks(work, *arrays, dtype=arrays[0].dtype if dtype is None else dtype)


# ---- filters

def filter(kind, a, *parameters, border="replicate", value=0):
    """A filter of qvpi over an image: filter(qvpi.Gauss, a, 2.0, border='mirror').

    A chunk comes with as much of its neighbours as the mask reaches, and gives the result of its own part. At the edges
    of the image, where there are no neighbours, the border applies.
    """
    a = _image(a)
    made = kind((1, 1, *a.shape[2:]), a.dtype, *parameters)
    result = made(numpy.zeros((1, 1, *a.shape[2:]), a.dtype))
    depth = {axis: 2 * made.mask[axis] for axis in (0, 1)}
    sizes = {axis: overlap.ensure_minimum_chunksize(min(depth[axis], a.shape[axis]), a.chunks[axis]) for axis in (0, 1)}
    a = a.rechunk(sizes)
    work = partial(_filter_chunk, kind, parameters, border, value, depth)
    with_neighbours = overlap.overlap(a, depth={**depth, **{2: 0 for _ in a.shape[2:]}}, boundary="none")
    return _blocks(work, with_neighbours, dtype=result.dtype, chunks=a.chunks)


def _filter_chunk(kind, parameters, border, value, depth, chunk, block_info=None):
    place, count = block_info[0]["chunk-location"], block_info[0]["num-chunks"]
    before = [depth[axis] if place[axis] > 0 else 0 for axis in (0, 1)]
    after = [depth[axis] if place[axis] < count[axis] - 1 else 0 for axis in (0, 1)]
    size = [chunk.shape[axis] - before[axis] - after[axis] for axis in (0, 1)]
    made = _neighbourhood.made(kind, chunk.shape, chunk.dtype, *parameters)
    return made(numpy.ascontiguousarray(chunk), tile=(*before, *size), border=border, value=value)


# ---- resizing and warps

def resize(a, shape, *, chunks=1024, method="linear", antialias=False, **options):
    """The image in another shape, (H, W), in chunks of this size; see qvpi.Resizer for the options.

    Each chunk of the result is made from the part of the source that it needs.
    """
    a = _image(a)
    make = partial(resizing._resizer, a.shape, tuple(shape), a.dtype, method, antialias, tuple(options.items()))
    return _mapped(a, make, chunks)


def warp_affine(a, matrix, shape=None, *, chunks=1024, method="linear", **options):
    """The image moved by a (2, 3) matrix, in chunks of this size; see qvpi.Warp for the options.

    Each chunk of the result is made from the part of the source that it needs: where the matrix turns or shrinks, that
    is larger than the chunk.
    """
    return _warped(a, matrix, (2, 3), shape, chunks, method, options)


def warp_perspective(a, matrix, shape=None, *, chunks=1024, method="linear", **options):
    """The image moved by a (3, 3) matrix, in chunks of this size; see warp_affine."""
    return _warped(a, matrix, (3, 3), shape, chunks, method, options)


def _warped(a, matrix, matrix_shape, shape, chunks, method, options):
    a = _image(a)
    return _mapped(a, warps._maker(a.shape, a.dtype, matrix, matrix_shape, shape, method, options), chunks)


def _mapped(a, make, chunks):
    """The destination of what make() makes, in chunks."""
    made = make()
    edges = dask.array.core.normalize_chunks(chunks, made.dst_shape[:2], dtype=a.dtype)
    rows, top = [], 0
    for height in edges[0]:
        row, left = [], 0
        for width in edges[1]:
            row.append(_mapped_tile(a, made, make, (top, left, height, width)))
            left += width
        rows.append(dask.array.concatenate(row, axis=1))
        top += height
    return dask.array.concatenate(rows, axis=0)


def _mapped_tile(a, made, make, tile):
    row, column, height, width = made.source(tile)
    part = a[row:row + height, column:column + width]
    task = dask.delayed(_map_part)(part, (row, column), tile, make)
    return dask.array.from_delayed(task, (*tile[2:], *a.shape[2:]), a.dtype)


def _map_part(part, origin, tile, make):
    return make().tile(numpy.ascontiguousarray(part), origin, tile)


# ---- statistics

def _tree(parts, combine):
    """One result from those of the chunks, in pairs: what is added is always added in the same order."""
    while len(parts) > 1:
        parts = [combine(*parts[i:i + 2]) if i + 1 < len(parts) else parts[i] for i in range(0, len(parts), 2)]
    return parts[0]


def _each(function, *arrays):
    arrays = [_image(a) for a in arrays]
    chunks = zip(*(a.to_delayed().ravel() for a in arrays))
    task = dask.delayed(lambda *blocks: function(*(numpy.ascontiguousarray(block) for block in blocks)))
    return [task(*blocks) for blocks in chunks]


def sum(a, *, accurate=False):
    """The sum of each channel, delayed: exact for integers while it is below 2**53."""
    return _tree(_each(partial(statistics.sum, accurate=accurate), a), dask.delayed(lambda x, y: x + y))


def mean(a, *, accurate=False):
    """The mean of each channel, delayed."""
    return dask.delayed(lambda total: total / (a.shape[0] * a.shape[1]))(sum(a, accurate=accurate))


def min_max(a):
    """(least, greatest) of each channel, delayed."""
    both = dask.delayed(lambda x, y: (numpy.minimum(x[0], y[0]), numpy.maximum(x[1], y[1])))
    return _tree(_each(statistics.min_max, a), both)


def norm(a, b=None, kind="l2"):
    """qvpi.norm of an image, or of a - b, delayed."""
    combine = {"inf": numpy.maximum, "l1": lambda x, y: x + y, "l2": numpy.hypot}[kind]
    arrays = (a,) if b is None else (a, b)
    return _tree(_each(partial(statistics.norm, kind=kind), *arrays), dask.delayed(combine))


def histogram(a, bins=256, range=None):
    """The counts of qvpi.histogram as uint64, delayed."""
    def count(block):
        return statistics.histogram(block, bins, range).astype(numpy.uint64)

    return _tree(_each(count, a), dask.delayed(lambda x, y: x + y))
