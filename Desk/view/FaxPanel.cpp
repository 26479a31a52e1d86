// SPDX-License-Identifier: Apache-2.0
// Fax: who gets it, and the cover sheet. The cover itself is the first of the sheets.
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <algorithm>
#include <set>

#include "Desk/view/Panels.h"
#include "Platform/AddressBook.h"
#include "Source/CFAdditions.h"
#include "Source/Fax.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {
namespace {

QString NameOf(const AddressBookRecord& record) {
  return QString::fromStdString(VCardFindText(record.card, "FN").value_or(record.uid()));
}

class FaxPanel : public Panel {
 public:
  explicit FaxPanel(const PanelContext& context) : Panel(context.document), context_(context) {
    Group(tr("Recipients"));
    list_ = new QListWidget(this);
    list_->setObjectName("recipients");
    list_->setAccessibleName(tr("Recipients"));
    list_->setMinimumHeight(90);
    Row(list_);
    auto* const remove = Button("remove-recipient", tr("Remove"), [this] { Remove(); });
    const auto choose = [remove](int row) {
      Allow(remove, row >= 0, tr("Choose one in the list first."));
    };
    connect(list_, &QListWidget::currentRowChanged, this, choose);
    choose(-1);
    book_ = new QComboBox(this);
    book_->setObjectName("address-book");
    book_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Row(tr("Address book"), book_);
    from_book_ =
        Button("add-from-book", tr("Add from the address book"), [this] { AddFromBook(); });
    typed_ = new QLineEdit(this);
    typed_->setObjectName("typed-number");
    typed_->setPlaceholderText("+44 20 7946 0018");
    Row(tr("Number"), typed_);
    dialed_ = new QLabel(this);
    dialed_->setObjectName("dialed");
    dialed_->setWordWrap(true);
    Row(dialed_);
    name_ = new QLineEdit(this);
    name_->setObjectName("typed-name");
    Row(tr("Name"), name_);
    add_ = Button("add-typed", tr("Add this number"), [this] { AddTyped(); });
    keep_ = Button("keep-typed", tr("Keep in the address book"), [this] { Keep(); });
    connect(typed_, &QLineEdit::textChanged, this, [this] { Judge(); });
    connect(name_, &QLineEdit::textChanged, this, [this] { Judge(); });
    Group(tr("Cover sheet"));
    const auto cover = [this](std::int32_t size) {
      return [=](Dictionary* ticket) {
        Dictionary& fax = CFDictionaryGetDictionaryOrCreate(*ticket, key::kFaxOptions);
        fax.insert_or_assign(kFaxPrintCoverSheetProperty, Value::Boolean(size != 0));
        if (size == 0) return;
        const std::int32_t names = kRecipientNames;
        CFDictionarySetNumber(fax, kFaxCoverSizeProperty, &size);
        CFDictionarySetNumber(fax, kFaxCoverShowRecipientsProperty, &names);
        fax.emplace(kFaxCoverLocalizedToLabel, Value(tr("To").toStdString()));
      };
    };
    Choices("CoverSheet", tr("Send a cover"),
            {{tr("No cover"), cover(0)},
             {tr("On A4"), cover(kFaxCoverA4)},
             {tr("On Letter"), cover(kFaxCoverLetter)}},
            [this](const Dictionary&) {
              if (!document_->BooleanAt("FaxOptions/CoverSheet")) return 0;
              return document_->NumberAt("FaxOptions/Size").value_or(1) == kFaxCoverA4 ? 1 : 2;
            });
    CoverText("FaxOptions/SenderName", tr("From"), kFaxCoverLocalizedFromLabel, tr("From"), true);
    CoverText("FaxOptions/SenderOrganization", tr("Company"), kFaxCoverLocalizedFromLabel,
              tr("From"), true);
    CoverText("FaxOptions/CoverSheetNotes", tr("Notes"), kFaxCoverLocalizedNotesLabel, tr("Notes"),
              false);
    Group(tr("How it is sent"));
    Codes("FaxOptions/Resolution", tr("Resolution"));
    Codes("FaxOptions/SendSpeed", tr("Speed"));
    Text("FaxOptions/DialingPrefix", tr("Dialled before every number"));
    Date("FaxOptions/SendTime", tr("When"));
    Switch("FaxOptions/ConfirmationSheet", tr("Print a confirmation"));
    OnRefresh([this] { FillList(); });
    FillBook();
    Judge();
  }

 private:
  /// A text of the cover with what goes along with it.
  void CoverText(const char* path, const QString& label, const char* heading,
                 const QString& heading_text, bool sender) {
    QLineEdit* const line = Text(path, label);
    connect(line, &QLineEdit::textEdited, this, [=, this](const QString& text) {
      document_->Change(
          label.toStdString(),
          [&](Dictionary* ticket) {
            Dictionary& fax = CFDictionaryGetDictionaryOrCreate(*ticket, key::kFaxOptions);
            if (!text.isEmpty()) {
              fax.emplace(heading, Value(heading_text.toStdString()));
              if (sender) fax.insert_or_assign(kFaxCoverShowSenderProperty, Value::Boolean(true));
            }
            if (fax.empty()) ticket->erase(key::kFaxOptions);
          },
          true);
    });
  }

  void FillBook() {
    book_->clear();
    records_ = AddressBookRecords();
    const auto own = std::count_if(records_.begin(), records_.end(),
                                   [](const auto& record) { return record.shared_book.empty(); });
    const auto cards =
        QDir(QString::fromStdString(AddressBookFolder())).entryList({"*.vcf"}, QDir::Files).size();
    if (cards > own)
      context_.tell(tr("%n card(s) of the address book cannot be read: %1", nullptr,
                       static_cast<int>(cards - own))
                        .arg(QString::fromStdString(AddressBookFolder())));
    for (const AddressBookRecord& record : records_)
      book_->addItem(IsGroupCard(record.card) ? tr("%1 (group)").arg(NameOf(record))
                                              : NameOf(record));
    if (records_.empty()) book_->addItem(tr("The address book is empty"));
    for (QWidget* each : {static_cast<QWidget*>(book_), static_cast<QWidget*>(from_book_)})
      Allow(each, !records_.empty(), tr("The address book is empty"));
  }

  /// What would be dialed is shown while it is typed.
  void Judge() {
    const std::string number = CopyDialingStringFromFaxNumber(typed_->text().toStdString());
    const bool empty = typed_->text().isEmpty();
    dialed_->setVisible(!empty);
    dialed_->setText(number.empty()
                         ? tr("There is nothing in this to dial.")
                         : tr("The printer dials %1").arg(QString::fromStdString(number)));
    Allow(add_, !number.empty(), tr("Type a number that can be dialed first."));
    Allow(keep_, !number.empty() && !name_->text().trimmed().isEmpty(),
          tr("Type a number and a name first."));
  }

  void FillList() {
    list_->clear();
    const Array* recipients = DictionaryGetArray(document_->ticket(), key::kFaxRecipientList);
    for (std::size_t i = 0; recipients != nullptr && i < recipients->size(); ++i) {
      const FaxRecipient recipient((*recipients)[i].AsDictionary());
      const QString name = QString::fromStdString(DisplayNameFromRecipient(recipient));
      const QString number = recipient.faxNumber() != nullptr
                                 ? QString::fromStdString(*recipient.faxNumber())
                                 : QString();
      list_->addItem(name.isEmpty() ? number : name + "  " + number);
    }
  }

  void Add(const std::vector<FaxRecipient>& recipients) {
    QStringList without;
    document_->Change(tr("Fax recipients").toStdString(), [&](Dictionary* ticket) {
      Array list;
      std::set<std::string> dialed;
      if (const Array* now = DictionaryGetArray(*ticket, key::kFaxRecipientList)) list = *now;
      for (const Value& each : list) {
        const FaxRecipient known(each.AsDictionary());
        if (known.faxNumber() != nullptr)
          dialed.insert(CopyDialingStringFromFaxNumber(*known.faxNumber()));
      }
      for (const FaxRecipient& recipient : recipients) {
        const std::string number = recipient.faxNumber() != nullptr
                                       ? CopyDialingStringFromFaxNumber(*recipient.faxNumber())
                                       : "";
        if (number.empty()) {
          without << QString::fromStdString(DisplayNameFromRecipient(recipient));
        } else if (dialed.insert(number).second) {
          list.emplace_back(recipient.toTicket());
        }
      }
      if (list.empty()) return;
      ticket->insert_or_assign(key::kFaxRecipientList, Value(std::move(list)));
      const std::int32_t fax = kJobTypeFax;
      CFDictionarySetNumber(CFDictionaryGetDictionaryOrCreate(*ticket, key::kJobType),
                            key::job_type::kJobType, &fax);
      CFDictionaryGetDictionaryOrCreate(*ticket, key::kFaxOptions)
          .emplace(kFaxPrintCoverSheetProperty, Value::Boolean(false));
    });
    if (!without.isEmpty())
      context_.tell(tr("Without a fax number, and so left out: %1").arg(without.join(", ")));
  }

  void AddFromBook() {
    const auto index = static_cast<std::size_t>(std::max(book_->currentIndex(), 0));
    if (index >= records_.size()) return;
    const AddressBookRecord& found = records_[index];
    std::vector<FaxRecipient> recipients;
    const std::vector<std::string> members = GroupMembers(found.card);
    for (const AddressBookRecord& record : records_) {
      const bool meant = IsGroupCard(found.card) ? std::find(members.begin(), members.end(),
                                                             record.uid()) != members.end()
                                                 : &record == &found;
      if (meant) recipients.push_back(FaxRecipientFromCard(record.card));
    }
    Add(recipients);
  }

  FaxRecipient Typed() const {
    const std::string number = typed_->text().toStdString();
    const std::string name = name_->text().trimmed().toStdString();
    return FaxRecipient(name.empty() ? nullptr : &name, nullptr, &number);
  }

  void AddTyped() {
    Add({Typed()});
    typed_->clear();
    name_->clear();
  }

  void Keep() {
    FaxRecipient recipient = Typed();
    if (!recipient.commitToAddressBook()) {
      context_.tell(tr("The address book cannot be written: %1")
                        .arg(QString::fromStdString(AddressBookFolder())));
      return;
    }
    FillBook();
    AddTyped();
  }

  void Remove() {
    if (list_->currentRow() < 0) return;
    document_->Clear("FaxRecipientList/" + std::to_string(list_->currentRow()),
                     tr("Fax recipients").toStdString());
  }

  PanelContext context_;
  std::vector<AddressBookRecord> records_;
  QListWidget* list_;
  QComboBox* book_;
  QLineEdit* typed_;
  QLineEdit* name_;
  QLabel* dialed_;
  QPushButton* from_book_;
  QPushButton* add_;
  QPushButton* keep_;
};

}  // namespace

Panel* MakeFaxPanel(const PanelContext& context) { return new FaxPanel(context); }

}  // namespace zarvo::desk
