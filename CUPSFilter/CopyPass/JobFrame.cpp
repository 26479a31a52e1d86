// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/CopyPass/JobFrame.h"

#include <unistd.h>

#include <algorithm>

#include "CUPSFilter/CopyPass/DocumentShape.h"
#include "CUPSFilter/Header/Envelope.h"
#include "Platform/Log.h"

namespace zarvo {
namespace {

/// More than any driver writes between documents.
constexpr std::size_t kMostKept = 64 * 1024;
/// Nobody sends as many documents at once; of a job that does, the rest counts as one.
constexpr std::size_t kMostRanges = 1000;

/// The PJL lines of `kept` that set something for the job.
std::string Settings(std::string_view kept) {
  std::string settings;
  while (!kept.empty()) {
    std::string_view line = kept.substr(0, kept.find_first_of("\r\n"));
    kept.remove_prefix(std::min(line.size() + 1, kept.size()));
    line.remove_prefix(LeadLength(line));
    if (line.starts_with("@PJL SET ") || line.starts_with("@PJL COMMENT "))
      settings.append(line).append("\n");
  }
  return settings;
}

}  // namespace

void JobFrame::Keep(std::string_view line) {
  if (own_envelope_) {
    own_end_ = own_end_ || line.find("@PJL EOJ") != line.npos;
    output_.Write(line);
    return;
  }
  if (kept_.size() + line.size() > kMostKept) {
    if (documents_ > 0) output_.Write(kept_);
    kept_.clear();
  }
  kept_ += line;
}

int JobFrame::CopyEnvelope(std::string_view line) {
  if (documents_ > 0 && !own_envelope_) {
    Keep(line);
    return 0;
  }
  LogLine("DEBUG: found PJL header");
  output_.Write(kept_);
  kept_.clear();
  own_envelope_ = true;
  own_end_ = false;
  output_.Write(line);
  return WriteOwnComments(output_.stream(), ticket_);
}

std::string_view JobFrame::BeginDocument(std::string_view line) {
  NoteEnd();
  const std::size_t lead = LeadLength(line);
  if (lead > 0) Keep(line.substr(0, lead));
  if (documents_++ > 0 && kept_.find(kUniversalExit) != kept_.npos) {
    output_.Write(kUniversalExit);
    output_.Write("@PJL ENTER LANGUAGE = POSTSCRIPT\n");
  } else if (documents_ > 1) {
    output_.Write(kept_);
  } else if (!own_envelope_) {
    WriteEnvelopeStart(output_.stream(), ticket_, Settings(kept_));
  }
  kept_.clear();
  return line.substr(lead);
}

bool JobFrame::GoOn() {
  const bool exits = kept_.find(kUniversalExit) != kept_.npos;
  output_.Write(kept_);
  kept_.clear();
  return exits;
}

void JobFrame::End() {
  NoteEnd();
  if (documents_ == 0)
    output_.Write(kept_);
  else if (!own_end_)
    WriteEnvelopeEnd(output_.stream());
  kept_.clear();
}

void JobFrame::NoteBegin() {
  if (to_file_ && ranges_.size() < kMostRanges) ranges_.push_back({Position(), 0});
}

void JobFrame::NoteEnd() {
  if (!ranges_.empty()) ranges_.back().end = Position();
}

off_t JobFrame::Position() {
  output_.Flush();
  return lseek(fileno(output_.stream()), 0, SEEK_CUR);
}

}  // namespace zarvo
