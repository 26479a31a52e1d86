#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""sample-desk.py PPD FOLDER [LANGUAGE SIZE SCALE]: the desktop program's pictures of docs/desk.md.

With a language ("de_DE"), a size ("1366x768") and a scale ("2") the same windows so, for people to look at.
"""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

BIN = pathlib.Path(os.environ["ZARVO_BIN"]).resolve()
STOCK = {"SidesImaged": "none", "Stock": {"Color": "blue"}}
WINDOWS = {
    "thesis": ("pages", 24, {
        "FinishingDuplex": "long-edge", "sides": "two-sided-long-edge", "JTMLOptions": {"JTMLOptionAll": True},
        "FinishingOptions": 14, "FinishingBindValue": 15, "SpecialPages.FrontCover": STOCK,
        "SpecialPages.BackCover": STOCK, "SpecialPages.InsertList": [
            {"StartPage": 10, "Quantity": 1, "Stock": {"Color": "yellow"}}],
        "SpecialPages.ExceptionList": [
            {"StartPage": 5, "EndPage": 8, "SidesImaged": "one-sided", "Stock": {"Weight": 160}}]}),
    "booklet": ("booklet", 24, {
        "BookletLayout": True, "FinishingDuplex": "short-edge", "FinishingOptions": 24,
        "BookletFoldStaple": "fold-and-staple", "JTMLOptions": {"JTMLOptionAll": True},
        "watermark.Watermark": "DRAFT", "watermark.FirstPageOnly": 1, "watermark.Option": "background"}),
    "fax": ("fax", 2, {
        "JobType": {"JobType": "fax"}, "FaxOptions": {
            "CoverSheet": True, "Size": "a4", "ShowRecipients": "names", "LocalizedToLabel": "To",
            "SenderName": "Charles", "ShowSender": True, "LocalizedFromLabel": "From"},
        "FaxRecipientList": [{"FirstName": "Ada", "LastName": "Byron", "FaxNumber": "+44 20 7946 0018"},
                             {"FaxNumber": "0911-4711"}]}),
}


def document(pages):
    text = "%!PS-Adobe-3.0\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n"
    text += "<< /PageSize [595 842] >> setpagedevice\n%%EndSetup\n"
    for page in range(1, pages + 1):
        text += f"%%Page: {page} {page}\n/Times-Bold 40 selectfont 70 740 moveto (Chapter {page}) show\n"
        text += "/Times-Roman 13 selectfont 0 1 34 { 70 exch 17 mul 690 exch sub moveto "
        text += "(Of the art of printing, and how sheets become books that people) show } for\nshowpage\n"
    return text + "%%Trailer\n%%EOF\n"


def main():
    ppd, folder, *how = sys.argv[1:]
    language, size, scale = (how + ["en_US", "1280x720", "1"][len(how):])[:3]
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        environment = os.environ | {
            "HOME": str(scratch), "ZARVO_APPLICATION_SUPPORT": str(scratch), "CUPS_SERVER": "127.0.0.1:1",
            "XDG_CONFIG_HOME": str(scratch), "QT_QPA_PLATFORM": "offscreen", "QT_SCALE_FACTOR": scale,
            "LC_ALL": language + ".UTF-8", "LANG": language + ".UTF-8"}
        subprocess.run([BIN / "zarvo", "watermark", "add-text", "DRAFT", "--size", "110", "--color", "#d05050"],
                       env=environment, check=True, capture_output=True)
        for name, (panel, pages, ticket) in WINDOWS.items():
            (scratch / f"{name}.ps").write_text(document(pages))
            (scratch / f"{name}.json").write_text(json.dumps(ticket))
            subprocess.run([BIN / "zarvo-desk", "-p", ppd, "-s", scratch / f"{name}.json", "--panel", panel,
                            "--size", size, "--picture", pathlib.Path(folder, f"desk-{name}.png"),
                            scratch / f"{name}.ps"], env=environment, check=True, stderr=subprocess.DEVNULL,
                           timeout=300)


if __name__ == "__main__":
    main()
