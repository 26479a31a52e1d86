#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws the previews of the house tickets that the documents show.

    sample-house-tickets.py PPD FOLDER

Writes FOLDER/house-NAME.png for each ticket that comes with the package: the first sheet sides of a
report of six pages, beside one another.
"""

import os
import pathlib
import plistlib
import shutil
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
from sample_pictures import read_rows, sample_job, write_png  # noqa: E402

BESIDE = {"confidential": ["JobPIN=Custom.0391"],
          "fax-cover": ["FaxNumber=Custom.0911-4711", "FaxRecipient=Custom.Ada", "FaxNotes=Custom.As\\ agreed"]}  # fmt: skip
MOST_SIDES = 6
GAP, BORDER = 16, b"\xd0"


def strip(sides):
    """The sides in one picture, each in a frame."""
    height = max(len(side) for side in sides) + 2 * GAP
    rows = [b""] * height
    for side in sides:
        blank = BORDER * len(side[0])
        lines = [blank] * GAP + side + [blank] * (height - GAP - len(side))
        rows = [row + BORDER * 3 * GAP + line for row, line in zip(rows, lines)]
    return [row + BORDER * 3 * GAP for row in rows]


def main():
    ppd, folder = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    tool = pathlib.Path(os.environ["ZARVO_BIN"]).resolve() / "zarvo"
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        data = scratch / "Zarvo"
        data.mkdir()
        for name in ("watermarks", "housetickets"):
            shutil.copy(SOURCE / f"ppd/{name}.plist", data / f"com.zarvo.printing.{name}.plist")
        environment = {**os.environ, "ZARVO_APPLICATION_SUPPORT": str(scratch), "HOME": str(scratch)}
        job = scratch / "report.pdf"
        subprocess.run(["gs", "-q", "-o", job, "-sDEVICE=pdfwrite", "-"], input=sample_job(6), check=True)
        for name in plistlib.loads((SOURCE / "ppd/housetickets.plist").read_bytes()):
            words = [word for one in BESIDE.get(name, []) for word in ("-o", one)]
            subprocess.run([tool, "preview", job, "-p", ppd, "--ticket", name, *words, "--resolution", "26",
                            "--output", scratch / f"{name}.png"], env=environment)  # fmt: skip
            files = sorted(scratch.glob(f"{name}-*.png"), key=lambda file: int(file.stem.split("-")[-1]))
            sides = [read_rows(file) for file in files or [scratch / f"{name}.png"]]
            (folder / f"house-{name}.png").write_bytes(write_png(strip(sides[:MOST_SIDES])))


if __name__ == "__main__":
    main()
