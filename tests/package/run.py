#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Examines the Debian packages, installs them on a bare Debian and prints a job as a new user would.

    run.py FOLDER_OF_PACKAGES

The bare system, of the release that this machine has, is made by debootstrap in a temporary folder,
which takes root and a package mirror. Where that cannot be had the packages are still examined; the
rest is told as skipped, or as failed when ZARVO_REQUIRE_CHROOT is set.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

PACKAGES = pathlib.Path(sys.argv[1]).resolve()
SOURCE = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(SOURCE / "tests/system"), str(SOURCE / "Tools")]
os.environ.setdefault("ZARVO_BIN", str(SOURCE / "build/bin"))
from bare_debian import BareDebian, own_release  # noqa: E402
from cupsd import CONFIGURATION, PrivateCupsd, Printer, free_port  # noqa: E402

STEPS = []
# Filters of the spooler's own user must find nothing writable by others.
MODES = {
    "zarvo-filter": {
        "./usr/lib/cups/filter/zarvofilter": "-r-xr-xr-x",
        "./usr/lib/zarvo/zarvodraw": "-rwxr-xr-x",
        "./usr/share/ppd/zarvo/zarvo.ppd": "-rw-r--r--",
        "./etc/apparmor.d/zarvofilter": "-rw-r--r--",
        "./var/lib/Zarvo/": "drwxr-xr-x",
    },
    "zarvo-tools": {
        "./usr/bin/zarvo": "-rwxr-xr-x",
        "./usr/share/man/man1/zarvo.1.gz": "-rw-r--r--",
        "./usr/share/bash-completion/completions/zarvo": "-rw-r--r--",
    },
}
DESKTOP_MODES = {
    "zarvo-desktop": {
        "./usr/bin/zarvo-desk": "-rwxr-xr-x",
        "./usr/lib/zarvo/zarvosheets": "-rwxr-xr-x",
        "./usr/share/applications/zarvo-desk.desktop": "-rw-r--r--",
        "./usr/share/metainfo/zarvo-desk.metainfo.xml": "-rw-r--r--",
        "./usr/share/man/man1/zarvo-desk.1.gz": "-rw-r--r--",
    },
}
JOB = """%!PS-Adobe-3.0
<< /PageSize [595 842] >> setpagedevice
1 1 8 { /Helvetica 99 selectfont 100 400 moveto 10 string cvs show showpage } for
"""


def check(condition, text):
    if not condition:
        raise AssertionError(text)


def step(name, work):
    """Does one step and notes how long it took."""
    begun = time.monotonic()
    result = work()
    STEPS.append(f"{time.monotonic() - begun:7.1f} s  {name}")
    print(STEPS[-1], flush=True)
    return result


def run(*command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, **options)
    check(done.returncode == 0, f"{command}\n{done.stdout[-3000:]}{done.stderr[-3000:]}")
    return done.stdout


def examine(packages, modes):
    faults = subprocess.run(["lintian", "--allow-root", "--fail-on", "error", *packages.values()],
                            capture_output=True, text=True)
    check(faults.returncode == 0, faults.stdout + faults.stderr)
    for name, package in packages.items():
        listed = {}
        for line in run("dpkg-deb", "-c", package).splitlines():
            mode, owner, *_, path = line.split()
            check(owner == "root/root", line)
            listed[path] = mode
        for path, mode in modes[name].items():
            check(listed.get(path) == mode, f"{path}: {listed.get(path)}, not {mode}")


def check_links(package):
    """Whoever reads the installed documents gets to the others and sees their pictures."""
    with tempfile.TemporaryDirectory() as folder:
        run("dpkg-deb", "-x", package, folder)
        documents = sorted(pathlib.Path(folder, "usr/share/doc").rglob("*.md"))
        links = [(document, link) for document in documents for link in re.findall(
            r"""\]\(([^)#\s]+)|(?:src|href)="([^"#]+)""", document.read_text())]
        check(len(links) > 20, f"links: {len(links)}")
        broken = [f"{document.name}: {link}" for document, pair in links for link in pair
                  if link and "://" not in link and not (document.parent / link).is_file()]
        check(not broken, f"broken links: {broken}")


class Bare(BareDebian):
    """A bare Debian in a folder, of this machine's release."""

    def run(self, *command, **variables):
        return run(*self.command(*command, **variables), timeout=900)

    def files(self):
        """Every path with the product's name in it."""
        found = self.run("find", "/", "-xdev", "-iname", "*zarvo*", "-not", "-path", "/proc/*")
        return set(found.split())


def install(system, packages):
    for package in packages.values():
        shutil.copy(package, system.root / "root")
    system.run("apt-get", "update", "-qq")
    system.run("apt-get", "install", "-y", "-qq", "--no-install-recommends",
               *(f"/root/{package.name}" for package in packages.values()))
    for package in packages.values():
        (system.root / "root" / package.name).unlink()


def check_profile(system):
    """The AppArmor profiles as they are installed: ours, and the spooler's that leads into it."""
    system.run("apt-get", "install", "-y", "-qq", "--no-install-recommends", "apparmor")
    for name in ("zarvofilter", "usr.sbin.cupsd"):
        system.run("apparmor_parser", "-Q", "-K", f"/etc/apparmor.d/{name}")
    whole = system.run("apparmor_parser", "-p", "/etc/apparmor.d/usr.sbin.cupsd")
    rules = re.findall(r"^ *(.*zarvofilter.*),$", whole, re.M)
    check("/usr/lib/cups/filter/zarvofilter pux -> zarvofilter" in rules, f"rules: {rules}")
    states = system.run("apparmor_parser", "-N", "/etc/apparmor.d/zarvofilter").split()
    check(states == ["zarvofilter", "zarvofilter//convert", "zarvofilter//draw"], f"{states}")
    ours = (system.root / "etc/apparmor.d/zarvofilter").read_text()
    check("complain" not in ours, "the profile is not in enforce mode")


class Cupsd(PrivateCupsd):
    """The spooler of the bare system."""

    def __init__(self, system):
        self.system = system

    def __enter__(self):
        self.port = free_port()
        self.error_log = self.system.root / "var/log/cups/error_log"
        (self.system.root / "etc/cups/cupsd.conf").write_text(CONFIGURATION.format(port=self.port))
        self.process = subprocess.Popen(self.system.command("/usr/sbin/cupsd", "-f"))
        self._wait_until_ready()
        return self

    def __exit__(self, *exception):
        self.process.kill()  # takes the spooler along; what runs it inside ignores a gentler signal
        self.process.wait()

    def run(self, *command):
        return self.system.run(*command, CUPS_SERVER=f"127.0.0.1:{self.port}")


def use(system):
    """What a new user does, from a queue to a printed job."""
    run("gs", "-q", "-o", system.root / "root/report.pdf", "-sDEVICE=pdfwrite", "-", input=JOB)
    settings = '{"BookletLayout": true, "JTMLOptions": {"JTMLOptionAll": true}}'
    (system.root / "root/booklet.json").write_text(settings)
    with Cupsd(system) as cupsd, Printer() as printer:
        models = cupsd.run("lpinfo", "-m")
        model = next(line.split()[0] for line in models.splitlines() if "zarvo" in line.lower())
        step("lpadmin -m", lambda: cupsd.run(
            "lpadmin", "-p", "office", "-E", "-v", printer.uri, "-m", model))
        told = step("zarvo doctor", lambda: cupsd.run("zarvo", "doctor"))
        check("queue: office" in told and "WRONG" not in told, told)
        plan = step("zarvo preview", lambda: cupsd.run(
            "zarvo", "preview", "/root/report.pdf", "-q", "office", "-s", "/root/booklet.json",
            "--output", "/root/sheets.pdf"))
        check("4 sheet sides on 2 sheets, booklet" in plan, plan)

        def print_job():
            cupsd.run("zarvo", "print", "/root/report.pdf", "/root/booklet.json", "-d", "office")
            return printer.wait()

        received = step("zarvo print, until the printer has it", print_job)
        (system.root / "root/received.prn").write_bytes(received)
        told = cupsd.run("zarvo", "explain", "/root/received.prn")
        check("sheet sides: 4" in told, told)
        cupsd.run("zarvo", "watermark", "add-text", "OURS")
    mode = (system.root / "var/lib/Zarvo/com.zarvo.printing.watermarks.plist").stat().st_mode
    check(mode & 0o777 == 0o644, oct(mode))


def start_desktop_program(system, desktop):
    """With all that its package asks for, and no more, it shows a document."""
    install(system, desktop)
    system.run("zarvo-desk", "--picture", "/root/window.png", "/root/report.pdf", QT_QPA_PLATFORM="offscreen")
    picture = (system.root / "root/window.png").read_bytes()
    check(picture.startswith(b"\x89PNG") and len(picture) > 10000, f"the window: {len(picture)} bytes")
    system.run("apt-get", "purge", "-y", "-qq", "zarvo-desktop")
    shutil.rmtree(system.root / "root/.config")  # which window was where


def remove(system):
    store = "/var/lib/Zarvo"
    users_own = re.compile(rf"{store}(/com\.zarvo\.printing\.watermarks\.plist)?$")
    system.run("apt-get", "purge", "-y", "-qq", "zarvo-filter", "zarvo-tools")
    left = {path for path in system.files() if not users_own.match(path)}
    check(not left, f"left behind: {left}")
    local = system.root / "etc/apparmor.d/local/usr.sbin.cupsd"
    check("zarvo" not in local.read_text(), "a rule is left in the spooler's profile")
    kept = (system.root / store[1:] / "com.zarvo.printing.watermarks.plist").read_text()
    check("OURS" in kept, "the user's watermark is gone")


def use_on_bare_system(packages, desktop):
    """Gives the reason when there cannot be such a system."""
    if os.geteuid() != 0:
        return "a bare system can be made by root only"
    if shutil.which("debootstrap") is None:
        return "debootstrap is not installed"
    with tempfile.TemporaryDirectory(prefix="zarvo-debian-") as scratch:
        system = Bare(scratch, own_release())
        try:
            step("debootstrap", system.make)
        except subprocess.SubprocessError as error:
            return f"debootstrap failed: {error}"
        step("apt install of both packages", lambda: install(system, packages))
        step("AppArmor profiles", lambda: check_profile(system))
        use(system)
        step("zarvo-desk, with its toolkit", lambda: start_desktop_program(system, desktop))
        step("apt purge", lambda: remove(system))
    return ""


def main():
    packages = {name: next(PACKAGES.glob(f"{name}_*.deb")) for name in MODES}
    step("lintian, owners and modes", lambda: examine(packages, MODES))
    desktop = {name: next(PACKAGES.glob(f"{name}_*.deb")) for name in DESKTOP_MODES}
    step("the desktop program: the same", lambda: examine(desktop, DESKTOP_MODES))
    step("links of the documents", lambda: check_links(packages["zarvo-filter"]))
    reason = use_on_bare_system(packages, desktop)
    (PACKAGES / "steps.txt").write_text("\n".join(STEPS) + "\n")
    if reason:
        print(f"SKIPPED: installing on a bare Debian: {reason}")
    return int(bool(reason and os.environ.get("ZARVO_REQUIRE_CHROOT")))


if __name__ == "__main__":
    sys.exit(main())
