# SPDX-License-Identifier: Apache-2.0
"""Keeps docs/ticket.md true: runs its examples and compares its keys with those of the code."""

import os
import pathlib
import re
import subprocess
import unittest

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PAGE = (SOURCE / "docs/ticket.md").read_text(encoding="utf-8")
JOB = b"%!PS-Adobe-3.0\n%%BeginPageSetup\nshowpage\n%%EOF\n"
KEYS = "com.zarvo.print.", "com.zarvo.Act.", "com.zarvo.WMS.", "com.apple.print."
# Files whose capitalised words are all sub-keys.
SUB_KEYS = "CUPSFilter/JTML/*.cpp", "CUPSFilter/Job*.cpp", "CUPSFilter/MediaSize.cpp", "Source/FaxKeys.h"


def literals(*patterns):
    files = [file for pattern in patterns for file in sorted(SOURCE.glob(pattern))]
    code = "\n".join(re.sub(r"//.*", "", file.read_text()) for file in files)
    return set(re.findall(r'"([^"\n]*)"', code))


def documented():
    """Every key and sub-key in the first column of a table."""
    names = set()
    for option in re.findall(r"^\| `([^`]+)` \|", PAGE, re.MULTILINE):
        top, *parts = option.split("..")
        names.add(top)
        names.update(part[2:] for part in parts if part[:2] == "d_")
    return {name for name in names if re.match(r"[A-Zc]\w", name)}


class TicketPage(unittest.TestCase):
    def test_examples(self):
        examples = re.findall(r"```options\n(.*?)```\n\n```(?:xml|text)\n(.*?)```", PAGE, re.DOTALL)
        self.assertGreater(len(examples), 15)
        self.assertEqual(len(examples), PAGE.count("```options\n"), "an example without a result")
        filter_program = pathlib.Path(os.environ["ZARVO_BIN"], "zarvofilter")
        environment = {k: v for k, v in os.environ.items() if k != "PPD"}
        for options, expected in examples:
            with self.subTest(options=options):
                arguments = [filter_program, "1", "u", "t", "1", options.replace("\n", " ")]
                job = subprocess.run(
                    arguments, input=JOB, capture_output=True, env=environment, check=True
                )
                # "</jtml>" has no line feed of its own.
                self.assertIn(expected.removesuffix("\n"), job.stdout.decode())

    def test_every_key_is_there(self):
        keys = {t for t in literals("CUPSFilter/**/*.cpp", "Source/*.[ch]*") if t.startswith(KEYS)}
        keys |= {t for t in literals(*SUB_KEYS) if re.fullmatch(r"[A-Z]\w*[a-z]\w*", t)}
        named = documented() | set(re.findall(r"`(\w+)`", PAGE))
        # Dictionaries and lists stand in the names of what they hold.
        named |= {part for option in re.findall(r"`([^`]+)\.\.", PAGE) for part in option.split("..")}
        self.assertEqual(sorted(keys - named), [])

    def test_every_key_is_read(self):
        text = literals("CUPSFilter/**/*.cpp", "CUPSFilter/*.h", "Source/*.[ch]*")
        self.assertEqual(sorted(documented() - text), [])

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
