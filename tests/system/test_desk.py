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
# What differs between any two jobs.
NUMBER = re.compile(rb"(%RBI\w*|%%CreationDate|%%For|.*job-uuid|.*time-at).*")


@unittest.skipUnless(WINDOW.exists(), "Qt 6 is not installed, so there is no desktop program")
class Desk(ZarvoTest):
    def test_printed_jobs_are_those_of_written_settings(self):
        """Whoever does a task in the window gets the job that settings written by hand give."""
        pages = {"thesis": 120, "booklet": 24, "handout": 3, "fax": 2, "house": 3}
        marks = {"thesis": rb"cover-front(?s:.*)insert-sheet(?s:.*)page-overrides", "booklet": rb"\(DRAFT\)",
                 "handout": b"JOB_PASSWORD", "fax": b"FAX", "house": b"enum\">22<"}
        self.scratch.chmod(0o755)  # the spooler's filter is another user
        self.run_zarvo("watermark", "add-text", "DRAFT")
        folder = self.scratch / "tasks"
        folder.mkdir()
        for task, count in pages.items():
            (folder / f"{task}.ps").write_text(document(count))
        store = {"ZARVO_APPLICATION_SUPPORT": self.environment["ZARVO_APPLICATION_SUPPORT"]}
        with PrivateCupsd(store) as cupsd, Printer() as printer:
            cupsd.add_queue("office", BIN.parent / "ppd/zarvo.ppd", printer.uri)
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{cupsd.port}"
            done = subprocess.run([WINDOW, "printed"], capture_output=True, text=True, timeout=500,
                                  env=self.environment | {"ZARVO_DESK_PRINTS": str(folder),
                                                          "QT_QPA_PLATFORM": "offscreen"})
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
            ours = dict(zip(pages, printer.wait(len(pages))))
            for task in pages:
                self.run_zarvo("print", str(folder / f"{task}.ps"), str(folder / f"{task}.json"), "-d", "office")
                theirs = printer.wait()
                with self.subTest(task):
                    self.assertRegex(theirs, marks[task])
                    self.assertEqual(NUMBER.sub(b"", ours[task]), NUMBER.sub(b"", theirs))

    def test_every_text_is_translated(self):
        done = subprocess.run([SOURCE / "Tools/desk-texts", "--check"], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_desktop_data(self):
        """Every kind of document that the entry announces is one that the spooler's filters take."""
        data = SOURCE / "Desk/data"
        for command in (["appstreamcli", "validate", "--no-net", data / "zarvo-desk.metainfo.xml"],
                        ["desktop-file-validate", data / "zarvo-desk.desktop"]):
            done = subprocess.run(command, capture_output=True, text=True)
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        entry = (data / "zarvo-desk.desktop").read_text()
        self.assertIn("Exec=zarvo-desk %f", entry)
        for kind in re.search("MimeType=(.*);", entry)[1].split(";"):
            self.assertRegex(kind, "^(application/(pdf|postscript)|image/|text/plain)")


if __name__ == "__main__":
    unittest.main()
