// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/DrawSheets.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <thread>

#include "Tools/zarvo/system/Ghostscript.h"

namespace zarvo::tool {
namespace {

namespace fs = std::filesystem;

constexpr unsigned kMostThreads = 4;
constexpr std::uint64_t kLongJob = 24;    // pages; from here on work is shared out
constexpr std::uint64_t kFirstPages = 8;  // that are drawn ahead
constexpr std::size_t kBatch = 12;        // pictures that one interpreter draws

unsigned Threads() { return std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads); }

/// How long the jobs together are, as their comments tell.
std::uint64_t Length(const PostScriptFiles& split) { return split.facts.postscript.pages; }

/// A range of one job's pages, drawn by one interpreter.
struct Piece {
  std::size_t job;
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  std::string file = {};
  std::string fault = {};
  std::uint64_t told = 0;  // pages that the interpreter has told of
};

/// How many pages of the piece come out. Of none the PDF file would still show an empty one.
std::size_t PagesOf(const Piece& piece, const PostScriptFiles& split,
                    const ScratchFolder& scratch) {
  const std::size_t pages = CountPdfPages(piece.file);
  if (pages != 1 || piece.told > 0) return pages;
  const PageLook look = LookAtPages(split.files[piece.job], {}, kLongestRun, scratch);
  return look.whole && look.pages < std::max<std::uint64_t>(piece.first, 1) ? 0 : 1;
}

std::vector<Piece> ShareOut(const PostScriptFiles& split) {
  std::vector<Piece> pieces;
  for (std::size_t job = 0; job < split.files.size(); ++job) {
    const std::uint64_t pages = split.facts.jobs[job].pages;
    const std::uint64_t parts = pages < kLongJob ? 1 : Threads();
    // The last one takes what comes, should the comments be wrong.
    for (std::uint64_t part = 0; part < parts; ++part)
      pieces.push_back({job, parts == 1 ? 0 : pages * part / parts + 1,
                        part + 1 == parts ? 0 : pages * (part + 1) / parts});
  }
  return pieces;
}

}  // namespace

void RunTasks(const std::vector<std::function<void()>>& tasks) {
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t task; (task = next++) < tasks.size();) tasks[task]();
  };
  std::vector<std::jthread> threads;
  const std::size_t wanted = std::min<std::size_t>(Threads(), tasks.size());
  for (std::size_t i = 1; i < wanted; ++i) threads.emplace_back(work);
  work();
}

std::vector<DrawnPage> DrawFirstPages(const PostScriptFiles& split, const ScratchFolder& scratch) {
  if (split.files.size() != 1 || Length(split) < kLongJob) return {};
  Drawing drawing;
  drawing.inputs = {split.files[0]};
  drawing.device = "pdfwrite";
  drawing.output = scratch.File("first.pdf");
  drawing.last = kFirstPages;
  drawing.stop = true;
  drawing.page = [] {};
  Draw(drawing, scratch);
  std::vector<DrawnPage> pages;
  const std::size_t count = std::min<std::size_t>(CountPdfPages(drawing.output), kFirstPages);
  for (std::size_t page = 0; page < count; ++page) pages.push_back({drawing.output, page});
  return pages;
}

std::vector<DrawnPage> DrawPages(const PostScriptFiles& split, const ScratchFolder& scratch,
                                 const std::function<void()>& page, std::vector<PageLook>* looks) {
  std::vector<Piece> pieces = ShareOut(split);
  std::vector<std::function<void()>> tasks;
  std::mutex mutex;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    Piece& piece = pieces[i];
    piece.file = scratch.File("piece-" + std::to_string(i) + ".pdf");
    tasks.emplace_back([&] {
      Drawing drawing;
      drawing.inputs = {split.files[piece.job]};
      drawing.device = "pdfwrite";
      drawing.output = piece.file;
      drawing.first = piece.first;
      drawing.last = piece.last;
      drawing.page = [&] {
        ++piece.told;
        const std::lock_guard lock(mutex);
        page();
      };
      piece.fault = Draw(drawing, scratch);
    });
  }
  RunTasks(tasks);
  std::vector<DrawnPage> pages;
  looks->assign(split.files.size(), {});
  for (const Piece& piece : pieces) {
    PageLook& look = (*looks)[piece.job];
    if (look.fault.empty()) look.fault = piece.fault;
    const std::size_t count = PagesOf(piece, split, scratch);
    if (count == 0 && piece.told > 0 && look.fault.empty())
      look.fault = "its pages cannot be read again; is there room for temporary files (TMPDIR)?";
    look.pages += count;
    for (std::size_t i = 0; i < count; ++i) pages.push_back({piece.file, i});
  }
  return pages;
}

Failure DrawPictures(const std::vector<SheetSide>& sides, std::size_t first, std::size_t last,
                     int resolution, const ScratchFolder& scratch,
                     const std::function<void(std::size_t, const std::string&)>& deliver) {
  std::mutex mutex;
  Failure failure;
  std::vector<std::function<void()>> tasks;
  for (std::size_t from = first; from < last; from += kBatch) {
    tasks.emplace_back([&, from] {
      const std::size_t to = std::min(from + kBatch, last);
      const std::string name = scratch.File("batch-" + std::to_string(from));
      Drawing drawing;
      drawing.inputs = {name + ".pdf"};
      drawing.device = "png16m";
      drawing.output = name + "-%d.png";
      drawing.resolution = resolution;
      std::string fault = WriteSheetPdf(sides, from, to, drawing.inputs[0]);
      if (fault.empty()) fault = Draw(drawing, scratch);
      const std::lock_guard lock(mutex);
      if (!fault.empty()) failure = fault;
      std::error_code error;
      for (std::size_t side = from; side < to && fault.empty(); ++side) {
        const std::string picture = name + "-" + std::to_string(side - from + 1) + ".png";
        deliver(side, picture);
        fs::remove(picture, error);
      }
      fs::remove(drawing.inputs[0], error);
    });
  }
  RunTasks(tasks);
  return failure;
}

}  // namespace zarvo::tool
