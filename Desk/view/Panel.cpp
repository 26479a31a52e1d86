// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/Panel.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <iterator>

#include "Source/CFAdditions.h"

namespace zarvo::desk {
namespace {

struct Word {
  const char* word;
  const char* text;
};
// What people say for the words of the key table; the others are good enough as they are.
constexpr Word kWords[] = {
    {"one-sided", QT_TRANSLATE_NOOP("Words", "One side of each sheet")},
    {"long-edge", QT_TRANSLATE_NOOP("Words", "Both sides, turned like a book")},
    {"short-edge", QT_TRANSLATE_NOOP("Words", "Both sides, turned like a calendar")},
    {"standard", QT_TRANSLATE_NOOP("Words", "Standard")},
    {"transparency", QT_TRANSLATE_NOOP("Words", "Transparency")},
    {"preprinted", QT_TRANSLATE_NOOP("Words", "Preprinted")},
    {"envelopes", QT_TRANSLATE_NOOP("Words", "Envelopes")},
    {"labels", QT_TRANSLATE_NOOP("Words", "Labels")},
    {"recycled", QT_TRANSLATE_NOOP("Words", "Recycled")},
    {"tabs", QT_TRANSLATE_NOOP("Words", "Tabs")},
    {"white", QT_TRANSLATE_NOOP("Words", "White")},
    {"blue", QT_TRANSLATE_NOOP("Words", "Blue")},
    {"yellow", QT_TRANSLATE_NOOP("Words", "Yellow")},
    {"green", QT_TRANSLATE_NOOP("Words", "Green")},
    {"pink", QT_TRANSLATE_NOOP("Words", "Pink")},
    {"clear", QT_TRANSLATE_NOOP("Words", "Clear")},
    {"buff", QT_TRANSLATE_NOOP("Words", "Buff")},
    {"goldenrod", QT_TRANSLATE_NOOP("Words", "Goldenrod")},
    {"red", QT_TRANSLATE_NOOP("Words", "Red")},
    {"ivory", QT_TRANSLATE_NOOP("Words", "Ivory")},
    {"gray", QT_TRANSLATE_NOOP("Words", "Gray")},
    {"orange", QT_TRANSLATE_NOOP("Words", "Orange")},
    {"left-to-right", QT_TRANSLATE_NOOP("Words", "From left to right")},
    {"right-to-left", QT_TRANSLATE_NOOP("Words", "From right to left")},
    {"background", QT_TRANSLATE_NOOP("Words", "Behind the page")},
    {"overlay", QT_TRANSLATE_NOOP("Words", "Over the page, see-through")},
    {"foreground", QT_TRANSLATE_NOOP("Words", "Over the page")},
    {"monochrome-grayscale", QT_TRANSLATE_NOOP("Words", "Black and gray")},
    {"color", QT_TRANSLATE_NOOP("Words", "Colour")},
    {"normal", QT_TRANSLATE_NOOP("Words", "Print it")},
    {"hold", QT_TRANSLATE_NOOP("Words", "Hold it at the printer")},
    {"save", QT_TRANSLATE_NOOP("Words", "Save it at the printer")},
    {"print-and-save", QT_TRANSLATE_NOOP("Words", "Print and save it")},
    {"fax", QT_TRANSLATE_NOOP("Words", "Send it as a fax")},
    {"secure", QT_TRANSLATE_NOOP("Words", "Secure: wait for a PIN")},
    {"delayed", QT_TRANSLATE_NOOP("Words", "Print it later")},
    {"proof", QT_TRANSLATE_NOOP("Words", "Proof: one set first")},
    {"save-only", QT_TRANSLATE_NOOP("Words", "Save it only")},
    {"off", QT_TRANSLATE_NOOP("Words", "Off")},
    {"on", QT_TRANSLATE_NOOP("Words", "On")},
    {"user", QT_TRANSLATE_NOOP("Words", "User, with or without an account")},
    {"user-and-account", QT_TRANSLATE_NOOP("Words", "User and account")},
    {"none", QT_TRANSLATE_NOOP("Words", "None")},
    {"general", QT_TRANSLATE_NOOP("Words", "General account")},
    {"group", QT_TRANSLATE_NOOP("Words", "Group account")},
    {"blank", QT_TRANSLATE_NOOP("Words", "Not printed")},
    {"front", QT_TRANSLATE_NOOP("Words", "Front printed")},
    {"back", QT_TRANSLATE_NOOP("Words", "Back printed")},
    {"both", QT_TRANSLATE_NOOP("Words", "Both sides printed")},
    {"imaged", QT_TRANSLATE_NOOP("Words", "Printed")},
    {"automatic", QT_TRANSLATE_NOOP("Words", "Automatic")},
    {"top", QT_TRANSLATE_NOOP("Words", "Top tray")},
    {"stacker", QT_TRANSLATE_NOOP("Words", "Stacker")},
    {"stacker-1", QT_TRANSLATE_NOOP("Words", "Stacker 1")},
    {"stacker-2", QT_TRANSLATE_NOOP("Words", "Stacker 2")},
    {"set", QT_TRANSLATE_NOOP("Words", "Each set")},
    {"subset", QT_TRANSLATE_NOOP("Words", "Each subset")},
    {"set-and-subset", QT_TRANSLATE_NOOP("Words", "Sets and subsets")},
    {"fine", QT_TRANSLATE_NOOP("Words", "Fine")},
    {"superfine", QT_TRANSLATE_NOOP("Words", "Superfine")},
    {"names", QT_TRANSLATE_NOOP("Words", "Their names")},
    {"custom", QT_TRANSLATE_NOOP("Words", "A text of one's own")},
    {"rotate-0", QT_TRANSLATE_NOOP("Words", "As they are")},
    {"rotate-180", QT_TRANSLATE_NOOP("Words", "Upside down")},
};

/// Sets what can be seen of a field's choice: that the ticket's check objects to it, and why.
void Mark(QComboBox* box, int index, const QString& text, const QString& objection) {
  auto* const model = qobject_cast<QStandardItemModel*>(box->model());
  QStandardItem* const item = model->item(index);
  item->setText(objection.isEmpty() ? text : text + QStringLiteral(" \u26A0"));
  item->setToolTip(objection);
  item->setData(objection, Qt::AccessibleDescriptionRole);
}

}  // namespace

QString WordFor(const QString& word) {
  for (const Word& row : kWords) {
    if (word == row.word) return QCoreApplication::translate("Words", row.text);
  }
  QString text = word;
  if (text.startsWith("custom") && text.size() == 7)
    return QCoreApplication::translate("Words", "Custom %1").arg(text.back());
  if (text.size() <= 4) return text.toUpper();  // sizes
  text.replace('-', ' ');
  text[0] = text[0].toUpper();
  return text;
}

Panel::Panel(TicketDocument* document, QWidget* parent)
    : QWidget(parent), document_(document), form_(new QFormLayout(this)) {
  form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
  form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

void Panel::Refresh() {
  filling_ = true;
  for (const auto& refresh : refresh_) refresh();
  filling_ = false;
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
  text->setWordWrap(true);
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
    choices.push_back({word != nullptr ? WordFor(word) : QString::number(code), put});
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
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(12);
  for (const Choice& choice : choices) box->addItem(choice.text);
  connect(box, &QComboBox::activated, this, [=, this](int index) {
    if (index >= 0 && !filling_)
      document_->Change(label.toStdString(), choices[static_cast<std::size_t>(index)].put);
  });
  OnRefresh([=, this] {
    for (std::size_t i = 0; i < choices.size(); ++i) {
      const std::string objection = Objection(document_->ticket(), choices[i].put);
      Mark(box, static_cast<int>(i), choices[i].text, QString::fromStdString(objection));
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
  connect(box, &QCheckBox::clicked, this, [=, this](bool on) {
    if (!on) {
      document_->Clear(path, label.toStdString());
    } else {
      document_->Set(path, number ? Value(zarvo::Number(std::int32_t{1})) : Value::Boolean(true),
                     label.toStdString());
    }
  });
  OnRefresh([=, this] {
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
  });
  Row(label, line);
  return line;
}

QSpinBox* Panel::Number(const char* path, const QString& label, int least, int most,
                        const QString& suffix) {
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
