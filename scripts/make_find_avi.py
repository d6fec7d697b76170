#!/usr/bin/env python3
"""Draws find.avi, the animation of the search: a magnifying glass that goes along three shelves of carts.
Uncompressed, so that everything that plays films can play it.

    make_find_avi.py FILE
"""

import math
import struct
import sys

WIDTH, HEIGHT, FRAMES, MICROSECONDS = 72, 48, 12, 120_000
BACK, SHELF, CART, LABEL = (247, 249, 251), (143, 163, 181), (63, 124, 181), (247, 249, 251)
RIM, HANDLE, GLASS = (40, 60, 80), (120, 85, 45), (215, 235, 250)


def blend(under, over, share):
    return tuple(round(u + (o - u) * share) for u, o in zip(under, over))


def carts(x, y):
    """The colour of the shelves at a point."""
    row, inside = divmod(y, 16)
    column, across = divmod(x - 3, 11)
    if inside >= 14:
        return SHELF
    if 0 <= column < 6 and 1.5 <= across < 10 and inside >= 4:
        return LABEL if 6 <= inside < 9 and 3 <= across < 8.5 else CART
    return BACK


def colour(x, y, lens_x, lens_y):
    radius = 10
    distance = math.hypot(x - lens_x, y - lens_y)
    along, off = ((x - lens_x) + (y - lens_y)) / math.sqrt(2), ((x - lens_x) - (y - lens_y)) / math.sqrt(2)
    result = carts(x, y)
    if radius < along < radius + 11 and abs(off) < 2.4:
        result = HANDLE
    if distance < radius:
        near = carts(lens_x + (x - lens_x) / 1.6, lens_y + (y - lens_y) / 1.6)
        result = blend(near, GLASS, 0.35)
    rim = max(0.0, 1.0 - abs(distance - radius) / 2.0)
    return blend(result, RIM, min(1.0, rim * 1.6))


def picture(number):
    """One frame: rows from the bottom up, four bytes a point, blue first."""
    turn = 2 * math.pi * number / FRAMES
    lens_x, lens_y = 32 - 20 * math.cos(turn), 20 + 8 * math.sin(2 * turn)
    rows = bytearray()
    for y in reversed(range(HEIGHT)):
        for x in range(WIDTH):
            red, green, blue = colour(x + 0.5, y + 0.5, lens_x, lens_y)
            rows += bytes((blue, green, red, 255))
    return bytes(rows)


def chunk(name, data):
    return name + struct.pack("<I", len(data)) + data + b"\0" * (len(data) % 2)


def film(pictures):
    size = len(pictures[0])
    header = struct.pack("<14I", MICROSECONDS, size * 1_000_000 // MICROSECONDS, 0, 0x10, len(pictures),
                         0, 1, size, WIDTH, HEIGHT, 0, 0, 0, 0)
    stream = struct.pack("<4s4sIHHIIIIIIIIhhhh", b"vids", b"DIB ", 0, 0, 0, 0, MICROSECONDS, 1_000_000,
                         0, len(pictures), size, 0xFFFFFFFF, 0, 0, 0, WIDTH, HEIGHT)
    form = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 32, 0, size, 0, 0, 0, 0)
    frames = b"".join(chunk(b"00db", data) for data in pictures)
    index = b"".join(struct.pack("<4sIII", b"00db", 0x10, 4 + number * (size + 8), size)
                     for number in range(len(pictures)))
    headers = chunk(b"avih", header) + chunk(
        b"LIST", b"strl" + chunk(b"strh", stream) + chunk(b"strf", form))
    return chunk(b"RIFF", b"AVI " + chunk(b"LIST", b"hdrl" + headers) +
                 chunk(b"LIST", b"movi" + frames) + chunk(b"idx1", index))


def main():
    if len(sys.argv) != 2:
        raise SystemExit(__doc__)
    with open(sys.argv[1], "wb") as file:
        file.write(film([picture(number) for number in range(FRAMES)]))


if __name__ == "__main__":
    main()
