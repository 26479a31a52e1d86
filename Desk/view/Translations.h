// SPDX-License-Identifier: Apache-2.0
// The program's texts in the person's language.
//
// Design. All texts stand in one context: a text means the same wherever it stands. What the PPD
// says already is taken from its catalogs. Texts that the project's libraries and programs make
// come in English; they are looked up whole, then by the forms that they are made of (see
// Platform/Phrase.h), then piece by piece. What is found nowhere, such as a name, stays as it is.
#pragma once

#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>
#include <string>
#include <vector>

namespace zarvo::desk {

class Translations : public QTranslator {
  Q_OBJECT

 public:
  /// Installs itself for the locale's language, and the toolkit's own texts with it.
  Translations(const QLocale& locale, QObject* application);
  ~Translations() override;

  QString translate(const char* context, const char* text, const char* which,
                    int count) const override;
  bool isEmpty() const override { return false; }

  /// An English text in the language, as far as it is known.
  QString Tell(const QString& text) const;

 private:
  struct Form {
    QRegularExpression english;
    QRegularExpression loose;  ///< the places may hold lists
    QString text;              ///< with %1 to %9
    qsizetype letters = 0;
  };
  QString Find(const QString& text) const;
  QString ByForm(const QString& text, bool loose) const;
  QString ByPieces(const QString& text) const;
  void ReadForms(const QString& file);

  QTranslator printer_;
  QTranslator toolkit_;
  std::vector<Form> forms_;
};

/// What a library or another program of the project says, in the person's language.
QString Localized(const QString& text);
inline QString Localized(const std::string& text) {
  return Localized(QString::fromStdString(text));
}

}  // namespace zarvo::desk
