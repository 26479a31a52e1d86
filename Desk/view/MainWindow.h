// SPDX-License-Identifier: Apache-2.0
// The window: the sheets beside the settings.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QProgressBar>
#include <QSlider>
#include <QStackedWidget>
#include <QToolBar>
#include <memory>

#include "Desk/model/TicketDocument.h"
#include "Desk/view/Panels.h"
#include "Desk/view/QueueBox.h"
#include "Desk/view/SheetViews.h"

namespace zarvo::desk {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// The folder is for what is drawn; it must outlive the window.
  explicit MainWindow(const ScratchFolder& scratch, QWidget* parent = nullptr);

  void OpenDocument(const QString& file);
  void OpenTicket(const QString& file);
  /// The choices of a print dialog; `remove` when the file is of no more use.
  void OpenGtkSettings(const QString& file, bool remove);
  /// A title other than the file's name, and not in the list of recent files: for what another
  /// program has made only to be looked at.
  void SetPassing(const QString& title);
  void SelectQueue(const QString& queue) { queues_->Want(queue); }
  /// A PPD file, and the options that the user keeps for its queue, which go below the settings of
  /// every job.
  void SetPpd(const QString& ppd, const Dictionary& saved = {});
  void Print();
  QueueBox& queues() { return *queues_; }

  TicketDocument& document() { return document_; }
  Renderer& renderer() { return *renderer_; }
  SheetGrid& grid() { return *grid_; }
  void ShowPanel(const QString& name);
  /// What went wrong, above the sheets.
  void Tell(const QString& text);
  QString told() const { return message_->isHidden() ? QString() : message_text_->text(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 signals:
  void PrintFinished(bool printed);

 private:
  void MakeActions();
  QWidget* MakeSettings();
  QWidget* MakeSheets();
  int WidestTitle() const;
  static QString MenuLetters();
  void NextArea();
  void FitTools();
  void ShowFindings();
  void Changed();
  void PlanChanged();
  bool CanPrint() const { return !renderer_->file().isEmpty() && !queues_->queue().isEmpty(); }
  void FillRecent();
  void ShowView(int view);
  void Zoom(int steps);
  bool MayClose();
  bool SaveTicket(bool as);

  const ScratchFolder& scratch_;
  TicketDocument document_;
  Renderer* renderer_;
  SheetModel* model_;
  SheetGrid* grid_;
  BigView* big_;
  QStackedWidget* views_;
  QListWidget* groups_;
  QStackedWidget* pages_;
  std::vector<PanelEntry> panels_;
  QToolBar* tools_;
  QueueBox* queues_;
  QSlider* zoom_;
  QProgressBar* progress_;
  QLabel* summary_;
  QLabel* findings_;
  QWidget* message_;
  QLabel* message_text_;
  QMenu* recent_;
  QAction* undo_;
  QAction* redo_;
  QAction* print_;
  std::vector<QAction*> view_actions_;
  std::vector<QAction*> told_by_icon_;  ///< tools that go without words where there is no room
  QString title_;
  bool passing_ = false;
  bool of_plan_ = false;  ///< what is told; the next plan takes it away
  QString ticket_file_;
  QString ppd_;
  std::string renderer_option_;
  Dictionary saved_;     ///< options that the user keeps for the queue
  Dictionary defaults_;  ///< what the queue does by itself, with those
};

}  // namespace zarvo::desk
