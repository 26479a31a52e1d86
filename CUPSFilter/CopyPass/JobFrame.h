// SPDX-License-Identifier: Apache-2.0
// What goes around the documents of one job.
#pragma once

#include <string>
#include <string_view>

#include "CUPSFilter/JobOutput.h"
#include "Platform/Value.h"

namespace zarvo {

/// Writes one envelope ahead of the first document and its end after the last, unless the job has
/// an envelope itself. Of other PJL lines a job brings along, its settings go into the envelope;
/// the rest says again what the envelope says. The arguments are what DocumentShape tells apart;
/// `ticket` and `output` must outlive the object.
class JobFrame {
 public:
  JobFrame(const Dictionary& ticket, JobOutput& output) : ticket_(ticket), output_(output) {}

  /// A line ahead of, between or after documents. It is kept until the next one tells what it is.
  void Keep(std::string_view line);
  /// The comment that begins the job's own envelope. Returns the job type.
  int CopyEnvelope(std::string_view line);
  /// Ahead of a document's first line. Returns what of that line belongs to the document.
  std::string_view BeginDocument(std::string_view line);
  /// The document goes on after all: what was kept is part of it.
  void GoOn();
  /// At the end of the job.
  void End();

  int documents() const { return documents_; }

 private:
  const Dictionary& ticket_;
  JobOutput& output_;
  std::string kept_;
  int documents_ = 0;
  bool own_envelope_ = false;
  bool own_end_ = false;
};

}  // namespace zarvo
