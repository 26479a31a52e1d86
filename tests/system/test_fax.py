# SPDX-License-Identifier: Apache-2.0
"""Fax cover sheets: what the helper draws, and whole jobs with a cover through the filter."""

import pathlib
import plistlib
import re
import shutil
import unittest

from pictures import EXIT, draw, ghostscript, png, run
from zarvo import BIN, PPD, ZarvoTest, document

OURS = BIN.parent / "ppd/zarvo.ppd"  # for jobs of any program

HEBREW, JAPANESE, ARABIC = "שלום עולם", "日本語のテキスト", "علي"
WORDS = " ".join(f"word{number}" for number in range(3000))


def option(name, kind, value):
    return f" com.zarvo.print.FaxOptions..d_{name}..{kind}='{value}'"


FAX = (
    "com.zarvo.print.EmitJTML..n=0 com.zarvo.print.JobType..d_JobType..n=5"
    " com.zarvo.print.FaxRecipientList..a_0..d_FirstName=Charles"
    " com.zarvo.print.FaxRecipientList..a_0..d_FaxNumber=5550100"
)
COVER = FAX + "".join(option(*row) for row in (
    ("CoverSheet", "b", "true"),
    ("ShowSender", "b", "true"),
    ("LocalizedFromLabel", "s", "From"),
    ("SenderName", "s", "Ada"),
    ("LocalizedFaxLabel", "s", "Fax"),
    ("SenderFaxNumber", "s", "5550199"),
    ("ShowRecipients", "n", 2),
    ("LocalizedToLabel", "s", "To"),
    ("LocalizedNotesLabel", "s", "Notes"),
    ("CoverSheetNotes", "s", f"Two\nlines, {JAPANESE}"),
))


class Drawing(ZarvoTest):
    def draw(self, width=612, height=792, **texts):
        description = {"MediaWidth": float(width), "MediaHeight": float(height)} | texts
        pdf = run([BIN / "zarvodraw", "faxcover", "optional"], plistlib.dumps(description))
        return self.path("cover.pdf", pdf)

    def test_texts_stand_at_their_places(self):
        """Labels are bold, scripts begin at their own side, and the page ends with a whole line."""
        pdf = self.draw(
            595,
            842,
            SenderLabel="From",
            SenderText="Ada\nEngines\n",
            RecipientText="Charles",
            NotesLabel="Notes",
            NotesText=f"One\n\nTwo\n{HEBREW}\n{JAPANESE}\n{ARABIC} é\n{'W' * 120} {WORDS}",
        )
        places = run(["pdftohtml", "-xml", "-i", "-stdout", "-zoom", "1", pdf]).decode()
        # How wide a text is said to be depends on the reader's version.
        found = re.sub(r'(<text .*?) width="\d+"', r"\1", "\n".join(re.findall("<(?:page|text) .*", places)))
        self.assert_golden("fax-cover.txt", found + "\n")

    def test_a_full_page_takes_no_more(self):
        for height in range(792, 806):  # a line ends anywhere above the margin, none below it
            full = self.draw(height=height, SenderText=WORDS, RecipientText="more", NotesText="more")
            words = run(["pdftotext", "-bbox", full, "-"]).decode()
            self.assertNotIn("more", words)
            lowest = max(map(float, re.findall(r'yMax="([\d.]+)"', words)))
            self.assertTrue(height - 31 - 18 < lowest <= height - 31, (height, lowest))

    def test_an_empty_cover_is_a_white_page(self):
        [page] = draw(pathlib.Path(self.draw(SenderLabel="From", NotesLabel="Notes")).read_bytes())
        self.assertEqual(page.count("white"), 612 * 792)


class Jobs(ZarvoTest):
    def pages(self, output):
        """The width, height and words of each page, as Ghostscript reads the job."""
        postscript = output[output.index(b"%!PS") : output.rindex(EXIT + b"@PJL EOJ")]
        pdf = self.path("job.pdf", ghostscript("pdfwrite", postscript))
        page = r'<page width="(\d+)\S+ height="(\d+)\S+>(.*?)</page>'
        for *size, words in re.findall(page, run(["pdftotext", "-bbox", pdf, "-"]).decode(), re.S):
            yield *size, " ".join(re.findall(">(.*?)</word>", words)).split(" lines")[0]

    def test_cover_is_the_first_page(self):
        told = "From Ada Fax : 5550199 To Charles Notes Two"
        for size, paper, ppd, converters in (
            (1, ("612", "792"), PPD, ""),
            (2, ("595", "842"), PPD, ""),
            (2, ("595", "842"), "", ""),
            (2, ("595", "842"), OURS, ""),
            (1, ("612", "792"), PPD, "/none"),  # without the spooler's filters
        ):
            with self.subTest(size=size, ppd=ppd, converters=converters):
                self.environment["ZARVO_FILTER_DIR"] = converters
                output = self.filtered(COVER + option("Size", "n", size), document(1), ppd=ppd)
                self.assertNotIn("ERROR", self.errors)
                self.assertEqual(output.count(EXIT + b"@PJL JOB"), 1)
                self.assertEqual(list(self.pages(output)), [(*paper, told), ("612", "792", "1")])
                if ppd == OURS:  # nothing asks for other paper ahead of the cover's own
                    self.assertNotIn(b"/PageSize[612", output)

    def test_watermark_lies_over_the_cover(self):
        image = {"filename": "it", "scale": 150}
        image["filePath"] = self.path("it.png", png(100, 50, b"\0"))
        text = {"textString": "HHHHHHHH", "fontName": "LiberationMono", "fontSize": 40}
        text |= {"angle": 30, "xPos": 60.0, "yPos": 300.0}
        font = "/LiberationMono 40 selectfont 60 300 moveto 30 rotate (HHHHHHHH) show"
        marked = option("ShowWatermark", "b", "true") + option("WatermarkName", "s", "it")
        plain = draw(self.filtered(COVER, document(1)), dpi=144)[0].count("black")
        for size, paper, mark, expected in (
            (1, "612 792", text, font),
            (2, "595 842", image, "222.5 383.5 150 75 rectfill"),
        ):
            with self.subTest(size=size):
                self.write_store("faximage", {"it": mark | {"density": 30}})
                job = self.filtered(COVER + marked + option("Size", "n", size), document(1))
                self.assertNotIn("ERROR", self.errors)
                cover, _ = draw(job, dpi=144)
                self.assertAlmostEqual(cover.count("black"), plain, delta=plain / 10)
                # Three tenths of black.
                page = f"%!PS\n<< /PageSize [{paper}] >> setpagedevice 0.7 setgray {expected} showpage\n"
                inside, outside = cover.likeness(*draw(page.encode(), dpi=144), "gray")
                self.assertGreater(inside, 0.95)
                self.assertLess(outside, 0.15)

    def test_without_the_helper_the_job_goes_without_cover(self):
        if pathlib.Path("/usr/lib/zarvo/zarvodraw").exists():
            self.skipTest("there is one")
        plain = self.filtered(FAX + option("CoverSheet", "b", "false"), document(1))
        alone = shutil.copy(BIN / "zarvofilter", self.scratch)
        self.assertEqual(self.filtered(COVER, document(1), program=alone), plain)
        self.assertEqual(self.errors.count("ERROR"), 1)


if __name__ == "__main__":
    unittest.main()
