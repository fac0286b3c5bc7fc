#!/usr/bin/env python3
"""make_icns.py ICNS SIZE=PNG...: packs pictures into the icon container of macOS.

The container is the four bytes "icns" and its whole length, then one block a picture: a type of four characters, the
block's length with these eight bytes, and the bytes of the PNG file. Numbers are big-endian. The types say how many
points and pixels a picture stands for; a size that stands for two (32 pixels are 32 points, or 16 on a sharp screen) is
there twice.
"""
import struct
import sys

# Pixels a side -> types.
TYPES = {16: [b"icp4"], 32: [b"icp5", b"ic11"], 64: [b"ic12"], 128: [b"ic07"], 256: [b"ic08", b"ic13"],
         512: [b"ic09", b"ic14"], 1024: [b"ic10"]}
PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"


def png_size(picture):
    """Width and height of a PNG file."""
    if not picture.startswith(PNG_SIGNATURE) or picture[12:16] != b"IHDR":
        raise ValueError("no PNG picture")
    return struct.unpack(">II", picture[16:24])


def icns(pictures):
    """The container of the pictures, PNG bytes by pixels a side."""
    blocks = b""
    for size, picture in sorted(pictures.items()):
        if png_size(picture) != (size, size):
            raise ValueError(f"the picture for {size} pixels is {png_size(picture)}")
        for kind in TYPES[size]:
            blocks += kind + struct.pack(">I", len(picture) + 8) + picture
    return b"icns" + struct.pack(">I", len(blocks) + 8) + blocks


def main():
    target, *given = sys.argv[1:]
    pictures = {}
    for argument in given:
        size, _, path = argument.partition("=")
        with open(path, "rb") as file:
            pictures[int(size)] = file.read()
    with open(target, "wb") as file:
        file.write(icns(pictures))


if __name__ == "__main__":
    main()
