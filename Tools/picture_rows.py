# SPDX-License-Identifier: Apache-2.0
"""Pictures as lists of rows, each three bytes a pixel, for those that put several together."""

import pathlib
import struct
import sys
import zlib

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/system"))
from pictures import read_png  # noqa: E402


def read_rows(path):
    picture = read_png(path)
    step = 3 * picture.width
    return [picture.pixels[start : start + step] for start in range(0, len(picture.pixels), step)]


def write_png(rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", data) + chunk(b"IEND", b"")
