# SPDX-License-Identifier: Apache-2.0
"""What the filter and its helper cannot do, tried by programs in their places."""

import ctypes
import os
import pathlib
import re
import resource
import select
import shutil
import signal
import subprocess
import unittest

from pictures import png
from zarvo import BIN, PPD, SANITIZED, ZarvoTest, document

ROOT = os.geteuid() == 0
LP = 7
LANDLOCK = ctypes.CDLL(None).syscall(444, None, 0, 1) > 0  # the kernel's version of it
P = "com.zarvo.print."
IMAGE = f"{P}watermark.Watermark=logo {P}watermark.Option..n=1"
COVER = (
    f"{P}JobType..d_JobType..n=5 {P}FaxRecipientList..a_0..d_FaxNumber=5550100"
    f" {P}FaxOptions..d_CoverSheet..b=true {P}FaxOptions..d_ShowWatermark..b=true"
    f" {P}FaxOptions..d_WatermarkName=logo {P}FaxOptions..d_CoverSheetNotes=Hello"
)
BOOKLET = f"{P}BookletLayout..b=true"
# What programs of the system read for themselves.
SYSTEM = re.compile(r"/(usr|lib|lib64|etc|proc/self|proc/\d+|sys/devices|sys/fs)/|/var/(cache|lib)/"
                    r"(fontconfig|ghostscript)|/dev/(null|urandom|fd/0)$|/proc/filesystems$")

# Comes out before its end has come in.
LONG = document().encode() + b"% a comment\n" * 20000


class Confinement(ZarvoTest):
    def setUp(self):
        super().setUp()
        self.scratch.chmod(0o755)
        self.spool = self.scratch / "spool"
        self.spool.mkdir()
        self.spool.chmod(0o1777)
        self.environment["TMPDIR"] = str(self.spool)
        # A place of its own, where another helper can stand beside the filter, and which the spooler's
        # user can enter even when the tree lies in a private home.
        self.ppd = shutil.copy(PPD, self.scratch)
        self.program = shutil.copy(BIN / "zarvofilter", self.scratch)
        self.helper = pathlib.Path(shutil.copy(BIN / "zarvodraw", self.scratch))
        logo = {"filename": "logo", "filePath": self.path("logo.png", png(4, 4, (255, 0, 0))),
                "scale": 100, "density": 50}
        for store in ("watermarks", "faximage"):
            self.write_store(store, {"WatermarkListEntries": ["None", "logo"], "logo": logo})
        (self.scratch / "data/Zarvo").chmod(0o755)

    def start(self, options, **how):
        environment = self.environment | {"PPD": self.ppd} | how.pop("environment", {})
        return subprocess.Popen([self.program, "1", "ada", "title", "1", options], env=environment,
                                stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, **how)  # fmt: skip

    @unittest.skipIf(SANITIZED, "the leak sanitizer looks into its own process")
    def test_everything_forbidden_is_refused(self):
        for task in ("image", "page"):
            with self.subTest(task=task):
                told = subprocess.run([self.helper, "check", task], capture_output=True, text=True,
                                      check=True, cwd="/", env=self.environment).stdout  # fmt: skip
                lines = dict(line.split() for line in told.splitlines())
                landlock = lines.pop("landlock")
                self.assertEqual(landlock, "on" if LANDLOCK else "off")
                self.assertEqual(lines.pop("seccomp"), "on")
                if task == "page" and landlock == "off":
                    lines.pop("reading")
                self.assertEqual(set(lines.values()), {"refused"}, lines)
                self.assertGreaterEqual(len(lines), 7)

    @unittest.skipIf(SANITIZED, "the leak sanitizer looks into its own process")
    def test_each_bolt_by_itself(self):
        """Where one holds, those behind it are never tried."""
        somebody = {"user": LP, "group": LP, "extra_groups": []} if ROOT else {}
        # It gives more than the pipe takes, and nobody reads it.
        with (open(self.path("large.png", png(400, 400, (255, 0, 0))), "rb") as image,
              subprocess.Popen([self.helper, "image", "pam", "x"], env=self.environment, cwd="/",
                               stdin=image, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                               **somebody) as process):
            about = pathlib.Path("/proc", str(process.pid))
            select.select([process.stdout], [], [], 60)
            status = (about / "status").read_text()
            self.assertRegex(status, "\nState:\t[SR]")
            self.assertIn("\nSeccomp:\t2\n", status)
            self.assertIn("\nNoNewPrivs:\t1\n", status)
            limits = (about / "limits").read_text()
            for what in ("core file size", "file size", "processes"):
                self.assertRegex(limits, rf"Max {what} +0 +0 ")
            # Who may not be looked into, by his own user either, has his files in /proc taken away.
            self.assertEqual((about / "mem").stat().st_uid, 0)
            process.kill()

    @unittest.skipUnless(ROOT, "takes root, to be another user")
    def test_a_program_in_the_helpers_place_finds_nothing(self):
        """It gets no secret, no descriptor and no way into the filter's memory."""
        report = self.spool / "report"
        self.helper.write_text(f"""#!/bin/sh
exec > '{report}' 2>&1
env
ls -l /proc/$$/fd
head -c1 /proc/$PPID/mem && echo REACHED; head -c1 /proc/$PPID/environ && echo REACHED
ls /proc/$PPID/fd && echo REACHED
""")
        secret = {"LD_LIBRARY_PATH": "/none", "GDK_PIXBUF_MODULE_FILE": "/none", "GIO_MODULE_DIR": "/n",
                  "AUTH_INFO_REQUIRED": "secret", "LANG": "C.UTF-8"}  # fmt: skip
        process = self.start(IMAGE, environment=secret, user=LP, group=LP, extra_groups=[])
        process.communicate(document().encode(), timeout=30)
        told = report.read_text()
        self.assertIn("LANG=C.UTF-8", told)
        for name in secret.keys() - {"LANG"}:
            self.assertNotIn(name, told)
        if not SANITIZED:  # the leak sanitizer must look into the filter
            self.assertNotIn("REACHED", told)
        descriptors = re.findall(r" (\d+) -> (\S+)", told)
        self.assertLessEqual({number for number, _ in descriptors}, {"0", "1", "2", "10", "255"})
        self.assertIn(("0", str(self.scratch / "logo.png")), descriptors)

    @unittest.skipUnless(ROOT, "takes root, to leave it")
    def test_root_is_left(self):
        private = self.scratch / "private"
        private.mkdir(mode=0o700)
        for folder, variables, user in (
            (self.spool, {}, LP),
            (private, {}, 0),  # by hand, on what only root may use
            (private, {"SOFTWARE": "CUPS/2.4"}, LP),
        ):
            with self.subTest(folder=folder.name, variables=variables):
                process = self.start("", environment={"TMPDIR": str(folder), **variables})
                process.stdin.write(LONG)
                process.stdin.flush()
                process.stdout.read(1)
                status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
                process.communicate(timeout=30)
                for line in re.findall("(?:Uid|Gid):(.*)", status):
                    self.assertEqual(set(line.split()), {str(user)}, status)

    @unittest.skipIf(SANITIZED, "the sanitizer ends such processes itself")
    def test_no_core_is_dumped(self):
        limit = (resource.RLIM_INFINITY, resource.RLIM_INFINITY)
        process = self.start(f"{P}JobType..d_JobType..n=2", cwd=self.spool,
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CORE, limit))
        process.stdin.write(LONG)
        process.stdin.flush()
        process.stdout.read(1)
        limits = pathlib.Path(f"/proc/{process.pid}/limits").read_text()
        self.assertRegex(limits, "Max core file size +0 +0 ")
        process.send_signal(signal.SIGSEGV)
        process.communicate(timeout=30)
        self.assertEqual(process.returncode, -signal.SIGSEGV)
        self.assertEqual(list(self.spool.iterdir()), [])

    @unittest.skipUnless(shutil.which("strace") and not SANITIZED, "takes strace")
    @unittest.skipIf(os.geteuid() != 0, "its memory is hidden from all but root: the names are in there")
    def test_only_files_that_the_administrator_chose_are_opened(self):
        decoy = self.path("decoy", b"secret")
        texts = " ".join(f"{key}={decoy}" for key in (
            f"{P}JobNotesMessage", f"{P}JobLevelStock..d_Name", "ZRVJobName", "PPD", "media",
            f"{P}JobType..d_SavedJobName", f"{P}FaxOptions..d_SenderName", f"{P}FinishingCustom",
            f"{P}BackgroundFormsOptions..d_NewFormString"))  # fmt: skip
        job = self.path("job.ps", document(2).replace("%%EOF", f"({decoy}) run\n%%EOF"))
        ours = [job, self.ppd, str(self.scratch / "data/Zarvo"), str(self.scratch / "logo.png"),
                str(self.spool), self.program, str(self.helper), str(self.scratch / ".cache")]
        for options in (texts, f"{texts} {IMAGE}", f"{texts} {COVER}", f"{texts} {BOOKLET}"):
            with self.subTest(options=options[len(texts):][-40:]):
                trace = self.scratch / "trace"
                subprocess.run(
                    ["strace", "-f", "-qq", "-e", "trace=open,openat,openat2,creat", "-o", trace,
                     self.program, "1", "ada", "title", "1", options, job],
                    env=self.environment | {"PPD": self.ppd}, check=True, capture_output=True,
                    timeout=120)  # fmt: skip
                opened = re.findall(r'open\w*\((?:AT_FDCWD, )?"([^"]+)".* = \d+', trace.read_text())
                self.assertIn(job, opened)
                strange = {path for path in opened
                           if not path.startswith(tuple(ours)) and not SYSTEM.match(path)}
                self.assertEqual(strange, set())


if __name__ == "__main__":
    unittest.main()
