# SPDX-License-Identifier: Apache-2.0
"""Real jobs through a real spooler: what lp is given, and what reaches the printer."""

import os
import pathlib
import re
import subprocess
import unittest

from cupsd import PrivateCupsd, Printer

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
OUTPUT = pathlib.Path(os.environ["ZARVO_TEST_OUTPUT"]) / "spooler"
PPD = SOURCE / "tests/golden/ppd/test.ppd"
JOB = SOURCE / "tests/golden/input/plain.ps"
EXIT = b"\x1b%-12345X"

TICKET = [
    "-o", "com.zarvo.print.JobType..d_JobType..n=6",
    "-o", "com.zarvo.print.JobType..d_SecurePrintPassword=0391",
    "-o", "com.zarvo.print.BannerPage..b=false",
    "-o", "com.zarvo.Act.On..n=2",
    "-o", "com.zarvo.Act.UID=somebody",
]  # fmt: skip
HEADER = (
    EXIT
    + b"""@PJL JOB
@PJL COMMENT ZRVbegin
@PJL COMMENT OID_ATT_ACCOUNTING_INFORMATION_AVP "ZRV_USERID,somebody"
@PJL COMMENT OID_ATT_JOB_TYPE OID_VAL_JOB_TYPE_SECURE_PRINT;
@PJL COMMENT OID_ATT_JOB_PASSWORD "A^MG";
@PJL COMMENT OID_ATT_START_SHEET OID_VAL_JOB_SHEET_NONE
@PJL COMMENT ZRVend
@PJL ENTER LANGUAGE = POSTSCRIPT
%!PS-Adobe-3.0
"""
)
# The spooler's own filter ends what it sends with Ctrl-D, which passes through.
TRAILER = b"%%EOF\n" + EXIT + b"@PJL EOJ\n" + EXIT + b"\n\x04"


def render(job, name):
    """Page one as a picture; gives its number of dark pixels."""
    OUTPUT.mkdir(parents=True, exist_ok=True)
    source = OUTPUT / f"{name}.prn"
    source.write_bytes(job)
    picture = OUTPUT / f"{name}.pgm"
    start, end = job.index(b"%!PS-Adobe"), job.rindex(EXIT + b"@PJL EOJ")
    subprocess.run(
        ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pgmraw", "-r72",
         "-dFirstPage=1", "-dLastPage=1", f"-sOutputFile={picture}", "-"],
        input=job[start:end], check=True, timeout=60,
    )  # fmt: skip
    return sum(byte < 128 for byte in picture.read_bytes())


class Spooler(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.cupsd = cls.enterClassContext(PrivateCupsd())
        cls.printer = cls.enterClassContext(Printer())
        cls.cupsd.add_queue("zarvo", PPD, cls.printer.uri)

    def test_postscript_arrives_wrapped_and_whole(self):
        self.cupsd.print("zarvo", JOB, TICKET)
        received = self.printer.wait()
        self.assertEqual(received[: len(HEADER)], HEADER)
        self.assertTrue(received.endswith(TRAILER), received[-200:])
        self.assertIn(b"72 72 moveto (two) show\n", received)
        # The spooler and its own filters log the arguments they pass on; ours must not. The PIN may
        # stand inside a longer number (a port, a process id) by chance.
        known = ("argv[5]", "Running command line for pstops")
        lines = [
            line for line in self.cupsd.log().splitlines() if not any(text in line for text in known)
        ]
        self.assertFalse([line for line in lines if re.search(r"(?<![0-9.])0391(?![0-9])", line)])

    def test_pdf_is_converted_and_wrapped(self):
        pdf = OUTPUT / "hello.pdf"
        OUTPUT.mkdir(parents=True, exist_ok=True)
        program = b"%!PS\n/Times-Roman 40 selectfont 72 400 moveto (A page of text) show showpage\n"
        subprocess.run(["ps2pdf", "-", str(pdf)], input=program, check=True)
        self.cupsd.print("zarvo", pdf, TICKET)
        received = self.printer.wait()
        self.assertEqual(received[: len(HEADER)], HEADER)
        self.assertTrue(received.endswith(TRAILER), received[-200:])
        self.assertGreater(render(received, "pdf"), 500)

    def test_fax_goes_out_with_its_cover(self):
        fax = [
            "com.zarvo.print.JobType..d_JobType..n=5",
            "com.zarvo.print.FaxRecipientList..a_0..d_FaxNumber=5550100",
            "com.zarvo.print.FaxOptions..d_CoverSheet..b=true",
            "com.zarvo.print.FaxOptions..d_CoverSheetNotes=" + "Black_" * 40,
        ]
        job = OUTPUT / "fax.ps"
        OUTPUT.mkdir(parents=True, exist_ok=True)
        job.write_text("%!PS-Adobe-3.0\n%%Page: 1 1\nshowpage\n%%EOF\n")
        self.cupsd.print("zarvo", job, [word for option in fax for word in ("-o", option)])
        received = self.printer.wait()
        self.assertIn(b'OID_ATT_FAX_DESTINATION_PHONE "5550100";\n', received)
        self.assertEqual(received.count(b"\n%!PS-Adobe-3.0"), 2)
        self.assertGreater(render(received, "fax"), 2000)
        # Converters keep a list of fonts there where the machine has none that is up to date.
        left = {entry.name for entry in self.cupsd.temporary.iterdir()}
        self.assertEqual(left - {".cache"}, set())

    def test_filter_failure_is_a_failed_job(self):
        cut = OUTPUT / "cut.ps"
        OUTPUT.mkdir(parents=True, exist_ok=True)
        cut.write_bytes(b"%!PS-Adobe-3.0\n%%BeginBinary: 1000\nshort")
        # Of this type the job comes to the filter straight, not through another one first.
        straight = ["-o", "document-format=application/vnd.cups-postscript"]
        self.cupsd.print("zarvo", cut, straight)
        self.assertTrue(self.printer.wait().endswith(b"short"))
        self.cupsd.wait_for_log("Early end-of-file while reading binary data")
        self.cupsd.wait_for_log("zarvofilter) stopped with status 1")

    def test_ppd_is_well_formed(self):
        # The filter is not installed where the checker looks for it; all else must pass.
        done = subprocess.run(
            ["cupstestppd", "-W", "filters", str(PPD)], capture_output=True, text=True
        )
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertNotIn("WARN", done.stdout.replace("WARN    Missing cupsFilter", ""))


if __name__ == "__main__":
    unittest.main(verbosity=2)
