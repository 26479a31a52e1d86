// SPDX-License-Identifier: Apache-2.0
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "Desk/model/Finishing.h"
#include "Desk/model/GtkSettings.h"
#include "Desk/model/PageRanges.h"
#include "Desk/view/Translations.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Source/WatermarkSupport.h"
#include "tests/desk/DeskTest.h"

namespace zarvo::desk {

namespace {

/// The label or list of choices of which a part cannot be seen, with its measures, or nothing.
QString CutOff(const QWidget* page) {
  const auto right = [&](const QWidget* widget) {
    return widget->mapTo(page->window(), QPoint(widget->width(), 0)).x();
  };
  const auto told = [&](const QWidget* widget, const QString& what) {
    return QString("%1: %2 x %3 of %4 x %5, right %6 of %7")
        .arg(what)
        .arg(widget->width())
        .arg(widget->height())
        .arg(widget->sizeHint().width())
        .arg(widget->sizeHint().height())
        .arg(right(widget))
        .arg(right(page->parentWidget()));
  };
  for (const QLabel* label : page->findChildren<QLabel*>()) {
    const int needed =
        label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    if (label->isVisible() && (label->height() < needed ||
                               (!label->wordWrap() && label->width() < label->sizeHint().width())))
      return told(label, label->text());
  }
  for (const QComboBox* box : page->findChildren<QComboBox*>())
    if (box->isVisible() &&
        (box->width() < box->sizeHint().width() || box->height() < box->sizeHint().height() ||
         right(box) > right(page->parentWidget())))
      return told(box, box->objectName());
  return {};
}

}  // namespace

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

/// By the queue's own choices, in people's words.
void DeskTest::what_is_changed() {
  window_->SetPpd(qEnvironmentVariable("ZARVO_PPD"));
  Choose("sides", "Both sides, turned like a book");
  Choose("punch", "At the left");
  const QString sides = "Sides: Both sides, turned like a book";
  auto* const changes = Find<QLabel>("changes");
  QVERIFY(changes->text().contains(sides + "\n"));
  QVERIFY(Comes([&] { return changes->text().contains(sides + " (by itself: One side"); }));
  QVERIFY2(!changes->text().contains("JTML"), qPrintable(changes->text()));
  window_->document().Set("FinishingDuplex", Value(Number(std::int32_t{1})), "sides");
  QVERIFY(!changes->text().contains("Sides:"));
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
  // The keyboard gets into the fields, or past a panel that has none.
  auto* const groups = window.findChild<QListWidget*>("groups");
  groups->setFocus();
  QTest::keyClick(groups, Qt::Key_F6);
  QVERIFY2(window.focusWidget() != groups && !window.focusWidget()->objectName().isEmpty(),
           window.focusWidget()->metaObject()->className());
  // All the tools are there, and what is wrong is told in words of the language.
  QVERIFY(!window.findChild<QToolButton*>("qt_toolbar_ext_button")->isVisible());
  const QString found = window.findChild<QLabel*>("findings")->text();
  QVERIFY2(found.contains("DelayedPrintTime"), qPrintable(found));
  QCOMPARE(found.contains("a delayed job"), QTest::currentDataTag()[0] == 'e');
  // So is the reason of a refusal, which stands behind that and has signs of its own.
  const QString refusal =
      "the job was not printed: a secure job needs a PIN; give one as JobPIN=Custom.DIGITS (0-9)";
  QCOMPARE(Localized(refusal).contains("needs a PIN"), QTest::currentDataTag()[0] == 'e');
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
  const QString changes = Find<QLabel>("changes")->text();
  QVERIFY(!changes.contains("0391") && changes.contains("Secure: wait for a PIN"));
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
  Children children(kPin);
  QVERIFY(Comes([&] {
    children.Look();
    return !window_->renderer().IsBusy();
  }));
  QVERIFY2(children.looks > 3 && children.leak.isEmpty(), children.leak.constData());
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

}  // namespace zarvo::desk
