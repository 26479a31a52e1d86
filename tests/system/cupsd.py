# SPDX-License-Identifier: Apache-2.0
"""A private spooler for tests: its own folders and loopback port, gone when the test ends.

    with PrivateCupsd() as cupsd, Printer() as printer:
        cupsd.add_queue("zarvo", ppd_file, printer.uri)
        cupsd.print("zarvo", "job.ps", ["-o", "sides=two-sided-long-edge"])
        bytes_received = printer.wait()
"""

import os
import pathlib
import shutil
import socket
import subprocess
import tempfile
import threading
import time

BIN = pathlib.Path(os.environ["ZARVO_BIN"])
SYSTEM_SERVERBIN = pathlib.Path(
    subprocess.run(["cups-config", "--serverbin"], capture_output=True, text=True, check=True)
    .stdout.strip()
)
CONVERTER_GROUPS = ("backend", "filter")
# This machine alone, which is asked for no password.
CONFIGURATION = """Listen 127.0.0.1:{port}
LogLevel debug
DefaultAuthType None
<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Policy default>
{privacy}  <Limit All>
    Order allow,deny
    Allow from 127.0.0.1
  </Limit>
</Policy>
"""


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]

REQUEST = """{{
OPERATION Print-Job
VERSION 2.0
GROUP operation-attributes-tag
ATTR charset attributes-charset utf-8
ATTR naturalLanguage attributes-natural-language en
ATTR uri printer-uri $uri
ATTR name requesting-user-name {user}
ATTR name job-name "{title}"
{operation}
GROUP job-attributes-tag
{job}
FILE $filename
STATUS successful-ok
}}
"""


class Printer:
    """Plays the printer: takes raw jobs on a loopback port, one connection a job."""

    def __init__(self):
        self._listener = socket.create_server(("127.0.0.1", 0), backlog=64)
        port = self._listener.getsockname()[1]
        # No questions over SNMP, no wait for a back channel: this printer only listens.
        self.uri = f"socket://127.0.0.1:{port}/?snmp=false&waiteof=false"
        self._jobs = []
        self._arrived = threading.Condition()
        self._thread = threading.Thread(target=self._serve, daemon=True)
        self._thread.start()

    def _serve(self):
        while True:
            try:
                connection, _ = self._listener.accept()
            except OSError:
                return
            with connection:
                data = bytearray()
                while piece := connection.recv(1 << 16):
                    data += piece
            if data:  # a backend that only looks whether the printer is there sends nothing
                with self._arrived:
                    self._jobs.append(bytes(data))
                    self._arrived.notify_all()

    def wait(self, count=1, timeout=180):
        """The next `count` jobs, as a list; the only one as its bytes."""
        with self._arrived:
            if not self._arrived.wait_for(lambda: len(self._jobs) >= count, timeout):
                raise TimeoutError(f"{len(self._jobs)} of {count} jobs reached the printer")
            jobs, self._jobs = self._jobs[:count], self._jobs[count:]
        return jobs[0] if count == 1 else jobs

    def __enter__(self):
        return self

    def __exit__(self, *exception):
        # Closed alone, the socket goes on listening for the thread that waits in accept(); stopped and
        # continued, that thread would wait on whatever has the descriptor's number by then, which is
        # the next test's printer, and take a job from it.
        self._listener.shutdown(socket.SHUT_RDWR)
        self._thread.join(10)
        self._listener.close()


class PrivateCupsd:
    def __init__(self, environment=None, max_jobs=500, shows_jobs=False):
        """`shows_jobs`: whoever asks may see all of every job, which otherwise root alone may."""
        self._environment = environment or {}
        self._shows_jobs = shows_jobs
        self._max_jobs = max_jobs

    def __enter__(self):
        # cupsd, started as root, runs filters as another user and refuses programs and folders
        # that are not root's, so nothing of it can live below a home or a build folder.
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="zarvo-cupsd-"))
        self.root.chmod(0o755)
        self.port = free_port()
        self.uri = f"ipp://127.0.0.1:{self.port}"
        self._make_serverbin()
        self._configure()
        self.process = subprocess.Popen(
            [
                "/usr/sbin/cupsd",
                "-f",
                "-c",
                str(self.root / "cupsd.conf"),
                "-s",
                str(self.root / "cups-files.conf"),
            ],
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        self._wait_until_ready()
        return self

    def __exit__(self, *exception):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.root, ignore_errors=True)

    def _make_serverbin(self):
        self.serverbin = self.root / "lib"
        for group in CONVERTER_GROUPS:
            folder = self.serverbin / group
            folder.mkdir(parents=True)
            for program in (SYSTEM_SERVERBIN / group).iterdir():
                (folder / program.name).symlink_to(program)
        for name in ("daemon", "notifier", "cgi-bin", "monitor", "driver"):
            if (SYSTEM_SERVERBIN / name).exists():
                (self.serverbin / name).symlink_to(SYSTEM_SERVERBIN / name)
        # Copies: the build folder may belong to somebody else than root.
        for name in ("zarvofilter", "zarvodraw"):
            target = self.serverbin / "filter" / name
            target.unlink(missing_ok=True)
            if (BIN / name).exists():
                shutil.copy(BIN / name, target)
                target.chmod(0o555)

    def _configure(self):
        folders = {name: self.root / name for name in ("spool", "cache", "state", "ppd", "ssl", "log")}
        for folder in folders.values():
            folder.mkdir()
        temporary = folders["spool"] / "tmp"
        temporary.mkdir()
        temporary.chmod(0o1777)
        for name in ("spool", "cache", "state"):
            folders[name].chmod(0o755)
        self.error_log = folders["log"] / "error_log"
        self.temporary = temporary
        user = "lp" if os.geteuid() == 0 else os.environ.get("USER", "nobody")
        variables = "\n".join(f"SetEnv {name} {value}" for name, value in self._environment.items())
        (self.root / "cups-files.conf").write_text(
            f"""ServerRoot {self.root}
ServerBin {self.serverbin}
DataDir /usr/share/cups
DocumentRoot /usr/share/cups/doc-root
RequestRoot {folders['spool']}
CacheDir {folders['cache']}
StateDir {folders['state']}
TempDir {temporary}
ServerKeychain {folders['ssl']}
AccessLog {folders['log']}/access_log
ErrorLog {self.error_log}
PageLog {folders['log']}/page_log
User {user}
Group lp
SystemGroup root
FileDevice Yes
{variables}
"""
        )
        (self.root / "cupsd.conf").write_text(
            CONFIGURATION.format(port=self.port, privacy="  JobPrivateValues none\n" * self._shows_jobs)
            + f"""MaxLogSize 0
Browsing No
WebInterface No
MaxJobs {self._max_jobs}
PreserveJobHistory Yes
PreserveJobFiles No
PageLogFormat "%j %{{job-media-sheets-completed}}"
"""
        )

    def _wait_until_ready(self):
        for _ in range(600):
            with socket.socket() as probe:
                if probe.connect_ex(("127.0.0.1", self.port)) == 0:
                    return
            if self.process.poll() is not None:
                break
            time.sleep(0.1)
        log = self.error_log.read_text() if self.error_log.exists() else "(no log)"
        raise RuntimeError(f"cupsd did not start: {log[-2000:]}")

    def run(self, *command, **variables):
        """Runs a spooler client against this spooler and gives its standard output."""
        environment = {**os.environ, "CUPS_SERVER": f"127.0.0.1:{self.port}", "HOME": str(self.root),
                       **variables}  # fmt: skip
        done = subprocess.run(command, env=environment, capture_output=True, text=True, timeout=180)
        if done.returncode != 0:
            raise RuntimeError(f"{command}: {done.stderr} {self.log()[-3000:]}")
        return done.stdout

    def add_queue(self, name, ppd, uri, *options):
        self.run("lpadmin", "-p", name, "-E", "-v", uri, "-P", str(ppd), *options)

    def print(self, queue, file, options=()):
        """Sends a file; gives the job's number."""
        answer = self.run("lp", "-d", queue, *options, str(file))
        return int(answer.split("-")[-1].split()[0])

    def request(self, queue, file, attributes, user, title, operation=""):
        """Sends a file as IPP clients do; `attributes` and `operation` are lines of a request of ipptool's."""
        request = self.root / "request.test"
        request.write_text(REQUEST.format(user=user, title=title, operation=operation, job=attributes))
        self.run("ipptool", "-t", "-f", str(file),
                 f"ipp://127.0.0.1:{self.port}/printers/{queue}", str(request))  # fmt: skip

    def page_log(self):
        """The job and the sheets of each line."""
        return {tuple(map(int, line.strip('"').split()))
                for line in (self.root / "log/page_log").read_text().splitlines()}

    def wait_until_done(self, job, timeout=60):
        """Until the job waits for nothing any more: it is printed, or was stopped."""
        for _ in range(timeout * 10):
            if f"-{job} " in self.run("lpstat", "-W", "completed", "-o"):
                return
            if f"[Job {job}] Job stopped" in self.log():
                return
            time.sleep(0.1)
        raise TimeoutError(f"job {job} is still under way")

    def wait_for_log(self, text, timeout=120):
        for _ in range(timeout * 10):
            if text in self.log():
                return
            time.sleep(0.1)
        raise TimeoutError(f"not in the spooler's log: {text}")

    def log(self):
        return self.error_log.read_text(errors="replace")
