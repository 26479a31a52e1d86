// SPDX-License-Identifier: Apache-2.0
#include "Desk/view/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QXmlStreamReader>
#include <algorithm>

namespace zarvo::desk {
namespace {

constexpr char kContext[] = "desk";
/// Longer ones are no text of ours; expressions would take their time with them.
constexpr int kLongestText = 1000;

}  // namespace

Translations::Translations(const QLocale& locale, QObject* application) : QTranslator(application) {
  if (!load(locale, "zarvo-desk", "_", ":/i18n")) return;
  if (printer_.load(":/i18n/zarvo-ppd_" + language()))
    ReadForms(":/forms/zarvo-desk_" + language() + ".ts");
  if (toolkit_.load(locale, "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&toolkit_);
  QCoreApplication::installTranslator(this);
}

Translations::~Translations() {
  QCoreApplication::removeTranslator(this);
  QCoreApplication::removeTranslator(&toolkit_);
}

QString Translations::translate(const char* context, const char* text, const char* which,
                                int count) const {
  Q_UNUSED(context);
  Q_UNUSED(which);
  const QString own = QTranslator::translate(kContext, text, nullptr, count);
  return own.isEmpty() ? printer_.translate("", text) : own;
}

/// The compiled translations can be asked for a text, but not for all that have places in them.
void Translations::ReadForms(const QString& file) {
  static const QRegularExpression place("%([1-9])");
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) return;
  QXmlStreamReader xml(&source);
  QString english;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"source") english = xml.readElementText();
    if (xml.name() != u"translation") continue;
    const QString text = xml.readElementText(QXmlStreamReader::SkipChildElements);
    if (text.isEmpty() || !english.contains(place)) continue;
    QString pattern = QRegularExpression::escape(english);
    // Escaped, a place is "\%1".
    const QRegularExpression escaped(R"(\\%([1-9]))");
    QString loose = pattern;
    pattern.replace(escaped, R"((?<p\1>(?:(?!, ).)+?))");
    loose.replace(escaped, R"((?<p\1>.+?))");
    QString letters = english;
    letters.remove(place);
    forms_.push_back({QRegularExpression(QRegularExpression::anchoredPattern(pattern)),
                      QRegularExpression(QRegularExpression::anchoredPattern(loose)), text,
                      letters.size()});
  }
  std::stable_sort(forms_.begin(), forms_.end(),
                   [](const Form& a, const Form& b) { return a.letters > b.letters; });
}

QString Translations::Find(const QString& text) const {
  const QByteArray id = text.toUtf8();
  QString found = translate(kContext, id.constData(), nullptr, -1);
  if (!found.isEmpty() || text.isEmpty()) return found;
  // The words of tables are kept as titles.
  const QByteArray title = (text[0].toUpper() + text.mid(1)).toUtf8();
  return title == id ? QString() : translate(kContext, title.constData(), nullptr, -1);
}

QString Translations::ByForm(const QString& text, bool loose) const {
  for (const Form& form : forms_) {
    const QRegularExpressionMatch match = (loose ? form.loose : form.english).match(text);
    if (!match.hasMatch()) continue;
    QString told;
    for (qsizetype i = 0; i < form.text.size(); ++i) {
      const bool place = form.text[i] == '%' && i + 1 < form.text.size() &&
                         form.text[i + 1] >= '1' && form.text[i + 1] <= '9';
      told += place ? Tell(match.captured(QString("p") + form.text[++i])) : QString(form.text[i]);
    }
    return told;
  }
  return {};
}

QString Translations::Tell(const QString& text) const {
  if (text.isEmpty() || text.size() > kLongestText) return text;
  if (QString found = Find(text); !found.isEmpty()) return found;
  if (text.contains('\n')) {
    QStringList lines = text.split('\n');
    for (QString& line : lines) line = Tell(line);
    return lines.join('\n');
  }
  if (QString found = ByForm(text, false); !found.isEmpty()) return found;
  // A sentence behind what it is about is looked up whole before it is cut at its own signs.
  const qsizetype colon = text.indexOf(": ");
  if (const QString head = Find(text.left(std::max<qsizetype>(colon, 0))); !head.isEmpty())
    return head + ": " + Tell(text.mid(colon + 2));
  if (QString found = ByPieces(text); found != text) return found;
  QString found = ByForm(text, true);
  return found.isEmpty() ? text : found;
}

QString Translations::ByPieces(const QString& text) const {
  for (const char* separator : {". ", "; ", ": ", ", "}) {
    QStringList pieces = text.split(separator);
    if (pieces.size() < 2) continue;
    for (QString& piece : pieces) piece = Tell(piece);
    return pieces.join(separator);
  }
  return text;
}

QString Localized(const QString& text) {
  const auto* const translations = qApp->findChild<Translations*>();
  return translations != nullptr ? translations->Tell(text) : text;
}

}  // namespace zarvo::desk
