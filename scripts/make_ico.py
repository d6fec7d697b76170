#!/usr/bin/env python3
"""Puts PNG pictures, which may be 256 points wide at most, into one icon file for Windows.

    make_ico.py FILE PICTURE...
"""

import pathlib
import struct
import sys

DIRECTORY, ENTRY = "<HHH", "<BBBBHHII"


def size_of(picture):
    return struct.unpack(">II", picture[16:24])


def main():
    pictures = [pathlib.Path(name).read_bytes() for name in sys.argv[2:]]
    icon = bytearray(struct.pack(DIRECTORY, 0, 1, len(pictures)))
    place = len(icon) + len(pictures) * struct.calcsize(ENTRY)
    for picture in pictures:
        width, height = size_of(picture)
        # 256 has no room in a byte and is written as 0.
        icon += struct.pack(ENTRY, width % 256, height % 256, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    pathlib.Path(sys.argv[1]).write_bytes(icon + b"".join(pictures))


main()
