# SPDX-License-Identifier: Apache-2.0
"""Prints documents that nobody here wrote in every mode, and compares what a printer draws of them.

documents.toml lists them: files of Debian packages, which are fetched and unpacked but not installed,
and what some programs make, which are. Each goes through the spooler's converters and the filter; the
printer's stream is drawn as a printer does and compared with the plain pages. Pictures of wrong pages
are left in build/test-output/corpus. --break NAME damages what the filter wrote: all must be wrong.
"""

import argparse
import collections
import concurrent.futures
import fnmatch
import gzip
import hashlib
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import tomllib

from breaks import BREAKS
from modes import MODES, Document, check, write_watermarks
from pages import Renderer, write_png

HERE = pathlib.Path(__file__).resolve().parent
RENDERERS = ("gs", "pdftops", "pdftocairo", "hybrid")
PAPERS = {"A4": (595, 842), "Letter": (612, 792), "A3": (842, 1191)}
LONG = ("plain", "text-foreground", "first", "booklet", "negative")  # of documents with many pages


def run(command, stdin=b"", **environment):
    done = subprocess.run(list(map(str, command)), input=stdin, capture_output=True, timeout=900,
                          env=os.environ | environment)  # fmt: skip
    return done.stdout, done.stderr.decode("latin1"), done.returncode


def succeed(command, stdin=b"", **environment):
    output, errors, status = run(command, stdin, **environment)
    if status != 0:
        raise RuntimeError(f"{command}: {errors[-500:]}")
    return output


class NotInRelease(Exception):
    """This release of Debian has no such package."""


class Corpus:
    def __init__(self, arguments):
        self.build = arguments.build
        # One for all builds: what the sanitized filter writes alike need not be drawn again.
        self.cache = HERE.parent.parent / "build/corpus"
        self.output = arguments.build / "test-output/corpus"
        self.output.mkdir(parents=True, exist_ok=True)
        self.support = self.cache / "support"
        self.support.mkdir(parents=True, exist_ok=True)
        write_watermarks(self.support)
        binaries = succeed(["cups-config", "--serverbin"]).decode().strip()
        os.environ["CUPS_SERVERBIN"] = binaries  # of which the converters find one another
        self.filters = binaries + "/filter/"
        self.ppd = str(arguments.build / "ppd/zarvo.ppd")
        self.damage = arguments.damage
        (self.cache / "right").mkdir(exist_ok=True)
        self.code = b"".join(path.read_bytes() for path in sorted(HERE.glob("*.py")) if path.name != "run.py")

    def unpacked(self, package):
        folder = self.cache / "packages" / package
        if not folder.exists():
            folder.parent.mkdir(parents=True, exist_ok=True)
            with tempfile.TemporaryDirectory(dir=folder.parent) as scratch:
                get = f"cd {scratch} && apt-get download -qq {package}"
                if run(["sh", "-c", get])[2] != 0:
                    if os.geteuid() == 0:
                        succeed(["apt-get", "-qq", "update"])
                    if not run(["apt-cache", "madison", package])[0].strip():
                        raise NotInRelease(f"this release has no package {package}")
                    succeed(["sh", "-c", get])
                part = pathlib.Path(scratch, "content")
                succeed(["dpkg-deb", "-x", *pathlib.Path(scratch).glob("*.deb"), part])
                part.rename(folder)
        return folder

    def fetch(self, row):
        """The document's bytes."""
        if "make" in row:
            path = self.cache / f"made-{row['name']}"
            if not path.exists():
                places = {name: self.unpacked(name) for name in row.get("packages", ())}
                command = row["make"].format(**{name.replace("-", "_"): place for name, place in places.items()})
                with tempfile.TemporaryDirectory() as scratch:
                    made = succeed(["sh", "-c", f"cd {scratch} && {command}"], HOME=scratch, LC_ALL="C.UTF-8")
                if made[:2] != b"%!" and made[:5] != b"%PDF-" and b"%!" not in made[:500]:
                    raise RuntimeError(f"made {made[:40]!r}")
                path.write_bytes(made)
            return path.read_bytes()
        found = sorted(self.unpacked(row["package"]).glob(row["file"]))
        if not found:
            raise FileNotFoundError(f"{row['package']} has no {row['file']}")
        data = found[0].read_bytes()
        return gzip.decompress(data) if found[0].suffix == ".gz" else data

    def convert(self, data, row, route):
        """PostScript, as the spooler hands it to the filter."""
        size = row.get("paper", "A4")
        options = f"PageSize={size} " + row.get("options", "")
        pages = row.get("pages", 5)
        if pages:
            options += f" page-ranges=1-{pages}"
        key = hashlib.sha256(f"{route} {options} ".encode() + data).hexdigest()
        path = self.cache / "converted" / key
        if not path.exists():
            path.parent.mkdir(exist_ok=True)
            arguments = ["1", "user", "title", "1"]
            if route == "pstops":
                done = succeed([self.filters + "pstops", *arguments, options], data, PPD=self.ppd)
            else:
                if not data.startswith(b"%PDF-"):
                    data = succeed([self.filters + "gstopdf", *arguments, options], data, PPD=self.ppd)
                turned = succeed([self.filters + "pdftopdf", *arguments, options], data, PPD=self.ppd)
                done = succeed([self.filters + "pdftops", *arguments,
                                f"PageSize={size} pdftops-renderer={route}"], turned, PPD=self.ppd)  # fmt: skip
            # The date is all in which two renderers' outputs differ when one uses the other.
            path.write_bytes(re.sub(rb"(CreationDate: D:)\d+", rb"\g<1>0", done))
        return path.read_bytes()

    def turns(self, data, row):
        """How far each page lies turned on its sheet, counterclockwise: what the list says, or, of a
        PDF, 90 degrees for pages that are wider than high."""
        if "turn" in row or not data.startswith(b"%PDF-"):
            return [row.get("turn", 0)] * 1000
        pages = str(row.get("pages", 5) or 1000)
        with tempfile.NamedTemporaryFile(suffix=".pdf") as file:
            file.write(data)
            file.flush()
            told = succeed(["pdfinfo", "-f", "1", "-l", pages, file.name]).decode("latin1")
        sizes = re.findall(r"^Page +\d+ size: +([\d.]+) x ([\d.]+) pts", told, re.M)
        rotations = re.findall(r"^Page +\d+ rot: +(\d+)", told, re.M)
        wide = [(float(w) > float(h)) != (int(rotation) % 180 == 90)
                for (w, h), rotation in zip(sizes, rotations)]  # fmt: skip
        return [90 if is_wide else 0 for is_wide in wide]

    def run_filter(self, options, job):
        return run([self.build / "bin/zarvofilter", "1", "user", "title", "1", options], job,
                   PPD=self.ppd, ZARVO_APPLICATION_SUPPORT=str(self.support))  # fmt: skip

    def print(self, document, mode, options):
        stream, log, status = self.run_filter(f"{document.paper_option} {options} {MODES[mode]}", document.job)
        if self.damage:
            stream = BREAKS[self.damage](stream)
        if status != 0 or re.search(r"^ERROR", log, re.M):
            told = re.search(r"^ERROR.*$", log, re.M)
            raise RuntimeError(f"status {status}: {told[0] if told else log[-300:]}")
        return stream

    def examine(self, row, route, modes):
        """The modes of one document, each with the reason why it is wrong."""
        renderer = Renderer(self.cache / "drawn")
        data = self.fetch(row)
        document = Document(self.convert(data, row, route), self.turns(data, row),
                            PAPERS[row.get("paper", "A4")], renderer, self.run_filter,
                            f"PageSize={row.get('paper', 'A4')}")  # fmt: skip
        if document.error or not document.plain:
            return {"converted": f"{len(document.plain)} pages {document.error}"}
        options = f"WMTurn={row['say']}" if "say" in row else ""

        def filtered(mode):
            return self.print(document, mode, options)

        wrong = {}
        for mode in modes:
            if row.get("long") and mode not in LONG:
                continue
            pictures = []
            try:
                stream = self.print(document, mode, options)
                key = hashlib.sha256(repr((mode, document.turns, row.get("paper"), self.code)).encode()
                                     + document.job + stream).hexdigest()  # fmt: skip
                good = self.cache / "right" / key
                why = "" if good.exists() else None
                if why is None:
                    why, pictures = check(mode, document, stream, filtered)
                if not why:
                    good.touch()
            except Exception as error:  # the table tells
                why = f"{type(error).__name__}: {error}"
            wrong[mode] = why
            for number, picture in enumerate(pictures[:8]):
                write_png(picture, self.output / f"{row['name']}-{route}-{mode}-{number}.png")
        return wrong


def routes(row, data):
    return row.get("routes") or (RENDERERS if data.startswith(b"%PDF-") else ("pstops",))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, default=HERE.parent.parent / "build")
    parser.add_argument("--only", action="append", help="documents, as shell patterns")
    parser.add_argument("--modes", default=",".join(MODES))
    parser.add_argument("--routes", default="")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--small", action="store_true", help="the few that stand for the others")
    parser.add_argument("--install", action="store_true", help="what makes documents, and what is missing of it")
    parser.add_argument("--break", dest="damage", choices=BREAKS)
    arguments = parser.parse_args()
    arguments.build = arguments.build.resolve()

    rows = tomllib.loads((HERE / "documents.toml").read_text())["document"]
    rows = [row for row in rows if not arguments.small or row.get("small")]
    if arguments.only:
        rows = [row for row in rows if any(fnmatch.fnmatch(row["name"], name) for name in arguments.only)]
    if arguments.install and (programs := sorted({name for row in rows for name in row.get("install", ())})):
        succeed(["apt-get", "-o", "DPkg::Lock::Timeout=600", "install", "-y", "-qq",
                 "--no-install-recommends", *programs], DEBIAN_FRONTEND="noninteractive")  # fmt: skip
    corpus, tasks, missing, absent = Corpus(arguments), [], [], []
    for row in rows:
        try:
            tasks += [(row, route) for route in routes(row, corpus.fetch(row))]
        except NotInRelease as error:
            absent.append(f"{row['name']}: {error}")
        except Exception as error:
            missing.append(f"{row['name']}: {error}")
    if arguments.routes:
        tasks = [task for task in tasks if task[1] in arguments.routes.split(",")]
    modes = arguments.modes.split(",")
    right = collections.Counter()
    failures, told = [], []
    with concurrent.futures.ProcessPoolExecutor(arguments.jobs) as pool:
        futures = [pool.submit(corpus.examine, row, route, modes) for row, route in tasks]
        for (row, route), future in zip(tasks, futures):
            try:
                wrong = future.result()
            except Exception as error:
                wrong = {"converted": f"{type(error).__name__}: {error}"}
            known = row.get("cannot", {})
            bad = {mode: why for mode, why in wrong.items() if why and mode not in known}
            right["right"] += sum(not why for why in wrong.values())
            right["wrong"] += len(bad)
            right["cannot"] += sum(bool(why) and mode in known for mode, why in wrong.items())
            good = sum(not why for why in wrong.values())
            print(f"{row['name']:28} {route:10} {good:2} of {len(wrong):2}  {' '.join(bad)}", flush=True)
            told += [f"{row['name']} {route} {mode}: {known[mode]}" for mode, why in wrong.items()
                     if why and mode in known]  # fmt: skip
            failures += [f"{row['name']} {route} {mode}: {why}" for mode, why in bad.items()]
    for reason in told + failures + absent + [f"missing: {line}" for line in missing]:
        print(reason)
    programs = len({row["by"] for row in rows})
    print(f"{len(rows) - len(missing) - len(absent)} documents of {programs} programs, {len(tasks)} conversions: "
          f"{right['right']} right, {right['wrong']} wrong, {right['cannot']} that no filter can mend")  # fmt: skip
    return 1 if right["wrong"] or missing or not right["right"] else 0


if __name__ == "__main__":
    sys.exit(main())
