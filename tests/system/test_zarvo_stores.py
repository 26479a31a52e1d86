#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""zarvo watermark, recipient and fax: what they store is what jobs and dialogs read."""

import json
import plistlib
import subprocess
import unittest

from zarvo import BIN, ZarvoTest
from pictures import png, read_png


class Watermarks(ZarvoTest):
    def store(self):
        path = self.scratch / "data/Zarvo/com.zarvo.printing.watermarks.plist"
        return plistlib.loads(path.read_bytes())

    def test_texts_and_images_come_and_go(self):
        logo = self.path("logo.png", png(30, 20, (0, 0, 255)))
        self.run_zarvo("watermark", "add-text", "Entwurf \u00e9", "--size", "40", "-x", "99")
        self.run_zarvo("watermark", "add-image", logo, "--scale", "300")
        self.run_zarvo("watermark", "add-text", "Entwurf \u00e9", "--color", "#ff8000", "-x", "9.5")
        listed = json.loads(self.run_zarvo("watermark", "list", "--json"))
        self.assertEqual([w["name"] for w in listed], ["None", "Entwurf \u00e9", "logo.png"])
        store = self.store()
        text = store["Entwurf \u00e9"]
        self.assertEqual((text["xPos"], text["fontSize"], text["fontColorBlue"]), (9.5, 72, 0))
        self.assertAlmostEqual(text["fontColorGreen"], 128 / 255, places=6)
        image = self.scratch / "data/Zarvo/logo.png"
        self.assertEqual(store["logo.png"]["filePath"], str(image))
        self.assertEqual(image.stat().st_mode & 0o777, 0o644)
        self.run_zarvo("watermark", "remove", "logo.png")
        self.assertFalse(image.exists())
        self.assertEqual(self.store()["WatermarkListEntries"], ["None", "Entwurf \u00e9"])
        self.run_zarvo("watermark", "remove", "logo.png", status=2)

    def test_names_that_are_taken(self):
        """Nothing overwrites what jobs find under the same name, nor shifts what they count."""
        font = self.path("f.pfa", b"%!\n/FontName /Tiny def\n")
        self.run_zarvo("watermark", "add-text", "DRAFT", "--font", "a" + "\u00e9" * 60)
        self.run_zarvo("watermark", "font", font)
        for arguments in (["add-text", "None"], ["remove", "None"], ["add-text", "Tiny"],
                          ["add-text", "WatermarkListEntries"], ["font", font, "--name", "DRAFT"],
                          ["add-image", font]):
            with self.subTest(arguments):
                self.run_zarvo("watermark", *arguments, status=2)
                self.assertNotIn("as root", self.errors)
        store = self.store()
        self.assertEqual(store["WatermarkListEntries"], ["None", "DRAFT"])
        self.assertIn("DRAFT", self.run_zarvo("watermark", "list", "--json"))
        del store["DRAFT"]
        path = self.scratch / "data/Zarvo/com.zarvo.printing.watermarks.plist"
        path.write_bytes(plistlib.dumps(store))
        self.run_zarvo("watermark", "remove", "DRAFT")  # a name without a watermark
        path.write_bytes(b"damaged")
        self.run_zarvo("watermark", "list", status=2)

    def test_programs_may_add_at_the_same_time(self):
        names = [f"mark {number}" for number in range(40)]
        running = [subprocess.Popen([BIN / "zarvo", "watermark", "add-text", name],
                                    env=self.environment) for name in names]  # fmt: skip
        self.assertEqual([process.wait(60) for process in running], [0] * len(names))
        store = self.store()
        self.assertEqual(sorted(store.pop("WatermarkListEntries")), sorted(["None", *names]))
        self.assertEqual(sorted(store), sorted(names))

    def test_show_draws_what_jobs_print(self):
        logo = self.path("logo.png", png(30, 20, (0, 0, 255)))
        self.run_zarvo("watermark", "add-image", logo, "--scale", "300")
        self.run_zarvo("watermark", "add-text", "HH", "--color", "#ff0000", "--angle", "0", "--name", "two")
        self.run_zarvo("watermark", "show", "two", "--place", "foreground", "--output", "t.png")
        left, top, right, bottom = read_png(self.scratch / "t.png").box("red")
        # Centred, two capitals of 72 points wide and one high.
        self.assertAlmostEqual((left + right) / 2, 306, delta=6)
        self.assertAlmostEqual((top + bottom) / 2, 396, delta=6)
        self.assertAlmostEqual(bottom - top, 52, delta=3)
        self.run_zarvo("watermark", "show", "logo.png", "--place", "foreground", "--output", "i.png")
        left, top, right, bottom = read_png(self.scratch / "i.png").box("blue")
        self.assertEqual((round((right - left) / 10), round((bottom - top) / 10)), (9, 6))

    def test_fonts_are_stored_as_printers_take_them(self):
        clear = b"%!PS-AdobeFont-1.0: Tiny\r/FontName /Tiny def\r"
        segments = [(1, clear), (2, bytes(range(40))), (1, b"cleartomark\r")]
        pfb = b"".join(b"\x80" + bytes([kind]) + len(data).to_bytes(4, "little") + data
                       for kind, data in segments) + b"\x80\x03"
        name = self.run_zarvo("watermark", "font", self.path("tiny.pfb", pfb)).strip()
        self.assertEqual(name, "Tiny")
        hexed = bytes(range(32)).hex() + "\n" + bytes(range(32, 40)).hex() + "\n"
        expected = clear.replace(b"\r", b"\n") + hexed.encode() + b"cleartomark\n"
        self.assertEqual(self.store()["Tiny"], expected)
        for broken in (pfb[:60], b"\x80\x01\xff\xff\xff\xff", b"OTTO", b""):
            self.run_zarvo("watermark", "font", self.path("broken", broken), status=2)

    def test_bad_arguments(self):
        for arguments, told in (
            (["add-text", "x" * 512], ""),
            (["add-text", "x", "--color", "red"], ""),
            (["add-text", "x", "--font", "a) show ("], ""),
            (["add-image", "missing.png"], ""),
            (["add-image", self.path("a.png", b""), "--name", "../b"], ""),
            (["show", "nothing"], "zarvo watermark list"),
        ):
            self.run_zarvo("watermark", *arguments, status=2)
            self.assertIn(told, self.errors)
        self.environment["ZARVO_APPLICATION_SUPPORT"] = "/proc"
        self.run_zarvo("watermark", "add-text", "x", status=2)
        self.assertIn("as root", self.errors)


class Recipients(ZarvoTest):
    def test_people_and_groups(self):
        ada = self.run_zarvo("recipient", "add", "--first", "Ada", "--last", "de L\u00f3velace; x",
                             "--fax", "+44 20 7946", "--organization", "A;B\\, C",
                             "--phone", "5", "--email", "ada@example.org").strip()
        box = self.run_zarvo("recipient", "add", "--mailbox", "12").strip()
        # What is not given stays, whoever wrote it; a name given in part keeps the rest.
        self.run_zarvo("recipient", "edit", "Ada de L\u00f3velace; x", "--phone", "6", "--last", "King")
        self.run_zarvo("recipient", "edit", "Ada King", "--phone", "5", "--last", "de L\u00f3velace; x")
        self.run_zarvo("recipient", "group", "Branches", "Ada de L\u00f3velace; x", box[:8], ada)
        group = json.loads(self.run_zarvo("recipient", "list", "--json", "--group", "Branches"))
        people = {p["UID"]: p for p in group["com.zarvo.print.FaxRecipientList"]}
        self.assertEqual(people, {
            ada: {"UID": ada, "FirstName": "Ada", "LastName": "de L\u00f3velace; x",
                  "FaxNumber": "+44 20 7946", "Organization": "A;B\\, C", "PhoneNumber": "5",
                  "EmailAddress": "ada@example.org"},
            box: {"UID": box, "Mailbox": "12"},
        })
        self.assertIn("group Branches  members 2", self.run_zarvo("recipient", "list"))
        self.run_zarvo("recipient", "remove", ada)
        self.assertIn("group Branches  members 1", self.run_zarvo("recipient", "list"))
        self.run_zarvo("recipient", "remove", ada, status=2)
        # What it prints goes into a ticket as it is.
        told = self.run_zarvo("ticket", "check", stdin=self.run_zarvo("recipient", "list", "--json"), status=1)
        self.assertRegex(told, "^com.zarvo.print.FaxRecipientList: .* no fax.*\n$")

    def test_bad_arguments(self):
        for _ in range(2):
            self.run_zarvo("recipient", "add", "--first", "Bo", "--fax", "1")
        for arguments, told in (
            ("add --first Ada", ""), ("add --fax no-number", ""), ("add --fax 1 --last \udce9", ""),
            ("remove ", "means nobody"), ("remove Bo", "more than one"), ("edit Bo --fax 2", "more than one"), ("edit Cy --fax 2", "no such"),
        ):
            self.run_zarvo("recipient", *arguments.split(" "), status=2)
            self.assertIn(told, self.errors)
        self.environment["ZARVO_ADDRESS_BOOK"] = "/proc/contacts"
        self.run_zarvo("recipient", "add", "--fax", "1", status=2)
        self.assertIn("/proc/contacts", self.errors)

    def test_faxes_that_are_not_sent(self):
        """Before any queue is asked."""
        self.run_zarvo("recipient", "add", "--first", "Ada", "--last", "Byron", "--mailbox", "12")
        for arguments, told in (
            ([], "has no recipient"),
            (["--to", "Ada Bryon"], "no such recipient; did you mean Ada Byron?"),
            (["--to", "Ada Byron"], "has no fax number"),
            (["--to", "1", "--at", "25:00"], "25:00: is no time"),
            (["--to", "1", "--prefix", "12345"], "DialingPrefix is cut"),
        ):
            self.run_zarvo("fax", "send", "missing.pdf", "-d", "nowhere", *arguments, status=2)
            self.assertIn(told, self.errors)

    def test_cover_sheet(self):
        """Of settings, to which the command line adds what it has."""
        settings = {"FaxOptions": {"ShowRecipients": "names", "LocalizedToLabel": "An",
                                   "CoverSheetNotes": "With thanks", "Size": "a4"},
                    "FaxRecipientList": [{"FirstName": "Ada"}, {"LastName": "Hopper"}]}
        self.run_zarvo("recipient", "add", "--first", "Mary", "--fax", "030 1")
        self.run_zarvo("recipient", "group", "All", "Mary")
        self.run_zarvo("fax", "preview", "-", "--to", "All", "--to", "(030) 1", "--cover", "letter", "--from", "Bo",
                       "--output", "c.pdf", stdin=json.dumps(settings))
        text = subprocess.run(["pdftotext", "-layout", self.scratch / "c.pdf", "-"],
                              capture_output=True, text=True, check=True).stdout
        self.assertRegex(text, r"(?s)^ *From\n.*Bo.*An\n.*Ada, Hopper, Mary\n.*With thanks")


if __name__ == "__main__":
    unittest.main()
