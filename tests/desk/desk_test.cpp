// SPDX-License-Identifier: Apache-2.0
// Drives the window as a person does, without a screen.
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "Desk/model/Finishing.h"
#include "Desk/model/GtkSettings.h"
#include "Desk/model/PageRanges.h"
#include "Desk/view/MainWindow.h"
#include "Desk/view/PrintDialog.h"
#include "Desk/view/Translations.h"
#include "HouseTicket/HouseTicketStore.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Source/WatermarkSupport.h"
#include "Tools/zarvo/ticket/HouseText.h"
#include "Tools/zarvo/ticket/TicketText.h"
#include "tests/desk/tickets.h"

namespace zarvo::desk {
namespace {

constexpr int kLongest = 120000;  // milliseconds, on a machine that does much else

Dictionary Read(const char* text) {
  Dictionary ticket;
  const Failure failure = tool::ReadTicket(text, &ticket);
  if (!failure.empty()) qFatal("%s", failure.c_str());
  return ticket;
}

/// The program's folders are the test's own.
class Home {
 public:
  Home() {
    qputenv("HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    qputenv("ZARVO_APPLICATION_SUPPORT", folder.path().toUtf8());
    qputenv("ZARVO_ADDRESS_BOOK", folder.filePath("contacts").toUtf8());
    if (qEnvironmentVariableIsEmpty("CUPS_SERVER")) qputenv("CUPS_SERVER", "127.0.0.1:1");
  }
  QString Put(const QString& name, const QByteArray& content) const {
    const QDir root(folder.path());
    root.mkpath(QFileInfo(name).path());
    QFile file(root.filePath(name));
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write");
    file.write(content);
    return file.fileName();
  }
  QTemporaryDir folder;
};

QByteArray Card(const char* uid, const char* name, const char* names, const char* fax) {
  return QString(
             "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:%1\r\nFN:%2\r\nN:%3;;;\r\n"
             "TEL;TYPE=WORK,FAX:%4\r\nEND:VCARD\r\n")
      .arg(uid, name, names, fax)
      .toUtf8();
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

/// Where the pictures differ first. The second one may have lines of text below.
QString Difference(const QImage& seen, const QImage& page) {
  if (std::abs(seen.width() - page.width()) > 1 || seen.height() > page.height() + 1)
    return QString("sizes: %1 x %2").arg(seen.width()).arg(seen.height());
  for (int y = 0; y < std::min(seen.height(), page.height()) - 1; ++y)
    for (int x = 0; x < std::min(seen.width(), page.width()); ++x)
      if (seen.pixelColor(x, y) != page.pixelColor(x, y))
        return QString("%1, %2: %3 not %4")
            .arg(x)
            .arg(y)
            .arg(seen.pixelColor(x, y).name(), page.pixelColor(x, y).name());
  return {};
}

}  // namespace

class DeskTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QSettings().clear();
    window_ = std::make_unique<MainWindow>(*scratch);
    window_->resize(1280, 720);
  }
  void cleanup() { window_.reset(); }

  void finishing_survives_the_ticket();
  void page_ranges();
  void history();
  void print_dialog_of_others();
  void every_key_can_be_reached();
  void what_excludes_what_is_shown();
  void everybody_data();
  void everybody();
  void watermark_changed_in_place();
  void secrets_stay_inside();
  void what_is_kept();
  void tasks_data();
  void tasks();
  void house_ticket_under_a_new_name();
  void sheets_are_the_previews_data();
  void sheets_are_the_previews();
  void only_what_changed_is_drawn();
  void hostile_data();
  void hostile();
  void damaged_stores_data();
  void damaged_stores();
  void full_disk();
  void silent_spooler();
  void queue_goes();
  void printed();

 public:
  static std::unique_ptr<ScratchFolder> scratch;
  static Home* home;

 private:
  template <class T>
  T* Find(const QString& name) {
    T* found = window_->findChild<T*>(name);
    if (found == nullptr) qFatal("no %s", qPrintable(name));
    return found;
  }
  void Choose(const QString& name, const QString& text) {
    auto* const box = Find<QComboBox>(name);
    const int index = box->findText(text, Qt::MatchStartsWith);
    QVERIFY2(index >= 0, qPrintable(name + ": " + text));
    box->setCurrentIndex(index);
    emit box->activated(index);
  }
  void Type(const QString& name, const QString& text) {
    auto* const line = Find<QLineEdit>(name);
    line->clear();
    QTest::keyClicks(line, text);
  }
  void Press(const QString& name) {
    QVERIFY(Find<QAbstractButton>(name)->isEnabled());
    Find<QAbstractButton>(name)->click();
  }
  void Do(const QString& task);
  /// Waits for it. The library's own macro for this mixes kinds of numbers in its later versions.
  static bool Comes(const std::function<bool()>& sight) { return QTest::qWaitFor(sight, kLongest); }
  bool Settle() {
    return Comes([this] { return !window_->renderer().IsBusy(); });
  }

  std::unique_ptr<MainWindow> window_;
};

std::unique_ptr<ScratchFolder> DeskTest::scratch;
Home* DeskTest::home = nullptr;

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

void DeskTest::finishing_survives_the_ticket() {
  int possible = 0;
  for (const int staple : {0, 5, 10, 26})
    for (const int punch : {0, 32})
      for (const int fold : {0, 19, 38, 43})
        for (const int bind : {0, 15}) {
          const Finishing wanted = {staple, punch, punch != 0 ? 4 : 0, fold, bind, 0};
          Dictionary ticket;
          PutFinishing(wanted, &ticket);
          if (CanFinish(wanted)) QVERIFY(FinishingOf(ticket) == wanted);
          if (CanFinish(wanted)) ++possible;
        }
  // Nothing; staples, holes, both; the Z fold with each of these; two other folds; glue.
  QCOMPARE(possible, 8 + 8 + 2 + 1);
}

void DeskTest::page_ranges() {
  QCOMPARE(WritePageRanges({8, 5, 6, 7, 12, 5}), "5-8, 12");
  QVERIFY((*ReadPageRanges("5-8,12") == std::vector<PageRange>{{5, 8}, {12, 12}}));
  for (const char* wrong : {"", "0", "8-5", "5-", "5,,6", "5,", "a", "99999999999"})
    QVERIFY2(!ReadPageRanges(wrong), wrong);
}

void DeskTest::history() {
  TicketDocument document;
  for (const char* text : {"0", "03", "039"})
    document.Set("JobType/SecurePrintPassword", Value(text), "PIN", true);
  document.Set("FinishingDuplex", Value(Number(std::int32_t{2})), "sides");
  QVERIFY(document.ticket().contains("com.zarvo.print.JTMLOptions"));  // else it does nothing
  document.Undo();
  QCOMPARE(document.TextAt("JobType/SecurePrintPassword"), "039");
  document.Undo();
  QVERIFY(document.ticket().empty() && !document.CanUndo());
  document.Redo();
  document.Redo();
  QCOMPARE(document.NumberAt("FinishingDuplex").value_or(0), 2);
  QVERIFY(PutAt(&const_cast<Dictionary&>(document.ticket()), "SpecialPages.InsertList/0/StartPage",
                Value(Number(std::int32_t{3}))));
  document.Clear("SpecialPages.InsertList/0", "insert");
  QVERIFY(document.Find("SpecialPages.InsertList") == nullptr);
}

void DeskTest::print_dialog_of_others() {
  const GtkSettings read = ReadGtkSettings(
      "[Print Settings]\nprinter=office\nn-copies=3\nduplex=horizontal\ncups-Staple=TopLeft\n"
      "[Print Job]\ntitle=My\\sletter\n");
  QCOMPARE(read.queue, "office");
  QCOMPARE(read.title, "My letter");
  QVERIFY(read.ticket == (Dictionary{{"copies", Value("3")},
                                     {"sides", Value("two-sided-long-edge")},
                                     {"Staple", Value("TopLeft")}}));
}

void DeskTest::every_key_can_be_reached() {
  auto* const tree = Find<QTreeWidget>("all-keys");
  const std::function<void(std::span<const TicketKey>, const std::string&)> look =
      [&](std::span<const TicketKey> keys, const std::string& above) {
        for (const TicketKey& key : keys) {
          const std::string path = above + key.name;
          if (key.type == KeyType::kDictionary) {
            look(key.members, path + "/");
            continue;
          }
          if (key.type == KeyType::kList) {
            look(key.members, path + "/0/");
            continue;
          }
          const std::function<QTreeWidgetItem*(QTreeWidgetItem*)> find =
              [&](QTreeWidgetItem* item) -> QTreeWidgetItem* {
            if (item->data(1, Qt::UserRole).toString().toStdString() == path) return item;
            for (int i = 0; i < item->childCount(); ++i)
              if (QTreeWidgetItem* found = find(item->child(i))) return found;
            return nullptr;
          };
          QTreeWidgetItem* const item = find(tree->invisibleRootItem());
          QVERIFY2(item != nullptr, path.c_str());
          item->setText(1, key.type == KeyType::kBoolean || key.type == KeyType::kAny ? "true"
                           : key.type == KeyType::kDate ? "2030-01-02T03:04"
                           : key.type == KeyType::kText
                               ? "text"
                               : QString::number(std::max<qint64>(key.low, 1)));
          QCoreApplication::processEvents();
          QVERIFY2(window_->document().Find(path) != nullptr, path.c_str());
          window_->document().Reset({});
        }
      };
  look(TopLevelKeys(), "");
}

void DeskTest::what_excludes_what_is_shown() {
  Press("staple-5");
  auto* const fold = Find<QComboBox>("fold");
  const int index = fold->findText("C fold", Qt::MatchStartsWith);
  QVERIFY(!fold->itemData(index, Qt::ToolTipRole).toString().isEmpty());
  QVERIFY(!(fold->model()->flags(fold->model()->index(index, 0)) & Qt::ItemIsEnabled));
  // The very words of the ticket's check.
  auto* const job = Find<QComboBox>("JobType/JobType");
  const int later = job->findText("Print it later", Qt::MatchStartsWith);
  QCOMPARE(job->itemData(later, Qt::ToolTipRole).toString(),
           "a delayed job needs a DelayedPrintTime");
}

void DeskTest::everybody_data() {
  QTest::addColumn<QString>("panel");
  for (const char* language : {"en", "de", "fr", "ja"})
    for (const char* panel : {"house", "paper", "sides", "finishing", "booklet", "pages",
                              "watermark", "quality", "job", "fax", "changes", "all"})
      QTest::addRow("%s %s", language, panel) << panel;
}

/// Every panel in every language, on the smallest screen: what is read to people has a name, what
/// is off says why, each letter leads to one field, keys go where the eye goes, nothing is cut off.
/// A label or a list of choices of which a part cannot be seen, or nothing.
QString CutOff(const QWidget* page) {
  for (const QLabel* label : page->findChildren<QLabel*>()) {
    const int needed =
        label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    if (label->isVisible() && (label->height() < needed ||
                               (!label->wordWrap() && label->width() < label->sizeHint().width())))
      return label->text();
  }
  for (const QComboBox* box : page->findChildren<QComboBox*>())
    if (box->isVisible() &&
        (box->width() < box->sizeHint().width() ||
         box->mapTo(page->window(), QPoint(box->width(), 0)).x() >
             page->parentWidget()
                 ->mapTo(page->window(), QPoint(page->parentWidget()->width(), 0))
                 .x()))
      return box->objectName();
  return {};
}

void DeskTest::everybody() {
  QFETCH(QString, panel);
  const Translations translations(QLocale(QString(QTest::currentDataTag()).section(' ', 0, 0)),
                                  qApp);
  MainWindow window(*scratch);
  window.resize(1366, 768);
  window.ShowPanel(panel);
  window.show();
  window.document().Replace(Read(R"({"JobType": {"JobType": "delayed"}})"), "later");
  QTest::qWait(0);
  auto* const page = window.findChild<Panel*>("panel-" + panel);
  QSet<QString> letters;
  const auto letter = [&](const QString& text) {
    const QString mark = QKeySequence::mnemonic(text).toString();
    QVERIFY2(mark.isEmpty() || !letters.contains(mark), qPrintable(mark + " again: " + text));
    letters.insert(mark);
  };
  for (const QAction* action : window.menuBar()->actions()) letter(action->text());
  // What is objected to is marked, which makes a choice longer: the layout follows with the next
  // events.
  Comes([page] { return CutOff(page).isEmpty(); });
  QCOMPARE(CutOff(page), QString());
  for (const QLabel* label : page->findChildren<QLabel*>())
    if (label->buddy() != nullptr) letter(label->text());
  QPoint last(-1, -1);
  for (QWidget* at = page->nextInFocusChain(); at != page; at = at->nextInFocusChain()) {
    if (!page->isAncestorOf(at) || !at->isVisible() || at->focusPolicy() == Qt::NoFocus ||
        at->focusProxy() != nullptr || at->objectName().startsWith("qt_"))
      continue;
    const QString who = at->objectName() + " " + at->metaObject()->className();
    const QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(at);
    QVERIFY2(!told->text(QAccessible::Name).isEmpty(), qPrintable(who));
    QVERIFY2(at->isEnabled() || !told->text(QAccessible::Description).isEmpty(), qPrintable(who));
    if (const auto* button = qobject_cast<QAbstractButton*>(at)) {
      letter(button->text());
      QVERIFY2(at->width() >= at->minimumSizeHint().width(), qPrintable(who));
    }
    const QPoint place = at->mapTo(page, QPoint(0, 0));
    QVERIFY2(place.y() > last.y() || (place.y() == last.y() && place.x() > last.x()),
             qPrintable("out of order: " + who));
    last = place;
  }
  const int room = page->parentWidget()->width();
  QVERIFY2(room >= page->width(),
           qPrintable(QString("room for %1, needs %2").arg(room).arg(page->width())));
  // All the tools are there, and what is wrong is told in words of the language.
  QVERIFY(!window.findChild<QToolButton*>("qt_toolbar_ext_button")->isVisible());
  const QString found = window.findChild<QLabel*>("findings")->text();
  QVERIFY2(found.contains("DelayedPrintTime"), qPrintable(found));
  QCOMPARE(found.contains("a delayed job"), QTest::currentDataTag()[0] == 'e');
}

void DeskTest::watermark_changed_in_place() {
  const std::string name = "DRAFT";
  WatermarkData mark{};
  const auto load = [&] { return loadWatermarkData(kWatermarkCollection, &name, &mark) == 1; };
  QVERIFY(load() && mark.fontSize == 72);
  Choose("Watermark", "DRAFT");
  QCOMPARE(Find<QSpinBox>("new-mark-size")->value(), 72);
  Find<QSpinBox>("new-mark-size")->setValue(90);
  Type("new-mark", "ENTWURF");
  Press("change-mark");
  QVERIFY(Comes([&] { return load() && mark.fontSize == 90; }));
  QCOMPARE(QString(mark.textString), "ENTWURF");
  QCOMPARE(window_->document().TextAt(key::kWatermark), "DRAFT");  // it has kept its name
}

void DeskTest::secrets_stay_inside() {
  Do("handout");
  RenderSettings settings;
  QVERIFY(MakeRenderSettings(window_->document().ticket(), "", &settings).empty());
  for (const char* secret : {"0391", "ada", "4711"})
    QVERIFY2(settings.options.find(secret) == std::string::npos, secret);
  auto* const pin = Find<QLineEdit>("JobType/SecurePrintPassword");
  QCOMPARE(pin->echoMode(), QLineEdit::Password);
  QVERIFY(!Find<QLabel>("changes")->text().contains("0391"));
  const QString file = home->folder.filePath("secret.json");
  QVERIFY(window_->document().Save(file.toStdString()).empty());
  QCOMPARE(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

/// A document that was dropped is among the recent ones, and a PIN in no file and no clipboard.
void DeskTest::what_is_kept() {
  constexpr char kPin[] = "0391471188";
  const QString file = home->Put("dropped.ps", Document(2));
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(file)});
  QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  window_->show();
  QCoreApplication::sendEvent(window_.get(), &enter);
  QVERIFY(enter.isAccepted());
  QCoreApplication::sendEvent(window_.get(), &drop);
  QCOMPARE(window_->renderer().file(), file);
  Choose("JobType/JobType", "Secure: wait for a PIN");
  Type("JobType/SecurePrintPassword", kPin);
  auto* const pin = Find<QLineEdit>("JobType/SecurePrintPassword");
  pin->selectAll();
  pin->copy();
  QVERIFY(!QGuiApplication::clipboard()->text().contains(kPin));
  QVERIFY(Settle());
  QVERIFY(window_->close());
  QSettings settings;
  settings.sync();
  QCOMPARE(settings.value("recent").toStringList(), QStringList{file});
  const QString cache = QFileInfo(QString::fromStdString(scratch->File("x"))).path();
  int files = 0;
  for (const QString& folder : {cache, home->folder.path()}) {
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
      QFile one(all.next());
      QVERIFY(one.open(QIODevice::ReadOnly));
      QVERIFY2(!one.readAll().contains(kPin), qPrintable(one.fileName()));
      ++files;
    }
  }
  QVERIFY(files > 3);
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
  HouseTicketStore store = HouseTicketStore::Own();
  HouseTicket kept;
  QVERIFY(store.Read().empty() && store.Find("right handout", &kept).empty());
  QVERIFY(kept.ticket == Read(kTasks[4].ticket));
}

void DeskTest::sheets_are_the_previews_data() {
  QTest::addColumn<QString>("ticket");
  QTest::addColumn<QList<int>>("rows");
  QTest::addColumn<int>("width");
  QTest::newRow("booklet") << kTasks[1].ticket << QList<int>{0, 2, 3} << 842;
  QTest::newRow("covers") << R"({"SpecialPages.FrontCover": {"SidesImaged": "none"},
                                 "JTMLOptions": {"JTMLOptionAll": true}})"
                          << QList<int>{1, 8} << 210;
  QTest::newRow("fax") << kTasks[3].ticket << QList<int>{0, 1} << 595;
}

/// What is on the screen, not what was to be put there, against the tool's own picture.
void DeskTest::sheets_are_the_previews() {
  QFETCH(QString, ticket);
  QFETCH(QList<int>, rows);
  QFETCH(int, width);
  const QString file = home->Put("eight.ps", Document(8));
  window_->document().Replace(Read(ticket.toUtf8().constData()), "ticket");
  window_->SetPpd(qEnvironmentVariable("ZARVO_PPD"));
  window_->OpenDocument(file);
  window_->show();
  window_->resize(1400, 1000);
  SheetGrid& grid = window_->grid();
  grid.SetMarks(false);
  grid.SetSheetWidth(width);
  const tool::SheetPlan& plan = window_->renderer().plan().plan;
  const QString output = home->folder.filePath("page.png");
  int dots = 0;
  for (const int row : rows) {
    QVERIFY(Comes([&] { return Settle() && grid.model()->rowCount() > rows.back(); }));
    grid.scrollTo(grid.model()->index(row, 0));
    const tool::PlannedSide& side = plan.sides[static_cast<std::size_t>(row)];
    QVERIFY(Comes([&] { return Settle() && window_->renderer().IsFresh(side.page); }));
    const QRect place = grid.PlaceOf(row).toRect();
    QVERIFY(grid.viewport()->rect().contains(place));
    const QImage seen = grid.viewport()->grab().toImage();
    if (dots == 0) {
      dots = qRound(place.width() * 72 / UprightSize(side).width());
      QProcess preview;
      preview.start(ProgramPath("zarvo"),
                    {"preview", file, "-p", qEnvironmentVariable("ZARVO_PPD"), "-s",
                     home->Put("settings.json", ticket.toUtf8()), "--output", output,
                     "--resolution", QString::number(dots)});
      QVERIFY(preview.waitForFinished(kLongest));
    }
    QImage page;
    const int number = row + 1;
    QVERIFY(page.load(home->folder.filePath(QString("page-%1.png").arg(number))));
    QCOMPARE(Difference(seen.copy(place), page), QString());
  }
}

/// What only the finisher reads draws nothing anew, what every page shows each page once.
void DeskTest::only_what_changed_is_drawn() {
  const QString pdf = home->folder.filePath("six.pdf");
  QCOMPARE(QProcess::execute(
               "gs", {"-q", "-sDEVICE=pdfwrite", "-o", pdf, home->Put("six.ps", Document(6))}),
           0);
  window_->SetPpd(qEnvironmentVariable("ZARVO_PPD"));
  window_->show();
  window_->OpenDocument(pdf);
  const auto drawn = [this] {
    for (std::uint64_t page = 1; page <= 6; ++page)
      if (!window_->renderer().IsFresh(page)) return false;
    return !window_->renderer().IsBusy();
  };
  QVERIFY(Comes(drawn));
  QSignalSpy pictures(&window_->renderer(), &Renderer::PictureChanged);
  Press("staple-5");
  QVERIFY(!drawn() && Comes(drawn));
  QCOMPARE(window_->renderer().plan().plan.finishings, tool::FinishingCodes{20});
  QCOMPARE(pictures.size(), 0);
  Choose("Watermark", "DRAFT");
  QVERIFY(!drawn() && Comes(drawn));
  QCOMPARE(pictures.size(), 6);
}

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

/// There is room for the converted document, but not for all that is drawn of it.
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
  QVERIFY(Comes([this] { return window_->told().startsWith("full.ps: "); }));
  QVERIFY(Settle());  // and it does not try for ever
  const QRegularExpression why("No space left|cannot be drawn|cannot draw the job: .*ioerror");
  QVERIFY2(window_->told().contains(why), qPrintable(window_->told()));
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

/// The printer goes while a job waits for it, and while the window is open; then it is back.
void DeskTest::queue_goes() {
  const QString folder = qEnvironmentVariable("ZARVO_DESK_PRINTS");
  if (folder.isEmpty()) return;
  const auto tell = [](const QString& program, const QStringList& words) {
    return QProcess::execute(program, words) == 0;
  };
  const QStringList make = {
      "-p", "fleeting", "-E", "-v", "file:///dev/null", "-P", qEnvironmentVariable("ZARVO_PPD")};
  QVERIFY(tell("lpadmin", make) && tell("cupsdisable", {"fleeting"}));
  window_->SelectQueue("fleeting");
  window_->show();
  window_->OpenDocument(folder + "/house.ps");
  auto* const print = Find<QAction>("print");
  QVERIFY(Comes([print] { return print->isEnabled(); }));
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
    QVERIFY(finished.wait(kLongest));
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

#include "desk_test.moc"
