// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/FaxCover/PdfToPostScript.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "Platform/Process.h"
#include "tests/unit/transcript.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;

/// Converters that are shell scripts.
class PdfToPostScript : public testing::Test {
 protected:
  PdfToPostScript() {
    folder_ = ::mkdtemp((fs::temp_directory_path() / "converters.XXXXXX").string().data());
    converters_.filter_folder = folder_;
    converters_.poppler = folder_ / "poppler";
    converters_.limit = std::chrono::milliseconds(500);
  }
  ~PdfToPostScript() override { fs::remove_all(folder_); }

  void Install(const char* name, const std::string& script) const {
    std::ofstream(folder_ / name) << "#!/bin/sh\n" << script << "\n";
    fs::permissions(folder_ / name, fs::perms::owner_all);
  }

  /// What the converters make of a file with the content "PDF"; `failure_` says why they failed.
  std::string Convert() {
    const UniqueFd pdf = OpenMemoryFile("PDF");
    return CollectOutput([&](FILE* document) {
      failure_ = ConvertPdfToPostScript(pdf.get(), converters_, document);
    });
  }

  fs::path folder_;
  PdfConverters converters_;
  std::string failure_;
};

TEST_F(PdfToPostScript, HandsTheFileThroughBothFilters) {
  Install("pdftops", R"(cat "$6"; printf ' %s' "$@")");
  Install("pstops", R"(printf 'x%%!PS-Adobe-3.0\n'; cat; printf '\n%s' "$*")");
  EXPECT_EQ(Convert(),
            "x%!PS-Adobe-3.0\nPDF 1 Zarvo FaxCover 1 media=Letter /dev/fd/0\n"
            "1 Zarvo FaxCover 1 media=Letter");
  EXPECT_EQ(failure_, "");
}

TEST_F(PdfToPostScript, FallsBackToTheOneProgram) {
  Install("pdftops", "exit 1");
  Convert();
  EXPECT_NE(failure_.find("install the package cups-filters or poppler-utils"), failure_.npos);
  Install("poppler", R"(echo '%!PS-Adobe-3.0'; cat "$2"; echo " $*")");
  EXPECT_EQ(Convert(), "%!PS-Adobe-3.0\nPDF -level3 /dev/fd/0 -\n");
  EXPECT_EQ(failure_, "");
}

TEST_F(PdfToPostScript, CopiesFromTheHeaderToTheEnd) {
  const std::pair<std::string, std::string> rows[] = {
      {"log\n%!PS-Adobe-2.0\n", "%!PS-Adobe-3.0\na\r\nb\r%%EOF\n"},
      {"", "%!PS-Adobe-3.0\n1 (%%EOF)/SubFileDecode filter\nx %%EOF y\n"},
  };
  for (const auto& [before, document] : rows) {
    for (const char* after : {"", "rest\n%%EOF\n"}) {
      std::ofstream(folder_ / "printed") << before << document << after;
      Install("poppler", "cat \"$(dirname \"$0\")/printed\"");
      EXPECT_EQ(Convert(), document);
      EXPECT_EQ(failure_, "");
    }
  }
  Install("poppler", "printf '%%!PS-Adobe-3.0\nno end'");
  EXPECT_EQ(Convert(), "%!PS-Adobe-3.0\nno end");
}

TEST_F(PdfToPostScript, SaysWhichConverterFailedAndHow) {
  constexpr char kGood[] = "cat; echo '%!PS-Adobe-3.0'; echo '%%EOF'";
  const std::array<const char*, 3> rows[] = {
      {"kill -SEGV $$", kGood, "/pdftops was ended by signal 11"},
      {"echo x; exit 3", kGood, "/pdftops ended with status 3"},
      {"exec yes", "exit 4", "/pstops ended with status 4"},
      {"while echo y; do sleep 0.01; done", kGood, "/pdftops did not finish in time"},
      {"exec sleep 60", kGood, "/pdftops did not finish in time"},
      {"sleep 60; true", kGood, "/pdftops did not finish in time"},
      {"exec >&-; exec sleep 60", kGood, "/pdftops was ended by signal 9"},
      {"exec head -c 100000 /dev/urandom", "exec cat", "wrote no PostScript document"},
      {"true", "true", "wrote no PostScript document"},
  };
  for (const auto& [pdftops, pstops, expected] : rows) {
    Install("pdftops", pdftops);
    Install("pstops", pstops);
    const auto start = std::chrono::steady_clock::now();
    Convert();
    EXPECT_NE(failure_.find(expected), failure_.npos) << failure_;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  }
}

}  // namespace
}  // namespace zarvo
