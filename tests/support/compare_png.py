"""Compares two PNG files of 8 bits a channel: equal in size (but for a pixel) and, on
average over all pixels, within 2 of 255; no more than one pixel in a hundred may differ by
more than 64.

compare_png.py FIRST SECOND
"""

import struct
import sys
import zlib


def unfilter(kind, line, before, step):
    out = bytearray(line)
    for i, value in enumerate(line):
        left = out[i - step] if i >= step else 0
        up = before[i]
        corner = before[i - step] if i >= step else 0
        if kind == 1:
            value += left
        elif kind == 2:
            value += up
        elif kind == 3:
            value += (left + up) // 2
        elif kind == 4:
            guess = left + up - corner
            distances = (abs(guess - left), abs(guess - up), abs(guess - corner))
            value += (left, up, corner)[distances.index(min(distances))]
        out[i] = value & 255
    return out


def read(path):
    data = open(path, "rb").read()
    width, height, depth, colour = struct.unpack(">IIBB", data[16:26])
    assert depth == 8 and colour in (2, 6), (path, depth, colour)
    channels = 3 if colour == 2 else 4
    pixels, place = b"", 8
    while place < len(data):
        (size,) = struct.unpack(">I", data[place : place + 4])
        if data[place + 4 : place + 8] == b"IDAT":
            pixels += data[place + 8 : place + 8 + size]
        place += size + 12
    raw = zlib.decompress(pixels)
    rows, before = [], bytes(width * channels)
    for row in range(height):
        start = row * (width * channels + 1)
        line = raw[start + 1 : start + 1 + width * channels]
        before = unfilter(raw[start], line, before, channels)
        rows.append([before[i : i + 3] for i in range(0, width * channels, channels)])
    return rows


def main():
    first, second = read(sys.argv[1]), read(sys.argv[2])
    sizes = [(len(rows[0]), len(rows)) for rows in (first, second)]
    if any(abs(a - b) > 1 for a, b in zip(*sizes)):
        sys.exit(f"sizes differ: {sizes}")
    total = pixels = far = 0
    for a, b in zip(first, second):
        for p, q in zip(a, b):
            worst = max(abs(x - y) for x, y in zip(p, q))
            total += worst
            far += worst > 64
            pixels += 1
    print(f"mean {total / pixels:.2f}, far {far} of {pixels}")
    if total > 2 * pixels or far * 100 > pixels:
        sys.exit(1)


main()
