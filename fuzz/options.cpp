// SPDX-License-Identifier: Apache-2.0
// Option text to ticket, and the ticket to everything that is written ahead of the job. However
// the texts are chosen, the header is made of whole known lines and the XML ticket holds no
// character that ends it.
#include <algorithm>
#include <cstdio>

#include "CUPSFilter/CopyPass/CopyRules.h"
#include "CUPSFilter/JTML/JTML.h"
#include "fuzz/target.h"
#include "fuzz/ticket.h"

namespace zarvo {
namespace {

/// A stream into memory.
class MemoryStream {
 public:
  MemoryStream() : stream_(open_memstream(&bytes_, &size_)) {}
  MemoryStream(const MemoryStream&) = delete;
  MemoryStream& operator=(const MemoryStream&) = delete;
  ~MemoryStream() {
    std::fclose(stream_);
    std::free(bytes_);
  }
  FILE* get() const { return stream_; }
  std::string_view Content() {
    std::fflush(stream_);
    return {bytes_, size_};
  }

 private:
  char* bytes_ = nullptr;
  std::size_t size_ = 0;
  FILE* stream_;
};

bool IsHeaderLine(std::string_view line) {
  for (const char* start :
       {"@PJL COMMENT OID_ATT_", "@PJL SET JOBOFFSET=", "@PJL COMMENT ZRV", "%!PS-Adobe",
        "\x1b%-12345X@PJL JOB", "@PJL ENTER LANGUAGE = POSTSCRIPT"}) {
    if (line.starts_with(start)) return true;
  }
  return false;
}

void CheckHeader(std::string_view header) {
  while (!header.empty()) {
    const std::string_view line = header.substr(0, header.find('\n'));
    header.remove_prefix(std::min(header.size(), line.size() + 1));
    // (The scrambled password is whatever the scrambling gives.)
    if (line.find("OID_ATT_JOB_PASSWORD") != line.npos) return;
    Require(IsHeaderLine(line));
    Require(line.find_first_of("\r\f\x1b", 1) == line.npos);
  }
}

void CheckXml(std::string_view xml) {
  for (const char c : xml)
    Require(static_cast<unsigned char>(c) >= 32 || c == '\n' || c == '\t' || c == '\r');
}

}  // namespace
}  // namespace zarvo

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  std::string_view input = AsText(data, size);
  const FuzzedTicket job = DecodeTicket(TakeOptions(&input));
  MemoryStream header;
  JobOutput output(header.get());
  CopyRules rules(job.settings, job.ticket, output);
  rules.Apply(Landmark::kDocumentHeader, "%!PS-Adobe-3.0\n");
  CheckHeader(header.Content());
  MemoryStream xml;
  WriteJTML(xml.get(), job.ticket);
  CheckXml(xml.Content());
  return 0;
}
