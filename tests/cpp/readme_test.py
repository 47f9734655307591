#!/usr/bin/env python3
"""Lets the program in README make a photograph small, and looks at what it wrote."""
import argparse
import struct
import sys
import zlib
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from commands import require, run  # noqa: E402


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width, height, color):
    """A PNG file of one colour."""
    rows = (b"\0" + bytes(color) * width) * height
    return b"".join([b"\x89PNG\r\n\x1a\n", chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)),
                     chunk(b"IDAT", zlib.compress(rows)), chunk(b"IEND", b"")])


def first_pixel(file):
    """(width, height, the first pixel), which no filter of PNG changes."""
    data, at, packed = file.read_bytes(), 8, b""
    while at < len(data):
        length, = struct.unpack(">I", data[at:at + 4])
        if data[at + 4:at + 8] == b"IDAT":
            packed += data[at + 8:at + 8 + length]
        at += 12 + length
    return *struct.unpack(">II", data[16:24]), *zlib.decompress(packed)[1:4]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program")
    parser.add_argument("--folder", type=Path, required=True)
    options = parser.parse_args()
    (options.folder / "photo.png").write_bytes(png(640, 500, (10, 20, 30)))
    run(options.program, cwd=options.folder)
    found = first_pixel(options.folder / "small.png")
    require(found == (320, 240, 10, 20, 30), "the small photograph is", found)


if __name__ == "__main__":
    main()
