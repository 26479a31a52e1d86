#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""zarvo accounting, metrics and store pack: what a house with several servers gathers, and gives to all of them."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import unittest

from cupsd import PrivateCupsd, Printer
from zarvo import BIN, SOURCE, ZarvoTest, document

GROUP = ["-o", "Accounting=Group", "-o", "AccountUser=Custom.ada \\\"x\\\"", "-o", "AccountID=Custom.4711"]
# Options of jobs of five pages.
JOBS = (
    [*GROUP, "-n", "3", "-o", "sides=two-sided-long-edge", "-o", "Staple=TopLeft", "-o", "ColorModel=Gray"],
    ["-o", "JobType=Secure", "-o", "JobPIN=Custom.0391", "-o", "HouseTicket=None"],
    ["-o", "BookletLayout=LeftToRight", "-o", "BookletFinish=FoldStaple"],
    ["-o", "finishings=trim", "-o", "job-account-id=77", "-o", "Punch=ThreeHole"],
    ["-o", "JobType=Secure"],  # refused
)
CHANGING = re.compile(r'("uuid":"|"ended":"|"created":")[^"]*|("host":")[^"]*')


def sheets(job):
    """What a printer takes from its drawers for a job."""
    pages = len(re.findall(rb"^%%Page: ", job, re.M))
    copies = re.search(rb"<copies[^>]*>(\d+)<|NumCopies (\d+)|/#copies (\d+)|/NumCopies (\d+)", job)
    number = int(next(filter(None, copies.groups()))) if copies else 1
    return number * (-(-pages // 2) if re.search(rb"two-sided|/Duplex true", job) else pages)


class Figures(ZarvoTest):
    def test_jobs_are_counted_once(self):
        job = self.path("five.ps", document(5))
        log, state = self.scratch / "jobs.log", self.scratch / "state/jobs.json"
        with PrivateCupsd(shows_jobs=True) as cupsd, Printer() as printer:
            cupsd.add_queue("office", BIN.parent / "ppd/zarvo.ppd", printer.uri)
            self.environment["CUPS_SERVER"] = f"127.0.0.1:{cupsd.port}"

            def account():
                self.run_zarvo("accounting", "--log", log, "--state", state)
                return log.read_text()

            def metrics():
                return self.run_zarvo("metrics", "--state", self.scratch / "state/metrics.json")

            for options in JOBS[:2]:
                cupsd.wait_until_done(cupsd.print("office", job, ["-U", "ada", *options]))
            first = account()
            early = state.read_bytes()
            before = metrics()
            for options in JOBS[2:]:
                cupsd.wait_until_done(cupsd.print("office", job, ["-U", "b\u00e9a", *options]))
            whole = account()
            self.assertTrue(whole.startswith(first))
            self.assert_golden("accounting.txt", CHANGING.sub(r"\1\2", whole))
            received = sum(map(sheets, printer.wait(4)))
            self.assertEqual(sum(json.loads(line)["sheets"] for line in whole.splitlines()), received)
            self.assertEqual(log.stat().st_mode & 0o777, 0o640)

            # Whenever a run is interrupted: after some lines, within one, before the state, around a rotation.
            half = len(first) + 40
            for cut, kept, rotated in ((len(whole), early, False), (half, early, False), (half, None, False),
                                       (len(whole), early, True), (half, early, True)):
                with self.subTest(cut=cut, rotated=rotated, state=bool(kept)):
                    log.write_text(whole[:cut])
                    state.unlink()
                    if kept:
                        # The file is another one, as tests write it anew.
                        state.write_text(json.dumps(json.loads(kept) | {"inode": log.stat().st_ino}))
                    if rotated:
                        log.rename(f"{log}.1")
                    text = account()
                    account()
                    text = (pathlib.Path(f"{log}.1").read_text() if rotated else "") + log.read_text()
                    self.assertEqual(sorted(text.splitlines()), sorted(whole.splitlines()))
            log.unlink()

            text = metrics()
            steady = re.sub(r"(_(?:seconds|sum|bucket)\{.*\}) \d+", r"\1 N", text)
            self.assert_golden("metrics.txt", steady)
            if shutil.which("promtool"):
                subprocess.run(["promtool", "check", "metrics"], input=text.encode(), check=True)
            # Counters outlive what the spooler remembers.
            cupsd.run("cancel", "-a", "-x")
            counters = [re.findall(r"^\w+_(?:total|sum|count|bucket)\{.*", one, re.M) for one in (before, text, metrics())]
            self.assertEqual(counters[1], counters[2])
            self.assertNotEqual(counters[0], counters[1])
            cupsd.process.kill()
            cupsd.process.wait()
            self.assertIn("zarvo_spooler_up 0\n", metrics())
            self.run_zarvo("accounting", "--log", log, "--state", state, status=2)
        for file in self.scratch.rglob("*"):
            if file.suffix in (".log", ".json", ".1"):
                self.assertNotIn(b"0391", file.read_bytes(), file)

    def test_dashboard_and_alerts_name_what_there_is(self):
        known = set(re.findall(r"^# TYPE (\w+)", (pathlib.Path(__file__).parent / "expected/metrics.txt").read_text(), re.M))
        dashboard = json.loads((SOURCE / "fleet/figures/dashboard.json").read_text())
        asked = [target["expr"] for panel in dashboard["panels"] for target in panel["targets"]]
        asked.append((SOURCE / "fleet/figures/alerts.yml").read_text())
        named = set(re.findall(r"\bzarvo_\w+", "\n".join(asked)))
        self.assertEqual({re.sub("_bucket$", "", name) for name in named}, known)


class Pack(ZarvoTest):
    ARGUMENTS = ("store", "pack", "--name", "house-store", "--version", "7", "--maintainer", "Ada <ada@example.org>")

    def test_package_has_what_the_stores_have(self):
        store = self.scratch / "data/Zarvo"
        self.run_zarvo("watermark", "add-text", "DRAFT")
        (store / "contacts/b\u00fccher").mkdir(parents=True)
        (store / "contacts/b\u00fccher/ada.vcf").write_text("BEGIN:VCARD\r\nEND:VCARD\r\n")
        (store / ".x.zarvo-abcdef").write_text("left behind")
        names = [self.run_zarvo(*self.ARGUMENTS, "--output", self.path(name)).strip()
                 for name in ("one", "two") if (self.scratch / name).mkdir() is None]
        one, two = (pathlib.Path(name).read_bytes() for name in names)
        self.assertEqual(one, two)
        subprocess.run(["dpkg-deb", "-x", names[0], self.scratch / "out"], check=True)
        listed = subprocess.run(["dpkg-deb", "-c", names[0]], capture_output=True, text=True, check=True).stdout
        self.assertEqual(set(line.split()[0] + line.split()[1] for line in listed.splitlines()),
                         {"drwxr-xr-xroot/root", "-rw-r--r--root/root"})
        out = self.scratch / "out" / str(store).lstrip("/")
        files = {path.relative_to(store): path.read_bytes() for path in store.rglob("*")
                 if path.is_file() and not path.name.startswith(".")}
        self.assertEqual({path.relative_to(out): path.read_bytes() for path in out.rglob("*") if path.is_file()}, files)

    def test_what_must_not_travel(self):
        store = self.scratch / "data/Zarvo"
        self.run_zarvo("watermark", "add-text", "DRAFT")
        secret = {"JobType": {"JobType": 2, "SecurePrintPassword": "0391"}}

        def write(name, mode=0o644):
            (store / name).write_text("x")
            (store / name).chmod(mode)

        for make, told in (
            (lambda: (store / "link").symlink_to("/etc/passwd"), "neither file nor folder"),
            (lambda: os.mkfifo(store / "link"), "neither file nor folder"),
            (lambda: write("a\nb"), "characters that nobody types"),
            (lambda: write(b"\xff.png".decode(errors="surrogateescape")), "characters that nobody types"),
            (lambda: write("key", 0o600), "not for everybody"),
            (lambda: self.write_store("housetickets", {"pay": {"Ticket": {
                "com.zarvo.print.JobType": secret["JobType"]}}}), "pay"),
            (lambda: self.write_store("watermarks", {"WatermarkListEntries": ["None", "a.png"], "a.png": {
                "filePath": "/root/a.png"}}), "a.png has its image elsewhere"),
        ):
            before = set(store.iterdir())
            with self.subTest(told):
                make()
                self.run_zarvo(*self.ARGUMENTS, status=2)
                self.assertIn(told, self.errors)
                self.assertNotIn("0391", self.errors)
            for path in set(store.iterdir()) - before:
                path.unlink()
        for option, value in (("--name", "../x"), ("--name", "A"), ("--version", "1\nDepends: x"), ("--version", "../1"),
                              ("--maintainer", "x\n <a@b>"), ("--maintainer", "Ada")):
            arguments = list(self.ARGUMENTS)
            arguments[arguments.index(option) + 1] = value
            self.run_zarvo(*arguments, status=2)
        self.assertEqual(list(self.scratch.rglob("*.deb")), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
