# SPDX-License-Identifier: Apache-2.0
"""Watermarks, negative and mirror image on what Linux converters write, drawn and measured.

Every case makes PostScript of a PDF in one of five ways, runs it through the filter with the PPD,
draws the result with Ghostscript and counts pixels: of each page's own mark, of a black bar across
its middle, and of the red watermark above or below that bar.
"""

import os
import pathlib
import plistlib
import subprocess
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
PPD = BIN.parent / "ppd/zarvo.ppd"
CUPS_FILTERS = pathlib.Path(
    subprocess.run(["cups-config", "--serverbin"], capture_output=True, text=True, check=True)
    .stdout.strip(),
    "filter",
)
EXIT = b"\x1b%-12345X"
DPI = 72

# The mark of pages 1 to 4, near their upper left corner.
MARKS = {1: "cyan", 2: "magenta", 3: "yellow", 4: "green"}
RGB = {"cyan": "0 1 1", "magenta": "1 0 1", "yellow": "1 1 0", "green": "0 1 0"}
# Red, green, blue: whether the channel is bright.
COLORS = {
    "cyan": (0, 1, 1), "magenta": (1, 0, 1), "yellow": (1, 1, 0), "green": (0, 1, 0),
    "red": (1, 0, 0), "black": (0, 0, 0), "white": (1, 1, 1),
}  # fmt: skip


def pages(sizes):
    yield "%!PS\n"
    for number, (width, height) in enumerate(sizes, 1):
        yield (
            f"<< /PageSize [{width} {height}] >> setpagedevice\n"
            f"{RGB[MARKS[number]]} setrgbcolor 60 {height - 140} 80 80 rectfill\n"
            f"0 setgray 50 {height / 2 - 20} {width - 100} 40 rectfill\nshowpage\n"
        )


def run(command, data=None, **environment):
    done = subprocess.run(
        [str(word) for word in command], input=data, capture_output=True, timeout=120,
        env={**os.environ, **environment},
    )  # fmt: skip
    if done.returncode != 0:
        raise RuntimeError(f"{command}: {done.stderr[-2000:]} {done.stdout[-2000:]}")
    return done.stdout


def ghostscript(device, source, *options):
    return run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", f"-sDEVICE={device}", *options,
                "-sOutputFile=-", source])  # fmt: skip


class Picture:
    """One page: counts of pixels by colour."""

    _BRIGHT = bytes(value >= 128 for value in range(256))
    _LIGHT = bytes(160 <= value < 224 for value in range(256))

    def __init__(self, data):
        header, _, size, _, pixels = data.split(b"\n", 4)  # the second line is a comment
        assert header == b"P6", header
        self.width, self.height = map(int, size.split())
        self._ones = int.from_bytes(b"\1" * self.width, "little")
        self._bright = [self._rows(pixels[channel::3], self._BRIGHT) for channel in range(3)]
        self._light = [self._rows(pixels[channel::3], self._LIGHT) for channel in range(3)]

    def _rows(self, plane, table):
        flags, width = plane.translate(table), self.width
        return [int.from_bytes(flags[y * width : (y + 1) * width], "little")
                for y in range(self.height)]  # fmt: skip

    def count(self, color, left=0.0, top=0.0, right=1.0, bottom=1.0):
        """Pixels of that colour in a part of the page, given in fractions of its sides."""
        first, last = int(left * self.width), int(right * self.width)
        columns = self._ones >> 8 * (self.width - (last - first)) << 8 * first
        total = 0
        for y in range(int(top * self.height), int(bottom * self.height)):
            mask = columns
            if color == "gray":  # the light gray of the watermarks that come with the PPD
                for channel in self._light:
                    mask &= channel[y]
            else:
                for channel, bright in zip(self._bright, COLORS[color]):
                    mask &= channel[y] if bright else channel[y] ^ self._ones
            total += mask.bit_count()
        return total


def draw(job):
    """The pages of a job as the printer would draw them."""
    start, end = job.index(b"%!PS-Adobe"), job.rindex(EXIT + b"@PJL EOJ")
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "job.ps")
        source.write_bytes(job[start:end])
        output = pathlib.Path(folder, "%d.ppm")
        run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ppmraw", f"-r{DPI}",
             f"-sOutputFile={output}", source])  # fmt: skip
        files = sorted(pathlib.Path(folder).glob("*.ppm"), key=lambda file: int(file.stem))
        return [Picture(file.read_bytes()) for file in files]


def through_cups(renderer):
    def convert(pdf):
        arguments = ["1", "user", "title", "1", f"pdftops-renderer={renderer}"]
        turned = run([CUPS_FILTERS / "pdftopdf", *arguments, pdf], PPD=str(PPD))
        return run([CUPS_FILTERS / "pdftops", *arguments], turned, PPD=str(PPD))

    return convert


SOURCES = {
    "poppler": lambda pdf: run(["pdftops", pdf, "-"]),
    "ps2write": lambda pdf: ghostscript("ps2write", pdf),
    "cairo": lambda pdf: run(["pdftocairo", "-ps", pdf, "-"]),
    "cups-poppler": through_cups("pdftops"),
    "cups-gs": through_cups("gs"),
}
PLACES = {"Background": 1, "Overlay": 2, "Foreground": 3}
BOOKLET = ["BookletLayout=LeftToRight", "Duplex=DuplexTumble"]


class PageHooks(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.store = cls.folder / "data"
        (cls.store / "Zarvo").mkdir(parents=True)
        run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=png16m", "-g200x300",
             f"-sOutputFile={cls.folder}/red.png", "-c",
             "1 0 0 setrgbcolor 0 0 1000 1000 rectfill showpage"])  # fmt: skip
        text = {
            "textString": "IIIIII", "fontName": "Helvetica-Bold", "fontSize": 150, "angle": 0,
            "xPos": 170.0, "yPos": 368.0, "fontColorRed": 1.0, "scale": 100, "units": 0,
        }  # fmt: skip
        picture = {"filename": "red.png", "filePath": str(cls.folder / "red.png"), "scale": 100}
        names = {"text": text, "image": picture, "missing": {**picture, "filePath": "/none.png"}}
        with open(cls.store / "Zarvo/com.zarvo.printing.watermarks.plist", "wb") as file:
            plistlib.dump({"WatermarkListEntries": ["None", *names], **names}, file)

        def convert(name, sizes):
            source = cls.folder / f"{name}.ps"
            source.write_text("".join(pages(sizes)))
            pdf = cls.folder / f"{name}.pdf"
            pdf.write_bytes(ghostscript("pdfwrite", source))
            return {kind: make(pdf) for kind, make in SOURCES.items()}

        cls.even = convert("even", [(595, 842)] * 4)
        cls.mixed = convert("mixed", [(595, 842), (842, 1191), (842, 595)])

    def filter(self, job, *options):
        done = subprocess.run(
            [BIN / "zarvofilter", "1", "user", "title", "1", " ".join(options)],
            input=job, capture_output=True, timeout=60, check=True,
            env={**os.environ, "PPD": str(PPD), "ZARVO_APPLICATION_SUPPORT": str(self.store)},
        )  # fmt: skip
        return done.stdout

    def each(self, jobs, check, cases=(None,)):
        """check(source, job, case) for all, two at a time; Ghostscript is what takes the time."""
        table = [(source, job, case) for source, job in jobs.items() for case in cases]
        with ThreadPoolExecutor(2) as pool:
            futures = [(row, pool.submit(check, *row)) for row in table]
        for (source, _, case), future in futures:
            with self.subTest(source=source, case=case):
                future.result()

    def check_watermark(self, page, place, kind):
        self.assertGreater(page.count("red", 0.25, 0.3, 0.75, 0.7), 800, "watermark")
        self.assertEqual(page.count("red", 0, 0, 1, 0.3) + page.count("red", 0, 0.7, 1, 1), 0)
        # The bar is 495 by 40 points and the watermark covers part of it.
        black = page.count("black")
        if place == "Background":
            self.assertAlmostEqual(black, 495 * 40, delta=800)
        elif place == "Foreground":
            self.assertLess(black, 495 * 40 - 3000)
        else:
            self.assertLess(black, 495 * 40 - 300)
            self.assertGreater(black, 495 * 40 - 200 * 40 * 0.75)

    def test_every_place(self):
        def check(source, job, case):
            kind, place, duplex = case
            drawn = draw(self.filter(job, f"Watermark=Custom.{kind}", f"WMPlace={place}", duplex))
            self.assertEqual(len(drawn), 4)
            for number, page in enumerate(drawn, 1):
                self.assertAlmostEqual(
                    page.count(MARKS[number], 0, 0, 0.4, 0.25), 80 * 80, delta=500)
                self.check_watermark(page, place, kind)

        cases = [(kind, place, "") for kind in ("text", "image") for place in PLACES]
        self.each(self.even, check, [*cases, ("text", "Foreground", "Duplex=DuplexNoTumble")])

    def test_booklets(self):
        # Two sheet sides, turned by 90 degrees; the page on the right is drawn at the bottom.
        order = [(4, 1), (2, 3)]

        def check(source, job, case):
            kind, place = case
            sides = draw(
                self.filter(job, *BOOKLET, f"Watermark=Custom.{kind}", f"WMPlace={place}"))
            self.assertEqual(len(sides), 2)
            plain = draw(self.filter(job, *BOOKLET))
            for side, bare, numbers in zip(sides, plain, order):
                for half, number in enumerate(numbers):
                    area = (0, half / 2, 1, (half + 1) / 2)
                    self.assertGreater(side.count(MARKS[number], *area), 2000, "order")
                    self.assertEqual(side.count(MARKS[number], *area),
                                     bare.count(MARKS[number], *area))
                    self.assertGreater(side.count("red", *area), 500, "watermark")
                    covered = bare.count("black", *area) - side.count("black", *area)
                    if place == "Background":
                        self.assertLess(abs(covered), 50)
                    else:
                        self.assertGreater(covered, 300)
                self.assertEqual(bare.count("red"), 0)

        self.each(self.even, check, [(kind, place) for kind in ("text", "image") for place in PLACES])

    def test_first_page_only(self):
        def check(source, job, case):
            place, layout = case
            drawn = draw(self.filter(job, "Watermark=Custom.image", f"WMPlace={place}",
                                     "WMPages=First", *layout))  # fmt: skip
            red = [page.count("red") for page in drawn]
            self.assertGreater(red[0], 500)
            self.assertEqual(sum(red[1:]), 0)
            if layout:  # page 1 is the lower half of the first side
                self.assertEqual(drawn[0].count("red", 0, 0, 1, 0.5), 0)

        self.each(self.even, check, [(place, layout) for place in PLACES for layout in ([], BOOKLET)])

    def test_mirror_and_negative(self):
        def check(source, job, layout):
            plain = draw(self.filter(job, *layout))
            mirrored = draw(self.filter(job, "MirrorImage=True", *layout))
            negative = draw(self.filter(job, "NegativeImage=True", *layout))
            self.assertEqual(len(mirrored), len(plain))
            opposite = {"cyan": "red", "magenta": "green", "yellow": None, "green": "magenta"}
            for number, (page, turned, inverse) in enumerate(zip(plain, mirrored, negative), 1):
                self.assertGreater(inverse.count("black"), 0.7 * page.count("white"))
                if layout:  # what is no page, the margins of the sheet, stays white
                    continue
                self.assertAlmostEqual(inverse.count("white"), page.count("black"), delta=2500)
                color = MARKS[number]
                self.assertAlmostEqual(turned.count(color, 0.6, 0, 1, 0.25), 80 * 80, delta=500)
                self.assertEqual(turned.count(color, 0, 0, 0.5, 1), 0)
                if opposite[color]:
                    self.assertAlmostEqual(inverse.count(opposite[color], 0, 0, 0.4, 0.25), 80 * 80,
                                           delta=500)
            if layout:  # marks lie at the top right of a turned page, mirrored at its lower right
                for area in ((0.5, 0, 1, 0.25), (0.5, 0.25, 1, 0.5)):
                    upper = plain[0].count("green", *area), mirrored[0].count("green", *area)
                    self.assertNotEqual(upper[0] > 0, upper[1] > 0)

        self.each(self.even, check, [[], BOOKLET])

    def test_pages_of_other_sizes(self):
        """The watermark stays in the middle, and size changes inside a page erase none of it."""

        def check(source, job, case):
            place, layout = case
            drawn = draw(self.filter(job, "Watermark=Custom.image", f"WMPlace={place}", *layout))
            self.assertEqual(len(drawn), 2 if layout else 3)
            for page in drawn if not layout else []:
                inside = page.count("red", 0.2, 0.15, 0.8, 0.85)
                self.assertGreater(inside, 5000)
                self.assertEqual(inside, page.count("red"))
            for side in drawn if layout else []:
                for half in range(2) if side is drawn[1] else (1,):  # page 4 is blank
                    self.assertGreater(side.count("red", 0, half / 2, 1, (half + 1) / 2), 500)
            if layout:
                self.assertEqual(drawn[0].count("red", 0, 0, 1, 0.5), 0)

        self.each(self.mixed, check, [(place, layout) for place in ("Background", "Foreground")
                                      for layout in ([], BOOKLET)])  # fmt: skip

    def test_missing_image(self):
        """An image that cannot be read leaves the pages as they are."""

        def check(source, job, case):
            drawn = draw(self.filter(job, "Watermark=Custom.missing", "WMPlace=Foreground"))
            self.assertEqual([page.count("red") for page in drawn], [0] * 4)

        self.each({"poppler": self.even["poppler"]}, check)

    def test_nothing_asked(self):
        """Without anything to draw a job is not touched, whatever the PPD wants."""
        job = self.even["cups-poppler"]
        self.assertIn(job[: job.rindex(b"%%EOF")], self.filter(job))


if __name__ == "__main__":
    unittest.main()
