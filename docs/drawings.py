#!/usr/bin/env python3
"""Draw the manual's figures: an image in memory, kinds of borders, tiles. They suit light pages and dark ones."""
import sys
from pathlib import Path

STYLE = """<style>
text { font: 13px system-ui, sans-serif; fill: #1b1f24; } .small { font-size: 11px; } .cell { font-size: 12px; }
.line { stroke: #5b6572; fill: none; } .out { fill: #dbe7f7; stroke: #5b6572; } .in { fill: #7fb2ee; stroke: #5b6572; }
.gap { fill: none; stroke: #aab3bd; stroke-dasharray: 3 3; }
@media (prefers-color-scheme: dark) {
  text { fill: #e4e8ec; } .out { fill: #22354d; stroke: #9aa5b1; } .in { fill: #2f6cb0; stroke: #9aa5b1; }
  .line { stroke: #9aa5b1; } .gap { stroke: #5b6572; }
}
</style>"""
BORDERS = [("constant 0", "0 0 0", "0 0 0"), ("replicate", "a a a", "e e e"), ("mirror", "d c b", "d c b"),
           ("wrap", "c d e", "a b c"), ("in memory", "x y z", "u v w")]


def box(x, y, width, height, kind):
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" class="{kind}"/>'


def text(x, y, words, anchor="start", kind=""):
    return f'<text x="{x}" y="{y}" text-anchor="{anchor}" class="{kind}">{words}</text>'


def drawing(width, height, label, parts):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}" '
            f'role="img" aria-label="{label}">{STYLE}{"".join(parts)}</svg>\n')


def arrow(x1, y1, x2, y2):
    return f'<path d="M{x1} {y1} L{x2} {y2}" class="line" marker-end="url(#end)"/>'


HEAD = ('<defs><marker id="end" viewBox="0 0 8 8" refX="7" refY="4" markerWidth="8" markerHeight="8" orient="auto">'
        '<path d="M0 0 L8 4 L0 8 z" fill="#5b6572"/></marker></defs>')


def image():
    """Rows of an image with padding, and a region of it."""
    rows = [part for y in range(6) for part in (box(120, 40 + 26 * y, 360, 22, "out"), box(480, 40 + 26 * y, 60, 22, "gap"))]
    region = [box(210, 66 + 26 * y, 150, 22, "in") for y in range(3)]
    words = [text(120, 18, "first pixel of the image"), arrow(125, 22, 125, 40), text(486, 55, "padding", kind="small"),
             text(10, 74, "pSrc: first pixel", kind="small"), text(10, 90, "of the region", kind="small"),
             arrow(98, 78, 210, 77), text(285, 158, "roiSize {5, 3}", "middle", "small"),
             arrow(120, 210, 540, 210), arrow(540, 210, 120, 210), text(330, 228, "step: bytes from row to row", "middle")]
    return drawing(560, 240, "An image in memory: pointer, step and region", [HEAD, *rows, *region, *words])


def borders():
    """A row a b c d e, and what each kind puts beside it."""
    parts = []
    for number, (name, before, after) in enumerate(BORDERS):
        y = 12 + 40 * number
        parts.append(text(10, y + 18, name))
        for place, value in enumerate([*before.split(), *"abcde", *after.split()]):
            x = 120 + 34 * place
            parts += [box(x, y, 32, 26, "in" if 3 <= place < 8 else "out"), text(x + 16, y + 18, value, "middle", "cell")]
    return drawing(510, 215, "Kinds of borders beside a row of five pixels", parts)


def tiles():
    """A destination in tiles, and the part of the source that one of them needs."""
    cut = [box(330 + 70 * x, 30 + 50 * y, 68, 48, "in" if (x, y) == (1, 1) else "out") for y in range(3) for x in range(3)]
    parts = [box(30, 30, 208, 148, "out"), box(92, 70, 88, 68, "gap"), box(100, 80, 70, 48, "in"),
             text(30, 20, "source"), text(330, 20, "destination, in tiles"), arrow(180, 104, 398, 104),
             text(30, 200, "dashed: what a tile reads beyond its place, which is in memory", kind="small")]
    return drawing(550, 212, "A tile and what it reads", [HEAD, *cut, *parts])


def main():
    folder = Path(sys.argv[1])
    for name, draw in {"image": image, "borders": borders, "tiles": tiles}.items():
        (folder / f"{name}.svg").write_text(draw())


if __name__ == "__main__":
    main()
