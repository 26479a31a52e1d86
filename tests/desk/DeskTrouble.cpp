// SPDX-License-Identifier: Apache-2.0
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include "Desk/view/PrintDialog.h"
#include "HouseTicket/HouseTicketStore.h"
#include "tests/desk/DeskTest.h"

namespace zarvo::desk {

void DeskTest::hostile_data() {
  QTest::addColumn<QByteArray>("content");
  QTest::addColumn<QString>("converter");
  QTest::addColumn<QString>("told");
  const QByteArray pdf = "%PDF-1.7\n";
  QTest::newRow("broken") << pdf + "nothing of the kind"
                          << ""
                          << "cannot be converted: .+";
  QTest::newRow("empty") << QByteArray() << ""
                         << "is empty: neither PostScript nor PDF";
  QTest::newRow("hangs") << pdf << "sleep 1000"
                         << "Nothing has come .* for 2 second.*";
  // Those that the filter's helper has.
  QTest::newRow("limits") << pdf << "echo ERROR: $(ulimit -t) $(ulimit -v) $(ulimit -c) >&2; exit 1"
                          << "cannot be converted: 60 1572864 0";
  QTest::newRow("dies") << pdf << "kill -9 $PPID; sleep 1000"
                        << "The program .* has ended; .*";
  QTest::newRow("no page") << QByteArray("%!PS-Adobe-3.0\n%%EOF\n") << ""
                           << ".*no page.*";
}

void DeskTest::hostile() {
  QFETCH(QByteArray, content);
  QFETCH(QString, converter);
  QFETCH(QString, told);
  const QByteArray path = qgetenv("PATH");
  if (!converter.isEmpty()) {
    for (const QString program : {"bin/cupsfilter", "bin/pdftops"}) {
      const QString file = home->Put(program, "#!/bin/sh\n" + converter.toUtf8() + "\n");
      QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    }
    qputenv("PATH", home->folder.filePath("bin").toUtf8() + ":" + path);
    window_->renderer().SetPatience(2500);
  }
  window_->show();
  window_->OpenDocument(home->Put("hostile.pdf", content));
  int beats = 0;  // the window goes on meanwhile
  QTimer beat;
  connect(&beat, &QTimer::timeout, this, [&beats] { ++beats; });
  beat.start(10);
  const QRegularExpression wanted("^hostile.pdf: (" + told + ")$");
  Comes([&] { return wanted.match(window_->told()).hasMatch(); });
  QVERIFY2(wanted.match(window_->told()).hasMatch(), qPrintable(window_->told()));
  if (!converter.isEmpty()) QVERIFY(beats > 2);
  qputenv("PATH", path);
  Choose("sides", "One side of each sheet");  // it still works
  QVERIFY(window_->document().CanUndo());
}

void DeskTest::damaged_stores_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QString>("told");
  QTest::newRow("watermarks")
      << "Zarvo/com.zarvo.printing.watermarks.plist"
      << "/com.zarvo.printing.watermarks.plist cannot be read, or is damaged";
  QTest::newRow("house tickets") << QString::fromStdString(HouseTicketStore::Own().path())
                                 << QString::fromStdString(HouseTicketStore::Own().path());
  QTest::newRow("recipients") << "contacts/ada.vcf"
                              << "1 card(s) of the address book";
}

void DeskTest::damaged_stores() {
  QFETCH(QString, file);
  QFETCH(QString, told);
  const QString path = QDir(home->folder.path()).filePath(file);
  const bool whole = QFile::rename(path, path + ".whole");
  home->Put(path, "not what it should be");
  init();
  const QString said = window_->told();
  QVERIFY(QFile::remove(path) && (!whole || QFile::rename(path + ".whole", path)));
  QVERIFY2(said.contains(told), qPrintable(said));
  Choose("sides", "One side of each sheet");
}

/// There is no room for all that is made of a document: it is told that there is none, or it was
/// just enough and all is drawn.
void DeskTest::full_disk() {
  const QString small = qEnvironmentVariable("ZARVO_DESK_SMALL");
  if (small.isEmpty()) return;
  const QByteArray before = qgetenv("TMPDIR");
  const QString file = home->Put("full.ps", Document(60));
  qputenv("TMPDIR", small.toUtf8());
  const std::unique_ptr<ScratchFolder> cache = ScratchFolder::Create();
  window_ = std::make_unique<MainWindow>(*cache);
  window_->resize(1280, 720);
  window_->show();
  window_->grid().SetSheetWidth(600);
  window_->OpenDocument(file);
  const auto told = [this] { return window_->told().startsWith("full.ps: "); };
  QVERIFY(Comes([&] { return told() || window_->renderer().IsFresh(1); }));
  QVERIFY(Settle());  // and it does not try for ever
  const QRegularExpression why("No space left|cannot be drawn|room for temporary files");
  QVERIFY2(told() ? window_->told().contains(why) : window_->renderer().IsFresh(1),
           qPrintable(window_->told()));
  if (told()) std::puts("the full disk was told");
  Choose("sides", "One side of each sheet");
  window_.reset();
  qputenv("TMPDIR", before);
}

/// A spooler that takes a call and says nothing.
void DeskTest::silent_spooler() {
  const QByteArray before = qgetenv("CUPS_SERVER");
  const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in place{};
  socklen_t length = sizeof place;
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  QVERIFY(::bind(listener, reinterpret_cast<sockaddr*>(&place), length) == 0 &&
          ::listen(listener, 8) == 0 &&
          ::getsockname(listener, reinterpret_cast<sockaddr*>(&place), &length) == 0);
  qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(ntohs(place.sin_port)));
  QueueBox queues(*scratch);
  queues.SetPatience(500);
  queues.AskQueues();
  QVERIFY(Comes([&] { return !queues.isEnabled(); }));
  PrintDialog dialog(window_->document(), home->Put("one.ps", Document(1)), "office");
  QSignalSpy finished(&dialog, &PrintDialog::Finished);
  dialog.show();
  dialog.Print(false);
  dialog.reject();  // takes the job back first
  QVERIFY(dialog.isVisible() && finished.wait(kLongest) && !finished[0][0].toBool());
  dialog.reject();
  QVERIFY(!dialog.isVisible());
  qputenv("CUPS_SERVER", before);
  ::close(listener);
}

/// The printer goes while a job waits for it, and while the window is open; then it is back. What
/// the user keeps for it with lpoptions is drawn, told, and printed.
void DeskTest::queue_goes() {
  const QString folder = qEnvironmentVariable("ZARVO_DESK_PRINTS");
  if (folder.isEmpty()) return;
  const auto tell = [](const QString& program, const QStringList& words) {
    return QProcess::execute(program, words) == 0;
  };
  const QStringList make = {
      "-p", "fleeting", "-E", "-v", "file:///dev/null", "-P", qEnvironmentVariable("ZARVO_PPD")};
  QVERIFY(tell("lpadmin", make) && tell("cupsdisable", {"fleeting"}) &&
          tell("lpoptions", {"-p", "fleeting", "-o", "copies=3", "-o", "Duplex=DuplexNoTumble"}));
  window_->SelectQueue("fleeting");
  window_->show();
  window_->OpenDocument(folder + "/house.ps");
  auto* const print = Find<QAction>("print");
  QVERIFY(Comes([print] { return print->isEnabled(); }));
  QVERIFY(
      Comes([this] { return Find<QLabel>("summary")->text().contains("2 sheet(s), 3 copies"); }));
  QVERIFY(Comes([this] { return Find<QComboBox>("copies")->currentText() == "3"; }));
  Choose("copies", "1");  // which is said, as else there would be three
  QCOMPARE(window_->document().TextAt("copies"), "1");
  QVERIFY(Comes([this] { return Find<QLabel>("changes")->text() == "Copies: 1 (by itself: 3)"; }));
  Choose("sides", "One side");
  QVERIFY(Comes([this] { return Find<QLabel>("summary")->text().contains("3 sheet(s)"); }));
  window_->document().Undo();
  Choose("copies", "3");
  QVERIFY(window_->document().ticket().empty());
  QSignalSpy finished(window_.get(), &MainWindow::PrintFinished);
  print->trigger();
  QVERIFY(Comes([this] { return Find<QLabel>("print-state")->text().contains("waits"); }));
  QVERIFY(tell("lpadmin", {"-x", "fleeting"}));
  QVERIFY(finished.wait(kLongest) && !finished[0][0].toBool());
  Find<PrintDialog>("print-dialog")->reject();
  window_->queues().AskQueues();
  QVERIFY(Comes([this] { return window_->told().startsWith("The printer fleeting is gone."); }));
  QVERIFY(!print->isEnabled());
  QCOMPARE(window_->queues().currentData().toString(), "fleeting");
  QVERIFY(tell("lpadmin", make));
  window_->queues().AskQueues();
  QVERIFY(Comes([print] { return print->isEnabled(); }));
}

}  // namespace zarvo::desk
