#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws the pictures of docs/printing.md: what the filter makes of a job, four pages to a picture.

    sample-printing.py WATERMARKS.png BOOKLET.png
"""

import os
import pathlib
import subprocess
import sys
import tempfile

BIN = pathlib.Path(os.environ["ZARVO_BIN"]).resolve()
SOURCE = pathlib.Path(__file__).resolve().parent.parent
GHOSTSCRIPT = ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE"]
PDF = ["-sDEVICE=pdfwrite", "-dAutoRotatePages=/None"]

WATERMARKS = [
    ["Watermark=DRAFT", "WMPlace=Background"],
    ["Watermark=DRAFT", "WMPlace=Overlay"],
    ["Watermark=DRAFT", "WMPlace=Foreground"],
    ["NegativeImage=True", "MirrorImage=True"],
]
BOOKLET = ["BookletLayout=LeftToRight", "BookletOutline=Frame", "Duplex=DuplexTumble"]


def document(pages):
    """A page of text lines and a bar chart for each number."""
    yield "%!PS-Adobe-3.0\n<< /PageSize [595 842] >> setpagedevice\n"
    for page in range(1, pages + 1):
        yield f"/Helvetica-Bold 60 selectfont 60 720 moveto (Page {page}) show\n"
        yield "0.35 setgray\n"
        for line in range(18):
            yield f"60 {670 - 22 * line} {475 - (line * 37 % 90)} 8 rectfill\n"
        for bar in range(6):
            yield (f"{0.1 + bar / 8} 0.4 {0.9 - bar / 8} setrgbcolor "
                   f"{70 + 80 * bar} 60 50 {40 + (bar + page) * 53 % 130} rectfill\n")
        yield "0 setgray showpage\n"


def run(command, data=None, **environment):
    done = subprocess.run(command, input=data, check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, env={**os.environ, **environment})
    return done.stdout


def printed(job, options, folder):
    """The job as the printer would draw it, as PDF."""
    data = run([BIN / "zarvofilter", "1", "user", "title", "1", " ".join(options)], job,
               PPD=str(BIN.parent / "ppd/zarvo.ppd"), ZARVO_APPLICATION_SUPPORT=str(folder))
    file = folder / "job.ps"
    file.write_bytes(data[data.index(b"%!PS-Adobe") : data.rindex(b"\x1b%-12345X@PJL EOJ")])
    return run([*GHOSTSCRIPT, *PDF, "-sOutputFile=-", file])


def picture(jobs, folder, target):
    """The pages of all jobs side by side."""
    files = []
    for number, job in enumerate(jobs):
        files.append(folder / f"{number}.pdf")
        files[-1].write_bytes(job)
    pdf = folder / "all.pdf"
    run([*GHOSTSCRIPT, *PDF, f"-sOutputFile={pdf}", *files])
    sheet = folder / "sheet.ps"
    sheet.write_bytes(run(["psnup", "-q", "-4", "-d1", "-m10", "-b6", "-pa4"], run(["pdftops", pdf, "-"])))
    run([*GHOSTSCRIPT, "-sDEVICE=png16m", "-r288", "-dDownScaleFactor=4", "-sPAPERSIZE=a4",
         "-dFirstPage=1", "-dLastPage=1", f"-sOutputFile={target}", sheet])


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "Zarvo").mkdir()
        (folder / "Zarvo/com.zarvo.printing.watermarks.plist").write_bytes(
            (SOURCE / "ppd/watermarks.plist").read_bytes())
        source = folder / "source.ps"

        def converted(pages):
            source.write_text("".join(document(pages)))
            pdf = folder / "source.pdf"
            run([*GHOSTSCRIPT, *PDF, f"-sOutputFile={pdf}", source])
            return run(["pdftops", pdf, "-"])

        one = converted(1)
        picture([printed(one, options, folder) for options in WATERMARKS], folder, sys.argv[1])
        picture([printed(converted(8), BOOKLET, folder)], folder, sys.argv[2])


if __name__ == "__main__":
    main()
