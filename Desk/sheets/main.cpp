// SPDX-License-Identifier: Apache-2.0
// zarvosheets: makes the sheets that the desktop program shows. See Request.h.
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <thread>

#include "Desk/model/Words.h"
#include "Desk/sheets/Queue.h"
#include "Desk/sheets/Request.h"
#include "Platform/Phrase.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/Convert.h"
#include "Tools/zarvo/system/DrawSheets.h"
#include "Tools/zarvo/system/Ghostscript.h"

namespace zarvo::desk {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

// The same as the filter's drawing helper has; whatever is started here inherits them.
constexpr rlim_t kProcessorSeconds = 60;
constexpr rlim_t kAddressSpace = rlim_t{3} << 29;
// From here on the pages that are looked at are drawn by themselves before all of them.
constexpr std::uint64_t kLongJob = 24;

void Answer(const json& line) {
  static std::mutex mutex;
  const std::lock_guard lock(mutex);
  const std::string text = line.dump(-1, ' ', false, json::error_handler_t::replace) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

void Stage(const char* what, std::uint64_t done = 0, std::uint64_t total = 0) {
  Answer({{"stage", what}, {"done", done}, {"total", total}});
}

/// Not to keep secrets by: for names of files that are made of the same things.
class Fingerprint {
 public:
  void Add(std::string_view bytes) {
    for (const char c : bytes) {
      value_ ^= static_cast<unsigned char>(c);
      value_ *= 0x100000001b3U;
    }
    value_ ^= bytes.size();
  }
  void AddFile(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<char> block(1 << 16);
    while (stream.read(block.data(), static_cast<std::streamsize>(block.size())) ||
           stream.gcount() > 0)
      Add({block.data(), static_cast<std::size_t>(stream.gcount())});
  }
  std::string text() const {
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(value_));
    return digits;
  }

 private:
  std::uint64_t value_ = 0xcbf29ce484222325U;
};

class Maker {
 public:
  Maker(SheetRequest request, const ScratchFolder& scratch)
      : request_(std::move(request)), scratch_(scratch) {}

  /// All that the request asks for; then, unless it was some pages only, serves further ones.
  Failure Run() {
    std::string document = request_.file;
    if (request_.ahead) {
      document = scratch_.File("cut.pdf");
      if (Failure failure = Cut(document); !failure.empty()) return failure;
    }
    if (Failure failure = Convert(document); !failure.empty()) return failure;
    tool::JobSource source = Source();
    source.file = converted_;
    source.options = request_.options;
    std::vector<tool::Complaint> complaints;
    Failure failure = tool::FilterJob(source, scratch_, &split_, &complaints);
    if (!failure.empty()) return failure;
    if (split_.files.empty()) return Phrase("the job holds no PostScript");
    report_ = tool::ReportOn(split_.facts);
    Fingerprint content;
    for (const std::string& file : split_.files) content.AddFile(file);
    content_ = content.text();
    if (request_.ahead && report_.job.postscript.pages != wanted_.size())
      return "not page by page";  // several pages on one, or a range of them
    TellPlan(complaints, request_.ahead ? cut_total_ : report_.job.postscript.pages);
    return request_.ahead ? DrawCut() : DrawWhole(complaints);
  }

 private:
  tool::JobSource Source() const {
    tool::JobSource source;
    source.title = request_.title;
    source.ppd = request_.ppd;
    source.copies = request_.copies;
    return source;
  }

  /// The first page and those that are wanted, as a document of their own. The first one is always
  /// there, because a watermark may be on it alone.
  Failure Cut(const std::string& output) {
    try {
      QPDF whole;
      whole.setSuppressWarnings(true);
      whole.processFile(request_.file.c_str());
      const std::vector<QPDFObjectHandle>& pages = whole.getAllPages();
      cut_total_ = pages.size();
      wanted_ = request_.pages;
      wanted_.push_back(1);
      std::sort(wanted_.begin(), wanted_.end());
      wanted_.erase(std::unique(wanted_.begin(), wanted_.end()), wanted_.end());
      std::erase_if(wanted_, [&](std::uint64_t page) { return page == 0 || page > pages.size(); });
      QPDF cut;
      cut.emptyPDF();
      for (const std::uint64_t page : wanted_)
        QPDFPageDocumentHelper(cut).addPage(pages[page - 1], false);
      QPDFWriter(cut, output.c_str()).write();
      return "";
    } catch (const std::exception& error) {
      return error.what();
    }
  }

  Failure Convert(const std::string& document) {
    Fingerprint made_of;
    struct stat status {};
    if (stat(request_.file.c_str(), &status) != 0) return std::strerror(errno);
    for (const std::string& text :
         {request_.file, std::to_string(status.st_mtim.tv_sec),
          std::to_string(status.st_mtim.tv_nsec), std::to_string(status.st_size), request_.ppd,
          request_.converter_options, std::to_string(request_.copies)})
      made_of.Add(text);
    for (const std::uint64_t page : wanted_) made_of.Add(std::to_string(page));
    converted_ = request_.cache + "/" + made_of.text() + ".ps";
    if (fs::exists(converted_)) return "";
    Stage("convert");
    tool::JobSource source = Source();
    source.file = document;
    source.options = request_.converter_options;
    const std::string made = scratch_.File("converted.ps");
    if (Failure failure = tool::ConvertJob(source, scratch_, made); !failure.empty())
      return failure;
    std::error_code error;
    fs::rename(made, converted_, error);
    return error ? error.message() : "";
  }

  void TellPlan(const std::vector<tool::Complaint>& complaints, std::uint64_t pages) {
    PlanReport plan;
    plan_ = tool::PlanSheets(report_, pages);
    plan.plan = plan_;
    plan.content = content_;
    plan.ahead = request_.ahead;
    plan.findings = tool::Findings(report_);
    plan.marks = tool::MarkWords(report_.job.postscript);
    for (const tool::PageNote& note : tool::NotesOn(report_)) {
      // Numbers to be dialled are masked here, so they would tell wrong ones.
      if (note.page == 1 && !note.text.starts_with("fax to")) plan.notes.push_back(note.text);
    }
    for (const tool::Complaint& complaint : complaints) {
      if (complaint.fault) plan.complaints.push_back(complaint.text);
    }
    Answer({{"plan", PlanToJson(plan)}});
  }

  Failure DrawCut() {
    pages_ = tool::DrawPages(
        split_, scratch_, [] {}, &report_.looks);
    if (pages_.size() != wanted_.size()) return Fault();
    // As the whole document numbers them.
    std::vector<tool::DrawnPage> all(cut_total_);
    for (std::size_t i = 0; i < wanted_.size(); ++i) all[wanted_[i] - 1] = pages_[i];
    pages_ = std::move(all);
    return Pictures(request_.pages, request_.dots);
  }

  Failure DrawWhole(const std::vector<tool::Complaint>& complaints) {
    const std::string drawn = request_.cache + "/" + content_;
    if (!LoadDrawn(drawn)) {
      std::jthread first;
      if (content_ != request_.known) first = DrawFirst();
      Stage("draw");
      std::uint64_t done = 0;
      pages_ = tool::DrawPages(
          split_, scratch_, [&] { Stage("draw", ++done, report_.job.postscript.pages); },
          &report_.looks);
      first = {};
      if (pages_.empty()) return Fault();
      KeepDrawn(drawn);
    }
    if (pages_.size() != plan_.pages) TellPlan(complaints, pages_.size());
    if (content_ == request_.known) {
      Answer({{"drawn", true}});
      return Serve();
    }
    if (Failure failure = Pictures(request_.pages, request_.dots); !failure.empty()) return failure;
    return Serve();
  }

  /// Draws the pages that are looked at while all of them are being drawn.
  std::jthread DrawFirst() {
    const std::vector<std::uint64_t>& pages = request_.pages;
    if (split_.files.size() != 1 || report_.job.postscript.pages < kLongJob || pages.empty() ||
        pages.back() > kLongJob)
      return {};
    return std::jthread([this, &pages] {
      tool::Drawing drawing;
      drawing.inputs = {split_.files[0]};
      drawing.device = "pdfwrite";
      drawing.output = scratch_.File("first.pdf");
      drawing.first = pages.front();
      drawing.last = pages.back();
      drawing.stop = true;
      drawing.page = [] {};
      tool::Draw(drawing, scratch_);
      const std::size_t count = tool::CountPdfPages(drawing.output);
      std::vector<tool::DrawnPage> drawn(pages.back());
      for (std::size_t i = 0; i < count && pages.front() - 1 + i < drawn.size(); ++i)
        drawn[pages.front() - 1 + i] = {drawing.output, i};
      Pictures(pages, drawn, request_.dots);
    });
  }

  Failure Fault() const {
    for (const tool::PageLook& look : report_.looks) {
      if (!look.fault.empty()) return Phrase("Ghostscript cannot draw the job: %1", {look.fault});
    }
    return Phrase("the printer would print no page of this job");
  }

  /// The pages that were drawn for an earlier request with the same content.
  bool LoadDrawn(const std::string& folder) {
    std::ifstream list(folder + "/pages");
    std::vector<tool::DrawnPage> pages;
    for (tool::DrawnPage page; list >> page.file >> page.page;) {
      page.file = folder + "/" + page.file;
      pages.push_back(page);
    }
    if (pages.empty()) return false;
    pages_ = std::move(pages);
    return true;
  }

  void KeepDrawn(const std::string& folder) {
    std::error_code error;
    fs::create_directory(folder, error);
    std::string list;
    std::string last;
    for (tool::DrawnPage& page : pages_) {
      const std::string name = fs::path(page.file).filename();
      if (name != last) fs::rename(page.file, folder + "/" + name, error);
      if (error) return;  // they stay where they are
      last = name;
      page.file = folder + "/" + name;
      list += name + " " + std::to_string(page.page) + "\n";
    }
    std::ofstream(folder + "/pages.new") << list;
    fs::rename(folder + "/pages.new", folder + "/pages", error);
  }

  Failure Pictures(const std::vector<std::uint64_t>& wanted, int dots) {
    Failure failure = Pictures(wanted, pages_, dots);
    Answer({{"drawn", true}});
    return failure;
  }

  Failure Pictures(const std::vector<std::uint64_t>& wanted,
                   const std::vector<tool::DrawnPage>& pages, int dots) {
    std::vector<tool::SheetSide> sides;
    std::vector<std::uint64_t> numbers;
    for (const std::uint64_t page : wanted) {
      if (page == 0 || page > pages.size() || pages[page - 1].file.empty()) continue;
      tool::SheetSide side;
      side.file = pages[page - 1].file;
      side.page = pages[page - 1].page;
      const auto planned = std::find_if(plan_.sides.begin(), plan_.sides.end(),
                                        [page](const auto& each) { return each.page == page; });
      if (planned != plan_.sides.end()) side.turn = planned->turn;
      sides.push_back(side);
      numbers.push_back(page);
    }
    return tool::DrawPictures(
        sides, 0, sides.size(), dots, scratch_, [&](std::size_t side, const std::string& picture) {
          const std::string kept = request_.cache + "/" + std::to_string(getpid()) + "-" +
                                   std::to_string(++pictures_) + ".png";
          std::error_code error;
          fs::rename(picture, kept, error);
          Answer({{"page", numbers[side]}, {"file", kept}, {"dots", dots}});
        });
  }

  Failure Serve() {
    for (std::string line; std::getline(std::cin, line);) {
      const json more = json::parse(line);
      std::vector<std::uint64_t> pages = more.at("pages");
      if (Failure failure = Pictures(pages, more.at("dots")); !failure.empty()) return failure;
    }
    return "";
  }

  SheetRequest request_;
  const ScratchFolder& scratch_;
  std::vector<std::uint64_t> wanted_;  // of a part of the document
  std::uint64_t cut_total_ = 0;
  std::string converted_;
  std::string content_;
  tool::PostScriptFiles split_;
  tool::JobReport report_;
  tool::SheetPlan plan_;
  std::vector<tool::DrawnPage> pages_;
  std::atomic<unsigned> pictures_ = 0;
};

int Main() {
  // Whoever asked is gone: so is this, and with it what it has started.
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  for (const auto& [resource, most] :
       {std::pair(RLIMIT_CPU, kProcessorSeconds), std::pair(RLIMIT_AS, kAddressSpace),
        std::pair(RLIMIT_CORE, rlim_t{0})}) {
#ifdef __SANITIZE_ADDRESS__
    if (resource == RLIMIT_AS) continue;  // the sanitizer reserves terabytes
#endif
    const rlimit limit{most, most};
    setrlimit(resource, &limit);
  }
  std::string line;
  if (!std::getline(std::cin, line)) return tool::kExitFailure;
  try {
    const json request = json::parse(line);
    if (request.contains("queues")) {
      Answer(DescribeQueues());
      return tool::kExitOk;
    }
    if (request.contains("texts")) {
      Answer({{"texts", TableTexts()}});
      return tool::kExitOk;
    }
    if (request.contains("defaults")) {
      Answer(DescribeDefaults(request.at("defaults"), request.at("saved")));
      return tool::kExitOk;
    }
    if (request.contains("queue")) {
      Answer(FetchQueue(request.at("queue"), request.at("ppd")));
      return tool::kExitOk;
    }
    const std::unique_ptr<ScratchFolder> scratch = tool::MakeScratchFolder();
    if (!scratch) {
      Answer(
          {{"failure", "no folder for temporary files can be made; let TMPDIR name another one"}});
      return tool::kExitFailure;
    }
    Maker maker(RequestFromJson(request), *scratch);
    if (const Failure failure = maker.Run(); !failure.empty()) {
      Answer({{"failure", failure}});
      return tool::kExitFailure;
    }
  } catch (const std::exception& error) {
    Answer({{"failure", error.what()}});
    return tool::kExitFailure;
  }
  return tool::kExitOk;
}

}  // namespace
}  // namespace zarvo::desk

int main() { return zarvo::desk::Main(); }
