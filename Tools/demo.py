#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Sends a real job through a private spooler and shows what the printer receives.

    demo.py FOLDER

Leaves in FOLDER the job as sent (job.ps), the printer's bytes (received.prn) and a picture of page
one (page-1.png).
"""

import os
import pathlib
import subprocess
import sys

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"]).resolve()
os.environ["ZARVO_BIN"] = str(pathlib.Path(os.environ["ZARVO_BIN"]).resolve())
sys.path.insert(0, str(SOURCE / "tests/system"))
from cupsd import PrivateCupsd, Printer  # noqa: E402

JOB = """%!PS-Adobe-3.0
%%Title: A job for everybody
%%Pages: 1
%%EndComments
%%BeginProlog
%%EndProlog
%%BeginSetup
%%EndSetup
%%Page: 1 1
%%BeginPageSetup
%%EndPageSetup
/Helvetica-Bold 40 selectfont 72 640 moveto (Printed through Zarvo) show
/Helvetica 16 selectfont
72 600 moveto (This page is held at the printer until its PIN is typed in.) show
72 576 moveto (Its envelope says who pays, and how it is to be stapled.) show
0.1 0.4 0.8 setrgbcolor 72 300 468 200 rectfill
1 setgray /Helvetica-Bold 120 selectfont 150 358 moveto (2026) show
showpage
%%Trailer
%%EOF
"""

# The ticket: a secure job, paid by a user and an account, stapled, with its XML ticket.
TICKET = {
    "com.zarvo.print.JobType..d_JobType..n": "6",
    "com.zarvo.print.JobType..d_SecurePrintPassword..s": "0391",
    "com.zarvo.Act.On..n": "3",
    "com.zarvo.Act.UID": "ada",
    "com.zarvo.Act.AID": "research",
    "com.zarvo.print.BannerPage..b": "true",
    "com.zarvo.print.JTMLOptions..d_JTMLOptionAll..b": "true",
    "com.zarvo.print.FinishingOptions..n": "4",
    "com.zarvo.print.FinishingStaple1Value..n": "5",
}


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(exist_ok=True)
    job = folder / "job.ps"
    job.write_text(JOB)
    options = [word for name, value in TICKET.items() for word in ("-o", f"{name}={value}")]
    print("Printing through a private spooler ...", flush=True)
    with PrivateCupsd() as cupsd, Printer() as printer:
        cupsd.add_queue("zarvo", SOURCE / "tests/golden/ppd/test.ppd", printer.uri)
        cupsd.print("zarvo", job, options)
        received = printer.wait()
    (folder / "received.prn").write_bytes(received)

    start = received.index(b"%!PS-Adobe")
    print("The printer received, before the job itself:\n")
    # Control bytes (the scrambled PIN, the escape before each PJL command) shown as dots.
    header = received[:start].decode("utf-8", "replace")
    print("".join(c if c.isprintable() or c in "\n\t" else "." for c in header))
    document = received[start : received.rindex(b"\x1b%-12345X@PJL EOJ")]
    picture = folder / "page-1.png"
    subprocess.run(
        ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=png16m", "-r72",
         "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4", "-dFirstPage=1", "-dLastPage=1",
         f"-sOutputFile={picture}", "-"],
        input=document, check=True,
    )  # fmt: skip
    print(f"... and {len(received) - start} bytes of PostScript. All of it: {folder}/received.prn")
    print(f"Page one as the printer would draw it: {picture}")


if __name__ == "__main__":
    main()
