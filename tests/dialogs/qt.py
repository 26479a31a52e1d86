# SPDX-License-Identifier: Apache-2.0
"""Pictures of Qt's print dialog and its properties: qt.py 5|6 QUEUE PREFIX"""

import importlib
import os
import subprocess
import sys

VERSION, QUEUE, PREFIX = sys.argv[1:]
QtCore, QtWidgets, QtPrintSupport = (
    importlib.import_module(f"PyQt{VERSION}.{name}") for name in ("QtCore", "QtWidgets", "QtPrintSupport"))
SETTLED = 800  # milliseconds until the toolkit has drawn what was asked for

application = QtWidgets.QApplication(sys.argv)
translator = QtCore.QTranslator()
folder = (QtCore.QLibraryInfo.path(QtCore.QLibraryInfo.LibraryPath.TranslationsPath) if VERSION == "6"
          else QtCore.QLibraryInfo.location(QtCore.QLibraryInfo.TranslationsPath))
if translator.load(QtCore.QLocale(), "qtbase", "_", folder):
    application.installTranslator(translator)
printer = QtPrintSupport.QPrinter(QtPrintSupport.QPrinterInfo.printerInfo(QUEUE))
dialog = QtPrintSupport.QPrintDialog(printer)


def picture(name):
    subprocess.run(["import", "-window", "root", "-trim", f"{PREFIX}-{name}.png"], check=True)


def properties():
    picture("1")
    QtCore.QTimer.singleShot(SETTLED, advanced)
    # The button beside the printer's name; it blocks until what it shows is closed.
    dialog.findChild(QtWidgets.QPushButton, "properties").click()


def advanced():
    [window] = [window for window in application.topLevelWidgets()
                if window is not dialog and window.isVisible()
                and window.findChild(QtWidgets.QWidget, "cupsPropertiesPage")]
    tabs = window.findChild(QtWidgets.QTabWidget)
    tabs.setCurrentIndex(tabs.count() - 1)
    window.setGeometry(10, 10, 780, 3800)
    dialog.move(1000, 0)
    QtCore.QTimer.singleShot(SETTLED, lambda: (picture("2"), os._exit(0)))


dialog.show()
for button in dialog.findChildren(QtWidgets.QPushButton):
    if ">>" in button.text():  # what is hidden at first
        button.click()
QtCore.QTimer.singleShot(3 * SETTLED, properties)
application.exec() if VERSION == "6" else application.exec_()
