# SPDX-License-Identifier: Apache-2.0
"""PNG pictures for tests: made, read and measured without a library."""

import struct
import zlib


def png(width, height, color):
    """A picture of one colour."""
    return write_png([bytes(color) * width] * height)


def write_png(rows):
    """A picture of these rows, each of three bytes a pixel."""

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
    packed = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", packed)
            + chunk(b"IEND", b""))


def read_png(path):
    """Rows of an 8-bit RGB picture, each a bytes object."""
    data = path.read_bytes()
    position, packed = 8, b""
    while position < len(data):
        length, kind = struct.unpack(">I4s", data[position : position + 8])
        body = data[position + 8 : position + 8 + length]
        if kind == b"IHDR":
            width, height = struct.unpack(">II", body[:8])
        if kind == b"IDAT":
            packed += body
        position += 12 + length
    raw, rows, previous = zlib.decompress(packed), [], bytes(3 * width)
    for y in range(height):
        start = y * (3 * width + 1)
        previous = unfilter(raw[start], raw[start + 1 : start + 1 + 3 * width], previous)
        rows.append(previous)
    return rows


def unfilter(kind, line, above):
    out = bytearray(line)
    for i in range(len(out)):
        left = out[i - 3] if i >= 3 else 0
        corner = above[i - 3] if i >= 3 else 0
        if kind == 1:
            guess = left
        elif kind == 2:
            guess = above[i]
        elif kind == 3:
            guess = (left + above[i]) // 2
        elif kind == 4:
            estimate = left + above[i] - corner
            guess = min((left, above[i], corner), key=lambda v: abs(estimate - v))
        else:
            return bytes(out)
        out[i] = (out[i] + guess) & 255
    return bytes(out)


def box_of(rows, color, tolerance=40):
    """Left, top, right and bottom of all pixels of about this colour; None without any."""
    found = [
        (x, y)
        for y, row in enumerate(rows)
        for x in range(len(row) // 3)
        if all(abs(row[3 * x + i] - color[i]) <= tolerance for i in range(3))
    ]
    if not found:
        return None
    columns, lines = zip(*found)
    return min(columns), min(lines), max(columns) + 1, max(lines) + 1
