// SPDX-License-Identifier: Apache-2.0
// The window's menus, tools and keys, and what they show.
#include <QAction>
#include <QActionGroup>
#include <QFileDialog>
#include <QLayout>
#include <QMenuBar>
#include <QRegularExpression>
#include <QShortcut>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

#include "Desk/view/MainWindow.h"

namespace zarvo::desk {

/// The letters by which the menus and the tools are reached.
QString MainWindow::MenuLetters() {
  QString letters;
  for (const QString& text :
       {tr("&File"), tr("&Edit"), tr("&View"), tr("&All sheets"), tr("&One side"),
        tr("As a &reader"), tr("&Open\u2026"), tr("&Undo"), tr("&Redo"), tr("&Print")})
    letters += text.mid(text.indexOf('&') + 1, 1);
  return letters;
}

void MainWindow::MakeActions() {
  QToolBar* const bar = tools_ = addToolBar(tr("Tools"));
  bar->setObjectName("tools");
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QMenu* const file = menuBar()->addMenu(tr("&File"));
  QMenu* const edit = menuBar()->addMenu(tr("&Edit"));
  QMenu* const view = menuBar()->addMenu(tr("&View"));
  const auto add = [this](QMenu* menu, const QString& text, const char* name,
                          const QKeySequence& keys, auto act) {
    QAction* const action = menu->addAction(text, this, act);
    action->setObjectName(name);
    action->setShortcut(keys);
    // Tools have no letters to be reached by, neither marked nor added.
    action->setIconText(QString(text).remove(QRegularExpression("\\(&.\\)|&")));
    return action;
  };
  QAction* const open = add(file, tr("&Open\u2026"), "open", QKeySequence::Open, [this] {
    const QString name = QFileDialog::getOpenFileName(
        this, tr("Open"), {},
        tr("Documents and pictures") +
            " (*.pdf *.ps *.eps *.png *.jpg *.jpeg *.gif *.tif *.tiff *.txt *.odt *.docx);;" +
            tr("All files") + " (*)");
    if (!name.isEmpty()) OpenDocument(name);
  });
  open->setIcon(
      QIcon::fromTheme("document-open", style()->standardIcon(QStyle::SP_DialogOpenButton)));
  recent_ = file->addMenu(tr("&Recent documents"));
  file->addSeparator();
  add(file, tr("&New settings"), "new-ticket", QKeySequence::New, [this] {
    if (!MayClose()) return;
    ticket_file_.clear();
    document_.Reset({});
  });
  add(file, tr("Open &settings\u2026"), "open-ticket", QKeySequence("Ctrl+Shift+O"), [this] {
    const QString name = QFileDialog::getOpenFileName(this, tr("Open settings"), {},
                                                      tr("Settings") + " (*.json *.plist)");
    if (!name.isEmpty() && MayClose()) OpenTicket(name);
  });
  add(file, tr("Save s&ettings"), "save-ticket", QKeySequence::Save, [this] { SaveTicket(false); });
  add(file, tr("Save settings &as\u2026"), "save-ticket-as", QKeySequence("Ctrl+Shift+S"),
      [this] { SaveTicket(true); });
  file->addSeparator();
  print_ = add(file, tr("&Print"), "print", QKeySequence::Print, [this] { Print(); });
  print_->setIcon(
      QIcon::fromTheme("document-print", style()->standardIcon(QStyle::SP_DialogApplyButton)));
  file->addSeparator();
  add(file, tr("&Quit"), "quit", QKeySequence::Quit, [this] { close(); });
  undo_ = add(edit, tr("&Undo"), "undo", QKeySequence::Undo, [this] { document_.Undo(); });
  undo_->setIcon(QIcon::fromTheme("edit-undo", style()->standardIcon(QStyle::SP_ArrowBack)));
  redo_ = add(edit, tr("&Redo"), "redo", QKeySequence::Redo, [this] { document_.Redo(); });
  redo_->setIcon(QIcon::fromTheme("edit-redo", style()->standardIcon(QStyle::SP_ArrowForward)));
  auto* const group = new QActionGroup(this);
  const std::pair<QString, const char*> kinds[] = {
      {tr("&All sheets"), "Ctrl+1"}, {tr("&One side"), "Ctrl+2"}, {tr("As a &reader"), "Ctrl+3"}};
  for (const auto& [text, keys] : kinds) {
    const int index = static_cast<int>(view_actions_.size());
    QAction* const action =
        add(view, text, "view", QKeySequence(keys), [this, index] { ShowView(index); });
    action->setCheckable(true);
    group->addAction(action);
    view_actions_.push_back(action);
  }
  view_actions_[0]->setChecked(true);
  view->addSeparator();
  add(view, tr("&Larger"), "larger", QKeySequence::ZoomIn, [this] { Zoom(1); });
  add(view, tr("&Smaller"), "smaller", QKeySequence::ZoomOut, [this] { Zoom(-1); });
  QAction* const marks = view->addAction(tr("&Show staples, holes and folds"));
  marks->setObjectName("marks");
  marks->setCheckable(true);
  marks->setChecked(true);
  connect(marks, &QAction::toggled, this, [this](bool shown) {
    grid_->SetMarks(shown);
    big_->SetMarks(shown);
  });
  bar->addAction(open);
  bar->addSeparator();
  bar->addAction(undo_);
  bar->addAction(redo_);
  bar->addSeparator();
  for (QAction* action : view_actions_) bar->addAction(action);
  auto* const space = new QWidget(bar);
  space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(space);
  queues_ = new QueueBox(scratch_, bar);
  connect(queues_, &QueueBox::QueueChanged, this, [this] {
    print_->setEnabled(CanPrint());
    FitTools();
  });
  connect(queues_, &QueueBox::Told, this, &MainWindow::Tell);
  connect(queues_, &QueueBox::PpdFetched, this,
          [this](const QString& ppd, const QString& renderer, const Dictionary& saved) {
            renderer_option_ = renderer.toStdString();
            SetPpd(ppd, saved);
          });
  bar->addWidget(queues_);
  bar->addAction(print_);
  told_by_icon_ = {open, undo_, redo_};
  const auto key = [this](const QKeySequence& keys, QWidget* where, auto act) {
    connect(new QShortcut(keys, where, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, act);
  };
  key(Qt::Key_Escape, big_, [this] { ShowView(0); });
  key(Qt::Key_Escape, message_, [this] {
    message_->hide();
    views_->currentWidget()->setFocus();
  });
  key(Qt::Key_F6, this, [this] { NextArea(); });
}

/// From the sheets to the groups of settings, to the fields, and round again.
void MainWindow::NextArea() {
  Panel* const panel = panels_[static_cast<std::size_t>(groups_->currentRow())].panel;
  const QWidget* const now = focusWidget();
  if (now == groups_ && panel->FocusFirst()) return;
  if (now == groups_ || panel->isAncestorOf(now)) {
    views_->currentWidget()->setFocus();
  } else {
    groups_->setFocus();
  }
}

/// With large letters the words of some tools would push the last ones out of the window, and the
/// last one is what all this is for.
void MainWindow::FitTools() {
  const auto show = [this](Qt::ToolButtonStyle style) {
    for (QAction* action : told_by_icon_)
      if (auto* const button = qobject_cast<QToolButton*>(tools_->widgetForAction(action)))
        button->setToolButtonStyle(style);
    tools_->layout()->invalidate();
  };
  show(Qt::ToolButtonTextBesideIcon);
  if (tools_->sizeHint().width() > width()) show(Qt::ToolButtonIconOnly);
}

void MainWindow::ShowView(int view) {
  view_actions_[static_cast<std::size_t>(view)]->setChecked(true);
  if (view > 0 && grid_->isVisible() && grid_->currentIndex().isValid())
    big_->SetRow(grid_->currentIndex().row());
  big_->SetSpread(view == 2);
  views_->setCurrentIndex(view == 0 ? 0 : 1);
  views_->currentWidget()->setFocus();
}

void MainWindow::Zoom(int steps) { zoom_->setValue(zoom_->value() + steps); }

void MainWindow::ShowPanel(const QString& name) {
  for (std::size_t i = 0; i < panels_.size(); ++i)
    if (name == panels_[i].name) groups_->setCurrentRow(static_cast<int>(i));
}

}  // namespace zarvo::desk
