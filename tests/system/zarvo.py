# SPDX-License-Identifier: Apache-2.0
"""What the tests of the command-line tool share: a scratch folder and ways to run things."""

import json
import os
import pathlib
import plistlib
import shutil
import subprocess
import tempfile
import unittest

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
SANITIZED = b"__asan_init" in (BIN / "zarvofilter").read_bytes()
SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
EXPECTED = pathlib.Path(__file__).resolve().parent / "expected"
PPD = SOURCE / "tests/golden/ppd/test.ppd"

# The drawing helper becomes the spooler's user, which must be able to read it: the tree may lie in a
# private home.
_FONTS = tempfile.TemporaryDirectory()
os.chmod(_FONTS.name, 0o755)
os.environ["FONTCONFIG_FILE"] = shutil.copy(SOURCE / "tests/system/fonts.conf", _FONTS.name)

ALL_SECTIONS = "com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b=true"


def document(pages=1, size=(612, 792)):
    """A PostScript document with a number on each page."""
    text = "%!PS-Adobe-3.0\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n"
    text += f"<< /PageSize [{size[0]} {size[1]}] >> setpagedevice\n%%EndSetup\n"
    for page in range(1, pages + 1):
        text += f"%%Page: {page} {page}\n%%BeginPageSetup\n%%EndPageSetup\n"
        text += f"/Helvetica 96 selectfont 90 {size[1] - 180} moveto ({page}) show\nshowpage\n"
    return text + "%%Trailer\n%%EOF\n"


def run_filter(options, job=b"", *file, about=("1", "user", "title"), ppd=PPD, cwd=None, preexec_fn=None, timeout=300,
               **environment):  # fmt: skip
    """One job through the filter, by itself; what subprocess.run gives. Of the environment the job has
    what is given here and little else."""
    usual = {"PATH": os.environ["PATH"], "TZ": "UTC", "PPD": ppd,
             "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "")}  # fmt: skip
    return subprocess.run([BIN / "zarvofilter", *about, "1", options, *file], input=job,
                          capture_output=True, timeout=timeout, cwd=cwd, preexec_fn=preexec_fn,
                          env=usual | environment)  # fmt: skip


def paged(*bodies):
    """A PostScript job of pages with these contents, which are numbered from 1."""
    head = b"%!PS-Adobe-3.0\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n%%EndSetup\n"
    page = b"%%%%Page: %d %d\n%%%%BeginPageSetup\n%%%%EndPageSetup\n%s\nshowpage\nep\n"
    pages = (page % (number, number, body) for number, body in enumerate(bodies, 1))
    return head + b"".join(pages) + b"%%Trailer\n%%EOF\n"


class ZarvoTest(unittest.TestCase):
    maxDiff = None
    prefix = ()  # a program that runs the tool

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        (self.scratch / "data").mkdir()
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.scratch),
            "TMPDIR": str(self.scratch),
            "TZ": "UTC",
            "ZARVO_APPLICATION_SUPPORT": str(self.scratch / "data"),
            "ZARVO_ADDRESS_BOOK": str(self.scratch / "contacts"),
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", ""),
        }

    def path(self, name, content=None):
        path = self.scratch / name
        if isinstance(content, dict):
            content = json.dumps(content)
        if content is not None:
            path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return str(path)

    def run_zarvo(self, *arguments, stdin=b"", status=0):
        """Standard output of the tool as text; the log is kept in self.errors."""
        done = subprocess.run(
            [*self.prefix, BIN / "zarvo", *arguments],
            input=stdin if isinstance(stdin, bytes) else stdin.encode(),
            capture_output=True,
            env=self.environment,
            cwd=self.scratch,
            timeout=120,
        )
        self.errors = done.stderr.decode()
        self.assertEqual(done.returncode, status, self.errors + done.stdout.decode())
        return done.stdout.decode()

    def start_filter(self, options, program=BIN / "zarvofilter", ppd=PPD):
        return subprocess.Popen(
            [program, "1", "ada", "title", "1", options],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env=self.environment | ({"PPD": str(ppd)} if ppd else {}),
        )

    def filtered(self, options, job, **how):
        """What the filter makes of a job; the log is kept in self.errors."""
        process = self.start_filter(options, **how)
        output, errors = process.communicate(job if isinstance(job, bytes) else job.encode(), 120)
        self.errors = errors.decode()
        self.assertEqual(process.returncode, 0, self.errors)
        return output

    def write_store(self, name, entries):
        """A shared data file, as the dialog would leave it."""
        path = self.scratch / f"data/Zarvo/com.zarvo.printing.{name}.plist"
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(plistlib.dumps(entries))

    def assert_golden(self, name, text):
        """Compares with a file of expected/; ZARVO_UPDATE=1 writes it instead."""
        path = EXPECTED / name
        if os.environ.get("ZARVO_UPDATE"):
            path.write_text(text)
        self.assertEqual(text, path.read_text())
