# SPDX-License-Identifier: Apache-2.0
"""The PPD in a real spooler: what people choose with lp, and what reaches the printer."""

import os
import pathlib
import re
import tempfile
import unittest

from cupsd import BIN, PrivateCupsd, Printer
from pictures import draw, run

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PPD = BIN.parent / "ppd/zarvo.ppd"

# What is printed: sizes of the pages, each with its number as so many red squares along the top.
DOCUMENTS = {
    "plain": [(595, 842)] * 4,
    "mixed": [(595, 842), (842, 1191), (420, 595)],
    "landscape": [(842, 595)] * 2,
    "long": [(595, 842)] * 100,
}

# lp's options, and what the header or the ticket must hold.
CHOICES = [
    ("-o sides=two-sided-long-edge -o Staple=TopLeft", [
        '<sides syntax="keyword">two-sided-long-edge</sides>', '<value syntax="enum">20</value>']),
    ("-o sides=two-sided-short-edge -o TonerSaver=True", [
        '<sides syntax="keyword">two-sided-short-edge</sides>',
        '<toner-saver syntax="keyword">standard</toner-saver>']),
    ("-o media=A3 -o TonerSaver=True", [
        '<x-dimension syntax="integer">29700</x-dimension>',
        '<y-dimension syntax="integer">42000</y-dimension>']),
    ("-o media=na_letter_8.5x11in -o TonerSaver=True", [
        '<x-dimension syntax="integer">21600</x-dimension>']),
    ("-o print-color-mode=monochrome", [
        '<color-effects-type syntax="keyword">monochrome-grayscale</color-effects-type>']),
    ("-o output-bin=stacker-1", ['<output-bin syntax="keyword">stacker-1</output-bin>']),
    ("-o finishings=28", ['<value syntax="enum">28</value>']),
    ("-o finishings=22 -o Punch=Left -o HoleCount=Two", [
        '<value syntax="enum">22</value>', '<value syntax="enum">93</value>',
        '<value syntax="enum">90</value>']),
    ("-o JobType=Secure -o JobPIN=Custom.83914602", [
        "OID_VAL_JOB_TYPE_SECURE_PRINT", "OID_ATT_JOB_PASSWORD"]),
    ("-o JobType=Save -o SavedJobName=Custom.Year's\\ \"end\"", [
        "SAVE_DISPOSITION_SAVE_ONLY", 'OID_ATT_SAVE_NAME "Year\'s "end"";']),
    ("-o Accounting=Group -o AccountUser=Custom.jo -o AccountID=Custom.4711", [
        '"ZRV_USERID,jo"', '"ZRV_GROUPACCT,4711"']),
    ("-o Banner=On -o JobOffset=Sets", ["OID_VAL_JOB_SHEET_FULL", "@PJL SET JOBOFFSET=ON"]),
    ("-o FrontCover=Blank -o CoverColorFront=Blue", [
        '<cover-type syntax="keyword">print-none</cover-type>',
        '<media-color syntax="keyword">blue</media-color>']),
    ("-o Halftone=106lpi -o RenderingImages=Perceptual -o Resolution=1200dpi", [
        '<halftone-text syntax="keyword">106-lpi</halftone-text>',
        '<rendering-intent-images syntax="keyword">perceptual</rendering-intent-images>',
        '<cross-feed syntax="integer">1200</cross-feed>']),
    ("-o ImageShiftX1=Custom.-5 -o PageRotation=Rotate180", [
        '<x-side1-image-shift syntax="integer">-50</x-side1-image-shift>',
        '<page-rotation syntax="keyword">rotate-180</page-rotation>']),
    ("-o BackgroundForm=Custom.Letterhead", [">Letterhead</form-name>"]),
    ("-o FaxNumber=Custom.0911-4711 -o FaxResolution=SuperFine", [
        "OID_VAL_JOB_TYPE_FAX_SEND", 'OID_ATT_FAX_DESTINATION_PHONE "09114711";',
        "OID_ATT_FAX_RESOLUTION 2;"]),
]  # fmt: skip


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
        store = folder / "data/Zarvo"
        store.mkdir(parents=True)
        (store / "com.zarvo.printing.watermarks.plist").write_bytes(
            (SOURCE / "ppd/watermarks.plist").read_bytes())
        cls.files = {}
        for name, sizes in DOCUMENTS.items():
            source = folder / f"{name}.ps"
            source.write_text("%!PS-Adobe-3.0\n" + "".join(document(sizes)))
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
        for options, wanted in CHOICES:
            with self.subTest(options=options):
                job = self.print("plain", options).decode("utf-8", "replace")
                head = job[: job.index("%!PS-Adobe")]
                self.assertTrue(head.endswith("LANGUAGE = POSTSCRIPT\n"), head[-100:])
                for text in wanted:
                    self.assertIn(text, head)

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
                squares = []
                for side in drawn:
                    for top in (0, 0.5):
                        red = side.count("red", 0, top, 1, top + 0.5)
                        squares.append(red)
                        self.assertGreater(side.count("gray", 0, top, 1, top + 0.5), 1500, "watermark")
                # Page n has n squares; the right page of a turned sheet is its lower half.
                unit = min(squares)
                self.assertEqual([round(red / unit) for red in squares], [4, 1, 2, 3])

    def test_orientation_and_mirror(self):
        """A turned job is mirrored as it lies on the sheet; nothing is cut off."""
        plain = draw(self.print("plain", "-o orientation-requested=4"))
        mirrored = draw(self.print("plain", "-o orientation-requested=4 -o MirrorImage=True"))
        for page, turned in zip(plain, mirrored):
            self.assertAlmostEqual(page.count("red"), turned.count("red"), delta=60)
            self.assertAlmostEqual(page.count("black"), turned.count("black"), delta=60)
            self.assertNotAlmostEqual(page.count("red", 0, 0, 1, 0.5),
                                      turned.count("red", 0, 0, 1, 0.5), delta=60)

    def test_nobody_reads_the_pin_in_the_page_description(self):
        for queue in ("gs", "pdftops"):
            job = self.print("plain", "-o JobType=Secure -o JobPIN=Custom.83914602", queue)
            for secret in (b"83914602", b"JobPIN"):
                self.assertFalse(secret in job, secret)


if __name__ == "__main__":
    unittest.main()
