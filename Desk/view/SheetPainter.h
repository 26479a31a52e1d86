// SPDX-License-Identifier: Apache-2.0
// Draws a side of a delivered sheet: the page, the paper, and what the finisher does to it.
#pragma once

#include <QImage>
#include <QPainter>
#include <QString>

#include "Tools/zarvo/job/SheetPlan.h"

namespace zarvo::desk {

/// The side's width and height as it is looked at, in points.
QSizeF UprightSize(const tool::PlannedSide& side);

/// "3, back: page 6" for the sheet's number, side and page.
QString SideTitle(const tool::PlannedSide& side, bool two_sided);
/// All there is to say about it.
QString SideWords(const tool::PlannedSide& side, bool two_sided);

struct SideLook {
  const QImage* picture = nullptr;  ///< null while there is none
  bool fresh = true;                ///< shows the present settings
  bool marks = true;                ///< whether staples and the like are drawn
};

/// Fills the rectangle, which has the side's proportions.
void PaintSide(QPainter* painter, const QRectF& place, const tool::PlannedSide& side,
               const tool::SheetPlan& plan, const SideLook& look);

}  // namespace zarvo::desk
