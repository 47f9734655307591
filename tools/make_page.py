#!/usr/bin/env python3
"""Make the page that tries the library in a browser: one file, which works from a disk and needs no network.

Styles, scripts, qvpi.wasm and the photograph go into web/index.html. The scripts become one module, so the names of
their functions differ. Constants that they name get their values from the headers.
"""
import argparse
import base64
import json
import re
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
SCRIPTS = ["platform/wasm/qvpi.mjs", "web/program.js", "web/picture.js", "web/operations.js", "web/app.js"]
TYPES = {".wasm": "application/wasm", ".png": "image/png", ".jpg": "image/jpeg", ".jpeg": "image/jpeg"}


def url(file):
    return f"data:{TYPES[file.suffix.lower()]};base64,{base64.b64encode(file.read_bytes()).decode()}"


def constants(scripts):
    """kConstants, with those enumerators that the scripts name."""
    header = (ROOT / "include/qvptypes.h").read_text()
    values = dict(re.findall(r"^ +(qvp\w+) = (-?\w+),", header, re.M))
    named = sorted(set(re.findall(r"\bqvp\w+", scripts)) & set(values))
    return f"const kConstants = {json.dumps({name: int(values[name], 0) for name in named})};\n"


def module():
    texts = [(ROOT / name).read_text() for name in SCRIPTS]
    joined = "\n".join(re.sub(r"^(import .*\n|export )", "", text, flags=re.M) for text in texts)
    return constants(joined) + joined


def page(library, photograph):
    parts = {
        '<link rel="stylesheet" href="style.css">': f"<style>\n{(ROOT / 'web/style.css').read_text()}</style>",
        '<script type="module" src="app.js"></script>': f'<script type="module">\n{module()}</script>',
        '"qvpi.wasm"': f'"{url(library)}"',
        'src="photograph"': f'src="{url(photograph)}"',
    }
    text = (ROOT / "web/index.html").read_text()
    for place, part in parts.items():
        if text.count(place) != 1:
            raise SystemExit(f"web/index.html has {place} {text.count(place)} times")
        text = text.replace(place, part)
    return text


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--library", type=Path, required=True, help="the module for the page, a .wasm file")
    parser.add_argument("--photograph", type=Path, required=True, help="what the page shows at first, PNG or JPEG")
    parser.add_argument("--out", type=Path, required=True, help="the page")
    options = parser.parse_args()
    options.out.write_text(page(options.library, options.photograph))


if __name__ == "__main__":
    main()
