# SPDX-License-Identifier: Apache-2.0
"""Faults that a filter could have, made in its output. None may pass the comparison."""

import re

def inserted(text):
    """Ahead of the first PostScript document of the stream."""
    def damage(stream):
        return re.sub(rb"%!PS", lambda start: b"%!\n" + text + start[0], stream, count=1)

    return damage


BREAKS = {
    # Pages that never come out.
    "lost": inserted(b"<< /EndPage { pop pop false } >> setpagedevice\n"),
    # A stripe of every page is painted over after all else was drawn.
    "erased": inserted(b"<< /EndPage { exch pop dup 2 ne { gsave initgraphics 1 setgray 100 400 400 30 "
                       b"rectfill grestore } if 2 ne } >> setpagedevice\n"),
    # Everything has moved by half a line.
    "moved": inserted(b"<< /Install { 12 12 translate } >> setpagedevice\n"),
    # The mark is there, but nobody sees it.
    "unmarked": lambda stream: stream.replace(b"1.00 0.00 0.00 setrgbcolor", b"1 1 1 setrgbcolor"),
    # A second envelope begins in the middle.
    "twice": lambda stream: stream.replace(b"%%Page", b"\x1b%-12345X@PJL JOB\n@PJL COMMENT ZRVbegin\n"
                                           b"@PJL ENTER LANGUAGE = POSTSCRIPT\n%%Page", 1),
    "upside-down": inserted(b"<< /Install { currentpagedevice /PageSize get aload pop translate "
                            b"180 rotate } >> setpagedevice\n"),
}
