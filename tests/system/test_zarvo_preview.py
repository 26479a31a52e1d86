#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""zarvo preview, print and doctor: real files, the real spooler, pictures that are measured."""

import json
import os
import pathlib
import pty
import shutil
import subprocess
import unittest

from cupsd import PrivateCupsd, Printer
from pictures import box_of, read_png
from zarvo import ALL_SECTIONS, BIN, OUTPUT, PPD, ZarvoTest, document

A4 = (595, 842)
BOOKLET = {
    "BookletLayout": True,
    "BookletDrawOutlines": "on",
    "PageSize": "A4",
    "JTMLOptions": {"JTMLOptionAll": True},
}


def marked(pages):
    """A4 pages, each with a bar of its own colour; they suit the watermark's code."""
    text = """%!PS-Adobe-3.0
%%BeginProlog
/md 200 dict def md begin /bd { bind def } bind def /F false def /pgsave 0 def end
/ep { pgsave restore showpage } def
%%EndProlog
%%BeginSetup
md begin << /PageSize [595 842] >> setpagedevice
%%EndSetup
"""
    for page in range(1, pages + 1):
        text += f"%%Page: {page} {page}\n%%BeginPageSetup\n/pgsave save def\n%%EndPageSetup\n"
        text += f"{page / 10} 0 1 setrgbcolor 100 600 400 60 rectfill\n"
        text += f"0 setgray /Helvetica-Bold 160 selectfont 250 420 moveto ({page}) show\nep\n"
    return text + "%%Trailer\nend\n%%EOF\n"


def page_text(pdf):
    return [page.strip() for page in subprocess.run(
        ["pdftotext", pdf, "-"], capture_output=True, text=True, check=True
    ).stdout.split("\f")][:-1]


class Preview(ZarvoTest):
    def test_booklet_with_watermark(self):
        self.run_zarvo("watermark", "add-text", "DRAFT", "--color", "#cc0000")
        settings = self.path("booklet.json", json.dumps(
            BOOKLET | {"watermark.Watermark": "DRAFT", "watermark.Option": "foreground"}))
        job = self.path("eight.ps", marked(8))
        plan = self.run_zarvo("preview", job, "-s", settings, "-p", str(PPD),
                              "--output", "sheet.png", "--resolution", "72")
        self.assertEqual(plan.splitlines()[0],
                         "sheet.png: 4 sheet sides on 2 sheets, booklet, A4, 210 x 297 mm")
        # The outer sheet: 8 and 1 on its front, 2 and 7 on its back; the first page is the lower
        # one, because pages are turned clockwise.
        for side, (upper, lower) in enumerate([(8, 1), (2, 7), (6, 3), (4, 5)], 1):
            rows = read_png(self.scratch / f"sheet-{side}.png")
            for page, half in ((upper, 0), (lower, 1)):
                box = box_of(rows, (round(25.5 * page), 0, 255), 3)
                with self.subTest(side=side, page=page):
                    self.assertIsNotNone(box)
                    self.assertEqual(half, int((box[1] + box[3]) / 2 > len(rows) / 2))
            draft = box_of(rows, (204, 0, 0), 10)
            self.assertLess(draft[1], len(rows) / 2)
            self.assertGreater(draft[3], len(rows) / 2)
            shutil.copy(self.scratch / f"sheet-{side}.png", OUTPUT / f"booklet-{side}.png")

    def test_covers_and_inserts_are_named_in_their_place(self):
        settings = self.path("s.json", json.dumps({
            "JTMLOptions": {"JTMLOptionAll": True},
            "FinishingDuplex": "long-edge",
            "SpecialPages.FrontCover": {"SidesImaged": "none", "Stock": {"Size": "a4", "Color": "blue"}},
            "SpecialPages.BackCover": {"SidesImaged": "both", "Stock": {"Size": "a4"}},
            "SpecialPages.InsertList": [
                {"StartPage": 3, "Quantity": 2, "Stock": {"Color": "pink", "Size": "a4"}},
                {"StartPage": 1, "Stock": {"Name": "Tab (1)"}},
                {"StartPage": 99, "Stock": {"Size": "a4"}},
            ],
        }))
        plan = self.run_zarvo("preview", self.path("j.ps", document(4, A4)), "-s", settings,
                              "--output", "out.pdf", "-o", "PageSize=A4")
        self.assert_golden("preview-plan.txt", plan)
        texts = page_text(self.scratch / "out.pdf")
        self.assertEqual([text.split(",")[0] for text in texts], [
            "front cover", "1", "1 sheet after page 1", "2", "3", "2 sheets after page 3", "4",
            "1 sheet after page 99"])

    def test_pdf_through_the_spooler_and_pipes(self):
        subprocess.run(["gs", "-q", "-o", self.scratch / "in.pdf", "-sDEVICE=pdfwrite",
                        self.path("in.ps", document(3))], check=True)
        out = subprocess.run([BIN / "zarvo", "preview", "in.pdf", "--output", "-", "-p", PPD,
                              "-o", "page-ranges=2-3", "-o", ALL_SECTIONS],
                             capture_output=True, env=self.environment, cwd=self.scratch, check=True)
        self.assertEqual(page_text(self.path("out.pdf", out.stdout)), ["2", "3"])
        self.assertEqual(out.stderr, b"")
        self.assertEqual(list(self.scratch.glob("zarvo-*")), [])  # nothing stays behind

    def test_what_cannot_be_drawn(self):
        for content, cause in {
            b"": "neither PostScript nor PDF",
            b"%PDF-1.4 nonsense": "cannot",
            b"%!PS-Adobe-3.0\n%%Page: 1 1\nundefinedname\n%%EOF\n": "/undefined in undefinedname",
        }.items():
            with self.subTest(content):
                self.run_zarvo("preview", self.path("job", content), status=2)
                self.assertIn(cause, self.errors)
        good = self.path("good.ps", document())
        self.run_zarvo("preview", good, "-p", self.path("bad.ppd", "no PPD"), status=2)
        self.run_zarvo("preview", good, "-s", self.path("bad.json", '{"a b": {"c": 1}}'), status=2)
        self.run_zarvo("preview", good, "--output", "/missing/x.pdf", status=2)


class Spooler(ZarvoTest):
    def test_print_and_queue(self):
        settings = self.path("s.json", json.dumps({
            "JobType": {"JobType": "secure", "SecurePrintPassword": "4 2'7"},
            "JTMLOptions": {"JTMLOptionAll": True},
            "JobNotesMessage": "a \"b\" 'c' \\ {d}, \u00e9",
        }))
        job = self.path("job.ps", document(2))
        with PrivateCupsd() as cupsd, Printer() as printer:
            cupsd.add_queue("office", PPD, printer.uri)
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{cupsd.port}"
            self.run_zarvo("print", job, settings, "-d", "office", "-t", "A title", "-o", "sides=one-sided")
            received = printer.wait()
            told = self.run_zarvo("explain", stdin=received)
            self.assertIn("PIN: set", told)
            self.assertIn("message to the operator: a \"b\" 'c' \\ {d}, \u00e9", told)
            plan = self.run_zarvo("preview", job, "-s", settings, "-q", "office", "--output", "x.pdf")
            self.assertIn("2 pages on 2 sheets", plan)
            self.run_zarvo("preview", job, "-q", "nowhere", status=2)
            self.doctor(cupsd)
        self.run_zarvo("print", job, "-d", "office", status=1)  # lp's own status

    def doctor(self, cupsd):
        """Every fault is found, and none where there is none."""
        self.environment["ZARVO_FILTER_DIR"] = str(cupsd.serverbin / "filter")
        self.run_zarvo("watermark", "add-text", "DRAFT")
        self.run_zarvo("watermark", "add-text", "DRAFT", "--fax")
        told = self.run_zarvo("doctor")
        self.assertNotIn("WRONG", told)
        self.assertIn("queue: office", told)
        filter_path = cupsd.serverbin / "filter/zarvofilter"
        store = self.scratch / "data/Zarvo/com.zarvo.printing.watermarks.plist"
        whole = store.read_bytes()

        def faults():
            report = json.loads(self.run_zarvo("doctor", "--json", status=1))
            return [f"{c['what']}: {c['text']}" for c in report if c["state"] == "WRONG"]

        filter_path.chmod(0o775)
        self.assertIn("filter: others may write it", faults()[0])
        filter_path.chmod(0o555)
        os.chown(filter_path, 1, 1)
        self.assertIn("filter: does not belong to root", faults()[0])
        os.chown(filter_path, 0, 0)
        store.write_bytes(whole[:-30])
        self.assertEqual(faults(), ["store: is damaged"])
        store.write_bytes(whole.replace(b"<key>DRAFT</key>", b"<key>OTHER</key>"))
        self.assertIn("watermark: is in the list", faults()[0])
        store.write_bytes(whole)
        store.chmod(0o600)
        self.assertEqual(faults(), ["store: the spooler's user cannot read it"])
        store.chmod(0o644)
        (cupsd.serverbin / "filter/pstops").unlink()
        self.assertIn("converter: is missing", faults()[0])


class Manners(ZarvoTest):
    def test_help_and_usage(self):
        overview = self.run_zarvo("--help")
        for command in ("preview", "explain", "ticket", "print", "watermark", "recipient", "fax",
                        "doctor", "manual"):
            self.assertIn(f"\n  {command} ", overview)
            self.assertIn("Examples:", self.run_zarvo(command, "--help"))
        for wrong in ([], ["nonsense"], ["ticket"], ["explain", "--nonsense"], ["preview"]):
            self.run_zarvo(*wrong, status=2)

    def test_manual_pages_and_completion(self):
        self.run_zarvo("manual", "--man", "man")
        pages = sorted(pathlib.Path(self.scratch, "man").iterdir())
        self.assertEqual(len(pages), 10)
        for page in pages:
            told = subprocess.run(["groff", "-man", "-Tutf8", "-ww", page], capture_output=True)
            self.assertEqual(told.stderr, b"", page.name)
        completion = self.path("complete.bash", self.run_zarvo("manual", "--bash"))
        script = (f". {completion}; COMP_WORDS=(zarvo watermark add-te); COMP_CWORD=2; _zarvo; "
                  "echo ${COMPREPLY[@]}; COMP_WORDS=(zarvo ticket decode --s); COMP_CWORD=3; _zarvo; "
                  "echo ${COMPREPLY[@]}")
        answer = subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=True)
        self.assertEqual(answer.stdout.split(), ["add-text", "--secrets"])

    def test_colour_only_on_a_terminal(self):
        job = self.path("job.prn", b"@PJL JOB\n")
        self.assertNotIn("\033", self.run_zarvo("explain", job, status=1))
        master, slave = pty.openpty()
        subprocess.run([BIN / "zarvo", "explain", job], stdout=slave, stderr=slave,
                       env=self.environment)
        os.close(slave)
        self.assertIn(b"\033[31m", os.read(master, 65536))
        os.close(master)


if __name__ == "__main__":
    unittest.main()
