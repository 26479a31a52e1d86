// SPDX-License-Identifier: Apache-2.0
// What the ticket asks for that the queue would not do by itself.
#include "Desk/model/Finishing.h"
#include "Desk/model/RenderSettings.h"
#include "Desk/model/Words.h"
#include "Desk/view/Panels.h"
#include "Desk/view/Translations.h"
#include "Source/CFAdditions.h"
#include "Source/TicketNames.h"

namespace zarvo::desk {

static QString Dots() { return QStringLiteral("\u2022\u2022\u2022\u2022"); }

QString TruthInWords(bool truth) { return truth ? Panel::tr("Yes") : Panel::tr("No"); }

QString ValueInWords(const TicketKey& key, const Value& value) {
  if (key.secret) return Dots();
  if (const bool* truth = value.AsBoolean()) return TruthInWords(*truth);
  std::int64_t code = 0;
  if (value.AsNumber() != nullptr && value.AsNumber()->Get(&code))
    if (const char* word = WordOf(key, code)) return WordFor(word, key.name);
  return QString::fromStdString(WriteValue(key, value));
}

namespace {

class ChangesPanel : public Panel {
 public:
  explicit ChangesPanel(const PanelContext& context)
      : Panel(context.document), defaults_(*context.defaults) {
    Group(tr("What I changed"));
    QLabel* const changes = Hint("changes", [this](const Dictionary& ticket) {
      const QStringList lines = Lines(ticket);
      return lines.isEmpty() ? tr("Nothing: the job is printed as the queue does it by itself.")
                             : lines.join('\n');
    });
    QLabel* const kept = Hint("saved", [saved = context.saved](const Dictionary&) {
      QStringList lines;
      for (const auto& [name, value] : *saved) lines << OptionLine(name, value);
      if (!lines.isEmpty())
        lines.prepend(tr("What you keep for this printer yourself (lpoptions), in every job:"));
      return lines.join('\n');
    });
    // Keys lead there too: who cannot point has to scroll a long list, and to hear it.
    for (QLabel* label : {changes, kept}) {
      label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
      label->setFocusPolicy(Qt::StrongFocus);
    }
  }

 private:
  QStringList Lines(const Dictionary& ticket) const {
    QStringList lines;
    for (const auto& [name, value] : ticket) {
      const Value* usual = DictionaryFind(defaults_, name);
      const TicketKey* key = FindTopLevelKey(name);
      // What only makes others work says nothing to people.
      if (name == key::kJTMLOptions || (usual != nullptr && *usual == value)) continue;
      if (name == key::kFinishingOptions && !(FinishingOf(ticket) == Finishing{})) continue;
      if (name == "sides" && ticket.contains(key::kFinishingDuplex)) continue;
      if (key == nullptr) {
        lines << Against(OptionLine(name, value), usual);
      } else if (const Array* list = value.AsArray()) {
        for (std::size_t i = 0; i < list->size(); ++i)
          lines << tr("%1, number %2: %3")
                       .arg(Localized(DisplayName(*key)))
                       .arg(i + 1)
                       .arg(Members(*key, (*list)[i], nullptr).join(", "));
      } else if (value.AsDictionary() != nullptr) {
        const QStringList members = Members(*key, value, usual);
        if (!members.isEmpty()) lines << Localized(DisplayName(*key)) + ": " + members.join(", ");
      } else {
        lines << Line(*key, value, usual);
      }
    }
    return lines;
  }

  static QString Line(const TicketKey& key, const Value& value, const Value* usual) {
    const QString line = Localized(DisplayName(key)) + ": " + ValueInWords(key, value);
    return usual == nullptr ? line : tr("%1 (by itself: %2)").arg(line, ValueInWords(key, *usual));
  }

  static QString Against(const QString& line, const Value* usual) {
    const std::string* text = usual != nullptr ? usual->AsString() : nullptr;
    return text == nullptr ? line
                           : tr("%1 (by itself: %2)").arg(line, QString::fromStdString(*text));
  }

  static QString OptionLine(const std::string& name, const Value& value) {
    const QString text = IsSecretOption(name)          ? Dots()
                         : value.AsString() != nullptr ? QString::fromStdString(*value.AsString())
                                                       : QString();
    const QString title = name == "copies"  ? tr("Copies")
                          : name == "media" ? tr("Size")
                          : name == "sides" ? tr("Two sides")
                                            : QString::fromStdString(name);
    return title + ": " + text;
  }

  /// The members of a group that are otherwise than in the usual one.
  static QStringList Members(const TicketKey& key, const Value& group, const Value* usual) {
    QStringList lines;
    const Dictionary* members = group.AsDictionary();
    const Dictionary* others = usual != nullptr ? usual->AsDictionary() : nullptr;
    if (members == nullptr) return lines;
    for (const TicketKey& member : key.members) {
      const Value* value = DictionaryFind(*members, member.name);
      const Value* other = others != nullptr ? DictionaryFind(*others, member.name) : nullptr;
      if (value == nullptr || (other != nullptr && *other == *value)) continue;
      if (value->AsDictionary() != nullptr || value->AsArray() != nullptr) {
        lines << Members(member, *value, other);
      } else if (DisplayName(member) == DisplayName(key)) {
        lines << ValueInWords(member, *value);  // the group has just been named so
      } else {
        lines << Line(member, *value, other);
      }
    }
    return lines;
  }

  const Dictionary& defaults_;
};

}  // namespace

Panel* MakeChangesPanel(const PanelContext& context) { return new ChangesPanel(context); }

}  // namespace zarvo::desk
