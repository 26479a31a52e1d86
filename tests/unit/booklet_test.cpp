// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "CUPSFilter/Booklet/BookletCopier.h"
#include "CUPSFilter/Booklet/CommentReader.h"
#include "CUPSFilter/Booklet/q7bbook32.h"
#include "CUPSFilter/CopyPass/psgets.h"
#include "Platform/UniqueFd.h"
#include "tests/unit/transcript.h"

namespace zarvo {

extern const std::string_view BookletProcset;

namespace {

using namespace std::literals;
using Vars = BookletVars;

/// A file without a name.
struct Spool {
  explicit Spool(const std::string& text = "") { std::ofstream(path) << text; }
  FilePtr Open() const { return FilePtr(std::fopen(path.c_str(), "rb")); }
  std::string Content() const {
    return (std::ostringstream() << std::ifstream(path).rdbuf()).str();
  }

  UniqueFd fd{memfd_create("spool", 0)};
  std::string path = "/proc/self/fd/" + std::to_string(fd.get());
};

/// The lines that psgets() finds with a buffer of this size.
std::vector<std::string> Lines(const std::string& text, unsigned long room) {
  const Spool spool(text);
  const FilePtr file = spool.Open();
  std::vector<std::string> lines;
  std::vector<char> buffer(room);
  for (unsigned long size = room; psgets(buffer.data(), &size, file.get()) != nullptr;
       size = room) {
    EXPECT_EQ(buffer[size], '\0');
    lines.emplace_back(buffer.data(), size);
  }
  return lines;
}

TEST(PsGets, EndsLinesAsTheySay) {
  const struct {
    std::string text;
    std::vector<std::string> lines;
  } cases[] = {
      {"", {}},
      {"ab\ncd\r\n\re\0f\0"s, {"ab\n", "cd\r\n", "\r", "e\0f\0"s}},
      {"a\r", {"a\r"}},
      {"1234567\n", {"1234567", "\n"}},          // no room for the end
      {"123456\r\nx", {"123456\r", "\n", "x"}},  // room for half of it
      {"12345\r\nx", {"12345\r\n", "x"}},
      {"1234567\r\nx", {"1234567", "\r\n", "x"}},
  };
  for (const auto& c : cases) EXPECT_EQ(Lines(c.text, 8), c.lines) << c.text;
}

template <class... Texts>
std::string_view OneOf(std::mt19937& random, Texts... texts) {
  const std::string_view all[] = {texts...};
  return all[random() % std::size(all)];
}

/// Bytes of the kinds that matter to line readers, with long lines and long blanks now and then.
std::string RandomText(std::mt19937& random, std::size_t size) {
  std::string text;
  while (text.size() < size) {
    if (random() % 9 == 0)
      text.append(random() % 2 ? 300 : 1022 + random() % 2, " x"[random() % 2]);
    text += OneOf(random, "\n", "\r", "\r\n", "%", " ", "\x04", "abc", "\0"sv, "%%EOF\n",
                  " %%EOF\n", "%%EOF\0\n"sv, "%%Page:", " %%Page: 9 9\n", "%%BeginDocument: x\n",
                  "%%EndDocument\n", "%%Trailer\n", "%%PageTrailer\r\n", "%%BeginPageSetup\n");
  }
  return text;
}

TEST(CommentReader, SkipsNoCommentThatAPlainReaderFinds) {
  std::mt19937 random(4);
  for (int round = 0; round < 8; ++round) {
    const std::string job = RandomText(random, 300000);
    const Spool spool(job);
    CommentReader reader(spool.path.c_str());
    char fast_line[CommentReader::kLineSize];
    off_t position = 0;
    for (const std::string& line : Lines(job, CommentReader::kLineSize)) {
      position += static_cast<off_t>(line.size());
      const std::size_t start = line.find_first_not_of(" \t\n\v\f\r\x04");
      if (start == line.npos || line[start] != '%') continue;
      do {
        reader.SkipToComment();
        ASSERT_TRUE(reader.ReadLine(fast_line));
      } while (reader.Tell() < position);
      ASSERT_EQ(reader.Tell(), position);
      ASSERT_EQ(line, std::string_view(fast_line, line.size()));
    }
  }
}

/// The comments that the copier finds in a job with blocks of this size, and all the text.
std::pair<std::vector<std::string>, std::string> Copy(const std::string& job, std::size_t block) {
  const Spool spool(job);
  const FilePtr file = spool.Open();
  Vars v;
  v.pBlock.resize(block);
  std::vector<std::string> comments;
  std::string text = CollectOutput([&](std::FILE* output) {
    v.hPrinter = output;
    for (int start = 1; xWritePdlUntilNextDSC(&v, file.get(), start) > 0 && !v.bEndOfFile;
         start = 0)
      std::fputs(comments.emplace_back(v.szDsc).c_str(), output);
  });
  return {comments, text};
}

TEST(BookletCopier, StopsAtCommentLinesWhateverTheBlocks) {
  const std::string most = "%" + std::string(254, 'c');
  struct Case {
    std::string text;
    std::vector<std::string> comments;
    std::string dropped = {};
  };
  std::vector<Case> cases = {
      {"%a\nb\n%c\r\n%d\r%e\n\n%f\nx", {"%a\n", "%c\r\n", "%d\r", "%e\n\n", "%f\n"}},
      {" %a\nx%b\n", {}},
      {most + "\nx", {most + "\n"}},
      {most + "c\nx", {}},
      {"%a\0b\n%c\nx"s, {"%c\n"}},
      {"%a\n%last", {"%a\n"}, "%last"},
      {"%a\n%last\n", {"%a\n"}, "%last\n"},  // its end is not certain
  };
  std::mt19937 random(5);
  for (int round = 0; round < 20; ++round) {
    const std::string job = RandomText(random, 20000) + "\nend";
    cases.push_back({job, Copy(job, 131072).first});
  }
  for (const Case& c : cases) {
    for (const std::size_t block : {131072, 4096, 7, 1}) {
      const auto [comments, text] = Copy(c.text, block);
      EXPECT_EQ(comments, c.comments) << "block of " << block;
      EXPECT_EQ(text + c.dropped, c.text) << "block of " << block;
    }
  }
}

/// The record as the driver fills it, for a booklet or something else on Letter paper.
Vars Filled(int booklet, int duplex = 1, int reverse = 0, int paper_saver = 0, int mode = 1) {
  Vars v;
  v.dmDuplex = duplex;
  v.bDoBooklet = booklet;
  v.bDoAutoPaperSaver = paper_saver;
  v.bDoReversePgOrder = reverse;
  v.bForceCollateOn = 1;
  v.iDestXPoints = 612;
  v.iDestYPoints = 792;
  v.iDestXMargPoints = 12;
  v.iDestYMargPoints = 13;
  v.iGutterPoints = 24;
  v.iPageletsPerPage = 2;
  v.iMode = mode;
  return v;
}

/// The result and the imposed job. A pipe takes long texts without looking at them.
std::string Imposed(Vars v, const std::string& job, bool into_pipe = false) {
  const Spool spool(job), output;
  v.pwstrPSFileIn = spool.path.c_str();
  v.hPrinter = into_pipe ? popen(("cat >" + output.path).c_str(), "w")
                         : std::fopen(output.path.c_str(), "wb");
  std::string text = "result " + std::to_string(xPostProcessAndRespoolJob(&v)) + "\n";
  into_pipe ? pclose(v.hPrinter) : std::fclose(v.hPrinter);
  EXPECT_TRUE(v.pBlock.empty() && v.aPageFilePos.empty() && v.adwPageSize.empty());
  text += output.Content();
  const std::size_t procset = text.find(BookletProcset);
  if (procset != text.npos) text.replace(procset, BookletProcset.size(), "(procset)\n");
  return text;
}

std::string Head(const std::string& setup = "") {
  return "%!PS-Adobe-3.0\n%%EndComments\n%%BeginProlog\nprolog\n%%EndProlog\n%%BeginSetup\n" +
         setup + "%%EndSetup\n";
}

std::string Page(int number, const std::string& setup = "", const std::string& body = "") {
  const std::string n = std::to_string(number);
  return "%%Page: " + n + " " + n + "\n%%BeginPageSetup\n" + setup + "%%EndPageSetup\n" + body +
         "(" + n + ") showpage\n";
}

std::string Pages(int last, int first = 1) {
  std::string pages;
  for (int page = first; page <= last; ++page) pages += Page(page);
  return pages;
}

std::string Size(int width, int height) {
  return "<< /PageSize [" + std::to_string(width) + " " + std::to_string(height) +
         "] >> setpagedevice\n";
}

const std::string kTail = "%%Trailer\nend\n%%EOF\n\x1b%-12345X@PJL EOJ\n";
const std::string kSeparator = "%!PS-Adobe-3.0 ZRV Separator File End Job Begin\r\n";

TEST(Booklet, RespoolsEveryJobInEveryLayout) {
  Vars everything = Filled(1, 1, 0, 0, 2);
  everything.iOverrideNumCopies = 3;
  everything.iCreep10thPoints = 35;
  everything.bRightToLeft = 1;
  everything.bRotBooklet180 = 1;
  everything.iOutlineStyle = 1;
  everything.bInclInsertedBlanksWhenOutlining = 1;
  everything.bTryToUsePg1SizeFromPS = 1;
  Vars binders = Filled(1);
  binders.bChk4BadMSBinderPS = 1;
  const std::string letters = Head(Size(612, 792));
  const std::string empty_page = "%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n";
  const std::string document = "%%BeginDocument: a.eps\n%!PS-Adobe-3.0 EPSF-3.0\n" + Size(9, 9);
  const struct {
    const char* name;
    std::string job;
    Vars vars = Filled(0, 1, 1);  // the last page first, one on each sheet: little besides the job
  } cases[] = {
      {"five pages",
       letters + Page(1) + Page(2, Size(595, 842)) + Page(3) + Page(4) + Page(5, Size(1, 2)) +
           kTail,
       Filled(1)},
      {"every field", letters + Page(1, Size(595, 842)) + Pages(5, 2) + kTail, everything},
      {"embedded documents, comments and line ends",
       letters + "%%Page: 1 1\r\n%%Extra\r\n\n%%BeginPageSetup\r\n%%EndPageSetup\r\n" + document +
           "%%Page: 9 9\n%%EOF\n%%BeginDocument\n%%EndDocument\n%%Trailer\n%%Page: 9 9\n"
           "%%EndDocument\n\n%%PageTrailer\r" +
           Page(2) + kTail,
       Filled(1)},
      {"separator inside a document after a trailer",
       Head(Size(5, 5)) + Page(1) + kTail + Page(2, "", document) + kSeparator + Head() +
           Page(3, "", "%%BeginDocument\n%%EndDocument\n%%Page: 4 4\n%%EndDocument\n") + kTail,
       Filled(1)},
      {"binder",
       "%!PS\n%%BeginProlog\nouter\n" + empty_page + document + letters + Pages(2) + kTail,
       binders},
      {"binder on page 2",
       letters + Page(1) + Page(2, "", document + Size(6, 7) + "%%EndSetup\n") + Page(3) + kTail,
       binders},
      {"reversed", Head() + Pages(5), Filled(1, 1, 1)},
      {"reversed, innermost first", Head() + Pages(5), Filled(1, 1, 1, 0, 2)},
      {"paper saver, 2 pages", letters + Pages(2) + kTail, Filled(0, 1, 0, 1)},
      {"paper saver, 3 pages", letters + Pages(3) + kTail, Filled(0, 1, 0, 1)},
      {"paper saver, reversed", letters + Pages(5) + kTail, Filled(0, 2, 1, 1)},
      {"duplex, reversed", letters + Pages(3) + kTail, Filled(0, 3, 1)},
      {"simplex", letters + Page(1, Size(5, 6)) + Page(2) + kTail, Filled(0)},
      {"more pages than the first tables hold", Head() + Pages(101)},
      {"no header", Head().substr(1) + Pages(1)},
      {"header inside a line, no setup", "@PJL %!\n%%BeginProlog\n" + Pages(2) + kTail},
      {"no page setup", letters + "%%Page: 1 1\n(1) showpage\n%%Page: 2 2\n(2) showpage\n" + kTail},
      {"unended setup", "%!PS\n%%BeginProlog\n%%BeginSetup\n"},
      {"imposed already", "%!PS\n%%BeginProlog\n%%ZRV Q7BBMIncluded\n" + Pages(1) + kTail},
      {"size of page 2 only", Head() + Page(1) + Page(2, Size(5, 6)) + kTail},
      {"sizes, oddly written",
       Head("/PageSize\t[ 612.5  792.25]\n") + Page(1, "/PageSize [0 5] /PageSize [3 4]\n") +
           Page(2, "/PageSize 7 [10 20\n") + Page(3, "/PageSize [595 842 ]\n") + Page(4) +
           Page(5, Size(1, 2) + Size(595, 792)) + kTail},
      {"widest size", letters + Page(1) + Page(2, Size(32767, 65535)) + kTail},
      {"too wide", Head() + Page(1, Size(32768, 10)) + kTail},
      {"two trailers", Head() + Pages(1) + "%%Trailer\n" + Page(2) + kTail},
      {"trailer with text, end alone", Head() + Pages(1) + "%%Trailer x\n%%EOF\nend\n"},
      {"CR LF, blanks and Ctrl-D",
       "\x04%!PS\r\n%%BeginProlog \r\n \t\x04%%Page: 1 1\r\n%%BeginPageSetup\r\n"
       "%%EndPageSetup\r\nx\r\n%%Trailer\r\nend\r\n"},
      {"CR",
       "%!PS\r%%BeginProlog\r%%page: 1 1\r%%BeginPageSetup\r%%EndPageSetup\rx\r%%Trailer\rend"},
      {"piece of a long line", Head() + std::string(1023, 'x') + empty_page + kTail},
      {"separators that count only once, and with CR LF",
       Head() + kSeparator.substr(0, kSeparator.size() - 2) + "\n" + Page(1) + kSeparator + Head() +
           Page(2) + kSeparator + Page(3) + kTail},
  };
  std::string outputs;
  for (const auto& c : cases) outputs += "==== "s + c.name + "\n" + Imposed(c.vars, c.job);
  CompareWithExpected("booklet_respool.txt", outputs);
}

TEST(Booklet, LongTextsGoOutUnseenAndUnchanged) {
  std::mt19937 random(6);
  for (int round = 0; round < 60; ++round) {
    std::string job = Head();
    for (int page = 1; page <= 6; ++page) {
      std::string body;
      for (auto parts = random() % 4; parts > 0; --parts) {
        body += std::string(random() % 88 * 1023, 'x') + (random() % 2 ? "\n" : "");
        if (random() % 2) body += RandomText(random, 1);
      }
      job += Page(page, random() % 5 == 0 ? RandomText(random, 1) : "", body);
    }
    if (round % 4 != 0) job += kTail;
    ASSERT_EQ(Imposed(Filled(1), job), Imposed(Filled(1), job, true)) << "round " << round;
  }
}

TEST(Booklet, RefusesWhatItCannotDo) {
  // Page 3 is in the last slot, the one that counts.
  const Spool spool(Head() + Pages(2) + Page(3, "", std::string(300000, 'x') + "\n") + kTail);
  const FilePtr full(std::fopen("/dev/full", "wb"));
  Vars v = Filled(1);
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -1000);
  v.hPrinter = full.get();
  v.pwstrPSFileIn = "/nonexistent/spool";
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -102);
  v.pwstrPSFileIn = "/";
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -103);
  v.pwstrPSFileIn = spool.path.c_str();
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), 3);
  EXPECT_EQ(v.iPass2Result, 0);  // the output is gone
  v.bDoAutoPaperSaver = 1;
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -1001);
}

}  // namespace
}  // namespace zarvo
