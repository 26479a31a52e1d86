// SPDX-License-Identifier: Apache-2.0
#include "Desk/model/Renderer.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "Platform/Process.h"
#include "Tools/zarvo/job/JobKind.h"

namespace zarvo::desk {

using nlohmann::json;

namespace {

constexpr int kSettleMilliseconds = 60;     // several changes at once are one
constexpr std::size_t kPicturesAtOnce = 6;  // so that a turn of the wheel is not waited for
constexpr qint64 kMostBytes = 512LL << 20;  // of pictures that are kept
constexpr std::size_t kPagesAhead = 8;

bool IsPdf(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(static_cast<qint64>(tool::kKindBytes));
  return tool::KindOfJob(start.toStdString(), name.toStdString()) == tool::JobKind::kPdf;
}

}  // namespace

QString ProgramPath(const QString& name) {
  for (const QString& folder :
       {QCoreApplication::applicationDirPath(), QCoreApplication::applicationDirPath() + "/../bin",
        QString(ZARVO_LIBEXEC_DIR)}) {
    const QFileInfo program(folder + "/" + name);
    if (program.isExecutable()) return program.filePath();
  }
  return QStandardPaths::findExecutable(name);
}

/// One process. Nothing of it is heard once the object is gone.
class Renderer::Work {
 public:
  Work(Renderer* renderer, bool ahead) : is_ahead(ahead), process_(new ChildProgram(renderer)) {
    QObject::connect(process_, &QProcess::readyReadStandardOutput, renderer, [this, renderer] {
      // A line may end this object.
      while (process_->canReadLine()) {
        const json line = json::parse(process_->readLine().toStdString(), nullptr, false);
        const QProcess* const me = process_;
        if (!line.is_discarded()) renderer->Hear(this, line);
        if ((renderer->ahead_ == nullptr || renderer->ahead_->process_ != me) &&
            (renderer->whole_ == nullptr || renderer->whole_->process_ != me))
          return;
      }
    });
    QObject::connect(process_, &QProcess::finished, renderer,
                     [this, renderer] { renderer->End(this); });
    QObject::connect(process_, &QProcess::errorOccurred, renderer,
                     [this, renderer](QProcess::ProcessError error) {
                       if (error == QProcess::FailedToStart) renderer->End(this);
                     });
  }
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;
  ~Work() {
    process_->disconnect();
    process_->kill();
    // Waiting for its end would keep the window waiting.
    QObject::connect(process_, &QProcess::finished, process_, &QObject::deleteLater);
    if (process_->state() == QProcess::NotRunning) process_->deleteLater();
  }

  void Start(const SheetRequest& request) {
    process_->setStandardErrorFile(QProcess::nullDevice());
    process_->start(ProgramPath("zarvosheets"), {});
    Write(RequestToJson(request));
  }
  void Write(const json& line) {
    const std::string text = line.dump(-1, ' ', false, json::error_handler_t::replace) + "\n";
    process_->write(text.data(), static_cast<qint64>(text.size()));
    waits = true;
  }

  const bool is_ahead;
  std::vector<std::uint64_t> asked;  ///< pages of the latest request
  int asked_dots = 0;
  std::string known;      ///< content of the pictures that were there
  bool waits = false;     ///< for an answer
  bool answered = false;  ///< has given a plan
  bool told = false;      ///< why it failed
  bool serves = false;    ///< has drawn all pages

 private:
  QProcess* process_;
};

Renderer::Renderer(const ScratchFolder& cache, QObject* parent)
    : QObject(parent),
      cache_(cache),
      patience_(static_cast<int>(ProcessTimeLimit(std::chrono::minutes(2)).count())) {
  start_.setSingleShot(true);
  connect(&start_, &QTimer::timeout, this, &Renderer::Start);
  connect(&watch_, &QTimer::timeout, this, &Renderer::GiveUp);
}

Renderer::~Renderer() = default;

void Renderer::SetFile(const QString& file) {
  file_ = file;
  pictures_.clear();
  undrawn_.clear();
  plan_ = {};
  whole_content_.clear();
  ahead_.reset();
  whole_.reset();
  wanted_.clear();
  ++round_;
  emit PlanChanged();
  start_.start(0);
}

void Renderer::SetSettings(const RenderSettings& settings, const QString& ppd) {
  if (settings == settings_ && ppd == ppd_) return;
  const bool later_same = settings.page_by_page && settings_.page_by_page && ppd == ppd_ &&
                          settings.later_options == settings_.later_options;
  settings_ = settings;
  ppd_ = ppd;
  NewRound(later_same);
  undrawn_.clear();
  ahead_.reset();
  whole_.reset();
  start_.start(kSettleMilliseconds);
}

/// What is drawn is stale, save that of later pages where these are `later_same`.
void Renderer::NewRound(bool later_same) {
  ++round_;
  if (!later_same) return;
  for (auto& [page, picture] : pictures_)
    if (page > 1 && picture.round == round_ - 1) picture.round = round_;
}

void Renderer::Redraw() {
  NewRound(settings_.page_by_page && settings_.marked_at_first);
  ahead_.reset();
  whole_.reset();
  start_.start(kSettleMilliseconds);
}

void Renderer::SetWanted(const std::vector<std::uint64_t>& pages, int dots) {
  if (pages == wanted_ && dots == dots_) return;
  if (dots != dots_) undrawn_.clear();
  wanted_ = pages;
  dots_ = dots;
  if (start_.isActive() || failed_) return;
  AskForMore();
}

const QImage* Renderer::Picture(std::uint64_t page) const {
  const auto found = pictures_.find(page);
  return found == pictures_.end() ? nullptr : &found->second.image;
}

bool Renderer::IsFresh(std::uint64_t page) const {
  const auto found = pictures_.find(page);
  return found != pictures_.end() && found->second.round == round_ && found->second.dots == dots_;
}

bool Renderer::IsBusy() const {
  return start_.isActive() || ahead_ || (whole_ && (whole_->waits || !whole_->serves));
}

void Renderer::Start() {
  ahead_.reset();
  whole_.reset();
  failed_ = false;
  if (file_.isEmpty()) return;
  watch_.start(std::clamp(patience_ / 4, 10, 1000));
  heard_.start();
  const bool converted = !whole_content_.empty() && settings_.copies == whole_settings_.copies &&
                         settings_.converter_options == whole_settings_.converter_options;
  if (settings_.page_by_page && !converted && IsPdf(file_)) {
    StartAhead();
  } else {
    StartWhole();
  }
}

std::unique_ptr<Renderer::Work> Renderer::Begin(bool ahead,
                                                const std::vector<std::uint64_t>& pages) {
  SheetRequest request;
  request.file = file_.toStdString();
  request.title = QFileInfo(file_).fileName().toStdString();
  request.ppd = ppd_.toStdString();
  request.options = settings_.options;
  request.converter_options = settings_.converter_options;
  request.cache = QFileInfo(QString::fromStdString(cache_.File("x"))).path().toStdString();
  request.copies = settings_.copies;
  request.dots = dots_;
  request.pages = pages;
  request.ahead = ahead;
  if (!ahead) request.known = whole_content_;
  auto work = std::make_unique<Work>(this, ahead);
  work->asked = pages;
  work->asked_dots = dots_;
  work->known = request.known;
  work->Start(request);
  return work;
}

void Renderer::StartAhead() {
  std::vector<std::uint64_t> pages = Missing(kPagesAhead);
  if (wanted_.empty()) pages = {1, 2};  // nothing is laid out yet
  if (pages.empty()) return;
  ahead_ = Begin(true, pages);
}

void Renderer::StartWhole() {
  std::vector<std::uint64_t> pages = Missing(kPagesAhead);
  if (wanted_.empty()) pages = {1, 2, 3, 4};
  whole_ = Begin(false, pages);
}

void Renderer::Hear(Work* work, const json& line) {
  heard_.start();
  try {
    if (line.contains("stage")) {
      emit Progress(QString::fromStdString(line.at("stage")), line.at("done"), line.at("total"));
    } else if (line.contains("plan")) {
      work->answered = true;
      TakePlan(work, PlanFromJson(line.at("plan")));
    } else if (line.contains("file")) {
      TakePicture(line);
    } else if (line.contains("drawn")) {
      work->waits = false;
      work->serves = !work->is_ahead;
      NoteUndrawn(*work);
      AskForMore();
    } else if (line.contains("failure")) {
      work->told = true;
      if (work->is_ahead) return;  // the whole document will tell, or be better off
      failed_ = true;
      emit Failed(QString::fromStdString(line.at("failure")));
    }
  } catch (const json::exception&) {
    failed_ = true;
    emit Failed("zarvosheets: " + QString::fromStdString(line.dump().substr(0, 100)));
  }
}

void Renderer::TakePlan(Work* work, PlanReport plan) {
  bool changed = false;
  if (!work->is_ahead) {
    changed = !whole_content_.empty() && plan.content != whole_content_;
    whole_content_ = plan.content;
    whole_settings_ = settings_;
    planned_ = round_;
    // Pictures of the same PostScript are as good as new.
    for (auto& [page, picture] : pictures_) {
      if (picture.round == round_) picture.content = whole_content_;
      if (picture.content == whole_content_) picture.round = round_;
    }
    if (work->known == whole_content_) work->asked.clear();
  }
  plan_ = std::move(plan);
  emit PlanChanged();
  // What is looked at goes ahead of drawing all of it.
  if (changed && whole_.get() == work && settings_.page_by_page && !Missing(1).empty() &&
      IsPdf(file_)) {
    whole_.reset();
    StartAhead();
  }
}

void Renderer::TakePicture(const json& line) {
  const QString name = QString::fromStdString(line.at("file"));
  const std::uint64_t page = line.at("page");
  QImage image;
  image.load(name, "PNG");
  QFile::remove(name);
  if (image.isNull()) return;
  pictures_[page] = {std::move(image), line.at("dots"), round_,
                     planned_ == round_ ? whole_content_ : std::string()};
  DropFarPictures();
  emit PictureChanged(page);
}

void Renderer::NoteUndrawn(const Work& work) {
  // The whole document does better than some pages, and another size is asked for anew.
  if (work.is_ahead || work.asked_dots != dots_) return;
  const std::size_t before = undrawn_.size();
  for (const std::uint64_t page : work.asked) {
    if (page <= plan_.plan.pages && !IsFresh(page)) undrawn_.insert(page);
  }
  if (undrawn_.size() == before) return;
  emit Failed(tr("%n page(s) cannot be drawn; there may be no room left for temporary files.",
                 nullptr, static_cast<int>(undrawn_.size())));
}

void Renderer::DropFarPictures() {
  qint64 bytes = 0;
  for (const auto& [page, picture] : pictures_) bytes += picture.image.sizeInBytes();
  const std::uint64_t near = wanted_.empty() ? 1 : wanted_.front();
  while (bytes > kMostBytes && pictures_.size() > wanted_.size() + 1) {
    const auto first = pictures_.begin();
    const auto last = std::prev(pictures_.end());
    const bool at_front =
        near > first->first && near - first->first > last->first - std::min(near, last->first);
    const auto far = at_front ? first : last;
    bytes -= far->second.image.sizeInBytes();
    pictures_.erase(far);
  }
}

void Renderer::End(Work* work) {
  const bool told = work->told;
  const bool waited = work->waits;
  const bool ahead = work->is_ahead;
  (ahead ? ahead_ : whole_).reset();
  if (ahead) {
    if (!whole_) StartWhole();
    return;
  }
  if (!told && waited) {
    failed_ = true;
    emit Failed(
        tr("The program that makes the sheets has ended; the document needs more time or "
           "memory than it may take."));
  }
  emit Idle();
}

std::vector<std::uint64_t> Renderer::Missing(std::size_t most) const {
  std::vector<std::uint64_t> missing;
  for (const std::uint64_t page : wanted_) {
    if (missing.size() == most) break;
    if (page != 0 && !IsFresh(page) && !undrawn_.contains(page) &&
        (plan_.plan.pages == 0 || page <= plan_.plan.pages))
      missing.push_back(page);
  }
  return missing;
}

void Renderer::AskForMore() {
  if (whole_ && whole_->serves && !whole_->waits) {
    const std::vector<std::uint64_t> pages = Missing(kPicturesAtOnce);
    if (pages.empty()) {
      emit Idle();
      return;
    }
    heard_.start();
    whole_->asked = pages;
    whole_->asked_dots = dots_;
    whole_->Write({{"pages", pages}, {"dots", dots_}});
  } else if (whole_ && !ahead_ && settings_.page_by_page && plan_.ahead == false &&
             !whole_content_.empty() && IsPdf(file_)) {
    StartAhead();  // the whole is still being drawn
  } else if (!whole_ && !ahead_ && !file_.isEmpty() && !start_.isActive()) {
    start_.start(0);
  }
}

void Renderer::GiveUp() {
  const bool waits = ahead_ || (whole_ && (whole_->waits || !whole_->serves));
  if (!waits || heard_.elapsed() < patience_) return;
  ahead_.reset();
  whole_.reset();
  failed_ = true;
  emit Failed(
      tr("Nothing has come from the programs that convert the document for %n second(s); "
         "they have been ended.",
         nullptr, patience_ / 1000));
  emit Idle();
}

}  // namespace zarvo::desk
