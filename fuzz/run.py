#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Runs every fuzz target for a given time and tells what came of it.

    run.py [--seconds N] BUILD_FOLDER [TARGET ...]

Each target runs until it has used N seconds (default 60) of processor time. What it learns is kept
below BUILD_FOLDER/corpus, so that the next run goes on from there; inputs that break something are
put into fuzz/crashes/TARGET, from where the tests run them again.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
SEEDS = {"options": "job", "copy": "job"}
# A property list may hold a million elements, which takes the library some time.
COMMON = ["-print_final_stats=1", "-close_fd_mask=2", "-timeout=20", "-rss_limit_mb=2048",
          "-max_len=20000", "-verbosity=0"]  # fmt: skip


def run(program, name, seconds, build):
    corpus = build / "corpus" / name
    kind = SEEDS.get(name, name)
    folders = [HERE / "seeds" / kind, build / "fuzz/seeds" / kind]
    seeds = [str(folder) for folder in folders if folder.is_dir()]
    crashes = HERE / "crashes" / name
    crashes.mkdir(parents=True, exist_ok=True)
    corpus.mkdir(parents=True, exist_ok=True)
    executions, used, findings = 0, 0.0, 0
    while used < seconds:
        # The fuzzer counts wall-clock time; what it has used of the processor is asked of the
        # system, and the rest is run again.
        process = subprocess.Popen(
            [program, *COMMON, f"-max_total_time={min(300, int(seconds - used) + 1)}",
             f"-artifact_prefix={crashes}/", f"-dict={HERE / 'words.dict'}", str(corpus),
             *seeds, str(crashes)],
            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, errors="replace",
            env={**os.environ, "ZARVO_APPLICATION_SUPPORT": "/nonexistent"},
        )  # fmt: skip
        report = process.stderr.read()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = status
        used += usage.ru_utime + usage.ru_stime
        found = re.search(r"stat::number_of_executed_units: (\d+)", report)
        executions += int(found[1]) if found else 0
        if status != 0:
            findings += 1
            print(report[-6000:])
            break
    print(f"{name}: {executions} executions in {used:.0f} s, {findings} findings", flush=True)
    return findings


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--seconds", type=float, default=60)
    parser.add_argument("targets", nargs="*")
    arguments = parser.parse_intermixed_args()
    programs = sorted((arguments.build / "fuzz").glob("fuzz_*"))
    findings = 0
    for program in programs:
        name = program.name.removeprefix("fuzz_")
        if not arguments.targets or name in arguments.targets:
            findings += run(program, name, arguments.seconds, arguments.build)
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    main()
