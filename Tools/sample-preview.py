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
from picture_rows import read_rows, write_png  # noqa: E402

STORE = "com.zarvo.printing.watermarks.plist"
JOB = """%!PS-Adobe-3.0
<< /PageSize [595 842] >> setpagedevice
1 1 8 {
  /page exch def
  0.2 0.35 0.55 setrgbcolor 60 690 475 84 rectfill
  1 setgray /Helvetica-Bold 44 selectfont 80 716 moveto (Page ) show page 10 string cvs show
  0.72 setgray
  0 1 26 {
    /line exch def
    60 640 line 21 mul sub
    line page add 9 mod 8 eq { 190 } { 475 line page 3 mul add 5 mod 13 mul sub } ifelse 7 rectfill
  } for
  showpage
} for
"""


def main():
    ppd, picture = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    tool = pathlib.Path(os.environ["ZARVO_BIN"]).resolve() / "zarvo"
    with tempfile.TemporaryDirectory() as scratch:
        data = pathlib.Path(scratch, "Zarvo")
        data.mkdir()
        shutil.copy(SOURCE / "ppd/watermarks.plist", data / STORE)
        os.environ["ZARVO_APPLICATION_SUPPORT"] = scratch
        job = pathlib.Path(scratch, "brochure.pdf")
        subprocess.run(["gs", "-q", "-o", job, "-sDEVICE=pdfwrite", "-"], input=JOB.encode(),
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
