# SPDX-License-Identifier: Apache-2.0
"""The smallest documents of the corpus, in every mode, and what damaged output must not pass as."""

import os
import pathlib
import subprocess
import sys
import unittest

from pictures import BIN

RUN = pathlib.Path(os.environ["ZARVO_SOURCE"], "tests/corpus/run.py")


def corpus(*arguments):
    return subprocess.run([sys.executable, RUN, "--build", BIN.parent, "--small",
                           "--routes", "pstops,pdftops", *arguments],
                          capture_output=True, text=True)  # fmt: skip


class Corpus(unittest.TestCase):
    def test_documents_print_in_every_mode(self):
        done = corpus()
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_damage_is_seen(self):
        """Everything that a filter could do to a page shows in a mode."""
        faults = {"lost": "plain", "erased": "secure", "moved": "booklet", "twice": "plain",
                  "upside-down": "negative", "unmarked": "text-background"}  # fmt: skip
        for fault, mode in faults.items():
            done = corpus("--only", "groff-pickles", "--modes", mode, "--break", fault)
            self.assertIn(" 0 right, 1 wrong", done.stdout, fault + done.stderr)


if __name__ == "__main__":
    unittest.main()
