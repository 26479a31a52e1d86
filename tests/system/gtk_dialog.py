# SPDX-License-Identifier: Apache-2.0
"""Prints a page through GTK's print dialog, as a person would: gtk_dialog.py QUEUE TITLE...

Selects the queue, then in the lists of options each TITLE, then presses the button. An argument
NAME=VALUE is a setting that the program remembers from the last time. Runs in the system's Python,
under any display.
"""

import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk  # noqa: E402

queue, wanted = sys.argv[1], [text for text in sys.argv[2:] if "=" not in text]
EVERY, LONGEST = 100, 20_000  # milliseconds


def widgets(widget):
    yield widget
    if isinstance(widget, Gtk.Container):
        inner = []
        widget.forall(inner.append)
        for child in inner:
            yield from widgets(child)


def rows(model):
    return [(row, list(row)) for row in model] if model else []


def select_queue(dialog):
    for view in widgets(dialog):
        if isinstance(view, Gtk.TreeView):
            for row, cells in rows(view.get_model()):
                if queue in cells:
                    view.get_selection().select_path(row.path)
                    return True
    return False


def choose(dialog, title):
    for box in widgets(dialog):
        if isinstance(box, Gtk.ComboBox):
            for row, cells in rows(box.get_model()):
                if title in cells:
                    box.set_active_iter(row.iter)
                    return True
    return False


def steps():
    """One thing at a time; each is tried until the dialog has got so far."""
    yield select_queue
    for title in wanted:
        yield lambda dialog, title=title: choose(dialog, title)
    yield lambda dialog: True  # the choice is taken over when nothing else is to be done
    yield lambda dialog: dialog.response(Gtk.ResponseType.OK) or True


def drive():
    global step
    dialogs = [w for w in Gtk.Window.list_toplevels() if w.__gtype__.name == "GtkPrintUnixDialog"]
    if dialogs and step(dialogs[0]):
        step = next(todo, None)
    return step is not None


def printed():
    if operation.is_finished():
        Gtk.main_quit()
    return True


todo = steps()
step = next(todo)
settings = Gtk.PrintSettings()
for text in sys.argv[2:]:
    if "=" in text:
        settings.set(*text.split("=", 1))
operation = Gtk.PrintOperation()
operation.set_print_settings(settings)
operation.set_n_pages(4)
operation.set_job_name("four.ps")
operation.connect("draw-page", lambda _, context, page: context.get_cairo_context().fill())
GLib.timeout_add(EVERY, drive)
GLib.timeout_add(LONGEST, lambda: sys.exit("the dialog does not get on"))
if operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, None) == Gtk.PrintOperationResult.CANCEL:
    sys.exit("canceled")
GLib.timeout_add(EVERY, printed)
Gtk.main()
