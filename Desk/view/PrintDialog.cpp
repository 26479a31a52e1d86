// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/PrintDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QVBoxLayout>
#include <nlohmann/json.hpp>

#include "Desk/model/Renderer.h"
#include "Desk/view/Translations.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/system/SpoolerJobs.h"

namespace zarvo::desk {
namespace {

constexpr int kAskEvery = 700;     // milliseconds
constexpr int kStopWithin = 3000;  // milliseconds, for the command to take the job back
constexpr int kMostMisses = 15;    // a spooler that begins anew is back before

/// "zarvo why" tells a state in words; these are the same in the program's language.
struct State {
  const char* word;
  const char* text;
  bool ended;
  bool printed;
};
constexpr State kStates[] = {
    {"waits to be printed", QT_TRANSLATE_NOOP("States", "The job waits to be printed."), false,
     false},
    {"is held", QT_TRANSLATE_NOOP("States", "The job is held by the spooler."), true, false},
    {"is being printed", QT_TRANSLATE_NOOP("States", "The job is being printed."), false, false},
    {"was not printed", QT_TRANSLATE_NOOP("States", "The job was not printed."), true, false},
    {"was canceled", QT_TRANSLATE_NOOP("States", "The job was canceled."), true, false},
    {"was printed", QT_TRANSLATE_NOOP("States", "The job was printed."), true, true}};

/// What "zarvo why" says besides, and what stands before a cause; here so that it is translated.
[[maybe_unused]] constexpr const char* kSaid[] = {
    QT_TRANSLATE_NOOP("States", "the job was not printed"),
    QT_TRANSLATE_NOOP("States", "print it again as the reason says"),
    QT_TRANSLATE_NOOP("States",
                      "print it again as the reason says, and remove this one: cancel %1"),
    QT_TRANSLATE_NOOP("States", "its fax cover sheet cannot be drawn"),
    QT_TRANSLATE_NOOP("States", "The fax cover sheet was left out")};

}  // namespace

PrintDialog::PrintDialog(const TicketDocument& document, const QString& file, const QString& queue,
                         QWidget* parent)
    : QDialog(parent), document_(document), file_(file), queue_(queue) {
  setWindowTitle(tr("Print"));
  setObjectName("print-dialog");
  setMinimumWidth(460);
  auto* const layout = new QVBoxLayout(this);
  state_ = new QLabel(this);
  state_->setObjectName("print-state");
  QFont bold = state_->font();
  bold.setBold(true);
  state_->setFont(bold);
  state_->setWordWrap(true);
  details_ = new QLabel(this);
  details_->setObjectName("print-details");
  details_->setWordWrap(true);
  details_->setTextFormat(Qt::PlainText);
  details_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  at_printer_ = new QLabel(this);
  at_printer_->setObjectName("at-printer");
  at_printer_->setWordWrap(true);
  at_printer_->hide();
  progress_ = new QProgressBar(this);
  progress_->setRange(0, 0);
  progress_->setAccessibleName(tr("Progress of the job"));
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  again_ = buttons->addButton(tr("Print it all the same"), QDialogButtonBox::ActionRole);
  again_->setObjectName("print-anyway");
  again_->hide();
  connect(again_, &QPushButton::clicked, this, [this] { Print(true); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  buttons->button(QDialogButtonBox::Close)->setFocus();
  for (QWidget* widget :
       std::initializer_list<QWidget*>{state_, progress_, details_, at_printer_, buttons})
    layout->addWidget(widget);
  poll_.setInterval(kAskEvery);
  connect(&poll_, &QTimer::timeout, this, &PrintDialog::AskWhy);
}

void PrintDialog::reject() {
  if (print_ == nullptr) return QDialog::reject();
  Say(tr("Taking the job back\u2026"));
  print_->terminate();
  QTimer::singleShot(kStopWithin, print_, &QProcess::kill);
}

void PrintDialog::Say(const QString& state, const QString& details) {
  state_->setText(state);
  details_->setText(Localized(details));
  details_->setVisible(!details.isEmpty());
}

void PrintDialog::Print(bool force) {
  again_->hide();
  progress_->show();
  Say(tr("Sending \"%1\" to %2\u2026").arg(QFileInfo(file_).fileName(), queue_));
  print_ = new ChildProgram(this);
  QStringList arguments = {"print", "--queue=" + queue_, "--title=" + QFileInfo(file_).fileName()};
  if (force) arguments << "--force";
  arguments << "--" << file_ << "-";
  connect(print_, &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
    Sent(how == QProcess::NormalExit ? status : -1);
  });
  connect(print_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) Sent(-1);
  });
  print_->start(ProgramPath("zarvo"), arguments);
  const std::string settings = document_.Json();
  print_->write(settings.data(), static_cast<qint64>(settings.size()));
  print_->closeWriteChannel();
}

void PrintDialog::Sent(int status) {
  const QString out = QString::fromUtf8(print_->readAllStandardOutput());
  QString errors = QString::fromUtf8(print_->readAllStandardError()).trimmed();
  if (status == -1) errors = print_->errorString();
  print_->deleteLater();
  print_ = nullptr;
  if (status != 0) {
    progress_->hide();
    errors.remove("zarvo: ");
    Say(tr("The job was not sent."), errors);
    again_->setVisible(errors.contains("--force"));
    emit Finished(false);
    return;
  }
  // "request id is office-12 (1 file(s))"
  job_ = out.section(' ', 3, 3);
  Say(tr("The job is at the spooler as %1.").arg(job_));
  const std::int64_t type = document_.NumberAt("JobType/JobType").value_or(0);
  if (type == kJobTypeSecure) {
    at_printer_->setText(tr("Go to the printer %1, choose the job \"%2\" and type your PIN.")
                             .arg(queue_, QFileInfo(file_).fileName()));
    at_printer_->show();
  }
  AskWhy();
  poll_.start();
}

void PrintDialog::AskWhy() {
  if (why_ != nullptr) return;  // the spooler takes its time
  why_ = new ChildProgram(this);
  connect(why_, &QProcess::finished, this, &PrintDialog::HeardWhy);
  why_->start(ProgramPath("zarvo"), {"why", "--json", job_});
  why_->closeWriteChannel();
}

void PrintDialog::HeardWhy() {
  using nlohmann::json;
  const json told = json::parse(why_->readAllStandardOutput().toStdString(), nullptr, false);
  const QString errors = QString::fromUtf8(why_->readAllStandardError()).trimmed();
  why_->deleteLater();
  why_ = nullptr;
  if (told.is_discarded() || !told.contains("state")) {
    Say(tr("The spooler does not tell what becomes of the job."), errors);
    if (++misses_ < kMostMisses) return;  // it is asked again
    poll_.stop();
    progress_->hide();
    emit Finished(false);
    return;
  }
  misses_ = 0;
  QStringList details;
  for (const json& notice : told.at("notices"))
    details << QString::fromStdString(notice.get<std::string>());
  if (const std::string remedy = told.at("remedy"); !remedy.empty())
    details << QStringLiteral("\u2192 ") + Localized(remedy);
  for (const State& state : kStates) {
    if (told.at("state") != state.word) continue;
    Say(QCoreApplication::translate("States", state.text), details.join('\n'));
    if (!state.ended) return;
    poll_.stop();
    progress_->hide();
    emit Finished(state.printed);
  }
}

}  // namespace zarvo::desk
