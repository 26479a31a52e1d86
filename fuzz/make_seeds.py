#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Writes the seeds that are whole jobs anew, from the golden tables: option text, NUL, job."""

import hashlib
import pathlib
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
        target = HERE / "seeds" / folder
        target.mkdir(parents=True, exist_ok=True)
        for old in target.glob("golden-*"):
            old.unlink()
        for seed in seeds:
            name = hashlib.sha256(seed).hexdigest()[:12]
            (target / f"golden-{name}").write_bytes(seed)


if __name__ == "__main__":
    main()
