// SPDX-License-Identifier: Apache-2.0
// Covers, inserts and page exceptions, for pages that are selected among the sheets or typed.
#include <QListWidget>
#include <QPushButton>

#include "Desk/model/PageRanges.h"
#include "Desk/view/Panels.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {
namespace {

class PagesPanel : public Panel {
 public:
  explicit PagesPanel(const PanelContext& context) : Panel(context.document), context_(context) {
    Cover(tr("Front cover"), "SpecialPages.FrontCover");
    Cover(tr("Back cover"), "SpecialPages.BackCover");
    Group(tr("These pages"));
    pages_ = new QLineEdit(this);
    pages_->setObjectName("pages");
    pages_->setPlaceholderText(tr("such as 5-8, 12"));
    pages_->setToolTip(tr("Type pages, or select them among the sheets."));
    connect(pages_, &QLineEdit::textChanged, this, [this] { Judge(); });
    Row(tr("Pages"), pages_);
    color_ = Box("page-color", tr("Paper colour"), KeyAt("JobLevelStock/Color"));
    type_ = Box("page-type", tr("Paper kind"), KeyAt("JobLevelStock/Type"));
    weight_ = new QSpinBox(this);
    weight_->setObjectName("page-weight");
    weight_->setRange(0, 500);
    weight_->setSuffix(tr(" g/m²"));
    weight_->setSpecialValueText(tr("As the job"));
    Row(tr("Paper weight"), weight_);
    sides_ = Box("page-sides", tr("Print on"), KeyAt("FinishingDuplex"));
    output_ = Box("page-output", tr("Print in"), KeyAt("FinishingOutputColor"));
    exception_ = Button("make-exception", tr("Print these pages so"), [this] { AddExceptions(); });
    Group(tr("Sheets between the pages"));
    count_ = new QSpinBox(this);
    count_->setObjectName("insert-count");
    count_->setRange(1, 999);
    Row(tr("Sheets"), count_);
    insert_ = Button("make-insert", tr("Insert them after these pages"), [this] { AddInserts(); });
    Group(tr("What is other than the rest"));
    list_ = new QListWidget(this);
    list_->setObjectName("special-list");
    list_->setAccessibleName(tr("What is other than the rest"));
    list_->setMinimumHeight(90);
    Row(list_);
    remove_ = Button("remove-special", tr("Remove it"), [this] { Remove(); });
    connect(list_, &QListWidget::currentRowChanged, this,
            [this](int row) { Allow(remove_, row >= 0, tr("Choose one in the list first.")); });
    OnRefresh([this] {
      FillList();
      JudgeChoices();
    });
    Judge();
  }

  /// Takes over what is selected among the sheets.
  void Refresh() override {
    Panel::Refresh();
    const std::vector<std::uint32_t> selected = context_.selected_pages();
    if (selected == selected_) return;
    selected_ = selected;
    pages_->setText(QString::fromStdString(WritePageRanges(selected)));
  }

 private:
  void Cover(const QString& title, const std::string& path) {
    Group(title);
    const auto sides = [path](std::int32_t code) {
      return [=](Dictionary* ticket) {
        if (code == 0) {
          RemoveAt(ticket, path);
        } else {
          PutAt(ticket, path + "/SidesImaged", Value(zarvo::Number(code)));
        }
      };
    };
    Choices(path.c_str(), tr("Cover"),
            {{tr("No cover"), sides(0)},
             {WordFor("none", key::special_page::kSidesImaged), sides(kCoverBlank)},
             {WordFor("front", key::special_page::kSidesImaged), sides(kCoverFront)},
             {WordFor("back", key::special_page::kSidesImaged), sides(kCoverBack)},
             {WordFor("both", key::special_page::kSidesImaged), sides(kCoverBothSides)}},
            [this, path](const Dictionary&) {
              return static_cast<int>(document_->NumberAt(path + "/SidesImaged").value_or(0));
            });
    Codes(Kept(path + "/Stock/Color"), tr("Paper colour"));
    Number(Kept(path + "/Stock/Weight"), tr("Paper weight"), 0, 500, tr(" g/m²"));
  }

  /// Fields keep the pointer.
  const char* Kept(const std::string& path) {
    return kept_.emplace_back(std::make_unique<std::string>(path))->c_str();
  }

  QComboBox* Box(const char* name, const QString& label, const TicketKey* key) {
    auto* const box = new QComboBox(this);
    box->setObjectName(name);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->addItem(tr("As the job"), 0);
    for (const CodeWord& word : key->words)
      box->addItem(WordFor(word.word, key->name), static_cast<int>(word.code));
    Row(label, box);
    return box;
  }

  void Judge() {
    const bool fine = ReadPageRanges(pages_->text().toStdString()).has_value();
    const QString why = fine ? QString() : tr("Select pages, or type some such as 5-8, 12.");
    for (QPushButton* button : {exception_, insert_}) {
      if (button == nullptr) continue;
      Allow(button, fine, why);
    }
  }

  /// What each choice for these pages would be objected to for, before any is made.
  void JudgeChoices() {
    using namespace key::special_page;
    const auto with = [](const char* list_name, const char* name, const Value& value) {
      return [=](Dictionary* ticket) {
        Array list;
        if (const Array* now = DictionaryGetArray(*ticket, list_name)) list = *now;
        list.emplace_back(
            Dictionary{{kStartPage, Value(zarvo::Number(std::int32_t{1}))}, {name, value}});
        ticket->insert_or_assign(list_name, Value(std::move(list)));
      };
    };
    const auto number = [](std::int32_t value) { return Value(zarvo::Number(value)); };
    const auto stock = [&](const char* name, int value) {
      return with(key::kExceptionList, kStock, Value(Dictionary{{name, number(value)}}));
    };
    for (int i = 1; i < color_->count(); ++i)
      ObjectToChoice(color_, i, stock(key::stock::kColor, color_->itemData(i).toInt()));
    for (int i = 1; i < type_->count(); ++i)
      ObjectToChoice(type_, i, stock(key::stock::kType, type_->itemData(i).toInt()));
    for (int i = 1; i < sides_->count(); ++i)
      ObjectToChoice(sides_, i,
                     with(key::kExceptionList, kSidesImaged, number(sides_->itemData(i).toInt())));
    for (int i = 1; i < output_->count(); ++i)
      ObjectToChoice(output_, i,
                     with(key::kExceptionList, kOutputColor, number(output_->itemData(i).toInt())));
    ObjectTo(weight_, stock(key::stock::kWeight, std::max(weight_->value(), 1)));
    ObjectTo(count_, with(key::kInsertList, kQuantity, number(count_->value())));
  }

  Dictionary Stock() const {
    Dictionary stock;
    const auto put = [&stock](const char* name, int code) {
      if (code != 0) stock.insert_or_assign(name, Value(zarvo::Number(std::int32_t{code})));
    };
    put(key::stock::kColor, color_->currentData().toInt());
    put(key::stock::kType, type_->currentData().toInt());
    put(key::stock::kWeight, weight_->value());
    return stock;
  }

  void Append(const QString& what, const char* list_name, const std::vector<Dictionary>& entries) {
    document_->Change(what.toStdString(), [&](Dictionary* ticket) {
      Array list;
      if (const Array* now = DictionaryGetArray(*ticket, list_name)) list = *now;
      for (const Dictionary& entry : entries) list.emplace_back(entry);
      ticket->insert_or_assign(list_name, Value(std::move(list)));
    });
  }

  std::vector<PageRange> Ranges() const {
    return ReadPageRanges(pages_->text().toStdString()).value_or(std::vector<PageRange>());
  }

  void AddExceptions() {
    std::vector<Dictionary> entries;
    for (const auto& [first, last] : Ranges()) {
      Dictionary entry;
      const auto put = [&entry](const char* name, std::int64_t code) {
        if (code != 0)
          entry.insert_or_assign(name, Value(zarvo::Number(static_cast<std::int32_t>(code))));
      };
      put(key::special_page::kStartPage, first);
      put(key::special_page::kEndPage, last);
      put(key::special_page::kSidesImaged, sides_->currentData().toInt());
      put(key::special_page::kOutputColor, output_->currentData().toInt());
      if (Dictionary stock = Stock(); !stock.empty())
        entry.insert_or_assign(key::special_page::kStock, Value(std::move(stock)));
      if (entry.size() == 2) {
        context_.tell(tr("Choose first what is other than for the job."));
        return;
      }
      entries.push_back(std::move(entry));
    }
    Append(tr("Page exception"), key::kExceptionList, entries);
  }

  void AddInserts() {
    std::vector<Dictionary> entries;
    for (const auto& range : Ranges()) {
      Dictionary entry;
      const std::int32_t after = static_cast<std::int32_t>(range.second);
      const std::int32_t count = count_->value();
      CFDictionarySetNumber(entry, key::special_page::kStartPage, &after);
      CFDictionarySetNumber(entry, key::special_page::kQuantity, &count);
      if (Dictionary stock = Stock(); !stock.empty())
        entry.insert_or_assign(key::special_page::kStock, Value(std::move(stock)));
      entries.push_back(std::move(entry));
    }
    Append(tr("Insert"), key::kInsertList, entries);
  }

  void FillList() {
    list_->clear();
    for (const char* name : {key::kExceptionList, key::kInsertList}) {
      const Array* entries = DictionaryGetArray(document_->ticket(), name);
      for (std::size_t i = 0; entries != nullptr && i < entries->size(); ++i) {
        const Dictionary* entry = (*entries)[i].AsDictionary();
        auto* const item = new QListWidgetItem(
            entry != nullptr ? InWords(*entry, name == key::kInsertList) : QString(), list_);
        item->setData(Qt::UserRole, QString("%1/%2").arg(name).arg(i));
      }
    }
    Allow(remove_, false, tr("Choose one in the list first."));
  }

  static QString InWords(const Dictionary& entry, bool insert) {
    const auto number = [](const Dictionary& group, const char* name) {
      std::int32_t value = 0;
      CFDictionaryGetNumber(group, name, &value);
      return value;
    };
    const std::int32_t first = number(entry, key::special_page::kStartPage);
    const std::int32_t last = number(entry, key::special_page::kEndPage);
    QStringList parts;
    if (insert) {
      parts << tr("%n sheet(s) after page %1", nullptr,
                  std::max(number(entry, key::special_page::kQuantity), 1))
                   .arg(first);
    } else {
      parts << (last > first ? tr("Pages %1 to %2").arg(first).arg(last)
                             : tr("Page %1").arg(first));
    }
    const auto add = [&parts](const char* path, std::int32_t code) {
      const char* word = code != 0 ? WordOf(*KeyAt(path), code) : nullptr;
      if (word != nullptr) parts << WordFor(word);
    };
    add("FinishingDuplex", number(entry, key::special_page::kSidesImaged));
    add("FinishingOutputColor", number(entry, key::special_page::kOutputColor));
    if (const Dictionary* stock = DictionaryGetDictionary(entry, key::special_page::kStock)) {
      add("JobLevelStock/Color", number(*stock, key::stock::kColor));
      add("JobLevelStock/Type", number(*stock, key::stock::kType));
      if (const std::int32_t weight = number(*stock, key::stock::kWeight); weight != 0)
        parts << tr("%1 g/m²").arg(weight);
    }
    return parts.join(", ");
  }

  void Remove() {
    if (const QListWidgetItem* item = list_->currentItem())
      document_->Clear(item->data(Qt::UserRole).toString().toStdString(),
                       remove_->accessibleName().toStdString());
  }

  PanelContext context_;
  std::vector<std::unique_ptr<std::string>> kept_;
  std::vector<std::uint32_t> selected_;
  QLineEdit* pages_;
  QComboBox* color_;
  QComboBox* type_;
  QComboBox* sides_;
  QComboBox* output_;
  QSpinBox* weight_;
  QSpinBox* count_;
  QListWidget* list_;
  QPushButton* exception_ = nullptr;
  QPushButton* insert_ = nullptr;
  QPushButton* remove_ = nullptr;
};

}  // namespace

Panel* MakePagesPanel(const PanelContext& context) { return new PagesPanel(context); }

}  // namespace zarvo::desk
