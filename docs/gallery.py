#!/usr/bin/env python3
"""Draw the manual's gallery: pictures made by the library from one photograph, each with the code that made it.

Every snippet is run as it is printed. It finds `photo` (256 x 256, colour), `grey` (the same in one channel) and
`floats` (grey as numbers from 0 to 1), and leaves its picture in `result`. One that fails ends the program; so does
one whose picture is of a single colour.
"""
import argparse
import html
import sys
from pathlib import Path

import numpy
import PIL.Image
import qvpi

sys.path.insert(0, str(Path(__file__).parent / "tools"))
import pictures  # noqa: E402

CHAPTERS = {
    "Borders": "What filters find beyond an image. The frame shows each kind.",
    "Smoothing": "Noise goes, and more or less of the edges with it.",
    "Edges and details": "Differences between neighbours.",
    "Morphology and thresholds": "Shapes, and what belongs to them.",
    "Resizing": "A part, eight times as large, and the whole, three eighths as large.",
    "Warps": "Each pixel is taken from a point of the source.",
    "Arithmetic and tables": "Pixel by pixel.",
    "Compositing": "Two images in one.",
    "Transforms": "Images as sums of waves and steps.",
    "Features and texture": "What describes a place.",
    "Noise and patterns": "Made, not taken from an image. Noise depends on its seed and place alone.",
}

PICTURES = [
    ("Borders", "constant", 'result = qvpi.copy_border(photo[64:192, 64:192], 64, 64, 64, 64, value=(40, 60, 120))'),
    ("Borders", "replicate", 'result = qvpi.copy_border(photo[64:192, 64:192], 64, 64, 64, 64, border="replicate")'),
    ("Borders", "mirror", 'result = qvpi.copy_border(photo[64:192, 64:192], 64, 64, 64, 64, border="mirror")'),
    ("Borders", "wrap", 'framed = qvpi.copy_border(floats[64:192, 64:192], 64, 64, 64, 64, border="wrap")\n'
     'result = qvpi.scale(framed, 255, dtype="u1")'),
    ("Smoothing", "box, 9 x 9", 'result = qvpi.box(photo, 9)'),
    ("Smoothing", "Gauss, sigma 3", 'result = qvpi.gauss(photo, 3)'),
    ("Smoothing", "median of salt and pepper",
     'noisy = qvpi.salt_pepper(photo, 0.2)\nresult = numpy.hstack([noisy[:, :128], qvpi.median(noisy)[:, 128:]])'),
    ("Smoothing", "bilateral", 'result = qvpi.bilateral(photo, sigma_range=40, sigma_space=4)'),
    ("Smoothing", "guided, by itself", 'result = qvpi.guided(photo, size=17, eps=0.02)'),
    ("Smoothing", "Wiener of noise",
     'noisy = qvpi.gauss_noise(grey, 20)\n'
     'result = numpy.hstack([noisy[:, :128], qvpi.wiener(noisy, 400 / 255**2, 5)[:, 128:]])'),
    ("Smoothing", "least squares", 'result = qvpi.least_squares(photo, 2.0)'),
    ("Edges and details", "sharpen", 'result = qvpi.sharpen(photo)'),
    ("Edges and details", "Sobel, magnitude", 'result = qvpi.sobel_magnitude(grey)'),
    ("Edges and details", "Scharr, across", 'result = qvpi.scale(qvpi.scharr(grey, "x"), 0.1, 128, dtype="u1")'),
    ("Edges and details", "Laplace", 'result = qvpi.scale(qvpi.laplace(floats), 100, 128, dtype="u1")'),
    ("Edges and details", "high-pass", 'result = qvpi.scale(qvpi.high_pass(floats), 60, 128, dtype="u1")'),
    ("Edges and details", "emboss, a kernel of one's own",
     'result = qvpi.filter2d(grey, [[-2, -1, 0], [-1, 1, 1], [0, 1, 2]], divisor=1, border="replicate")'),
    ("Morphology and thresholds", "erode", 'result = qvpi.erode(photo, numpy.ones((7, 7), "u1"))'),
    ("Morphology and thresholds", "dilate", 'result = qvpi.dilate(photo, numpy.ones((7, 7), "u1"))'),
    ("Morphology and thresholds", "Otsu's threshold",
     'result = qvpi.compare(grey, ">", qvpi.otsu(grey))'),
    ("Morphology and thresholds", "local threshold",
     'result = qvpi.local_threshold(grey, 31, delta=6, above=255)'),
    ("Resizing", "nearest", 'result = qvpi.resize(photo[60:92, 100:132], (256, 256), method="nearest")'),
    ("Resizing", "linear", 'result = qvpi.resize(photo[60:92, 100:132], (256, 256), method="linear")'),
    ("Resizing", "cubic", 'result = qvpi.resize(photo[60:92, 100:132], (256, 256), method="cubic")'),
    ("Resizing", "Lanczos", 'result = qvpi.resize(photo[60:92, 100:132], (256, 256), method="lanczos")'),
    ("Resizing", "smaller, linear", 'result = qvpi.resize(photo, (96, 96))'),
    ("Resizing", "smaller, antialiased", 'result = qvpi.resize(photo, (96, 96), method="linear", antialias=True)'),
    ("Resizing", "smaller, areas", 'result = qvpi.resize(photo, (96, 96), method="super")'),
    ("Warps", "rotated", 'result = qvpi.rotate(photo, 20, method="cubic")'),
    ("Warps", "perspective",
     'result = qvpi.warp_quad(photo, [(0, 0), (255, 0), (255, 255), (0, 255)],\n'
     '                        [(60, 20), (200, 40), (250, 240), (5, 200)])'),
    ("Warps", "a wave",
     'y, x = numpy.mgrid[0:256, 0:256].astype("f4")\n'
     'result = qvpi.remap(photo, x + 8 * numpy.sin(y / 16), y + 8 * numpy.sin(x / 16), method="cubic")'),
    ("Warps", "flipped, turned",
     'result = numpy.hstack([qvpi.flip(photo, 1)[:, ::2], qvpi.rot90(photo)[:, ::2]], dtype="u1")'),
    ("Arithmetic and tables", "added to its mirror image",
     'result = qvpi.add(photo, qvpi.flip(photo, 1), scale=1)'),
    ("Arithmetic and tables", "difference of a blur", 'result = qvpi.abs(qvpi.scale(qvpi.subtract(\n'
     '    qvpi.convert(grey, "i2"), qvpi.convert(qvpi.gauss(grey, 4), "i2")), 3, dtype="i2")).astype("u1")'),
    ("Arithmetic and tables", "inverted", 'result = qvpi.bitwise_not(photo)'),
    ("Arithmetic and tables", "a curve for the shadows",
     'result = qvpi.curve(photo, [0, 64, 128, 256], [0, 110, 180, 255])'),
    ("Arithmetic and tables", "false colours",
     'colours = numpy.stack([numpy.arange(256), 255 - numpy.arange(256), numpy.full(256, 128)], 1).astype("u1")\n'
     'result = qvpi.palette(grey, colours)'),
    ("Compositing", "one over the other, half of it", 'result = qvpi.blend(photo, qvpi.flip(photo, 0), 128, 255)'),
    ("Compositing", "by a color key",
     'result = qvpi.color_key(photo, qvpi.flip(photo, 1), (150, 100, 90), (255, 255, 255))'),
    ("Transforms", "spectrum",
     'spectrum = numpy.abs(numpy.fft.fftshift(qvpi.fft2(floats.astype("c8"))))\n'
     'result = qvpi.scale(numpy.log1p(spectrum).astype("f4"), 32, dtype="u1")'),
    ("Transforms", "wavelets, two levels",
     'result = qvpi.scale(numpy.abs(qvpi.dwt2(floats, 2, "haar")).astype("f4"), 64, dtype="u1")'),
    ("Transforms", "cosine coefficients, an eighth of them kept",
     'spectrum = qvpi.dct2(floats)\nspectrum[90:] = 0\nspectrum[:, 90:] = 0\n'
     'result = qvpi.scale(qvpi.idct2(spectrum), 255, dtype="u1")'),
    ("Transforms", "a blur, and what is restored",
     'spot = qvpi.gauss(numpy.pad(numpy.ones((1, 1), "f4"), 7), 2)\nblurred = qvpi.convolve(floats, spot)\n'
     'restored = qvpi.richardson_lucy(blurred, spot, iterations=40)\n'
     'result = qvpi.scale(numpy.hstack([blurred[:, :128], restored[:, 128:]]), 255, dtype="u1")'),
    ("Features and texture", "local binary patterns", 'result = qvpi.local_patterns(grey)'),
    ("Features and texture", "where a template is",
     'score = qvpi.match(grey, numpy.ascontiguousarray(grey[40:72, 110:142]), mode="same")\n'
     'result = qvpi.scale(score, 127, 128, dtype="u1")'),
    ("Features and texture", "where two images differ, by structure",
     'small = qvpi.resize(qvpi.resize(grey, (64, 64), method="super"), (256, 256))\n'
     'result = qvpi.scale(qvpi.abs(qvpi.convert(grey, "f4") - qvpi.convert(small, "f4")), 6, dtype="u1")'),
    ("Noise and patterns", "Gauss", 'result = qvpi.gauss_noise(grey, 40)'),
    ("Noise and patterns", "speckle", 'result = qvpi.speckle_noise(grey, 0.3)'),
    ("Noise and patterns", "a ramp", 'result = qvpi.ramp((256, 256), 0, 0.5, 0.5)'),
    ("Noise and patterns", "Jaehne's rings", 'result = qvpi.jaehne((256, 256))'),
]

PAGE = """# Gallery {{#gallery}}

All of it was made by the library when the manual was, from one photograph, by the code below each picture: that of the
Python package, whose functions are those of the C interface.

{chapters}
"""
CHAPTER = """## {title} {{#gallery-{number}}}

{text}

@htmlonly
<div class="pictures">{figures}</div>
@endhtmlonly
"""


def photograph(file):
    """The middle of a picture, 256 x 256."""
    picture = PIL.Image.open(file).convert("RGB")
    side = min(picture.size)
    return numpy.array(picture.crop((0, 0, side, side)).resize((256, 256), PIL.Image.Resampling.LANCZOS))


def grey_of(photo):
    return qvpi.convert(photo @ numpy.array([0.299, 0.587, 0.114], "f4"), "u1")


def drawn(code, photo):
    """What a snippet leaves."""
    grey = grey_of(photo)
    names = {"numpy": numpy, "qvpi": qvpi, "photo": photo.copy(), "grey": grey, "floats": grey.astype("f4") / 255}
    exec(code, names)
    result = names["result"]
    if result.dtype != numpy.uint8 or result.min() == result.max():
        raise ValueError(f"no picture: {result.dtype}, {result.min()} to {result.max()}")
    return result


def figure(number, title, code, photo, folder):
    try:
        picture = drawn(code, photo)
    except Exception as error:
        raise SystemExit(f"{title}: {error}\n{code}")
    name = f"gallery-{number}.png"
    PIL.Image.fromarray(picture).save(folder / name)
    return (f'<figure><img src="{name}" alt="{html.escape(title)}"><figcaption>{html.escape(title)}</figcaption>'
            f"<pre>{html.escape(code)}</pre></figure>")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("picture", type=Path)
    parser.add_argument("folder", type=Path, help="of the manual's pages, for the pictures")
    parser.add_argument("page", type=Path, help="the page to write, with the code")
    options = parser.parse_args()
    photo, figures = photograph(options.picture), {chapter: [] for chapter in CHAPTERS}
    for number, (chapter, title, code) in enumerate(PICTURES):
        figures[chapter].append(figure(number, title, code, photo, options.folder))
    chapters = [CHAPTER.format(title=title, number=number, text=text, figures="".join(figures[title]))
                for number, (title, text) in enumerate(CHAPTERS.items())]
    options.page.write_text(PAGE.format(chapters="\n".join(chapters)))
    pictures.write_list({title: f"gallery-{number}.png" for number, (_, title, _) in enumerate(PICTURES)})
    print(f"{len(PICTURES)} pictures in the gallery")


if __name__ == "__main__":
    main()
