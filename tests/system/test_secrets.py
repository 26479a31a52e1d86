# SPDX-License-Identifier: Apache-2.0
"""Jobs with a secret or a fax number, and jobs that ask in vain, on a queue of our PPD."""

import os
import pathlib
import re
import resource
import shutil
import subprocess
import tempfile
import unittest

from cupsd import BIN, PrivateCupsd, Printer
from zarvo import run_filter

GOLDEN = pathlib.Path(os.environ["ZARVO_SOURCE"]) / "tests/golden"
PPD = BIN.parent / "ppd/zarvo.ppd"
JOB = (GOLDEN / "input/plain.ps").read_bytes()
TYPE = "com.zarvo.print.JobType..d_JobType..n"
PIN = "com.zarvo.print.JobType..d_SecurePrintPassword"
FAX = "com.zarvo.print.FaxRecipientList"

SECURE = b"OID_VAL_JOB_TYPE_SECURE_PRINT;\n@PJL COMMENT OID_ATT_JOB_PASSWORD \"A^MG\";\n"
# The options of a job, and what its header holds beside no warning at all.
KEPT = {
    "JobType=Secure JobPIN=Custom.0391": SECURE,
    "JobPIN=Custom.0391": SECURE,
    "JobType=Print jobpin={Value=0391}": SECURE,
    "job-password=0391": SECURE,
    "job-password=0391 job-password-encryption=none JobType=Secure": SECURE,
    "job-password=0391 JobPIN=Custom.0391": SECURE,
    "JobType=Save job-password=0391": SECURE,
    f"{TYPE}=6 {PIN}=0391": SECURE,
    f"{PIN}=0391": SECURE,
    "JobPIN=None job-password=": b"ENTER LANGUAGE",
    "FaxNumber=Custom.0911-4711": b'DESTINATION_PHONE "09114711"',
    "finishings=3 number-up=1 print-color-mode=color job-uuid=urn:uuid:92c6 media=iso_a4_210x297mm "
    "job-originating-host-name=localhost time-at-creation=1795415950 document-name-supplied=a.ps "
    "sides=two-sided-long-edge output-bin=top media-type=plain PageSize=A4 Watermark=None "
    "job-sheets=none,none job-media-progress=0 Collate=true media=A4,Tray1": b"ENTER LANGUAGE",
}
# The options of a job that is not printed, and a part of the reason.
REFUSED = {
    "JobType=Secure": "a secure job needs a PIN",
    f"{TYPE}=6 {PIN}=": "a secure job needs a PIN",
    "JobPIN=Custom.gr\udcfcn JobType=Secure": "4 to 10 digits",
    "JobPIN=Custom.123": "4 to 10 digits",
    "JobPIN=Custom.12345678901": "4 to 10 digits",
    "JobTyp=Secure": "would not be",
    "JobType=Secur": "would not be",
    f"JobType=Secure {TYPE}=1": "would not be",
    "JobPIN=0391": "4 to 10 digits",
    "JobPIN=Custom": "4 to 10 digits",
    "JobPIN=": "4 to 10 digits",
    "job-password=secret": "4 to 10 digits",
    "job-password=0391 job-password-encryption=sha-256": "encrypted",
    "JobPIN=Custom.0391 job-password=0392": "two different PINs",
    "JobPIN=Custom.0391 JobType=Proof": "a sample set cannot keep a PIN",
    "JobPIN=Custom.0391 JobType=Hold": "cannot keep a PIN",
    "job-password=0391 FaxNumber=Custom.4711": "a fax cannot keep a PIN",
    f"{PIN}=0391 {TYPE}=1": "an ordinary job cannot keep a PIN",
    f"{PIN}=gr\udcfcn {TYPE}=6": "cannot be read",
    f"{PIN}..n=391 {TYPE}=6": "is no text",
    f"{PIN}=0391 {TYPE}=six": "cannot be read",
    f"{PIN}=0391 com.zarvo.print.JobType=6": "no group of settings",
    f"{TYPE[:-3]}=Secure": "the job type is no number",
    f"{PIN}=jHYGC^@C)-PJL\\ RESET {TYPE}=6": "end the printer's line",  # holds ESC
    f"{PIN}=S {TYPE}=6": "end the printer's line",  # a double quote
    "com.zarvo.print.SecurePrintPasword=0391": "misspelt PIN",
    "com.zarvo.print.JobTyp..d_SecurePrintPassword=0391": "misspelt PIN",
    "JobPIM=Custom.0391": "did you mean JobPIN?",
    "ZRVJobPassword=0391": "ZRVJobPassword",
    "FaxNumber=Custom": "would come out on paper",
    "FaxNumer=Custom.4711": "would come out on paper",
    "FaxNumber=Custom.": "nothing that can be dialed",
    "FaxNumber=0911-4711": "would come out on paper",
    f"FaxNumber=Custom.4711 {TYPE}=1": "would come out on paper",
    "FaxNumber=Custom.Smith": "nothing that can be dialed",
    f"FaxNumber=Custom.1 {FAX}..a_2..d_FaxNumber=2": "cannot be read",
    f"FaxNumber=Custom.1 {FAX}..a_1..d_FaxNumber=\udcff": "cannot be read",
    f"FaxNumber=Custom.1 {FAX}..a_1..d_LastName=A": "recipient 2 of the fax has no number",
    f"{TYPE}=5 {FAX}=4711 com.zarvo.print.FaxOptions..d_Resolution..n=1": "no recipient",
    f"{TYPE}=5": "send its settings along",
}
# The options of a job that prints otherwise than asked, and a part of each warning.
TOLD = {
    f"{PIN}=qwerty {TYPE}=6": ["the PIN is cut"],
    f"{PIN}=quality {TYPE}=6": ["the PIN is cut"],  # at the first letter; its "y" makes a line end
    f"{PIN}=12345678901234567890 {TYPE}=6": ["the PIN is cut"],
    "Stapel=TopLeft Staple=TopLft siides=x": ["siides", "did you mean Staple?", "did you mean TopLeft?"],
    "PageSize=Custom.300x400": ["PageSize: no choice Custom.300x400, the job is printed with A4"],
    "media=Custom.300x400": ["media: no paper Custom.300x400"],
    "Watermark=NOSUCH AccountID=4711": ["AccountID: no such choice", "Watermark: no such choice"],
    "Watermark=Custom.draftt": ['watermark "draftt" was left out'],
    "com.zarvo.WMS.ZRVWM..n=99": ["watermark 99 was left out"],
    "FaxNumber=Custom.1 FaxCover=A4 com.zarvo.print.FaxOptions..d_ShowWatermark..b=true "
    "com.zarvo.print.FaxOptions..d_WatermarkName=gone": ['cover\'s watermark "gone" was left out'],
    "FaxNumber=Custom.1 com.zarvo.print.FaxOptions..d_DialingPrefix=12345": ["DialingPrefix is cut"],
    "Accounting=Group FaxCover=A4": ["no user", "no account", "no fax; give FaxNumber=Custom.NUMBER"],
    "com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b=true com.zarvo.print.BookletFoldStaple..n=8":
        ["folded in the middle, but the pages are not laid out as a booklet; give BookletLayout="],
    "com.zarvo.print.Gutter..a_5..n=1": ["com.zarvo.print.Gutter..a_5..n"],
    f"{TYPE}=12": ["12 is out of range; it takes 1 to 9"],
    "com.zarvo.print.Resoluton..n=2 com.zarvo.print.JobType..d_JobTyp..n=6":
        ["JobType/JobTyp: unknown key; did you mean JobType?",
         "Resoluton: unknown key; did you mean com.zarvo.print.Resolution?"],
    "com.zarvo.print.TonerSaver..b=true": ["TonerSaver: has no effect without"],
    "com.zarvo.print.BannerPage=yes": ["BannerPage: takes true or false"],
}  # fmt: skip
SECRETS = ("0391", "0392", "4711", "secret", "qwerty", "quality", "RESET", "12345678901")


class Secrets(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def run_filter(self, options, ppd=PPD, **arguments):
        done = run_filter(options, JOB, ppd=ppd, TMPDIR=str(self.scratch), **arguments,
                          ZARVO_APPLICATION_SUPPORT=str(GOLDEN / "support/watermarks"))  # fmt: skip
        log = done.stderr.decode("utf-8", "replace").splitlines()
        for line in log:
            for secret in SECRETS:
                self.assertNotIn(secret, line)
        return done.returncode, done.stdout, [line for line in log if line[:4] not in ("DEBU", "PAGE")]

    def test_secret_is_kept(self):
        for options, wanted in KEPT.items():
            with self.subTest(options=options):
                status, output, log = self.run_filter(options)
                self.assertEqual((status, [line for line in log if "STATE: -" not in line]), (0, []))
                self.assertIn(wanted, output)

    def test_or_nothing_is_printed(self):
        for options, reason in REFUSED.items():
            with self.subTest(options=options):
                status, output, log = self.run_filter(options)
                self.assertEqual((status, output), (1, b""), log)
                errors = [line for line in log if line.startswith("ERROR: ")]
                self.assertIn("ERROR: the job was not printed: ", errors[0])
                self.assertIn(reason, errors[0])
                self.assertIn("STATE: +com.zarvo.job-refused-warning", log)

    def test_what_is_dropped_is_told(self):
        for options, wanted in TOLD.items():
            with self.subTest(options=options):
                status, output, log = self.run_filter(options)
                self.assertEqual(status, 0)
                self.assertTrue(output.endswith(b"EOJ\n\x1b%-12345X\n"))
                told = [line for line in log if line.startswith("WARNING: ")]
                summary = [line for line in told if "Not as asked: (1)" in line]
                self.assertEqual(len(summary), len(wanted) > 1, told)
                self.assertEqual(len(told) - len(summary), len(wanted), told)
                for line, text in zip(told, wanted):
                    self.assertIn(text, line)
                    self.assertTrue(all(line.removeprefix("WARNING: ") in all_ for all_ in summary))

    def test_other_queues(self):
        text = PPD.read_text()
        lenient = self.scratch / "lenient.ppd"
        lenient.write_text(text.replace("*ZRVFailClosed: True", "*ZRVFailClosed: True\n*ZRVAllowEmptyPIN: True"))
        for options in ("JobType=Secure", f"{TYPE}=6"):
            status, output, _ = self.run_filter(options, lenient)
            self.assertEqual(status, 0)
            self.assertIn(b'SECURE_PRINT;\n@PJL COMMENT OID_ATT_JOB_PASSWORD "";', output)
        # The standard attributes are another way to a PIN; this queue has only this one.
        strict = self.scratch / "strict.ppd"
        strict.write_text(text.replace("*ZRVStandardTicket: True\n", ""))
        self.assertIn(SECURE, self.run_filter("job-password=0391", strict)[1])
        refused = self.run_filter("job-password=0391 job-password-encryption=sha-256", strict)
        self.assertEqual(refused[:2], (1, b""))
        marked = self.scratch / "marked.ppd"
        marked.write_text("\ufeff" + text)
        status, output, log = self.run_filter("JobType=Secure", marked)
        self.assertEqual((status, output), (1, b""))
        self.assertIn("byte-order mark", log[0])
        open_queue = self.scratch / "open.ppd"
        open_queue.write_text(re.sub(r"\*ZRV(FailClosed|StandardTicket): True\n", "", text))
        for options in (*REFUSED, *TOLD):
            status, _, log = self.run_filter(options, open_queue)
            self.assertEqual((status, [line for line in log if line[:3] in ("STA", "WAR")]), (0, []))

    def test_policy_of_a_ppd_that_is_not_understood(self):
        """What is in it may be that a secret must not be laid open; what cannot be known is taken so."""
        text = PPD.read_text()
        os.mkfifo(self.scratch / "fifo")
        (self.scratch / "folder").mkdir()
        broken = {
            "many": text + "*OpenUI *X: PickOne\n*CloseUI\n" * 20000, "broken": text[text.index("\n"):], "long": text + "*% \n" * (1 << 20), "fifo": None, "folder": None,
        }  # fmt: skip
        for name, content in broken.items():
            ppd = self.scratch / name
            if content:
                ppd.write_text(content)
            for options in ("JobPIN=Custom.0391", "JobType=Secure", "job-password=0391",
                            f"{PIN}=0391 {TYPE}=6", "FaxNumber=Custom.4711", f"{TYPE}=5"):
                with self.subTest(ppd=name, options=options):
                    status, output, log = self.run_filter(options, ppd)
                    self.assertEqual((status, output), (1, b""), log)
                    self.assertIn("ERROR: the job was not printed: the queue's PPD is not used, ", log[0])
            status, _, log = self.run_filter("Staple=TopLeft", ppd)
            self.assertEqual((status, ["its settings were left out" in line for line in log[1:]]),
                             (0, [True] if content else []), log)
        other = self.scratch / "other"
        other.write_text(broken["broken"].replace("*ZRVFailClosed: True", "*% ZRVFailClosed: True"))
        for ppd in (other, self.scratch / "none"):
            self.assertEqual(self.run_filter("JobPIN=Custom.0391", ppd)[::2], (0, []))

    def test_booklet_that_fails_may_be_tried_again(self):
        for most in range(5, 12):  # descriptors
            with self.subTest(most=most):
                limit = (resource.RLIMIT_NOFILE, (most, most))
                status, output, log = self.run_filter(
                    "BookletLayout=LeftToRight", preexec_fn=lambda: resource.setrlimit(*limit))
                self.assertEqual(status, 0 if output.endswith(b"EOJ\n\x1b%-12345X\n") else 1, log)


class Person(unittest.TestCase):
    """What somebody without any right learns of a job."""

    JOBS = [  # options, exit status of "why", what it says, in order
        ("-o PageSize=A5 -o JobPIN=Custom.0391", 0, ["office-1 ", "was printed.\n"]),
        ("-o job-password=0391", 0, ["was printed."]),
        # The spooler leaves collections out of a filter's options.
        ("-o jobpin={Value=0391}", 0, ["was printed."]),
        ("-o FaxNumber={Number=4711}", 1, ["would come out on paper"]),
        ("-o JobType={Value=Secure}", 1, ["was to be a secure one and would not be"]),
        ("-o Staple=TopLft", 1, ["was printed; not as asked:", "\n  - option Staple: no choice"]),
        ("-o Staple=TopLft -o siides=x", 1, ["- option siides: ", "\n  - option Staple: "]),
        ("-o JobType=Secure", 1, ["was not printed; the reason:", "a secure job needs a PIN",
                                  "-> print it again", "cancel office-8"]),
        ("-o JobPIN=Custom.391 -o Staple=TopLft", 1, ["  - the job was not printed: JobPIN: a PIN takes "
                                                      "4 to 10 digits", "\n  - option Staple: no choice"]),
        ("-o FaxNumber=Custom", 1, ["would come out on paper"]),
        ("-o page-ranges=90-91", 1, ["was printed; not as asked:", "none of these pages"]),
        ("", 0, ["was printed."]),  # nothing is left of those before
    ]  # fmt: skip

    def test_why(self):
        with PrivateCupsd() as cupsd, Printer() as printer, tempfile.TemporaryDirectory() as folder:
            cupsd.add_queue("office", PPD, printer.uri)
            # Where anybody can enter: the tree may lie in a private home.
            pathlib.Path(folder).chmod(0o755)
            why = [shutil.copy(BIN / "zarvo", folder), "why"]
            if os.geteuid() == 0:
                why = ["setpriv", "--reuid=nobody", "--clear-groups", "env",
                       f"CUPS_SERVER=127.0.0.1:{cupsd.port}", *why]  # fmt: skip
            self.assertIn("no job of yours", self.ask(cupsd, why, 2))
            printed = 0
            for number, (options, status, wanted) in enumerate(self.JOBS, 1):
                with self.subTest(options=options):
                    cupsd.print("office", GOLDEN / "input/plain.ps", options.split())
                    cupsd.wait_until_done(number)
                    said = self.ask(cupsd, [*why, f"office-{number}"], status)
                    for text in wanted:
                        self.assertIn(text, said)
                        said = said[said.index(text):]
                    printed += "was printed" in wanted[0]
            self.assertIn(f'-{len(self.JOBS)} "plain.ps" was printed', self.ask(cupsd, [str(BIN / "zarvo"), "why"], 0))
            jobs = printer.wait(printed)
            self.assertEqual([b"SECURE_PRINT" in job for job in jobs[:4]], [True, True, True, False])
            self.assertIn("none", cupsd.run("lpoptions", "-p", "office").split("state-reasons=")[1])

    def ask(self, cupsd, command, status):
        environment = {**os.environ, "CUPS_SERVER": f"127.0.0.1:{cupsd.port}"}
        done = subprocess.run(command, env=environment, capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        return done.stdout + done.stderr


class Bounds(unittest.TestCase):
    """What a job can take of everybody's server and time."""

    def run_filter(self, job, options, ppd=GOLDEN / "ppd/test.ppd", **arguments):
        """Status, bytes written, seconds of processor time, and what the log says."""
        before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
        with tempfile.TemporaryFile() as log, tempfile.TemporaryFile() as input_file:
            input_file.write(job)
            input_file.seek(0)
            process = subprocess.Popen(
                [BIN / "zarvofilter", "1", "user", "title", "1", options], stdin=input_file,
                stdout=subprocess.PIPE, stderr=log, env={"PPD": str(ppd)} | arguments,
            )  # fmt: skip
            written = 0
            while piece := process.stdout.read(1 << 20):
                written += len(piece)
            process.stdout.close()
            status = process.wait()
            log.seek(0)
            said = [line for line in log.read().decode().splitlines() if line[:5] != "DEBUG"]
        return status, written, resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before, said

    def test_growth(self):
        job = b"%!PS-Adobe-3.0\n" * 5000
        name = "com.zarvo.print.JobType..d_SavedJobName=" + "x" * 100000
        status, written, _, log = self.run_filter(job, f"{TYPE}=3 {name}")
        self.assertEqual((status, len(log)), (1, 1), log)
        self.assertIn("grew past 256 MiB and 16 times its size", log[0])
        self.assertLess(written, (257 << 20) + 16 * len(job))

    def test_last_tenth_of_the_room(self):
        if os.geteuid() != 0:
            self.skipTest("only root can mount a small folder")
        with tempfile.TemporaryDirectory() as small:
            mount = ["mount", "-t", "tmpfs", "-o", "size=8m", "none", small]
            if subprocess.run(mount, capture_output=True).returncode != 0:
                self.skipTest("nothing can be mounted here")
            try:
                for megabytes, expected in ((6, 0), (7.7, 1)):
                    page = b"%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n" + (
                        b"% nothing here, only room\n" * int(megabytes * (1 << 20) / 26))
                    status, _, _, log = self.run_filter(
                        page + b"showpage\n%%EOF\n", "com.zarvo.print.BookletLayout..b=true", TMPDIR=small)
                    self.assertEqual(status, expected, log)
                    self.assertEqual("No space left" in log[0], expected == 1, log)
            finally:
                subprocess.run(["umount", small], check=True)

    def test_time_of_counted_data(self):
        taken = []
        for end in (b"\n", b"\r"):
            job = b"%!PS-Adobe-3.0\n" + (b"%%BeginBinary: 1" + end + b"X") * 1500000
            status, _, seconds, _ = self.run_filter(job, "")
            self.assertEqual(status, 0)
            taken.append(seconds)
        self.assertLess(taken[1], 4 * taken[0] + 0.3)

    def test_no_page_outside_of_the_envelope(self):
        """Without page hooks only certain lines begin a job that keeps a secret."""
        with tempfile.TemporaryDirectory() as scratch:
            ppd = pathlib.Path(scratch, "plain.ppd")
            ppd.write_text(PPD.read_text().replace("*ZRVPageHooks: True\n", ""))
            head = b"%!PS-Adobe-3.0\n"
            exits = (
                (head + b"showpage\n%%EOF\n\x1b%-12345X@PJL EOJ\n\x1b%-12345X", 0),
                (head + b"showpage\n\x1b%-12345X@PJL EOJ\n\x1b%-12345X\nshowpage\n%%EOF\n", 1),
                (head + b"showpage\n\x1b%-12345X\nshowpage\n", 1),
            )
            for job, status in (
                (head + b"showpage\n%%EOF\n", 0),
                (b"\x1b%-12345X@PJL SET X=1\n\n" + head + b"showpage\n%%EOF\n\x04\n", 0),
                (b"%!PS\nshowpage\n", 1),
                (b"%!PS-Adobe-3.0 EPSF-3.0\nshowpage\n%%EOF\n", 1),
                (b"showpage\n" + head, 1),
                (head + b"%%EOF\nshowpage\n", 1),
                (head + b"showpage\n\x1b%-12345X@PJL EOJ\n", 0),
                *exits,
            ):
                with self.subTest(job=job):
                    result, written, _, log = self.run_filter(job, "JobPIN=Custom.0391", ppd)
                    self.assertEqual(result, status, log)
                    if status == 1 and not job.startswith(head):
                        self.assertLess(written, 1)
            for job, status in exits:
                self.assertEqual(self.run_filter(job, "FaxNumber=Custom.1", PPD)[0], status, job)
                told = [line for line in self.run_filter(job, "", PPD)[3] if "ends the printer's job" in line]
                self.assertEqual(len(told), status, job)


if __name__ == "__main__":
    unittest.main()
