#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Measures what jobs cost a fleet in processor time, and how it grows with the number of servers.

    fleet_cost.py [--jobs 60] [--growth 0.1]

The first table: for each kind of job (fleet/jobs.py) the milliseconds of a core that a server and a front
need, how many jobs an hour that makes for a core, and the filter's share of the server's. With --growth the
second: each server may use that share of a core, as if it were a machine so slow, and one, two and three of
them print the same jobs; it takes root and the scheduler's control groups. Processor time counts, not the clock,
so that a machine with other work tells the same. Nothing here is a test.
"""

import argparse
import os
import pathlib
import sys
import tempfile
import time

SOURCE = pathlib.Path(__file__).resolve().parents[1]
os.environ["ZARVO_BIN"] = str(pathlib.Path(os.environ.get("ZARVO_BIN", SOURCE / "build/bin")).resolve())
sys.path.insert(0, str(SOURCE / "fleet"))
from fleet import Sender, learn, run  # noqa: E402
from jobs import KINDS, make_store  # noqa: E402
from machines import enter_network, wait_until  # noqa: E402
from spoolers import Fleet  # noqa: E402

# Stands in the filter's place and notes what it and its helpers have used.
STOPWATCH = """#!/usr/bin/python3
import os, sys
child = os.fork()
if child == 0:
    os.execv(sys.argv[0] + ".real", sys.argv)
_, status, used = os.wait4(child, 0)
with open(os.environ["TMPDIR"] + "/used", "a") as log:
    log.write(f"{used.ru_utime + used.ru_stime}\\n")
sys.exit(os.waitstatus_to_exitcode(status))
"""


def print_all(fleet, sender, kind, numbers):
    for number in numbers:
        sender.send(number, kind)
    wait_until(lambda: len(fleet.received()) >= len(sender.sent), "jobs do not come out", 600)
    wait_until(lambda: not fleet.servers[0].waiting(), "jobs do not end", 60)


def cost(fleet, sender, kind, jobs, start):
    """Seconds of the server and the front for a job, and of these the filter's."""
    machines = [fleet.servers[0].machine, fleet.front.machine]
    print_all(fleet, sender, kind, [start])  # what only the first one takes
    before = [machine.processor_seconds() for machine in machines]
    print_all(fleet, sender, kind, range(start + 1, start + 1 + jobs))
    server, front = [(machine.processor_seconds() - used) / jobs for machine, used in zip(machines, before)]
    filter_ = fleet.servers[0].serverbin / "filter/zarvofilter"
    filter_.rename(f"{filter_}.real")
    filter_.write_text(STOPWATCH)
    filter_.chmod(0o555)
    used = fleet.servers[0].temporary / "used"
    used.unlink(missing_ok=True)
    some = max(jobs // 3, 1)
    print_all(fleet, sender, kind, range(start + 1 + jobs, start + 1 + jobs + some))
    ours = sum(map(float, used.read_text().split())) / some
    pathlib.Path(f"{filter_}.real").rename(filter_)
    return server, front, ours


def bound(pid, name, share):
    """Lets a process and what it starts have that share of a core."""
    period = 100_000
    if pathlib.Path("/sys/fs/cgroup/cpu").is_dir():
        group, settings = pathlib.Path("/sys/fs/cgroup/cpu", name), {
            "cpu.cfs_period_us": period, "cpu.cfs_quota_us": int(period * share)}
    else:
        group, settings = pathlib.Path("/sys/fs/cgroup", name), {"cpu.max": f"{int(period * share)} {period}"}
    group.mkdir(exist_ok=True)
    for file, value in settings.items():
        (group / file).write_text(str(value))
    (group / "cgroup.procs").write_text(str(pid))
    return group


def growth(servers, share, jobs):
    """Jobs an hour with so many servers."""
    groups = []
    with tempfile.TemporaryDirectory(prefix="zarvo-fleet-") as scratch:
        os.chmod(scratch, 0o755)
        try:
            with Fleet(servers, ["office"], make_store(scratch + "/data")) as fleet:
                kinds = ["postscript", "secure", "booklet", "watermark"]
                sender = Sender(fleet, kinds, ["office"], scratch)
                expected = learn(fleet, sender, False)
                groups = [bound(spooler.machine.first_process(), f"zarvo-{spooler.machine.name}", share)
                          for spooler in fleet.servers]
                begun = time.monotonic()
                result = run(fleet, sender, jobs, [], expected, table=1e9)
                return jobs / (time.monotonic() - begun - 3) * 3600, result
        finally:
            for group in groups:
                group.rmdir()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--jobs", type=int, default=60)
    parser.add_argument("--growth", type=float, default=0, metavar="SHARE")
    options = parser.parse_args()
    enter_network()
    if options.growth:
        for servers in (1, 2, 3):
            pace, result = growth(servers, options.growth, options.jobs)
            print(f"{servers} servers with {options.growth} of a core each: {pace:.0f} jobs an hour, "
                  f"{len(result['lost'])} lost", flush=True)
        return
    print(f"{'kind':12}{'server ms':>10}{'front ms':>10}{'jobs/h of a core':>18}{'filter ms':>11}{'share':>7}")
    with tempfile.TemporaryDirectory(prefix="zarvo-fleet-") as scratch:
        os.chmod(scratch, 0o755)
        with Fleet(1, ["office"], make_store(scratch + "/data")) as fleet:
            sender = Sender(fleet, list(KINDS), ["office"], scratch)
            for number, kind in enumerate(KINDS):
                server, front, ours = cost(fleet, sender, kind, options.jobs, 100_000 * (number + 1))
                print(f"{kind:12}{server * 1e3:10.0f}{front * 1e3:10.0f}{3600 / (server + front):18.0f}"
                      f"{ours * 1e3:11.1f}{ours / server:7.0%}", flush=True)


if __name__ == "__main__":
    main()
