// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/SheetViews.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <algorithm>

namespace zarvo::desk {

constexpr int kMargin = 12;
constexpr int kMostTitleLines = 3;
constexpr int kPointsPerInch = 72;
constexpr int kMostDots = 5000;  // of a picture's side: below 128 MB, the toolkit's own limit

namespace {

int DotsFor(double pixels, double points) {
  return static_cast<int>(std::clamp(pixels * kPointsPerInch / points, 10.0, 600.0));
}

}  // namespace

SheetModel::SheetModel(Renderer* renderer, QObject* parent)
    : QAbstractListModel(parent), renderer_(renderer) {
  connect(renderer, &Renderer::PlanChanged, this, &SheetModel::TakePlan);
  connect(renderer, &Renderer::PictureChanged, this, [this](quint64 page) {
    for (int row = 0; row < rowCount(); ++row)
      if (Side(row).page == page) emit dataChanged(index(row), index(row));
  });
}

void SheetModel::TakePlan() {
  const auto rows = static_cast<int>(renderer_->plan().plan.sides.size());
  if (rows == rowCount() && rows > 0) {
    // Where only what is on the sides differs, what is selected and in view stays so.
    shown_ = renderer_->plan().plan;
    emit dataChanged(index(0), index(rows - 1));
    return;
  }
  beginResetModel();
  shown_ = renderer_->plan().plan;
  endResetModel();
}

int SheetModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.sides.size());
}

const tool::PlannedSide& SheetModel::Side(int row) const {
  return shown_.sides[static_cast<std::size_t>(row)];
}

SideLook SheetModel::LookOf(int row) const {
  const std::uint64_t page = Side(row).page;
  return {renderer_->Picture(page), renderer_->IsFresh(page) || !renderer_->IsBusy(), true};
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (role == Qt::DisplayRole) return SideTitle(Side(index.row()), shown_.two_sided);
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
    return SideWords(Side(index.row()), shown_.two_sided);
  return {};
}

class SheetDelegate : public QStyledItemDelegate {
 public:
  SheetDelegate(SheetModel* model, SheetGrid* grid)
      : QStyledItemDelegate(grid), model_(model), grid_(grid) {}

  /// As wide as a picture of whole dots per inch is, so that it is drawn dot for dot.
  static QRectF Place(const QRect& cell, const tool::PlannedSide& side, int width, double ratio) {
    const QSizeF points = UprightSize(side);
    const QSizeF size = points * DotsFor(width * ratio, points.width()) / kPointsPerInch / ratio;
    return QRectF(
        QPointF(std::round(cell.left() + (cell.width() - size.width()) / 2), cell.top() + kMargin),
        size);
  }

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return grid_->gridSize();
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const tool::PlannedSide& side = model_->Side(index.row());
    const QRectF place = Place(option.rect, side, grid_->sheet_width(), grid_->devicePixelRatioF());
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (selected) painter->fillRect(option.rect.adjusted(2, 2, -2, -2), option.palette.highlight());
    SideLook look = model_->LookOf(index.row());
    look.marks = grid_->marks();
    PaintSide(painter, place, side, model_->plan(), look);
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const int height = grid_->title_height();
    const QRect text(option.rect.left() + 2, option.rect.bottom() - height - 4,
                     option.rect.width() - 4, height + 2);
    painter->drawText(text, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                      index.data().toString());
    if (option.state.testFlag(QStyle::State_HasFocus)) {
      painter->setPen(QPen(option.palette.color(QPalette::Highlight), 1, Qt::DotLine));
      painter->setBrush(Qt::NoBrush);
      painter->drawRect(option.rect.adjusted(3, 3, -4, -4));
    }
  }

 private:
  SheetModel* model_;
  SheetGrid* grid_;
};

SheetGrid::SheetGrid(SheetModel* model, QWidget* parent) : QListView(parent), model_(model) {
  setModel(model);
  setItemDelegate(new SheetDelegate(model, this));
  setViewMode(QListView::IconMode);
  setMovement(QListView::Static);
  setResizeMode(QListView::Adjust);
  setLayoutMode(QListView::Batched);
  setBatchSize(200);
  setUniformItemSizes(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setObjectName("sheet-grid");
  setAccessibleName(tr("Sheets as they are delivered"));
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &SheetGrid::AskForVisible);
  connect(model, &QAbstractItemModel::modelReset, this, &SheetGrid::LayOut);
  connect(model, &QAbstractItemModel::dataChanged, this,
          [this](const QModelIndex& first, const QModelIndex& last) {
            if (first != last) LayOut();
          });
  LayOut();
}

void SheetGrid::SetSheetWidth(int width) {
  width_ = width;
  LayOut();
}

void SheetGrid::SetMarks(bool shown) {
  marks_ = shown;
  viewport()->update();
}

void SheetGrid::LayOut() {
  double tallest = 0.5;
  for (const tool::PlannedSide& side : model_->plan().sides) {
    const QSizeF points = UprightSize(side);
    tallest = std::max(tallest, std::min(points.height() / points.width(), 2.0));
  }
  // With large letters, or small sheets, a title takes more than one line.
  QString longest;
  for (int row = 0; row < model_->rowCount(); ++row) {
    const QString title = model_->index(row).data().toString();
    if (title.size() > longest.size()) longest = title;
  }
  const int width = width_ + 2 * kMargin;
  title_height_ = std::clamp(
      fontMetrics().boundingRect({0, 0, width - 4, 0}, Qt::TextWordWrap, longest).height(),
      fontMetrics().height(), kMostTitleLines * fontMetrics().lineSpacing());
  setGridSize(
      QSize(width, static_cast<int>(std::ceil(width_ * tallest)) + 2 * kMargin + title_height_));
  scheduleDelayedItemsLayout();
  QMetaObject::invokeMethod(this, &SheetGrid::AskForVisible, Qt::QueuedConnection);
}

QRectF SheetGrid::PlaceOf(int row) const {
  return SheetDelegate::Place(visualRect(model_->index(row)), model_->Side(row), width_,
                              devicePixelRatioF());
}

std::vector<std::uint32_t> SheetGrid::SelectedPages() const {
  std::vector<std::uint32_t> pages;
  for (const QModelIndex& index : selectionModel()->selectedIndexes()) {
    if (const std::uint64_t page = model_->Side(index.row()).page; page != 0)
      pages.push_back(static_cast<std::uint32_t>(page));
  }
  std::sort(pages.begin(), pages.end());
  return pages;
}

void SheetGrid::AskForVisible() {
  if (!isVisible() || model_->rowCount() == 0) return;
  const QSize cell = gridSize();
  const int columns = std::max(1, (viewport()->width() - 1) / cell.width());
  const int top = verticalScrollBar()->value();
  const int first = std::max(0, top / cell.height() * columns);
  const int last =
      std::min(model_->rowCount(), ((top + viewport()->height()) / cell.height() + 1) * columns);
  std::vector<std::uint64_t> pages;
  for (int row = first; row < last; ++row)
    if (model_->Side(row).page != 0) pages.push_back(model_->Side(row).page);
  if (pages.empty()) return;
  const QRectF place(0, 0, width_, width_);
  const double ratio = devicePixelRatioF();
  const auto shown = std::find_if(model_->plan().sides.begin(), model_->plan().sides.end(),
                                  [](const auto& side) { return side.page != 0; });
  model_->renderer()->SetWanted(pages, DotsFor(place.width() * ratio, UprightSize(*shown).width()));
}

void SheetGrid::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  AskForVisible();
}

void SheetGrid::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  AskForVisible();
}

void SheetGrid::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!model_->renderer()->file().isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.4);
  painter.setFont(large);
  painter.drawText(viewport()->rect().adjusted(40, 40, -40, -40),
                   Qt::AlignCenter | Qt::TextWordWrap, tr("Drop a document here, or choose Open."));
}

void SheetGrid::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    emit ZoomAsked(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
    return;
  }
  QListView::wheelEvent(event);
}

BigView::BigView(SheetModel* model, QWidget* parent) : QAbstractScrollArea(parent), model_(model) {
  setObjectName("big-view");
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("One sheet, large"));
  connect(model, &QAbstractItemModel::modelReset, this, [this] { SetRow(0); });
  connect(model, &QAbstractItemModel::dataChanged, this, [this] { LayOut(); });
}

void BigView::SetSpread(bool spread) {
  spread_ = spread;
  LayOut();
  AskForVisible();
}

void BigView::SetRow(int row) {
  row_ = std::clamp(row, 0, std::max(model_->rowCount() - 1, 0));
  LayOut();
  AskForVisible();
  emit RowChanged(row_);
}

void BigView::SetZoom(double zoom) {
  zoom_ = zoom;
  LayOut();
  AskForVisible();
}

void BigView::SetMarks(bool shown) {
  marks_ = shown;
  viewport()->update();
}

/// Two sides lie open together: the back of a sheet and the front of the next one.
std::vector<int> BigView::Rows() const {
  if (model_->rowCount() == 0) return {};
  if (!spread_) return {row_};
  const bool back = !model_->Side(row_).front;
  if (back) return row_ + 1 < model_->rowCount() ? std::vector{row_, row_ + 1} : std::vector{row_};
  if (row_ > 0 && !model_->Side(row_ - 1).front) return {row_ - 1, row_};
  return {row_};
}

double BigView::Scale() const {
  const double ratio = devicePixelRatioF();
  double wanted = zoom_ * logicalDpiX();
  double width = 0;
  double height = 1;
  for (const int row : Rows()) {
    width += UprightSize(model_->Side(row)).width();
    height = std::max(height, UprightSize(model_->Side(row)).height());
  }
  if (zoom_ <= 0) {
    const QSize room = viewport()->size() - QSize(2 * kMargin, 2 * kMargin);
    wanted = kPointsPerInch * std::min(room.width() / std::max(width, 1.0), room.height() / height);
  }
  // Whole dots per inch, so that pictures are drawn dot for dot; of a poster no more than fit.
  return std::min(DotsFor(wanted * ratio, kPointsPerInch),
                  DotsFor(kMostDots, std::max(width, height))) /
         ratio / kPointsPerInch;
}

void BigView::LayOut() {
  double width = 0;
  double height = 0;
  const double scale = Scale();
  for (const int row : Rows()) {
    width += UprightSize(model_->Side(row)).width() * scale;
    height = std::max(height, UprightSize(model_->Side(row)).height() * scale);
  }
  const auto fit = [](QScrollBar* bar, double need, int room) {
    bar->setRange(0, std::max(0, static_cast<int>(need) + 2 * kMargin - room));
    bar->setPageStep(room);
    bar->setSingleStep(40);
  };
  QStringList words;
  for (const int row : Rows()) words << SideWords(model_->Side(row), model_->plan().two_sided);
  setAccessibleDescription(words.join('\n'));
  fit(horizontalScrollBar(), width, viewport()->width());
  fit(verticalScrollBar(), height, viewport()->height());
  viewport()->update();
}

void BigView::paintEvent(QPaintEvent* event) {
  Q_UNUSED(event);
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().mid());
  const double scale = Scale();
  double width = 0;
  double height = 0;
  for (const int row : Rows()) {
    width += UprightSize(model_->Side(row)).width() * scale;
    height = std::max(height, UprightSize(model_->Side(row)).height() * scale);
  }
  double x =
      std::max<double>(kMargin, (viewport()->width() - width) / 2) - horizontalScrollBar()->value();
  const double y =
      std::max<double>(kMargin, (viewport()->height() - height) / 2) - verticalScrollBar()->value();
  for (const int row : Rows()) {
    const QSizeF size = UprightSize(model_->Side(row)) * scale;
    SideLook look = model_->LookOf(row);
    look.marks = marks_;
    PaintSide(&painter, QRectF(QPointF(std::round(x), std::round(y)), size), model_->Side(row),
              model_->plan(), look);
    x += size.width();
  }
}

void BigView::AskForVisible() {
  if (!isVisible() || model_->rowCount() == 0) return;
  std::vector<std::uint64_t> pages;
  for (const int row : Rows()) {
    if (model_->Side(row).page != 0) pages.push_back(model_->Side(row).page);
  }
  if (!pages.empty())
    model_->renderer()->SetWanted(
        pages, static_cast<int>(std::lround(Scale() * devicePixelRatioF() * kPointsPerInch)));
}

void BigView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  LayOut();
  AskForVisible();
}

void BigView::showEvent(QShowEvent* event) {
  QAbstractScrollArea::showEvent(event);
  LayOut();
  AskForVisible();
}

void BigView::Turn(int by) {
  const std::vector<int> rows = Rows();
  if (rows.empty()) return;
  SetRow(by > 0 ? rows.back() + 1 : rows.front() - 1);
}

void BigView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_PageDown:
    case Qt::Key_Space:
      return Turn(1);
    case Qt::Key_Left:
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
      return Turn(-1);
    case Qt::Key_Home:
      return SetRow(0);
    case Qt::Key_End:
      return SetRow(model_->rowCount() - 1);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void BigView::wheelEvent(QWheelEvent* event) {
  if (verticalScrollBar()->maximum() > 0) return QAbstractScrollArea::wheelEvent(event);
  if (event->angleDelta().y() != 0) Turn(event->angleDelta().y() < 0 ? 1 : -1);
}

}  // namespace zarvo::desk
