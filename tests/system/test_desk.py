#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The desktop program through a spooler: what it prints is what "zarvo print" prints of its settings."""

import os
import re
import signal
import subprocess
import time
import unittest

from cupsd import PrivateCupsd, Printer
from zarvo import BIN, SOURCE, ZarvoTest, document

WINDOW = BIN.parent / "tests/desk_test"
# What differs between any two jobs.
NUMBER = re.compile(rb"(%RBI\w*|%%CreationDate|%%For|.*job-uuid|.*time-at).*")


@unittest.skipUnless(WINDOW.exists(), "Qt 6 is not installed, so there is no desktop program")
class Desk(ZarvoTest):
    def window(self, what, **environment):
        """One test of the window with what it needs from here."""
        done = subprocess.run([WINDOW, what], capture_output=True, text=True, timeout=500, env=self.environment | environment
                              | {"QT_QPA_PLATFORM": "offscreen", "ZARVO_PPD": str(BIN.parent / "ppd/zarvo.ppd")})
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout

    def test_full_disk(self):
        small = self.scratch / "small"
        small.mkdir()
        told = 0
        for size in ("20k", "48k", "64k", "68k", "72k", "76k"):  # of the converted document, of its drawing, of the pictures
            if subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "none", small], capture_output=True).returncode:
                self.skipTest("no right to mount")
            try:
                with self.subTest(size):
                    told += "the full disk was told" in self.window("full_disk", ZARVO_DESK_SMALL=str(small))
            finally:
                subprocess.run(["umount", small], check=True)
        self.assertGreaterEqual(told, 2)

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
            self.window("printed", ZARVO_DESK_PRINTS=str(folder))
            ours = dict(zip(pages, printer.wait(len(pages))))
            for task in pages:
                self.run_zarvo("print", str(folder / f"{task}.ps"), str(folder / f"{task}.json"), "-d", "office")
                theirs = printer.wait()
                with self.subTest(task):
                    self.assertRegex(theirs, marks[task])
                    self.assertEqual(NUMBER.sub(b"", ours[task]), NUMBER.sub(b"", theirs))
            self.window("queue_goes", ZARVO_DESK_PRINTS=str(folder))
            self.stop_while_sending(cupsd)

    def stop_while_sending(self, cupsd):
        """Whoever takes a job back while it is being sent leaves no half of it."""
        sending = subprocess.Popen([BIN / "zarvo", "print", "-", "-d", "office"], stdin=subprocess.PIPE,
                                   env=self.environment)
        sending.stdin.write(document(1).encode())
        sending.stdin.flush()
        for _ in range(300):
            if waiting := cupsd.run("lpstat", "-o"):
                break
            time.sleep(0.1)
        sending.terminate()
        sending.communicate()
        self.assertEqual(sending.returncode, -signal.SIGTERM)
        self.assertTrue(waiting)
        self.assertEqual(cupsd.run("lpstat", "-o"), "")

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
