// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/MainWindow.h"

#include <QAccessible>
#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include "Desk/model/GtkSettings.h"
#include "Desk/view/PrintDialog.h"
#include "Desk/view/Translations.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/ticket/TicketCheck.h"
#include "Tools/zarvo/ticket/TicketText.h"

namespace zarvo::desk {

namespace {

constexpr int kMostRecent = 10;
constexpr int kWidths[] = {60, 80, 110, 140, 170, 210, 260, 320, 400, 520, 680};
constexpr int kUsualWidth = 4;  // of them

/// A panel that scrolls up and down only, and therefore is never narrower than it needs: what is
/// objected to is marked while the person works, which makes choices longer.
class PanelScroll : public QScrollArea {
 public:
  explicit PanelScroll(QWidget* panel) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);  // it has no name and does nothing that its fields do not pass on
    setWidget(panel);
  }

  QSize minimumSizeHint() const override {
    QSize size = QScrollArea::minimumSizeHint();
    size.setWidth(widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width());
    return size;
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }
};

}  // namespace

MainWindow::MainWindow(const ScratchFolder& scratch, QWidget* parent)
    : QMainWindow(parent), scratch_(scratch) {
  setObjectName("main-window");
  setAcceptDrops(true);
  renderer_ = new Renderer(scratch, this);
  model_ = new SheetModel(renderer_, this);
  auto* const splitter = new QSplitter(this);
  splitter->setObjectName("splitter");
  splitter->addWidget(MakeSheets());
  splitter->addWidget(MakeSettings());
  splitter->setStretchFactor(0, 1);
  splitter->setSizes({10000, 1});  // the sheets take all that the settings leave
  splitter->setChildrenCollapsible(false);
  setCentralWidget(splitter);
  MakeActions();
  summary_ = new QLabel(this);
  summary_->setObjectName("summary");
  progress_ = new QProgressBar(this);
  progress_->setMaximumWidth(220);
  progress_->setAccessibleName(tr("Progress of drawing"));
  progress_->hide();
  zoom_ = new QSlider(Qt::Horizontal, this);
  zoom_->setRange(0, static_cast<int>(std::size(kWidths)) - 1);
  zoom_->setValue(kUsualWidth);
  zoom_->setMaximumWidth(140);
  zoom_->setAccessibleName(tr("Size of the sheets"));
  zoom_->setToolTip(tr("Size of the sheets"));
  connect(zoom_, &QSlider::valueChanged, this, [this](int value) {
    grid_->SetSheetWidth(kWidths[value]);
    constexpr double kBig[] = {0.25, 0.33, 0.5, 0.67, 0, 0.8, 1, 1.25, 1.5, 2, 3};
    big_->SetZoom(kBig[value]);
  });
  statusBar()->addWidget(summary_, 1);
  statusBar()->addPermanentWidget(progress_);
  statusBar()->addPermanentWidget(zoom_);

  connect(renderer_, &Renderer::PlanChanged, this, &MainWindow::PlanChanged);
  connect(renderer_, &Renderer::Progress, this, [this](const QString& stage, int done, int total) {
    progress_->setRange(0, total);
    progress_->setValue(done);
    progress_->setFormat(stage == "convert" ? tr("Converting") : tr("Drawing %v of %m"));
    progress_->show();
  });
  connect(renderer_, &Renderer::Idle, progress_, &QWidget::hide);
  connect(renderer_, &Renderer::Failed, this, [this](const QString& text) {
    progress_->hide();
    Tell(QFileInfo(renderer_->file()).fileName() + ": " + Localized(text));
    of_plan_ = true;
  });
  document_.Listen([this] { Changed(); });
  connect(grid_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    for (const PanelEntry& entry : panels_)
      if (qstrcmp(entry.name, "pages") == 0) entry.panel->Refresh();
  });
  connect(grid_, &SheetGrid::ZoomAsked, this, &MainWindow::Zoom);
  connect(grid_, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
    big_->SetRow(index.row());
    ShowView(1);
  });
  QSettings settings;
  restoreGeometry(settings.value("window/geometry").toByteArray());
  restoreState(settings.value("window/state").toByteArray());
  splitter->restoreState(settings.value("window/splitter").toByteArray());
  zoom_->setValue(settings.value("window/zoom", kUsualWidth).toInt());
  if (!settings.contains("window/geometry")) resize(1280, 720);
  FillRecent();
  Changed();
  queues_->AskQueues();
}

QWidget* MainWindow::MakeSheets() {
  auto* const area = new QWidget(this);
  auto* const layout = new QVBoxLayout(area);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  message_ = new QFrame(area);
  message_->setObjectName("message");
  static_cast<QFrame*>(message_)->setFrameShape(QFrame::StyledPanel);
  auto* const row = new QHBoxLayout(message_);
  auto* const icon = new QLabel(message_);
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
  message_text_ = new QLabel(message_);
  message_text_->setObjectName("message-text");
  message_text_->setWordWrap(true);
  message_text_->setTextFormat(Qt::PlainText);
  message_text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const close = new QPushButton(tr("Close"), message_);
  close->setObjectName("message-close");
  connect(close, &QPushButton::clicked, message_, &QWidget::hide);
  row->addWidget(icon);
  row->addWidget(message_text_, 1);
  row->addWidget(close);
  message_->hide();
  grid_ = new SheetGrid(model_, area);
  big_ = new BigView(model_, area);
  views_ = new QStackedWidget(area);
  views_->addWidget(grid_);
  views_->addWidget(big_);
  layout->addWidget(message_);
  layout->addWidget(views_, 1);
  return area;
}

int MainWindow::WidestTitle() const {
  int widest = 0;
  for (const PanelEntry& entry : panels_)
    widest = std::max(widest, fontMetrics().horizontalAdvance(entry.title));
  return widest;
}

QWidget* MainWindow::MakeSettings() {
  auto* const area = new QWidget(this);
  auto* const layout = new QHBoxLayout(area);
  layout->setContentsMargins(0, 0, 0, 0);
  groups_ = new QListWidget(area);
  groups_->setObjectName("groups");
  groups_->setAccessibleName(tr("Groups of settings"));
  groups_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  pages_ = new QStackedWidget(area);
  panels_ = MakePanels({&document_, [this] { return grid_->SelectedPages(); },
                        [this](const QString& text) { Tell(text); }, &defaults_, &saved_,
                        [this] { renderer_->Redraw(); }});
  for (const PanelEntry& entry : panels_) {
    entry.panel->GiveMnemonics(MenuLetters());
    entry.panel->setObjectName(QString("panel-") + entry.name);
    pages_->addWidget(new PanelScroll(entry.panel));
    groups_->addItem(entry.title);
    groups_->item(groups_->count() - 1)->setSizeHint({0, fontMetrics().height() + 16});
  }
  groups_->setFixedWidth(WidestTitle() + 2 * groups_->frameWidth() + 24);
  connect(groups_, &QListWidget::currentRowChanged, pages_, &QStackedWidget::setCurrentIndex);
  groups_->setCurrentRow(0);
  findings_ = new QLabel(area);
  findings_->setObjectName("findings");
  findings_->setWordWrap(true);
  findings_->setTextFormat(Qt::PlainText);
  findings_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  findings_->setContentsMargins(6, 6, 6, 6);
  auto* const column = new QVBoxLayout;
  column->addWidget(pages_, 1);
  column->addWidget(findings_);
  layout->addWidget(groups_);
  layout->addLayout(column, 1);
  return area;
}

void MainWindow::Tell(const QString& text) {
  if (text.isEmpty() || message_ == nullptr) return;
  message_text_->setText(Localized(text));
  message_->show();
  QAccessibleEvent alert(message_text_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  of_plan_ = false;
}

void MainWindow::OpenDocument(const QString& file) {
  const QFileInfo info(file);
  if (!info.isFile() || !info.isReadable()) {
    Tell(tr("%1 cannot be read.").arg(file));
    return;
  }
  message_->hide();
  passing_ = false;
  title_ = info.fileName();
  renderer_->SetFile(info.absoluteFilePath());
  QSettings settings;
  QStringList recent = settings.value("recent").toStringList();
  recent.removeAll(info.absoluteFilePath());
  recent.prepend(info.absoluteFilePath());
  settings.setValue("recent", recent.mid(0, kMostRecent));
  FillRecent();
  Changed();
}

void MainWindow::SetPassing(const QString& title) {
  passing_ = true;
  if (!title.isEmpty()) title_ = title;
  QSettings settings;
  QStringList recent = settings.value("recent").toStringList();
  recent.removeAll(renderer_->file());
  settings.setValue("recent", recent);
  FillRecent();
  Changed();
}

void MainWindow::FillRecent() {
  recent_->clear();
  for (const QString& name : QSettings().value("recent").toStringList())
    recent_->addAction(QFileInfo(name).fileName(), this, [this, name] { OpenDocument(name); })
        ->setToolTip(name);
  recent_->setEnabled(!recent_->isEmpty());
}

void MainWindow::OpenTicket(const QString& file) {
  if (const Failure failure = document_.Open(file.toStdString()); !failure.empty()) {
    Tell(file + ": " + QString::fromStdString(failure));
    return;
  }
  ticket_file_ = file;
  Changed();
}

void MainWindow::OpenGtkSettings(const QString& file, bool remove) {
  QFile settings(file);
  if (!QFileInfo(file).isFile() || !settings.open(QIODevice::ReadOnly)) {
    Tell(tr("%1 cannot be read.").arg(file));
    return;
  }
  constexpr qint64 kMost = 1 << 20;
  GtkSettings read = ReadGtkSettings(settings.read(kMost).toStdString());
  if (remove) settings.remove();
  if (!read.queue.empty()) queues_->Want(QString::fromStdString(read.queue));
  document_.Reset(std::move(read.ticket));
}

bool MainWindow::SaveTicket(bool as) {
  QString name = ticket_file_;
  if (as || name.isEmpty())
    name = QFileDialog::getSaveFileName(this, tr("Save settings"), "settings.json",
                                        tr("Settings") + " (*.json)");
  if (name.isEmpty()) return false;
  if (const Failure failure = document_.Save(name.toStdString()); !failure.empty()) {
    Tell(name + ": " + QString::fromStdString(failure));
    return false;
  }
  ticket_file_ = name;
  Changed();
  return true;
}

bool MainWindow::MayClose() {
  if (!document_.IsChanged() || ticket_file_.isEmpty()) return true;
  const auto answer = QMessageBox::question(
      this, tr("Settings"), tr("Save the changed settings to %1?").arg(ticket_file_),
      QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && SaveTicket(false));
}

void MainWindow::Changed() {
  for (const PanelEntry& entry : panels_) entry.panel->Refresh();
  ShowFindings();
  undo_->setEnabled(document_.CanUndo());
  redo_->setEnabled(document_.CanRedo());
  undo_->setToolTip(tr("Undo: %1").arg(QString::fromStdString(document_.UndoName())));
  redo_->setToolTip(tr("Redo: %1").arg(QString::fromStdString(document_.RedoName())));
  print_->setEnabled(CanPrint());
  const QString settings =
      ticket_file_.isEmpty() ? QString() : " \u2013 " + QFileInfo(ticket_file_).fileName();
  // The mark of changes stands before the name, which is added once more to what does not end so.
  setWindowTitle((title_.isEmpty() ? QString() : title_ + settings) + "[*]" +
                 (title_.isEmpty() ? "" : " \u2013 ") + "Zarvo Desk");
  setWindowModified(document_.IsChanged());
  Dictionary printed = document_.ticket();
  const auto has = [this](const char* name) { return document_.ticket().contains(name); };
  for (const auto& [name, value] : saved_)  // as sending it does
    if (!tool::IsSaid(name, has)) printed.emplace(name, value);
  RenderSettings render;
  const Failure failure = MakeRenderSettings(printed, renderer_option_, &render);
  if (!failure.empty()) return Tell(QString::fromStdString(failure));
  renderer_->SetSettings(render, ppd_);
}

/// What is wrong with the settings as they are.
void MainWindow::ShowFindings() {
  constexpr int kMost = 3;
  QStringList lines;
  for (const TicketFinding& finding : tool::CheckTicket(document_.ticket()))
    if (lines.size() < kMost) lines << QStringLiteral("\u26A0 ") + Localized(finding.text);
  lines.removeDuplicates();
  findings_->setText(lines.join('\n'));
  findings_->setVisible(!lines.isEmpty());
}

void MainWindow::PlanChanged() {
  const PlanReport& report = renderer_->plan();
  const tool::SheetPlan& plan = report.plan;
  QStringList words;
  if (!plan.sides.empty()) {
    words << (plan.booklet ? tr("%n sheet side(s)", nullptr, static_cast<int>(plan.pages))
                           : tr("%n page(s)", nullptr, static_cast<int>(plan.pages)));
    words << tr("%n sheet(s)", nullptr, static_cast<int>(plan.sheets));
    if (plan.copies > 1) words << tr("%n copies", nullptr, plan.copies);
    for (const std::string& mark : report.marks) words << Localized(mark);
    for (const std::string& note : report.notes) words << Localized(note);
  }
  words.removeDuplicates();
  summary_->setText(words.join(", "));
  summary_->setToolTip(words.join('\n'));
  QStringList faults;
  for (const std::string& text : report.complaints) faults << QString::fromStdString(text);
  for (const std::string& text : report.findings) faults << QString::fromStdString(text);
  if (!faults.isEmpty()) {
    Tell(faults.mid(0, 6).join('\n'));
    of_plan_ = true;
  } else if (!plan.sides.empty() && of_plan_) {
    message_->hide();
  }
}

void MainWindow::SetPpd(const QString& ppd, const Dictionary& saved) {
  ppd_ = ppd;
  saved_ = saved;
  defaults_ = saved;
  Changed();
  nlohmann::json options = nlohmann::json::object();
  for (const auto& [name, value] : saved) options[name] = *value.AsString();
  queues_->Ask({{"defaults", ppd.toStdString()}, {"saved", options}},
               [this, ppd](const nlohmann::json& answer) {
                 if (ppd != ppd_ || !answer.contains("defaults")) return;
                 defaults_.clear();
                 tool::ReadTicket(answer.at("defaults").get<std::string>(), &defaults_);
                 for (const PanelEntry& entry : panels_) entry.panel->Refresh();
               });
}

void MainWindow::Print() {
  if (!CanPrint()) return;
  auto* const dialog = new PrintDialog(document_, renderer_->file(), queues_->queue(), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &PrintDialog::Finished, this, &MainWindow::PrintFinished);
  dialog->open();
  dialog->Print(false);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!MayClose()) return event->ignore();
  QSettings settings;
  settings.setValue("window/geometry", saveGeometry());
  settings.setValue("window/state", saveState());
  settings.setValue("window/splitter", findChild<QSplitter*>("splitter")->saveState());
  settings.setValue("window/zoom", zoom_->value());
  event->accept();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  FitTools();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls() && event->mimeData()->urls().first().isLocalFile())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  OpenDocument(event->mimeData()->urls().first().toLocalFile());
}

}  // namespace zarvo::desk
