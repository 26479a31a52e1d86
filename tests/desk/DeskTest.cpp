// SPDX-License-Identifier: Apache-2.0
#include "tests/desk/DeskTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "Desk/model/Finishing.h"
#include "HouseTicket/HouseTicketStore.h"
#include "Tools/zarvo/ticket/HouseText.h"
#include "Tools/zarvo/ticket/TicketText.h"
#include "tests/desk/tickets.h"

namespace zarvo::desk {

std::unique_ptr<ScratchFolder> DeskTest::scratch;
Home* DeskTest::home = nullptr;

Dictionary Read(const char* text) {
  Dictionary ticket;
  const Failure failure = tool::ReadTicket(text, &ticket);
  if (!failure.empty()) qFatal("%s", failure.c_str());
  return ticket;
}

QByteArray Document(int pages) {
  QByteArray text =
      "%!PS-Adobe-3.0\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n"
      "<< /PageSize [595 842] >> setpagedevice\n%%EndSetup\n";
  for (int page = 1; page <= pages; ++page)
    text += QString("%%Page: %1 %1\n/Helvetica 96 selectfont 90 600 moveto (%1) show\nshowpage\n")
                .arg(page)
                .toUtf8();
  return text + "%%Trailer\n%%EOF\n";
}

void Children::Look() {
  const auto read = [](const QString& pid, const char* name) {
    QFile file("/proc/" + pid + "/" + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  const QString self = QString::number(QCoreApplication::applicationPid());
  for (const QString& pid : QDir("/proc").entryList(QDir::Dirs)) {
    QString above = pid;
    // The fourth field, behind the program's name in brackets.
    while (above.toInt() > 1 && above != self) {
      const QByteArray stat = read(above, "stat");
      above = QString(stat.mid(stat.lastIndexOf(')') + 2)).section(' ', 1, 1);
    }
    if (above != self || pid == self) continue;
    ++looks;
    for (const char* name : {"cmdline", "environ"})
      if (const QByteArray text = read(pid, name); leak.isEmpty() && text.contains(secret))
        leak = text;
  }
}

namespace {

QByteArray Card(const char* uid, const char* name, const char* names, const char* fax) {
  return QString(
             "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:%1\r\nFN:%2\r\nN:%3;;;\r\n"
             "TEL;TYPE=WORK,FAX:%4\r\nEND:VCARD\r\n")
      .arg(uid, name, names, fax)
      .toUtf8();
}

}  // namespace

/// What a person does for each of the tasks.
void DeskTest::Do(const QString& task) {
  if (task == "thesis") {
    Choose("sides", "Both sides, turned like a book");
    Choose("bind", "At the left");
    for (const QString cover : {"SpecialPages.FrontCover", "SpecialPages.BackCover"}) {
      Choose(cover, "Not printed");
      Choose(cover + "/Stock/Color", "Blue");
    }
    Type("pages", "5-8");
    Find<QSpinBox>("page-weight")->setValue(160);
    Choose("page-sides", "One side of each sheet");
    Press("make-exception");
    Type("pages", "60");
    Find<QSpinBox>("page-weight")->setValue(0);
    Choose("page-color", "Yellow");
    Press("make-insert");
  } else if (task == "booklet") {
    Choose("BookletLayout", "Booklet, read from left to right");
    Choose("BookletFoldStaple", "Fold and staple in the fold");
    Choose("Watermark", "DRAFT");
    Find<QCheckBox>("com.zarvo.print.watermark.FirstPageOnly")->click();
  } else if (task == "handout") {
    Choose("JobType/JobType", "Secure: wait for a PIN");
    Type("JobType/SecurePrintPassword", "0391");
    Choose("accounting", "By user and general account");
    Type("com.zarvo.Act.UID", "ada");
    Type("com.zarvo.Act.AID", "4711");
    Press("staple-5");
  } else if (task == "house") {
    auto* const gallery = Find<QListWidget>("gallery");
    gallery->setCurrentItem(gallery->findItems("handout", Qt::MatchExactly).value(0));
    Press("use-house");
    Press("staple-7");
    Type("house-name", "right handout");
    Press("save-house");
  } else {
    Choose("address-book", "Branches (group)");
    Press("add-from-book");
    Type("typed-number", "030 1234");
    QCOMPARE(Find<QLabel>("dialed")->text(), "The printer dials 0301234");
    Press("add-typed");
    Choose("CoverSheet", "On A4");
  }
}

void DeskTest::tasks_data() {
  QTest::addColumn<QString>("ticket");
  for (const Task& task : kTasks) QTest::newRow(task.name) << task.ticket;
}

void DeskTest::tasks() {
  QFETCH(QString, ticket);
  Do(QTest::currentDataTag());
  const Dictionary wanted = Read(ticket.toUtf8().constData());
  for (const std::string& line : tool::TicketDifferences(window_->document().ticket(), wanted))
    QFAIL(line.c_str());
}

void DeskTest::house_ticket_under_a_new_name() {
  Do("house");
  Type("house-name", "None");
  QVERIFY(!Find<QPushButton>("save-house")->isEnabled());
  Type("house-name", "another");
  {
    const FolderLock other(
        QFileInfo(QString::fromStdString(HouseTicketStore::Own().path())).path().toStdString());
    Press("save-house");
    QVERIFY2(window_->told().contains("keeps it locked"), qPrintable(window_->told()));
  }
  HouseTicketStore store = HouseTicketStore::Own();
  HouseTicket kept;
  QVERIFY(store.Read().empty() && store.Find("right handout", &kept).empty());
  QVERIFY(kept.ticket == Read(kTasks[4].ticket));
}

/// Prints the tasks on a queue that a test has made, each with its document of that test's folder,
/// and leaves what a person would have written for them there; does nothing without one.
void DeskTest::printed() {
  const QString folder = qEnvironmentVariable("ZARVO_DESK_PRINTS");
  if (folder.isEmpty()) return;
  for (const Task& task : kTasks) {
    init();
    window_->SelectQueue("office");
    window_->show();
    Do(task.name);
    QFile ticket(folder + "/" + task.name + ".json");
    QVERIFY(ticket.open(QIODevice::WriteOnly) && ticket.write(task.ticket) > 0);
    window_->OpenDocument(folder + "/" + task.name + ".ps");
    auto* const print = Find<QAction>("print");
    QVERIFY(Comes([print] { return print->isEnabled(); }));
    QSignalSpy finished(window_.get(), &MainWindow::PrintFinished);
    print->trigger();
    Children children("0391");
    QVERIFY(Comes([&] {
      children.Look();
      return !finished.isEmpty();
    }));
    QVERIFY2(children.looks > 0 && children.leak.isEmpty(), children.leak.constData());
    QVERIFY2(finished[0][0].toBool(), qPrintable(Find<QLabel>("print-details")->text()));
    QCOMPARE(Find<QLabel>("at-printer")->text().contains("PIN"), QString(task.name) == "handout");
  }
}

}  // namespace zarvo::desk

int main(int argc, char** argv) {
  using zarvo::desk::DeskTest;
  using zarvo::desk::Home;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "C.UTF-8");
  Home home;
  DeskTest::home = &home;
  DeskTest::scratch = zarvo::ScratchFolder::Create();
  using zarvo::desk::Card;
  home.Put("contacts/ada.vcf", Card("ada", "Ada Byron", "Byron;Ada", "+44 20 7946 0018"));
  home.Put("contacts/mill.vcf", Card("mill", "Mill", "Mill;", "0911-4711"));
  home.Put("contacts/team.vcf",
           "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:team\r\nFN:Branches\r\nN:Branches;;;;\r\n"
           "X-ADDRESSBOOKSERVER-KIND:group\r\nX-ADDRESSBOOKSERVER-MEMBER:urn:uuid:ada\r\n"
           "X-ADDRESSBOOKSERVER-MEMBER:urn:uuid:mill\r\nEND:VCARD\r\n");
  QApplication app(argc, argv);
  QApplication::setApplicationName("zarvo-desk-test");
  for (const QStringList& arguments :
       {QStringList{"watermark", "add-text", "DRAFT"},
        QStringList{
            "ticket", "save", "handout",
            home.Put("handout.json",
                     R"({"FinishingDuplex": 2, "FinishingOptions": 4, "FinishingStaple1Value": 5,
                 "JTMLOptions": {"JTMLOptionAll": true}})")}})
    QProcess::execute(zarvo::desk::ProgramPath("zarvo"), arguments);
  DeskTest test;
  const int status = QTest::qExec(&test, argc, argv);
  DeskTest::scratch.reset();
  return status;
}
