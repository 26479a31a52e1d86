// SPDX-License-Identifier: Apache-2.0
// The printers to choose from, as the spooler knows them.
//
// The spooler is asked by the helper program, again and again, so that neither a slow one nor one
// that has gone keeps the window waiting. A printer that goes while it is chosen stays chosen, but
// is not printed on: nobody's job comes out somewhere else than was said.
#pragma once

#include <QComboBox>
#include <functional>
#include <nlohmann/json.hpp>

#include "Platform/ScratchFolder.h"
#include "Platform/Value.h"

namespace zarvo::desk {

class QueueBox : public QComboBox {
  Q_OBJECT

 public:
  /// The folder is for the PPD files; it must outlive the object.
  explicit QueueBox(const ScratchFolder& scratch, QWidget* parent = nullptr);

  /// The one to choose, once it is known to be there.
  void Want(const QString& queue) { wanted_ = queue; }
  const QString& wanted() const { return wanted_; }
  /// The chosen printer; empty when there is none that can be printed on.
  QString queue() const { return gone_ ? QString() : wanted_; }
  void AskQueues();
  /// Asks the helper program; `hear` gets the answer, or an object with "failure".
  void Ask(const nlohmann::json& question, std::function<void(const nlohmann::json&)> hear);
  /// How long the spooler may take to answer, milliseconds.
  void SetPatience(int milliseconds) { patience_ = milliseconds; }

 signals:
  /// Another printer, or none, or one that has gone.
  void QueueChanged();
  /// The PPD file of the chosen one, its own converter of PDF files or an empty text, and the
  /// options that the user keeps for it.
  void PpdFetched(const QString& ppd, const QString& renderer, const Dictionary& saved);
  /// What is to be known about the chosen one.
  void Told(const QString& text);

 private:
  void Take(const nlohmann::json& queues);
  void FetchPpd();

  const ScratchFolder& scratch_;
  QString wanted_;
  QString ppd_of_;       // the printer whose PPD was asked for last
  bool gone_ = false;    // the chosen one
  bool asking_ = false;  // for the printers
  int patience_ = 30000;
};

}  // namespace zarvo::desk
