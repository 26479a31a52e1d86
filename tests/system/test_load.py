# SPDX-License-Identifier: Apache-2.0
"""Many jobs at once: each gives the bytes that it gives alone, and nothing is left behind.

ZARVO_LOAD=full runs 500 jobs through a spooler and 2,000 processes, 64 at a time ("make load").
"""

import collections
import concurrent.futures
import os
import pathlib
import re
import tempfile
import time
import unittest

from cupsd import PrivateCupsd, Printer
from zarvo import paged, run_filter

FULL = os.environ.get("ZARVO_LOAD") == "full"
PROCESSES, AT_ONCE = (2000, 64) if FULL else (100, 32)
JOBS, QUEUES = (500, 16) if FULL else (24, 4)
GOLDEN = pathlib.Path(os.environ["ZARVO_SOURCE"]) / "tests/golden"
PPD = GOLDEN / "ppd/test.ppd"
P = "com.zarvo.print."


def job(pages, bytes_each):
    return paged(*[b"0 0 moveto " * (bytes_each // 11)] * pages)


JOBS_BY_NAME = {"small": job(2, 50), "pages": job(60, 1000), "large": job(3, 2 << 20)}
OPTIONS = {
    "plain": [],
    "ticket": [f"{P}JTMLOptions..d_JTMLOptionAll..b=true", f"{P}JobNotesMessage=hello"],
    "secure": [f"{P}JobType..d_JobType..n=6", f"{P}JobType..d_SecurePrintPassword=1234"],
    "booklet": [f"{P}BookletLayout..b=true"],
    "mirror": [f"{P}InvertImageOptions..d_MirrorImage..n=1"],
    "fax": [f"{P}JobType..d_JobType..n=5", f"{P}FaxOptions..d_Resolution..n=1",
            f"{P}FaxOptions..d_CoverSheet..b=true", f"{P}FaxOptions..d_CoverSheetNotes=Hello",
            f"{P}FaxRecipientList..a_0..d_FaxNumber=5550100"],
}  # fmt: skip
# A cover takes two other programs: fewer of those.
MIX = [(name, kind) for name in JOBS_BY_NAME for kind in OPTIONS if kind != "fax"] * 3 + [
    ("small", "fax")
]


def without_time(output):
    """A cover sheet holds the time at which it was drawn."""
    return re.sub(rb"\d{14}[Z+-]\d\d'\d\d'?", b"", output)


class Load(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.files = {}
        for name, content in JOBS_BY_NAME.items():
            self.files[name] = self.scratch / f"{name}.ps"
            self.files[name].write_bytes(content)

    def test_processes(self):
        spool = self.scratch / "spool"
        spool.mkdir()

        def run(what):
            name, kind = what
            done = run_filter(" ".join(OPTIONS[kind]), b"", self.files[name], TMPDIR=str(spool))
            return done.returncode, without_time(done.stdout)

        alone = {what: run(what) for what in set(MIX)}
        self.assertEqual({status for status, _ in alone.values()}, {0})
        before = time.monotonic()
        with concurrent.futures.ThreadPoolExecutor(AT_ONCE) as pool:
            todo = [MIX[number % len(MIX)] for number in range(PROCESSES)]
            for what, result in zip(todo, pool.map(run, todo)):
                self.assertTrue(result == alone[what], what)
        print(f"{PROCESSES} processes, {AT_ONCE} at a time: {time.monotonic() - before:.1f} s")
        self.assertEqual(list(spool.iterdir()), [])

    def test_spooler(self):
        # Of this type a job comes to the filter straight, not through another one first.
        straight = ["-o", "document-format=application/vnd.cups-postscript"]
        with PrivateCupsd(max_jobs=0) as cupsd, Printer() as printer:
            queues = [f"zarvo{number}" for number in range(QUEUES)]
            for queue in queues:
                cupsd.add_queue(queue, PPD, printer.uri)

            def send(number, what):
                name, kind = what
                options = [part for option in OPTIONS[kind] for part in ("-o", option)]
                cupsd.print(queues[number % QUEUES], self.files[name], straight + options)

            alone = {}
            for what in sorted(set(MIX)):
                send(0, what)
                alone[what] = without_time(printer.wait(timeout=120))
            before = time.monotonic()
            todo = [MIX[number % len(MIX)] for number in range(JOBS)]
            with concurrent.futures.ThreadPoolExecutor(16) as pool:
                list(pool.map(send, range(JOBS), todo))
            received = collections.Counter(map(without_time, printer.wait(JOBS, timeout=900)))
            self.assertTrue(received == collections.Counter(alone[what] for what in todo))
            print(f"{JOBS} jobs through {QUEUES} queues: {time.monotonic() - before:.1f} s")
            left = [file for file in cupsd.root.rglob("zarvo-spool-*")]
            self.assertEqual(left, [])


if __name__ == "__main__":
    unittest.main()
