// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Header/Envelope.h"

#include "CUPSFilter/Header/AccountingComments.h"
#include "CUPSFilter/Header/BannerComments.h"
#include "CUPSFilter/Header/CoverComments.h"
#include "CUPSFilter/Header/JobTypeComments.h"

namespace zarvo {

void WriteEnvelopeStart(FILE* output, const Dictionary& ticket, std::string_view settings) {
  std::fprintf(output, "%s@PJL JOB\n@PJL COMMENT ZRVbegin\n", kUniversalExit.data());
  WriteOwnComments(output, ticket);
  WriteBannerPage(output, ticket);
  WriteRequestOffset(output, ticket);
  std::fputs("@PJL COMMENT ZRVend\n", output);
  if (!settings.empty()) std::fwrite(settings.data(), 1, settings.size(), output);
  std::fputs("@PJL ENTER LANGUAGE = POSTSCRIPT\n", output);
}

void WriteEnvelopeEnd(FILE* output) {
  std::fprintf(output, "%s@PJL EOJ\n%s\n", kUniversalExit.data(), kUniversalExit.data());
}

int WriteOwnComments(FILE* output, const Dictionary& ticket) {
  WriteAccounting(output, ticket);
  const int job_type = WriteJobType(output, ticket);
  WriteCovers(output, ticket);
  WriteSeparators(output, ticket);
  return job_type;
}

}  // namespace zarvo
