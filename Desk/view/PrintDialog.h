// SPDX-License-Identifier: Apache-2.0
// Prints through the spooler and follows the job to its end.
//
// The job is sent by "zarvo print", which gets the settings on its standard input: the job is the
// same as that command's, and no secret is an argument or in a file. What became of it is asked of
// "zarvo why". Neither keeps the window waiting.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "Desk/model/TicketDocument.h"

namespace zarvo::desk {

class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  PrintDialog(const TicketDocument& document, const QString& file, const QString& queue,
              QWidget* parent = nullptr);

  /// Sends the job; with `force` also one that has something wrong.
  void Print(bool force);

  /// The job's name at the spooler; empty until it has one.
  const QString& job() const { return job_; }

  /// While the job is being sent, ends that: half a document must not be left at the spooler.
  void reject() override;

 signals:
  /// The job has come to its end, or could not be sent.
  void Finished(bool printed);

 private:
  void Sent(int status);
  void AskWhy();
  void HeardWhy();
  void Say(const QString& state, const QString& details = {});

  const TicketDocument& document_;
  QString file_;
  QString queue_;
  QString job_;
  QLabel* state_;
  QLabel* details_;
  QLabel* at_printer_;
  QProgressBar* progress_;
  QPushButton* again_;
  QProcess* print_ = nullptr;
  QProcess* why_ = nullptr;
  QTimer poll_;
  int misses_ = 0;  ///< answers in a row that told nothing
};

}  // namespace zarvo::desk
