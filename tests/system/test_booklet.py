# SPDX-License-Identifier: Apache-2.0
"""Imposes booklets, renders them with Ghostscript and measures where everything landed.

With --update, writes expected/booklet.txt; read the difference. A line of it is the size of a sheet side,
or one colour's box on half of a side (left, top, right, bottom, in points): a page's ground, which fills
far more than its area unless it is clipped, one of its marks, an outline or a watermark.
"""

import functools
import itertools
import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

from zarvo import run_filter

TESTS = pathlib.Path(os.environ["ZARVO_SOURCE"], "tests")
EXPECTED = TESTS / "system/expected/booklet.txt"
LETTER, A4, A5 = (612, 792), (595, 842), (420, 595)
MIXED = [LETTER, A4, (792, 612), A5, (300, 900)]
OUTLINES, TURNED = "BookletDrawOutlines..n=1", "RotateBooklet180Degrees..b=true"
RIGHT_TO_LEFT = "AdvancedBookletLayoutOrderStr..n=1"
CASES = [(f"{count} pages", [LETTER] * count, "") for count in (1, 2, 3, 5, 8)] + [
    ("other page size", [A5] * 4, ""),
    ("landscape", [(792, 612)] * 5, OUTLINES),
    ("mixed sizes", MIXED, OUTLINES),
    ("no gutter", [LETTER] * 4, f"Gutter..n=0 {OUTLINES}"),
    ("gutter", [LETTER] * 5, "Gutter..n=60"),
    ("creep", [LETTER] * 17, "Creep..n=35"),
    ("creep and gutter", MIXED * 3, f"Gutter..n=40 Creep..n=90 {OUTLINES}"),
    ("turned", MIXED, f"{TURNED} {OUTLINES}"),
    ("right to left", MIXED, f"{RIGHT_TO_LEFT} {OUTLINES}"),
    ("turned, right to left, creep", [LETTER] * 9, f"{TURNED} {RIGHT_TO_LEFT} Creep..n=55"),
    ("sheet from the option", MIXED, "PageSize=A4"),
    ("new size forced", MIXED, f"BookletForceNewSize..b=true JobLevelStock..d_Size..n=4 {OUTLINES}"),
    ("negative", [LETTER] * 5, f"InvertImageOptions..d_NegativeImage..n=1 {OUTLINES}"),
    ("text in the background", MIXED, "WMS.ZRVWM..n=2 WMS.ZRVWMFg..n=0"),
    ("text over the page", MIXED, "WMS.ZRVWM..n=2"),
    ("text in the foreground", MIXED, "WMS.ZRVWM..n=2 WMS.ZRVWMFg..n=1"),
    ("image in the background", MIXED, "WMS.ZRVWM..n=3 WMS.ZRVWMFg..n=0"),
    ("image in the foreground", MIXED, "WMS.ZRVWM..n=3 WMS.ZRVWMFg..n=1"),
]
PROLOG = """%!PS-Adobe-3.0\n%%EndComments\n%%BeginProlog
/md 60 dict def md begin /bd { bind def } bind def /F false def /pgsave 0 def end
/bp { md begin /pgsave save store } bind def /ep { pgsave restore end showpage } bind def
/mark { 8 sub exch 8 sub exch 16 16 rectfill } bind def /ground { -900 -900 3000 3000 rectfill } bind def
%%EndProlog\n%%BeginSetup\n%%EndSetup"""
FONTS_AND_IMAGES = """/Times-Roman findfont 30 scalefont setfont 0.3 setgray
100 200 moveto (Fonts \\260\\320) show
gsave 100 250 translate 100 60 scale 40 20 8 [40 0 0 -20 0 20]
{ 40 string 0 1 39 { 1 index exch dup 4 mul 60 add put } for } image grestore"""


def colour(page, mark):
    """Colours that every program writes without rounding; mark 3 is the ground."""
    return bytes((51 * (page // 6), 51 * (page % 6), 51 * (2 + mark)))


NAMES = {colour(page, mark): f"page{page}.{mark}" for page in range(1, 18) for mark in range(4)}
NAMES |= {b"\0\0\0": "outline", b"\xff\x7f\x40": "text", b"\xff\0\0": "red", b"\0\0\xff": "blue"}


def job(sizes, watermarked=False, more=""):
    """Three marks on each page tell its direction. Without its ground a watermark behind it can be seen."""
    lines = [PROLOG]
    for page, (width, height) in enumerate(sizes, 1):
        lines += [f"%%Page: {page} {page}", "%%BeginPageSetup", "bp",
                  f"<< /PageSize [{width} {height}] >> setpagedevice", "%%EndPageSetup"]
        marks = ["40 50 mark", f"{width - 60} 70 mark", f"45 {height - 90} mark", "ground"]
        for mark in (0, 1, 2) if watermarked else (3, 0, 1, 2):
            lines += ["%.1f %.1f %.1f setrgbcolor" % tuple(c / 255 for c in colour(page, mark)), marks[mark]]
        # What is imposed may also end inside its own save, which brings the old clip and matrix back.
        ends_inside = watermarked or page % 2 == 0 and not more
        lines += [more, "ep" if ends_inside else "showpage pgsave restore end"]
    return "\n".join(lines + ["%%Trailer", "%%EOF", ""]).encode()


def run(*command, stdin=b""):
    environment = {**os.environ, "PPD": str(TESTS / "golden/ppd/test.ppd"),
                   "ZARVO_APPLICATION_SUPPORT": str(TESTS / "golden/support/watermarks")}
    return subprocess.run(command, input=stdin, stdout=subprocess.PIPE, check=True, env=environment,
                          cwd=TESTS / "golden").stdout


def ghostscript(device, document, *arguments):
    return run("gs", "-q", "-dSAFER", f"-sDEVICE={device}", "-sstdout=%stderr", "-o-", *arguments, "-",
               stdin=document)


def impose(document, options=""):
    given = f" EmitJTML..n=0 BookletLayout..b=true {options}".replace(" WMS", " com.zarvo.WMS")
    given = re.sub(r" (?=\w+\.\.)", " com.zarvo.print.", given)
    done = run_filter(given, document, cwd=TESTS / "golden",
                      ZARVO_APPLICATION_SUPPORT=str(TESTS / "golden/support/watermarks"))  # fmt: skip
    return done.stdout


@functools.lru_cache(1000)
def spans(row):
    """Where every known colour begins and ends in a row of pixels."""
    pixels = [row[i : i + 3] for i in range(0, len(row), 3)]
    return {NAMES[c]: (pixels.index(c), len(pixels) - pixels[::-1].index(c))
            for c in NAMES.keys() & set(pixels)}


def measure(document, negative=False):
    inks = bytes(range(255, -1, -1)) if negative else None
    data, lines = ghostscript("ppmraw", document, "-r72"), []
    for side in itertools.count(1):
        header = re.match(rb"P6\n(?:#.*\n)?(\d+) (\d+)\n255\n", data)
        if header is None:
            return lines
        width, height = int(header[1]), int(header[2])
        pixels, data = data[header.end() :], data[header.end() + 3 * width * height :]
        boxes = {("size", ""): (width, height)}
        for y in range(height):
            row = pixels[3 * width * y : 3 * width * (y + 1)].translate(inks)
            for name, (left, right) in spans(row).items():
                place = name, "lower" if 2 * y >= height else "upper"
                box = boxes.get(place, (left, y, right, y))
                boxes[place] = min(left, box[0]), box[1], max(right, box[2]), y + 1
        lines += [" ".join([f"side{side}", *place, *map(str, box)]) for place, box in sorted(boxes.items())]


def measured():
    """The names of all cases, with what is measured."""
    for name, sizes, options in CASES:
        document = impose(job(sizes, watermarked="WMS" in options), options)
        yield name, measure(document, negative=name == "negative")
    with tempfile.NamedTemporaryFile() as pdf:
        pdf.write(ghostscript("pdfwrite", job(MIXED, more=FONTS_AND_IMAGES), "-dAutoRotatePages=/None"))
        pdf.flush()
        ps2write = run("gs", "-q", "-sDEVICE=ps2write", "-o-", pdf.name)
        pstops = "/usr/lib/cups/filter/pstops", "1", "user", "title", "1", "sides=two-sided-long-edge"
        for name, document in (("ps2write", ps2write), ("spooler", run(*pstops, stdin=ps2write)),
                               ("pdftops", run("pdftops", "-paper", "match", pdf.name, "-")),
                               ("cairo", run("pdftocairo", "-ps", pdf.name, "-"))):
            yield name, measure(impose(document, OUTLINES))


def agree(expected, line):
    """A text's box may differ by a pixel: versions of Ghostscript draw the edges of glyphs in their own way."""
    ours, theirs = line.split(), expected.split()
    return line == expected or ours[:3] == theirs[:3] and ours[1] == "text" and all(
        abs(int(a) - int(b)) <= 1 for a, b in zip(ours[3:], theirs[3:], strict=True))


class Imposition(unittest.TestCase):
    def test_places(self):
        expected = dict(part.split("\n", 1) for part in EXPECTED.read_text().split("== ")[1:])
        for name, lines in measured():
            with self.subTest(name):
                wanted = expected[name].splitlines()
                self.assertEqual(wanted, [a if agree(a, b) else b for a, b in zip(wanted, lines)] +
                                 lines[len(wanted):])

    def test_page_device(self):
        """Duplex, tumble, collation and sheet size as a device with such features sees them."""
        raster = ghostscript("cups", impose(job([LETTER] * 3), "PageSize=A4 sides=two-sided-long-edge"))[4:]
        for name, offset, value in (("Collate", 264, 1), ("Duplex", 272, 1), ("NumCopies", 340, 1),
                                    ("width", 352, 595), ("height", 356, 842), ("Tumble", 368, 1)):
            self.assertEqual(value, struct.unpack_from("=I", raster, offset)[0], name)


if __name__ == "__main__":
    if "--update" in sys.argv:
        EXPECTED.write_text("".join("\n".join([f"== {name}", *lines, ""]) for name, lines in measured()))
    else:
        unittest.main()
