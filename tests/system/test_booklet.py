# SPDX-License-Identifier: Apache-2.0
"""Imposes booklets, renders them with Ghostscript and measures where every page landed."""

import itertools
import os
import pathlib
import plistlib
import struct
import subprocess
import tempfile
import unittest

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PICTURES = pathlib.Path(os.environ["ZARVO_TEST_OUTPUT"], "booklet")
TOLERANCE = 1.5  # pixels at 72 dpi, so points as well
MARGIN = 12
LETTER, A4, A5 = (612, 792), (595, 842), (420, 595)
BLACK = b"\0\0\0"


def impose(job, *options, folder=None):
    """The job as the filter imposes it, with the given options besides the booklet's."""
    given = ["com.zarvo.print.EmitJTML..n=0", "com.zarvo.print.BookletLayout..b=true", *options]
    environment = {**os.environ, "PPD": str(SOURCE / "tests/golden/ppd/test.ppd")}
    if folder:
        environment["ZARVO_APPLICATION_SUPPORT"] = str(folder)
    result = subprocess.run(
        [BIN / "zarvofilter", "1", "user", "title", "1", " ".join(given)],
        input=job, capture_output=True, env=environment, check=True)
    return result.stdout


def ghostscript(device, job, output, *arguments):
    result = subprocess.run(
        ["gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", f"-sDEVICE={device}", *arguments,
         f"-sOutputFile={output}", "-"], input=job, capture_output=True)
    if result.returncode != 0:
        raise AssertionError(f"gs: {result.stdout.decode()}{result.stderr.decode()}")


class Sheet:
    """One rendered sheet side. Points have their origin at the lower left, as in PostScript."""

    def __init__(self, file, dpi):
        header, self.pixels = file.read_bytes().split(b"\n255\n", 1)
        self.columns, self.rows = map(int, header.split(b"\n")[-1].split())
        self.unit = 72 / dpi
        self.size = self.columns * self.unit, self.rows * self.unit

    def box(self, colour, half=None):
        """Left, bottom, right and top of a colour's pixels; None when there are none."""
        columns, rows = [], []
        middle = self.rows // 2
        area = {None: range(self.rows), 0: range(middle), 1: range(middle, self.rows)}[half]
        for row in area if colour in self.pixels else ():
            line = self.pixels[3 * self.columns * row : 3 * self.columns * (row + 1)]
            first, last = line.find(colour), line.rfind(colour)
            while first >= 0 and first % 3:  # parts of two pixels that look like one
                first = line.find(colour, first + 1)
            while last >= 0 and last % 3:
                last = line.rfind(colour, 0, last + 2)
            if first >= 0:
                columns += [first // 3, last // 3]
                rows += [row]
        if not rows:
            return None
        return (min(columns) * self.unit, (self.rows - max(rows) - 1) * self.unit,
                (max(columns) + 1) * self.unit, (self.rows - min(rows)) * self.unit)

    def has_near(self, colour, point):
        reach = [offset * 0.5 for offset in range(-3, 4)]
        for x, y in itertools.product(reach, reach):
            column = int((point[0] + x) / self.unit)
            row = int(self.rows - (point[1] + y) / self.unit)
            start = 3 * (row * self.columns + column)
            if self.pixels[start : start + 3] == colour:
                return True
        return False


def render(job, dpi=72):
    with tempfile.TemporaryDirectory() as folder:
        ghostscript("ppmraw", job, f"{folder}/%03d.ppm", f"-r{dpi}")
        return [Sheet(file, dpi) for file in sorted(pathlib.Path(folder).iterdir())]


class Layout:
    """Where the pages of a booklet belong."""

    def __init__(self, sheet=LETTER, gutter=2 * MARGIN, creep=0, turned=False, right_to_left=False):
        self.width, self.height = sheet
        self.gutter, self.creep = gutter, creep
        self.sheet_turned = turned != right_to_left
        self.pages_turned = right_to_left

    def options(self):
        yield f"com.zarvo.print.Gutter..n={self.gutter}"
        yield f"com.zarvo.print.Creep..n={self.creep}"
        if self.sheet_turned != self.pages_turned:
            yield "com.zarvo.print.RotateBooklet180Degrees..b=true"
        order = 1 if self.pages_turned else 2
        yield f"com.zarvo.print.AdvancedBookletLayoutOrderStr..n={order}"

    @staticmethod
    def sides(pages):
        """The two pages of every sheet side, outermost sheet first; the fold is in the middle."""
        sheets = (pages + 3) // 4
        for sheet in range(sheets):
            yield 4 * sheets - 2 * sheet, 2 * sheet + 1
            yield 2 * sheet + 2, 4 * sheets - 2 * sheet - 1

    def place(self, pages, side, half, size):
        """Maps points of a page of that size to points of the sheet. `side` counts from 0."""
        sheets = (pages + 3) // 4
        most = (sheets - 1) * self.creep // 10
        shift = (most - (sheets - 1 - side // 2) * self.creep // 10) // 2
        gutter = self.gutter + most
        long, short = self.height / 2 - MARGIN - gutter / 2, self.width - 2 * MARGIN
        scale = min(long / size[0], short / size[1])
        sign = -1 if self.pages_turned else 1
        start = MARGIN + (shift if half == 0 else long + gutter - shift)

        def to_sheet(x, y):
            along = start + long / 2 + sign * scale * (x - size[0] / 2)
            across = MARGIN + short / 2 + sign * scale * (y - size[1] / 2)
            point = across, self.height - along
            return (self.width - point[0], self.height - point[1]) if self.sheet_turned else point

        return to_sheet


def anchors(size):
    """Three places that tell a page's position, scale and direction."""
    return (40, 50), (size[0] - 60, 70), (45, size[1] - 90)


def mark_colour(page, mark):
    return bytes((10 + 8 * page, 40 + 60 * mark, 200))


def ground_colour(page):
    return bytes((200 + page, 255, 230))


def rgb(colour):
    return "%.5f %.5f %.5f setrgbcolor" % tuple(c / 255 for c in colour)


def marked_job(sizes):
    """A job whose pages fill far more than their area and carry three marks each."""
    lines = ["%!PS-Adobe-3.0", "%%EndComments", "%%BeginProlog",
             "/mark { 8 sub exch 8 sub exch 16 16 rectfill } bind def", "%%EndProlog",
             "%%BeginSetup", "%%EndSetup"]
    for page, size in enumerate(sizes, 1):
        lines += [f"%%Page: {page} {page}", "%%BeginPageSetup", "/pagesave save def",
                  "<< /PageSize [%d %d] >> setpagedevice" % size, "%%EndPageSetup",
                  rgb(ground_colour(page)), "-900 -900 3000 3000 rectfill"]
        for mark, place in enumerate(anchors(size)):
            lines += [rgb(mark_colour(page, mark)), "%d %d mark" % place]
        # Every other page ends inside its own save, which brings the old clip and matrix back.
        lines += ["showpage pagesave restore" if page % 2 else "pagesave restore showpage"]
    return "\n".join(lines + ["%%Trailer", "%%EOF", ""]).encode()


class Measured(unittest.TestCase):
    def assertNear(self, expected, actual, what):
        self.assertTrue(
            actual and all(abs(e - a) <= TOLERANCE for e, a in zip(expected, actual)),
            f"{what}: expected {expected}, found {actual}")

    def assert_box(self, sheet, colour, corners, what):
        xs, ys = zip(*corners)
        self.assertNear((min(xs), min(ys), max(xs), max(ys)), sheet.box(colour), what)

    def check_outline(self, sheet, to_sheet, size, drawn, what):
        width, height = size
        for middle in (width / 2, 0), (width, height / 2), (width / 2, height), (0, height / 2):
            self.assertEqual(drawn, sheet.has_near(BLACK, to_sheet(*middle)), f"{what}: outline")


class Imposition(Measured):
    def check(self, layout, sizes, *options, outlines=False):
        if outlines:
            options += ("com.zarvo.print.BookletDrawOutlines..n=1",)
        sheets = render(impose(marked_job(sizes), *layout.options(), *options))
        pages = len(sizes)
        sides = list(layout.sides(pages))
        self.assertEqual(len(sides), len(sheets))
        for (side, sheet), half in itertools.product(enumerate(sheets), (0, 1)):
            self.assertEqual((layout.width, layout.height), sheet.size)
            page = sides[side][half]
            blank = page > pages
            size = (612, 792) if blank else sizes[page - 1]
            to_sheet = layout.place(pages, side, half, size)
            what = f"page {page} on side {side + 1}"
            self.check_outline(sheet, to_sheet, size, outlines and not blank, what)
            if blank:
                continue
            # Nothing of a page may be on any other side.
            for colour in [ground_colour(page)] + [mark_colour(page, mark) for mark in range(3)]:
                shown = [number for number, other in enumerate(sheets) if other.box(colour)]
                self.assertEqual([side], shown, f"{what}: sides that show it")
            self.assert_box(sheet, ground_colour(page), [to_sheet(0, 0), to_sheet(*size)],
                            f"{what}: area")
            for mark, (x, y) in enumerate(anchors(size)):
                corners = to_sheet(x - 8, y - 8), to_sheet(x + 8, y + 8)
                self.assert_box(sheet, mark_colour(page, mark), corners, f"{what}: mark {mark}")

    def test_page_counts(self):
        for pages in 1, 2, 3, 4, 5, 8, 9, 17:
            with self.subTest(pages=pages):
                self.check(Layout(), [LETTER] * pages)

    def test_variants(self):
        mixed = [LETTER, A4, (792, 612), A5, (300, 900)]
        for name, layout, sizes, options, outlines in (
            ("other page size", Layout(), [A5] * 4, (), False),
            ("landscape", Layout(), [(792, 612)] * 5, (), True),
            ("mixed sizes", Layout(), mixed, (), True),
            ("no gutter", Layout(gutter=0), [LETTER] * 4, (), True),
            ("gutter", Layout(gutter=60), [LETTER] * 5, (), False),
            ("creep", Layout(creep=35), [LETTER] * 17, (), False),
            ("creep and gutter", Layout(gutter=40, creep=90), mixed * 3, (), True),
            ("turned", Layout(turned=True), mixed, (), True),
            ("right to left", Layout(right_to_left=True), mixed, (), True),
            ("turned, right to left, creep",
             Layout(turned=True, right_to_left=True, creep=55), [LETTER] * 9, (), False),
            ("sheet from the option", Layout(sheet=A4), mixed, ("PageSize=A4",), False),
            ("new size forced", Layout(sheet=A4), mixed,
             ("com.zarvo.print.BookletForceNewSize..b=true",
              "com.zarvo.print.JobLevelStock..d_Size..n=4"), True),
        ):
            with self.subTest(name):
                self.check(layout, sizes, *options, outlines=outlines)

    def test_negative(self):
        """Every page is inverted, not every other one."""
        sheets = render(impose(marked_job([LETTER] * 5),
                               "com.zarvo.print.InvertImageOptions..d_NegativeImage..n=1"))
        for side, pages in enumerate(Layout.sides(5)):
            for page in pages:
                inverted = bytes(255 - component for component in ground_colour(page))
                self.assertEqual(page <= 5, bool(sheets[side].box(inverted)), f"page {page}")

    def test_page_device(self):
        """Duplex, tumble, collation and sheet size as a device with such features sees them."""
        job = impose(marked_job([LETTER] * 3), "PageSize=A4", "sides=two-sided-long-edge")
        with tempfile.TemporaryDirectory() as folder:
            raster = pathlib.Path(folder, "raster")
            ghostscript("cups", job, raster)
            header = raster.read_bytes()[4:]
        for name, offset, expected in (
            ("Collate", 264, 1), ("Duplex", 272, 1), ("NumCopies", 340, 1),
            ("PageSize width", 352, 595), ("PageSize height", 356, 842), ("Tumble", 368, 1),
        ):
            self.assertEqual(expected, struct.unpack_from("=I", header, offset)[0], name)


class Watermark:
    """A stored watermark, and where the pages of a job show it."""

    BACKGROUND, OVERLAY, FOREGROUND = 1, 2, 3
    COLOUR = bytes((255, 0, 102))

    def __init__(self, folder, kind, option):
        self.folder, self.kind, self.option = pathlib.Path(folder), kind, option
        image = self.folder / "mark.bmp"
        header = struct.pack("<2sIIIIiiHHIIiiII", b"BM", 18054, 0, 54, 40, 100, 60, 1, 24, 0, 18000,
                             0, 0, 0, 0)
        image.write_bytes(header + self.COLOUR[::-1] * 6000)
        mark = {
            "textString": "HHHH" if kind == "text" else "", "filename": "mark",
            "filePath": str(image), "fontName": "Courier", "xOffset": 0.0, "yOffset": 0.0,
            "xPos": 100.0, "yPos": 400.0, "angle": 0, "scale": 100, "units": 0, "fontSize": 40,
            "fontColorRed": 1.0, "fontColorGreen": 0.0, "fontColorBlue": 0.4,
        }
        (self.folder / "Zarvo").mkdir()
        with open(self.folder / "Zarvo/com.zarvo.printing.watermarks.plist", "wb") as file:
            plistlib.dump({"WatermarkListEntries": ["None", "it"], "it": mark}, file)

    def options(self):
        yield "com.zarvo.print.watermark.Watermark=it"
        yield f"com.zarvo.print.watermark.Option..n={self.option}"

    def dpi(self):
        """The dots of an overlay text fall between the pixels of a coarse picture."""
        return 216 if (self.kind, self.option) == ("text", self.OVERLAY) else 72

    def corners(self):
        """Its lower left and upper right corner on a page."""
        if self.kind == "image":  # centred on the printable area
            return (576 / 2 - 50, 720 / 2 - 30), (576 / 2 + 50, 720 / 2 + 30)
        # Four characters, each 0.6 font sizes wide, their strokes a little inside.
        left, base = (306 - 40, 396 - 20) if self.option == self.OVERLAY else (100, 400)
        return (left + 1, base), (left + 95, base + 23)

    @staticmethod
    def all():
        for kind, option in itertools.product(("text", "image"), (1, 2, 3)):
            yield kind, option, ["", "background", "overlay", "foreground"][option]


PAGE_DICTIONARY = b"""/md 60 dict def
md begin
/bd { bind def } bind def
/F false def
/pgsave 0 def
end
/bp { md begin /pgsave save store } bind def
/ep { pgsave restore end showpage } bind def
"""


class Watermarked(Measured):
    def check_watermark(self, sheet, half, to_sheet, watermark, what):
        xs, ys = zip(*(to_sheet(*corner) for corner in watermark.corners()))
        expected = min(xs), min(ys), max(xs), max(ys)
        found = sheet.box(watermark.COLOUR, half)
        self.assertTrue(found and all(abs(e - a) <= 4 for e, a in zip(expected, found)),
                        f"{what}: watermark: expected {expected}, found {found}")

    def test_every_place(self):
        sizes = [LETTER, A4, A5, A5, (792, 612)]
        job = marked_job(sizes).replace(b"%%EndProlog", PAGE_DICTIONARY + b"%%EndProlog")
        job = job.replace(b"/pagesave save def", b"bp")
        for end in b"showpage pagesave restore", b"pagesave restore showpage":
            job = job.replace(end, b"ep")
        layout = Layout()
        for kind, option, place in Watermark.all():
            with self.subTest(kind=kind, place=place), tempfile.TemporaryDirectory() as folder:
                watermark = Watermark(folder, kind, option)
                # A background watermark is covered by pages that fill their whole area.
                visible = job.replace(b"-900 -900 3000 3000 rectfill", b"")
                sheets = render(impose(visible, *watermark.options(), folder=folder),
                                watermark.dpi())
                for (side, pages), half in itertools.product(enumerate(layout.sides(5)), (0, 1)):
                    page = pages[half]
                    if page > 5:
                        continue
                    to_sheet = layout.place(5, side, half, sizes[page - 1])
                    self.check_watermark(sheets[side], half, to_sheet, watermark, f"page {page}")
                    for mark, (x, y) in enumerate(anchors(sizes[page - 1])):
                        corners = to_sheet(x - 8, y - 8), to_sheet(x + 8, y + 8)
                        self.assert_box(sheets[side], mark_colour(page, mark), corners,
                                        f"page {page}: mark {mark}")


class RealJobs(Watermarked):
    """Jobs as users' programs write them, from a PDF with fonts, images and mixed page sizes."""

    SIZES = [LETTER, A4, (842, 595), A5, LETTER]
    COLOURS = [bytes(c) for c in itertools.product((0, 255), repeat=3)][1:6]
    test_every_place = None

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.pdf = pathlib.Path(folder.name, "source.pdf")
        ghostscript("pdfwrite", cls.source().encode(), cls.pdf, "-dAutoRotatePages=/None")

    @classmethod
    def source(cls):
        lines = ["%!PS"]
        for page, (size, colour) in enumerate(zip(cls.SIZES, cls.COLOURS), 1):
            lines += [
                "<< /PageSize [%d %d] >> setpagedevice" % size,
                "/Times-Roman findfont 30 scalefont setfont 0.4 setgray",
                f"100 200 moveto (Page {page}: \\260\\320 fonts and images) show",
                "gsave 100 250 translate 100 60 scale 40 20 8 [40 0 0 -20 0 20]",
                "{ 40 string 0 1 39 { 1 index exch dup 4 mul 60 add put } for } image grestore",
                rgb(colour)]
            lines += ["%d %d 16 16 rectfill" % (x - 8, y - 8) for x, y in anchors(size)]
            lines += ["showpage"]
        return "\n".join(lines)

    def check(self, job, name, *options, turn_landscape=False, watermark=None):
        if watermark:
            options += tuple(watermark.options())
        imposed = impose(job, "com.zarvo.print.BookletDrawOutlines..n=1", *options,
                         folder=watermark and watermark.folder)
        PICTURES.mkdir(parents=True, exist_ok=True)
        ghostscript("png16m", imposed, PICTURES / f"{name}.png", "-r72", "-dFirstPage=4",
                    "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4")
        sheets = render(imposed, watermark.dpi() if watermark else 72)
        layout = Layout()
        for side, pages in enumerate(layout.sides(len(self.SIZES))):
            for half, page in enumerate(pages):
                if page <= len(self.SIZES):
                    with self.subTest(name=name, page=page):
                        self.check_page(sheets[side], layout, page, side, half, turn_landscape,
                                        watermark)
        self.assertEqual(side + 1, len(sheets))

    def check_page(self, sheet, layout, page, side, half, turn_landscape, watermark):
        size, colour = self.SIZES[page - 1], self.COLOURS[page - 1]
        marks = anchors(size)
        if turn_landscape and size[0] > size[1]:
            marks = [(size[1] - y, x) for x, y in marks]
            size = size[::-1]
        to_sheet = layout.place(len(self.SIZES), side, half, size)
        self.check_outline(sheet, to_sheet, size, True, "page")
        corners = [to_sheet(x + dx, y + dy) for x, y in marks for dx in (-8, 8) for dy in (-8, 8)]
        self.assert_box(sheet, colour, corners, "marks")
        for mark in marks:
            self.assertTrue(sheet.has_near(colour, to_sheet(*mark)), f"mark at {mark}")
        if watermark and watermark.option == watermark.BACKGROUND:
            # These pages tell their size only later, so its place is that of the page before.
            self.assertTrue(sheet.box(watermark.COLOUR, half), "watermark")
        elif watermark:
            self.check_watermark(sheet, half, to_sheet, watermark, "page")

    def produce(self, *command):
        return subprocess.run(command, check=True, capture_output=True).stdout

    def check_watermarked(self, job, name, **arguments):
        """With the page dictionary and page ends that watermarks need."""
        job = job.replace(b"%%BeginProlog\n", b"%%BeginProlog\n" + PAGE_DICTIONARY, 1)
        job = job.replace(b"/ep { pgsave restore end showpage }", b"/ep { showpage }")
        job = job.replace(b"\nshowpage\n", b"\nep\n")
        has_page_end = b"\nep\n" in job
        for kind, option, place in Watermark.all():
            # Text in the foreground goes back to a save that these pages do not have.
            if kind == "text" and option == Watermark.FOREGROUND:
                continue
            # Images are defined where the document's setup ends, and most are drawn at page ends.
            at_page_end = option != Watermark.BACKGROUND
            if kind == "image" and (b"%%EndSetup" not in job or at_page_end and not has_page_end):
                continue
            with tempfile.TemporaryDirectory() as folder:
                self.check(job, f"{name}-{kind}-{place}", **arguments,
                           watermark=Watermark(folder, kind, option))

    def test_ps2write(self):
        job = self.produce("gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ps2write", "-o-", self.pdf)
        self.check(job, "ps2write")
        self.check_watermarked(job, "ps2write")

    def test_pdftops(self):
        job = self.produce("pdftops", "-paper", "match", self.pdf, "-")
        self.check(job, "pdftops")
        self.check_watermarked(job, "pdftops")

    def test_cairo(self):
        job = self.produce("pdftocairo", "-ps", self.pdf, "-")
        self.check(job, "cairo", turn_landscape=True)
        self.check_watermarked(job, "cairo", turn_landscape=True)

    def test_spooler(self):
        """What the spooler's own page filter makes of a job on its way here."""
        job = self.produce("gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ps2write", "-o-", self.pdf)
        result = subprocess.run(
            ["/usr/lib/cups/filter/pstops", "1", "user", "title", "1", "sides=two-sided-long-edge"],
            input=job, check=True, capture_output=True,
            env={**os.environ, "PPD": str(SOURCE / "tests/golden/ppd/test.ppd")})
        self.check(result.stdout, "spooler")


if __name__ == "__main__":
    unittest.main()
