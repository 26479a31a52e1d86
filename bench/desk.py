#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""How long the desktop program's pictures take: the first sheet of a PDF file of 100 pages, and the same
after a change that every page shows; first of the helper that makes them, then in the window, which also
has to stand first. Each is a ratio to what drawing one page by itself takes. Nothing here is a test."""

import json
import os
import pathlib
import statistics
import subprocess
import tempfile
import time

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
RUNS = 7


def first_picture(request):
    begun = time.monotonic()
    sheets = subprocess.Popen([BIN / "zarvosheets"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    sheets.stdin.write(json.dumps(request) + "\n")
    sheets.stdin.flush()
    for line in sheets.stdout:
        if "file" in json.loads(line):
            break
    else:
        raise SystemExit(f"no picture came: {line}")
    taken = time.monotonic() - begun
    sheets.kill()
    sheets.wait()
    return taken


def window(pdf):
    """Seconds until the window stands, until the first sheet is in it, and until it is so after a change."""
    done = subprocess.run([BIN / "bench_desk_window", pdf, BIN.parent / "ppd/zarvo.ppd"], check=True, text=True,
                          stdout=subprocess.PIPE, env=os.environ | {"QT_QPA_PLATFORM": "offscreen"})
    return [int(line.split()[1]) / 1000 for line in done.stdout.splitlines()]


def main():
    with tempfile.TemporaryDirectory() as folder:
        pdf = f"{folder}/hundred.pdf"
        pages = "1 1 100 { /Helvetica 12 selectfont /p exch def 0 1 45 { 72 exch 14 mul 690 exch sub moveto " \
            "(The quick brown fox jumps over the lazy dog) show p 10 string cvs show } for showpage } for"
        subprocess.run(["gs", "-q", "-sDEVICE=pdfwrite", "-o", pdf, "-c", pages], check=True)
        request = {"file": pdf, "title": "t", "ppd": str(BIN.parent / "ppd/zarvo.ppd"), "copies": 1, "dots": 24,
                   "options": "", "converter_options": "pdftops-renderer=pdftops", "pages": [1], "ahead": True, "known": ""}
        first, changed, page, windows = [], [], [], []
        for run in range(RUNS):
            request["cache"] = f"{folder}/{run}"
            os.mkdir(request["cache"])
            request["options"] = "pdftops-renderer=pdftops"
            first.append(first_picture(request))
            request["options"] += " com.zarvo.print.InvertImageOptions..d_NegativeImage..n=1"
            changed.append(first_picture(request))
            begun = time.monotonic()
            subprocess.run(["gs", "-q", "-dLastPage=1", "-sDEVICE=png16m", "-r24", "-o", f"{folder}/x.png", pdf],
                           check=True)
            page.append(time.monotonic() - begun)
            windows.append(window(pdf))
        stands, shown, shown_anew = zip(*windows)
        for name, taken in (("desk: first sheet of 100 pages", first), ("desk: after a change", changed),
                            ("window: stands", stands), ("window: first sheet of 100 pages", shown),
                            ("window: after a change", shown_anew)):
            ratio = statistics.median(ours / peer for ours, peer in zip(taken, page))
            print(f"{name:38} {statistics.median(taken):5.2f} s {ratio:6.1f} times one page by itself")


if __name__ == "__main__":
    main()
