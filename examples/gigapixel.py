#!/usr/bin/env python3
"""An image of five gigapixels, made, stored, sharpened, measured and reduced by chunks on a cluster of this machine.

    python3 examples/gigapixel.py --folder /somewhere/with/space

It needs Debian's python3-dask, python3-distributed and python3-zarr. Every worker holds a few chunks at a time,
whatever the size of the image; what the busiest one had at its peak is told at the end.
"""
import argparse
import resource
import time
from pathlib import Path

import dask
import dask.array
import numpy
import qvpi
import qvpi.dask
from dask.distributed import Client, LocalCluster, progress

CHUNK = 5000


def scene(block_info=None):
    """Rings and a ramp with noise, each chunk from its place alone."""
    (top, bottom), (left, right) = block_info[None]["array-location"]
    y = numpy.arange(top, bottom, dtype=numpy.float32)[:, None] / 1000
    x = numpy.arange(left, right, dtype=numpy.float32) / 1000
    rings = numpy.cos(x * x + y * y) * 60
    noise = numpy.random.default_rng([top, left]).integers(0, 32, rings.shape, numpy.uint8)
    return qvpi.add(qvpi.convert(rings + (100 + x), numpy.uint8), noise)


def timed(what, work):
    """Prints what is done with a progress bar, and how long it took."""
    start = time.perf_counter()
    print(what, flush=True)
    future = dask.persist(work)[0] if isinstance(work, dask.array.Array) else work.persist()
    progress(future, notebook=False)
    result = future.compute()
    print(f"\n  {time.perf_counter() - start:.0f} s", flush=True)
    return result


def peak(_):
    return resource.getrusage(resource.RUSAGE_SELF).ru_maxrss / 1024


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", type=Path, default=Path("gigapixel"), help="where images are stored")
    parser.add_argument("--size", type=int, nargs=2, default=(100_000, 50_000), metavar=("WIDTH", "HEIGHT"))
    parser.add_argument("--workers", type=int, default=None)
    options = parser.parse_args()
    width, height = options.size
    with LocalCluster(n_workers=options.workers, threads_per_worker=1, dashboard_address=None) as cluster, \
            Client(cluster) as client:
        original, sharpened = (str(options.folder / f"{name}.zarr") for name in ("original", "sharpened"))
        image = dask.array.map_blocks(scene, chunks=dask.array.core.normalize_chunks(CHUNK, (height, width)),
                                      dtype=numpy.uint8, meta=numpy.empty((0, 0), numpy.uint8))
        timed("make and store", image.to_zarr(original, overwrite=True, compute=False))
        image = dask.array.from_zarr(original)
        image = qvpi.dask.filter(qvpi.Sharpen, image)
        timed("sharpen and store", image.to_zarr(sharpened, overwrite=True, compute=False))
        image = dask.array.from_zarr(sharpened)
        shape = height * 2000 // width, 2000
        preview = timed("preview", qvpi.dask.resize(image, shape, chunks=100, method="super"))
        counts = timed("histogram", qvpi.dask.histogram(image))
        assert preview.shape == shape and int(counts.sum()) == width * height
        numpy.save(options.folder / "preview.npy", preview)
        memory = client.run(lambda: peak(None)).values()
        mean = (counts * numpy.arange(256)).sum() / counts.sum()
        print(f"mean {mean:.3f}, preview {shape[1]} x {shape[0]} with mean {preview.mean():.3f}; at most "
              f"{max(memory):.0f} MB in a worker")


if __name__ == "__main__":
    main()
