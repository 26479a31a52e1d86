# SPDX-License-Identifier: Apache-2.0
"""Plays a printer: printer.py JOURNAL KEPT. Takes raw jobs on port 9100, one connection after the other, as printers do.

Each job becomes a line of JSON in JOURNAL: from (address), bytes, mark, whole, pages and digest. A job's mark is
J and seven digits; `mark` lists those that are in it, and `digest` is that of the job with every mark blanked,
so that equal jobs have equal digests. What ends before its last line is not whole. The first job with each digest
stays in the folder KEPT, under that name, so that a wrong one can be looked at beside the right one.
"""

import hashlib
import json
import pathlib
import re
import socket
import sys

MARK = re.compile(rb"J\d{7}\b")
END = re.compile(rb"@PJL EOJ\n\x1b%-12345X\s*\x04?\Z")
# When the spooler or the cover was at work is in some jobs.
TIME = re.compile(rb"D:\d{14}[Z+-]\d\d'\d\d'?|%%CreationDate: .*")


def describe(data, address):
    marks = sorted({mark.decode() for mark in MARK.findall(data)})
    blank = TIME.sub(b"", MARK.sub(b"", data))
    return {"from": address, "bytes": len(data), "mark": marks, "whole": bool(END.search(data)),
            "pages": len(re.findall(rb"^%%Page: ", data, re.M)), "digest": hashlib.sha256(blank).hexdigest()}


def serve(journal, kept):
    with socket.create_server(("", 9100), backlog=8) as listener, open(journal, "a", buffering=1) as lines:
        while True:
            connection, (address, _) = listener.accept()
            data = bytearray()
            with connection:
                connection.settimeout(20)  # from a machine without power comes nothing, not even an end
                try:
                    while piece := connection.recv(1 << 16):
                        data += piece
                except OSError:
                    pass
            if data:
                record = describe(bytes(data), address)
                file = pathlib.Path(kept, record["digest"])
                if not file.exists():
                    file.write_bytes(data)
                lines.write(json.dumps(record) + "\n")


if __name__ == "__main__":
    serve(*sys.argv[1:])
