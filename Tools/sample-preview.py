#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws the preview of an eight-page booklet with a watermark that the documents show.

    sample-preview.py PPD PICTURE.png
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(__file__).resolve().parent.parent
sys.dont_write_bytecode = True
from sample_pictures import read_rows, sample_job, write_png  # noqa: E402

STORE = "com.zarvo.printing.watermarks.plist"


def main():
    ppd, picture = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    tool = pathlib.Path(os.environ["ZARVO_BIN"]).resolve() / "zarvo"
    with tempfile.TemporaryDirectory() as scratch:
        data = pathlib.Path(scratch, "Zarvo")
        data.mkdir()
        shutil.copy(SOURCE / "ppd/watermarks.plist", data / STORE)
        os.environ["ZARVO_APPLICATION_SUPPORT"] = scratch
        job = pathlib.Path(scratch, "brochure.pdf")
        subprocess.run(["gs", "-q", "-o", job, "-sDEVICE=pdfwrite", "-"], input=sample_job(8),
                       check=True)
        options = "media=A4 BookletLayout=LeftToRight BookletOutline=Frame "
        options += "Watermark=DRAFT WMPlace=Background"
        subprocess.run([tool, "preview", job, "-p", ppd, "-o", options, "--resolution", "48",
                        "--output", pathlib.Path(scratch, "side.png")], check=True)
        sides = [read_rows(pathlib.Path(scratch, f"side-{n}.png")) for n in range(1, 5)]
    gap = [b"\xd0" * len(sides[0][0] * 2 + GAP)] * 8
    upper, lower = ([left + GAP + right for left, right in zip(*pair)]
                    for pair in (sides[:2], sides[2:]))
    picture.write_bytes(write_png(upper + gap + lower))


GAP = b"\xd0" * 24


if __name__ == "__main__":
    main()
