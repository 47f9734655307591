"""Which family the pictures of the gallery show, by a function of C; they stand on its page, too."""
import html
import json
from pathlib import Path

LIST = Path("build/docs/pictures.json")
SHOWN = {
    "constant": "qvpiCopyConstBorder", "replicate": "qvpiCopyReplicateBorder", "mirror": "qvpiCopyMirrorBorder",
    "wrap": "qvpiCopyWrapBorder", "box, 9 x 9": "qvpiFilterBoxBorder", "Gauss, sigma 3": "qvpiFilterGaussBorder",
    "median of salt and pepper": "qvpiFilterMedianBorder", "bilateral": "qvpiFilterBilateralBorder",
    "guided, by itself": "qvpiFilterGuidedBorder", "Wiener of noise": "qvpiFilterWienerBorder",
    "least squares": "qvpiFilterLeastSquares", "sharpen": "qvpiFilterSharpenBorder", "Laplace": "qvpiFilterLaplaceBorder",
    "Scharr, across": "qvpiFilterScharrXBorder", "high-pass": "qvpiFilterHighPassBorder",
    "Sobel, magnitude": "qvpiFilterSobel", "emboss, a kernel of one's own": "qvpiFilterBorder",
    "erode": "qvpiFilterErodeBorder", "dilate": "qvpiFilterDilateBorder", "Otsu's threshold": "qvpiComputeThreshold_Otsu",
    "local threshold": "qvpiThresholdLocalBoxBorder", "nearest": "qvpiResizeNearest", "linear": "qvpiResizeLinear",
    "cubic": "qvpiResizeCubic", "Lanczos": "qvpiResizeLanczos", "smaller, linear": "qvpiResizeLinear",
    "smaller, antialiased": "qvpiResizeAntialiasing", "smaller, areas": "qvpiResizeSuper",
    "rotated": "qvpiWarpAffineCubic", "perspective": "qvpiWarpPerspectiveLinear", "a wave": "qvpiRemap",
    "flipped, turned": "qvpiMirror", "added to its mirror image": "qvpiAdd", "difference of a blur": "qvpiSub",
    "inverted": "qvpiNot", "a curve for the shadows": "qvpiLookup", "false colours": "qvpiPalette",
    "one over the other, half of it": "qvpiCompositeC", "by a color key": "qvpiColorKey", "spectrum": "qvpiDFTFwd_CToC",
    "wavelets, two levels": "qvpiWaveletFwd", "cosine coefficients, an eighth of them kept": "qvpiDCTFwd",
    "a blur, and what is restored": "qvpiDeconvolveIterative", "local binary patterns": "qvpiFilterLBPBorder",
    "where a template is": "qvpiMatchCorrelation", "Gauss": "qvpiNoise", "speckle": "qvpiNoise", "a ramp": "qvpiRamp",
    "Jaehne's rings": "qvpiJaehne",
}


def write_list(files):
    """Keeps for the families' pages which file has which picture: {title: file}."""
    missing = sorted(SHOWN.keys() - files.keys())
    if missing:
        raise SystemExit(f"the gallery has no picture {', '.join(missing)}")
    LIST.write_text(json.dumps(files))


def figures(family):
    """The pictures of a family for its page."""
    files = json.loads(LIST.read_text()) if LIST.exists() else {}
    shown = [(title, files[title]) for title, operation in SHOWN.items()
             if title in files and operation in family.operations]
    return "".join(f'<figure><a href="gallery.html"><img src="{file}" alt="{html.escape(title)}"></a>'
                   f"<figcaption>{html.escape(title)}</figcaption></figure>" for title, file in shown)
