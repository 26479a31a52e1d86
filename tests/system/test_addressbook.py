# SPDX-License-Identifier: Apache-2.0
"""The address book as an independent program sees it."""

import os
import pathlib
import plistlib
import re
import subprocess
import tempfile
import unittest

DRIVER = pathlib.Path(os.environ["ZARVO_BIN"]).parent / "tests" / "store_recipients"
NAMES = [
    "Ada",
    "Smith, John; Ltd",
    "back\\slash\\n",
    "two\nlines",
    "\U0001f4e0 Fax \U0001f468\u200d\U0001f469\u200d\U0001f467",
    "\u5c71\u7530\u592a\u90ce",
    "\u05e9\u05dc\u05d5\u05dd \u0639\u0644\u064a",
    "M\u00fcller " * 143,
]


class Khard(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name, "contacts")
        self.config = pathlib.Path(scratch.name, "khard.conf")
        self.config.write_text(f"[addressbooks]\n[[zarvo]]\npath = {self.folder}\n")

    def khard(self, *arguments):
        return subprocess.run(
            ["/usr/bin/khard", "-c", str(self.config), *arguments],
            check=True,
            capture_output=True,
            text=True,
            env=os.environ | {"LC_ALL": "C.UTF-8", "HOME": str(self.config.parent)},
        ).stdout

    def test_lists_people_and_finds_fax_numbers(self):
        people = [
            {"FirstName": name, "FaxNumber": f"+1 555 01{index:02}", "Mailbox": str(index)}
            for index, name in enumerate(NAMES)
        ]
        uids = subprocess.run(
            [DRIVER, "All; of them"],
            input=plistlib.dumps(people),
            check=True,
            capture_output=True,
            env=os.environ | {"ZARVO_ADDRESS_BOOK": str(self.folder)},
        ).stdout.decode().split()
        self.assertEqual(len(set(uids)), len(NAMES))
        self.assertEqual(len(list(self.folder.iterdir())), len(NAMES) + 1)

        phones = self.khard("phone", "--parsable")
        numbers = dict(re.findall(r"^(\+1 555 \d+)\t[^\t]*\t(.*)$", phones, re.MULTILINE))
        self.assertEqual(numbers, {person["FaxNumber"]: "WORK, FAX" for person in people})

        for uid, person in zip(uids, people):
            shown = self.khard("show", f"uid:{uid}")
            self.assertIn(person["FirstName"].split("\n")[0].strip(), shown)
            self.assertIn(person["FaxNumber"], shown)
        self.assertIn("All; of them", self.khard("list"))


if __name__ == "__main__":
    unittest.main()
