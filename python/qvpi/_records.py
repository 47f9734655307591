"""What objects with records have in common: work buffers, for any number of threads, and small caches of objects."""
from functools import lru_cache

import numpy


def size_of(call, *operands, count=1):
    """The integers that a size query writes: an int, or a list of `count`."""
    results = [numpy.zeros(1, numpy.int32) for _ in range(count)]
    call(*operands, *results)
    sizes = [int(result[0]) for result in results]
    return sizes[0] if count == 1 else sizes


def memory(size):
    """Bytes for a record or a buffer; never none at all."""
    return numpy.empty(max(size, 1), numpy.uint8)


def addresses(arrays):
    """An array of the addresses of arrays; whoever uses it keeps these alive."""
    return numpy.array([array.ctypes.data for array in arrays], numpy.uintp)


class Buffers:
    """Work buffers of one size: each call in progress has one of its own, and they are used again."""

    def __init__(self, size):
        self._size, self._free = size, []

    def take(self):
        try:
            return self._free.pop()  # one step for Python, so that no other thread gets the same
        except IndexError:
            return memory(self._size)

    def give(self, buffer):
        self._free.append(buffer)


# The plain functions make objects of these, and keep those that were used last.
cached = lru_cache(maxsize=64)
