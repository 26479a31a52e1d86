// SPDX-License-Identifier: Apache-2.0
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include "Desk/model/Finishing.h"
#include "tests/desk/DeskTest.h"
#include "tests/desk/tickets.h"

namespace zarvo::desk {

namespace {

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

void DeskTest::sheets_are_the_previews_data() {
  QTest::addColumn<QString>("ticket");
  QTest::addColumn<QList<int>>("rows");
  QTest::addColumn<int>("width");
  QTest::newRow("booklet") << kTasks[1].ticket << QList<int>{0, 2, 3} << 842;
  // The cover is the first side, the insert after the two sides of the sheet that it follows.
  QTest::newRow("booklet with cover and insert")
      << R"({"BookletLayout": true, "JTMLOptions": {"JTMLOptionAll": true},
             "SpecialPages.FrontCover": {"SidesImaged": "none"},
             "SpecialPages.InsertList": [{"StartPage": 1, "Quantity": 2}]})"
      << QList<int>{1, 2, 4} << 420;
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
  window_->resize(1500, 1000);
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
    QVERIFY(side.page != 0);
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

/// What only the finisher reads draws nothing anew, what every page shows each page once, and what
/// the first one shows that one.
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
  Press("com.zarvo.print.watermark.FirstPageOnly");
  QVERIFY(!drawn() && Comes(drawn));
  pictures.clear();
  Choose("com.zarvo.print.watermark.Option", "Behind the page");
  QVERIFY(!drawn() && Comes(drawn));
  Choose("Watermark", "None");
  QVERIFY(!drawn() && Comes(drawn));
  QCOMPARE(pictures, (QList<QList<QVariant>>{{quint64{1}}, {quint64{1}}}));
}

}  // namespace zarvo::desk
