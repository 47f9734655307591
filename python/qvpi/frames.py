"""Frames whose chroma is subsampled: 4:2:0, as video and JPEG files have it, and packed 4:2:2.

A frame is a sequence of planes of uint8 or uint16: luma of shape (H, W), and chroma either as pairs, of shape
((H + 1) // 2, (W + 1) // 2, 2), or as two planes of shape ((H + 1) // 2, (W + 1) // 2). A packed frame has the shape
(H, W, 2), W even: luma, and chroma of both kinds by turns.
"""
import numpy

from ._mapped import INTERPOLATIONS
from ._operation import image
from ._plan import FUNCTIONS, NAMES, make_call
from ._records import addresses, cached, memory, size_of
from .arithmetic import choice
from .raw import lib

__all__ = ["decimate_frame", "resize_frame", "resize_packed"]

_FRACTIONS = {"1/2": lib.qvpDecimate1of2, "1/3": lib.qvpDecimate1of3, "1/4": lib.qvpDecimate1of4,
              "1/8": lib.qvpDecimate1of8, "2/3": lib.qvpDecimate2of3, "3/4": lib.qvpDecimate3of4,
              "3/8": lib.qvpDecimate3of8}
_SITES = {"centre": lib.qvpChromaCentre, "left": lib.qvpChromaLeft, "top-left": lib.qvpChromaTopLeft}
_PLACES = {"first": lib.qvpLumaFirst, "second": lib.qvpLumaSecond}
_EDGES = {"replicate": lib.qvpBorderReplicate, "mirror": lib.qvpBorderMirror}
_METHODS = {"linear": "Linear", "lanczos": "Lanczos", "super": "Super"}


def _chroma(shape):
    return (shape[0] + 1) // 2, (shape[1] + 1) // 2


def _planes(frame):
    """The planes of a frame, of one dtype and of shapes that fit, with packed rows."""
    planes = [image(plane, name="plane") for plane in frame]
    if len(planes) not in (2, 3):
        raise ValueError("a frame has two or three planes")
    half = _chroma(planes[0].shape)
    shapes = [planes[0].shape[:2], half + (2,)] if len(planes) == 2 else [planes[0].shape[:2], half, half]
    for plane, shape in zip(planes, shapes):
        if plane.shape != shape or plane.dtype != planes[0].dtype:
            raise ValueError(f"a plane has the shape {plane.shape} of {plane.dtype}, expected {shape} of "
                             f"{planes[0].dtype}")
    return [numpy.ascontiguousarray(plane) for plane in planes]


def _empty(shape, like):
    """Planes of a frame with luma of this shape, of the kind that another one has."""
    half = _chroma(shape)
    return tuple(numpy.empty(shape if i == 0 else half + plane.shape[2:], plane.dtype) for i, plane in enumerate(like))


def _steps(planes):
    return numpy.array([plane.strides[0] for plane in planes], numpy.int32)


@cached
def _decimate_call(dtype, count):
    name = f"qvpiDecimate420_{NAMES.get(dtype.num)}_P{count}R"
    if name not in FUNCTIONS:
        raise TypeError(f"there are no frames of {dtype}")
    return make_call(name, "src srcStep dst dstStep dstSize fraction")


def decimate_frame(frame, fraction):
    """The frame at '1/2', '1/3', '1/4', '1/8', '2/3', '3/4' or '3/8' of its size: exact means of what samples cover.

    Lengths that no whole number of samples makes are cut: 1080 rows at 3/8 become 405, 1081 as well.
    """
    code = choice(_FRACTIONS, fraction, "fraction")
    planes = _planes(frame)
    to, of = (int(number) for number in fraction.split("/"))
    shape = tuple(length * to // of for length in planes[0].shape)
    results = _empty(shape, planes)
    call = _decimate_call(planes[0].dtype, len(planes))
    call(addresses(planes), _steps(planes), addresses(results), _steps(results), shape[::-1], code)
    return results


def _resize(form, layout, sizes, dtype, method, options, planes):
    """Runs one resize: planes are the arguments for source and destination."""
    name = choice(_METHODS, method, "method")
    kind, family = NAMES.get(dtype.num), f"qvpiResize{form}"
    if kind not in ("8u", "16u"):
        raise TypeError(f"there are no frames of {dtype}")
    code = {"8u": lib.qvp8u, "16u": lib.qvp16u}[kind]
    query = make_call(f"{family}GetSize", "srcSize dstSize dataType interpolation antialiasing specSize initBufSize")
    spec, init = (memory(size) for size in size_of(query, *sizes, code, INTERPOLATIONS[method], 0, count=2))
    lobes, places, border = options
    is_lanczos = method == "lanczos"
    roles = ["numLobes"] * is_lanczos + ["site", "lumaPlace"][:len(places)] + ["spec"] + ["initBuf"] * is_lanczos
    make = make_call(f"{family}{name}Init", " ".join(["srcSize dstSize dataType", *roles]))
    make(*sizes, code, *[lobes] * is_lanczos, *places, spec, *[init] * is_lanczos)
    buffer = memory(size_of(make_call(f"{family}GetBufferSize", "spec dstSize bufSize"), spec, sizes[1]))
    has_border = method != "super"
    is_packed = layout == "C2"  # an image, not a list of planes with their steps
    roles = "src dst" if is_packed else "src srcStep dst dstStep"
    roles += " dstOffset dstSize" + " border" * has_border + " spec buffer"
    call = make_call(f"{family}{name}_{kind}_{layout}R", roles, layout if is_packed else "", ("src", "dst"))
    call(*planes, (0, 0), sizes[1], *[border] * has_border, spec, buffer)


def resize_frame(frame, shape, method="linear", *, site="left", border="replicate", lobes=3):
    """The 4:2:0 frame with luma of another shape (h, w), by 'linear', 'lanczos' or, for reductions, 'super'.

    site: where chroma lies, 'centre' between luma pixels (JPEG), 'left' on even columns (most video), 'top-left' on
    even columns and rows (UHD). border: 'replicate' or 'mirror', beyond each plane.
    """
    planes = _planes(frame)
    results = _empty(tuple(shape), planes)
    options = lobes, [choice(_SITES, site, "site")], choice(_EDGES, border, "border")
    arguments = addresses(planes), _steps(planes), addresses(results), _steps(results)
    sizes = planes[0].shape[1::-1], tuple(shape)[::-1]
    _resize(420, f"P{len(planes)}", sizes, planes[0].dtype, method, options, arguments)
    return results


def resize_packed(a, shape, method="linear", *, luma="first", site="left", border="replicate", lobes=3):
    """The packed 4:2:2 frame `a` of shape (H, W, 2) in another shape (h, w), w even; see resize_frame().

    luma: 'first' for Y U Y V, 'second' for U Y V Y.
    """
    a = numpy.ascontiguousarray(image(a, name="a"))
    if a.ndim != 3 or a.shape[2] != 2:
        raise ValueError(f"a has the shape {a.shape}, expected (H, W, 2)")
    result = numpy.empty((*shape, 2), a.dtype)
    places = [choice(_SITES, site, "site"), choice(_PLACES, luma, "luma")]
    options = lobes, places, choice(_EDGES, border, "border")
    _resize(422, "C2", (a.shape[1::-1], tuple(shape)[::-1]), a.dtype, method, options, (a, result))
    return result
