#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Draws the fax cover sheet that docs/fax.md shows.

    sample-fax-cover.py PICTURE.png
"""

import os
import pathlib
import plistlib
import subprocess
import sys

COVER = {
    "MediaWidth": 612.0,
    "MediaHeight": 792.0,
    "SenderLabel": "From",
    "SenderText": "Ada Byron\nAnalytical Engines Ltd\nada@example.com\n"
    "Phone : +44 20 5550 0100\nFax : +44 20 5550 0101\n",
    "RecipientLabel": "To",
    "RecipientText": "Charles Babbage, 山田太郎, Zoë Müller, שרה לוי",
    "NotesLabel": "Notes",
    "NotesText": "Please find the drawings of the mill attached, in the order in which the parts are "
    "to be cut. Sheets 3 and 4 replace those of last week; everything else is unchanged. A line "
    "that is longer than the sheet is wide is wrapped between words.\n\n"
    "図面を添付しましたので、ご確認ください。\n"
    "נא לאשר את קבלת השרטוטים.",
    "Watermark": {
        "textString": "Confidential",
        "fontName": "DejaVuSans-Bold",
        "fontSize": 84,
        "angle": 45,
        "xPos": 130.0,
        "yPos": 120.0,
        "density": 15,
    },
}


def main():
    helper = pathlib.Path(os.environ["ZARVO_BIN"], "zarvodraw").resolve()
    pdf = subprocess.run(
        [helper, "faxcover", "optional"], input=plistlib.dumps(COVER), stdout=subprocess.PIPE, check=True
    ).stdout
    picture = subprocess.run(
        ["pdftoppm", "-r", "72", "-gray", "-png", "-"],
        input=pdf,
        stdout=subprocess.PIPE,
        check=True,
    ).stdout
    pathlib.Path(sys.argv[1]).write_bytes(picture)


if __name__ == "__main__":
    main()
