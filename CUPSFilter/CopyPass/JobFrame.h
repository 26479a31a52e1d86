// SPDX-License-Identifier: Apache-2.0
// What goes around the documents of one job.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

#include "CUPSFilter/JobOutput.h"
#include "Platform/Value.h"

namespace zarvo {

/// A document's bytes in a file.
struct DocumentRange {
  off_t begin;
  off_t end;
};

/// Writes one envelope ahead of the first document and its end after the last, unless the job has
/// an envelope itself. Of other PJL lines a job brings along, its settings go into the envelope;
/// the rest says again what the envelope says. The arguments are what DocumentShape tells apart;
/// `ticket` and `output` must outlive the object.
class JobFrame {
 public:
  /// `to_file`: the output is a file, and where the documents are in it will be asked for.
  JobFrame(const Dictionary& ticket, JobOutput& output, bool to_file)
      : ticket_(ticket), output_(output), to_file_(to_file) {}

  /// A line ahead of, between or after documents. It is kept until the next one tells what it is.
  void Keep(std::string_view line);
  /// The comment that begins the job's own envelope. Returns the job type.
  int CopyEnvelope(std::string_view line);
  /// Ahead of a document's first line. Returns what of that line belongs to the document.
  std::string_view BeginDocument(std::string_view line);
  /// The document goes on after all: what was kept is part of it. Returns whether a universal exit
  /// is among that, which ends the printer's job.
  bool GoOn();
  /// At the end of the job.
  void End();

  /// The document's first line comes next, after whatever the caller has put ahead of it.
  void NoteBegin();
  const std::vector<DocumentRange>& ranges() const { return ranges_; }

  int documents() const { return documents_; }

 private:
  void NoteEnd();
  off_t Position();

  const Dictionary& ticket_;
  JobOutput& output_;
  bool to_file_;
  std::vector<DocumentRange> ranges_;
  std::string kept_;
  int documents_ = 0;
  bool own_envelope_ = false;
  bool own_end_ = false;
};

}  // namespace zarvo
