# SPDX-License-Identifier: Apache-2.0
"""For pictures of previews: a document, and pictures as lists of rows, each three bytes a pixel."""

import pathlib
import struct
import sys
import zlib

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/system"))
from pictures import read_png  # noqa: E402


JOB = """%%!PS-Adobe-3.0
<< /PageSize [595 842] >> setpagedevice
1 1 %d {
  /page exch def
  0.2 0.35 0.55 setrgbcolor 60 690 475 84 rectfill
  1 setgray /Helvetica-Bold 44 selectfont 80 716 moveto (Page ) show page 10 string cvs show
  0.72 setgray
  0 1 26 {
    /line exch def
    60 640 line 21 mul sub
    line page add 9 mod 8 eq { 190 } { 475 line page 3 mul add 5 mod 13 mul sub } ifelse 7 rectfill
  } for
  showpage
} for
"""


def sample_job(pages):
    """A report whose lines differ from page to page."""
    return (JOB % pages).encode()


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
