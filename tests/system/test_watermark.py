# SPDX-License-Identifier: Apache-2.0
"""Watermarks as the printer draws them, and images that mean harm."""

import math
import os
import pathlib
import plistlib
import re
import struct
import subprocess
import tempfile
import threading
import time
import unittest
import zlib

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
GOLDEN = pathlib.Path(os.environ["ZARVO_SOURCE"], "tests", "golden")
JOB = (GOLDEN / "input" / "watermark.ps").read_bytes()  # two pages, gray from x = 300 on
DPI = 144
BACKGROUND, OVERLAY, FOREGROUND = 1, 2, 3


def png(width, height, rows, size=None):
    """An RGB image; `size` is what its header claims instead of the truth."""

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", *(size or (width, height)), 8, 2, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + rows(y) for y in range(height)), 1)
    start = b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
    return start + chunk(b"IDAT", pixels) + chunk(b"IEND", b"")


class Marks:
    """The mark on a rendered page: every pixel without green. Lengths are points, y upwards."""

    def __init__(self, file):
        data = file.read_bytes()
        header = re.match(rb"P6\n(?:#.*\n)?(\d+) (\d+)\n255\n", data)
        width, height = int(header[1]), int(header[2])
        pixels = data[header.end() :]
        plane = pixels[1::3].translate(bytes(255 if value < 100 else 0 for value in range(256)))
        self.count = plane.count(255)
        if self.count == 0:
            return
        sums = [0.0] * 5
        places = []
        for y in range(height):
            for run in re.finditer(b"\xff+", plane[y * width : (y + 1) * width]):
                first, last = run.span()
                places.append((first, last, y))
                for x in range(first, last):
                    row = height - 0.5 - y
                    for i, term in enumerate((x + 0.5, row, (x + 0.5) ** 2, row**2, (x + 0.5) * row)):
                        sums[i] += term
        unit = 72 / DPI
        x, y, xx, yy, xy = (value / self.count for value in sums)
        self.center = (x * unit, y * unit)
        self.angle = math.degrees(math.atan2(2 * (xy - x * y), xx - x * x - yy + y * y) / 2)
        self.left = min(first for first, _, _ in places) * unit
        self.right = max(last for _, last, _ in places) * unit
        self.top = (height - min(row for _, _, row in places)) * unit
        self.bottom = (height - 1 - max(row for _, _, row in places)) * unit
        self.colors = {
            bytes(pixels[3 * (row * width + x) : 3 * (row * width + x) + 3])
            for first, last, row in places
            for x in (first, last - 1)
        }


class Watermarks(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "Zarvo").mkdir()
        self.image = self.folder / "mark image.png"

    def store(self, **fields):
        mark = {
            "textString": "", "filename": "", "filePath": "", "fontName": "Courier",
            "xOffset": 0.0, "yOffset": 0.0, "xPos": 40.0, "yPos": 300.0, "angle": 0, "scale": 100,
            "units": 0, "fontSize": 40, "fontColorRed": 1.0, "fontColorGreen": 0.0,
            "fontColorBlue": 0.4,
        } | fields
        with open(self.folder / "Zarvo" / "com.zarvo.printing.watermarks.plist", "wb") as file:
            plistlib.dump({"WatermarkListEntries": ["None", "it"], "it": mark}, file)

    def start(self, option, first_only=False):
        options = (
            "com.zarvo.print.EmitJTML..n=0 com.zarvo.print.watermark.Watermark=it "
            f"com.zarvo.print.watermark.Option..n={option} "
            f"com.zarvo.print.watermark.FirstPageOnly..n={int(first_only)}"
        )
        environment = {
            "ZARVO_APPLICATION_SUPPORT": str(self.folder),
            "PPD": str(GOLDEN / "ppd" / "test.ppd"),
        }
        return subprocess.Popen(
            [BIN / "zarvofilter", "1", "user", "title", "1", options],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env=environment,
        )

    def render(self, option, first_only=False, job=JOB):
        output, log = self.start(option, first_only).communicate(job)
        return self.print(output[output.index(b"%!PS") : output.index(b"%%EOF")], log)

    def print(self, document, log=b""):
        """The marks on both pages, or on the only one, of a PostScript or PDF document."""
        printer = subprocess.run(
            ["gs", "-q", "-dBATCH", "-dNOPAUSE", "-dSAFER", "-sDEVICE=ppmraw", f"-r{DPI}",
             f"-g{612 * DPI // 72}x{792 * DPI // 72}", f"-sOutputFile={self.folder}/%d.ppm", "-"],
            input=document,
            capture_output=True,
        )
        self.assertEqual((printer.returncode, printer.stdout), (0, b""), log)
        pages = [self.folder / f"{page}.ppm" for page in (1, 2)]
        return [Marks(page) for page in pages if page.exists()]

    def assert_near(self, actual, expected, slack):
        for left, right in zip(actual, expected, strict=True):
            self.assertAlmostEqual(left, right, delta=slack)

    def test_all_combinations_come_out_on_their_pages(self):
        self.image.write_bytes(png(96, 48, lambda y: b"\xc8\0\0" * 48 + b"\0\0\xc8" * 48))
        for kind in ("text", "image"):
            for option in (BACKGROUND, OVERLAY, FOREGROUND):
                for first_only in (False, True):
                    with self.subTest(kind=kind, option=option, first_only=first_only):
                        if kind == "text":
                            self.store(textString="HHHHHHHH", xPos=200.0)
                        else:
                            self.store(filename="it", filePath=str(self.image))
                        one, two = self.render(option, first_only)
                        pages = [True, not first_only]
                        if first_only and option == OVERLAY:
                            pages = [kind == "text"] * 2
                        self.assertEqual([one.count > 0, two.count > 0], pages)
                        if not pages[0]:
                            continue
                        # What the page paints covers the background from x = 300 on. The
                        # overlay's text is centred, the other begins at its position.
                        right = 336 if kind == "image" else 416 if option == OVERLAY else 390
                        right = 300 if option == BACKGROUND else right
                        self.assertAlmostEqual(one.right, right, delta=1.5)
                        if kind == "text":
                            self.assertEqual(one.colors, {b"\xff\0\x66"})
                        else:
                            self.assertEqual(one.colors, {b"\xc8\0\0", b"\0\0\xc8"})
                            self.assert_near((one.left, one.bottom, one.top), (240, 336, 384), 0.6)
                            area = (one.right - one.left) * 48 * (DPI / 72) ** 2
                            share = 0.5 if option == OVERLAY else 1
                            self.assertAlmostEqual(one.count / area, share, delta=0.1)

    def test_text_has_its_place_angle_and_size(self):
        length, cap = 8 * 0.6, 0.56  # of eight capitals, in font sizes
        for size, angle, x, y in ((40, 0, 40.5, 300), (24, 30, 60, 500), (24, -60, 100, 400.25)):
            with self.subTest(size=size, angle=angle):
                self.store(textString="HHHHHHHH", fontSize=size, angle=angle, xPos=x, yPos=float(y))
                cos, sin = math.cos(math.radians(angle)), math.sin(math.radians(angle))
                along, up = length * size / 2, cap * size / 2
                for option in (BACKGROUND, FOREGROUND):
                    mark = self.render(option)[1]
                    self.assertAlmostEqual(mark.angle, angle, delta=1)
                    expected = (x + along * cos - up * sin, y + along * sin + up * cos)
                    self.assert_near(mark.center, expected, 1)
                    width = length * size * cos + cap * size * abs(sin)
                    self.assertAlmostEqual(mark.right - mark.left, width, delta=0.1 * size + 1)

        self.store(textString="HHHHHHHH", angle=30, xOffset=25.4, yOffset=-50.8, units=1)
        mark = self.render(OVERLAY)[1]
        self.assertAlmostEqual(mark.angle, 30, delta=1)
        # The text is centred by half its size per letter, begun at half a size below the middle.
        along, up = length * 40 / 2 - 8 * 40 / 4, cap * 40 / 2 - 20
        cos, sin = math.cos(math.radians(30)), math.sin(math.radians(30))
        expected = (306 + 72 + along * cos - up * sin, 396 - 144 + along * sin + up * cos)
        self.assert_near(mark.center, expected, 1.5)

    def test_images_are_scaled_about_the_middle(self):
        self.image.write_bytes(png(100, 50, lambda y: b"\xc8\0\0" * 100))
        self.store(filename="it", filePath=str(self.image), scale=150)
        mark = self.render(FOREGROUND)[0]
        box = (mark.left, mark.right, mark.bottom, mark.top)
        self.assert_near(box, (213, 363, 322.5, 397.5), 0.6)

    def test_fax_covers_show_watermarks_alike(self):
        self.image.write_bytes(png(100, 50, lambda y: b"\xc8\0\0" * 100))
        text = {"textString": "HHHHHHHH", "fontName": "LiberationMono", "fontSize": 40}
        text |= {"angle": 30, "xPos": 60.0, "yPos": 500.0, "fontColorRed": 1.0}
        image = {"filename": "it", "filePath": str(self.image), "scale": 150}
        for name, fields in (("text", text), ("image", image)):
            with self.subTest(name):
                cover = plistlib.dumps({"Watermark": fields | {"density": 100}})
                draw = [BIN / "zarvodraw", "faxcover"]
                pdf = subprocess.run(draw, input=cover, check=True, capture_output=True).stdout
                [mark] = self.print(pdf)
                if name == "image":
                    box = (mark.left, mark.right, mark.bottom, mark.top)
                    self.assert_near(box, (231, 381, 358.5, 433.5), 0.6)
                    continue
                self.assertAlmostEqual(mark.angle, 30, delta=1)
                cos, sin = math.cos(math.radians(30)), math.sin(math.radians(30))
                along, up = 8 * 0.6 * 40 / 2, 0.66 * 40 / 2
                expected = (60 + along * cos - up * sin, 500 + along * sin + up * cos)
                self.assert_near(mark.center, expected, 1.5)

    def test_jobs_may_call_their_dictionary_md(self):
        self.store(textString="HHHHHHHH")
        self.assertGreater(self.render(FOREGROUND, job=JOB.replace(b"cg_md", b"md"))[1].count, 0)

    def test_images_that_mean_harm_leave_the_job_whole(self):
        def white(_):
            return b"\xff\xff\xff"

        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        whole = png(60, 60, lambda y: os.urandom(180))
        files = {
            "one pixel": (png(1, 1, white), b"\nFFFFFF\r%%EndSetup"),
            "claims ten gigapixels": (png(1, 1, white, (100000, 100000)), b""),
            "claims more than it has": (png(1, 1, white, (500, 500)), b""),
            "cut short": (whole[: len(whole) // 2], b""),
            "cut short JPEG": (b"\xff\xd8\xff\xe0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", b""),
            "wider than a string": (png(30000, 1, lambda y: bytes(90000)), b""),
            "taller than 16 bits": (png(1, 40000, white), b""),
            "drawing language": (b"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", b""),
            "empty": (b"", b""),
            "named pipe": (None, b""),
        }
        for name, (content, expected) in files.items():
            with self.subTest(name):
                path = pipe if content is None else self.image
                if content is not None:
                    path.write_bytes(content)
                self.store(filename="it", filePath=str(path))
                filter_ = self.start(BACKGROUND)
                output, log = filter_.communicate(JOB, timeout=60)
                self.assertEqual(filter_.returncode, 0)
                self.assertTrue(output.endswith(b"@PJL EOJ\n\x1b%-12345X\n"))
                self.assertEqual(b"readdata\n" in output, bool(expected))
                self.assertIn(expected, output)
                lines = [line for line in log.splitlines() if line.startswith(b"INFO: ")]
                self.assertEqual(len(lines), 0 if expected else 1, log)
                self.assertTrue(expected or str(path).encode() in lines[0])

    def peak_memory(self, width, height):
        """The filter's own peak, in KiB, once it has written the image."""
        row = bytes(range(240)) * (width * 3 // 240 + 1)
        self.image.write_bytes(png(width, height, lambda y: row[: 3 * width]))
        self.store(filename="it", filePath=str(self.image))
        filter_ = self.start(BACKGROUND)
        received = [0]

        def drain():
            while block := filter_.stdout.read1():
                received[0] += len(block)

        reader = threading.Thread(target=drain)
        reader.start()
        # The job stays unfinished, so that the filter is alive when it is looked at. It writes
        # out what it holds with the call at the start of the first page.
        setup, rest = JOB.split(b"%%EndPageSetup", 1)
        filter_.stdin.write(setup)
        filter_.stdin.flush()
        deadline = time.monotonic() + 60
        while received[0] < 6 * width * height and time.monotonic() < deadline:
            time.sleep(0.02)
        status = pathlib.Path("/proc", str(filter_.pid), "status").read_text()
        filter_.stdin.write(b"%%EndPageSetup" + rest)
        filter_.stdin.close()
        reader.join()
        filter_.stdout.close()
        filter_.stderr.close()
        self.assertEqual(filter_.wait(60), 0)
        self.assertGreater(received[0], 6 * width * height)
        return int(re.search(r"VmHWM:\s+(\d+)", status)[1])

    def test_memory_does_not_grow_with_the_image(self):
        small = self.peak_memory(100, 50)
        large = self.peak_memory(5000, 4000)
        print(f"filter's peak memory: {small} KiB with 0.005, {large} KiB with 20 megapixels")
        self.assertLess(large - small, 1024)

    def test_the_filter_links_no_drawing_library(self):
        headers = subprocess.run(
            ["readelf", "-d", BIN / "zarvofilter"], check=True, capture_output=True, text=True
        ).stdout
        names = set(re.findall(r"NEEDED.*\[(.*?)\.so", headers))
        runtime = {"ld-linux-x86-64", "libstdc++", "libgcc_s", "libc", "libm", "libasan", "libubsan"}
        self.assertEqual(names - runtime, {"libcups", "libplist-2.0"})  # libutf8proc is linked in


if __name__ == "__main__":
    unittest.main()
