# SPDX-License-Identifier: Apache-2.0
"""The jobs that a fleet is tried with: kinds as print shops and offices have them, each job with a mark of its own.

A mark is J and seven digits, and stands in the text of every page and in the account of the job, so that what
a printer got can be told apart, and a document under another one's settings be seen.
"""

import collections
import os
import pathlib
import subprocess
import zlib

from machines import as_user

MARK = "J0000000"
PAGES = 4
LINES = 40
IMAGE_WATERMARK = "fleet.png"

PS_PAGE = f"""%%Page: {{0}} {{0}}
%%BeginPageSetup
%%EndPageSetup
/Helvetica 12 selectfont
0 1 {LINES - 1} {{{{ 15 mul 760 exch sub 72 exch moveto (Page {{0}} of {MARK}, a line of text) show }}}} for
0.5 setgray 72 72 200 40 rectfill
showpage
"""


def postscript(pages=PAGES):
    body = "".join(PS_PAGE.format(page) for page in range(1, pages + 1))
    return (f"%!PS-Adobe-3.0\n%%Pages: {pages}\n%%EndComments\n%%BeginProlog\n%%EndProlog\n"
            f"%%BeginSetup\n%%EndSetup\n{body}%%Trailer\n%%EOF\n").encode()


def pdf(pages=PAGES):
    """As plain as can be, so that a mark can be put in by its place."""
    objects = ["<< /Type /Catalog /Pages 2 0 R >>",
               f"<< /Type /Pages /Count {pages} /Kids [{' '.join(f'{4 + 2 * n} 0 R' for n in range(pages))}] >>",
               "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"]
    for number in range(pages):
        text = "BT /F 12 Tf 72 760 Td 15 TL\n" + "".join(
            f"(Page {number + 1} of {MARK}, a line of text) Tj T*\n" for _ in range(LINES)) + "ET\n"
        objects += [f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents {5 + 2 * number} 0 R "
                    "/Resources << /Font << /F 3 0 R >> >> >>",
                    f"<< /Length {len(text)} >>\nstream\n{text}endstream"]
    out, places = b"%PDF-1.4\n", []
    for number, content in enumerate(objects, 1):
        places.append(len(out))
        out += f"{number} 0 obj\n{content}\nendobj\n".encode()
    table = "".join(f"{place:010} 00000 n \n" for place in places)
    return out + (f"xref\n0 {len(objects) + 1}\n0000000000 65535 f \n{table}"
                  f"trailer << /Size {len(objects) + 1} /Root 1 0 R >>\nstartxref\n{len(out)}\n%%EOF\n").encode()


ACCOUNT = ["Accounting=Group", f"AccountUser=Custom.{MARK}", "AccountID=Custom.4711"]
# Name: the document, and the options beside the account.
KINDS = {
    "postscript": (postscript(), ["sides=two-sided-long-edge"]),
    "pdf": (pdf(), ["sides=two-sided-long-edge", "Staple=TopLeft"]),
    "booklet": (postscript(8), ["BookletLayout=LeftToRight", "BookletFinish=FoldStaple"]),
    "watermark": (postscript(), ["Watermark=DRAFT"]),
    "image": (postscript(), [f"com.zarvo.print.watermark.Watermark={IMAGE_WATERMARK}",
                             "com.zarvo.print.watermark.Option..n=1"]),
    "secure": (postscript(), ["JobType=Secure", "JobPIN=Custom.0391"]),
    "fax": (postscript(2), ["FaxNumber=Custom.0911-4711", "FaxCover=A4"]),
}


def job(kind, number):
    """Its mark, document and arguments for lp."""
    document, options = KINDS[kind]
    mark = f"J{number:07}"
    words = [word.replace(MARK, mark) for option in options + ACCOUNT for word in ("-o", option)]
    return mark, document.replace(MARK.encode(), mark.encode()), words


def judge(sent, expected, records):
    """What became of jobs: `sent` maps marks to kinds, `expected` kinds to digests, `records` are printers'.

    Gives marks of lost jobs, of doubled ones, and of wrong ones, and the number of those that broke off and
    came once more.
    """
    copies, wrong, cut = collections.Counter(), set(), 0
    for record in records:
        if not record["whole"]:
            cut += 1
            continue
        mark = record["mark"][0] if len(record["mark"]) == 1 else str(record["mark"])
        copies[mark] += 1
        if mark not in sent or record["digest"] != expected[sent[mark]]:
            wrong.add(mark)
    return (sorted(set(sent) - set(copies)), sorted(mark for mark, count in copies.items() if count > 1),
            sorted(wrong), cut)


def png(width, height):
    def chunk(kind, data):
        return len(data).to_bytes(4, "big") + kind + data + zlib.crc32(kind + data).to_bytes(4, "big")

    row = b"\0" + b"".join(bytes((x * 255 // width, 128, 200)) for x in range(width))
    header = width.to_bytes(4, "big") + height.to_bytes(4, "big") + b"\x08\x02\0\0\0"
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(row * height))
            + chunk(b"IEND", b""))


def make_store(folder):
    """The machine-wide store of the servers, with what the kinds name; gives the filters' environment."""
    folder = pathlib.Path(folder)
    (folder / "Zarvo").mkdir(parents=True)
    environment = {"ZARVO_APPLICATION_SUPPORT": str(folder)}
    (folder / IMAGE_WATERMARK).write_bytes(png(300, 200))
    zarvo = [*as_user(), pathlib.Path(os.environ["ZARVO_BIN"]) / "zarvo"]
    for words in (["add-text", "DRAFT"], ["add-image", folder / IMAGE_WATERMARK]):
        subprocess.run([*zarvo, "watermark", *words], env={**os.environ, **environment}, check=True,
                       capture_output=True)
    for path in [folder, *folder.rglob("*")]:  # the filters run as another user
        path.chmod(0o755 if path.is_dir() else 0o644)
    return environment
