# SPDX-License-Identifier: Apache-2.0
"""IPP's standard job attributes: the page that documents them, and real jobs with them.

With ZARVO_UPDATE=1 the table of the page is written anew.
"""

import os
import pathlib
import subprocess
import unittest

from cupsd import BIN

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PAGE = SOURCE / "docs/standard-ticket.md"
HEADING = "|---|---|---|\n"


class Page(unittest.TestCase):
    def test_every_registered_attribute_has_its_place(self):
        """The page's table is what the mapper makes of the list of registrations."""
        made = subprocess.run(
            [BIN.parent / "tests/standard_ticket", SOURCE / "tests/data/ipp-registrations.tsv"],
            env={**os.environ, "TZ": "UTC"}, capture_output=True, text=True, check=True).stdout
        page, table = PAGE.read_text().split(HEADING)
        if os.environ.get("ZARVO_UPDATE"):
            PAGE.write_text(page + HEADING + made)
            return
        self.assertEqual(table.splitlines(), made.splitlines())


if __name__ == "__main__":
    unittest.main()
