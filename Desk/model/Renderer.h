// SPDX-License-Identifier: Apache-2.0
// The pictures of the sheets, made by processes that are ended when a change makes them stale.
//
// Design. Two processes at most work for a document (see Desk/sheets/Request.h). One takes the
// whole document through converter, filter and interpreter; it gives the plan and then any page
// that is asked for. That takes seconds for a long document. So the pages that are looked at go
// ahead, as a small document of their own, in another one. A picture stays
// on show until there is a newer one. A change is first put to the filter alone, which takes little
// time: when its PostScript turns out to be the same as before, as for every setting that only the
// finisher reads, nothing is drawn again.
#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QProcess>
#include <QTimer>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Desk/model/RenderSettings.h"
#include "Desk/sheets/Request.h"
#include "Platform/ScratchFolder.h"

namespace zarvo::desk {

/// Where a program of this house is: beside this one (a build tree), in the folder for helpers, or
/// in PATH.
QString ProgramPath(const QString& name);

/// A program that is ended with the object, which then says nothing more of it.
class ChildProgram : public QProcess {
 public:
  using QProcess::QProcess;
  ~ChildProgram() override {
    disconnect();
    kill();
    waitForFinished(1000);
  }
};

class Renderer : public QObject {
  Q_OBJECT

 public:
  /// The folder is for what can be used again; it must outlive the object.
  explicit Renderer(const ScratchFolder& cache, QObject* parent = nullptr);
  ~Renderer() override;

  /// Another document; empty for none.
  void SetFile(const QString& file);
  const QString& file() const { return file_; }
  /// How it is printed. Equal settings change nothing.
  void SetSettings(const RenderSettings& settings, const QString& ppd);
  /// Draws all anew: what the ticket names has changed.
  void Redraw();
  /// The pages that are looked at, in the order in which they are wanted, and how fine.
  void SetWanted(const std::vector<std::uint64_t>& pages, int dots);

  const PlanReport& plan() const { return plan_; }
  /// The page's latest picture, or null.
  const QImage* Picture(std::uint64_t page) const;
  /// Whether that picture shows the present settings as finely as is wanted.
  bool IsFresh(std::uint64_t page) const;
  bool IsBusy() const;

  /// How long nothing may come from a process before it is given up, milliseconds; that of the
  /// filter's helper.
  void SetPatience(int milliseconds) { patience_ = milliseconds; }

 signals:
  void PlanChanged();
  void PictureChanged(quint64 page);
  void Progress(const QString& stage, int done, int total);
  void Failed(const QString& text);
  /// All that is wanted is drawn, and nothing works.
  void Idle();

 private:
  class Work;
  struct Picture_ {
    QImage image;
    int dots = 0;
    int round = 0;
    std::string content;  ///< of the whole document when it was drawn; empty until that is known
  };

  void NewRound(bool later_same);
  void Start();
  void StartAhead();
  void StartWhole();
  std::unique_ptr<Work> Begin(bool ahead, const std::vector<std::uint64_t>& pages);
  void Hear(Work* work, const nlohmann::json& line);
  void TakePlan(Work* work, PlanReport plan);
  void TakePicture(const nlohmann::json& line);
  void End(Work* work);
  void AskForMore();
  std::vector<std::uint64_t> Missing(std::size_t most) const;
  void GiveUp();
  void NoteUndrawn(const Work& work);
  void DropFarPictures();

  const ScratchFolder& cache_;
  QString file_;
  QString ppd_;
  RenderSettings settings_;
  std::vector<std::uint64_t> wanted_;
  int dots_ = 48;
  int round_ = 0;  ///< of settings; a picture of an older one is stale
  PlanReport plan_;
  std::string whole_content_;
  int planned_ = -1;               ///< the round that whole_content_ is of
  RenderSettings whole_settings_;  ///< that the latest plan of the whole document is of
  std::map<std::uint64_t, Picture_> pictures_;
  std::set<std::uint64_t> undrawn_;  ///< asked for in vain; they are not asked for again
  std::unique_ptr<Work> ahead_;
  std::unique_ptr<Work> whole_;
  bool failed_ = false;
  QTimer start_;
  QTimer watch_;
  QElapsedTimer heard_;
  int patience_;
};

}  // namespace zarvo::desk
