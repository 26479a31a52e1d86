# SPDX-License-Identifier: Apache-2.0
"""Pictures of GTK's print dialog, one for each of its pages: gtk.py 3|4 QUEUE PREFIX"""

import os
import subprocess
import sys

import gi

VERSION, QUEUE, PREFIX = sys.argv[1:]
gi.require_version("Gtk", f"{VERSION}.0")
from gi.repository import GLib, Gtk  # noqa: E402

if VERSION == "4":
    Gtk.init()
SETTLED = 700  # milliseconds until the toolkit has drawn what was asked for
WIDTH, HEIGHT, HEIGHT_OF_ALL_OPTIONS = 780, 640, 3800


def end_of_all(*fault):
    """A fault in what the toolkit calls back would only be written, and the dialog stay open."""
    sys.__excepthook__(*fault)
    os._exit(1)


sys.excepthook = end_of_all


def children(widget):
    found = []
    if VERSION == "3":
        if isinstance(widget, Gtk.Container):
            widget.forall(found.append)
        return found
    child = widget.get_first_child()
    while child:
        found.append(child)
        child = child.get_next_sibling()
    return found


def find(widget, kind):
    """The widgets of a kind below one, in their order."""
    if isinstance(widget, kind):
        yield widget
    for child in children(widget):
        yield from find(child, kind)


def dialog():
    return next((window for window in Gtk.Window.list_toplevels()
                 if "PrintUnixDialog" in window.__gtype__.name), None)


def wait_for_queue(tries=60):
    """Its options are in the last page, which is hidden until the spooler has told them."""
    window = dialog()
    book = next(find(window, Gtk.Notebook)) if window else None
    if book and book.get_nth_page(book.get_n_pages() - 1).get_visible():
        GLib.timeout_add(SETTLED, show, window, 0)
    elif tries == 0:
        raise LookupError(f"the dialog has no queue {QUEUE}")
    else:
        GLib.timeout_add(500, wait_for_queue, tries - 1)


def show(window, number):
    book = next(find(window, Gtk.Notebook))
    if number == book.get_n_pages():
        os._exit(0)
    page = book.get_nth_page(number)
    if not page.get_visible():
        show(window, number + 1)
        return
    book.set_current_page(number)
    height = HEIGHT_OF_ALL_OPTIONS if number == book.get_n_pages() - 1 else HEIGHT
    if VERSION == "3":
        window.resize(WIDTH, height)
        window.move(20, 30)
    else:
        window.set_default_size(WIDTH, height)
    GLib.timeout_add(SETTLED, picture, window, number)


def picture(window, number):
    subprocess.run(["import", "-window", "root", "-trim", f"{PREFIX}-{number + 1}.png"], check=True)
    show(window, number + 1)


GLib.timeout_add(500, wait_for_queue)
operation = Gtk.PrintOperation()
settings = Gtk.PrintSettings()
settings.set_printer(QUEUE)
operation.set_print_settings(settings)
operation.set_n_pages(3)
operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, None)
