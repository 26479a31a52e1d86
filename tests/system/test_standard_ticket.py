# SPDX-License-Identifier: Apache-2.0
"""IPP's standard job attributes: the page that documents them, jobs through a real spooler, and
schedulers that do not answer.

With ZARVO_UPDATE=1 the table of the page and the expected lines are written anew.
"""

import difflib
import os
import pathlib
import re
import socket
import struct
import subprocess
import tempfile
import threading
import time
import tomllib
import unittest

from cupsd import BIN, PrivateCupsd, Printer
from zarvo import run_filter

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PPD = BIN.parent / "ppd/zarvo.ppd"
PAGE = SOURCE / "docs/standard-ticket.md"
HEADING = "|---|---|---|\n"
JOB = SOURCE / "tests/golden/input/plain.ps"
TABLE = SOURCE / "tests/system/standard_ticket.toml"
EXPECTED = SOURCE / "tests/system/expected/standard_ticket.txt"
DOCUMENT = """%!PS-Adobe-3.0
%%Pages: 2
%%EndComments
%%Page: 1 1
72 72 moveto 144 0 rlineto stroke showpage
%%Page: 2 2
72 72 moveto 288 0 rlineto stroke showpage
%%EOF
"""


# What a queue offers: how one value is asked for, and how many there are at least.
OFFERED = {
    "finishings": ("ATTR enum finishings {}", 42),
    "finishing-template": (
        "ATTR collection finishings-col {{ MEMBER keyword finishing-template {} }}", 9),
    "media": ("ATTR keyword media {}", 30),
    "media-source": ("ATTR collection media-col {{ MEMBER keyword media-source {} }}", 8),
    "media-type": ("ATTR collection media-col {{ MEMBER keyword media-type {} }}", 8),
    "multiple-document-handling": ("ATTR keyword multiple-document-handling {}\nATTR integer copies 2", 2),
    "number-up": ("ATTR integer number-up {}", 6),
    "orientation-requested": ("ATTR enum orientation-requested {}", 4),
    "output-bin": ("ATTR keyword output-bin {}", 8),
    "page-delivery": ("ATTR keyword page-delivery {}", 2),
    "print-color-mode": ("ATTR keyword print-color-mode {}", 2),
    "print-quality": ("ATTR enum print-quality {}", 3),
    "print-scaling": ("ATTR keyword print-scaling {}", 5),
    "printer-resolution": ("ATTR resolution printer-resolution {}", 4),
    "sides": ("ATTR keyword sides {}", 3),
}  # fmt: skip
# What every job is anyhow, what leaves the choice to the printer, and how pages of a PDF are scaled.
NEUTRAL = {"fill", "fit", "none", "auto", "auto-fit", "printer-default", "iso_a4_210x297mm", "1", "portrait", "same-order",
           "color", "normal", "600dpi", "one-sided"}  # fmt: skip


# Jobs that stay at the spooler, and what their state says.
UNPRINTED = {
    "OPERATION octetString job-password 0391\nOPERATION keyword job-password-encryption sha2-256":
        "job-password-encryption=sha2-256: the printer cannot read an encrypted PIN",
    "ATTR keyword job-release-action job-password": "job-release-action=job-password: the job has no PIN",
    "ATTR collection destination-uris { MEMBER uri destination-uri mailto:jo@example.org }":
        "destination-uris: the job is a fax, and none of its numbers can be dialed",
}  # fmt: skip


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


class Spooler(unittest.TestCase):
    maxDiff = None

    plain = with_ticket = ()

    def setUp(self):
        self.cupsd = self.enterContext(PrivateCupsd({"TZ": "UTC"}))
        self.printer = self.enterContext(Printer())
        self.cupsd.add_queue("zarvo", PPD, self.printer.uri)
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.document = self.folder / "page.ps"
        self.document.write_text(DOCUMENT)
        self.jobs = 0

    def ipptool(self, text):
        lines = text.strip().splitlines()
        operation = [line.replace("OPERATION", "ATTR") for line in lines if "OPERATION" in line]
        job = [line for line in lines if "OPERATION" not in line]
        self.cupsd.request("zarvo", self.document, "\n".join(job), "alice", "the job",
                           "\n".join(operation))  # fmt: skip

    def lp(self, text):
        options = [word for option in re.findall(r"(?:[^ \\]|\\.)+", text) for word in ("-o", option)]
        options = [option.replace("\\ ", " ") if "{" in option else option for option in options]
        self.cupsd.print("zarvo", self.document, ["-U", "alice", "-t", "the job", *options])

    def job_and_state(self):
        """The lines of the next job that the printer gets, and what its state says."""
        self.jobs += 1
        job = self.printer.wait(timeout=60).decode("utf-8", "backslashreplace")
        self.cupsd.wait_for_log(f"[Job {self.jobs}] Job completed.")
        state = self.cupsd.run("lpstat", "-l", "-W", "completed", "-o")
        entry = state.split(f"zarvo-{self.jobs} ")[1].split("\nzarvo-")[0]
        status = re.search(r"Status: (.*)", entry)
        told = status.group(1) if status else ""
        notices = re.split(r" ?\(\d+\) ", told)[1:] if told.startswith("Not as asked") else [told]
        return job.replace("\x1b", "ESC").splitlines(), ["told: " + n for n in notices if n]

    def difference(self, job):
        """How a job differs from one without attributes; of pages that the booklet or the cover
        sheet has drawn anew, whose program has a date in it, only what places them."""
        base = self.with_ticket if job[0].startswith("<?xml") else self.plain
        redrawn = [line for line in job if re.search("Q7BBMi$|Title: .FaxCover", line)]
        if redrawn:
            base, job = ([*lines[: next(i for i, line in enumerate(lines) if "%!PS" in line)]]
                         for lines in (base, job))  # fmt: skip
        changes = difflib.unified_diff(base, job, n=0, lineterm="")
        return [line for line in changes if not re.match(r"@@|--- |\+\+\+ ", line)] + redrawn

    def print_plain_jobs(self):
        xml = "ATTR boolean com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b true"
        for attributes in ("", xml):
            self.ipptool(attributes)
            self.plain, self.with_ticket = self.with_ticket, self.job_and_state()[0]

    def test_what_reaches_the_printer(self):
        self.print_plain_jobs()
        made = ["== nothing", *self.plain, "== an XML ticket", *self.with_ticket]
        for case in tomllib.loads(TABLE.read_text())["case"]:
            for way in ("ipp", "lp"):
                if way not in case:
                    continue
                (self.ipptool if way == "ipp" else self.lp)(case[way])
                with self.subTest(way=way, job=case[way]):
                    job, told = self.job_and_state()
                lines = self.difference(job) + told
                if way == "ipp":
                    by_ipp = lines
                    made += ["== " + " ".join(case["ipp"].split()), *lines]
                elif lines != by_ipp:
                    made += ["== lp " + case["lp"], *lines]
        if os.environ.get("ZARVO_UPDATE"):
            EXPECTED.write_text("\n".join(made) + "\n")
            return
        self.assertEqual("\n".join(made), EXPECTED.read_text().rstrip("\n"))

    def test_what_must_not_lie_in_a_tray(self):
        for job, (attributes, why) in enumerate(UNPRINTED.items(), 1):
            with self.subTest(attributes):
                self.ipptool(attributes)
                self.cupsd.wait_for_log(f"[Job {job}] Job stopped")
                state = self.cupsd.run("lpstat", "-l", "-o", "zarvo")
                self.assertRegex(state, rf"zarvo-{job} .*\n\tStatus: the job was not printed: {why}")
                self.cupsd.run("cancel", f"zarvo-{job}")
                self.cupsd.run("cupsenable", "zarvo")
        self.ipptool("")
        self.jobs = len(UNPRINTED)
        self.assertNotIn("COMMENT OID", "".join(self.job_and_state()[0]))

    def test_the_queue_offers_what_is_done(self):
        """Each value that the queue offers changes the job, and nothing is told of it."""
        queue = f"ipp://127.0.0.1:{self.cupsd.port}/printers/zarvo"
        answer = self.cupsd.run("ipptool", "-tv", queue, "get-printer-attributes.test")
        offered = dict(re.findall(r"^ +([\w-]+-(?:supported|database)) \([^)]*\) = (.*)$", answer, re.M))
        self.assertEqual((offered["job-password-supported"], offered["job-account-id-supported"],
                          offered["job-accounting-user-id-supported"]), ("10", "true", "true"))
        offered["finishing-template-supported"] = ",".join(
            re.findall(r"finishing-template=([\w-]+)", offered.get("finishings-col-database", "")))
        self.print_plain_jobs()
        numbers = {(name, word): number for name, words in re.findall(r"^\| `([^`]*)` \| (.*?) \|", PAGE.read_text(), re.M)
                   for number, word in re.findall(r"`(\d+)=([\w-]+)`", words)}
        in_vain = []
        for name, (attribute, count) in OFFERED.items():
            values = offered[name + "-supported"].split(",")
            self.assertGreaterEqual(len(values), count, name)
            for value in values:
                self.ipptool(attribute.format(numbers.get((name, value), value)))
                job, told = self.job_and_state()
                told = [text for text in told if "folded in the middle" not in text]  # it is done
                if told or (value not in NEUTRAL and not self.difference(job)):
                    in_vain.append((name, value, *told))
        self.assertEqual(in_vain, [])


HEADER = b"HTTP/1.1 %s\r\nContent-Type: application/ipp\r\nContent-Length: %d\r\n\r\n"
# The beginning of an answer that is fine as far as it goes.
ANSWER = b"\x02\x00\x00\x00\x00\x00\x00\x01\x01\x47\x00\x12attributes-charset\x00\x05utf-8"
JOB_7 = b"\x02\x21\x00\x06job-id\x00\x04\x00\x00\x00\x07"


OTHER = ANSWER + JOB_7[:-1] + b"\x08\x23\x00\x0afinishings\x00\x04\x00\x00\x00\x16\x03"


def drip(connection):
    connection.sendall(HEADER % (b"200 OK", 1 << 30))
    while True:
        connection.sendall(b"\x01\x47\x00\x12")
        time.sleep(0.02)


def flood(connection):
    connection.sendall(HEADER % (b"200 OK", 1 << 30) + ANSWER + JOB_7)
    while True:
        connection.sendall(b"\x44\x00\x05sides\x00\x09one-sided" * 4096)


FAULTS = {
    "never answers": lambda connection: time.sleep(30),
    "drips": drip,
    "hangs up": lambda connection: connection.close(),
    "is no scheduler": lambda connection: connection.sendall(b"220 mail ready\r\n" * 99),
    "is another server": lambda connection: connection.sendall(
        HEADER % (b"404 Not Found", 5) + b"sorry"),
    "wants a password": lambda connection: connection.sendall(
        HEADER.replace(b"\r\n\r\n", b"\r\nWWW-Authenticate: Basic realm=x\r\n\r\n")
        % (b"401 Unauthorized", 0)),
    "answers without end": flood,
    "answers about another job": lambda connection: connection.sendall(
        HEADER % (b"200 OK", len(OTHER)) + OTHER),
    "cuts its answer": lambda connection: connection.sendall(
        HEADER % (b"200 OK", len(ANSWER)) + ANSWER),
    "answers rubbish": lambda connection: connection.sendall(
        HEADER % (b"200 OK", 4096) + bytes(range(256)) * 16),
    "knows no such job": lambda connection: connection.sendall(
        HEADER % (b"200 OK", 9) + b"\x02\x00\x04\x06\x00\x00\x00\x01\x03"),
}  # fmt: skip


def attribute(tag, name, value):
    return struct.pack(f">BH{len(name)}sH", tag, len(name), name, len(value)) + value


def collections(name, members):
    """A set of collections, each given by its members' encoded values."""
    for index, values in enumerate(members):
        yield attribute(0x34, b"" if index else name, b"")
        for member, tag, value in values:
            yield attribute(0x4A, b"", member) + attribute(tag, b"", value)
        yield attribute(0x37, b"", b"")


def serve_once(server, answer):
    """Takes one connection and lets `answer` have it."""

    def serve():
        connection, _ = server.accept()
        try:
            with connection:
                while not (piece := connection.recv(1 << 16)).endswith(b"\x03"):
                    if piece.endswith(b"\r\n\r\n"):
                        connection.sendall(b"HTTP/1.1 100 Continue\r\n\r\n")
                answer(connection)
        except OSError:
            pass

    threading.Thread(target=serve, daemon=True).start()
    return {"CUPS_SERVER": "localhost", "IPP_PORT": str(server.getsockname()[1])}


class Faults(unittest.TestCase):
    def print(self, options="finishings=28", **environment):
        with tempfile.TemporaryDirectory() as folder:
            done = run_filter(options, b"", JOB, about=("7", "user", "title"), ppd=PPD, TMPDIR=folder,
                              timeout=25, CUPS_REQUESTROOT=folder, **environment)  # fmt: skip
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue(done.stdout.endswith(b"EOJ\n\x1b%-12345X\n"))
        log = done.stderr.decode().splitlines()
        return done.stdout, [line for line in log if line.startswith("WARNING: ")]

    def test_the_job_prints_and_what_may_be_missing_is_told(self):
        def check(**environment):
            output, warnings = self.print(**environment)
            self.assertIn(b'enum">28</value>', output)
            self.assertEqual(len(warnings), 1)
            self.assertIn("the scheduler did not tell", warnings[0])

        for name, answer in FAULTS.items():
            with self.subTest(fault=name), socket.create_server(("127.0.0.1", 0)) as server:
                check(**serve_once(server, answer))
        for server in ("/nowhere/cups.sock", "print.example.org", "localhost"):
            with self.subTest(server=server):
                check(CUPS_SERVER=server, IPP_PORT="1")

    def test_a_busy_scheduler_is_waited_for_where_the_server_says_so(self):
        answer = ANSWER + JOB_7 + attribute(0x23, b"finishings", struct.pack(">i", 28)) + b"\x03"

        def late(connection):
            time.sleep(1)
            connection.sendall(HEADER % (b"200 OK", len(answer)) + answer)

        for seconds, told in (("60", 0), ("0", 1), ("", 1)):
            with self.subTest(seconds=seconds), socket.create_server(("127.0.0.1", 0)) as server:
                _, warnings = self.print(ZARVO_SCHEDULER_SECONDS=seconds, **serve_once(server, late))
                self.assertEqual(len(warnings), told, warnings)

    def test_sets_of_ten_thousand(self):
        """What is too much is left out and told."""
        page, keyword, number = b"insert-after-page-number", 0x44, 0x21
        answer = ANSWER + JOB_7 + b"".join(
            [*collections(b"insert-sheet", [[(page, number, struct.pack(">i", 1))]] * 10000),
             *collections(b"overrides", [[(b"pages", 0x33, struct.pack(">ii", 2 * i + 1, 2 * i + 1)),
                                          (b"sides", keyword, b"one-sided")] for i in range(10000)]),
             attribute(0x23, b"finishings", struct.pack(">i", 20)),
             *[attribute(0x23, b"", struct.pack(">i", 22))] * 9999]) + b"\x03"  # fmt: skip
        with socket.create_server(("127.0.0.1", 0)) as server:
            output, warnings = self.print(**serve_once(server, lambda connection: connection.sendall(
                HEADER % (b"200 OK", len(answer)) + answer)))  # fmt: skip
        self.assertEqual(output.count(b"<insert-count "), 1000)
        self.assertEqual(output.count(b"<pages "), 1000)
        self.assertIn(b'enum">20</value>', output)
        self.assertTrue(1 < len(warnings) < 60, warnings)


    def test_no_cover_takes_the_default_away(self):
        with tempfile.NamedTemporaryFile("w", suffix=".ppd") as ppd:
            ppd.write(PPD.read_text().replace("*DefaultFrontCover: None", "*DefaultFrontCover: Blank"))
            ppd.flush()
            for options, covers in (("x=y", 1), ("cover-front={cover-type=no-cover}", 0)):
                output, _ = self.print(options, PPD=ppd.name)
                self.assertEqual(output.count(b"</cover-front>"), covers)


if __name__ == "__main__":
    unittest.main()
