# SPDX-License-Identifier: Apache-2.0
"""The ways in which a document is printed, and what each has to make of its plain pages."""

import plistlib
import struct
import zlib

from compare import (
    CELL, DARK, alike, cells, different, grown, inverted, marked, number, overlaid, plane_and, red,
    same, yellow,
)  # fmt: skip
from pages import EXIT, YELLOW_PAPER, Page, flipped

PRINT = "com.zarvo.print."
FAX = " ".join(PRINT + row for row in (
    "JobType..d_JobType..n=5", "FaxRecipientList..a_0..d_FirstName=Ada",
    "FaxRecipientList..a_0..d_FaxNumber=5550100", "FaxOptions..d_CoverSheet..b=true",
    "FaxOptions..d_ShowRecipients..n=2", "FaxOptions..d_Size..n=2",
    "FaxOptions..d_CoverSheetNotes=Corpus"))  # fmt: skip
BOOKLET = "BookletLayout=LeftToRight"
MARKS = {f"{kind}-{place.lower()}": f"Watermark=Custom.{kind} WMPlace={place}"
         for kind in ("text", "image") for place in ("Background", "Overlay", "Foreground")}
MODES = {
    "plain": "",
    "secure": "JobType=Secure JobPIN=Custom.0391",
    **MARKS,
    "first": f"{MARKS['text-foreground']} WMPages=First",
    "booklet": BOOKLET,
    "right": "BookletLayout=RightToLeft",
    "gutter": f"{BOOKLET} BookletGutter=Custom.60",
    "creep": f"{BOOKLET} BookletCreep=Custom.200",
    "outline": f"{BOOKLET} BookletOutline=Frame",
    "marked": f"{BOOKLET} {MARKS['text-foreground']}",
    "negative": "NegativeImage=True",
    "mirror": "MirrorImage=True",
    "fax": FAX,
}
SMOOTH = ("booklet", "right", "gutter", "creep", "outline", "marked", "mirror")
FINER = 3  # times the resolution
MARGIN, GUTTER = 12, 24  # points: of a booklet's sheet, and between its pages


def write_watermarks(folder):
    """A text whose letters tell its direction, and an image that is all red."""
    path = folder / "red.png"
    row = b"\0" + b"\xff\0\0" * 220

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 220, 90, 8, 2, 0, 0, 0))
                     + chunk(b"IDAT", zlib.compress(row * 90)) + chunk(b"IEND", b""))  # fmt: skip
    text = {"textString": "FLAG", "fontName": "Helvetica-Bold", "fontSize": 120, "angle": 20,
            "xPos": 150.0, "yPos": 330.0, "fontColorRed": 1.0, "scale": 100, "units": 0}  # fmt: skip
    image = {"filename": "red.png", "filePath": str(path), "scale": 100}
    store = folder / "Zarvo/com.zarvo.printing.watermarks.plist"
    store.parent.mkdir(exist_ok=True)
    store.write_bytes(plistlib.dumps({"WatermarkListEntries": ["None", "text", "image"],
                                      "text": text, "image": image}))  # fmt: skip


class Document:
    """A converted document: `job` is its PostScript, `turns` how far each page lies turned
    counterclockwise on its sheet, `sheet` the paper's size in points."""

    def __init__(self, job, turns, sheet, renderer, run_filter, paper_option):
        self.job, self.sheet, self.renderer, self.run_filter = job, sheet, renderer, run_filter
        self.paper_option = paper_option
        self.plain, self.error, _ = renderer.job(job)
        if not any(set(page.pixels) != {255} for page in self.plain):
            self.error = self.error or "empty"
        self.turns, self._yellow = turns, None

    def turn(self, index):
        return self.turns[index] if index < len(self.turns) else 0

    def on_yellow(self):
        if self._yellow is None:
            pages, error, sizes = self.renderer.job(self.job, prolog=YELLOW_PAPER)
            if error or len(pages) != len(self.plain):
                raise RuntimeError(f"on yellow paper: {len(pages)} pages {error}")
            self._yellow = pages, sizes
        return self._yellow

    def paper(self, index):
        """Where the page shows its paper, and not a yellow of its own."""
        return yellow(self.on_yellow()[0][index]) & ~yellow(self.plain[index])

    def size(self, index):
        return self.on_yellow()[1][index]

    def mask(self, mode, index):
        """Where the mark belongs, from an empty page as the reader holds it."""
        width, height = self.size(index)
        turn = self.turn(index)
        if turn % 180:
            width, height = height, width
        blank = (f"%!PS-Adobe-3.0\n%%EndComments\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n%%EndSetup\n"
                 f"%%Page: 1 1\n%%BeginPageSetup\n<< /PageSize [{width} {height}] >> setpagedevice\n"
                 "%%EndPageSetup\nshowpage\n%%Trailer\n%%EOF\n")  # fmt: skip
        stream, _, _ = self.run_filter(f"{self.paper_option} {MARKS[mode]}", blank.encode())
        pages, _ = self.renderer.stream(stream)
        page = pages[0].turned(turn)
        if (page.width, page.height) != (self.plain[index].width, self.plain[index].height):
            raise RuntimeError(f"a mask of {page.width}x{page.height}")
        mask = red(page)
        if mask.bit_count() < 200:
            raise RuntimeError("the empty page has no mark")
        return mask


class Booklet:
    """Where the pages of a booklet belong, in pixels of the sides turned so that pages stand upright."""

    def __init__(self, document, mode):
        self.document, self.mode = document, mode
        self.slots = -(-len(document.plain) // 4) * 4
        gutter = 60 if mode == "gutter" else GUTTER
        self.step = 20 if mode == "creep" else 0
        self.maximum = (self.slots // 4 - 1) * self.step
        self.gap = gutter + self.maximum

    def places(self):
        """(side, page or None, left, top, scale, width, height)"""
        depth, length = self.document.sheet
        room = length / 2 - MARGIN - self.gap / 2, depth - 2 * MARGIN
        for side in range(self.slots // 2):
            sheet = side // 2
            outer, inner = self.slots - 2 * sheet, 1 + 2 * sheet
            pair = (outer, inner) if side % 2 == 0 else (inner + 1, outer - 1)
            if self.mode == "right":
                pair = pair[::-1]
            creep = sheet * self.step // 2
            for half, page in enumerate(pair):
                left = MARGIN + creep if half == 0 else MARGIN + room[0] + self.gap - creep
                if page > len(self.document.plain):
                    yield side, None, left, MARGIN, 1, *room
                    continue
                width, height = self.document.size(page - 1)
                scale = min(room[0] / width, room[1] / height)
                yield (side, page - 1, left + (room[0] - scale * width) / 2,
                       MARGIN + (room[1] - scale * height) / 2, scale, scale * width, scale * height)  # fmt: skip

    def wrong(self, sides, stream):
        """Of pictures that were made smaller twice, thin lines may be missing in one of both: what
        is wrong is looked at once more, finer."""
        if not (why := self._wrong(sides, 1)) or len(sides) != self.slots // 2:
            return why
        fine, _ = self.document.renderer.stream(stream, smooth=True, dpi=72 * FINER)
        return self._wrong(fine, FINER)

    def _wrong(self, sides, finer):
        if len(sides) != self.slots // 2:
            return f"{len(sides)} sides instead of {self.slots // 2}"
        upright = [side.turned(90) for side in sides]
        for number_, side in enumerate(upright):
            if (side.width, side.height) != tuple(finer * length for length in self.document.sheet[::-1]):
                return f"side {number_ + 1}: {side.width}x{side.height}"
        inside = [[] for _ in sides]
        cell = finer * CELL
        for side, page, *place in self.places():
            left, top, scale, width, height = (finer * length for length in place)
            box = round(left), round(top), round(width), round(height)
            inside[side].append(box)
            if page is None:
                expected = [[255.0] * (box[2] // cell) for _ in range(box[3] // cell)]
            else:
                small, error, _ = self.document.renderer.job(self.document.job, dpi=72 * scale, smooth=True)
                expected = cells(small[page], cell=cell)
            if why := alike(cells(upright[side], *box, cell), expected):
                where = "blank" if page is None else f"page {page + 1}"
                return f"side {side + 1}, {where}: {why}"
        for index, boxes in enumerate(inside):
            if ink := outside(upright[index], boxes):
                return f"side {index + 1}: {ink} pixels beside the pages"
        return ""


def outside(page, boxes):
    """How many pixels that are not white lie outside all boxes."""
    pixels, step, count = page.pixels, 3 * page.width, 0
    for y in range(page.height):
        at = 0
        inside = sorted((left - 2, left + width + 2) for left, top, width, height in boxes
                        if top - 2 <= y < top + height + 2)  # fmt: skip
        for first, last in [*inside, (page.width, page.width)]:
            row = pixels[y * step + 3 * at : y * step + 3 * max(at, first)]
            count += len(row) - row.count(255)
            at = max(at, last)
    return count


def each(pages, plain, check):
    for index, (page, right) in enumerate(zip(pages, plain)):
        if why := check(index, page, right):
            return f"page {index + 1}: {why}", index
    return "", 0


def check_marks(mode, document, pages):
    if mode == "first":
        return each(pages, document.plain, lambda index, page, plain: same(page, plain) if index else
                    marked(page, plain, document.mask("text-foreground", 0)))  # fmt: skip

    def check(index, page, plain):
        mask = document.mask(mode, index)
        if mode.endswith("overlay"):
            return overlaid(page, plain, mask)
        paper = document.paper(index) if mode.endswith("background") else None
        return marked(page, plain, mask, paper)

    return each(pages, document.plain, check)


def check_frames(document, pages, bare, stream):
    booklet = Booklet(document, "booklet")
    if why := booklet.wrong(bare, stream):
        return why, 0
    for index, (page, plain) in enumerate(zip(pages, bare)):
        page, plain = page.turned(90), plain.turned(90)
        frame, edges = 0, bytearray(page.width * page.height)
        for side, number_, left, top, _, width, height in booklet.places():
            if side != index or number_ is None:
                continue
            x, y, right, bottom = round(left), round(top), round(left + width), round(top + height)
            for row in (y, bottom):
                edges[row * page.width + x : row * page.width + right] = b"\1" * (right - x)
            for row in range(y, bottom):
                edges[row * page.width + x] = edges[row * page.width + right] = 1
        changed, frame = different(page, plain), number(bytes(edges))
        if lost := changed & ~grown(frame, page.width, 2):
            return f"side {index + 1}: {lost.bit_count()} pixels changed beside the frames", index
        # A page may have black edges of its own.
        drawn = grown(changed | plane_and(page.pixels, (DARK,) * 3), page.width, 2) & frame
        if drawn.bit_count() < 0.9 * frame.bit_count():
            return f"side {index + 1}: {drawn.bit_count()} of {frame.bit_count()} pixels of frames", index
    return "", 0


def check_marked_booklet(document, pages, bare, stream):
    booklet = Booklet(document, "booklet")
    if why := booklet.wrong(bare, stream):
        return why, 0
    for side, page, left, top, _, width, height in booklet.places():
        if page is None:
            continue
        ours, plain = pages[side].turned(90), bare[side].turned(90)
        fresh = different(ours, plain)
        if lost := fresh & ~grown(red(ours), ours.width):
            return f"side {side + 1}: {lost.bit_count()} pixels changed beside the mark", side
        box = bytearray(ours.width * ours.height)
        for y in range(round(top + height / 5), round(top + 4 * height / 5)):
            box[y * ours.width + round(left) : y * ours.width + round(left + width)] = b"\1" * round(width)
        if (fresh & red(ours) & number(bytes(box))).bit_count() < 300:
            return f"side {side + 1}, page {page + 1} has no mark", side
    return "", 0


def check(mode, document, stream, filtered):
    """Why the printer's stream is wrong, or nothing, and pictures of the wrong page. `filtered`
    gives the stream of another mode."""
    for line, name in ((b"@PJL JOB\n", "beginnings"), (b"@PJL COMMENT ZRVbegin", "headers"),
                       (EXIT + b"@PJL EOJ", "ends")):  # fmt: skip
        if stream.count(line) != 1:
            return f"{stream.count(line)} {name} of a job", []
    # Scaled, turned and mirrored pages are compared by how dark they are, cell by cell.
    pages, errors = document.renderer.stream(stream, smooth=mode in SMOOTH)
    if errors:
        return errors[0], pages[-1:]
    if mode in ("booklet", "right", "gutter", "creep"):
        why = Booklet(document, mode).wrong(pages, stream)
        return why, pages if why else []
    if mode in ("outline", "marked"):
        bare_stream = filtered("booklet")
        bare, _ = document.renderer.stream(bare_stream, smooth=True)
        if len(pages) != len(bare):
            return f"{len(pages)} sides instead of {len(bare)}", []
        check_it = check_frames if mode == "outline" else check_marked_booklet
        why, index = check_it(document, pages, bare, bare_stream)
        return why, [pages[index], bare[index]] if why else []
    if mode == "fax":
        if not pages or (pages[0].width, pages[0].height) != (595, 842):
            return "no cover sheet on A4", pages[:1]
        if min(pages[0].pixels) > 64:
            return "an empty cover sheet", pages[:1]
        pages = pages[1:]
    if mode == "secure" and b"JOB_TYPE_SECURE_PRINT" not in stream:
        return "no secure job", []
    if len(pages) != len(document.plain):
        return f"{len(pages)} pages instead of {len(document.plain)}", pages[:1]
    if mode in MARKS or mode == "first":
        why, index = check_marks(mode, document, pages)
    elif mode == "negative":
        why, index = each(pages, document.plain, lambda _, page, plain: inverted(page, plain))
    elif mode == "mirror":
        smooth, _, _ = document.renderer.job(document.job, smooth=True)
        why, index = each(pages, smooth,
                          lambda _, page, plain: alike(cells(page), cells(flipped(plain))))  # fmt: skip
    else:
        why, index = each(pages, document.plain, lambda _, page, plain: same(page, plain))
    return why, [pages[index], document.plain[index]] if why else []
