#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Starts the reference fleet, prints through it, shows where the jobs are, counts them, and takes it down.

    fleet.py [--jobs 60] [--kinds postscript,pdf,...] [--queues office,press] [--fault "server2 at 20 for 10"]...

A fault is what loses its power, at which share of the jobs in per cent, and for how many seconds: serverN,
front, printer-QUEUE, "transfer" (whichever server is taking a large job), or "disk N" (the disk of serverN
is full meanwhile; root only). --json FILE keeps the result. When a job was lost or wrong the exit status is 1,
and what the printers got instead, with the right ones and the spoolers' logs, stays in a folder that is named.
"""

import argparse
import collections
import concurrent.futures
import contextlib
import itertools
import json
import os
import pathlib
import re
import shutil
import signal
import sys
import tempfile
import threading
import time

os.environ["ZARVO_BIN"] = str(pathlib.Path(os.environ.get("ZARVO_BIN", "build/bin")).resolve())
sys.dont_write_bytecode = True
from jobs import KINDS, job, judge, make_store  # noqa: E402
from machines import enter_network, wait_until  # noqa: E402
from spoolers import Fleet  # noqa: E402

CLIENTS = 4
BEAT, MINUTE = 0.2, 15  # seconds: looking, and what timers do every minute
ON_THE_WAY = 400  # so many jobs at most, that faults find the fleet at work from the first to the last
LARGE = 32 << 20
FAULT = re.compile(r"(server\d+|front|printer-\w+|transfer|disk \d+) at (\d+) for (\d+)$")


class Fault:
    """Happens once so many jobs have come out, and is over some seconds later."""

    def __init__(self, text, jobs):
        match = FAULT.match(text)
        if not match:
            raise argparse.ArgumentTypeError(f"not a fault: {text}")
        self.text, self.what, self.after = text, match[1], jobs * int(match[2]) // 100
        self.seconds, self.begun, self.over = int(match[3]), None, False

    def look(self, fleet, received, send_large):
        if self.begun is None and received >= self.after and self._can_begin(fleet):
            self._begin(fleet, send_large)
            self.begun = time.monotonic()
        elif self.begun and not self.over and time.monotonic() > self.begun + self.seconds:
            self._end(fleet)
            self.over = True

    def _can_begin(self, fleet):
        """What has no power yet from a fault before cannot lose it."""
        machine = (fleet.printers[self.what[8:]] if self.what.startswith("printer-") else
                   None if self.what == "transfer" else self._spooler(fleet).machine)
        return machine is None or machine.is_on

    def _spooler(self, fleet):
        return fleet.front if self.what == "front" else fleet.servers[int(re.sub(r"\D", "", self.what)) - 1]

    def _begin(self, fleet, send_large):
        if self.what.startswith("printer-"):
            fleet.printers[self.what[8:]].power_off()
        elif self.what.startswith("disk"):
            self._spooler(fleet).fill_disk()
        else:
            self._victim = self._taking_large_job(fleet, send_large) if self.what == "transfer" else self._spooler(fleet)
            self._victim.machine.power_off()

    @staticmethod
    def _taking_large_job(fleet, send_large):
        def taking():
            for spooler in fleet.servers:
                if not spooler.machine.is_on:
                    continue
                for file in (spooler.root / "spool").glob("?" * 8):
                    with contextlib.suppress(FileNotFoundError):
                        if LARGE // 32 < file.stat().st_size < LARGE:
                            return spooler
            return None

        for _ in range(5):
            send_large()
            end = time.monotonic() + 60
            while time.monotonic() < end:
                if found := taking():
                    return found
                time.sleep(0.01)
        raise TimeoutError("no server was seen taking a large job")

    def _end(self, fleet):
        if self.what.startswith("printer-"):
            fleet.start_printer(self.what[8:])
        elif self.what.startswith("disk"):
            self._spooler(fleet).free_disk()
        else:
            self._victim.start()


class Sender:
    """Sends jobs as so many clients at once, until each has been taken."""

    def __init__(self, fleet, kinds, queues, folder):
        self.fleet, self.kinds, self.queues, self.folder = fleet, kinds, queues, pathlib.Path(folder)
        self.sent, self.refused, self._lock = {}, collections.Counter(), threading.Lock()
        self.given_up, self.again, self._names = threading.Event(), [], {}

    def send(self, number, kind=None, padding=0):
        kind = kind or self.kinds[number % len(self.kinds)]
        mark, document, options = job(kind, number)
        document = document.replace(b"%%Trailer\n", b"%%Trailer\n" + (b"%" + b"x" * 62 + b"\n") * (padding // 64))
        file = self.folder / mark
        file.write_bytes(document)
        while not self.given_up.is_set():
            try:
                # Jobs go to the queues in turn, whatever their kind.
                queue = self.queues[number // len(self.kinds) % len(self.queues)]
                name = f"{queue}-{self.fleet.front.send(queue, file, options, mark)}"
                break
            except RuntimeError as error:  # what a user does who is told that it did not work
                with self._lock:
                    self.refused[re.search(r"lp: (.*)", str(error))[1][:60]] += 1
                time.sleep(1)
        file.unlink()
        with self._lock:
            self.sent[mark] = kind if not padding else "large"
            self._names[name] = mark, (number, kind, padding)

    def asked_again(self, told):
        """For a job that the front says it has the name of only: what its sender does then, as arguments of send()."""
        match = re.match(r"(\S+) of \S+ has come without its document: it has to be sent again", told)
        if not match or match[1] not in self._names:
            return None
        self.fleet.front.run("cancel", match[1])
        mark, arguments = self._names.pop(match[1])
        self.again.append(mark)
        return arguments


def show(fleet, records, jobs, clear):
    where = collections.Counter(record["from"] for record in records if record["whole"])
    rows = [("", "state", "waiting", "jobs out", "sheets")]
    for spooler in [fleet.front, *fleet.servers]:
        is_on = spooler.machine.is_on
        jobs_out, sheets = spooler.sheets()
        # What the front has passed on is counted where it is printed.
        own = (where[spooler.machine.address], sheets) if spooler.kind == "server" else (jobs_out, "")
        rows.append((spooler.machine.name, "on" if is_on else "no power", spooler.waiting() if is_on else "?", *own))
    for queue, machine in fleet.printers.items():
        rows.append((machine.name, "on" if machine.is_on else "no power", "", len(fleet.received(queue)), ""))
    lines = ["".join(str(cell).ljust(width) for cell, width in zip(row, (18, 10, 9, 10, 8))).rstrip() for row in rows]
    lines.append(f"{len(records)} of {jobs} jobs came out")
    print((f"\033[{clear}A\033[J" if clear and sys.stdout.isatty() else "") + "\n".join(lines), flush=True)
    return len(lines)


def run(fleet, sender, jobs, faults, expected, table=2):
    """Sends all jobs and waits until they are out and each fault is over; gives the result. A table is shown
    every so many seconds."""
    begun = shown = tended = changed = time.monotonic()
    last, height = 0, 0
    extra = iter(range(9_000_000, 9_999_999))
    with concurrent.futures.ThreadPoolExecutor(CLIENTS) as pool:
        waiting, numbers = [], iter(range(jobs))

        def send_large():
            waiting.append(pool.submit(sender.send, next(extra), "postscript", LARGE))

        try:
            while True:
                records, now = fleet.received(), time.monotonic()
                marks = {mark for record in records if record["whole"] for mark in record["mark"]}
                room = max(0, ON_THE_WAY + len(marks) - len(waiting))
                waiting += [pool.submit(sender.send, number) for number in itertools.islice(numbers, room)]
                if len(records) != last:
                    last, changed = len(records), now
                done = (len(sender.sent) >= jobs + len(expected) and all(future.done() for future in waiting)
                        and all(fault.over for fault in faults))
                if done and (marks >= set(sender.sent) or now > changed + 300):
                    break
                for fault in faults:
                    fault.look(fleet, len(records), send_large)
                if now > tended + MINUTE and fleet.front.machine.is_on:
                    tended = now
                    for told in fleet.look_after():
                        print(told)
                        height = 0
                        if arguments := sender.asked_again(told):
                            waiting.append(pool.submit(sender.send, *arguments))
                if now > shown + table:
                    shown, height = now, show(fleet, records, jobs + len(expected), height)
                time.sleep(BEAT)
        except BaseException:
            sender.given_up.set()
            for future in waiting:
                future.cancel()
            raise
        for future in waiting:
            future.result()
    time.sleep(3)  # one that comes twice comes now
    records = fleet.received()
    show(fleet, records, len(sender.sent), height)
    lost, doubled, wrong, cut = judge(sender.sent, expected, records)
    if lost or wrong:
        keep_evidence(fleet, sender, expected, lost, wrong)
    return {"jobs": len(sender.sent), "seconds": round(changed - begun), "lost": lost, "doubled": doubled,
            "wrong": wrong, "cut": cut, "sent again": sender.again, "refused": dict(sender.refused),
            "restarted": sum(server.restarted for server in fleet.servers), "faults": [fault.text for fault in faults],
            "pages": sum(record["pages"] for record in records if record["whole"])}


def keep_evidence(fleet, sender, expected, lost, wrong):
    folder = pathlib.Path(tempfile.mkdtemp(prefix="zarvo-fleet-wrong-"))
    for number, record in enumerate(fleet.received()):
        if set(record["mark"]) & set(lost + wrong):
            name = f"{'-'.join(record['mark'])}-{number}-{record['from']}-{'whole' if record['whole'] else 'cut'}.prn"
            shutil.copy(fleet.kept / record["digest"], folder / name)
    for kind in {sender.sent[mark] for mark in wrong if mark in sender.sent}:
        shutil.copy(fleet.kept / expected[kind], folder / f"right-{kind}.prn")
    for spooler in (fleet.front, *fleet.servers):
        (folder / f"{spooler.machine.name}.log").write_text(spooler.log() + spooler.run("lpstat", "-o", "-p"))
    print(f"what came out instead is in {folder}")


def learn(fleet, sender, large):
    """Digests of one job of each kind, printed alone. They come in the order in which they are sent."""
    expected = {}
    kinds = [*sender.kinds, *(["large"] if large else [])]
    for number, kind in enumerate(kinds):
        if kind == "large":
            sender.send(9_900_000, "postscript", LARGE)
        else:
            sender.send(9_900_001 + number, kind)
        wait_until(lambda: len(fleet.received()) == number + 1, f"{kind} did not come out", 180)
        record = next(r for r in fleet.received() if r["digest"] not in expected.values())
        if not record["whole"] or len(record["mark"]) != 1:
            raise RuntimeError(f"{kind} came out as {record}")
        expected[kind] = record["digest"]
    return expected


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--jobs", type=int, default=60)
    parser.add_argument("--servers", type=int, default=3)
    parser.add_argument("--kinds", default=",".join(KINDS))
    parser.add_argument("--queues", default="office,press")
    parser.add_argument("--fault", action="append", default=[])
    parser.add_argument("--table", type=float, default=2, metavar="SECONDS")
    parser.add_argument("--json")
    options = parser.parse_args()
    faults = [Fault(text, options.jobs) for text in options.fault]
    enter_network()
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))
    queues = options.queues.split(",")
    with tempfile.TemporaryDirectory(prefix="zarvo-fleet-") as scratch:
        os.chmod(scratch, 0o755)
        environment = make_store(scratch + "/data")
        small = [int(fault.what.split()[1]) for fault in faults if fault.what.startswith("disk")]
        with Fleet(options.servers, queues, environment, small_disks=small) as fleet:
            print(f"{options.servers} servers, a front, printers {', '.join(queues)}; "
                  f"{options.jobs} jobs of the kinds {options.kinds}", flush=True)
            sender = Sender(fleet, options.kinds.split(","), queues, scratch)
            expected = learn(fleet, sender, any("transfer" in text for text in options.fault))
            result = run(fleet, sender, options.jobs, faults, expected, options.table)
    if options.json:
        pathlib.Path(options.json).write_text(json.dumps(result, indent=1) + "\n")
    print(f"{result['jobs']} jobs in {result['seconds']} s: {len(result['lost'])} lost, {len(result['wrong'])} wrong, "
          f"{len(result['doubled'])} doubled, {result['cut']} cut off and printed once more")
    for name in ("lost", "wrong", "doubled", "sent again", "refused", "restarted"):
        if result[name]:
            print(f"{name}: {result[name]}")
    return int(bool(result["lost"] or result["wrong"]))


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit("interrupted")
