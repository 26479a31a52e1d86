# SPDX-License-Identifier: Apache-2.0
"""Machines of their own on one machine: each has its network and its processes, and loses power as others do.

A program that makes some calls enter_network() first. From then on it is in a network of its own, in which
each Machine hangs on one bridge. Nothing has a name or a file that could be left behind: networks and
processes are gone when the program is, however it ends. Root needs no more than iproute2 and util-linux;
an ordinary user needs a kernel that gives user namespaces.
"""

import os
import pathlib
import subprocess
import sys
import time

INSIDE = "ZARVO_FLEET_USER"  # in the environment: the user who has entered, as a number
NETWORK = "10.77.0."
OWN_ADDRESS = NETWORK + "254"
# Whatever is started dies with the thread that has started it: the program's first.
BOUND = ["setpriv", "--pdeathsig", "KILL"]
SWITCH = """set -e
ip link set lo up
ip link add bridge0 type bridge
ip addr add {address}/24 dev bridge0
ip link set bridge0 up
"""
PLUG = """set -e
ip link add m{number} type veth peer name eth0 netns {holder}
ip link set m{number} master bridge0 up
nsenter --net=/proc/{holder}/ns/net sh -c '
  ip link set lo up
  ip addr add {address}/24 dev eth0
  ip link set eth0 up
  echo 0 >/proc/sys/net/ipv4/ip_unprivileged_port_start'
"""


def user():
    """The number of the user for whom it is done; 0 is root."""
    return int(os.environ.get(INSIDE, os.geteuid()))


def unshare_command():
    own = ["--user", "--map-root-user"] if user() else []
    return [*BOUND, "unshare", *own, "--net"]


def as_user():
    """What lets a program run as the user: some change theirs where it is root, which a user's own root may not."""
    return ["unshare", f"--map-user={user()}", f"--map-group={user()}"] if user() else []


def why_not():
    """Why there can be no such network here, or nothing."""
    try:
        probe = subprocess.run([*unshare_command(), "ip", "link", "add", "probe", "type", "bridge"],
                               capture_output=True, text=True)
    except FileNotFoundError as error:
        return f"{error.filename} is not installed"
    return "" if probe.returncode == 0 else "no network of its own: " + (probe.stderr.strip() or "denied")


def enter_network():
    """Starts the program anew inside; returns there. Exits with the reason where it cannot be done."""
    if INSIDE in os.environ:
        subprocess.run(["sh", "-c", SWITCH.format(address=OWN_ADDRESS)], check=True)
        return
    reason = why_not()
    if reason:
        sys.exit(reason)
    os.environ[INSIDE] = str(os.geteuid())
    os.environ["PATH"] += ":/usr/sbin:/sbin"  # an ordinary user's has no place for lpadmin
    command = unshare_command()
    os.execvp(command[0], [*command, sys.executable, *sys.argv])


class Machine:
    """`number`, 1 to 253, becomes the last part of its address."""

    def __init__(self, name, number):
        self.name, self.number, self.address = name, number, f"{NETWORK}{number}"
        # The network outlives a loss of power: its address is not given to another machine meanwhile.
        self._holder = subprocess.Popen([*BOUND, "unshare", "--net", "sh", "-c",
                                         "echo; exec sleep infinity >&2"],
                                        stdout=subprocess.PIPE)
        self._holder.stdout.readline()
        self._holder.stdout.close()
        subprocess.run(["sh", "-c", PLUG.format(number=number, holder=self._holder.pid, address=self.address)],
                       check=True)
        self._power = None

    def power_on(self, *command, disk=None):
        """Starts the one program from which all others on the machine come. `disk`, which takes a root, is a
        pair of megabytes and the folder where a disk of that size is laid; it is gone when power is."""
        self._plug("up")
        # The spooler changes its user where it is root.
        own = as_user()[1:]
        if disk:
            command = ["sh", "-c", 'mount -t tmpfs -o size=$0m tmpfs "$1" && mkdir -m 1777 "$1/tmp" && shift && exec "$@"',
                       *disk, *command]
            own.append("--mount")
        self._power = subprocess.Popen(
            [*self._within(), "unshare", *own, "--pid", "--fork", "--kill-child", *map(str, command)],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def power_off(self):
        """At once, in the middle of whatever it does, and without a word to whom it talks with."""
        self._plug("down")
        if self._power:
            first = self.first_process() if self.is_on else ""
            self._power.kill()
            self._power.wait()
            # The last of its programs, until when the next could not have its ports.
            wait_until(lambda: has_ended(first), f"{self.name} does not end")
        self._power = None

    @property
    def is_on(self):
        return self._power is not None and self._power.poll() is None

    def run(self, *command, **options):
        """Runs a program on the machine; gives what it wrote."""
        done = subprocess.run([*self._within(), *map(str, command)], capture_output=True, text=True,
                              timeout=120, **options)
        if done.returncode:
            raise RuntimeError(f"{self.name}: {command}: {done.stdout}{done.stderr}")
        return done.stdout

    def remove(self):
        if self._power:
            self.power_off()
        self._holder.kill()
        self._holder.wait()

    def processor_seconds(self):
        """What its programs have used since power came, those that have ended among them."""
        fields = pathlib.Path(f"/proc/{self.first_process()}/stat").read_text().rpartition(")")[2].split()
        return sum(map(int, fields[11:15])) / os.sysconf("SC_CLK_TCK")

    def file(self, path):
        """One of its files, as it sees it."""
        return pathlib.Path(f"/proc/{self.first_process()}/root{path}")

    def first_process(self):
        """From which all others on it come, by its number outside."""
        children = pathlib.Path(f"/proc/{self._power.pid}/task/{self._power.pid}/children").read_text()
        return children.split()[0] if children else ""

    def _within(self):
        return [*BOUND, "nsenter", f"--net=/proc/{self._holder.pid}/ns/net", "--"]

    def _plug(self, state):
        # The last of all goes down with a network that is gone already.
        subprocess.run(["ip", "link", "set", f"m{self.number}", state], check=state == "up",
                       stderr=subprocess.DEVNULL)


def has_ended(process):
    """Whether a process, by its number, is gone but for what its parent may ask about it."""
    try:
        return not process or pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()[0] == "Z"
    except OSError:
        return True


def wait_until(holds, what, timeout=60):
    end = time.monotonic() + timeout
    while not holds():
        if time.monotonic() > end:
            raise TimeoutError(what)
        time.sleep(0.1)
