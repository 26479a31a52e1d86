// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/Panel.h"

#include <QCoreApplication>
#include <QStandardItemModel>
#include <QStatusTipEvent>
#include <QStyle>
#include <algorithm>
#include <iterator>

#include "Desk/model/Words.h"
#include "Desk/view/Translations.h"
#include "Source/CFAdditions.h"

namespace zarvo::desk {
namespace {

/// Stands behind what is objected to.
QString Warning() { return QStringLiteral(" \u26A0"); }

/// Sets what can be seen of a field's choice: that the ticket's check objects to it, and why.
void Mark(QComboBox* box, int index, const QString& text, const QString& objection) {
  auto* const model = qobject_cast<QStandardItemModel*>(box->model());
  QStandardItem* const item = model->item(index);
  item->setText(objection.isEmpty() ? text : text + Warning());
  item->setToolTip(objection);
  item->setData(objection, Qt::AccessibleDescriptionRole);
}

/// Shows a line at the bottom of the window, and takes it away when it is empty.
void TellBelow(QWidget* from, const QString& text) {
  QStatusTipEvent tip(text);
  QCoreApplication::sendEvent(from, &tip);
}

/// The text with a letter marked that is not taken, the first of a word where there is one. Scripts
/// without such letters have one added, as is usual for them.
QString WithMnemonic(const QString& text, QString* taken) {
  const auto is_free = [&](QChar c) {
    return c.isLetter() && c.unicode() < 0x80 && !taken->contains(c, Qt::CaseInsensitive);
  };
  QString plain = text;
  plain.replace("&", "&&");
  for (const bool first : {true, false}) {
    for (qsizetype i = 0; i < plain.size(); ++i) {
      if (!is_free(plain[i]) || (first && i > 0 && plain[i - 1].isLetter())) continue;
      taken->append(plain[i]);
      return plain.insert(i, '&');
    }
  }
  if (std::any_of(plain.begin(), plain.end(), [](QChar c) { return c.unicode() > 0x2e80; })) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
      if (!is_free(QChar(letter))) continue;
      taken->append(letter);
      return plain + QString("(&%1)").arg(letter);
    }
  }
  return plain;
}

/// A label of one line, or of as many as it takes in the width that labels have.
void FitLabel(QLabel* label, const QString& text) {
  constexpr int kWidest = 150;
  label->setWordWrap(false);
  label->setText(text);
  if (label->sizeHint().width() <= kWidest) return;
  label->setWordWrap(true);
  label->setMinimumSize(kWidest, label->heightForWidth(kWidest));
}

}  // namespace

QString WordFor(const char* word, const char* key) { return Localized(DisplayWord(word, key)); }

Panel::Panel(TicketDocument* document, QWidget* parent)
    : QWidget(parent), document_(document), form_(new QFormLayout(this)) {
  // Labels stay beside their fields: a layout that puts some above gives rows no height at all
  // where it is only just wide enough (Qt 6.4).
  form_->setRowWrapPolicy(QFormLayout::DontWrapRows);
  form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

void Panel::Refresh() {
  filling_ = true;
  for (const auto& refresh : refresh_) refresh();
  filling_ = false;
}

bool Panel::FocusFirst() {
  for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
    if (!isAncestorOf(next) || !next->isVisible() || !next->isEnabled() ||
        (next->focusPolicy() & Qt::TabFocus) == 0)
      continue;
    next->setFocus(Qt::TabFocusReason);
    return true;
  }
  return false;
}

void Panel::GiveMnemonics(const QString& taken) {
  QString letters = taken;
  for (QWidget* child : findChildren<QWidget*>()) {
    if (auto* const label = qobject_cast<QLabel*>(child); label && label->buddy() != nullptr)
      FitLabel(label, WithMnemonic(label->text(), &letters));
    auto* const button = qobject_cast<QAbstractButton*>(child);
    // A field's own parts, and what a label leads to already.
    if (button == nullptr || button->objectName().isEmpty() || button->text().isEmpty() ||
        form_->labelForField(button) != nullptr)
      continue;
    button->setAccessibleName(button->text());
    button->setText(WithMnemonic(button->text(), &letters));
  }
}

QPushButton* Panel::Button(const char* name, const QString& text,
                           const std::function<void()>& press) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(name);
  connect(button, &QPushButton::clicked, this, press);
  Row(button);
  return button;
}

void Panel::Allow(QWidget* control, bool can, const QString& why) {
  control->setEnabled(can);
  control->setToolTip(can ? QString() : why);
  control->setAccessibleDescription(can ? QString() : why);
}

void Panel::Object(QWidget* field, const QString& objection) {
  field->setToolTip(objection);
  field->setStatusTip(objection);
  field->setAccessibleDescription(objection);
  if (auto* const box = qobject_cast<QCheckBox*>(field)) {
    const bool shown = !box->icon().isNull();
    if (shown != objection.isEmpty()) return;
    box->setIcon(shown ? QIcon() : field->style()->standardIcon(QStyle::SP_MessageBoxWarning));
  } else if (auto* const number = qobject_cast<QSpinBox*>(field)) {
    const QString plain = number->specialValueText().remove(Warning());
    number->setSpecialValueText(objection.isEmpty() ? plain : plain + Warning());
  } else if (auto* const line = qobject_cast<QLineEdit*>(field)) {
    line->setPlaceholderText(objection.isEmpty() ? QString() : Warning().trimmed());
  }
}

void Panel::ObjectTo(QWidget* field, const std::function<void(Dictionary*)>& choice) const {
  Object(field, Localized(Objection(document_->ticket(), choice)));
}

void Panel::ObjectToChoice(QComboBox* box, int index,
                           const std::function<void(Dictionary*)>& choice) const {
  Mark(box, index, box->itemText(index).remove(Warning()),
       Localized(Objection(document_->ticket(), choice)));
}

void Panel::Group(const QString& title) {
  auto* const label = new QLabel("<b>" + title.toHtmlEscaped() + "</b>", this);
  label->setContentsMargins(0, form_->rowCount() == 0 ? 0 : 12, 0, 2);
  form_->addRow(label);
}

void Panel::Row(QWidget* widget) { form_->addRow(widget); }

void Panel::Row(const QString& label, QWidget* widget) {
  auto* const text = new QLabel(label, this);
  text->setBuddy(widget);
  widget->setAccessibleName(label);
  form_->addRow(text, widget);
}

void Panel::ShowOnly(QWidget* field, bool shown) {
  field->setVisible(shown);
  if (QWidget* label = form_->labelForField(field)) label->setVisible(shown);
}

QComboBox* Panel::Codes(const char* path, const QString& label, std::vector<std::int64_t> codes,
                        std::function<void(Dictionary*)> also) {
  const TicketKey& key = *KeyAt(path);
  if (codes.empty())
    for (const CodeWord& word : key.words) codes.push_back(word.code);
  std::vector<Choice> choices = {{tr("As the printer does"), [=](Dictionary* ticket) {
                                    RemoveAt(ticket, path);
                                    if (also) also(ticket);
                                  }}};
  for (const std::int64_t code : codes) {
    const char* word = WordOf(key, code);
    const auto put = [=](Dictionary* ticket) {
      PutAt(ticket, path, Value(zarvo::Number(static_cast<std::int32_t>(code))));
      if (also) also(ticket);
    };
    choices.push_back({word != nullptr ? WordFor(word, key.name) : QString::number(code), put});
  }
  return Choices(path, label, std::move(choices), [=, this](const Dictionary&) {
    const std::optional<std::int64_t> now = document_->NumberAt(path);
    const auto found = std::find(codes.begin(), codes.end(), now.value_or(-1));
    if (!now) return 0;
    return found == codes.end() ? -1 : static_cast<int>(found - codes.begin()) + 1;
  });
}

QComboBox* Panel::Choices(const char* name, const QString& label, std::vector<Choice> choices,
                          std::function<int(const Dictionary&)> current) {
  auto* const box = new QComboBox(this);
  box->setObjectName(name);
  // A choice that is cut off cannot be told from another.
  box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  box->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  for (const Choice& choice : choices) box->addItem(choice.text);
  connect(box, &QComboBox::activated, this, [=, this](int index) {
    if (index >= 0 && !filling_)
      document_->Change(label.toStdString(), choices[static_cast<std::size_t>(index)].put);
  });
  // Who goes through the choices by keys is told as well as who points at them.
  connect(box, &QComboBox::highlighted, this,
          [=](int index) { TellBelow(box, box->itemData(index, Qt::ToolTipRole).toString()); });
  connect(box, &QComboBox::activated, this, [box] { TellBelow(box, {}); });
  OnRefresh([=, this] {
    for (std::size_t i = 0; i < choices.size(); ++i) {
      const std::string objection = Objection(document_->ticket(), choices[i].put);
      Mark(box, static_cast<int>(i), choices[i].text, Localized(objection));
    }
    box->setCurrentIndex(current(document_->ticket()));
  });
  Row(label, box);
  return box;
}

QCheckBox* Panel::Switch(const char* path, const QString& label) {
  auto* const box = new QCheckBox(label, this);
  box->setObjectName(path);
  const bool number = KeyAt(path)->type == KeyType::kNumber;
  const auto on_value = number ? Value(zarvo::Number(std::int32_t{1})) : Value::Boolean(true);
  connect(box, &QCheckBox::clicked, this, [=, this](bool on) {
    if (!on) {
      document_->Clear(path, label.toStdString());
    } else {
      document_->Set(path, on_value, label.toStdString());
    }
  });
  OnRefresh([=, this] {
    ObjectTo(box, [&](Dictionary* ticket) { PutAt(ticket, path, on_value); });
    box->setChecked(number ? document_->NumberAt(path).value_or(0) == 1
                           : document_->BooleanAt(path));
  });
  Row(box);
  return box;
}

QLineEdit* Panel::Text(const char* path, const QString& label, bool secret) {
  auto* const line = new QLineEdit(this);
  line->setObjectName(path);
  // Dots, and nothing that a list of earlier copies could keep.
  if (secret) line->setEchoMode(QLineEdit::Password);
  connect(line, &QLineEdit::textEdited, this, [=, this](const QString& text) {
    document_->Change(
        label.toStdString(),
        [&](Dictionary* ticket) {
          if (text.isEmpty()) {
            RemoveAt(ticket, path);
          } else {
            PutAt(ticket, path, Value(text.normalized(QString::NormalizationForm_C).toStdString()));
          }
        },
        true);
  });
  OnRefresh([=, this] {
    const QString text = QString::fromStdString(document_->TextAt(path));
    if (line->text().normalized(QString::NormalizationForm_C) != text) line->setText(text);
    if (!secret && text.isEmpty())
      ObjectTo(line, [&](Dictionary* ticket) { PutAt(ticket, path, Value("1")); });
  });
  Row(label, line);
  return line;
}

QSpinBox* Panel::Number(const char* path, const QString& label, int least, int most,
                        const QString& suffix) {
  const TicketKey& key = *KeyAt(path);
  auto* const box = new QSpinBox(this);
  box->setObjectName(path);
  box->setRange(least, most);
  box->setSuffix(suffix);
  box->setSpecialValueText(tr("As the printer does"));
  connect(box, &QSpinBox::valueChanged, this, [=, this](int value) {
    if (filling_) return;
    document_->Change(
        label.toStdString(),
        [&](Dictionary* ticket) {
          if (value == least) {
            RemoveAt(ticket, path);
          } else {
            PutAt(ticket, path, Value(zarvo::Number(std::int32_t{value})));
          }
        },
        true);
  });
  OnRefresh([=, this] {
    const std::int64_t value = document_->NumberAt(path).value_or(least);
    box->setValue(static_cast<int>(std::clamp<std::int64_t>(value, least, most)));
    const auto least_of_all = static_cast<std::int32_t>(std::max<std::int64_t>(least, key.low));
    const std::int32_t some =
        document_->Find(path) == nullptr ? std::min(least_of_all + 1, most) : box->value();
    ObjectTo(box, [&](Dictionary* ticket) { PutAt(ticket, path, Value(zarvo::Number(some))); });
  });
  Row(label, box);
  return box;
}

QDateTimeEdit* Panel::Date(const char* path, const QString& label) {
  auto* const edit = new QDateTimeEdit(this);
  edit->setObjectName(path);
  edit->setCalendarPopup(true);
  edit->setDisplayFormat("yyyy-MM-dd HH:mm");
  const QDateTime none(QDate(2000, 1, 1), QTime(0, 0));
  edit->setMinimumDateTime(none);
  edit->setSpecialValueText(tr("No time is set"));
  connect(edit, &QDateTimeEdit::dateTimeChanged, this, [=, this](const QDateTime& when) {
    if (filling_) return;
    // From nothing the first step is to an hour from now.
    const QDateTime wanted = document_->Find(path) == nullptr && when < QDateTime::currentDateTime()
                                 ? QDateTime::currentDateTime().addSecs(3600)
                                 : when;
    const auto value = ReadValue(*KeyAt(path), wanted.toString("yyyy-MM-ddTHH:mm").toStdString());
    if (when == none) {
      document_->Clear(path, label.toStdString());
    } else if (value) {
      document_->Set(path, *value, label.toStdString(), true);
    }
  });
  OnRefresh([=, this] {
    const Value* value = document_->Find(path);
    const QString text =
        value != nullptr ? QString::fromStdString(WriteValue(*KeyAt(path), *value)) : QString();
    const QDateTime when = QDateTime::fromString(text, "yyyy-MM-ddTHH:mm");
    edit->setDateTime(when.isValid() ? when : none);
    if (const auto some = ReadValue(*KeyAt(path), "2040-01-01T00:00"))
      ObjectTo(edit, [&](Dictionary* ticket) { PutAt(ticket, path, *some); });
  });
  Row(label, edit);
  return edit;
}

QLabel* Panel::Hint(const char* name, std::function<QString(const Dictionary&)> text) {
  auto* const label = new QLabel(this);
  label->setObjectName(name);
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);
  OnRefresh([=, this] {
    label->setText(text(document_->ticket()));
    label->setVisible(!label->text().isEmpty());
  });
  Row(label);
  return label;
}

}  // namespace zarvo::desk
