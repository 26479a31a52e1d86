# SPDX-License-Identifier: Apache-2.0
"""What a printer makes of a stream: its PostScript jobs, each in an interpreter of its own."""

import hashlib
import os
import pickle
import re
import subprocess
import zlib

EXIT = b"\x1b%-12345X"
LANGUAGE = re.compile(rb"@PJL ENTER LANGUAGE *= *POSTSCRIPT\r?\n")
RENDER_SECONDS = 900
# What the pages look like on yellow paper tells what they leave unpainted; the sizes are for the
# masks of watermarks.
YELLOW_PAPER = b"""%!
<< /BeginPage { pop gsave initgraphics 1 1 0 setrgbcolor clippath fill grestore } bind
   /EndPage { exch pop dup 2 ne { currentpagedevice /PageSize get
     (%stderr) (w) file dup (SIZE ) writestring dup 2 index 0 get 20 string cvs writestring
     dup ( ) writestring dup 3 -1 roll 1 get 20 string cvs writestring dup (\\n) writestring
     flushfile } if 2 ne } bind >> setpagedevice
"""


class Page:
    """A picture, kept compressed: long documents have hundreds."""

    def __init__(self, width, height, pixels):
        self.width, self.height, self._packed = width, height, zlib.compress(pixels, 1)

    @property
    def pixels(self):
        return zlib.decompress(self._packed)

    def turned(self, degrees):
        """Counterclockwise."""
        if degrees == 0:
            return self
        pixels, width, height = self.pixels, self.width, self.height
        out = bytearray(len(pixels))
        step = 3 * width
        if degrees == 180:
            for channel in range(3):
                out[channel::3] = pixels[channel::3][::-1]
            return Page(width, height, bytes(out))
        for x in range(width):
            column = bytearray(3 * height)
            for channel in range(3):
                run = pixels[3 * x + channel :: step]
                column[channel::3] = run if degrees == 90 else run[::-1]
            row = width - 1 - x if degrees == 90 else x
            out[3 * height * row : 3 * height * (row + 1)] = column
        return Page(height, width, bytes(out))


def postscript_jobs(stream):
    """The PostScript jobs of what a printer receives, which ends one at every universal exit."""
    for piece in stream.split(EXIT):
        if not piece.startswith(b"@PJL") and piece.strip(b"\r\n \t\x04"):
            yield piece
        elif entered := LANGUAGE.search(piece):
            if piece[entered.end() :].strip(b"\r\n \t\x04"):
                yield piece[entered.end() :]


class Renderer:
    """Draws at 72 dpi; what was drawn once is kept in a folder."""

    def __init__(self, cache):
        self.cache = cache
        cache.mkdir(parents=True, exist_ok=True)

    def stream(self, stream, smooth=False, dpi=72):
        """The pages of all jobs, and what went wrong."""
        pages, errors = [], []
        for job in postscript_jobs(stream):
            drawn, error, _ = self.job(job, dpi, smooth=smooth)
            pages += drawn
            errors += [error] if error else []
        return pages, errors

    def job(self, job, dpi=72, prolog=b"", smooth=False):
        """Pages, the interpreter's complaint, and the sizes in points that the prolog told."""
        key = hashlib.sha256(repr((dpi, len(prolog), smooth)).encode() + prolog + job).hexdigest()
        path = self.cache / f"{key}.pages"
        if path.exists():
            return pickle.loads(path.read_bytes())
        command = ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sstdout=%stderr", "-sOutputFile=-",
                   "-sDEVICE=ppmraw", f"-r{dpi}",
                   *(["-dTextAlphaBits=4", "-dGraphicsAlphaBits=4"] if smooth else []), "-"]  # fmt: skip
        done = subprocess.run(command, input=prolog + job, capture_output=True, timeout=RENDER_SECONDS)
        pages = list(pictures(done.stdout))
        told = done.stderr.decode("latin1")
        sizes = [tuple(map(float, row)) for row in re.findall(r"^SIZE (\S+) (\S+)$", told, re.M)]
        error = re.search(r"^.*(?:Error: /|Unrecoverable error).*$", told, re.M)
        result = pages, error[0] if error else f"gs: {done.returncode}" if done.returncode else "", sizes
        part = path.with_suffix(f".{os.getpid()}")
        part.write_bytes(pickle.dumps(result))
        part.rename(path)
        return result


def flipped(page):
    """Mirrored from left to right."""
    turned, step = page.turned(180).pixels, 3 * page.width
    rows = (turned[y * step : (y + 1) * step] for y in range(page.height - 1, -1, -1))
    return Page(page.width, page.height, b"".join(rows))


def pictures(data):
    start = 0
    while head := re.compile(rb"P6\n(?:#.*\n)?(\d+) (\d+)\n255\n").match(data, start):
        width, height = map(int, head.groups())
        start = head.end() + 3 * width * height
        yield Page(width, height, data[head.end() : start])


def write_png(page, path):
    import struct

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    pixels, step = page.pixels, 3 * page.width
    rows = b"".join(b"\0" + pixels[y * step : (y + 1) * step] for y in range(page.height))
    head = struct.pack(">IIBBBBB", page.width, page.height, 8, 2, 0, 0, 0)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head)
                     + chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))  # fmt: skip
