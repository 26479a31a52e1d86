// SPDX-License-Identifier: Apache-2.0
// How long the desktop program's window takes, in milliseconds: to stand, from opening a document
// to its first sheet, and from a change that every page shows to that sheet as it is now. Of each
// the whole and what the window itself worked.
#include <time.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>

#include "Desk/view/MainWindow.h"
#include "Platform/ScratchFolder.h"
#include "Source/TicketNames.h"

namespace {

double WorkedMilliseconds() {
  timespec now{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

class Watch {
 public:
  Watch() : worked_(WorkedMilliseconds()) { passed_.start(); }
  void Tell(const char* what) const {
    std::printf("%s %lld %.0f\n", what, static_cast<long long>(passed_.elapsed()),
                WorkedMilliseconds() - worked_);
    std::fflush(stdout);
  }

 private:
  QElapsedTimer passed_;
  double worked_;
};

}  // namespace

int main(int argc, char** argv) {
  using zarvo::desk::Renderer;
  if (argc != 3) return 2;
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  const Watch start;
  const auto scratch = zarvo::ScratchFolder::Create();
  QApplication app(argc, argv);
  zarvo::desk::MainWindow window(*scratch);
  window.SetPpd(argv[2]);
  window.show();
  QApplication::processEvents();
  start.Tell("start");
  const auto first_sheet = [&window] {
    QEventLoop loop;
    QObject::connect(&window.renderer(), &Renderer::PictureChanged, &loop, [&](quint64 page) {
      if (page == 1 && window.renderer().IsFresh(1)) loop.quit();
    });
    loop.exec();
    QApplication::processEvents();  // it is painted
  };
  const Watch first;
  window.OpenDocument(argv[1]);
  first_sheet();
  first.Tell("first");
  // People change a setting some time after they have seen the sheets.
  while (window.renderer().IsBusy()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  const Watch changed;
  window.document().Set("InvertImageOptions/NegativeImage",
                        zarvo::Value(zarvo::Number(std::int32_t{1})), "negative");
  first_sheet();
  changed.Tell("changed");
  return 0;
}
