// SPDX-License-Identifier: Apache-2.0
// Drives the window as a person does, without a screen. One class, so that its window, folders and
// spooler are made once; DeskTest.cpp has the tasks, the other files what their names say.
#pragma once

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "Desk/view/MainWindow.h"

namespace zarvo::desk {

constexpr int kLongest = 120000;  // milliseconds, on a machine that does much else

/// The ticket of these words of a settings file; ends the program where they are none.
Dictionary Read(const char* text);

/// The program's folders are the test's own.
class Home {
 public:
  Home() {
    qputenv("HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());
    qputenv("ZARVO_APPLICATION_SUPPORT", folder.path().toUtf8());
    qputenv("ZARVO_ADDRESS_BOOK", folder.filePath("contacts").toUtf8());
    if (qEnvironmentVariableIsEmpty("CUPS_SERVER")) qputenv("CUPS_SERVER", "127.0.0.1:1");
  }
  QString Put(const QString& name, const QByteArray& content) const {
    const QDir root(folder.path());
    root.mkpath(QFileInfo(name).path());
    QFile file(root.filePath(name));
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write");
    file.write(content);
    return file.fileName();
  }
  QTemporaryDir folder;
};

/// Looks at the command lines and environments of this program's children, and of theirs.
struct Children {
  explicit Children(QByteArray wanted) : secret(std::move(wanted)) {}
  void Look();
  QByteArray secret;
  QByteArray leak;  ///< the first that held it
  int looks = 0;    ///< at one of them
};

/// A document of A4 pages, each with its number.
QByteArray Document(int pages);

class DeskTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QSettings().clear();
    window_ = std::make_unique<MainWindow>(*scratch);
    window_->resize(1280, 720);
  }
  void cleanup() { window_.reset(); }

  void finishing_survives_the_ticket();
  void page_ranges();
  void history();
  void print_dialog_of_others();
  void every_key_can_be_reached();
  void what_excludes_what_is_shown();
  void what_is_changed();
  void everybody_data();
  void everybody();
  void watermark_changed_in_place();
  void secrets_stay_inside();
  void what_is_kept();
  void tasks_data();
  void tasks();
  void house_ticket_under_a_new_name();
  void sheets_are_the_previews_data();
  void sheets_are_the_previews();
  void only_what_changed_is_drawn();
  void hostile_data();
  void hostile();
  void damaged_stores_data();
  void damaged_stores();
  void full_disk();
  void silent_spooler();
  void queue_goes();
  void printed();

 public:
  static std::unique_ptr<ScratchFolder> scratch;
  static Home* home;

 private:
  template <class T>
  T* Find(const QString& name) {
    T* found = window_->findChild<T*>(name);
    if (found == nullptr) qFatal("no %s", qPrintable(name));
    return found;
  }
  void Choose(const QString& name, const QString& text) {
    auto* const box = Find<QComboBox>(name);
    const int index = box->findText(text, Qt::MatchStartsWith);
    QVERIFY2(index >= 0, qPrintable(name + ": " + text));
    box->setCurrentIndex(index);
    emit box->activated(index);
  }
  void Type(const QString& name, const QString& text) {
    auto* const line = Find<QLineEdit>(name);
    line->clear();
    QTest::keyClicks(line, text);
  }
  void Press(const QString& name) {
    QVERIFY(Find<QAbstractButton>(name)->isEnabled());
    Find<QAbstractButton>(name)->click();
  }
  void Do(const QString& task);
  /// Waits for it. The library's own macro for this mixes kinds of numbers in its later versions.
  static bool Comes(const std::function<bool()>& sight) { return QTest::qWaitFor(sight, kLongest); }
  bool Settle() {
    return Comes([this] { return !window_->renderer().IsBusy(); });
  }

  std::unique_ptr<MainWindow> window_;
};

}  // namespace zarvo::desk
