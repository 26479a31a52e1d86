// SPDX-License-Identifier: Apache-2.0
// zarvo-desk: see, change and print a document.
#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QIcon>
#include <QLocale>
#include <QTimer>
#include <cstdio>

#include "Desk/view/MainWindow.h"
#include "Desk/view/Translations.h"

int main(int argc, char** argv) {
  using zarvo::ScratchFolder;
  // Before anything else starts threads: it forks what clears the folder away.
  const std::unique_ptr<ScratchFolder> scratch = ScratchFolder::Create();
  if (!scratch) {
    std::fprintf(stderr,
                 "zarvo-desk: no folder for temporary files can be made in %s. "
                 "Let TMPDIR name another one\n",
                 zarvo::TemporaryFolder().c_str());
    return 2;
  }
  // What works for the window makes its own folders in that one.
  qputenv("TMPDIR",
          QByteArray::fromStdString(scratch->File("x").substr(0, scratch->File("x").size() - 2)));
  QApplication app(argc, argv);
  QApplication::setApplicationName("zarvo-desk");
  QApplication::setOrganizationName("zarvo");
  QApplication::setApplicationDisplayName("Zarvo Desk");
  QApplication::setApplicationVersion(ZARVO_VERSION);
  QApplication::setDesktopFileName("zarvo-desk");
  QApplication::setWindowIcon(QIcon::fromTheme("zarvo-desk", QIcon(":/zarvo-desk.svg")));
  const zarvo::desk::Translations translations(QLocale(), &app);

  const auto tr = [](const char* text) { return QCoreApplication::translate("main", text); };
  QCommandLineParser parser;
  parser.setApplicationDescription(
      tr(QT_TRANSLATE_NOOP("main", "Shows a document as it will be delivered, and prints it.")));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("file", tr(QT_TRANSLATE_NOOP("main", "document to open")), "[file]");
  const QCommandLineOption queue({"d", "queue"}, tr(QT_TRANSLATE_NOOP("main", "printer")), "queue");
  const QCommandLineOption ppd(
      {"p", "ppd"}, tr(QT_TRANSLATE_NOOP("main", "PPD file, without a printer")), "file");
  const QCommandLineOption settings(
      {"s", "settings"}, tr(QT_TRANSLATE_NOOP("main", "settings to begin with")), "file");
  const QCommandLineOption gtk(
      "gtk-settings",
      tr(QT_TRANSLATE_NOOP("main", "what a print dialog hands to its preview command")), "file");
  const QCommandLineOption passing(
      "unlink", tr(QT_TRANSLATE_NOOP("main",
                                     "the file was made only to be looked at; remove it at "
                                     "the end")));
  const QCommandLineOption panel(
      "panel", tr(QT_TRANSLATE_NOOP("main", "group of settings to show")), "name");
  const QCommandLineOption picture(
      "picture",
      tr(QT_TRANSLATE_NOOP("main", "write a picture of the window, once all is drawn, and end")),
      "file");
  const QCommandLineOption size(
      "size", tr(QT_TRANSLATE_NOOP("main", "of the window, for a picture")), "size", "1280x720");
  parser.addOptions({queue, ppd, settings, gtk, passing, panel, picture, size});
  parser.process(app);

  int status = 0;
  const QStringList files = parser.positionalArguments();
  {
    zarvo::desk::MainWindow window(*scratch);
    if (parser.isSet(queue)) window.SelectQueue(parser.value(queue));
    if (parser.isSet(ppd)) window.SetPpd(parser.value(ppd));
    if (parser.isSet(settings)) window.OpenTicket(parser.value(settings));
    if (parser.isSet(gtk)) window.OpenGtkSettings(parser.value(gtk), parser.isSet(passing));
    if (!files.isEmpty()) window.OpenDocument(files[0]);
    if (parser.isSet(passing)) window.SetPassing({});
    if (parser.isSet(panel)) window.ShowPanel(parser.value(panel));
    if (parser.isSet(picture)) {
      const QStringList sides = parser.value(size).split('x');
      if (sides.size() == 2) window.resize(sides[0].toInt(), sides[1].toInt());
      auto* const settled = new QTimer(&window);
      settled->setSingleShot(true);
      constexpr int kSettled = 800;  // milliseconds without any more work
      QObject::connect(&window.renderer(), &zarvo::desk::Renderer::Idle, settled,
                       [settled] { settled->start(kSettled); });
      QObject::connect(settled, &QTimer::timeout, &window, [&] {
        if (window.renderer().IsBusy()) return;
        QApplication::exit(window.grab().save(parser.value(picture)) ? 0 : 2);
      });
      if (files.isEmpty()) settled->start(kSettled);
    }
    window.show();
    status = QApplication::exec();
  }
  if (parser.isSet(passing) && !files.isEmpty()) QFile::remove(files[0]);
  return status;
}
