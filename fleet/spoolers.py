# SPDX-License-Identifier: Apache-2.0
"""The reference fleet: spoolers on machines of their own, with the files and scripts that lie beside this one.

    enter_network()
    with Fleet(servers=3, queues=["office"]) as fleet:
        fleet.front.send("office", "report.pdf", ["-o", "sides=two-sided-long-edge"])
        print(fleet.received("office"))
"""

import contextlib
import json
import os
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile

from machines import Machine, user, wait_until

FLEET = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(FLEET.parent / "tests/system"))
from cupsd import BIN, PrivateCupsd  # noqa: E402

PPD = BIN.parent / "ppd/zarvo.ppd"
SERVER, PRINTER, FRONT = 1, 100, 200  # the first numbers of their machines
SMALL_DISK = 256  # megabytes
PATIENCE = 20  # seconds


class Spooler(PrivateCupsd):
    """`kind`, server or front, names the folder of its configuration; `disk`, megabytes, bounds what it spools."""

    def __init__(self, kind, machine, folder, environment=None, log_level="warn", disk=None):
        super().__init__(environment)
        self.kind, self.machine, self._log_level, self._disk = kind, machine, log_level, disk
        self.root, self.restarted = folder / machine.name, 0

    def __enter__(self):
        self.root.mkdir()
        self.port, self.socket = 631, self.root / "cups.sock"
        self._make_serverbin()
        self._configure()
        # As an administrator would have them, but for the places of files.
        text = (FLEET / self.kind / "cupsd.conf").read_text()
        text = text.replace("/run/cups/cups.sock", str(self.socket))
        text = text.replace("LogLevel warn", f"LogLevel {self._log_level}")
        if user():  # a spooler that is not root's cannot see who asks
            text = text.replace("AuthType Default", "").replace("Require user @SYSTEM", "")
        (self.root / "cupsd.conf").write_text(f"{text}ServerName {self.machine.name}\nServerAlias *\n")
        with (self.root / "cups-files.conf").open("a") as file:
            file.write((FLEET / "cups-files.conf").read_text())
        if self.kind == "front":
            shutil.copy(FLEET / "front/client.conf", self.root)
            for line in (FLEET / "front/sysctl.conf").read_text().splitlines():
                if "=" in line:
                    name, value = line.replace(" ", "").split("=")
                    self.machine.run("sh", "-c", f"echo {value} >/proc/sys/{name.replace('.', '/')}")
        subprocess.run([FLEET / "server/certificate", self.root / "ssl", self.machine.name,
                        self.machine.address], check=True)
        self.start()
        return self

    def __exit__(self, *exception):
        self.machine.remove()

    def start(self):
        self.machine.power_on("/usr/sbin/cupsd", "-f", "-c", self.root / "cupsd.conf",
                              "-s", self.root / "cups-files.conf",
                              disk=self._disk and (self._disk, self.root / "spool"))
        self._wait_until_ready()

    def _wait_until_ready(self):
        def is_open():
            if not self.machine.is_on:
                raise RuntimeError(f"cupsd did not start: {self.log()[-2000:]}")
            with socket.socket() as probe:
                probe.settimeout(1)
                return probe.connect_ex((self.machine.address, self.port)) == 0

        wait_until(is_open, f"{self.machine.name} does not answer")

    def log(self):
        return super().log() if self.error_log.exists() else ""

    def fill_disk(self):
        with contextlib.suppress(OSError), self.machine.file(self.root / "spool/filler").open("wb") as filler:
            while True:
                filler.write(bytes(1 << 16))
                filler.flush()

    def free_disk(self):
        """And what an administrator does then: prints again what could not be converted for want of room."""
        self.machine.file(self.root / "spool/filler").unlink()
        for line in self.run("lpstat", "-o").splitlines():
            job, _, size, *_ = line.split()
            if size != "0":  # nothing is in what the front was refused
                with contextlib.suppress(RuntimeError):  # one that waits for its turn
                    self.run("lp", "-i", job, "-H", "restart")
                    self.restarted += 1

    def run(self, *command, **variables):
        return super().run(*map(str, command), **{"CUPS_SERVER": str(self.socket), "LC_ALL": "C.UTF-8",
                                                  "PPDS": str(self.root / "ppd"), **variables})

    def send(self, queue, file, options=(), title="job"):
        """What a client elsewhere does; gives the job's number."""
        server = f"{self.machine.address}:{self.port}"
        answer = self.run("lp", "-d", queue, "-t", title, *options, file, CUPS_SERVER=server)
        return int(answer.split("-")[-1].split()[0])

    def sheets(self):
        """Jobs and sheets that went to the printer from here, as its page log has it."""
        log = self.root / "log/page_log"
        lines = log.read_text().splitlines() if log.exists() else []
        return len(lines), sum(int(line.split()[3]) for line in lines if line.split()[3].isdigit())

    def waiting(self):
        """Jobs that are not done, or "?" where the spooler is too busy to say."""
        try:
            return len(self.run("lpstat", "-o").splitlines())
        except RuntimeError:
            return "?"


class Fleet(contextlib.ExitStack):
    """Servers, a front, and a printer for each queue; `environment` is that of the servers' filters, and
    `small_disks` the numbers of those whose disk can be filled."""

    def __init__(self, servers=3, queues=("office",), environment=None, log_level="warn", small_disks=()):
        super().__init__()
        self._queues, self._servers = list(queues), servers
        self._environment, self._log_level, self._small_disks = environment, log_level, small_disks
        self.printers, self.servers, self.front = {}, [], None
        self._records, self._read = {queue: [] for queue in queues}, dict.fromkeys(queues, 0)

    def __enter__(self):
        super().__enter__()
        with contextlib.ExitStack() as started:  # nothing stays when something does not start
            started.push(super().__exit__)
            self._start()
            started.pop_all()
        return self

    def _start(self):
        # The spooler's filters run as another user: the folder is open to all.
        self.folder = pathlib.Path(self.enter_context(
            tempfile.TemporaryDirectory(prefix="zarvo-fleet-", ignore_cleanup_errors=True)))
        self.folder.chmod(0o755)
        for number, queue in enumerate(self._queues):
            self.printers[queue] = machine = Machine(f"printer-{queue}", PRINTER + number)
            self.callback(machine.remove)
            self.start_printer(queue)
        for number in range(SERVER, SERVER + self._servers):
            self.servers.append(self._spooler("server", f"server{number}", number, self._environment))
        self.front = self._spooler("front", "front", FRONT)
        self.configure()

    def _spooler(self, kind, name, number, environment=None):
        return self.enter_context(
            Spooler(kind, Machine(name, number), self.folder, environment, self._log_level,
                    SMALL_DISK if number in self._small_disks else None))

    def configure(self):
        """Makes the queues, or brings them up to date; gives what was changed."""
        told = []
        for server in self.servers:
            told += server.run(FLEET / "server/queues", PPD, *(
                f"{queue}=socket://{machine.address}/?snmp=false&waiteof=false"
                for queue, machine in self.printers.items())).splitlines()
        addresses = [server.machine.address for server in self.servers]
        for queue in self._queues:
            told += self.front.run(FLEET / "front/queues", PPD, queue, *addresses).splitlines()
        return told

    def start_printer(self, queue):
        self.kept.mkdir(exist_ok=True)
        self.printers[queue].power_on(sys.executable, FLEET / "printer.py", self._journal(queue), self.kept)

    @property
    def kept(self):
        """The folder with the first job of each digest."""
        return self.folder / "kept"

    def _journal(self, queue):
        path = self.folder / f"{queue}.jsonl"
        path.touch()
        return path

    def received(self, *queues):
        """What has reached these printers, or all: records of printer.py."""
        for queue in self._queues:
            with self._journal(queue).open() as journal:
                journal.seek(self._read[queue])
                while (line := journal.readline()).endswith("\n"):
                    self._records[queue].append(json.loads(line))
                    self._read[queue] = journal.tell()
        return [record for queue in queues or self._queues for record in self._records[queue]]

    def look_after(self):
        """What timers do every minute, on the front with less patience, as no job here takes long to send. Gives
        what they have told."""
        told = self.front.run(FLEET / "front/enable-members", PATIENCE).splitlines()
        for server in self.servers:
            if server.machine.is_on:
                told += server.machine.run("env", f"CUPS_SERVER={server.socket}", FLEET / "server/reclaim",
                                           server.machine.address).splitlines()
        return told
