// SPDX-License-Identifier: Apache-2.0
// The copy pass against a plain line-by-line reader: both give the same bytes and the same result,
// whatever the block size. The settings are in the first two bytes, so that all of them are met.
#include "tests/copy_reference.h"
#include "fuzz/target.h"

namespace zarvo {
namespace {

void SetUp(unsigned bits, Job* job) {
  if ((bits & 3) != 0) {
    WatermarkChoice watermark;
    watermark.watermark_option = static_cast<int>(bits & 3);
    watermark.watermarkFirstPageOnly = (bits & 4) != 0;
    watermark.watermarkData.textString[0] = (bits & 8) != 0 ? 'X' : '\0';
    job->settings.watermark = watermark;
  }
  if ((bits & 16) != 0) job->settings.zarvoJobPassword = "1234";
  job->settings.invertImage = (bits & 32) != 0;
  job->settings.pageHooks = (bits & 7) == 7;  // a foreground mark, on the first page only
  if ((bits & 64) == 0) return;
  Dictionary job_type;
  job_type.emplace("JobType", Number(5));
  job->ticket.emplace("com.zarvo.print.JobType", std::move(job_type));
  Dictionary fax;
  fax.emplace("Resolution", Number(1));
  if ((bits & 128) != 0) job->ticket.emplace("com.zarvo.print.FaxOptions", std::move(fax));
  job->ticket.emplace("com.zarvo.print.FaxRecipientList", Array());
}

}  // namespace
}  // namespace zarvo

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  if (size < 2) return 0;
  Job job;
  SetUp(data[0], &job);
  const std::size_t block = data[1] < 250 ? std::size_t{data[1]} + 1 : 8192u + data[1];
  job.bytes = AsText(data + 2, size - 2);
  const Copied expected = ByLines(job);
  const Copied actual = ByBlocks(job, block);
  Require(actual.result == expected.result);
  Require(actual.bytes == expected.bytes);
  return 0;
}
