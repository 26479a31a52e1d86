// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/Panels.h"

#include "CUPSFilter/Options/PinPolicy.h"
#include "Desk/view/Translations.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {
namespace {

using Numbers = std::initializer_list<std::pair<const char*, std::int32_t>>;

void PutNumbers(Dictionary* ticket, Numbers numbers) {
  for (const auto& [name, number] : numbers) CFDictionarySetNumber(*ticket, name, &number);
}

std::int32_t NumberIn(const Dictionary& ticket, const char* name) {
  std::int32_t number = 0;
  CFDictionaryGetNumber(ticket, name, &number);
  return number;
}

class PaperPanel : public Panel {
 public:
  explicit PaperPanel(const PanelContext& context) : Panel(context.document) {
    Group(tr("Paper"));
    const std::vector<std::pair<QString, std::string>> sizes = {{tr("As the printer does"), ""},
                                                                {"A4", "A4"},
                                                                {"A3", "A3"},
                                                                {"A5", "A5"},
                                                                {"SRA3", "SRA3"},
                                                                {"Letter", "Letter"},
                                                                {"Legal", "Legal"},
                                                                {"Tabloid", "Tabloid"}};
    std::vector<Choice> choices;
    choices.reserve(sizes.size());
    for (const auto& [text, media] : sizes)
      choices.push_back({text, [media = media](Dictionary* ticket) {
                           if (media.empty()) {
                             ticket->erase("media");
                           } else {
                             ticket->insert_or_assign("media", Value(media));
                           }
                         }});
    Choices("media", tr("Size"), choices, [sizes](const Dictionary& ticket) {
      const std::string* now = DictionaryGetString(ticket, "media");
      for (std::size_t i = 0; i < sizes.size(); ++i)
        if (sizes[i].second == (now != nullptr ? *now : "")) return static_cast<int>(i);
      return -1;
    });
    Codes("JobLevelStock/Type", tr("Kind"));
    Codes("JobLevelStock/Color", tr("Colour"));
    Number("JobLevelStock/Weight", tr("Weight"), 0, 500, tr(" g/m²"));
    Number("JobLevelStock/Source", tr("Tray"), -1, 9);
    Text("JobLevelStock/Name", tr("Name that the printer knows it by"));
    Group(tr("Where the sheets come out"));
    Codes("FinishingOutputDestination", tr("Tray for the output"));
    Codes("FinishingOffset", tr("Shift stacks"), {kOffsetNone, kOffsetSets});
    Switch("BannerPage", tr("Banner page"));
    Codes("FinishingSlipSheet", tr("Slip sheets between the sets"));
    Codes("SeparatorOption", tr("Separators between transparencies"));
  }
};

class SidesPanel : public Panel {
 public:
  explicit SidesPanel(const PanelContext& context) : Panel(context.document) {
    Group(tr("Two sides"));
    // The converters set the pages up by the spooler's own option, the printer by the ticket.
    const auto sides = [](std::int32_t code, const char* word) {
      return [code, word](Dictionary* ticket) {
        PutNumbers(ticket, {{key::kFinishingDuplex, code}});
        ticket->insert_or_assign("sides", Value(word));
      };
    };
    Choices("sides", tr("Print on"),
            {{tr("As the printer does"),
              [](Dictionary* ticket) {
                ticket->erase(key::kFinishingDuplex);
                ticket->erase("sides");
              }},
             {WordFor("one-sided"), sides(kOneSided, "one-sided")},
             {WordFor("long-edge"), sides(kLongEdge, "two-sided-long-edge")},
             {WordFor("short-edge"), sides(kShortEdge, "two-sided-short-edge")}},
            [](const Dictionary& ticket) { return NumberIn(ticket, key::kFinishingDuplex); });
    Codes("AdvancedRotateImage180", tr("Pages"));
    Group(tr("Copies and pages"));
    Choices("copies", tr("Copies"), CopyChoices(*context.defaults),
            [usual = context.defaults](const Dictionary& ticket) {
              const std::string* copies = DictionaryGetString(ticket, "copies");
              const int count =
                  std::atoi(copies != nullptr ? copies->c_str() : UsualCopies(*usual).c_str());
              return count >= 1 && count <= kMostCopies ? count - 1 : -1;
            });
    Group(tr("Shift the pages"));
    for (const auto& [path, label] :
         {std::pair("ImageShiftOptionsJob/X1", tr("To the right, front (1/10 mm)")),
          std::pair("ImageShiftOptionsJob/Y1", tr("Upwards, front (1/10 mm)")),
          std::pair("ImageShiftOptionsJob/X2", tr("To the right, back (1/10 mm)")),
          std::pair("ImageShiftOptionsJob/Y2", tr("Upwards, back (1/10 mm)"))})
      Number(path, label, -1000, 1000);
  }

 private:
  static constexpr int kMostCopies = 50;
  static std::string UsualCopies(const Dictionary& defaults) {
    const std::string* copies = DictionaryGetString(defaults, "copies");
    return copies != nullptr ? *copies : "1";
  }
  static std::vector<Choice> CopyChoices(const Dictionary& defaults) {
    std::vector<Choice> choices;
    for (int count = 1; count <= kMostCopies; ++count)
      choices.push_back({QString::number(count), [count, &defaults](Dictionary* ticket) {
                           if (std::to_string(count) == UsualCopies(defaults)) {
                             ticket->erase("copies");
                           } else {
                             ticket->insert_or_assign("copies", Value(std::to_string(count)));
                           }
                         }});
    return choices;
  }
};

class BookletPanel : public Panel {
 public:
  explicit BookletPanel(const PanelContext& context) : Panel(context.document) {
    Group(tr("Booklet"));
    const auto booklet = [](ReadingOrder order) {
      return [order](Dictionary* ticket) {
        ticket->insert_or_assign(key::kBookletLayout, Value::Boolean(true));
        PutNumbers(ticket,
                   {{key::kBookletReadingOrder, order}, {key::kFinishingDuplex, kShortEdge}});
      };
    };
    Choices("BookletLayout", tr("Layout"),
            {{tr("No booklet"),
              [](Dictionary* ticket) {
                ticket->erase(key::kBookletLayout);
                ticket->erase(key::kBookletReadingOrder);
                if (!ticket->contains("sides")) ticket->erase(key::kFinishingDuplex);
              }},
             {tr("Booklet, read from left to right"), booklet(kLeftToRight)},
             {tr("Booklet, read from right to left"), booklet(kRightToLeft)}},
            [](const Dictionary& ticket) {
              if (!DictionaryGetBoolean(ticket, key::kBookletLayout).value_or(false)) return 0;
              return NumberIn(ticket, key::kBookletReadingOrder) == kRightToLeft ? 2 : 1;
            });
    const auto finish = [](std::int32_t code) {
      return [code](Dictionary* ticket) {
        if (code == 0) {
          ticket->erase(key::kFinishingOptions);
          ticket->erase(key::kBookletFoldStaple);
        } else {
          PutNumbers(ticket,
                     {{key::kFinishingOptions, kPresetBooklet}, {key::kBookletFoldStaple, code}});
        }
      };
    };
    Choices("BookletFoldStaple", tr("Finish"),
            {{tr("As the printer does"), finish(0)},
             {tr("Fold in the middle"), finish(kBookletFold)},
             {tr("Fold and staple in the fold"), finish(kBookletFoldAndStaple)}},
            [](const Dictionary& ticket) {
              const std::int32_t code = NumberIn(ticket, key::kBookletFoldStaple);
              return code == kBookletFold ? 1 : code == kBookletFoldAndStaple ? 2 : 0;
            });
    Switch("BookletForceNewSize", tr("On the paper's own size"));
    Switch("BookletDrawOutlines", tr("Frame around each page"));
    Number("Gutter", tr("Space between the pages"), 0, 200, tr(" points"));
    Number("Creep", tr("Creep for each sheet"), 0, 100, tr("/10 points"));
    Switch("RotateBooklet180Degrees", tr("Turn the sheets"));
  }
};

class QualityPanel : public Panel {
 public:
  explicit QualityPanel(const PanelContext& context) : Panel(context.document) {
    Group(tr("Colour"));
    Codes("FinishingOutputColor", tr("Print in"));
    Number("FullColorOptions/Lightness", tr("Lightness"), -100, 100);
    Number("FullColorOptions/Contrast", tr("Contrast"), -100, 100);
    Number("FullColorOptions/Saturation", tr("Saturation"), -100, 100);
    Switch("InvertImageOptions/NegativeImage", tr("Negative"));
    Switch("InvertImageOptions/MirrorImage", tr("Mirrored"));
    Group(tr("Quality"));
    Codes("Resolution", tr("Resolution"));
    Codes("Antialiasing", tr("Smooth edges"));
    Codes("HalftoneScreen", tr("Halftone screen"));
    Switch("TonerSaver", tr("Save toner"));
  }
};

class JobPanel : public Panel {
 public:
  explicit JobPanel(const PanelContext& context) : Panel(context.document) {
    Group(tr("What becomes of the job"));
    Codes("JobType/JobType", tr("Do this"),
          {kJobTypeNormal, kJobTypeSecure, kJobTypeSampleSet, kJobTypeSave, kJobTypePrintAndSave,
           kJobTypeHold, kJobTypeDelayed, kJobTypeFax});
    pin_ = Text("JobType/SecurePrintPassword", tr("PIN (4 to 10 digits)"), true);
    pin_->setMaxLength(10);
    Hint("pin-fault", [this](const Dictionary&) {
      const std::string pin = document_->TextAt("JobType/SecurePrintPassword");
      if (Type() != kJobTypeSecure) return QString();
      if (pin.empty()) return tr("Type the PIN that you will give at the printer.");
      const std::string fault = TypedPinFault(pin);
      return fault.empty() ? tr("At the printer choose this job and type the PIN.")
                           : Localized(fault);
    });
    name_ = Text("JobType/SavedJobName", tr("Name to save it under"));
    folder_ = Text("JobType/SavedJobLocation", tr("Folder at the printer"));
    when_ = Date("JobType/DelayedPrintTime", tr("When"));
    Group(tr("Notes"));
    Text("JobNotesMessage", tr("Message to the operator"));
    Text("JobNotesRecipient", tr("Who gets the printout"));
    Text("JobNotesSheetMessage", tr("Text on the banner page"));
    Group(tr("Accounting"));
    // The header's and the XML ticket's accounting go together, as for the queue's own options.
    const auto mode = [](std::int32_t code, std::int32_t type) {
      return [code, type](Dictionary* ticket) {
        ticket->erase(key::kAccountType);
        ticket->erase(key::kXmlAccounting);
        PutNumbers(ticket, {{key::kAccounting, code}});
        if (type != 0) PutNumbers(ticket, {{key::kAccountType, type}});
        if (code == kUserAndAccount) PutNumbers(ticket, {{key::kXmlAccounting, code}});
      };
    };
    Choices("accounting", tr("Account for it"),
            {{tr("As the printer does"),
              [](Dictionary* ticket) {
                for (const char* name :
                     {key::kAccounting, key::kAccountType, key::kXmlAccounting, key::kAccountUser,
                      key::kAccount, key::kXmlAccountUser, key::kXmlAccount})
                  ticket->erase(name);
              }},
             {tr("By user"), mode(kUserAndOptionalAccount, kNoAccount)},
             {tr("By user and general account"), mode(kUserAndOptionalAccount, kGeneralAccount)},
             {tr("By user and group account"), mode(kUserAndOptionalAccount, kGroupAccount)},
             {tr("By user and account"), mode(kUserAndAccount, 0)}},
            [](const Dictionary& ticket) {
              const std::int32_t now = NumberIn(ticket, key::kAccounting);
              if (now == kUserAndAccount) return 4;
              return now == kUserAndOptionalAccount ? NumberIn(ticket, key::kAccountType) : 0;
            });
    Account("com.zarvo.Act.UID", "com.zarvo.Act.jtml.UID", tr("User"));
    Account("com.zarvo.Act.AID", "com.zarvo.Act.jtml.AID", tr("Account"));
  }

  void Refresh() override {
    Panel::Refresh();
    const std::int64_t type = Type();
    ShowOnly(pin_, type == kJobTypeSecure);
    ShowOnly(name_, type == kJobTypeSave || type == kJobTypePrintAndSave);
    ShowOnly(folder_, type == kJobTypeSave || type == kJobTypePrintAndSave);
    ShowOnly(when_, type == kJobTypeDelayed);
  }

 private:
  std::int64_t Type() const { return document_->NumberAt("JobType/JobType").value_or(0); }

  /// A text that stands in both places, in the second one only in the mode that has it.
  void Account(const char* path, const char* xml_path, const QString& label) {
    auto* const line = new QLineEdit(this);
    line->setObjectName(path);
    connect(line, &QLineEdit::textEdited, this, [=, this](const QString& text) {
      document_->Change(
          label.toStdString(),
          [&](Dictionary* ticket) {
            ticket->erase(path);
            ticket->erase(xml_path);
            if (text.isEmpty()) return;
            ticket->insert_or_assign(path, Value(text.toStdString()));
            if (NumberIn(*ticket, key::kAccounting) == kUserAndAccount)
              ticket->insert_or_assign(xml_path, Value(text.toStdString()));
          },
          true);
    });
    OnRefresh([=, this] {
      const QString text = QString::fromStdString(document_->TextAt(path));
      if (line->text() != text) line->setText(text);
    });
    Row(label, line);
  }

  QLineEdit* pin_;
  QLineEdit* name_;
  QLineEdit* folder_;
  QDateTimeEdit* when_;
};

}  // namespace

std::vector<PanelEntry> MakePanels(const PanelContext& context) {
  return {{"house", Panel::tr("House tickets"), MakeHousePanel(context)},
          {"paper", Panel::tr("Paper and trays"), new PaperPanel(context)},
          {"sides", Panel::tr("Two sides"), new SidesPanel(context)},
          {"finishing", Panel::tr("Finishing"), MakeFinishingPanel(context)},
          {"booklet", Panel::tr("Booklet"), new BookletPanel(context)},
          {"pages", Panel::tr("Covers and pages"), MakePagesPanel(context)},
          {"watermark", Panel::tr("Watermark"), MakeWatermarkPanel(context)},
          {"quality", Panel::tr("Colour and quality"), new QualityPanel(context)},
          {"job", Panel::tr("The job"), new JobPanel(context)},
          {"fax", Panel::tr("Fax"), MakeFaxPanel(context)},
          {"changes", Panel::tr("What I changed"), MakeChangesPanel(context)},
          {"all", Panel::tr("All settings"), MakeAllKeysPanel(context)}};
}

}  // namespace zarvo::desk
