// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/PdfToPostScript.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "Platform/Process.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Converters that are shell scripts.
class PdfToPostScript : public testing::Test {
 protected:
  PdfToPostScript() {
    std::string pattern = (fs::temp_directory_path() / "converters.XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
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
    char* text = nullptr;
    std::size_t size = 0;
    FILE* document = open_memstream(&text, &size);
    failure_ = ConvertPdfToPostScript(pdf.get(), converters_, document);
    std::fclose(document);
    const std::unique_ptr<char, decltype(&std::free)> owner(text, &std::free);
    return {text, size};
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
  EXPECT_THAT(failure_, HasSubstr("install the package cups-filters or poppler-utils"));
  Install("poppler", R"(echo '%!PS-Adobe-3.0'; cat "$2"; echo " $*")");
  EXPECT_EQ(Convert(), "%!PS-Adobe-3.0\nPDF -level3 /dev/fd/0 -\n");
  EXPECT_EQ(failure_, "");
}

TEST_F(PdfToPostScript, CopiesFromTheHeaderToTheEnd) {
  const struct {
    const char* printed;
    const char* expected;
  } cases[] = {
      {R"(log\n%%!PS-Adobe-2.0\n%%!PS-Adobe-3.0\na\r\nb\r%%%%EOF\nrest\n%%%%EOF\n)",
       "%!PS-Adobe-3.0\na\r\nb\r%%EOF\n"},
      {R"(%%!PS-Adobe-3.0\n1 (%%%%EOF)/SubFileDecode filter\nx %%%%EOF y\nz\n)",
       "%!PS-Adobe-3.0\n1 (%%EOF)/SubFileDecode filter\nx %%EOF y\n"},
      {R"(%%!PS-Adobe-3.0\nno end)", "%!PS-Adobe-3.0\nno end"},
  };
  for (const auto& one : cases) {
    Install("poppler", "printf '" + std::string(one.printed) + "'");
    EXPECT_EQ(Convert(), one.expected);
    EXPECT_EQ(failure_, "");
  }
}

TEST_F(PdfToPostScript, SaysWhichConverterFailedAndHow) {
  constexpr char kGood[] = "cat; echo '%!PS-Adobe-3.0'; echo '%%EOF'";
  const struct {
    const char* pdftops;
    const char* pstops;
    const char* expected;
  } cases[] = {
      {"kill -SEGV $$", kGood, "/pdftops was ended by signal 11"},
      {"echo x; exit 3", kGood, "/pdftops ended with status 3"},
      {"exec yes", "exit 4", "/pstops ended with status 4"},
      {"exec yes", kGood, "/pdftops did not finish in time"},
      {"exec sleep 60", kGood, "/pdftops did not finish in time"},
      {"sleep 60; true", kGood, "/pdftops did not finish in time"},
      {"exec head -c 100000 /dev/urandom", "exec cat", "wrote no PostScript document"},
      {"true", "true", "wrote no PostScript document"},
  };
  for (const auto& one : cases) {
    Install("pdftops", one.pdftops);
    Install("pstops", one.pstops);
    const auto start = std::chrono::steady_clock::now();
    Convert();
    EXPECT_THAT(failure_, HasSubstr(one.expected));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  }
}

}  // namespace
}  // namespace zarvo
