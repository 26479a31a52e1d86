// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/QueueBox.h"

#include <QSettings>
#include <QTimer>

#include "Desk/model/Renderer.h"
#include "Desk/view/Translations.h"

namespace zarvo::desk {

using nlohmann::json;

constexpr int kAskQueuesEvery = 15000;  // milliseconds
constexpr int kStopped = 5;             // of the states of a printer, RFC 8011, 5.4.11

QueueBox::QueueBox(const ScratchFolder& scratch, QWidget* parent)
    : QComboBox(parent), scratch_(scratch), wanted_(QSettings().value("queue").toString()) {
  setObjectName("queues");
  setAccessibleName(tr("Printer"));
  setSizeAdjustPolicy(QComboBox::AdjustToContents);
  connect(this, &QComboBox::activated, this, [this] {
    if (gone_ && currentData() == wanted_) return;
    wanted_ = currentData().toString();
    QSettings().setValue("queue", wanted_);
    gone_ = false;
    FetchPpd();
    emit QueueChanged();
  });
  auto* const poll = new QTimer(this);
  connect(poll, &QTimer::timeout, this, &QueueBox::AskQueues);
  poll->start(kAskQueuesEvery);
}

void QueueBox::Ask(const json& question, std::function<void(const json&)> hear) {
  auto* const process = new ChildProgram(this);
  process->setStandardErrorFile(QProcess::nullDevice());
  connect(process, &QProcess::finished, this, [=] {
    json answer = json::parse(process->readAllStandardOutput().toStdString(), nullptr, false);
    process->deleteLater();
    if (!answer.is_object())
      answer = {{"failure", tr("The spooler cannot be asked.").toStdString()}};
    hear(answer);
  });
  connect(process, &QProcess::errorOccurred, this, [=](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    process->deleteLater();
    hear({{"failure", tr("The program zarvosheets is missing.").toStdString()}});
  });
  QTimer::singleShot(patience_, process, &QProcess::kill);
  process->start(ProgramPath("zarvosheets"), {});
  process->write(QByteArray::fromStdString(question.dump() + "\n"));
}

void QueueBox::AskQueues() {
  if (asking_) return;
  asking_ = true;
  Ask({{"queues", true}}, [this](const json& answer) {
    asking_ = false;
    if (!answer.contains("failure")) return Take(answer.at("queues"));
    clear();
    addItem(tr("No printers"));
    setToolTip(Localized(QString::fromStdString(answer.at("failure"))));
    setEnabled(false);
    gone_ = !wanted_.isEmpty();
    emit QueueChanged();
  });
}

void QueueBox::Take(const json& queues) {
  clear();
  setToolTip({});
  int chosen = -1;
  int usual = 0;
  for (const json& queue : queues) {
    const QString name = QString::fromStdString(queue.at("name"));
    QString text = name;
    if (queue.at("state") == kStopped) text += tr(" (stopped)");
    if (!queue.at("accepting").get<bool>()) text += tr(" (takes no jobs)");
    addItem(text, name);
    const int index = count() - 1;
    setItemData(index, QString::fromStdString(queue.at("info")), Qt::ToolTipRole);
    if (name == wanted_) chosen = index;
    if (queue.at("default").get<bool>()) usual = index;
  }
  // One of an earlier run that is not there any more was not chosen for this document.
  const bool goes = chosen < 0 && !wanted_.isEmpty() && ppd_of_ == wanted_;
  if (goes) {
    addItem(wanted_ + tr(" (gone)"), wanted_);
    chosen = count() - 1;
    if (!gone_) emit Told(tr("The printer %1 is gone. Choose another one.").arg(wanted_));
  } else if (count() == 0) {
    addItem(tr("No printers"));
  }
  setCurrentIndex(chosen < 0 ? usual : chosen);
  setEnabled(!queues.empty() || goes);
  const bool comes = gone_ && !goes;
  gone_ = goes;
  wanted_ = currentData().toString();
  if (!goes && !wanted_.isEmpty() && (comes || wanted_ != ppd_of_)) FetchPpd();
  emit QueueChanged();
}

void QueueBox::FetchPpd() {
  ppd_of_ = wanted_;
  const QString asked = wanted_;
  const std::string file = scratch_.File("queue-" + std::to_string(qHash(asked)) + ".ppd");
  Ask({{"queue", asked.toStdString()}, {"ppd", file}}, [this, asked](const json& answer) {
    if (asked != wanted_) return;  // another one was chosen meanwhile
    if (answer.contains("failure")) {
      emit Told(asked + ": " + QString::fromStdString(answer.at("failure")));
      return;
    }
    if (!answer.at("ours").get<bool>())
      emit Told(tr("Jobs of %1 do not pass through the filter of these settings; most of them will "
                   "have no effect.")
                    .arg(asked));
    Dictionary saved;
    for (const auto& [name, value] : answer.at("saved").items())
      saved.insert_or_assign(name, Value(value.get<std::string>()));
    emit PpdFetched(QString::fromStdString(answer.at("ppd")),
                    QString::fromStdString(answer.at("renderer")), saved);
  });
}

}  // namespace zarvo::desk
