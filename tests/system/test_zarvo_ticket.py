#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""zarvo ticket: readable tickets to options and back, misspelt keys, the list of keys."""

import itertools
import json
import plistlib
import re
import tomllib
import unittest

from zarvo import ALL_SECTIONS, BIN, SANITIZED, SOURCE, ZarvoTest, document

NASTY = "a b\tc\nd 'e' \"f\" \\g {h} i=j , \u00e9 \u65e5 #$%"
TICKET = {
    "com.zarvo.print.JobType": {"JobType": "secure", "SecurePrintPassword": "1 2'3\\4"},
    "com.zarvo.print.JTMLOptions": {"JTMLOptionAll": True},
    "com.zarvo.print.BannerPage": False,
    "com.zarvo.print.JobNotesMessage": NASTY,
    "com.zarvo.print.SpecialPages.InsertList": [
        {"StartPage": n, "Stock": {"Size": "a4", "Color": "blue"}} for n in range(12)
    ],
    "com.zarvo.print.FaxOptions": {"SendTime": "2026-12-31T23:59", "SenderName": ""},
    "com.zarvo.print.Icon": {"$data": "00ff10"},
    "sides": "two-sided-long-edge",
}


def written_tickets():
    """Names and options of jobs: those of the golden tables, and some of each section of the XML ticket."""
    for table in ("header", "fax", "jtml"):
        for case in tomllib.loads((SOURCE / f"tests/golden/{table}.toml").read_text())["case"]:
            yield f"{table}/{case['name']}", case.get("options", "")
    for name in ("jtml_sections", "jtml_special_pages"):
        lines = (SOURCE / f"tests/unit/expected/{name}.txt").read_text().splitlines()
        # One of them is a preset that the printers cannot read either.
        options = [line[2:] for line in lines if line.startswith("> ") and "PunchOptions..n=9" not in line]
        for number in range(0, len(options), 5):
            yield f"{name}-{number}", f"{ALL_SECTIONS} {options[number]}"


def head(job):
    return job[: job.index(b"%!PS-Adobe")].decode("latin-1")


class Ticket(ZarvoTest):
    def test_round_trip(self):
        options = self.run_zarvo("ticket", "encode", stdin=json.dumps(TICKET))
        self.assertIn("com.zarvo.print.JobType..d_JobType..n=6 ", options)
        self.assertIn("com.zarvo.print.FaxOptions..d_SendTime..n=3881606340 ", options)
        back = json.loads(self.run_zarvo("ticket", "decode", "--secrets", stdin=options))
        self.assertEqual(back, TICKET)
        # The same through a property list, which keeps numbers as numbers.
        xml = self.run_zarvo("ticket", "decode", "--secrets", "-f", "plist", stdin=options)
        self.assertEqual(plistlib.loads(xml.encode())["com.zarvo.print.JobType"]["JobType"], 6)
        self.assertEqual(self.run_zarvo("ticket", "encode", stdin=xml), options)

    def test_secrets_are_shown_to_who_asks_only(self):
        text = json.dumps({
            "com.zarvo.print.JobType": {"SecurePrintPassword": "S3CRET"},
            "com.zarvo.Act.UID": "S3CRET", "com.zarvo.Act.AID": "S3CRET", "JobPIN": "Custom.S3CRET",
            "AccountUser": "S3CRET", "AccountID": "S3CRET", "FaxBilling": "Custom.S3CRET",
            "com.zarvo.print.FaxOptions": {"CreditCard": "S3CRET"}})
        for form in ("json", "plist"):
            self.assertNotIn("S3CRET", self.run_zarvo("ticket", "decode", "-f", form, stdin=text))
        # What was hidden must not be printed as if it were the PIN.
        hidden = self.run_zarvo("ticket", "decode", stdin=text)
        self.run_zarvo("ticket", "encode", stdin=hidden, status=2)
        self.assertIn("hidden", self.errors)

    def test_short_names_and_spooler_options(self):
        short = '{"TonerSaver": true, "copies": 3, "Resolution": "600x600"}'
        lines = self.run_zarvo("ticket", "encode", "-l", stdin=short).split()
        self.assertEqual(
            sorted(lines),
            ["com.zarvo.print.Resolution..n=2", "com.zarvo.print.TonerSaver..b=true", "copies=3"],
        )

    def test_what_options_cannot_carry_is_refused(self):
        for ticket, place in {
            '{"com.k": 1.5}': "com.k",
            '{"com.k": null}': "com.k",
            '{"com.k": []}': "com.k",
            '{"com.k": {"a b": 1}}': "com.k/a b",
            '{"com.k": {"a..b": 1}}': "com.k",
            '{"com.k": {"a": 1, "A": 2}}': "com.k..d_A",
            '{"com.k": 4294967296}': "com.k",
            '{"com.k": {"$data": "0g"}}': "com.k",
            '{"com.k": "a\\u0000b"}': "com.k",
            '{"com.k": ': "line 1",
            '["com.k"]': "",
            "{" * 100000: "",
            '{"a":' * 60 + "1" + "}" * 60: "",
            "<plist><string>x</string></plist>": "dictionary",
            json.dumps({"com.k": "x" * 140000}): "140006 bytes as options",
            "com.k=" + "x" * 1100000: "options are read up to 1048576",
        }.items():
            with self.subTest(ticket=ticket[:40]):
                self.assertEqual(self.run_zarvo("ticket", "encode", stdin=ticket, status=2), "")
                self.assertIn(place, self.errors)

    def test_check_names_the_nearest(self):
        for ticket, finding in {
            '{"JobTyp": {"JobType": 6}}': "JobTyp: unknown key; did you mean JobType?",
            '{"JobType": {"SavedJobNam": "x"}}': "did you mean SavedJobName?",
            '{"Resoluton": 2}': "Resoluton: unknown key; did you mean Resolution?",
            '{"JobType": {"JobType": "secur"}}': 'did you mean "secure"?',
            '{"com.zarvo.print.tonersaver": true}': "did you mean com.zarvo.print.TonerSaver?",
            '{"com.zarvo.print.Nonsense": 1}': "com.zarvo.print.Nonsense: unknown key\n",
            '{"BannerPage": "yes"}': "com.zarvo.print.BannerPage: takes true or false",
            '{"JTMLOptions": {"JTMLOptionAll": 1}, "Resolution": 9}': "9 is out of range",
            '{"Resolution": 2}': "has no effect without com.zarvo.print.JTMLOptions",
            '{"Resolution": 2, "EmitJTML": 0, "JTMLOptions": {"JTMLOptionAll": true}}':
                "has no effect while no XML ticket is written; set com.zarvo.print.EmitJTML to 1",
            '{"SpecialPages.FrontCover": {"Stock": {"Colour": 1}}}': "did you mean Color?",
            '{"FaxRecipientList": [{"FaxNumer": "1"}]}': "FaxRecipientList/0/FaxNumer: unknown",
            '{"JobLevelStock": {"Size": 9}}': "no stock has the code 9",
            '{"JobType": {"JobType": "secure"}}': "a secure job needs a PIN",
            '{"JobType": {"JobType": "secure", "SecurePrintPassword": 391}}': "the PIN is no text",
            '{"JobType": {"JobType": "secure", "SecurePrintPassword": "quality"}}': "PIN is cut",
            '{"JobType": {"SecurePrintPassword": "abcdef"}}': "4 to 10 digits",
            '{"JobType": {"JobType": "secure", "SecurePrintPassword": "jHYGC"}}': "end the printer",
            '{"JobType": {"JobType": "proof"}, "job-password": "0391"}': "cannot keep a PIN",
            '{"JobType": {"JobType": "fax"}, "FaxOptions": {"Resolution": 1}}': "no recipient",
            "JobPIN=Custom.391": "4 to 10 digits",
            json.dumps({f"com.zarvo.{n}": 1 for n in range(200000)}): "com.zarvo.99999: unknown key\n"
                "no job can carry this: has 4288889 bytes as options",
            "com.zarvo.print.JobType..d_JobTyp..n=6": "did you mean JobType?",
            '{"siides": "one-sided"}': "siides: unknown option; did you mean sides?",
            '{"JTMLOptions": {"JTMLOptionAll": true}, "FinishingOptions": 24, "BookletFoldStaple": 8}':
                "not laid out as a booklet; add com.zarvo.print.BookletLayout: true",
            '{"com.zarvo.Act.On": 2}': "com.zarvo.Act.On: accounting: the job names no user; add com.zarvo.Act.UID",
            '{"FaxOptions": {"CoverSheet": true}}': "in a job that is no fax; add com.zarvo.print.JobType",
        }.items():
            with self.subTest(ticket=ticket[:99]):
                self.assertIn(finding, self.run_zarvo("ticket", "check", stdin=ticket, status=1))
        good = '{"JobType": {"JobType": "proof"}, "outputorder": "reverse", "PageSize": "A4"}'
        for ticket in (good, "JobPIN=Custom.0391 FaxNumber=Custom.4711 job-password=0391"):
            self.assertEqual(self.run_zarvo("ticket", "check", stdin=ticket), "")

    def test_page_tool_and_filter_know_the_same_keys(self):
        types = {"n": ("number", "date", "any"), "b": ("boolean", "any"), "": ("text", "any")}
        lines = self.run_zarvo("ticket", "keys").splitlines()
        listed = {key: kind for key, kind, _ in (line.split("\t") for line in lines)}
        told = set()
        for name in re.findall(r"^\| `(com\.[^`]*)`", (SOURCE / "docs/ticket.md").read_text(), re.M):
            parts = name.split("..")
            letter = parts.pop() if parts[-1] in ("n", "b") else ""
            path = parts[0] + "".join("/" + part[2:] for part in parts[1:] if part[0] == "d")
            with self.subTest(option=name):
                self.assertIn(listed.get(path), types[letter])
            while path:
                told.add(path)
                path = path.rpartition("/")[0]
        # Whole groups are described once, for the first key that holds one.
        elsewhere = r"/Stock/|ImageShiftOptionsPage/|FullColorOptionsPage/|(InsertList|ExceptionList)/Stock"
        self.assertEqual([key for key in set(listed) - told if not re.search(elsewhere, key)], [])
        # What the filter reads is in its parts as a text, beside the table itself.
        build = BIN.parent
        parts = [part.read_bytes() for folder in ("CUPSFilter", "Source")
                 for part in (build / folder).rglob("*.o") if "/Ticket" not in str(part)]
        unread = [key for key in listed
                  if not any(key.rpartition("/")[2].encode() + b"\0" in part for part in parts)]
        self.assertEqual(unread, [])
        program = (BIN / "zarvofilter").read_bytes()
        read = {name.decode() for name in re.findall(rb"(com\.(?:zarvo|apple)\.\w[\w.]*)\0", program)}
        not_keys = {name for name in read if name.endswith((".plist", ".mailbox", "."))}
        self.assertEqual(sorted(read - not_keys - {key.rpartition("/")[2] for key in listed}), [])

    def test_saved_from_a_file_it_writes_the_same(self):
        """Header and XML ticket come out byte for byte, or what is not taken has been told."""
        told = []
        # Under the sanitizers, where each takes a second, what takes other ways through the programs.
        for name, options in itertools.islice(written_tickets(), 0, None, 4 if SANITIZED else 1):
            job = self.path("job.prn", self.filtered(options, document()))
            self.run_zarvo("ticket", "save", "--own", "from file", "--from", job)
            notes = re.findall(r"not taken: (.*)", self.errors)
            ticket = json.loads(self.run_zarvo("ticket", "show", "--own", "from file", "--secrets"))["ticket"]
            again = self.run_zarvo("ticket", "encode", stdin=json.dumps(ticket))
            before, after = (head(self.filtered(text, document())) for text in (options, again))
            self.assertTrue(before == after or notes, name + "\n" + before + after)
            self.assertNotRegex(json.dumps([ticket, notes]), "SecurePrintPassword|ACCT-77|CreditCard|4711")
            told += [f"{name}: {note}\n" for note in notes]
        if not SANITIZED:
            self.assert_golden("ticket-from-file.txt", "".join(told))
        self.run_zarvo("ticket", "save", "--own", "x", "--from", self.path("plain.ps", document().encode()), status=2)
        self.assertIn("no job that the filter wrote", self.errors)


if __name__ == "__main__":
    unittest.main()
