"""What functions of floats should give, straight from their formulas, in extended precision."""
import numpy
import scipy.fft

EXTENDED = numpy.longdouble
PI = EXTENDED("3.14159265358979323846264338327950288")


def linear(t):
    return numpy.maximum(0, 1 - abs(t))


def cubic(t):
    """Through the pixels: B = 0, C = 0.5."""
    t = abs(t)
    near = (EXTENDED(1.5) * t - EXTENDED(2.5)) * t * t + 1
    far = ((EXTENDED(-0.5) * t + EXTENDED(2.5)) * t - 4) * t + 2
    return numpy.where(t < 1, near, numpy.where(t < 2, far, 0))


def sinc(t):
    t = t * PI
    return numpy.where(t == 0, 1, numpy.sin(t) / numpy.where(t == 0, 1, t))


def lanczos(t):
    return numpy.where(abs(t) < 3, sinc(t) * sinc(t / 3), 0)


KERNELS = {"linear": (linear, 1), "cubic": (cubic, 2), "lanczos": (lanczos, 3)}


def weights(source, destination, method, antialias):
    """The matrix that resizes a line."""
    kernel, reach = KERNELS[method]
    scale = EXTENDED(source) / destination
    widened = max(EXTENDED(1), scale) if antialias else EXTENDED(1)
    x = (numpy.arange(destination) + EXTENDED(0.5)) * scale - EXTENDED(0.5)
    places = numpy.floor(x)[:, None] + numpy.arange(-int(reach * widened) - 1, int(reach * widened) + 2)
    taps = kernel((places - x[:, None]) / widened)
    matrix = numpy.zeros((destination, source), EXTENDED)
    rows = numpy.arange(destination)[:, None]
    numpy.add.at(matrix, (rows, numpy.clip(places, 0, source - 1).astype(int)), taps / taps.sum(1, keepdims=True))
    return matrix


def areas(source, destination):
    """The matrix that makes means of what each destination pixel covers."""
    edges = numpy.arange(destination + 1) * (EXTENDED(source) / destination)
    pixels = numpy.arange(source)
    covered = numpy.minimum(edges[1:, None], pixels + 1) - numpy.maximum(edges[:-1, None], pixels)
    return numpy.maximum(covered, 0) * (EXTENDED(destination) / source)


def resized(image, shape, method, antialias=False):
    down, across = (areas(*pair) if method == "super" else weights(*pair, method, antialias)
                    for pair in zip(image.shape, shape))
    return down @ image.astype(EXTENDED) @ across.T


def sampled(image, x, y, method):
    """The image at points, whose neighbours have to lie in it."""
    kernel, reach = KERNELS[method]
    total, weight = numpy.zeros(x.shape, EXTENDED), numpy.zeros(x.shape, EXTENDED)
    for down in range(1 - reach, reach + 1):
        for across in range(1 - reach, reach + 1):
            column, row = numpy.floor(x) + across, numpy.floor(y) + down
            tap = kernel(column - x) * kernel(row - y)
            total += tap * image[row.astype(int), column.astype(int)]
            weight += tap
    return total / weight


def transformed(image, matrix):
    """Where the pixels of a destination come from, by a matrix from it to the source, in double precision."""
    rows, columns = numpy.indices(image.shape).astype(float)
    u, v, w = (a * columns + b * rows + c for a, b, c in [*matrix, [0, 0, 1]][:3])
    return (u / w).astype(EXTENDED), (v / w).astype(EXTENDED)


def padded(image, reach):
    return numpy.pad(image.astype(EXTENDED), reach, "edge")


def along_axes(image, taps):
    """A kernel that is the product of one for rows with the same for columns."""
    reach = len(taps) // 2
    wide = padded(image, reach)
    rows = sum(tap * wide[:, k:k + image.shape[1]] for k, tap in enumerate(taps))
    return sum(tap * rows[k:k + image.shape[0]] for k, tap in enumerate(taps))


def bell(sigma):
    reach = int(numpy.ceil(3 * sigma))
    taps = numpy.exp(-numpy.arange(-reach, reach + 1).astype(EXTENDED)**2 / (2 * EXTENDED(sigma)**2))
    return taps / taps.sum()


def neighbours(image, reach):
    """(dx, dy, the image moved so) for each place of a square."""
    wide = padded(image, reach)
    for dy in range(-reach, reach + 1):
        for dx in range(-reach, reach + 1):
            top, left = reach + dy, reach + dx
            yield dx, dy, wide[top:top + image.shape[0], left:left + image.shape[1]]


def bilateral(image, sigma_range, sigma_space, radius):
    image = image.astype(EXTENDED)
    total, weight = numpy.zeros_like(image), numpy.zeros_like(image)
    for dx, dy, moved in neighbours(image, radius):
        if dx * dx + dy * dy <= radius * radius:
            g = numpy.exp(-EXTENDED(dx * dx + dy * dy) / (2 * sigma_space**2) - (moved - image)**2 / (2 * sigma_range**2))
            total += g * moved
            weight += g
    return total / weight


def wiener(image, noise, size):
    image = image.astype(EXTENDED)
    mean = along_axes(image, numpy.full(size, EXTENDED(1) / size))
    variance = along_axes(image * image, numpy.full(size, EXTENDED(1) / size)) - mean * mean
    return mean + (image - mean) * numpy.maximum(0, variance - noise) / variance


def spectrum(image):
    return scipy.fft.fft2(image.astype(numpy.clongdouble if numpy.iscomplexobj(image) else EXTENDED))
