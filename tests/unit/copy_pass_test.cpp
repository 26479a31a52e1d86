// SPDX-License-Identifier: Apache-2.0
// The copy pass looks for landmarks in large blocks. A plain reader that takes the job line by line
// must give the same bytes, whatever the job holds and however the blocks fall.
#include "CUPSFilter/CopyPass.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <thread>
#include <vector>

#include "tests/copy_reference.h"

namespace zarvo {
namespace {

class JobMaker {
 public:
  explicit JobMaker(unsigned seed) : random_(seed) {}

  Job Make() {
    Job job;
    MakeSettings(&job);
    const int pieces = Below(60);
    for (int i = 0; i < pieces; ++i) AddPiece(&job.bytes);
    return job;
  }

 private:
  int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  void MakeSettings(Job* job) {
    if (Below(2) == 0) {
      WatermarkChoice watermark;
      watermark.watermark_option = 1 + Below(3);
      watermark.watermarkFirstPageOnly = Below(2) == 0;
      std::snprintf(watermark.watermarkData.textString, 8, "Draft");
      job->settings.watermark = watermark;
    }
    if (Below(2) == 0) job->settings.zarvoJobPassword = "1234";
    job->settings.invertImage = Below(2) == 0;
    if (Below(2) == 0) {
      Dictionary job_type;
      job_type.emplace("JobType", Number(5));
      job->ticket.emplace("com.zarvo.print.JobType", std::move(job_type));
      Dictionary fax;
      fax.emplace("Resolution", Number(Below(4)));
      if (Below(3) != 0) job->ticket.emplace("com.zarvo.print.FaxOptions", std::move(fax));
      job->ticket.emplace("com.zarvo.print.FaxRecipientList", Array());
    }
  }

  void AddPiece(std::string* bytes) {
    static const std::vector<std::string> texts = {
        "%!PS-Adobe-3.0",
        "%!PS-Adobe-3.0 EPSF-3.0",
        "%!PS",
        "%%EOF",
        "%%EOFX",
        "@PJL COMMENT ZRVbegin",
        "%%BeginSetup",
        "%%EndSetup",
        "%%EndSetup with more text than a feature line has",
        "%%EndProlog",
        "%%BeginPageSetup",
        "ep",
        "endp",
        "e",
        "%",
        "@",
        "%%",
        "%!",
        "ep ",
        "%%BeginFeature: *ZRVJobType SecurePrint",
        "%%BeginFeature: *ZRVJobType SavedPrintX",
        "<< /HWResolution [300 300] >> setpagedevice",
        "0 0 moveto",
        "%%BeginData: 12 Hex Bytes",
        "%%BeginData: 9 ASCII",
        "%%BeginBinary: 0",
        "%%BeginBinary: -4",
        "",
        "%%BeginDocument: x %!PS-Adobe-3.0"};
    static const std::vector<std::string> ends = {"\n", "\n", "\n", "\r\n", "\r", "", "\n\r"};
    switch (Below(8)) {
      case 0:  // a line about as long as the rules look
        bytes->append(static_cast<std::size_t>(8170 + Below(40)), "xe%@\0"[Below(5)]);
        bytes->append(texts[static_cast<std::size_t>(Below(3))]);
        break;
      case 1: {  // counted data that looks like landmarks, sometimes short
        const int count = Below(40);
        bytes->append(Below(2) == 0 ? "%%BeginBinary: " : "%%BeginData: ");
        bytes->append(std::to_string(count) + (Below(2) == 0 ? "\n" : "\r\n"));
        std::string data = "\n%%EOF\nep\n%!PS-Adobe\r\n%%BeginPageSetup\n";
        bytes->append(data.substr(0, static_cast<std::size_t>(count)));
        break;
      }
      case 2:
        for (int i = Below(30); i > 0; --i) bytes->push_back(static_cast<char>(Below(256)));
        break;
      default:
        bytes->append(texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))]);
    }
    bytes->append(ends[static_cast<std::size_t>(Below(static_cast<int>(ends.size())))]);
  }

  std::minstd_rand random_;
};

TEST(CopyPass, GivesTheBytesOfALineByLineReader) {
  testing::internal::CaptureStderr();
  for (unsigned seed = 1; seed <= 1500; ++seed) {
    const Job job = JobMaker(seed).Make();
    const Copied expected = ByLines(job);
    for (const std::size_t block : {1u, 3u, 61u, 997u, 262144u}) {
      if (block < 10 && seed % 25 != 0) continue;  // slow, and rarely different from 61
      const Copied actual = ByBlocks(job, block);
      ASSERT_EQ(actual.result, expected.result) << "seed " << seed << " block " << block;
      ASSERT_EQ(actual.bytes, expected.bytes) << "seed " << seed << " block " << block;
    }
  }
  testing::internal::GetCapturedStderr();
}

TEST(CopyPass, CopiesEveryByteOfAJobWithoutLandmarks) {
  std::string bytes;
  for (int i = 0; i < 70000; ++i) bytes.push_back(static_cast<char>(i * 7 % 253));
  bytes.append(20000, 'x');
  for (const char* end : {"\r", "\n", "\r\n", ""}) {
    EXPECT_EQ(ByBlocks({bytes + end, {}, {}}, 4096).bytes, bytes + end);
  }
}

/// A job whose pieces are so large that the system moves them.
Job LargeJob() {
  std::string counted;
  for (int i = 0; i < 300000; ++i) counted.push_back(static_cast<char>(i * 31 % 256));
  std::string lines;
  for (int i = 0; i < 30000; ++i) lines += std::to_string(i) + " 0 moveto\n";
  return {"%!PS-Adobe-3.0\n" + lines + "%%BeginBinary: 300000\n" + counted + "%%BeginPageSetup\n" +
              lines + "ep\n%%BeginBinary: 300000\n" + counted + "\n" + lines + "%%EOF\n" + counted,
          {},
          {}};
}

TEST(CopyPass, LargePiecesComeInOrderFromFilesAndPipesIntoFilesAndPipes) {
  const Job job = LargeJob();
  const std::string expected = ByLines(job).bytes;
  EXPECT_EQ(ByBlocks(job, CopyPass::kBlockSize).bytes, expected);
  for (const bool from_pipe : {false, true}) {
    Stream in;
    Fill(in, job.bytes);
    int feed[2];
    int drain[2];
    ASSERT_EQ(pipe(feed), 0);
    ASSERT_EQ(pipe(drain), 0);
    std::thread feeder([&] {
      std::string_view rest = from_pipe ? job.bytes : std::string_view();
      while (!rest.empty()) {
        const ssize_t sent = write(feed[1], rest.data(), std::min<std::size_t>(rest.size(), 5000));
        rest.remove_prefix(static_cast<std::size_t>(sent));
      }
      close(feed[1]);
    });
    std::string received;
    std::thread drainer([&] {
      char piece[10000];
      for (ssize_t n = 0; (n = read(drain[0], piece, sizeof piece)) > 0;)
        received.append(piece, static_cast<std::size_t>(n));
    });
    FILE* out = fdopen(drain[1], "wb");
    JobOutput output(out);
    CopyRules rules(job.settings, job.ticket, output);
    CopyPass pass(from_pipe ? feed[0] : in.fd.get(), rules, output);
    EXPECT_EQ(pass.Run(), CopyResult::kDone);
    std::fclose(out);
    feeder.join();
    drainer.join();
    close(feed[0]);
    close(drain[0]);
    EXPECT_EQ(received == expected, true) << "from a pipe: " << from_pipe;
  }
}

TEST(CopyPass, CountedDataThatEndsEarlyIsToldOnLargePiecesToo) {
  const Job job{"%%BeginBinary: 900000\n" + std::string(400000, 'x'), {}, {}};
  const Copied copied = ByBlocks(job, CopyPass::kBlockSize);
  EXPECT_EQ(copied.result, CopyResult::kEarlyEnd);
  EXPECT_EQ(copied.bytes, job.bytes);
}

TEST(CopyPass, StopsAtTheFirstFailure) {
  const Job job{"%!PS\n" + std::string(1000000, 'x'), {}, {}};
  Stream in;
  Fill(in, job.bytes);
  FILE* full = std::fopen("/dev/full", "wb");
  JobOutput output(full);
  CopyRules rules(job.settings, job.ticket, output);
  CopyPass pass(in.fd.get(), rules, output, 4096);
  EXPECT_EQ(pass.Run(), CopyResult::kWriteFailed);
  EXPECT_EQ(pass.error(), ENOSPC);
  std::fclose(full);

  Stream out;
  JobOutput unused(out.file);
  CopyPass no_input(-1, rules, unused);
  EXPECT_EQ(no_input.Run(), CopyResult::kReadFailed);
  EXPECT_EQ(no_input.error(), EBADF);
}

}  // namespace
}  // namespace zarvo
