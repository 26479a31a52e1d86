# SPDX-License-Identifier: Apache-2.0
"""A bare Debian in a folder, in which programs run as on a machine of its own."""

import pathlib
import re
import subprocess

CODENAMES = {"12": "bookworm", "13": "trixie"}
# Mounts are made for one command alone: they are gone with it, and nothing that clears the folder
# away can ever reach through them. So are its processes, whatever they have started.
PRIVATE = ["unshare", "--mount", "--propagation", "private", "--pid", "--fork", "--kill-child"]
# Its root is a mount, as on a machine: without that programs inside could have no mounts of their own.
INSIDE = """
mount --bind "$0" "$0"
mount -t proc proc "$0/proc"
mount -t devpts -o newinstance,ptmxmode=0666,mode=620,gid=5 devpts "$0/dev/pts"
mkdir -p "$0/dev/shm"; mount -t tmpfs -o mode=1777 shm "$0/dev/shm"
while [ "$1" != -- ]; do mkdir -p "$0$2"; mount --bind "$1" "$0$2"; shift 2; done
shift
exec chroot "$0" "$@"
"""
ENVIRONMENT = {"PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin",
               "LC_ALL": "C.UTF-8", "TERM": "dumb", "DEBIAN_FRONTEND": "noninteractive"}


def own_release():
    """The release of the machine: "12", "13", or what it says of itself."""
    return re.sub(r"\..*", "", pathlib.Path("/etc/debian_version").read_text().strip())


def mirror():
    """The machine's own mirror of Debian."""
    for path in sorted(pathlib.Path("/etc/apt").glob("sources.list*")) + sorted(
            pathlib.Path("/etc/apt/sources.list.d").glob("*")):
        found = path.is_file() and re.search(r"^(?:deb|URIs:)\s+(https?://\S+/debian)/?\s*",
                                             path.read_text(), re.M)
        if found:
            return found[1]
    return "http://deb.debian.org/debian"


class BareDebian:
    """In `root`, a folder of its own; `binds` are pairs of a folder outside and its place inside."""

    def __init__(self, root, release, binds=()):
        self.root, self.release, self.binds = pathlib.Path(root), release, list(binds)

    def make(self, *packages, suites=("", "-updates", "-security"), cache=None):
        """Raises CalledProcessError where there cannot be such a system."""
        codename = CODENAMES[self.release]
        command = [*PRIVATE, "debootstrap", "--variant=minbase", codename, self.root, mirror()]
        if packages:
            command.insert(-3, f"--include={','.join(packages)}")
        if cache:
            command.insert(-3, f"--cache-dir={cache}")
        subprocess.run(command, check=True, capture_output=True, text=True, timeout=3600)
        self.root.chmod(0o755)  # the spooler's users must be able to enter it
        self.write("etc/apt/sources.list", "".join(
            f"deb {mirror()}{'-security' * (suite == '-security')} {codename}{suite} main\n"
            for suite in suites))
        # No services at installation.
        self.write("usr/sbin/policy-rc.d", "#!/bin/sh\nexit 101\n", 0o755)

    def write(self, path, text, mode=0o644):
        (self.root / path).write_text(text)
        (self.root / path).chmod(mode)

    def command(self, *command, user="root", folder="/", **variables):
        """What runs a command inside, as that user and in that folder."""
        home = "/root" if user == "root" else f"/home/{user}"
        environment = [f"{name}={value}" for name, value in (ENVIRONMENT | variables).items()]
        inside = ["env", "-i", f"--chdir={folder}", f"HOME={home}", *environment, *map(str, command)]
        if user != "root":
            inside = ["setpriv", f"--reuid={user}", f"--regid={user}", "--init-groups", *inside]
        binds = [str(side) for bind in self.binds for side in bind]
        return [*PRIVATE, "sh", "-c", INSIDE, str(self.root), *binds, "--", *inside]
