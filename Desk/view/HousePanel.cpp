// SPDX-License-Identifier: Apache-2.0
// House tickets as a gallery, and saving the present settings under a name.
#include <QInputDialog>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>

#include "Desk/model/Finishing.h"
#include "Desk/view/Panels.h"
#include "Desk/view/Translations.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"
#include "Tools/zarvo/ticket/HouseText.h"

namespace zarvo::desk {
namespace {

/// The window does nothing else meanwhile, so another program that holds the store is told of soon.
constexpr std::chrono::milliseconds kLockWait(200);
constexpr int kIconWidth = 72;
constexpr int kIconHeight = 72;

/// A small drawing of what the ticket does to a sheet.
QIcon SmallPicture(const Dictionary& ticket) {
  QPixmap picture(kIconWidth * 2, kIconHeight * 2);
  picture.setDevicePixelRatio(2);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const Dictionary* cover = DictionaryGetDictionary(ticket, key::kFrontCover);
  const bool booklet = DictionaryGetBoolean(ticket, key::kBookletLayout).value_or(false);
  const QRectF sheet = booklet ? QRectF(6, 16, 60, 42) : QRectF(16, 6, 42, 60);
  painter.setPen(QColor(0x80, 0x80, 0x80));
  painter.setBrush(Qt::white);
  painter.drawRect(sheet.translated(3, 3));
  painter.setBrush(cover != nullptr ? QColor(0xbc, 0xd4, 0xf2) : QColor(Qt::white));
  painter.drawRect(sheet);
  painter.setPen(QPen(QColor(0xb8, 0xb8, 0xb8), 1));
  for (int line = 0; cover == nullptr && line < 6; ++line) {
    const double y = sheet.top() + sheet.height() * (line + 2) / 9;
    painter.drawLine(QPointF(sheet.left() + 5, y), QPointF(sheet.center().x() - 2, y));
    painter.drawLine(QPointF(sheet.center().x() + 2, y), QPointF(sheet.right() - 5, y));
  }
  const Finishing finishing = FinishingOf(ticket);
  painter.setPen(QPen(QColor(0xb0, 0x20, 0x20), 3));
  if (finishing.staple != 0 && finishing.staple < kStapleDualLeft)
    painter.drawLine(sheet.topLeft() + QPointF(4, 6), sheet.topLeft() + QPointF(10, 6));
  if (finishing.staple >= kStapleDualLeft || finishing.booklet == kBookletFoldAndStaple) {
    const double x = finishing.booklet != 0 ? sheet.center().x() : sheet.left() + 4;
    for (const double y : {0.3, 0.7})
      painter.drawLine(QPointF(x, sheet.top() + y * sheet.height() - 3),
                       QPointF(x, sheet.top() + y * sheet.height() + 3));
  }
  if (finishing.bind != 0)
    painter.fillRect(QRectF(sheet.left(), sheet.top(), 4, sheet.height()),
                     QColor(0x60, 0x50, 0x40));
  const Dictionary* job = DictionaryGetDictionary(ticket, key::kJobType);
  std::int32_t type = 0;
  if (job != nullptr) CFDictionaryGetNumber(*job, key::job_type::kJobType, &type);
  painter.setPen(QColor(0x20, 0x50, 0x90));
  QFont font = painter.font();
  font.setPixelSize(18);
  font.setBold(true);
  painter.setFont(font);
  if (type == kJobTypeSecure) painter.drawText(sheet, Qt::AlignCenter, "***");
  if (type == kJobTypeFax) painter.drawText(sheet, Qt::AlignCenter, "FAX");
  if (type == kJobTypeSampleSet) painter.drawText(sheet, Qt::AlignCenter, "1");
  return QIcon(picture);
}

class HousePanel : public Panel {
 public:
  explicit HousePanel(const PanelContext& context) : Panel(context.document), context_(context) {
    Group(tr("House tickets"));
    search_ = new QLineEdit(this);
    search_->setObjectName("house-search");
    search_->setPlaceholderText(tr("Find one by its title"));
    search_->setAccessibleName(tr("Find one by its title"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, [this] { Search(); });
    Row(search_);
    none_ = new QLabel(this);
    none_->setWordWrap(true);
    none_->setText(
        tr("None is kept yet. Choose settings in the other groups, type a name below and "
           "keep them."));
    Row(none_);
    gallery_ = new QListWidget(this);
    gallery_->setObjectName("gallery");
    gallery_->setAccessibleName(tr("House tickets"));
    gallery_->setViewMode(QListView::IconMode);
    gallery_->setMovement(QListView::Static);
    gallery_->setResizeMode(QListView::Adjust);
    gallery_->setWordWrap(true);
    gallery_->setIconSize({kIconWidth, kIconHeight});
    gallery_->setGridSize({110, 118});
    gallery_->setMinimumHeight(260);
    Row(gallery_);
    use_ = Button("use-house", tr("Use these settings"), [this] { Use(); });
    connect(gallery_, &QListWidget::itemActivated, this, [this] { Use(); });
    connect(gallery_, &QListWidget::currentRowChanged, this,
            [this](int row) { Allow(use_, row >= 0, tr("Choose one of the pictures first.")); });
    Group(tr("Keep the settings under a name"));
    name_ = new QLineEdit(this);
    name_->setObjectName("house-name");
    connect(name_, &QLineEdit::textChanged, this, [this] { Judge(); });
    Row(tr("Name"), name_);
    fault_ = new QLabel(this);
    fault_->setObjectName("house-fault");
    fault_->setWordWrap(true);
    Row(fault_);
    save_ = Button("save-house", tr("Keep"), [this] { Save(); });
    Fill();
    Judge();
  }

 private:
  void Fill() {
    gallery_->clear();
    tool::HouseStores stores;
    if (const std::string fault = stores.Read(); !fault.empty()) {
      // A damaged store is told; the window goes on without it.
      broken_ = QString::fromStdString(fault);
      context_.tell(broken_);
      return;
    }
    broken_.clear();
    for (const HouseTicketStore* store : stores.All()) {
      for (const std::string& name : store->Names()) {
        const QString shown = QString::fromStdString(name);
        if (!gallery_->findItems(shown, Qt::MatchExactly).isEmpty() || stores.Of(name) != store)
          continue;
        ResolvedHouseTicket house;
        HouseTicket record;
        const Failure failure = ResolveHouseTicket(name, FindIn(stores.All()), &house);
        store->Find(name, &record);
        auto* const item = new QListWidgetItem(
            failure.empty() ? QString::fromStdString(tool::TitleOf(record, name)) : shown,
            gallery_);
        item->setData(Qt::UserRole, shown);
        item->setIcon(SmallPicture(house.ticket));
        item->setToolTip(failure.empty() ? shown : QString::fromStdString(failure));
        if (!failure.empty()) item->setFlags(Qt::NoItemFlags);
      }
    }
    Allow(use_, false, tr("Choose one of the pictures first."));
    none_->setVisible(gallery_->count() == 0);
    Search();
  }

  void Search() {
    const QString wanted = search_->text().trimmed();
    for (int i = 0; i < gallery_->count(); ++i) {
      QListWidgetItem* const item = gallery_->item(i);
      item->setHidden(!item->text().contains(wanted, Qt::CaseInsensitive) &&
                      !item->toolTip().contains(wanted, Qt::CaseInsensitive));
    }
  }

  void Use() {
    const QListWidgetItem* item = gallery_->currentItem();
    if (item == nullptr) return;
    const std::string name = item->data(Qt::UserRole).toString().toStdString();
    tool::HouseStores stores;
    ResolvedHouseTicket house;
    std::string fault = stores.Read();
    if (fault.empty()) fault = ResolveHouseTicket(name, FindIn(stores.All()), &house);
    if (!fault.empty()) return context_.tell(QString::fromStdString(fault));
    name_->setText(QString::fromStdString(name));
    document_->Replace(house.ticket, use_->accessibleName().toStdString());
  }

  void Judge() {
    const std::string name = name_->text().trimmed().toStdString();
    const std::string fault = name.empty() ? "" : HouseTicketNameFault(name);
    fault_->setText(Localized(fault));
    fault_->setVisible(!fault.empty());
    Allow(save_, !name.empty() && fault.empty(),
          name.empty() ? tr("Type a name first.") : Localized(fault));
  }

  void Save() {
    const std::string name = name_->text().trimmed().toStdString();
    HouseTicket house;
    for (const auto& [option, value] : document_->ticket()) {
      // What works before the filter is no part of such a ticket.
      if (option.starts_with("com.")) house.ticket.insert_or_assign(option, value);
    }
    HouseTicketStore store = HouseTicketStore::Own();
    const Failure failure =
        store.Change([&](HouseTicketStore* own) { return own->Put(name, house); }, kLockWait);
    if (!failure.empty()) return context_.tell(QString::fromStdString(failure));
    context_.tell(tr("Kept as %1. \"zarvo ticket list\" shows all that are kept.")
                      .arg(name_->text().trimmed()));
    Fill();
  }

  PanelContext context_;
  QString broken_;
  QLineEdit* search_;
  QLabel* none_;
  QListWidget* gallery_;
  QLineEdit* name_;
  QLabel* fault_;
  QPushButton* use_;
  QPushButton* save_;
};

}  // namespace

Panel* MakeHousePanel(const PanelContext& context) { return new HousePanel(context); }

}  // namespace zarvo::desk
