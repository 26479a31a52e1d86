// SPDX-License-Identifier: Apache-2.0
// Every key that a ticket can hold, and what the present one says.
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cstring>

#include "Desk/model/Words.h"
#include "Desk/view/Panels.h"
#include "Desk/view/Translations.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {
namespace {

constexpr int kPath = Qt::UserRole;
constexpr int kSecret = Qt::UserRole + 1;
constexpr int kWords = Qt::UserRole + 2;

/// A line to type into, with the known words as proposals; dots for a secret.
class ValueDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override {
    if (index.column() != 1) return nullptr;
    const QString name = index.siblingAtColumn(0).data().toString();
    const QStringList words = index.data(kWords).toStringList();
    if (!words.isEmpty()) {
      auto* const box = new QComboBox(parent);
      box->setAccessibleName(name);
      box->setEditable(true);
      box->addItem(QString());
      box->addItems(words);
      return box;
    }
    auto* const line = new QLineEdit(parent);
    line->setAccessibleName(name);
    if (index.data(kSecret).toBool()) line->setEchoMode(QLineEdit::Password);
    Q_UNUSED(option);
    return line;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* box = qobject_cast<QComboBox*>(editor)) box->setEditText(text);
    if (auto* line = qobject_cast<QLineEdit*>(editor); line && !index.data(kSecret).toBool())
      line->setText(text);
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override {
    const auto* const box = qobject_cast<QComboBox*>(editor);
    model->setData(index,
                   box != nullptr ? box->currentText() : qobject_cast<QLineEdit*>(editor)->text());
  }
};

class AllKeysPanel : public Panel {
 public:
  explicit AllKeysPanel(const PanelContext& context) : Panel(context.document), context_(context) {
    auto* const filter = new QLineEdit(this);
    filter->setObjectName("key-filter");
    filter->setPlaceholderText(tr("Find a setting"));
    filter->setClearButtonEnabled(true);
    filter->setAccessibleName(tr("Find a setting"));
    Row(filter);
    tree_ = new QTreeWidget(this);
    tree_->setObjectName("all-keys");
    tree_->setAccessibleName(tr("All settings"));
    tree_->setHeaderLabels({tr("Setting"), tr("Value")});
    tree_->setMinimumHeight(420);
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree_->header()->resizeSection(1, 110);
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
      if (item->flags().testFlag(Qt::ItemIsEditable)) tree_->editItem(item, 1);
    });
    tree_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                           QAbstractItemView::SelectedClicked);
    tree_->setItemDelegate(new ValueDelegate(tree_));
    Row(tree_);
    connect(tree_, &QTreeWidget::itemChanged, this,
            [this](QTreeWidgetItem* item, int column) { Take(item, column); });
    connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) {
      for (int i = 0; i < tree_->topLevelItemCount(); ++i) Match(tree_->topLevelItem(i), text);
    });
    OnRefresh([this] { Fill(); });
  }

 private:
  void Fill() {
    // Only what is there is made anew; what is unfolded or found stays so.
    if (tree_->topLevelItemCount() == 0)
      for (const TicketKey& key : TopLevelKeys()) Add(nullptr, key, key.name);
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) Show(tree_->topLevelItem(i));
  }

  QTreeWidgetItem* Add(QTreeWidgetItem* parent, const TicketKey& key, const QString& path) {
    QString name = key.name;
    if (name.startsWith(key::kPrefix)) name.remove(0, static_cast<int>(std::strlen(key::kPrefix)));
    auto* const item = parent != nullptr ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(tree_);
    item->setText(0, Localized(DisplayName(key)));
    for (const int column : {0, 1}) item->setToolTip(column, item->text(0) + "\n" + name);
    item->setData(1, kPath, path);
    if (key.type == KeyType::kList) return item;
    if (key.type == KeyType::kDictionary) {
      for (const TicketKey& member : key.members) Add(item, member, path + "/" + member.name);
      return item;
    }
    QStringList words;
    for (const CodeWord& word : key.words) words << WordFor(word.word, key.name);
    if (key.type == KeyType::kBoolean || key.type == KeyType::kAny)
      words << TruthInWords(true) << TruthInWords(false);
    item->setData(1, kWords, words);
    item->setData(1, kSecret, key.secret);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
  }

  void Show(QTreeWidgetItem* item) {
    const std::string path = item->data(1, kPath).toString().toStdString();
    const TicketKey* key = KeyAt(path);
    const Value* value = document_->Find(path);
    if (key->type == KeyType::kList && !IsPlace(item)) {
      // As many groups as the list has, and one to begin a new one with.
      const Array* list = value != nullptr ? value->AsArray() : nullptr;
      const int count = (list != nullptr ? static_cast<int>(list->size()) : 0) + 1;
      while (item->childCount() > count) delete item->takeChild(count);
      while (item->childCount() < count) {
        const QString place =
            QString("%1/%2").arg(QString::fromStdString(path)).arg(item->childCount());
        auto* const group = new QTreeWidgetItem(item);
        group->setData(1, kPath, place);
        for (const TicketKey& member : key->members) Add(group, member, place + "/" + member.name);
      }
      for (int i = 0; i < count; ++i)
        item->child(i)->setText(0, i + 1 < count ? QString::number(i + 1) : tr("New"));
    }
    for (int i = 0; i < item->childCount(); ++i) Show(item->child(i));
    QFont font = item->font(0);
    font.setBold(value != nullptr);
    item->setFont(0, font);
    if (item->childCount() > 0) return;
    const QString text = value == nullptr ? QString()
                         : key->secret    ? QStringLiteral("\u2022\u2022\u2022\u2022")
                                          : ValueInWords(*key, *value);
    if (item->text(1) != text) item->setText(1, text);
  }

  /// What people chose by their own words, as the tables have it; a ticket's words will do as well.
  static std::string Meant(const TicketKey& key, const QString& text) {
    for (const CodeWord& word : key.words)
      if (text == WordFor(word.word, key.name)) return word.word;
    for (const bool truth : {true, false})
      if (text == TruthInWords(truth) && key.type != KeyType::kText)
        return truth ? "true" : "false";
    return text.toStdString();
  }

  static bool IsPlace(const QTreeWidgetItem* item) {
    bool number = false;
    item->data(1, kPath).toString().section('/', -1).toInt(&number);
    return number;
  }

  void Take(QTreeWidgetItem* item, int column) {
    if (filling_ || column != 1) return;
    // Later: filling the tree anew may take this very item out.
    const QString path = item->data(1, kPath).toString();
    const QString text = item->text(1);
    QTimer::singleShot(0, this, [=, this] { Put(path.toStdString(), text); });
  }

  void Put(const std::string& path, const QString& text) {
    const TicketKey* key = KeyAt(path);
    if (text.isEmpty()) {
      document_->Clear(path, Localized(DisplayName(*key)).toStdString());
    } else if (const std::optional<Value> value = ReadValue(*key, Meant(*key, text))) {
      document_->Set(path, *value, Localized(DisplayName(*key)).toStdString());
    } else {
      context_.tell(tr("%1 does not take \"%2\".").arg(Localized(DisplayName(*key)), text));
    }
    Refresh();
  }

  static bool Match(QTreeWidgetItem* item, const QString& text) {
    bool fits = text.isEmpty() || item->text(0).contains(text, Qt::CaseInsensitive) ||
                item->toolTip(0).contains(text, Qt::CaseInsensitive);
    for (int i = 0; i < item->childCount(); ++i)
      if (Match(item->child(i), fits ? QString() : text)) fits = true;
    item->setHidden(!fits);
    return fits;
  }

  PanelContext context_;
  QTreeWidget* tree_;
};

}  // namespace

Panel* MakeAllKeysPanel(const PanelContext& context) { return new AllKeysPanel(context); }

}  // namespace zarvo::desk
