// SPDX-License-Identifier: Apache-2.0
// A page of settings: fields that show what the ticket says and change it.
//
// Every field is named after the setting's path, for assistive technology and tests, and is empty,
// or says "as the printer does", where the ticket says nothing. A field never keeps a value of its
// own: it is filled from the document after every change, whoever made it.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <vector>

#include "Desk/model/TicketDocument.h"

namespace zarvo::desk {

/// The person's word for a word of the key table ("long-edge"), in the language of the program; of
/// that key, where it says something else there.
QString WordFor(const char* word, const char* key = "");

/// A value of that key as people read it; dots for a secret.
QString ValueInWords(const TicketKey& key, const Value& value);
QString TruthInWords(bool truth);

class Panel : public QWidget {
  Q_OBJECT

 public:
  /// The document must outlive the panel.
  Panel(TicketDocument* document, QWidget* parent = nullptr);

  /// Fills every field anew.
  virtual void Refresh();

  /// Takes the keyboard to its first field. False when there is none.
  bool FocusFirst();

  /// Gives every field and button a letter to be reached by with Alt, no two the same one. None is
  /// of `taken`.
  void GiveMnemonics(const QString& taken);

 protected:
  struct Choice {
    QString text;
    std::function<void(Dictionary*)> put;
  };

  void Group(const QString& title);
  /// The words of the key's table, or those of `codes`; the first choice takes the setting out.
  /// `also` follows every choice in the same step.
  QComboBox* Codes(const char* path, const QString& label, std::vector<std::int64_t> codes = {},
                   std::function<void(Dictionary*)> also = {});
  /// Choices of any kind. `current` gives the index of the one that the ticket makes, or -1.
  QComboBox* Choices(const char* name, const QString& label, std::vector<Choice> choices,
                     std::function<int(const Dictionary&)> current);
  QCheckBox* Switch(const char* path, const QString& label);
  QLineEdit* Text(const char* path, const QString& label, bool secret = false);
  /// 0 takes the setting out.
  QSpinBox* Number(const char* path, const QString& label, int least, int most,
                   const QString& suffix = {});
  QDateTimeEdit* Date(const char* path, const QString& label);
  /// A line that says why something is as it is; hidden while the text is empty.
  QLabel* Hint(const char* name, std::function<QString(const Dictionary&)> text);
  QPushButton* Button(const char* name, const QString& text, const std::function<void()>& press);
  /// Enables it, or says why not to who points at it and who is read to.
  static void Allow(QWidget* control, bool can, const QString& why);
  /// Shows that the ticket's check objects to a field's choice, and why; an empty text takes that
  /// away.
  static void Object(QWidget* field, const QString& objection);
  /// The objection to what the field would put into the ticket.
  void ObjectTo(QWidget* field, const std::function<void(Dictionary*)>& choice) const;
  /// The same for one choice of a list.
  void ObjectToChoice(QComboBox* box, int index,
                      const std::function<void(Dictionary*)>& choice) const;
  void Row(QWidget* widget);
  void Row(const QString& label, QWidget* widget);
  void OnRefresh(std::function<void()> refresh) { refresh_.push_back(std::move(refresh)); }
  void ShowOnly(QWidget* field, bool shown);

  TicketDocument* const document_;
  bool filling_ = false;

 private:
  QFormLayout* form_;
  std::vector<std::function<void()>> refresh_;
};

}  // namespace zarvo::desk
