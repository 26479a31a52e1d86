# SPDX-License-Identifier: Apache-2.0
"""Watermarks, negative and mirror image on what Linux converters write, drawn and measured.

Every case makes PostScript of a PDF in one of five ways, runs it through the filter with the PPD,
draws the result with Ghostscript and counts pixels: of each page's own mark, of a black bar across
its middle, and of the red watermark above or below that bar.
"""

import functools
import itertools
import pathlib
import struct
import subprocess
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor

from pictures import COLORS, EXIT, draw, ghostscript, pictures, png, run
from zarvo import BIN, ZarvoTest

PPD = BIN.parent / "ppd/zarvo.ppd"
CUPS_FILTERS = subprocess.check_output(["cups-config", "--serverbin"], text=True).strip() + "/filter"
SCRATCH = tempfile.TemporaryDirectory()

# The mark of pages 1 to 4, near their upper left corner.
MARKS = {1: "cyan", 2: "magenta", 3: "yellow", 4: "green"}
RGB = {"cyan": "0 1 1", "magenta": "1 0 1", "yellow": "1 1 0", "green": "0 1 0"}
DOCUMENTS = {"even": [(595, 842)] * 4, "mixed": [(595, 842), (842, 1191), (842, 595)]}


def pages(sizes):
    for number, (width, height) in enumerate(sizes, 1):
        yield (
            f"<< /PageSize [{width} {height}] >> setpagedevice\n"
            f"{RGB[MARKS[number]]} setrgbcolor 60 {height - 140} 80 80 rectfill\n"
            f"0 setgray 50 {height / 2 - 20} {width - 100} 40 rectfill\nshowpage\n"
        )


def through_cups(renderer):
    def convert(pdf):
        arguments = ["1", "user", "title", "1", f"pdftops-renderer={renderer}"]
        turned = run([f"{CUPS_FILTERS}/pdftopdf", *arguments, pdf], PPD=str(PPD))
        return run([f"{CUPS_FILTERS}/pdftops", *arguments], turned, PPD=str(PPD))

    return convert


SOURCES = {
    "poppler": lambda pdf: run(["pdftops", pdf, "-"]),
    "ps2write": lambda pdf: ghostscript("ps2write", pdf.read_bytes()),
    "cairo": lambda pdf: run(["pdftocairo", "-ps", pdf, "-"]),
    "cups-poppler": through_cups("pdftops"),
    "cups-gs": through_cups("gs"),
}


@functools.cache
def job(document, source):
    pdf = pathlib.Path(SCRATCH.name, f"{document}.pdf")
    if not pdf.exists():
        text = "%!PS\n" + "".join(pages(DOCUMENTS[document]))
        pdf.write_bytes(ghostscript("pdfwrite", text.encode()))
    return SOURCES[source](pdf)


PLAIN, DUPLEX = (), ("Duplex=DuplexNoTumble",)
BOOKLET = ("BookletLayout=LeftToRight", "Duplex=DuplexTumble")


def places(layout):
    """Each page's number, the drawn picture that it is on, and its area there."""
    if layout != BOOKLET:
        return [(number, number - 1, (0, 0, 1, 1)) for number in MARKS]
    # Two sheet sides, turned by 90 degrees; the page on the right is drawn at the bottom.
    halves = [(0, 0, 1, 0.5), (0, 0.5, 1, 1)]
    return [(number, side, halves[half]) for side, half, number in
            ((0, 0, 4), (0, 1, 1), (1, 0, 2), (1, 1, 3))]


def part(area, left, top, right, bottom):
    width, height = area[2] - area[0], area[3] - area[1]
    return (area[0] + left * width, area[1] + top * height,
            area[0] + right * width, area[1] + bottom * height)


class PageHooks(ZarvoTest):
    def setUp(self):
        super().setUp()
        text = {
            "textString": "IIIIII", "fontName": "Helvetica-Bold", "fontSize": 150, "angle": 0,
            "xPos": 170.0, "yPos": 368.0, "fontColorRed": 1.0, "scale": 100, "units": 0,
        }
        red = self.path("red.png", png(200, 300, (255, 0, 0)))
        image = {"filename": "red.png", "filePath": red, "scale": 100}
        marks = {"text": text, "image": image, "missing": image | {"filePath": "/none.png"}}
        self.write_store("watermarks", {"WatermarkListEntries": ["None", *marks]} | marks)

    def drawn(self, document, source, *options):
        pictures = draw(self.filtered(" ".join(options), job(document, source), ppd=PPD))
        count = len(DOCUMENTS[document])
        self.assertEqual(len(pictures), 2 if BOOKLET[0] in options else count)
        return pictures

    plain = functools.lru_cache(8)(drawn)  # what several cases are compared with

    def each(self, check, cases):
        """check(source, *case) for all, two at a time; Ghostscript is what takes the time."""
        with ThreadPoolExecutor(2) as pool:
            rows = list(itertools.product(SOURCES, cases))
            futures = [pool.submit(check, source, *case) for source, case in rows]
        for (source, case), future in zip(rows, futures):
            with self.subTest(source=source, case=case):
                future.result()

    def check_watermark(self, source, document, kind, place, layout, pages_option=""):
        mark = (f"Watermark=Custom.{kind}", f"WMPlace={place}", pages_option)
        drawn = self.drawn(document, source, *mark, *layout)
        plain = self.plain(document, source, *layout)
        for number, index, area in places(layout):
            if index >= len(drawn):
                continue
            page, bare = drawn[index], plain[index]
            red = page.count("red", *area)
            if kind == "missing" or number > (1 if pages_option else len(DOCUMENTS[document])):
                self.assertEqual(red, 0)
                continue
            self.assertGreater(bare.count(MARKS[number], *area), 1000, "order")
            self.assertEqual(page.count(MARKS[number], *area), bare.count(MARKS[number], *area))
            self.assertGreater(red, 500)
            middle = (0.2, 0.1, 0.8, 0.9) if layout == BOOKLET else (0.1, 0.2, 0.9, 0.8)
            self.assertEqual(red, page.count("red", *part(area, *middle)))
            # What the watermark covers of the bar.
            black = bare.count("black", *area)
            covered = 1 - page.count("black", *area) / black
            low, high = {"Background": (-0.01, 0.01), "Overlay": (0.02, 0.3)}.get(place, (0.15, 0.6))
            self.assertTrue(low <= covered <= high, covered)

    def test_watermarks(self):
        everywhere, layouts = ("Background", "Overlay", "Foreground"), (PLAIN, BOOKLET)
        self.each(self.check_watermark, [
            *itertools.product(["even"], ["text", "image"], everywhere, layouts),
            *itertools.product(["even"], ["image"], everywhere[::2], layouts, ["WMPages=First"]),
            # The watermark stays in the middle, and size changes inside a page erase none of it.
            *itertools.product(["mixed"], ["image"], everywhere[:1], layouts),
            ("even", "text", "Foreground", DUPLEX),
            ("even", "missing", "Foreground", PLAIN),
        ])

    def check_transforms(self, source, layout):
        plain = self.drawn("even", source, *layout)
        mirrored = self.drawn("even", source, "MirrorImage=True", *layout)
        negative = self.drawn("even", source, "NegativeImage=True", *layout)
        # The quarter that a page's mark is in, and where the mirror puts it.
        here, there = (0, 0, 0.5, 0.5), (0.5, 0, 1, 0.5)
        if layout:  # pages are turned
            here, there = (0.5, 0, 1, 0.5), (0.5, 0.5, 1, 1)
        for number, index, area in places(layout):
            color = COLORS.index(MARKS[number])
            size = plain[index].count(COLORS[color], *part(area, *here))
            self.assertGreater(size, 1000)
            turned = mirrored[index]
            self.assertEqual(turned.count(COLORS[color], *part(area, *here)), 0)
            self.assertAlmostEqual(turned.count(COLORS[color], *part(area, *there)), size, delta=500)
            inverse = negative[index]
            self.assertAlmostEqual(inverse.count(COLORS[7 - color], *area), size, delta=500)
            white = plain[index].count("white", *area)
            self.assertGreater(inverse.count("black", *area), 0.7 * white)
            if not layout:  # what is no page, the margins of the sheet, stays white
                self.assertAlmostEqual(inverse.count("white"), plain[index].count("black"), delta=2500)

    def test_mirror_and_negative(self):
        self.each(self.check_transforms, [(PLAIN,), (BOOKLET,)])

    def check_next_job(self, source, *options):
        ours = self.filtered(" ".join(options), job("mixed", source), ppd=PPD)
        document = ours[ours.index(b"%!PS-Adobe") : ours.rindex(EXIT + b"@PJL EOJ")]
        # The spooler has its jobs give up the byte that ends a job here.
        document = document.replace(rb"userdict dup(\004)cvn{}put (\004\004)cvn{}put", b"")
        later = b"%!PS\n100 500 200 40 rectfill 0.5 setgray 20 20 50 30 rectfill showpage\n\x04"
        server = ("ppmraw", "-dJOBSERVER", "-r36")
        alone = ghostscript(server[0], later, *server[1:])
        count = 2 if BOOKLET[0] in options else len(DOCUMENTS["mixed"])
        printed = ghostscript(server[0], document + b"\x04" + later, *server[1:])
        self.assertEqual(len(pictures(printed)), count + 1)
        self.assertTrue(printed.endswith(alone), "not as if it were alone")

    def test_the_next_job(self):
        """A job leaves the printer as it was, also for somebody else's next one."""
        marked = ("Watermark=Custom.text", "WMPlace=Background", "NegativeImage=True", "MirrorImage=True")
        self.each(self.check_next_job, [marked, (*marked, *BOOKLET)])

    def test_jobs_of_any_program(self):
        """Pages that nobody has made for taking apart: booklets in order, marks where they belong."""
        even = list(pages(DOCUMENTS["even"]))
        # A dictionary that stays on the stack hides showpage from whatever runs between the pages.
        hidden = "%!PS-Adobe-3.0\n%%Pages: 4\n%%EndComments\n%%BeginProlog\n5 dict begin /showpage {} def\n"
        hidden += "%%EndProlog\n" + "".join(
            f"%%Page: {n} {n}\n%%BeginPageSetup\n%%EndPageSetup\n"
            + page.replace("showpage", "systemdict /showpage get exec")
            for n, page in enumerate(even, 1)
        ) + "%%EOF\n"
        bare = ("%!PS-Adobe-3.0\n" + "".join(even)).encode()
        wrapped = run([f"{CUPS_FILTERS}/pstops", "1", "user", "title", "1", ""], bare, PPD=str(PPD))
        for name, document, count in (
            ("no comments", bare, 1),
            ("hidden showpage", hidden.encode(), 1),
            ("wrapped", wrapped, 1),
            # Its pages set transfer functions, which must not undo a negative's.
            ("n-up", run(["psnup", "-q", "-1", "-pa4"], job("even", "poppler")), 1),
            ("two documents", job("even", "poppler") + job("even", "cairo"), 2),
        ):
            with self.subTest(name):
                first = ("Watermark=Custom.image", "WMPlace=Foreground", "WMPages=First")
                marked = draw(self.filtered(" ".join(first), document, ppd=PPD))
                self.assertEqual([p.count("red") > 500 for p in marked], [True, *[False] * 3] * count)
                sides = draw(self.filtered(" ".join(BOOKLET), document, ppd=PPD))
                self.assertEqual(len(sides), 2 * count)
                negative = draw(self.filtered(" ".join((*BOOKLET, "NegativeImage=True")), document, ppd=PPD))
                for number, index, area in places(BOOKLET):
                    inverse = COLORS[7 - COLORS.index(MARKS[number])]
                    for side, other in zip(sides[index::2], negative[index::2]):
                        self.assertGreater(side.count(MARKS[number], *area), 1000)
                        self.assertGreater(other.count(inverse, *area), 1000)

    def test_figures_that_the_spooler_loses(self):
        """What a printer makes nothing of is told: no page comments, and a preview for DOS."""
        figure = (b"%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 99 99\n%%EndComments\n%%BeginProlog\n"
                  b"%%EndProlog\n50 50 20 20 rectfill\nshowpage\n%%Trailer\n%%EOF\n")  # fmt: skip
        dos = b"\xc5\xd0\xd3\xc6" + struct.pack("<6IH", 30, len(figure), 0, 0, 0, 0, 0xFFFF) + figure
        paged = figure.replace(b"%%EndProlog\n", b"%%EndProlog\n%%Page: 1 1\n")
        arguments = [f"{CUPS_FILTERS}/pstops", "1", "user", "title", "1", ""]
        for document, told in (
            (dos, "preview for DOS"),
            (run(arguments, dos, PPD=str(PPD)), "preview for DOS"),
            (run(arguments, figure, PPD=str(PPD)), "no page comments"),
            (run(arguments, paged, PPD=str(PPD)), ""),
        ):
            self.filtered("", document, ppd=PPD)
            self.assertEqual(bool(told), "WARNING" in self.errors, self.errors)
            self.assertIn(told, self.errors)

    def test_nothing_asked(self):
        """Without anything to draw a job is not touched, whatever the PPD wants."""
        plain = job("even", "cups-poppler")
        self.assertIn(plain[: plain.rindex(b"%%EOF")], self.filtered("", plain, ppd=PPD))


if __name__ == "__main__":
    unittest.main()
