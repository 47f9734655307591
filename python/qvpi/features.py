"""Features: local binary patterns, histograms of oriented gradients (Dalal and Triggs, 2005)."""
import numpy

from . import raw
from ._call import key
from ._neighbourhood import BORDERS, QUERY, Filter, apply, operation_of, pair_of
from ._operation import Operation, channels, forgiving, image
from ._plan import NUMBERS, make_call
from ._records import Buffers, cached, memory, size_of
from .arithmetic import choice
from .raw import lib

__all__ = ["Hog", "LocalPatterns", "hog", "local_patterns"]

_MODES = {"code": lib.qvpLBPCode, "rotation": lib.qvpLBPRotation, "uniform": lib.qvpLBPUniform,
          "uniform_rotation": lib.qvpLBPUniformRotation}

_HOG = Operation("HOG", "src location nLocations dst hOGSpec borderID borderValue buffer")
_SIZE, _INIT = make_call("qvpiHOGGetSize", "config specSize"), make_call("qvpiHOGInit", "config hOGSpec")
_BUFFER = make_call("qvpiHOGGetBufferSize", "hOGSpec roiSize bufferSize")
_DESCRIPTOR = make_call("qvpiHOGGetDescriptorSize", "hOGSpec descriptorSize")


class LocalPatterns(Filter):
    """Which neighbours of each pixel are no darker than it (Ojala, Pietikainen, Maenpaa, 2002).

    neighbours: 8, at the distance `radius` of 1 or 2 pixels, with results of uint8; or all 16 at the distance 2, with
    results of uint16. mode: 'code', a bit for each neighbour, from the right on counter-clockwise; 'rotation', the
    least of its rotations; 'uniform', a label for codes with at most two changes around the circle; 'uniform_rotation',
    the ones of such codes. Images: uint8, uint16, int16, float32 of 1 or 3 channels.
    """

    operation = operation_of("LBP", "maskSize mode")
    query = make_call("qvpiFilterLBPBorderGetBufferSize", QUERY)

    def __init__(self, shape, dtype, neighbours=8, radius=None, mode="code"):
        results = choice({8: "8u", 16: "16u"}, neighbours, "neighbours")
        radius = neighbours // 8 if radius is None else radius
        side = 2 * radius + 1
        super().__init__(shape, dtype, (side, side))
        self.values = (side, side), choice(_MODES, mode, "mode")
        self.prepare(size_of(self.query, (side, side), self.roi, self.kind, self.channels))
        self._found = self.operation.find(self._key, NUMBERS[results])


def local_patterns(a, neighbours=8, radius=None, mode="code", out=None, **options):
    """Local binary patterns; see LocalPatterns."""
    return apply(LocalPatterns, a, (neighbours, radius, mode), out, options)


class Hog:
    """Describes windows of images: h = Hog(window=(128, 64)); h(image, [(row, column), ...]).

    window: (rows, columns), a block and any number of strides both ways. cell: its side, 2 to 16 pixels; a block has
    2x2 cells; stride: pixels from block to block, a multiple of the cell. bins: orientations over half a turn, 2 to 16.
    sigma: of the weights in a block; at first half a block's side. clip: the bound of a block's values. columns_first:
    blocks and cells in the order of columns. Images: uint8, uint16, int16, float32 of 1 or 3 channels.
    """

    def __init__(self, window=(128, 64), cell=8, stride=8, bins=9, sigma=None, clip=0.2, columns_first=False):
        rows, columns = pair_of(window, "window")
        config = raw.ffi.new("QvpiHOGConfig*", {
            "cvCompatible": int(columns_first), "cellSize": cell, "blockSize": 2 * cell, "blockStride": stride,
            "nbins": bins, "sigma": cell if sigma is None else sigma, "l2thresh": clip,
            "winSize": {"width": columns, "height": rows}})
        packed = numpy.frombuffer(raw.ffi.buffer(config), numpy.uint8)
        self.window, self._block = (rows, columns), (2 * cell, stride)
        self._spec = memory(size_of(_SIZE, packed))
        _INIT(packed, self._spec)
        self.size = size_of(_DESCRIPTOR, self._spec) // 4  # told in bytes
        self._buffers = {}

    def __call__(self, a, places=((0, 0),), *, border="replicate", value=0, copy=False):
        """float32 of shape (places, size): the descriptors of the windows with these first pixels, (row, column)."""
        a = image(a, copy)
        found = _HOG.find(key(a))
        if found is None:
            raise TypeError(_HOG._complaint(a, None))
        points = self._points(a, places)
        result = numpy.zeros((len(points), self.size), numpy.float32)
        size = a.shape[1], a.shape[0]
        if size not in self._buffers:
            self._buffers[size] = Buffers(size_of(_BUFFER, self._spec, size))
        buffer = self._buffers[size].take()
        value = numpy.full(channels(a), value, a.dtype)
        forgiving(found[0], (a,), (), (points, len(points), result, self._spec, choice(BORDERS, border, "border"),
                                       value.tolist(), buffer))
        self._buffers[size].give(buffer)
        return result

    def _points(self, a, places):
        """(x, y) of windows, of which none lies outside: these would be skipped.

        Outside is also what is right of or below the last whole block.
        """
        places = numpy.asarray(places)
        if places.ndim != 2 or places.shape[1] != 2 or len(places) == 0 or places.dtype.kind not in "iu":
            raise ValueError("places must be pairs of integers, (row, column)")
        block, stride = self._block
        whole = [(n - block) // stride * stride + block for n in a.shape[:2]]
        if (places < 0).any() or (places + self.window > whole).any():
            raise ValueError(f"a window of {self.window} is not within the whole blocks of the image, {tuple(whole)}")
        return numpy.ascontiguousarray(places[:, ::-1], numpy.int32)


@cached
def _hog(parameters):
    return Hog(**dict(parameters))


def hog(a, places=((0, 0),), *, border="replicate", value=0, copy=False, **parameters):
    """The descriptors of windows; see Hog for the parameters."""
    parameters.setdefault("window", (128, 64))
    parameters["window"] = tuple(parameters["window"])
    return _hog(tuple(sorted(parameters.items())))(a, places, border=border, value=value, copy=copy)
