// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/SheetPainter.h"

#include <QCoreApplication>
#include <QPaintDevice>
#include <algorithm>
#include <utility>

#include "Desk/view/Translations.h"

namespace zarvo::desk {
namespace {

/// The paper's colour, from the words for its stock.
QColor PaperColor(const std::string& words) {
  static constexpr std::pair<const char*, QRgb> kColors[] = {
      {"blue", 0xffcfe0f5}, {"yellow", 0xfffff6b8},    {"green", 0xffd3eccd}, {"pink", 0xfff8d4de},
      {"buff", 0xfff3e2c0}, {"goldenrod", 0xfff6d98a}, {"red", 0xfff3c0bb},   {"ivory", 0xfffffbe6},
      {"gray", 0xffe0e0e0}, {"orange", 0xfffbd6ae},    {"clear", 0xfff2f8fa}};
  for (const auto& [word, color] : kColors)
    if (words.find(word) != std::string::npos) return QColor(color);
  return Qt::white;
}

/// Fractions of the width and the height.
struct Edge {
  QPointF from, to;
};
constexpr double kNear = 0.04;
Edge EdgeOf(char where) {
  switch (where) {
    case 'l':
      return {{kNear, 0}, {kNear, 1}};
    case 'r':
      return {{1 - kNear, 0}, {1 - kNear, 1}};
    case 't':
      return {{0, kNear}, {1, kNear}};
    default:
      return {{0, 1 - kNear}, {1, 1 - kNear}};
  }
}

class Marks {
 public:
  Marks(QPainter* painter, const QRectF& place, bool front)
      : painter_(painter), place_(place), front_(front) {}

  void Paint(const tool::FinishingCodes& codes) {
    int holes = 0;
    for (const int code : codes) {
      if (code >= 90 && code <= 92) holes = code - 88;
    }
    for (const int code : codes) One(code, holes == 0 ? 3 : holes);
  }

 private:
  QPointF At(QPointF fraction) const {
    // The back is seen from the other side.
    if (!front_) fraction.setX(1 - fraction.x());
    return {place_.left() + fraction.x() * place_.width(),
            place_.top() + fraction.y() * place_.height()};
  }

  void Staple(QPointF at, bool upright) {
    const double length = std::max(place_.width() / 28, 3.0);
    painter_->setPen(QPen(QColor(0xc0, 0x18, 0x18), std::max(place_.width() / 90, 2.0),
                          Qt::SolidLine, Qt::RoundCap));
    const QPointF half = upright ? QPointF(0, length) : QPointF(length, 0);
    painter_->drawLine(At(at) - half, At(at) + half);
  }

  void Along(char where, int count, const std::function<void(QPointF, bool)>& draw) {
    const Edge edge = EdgeOf(where);
    for (int i = 0; i < count; ++i) {
      const double part = count == 1 ? 0.5 : 0.25 + 0.5 * i / (count - 1);
      draw(edge.from + (edge.to - edge.from) * part, where == 'l' || where == 'r');
    }
  }

  void Line(QPointF from, QPointF to, const QColor& color, double width, Qt::PenStyle style) {
    painter_->setPen(QPen(color, width, style));
    painter_->drawLine(At(from), At(to));
  }

  void One(int code, int holes) {
    constexpr char kEdges[] = {'l', 't', 'r', 'b'};
    const QColor fold(0x30, 0x60, 0xa0);
    if (code >= 20 && code <= 23) {
      const bool right = code >= 22;
      const bool bottom = code % 2 == 1;
      Staple({right ? 0.94 : 0.06, bottom ? 0.955 : 0.045}, false);
    } else if (code >= 28 && code <= 35) {
      Along(kEdges[code % 4], code < 32 ? 2 : 3,
            [this](QPointF at, bool upright) { Staple(at, upright); });
    } else if (code >= 93 && code <= 96) {
      const double size = std::max(place_.width() / 60, 2.0);
      painter_->setPen(QPen(QColor(0x50, 0x50, 0x50), 1));
      painter_->setBrush(QColor(0x70, 0x70, 0x70));
      Along(kEdges[code - 93], holes,
            [&](QPointF at, bool) { painter_->drawEllipse(At(at), size, size); });
    } else if (code == 50 || code == 52) {
      const double at = code == 50 ? 0.012 : 0.988;
      Line({at, 0}, {at, 1}, QColor(0x70, 0x50, 0x30), std::max(place_.width() / 42, 3.0),
           Qt::SolidLine);
    } else if (code == 13 || code == 3 || code == 110 || code == 111) {
      Line({0.5, 0}, {0.5, 1}, fold, 1.5, Qt::DashLine);
      if (code != 111)
        for (const double y : {0.25, 0.75}) Staple({0.5, y}, true);
    } else if (code == 1000 || code == 1001) {
      for (const double y : {1.0 / 3, 2.0 / 3}) Line({0, y}, {1, y}, fold, 1.5, Qt::DashLine);
    } else if (code >= 1002) {
      Line({0, 0.5}, {1, 0.5}, fold, 1.5, Qt::DashLine);
    }
  }

  QPainter* painter_;
  QRectF place_;
  bool front_;
};

void PaintPicture(QPainter* painter, const QRectF& place, const QImage& picture) {
  const double ratio = painter->device()->devicePixelRatioF();
  // Dot for dot where it was made for this size; it is off by a dot at most.
  if (std::abs(picture.width() - place.width() * ratio) <= 1.5 &&
      std::abs(picture.height() - place.height() * ratio) <= 1.5) {
    const QPointF at(std::round(place.left() * ratio) / ratio,
                     std::round(place.top() * ratio) / ratio);
    QImage dots = picture;
    dots.setDevicePixelRatio(ratio);
    painter->drawImage(at, dots);
    return;
  }
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  painter->drawImage(place, picture);
}

}  // namespace

QSizeF UprightSize(const tool::PlannedSide& side) {
  const QSizeF size(std::max(side.width, 1), std::max(side.height, 1));
  return side.turn == 0 ? size : size.transposed();
}

QString SideTitle(const tool::PlannedSide& side, bool two_sided) {
  QString sheet = QString::number(side.sheet);
  if (side.count > 1) sheet += QStringLiteral("\u2013%1").arg(side.sheet + side.count - 1);
  if (side.page == 0) return QCoreApplication::translate("Sheets", "Sheet %1").arg(sheet);
  if (!two_sided)
    return QCoreApplication::translate("Sheets", "Page %2 · sheet %1").arg(sheet).arg(side.page);
  return (side.front ? QCoreApplication::translate("Sheets", "Page %2 · sheet %1, front")
                     : QCoreApplication::translate("Sheets", "Page %2 · sheet %1, back"))
      .arg(sheet)
      .arg(side.page);
}

QString SideWords(const tool::PlannedSide& side, bool two_sided) {
  QStringList words = {SideTitle(side, two_sided)};
  for (const std::string* text : {&side.text, &side.stock, &side.exception})
    if (!text->empty()) words << Localized(*text);
  return words.join('\n');
}

void PaintSide(QPainter* painter, const QRectF& place, const tool::PlannedSide& side,
               const tool::SheetPlan& plan, const SideLook& look) {
  painter->save();
  const QColor paper = PaperColor(side.text + " " + side.stock);
  painter->fillRect(place.translated(2, 2), QColor(0, 0, 0, 50));
  painter->fillRect(place, paper);
  if (look.picture != nullptr) {
    if (!look.fresh) painter->setOpacity(0.45);
    // White paper of the picture lets a coloured stock show through.
    if (paper != Qt::white) painter->setCompositionMode(QPainter::CompositionMode_Multiply);
    PaintPicture(painter, place, *look.picture);
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter->setOpacity(1);
  }
  painter->setRenderHint(QPainter::Antialiasing);
  if (side.page == 0) {
    QFont font = painter->font();
    // On one half of a sheet that is folded.
    const QRectF room =
        plan.booklet ? QRectF(place.center().x(), place.top(), place.width() / 2, place.height())
                     : place;
    font.setPixelSize(std::clamp(static_cast<int>(room.width() / (plan.booklet ? 8 : 12)), 9, 24));
    painter->setFont(font);
    painter->setPen(QColor(0x40, 0x40, 0x40));
    painter->drawText(room.adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap,
                      Localized(side.text));
  }
  if (!side.exception.empty() && look.marks) {
    const QColor tint(0xe0, 0x8a, 0x00);
    QColor wash = tint;
    wash.setAlpha(28);
    painter->fillRect(place, wash);
    painter->setPen(QPen(tint, 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(place.adjusted(1, 1, -1, -1));
  }
  if (look.marks && side.kind != tool::PlannedSide::Kind::kSlipSheet)
    Marks(painter, place, side.front).Paint(plan.finishings);
  painter->setRenderHint(QPainter::Antialiasing, false);
  painter->setBrush(Qt::NoBrush);
  painter->setPen(QColor(0, 0, 0, 70));
  painter->drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
  painter->restore();
}

}  // namespace zarvo::desk
