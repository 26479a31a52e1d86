#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Makes the seeds that are whole jobs out of the golden tables: option text, NUL, job.

    make_seeds.py FOLDER

Each target's seeds stand in a folder of its name, which holds nothing else.
"""

import hashlib
import pathlib
import shutil
import sys
import tomllib

HERE = pathlib.Path(__file__).resolve().parent
GOLDEN = HERE.parent / "tests" / "golden"
MOST_BYTES = 1500


def main():
    jobs = set()
    booklets = set()
    for table in sorted(GOLDEN.glob("*.toml")):
        with open(table, "rb") as file:
            cases = tomllib.load(file)["case"]
        for case in cases:
            if "input" in case:
                job = (GOLDEN / "input" / case["input"]).read_bytes()
            else:
                job = case.get("text", "").encode()
            seed = case.get("options", "").encode() + b"\0" + job
            if len(seed) <= MOST_BYTES:
                jobs.add(seed)
            if job and len(job) <= MOST_BYTES:
                booklets.add(b"\x01\0\0\0\0\0\0\0" + job)
    attributes = {
        b"t" + case["lp"].encode()
        for case in tomllib.loads((HERE.parent / "tests/system/standard_ticket.toml").read_text())["case"]
        if "lp" in case
    }
    for folder, seeds in (("job", jobs), ("booklet", booklets), ("copy_reference", booklets),
                          ("standard", attributes)):  # fmt: skip
        target = pathlib.Path(sys.argv[1], folder)
        shutil.rmtree(target, ignore_errors=True)
        target.mkdir(parents=True)
        for seed in seeds:
            (target / hashlib.sha256(seed).hexdigest()[:12]).write_bytes(seed)


if __name__ == "__main__":
    main()
