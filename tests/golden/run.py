#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Runs the whole jobs of one table through the built filter and compares every byte.

    run.py --filter build/bin/zarvofilter TABLE.toml [--update] [--only NAME]

A [[case]] of a table has:
  name     names its expected files, expected/TABLE/NAME.out (standard output) and .err (log)
  guards   why the case is there: the boundary it guards
  input    a file below input/, or
  text     the job itself; TOML escapes such as \\u001b and \\r work
  options  the option text, argument 5 (default: none)
  ppd      a file below ppd/ (default "test.ppd"); "" runs without a PPD
  args     all arguments, instead of the ordinary ones (then input is not fed)
  support  a folder below support/ that holds the shared data folder "Zarvo"
  status   the expected exit status (default 0)

Each job runs twice, once from a named file and once from a pipe that is fed a few bytes at a time;
both must give the same bytes. Neither may leave anything in its temporary folder.
"""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile
import threading
import tomllib

HERE = pathlib.Path(__file__).resolve().parent


def drip(pipe, data):
    """Feeds data in pieces of 1 to 61 bytes, so that every line is cut somewhere."""
    position, step = 0, 1
    try:
        while position < len(data):
            pipe.write(data[position : position + step])
            pipe.flush()
            position += step
            step = step * 7 % 61 + 1
        pipe.close()
    except BrokenPipeError:
        pass


def run(program, case, data, from_file):
    with tempfile.TemporaryDirectory() as scratch:
        spool = pathlib.Path(scratch, "tmp")
        spool.mkdir()
        environment = {
            "PATH": os.environ["PATH"],
            "TZ": "UTC",
            "TMPDIR": str(spool),
            "HOME": scratch,
            "ZARVO_APPLICATION_SUPPORT": str(HERE / "support" / case.get("support", "none")),
            "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", ""),
        }
        ppd = case.get("ppd", "test.ppd")
        if ppd:
            environment["PPD"] = f"ppd/{ppd}"  # relative, so that logs hold no path of this machine
        arguments = case.get("args", ["7", "user", "title", "1", case.get("options", "")])
        if from_file:
            job = pathlib.Path(scratch, "job.ps")
            job.write_bytes(data)
            arguments = arguments + [str(job)]
        process = subprocess.Popen(
            [program, *arguments],
            cwd=HERE,
            env=environment,
            stdin=subprocess.DEVNULL if from_file else subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )
        feeder = None
        if not from_file:
            feeder = threading.Thread(target=drip, args=(process.stdin, data))
            feeder.start()
            process.stdin = None
        output, log = process.communicate(timeout=60)
        if feeder:
            feeder.join()
        left = sorted(entry.name for entry in spool.iterdir())
        return output, log, process.returncode, left


def load(case):
    if "input" in case:
        return (HERE / "input" / case["input"]).read_bytes()
    return case.get("text", "").encode()


def difference(kind, expected, actual):
    for number, (left, right) in enumerate(
        zip(expected.split(b"\n") + [None], actual.split(b"\n") + [None]), 1
    ):
        if left != right:
            return f"{kind} differs at line {number}:\n  expected {left!r}\n  actual   {right!r}"
    return f"{kind} differs"


def check(program, table, case, update):
    folder = HERE / "expected" / table
    files = [folder / f"{case['name']}.out", folder / f"{case['name']}.err"]
    data = load(case)
    problems = []
    for from_file in (False,) if "args" in case else (True, False):
        way = "from a file" if from_file else "from a pipe"
        output, log, status, left = run(program, case, data, from_file)
        if update and from_file is not False or update and "args" in case:
            folder.mkdir(parents=True, exist_ok=True)
            files[0].write_bytes(output)
            files[1].write_bytes(log)
        for kind, file, actual in zip(("output", "log"), files, (output, log)):
            expected = file.read_bytes() if file.exists() else b""
            if expected != actual:
                problems.append(f"{way}: {difference(kind, expected, actual)}")
        if status != case.get("status", 0):
            problems.append(f"{way}: exit status {status}, expected {case.get('status', 0)}")
        if left:
            problems.append(f"{way}: left in TMPDIR: {left}")
    return problems


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--filter", required=True)
    parser.add_argument("--update", action="store_true", help="write the expected files")
    parser.add_argument("--only", help="run one case")
    parser.add_argument("table")
    arguments = parser.parse_args()
    table = pathlib.Path(arguments.table)
    program = str(pathlib.Path(arguments.filter).resolve())
    with open(table, "rb") as file:
        cases = tomllib.load(file)["case"]
    failed = 0
    for case in cases:
        if arguments.only in (None, case["name"]):
            problems = check(program, table.stem, case, arguments.update)
            for problem in problems:
                print(f"{table.stem}/{case['name']} ({case['guards']}): {problem}")
            failed += bool(problems)
    print(f"{len(cases) - failed} of {len(cases)} jobs as expected")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
