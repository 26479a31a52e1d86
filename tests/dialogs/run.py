#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Takes pictures of the print dialogs of GTK 3 and 4 and Qt 5 and 6 with our queue, in every language
that the PPD has: run.py BUILD_FOLDER [TOOLKIT-LANGUAGE...]. They are for people to look at, and go into
test-output/dialogs of the build folder."""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
BUILD = pathlib.Path(sys.argv[1]).resolve()
os.environ["ZARVO_BIN"] = str(BUILD / "bin")
sys.path.insert(0, str(HERE.parent / "system"))
from cupsd import PrivateCupsd, Printer  # noqa: E402

QUEUE = "office"
# How a toolkit's pictures are taken, and what tells that it is there.
TOOLKITS = {
    "gtk3": (["gtk.py", "3"], "import gi; gi.require_version('Gtk', '3.0'); from gi.repository import Gtk"),
    "gtk4": (["gtk.py", "4"], "import gi; gi.require_version('Gtk', '4.0'); from gi.repository import Gtk"),
    "qt5": (["qt.py", "5"], "from PyQt5 import QtPrintSupport"),
    "qt6": (["qt.py", "6"], "from PyQt6 import QtPrintSupport"),
}
LANGUAGES = {"en": "en_US", "de": "de_DE", "fr": "fr_FR", "ja": "ja_JP"}


def locales(folder):
    """Locales of our own: the machine may have none."""
    for language in LANGUAGES.values():
        subprocess.run(["localedef", "-i", language, "-f", "UTF-8", folder / f"{language}.UTF-8"], check=True)


def display(scratch):
    """A screen that is high enough for the longest list of options."""
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "900x3900x24"],
                              pass_fds=[write], stderr=open(scratch / "Xvfb.log", "w"))
    os.close(write)
    with os.fdopen(read) as answer:
        number = answer.readline().strip()
    return server, f":{number}"


def picture(name, environment, output):
    toolkit, language = name.split("-")
    locale = f"{LANGUAGES[language]}.UTF-8"
    script, *arguments = TOOLKITS[toolkit][0]
    for old in output.glob(f"{name}-*.png"):
        old.unlink()
    begun = time.monotonic()
    done = subprocess.run(["/usr/bin/python3", HERE / script, *arguments, QUEUE, output / name],
                          env=environment | {"LANG": locale, "LC_ALL": locale, "LANGUAGE": language},
                          capture_output=True, text=True, timeout=120)
    taken = len(list(output.glob(f"{name}-*.png")))
    print(f"{name}: {taken} pictures, {time.monotonic() - begun:.0f} s", flush=True)
    if done.returncode != 0 or taken < 2:
        raise SystemExit(f"{name}: status {done.returncode}\n{done.stdout[-2000:]}{done.stderr[-2000:]}")


def main():
    output = BUILD / "test-output/dialogs"
    output.mkdir(parents=True, exist_ok=True)
    missing = [name for name, (_, probe) in TOOLKITS.items()
               if subprocess.run(["/usr/bin/python3", "-c", probe], capture_output=True).returncode != 0]
    if missing:
        raise SystemExit(f"not installed: {' '.join(missing)}; Tools/setup-debian dialogs brings them")
    names = sys.argv[2:] or [f"{toolkit}-{language}" for toolkit in TOOLKITS for language in LANGUAGES]
    with tempfile.TemporaryDirectory(prefix="zarvo-") as folder, PrivateCupsd() as cupsd, Printer() as printer:
        scratch = pathlib.Path(folder)
        locales(scratch)
        cupsd.add_queue(QUEUE, BUILD / "ppd/zarvo.ppd", printer.uri)
        cupsd.run("lpadmin", "-d", QUEUE)
        server, number = display(scratch)
        environment = {
            "PATH": os.environ["PATH"], "HOME": folder, "DISPLAY": number, "LOCPATH": folder,
            "CUPS_SERVER": f"127.0.0.1:{cupsd.port}", "GDK_BACKEND": "x11", "NO_AT_BRIDGE": "1",
            "GTK_A11Y": "none", "QT_QPA_PLATFORM": "xcb",
        }  # fmt: skip
        try:
            for name in names:
                picture(name, environment, output)
        finally:
            server.terminate()
            server.wait()
    print(f"look at {output}")


if __name__ == "__main__":
    main()
