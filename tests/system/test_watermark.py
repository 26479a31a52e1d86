# SPDX-License-Identifier: Apache-2.0
"""Watermarks as the printer draws them, and images that mean harm."""

import os
import pathlib
import re
import unittest

from pictures import draw, ghostscript, gif, png
from zarvo import SOURCE, ZarvoTest

JOB = (SOURCE / "tests/golden/input/watermark.ps").read_bytes()  # two pages, gray from x = 300 on
PAGE = "0.8 setgray 300 0 312 792 rectfill "
BACKGROUND, OVERLAY, FOREGROUND = 1, 2, 3
RED, BLUE = b"\xc8\0\0", b"\0\0\xc8"


def text(size, place):
    return f"1 0 0.4 setrgbcolor /Courier {size} selectfont {place} (HHHHHHHH) show "


def drawn(document):
    return draw(document, "-g1224x1584", dpi=144)


class Watermarks(ZarvoTest):
    def store(self, **fields):
        mark = {
            "fontName": "Courier", "fontSize": 40, "fontColorRed": 1.0, "fontColorBlue": 0.4,
            "xOffset": 25.5, "yOffset": -50.9, "units": 1, "scale": 100,
        }
        self.write_store("watermarks", {"WatermarkListEntries": ["None", "it"], "it": mark | fields})

    def store_image(self, content, **fields):
        image = self.path("mark image.png", content)
        self.store(filename="it", filePath=image, **fields)
        return image

    def options(self, place, first_only=False):
        return (
            "com.zarvo.print.EmitJTML..n=0 com.zarvo.print.watermark.Watermark=it "
            f"com.zarvo.print.watermark.Option..n={place} "
            f"com.zarvo.print.watermark.FirstPageOnly..n={int(first_only)}"
        )

    def check(self, mark, places=(BACKGROUND, FOREGROUND)):
        """Both pages are as if the mark had been drawn with the page, below or above it."""
        for place in places:
            order = [f"gsave {mark} grestore ", PAGE]
            marked = "".join(order if place == BACKGROUND else order[::-1])
            with_mark, without = drawn(f"%!PS\n{marked} showpage {PAGE} showpage\n".encode())
            for first_only in (False, True):
                expected = [with_mark, without if first_only else with_mark]
                if first_only and place == OVERLAY:  # which knows no first page
                    expected = [with_mark if "show" in mark else without] * 2
                with self.subTest(mark=mark, place=place, first_only=first_only):
                    actual = drawn(self.filtered(self.options(place, first_only), JOB))
                    for ours, theirs in zip(actual, expected, strict=True):
                        if place != OVERLAY or theirs is without:
                            self.assertTrue(ours.pixels == theirs.pixels)
                            continue
                        inside, outside = ours.likeness(theirs, "red")
                        self.assertAlmostEqual(inside, 0.38 if "show" in mark else 0.5, delta=0.05)
                        self.assertLess(outside, 0.01)

    def test_texts(self):
        for size, angle, x, y in ((40, 0, 200, 300), (24, 30, 60.5, 500), (24, -60, 100, 400.25)):
            self.store(textString="HHHHHHHH", fontSize=size, angle=angle, xPos=x, yPos=y)
            self.check(text(size, f"{x} {y} moveto {angle} rotate"))
        # In the overlay a text is centred by half its size per letter, about a place that is an
        # inch right of the page's middle and two inches below it.
        self.store(textString="HHHHHHHH", angle=30)
        self.check(text(40, "378 252 translate 30 rotate -80 -20 moveto"), [OVERLAY])

    def test_images(self):
        self.store_image(png(96, 48, RED * 48 + BLUE * 48))
        halves = "0.784314 0 0 setrgbcolor 240 336 48 48 rectfill 0 0 0.784314 setrgbcolor "
        self.check(halves + "288 336 48 48 rectfill")
        self.store_image(png(1, 1, RED), scale=5000)
        self.check("0.784314 0 0 setrgbcolor 263 335 50 50 rectfill", [FOREGROUND])
        self.store_image(png(96, 48, RED))
        self.check("0.784314 0 0 setrgbcolor 240 336 96 48 rectfill", [OVERLAY])

    def test_every_kind_of_image_is_decoded(self):
        halves = b"%!PS\n1 0 0 setrgbcolor 0 0 48 48 rectfill 0 0 1 setrgbcolor 48 0 48 48 rectfill showpage"
        made = {}
        for device in ("jpeg", "tiff24nc", "bmp16m", "png16m"):
            file = pathlib.Path(self.path(device))
            ghostscript(device, halves, "-g96x48", "-r72", f"-sOutputFile={file}")
            made[device] = file.read_bytes()
        for kind, image in (made | {"gif": gif(96, 48, [1] * 48 + [3] * 48)}).items():
            with self.subTest(kind):
                self.store_image(image)
                page, _ = drawn(self.filtered(self.options(FOREGROUND), JOB))
                left, top, right, bottom = 240 / 612, 408 / 792, 288 / 612, 456 / 792
                inner = 2 * 40 * 2 * 40  # a lossy picture blurs the edge between its halves
                self.assertGreater(page.count("red", left, top, right, bottom), inner)
                self.assertGreater(page.count("blue", right, top, 336 / 612, bottom), inner)
                # A JPEG without its end mark may lack any part of the picture.
                for end in [len(image) * 2 // 3] + [len(image) - 2] * (kind == "jpeg"):
                    self.store_image(image[:end])
                    output = self.filtered(self.options(FOREGROUND), JOB)
                    self.assertFalse(b"readdata\n" in output, end)
                    self.assertEqual(self.errors.count("INFO: "), 1, self.errors)

    def test_jobs_may_call_their_dictionary_md(self):
        self.store(textString="HHHHHHHH")
        job = self.filtered(self.options(FOREGROUND), JOB.replace(b"cg_md", b"md"))
        self.assertGreater(drawn(job)[1].count("red"), 0)

    def test_images_that_mean_harm_leave_the_job_whole(self):
        os.mkfifo(self.path("pipe"))
        whole = png(60, 60, os.urandom(180))
        for name, content in {
            "claims ten gigapixels": png(1, 1, b"\xff", (100000, 100000)),
            "claims more than it has": png(1, 1, b"\xff", (500, 500)),
            "cut short": whole[: len(whole) // 2],
            "cut short JPEG": b"\xff\xd8\xff\xe0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0",
            "wider than a string": png(30000, 1, b"\0"),
            "taller than 16 bits": png(1, 40000, b"\xff"),
            "drawing language": b"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
            "empty": b"",
            "named pipe": None,
        }.items():
            with self.subTest(name):
                path = self.store_image(content) if content is not None else self.path("pipe")
                self.store(filename="it", filePath=path)
                output = self.filtered(self.options(BACKGROUND), JOB)
                self.assertTrue(output.endswith(b"@PJL EOJ\n\x1b%-12345X\n"))
                self.assertNotIn(b"readdata\n", output)
                [line] = [line for line in self.errors.splitlines() if line.startswith("INFO: ")]
                self.assertIn(path, line)
                if name == "claims ten gigapixels":  # known before memory is taken
                    self.assertIn("100 million pixels", line)

    def peak_memory(self, width, height):
        """The filter's own peak, in KiB, once it has written the image."""
        self.store_image(png(width, height, bytes(range(240))))
        process = self.start_filter(self.options(BACKGROUND))
        # The job stays unfinished, so that the filter is alive when it is looked at. It writes
        # out what it holds with the call at the start of the first page.
        process.stdin.write(JOB[: JOB.index(b"%%EndPageSetup")])
        process.stdin.flush()
        self.assertEqual(len(process.stdout.read(6 * width * height)), 6 * width * height)
        status = pathlib.Path("/proc", str(process.pid), "status").read_text()
        process.communicate()
        return int(re.search(r"VmHWM:\s+(\d+)", status)[1])

    def test_memory_does_not_grow_with_the_image(self):
        small, large = self.peak_memory(100, 50), self.peak_memory(5000, 4000)
        print(f"filter's peak memory: {small} KiB with 0.005, {large} KiB with 20 megapixels")
        self.assertLess(large - small, 1024)


if __name__ == "__main__":
    unittest.main()
