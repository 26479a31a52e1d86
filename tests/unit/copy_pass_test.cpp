// SPDX-License-Identifier: Apache-2.0
// The copy pass looks for landmarks in large blocks. A plain reader that takes the job line by line
// must give the same bytes, whatever the job holds and however the blocks fall.
#include "CUPSFilter/CopyPass/CopyPass.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "tests/copy_reference.h"

namespace zarvo {
namespace {

/// The texts that decoders look for, those that need no escapes.
std::vector<std::string> Words() {
  std::vector<std::string> words = {""};
  std::ifstream file(ZARVO_SOURCE_DIR "/fuzz/words.dict");
  for (std::string line; std::getline(file, line);)
    if (line.starts_with('"') && line.find('\\') == line.npos)
      words.push_back(line.substr(1, line.size() - 2));
  return words;
}

const std::vector<std::string> kWords = Words();
const std::string kEnds[] = {"\n", "\n",   "\n",     "\r\n",          "\r",
                             "",   "\n\r", "\n\x04", "\n\x1b%-12345X"};

/// A job of random pieces and settings.
class JobMaker {
 public:
  explicit JobMaker(unsigned seed) : random_(seed) {}

  Job Make() {
    Job job;
    if (Below(2) == 0) {
      job.settings.watermark.emplace();
      job.settings.watermark->watermark_option = 1 + static_cast<int>(Below(3));
      job.settings.watermark->watermarkFirstPageOnly = Below(2) == 0;
      std::snprintf(job.settings.watermark->watermarkData.textString, 8, "Draft");
    }
    if (Below(2) == 0) job.settings.zarvoJobPassword = "1234";
    job.settings.invertImage = Below(2) == 0;
    job.settings.pageHooks = Below(2) == 0;
    if (Below(2) == 0) {
      const Dictionary fax = {{"Resolution", Number(static_cast<int>(Below(4)))}};
      job.ticket = {{"com.zarvo.print.JobType", Dictionary{{"JobType", Number(5)}}},
                    {"com.zarvo.print.FaxRecipientList", Array()}};
      if (Below(3) != 0) job.ticket.emplace("com.zarvo.print.FaxOptions", fax);
    }
    for (std::size_t pieces = Below(60); pieces > 0; --pieces)
      job.bytes += Piece() + kEnds[Below(std::size(kEnds))];
    return job;
  }

 private:
  std::size_t Below(std::size_t n) { return random_() % n; }

  std::string Piece() {
    const std::string data = "\n%%EOF\nep\n%!PS-Adobe\r\n%%BeginPageSetup\n";
    const std::size_t count = Below(data.size() + 2);
    std::string noise(Below(30), '\0');
    for (char& byte : noise) byte = static_cast<char>(Below(256));
    switch (Below(8)) {
      case 0:  // a line about as long as the rules look
        return std::string(8170 + Below(40), "xe%@\0"[Below(5)]) + kWords[1 + Below(2)];
      case 1:  // counted data that looks like landmarks, sometimes short
        return (Below(2) == 0 ? "%%BeginBinary: " : "%%BeginData: ") + std::to_string(count) +
               (Below(2) == 0 ? "\n" : "\r\n") + data.substr(0, count);
      case 2:
        return noise;
      default:
        return kWords[Below(kWords.size())];
    }
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

// Pieces so large that the system moves them.
TEST(CopyPass, LargePiecesComeInOrderFromFilesAndPipesIntoFilesAndPipes) {
  std::string counted;
  for (int i = 0; i < 300000; ++i) counted.push_back(static_cast<char>(i * 31 % 256));
  std::string lines;
  for (int i = 0; i < 30000; ++i) lines += std::to_string(i) + " 0 moveto\n";
  const std::string whole = "%!PS-Adobe-3.0\n" + lines + "%%BeginBinary: 300000\n" + counted +
                            "%%BeginPageSetup\n" + lines + "ep\n%%BeginBinary: 300000\n" + counted +
                            "\n" + lines + "%%EOF\n" + counted;
  const auto name = [](const Stream& stream) {
    return "/proc/self/fd/" + std::to_string(stream.fd.get());
  };
  for (const Job& job : {Job{whole, {}, {}}, Job{"%%BeginBinary: 900000\n" + counted, {}, {}}}) {
    const Copied expected = ByLines(job);
    for (const bool from_pipe : {false, true}) {
      for (const bool to_pipe : {false, true}) {
        Stream in, out;
        Fill(in, job.bytes);
        FILE* feeder = popen(("dd status=none bs=5000 if=" + name(in)).c_str(), "r");
        FILE* drain = to_pipe ? popen(("cat >" + name(out)).c_str(), "w") : out.file;
        JobOutput output(drain);
        CopyRules rules(job.settings, job.ticket, output);
        CopyPass pass(from_pipe ? fileno(feeder) : in.fd.get(), rules, output);
        EXPECT_EQ(pass.Run(), expected.result);
        pclose(feeder);
        if (to_pipe) pclose(drain);
        EXPECT_TRUE(out.Content() == expected.bytes) << from_pipe << to_pipe;
      }
    }
  }
}

}  // namespace
}  // namespace zarvo
