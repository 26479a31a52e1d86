# SPDX-License-Identifier: Apache-2.0
"""The PPD in a real spooler: what people choose with lp, and what reaches the printer."""

import itertools
import os
import pathlib
import re
import tempfile
import unittest

from cupsd import BIN, PrivateCupsd, Printer
from pictures import draw, printed_sides, run

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PPD = BIN.parent / "ppd/zarvo.ppd"

# What is printed: sizes of the pages, each with its number as so many red squares along the top.
DOCUMENTS = {
    "plain": [(595, 842)] * 4,
    "mixed": [(595, 842), (842, 1191), (420, 595)],
    "landscape": [(842, 595)] * 2,
    "long": [(595, 842)] * 100,
}

# lp's options in every spelling that the spooler takes, and what the header or the ticket must hold.
CHOICES = {
    "-o sides=two-sided-long-edge -o media=A3 -o print-color-mode=monochrome -o output-bin=stacker-1 "
    "-o finishings=28 -o ImageShiftX1=Custom.-5": [
        ">two-sided-long-edge</sides>", ">29700</x-dimension>", ">42000</y-dimension>",
        ">monochrome-grayscale</color-effects-type>", ">stacker-1</output-bin>", "enum\">28</value>",
        ">-500</x-side1-image-shift>"],
    "-o sides=two-sided-short-edge -o media=na_letter_8.5x11in -o finishings=22 -o Punch=Left "
    "-o HoleCount=Two": [
        ">two-sided-short-edge</sides>", ">21600</x-dimension>", "enum\">22</value>",
        "enum\">93</value>", "enum\">90</value>"],
    "-o JobType=Save -o SavedJobName=Custom.Year's\\ \"end\" -o Accounting=Group "
    "-o AccountUser=Custom.jo -o AccountID=Custom.4711 -o Banner=On": [
        "SAVE_DISPOSITION_SAVE_ONLY", 'OID_ATT_SAVE_NAME "Year\'s "end"";', '"ZRV_USERID,jo"',
        '"ZRV_GROUPACCT,4711"', "OID_VAL_JOB_SHEET_FULL"],
    "-o FaxNumber=Custom.0911-4711 -o FaxResolution=SuperFine": [
        "OID_VAL_JOB_TYPE_FAX_SEND", 'OID_ATT_FAX_DESTINATION_PHONE "09114711";',
        "OID_ATT_FAX_RESOLUTION 2;"],
}  # fmt: skip

# Copies of four pages: options; whether the printer makes sets, how many copies, the sides it prints of each
# and whether on both sides of the paper, the sheets of all, and what of a sheet is done in the ticket.
STAPLE, BOOKLET = 'enum">20</value>', 'enum">110</value>'
COPIES = [
    ("-n 3 -o Collate=True -o Staple=TopLeft", True, 3, 4, False, 12, STAPLE),
    ("-n 3 -o Staple=TopLeft", True, 3, 4, False, 12, STAPLE),
    ("-n 3 -o SlipSheets=On -o sides=two-sided-long-edge", True, 3, 4, True, 6, ">slip-sheets<"),
    ("-n 3 -o FrontCover=Blank -o Duplex=DuplexNoTumble", True, 3, 4, True, 6, "<cover-front "),
    ("-n 3 -o JobOffset=Subsets -o SubsetPages=Custom.2 -o Collate=True", True, 3, 4, False, 12, ""),
    ("-n 3", False, 3, 4, False, 12, ""),
    ("-n 3 -o sides=twosided", False, 3, 4, False, 12, ""),
    ("-n 3 -o Collate=False -o Staple=TopLeft", False, 3, 4, False, 12, STAPLE),
    ("-n 2 -o JobType=Secure -o JobPIN=Custom.0391 -o Bind=Left -o number-up=2", True, 2, 2, False, 4, ""),
    ("-n 2 -o JobType=Secure -o JobPIN=Custom.0391 -o Collate=False", False, 2, 4, False, 8, ""),
    ("-n 2 -o BookletFinish=FoldStaple", True, 2, 2, True, 2, BOOKLET),
    ("-n 2 -o finishings=13 -o sides=two-sided-short-edge", True, 2, 2, True, 2, BOOKLET),
    ("-n 2 -o BookletFinish=FoldStaple -o page-ranges=2-4 -o Collate=False", True, 2, 2, True, 2, BOOKLET),
    ("-n 2 -o FaxNumber=Custom.0911-4711 -o FaxCover=A4", False, 1, 5, False, 4, ""),
    ("-n 2 -o FaxNumber=Custom.0911-4711 -o Collate=True", True, 1, 4, False, 4, ""),
    ("-n 2 -o FaxNumber=Custom.0911-4711 -o number-up=2", False, 1, 2, False, 2, ""),
    ("-o Staple=TopLeft -o page-ranges=1-3 -o sides=two-sided-long-edge", False, 1, 3, True, 2, STAPLE),
    ("-n 3 -o page-set=odd -o sides=two-sided-long-edge -o Staple=TopLeft", True, 3, 2, True, 3, STAPLE),
    ("-n 3 -o page-ranges=1-3 -o Duplex=DuplexNoTumble -o Collate=False", False, 3, 3, True, 6, ""),
]


def document(sizes):
    for number, (width, height) in enumerate(sizes, 1):
        yield (
            f"<< /PageSize [{width} {height}] >> setpagedevice\n"
            f"0 setgray 36 36 {width - 72} 4 rectfill\n1 0 0 setrgbcolor\n"
            f"{min(number, 8)} {{ 40 {height - 60} 20 20 rectfill 40 0 translate }} repeat\nshowpage\n"
        )


class Printing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="zarvo-")))
        folder.chmod(0o755)  # the filters run as another user
        cls.store = folder / "data"
        store = cls.store / "Zarvo"
        store.mkdir(parents=True)
        (store / "com.zarvo.printing.watermarks.plist").write_bytes(
            (SOURCE / "ppd/watermarks.plist").read_bytes())
        cls.files = {}
        for name, sizes in DOCUMENTS.items():
            source = folder / f"{name}.ps"
            source.write_text("%!PS-Adobe-3.0\n" + "".join(document(sizes)))
            cls.files.setdefault("bare", source)  # without page comments
            cls.files[name] = folder / f"{name}.pdf"
            run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite",
                 f"-sOutputFile={cls.files[name]}", source])  # fmt: skip
        cls.files["cairo"] = folder / "cairo.pdf"
        run(["pdftocairo", "-pdf", cls.files["plain"], cls.files["cairo"]])
        cls.files["postscript"] = folder / "dsc.ps"
        run(["pdftops", cls.files["plain"], cls.files["postscript"]])
        cls.cupsd = cls.enterClassContext(
            PrivateCupsd({"ZARVO_APPLICATION_SUPPORT": str(folder / "data")}))
        cls.printer = cls.enterClassContext(Printer())
        for renderer in ("gs", "pdftops"):
            cls.cupsd.add_queue(renderer, PPD, cls.printer.uri,
                                "-o", f"pdftops-renderer-default={renderer}")  # fmt: skip

    def print(self, name, options="", queue="gs"):
        self.cupsd.print(queue, self.files[name], re.findall(r'(?:[^ \\]|\\.)+', options))
        return self.printer.wait(timeout=120)

    def test_choices_reach_the_ticket(self):
        for options, wanted in CHOICES.items():
            with self.subTest(options=options):
                job = self.print("plain", options).decode("utf-8", "replace")
                head = job[: job.index("%!PS-Adobe")]
                self.assertTrue(head.endswith("LANGUAGE = POSTSCRIPT\n"), head[-100:])
                self.assertEqual([text for text in wanted if text not in head], [], head)

    def test_stored_watermarks_become_choices(self):
        title = "Ma\u00df: 100 %s 'A\\B' \u65e5\u672c"
        store = {"ZARVO_APPLICATION_SUPPORT": str(self.store)}
        for _ in range(2):  # what is published again stands there once
            self.cupsd.run(BIN / "zarvo", "watermark", "add-text", "seen", "--name", title, **store)
            self.cupsd.run(BIN / "zarvo", "watermark", "publish", "-q", "gs", **store)
        ppd = (self.cupsd.root / "ppd/gs.ppd").read_bytes()
        self.assertEqual(ppd.count(b"*Watermark Ma100sAB/Ma<DF><3A> 100 %s 'A\\B' ??: \"\"\n"), 1)
        self.assertIn(f"*ja.Watermark Ma100sAB/{title.replace(':', '<3A>')}: ".encode(), ppd)
        self.assertIn(b"(seen)", self.print("plain", "-o Watermark=Ma100sAB"))
        words = ["print", "file", "-q", "gs", "-o", "Watermark=Ma"]
        self.assertEqual(self.cupsd.run(BIN / "zarvo", "manual", "--complete", "--", *words),
                         "Watermark=Ma100sAB\n")

    def test_copies_and_sheets(self):
        """What the printer makes of a job, and what the spooler says that it printed."""
        jobs = [*itertools.product(("plain", "postscript"), COPIES),
                ("bare", ("-n 2 -o BookletFinish=Fold", True, 2, 2, True, 2, ""))]  # fmt: skip
        sheets = {}
        for document, (options, sets, copies, sides, two_sided, all_sheets, done) in jobs:
            with self.subTest(document=document, options=options):
                words = options.replace("-n ", "-n").split()
                number = self.cupsd.print("pdftops", self.files[document], words)
                sheets[number] = all_sheets
                job = self.printer.wait(timeout=120)
                self.assertEqual(printed_sides(job), [(sets, two_sided, copies)] * sides)
                self.assertIn(done, job[: job.index(b"%!PS-Adobe")].decode())
                said = self.cupsd.run("ipptool", "-tv", f"{self.cupsd.uri}/jobs/{number}", "get-job-attributes.test")
                self.assertIn(f"job-media-sheets-completed (integer) = {all_sheets}\n", said)
        self.assertEqual(self.cupsd.page_log() & set(sheets.items()), set(sheets.items()))

    def test_every_page_arrives(self):
        """Fitted to the paper, with all its squares, and under the watermark."""
        for queue in ("gs", "pdftops"):
            for name in self.files:
                with self.subTest(queue=queue, document=name):
                    drawn = draw(self.print(name, "-o Watermark=DRAFT -o WMPlace=Foreground", queue))
                    sizes = DOCUMENTS.get(name, DOCUMENTS["plain"])
                    self.assertEqual(len(drawn), len(sizes))
                    for number, (page, size) in enumerate(zip(drawn, sizes), 1):
                        self.assertEqual((page.width, page.height), (595, 842))
                        scale = min(595 / min(size), 842 / max(size))
                        squares = page.count("red") / (20 * scale) ** 2
                        self.assertAlmostEqual(squares, min(number, 8), delta=0.15 * min(number, 8))
                        self.assertGreater(page.count("gray"), 4000, "watermark")

    def test_booklet_in_reading_order(self):
        for queue in ("gs", "pdftops"):
            with self.subTest(queue=queue):
                drawn = draw(self.print("plain", "-o BookletLayout=LeftToRight -o Watermark=DRAFT "
                                        "-o WMPlace=Foreground -o sides=two-sided-short-edge", queue))
                halves = [(side, top) for side in drawn for top in (0, 0.5)]
                squares = [side.count("red", 0, top, 1, top + 0.5) for side, top in halves]
                gray = [side.count("gray", 0, top, 1, top + 0.5) for side, top in halves]
                self.assertGreater(min(gray), 1500, "watermark")
                # Page n has n squares; the right page of a turned sheet is its lower half.
                unit = min(squares)
                self.assertEqual([round(red / unit) for red in squares], [4, 1, 2, 3])

    def test_orientation_and_mirror(self):
        """A turned job is mirrored as it lies on the sheet; nothing is cut off."""
        plain = draw(self.print("plain", "-o orientation-requested=4"))
        mirrored = draw(self.print("plain", "-o orientation-requested=4 -o MirrorImage=True"))
        for page, turned in zip(plain, mirrored):
            for ink in ("red", "black"):
                self.assertAlmostEqual(page.count(ink), turned.count(ink), delta=60)
            self.assertNotAlmostEqual(page.count("red", 0, 0, 1, 0.5),
                                      turned.count("red", 0, 0, 1, 0.5), delta=60)

    def test_nobody_reads_the_pin_in_the_page_description(self):
        for queue in ("gs", "pdftops"):
            job = self.print("plain", "-o JobType=Secure -o JobPIN=Custom.83914602", queue)
            self.assertIn(b"OID_VAL_JOB_TYPE_SECURE_PRINT", job[: job.index(b"%!PS-Adobe")])
            self.assertFalse(re.search(b"83914602|JobPIN", job), queue)


if __name__ == "__main__":
    unittest.main()
