# SPDX-License-Identifier: Apache-2.0
"""House tickets through a real spooler: every way to name one gives the same job."""

import getpass
import json
import os
import pathlib
import plistlib
import re
import socket
import subprocess
import tempfile
import time
import unittest

from cupsd import BIN, PrivateCupsd, Printer
from zarvo import SANITIZED, document, run_filter

SOURCE = pathlib.Path(os.environ["ZARVO_SOURCE"])
PPD = BIN.parent / "ppd/zarvo.ppd"
SHIPPED = plistlib.loads((SOURCE / "ppd/housetickets.plist").read_bytes())
# What a ticket leaves to whoever prints.
BESIDE = {"confidential": "JobPIN=Custom.0391", "fax-cover": "FaxNumber=Custom.0911-4711"}
# Each character, several in a name; those that end something in a PPD by themselves too.
ANY = ["".join(map(chr, range(c, min(c + 6, 0x7F)))) for c in range(0x21, 0x7F, 6)] + [*'"%*-./:<aA']
ANY += ["\u00e9t\u00e9", "\u65e5\u672c", "a b", "thesis2", "Thesis"]


class HouseTickets(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="zarvo-")))
        cls.folder.chmod(0o755)  # the filters run as another user
        cls.store = cls.folder / "Zarvo"
        cls.store.mkdir()
        for name in ("watermarks", "housetickets"):
            target = cls.store / f"com.zarvo.printing.{name}.plist"
            target.write_bytes((SOURCE / f"ppd/{name}.plist").read_bytes())
        cls.document = cls.folder / "four.ps"
        cls.document.write_text(document(pages=4, size=(595, 842)))
        cls.cupsd = cls.enterClassContext(
            PrivateCupsd({"ZARVO_APPLICATION_SUPPORT": str(cls.folder), "TZ": "UTC"}))
        cls.printer = cls.enterClassContext(Printer())
        cls.cupsd.add_queue("office", PPD, cls.printer.uri, "-o", "printer-is-shared=true")
        cls.uri = f"{cls.cupsd.uri}/printers/office"
        cls.cupsd.run("lpadmin", "-p", "driverless", "-E", "-v", cls.uri, "-m", "everywhere")
        for _ in range(100):  # it is set up behind our back
            if (cls.cupsd.root / "ppd/driverless.ppd").exists():
                break
            time.sleep(0.1)

    def environment(self):
        return {"PATH": os.environ["PATH"], "HOME": str(self.folder / "home"), "TZ": "UTC",
                "ZARVO_APPLICATION_SUPPORT": str(self.folder),
                "CUPS_SERVER": f"127.0.0.1:{self.cupsd.port}"}  # fmt: skip

    def zarvo(self, *arguments, status=0, **environment):
        done = subprocess.run(
            [BIN / "zarvo", *arguments], capture_output=True, text=True, timeout=120,
            env={**self.environment(), **environment},
        )  # fmt: skip
        self.assertEqual(done.returncode, status, done.stderr + done.stdout)
        self.errors = done.stderr
        return done.stdout

    def head(self):
        """The XML ticket and the PJL header of the next job."""
        job = self.printer.wait(timeout=60)
        return job[: job.index(b"%!PS-Adobe")].decode("latin-1")

    def lp(self, queue, *options):
        self.cupsd.print(queue, self.document, [word for one in options for word in ("-o", one)])
        return self.head()

    def refused(self, *options):
        """Why the job of these options was not printed."""
        job = self.cupsd.print("office", self.document, [w for one in options for w in ("-o", one)])
        self.cupsd.wait_until_done(job)
        self.cupsd.run("cupsenable", "office")
        said = re.findall(rf"\[Job {job}\] (the job was not printed: .*)", self.cupsd.log())
        self.cupsd.run("cancel", "-x", f"office-{job}")
        return said[0].replace('\\"', '"')

    def display(self):
        """A display of its own for GTK."""
        read, write = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1000x900x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)  # fmt: skip
        os.close(write)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        with os.fdopen(read) as numbers:
            return ":" + numbers.readline().strip()

    def test_every_way_gives_the_same_job(self):
        display = self.display()
        (self.folder / "home").mkdir(exist_ok=True)
        for name, entry in SHIPPED.items():
            beside = [BESIDE[name]] if name in BESIDE else []
            settings = self.folder / "settings.json"
            ticket = json.loads(self.zarvo("ticket", "show", name, "--settings"))
            if name == "confidential":
                ticket["com.zarvo.print.JobType"]["SecurePrintPassword"] = "0391"
            if name == "fax-cover":
                ticket["com.zarvo.print.FaxRecipientList"] = [{"FaxNumber": "0911-4711"}]
            settings.write_text(json.dumps(ticket))
            words = [word for one in beside for word in ("-o", one)]
            self.zarvo("print", str(self.document), "-d", "office", str(settings))
            wanted = self.head()
            self.assertGreater(len(wanted), 100)
            with self.subTest(ticket=name):
                self.assertEqual(self.lp("office", f"HouseTicket={name}", *beside), wanted, "lp")
                self.assertEqual(self.lp("driverless", f"HouseTicket={name}", *beside), wanted, "driverless")
                self.zarvo("print", str(self.document), "-d", "office", "--ticket", name, *words)
                self.assertEqual(self.head(), wanted, "zarvo print --ticket")
                ipp = [f"ATTR collection finishings-col {{ MEMBER keyword finishing-template {name} }}",
                       *("ATTR name {} {}".format(*one.split("=")) for one in beside)]  # fmt: skip
                self.cupsd.request("office", self.document, "\n".join(ipp), getpass.getuser(),
                                   self.document.name)  # fmt: skip
                self.assertEqual(self.head(), wanted, "finishing template")
                if SANITIZED:
                    continue  # it is GTK that a dialog would try
                dialog = ["/usr/bin/python3", str(SOURCE / "tests/system/gtk_dialog.py"), "office",
                          entry["Titles"]["en"], *("cups-" + one for one in beside)]  # fmt: skip
                self.cupsd.run(*dialog, DISPLAY=display, LC_ALL="C.UTF-8", NO_AT_BRIDGE="1", GTK_USE_PORTAL="0")
                self.assertEqual(self.head(), wanted, "GTK")

    def test_rank_of_what_a_job_says(self):
        sides = "com.zarvo.print.FinishingDuplex..n=3"
        for options, wanted in {
            "HouseTicket=thesis": "two-sided-long-edge",
            # What is the queue's default anyway comes with every job of a dialog.
            "HouseTicket=thesis Duplex=None ColorModel=RGB Staple=None": "two-sided-long-edge",
            "HouseTicket=thesis Duplex=DuplexTumble": "two-sided-short-edge",
            "HouseTicket=thesis sides=two-sided-short-edge": "two-sided-short-edge",
            f"HouseTicket=handout sides=two-sided-long-edge {sides}": "two-sided-short-edge",
        }.items():
            with self.subTest(options):
                self.assertIn(f">{wanted}</sides>", self.lp("office", *options.split()))
        self.assertNotIn("<value", self.lp("office", "Duplex=DuplexTumble"))

    def test_an_unknown_name_prints_nothing(self):
        self.assertEqual(self.refused("HouseTicket=thesi"),
                         'the job was not printed: there is no house ticket "thesi"; did you mean thesis? there '
                         "are: " + ", ".join(sorted(SHIPPED)))  # fmt: skip
        self.assertIn("two house tickets", self.refused("HouseTicket=thesis", "preset=handout"))
        self.assertIn("needs a PIN", self.refused("HouseTicket=confidential"))
        store = self.store / "com.zarvo.printing.housetickets.plist"
        whole = store.read_bytes()
        self.addCleanup(store.write_bytes, whole)
        for bytes, reason in ((whole[:-40], "is damaged"),
                              (whole.replace(b"<key>Ticket</key>", b"<key>Tiket</key>"), "no settings")):
            store.write_bytes(bytes)
            self.assertIn(reason, self.refused("HouseTicket=thesis"))
        self.assertNotIn("ZRV_", self.lp("office"))  # others do not mind

    def test_published_names_of_every_character(self):
        """Each is a choice that means that ticket and no other, and goes when it is taken out."""
        before = (self.cupsd.root / "ppd/office.ppd").read_text(errors="replace")
        store = self.store / "com.zarvo.printing.housetickets.plist"
        entries = plistlib.loads(store.read_bytes())
        entries |= {name: {"Ticket": {"com.zarvo.print.JobType": {"JobType": 3, "SavedJobName": f"<{name}>"}},
                           "Titles": {"de": f"T {name}"}} for name in ANY}  # fmt: skip
        store.write_bytes(plistlib.dumps(entries))
        for name in ANY:
            self.zarvo("ticket", "publish", "-q", "office", "--", name)
        ppd = (self.cupsd.root / "ppd/office.ppd").read_text(errors="replace")
        choices = re.findall(r"^\*HouseTicket ([^/\n]+)/", ppd, re.M)
        self.assertEqual(len({choice.lower() for choice in choices}), len(ANY) + len(SHIPPED) + 1)
        got = []
        for choice in choices[len(SHIPPED) + 1 :]:
            got.append(re.search('SAVE_NAME "<(.*)>"', self.filtered(f"HouseTicket={choice}"))[1])
        self.assertEqual(got, ANY)
        for name in ("handout", *ANY):
            self.zarvo("ticket", "unpublish", "-q", "office", "--", name)
        after = (self.cupsd.root / "ppd/office.ppd").read_text(errors="replace")
        self.assertEqual([line for line in before.splitlines() if line not in after.splitlines()],
                         [line for line in before.splitlines() if re.search(r"HouseTicket[ .]handout|[a-zA-Z] handout/", line)])  # fmt: skip

    def test_publishing_does_not_print_a_job_again(self):
        """The spooler starts the job that prints anew when its queue gets a PPD."""
        with socket.create_server(("127.0.0.1", 0)) as printer:
            printer.settimeout(60)
            # With "waiteof" the job is under way until the printer hangs up.
            uri = f"socket://127.0.0.1:{printer.getsockname()[1]}/?snmp=false"
            self.cupsd.add_queue("slow", PPD, uri)
            self.cupsd.print("slow", self.document, ["-t", "first"])
            with printer.accept()[0] as connection:
                publishing = subprocess.Popen(
                    [BIN / "zarvo", "ticket", "unpublish", "handout", "-q", "slow"], text=True,
                    stderr=subprocess.PIPE, env=self.environment())  # fmt: skip
                self.assertIn("slow: prints a job", publishing.stderr.readline())
                while connection.recv(1 << 16):
                    pass
                self.assertIsNone(publishing.poll())
            self.assertEqual(publishing.communicate(timeout=60)[1], "")
            self.assertEqual(publishing.returncode, 0)
            self.assertNotIn("*HouseTicket handout", (self.cupsd.root / "ppd/slow.ppd").read_text(errors="replace"))
            self.cupsd.print("slow", self.document, ["-t", "second"])
            with printer.accept()[0] as connection, connection.makefile("rb") as job:
                self.assertIn(b"second", job.read())

    def filtered(self, options):
        return run_filter(options, b"", self.document, ppd=self.cupsd.root / "ppd/office.ppd",
                          HOME=str(self.folder), ZARVO_APPLICATION_SUPPORT=str(self.folder)).stdout.decode()  # fmt: skip

    def test_the_tool_keeps_what_jobs_had(self):
        """Saved from a job, a ticket writes the same again."""
        options = ["Duplex=DuplexNoTumble", "Staple=DualLeft", "FrontCover=Front", "CoverColorFront=Green",
                   "InputSlot=Tray3", "MediaColor=Yellow", "JobType=Save", "SavedJobName=Custom.A\\ &\\ B"]  # fmt: skip
        number = self.cupsd.print("office", self.document, [w for one in options for w in ("-o", one)])
        job = self.printer.wait()
        wanted = job[: job.index(b"%!PS-Adobe")].decode("latin-1")
        own = {"XDG_DATA_HOME": str(self.folder / "own")}
        self.zarvo("ticket", "save", "--own", "from job", "--from-job", str(number), **own)
        self.assertEqual(self.errors, "")
        self.zarvo("print", str(self.document), "-d", "office", "--ticket", "from job", **own)
        self.assertEqual(self.head(), wanted)
        (self.folder / "job.prn").write_bytes(job)
        self.zarvo("ticket", "save", "--own", "from file", "--from", str(self.folder / "job.prn"), **own)
        self.assertEqual(self.errors, "")
        self.zarvo("print", str(self.document), "-d", "office", "--ticket", "from file", **own)
        self.assertEqual(self.head(), wanted)
        self.zarvo("ticket", "remove", "--own", "from file", **own)
        (self.folder / "top.json").write_text(json.dumps({"Staple": "TopLeft"}))
        save = ["ticket", "save", "--own", "top", str(self.folder / "top.json"), "--based-on", "from job"]
        self.zarvo(*save, status=2, **own)
        self.zarvo(*save, "-q", "office", **own)
        self.assertEqual(self.zarvo("ticket", "diff", "from job", "top", status=1, **own),
                         "com.zarvo.print.FinishingStaple1Value: 10 | 5\n")  # fmt: skip
        self.zarvo("ticket", "remove", "--own", "from job", status=2, **own)
        self.zarvo("ticket", "rename", "--own", "from job", "base", **own)
        self.assertEqual(json.loads(self.zarvo("ticket", "show", "top", **own))["based-on"], "base")
        names = [entry["name"] for entry in json.loads(self.zarvo("ticket", "list", "--json", **own))]
        self.assertEqual(names[:2], ["base", "top"])
        self.assertLessEqual(set(SHIPPED), set(names))


if __name__ == "__main__":
    unittest.main()
