# SPDX-License-Identifier: Apache-2.0
"""Faults that are really caused: full disks, lost readers, signals, broken helpers, no memory.

Whatever happens, the filter ends, leaves no file and no process behind, says at most one thing about
the cause, and reports success only when the whole job went out.
"""

import contextlib
import os
import pathlib
import re
import plistlib
import resource
import select
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
import uuid

from zarvo import SANITIZED, paged

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
GOLDEN = pathlib.Path(os.environ["ZARVO_SOURCE"]) / "tests/golden"
SMALL = paged(b"")
# A booklet prints the third of four pages last.
LONG_LAST = paged(*(b"0 " * 2000000 * (n == 3) for n in range(1, 5)))
LARGE = paged(*[b"0 0 moveto " * 20000] * 20)

FEATURES = {
    "plain": "",
    "ticket": "com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b=true com.zarvo.print.JobNotesMessage=x",
    "booklet": "com.zarvo.print.BookletLayout..b=true",
    "image": "com.zarvo.print.watermark.Watermark=mark.png com.zarvo.print.watermark.Option..n=1",
    "cover": "com.zarvo.print.JobType..d_JobType..n=5 com.zarvo.print.FaxOptions..d_CoverSheet..b=true"
    " com.zarvo.print.FaxOptions..d_CoverSheetNotes=Hello"
    " com.zarvo.print.FaxRecipientList..a_0..d_FaxNumber=5550100",
}

NEVER_STARTED = 127  # the system's program loader gave up
OTHERS_SAY = "error while loading shared libraries|^cannot allocate TLS|^Error in GnuTLS|^Fontconfig (error|warning)"

injected = 0


class Faults(unittest.TestCase):
    maxDiff = 2000

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.spool = self.scratch / "spool"
        self.spool.mkdir()
        # A place of its own, so that a test can put another helper beside the filter.
        self.program = pathlib.Path(shutil.copy(BIN / "zarvofilter", self.scratch))
        shutil.copy(BIN / "zarvodraw", self.scratch)
        store = self.scratch / "support/Zarvo"
        store.mkdir(parents=True)
        self.image = self.scratch / "mark.png"
        self.draw_mark(20)
        mark = {"filename": "mark.png", "filePath": str(self.image), "scale": 100}
        (store / "com.zarvo.printing.watermarks.plist").write_bytes(plistlib.dumps({"mark.png": mark}))
        self.mark = uuid.uuid4().hex
        self.environment = {
            "PATH": os.environ["PATH"],
            "TMPDIR": str(self.spool),
            "PPD": str(GOLDEN / "ppd/test.ppd"),
            "ZARVO_APPLICATION_SUPPORT": str(self.scratch / "support"),
            "ZARVO_TEST_MARK": self.mark,
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", ""),
        }

    def draw_mark(self, resolution):
        subprocess.run(
            ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pngmono", f"-r{resolution}",
             f"-o{self.image}", "-c", "100 100 moveto 400 400 lineto stroke showpage"],
            check=True,
        )  # fmt: skip

    def replace_helper(self, script):
        helper = self.scratch / "zarvodraw"
        helper.write_text(f"#!/bin/sh\n{script}\n")
        helper.chmod(0o755)

    def replace_converter(self, script):
        folder = self.scratch / "filters"
        folder.mkdir(exist_ok=True)
        for name in ("pdftops", "pstops"):
            (folder / name).write_text(f"#!/bin/sh\n{script}\n")
            (folder / name).chmod(0o755)
        self.environment["ZARVO_FILTER_DIR"] = str(folder)

    def start(self, feature="plain", job=SMALL, limit=None, **streams):
        global injected
        injected += 1
        command = [self.program, "1", "user", "title", "1", FEATURES.get(feature, feature)]
        if job is not None:
            file = self.scratch / "job.ps"
            file.write_bytes(job)
            command.append(file)
        streams = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE} | streams
        before = (lambda: resource.setrlimit(*limit)) if limit else None
        return subprocess.Popen(
            command, stderr=subprocess.PIPE, env=self.environment, preexec_fn=before, **streams
        )

    def marked(self):
        """The processes that come from this test, zombies aside."""
        found = []
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                if self.mark.encode() in (process / "environ").read_bytes():
                    found.append(int(process.name))
        return found

    def finish(self, process, timeout=5):
        """Waits for the end and looks for what must be true after any of them. Gives the output
        (where a pipe is open), the lines on what went wrong, and the status."""
        output, log = process.communicate(timeout=timeout)
        # Who was killed needs a moment to go, and so does who clears up after it, who hides its memory
        # and with it our mark from ordinary users.
        for _ in range(100):
            left = self.marked()
            spool = list(self.spool.iterdir()) if self.spool.is_dir() else []
            kept = [entry for entry in spool if not entry.is_symlink()]
            if not left and not kept:
                break
            time.sleep(0.02)
        self.assertEqual(left, [], "processes left behind")
        self.assertEqual(kept, [], "files left behind")
        lines = log.decode(errors="replace").splitlines()
        lines = [line for line in lines if not re.search(OTHERS_SAY, line)]
        for line in lines:
            self.assertRegex(line, "^(ERROR|INFO|DEBUG|STATE): ")
        # The cover holds the time at which it was drawn.
        output = re.sub(rb"\d{14}[Z+-]\d\d'\d\d'?", b"", output or b"")
        return output, [line for line in lines if not line.startswith(("DEBUG", "STATE"))], process.returncode

    def run_to_end(self, *arguments, timeout=10, **options):
        return self.finish(self.start(*arguments, **options), timeout)

    def strict(self):
        """A PPD like the usual one, of a queue on which nothing is lost in silence."""
        strict = self.scratch / "strict.ppd"
        strict.write_bytes(pathlib.Path(self.environment["PPD"]).read_bytes() + b"*ZRVFailClosed: True\n")
        return str(strict)

    def assert_told(self, result, status, *texts):
        _, lines, actual = result
        self.assertEqual((actual, len(lines)), (status, 1), lines)
        for text in texts:
            self.assertIn(text, lines[0])


class Writing(Faults):
    def test_full_output(self):
        for feature in FEATURES:
            for job in (SMALL, LARGE):
                with self.subTest(feature=feature, size=len(job)), open("/dev/full", "wb") as full:
                    result = self.run_to_end(feature, job, stdout=full)
                    self.assert_told(result, 1, "ERROR: unable to write", "No space left")

    def test_full_spool(self):
        limit = (resource.RLIMIT_FSIZE, (100000, 100000))
        result = self.run_to_end("booklet", LARGE, limit)
        self.assert_told(result, 1, "ERROR: unable to spool", "File too large", "TMPDIR")
        self.assertEqual(result[0], b"")
        # Without the cover the job is whole, and the log says that it was left out.
        plain = self.run_to_end(FEATURES["cover"].replace("=true", "=false"))[0]
        result = self.run_to_end("cover", limit=(resource.RLIMIT_FSIZE, (500, 500)))
        self.assert_told(result, 0, "cover sheet was left out")
        self.assertEqual(result[0], plain)

    def test_full_spool_folder(self):
        mount = ["mount", "-t", "tmpfs", "-o", "size=64k", "none", str(self.spool)]
        if subprocess.run(mount, capture_output=True).returncode != 0:
            self.skipTest("no right to mount")
        self.addCleanup(subprocess.run, ["umount", str(self.spool)], check=True)
        result = self.run_to_end("booklet", LARGE)
        self.assert_told(result, 1, "ERROR: unable to spool", "No space left", "TMPDIR")
        # A cover needs no room there, not even for a folder.
        whole = self.run_to_end("cover")
        with contextlib.suppress(OSError), (self.scratch / "spool/filler").open("wb", 0) as filler:
            while True:
                filler.write(bytes(4096))
        self.assertEqual(shutil.disk_usage(self.spool).free, 0)
        process = self.start("cover")
        process.wait(10)
        (self.spool / "filler").unlink()
        self.assertEqual(self.finish(process), whole)
        self.assertEqual(whole[1:], ([], 0))

    def test_reader_goes(self):
        for feature in ("plain", "ticket", "booklet", "image"):
            for job, read in ((LARGE, 0), (LARGE, 1), (LARGE, 300000), (LONG_LAST, 300000)):
                with self.subTest(feature=feature, size=len(job), read=read):
                    process = self.start(feature, job)
                    while read > 0 and (got := os.read(process.stdout.fileno(), read)):
                        read -= len(got)
                    process.stdout.close()
                    self.assert_told(self.finish(process), 1, "unable to write", "Broken pipe")

    def test_reader_goes_before_the_last_bytes(self):
        process = self.start(job=None, stdin=subprocess.PIPE)
        process.stdin.write(SMALL)
        process.stdin.flush()
        process.stdout.close()
        time.sleep(0.1)
        self.assert_told(self.finish(process), 1, "unable to write", "Broken pipe")

    def test_stalled_reader_gets_everything(self):
        for feature in ("plain", "booklet"):
            with self.subTest(feature=feature):
                expected = self.run_to_end(feature, LARGE)
                process = self.start(feature, LARGE)
                time.sleep(2)
                self.assertEqual(self.finish(process), expected)
                self.assertEqual(expected[1:], ([], 0))

    def test_stalled_reader_gets_the_whole_image(self):
        # More than the pipes on both sides of the filter hold.
        self.draw_mark(200)
        expected = self.run_to_end("image")
        self.environment["ZARVO_HELPER_SECONDS"] = "1"
        process = self.start("image")
        time.sleep(2.5)
        self.assertTrue(self.finish(process) == expected)
        self.assertEqual(expected[1:], ([], 0))

    def test_closed_descriptors_are_no_success(self):
        for descriptor, told in ((0, 1), (1, 1), (2, 0)):
            for feature in ("plain", "booklet"):
                with self.subTest(descriptor=descriptor, feature=feature):
                    options = FEATURES[feature]
                    job = self.scratch / "job.ps"
                    job.write_bytes(SMALL)
                    name = "" if descriptor == 0 else f"'{job}'"
                    script = f"exec '{self.program}' 1 u t 1 '{options}' {name} {descriptor}>&-"
                    process = subprocess.Popen(
                        ["sh", "-c", script], env=self.environment, stdin=subprocess.DEVNULL,
                        stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                    )  # fmt: skip
                    output, lines, status = self.finish(process)
                    self.assertEqual((status, len(lines)), (told, told), lines)
                    self.assertEqual(output == b"", descriptor != 2)


class Ending(Faults):
    """A signal in each phase of a job."""

    def phases(self, script):
        """Each phase and a process that is in it, and stays in it. `script` is what a helper does
        once it has said that it runs."""
        began = self.scratch / "began"
        waiting = f": > '{began}'\n{script}"

        def wait_for_helper():
            for _ in range(500):
                if began.exists():
                    began.unlink()
                    return
                time.sleep(0.01)
            self.fail("the helper was not started")

        for phase, feature in (("copy", "plain"), ("spool", "booklet")):
            process = self.start(feature, None, stdin=subprocess.PIPE)
            process.stdin.write(LARGE[:500000])
            process.stdin.flush()
            if phase == "copy":
                os.read(process.stdout.fileno(), 1000)
            yield phase, process
        for phase, feature in (("blocked", "plain"), ("respool", "booklet")):
            process = self.start(feature, LARGE)
            select.select([process.stdout], [], [], 10)
            yield phase, process
        self.replace_helper(waiting)
        for phase in ("image", "cover"):
            process = self.start(phase)
            wait_for_helper()
            yield phase, process
        shutil.copy(BIN / "zarvodraw", self.scratch)
        self.replace_converter(waiting)
        process = self.start("cover")
        wait_for_helper()
        yield "conversion", process

    def check(self, process, number, seconds):
        before = time.monotonic()
        process.send_signal(number)
        status = process.wait(10)
        self.assertLess(time.monotonic() - before, seconds)
        self.assertEqual(status, -number)
        _, lines, _ = self.finish(process)
        self.assertEqual(lines, [])

    def test_asked_to_end(self):
        # What the helper has started must go as well, although it ignores every polite request.
        script = "trap '' TERM HUP INT; sleep 60 & wait; sleep 60"
        for phase, process in self.phases(script):
            with self.subTest(phase=phase):
                self.check(process, signal.SIGTERM, 1)

    def test_killed(self):
        for phase, process in self.phases("exec sleep 60"):
            with self.subTest(phase=phase):
                self.check(process, signal.SIGKILL, 1)

    def test_real_converters_leave_no_file(self):
        """They are stopped while they have temporary files with the page's content."""
        for number in (signal.SIGTERM, signal.SIGKILL):
            for delay in (0, 0.01, 0.02, 0.04):
                with self.subTest(signal=number, delay=delay):
                    process = self.start("cover")
                    while process.poll() is None and not any(f for *_, f in os.walk(self.spool)):
                        time.sleep(0.001)
                    self.assertIsNone(process.poll(), "no temporary file was seen")
                    time.sleep(delay)
                    process.send_signal(number)
                    self.assertEqual(self.finish(process)[1], [])

    def test_a_folder_whose_keeper_was_killed_goes_with_the_next_job(self):
        (self.spool / "zarvo-scratch-abcdef/deep").mkdir(parents=True)
        (self.spool / "zarvo-scratch-abcdef/deep/page").write_text("secret")
        self.assertEqual(self.run_to_end("cover")[1:], ([], 0))


class Helpers(Faults):
    SCRIPTS = {
        "crash": "kill -SEGV $$",
        "garbage": "head -c 300000 /dev/urandom",
        "status": "exit 3",
        "silence": "exit 0",
        "family": "sleep 60 & echo x",
        "half": "printf 'P6\\n100 100\\n255\\nxx'; exit 4",
        "header": "printf 'P6\\n999999999 999999999\\n255\\n'",
    }

    def test_helper(self):
        plain, _, _ = self.run_to_end()
        for name, script in self.SCRIPTS.items():
            with self.subTest(script=name):
                self.replace_helper(script)
                output, lines, status = self.run_to_end("image")
                self.assertEqual((status, len(lines)), (0, 1), lines)
                self.assertIn("watermark image", lines[0])
                if name == "half":  # the printer waits for as many rows as it was told of
                    self.assertIn((b"F" * 600 + b"\r") * 100, output)
                self.assertTrue(output.endswith(plain[-30:]))

    def test_nothing_comes(self):
        """The program before could not write a document, and only says so by its status."""
        self.environment["PPD"] = self.strict()
        for feature in FEATURES:
            with self.subTest(feature=feature):
                result = self.run_to_end(feature, b"")
                self.assert_told(result, 1, "the job was not printed", "make room")
                self.assertEqual(result[0], b"")

    def test_cover_programs(self):
        plain, _, _ = self.run_to_end(FEATURES["cover"].replace("=true", "=false"))
        usual = self.environment["PPD"]
        strict = self.strict()
        for replace in (self.replace_converter, self.replace_helper):
            for name, script in self.SCRIPTS.items():
                if name == "family" and replace == self.replace_converter:
                    script = "sleep 60 >/dev/null & exit 1"
                with self.subTest(script=name, replace=replace.__name__):
                    replace(script)
                    result = self.run_to_end("cover")
                    self.assert_told(result, 0, "cover sheet was left out")
                    self.assertEqual(result[0], plain)
                    self.environment["PPD"] = strict
                    result = self.run_to_end("cover")
                    self.environment["PPD"] = usual
                    self.assert_told(result, 1, "not printed: its fax cover sheet cannot be drawn")
                    self.assertEqual(result[0], b"")

    def test_hanging_programs_are_ended(self):
        plain, _, _ = self.run_to_end(FEATURES["cover"].replace("=true", "=false"))
        self.environment["ZARVO_HELPER_SECONDS"] = "1"
        hang = "trap '' TERM HUP INT; sleep 60 & sleep 60"
        self.replace_helper(f"printf 'P6\\n100 100\\n255\\nxx'; {hang}")
        self.assert_told(self.run_to_end("image", timeout=6), 0, "watermark image", "too long")
        self.assert_told(self.run_to_end("cover", timeout=6), 0, "cover sheet was left out")
        shutil.copy(BIN / "zarvodraw", self.scratch)
        self.replace_converter(hang)
        self.environment["ZARVO_HELPER_SECONDS"] = "4"  # the drawing before it must get through
        result = self.run_to_end("cover", timeout=12)
        self.assert_told(result, 0, "cover sheet was left out", "did not finish in time")
        self.assertEqual(result[0], plain)

    def test_a_job_of_many_headers_starts_few_programs(self):
        count = self.scratch / "count"
        empty = paged()
        job = empty[: empty.index(b"%%Trailer")] * 199 + empty
        real = BIN / "zarvodraw"
        for feature, most in (("cover", 1), ("image", 2)):
            with self.subTest(feature=feature):
                self.replace_helper(f"echo x >> '{count}'; exec '{real}' \"$@\"")
                output, lines, status = self.run_to_end(feature, job, timeout=60)
                self.assertEqual((lines, status), ([], 0))
                self.assertLessEqual(len(count.read_text().split()), most)
                once, _, _ = self.run_to_end(feature, empty)
                count.unlink()
                marker = b"readdata\n" if feature == "image" else b"%%Title: (Fax"
                self.assertGreater(once.count(marker), 0)
                self.assertEqual(output.count(marker), 200 * once.count(marker))


class Surroundings(Faults):
    def test_temporary_folder(self):
        expected = self.run_to_end("booklet")
        links = self.scratch / "links"
        links.mkdir()
        target = self.scratch / "target"
        target.write_text("untouched")
        for number in range(500):
            (links / f"zarvo-spool-{number:06}").symlink_to(target)
        linked = self.scratch / "linked"
        linked.symlink_to(links)
        plain, _, _ = self.run_to_end(FEATURES["cover"].replace("=true", "=false"))
        for folder, works in (
            (self.scratch / "missing", False),
            ("/proc", False),  # a folder that not even root can put a file into
            (target, False),
            ("", True),  # counts as not set
            (links, True),
            (linked, True),
        ):
            with self.subTest(folder=folder):
                self.environment["TMPDIR"] = str(folder)
                result = self.run_to_end("booklet")
                if works:
                    self.assertEqual(result, expected)
                    continue
                output, lines, status = result
                self.assertEqual((output, status, len(lines)), (b"", 1, 2), lines)
                self.assertEqual(lines[0], "ERROR: unable to get tmpnam")
                self.assertIn(f'TMPDIR, "{folder}" - ', lines[1])
                result = self.run_to_end("cover")
                if folder == "/proc":  # it has no room, but memory has
                    self.assertEqual(result[1:], ([], 0))
                    continue
                self.assert_told(result, 0, "cover sheet was left out", "TMPDIR")
                self.assertEqual(result[0], plain)
        self.assertEqual(target.read_text(), "untouched")
        self.assertEqual(len(list(links.iterdir())), 500)

    def test_ppd(self):
        self.environment.pop("PPD")
        without, _, _ = self.run_to_end()
        good = (GOLDEN / "ppd/test.ppd").read_bytes()
        choice = b"*Extra%d Choice%d/Text: \"0 0 moveto\"\n"
        option = b"*OpenUI *Opt%d: PickOne\n*Opt%d A/A: \"\"\n*CloseUI\n"
        many = b"".join(choice % (n, n) for n in range(1200000))
        ppds = {
            "cut": good[: len(good) // 2],
            "empty": b"",
            "zeros": bytes(50 << 20),
            "comments": good + b"*% nothing here\n" * (50 << 16),
            "attributes": good + many,
            "options": good + b"".join(option % (n, n) for n in range(50000)),
            "one line": good + b"*Extra: \"" + b"x" * (50 << 20),
        }
        file = self.scratch / "test.ppd"
        for name, content in ppds.items():
            with self.subTest(ppd=name):
                file.write_bytes(content)
                self.environment["PPD"] = str(file)
                output, lines, status = self.run_to_end(timeout=30)
                self.assertEqual((output, lines, status), (without, [], 0))
        pipe = self.scratch / "pipe.ppd"
        os.mkfifo(pipe)
        self.environment["PPD"] = str(pipe)
        self.assertEqual(self.run_to_end(timeout=30), (without, [], 0))
        self.environment["PPD"] = str(self.scratch / "missing.ppd")
        self.assertEqual(self.run_to_end(), (without, [], 0))

    def test_descriptors_run_out(self):
        whole = {feature: self.run_to_end(feature) for feature in FEATURES}
        for feature, (expected, _, _) in whole.items():
            for most in range(3, 16):
                with self.subTest(feature=feature, most=most):
                    limit = (resource.RLIMIT_NOFILE, (most, most))
                    output, lines, status = self.run_to_end(feature, limit=limit)
                    if lines[:1] == ["ERROR: unable to get tmpnam"]:
                        del lines[1]  # the folder and the cause
                    self.assertLessEqual(len(lines), 1, lines)
                    if status == 0 and not lines and feature != "booklet":
                        self.assertEqual(output, expected)
                    if status == 0 and feature in ("plain", "ticket"):
                        self.assertEqual(output, expected)
                    if status not in (0, NEVER_STARTED):
                        self.assertEqual((status, len(lines)), (1, 1))

    @unittest.skipIf(SANITIZED, "the address sanitizer needs all of the address space")
    def test_memory_runs_out(self):
        long = " ".join(f"K..a_{n}..d_x..a_0..s={n}" for n in range(4500))
        for feature in (*FEATURES, f"{FEATURES['booklet']} {long}"):
            expected = self.run_to_end(feature)
            outcomes = set()
            for megabytes in range(12, 40):
                with self.subTest(feature=feature[:60], megabytes=megabytes):
                    limit = (resource.RLIMIT_AS, (megabytes << 20, megabytes << 20))
                    # Just below what it needs a font library may go round in circles, until the
                    # helper's own limit of time ends it.
                    output, lines, status = self.run_to_end(feature, limit=limit, timeout=150)
                    outcomes.add(status)
                    self.assertLessEqual(len(lines), 1, lines)
                    if status == 0 and not lines:
                        self.assertEqual(output, expected[0])
            self.assertIn(0, outcomes)


def tearDownModule():
    print(f"{injected} faults injected")


if __name__ == "__main__":
    unittest.main(verbosity=1)
