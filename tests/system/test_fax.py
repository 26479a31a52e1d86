# SPDX-License-Identifier: Apache-2.0
"""Fax cover sheets: what the helper draws, and whole jobs with a cover through the filter."""

import os
import pathlib
import plistlib
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
import xml.etree.ElementTree

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
PPD = pathlib.Path(os.environ["ZARVO_SOURCE"]) / "tests/golden/ppd/test.ppd"
INSET, FIRST_LINE, GAP = 31, 72, 12  # points: draw box, pen below its top, between blocks
JOB = b"""%!PS-Adobe-3.0
%%BeginSetup
<< /PageSize [612 792] >> setpagedevice
%%EndSetup
%%Page: 1 1
/Helvetica findfont 20 scalefont setfont 100 600 moveto (Body) show showpage
%%EOF
"""


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, **options).stdout


def option(name, kind, value):
    return f"com.zarvo.print.FaxOptions..d_{name}..{kind}='{value}'"


class Scratch(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)


class Drawing(Scratch):
    def draw(self, width=612, height=792, **texts):
        pdf = self.scratch / "cover.pdf"
        description = {"MediaWidth": float(width), "MediaHeight": float(height)} | texts
        pdf.write_bytes(run(BIN / "zarvodraw", "faxcover", input=plistlib.dumps(description)))
        return pdf

    def lines(self, pdf):
        """The lines as (text, left, top, right, bottom), points from the upper left corner."""
        page = run("pdftotext", "-bbox-layout", pdf, "-").decode()
        page = xml.etree.ElementTree.fromstring(re.sub(' xmlns="[^"]*"', "", page))
        result = []
        for line in page.iter("line"):
            box = [float(line.get(key)) for key in ("xMin", "yMin", "xMax", "yMax")]
            result.append((" ".join(word.text for word in line.iter("word")), *box))
        return sorted(result, key=lambda line: line[2])

    def test_blocks_stand_in_order_at_their_places(self):
        pdf = self.draw(
            595,
            842,
            SenderLabel="From",
            SenderText="Ada\nEngines\n",
            RecipientText="Charles",
            NotesLabel="Notes",
            NotesText="One\n\nTwo",
        )
        lines = self.lines(pdf)
        self.assertEqual(
            [line[0] for line in lines], ["From", "Ada", "Engines", "Charles", "Notes", "One", "Two"]
        )
        for line in lines:
            self.assertAlmostEqual(line[1], INSET, delta=1.5)  # less the letter's own bearing
        tops = [line[2] for line in lines]
        self.assertAlmostEqual(tops[0], INSET + FIRST_LINE, delta=2)
        leading = tops[1] - tops[0]
        self.assertAlmostEqual(leading, 14, delta=1.5)
        steps = [leading, leading, leading + GAP, leading + GAP, leading, 2 * leading]
        for place, step in enumerate(steps):
            self.assertAlmostEqual(tops[place + 1] - tops[place], step, delta=0.1)
        layout = run("pdftotext", "-layout", pdf, "-").decode()
        self.assertEqual(
            layout.rstrip("\f\n"), "From\nAda\nEngines\n\nCharles\n\nNotes\nOne\n\nTwo"
        )
        html = run("pdftohtml", "-xml", "-stdout", "-i", pdf).decode()
        self.assertEqual(re.findall("<b>(.*?)</b>", html), ["From", "Notes"])
        self.assertEqual(set(re.findall(r'<fontspec [^>]*size="(\d+)"', html)), {"18"})  # of 1.5

    def test_text_wraps_and_is_cut_at_whole_lines(self):
        words = " ".join(f"word{number}" for number in range(3000))
        lines = self.lines(self.draw(NotesLabel="Notes", NotesText="W" * 120 + " " + words))
        self.assertLessEqual(max(line[3] for line in lines), 612 - INSET + 0.5)
        self.assertGreater(min(line[3] for line in lines[3:]), 612 - INSET - 60)
        text = " ".join(line[0] for line in lines[1:])
        self.assertEqual(text.replace(" ", "").count("W"), 120)
        self.assertNotIn("-", text)
        shown = text[text.index("word0") :]
        self.assertEqual(shown, words[: len(shown)])
        leading = lines[2][2] - lines[1][2]
        box_bottom = 792 - INSET
        self.assertLessEqual(lines[-1][4], box_bottom + 0.5)
        self.assertGreater(lines[-1][4] + leading, box_bottom - 0.5)
        # A page that is full takes no later block either.
        full = self.draw(SenderText=words, RecipientText="more", NotesText="more")
        self.assertNotIn("more", run("pdftotext", full, "-").decode())

    def test_every_script_comes_out(self):
        hebrew, japanese = "שלום עולם", "日本語のテキスト"
        pdf = self.draw(NotesText=f"left\n{hebrew}\n{japanese}\nعلي \U0001f4e0 é")
        lines = self.lines(pdf)
        self.assertAlmostEqual(lines[0][1], INSET, delta=1.5)
        self.assertAlmostEqual(lines[1][3], 612 - INSET, delta=1.5)
        self.assertGreater(lines[1][1], 400)
        self.assertAlmostEqual(lines[2][1], INSET, delta=1.5)
        text = run("pdftotext", pdf, "-").decode()
        self.assertIn(japanese, text)
        self.assertIn("שלום", text)
        self.assertNotIn("LastResort", run("pdffonts", pdf).decode())

    def test_an_empty_cover_is_a_white_page(self):
        pdf = self.draw(SenderLabel="From", NotesLabel="Notes")
        self.assertEqual(run("pdftotext", pdf, "-").strip(b"\f\n"), b"")
        page = run("pdftoppm", "-r", "20", "-gray", pdf)
        self.assertEqual(set(page.split(b"\n", 3)[3]), {255})


class Jobs(Scratch):
    def setUp(self):
        super().setUp()
        self.spool = self.scratch / "spool"
        self.spool.mkdir()
        self.job = self.scratch / "job.ps"
        self.job.write_bytes(JOB)
        self.environment = {
            "PATH": os.environ["PATH"],
            "TMPDIR": str(self.spool),
            "PPD": str(PPD),
            "ZARVO_APPLICATION_SUPPORT": str(self.scratch / "support"),
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", ""),
        }

    def command(self, *fax_options, program=BIN / "zarvofilter"):
        options = [
            "com.zarvo.print.EmitJTML..n=0",
            "com.zarvo.print.JobType..d_JobType..n=5",
            "com.zarvo.print.FaxRecipientList..a_0..d_FirstName=Charles",
            "com.zarvo.print.FaxRecipientList..a_0..d_FaxNumber=5550100",
            *fax_options,
        ]
        return [program, "1", "user", "title", "1", " ".join(options), self.job]

    def filter(self, *fax_options, **options):
        done = subprocess.run(
            self.command(*fax_options, **options),
            env=self.environment,
            capture_output=True,
            timeout=60,
        )
        self.assertEqual(done.returncode, 0)
        self.assertEqual(list(self.spool.iterdir()), [])
        errors = [line for line in done.stderr.decode().splitlines() if line.startswith("ERROR")]
        return done.stdout, errors

    def pages(self, output):
        """The PostScript part as Ghostscript makes a PDF file of it."""
        start = output.index(b"LANGUAGE = POSTSCRIPT\n") + len(b"LANGUAGE = POSTSCRIPT\n")
        end = output.rindex(b"\x1b%-12345X@PJL EOJ")
        body, pdf = self.scratch / "body.ps", self.scratch / "body.pdf"
        body.write_bytes(output[start:end])
        said = run("gs", "-q", "-dSAFER", "-dBATCH", "-sDEVICE=pdfwrite", f"-o{pdf}", body)
        self.assertEqual(said, b"")
        return pdf

    def ink(self, pdf, left, top, right, bottom):
        """How dark a part of the first page is, 0 to 255, in points from its upper left corner."""
        box = ["-x", left, "-y", top, "-W", right - left, "-H", bottom - top]
        page = run("pdftoppm", "-f", "1", "-l", "1", "-r", "72", "-gray", *map(str, box), pdf)
        pixels = page.split(b"\n", 3)[3]
        return 255 - sum(pixels) / len(pixels)

    COVER = [
        option("CoverSheet", "b", "true"),
        option("ShowSender", "b", "true"),
        option("LocalizedFromLabel", "s", "From"),
        option("SenderName", "s", "Ada"),
        option("LocalizedFaxLabel", "s", "Fax"),
        option("SenderFaxNumber", "s", "5550199"),
        option("ShowRecipients", "n", 2),
        option("LocalizedToLabel", "s", "To"),
        option("LocalizedNotesLabel", "s", "Notes"),
        option("CoverSheetNotes", "s", "Two\nlines, 日本語"),
    ]

    def test_cover_is_the_first_page(self):
        for size, paper in ((1, "612 x 792"), (2, "595 x 842")):
            for ppd in (str(PPD), None):
                with self.subTest(size=size, ppd=ppd):
                    self.environment.pop("PPD", None)
                    if ppd:
                        self.environment["PPD"] = ppd
                    output, errors = self.filter(*self.COVER, option("Size", "n", size))
                    self.assertEqual(errors, [])
                    self.assertEqual(output.count(b"\x1b%-12345X@PJL JOB"), 1)
                    pdf = self.pages(output)
                    info = run("pdfinfo", "-f", "1", "-l", "9", pdf).decode()
                    sizes = re.findall(r"Page +\d+ size: +(\d+ x \d+)", info)
                    self.assertEqual(sizes, [paper, "612 x 792"])
                    text = run("pdftotext", "-layout", pdf, "-").decode().split("\f")
                    cover = [line for line in text[0].splitlines() if line]
                    expected = ["From", "Ada", "Fax : 5550199", "To", "Charles", "Notes", "Two"]
                    self.assertEqual(cover[: len(expected)], expected)
                    self.assertEqual(text[1].strip(), "Body")

    def test_watermark_lies_over_the_cover(self):
        store = self.scratch / "support" / "Zarvo"
        store.mkdir(parents=True)
        mark = {"textString": "DRAFT", "fontName": "Helvetica-Bold", "fontSize": 100}
        mark |= {"xPos": 100.0, "yPos": 300.0, "angle": 0, "density": 40}
        (store / "com.zarvo.printing.faximage.plist").write_bytes(plistlib.dumps({"Mark": mark}))
        marked = [option("ShowWatermark", "b", "true"), option("WatermarkName", "s", "Mark")]
        for size, height in ((1, 792), (2, 842)):
            with self.subTest(size=size):
                sheet = option("Size", "n", size)
                place = (100, height - 375, 480, height - 300)
                plain = self.pages(self.filter(*self.COVER, sheet)[0])
                self.assertEqual(self.ink(plain, *place), 0)
                header = self.ink(plain, 30, 100, 130, 200)
                output, errors = self.filter(*self.COVER, sheet, *marked)
                self.assertEqual(errors, [])
                pdf = self.pages(output)
                self.assertIn(b"Pages:           2", run("pdfinfo", pdf))
                # Four tenths of the ink of black letters, which cover about half of the place.
                self.assertTrue(25 < self.ink(pdf, *place) < 80)
                self.assertAlmostEqual(self.ink(pdf, 30, 100, 130, 200), header, delta=4)

    def test_bad_programs_leave_the_job_whole(self):
        plain, _ = self.filter(option("CoverSheet", "b", "false"))
        alone = shutil.copy(BIN / "zarvofilter", self.scratch)  # without the helper beside it
        if not pathlib.Path("/usr/lib/zarvo/zarvodraw").exists():
            output, errors = self.filter(*self.COVER, program=alone)
            self.assertEqual((output, len(errors)), (plain, 1))
        filters = self.scratch / "filters"
        filters.mkdir()
        self.environment["ZARVO_FILTER_DIR"] = str(filters)
        for script in ("kill -SEGV $$", "head -c 100000 /dev/urandom", "echo '%!PS-Adobe-3.0'; exit 1"):
            for name in ("pdftops", "pstops"):
                (filters / name).write_text(f"#!/bin/sh\n{script}\n")
                (filters / name).chmod(0o755)
            output, errors = self.filter(*self.COVER)
            self.assertEqual((output, len(errors)), (plain, 1))
        # Without the spooler's filters the cover comes from poppler.
        (filters / "pstops").unlink()
        output, errors = self.filter(*self.COVER)
        self.assertEqual(errors, [])
        self.assertIn(b"Charles", run("pdftotext", self.pages(output), "-"))

    def test_being_killed_leaves_nothing_behind(self):
        filters, told = self.scratch / "filters", self.scratch / "told"
        filters.mkdir()
        self.environment["ZARVO_FILTER_DIR"] = str(filters)
        for name in ("pdftops", "pstops"):
            (filters / name).write_text(f"#!/bin/sh\necho $$ > {told}.{name}\nexec sleep 60\n")
            (filters / name).chmod(0o755)
        waiting = [pathlib.Path(f"{told}.{name}") for name in ("pdftops", "pstops")]
        with subprocess.Popen(
            self.command(*self.COVER), env=self.environment, stdout=-1, stderr=subprocess.DEVNULL
        ) as process:
            while not all(file.exists() and file.read_text() for file in waiting):
                self.assertIsNone(process.poll())
                time.sleep(0.01)
            process.send_signal(signal.SIGKILL)
        self.assertEqual(list(self.spool.iterdir()), [])
        for file in waiting:
            status = pathlib.Path("/proc", file.read_text().strip(), "status")
            deadline = time.monotonic() + 10
            while status.exists() and "(zombie)" not in status.read_text():
                self.assertLess(time.monotonic(), deadline)
                time.sleep(0.01)


if __name__ == "__main__":
    unittest.main()
