#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""zarvo preview, print and doctor: real files, the real spooler, pictures that are measured."""

import contextlib
import json
import os
import pathlib
import pty
import re
import signal
import socket
import subprocess
import threading
import time
import unittest

from cupsd import PrivateCupsd, Printer
from pictures import ghostscript, png, read_png, run
from zarvo import ALL_SECTIONS, BIN, PPD, SOURCE, ZarvoTest, document


def marked(pages):
    """A4 pages that suit the watermark's code, each with a bar as long as its number says."""
    head = (SOURCE / "tests/golden/input/watermark.ps").read_text().split("%%Page:")[0]
    text = head.replace("%%EndSetup", "<< /PageSize [595 842] >> setpagedevice\n%%EndSetup")
    for page in range(1, pages + 1):
        text += f"%%Page: {page} {page}\n%%BeginPageSetup\nbp\n%%EndPageSetup\n"
        text += f"0 0 1 setrgbcolor 100 600 {50 * page} 60 rectfill\nep\n"
    return text + "%%Trailer\nend\n%%EOF\n"


def page_text(pdf):
    return [page.strip() for page in run(["pdftotext", pdf, "-"]).decode().split("\f")][:-1]


class Preview(ZarvoTest):
    def test_booklet_with_watermark(self):
        self.run_zarvo("watermark", "add-text", "DRAFT", "--color", "#cc0000")
        settings = self.path("s.json", {
            "BookletLayout": True, "PageSize": "A4", "JTMLOptions": {"JTMLOptionAll": True},
            "watermark.Watermark": "DRAFT", "watermark.Option": "foreground",
        })
        plan = self.run_zarvo("preview", self.path("eight.ps", marked(8)), "-s", settings, "-p", str(PPD),
                              "--output", "sheet.png", "--resolution", "72")
        self.assertEqual(plan.splitlines()[0],
                         "sheet-1.png to sheet-4.png: 4 sheet sides on 2 sheets, booklet, A4, "
                         "210 x 297 mm")
        # The outer sheet, upright: 8 and 1 on its front, 2 and 7 on its back.
        bars = []
        for side in range(1, 5):
            sheet = read_png(self.scratch / f"sheet-{side}.png")
            self.assertEqual((sheet.width, sheet.height), (842, 595))
            for half in ((0, 0, 0.5, 1), (0.5, 0, 1, 1)):
                bars.append(sheet.count("blue", *half))
                self.assertGreater(sheet.count("red", *half), 500)
        self.assertEqual([round(bar / bars[1]) for bar in bars], [8, 1, 2, 7, 6, 3, 4, 5])

    def test_what_explain_finds_wrong(self):
        """A page that paints its own ground hides the mark behind it; what a person is to know
        about the rest stands in the margin of the first page."""
        self.run_zarvo("watermark", "add-text", "DRAFT", "--color", "#cc0000")
        ground = document(3, (595, 842)).replace("/Helvetica", "1 setgray clippath fill 0 setgray /Helvetica", 1)
        ground = ground.replace("%%BeginProlog", "%%EndDocument\n%%BeginProlog", 1)  # of nothing that began
        hooked = pathlib.Path(self.path("hooks.ppd", PPD.read_text() + '*ZRVPageHooks: True\n'))
        settings = self.path("s.json", {
            "watermark.Watermark": "DRAFT", "watermark.Option": "background",
            "JTMLOptions": {"JTMLOptionAll": True}, "FinishingOptions": 4, "FinishingStaple1Value": 5,
            "PageSize": "A4"})
        plan = self.run_zarvo("preview", self.path("j.ps", ground), "-s", settings, "-p", str(hooked),
                              "--output", "p.png", "--resolution", "36", status=1)
        self.assertIn("cannot be seen on page 1,", self.errors)
        self.assertIn('watermark "DRAFT", behind the page\n  stapled top left', plan)
        pages = [read_png(self.scratch / f"p-{page}.png") for page in (1, 2, 3)]
        self.assertEqual([page.count("red") > 50 for page in pages], [False, True, True])
        self.assertEqual([page.height > 421 for page in pages], [True, False, False])
        self.run_zarvo("preview", self.path("j.ps", ground), "-p", str(BIN.parent / "ppd/zarvo.ppd"),
                       "-o", "Fold=Half", status=1)
        self.assertEqual(self.errors.count("folded in the middle"), 1, self.errors)

    def test_covers_and_inserts_are_named_in_their_place(self):
        settings = self.path("s.json", {
            "JTMLOptions": {"JTMLOptionAll": True},
            "FinishingDuplex": "long-edge",
            "SpecialPages.FrontCover": {"SidesImaged": "none", "Stock": {"Size": "a4", "Color": "blue"}},
            "SpecialPages.BackCover": {"SidesImaged": "both", "Stock": {"Size": "a4"}},
            "SpecialPages.InsertList": [
                {"StartPage": 3, "Quantity": 2, "Stock": {"Color": "pink", "Size": "a4"}},
                {"StartPage": 1, "Stock": {"Name": "Tab (1)"}},
                {"StartPage": 99, "Stock": {"Size": "a4"}},
            ],
        })
        plan = self.run_zarvo("preview", self.path("j.ps", document(5, (595, 842))), "-s", settings,
                              "--output", "out.pdf", "-o", "PageSize=A4")
        self.assert_golden("preview-plan.txt", plan)
        texts = page_text(self.scratch / "out.pdf")
        self.assertEqual([text.split(",")[0] for text in texts], [
            "front cover", "1", "1 sheet after page 1", "2", "3", "2 sheets after page 3", "4", "5",
            "1 sheet after page 99"])

    def test_pdf_through_the_spooler_and_pipes(self):
        self.path("in.pdf", ghostscript("pdfwrite", document(3).encode()))
        out = subprocess.run([BIN / "zarvo", "preview", "in.pdf", "--output", "-", "-p", PPD,
                              "-o", "page-ranges=2-3", "-o", ALL_SECTIONS],
                             capture_output=True, env=self.environment, cwd=self.scratch, check=True)
        self.assertEqual(page_text(self.path("out.pdf", out.stdout)), ["2", "3"])
        self.assertEqual(out.stderr, b"")
        opener = pathlib.Path(self.path("xdg-open", '#!/bin/sh\ncp "$1" shown.pdf\n'))
        opener.chmod(0o755)
        self.environment["PATH"] = f"{self.scratch}:" + self.environment["PATH"]
        self.run_zarvo("preview", "-", "--open", stdin=out.stdout, status=2)
        self.assertIn("no display", self.errors)
        self.environment["DISPLAY"] = ":0"
        self.run_zarvo("preview", "-", "--open", stdin=out.stdout)
        self.assertEqual(len(page_text(self.scratch / "shown.pdf")), 2)
        self.run_zarvo("preview", "in.pdf", "--open", "--output", "-", status=2)
        endless = self.path("endless.ps", "%!PS-Adobe-3.0\n%%Page: 1 1\n{} loop\n%%EOF\n")
        drawing = subprocess.Popen([BIN / "zarvo", "preview", endless], env=self.environment)
        while not list(self.scratch.glob("zarvo-*/piece-*.pdf")):
            time.sleep(0.05)
        drawing.send_signal(signal.SIGINT)
        self.assertEqual(drawing.wait(30), -signal.SIGINT)
        self.assertEqual([*self.scratch.glob("zarvo-*"), *self.scratch.glob("gs_*")], [])

    def test_what_cannot_be_drawn(self):
        good, pdf = document(), ghostscript("pdfwrite", document(3).encode())
        for content, options, cause in (
            ("", [], "neither PostScript nor PDF"),
            ("%PDF-1.4 nonsense", [], "cannot"),
            ("%!PS-Adobe-3.0\n%%Page: 1 1\nundefinedname\n%%EOF\n", [], "/undefined in undefinedname"),
            (good, ["-p", self.path("bad.ppd", "no PPD")], "bad.ppd"),
            (good, ["-s", self.path("bad.json", '{"a b": {"c": 1}}')], "a b"),
            (good, ["-p", str(BIN.parent / "ppd/zarvo.ppd"), "-o", "JobType=Secure"], "a secure job needs a PIN"),
            (pdf, ["-p", str(BIN.parent / "ppd/zarvo.ppd"), "-o", "page-ranges=9"], "none of these pages"),
            (good, ["--output", "/missing/x.pdf"], "/missing"),
            (good, ["--output", "x.jpg"], "neither in .pdf nor in .png"),
            ("PK\3\4mimetypeapplication/vnd.oasis.opendocument.text", [], "libreoffice-writer-nogui"),
        ):
            with self.subTest(cause):
                self.run_zarvo("preview", self.path("job", content), *options, status=2)
                self.assertIn(cause, self.errors)


def way_that_breaks(port):
    """The port of a way to a spooler on which each connection breaks when a whole document has gone over it,
    before the spooler's answer."""
    way = socket.create_server(("127.0.0.1", 0))

    def forward(source, target, is_client):
        data = b""
        with contextlib.suppress(OSError), source:
            while piece := source.recv(1 << 16):
                data = data[-99:] + piece
                if is_client and b"%%EOF" in data and data.endswith(b"0\r\n\r\n"):
                    source.shutdown(socket.SHUT_RDWR)
                target.sendall(piece)
            target.shutdown(socket.SHUT_RDWR)

    def serve():
        while True:
            client, _ = way.accept()
            spooler = socket.create_connection(("127.0.0.1", port))
            for ends in (client, spooler, True), (spooler, client, False):
                threading.Thread(target=forward, args=ends, daemon=True).start()

    threading.Thread(target=serve, daemon=True).start()
    return way.getsockname()[1]


class Spooler(ZarvoTest):
    def test_no_answer_is_no_success(self):
        with PrivateCupsd() as cupsd:
            cupsd.add_queue("office", PPD, "socket://127.0.0.1:9")
            cupsd.run("cupsdisable", "office")
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{way_that_breaks(cupsd.port)}"
            self.run_zarvo("print", self.path("job.ps", document()), "-d", "office", status=2)
            self.assertIn("office-1: the spooler did not say that it has the document. It was canceled", self.errors)
            self.assertEqual(cupsd.run("lpstat", "-o"), "")

    def test_print_and_queue(self):
        settings = self.path("s.json", {
            "JobType": {"JobType": "secure", "SecurePrintPassword": "0391"},
            "JTMLOptions": {"JTMLOptionAll": True},
            "JobNotesMessage": "a \"b\" 'c' \\ {d}, \u00e9",
        })
        job = self.path("job.ps", document(2))
        with PrivateCupsd() as cupsd, Printer() as printer:
            cupsd.add_queue("office", PPD, printer.uri)
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{cupsd.port}"
            self.run_zarvo("print", job, settings, "-d", "office", "-o", "sides=one-sided", "-n", "2")
            told = self.run_zarvo("explain", stdin=printer.wait())
            self.assertIn("  copies: 2\n", told)
            self.run_zarvo("print", job, self.path("bad.json", '{"JobType": {"SecurePrintPassword": "qwerty"}}'),
                           "-d", "office", status=2)
            self.assertIn("4 to 10 digits", self.errors)
            self.assertIn("PIN: set", told)
            self.assertIn("message to the operator: a \"b\" 'c' \\ {d}, \u00e9", told)
            plan = self.run_zarvo("preview", job, "-s", settings, "-q", "office", "--output", "x.pdf")
            self.assertIn("2 pages on 2 sheets", plan)
            for command in ("preview", job, "-q", "ofice"), ("print", job, "-d", "ofice"):
                self.run_zarvo(*command, status=2)
                self.assertIn("ofice: there is no such queue; did you mean office?", self.errors)
            faulty = self.path("faulty.json", {"siides": "one-sided"})
            self.run_zarvo("print", job, faulty, "-d", "office", status=2)
            self.assertIn("siides: unknown option; did you mean sides?", self.errors)
            for option in ("Duplx=None", "Duplex=Nune"):
                self.run_zarvo("print", job, "-d", "office", "-o", option, status=2)
                self.assertRegex(self.errors, "did you mean (Duplex|None)")
            self.run_zarvo("print", job, faulty, "-d", "office", "--force")
            self.assertTrue(printer.wait())
            cupsd.add_queue("ours", BIN.parent / "ppd/zarvo.ppd", printer.uri)
            secure = ["print", job, "-d", "ours", "-o", "JobPIN=Custom.0391", "-o"]
            self.run_zarvo(*secure, "JobType=Secure")
            self.assertIn("PIN: set", self.run_zarvo("explain", stdin=printer.wait()))
            self.run_zarvo(*secure, "JobType=Proof", status=2)
            self.assertIn("cannot keep a PIN", self.errors)
            if os.geteuid() == 0:
                self.doctor(cupsd.serverbin / "filter")
            else:  # whose programs the spooler would not run
                self.environment["ZARVO_FILTER_DIR"] = str(cupsd.serverbin / "filter")
                self.assertIn("does not belong to root", self.run_zarvo("doctor", status=1))
            self.privacy(cupsd.root / "cupsd.conf")
        self.run_zarvo("print", job, "-d", "office", status=2)  # nobody answers

    def test_no_program_gets_a_pin(self):
        """Everybody reads the arguments of all programs, and who is the same user their environment."""
        self.path("in.pdf", ghostscript("pdfwrite", document().encode()))
        office = pathlib.Path(self.path("soffice", '#!/bin/sh\nmkdir "$8"; cp in.pdf "$8/letter.pdf"\n'))
        office.chmod(0o755)
        letter = self.path("letter.odt", "PK\3\4mimetypeapplication/vnd.oasis.opendocument.text")
        self.environment["PATH"] = f"{self.scratch}:" + self.environment["PATH"]
        self.environment["ASAN_OPTIONS"] = "detect_leaks=0"  # which another tracer hinders
        trace = self.scratch / "trace"
        self.prefix = ["strace", "-f", "-qq", "-v", "-s", "99999", "-e", "trace=execve", "-o", trace]
        with PrivateCupsd() as cupsd, Printer() as printer:
            cupsd.add_queue("office", BIN.parent / "ppd/zarvo.ppd", printer.uri)
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{cupsd.port}"
            for pin in (
                {"JobType": {"JobType": "secure", "SecurePrintPassword": "8260391745"}},
                {"jobpin": "Custom.8260391745"}, {"JobPIN": "{Value=8260391745}"},
                {"Job-Password": "8260391745"},
            ):
                settings = self.path("s.json", pin)
                for command, programs in (
                    (("print", letter, settings, "-d", "office"), {"zarvo", "soffice"}),
                    (("preview", letter, "-s", settings, "-q", "office", "--output", "x.pdf"),
                     {"zarvo", "soffice", "cupsfilter", "pdftops", "zarvofilter", "gs"}),
                ):
                    with self.subTest(pin=pin, command=command[0]):
                        self.run_zarvo(*command)
                        started = trace.read_text()
                        self.assertLessEqual(programs, set(re.findall(r'execve\(".*?([\w-]+)",', started)))
                        self.assertNotIn("8260391745", started)
                with self.subTest(pin=pin):
                    job = printer.wait()
                    self.assertIn(b"JOB_TYPE_SECURE_PRINT", job[: job.index(b"%!PS-Adobe")])
            settings = self.path("s.json", {"JobPIN": "Custom.8260391745", "job-password": "8260391740"})
            self.run_zarvo("preview", letter, "-s", settings, "-q", "office", status=2)
            self.assertIn("two different PINs", self.errors)
            self.assertNotIn("cupsfilter", trace.read_text())

    def test_examples_of_the_help(self):
        """Every command's own examples do what they say, in the order of the commands."""
        self.run_zarvo("watermark", "add-text", "DRAFT")
        ours = BIN.parent / "ppd/zarvo.ppd"
        for name in ("settings.json", "booklet.json", "secure.json"):
            self.path(name, {"JTMLOptions": {"JTMLOptionAll": True}, "FinishingOptions": 4})
        self.path("options.txt", "com.zarvo.print.BannerPage..b=true")
        self.path("logo.png", png(30, 20, (0, 0, 255)))
        self.path("garamond.pfb", "%!PS-AdobeFont\n/FontName /Garamond def\n")
        self.path("printer.ppd", ours.read_text())
        self.path("report.pdf", ghostscript("pdfwrite", document(3).encode()))
        self.path("report.ps", document(2))
        for name in ("job.prn", "annual.prn"):
            self.path(name, self.filtered(ALL_SECTIONS, document()))
        with PrivateCupsd(shows_jobs=True) as cupsd, Printer() as printer:
            cupsd.add_queue("office", ours, printer.uri)
            self.environment |= {"CUPS_SERVER": f"127.0.0.1:{cupsd.port}", "DISPLAY": ":0",
                                 "CONFIGURATION": f"{cupsd.root}/cups-files.conf", "TERM": "dumb"}
            # What a machine that only builds lacks, or must not be asked for.
            shell = f"""set -e; sudo() {{ "$@"; }}; zarvo() {{ {BIN}/zarvo "$@"; }}; jq() {{ cat; }}
                cupsfilter() {{ command cupsfilter -c "$CONFIGURATION" "$@"; }}; man() {{ cat report.ps; }}
                """
            for opener in ("xdg-open", "zarvo-desk"):
                pathlib.Path(self.path(opener, "#!/bin/sh\n")).chmod(0o755)
            self.environment["PATH"] = f"{self.scratch}:" + self.environment["PATH"]
            for command in re.findall(r"^  (\w+)  ", self.run_zarvo("--help").split("Subcommands:")[1], re.M):
                told = self.run_zarvo(command, "--help")
                parts = re.findall(r"^  ([\w-]+)  ", told.partition("Subcommands:")[2], re.M)
                for part in parts:
                    own = self.run_zarvo(command, part, "--help").split("Examples:")[1]
                    self.assertIn(f"zarvo {command} {part}", own)
                if command == "why":
                    cupsd.wait_until_done(3)
                for example in told.split("Examples:\n")[1].splitlines():
                    with self.subTest(example):
                        done = subprocess.run(["sh", "-c", shell + example], env=self.environment,
                                              cwd=self.scratch, capture_output=True, text=True, timeout=120)
                        fine = done.returncode in ((0, 1) if command == "doctor" or " diff " in example else (0,))
                        self.assertTrue(fine, done.stdout + done.stderr)
            fax = [job for job in printer.wait(7) if b"JOB_TYPE_FAX_SEND" in job]
            numbers = [re.findall(rb'DESTINATION_PHONE "(.*?)"', job) for job in fax]
            self.assertEqual(numbers, [[b"442079460018"]] * 3)

    def privacy(self, configuration):
        self.environment["CUPS_SERVERROOT"] = str(configuration.parent)
        text = configuration.read_text()
        for lines, told in (
            ("", "secrets of jobs, policy default: JobPIN"),
            ("JobPrivateValues JobPIN # all", "policy default: job-password"),
            ("JobPrivateValues all\nJobPrivateAccess all", "policy default: JobPIN"),
            ("JobPrivateAccess @OWNER @SYSTEM\nJobPrivateValues all", "ok     privacy"),
        ):
            configuration.write_text(text.replace("<Policy default>", f"<Policy default>\n{lines}"))
            self.assertIn(told, self.run_zarvo("doctor", status=1))  # of what has been damaged above

    def doctor(self, filters):
        """Every fault is found, and none where there is none."""
        self.environment["ZARVO_FILTER_DIR"] = str(filters)
        self.scratch.chmod(0o755)  # jobs of the spooler's user must get at the stores
        self.run_zarvo("watermark", "add-text", "DRAFT")
        self.run_zarvo("watermark", "add-text", "DRAFT", "--fax")
        told = self.run_zarvo("doctor")
        self.assertNotIn("WRONG", told)
        self.assertIn("queue: office", told)
        self.assertRegex(told, "ok +confinement: drawing helper, image\n(.*\n)* *ok +confinement: .*page")
        program = filters / "zarvofilter"
        for place in ("data/Zarvo", "data/Zarvo/com.zarvo.printing.watermarks.plist"):
            os.chown(self.scratch / place, 0, 7)  # the spooler's user has them from its group
            (self.scratch / place).chmod(0o750)
        self.assertNotIn("WRONG", self.run_zarvo("doctor"))
        store = self.scratch / "data/Zarvo/com.zarvo.printing.watermarks.plist"
        whole = store.read_bytes()
        other = whole.replace(b"<key>DRAFT</key>", b"<key>OTHER</key>")
        for fault, cause, cure in (
            ("filter: others may write it", lambda: program.chmod(0o775), lambda: program.chmod(0o555)),
            ("filter: does not belong to root", lambda: os.chown(program, 1, 1),
             lambda: os.chown(program, 0, 0)),
            ("store: is damaged", lambda: store.write_bytes(whole[:-30]), None),
            ("watermark: is in the list", lambda: store.write_bytes(other),
             lambda: store.write_bytes(whole)),
            ("store: the spooler's user cannot read it", lambda: store.chmod(0o600),
             lambda: store.chmod(0o644)),
            ("converter: is missing", lambda: (filters / "pstops").unlink(), None),
        ):
            with self.subTest(fault):
                cause()
                report = json.loads(self.run_zarvo("doctor", "--json", status=1))
                [wrong] = [check for check in report if check["state"] == "WRONG"]
                self.assertTrue(f"{wrong['what']}: {wrong['text']}".startswith(fault), wrong)
                if cure:
                    cure()


class Manners(ZarvoTest):
    def test_help_and_usage(self):
        for wrong in ([], ["nonsense"], ["ticket"], ["explain", "--nonsense"], ["preview"]):
            self.run_zarvo(*wrong, status=2)
        self.run_zarvo("watermark", "\033nonsense", status=2)
        self.assertIn("zarvo: watermark: no such command: ?nonsense", self.errors)
        with open("/dev/full", "wb") as full:
            done = subprocess.run([BIN / "zarvo", "ticket", "keys"], stdout=full, stderr=full)
        self.assertEqual(done.returncode, 2)

    def test_manual_pages_and_completion(self):
        self.run_zarvo("manual", "--man", "man")
        pages = sorted(pathlib.Path(self.scratch, "man").iterdir())
        commands = re.findall(r"^  ([a-z]+) ", self.run_zarvo("--help").partition("Subcommands:")[2], re.M)
        self.assertEqual({page.name for page in pages},
                         {"zarvo.1", *(f"zarvo-{command}.1" for command in commands)})
        self.assertIn("metrics", commands)
        told = subprocess.run(["groff", "-man", "-Tutf8", "-ww", *pages], capture_output=True)
        self.assertEqual(told.stderr, b"")
        self.run_zarvo("recipient", "add", "--first", "Ada", "--last", "King", "--fax", "0911")
        script = self.path("try.bash", self.run_zarvo("manual", "--completion", "bash") + f"""
            zarvo() {{ {BIN}/zarvo "$@"; }}
            try() {{ COMP_LINE=$1 COMP_POINT=${{#1}}; _zarvo; echo ${{COMPREPLY[@]}}; }}
            try 'zarvo watermark add-te'; try 'zarvo ticket decode --s'; try 'zarvo fax '
            try 'zarvo fax send report.pdf --to Ada\\ K'""")
        told = subprocess.run(["bash", script], env=self.environment, capture_output=True, check=True).stdout
        self.assertEqual(told.split()[:3], [b"add-text", b"--secrets", b"send"])
        self.assertTrue(told.endswith(b"\nAda\\ King\n"), told)

    def test_colour_only_on_a_terminal(self):
        job = self.path("job.prn", b"@PJL JOB\n")
        self.assertNotIn("\033", self.run_zarvo("explain", job, status=1))
        master, slave = pty.openpty()
        subprocess.run([BIN / "zarvo", "explain", job], stdout=slave, env=self.environment)
        os.close(slave)
        self.assertIn(b"\033[31m", os.read(master, 65536))
        os.close(master)


if __name__ == "__main__":
    unittest.main()
