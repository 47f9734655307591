"""One place that maps an operation, the dtype and channels of its arrays, and a mode, to an exported function."""
import operator
import re

import numpy

from . import _threads
from ._call import empty, key
from ._errors import Error
from ._plan import DTYPES, FUNCTIONS, NAMES, NUMBERS, make_call
from .raw import lib

_TYPE = "8u|8s|16u|16s|32u|32s|32fc|32f|64f"
_NAME = re.compile(rf"qvpi(?P<operation>\w+?)_(?P<src>{_TYPE})(?P<dst>{_TYPE})?_(?P<layout>(?:A?[CP]\d)+)"
                   r"(?P<masked>M?)R(?:Sfs|s)?$")
_DTYPES = {number: numpy.dtype(DTYPES[name]).name for number, name in NAMES.items()}
_STEPS = (lib.qvpStatusStep, lib.qvpStatusStride, lib.qvpStatusNotEvenStep)


def _index():
    """{operation: [(name, source type, destination type, layout, is masked)]} of what is not in place."""
    found = {}
    for name in FUNCTIONS:
        match = _NAME.match(name)
        if match:
            entry = (name, match["src"], match["dst"] or match["src"], match["layout"], bool(match["masked"]))
            found.setdefault(match["operation"], []).append(entry)
    return found


_EXPORTED = _index()


# Ranks of arrays, and shapes as they are told.
IMAGE, VOLUME = ((2, 3), "(H, W) or (H, W, C)"), ((3,), "(D, H, W)")


def image(array, copy=False, name="array", of=IMAGE):
    """The array as a plain numpy array of such a rank, or a TypeError that says what to do."""
    if not isinstance(array, numpy.ndarray):
        raise TypeError(f"{name} must be a numpy array, not {type(array).__name__}: pass numpy.asarray(...) of it")
    if isinstance(array, numpy.ma.MaskedArray):
        raise TypeError(f"{name} is a masked array: pass its data, and its mask as mask=")
    array = array.view(numpy.ndarray)
    if array.ndim not in of[0]:
        raise TypeError(f"{name} has the shape {array.shape}, expected {of[1]}")
    if array.size == 0:
        raise Error(lib.qvpStatusSize)
    if not array.dtype.isnative:
        raise TypeError(f"{name} has the bytes of its elements swapped: pass {name}.astype(...)")
    return numpy.ascontiguousarray(array) if copy else array


def checked_shape(shape, name="shape", of=IMAGE):
    """A shape as a tuple of integers above 0."""
    try:
        numbers = tuple(operator.index(number) for number in shape)
    except TypeError:
        raise TypeError(f"{name} must be {of[1]}, not {shape!r}") from None
    if len(numbers) not in of[0]:
        raise ValueError(f"{name} must be {of[1]}, not {shape!r}")
    if min(numbers) < 1:
        raise Error(lib.qvpStatusSize)
    return numbers


def checked_tile(tile, shape):
    """(row, column, height, width) of a part of an image of this shape."""
    try:
        row, column, height, width = (operator.index(number) for number in tile)
    except (TypeError, ValueError):
        raise TypeError(f"a tile is (row, column, height, width), not {tile!r}") from None
    if min(row, column) < 0 or min(height, width) < 1 or row + height > shape[0] or column + width > shape[1]:
        raise ValueError(f"the tile {tile} is not within {tuple(shape[:2])}")
    return row, column, height, width


def channels(array):
    """How many numbers a pixel has."""
    return array.shape[2] if array.ndim == 3 else 1


def refuse_overlap(out, sources, in_place=False):
    """What a call looks for in its operands, of whole images before they are cut: results over what is not read yet."""
    for source in sources:
        if numpy.may_share_memory(out, source):
            is_same = out.ctypes.data == source.ctypes.data and out.strides == source.strides
            if not (in_place and is_same) and numpy.shares_memory(out, source):
                raise ValueError("out overlaps with another array of the call")


def with_copies(call, sources, outs, values, error):
    """Calls with copies of what a function refused because of its row strides: negative, zero, or less than a row."""
    results = [numpy.ascontiguousarray(out) for out in outs]
    copies = [numpy.ascontiguousarray(source) for source in sources]
    if all(copy is array for copy, array in zip(results + copies, (*outs, *sources))):
        raise error
    call(*copies, *results, *values)
    for result, out in zip(results, outs):
        if result is not out:
            out[...] = result


def forgiving(call, sources, outs=(), values=()):
    """Calls; where a function refuses row strides, once more with copies."""
    try:
        call(*sources, *outs, *values)
    except Error as error:
        if error.status not in _STEPS:
            raise
        with_copies(call, sources, outs, values, error)


class Operation:
    """All exported functions of one operation, by the dtype and channels of the first source.

    roles: of the operands, in the order of apply(): sources, destination, values. free: images that may have a size of
    their own. in_place: the destination may be a source. by_rows: each pixel on its own, so that strips of rows are
    independent and the destination may be a source. is_pixelwise: each channel of each pixel on its own, so that images
    of any number of channels can be taken as wide ones of one.
    """

    def __init__(self, name, roles, free=(), in_place=False, is_pixelwise=False, by_rows=False, masked=False,
                 alpha=False):
        self.name, self.roles, self.free, self.masked, self.alpha = name, roles, free, masked, alpha
        self.is_pixelwise, self.by_rows = is_pixelwise, by_rows or is_pixelwise
        self.in_place = in_place or self.by_rows
        self.calls = {}
        self.names = self._names()

    def _names(self):
        """{(key of the source, destination type, destination channels): (exported name, layout)}"""
        names = {}
        for name, source, destination, layout, masked in _EXPORTED.get(self.name, ()):
            counts = [int(count) for count in re.findall(r"\d", layout)]
            if masked == self.masked and ("A" in layout) == self.alpha and "P" not in layout:
                entry = NUMBERS[source] * 100 + counts[0], NUMBERS[destination], counts[-1]
                if not names.get(entry, ("",))[0].endswith("Sfs"):  # those with a scale factor can do more
                    names[entry] = name, layout
        return names

    def find(self, source_key, dtype=None, count=None):
        """(call, number of the destination's dtype, its channels), or None.

        Without `dtype`, the destination has the source's if that exists, else the first there is.
        """
        wanted = source_key, dtype, count
        if wanted not in self.calls:
            matches = [entry for entry in self.names if entry[0] == source_key
                       and dtype in (None, entry[1]) and count in (None, entry[2])]
            matches.sort(key=lambda entry: (entry[1] != source_key // 100, entry[2] != source_key % 100))
            self.calls[wanted] = self._entry(matches[0]) if matches else None
        return self.calls[wanted]

    def name_for(self, source_key):
        """The exported name of the function for the source's dtype and channels whose destination has the same."""
        return self.names[source_key, *divmod(source_key, 100)][0]

    def _entry(self, match):
        name, layout = self.names[match]
        count = 1 if self.name.startswith("Compare") else match[2]
        return make_call(name, self.roles, layout, self.free, self.in_place), match[1], count

    def apply(self, sources, out=None, values=(), dtype=None, count=None, threads=None, copy=False):
        """Calls the function for these sources; the result is `out`, or a new array."""
        try:
            call, number, out_channels = self.calls[key(sources[0]), dtype, count]
            if copy:
                raise KeyError
        except (KeyError, TypeError):
            return self._prepared(sources, out, values, dtype, count, threads, copy)
        if out is None:
            out = empty(sources[0], number, out_channels)
        try:
            if threads is None and _threads._state["threads"] == 1:
                call(*sources, out, *values)
            else:
                self._strips(call, (*sources, out), values, threads)
        except Error as error:
            if error.status not in _STEPS:
                raise
            with_copies(call, sources, (out,), values, error)
        return out

    def _prepared(self, sources, out, values, dtype, count, threads, copy):
        """The way of the first call with arrays of a kind, and of arrays that need to be looked at."""
        sources = [image(source, copy) for source in sources]
        if out is not None:
            image(out, name="out")
        if self.find(key(sources[0]), dtype, count) is not None:
            return self.apply(sources, out, values, dtype, count, threads)
        if not self.is_pixelwise or sources[0].ndim == 2:
            raise TypeError(self._complaint(sources[0], dtype))
        return self._as_one_channel(sources, out, values, dtype, threads)

    def _as_one_channel(self, sources, out, values, dtype, threads):
        """Images of other numbers of channels, as wide images of one."""
        found = self.find(key(sources[0]) // 100 * 100 + 1, dtype)
        if found is None or not all(value is None or numpy.isscalar(value) for value in values):
            raise TypeError(self._complaint(sources[0], dtype))
        if out is None:
            out = empty(sources[0], found[1], channels(sources[0]))
        elif out.shape != sources[0].shape:
            raise ValueError(f"out has the shape {out.shape}, expected {sources[0].shape}")
        flat = [array.reshape(array.shape[0], -1) for array in (*sources, out)]
        if not numpy.shares_memory(flat[-1], out):
            raise TypeError("out has gaps within its rows")
        self.apply(flat[:-1], flat[-1], values, dtype, None, threads)
        return out

    def _strips(self, call, images, values, threads):
        """By strips of rows, if what is wrong with the whole images would be wrong with each strip."""
        height = images[0].shape[0]
        n = _threads.count(threads) if self.by_rows else 1
        masks, values = (values, ()) if self.masked else ((), values)
        if n == 1 or any(getattr(a, "shape", ())[:1] != (height,) for a in (*images, *masks)):
            call(*images, *masks, *values)
            return
        refuse_overlap(images[-1], (*images[:-1], *masks), self.in_place)
        least = _threads.LEAST_BYTES // (images[0].nbytes // height)

        def strip(first, end):
            call(*(a[first:end] for a in images), *(mask[first:end] for mask in masks), *values)

        _threads.run(strip, _threads.strips(height, n, least))

    def _complaint(self, array, dtype):
        wanted = f" to {_DTYPES[dtype]}" if dtype is not None else ""
        kinds = {f"{_DTYPES[entry[0] // 100]} x {entry[0] % 100}" for entry in self.names
                 if dtype in (None, entry[1])}
        return (f"{self.name} is not there for {array.dtype} with {channels(array)} channels{wanted}; it is for: "
                f"{', '.join(sorted(kinds)) or 'nothing'}")
