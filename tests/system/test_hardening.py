# SPDX-License-Identifier: Apache-2.0
"""The programs are built so that a fault of memory is hard to make use of."""

import re
import subprocess
import unittest

from zarvo import BIN, SANITIZED


def readelf(option, program):
    return subprocess.run(
        ["readelf", "-W", option, BIN / program], check=True, capture_output=True, text=True
    ).stdout


@unittest.skipIf(SANITIZED, "a build for testing")
class Hardening(unittest.TestCase):
    def test_build_flags(self):
        for program in ("zarvofilter", "zarvodraw"):
            with self.subTest(program=program):
                self.assertIn("DYN (Position-Independent", readelf("-h", program))
                segments = readelf("-l", program)
                self.assertIn("GNU_RELRO", segments)
                stack = next(line for line in segments.splitlines() if "GNU_STACK" in line)
                self.assertNotIn("RWE", stack)
                self.assertIn("NOW", readelf("-d", program))  # with the above: nothing to overwrite

        # In the programs these could come from libraries that are linked in.
        symbols = readelf("-s", "../CUPSFilter/libzarvo_filter.a")
        for name in ("__stack_chk_fail", "printf_chk"):
            with self.subTest(symbol=name):
                self.assertIn(name, symbols)

    def test_the_filter_links_no_drawing_library(self):
        names = set(re.findall(r"NEEDED.*\[(.*?)\.so", readelf("-d", "zarvofilter")))
        runtime = {"ld-linux-x86-64", "libstdc++", "libgcc_s", "libc", "libm"}
        self.assertEqual(names - runtime, {"libcups", "libplist-2.0"})  # libutf8proc is linked in


if __name__ == "__main__":
    unittest.main()
