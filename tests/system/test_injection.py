# SPDX-License-Identifier: Apache-2.0
"""Hostile text in every place of a ticket, of the watermark store and of the arguments.

With a harmless text in the same places the job has a certain shape: its XML elements, its command
lines, its PostScript tokens, its log lines. No text may change the shape, only what stands in it.
"""

import os
import pathlib
import plistlib
import re
import tempfile
import unittest
import xml.etree.ElementTree

from zarvo import run_filter

GOLDEN = pathlib.Path(os.environ["ZARVO_SOURCE"]) / "tests/golden"
JOB = (GOLDEN / "input/plain.ps").read_bytes()
EXIT = b"\x1b%-12345X"
P = "com.zarvo.print."

# Each a key of the ticket that takes a text.
TICKET_TEXTS = [
    *(f"com.zarvo.Act.{key}" for key in ("UID", "AID", "jtml.UID", "jtml.AID")),
    *(f"{P}JobNotes{key}" for key in ("JobName", "SenderName", "Message", "Recipient")),
    *(f"{P}JobNotes{key}" for key in ("SheetMessage", "AdditionalInfo")),
    "com.apple.print.JobInfo.PMJobName",
    *(f"{P}JobType..d_{key}" for key in ("SavedJobName", "SavedJobLocation")),
    f"{P}FinishingCustom",
    *(f"{P}BackgroundFormsOptions..d_{key}" for key in ("NewFormString", "MergeWithString")),
    # A stock with a name is known to the printer: it is described where it has none.
    f"{P}JobLevelStock..d_Description",
    f"{P}SpecialPages.FrontCover..d_Stock..d_Name",
    f"{P}SpecialPages.BackCover..d_Stock..d_Description",
    f"{P}SpecialPages.InsertList..a_0..d_Stock..d_Name",
    f"{P}SpecialPages.InsertList..a_1..d_Stock..d_Description",
    *(f"{P}FullColorOptions..d_{key}" for key in ("TRC", "GrayImages", "RGBImages", "CMYKImages")),
    *(f"{P}FullColorOptions..d_{key}" for key in ("GrayTextGraphics", "Destination")),
    *(f"{P}FaxOptions..d_{key}" for key in ("CreditCard", "DialingPrefix")),
    f"{P}FaxRecipientList..a_0..d_FaxNumber",
    f"{P}FaxRecipientList..a_0..d_Mailbox",
    "ZRVJobName",
    "ZRVJobPassword",
]
COVER_TEXTS = [
    *(f"{P}FaxOptions..d_Sender{key}" for key in ("Name", "Organization", "EmailAddress")),
    *(f"{P}FaxOptions..d_Sender{key}" for key in ("PhoneNumber", "FaxNumber")),
    *(f"{P}FaxOptions..d_Localized{key}Label" for key in ("Phone", "Fax", "From", "To", "Notes")),
    *(f"{P}FaxRecipientList..a_0..d_{key}" for key in ("FirstName", "LastName", "Organization")),
    f"{P}FaxOptions..d_CoverSheetNotes",
]
COVER = [
    f"{P}JobType..d_JobType..n=5",
    f"{P}FaxRecipientList..a_0..d_FaxNumber=5550100",
    *(f"{P}FaxOptions..d_{key}..b=true" for key in ("CoverSheet", "ShowSender", "ShowWatermark")),
    f"{P}FaxOptions..d_ShowRecipients..n=1",
    f"{P}FaxOptions..d_WatermarkName=mark",
]
SWITCHES = [
    f"{P}JTMLOptions..d_JTMLOptionAll..b=true",
    "com.zarvo.Act.jtml.On..n=3",
    f"{P}FinishingOptions..n=22",
    f"{P}watermark.Watermark=mark",
]
JOB_TYPES = {
    "user": ["com.zarvo.Act.On..n=2", "com.zarvo.Act.AT..n=2", f"{P}JobType..d_JobType..n=3"],
    "group": ["com.zarvo.Act.On..n=2", "com.zarvo.Act.AT..n=3", f"{P}JobType..d_JobType..n=4",
              f"{P}JobType..d_UseJobName..b=true"],
    "account": ["com.zarvo.Act.On..n=3", f"{P}JobType..d_JobType..n=5"],
}
PLACEMENTS = (1, 2, 3)
HARMLESS = "harmless"


def hostile_texts():
    """(what, bytes)"""
    for byte in [*range(1, 32), 127]:
        yield f"control {byte}", b"a" + bytes([byte]) + b"@PJL RESET" + bytes([byte]) + b"b"
    for prefix in (b"PPD: x=y", b"STATE: +media-empty", b"ATTR: a=b", b"PAGE: 1 1", b"ERROR: no"):
        for end in (b"\n", b"\r", b"\r\n", b"\xc2\x85", b"\xe2\x80\xa8"):
            yield f"{prefix!r} after {end!r}", b"a" + end + prefix + end
    yield from {
        "universal exit": EXIT + b"@PJL SET JOBOFFSET=ON\n",
        "quotes": b"\"';\" '\" \"\"",
        "parentheses": b") show systemdict /deletefile get (",
        "opening": b"((((",
        "backslash": b"\\",
        "backslash at the end of a string": b"x\\)\\",
        "element": b"</job-name></jtml><evil a=\"1\"/>&lt;&#10;&bad;",
        "section": b"]]>--><![CDATA[<!--<?x",
        "shell": b"$(touch /tmp/zarvo-injected) `touch /tmp/zarvo-injected`; | & > <",
        "format": b"%s%n%1000000d%%",
        "noncharacter": b"\xef\xbf\xbe\xef\xbf\xbf",
        "invalid UTF-8": b"\xff\xfe\x80",
        "overlong": b"\xc0\x8a\xe0\x80\x8a",
        "surrogate": b"\xed\xa0\x80",
        "long": b"x" * 500,
        "direction": b"a\xe2\x80\xaeb\xd8\x9cc\xe2\x81\xa6d",
    }.items()


def quoted(text):
    """As one value of the option text."""
    return b"'" + re.sub(rb"(['\\])", rb"\\\1", text) + b"'"


def xml_shape(xml_bytes):
    # The account's end tag is not that of its start.
    xml_bytes = xml_bytes.replace(b"</job-accounting-id>", b"</job-account-id>")
    return [
        (element.tag, sorted(element.keys()), len(element))
        for element in xml.etree.ElementTree.fromstring(xml_bytes).iter()
    ]


def line_shape(header):
    """Each command line without its value, and with the value's quotes counted at its ends."""
    lines = header.split(b"\n")
    return [re.sub(rb"[ ,\"].*", b"", line.removeprefix(b"@PJL COMMENT ")) for line in lines]


def postscript_shape(text):
    """The program with every string, and every name made from one, taken out."""
    text = re.sub(rb"\((?:[^()\\]|\\.)*\)", b"()", text, flags=re.DOTALL)
    name = rb"(?:\(\) cvn|/[^\s()<>\[\]{}/%]+)"
    text = re.sub(rb"(?<=Typeface )" + name, b"NAME", text)
    return re.sub(name + rb"(?= 20 selectfont)", b"NAME", text)


class Injection(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.store = self.scratch / "Zarvo"
        self.store.mkdir()

    def run_filter(self, text, options, keys, statuses=(0,), ppd=GOLDEN / "ppd/test.ppd"):
        options = options + [key.encode() + b"=" + quoted(text) for key in keys]
        done = run_filter(b" ".join(options), JOB, about=("1", text, text), ppd=ppd, TMPDIR=str(self.scratch),
                          ZARVO_APPLICATION_SUPPORT=str(self.scratch))  # fmt: skip
        self.assertIn(done.returncode, statuses)
        return done

    def filter(self, text, job_type, placement):
        """The parts of the output and the log, with `text` wherever a text can stand."""
        unicode = text.decode(errors="replace").replace("\0", "")
        mark = {"textString": unicode, "fontName": unicode}
        (self.store / "com.zarvo.printing.watermarks.plist").write_bytes(
            plistlib.dumps({"mark": mark | {"fontSize": 20}}, fmt=plistlib.FMT_BINARY)
        )
        options = [option.encode() for option in SWITCHES + JOB_TYPES[job_type]]
        options.append(f"{P}watermark.Option..n={placement}".encode())
        done = self.run_filter(text, options, TICKET_TEXTS)
        xml_part, rest = done.stdout.split(EXIT + b"@PJL JOB\n", 1)
        header, postscript = rest.split(b"@PJL ENTER LANGUAGE = POSTSCRIPT\n", 1)
        return xml_part, header, postscript, done.stderr

    def test_every_text_of_the_table_reaches_the_output(self):
        marks = {key: f"A{number:02}B" for number, key in enumerate(TICKET_TEXTS)}  # can be dialled
        jobs = b""
        for job_type in JOB_TYPES:
            options = [*SWITCHES, *JOB_TYPES[job_type], *(f"{k}={mark}" for k, mark in marks.items())]
            jobs += self.run_filter(b"title", [option.encode() for option in options], []).stdout
        self.assertEqual([key for key, mark in marks.items() if mark.encode() not in jobs], [])

    def test_texts_stay_where_they_belong(self):
        for job_type in JOB_TYPES:
            for placement in PLACEMENTS:
                plain = self.filter(HARMLESS.encode(), job_type, placement)
                self.assertGreater(plain[0].count(b"harmless"), 15, plain[0].decode())
                for what, text in hostile_texts():
                    if placement != 1 and b"\\" not in text and b"(" not in text:
                        continue  # only the watermark differs
                    with self.subTest(text=what, job_type=job_type, placement=placement):
                        self.compare(text, plain, self.filter(text, job_type, placement))

    def compare(self, text, plain, parts):
        xml_part, header, postscript, log = parts
        invalid = text.decode(errors="ignore").encode() != text
        if not invalid:  # such a text counts as missing, and so may what holds it
            self.assertEqual(xml_shape(xml_part), xml_shape(plain[0]))
            self.assertEqual(line_shape(header), line_shape(plain[1]))
        else:
            xml_shape(xml_part)
        for line in header.splitlines():
            self.assertTrue(line.startswith(b"@PJL COMMENT ") or line == b"", line)
        self.assertNotRegex(header, rb"[\r\f\x1b]")
        self.assertNotRegex(xml_part, rb"[\x00-\x08\x0b\x0c\x0e-\x1f]")
        self.assertEqual(postscript_shape(postscript), postscript_shape(plain[2]))
        self.assertEqual(postscript.count(EXIT), plain[2].count(EXIT))
        self.assertEqual(
            [line.split(b":")[0] for line in log.split(b"\n")],
            [line.split(b":")[0] for line in plain[3].split(b"\n")],
        )
        self.assertFalse(pathlib.Path("/tmp/zarvo-injected").exists())

    def test_a_pin_stays_in_its_line(self):
        """Scrambling makes other bytes of it; what they would change prints nothing."""
        ppd = self.scratch / "closed.ppd"
        ppd.write_bytes((GOLDEN / "ppd/test.ppd").read_bytes() + b"*ZRVFailClosed: True\n")
        options = [option.encode() for option in (*SWITCHES[:1], f"{P}JobType..d_JobType..n=3")]

        def header(text):
            done = self.run_filter(
                text, options, [f"{P}JobType..d_SecurePrintPassword"], statuses=(0, 1), ppd=ppd)
            self.assertEqual(done.stdout == b"", done.returncode == 1, text)
            self.assertNotIn(text.decode(errors="replace"), done.stderr.decode(errors="replace"))
            envelope = done.stdout.split(b"@PJL ENTER LANGUAGE")[0]
            return line_shape(envelope.split(EXIT)[-1]), envelope.count(EXIT)

        plain = header(b"0391")
        made = [(f"first {c}", bytes([c]) + b"b@PJL RESET") for c in range(33, 127)]
        outcomes = set()
        for what, text in [*hostile_texts(), *made]:
            with self.subTest(text=what):
                shape = header(text)
                outcomes.add(shape == ([b""], 0))
                self.assertIn(shape, (plain, ([b""], 0)))
        self.assertEqual(outcomes, {True, False})

    def test_cover_texts_stay_on_the_cover(self):
        options = [option.encode() for option in COVER]
        every_control = b"".join(b"a" + bytes([byte]) + b"@PJL RESET" for byte in range(1, 32))
        texts = [("every control", every_control)]
        texts += [(what, text) for what, text in hostile_texts() if not what.startswith("control")]

        def split(done):
            self.assertNotIn(b"left out", done.stderr)
            before, cover, rest = re.split(rb"(?=%!PS-Adobe-3.0)", done.stdout)
            return before, re.findall(rb"@PJL|\x1b|\ntouch|deletefile", cover), rest

        plain = split(self.run_filter(HARMLESS.encode(), options, COVER_TEXTS))
        for what, text in texts:
            with self.subTest(text=what):
                self.assertEqual(split(self.run_filter(text, options, COVER_TEXTS)), plain)

    def test_names_and_file_names_start_no_log_line(self):
        # The spooler's buffer holds 2047 bytes; what is beyond them begins a line of its own.
        beyond = [(f"beyond {size}", b"\xc3\xa9" * ((size - 30) // 2) + b"PPD: DefaultPageSize=A5 " * 90)
                  for size in (1000, 1001, 2000, 2001)]  # fmt: skip
        for what, text in [*hostile_texts(), *beyond]:
            name = re.sub(rb"[\s=]", b".", text)
            options = b"com.zarvo.print." + name + b"..n=-1 com.zarvo.print.Gutter..n=-5"
            options += b" com.zarvo.print.BookletLayout..b=true"
            with self.subTest(text=what):
                done = run_filter(options, b"", b"/none/" + text, about=("1", text, text),
                                  ppd=b"/none/" + text, TMPDIR=str(self.scratch))  # fmt: skip
                self.assertEqual(done.returncode, 1)
                for line in done.stderr.splitlines():
                    self.assertRegex(line, b"^(ERROR|DEBUG): ")
                    self.assertLess(len(line), 1024)
                    self.assertNotRegex(line, b"\xc2[\x80-\x9f]|\xe2\x80[\xa8-\xae]|\xe2\x81\xa6|\xd8\x9c")
                    if what.startswith("beyond"):
                        line.decode()


if __name__ == "__main__":
    unittest.main()
