// SPDX-License-Identifier: Apache-2.0
// Finishing: staples are chosen on a drawing of the sheet.
#include <QGridLayout>
#include <QPainter>
#include <QToolButton>

#include "Desk/model/Finishing.h"
#include "Desk/view/Panels.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {
namespace {

/// A button with the sheet on it, and the staples where they will be.
class StapleButton : public QToolButton {
 public:
  StapleButton(std::int32_t code, const QString& name, QWidget* parent)
      : QToolButton(parent), code_(code) {
    setObjectName(QString("staple-%1").arg(code));
    setAccessibleName(name);
    setToolTip(name);
    setCheckable(true);
    setFixedSize(46, 58);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isChecked()) {
      painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
      painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 3, 3);
    }
    const QRectF sheet(rect().adjusted(11, 10, -11, -10));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(Qt::white);
    painter.drawRect(sheet);
    painter.setPen(QPen(isEnabled() ? QColor(0xb0, 0x20, 0x20) : QColor(Qt::gray), 2.4));
    const auto staple = [&](double x, double y, bool upright) {
      const QPointF at(sheet.left() + x * sheet.width(), sheet.top() + y * sheet.height());
      painter.drawLine(at - (upright ? QPointF(0, 3) : QPointF(3, 0)),
                       at + (upright ? QPointF(0, 3) : QPointF(3, 0)));
    };
    constexpr double kNear = 0.16;
    constexpr double kFar = 1 - kNear;
    switch (code_) {
      case kStapleTopLeft:
        return staple(kNear, kNear * 0.8, false);
      case kStapleTopRight:
        return staple(kFar, kNear * 0.8, false);
      case kStapleBottomLeft:
        return staple(kNear, 1 - kNear * 0.8, false);
      case kStapleBottomRight:
        return staple(kFar, 1 - kNear * 0.8, false);
      case kStapleDualLeft:
        return staple(kNear, 0.3, true), staple(kNear, 0.7, true);
      case kStapleDualRight:
        return staple(kFar, 0.3, true), staple(kFar, 0.7, true);
      case kStapleDualTop:
        return staple(0.3, kNear, false), staple(0.7, kNear, false);
      case kStapleDualBottom:
        return staple(0.3, kFar, false), staple(0.7, kFar, false);
      default:
        return;
    }
  }

 private:
  std::int32_t code_;
};

class FinishingPanel : public Panel {
 public:
  explicit FinishingPanel(const PanelContext& context) : Panel(context.document) {
    Group(tr("Staples"));
    auto* const sheet = new QWidget(this);
    auto* const grid = new QGridLayout(sheet);
    grid->setContentsMargins(0, 0, 0, 0);
    struct Spot {
      int row, column;
      std::int32_t code;
      QString name;
    };
    const std::vector<Spot> spots = {{0, 0, kStapleTopLeft, tr("One staple, top left")},
                                     {0, 1, kStapleDualTop, tr("Two staples at the top")},
                                     {0, 2, kStapleTopRight, tr("One staple, top right")},
                                     {1, 0, kStapleDualLeft, tr("Two staples at the left")},
                                     {1, 1, 0, tr("No staples")},
                                     {1, 2, kStapleDualRight, tr("Two staples at the right")},
                                     {2, 0, kStapleBottomLeft, tr("One staple, bottom left")},
                                     {2, 1, kStapleDualBottom, tr("Two staples at the bottom")},
                                     {2, 2, kStapleBottomRight, tr("One staple, bottom right")}};
    for (const Spot& spot : spots) {
      auto* const button = new StapleButton(spot.code, spot.name, sheet);
      grid->addWidget(button, spot.row, spot.column);
      const auto want = [code = spot.code](Finishing* finishing) { finishing->staple = code; };
      connect(button, &QToolButton::clicked, this, [=, this] { Take(spot.name, want); });
      OnRefresh([=, this] {
        const Finishing now = FinishingOf(document_->ticket());
        button->setChecked(now.staple == spot.code);
        Allow(button, spot.name, want);
      });
    }
    grid->setColumnStretch(3, 1);
    Row(sheet);
    Group(tr("Holes, folds and binding"));
    Box("punch", tr("Holes"), &Finishing::punch,
        {{tr("No holes"), 0},
         {tr("At the left"), kPunchLeft},
         {tr("At the top"), kPunchTop},
         {tr("At the right"), kPunchRight},
         {tr("At the bottom"), kPunchBottom}});
    Box("holes", tr("How many"), &Finishing::holes,
        {{"2", kTwoHoles}, {"3", kThreeHoles}, {"4", kFourHoles}});
    Box("fold", tr("Fold"), &Finishing::fold,
        {{tr("No fold"), 0},
         {tr("Half fold"), kFoldHalf},
         {tr("C fold"), kFoldC},
         {tr("Z fold"), kFoldZ},
         {tr("Half Z fold"), kZFold1011},
         {tr("Half Z fold, other side"), kZFold1008}});
    Box("bind", tr("Glue"), &Finishing::bind,
        {{tr("Not glued"), 0}, {tr("At the left"), kBindLeft}, {tr("At the right"), kBindRight}});
    Hint("finishing-hint", [](const Dictionary& ticket) {
      return FinishingOf(ticket).booklet != 0
                 ? tr("The sheets are finished as a booklet. Choose another finish here to have "
                      "that instead.")
                 : QString();
    });
    Text("FinishingCustom", tr("Template of the printer"));
  }

 private:
  using Want = std::function<void(Finishing*)>;

  /// What the finishing would be. A booklet's own finish gives way.
  Finishing With(const Want& want) const {
    Finishing finishing = FinishingOf(document_->ticket());
    finishing.booklet = 0;
    want(&finishing);
    if (finishing.punch == 0) finishing.holes = 0;
    if (finishing.punch != 0 && finishing.holes == 0) finishing.holes = kThreeHoles;
    return finishing;
  }

  void Take(const QString& what, const Want& want) {
    const Finishing finishing = With(want);
    document_->Change(what.toStdString(),
                      [&](Dictionary* ticket) { PutFinishing(finishing, ticket); });
    Refresh();
  }

  static QString Refusal() {
    return tr("The finisher has no way to do this together with what is chosen already.");
  }

  void Allow(QToolButton* button, const QString& name, const Want& want) {
    const bool can = CanFinish(With(want));
    button->setEnabled(can);
    button->setToolTip(can ? name : name + "\n" + Refusal());
    button->setStatusTip(can ? QString() : Refusal());
    button->setAccessibleDescription(can ? QString() : Refusal());
  }

  void Box(const char* name, const QString& label, std::int32_t Finishing::*field,
           std::vector<std::pair<QString, std::int32_t>> rows) {
    std::vector<Choice> choices;
    choices.reserve(rows.size());
    for (const auto& [text, code] : rows)
      choices.push_back({text, [this, field, code = code](Dictionary* ticket) {
                           PutFinishing(With([=](Finishing* f) { f->*field = code; }), ticket);
                         }});
    QComboBox* const box = Choices(name, label, choices, [field, rows](const Dictionary& ticket) {
      const Finishing now = FinishingOf(ticket);
      for (std::size_t i = 0; i < rows.size(); ++i)
        if (now.*field == rows[i].second) return static_cast<int>(i);
      return -1;
    });
    OnRefresh([=, this] {
      for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::int32_t code = rows[i].second;
        const bool can = CanFinish(With([=](Finishing* f) { f->*field = code; }));
        const int index = static_cast<int>(i);
        box->setItemText(index, can ? rows[i].first : rows[i].first + QStringLiteral(" \u26A0"));
        box->setItemData(index, can ? QString() : Refusal(), Qt::ToolTipRole);
        box->setItemData(index, can ? QString() : Refusal(), Qt::AccessibleDescriptionRole);
        box->setItemData(index, can ? QVariant() : QVariant(0), Qt::UserRole - 1);  // disabled
      }
      if (field == &Finishing::holes) ShowOnly(box, FinishingOf(document_->ticket()).punch != 0);
    });
  }
};

}  // namespace

Panel* MakeFinishingPanel(const PanelContext& context) { return new FinishingPanel(context); }

}  // namespace zarvo::desk
