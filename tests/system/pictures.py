# SPDX-License-Identifier: Apache-2.0
"""Pictures for tests: made, drawn and measured without a library."""

import hashlib
import os
import pathlib
import re
import shutil
import struct
import subprocess
import threading
import zlib

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
DRAWN = pathlib.Path(os.environ["ZARVO_SOURCE"], "build/drawn")
EXIT = b"\x1b%-12345X"
COLORS = ("black", "red", "green", "yellow", "blue", "magenta", "cyan", "white")
# One bit when a channel is bright, another when it is as bright as the light gray of watermarks.
LEVELS = bytes((value >= 128) + 8 * (160 <= value < 224) for value in range(256))
MASKS = {name: bytes(code % 8 == number for code in range(256)) for number, name in enumerate(COLORS)}
MASKS["gray"] = bytes(code == 63 for code in range(256))


def png(width, height, row, claimed=None):
    """A picture whose rows repeat these RGB bytes; `claimed` is the size that its header tells."""

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", *(claimed or (width, height)), 8, 2, 0, 0, 0)
    row = (bytes(row) * (3 * width // len(row) + 1))[: 3 * width]
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head)
            + chunk(b"IDAT", zlib.compress((b"\0" + row) * height)) + chunk(b"IEND", b""))


def gif(width, height, palette_row):
    """A picture whose rows repeat these entries of the palette black, red, green, blue."""
    # Codes of three bits; a clear code before every second keeps them so.
    codes = [code for pixel in (palette_row * width * height)[: width * height] for code in (4, pixel)]
    bits = "".join(f"{code:03b}"[::-1] for code in [*codes, 5])
    data = bytes(int(bits[at : at + 8][::-1], 2) for at in range(0, len(bits), 8))
    blocks = [data[at : at + 255] for at in range(0, len(data), 255)]
    return (b"GIF89a" + struct.pack("<HHBBB", width, height, 0x91, 0, 0) + bytes(3) + b"\xff"
            + bytes(3) + b"\xff" + bytes(3) + b"\xff" + b"," + struct.pack("<HHHHB", 0, 0, width, height, 0)
            + b"\2" + b"".join(bytes([len(block)]) + block for block in blocks) + b"\0;")


class Picture:
    """One page. Areas are left, top, right and bottom, in fractions of its sides."""

    def __init__(self, width, height, pixels):
        self.width, self.height, self.pixels = width, height, pixels
        planes = (pixels[channel::3].translate(LEVELS) for channel in range(3))
        code = sum(int.from_bytes(plane, "little") << bit for bit, plane in enumerate(planes))
        self._codes = code.to_bytes(width * height, "little")

    def mask(self, color):
        """A byte for each pixel, 1 where it has that colour."""
        return self._codes.translate(MASKS[color])

    def count(self, color, left=0.0, top=0.0, right=1.0, bottom=1.0):
        mask, width = self.mask(color), self.width
        first, last = int(left * width), int(right * width)
        return sum(mask[y * width + first : y * width + last].count(1)
                   for y in range(int(top * self.height), int(bottom * self.height)))

    def box(self, color):
        """Left, top, right and bottom of all pixels of that colour."""
        mask, width = self.mask(color), self.width
        rows = [mask[start : start + width] for start in range(0, len(mask), width)]
        found = [(y, row.find(1), row.rfind(1)) for y, row in enumerate(rows) if 1 in row]
        lines, lefts, rights = zip(*found)
        return min(lefts), lines[0], max(rights) + 1, lines[-1] + 1

    def likeness(self, expected, color):
        """How much of what is expected in that colour is there, and how much elsewhere."""
        ours, theirs = (int.from_bytes(page.mask(color), "little") for page in (self, expected))
        return [part.bit_count() / theirs.bit_count() for part in (ours & theirs, ours & ~theirs)]


def pictures(data):
    """Those of a stream of portable pixmaps."""
    start, found = 0, []
    while head := re.compile(rb"P6\n(?:#.*\n)?(\d+) (\d+)\n255\n").match(data, start):
        width, height = map(int, head.groups())
        start = head.end() + 3 * width * height
        found.append(Picture(width, height, data[head.end() : start]))
    return found


def read_png(path):
    with open(path, "rb") as file:
        return pictures(run([BIN / "zarvodraw", "image", "ppm", path], stdin=file))[0]


def draw(job, *options, dpi=72):
    """The pages of a job, or of a plain document, as the printer would draw them."""
    return pictures(ghostscript("ppmraw", postscript_of(job), f"-r{dpi}", *options))


def postscript_of(job):
    end = job.rfind(EXIT + b"@PJL EOJ")
    return job[job.index(b"%!PS-Adobe") : end] if end >= 0 else job


def printed_sides(job):
    """What a printer that can do all of it makes of each side: collated, on both sides, how many copies."""
    data = ghostscript("cups", postscript_of(job), "-r5")
    sides, start = [], 4
    while start < len(data):
        number = {name: struct.unpack_from("=I", data, start + offset)[0]
                  for name, offset in (("Collate", 264), ("Duplex", 272), ("NumCopies", 340),
                                       ("height", 376), ("bytes of a line", 392))}  # fmt: skip
        sides.append((bool(number["Collate"]), bool(number["Duplex"]), number["NumCopies"]))
        start += 1796 + number["height"] * number["bytes of a line"]
    return sides


def ghostscript(device, document, *options):
    """What it draws is kept: what a build writes as another one did need not be drawn again."""
    key = repr((device, options, os.stat(shutil.which("gs")).st_mtime)).encode() + document
    kept = DRAWN / hashlib.sha256(key).hexdigest()
    if kept.exists():
        return zlib.decompress(kept.read_bytes())
    drawn = run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sstdout=%stderr", "-sOutputFile=-",
                 f"-sDEVICE={device}", *options, "-"], document)  # fmt: skip
    DRAWN.mkdir(parents=True, exist_ok=True)
    part = kept.with_suffix(f".{os.getpid()}.{threading.get_ident()}")
    part.write_bytes(zlib.compress(drawn, 1))
    part.rename(kept)
    return drawn


def run(command, data=None, stdin=None, **environment):
    done = subprocess.run(list(map(str, command)), capture_output=True, timeout=120,
                          **({"stdin": stdin} if stdin else {"input": data}),
                          env=os.environ | environment)  # fmt: skip
    if done.returncode != 0:
        raise RuntimeError(f"{command}: {done.stderr[-2000:]} {done.stdout[-2000:]}")
    return done.stdout
