#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Measures the filter as a whole process against the tools users have, in paired runs.

    bench.py [--runs 7] [--size 200] [--only TEXT]

Every row is the median of the ratios of paired runs (ours, then the peer, in turn), so that a machine
whose speed drifts does not decide. --size is the job size in megabytes; --only takes the rows whose
name contains TEXT. Nothing here is a test: it exits with 0 whatever the figures are.
"""

import argparse
import os
import pathlib
import shutil
import statistics
import struct
import subprocess
import sys
import tempfile
import zlib

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
FILTER = str(BIN / "zarvofilter")
PPD = str(SOURCE / "tests/golden/ppd/test.ppd")
HEAD = b"%!PS-Adobe-3.0\n%%Pages: (atend)\n%%EndComments\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n%%EndSetup\n"
PAGE = b"%%%%Page: %d %d\n%%%%BeginPageSetup\n%%%%EndPageSetup\n"
WATERMARK = "com.zarvo.print.watermark.Watermark=Bench com.zarvo.print.watermark.Option..n=1"
IMAGE_WATERMARK = "com.zarvo.print.watermark.Watermark=bench.png com.zarvo.print.watermark.Option..n=1"
BOOKLET = "com.zarvo.print.BookletLayout..b=true"


def lines_of(size, end=b"\n", width=36):
    """Drawing operators, about `size` bytes of them."""
    line = b"123.45 678.9 moveto 12.5 0 rlineto s"[:width].ljust(width, b"x") + end
    return line * (size // len(line))


def make_job(path, size, pages=1, end=b"\n", width=36, counted=False):
    with open(path, "wb") as job:
        job.write(HEAD.replace(b"\n", end))
        for page in range(1, pages + 1):
            job.write((PAGE % (page, page)).replace(b"\n", end))
            share = size // pages
            if counted:
                data = os.urandom(1 << 20) * (share >> 20)
                job.write(b"%%%%BeginBinary: %d\n" % len(data) + data)
            else:
                job.write(lines_of(share, end, width))
            job.write(b"showpage" + end + b"ep" + end)
        job.write((b"%%Trailer\n%%EOF\n").replace(b"\n", end))


def make_manual(path, size, pages):
    """Pages of text under the operators of a converter of PDFs."""
    start = b"595 842 pdfSetupPaper\npdfStartPage\n[] 0 d\n1 i\n0 j\n0 J\n10 M\n1 w\nq\n[0.93 0 0 0.93 12 51.5] cm\n"
    word = b"-333 TJm\n(uplot)\n[5.53\n0\n5.5\n0\n2.7\n0\n4.9\n0\n3.87\n0] Tj\n"
    line = b"[1 0 0 1 0 0] Tm\n0 0 Td\n72 700.7 Td\n/F7_0 9.9 Tf\n" + word * 8
    lines = line * (size // pages // len(line))
    with open(path, "wb") as job:
        job.write(HEAD)
        for page in range(1, pages + 1):
            job.write(PAGE % (page, page) + start + lines + b"Q\nshowpage\n")
        job.write(b"%%Trailer\n%%EOF\n")


def make_png(path, width, height):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    row = b"\0" + bytes(range(256)) * (width * 3 // 256) + bytes(width * 3 % 256)
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    data = zlib.compress(row * height, 1)
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b"")
    )


def make_store(folder, image):
    entries = {
        "Bench": "<key>textString</key><string>DRAFT</string><key>fontName</key>"
        "<string>Helvetica</string><key>fontSize</key><integer>48</integer>",
        "bench.png": f"<key>filePath</key><string>{image}</string>"
        "<key>scale</key><integer>100</integer>",
    }
    body = "".join(f"<key>{name}</key><dict>{entry}</dict>" for name, entry in entries.items())
    target = folder / "Zarvo" / "com.zarvo.printing.watermarks.plist"
    target.parent.mkdir(parents=True)
    target.write_text(f'<?xml version="1.0"?><plist version="1.0"><dict>{body}</dict></plist>')


# A manual of 324 pages with see-through drawings, from TeX's documentation in Debian 12.
LONG_DOCUMENT = ("texlive-base", "usr/share/doc/texlive-doc/luatex/base/luatex.pdf")
LONGEST_CONVERSION = 200  # seconds that the spooler's own choice of a converter is given


def long_document(folder):
    """The document in the file that ZARVO_BENCH_DOCUMENT names, else taken out of its package."""
    if named := os.environ.get("ZARVO_BENCH_DOCUMENT"):
        return pathlib.Path(named)
    package, name = LONG_DOCUMENT
    subprocess.run(["apt-get", "download", "-qq", package], cwd=folder, check=True, capture_output=True)
    [archive] = folder.glob(f"{package}_*.deb")
    subprocess.run(["dpkg", "-x", archive, folder / "document"], check=True)
    archive.unlink()
    return folder / "document" / name


def converter_row(bench, name, convert):
    """One pair: the peer may need many minutes, and is stopped before."""
    if bench.only and bench.only not in name:
        return
    quiet = ["sh", "-c", '"$@" 2>/dev/null', "sh"]
    mine = Run([*quiet, *convert, "-o", "pdftops-renderer=pdftops"])
    theirs = Run(["sh", "-c", '"$@" 2>/dev/null || [ $? = 124 ]', "sh", "timeout", str(LONGEST_CONVERSION),
                  *convert])  # fmt: skip
    bench.show(f"{name}, wall", f"{mine.wall:.3f} s", f"{theirs.wall:.3f} s", mine.wall / theirs.wall, 0.2)


def long_rows(bench, folder):
    """A job as a queue should convert it against how the spooler does by itself, and a preview against
    converting the plain document and drawing it."""
    try:
        pdf = long_document(folder)
    except (OSError, subprocess.CalledProcessError) as problem:
        print(f"preview of a long document: NOT MEASURED: {problem}")
        return
    store = "Watermark=Custom.Bench"
    ppd = str(BIN.parent / "ppd/zarvo.ppd")
    convert = ["cupsfilter", "-p", ppd, "-i", "application/pdf", "-m", "application/vnd.cups-postscript",
               str(pdf)]
    converter_row(bench, "long document, pdftops-renderer=pdftops / no choice", convert)
    for ending, device, resolution in (("pdf", "pdfwrite", 100), ("png", "png16m", 100)):
        smooth = "-dTextAlphaBits=4 -dGraphicsAlphaBits=4" if ending == "png" else ""
        plain = (f'cupsfilter -p "$2" -i application/pdf -m application/vnd.cups-postscript '
                 f'-o pdftops-renderer=pdftops "$1" > "$3/plain.ps" 2>/dev/null && '
                 f'gs -q -dBATCH -dNOPAUSE -dSAFER -sDEVICE={device} -r{resolution} '
                 f'{smooth} '
                 f'-sOutputFile="$3/plain-%d.{ending}" "$3/plain.ps"')
        if ending == "pdf":
            plain = plain.replace("plain-%d", "plain").replace(f" -r{resolution}", "")
        # With 1 it tells that some pages hide the mark behind them.
        drawn = ["sh", "-c", '"$@" 2>/dev/null || [ $? = 1 ]', "sh", str(BIN / "zarvo"), "preview", str(pdf),
                 "-p", ppd, "--output", str(folder / f"drawn.{ending}")]
        peer = ["sh", "-c", plain, "sh", str(pdf), ppd, str(folder)]
        for name, options in (("plain", []), ("watermark", ["-o", store]),
                              ("watermark behind", ["-o", f"{store} WMPlace=Background"])):
            bench.row(f"preview of a long document as {ending}, {name} / drawing it",
                      drawn + options, peer, [("cpu", 2), ("wall", 2)])


class Run:
    """What one run of a command cost."""

    def __init__(self, command, source="-", pipe_bytes=0):
        done = subprocess.run(
            [str(BIN / "bench_run"), str(source), str(pipe_bytes), *command],
            capture_output=True, text=True, check=True,
        )  # fmt: skip
        user, system, wall, peak, out, status = done.stdout.split()
        if int(status) != 0:
            raise RuntimeError(f"{command[0]} ended with {status}: {done.stderr[-300:]}")
        self.cpu, self.wall = float(user) + float(system), float(wall)
        self.peak, self.out = int(peak), int(out)


def ours(options="", file=None):
    return [FILTER, "1", "user", "title", "1", options, *([str(file)] if file else [])]


class Bench:
    def __init__(self, runs, only):
        self.runs, self.only = runs, only
        self.rows = []

    def row(self, name, command, peer, goals, **where):
        """goals: pairs of a figure ("cpu" or "wall") and the ratio it may have at most."""
        if self.only and self.only not in name:
            return
        peer_where = where.pop("peer_where", where)
        try:
            Run(command, **where), Run(peer, **peer_where)  # warm-up
            pairs = [(Run(command, **where), Run(peer, **peer_where)) for _ in range(self.runs)]
        except (RuntimeError, subprocess.CalledProcessError) as problem:
            print(f"{name}: NOT MEASURED: {problem}", flush=True)
            return
        for figure, goal in goals:
            mine = statistics.median(getattr(left, figure) for left, _ in pairs)
            theirs = statistics.median(getattr(right, figure) for _, right in pairs)
            ratio = statistics.median(
                getattr(left, figure) / max(getattr(right, figure), 1e-6) for left, right in pairs
            )
            self.show(f"{name}, {figure}", f"{mine:.3f} s", f"{theirs:.3f} s", ratio, goal)

    def memory(self, name, command, base, limit_kib, **where):
        if self.only and self.only not in name:
            return
        peak = max(Run(command, **where).peak for _ in range(2))
        least = max(Run(base).peak for _ in range(9))  # so short that a look can come too late
        verdict = "holds" if peak - least <= limit_kib else "MISSED"
        print(
            f"{name:<58} {peak:>8} KiB {least:>8} KiB  {peak - least:+6d} KiB"
            f"  goal +{limit_kib} KiB  {verdict}",
            flush=True,
        )

    def difference(self, name, command, peer, goal):
        """How many seconds more than its peer a command takes."""
        if self.only and self.only not in name:
            return
        pairs = [(Run(command).wall, Run(peer).wall) for _ in range(max(self.runs, 31))]
        more = statistics.median(left - right for left, right in pairs)
        mine, theirs = (statistics.median(side) for side in zip(*pairs))
        verdict = "holds" if more <= goal else "MISSED"
        print(f"{name + ', wall':<58} {mine:>8.4f} s {theirs:>8.4f} s  {more:+.4f} s  goal +{goal} s"
              f"  {verdict}", flush=True)  # fmt: skip

    def show(self, name, mine, theirs, ratio, goal):
        verdict = "holds" if ratio <= goal else "MISSED"
        print(f"{name:<58} {mine:>10} {theirs:>10}  {ratio:7.3f}  goal {goal:5.3f}  {verdict}", flush=True)


def standard_row(bench, folder, job):
    """A small job of a spooler that is asked for the job's attributes, and that is not."""
    name = "tiny job, asking the scheduler / not asking"
    if bench.only and bench.only not in name:
        return
    sys.path.insert(0, str(SOURCE / "tests/system"))
    from cupsd import PrivateCupsd  # (looks for the built programs at once)

    ppd = BIN.parent / "ppd/zarvo.ppd"
    try:
        with PrivateCupsd() as cupsd:
            cupsd.add_queue("zarvo", ppd, "file:/dev/null")
            number = cupsd.print("zarvo", job, ["-o", "finishings=28"])
            cupsd.wait_for_log(f"[Job {number}] Job completed.")
            filtering = [FILTER, str(number), "user", "title", "1", "finishings=28", str(job)]
            server = ["CUPS_SERVER=localhost", f"IPP_PORT={cupsd.port}"]
            bench.row(name, ["env", f"PPD={ppd}", f"CUPS_REQUESTROOT={folder}", *server, *filtering],
                      ["env", f"PPD={ppd}", *server, *filtering], [("cpu", 1.2), ("wall", 1.3)])  # fmt: skip
    except (OSError, RuntimeError, TimeoutError, subprocess.CalledProcessError) as problem:
        print(f"{name}: NOT MEASURED: {problem}", flush=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--runs", type=int, default=7)
    parser.add_argument("--size", type=int, default=200, help="megabytes")
    parser.add_argument("--only", default="")
    arguments = parser.parse_args()
    size = arguments.size * 1000000
    serverbin = subprocess.run(
        ["cups-config", "--serverbin"], capture_output=True, text=True
    ).stdout.strip()
    pstops = f"{serverbin}/filter/pstops"
    bench = Bench(arguments.runs, arguments.only)

    with tempfile.TemporaryDirectory(dir=os.environ.get("ZARVO_BENCH_DIR")) as name:
        folder = pathlib.Path(name)
        image = folder / "bench.png"
        make_png(image, 5000, 4000)
        make_store(folder, image)
        os.environ.update(
            PPD=PPD, ZARVO_APPLICATION_SUPPORT=str(folder), TMPDIR=str(folder), LC_ALL="C"
        )
        job = {key: folder / f"{key}.ps" for key in
               ("tiny", "lines", "binary", "cr", "long", "pages", "crpages")}  # fmt: skip
        make_job(job["tiny"], 1000)
        make_job(job["lines"], size)
        make_job(job["binary"], size, counted=True)
        make_job(job["cr"], size, end=b"\r")
        make_job(job["long"], size, width=9000)
        make_job(job["pages"], size, pages=2000)
        cat = ["cat"]

        print(f"{'row':<58} {'ours':>10} {'peer':>10}  {'ratio':>7}", flush=True)
        bench.row("short lines, file to pipe / cat", ours(file=job["lines"]), cat + [str(job["lines"])],
                  [("cpu", 1.5), ("wall", 1.2)])  # fmt: skip
        bench.row("short lines, pipe to pipe / cat", ours(), cat, [("cpu", 1.5), ("wall", 1.2)],
                  source=job["lines"], pipe_bytes=size)  # fmt: skip
        bench.row("short lines / pstops", ours(file=job["lines"]),
                  [pstops, "1", "user", "title", "1", "", str(job["lines"])], [("cpu", 1 / 6)])  # fmt: skip
        bench.row("counted binary / cat", ours(file=job["binary"]), cat + [str(job["binary"])],
                  [("cpu", 1.2)])  # fmt: skip
        plain = ours(file=job["lines"])
        bench.row("CR line ends / plain", ours(file=job["cr"]), plain, [("cpu", 1.3)])
        bench.row("lines over 8191 bytes / plain", ours(file=job["long"]), plain, [("cpu", 1.3)])
        bench.row("watermark on 2000 pages / plain", ours(WATERMARK, job["pages"]), plain, [("cpu", 1.3)])
        manual = folder / "manual.ps"
        make_manual(manual, size, 5000)
        hooks = ["env", f"PPD={BIN.parent / 'ppd/zarvo.ppd'}"]
        mark = "Watermark=Custom.Bench WMPlace=Foreground"
        bench.row("watermark that finds its direction, 5000 pages / told", hooks + ours(mark, manual),
                  hooks + ours(mark + " WMTurn=0", manual), [("cpu", 1.3)])  # fmt: skip
        bench.row("job-type matching on / plain", ours("ZRVJobPassword=1", job["lines"]), plain,
                  [("cpu", 1.3)])  # fmt: skip
        twice = ["sh", "-c", 'cat "$1" > "$2"; cat "$2"', "sh", str(job["pages"]), str(folder / "copy")]
        bench.row("booklet, 2000 pages / cat twice", ours(BOOKLET, job["pages"]), twice, [("cpu", 2)])
        if shutil.which("psbook") and shutil.which("psnup"):
            users = ["sh", "-c", 'psbook "$1" | psnup -2', "sh", str(job["pages"])]
            bench.row("booklet, 2000 pages / psbook and psnup", ours(BOOKLET, job["pages"]), users,
                      [("cpu", 1 / 3)])  # fmt: skip
        else:
            print("booklet / psbook and psnup: NOT MEASURED: psutils is not installed")
        parse = [str(BIN / "bench_parse"), "1", "user", "title", "1", ""]
        many = " ".join(f"com.zarvo.print.K{i % 7}..a_{i // 7}..d_Text..s=v{i}" for i in range(2000))
        bench.runs = max(arguments.runs, 31)  # a few milliseconds each
        bench.row("tiny job / parsing options only", ours(file=job["tiny"]), parse, [("cpu", 1.15)])
        bench.row("2000 ticket entries / tiny job", ours(many, job["tiny"]), ours(file=job["tiny"]),
                  [("cpu", 2)])  # fmt: skip
        standard_row(bench, folder, job["tiny"])
        bench.runs = arguments.runs
        draw = BIN / "zarvodraw"
        if draw.exists():
            bench.row("image watermark, 20 megapixels / decoding", ours(IMAGE_WATERMARK, job["tiny"]),
                      ["sh", "-c", f"exec '{draw}' image ppm x <'{image}'"], [("wall", 1.5)])  # fmt: skip
            bench.memory("peak memory, image watermark / tiny job",
                         ours(IMAGE_WATERMARK, job["tiny"]), ours(file=job["tiny"]), 512)  # fmt: skip
        else:
            print("image watermark: NOT MEASURED: zarvodraw is not built")
        confine = str(BIN / "bench_confine")
        bench.difference("helper locked in / not", [confine, "on"], [confine, "off"], 0.005)
        bench.runs = min(arguments.runs, 3)  # many seconds each
        long_rows(bench, folder)
        bench.runs = arguments.runs
        tiny = ours(file=job["tiny"])
        bench.memory("peak memory, short lines / tiny job", ours(file=job["lines"]), tiny, 4096)
        bench.memory("peak memory, booklet / tiny job", ours(BOOKLET, job["pages"]), tiny, 4096)
        bench.memory("peak memory, 5 GB through a pipe / tiny job", ours(), tiny, 4096,
                     source=job["lines"], pipe_bytes=5 * 10**9)  # fmt: skip
    return 0


if __name__ == "__main__":
    sys.exit(main())
