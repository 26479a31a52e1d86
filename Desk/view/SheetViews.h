// SPDX-License-Identifier: Apache-2.0
// The sheets as a grid, and one or two of them large.
#pragma once

#include <QAbstractListModel>
#include <QAbstractScrollArea>
#include <QListView>

#include "Desk/model/Renderer.h"
#include "Desk/view/SheetPainter.h"

namespace zarvo::desk {

/// The sides of the renderer's plan, one a row.
class SheetModel : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit SheetModel(Renderer* renderer, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  const tool::PlannedSide& Side(int row) const;
  const tool::SheetPlan& plan() const { return shown_; }
  SideLook LookOf(int row) const;
  Renderer* renderer() const { return renderer_; }

 private:
  void TakePlan();

  Renderer* renderer_;
  tool::SheetPlan shown_;
};

class SheetGrid : public QListView {
  Q_OBJECT

 public:
  explicit SheetGrid(SheetModel* model, QWidget* parent = nullptr);

  /// Of a sheet's width, in pixels of the screen that do not depend on its density.
  void SetSheetWidth(int width);
  int sheet_width() const { return width_; }
  void SetMarks(bool shown);
  int title_height() const { return title_height_; }
  bool marks() const { return marks_; }
  std::vector<std::uint32_t> SelectedPages() const;
  /// Where the side is drawn, in the viewport.
  QRectF PlaceOf(int row) const;

  /// Asks the renderer for what is to be seen.
  void AskForVisible();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 signals:
  void ZoomAsked(int steps);

 private:
  friend class SheetDelegate;
  void LayOut();

  SheetModel* model_;
  int width_ = 170;
  int title_height_ = 0;  // below each sheet
  bool marks_ = true;
};

/// One side, or two as a reader sees them when turning pages.
class BigView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit BigView(SheetModel* model, QWidget* parent = nullptr);

  void SetSpread(bool spread);
  void SetRow(int row);
  int row() const { return row_; }
  void SetZoom(double zoom);  ///< 0 fits the window
  void SetMarks(bool shown);
  void AskForVisible();

 signals:
  void RowChanged(int row);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  std::vector<int> Rows() const;
  double Scale() const;
  void LayOut();
  void Turn(int by);

  SheetModel* model_;
  int row_ = 0;
  bool spread_ = false;
  bool marks_ = true;
  double zoom_ = 0;
};

}  // namespace zarvo::desk
