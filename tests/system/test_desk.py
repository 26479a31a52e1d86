#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The desktop program through a spooler: what it prints is what "zarvo print" prints of its settings."""

import os
import re
import subprocess
import unittest

from cupsd import PrivateCupsd, Printer
from zarvo import BIN, SOURCE, ZarvoTest, document

WINDOW = BIN.parent / "tests/desk_test"


@unittest.skipUnless(WINDOW.exists(), "Qt 6 is not installed, so there is no desktop program")
class Desk(ZarvoTest):
    def test_printed_job_is_that_of_the_saved_settings(self):
        job = self.path("handout.ps", document(3))
        saved = self.scratch / "saved.json"
        with PrivateCupsd() as cupsd, Printer() as printer:
            cupsd.add_queue("office", BIN.parent / "ppd/zarvo.ppd", printer.uri)
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{cupsd.port}"
            done = subprocess.run([WINDOW, "printed"], capture_output=True, text=True, timeout=300, env=self.environment | {
                "ZARVO_DESK_PRINTS": job, "ZARVO_DESK_SAVES": str(saved), "QT_QPA_PLATFORM": "offscreen"})
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
            ours = printer.wait()
            self.run_zarvo("print", job, str(saved), "-d", "office")
            theirs = printer.wait()
        number = re.compile(rb"(%RBI\w*|%%CreationDate|%%For|.*job-uuid|.*time-at).*")
        self.assertIn(b"JOB_PASSWORD", ours)
        self.assertEqual(number.sub(b"", ours), number.sub(b"", theirs))

    def test_every_text_is_translated(self):
        done = subprocess.run([SOURCE / "Tools/desk-texts", "--check"], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_desktop_data(self):
        """Every kind of document that the entry announces is one that the spooler's filters take."""
        entry = (SOURCE / "Desk/data/zarvo-desk.desktop").read_text()
        self.assertIn("Exec=zarvo-desk %f", entry)
        for kind in re.search("MimeType=(.*);", entry)[1].split(";"):
            self.assertRegex(kind, "^(application/(pdf|postscript)|image/|text/plain)")


if __name__ == "__main__":
    unittest.main()
