# SPDX-License-Identifier: Apache-2.0
"""Comparisons of pictures. Each gives the reason why a page is wrong, or nothing."""

import functools

RED = b"\xff\0\0"
CELL = 8  # pixels; what is compared where a page was scaled, turned or mirrored
NOT_ZERO = bytes([0] + [1] * 255)
BRIGHT, DARK = bytes(value >= 128 for value in range(256)), bytes(value < 128 for value in range(256))
INVERT = bytes(255 - value for value in range(256))


def number(data):
    return int.from_bytes(data, "little")


def plane_or(pixels, tables):
    """A byte for each pixel: whether a channel is not zero in its table."""
    planes = (number(pixels[channel::3].translate(table)) for channel, table in enumerate(tables))
    return functools.reduce(int.__or__, planes)


def plane_and(pixels, tables):
    planes = (number(pixels[channel::3].translate(table)) for channel, table in enumerate(tables))
    return functools.reduce(int.__and__, planes)


def red(page):
    return plane_and(page.pixels, (BRIGHT, DARK, DARK))


def yellow(page):
    return plane_and(page.pixels, (BRIGHT, BRIGHT, DARK))


def different(page, other):
    """The pixels that are not alike, as a number with a byte for each."""
    size = 3 * page.width * page.height
    unlike = (number(page.pixels) ^ number(other.pixels)).to_bytes(size, "little")
    return plane_or(unlike, (NOT_ZERO,) * 3)


def grown(mask, width, times=1):
    for _ in range(times):
        mask |= mask << 8 | mask >> 8
        mask |= mask << 8 * width | mask >> 8 * width
    return mask


def shrunk(mask, width, pixels):
    everything = number(b"\1" * pixels)
    return everything & ~grown(everything & ~mask, width)


def same(page, other):
    if (page.width, page.height) != (other.width, other.height):
        return f"{page.width}x{page.height} instead of {other.width}x{other.height}"
    if page.pixels != other.pixels:
        return f"{different(page, other).bit_count()} pixels differ"
    return ""


def marked(page, plain, mask, paper=None):
    """The mark is where the mask is (of `paper` only what the page left free), nothing else changed."""
    if (page.width, page.height) != (plain.width, plain.height):
        return f"{page.width}x{page.height} instead of {plain.width}x{plain.height}"
    around = grown(mask, page.width)
    changed = different(page, plain)
    if paper is not None:
        around &= paper | red(plain)
    if lost := changed & ~around:
        return f"{lost.bit_count()} pixels changed beside the mark"
    wanted = shrunk(mask, page.width, page.width * page.height)
    if paper is not None:
        wanted &= paper
    missing = (wanted & ~red(page)).bit_count()
    if missing > 0.05 * wanted.bit_count():
        return f"{missing} of {wanted.bit_count()} pixels of the mark are missing"
    return ""


def overlaid(page, plain, mask):
    """As marked(), of a mark that lets the page shine through: of thin lines, which fall on other
    pixels when they are turned."""
    around = grown(mask, page.width, 3)
    if (page.width, page.height) != (plain.width, plain.height):
        return f"{page.width}x{page.height} instead of {plain.width}x{plain.height}"
    if lost := different(page, plain) & ~around:
        return f"{lost.bit_count()} pixels changed beside the mark"
    there, wanted = (red(page) & around).bit_count(), mask.bit_count()
    if there < 0.6 * wanted:
        return f"{there} of {wanted} pixels of the mark"
    return ""


def inverted(page, plain):
    if (page.width, page.height) != (plain.width, plain.height):
        return f"{page.width}x{page.height} instead of {plain.width}x{plain.height}"
    # Rounding may be off by one: what counts differs in both of two coarse scales.
    wrong = -1
    for scale in (bytes(v >> 4 for v in range(256)), bytes(v + 8 >> 4 for v in range(256))):
        unlike = number(page.pixels.translate(scale)) ^ number(plain.pixels.translate(INVERT).translate(scale))
        wrong &= plane_or(unlike.to_bytes(len(page.pixels), "little"), (NOT_ZERO,) * 3)
    wrong = wrong.bit_count()
    if wrong > 0.002 * page.width * page.height:
        return f"{wrong} pixels are no negative"
    return ""


def cells(page, left=0, top=0, width=None, height=None, cell=CELL):
    """The means, 0 to 255, of an area's cells; in rows."""
    pixels, step = page.pixels, 3 * page.width
    width, height = width or page.width, height or page.height
    columns, rows = width // cell, height // cell
    means = []
    for row in range(rows):
        sums = [0] * columns
        for y in range(top + row * cell, top + (row + 1) * cell):
            line = pixels[y * step + 3 * left : y * step + 3 * (left + columns * cell)]
            for column in range(columns):
                sums[column] += sum(line[column * 3 * cell : (column + 1) * 3 * cell])
        means.append([value / (3 * cell * cell) for value in sums])
    return means


def alike(found, expected):
    """Whether two sets of cells show the same page, which may be shifted by a pixel."""
    rows, columns = min(len(found), len(expected)), min(len(found[0]), len(expected[0]))
    if abs(len(found) - len(expected)) > 1 or abs(len(found[0]) - len(expected[0])) > 1:
        return f"{len(found[0])}x{len(found)} instead of {len(expected[0])}x{len(expected)} cells"
    wrong, lost = [], []
    for y in range(rows):
        for x in range(columns):
            off = abs(found[y][x] - expected[y][x])
            if off <= 26:
                continue
            # A shift by a pixel moves what stands at a cell's border into its neighbour.
            near, ours = ([side[v][u] for v in range(max(0, y - 1), min(y + 2, len(side)))
                           for u in range(max(0, x - 1), min(x + 2, len(side[0])))]
                          for side in (expected, found))  # fmt: skip
            if off > 26 + 0.4 * (max(near) - min(near)):
                wrong.append((x * CELL, y * CELL))
            if off > 40 and (min(ours) > 254 or min(near) > 254):
                lost.append((x * CELL, y * CELL))
    if lost:
        return f"{len(lost)} cells are empty or should be, the first at {lost[0]}"
    if len(wrong) > 0.015 * rows * columns:
        return f"{len(wrong)} of {rows * columns} cells differ, the first at {wrong[0]}"
    return ""
