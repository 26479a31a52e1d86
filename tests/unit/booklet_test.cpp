// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <future>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "CUPSFilter/BookletCopier.h"
#include "CUPSFilter/BookletRespool.h"
#include "CUPSFilter/BookletScan.h"
#include "CUPSFilter/CommentReader.h"
#include "CUPSFilter/psgets.h"
#include "CUPSFilter/q7bbook32.h"
#include "Platform/UniqueFd.h"
#include "tests/unit/transcript.h"

namespace zarvo {

extern const std::string_view BookletProcset;

namespace {

using namespace std::string_literals;
using Vars = _tag_Q7B_PS_BOOKLET_VARS;

/// A spooled job without a name.
struct Spool {
  explicit Spool(const std::string& job) {
    EXPECT_EQ(write(fd.get(), job.data(), job.size()), static_cast<ssize_t>(job.size()));
  }
  FilePtr Open() const { return FilePtr(std::fopen(path.c_str(), "rb")); }

  UniqueFd fd{memfd_create("spool", 0)};
  std::string path = "/proc/self/fd/" + std::to_string(fd.get());
};

/// The record as the driver fills it for a booklet on Letter paper.
Vars Booklet() {
  Vars v;
  v.bDoBooklet = 1;
  v.dmDuplex = 1;
  v.bForceCollateOn = 1;
  v.iDestXPoints = 612;
  v.iDestYPoints = 792;
  v.iDestXMargPoints = 12;
  v.iDestYMargPoints = 12;
  v.iGutterPoints = 24;
  v.iPageletsPerPage = 2;
  v.iMode = 1;
  return v;
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

std::string Pages(int count) {
  std::string pages;
  for (int page = 1; page <= count; ++page) pages += Page(page);
  return pages;
}

std::string Size(int width, int height) {
  return "<< /PageSize [" + std::to_string(width) + " " + std::to_string(height) +
         "] >> setpagedevice\n";
}

const std::string kTail = "%%Trailer\nend\n%%EOF\n\x1b%-12345X@PJL EOJ\n";
const std::string kSeparator = "%!PS-Adobe-3.0 ZRV Separator File End Job Begin\r\n";

TEST(PsGets, EndsLinesAsTheySay) {
  const struct {
    std::string text;
    std::vector<std::string> lines;
  } cases[] = {
      {"", {}},
      {"ab\ncd\r\n\ref", {"ab\n", "cd\r\n", "\r", "ef"}},
      {"a\r", {"a\r"}},
      {"a\0b\nc\0"s, {"a\0b\n"s, "c\0"s}},
      {"1234567\n", {"1234567", "\n"}},          // no room for the end
      {"123456\r\nx", {"123456\r", "\n", "x"}},  // room for half of it
      {"12345\r\nx", {"12345\r\n", "x"}},
      {"1234567\r\nx", {"1234567", "\r\n", "x"}},
  };
  for (const auto& c : cases) {
    const Spool spool(c.text);
    const FilePtr file = spool.Open();
    std::vector<std::string> lines;
    char buffer[8];
    for (unsigned long size = sizeof buffer; psgets(buffer, &size, file.get()) != nullptr;
         size = sizeof buffer) {
      EXPECT_EQ(buffer[size], '\0');
      lines.emplace_back(buffer, size);
    }
    EXPECT_EQ(lines, c.lines) << c.text;
  }
}

/// Bytes of the kinds that matter to line readers, with long lines and long blanks now and then.
std::string RandomJob(std::mt19937& random, std::size_t size) {
  const std::string kinds[] = {"\n",
                               "\r",
                               "\r\n",
                               "%",
                               "%%Page: 1\n",
                               " ",
                               "\x04",
                               "abc",
                               "\0"s,
                               std::string(1022, 'x'),
                               std::string(300, ' '),
                               "%%EOF"};
  std::string job;
  while (job.size() < size) job += kinds[random() % std::size(kinds)];
  return job;
}

TEST(CommentReader, SkipsNoCommentThatAPlainReaderFinds) {
  std::mt19937 random(4);
  for (int round = 0; round < 8; ++round) {
    const std::string job = RandomJob(random, 300000);
    const Spool spool(job);
    const FilePtr plain = spool.Open();
    CommentReader reader(spool.path.c_str());
    char line[CommentReader::kLineSize];
    char fast_line[CommentReader::kLineSize];
    for (unsigned long size = sizeof line; psgets(line, &size, plain.get()) != nullptr;
         size = sizeof line) {
      const std::string_view text(line, size);
      const std::size_t start = text.find_first_not_of(" \t\n\v\f\r\x04");
      if (start == text.npos || text[start] != '%') continue;
      do {
        reader.SkipToComment();
        ASSERT_TRUE(reader.ReadLine(fast_line));
      } while (reader.Tell() < ftello(plain.get()));
      ASSERT_EQ(reader.Tell(), ftello(plain.get()));
      ASSERT_EQ(text, std::string_view(fast_line, size));
    }
  }
}

TEST(BookletCopier, ReturnsTheSameLinesWhateverTheBlocks) {
  std::mt19937 random(5);
  for (int round = 0; round < 20; ++round) {
    // A last line that is no comment: an unfinished one would be left out.
    const std::string job = RandomJob(random, 20000) + "\nend";
    const Spool spool(job);
    std::vector<std::string> first;
    for (const std::size_t block :
         {std::size_t{131072}, std::size_t{4096}, std::size_t{7}, std::size_t{1}}) {
      Vars v;
      v.pBlock.resize(block);
      const FilePtr file = spool.Open();
      std::vector<std::string> comments;
      std::string whole;
      int status = 1;
      for (int start = 1; status > 0 && !v.bEndOfFile; start = 0) {
        whole += CollectOutput([&](std::FILE* output) {
          v.hPrinter = output;
          status = xWritePdlUntilNextDSC(&v, file.get(), start);
        });
        if (v.bEndOfFile) break;
        comments.emplace_back(v.szDsc);
        whole += v.szDsc;
      }
      EXPECT_EQ(status, 1);
      EXPECT_EQ(whole, job);
      if (first.empty()) first = comments;
      EXPECT_EQ(comments, first) << "block of " << block;
    }
  }
}

TEST(BookletCopier, TakesWhatIsACommentLine) {
  const std::string most = "%" + std::string(254, 'c');
  const struct {
    std::string text;
    std::vector<std::string> comments;
  } cases[] = {
      {"%a\nb\n%c\r\n%d\r%e\n\n%f\nx", {"%a\n", "%c\r\n", "%d\r", "%e\n\n", "%f\n"}},
      {" %a\nx%b\n", {}},
      {most + "\nx", {most + "\n"}},
      {most + "c\nx", {}},
      {"%a\0b\n%c\nx"s, {"%c\n"}},
      {"%a\n%last", {"%a\n"}},
      {"%a\n%last\n", {"%a\n"}},  // its end is not certain
  };
  for (const auto& c : cases) {
    const Spool spool(c.text);
    const FilePtr file = spool.Open();
    Vars v;
    v.pBlock.resize(16);
    std::vector<std::string> comments;
    CollectOutput([&](std::FILE* output) {
      v.hPrinter = output;
      for (int start = 1; xWritePdlUntilNextDSC(&v, file.get(), start) > 0 && !v.bEndOfFile;
           start = 0)
        comments.emplace_back(v.szDsc);
    });
    EXPECT_EQ(comments, c.comments) << c.text;
  }
}

TEST(Booklet, SlotsOfBothModesAndOrders) {
  const struct {
    int booklet, mode, reverse, images;
    std::vector<int> pages;
  } cases[] = {
      {1, 1, 0, 4, {8, 1, 2, 7, 6, 3, 4, 5}}, {1, 2, 0, 4, {4, 5, 6, 3, 2, 7, 8, 1}},
      {1, 1, 1, 4, {6, 3, 4, 5, 8, 1, 2, 7}}, {1, 2, 1, 4, {2, 7, 8, 1, 4, 5, 6, 3}},
      {0, 1, 0, 4, {1, 2, 3, 4, 5, 6, 7, 8}}, {0, 1, 1, 4, {5, 6, 7, 8, 1, 2, 3, 4}},
      {0, 1, 1, 2, {7, 8, 5, 6, 3, 4, 1, 2}}, {0, 1, 1, 1, {8, 7, 6, 5, 4, 3, 2, 1}},
  };
  for (const auto& c : cases) {
    Vars v;
    v.bDoBooklet = c.booklet;
    v.iMode = c.mode;
    v.bDoReversePgOrder = c.reverse;
    v.iImagesPerSheet = c.images;
    std::vector<int> pages;
    for (int slot = 1; slot <= 8; ++slot) pages.push_back(xMapToSrcPageNum(&v, 8, slot));
    EXPECT_EQ(pages, c.pages);
  }
}

/// One line on what the scan found.
std::string ScanReport(const std::string& job, bool check_binder) {
  const Spool spool(job);
  Vars v = Booklet();
  v.pwstrPSFileIn = spool.path.c_str();
  v.bChk4BadMSBinderPS = check_binder;
  v.iCurPageAlloc = 100;
  v.aPageFilePos.assign(101, 0);
  v.adwPageSize.assign(101, 0);
  v.aPlainTextEnd.assign(101, 0);
  const int result = xScanFileForPages(&v);
  std::string report = "result " + std::to_string(result);
  for (int page = 0; page < std::min(result, 8); ++page) {
    const auto entry = static_cast<std::size_t>(page);
    const std::string rest = job.substr(static_cast<std::size_t>(v.aPageFilePos[entry]), 16);
    report += "; " + std::to_string(v.adwPageSize[entry] >> 16) + "x" +
              std::to_string(v.adwPageSize[entry] & 0xFFFF) + " at " +
              std::string(rest, 0, rest.find_first_of("\r\n"));
  }
  if (result >= 0) {
    const auto trailer = static_cast<std::size_t>(v.aPageFilePos[static_cast<std::size_t>(result)]);
    report += trailer == 0 ? "; no trailer" : "; trailer at " + job.substr(trailer, 3);
  }
  if (v.iSepFileDiscardLineCount != 0)
    report += "; drop " + std::to_string(v.iSepFileDiscardLineCount) + " lines";
  if (v.bIsBadMsBinderPS) report += "; binder";
  if (v.iCurPageAlloc != 100) report += "; tables of " + std::to_string(v.aPageFilePos.size());
  return report + "\n";
}

TEST(Booklet, ScanFindsPages) {
  const std::string document = "%%BeginDocument: a.eps\n%!PS-Adobe-3.0 EPSF-3.0\n" + Size(9, 9);
  const std::string binder = Head() + "%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n" + document;
  const struct {
    const char* name;
    std::string job;
    bool check_binder = false;
  } cases[] = {
      {"empty", ""},
      {"no header", "%%BeginProlog\n%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n"},
      {"header inside a line", "@PJL %!\n" + Head().substr(15) + Pages(1) + kTail},
      {"no prolog", "%!PS\n" + Pages(2) + kTail},
      {"pages without setup of the document", "%!PS\n%%BeginProlog\n" + Pages(2) + kTail},
      {"pages without page setup",
       Head() + "%%Page: 1 1\nshowpage\n%%Page: 2 2\nshowpage\n" + kTail},
      {"sizes", Head(Size(612, 792)) + Page(1) + Page(2, Size(595, 842)) + Page(3) +
                    Page(4, Size(1, 2) + Size(792, 612)) + kTail},
      {"size of page 1 only from its setup", Head() + Page(1) + Page(2, Size(5, 6)) + kTail},
      {"sizes, oddly written",
       Head("/PageSize\t[ 612.5  792.25]\n") + Page(1, "/PageSize [0 5] /PageSize [3 4]\n") +
           Page(2, "/PageSize 7 [10 20\n") + Page(3, "/PageSize [595 842 ]\n") + kTail},
      {"widest size", Head() + Page(1, Size(32767, 65535)) + kTail},
      {"too wide", Head() + Page(1, Size(32768, 10)) + kTail},
      {"too wide in the setup", Head(Size(40000, 10)) + Pages(1) + kTail},
      {"unended setup", "%!PS\n%%BeginProlog\n%%BeginSetup\n"},
      {"unended page setup", Head() + "%%Page: 1 1\n%%BeginPageSetup\n"},
      {"imposed already", "%!PS\n%%BeginProlog\n%%ZRV Q7BBMIncluded\n" + Pages(1) + kTail},
      {"no trailer", Head() + Pages(2)},
      {"two trailers", Head() + Pages(1) + "%%Trailer\n" + Page(2) + kTail},
      {"trailer with text", Head() + Pages(1) + "%%Trailer x\n%%EOF\n"},
      {"CR LF, blanks and Ctrl-D",
       "\x04%!PS\r\n%%BeginProlog \r\n \t\x04%%Page: 1 1\r\n%%BeginPageSetup\r\n"
       "%%EndPageSetup\r\nx\r\n%%Trailer\r\nend\r\n"},
      {"CR",
       "%!PS\r%%BeginProlog\r%%page: 1 1\r%%BeginPageSetup\r%%EndPageSetup\rx\r%%Trailer\rend"},
      {"embedded document", Head() +
                                Page(1, "",
                                     document + "%%BeginDocument\n%%Page: 9 9\n" +
                                         "%%EndDocument\n%%Trailer\n%%EndDocument\n") +
                                Page(2) + kTail},
      {"unended embedded document", Head() + Page(1, "", document) + Page(2) + kTail},
      {"piece of a long line",
       Head() + std::string(1023, 'x') + "%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n" + kTail},
      {"one byte before a piece",
       Head() + std::string(1022, 'x') + "%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n" + kTail},
      {"separator", Head(Size(5, 5)) + Pages(2) + kSeparator + Head() + Page(3) + kTail},
      {"separator with LF",
       Head() + Pages(1) + kSeparator.substr(0, kSeparator.size() - 2) + "\n" + kTail},
      {"separator inside an embedded document",
       Head() + Page(1, "", document) + kSeparator + Head() +
           Page(3, "", "%%BeginDocument\n%%EndDocument\n%%Page: 4 4\n%%EndDocument\n") + kTail},
      {"two separators", Head() + kSeparator + Head() + Page(1) + kSeparator + Page(2) + kTail},
      {"binder, not looked for", binder + Page(2) + kTail},
      {"binder", binder + Page(2) + Page(3) + kTail, true},
      {"binder on page 2",
       Head() + Page(1) + Page(2, "", document + Size(6, 7) + "%%EndSetup\n") + Page(3) + kTail,
       true},
      {"100 pages", Head() + Pages(100) + kTail},
      {"99 pages", Head() + Pages(99) + kTail},
  };
  std::string reports;
  for (const auto& c : cases) reports += c.name + ": "s + ScanReport(c.job, c.check_binder);
  CompareWithExpected("booklet_scan.txt", reports);
}

std::string Imposed(Vars v, const std::string& job) {
  const Spool spool(job);
  v.pwstrPSFileIn = spool.path.c_str();
  int result = 0;
  std::string output = CollectOutput([&](std::FILE* printer) {
    v.hPrinter = printer;
    result = xPostProcessAndRespoolJob(&v);
  });
  const std::size_t procset = output.find(BookletProcset);
  if (procset != output.npos) output.replace(procset, BookletProcset.size(), "(procset)\n");
  EXPECT_TRUE(v.pBlock.empty() && v.aPageFilePos.empty() && v.adwPageSize.empty());
  return "result " + std::to_string(result) + "\n" + output;
}

TEST(Booklet, RespoolsEveryLayout) {
  Vars everything = Booklet();
  everything.iOverrideNumCopies = 3;
  everything.iCreep10thPoints = 35;
  everything.bRightToLeft = 1;
  everything.bRotBooklet180 = 1;
  everything.iOutlineStyle = 1;
  everything.bInclInsertedBlanksWhenOutlining = 1;
  everything.bTryToUsePg1SizeFromPS = 1;
  everything.iMode = 2;
  Vars binder = Booklet();
  binder.bChk4BadMSBinderPS = 1;
  Vars simplex;
  simplex.dmDuplex = 1;
  Vars simplex_reverse = simplex;
  simplex_reverse.bDoReversePgOrder = 1;
  Vars duplex_reverse = simplex_reverse;
  duplex_reverse.dmDuplex = 3;
  Vars saver = Booklet();
  saver.bDoBooklet = 0;
  saver.bDoAutoPaperSaver = 1;
  const std::string letters = Head(Size(612, 792));
  const struct {
    const char* name;
    Vars vars;
    std::string job;
  } cases[] = {
      {"five pages", Booklet(),
       letters + Page(1) + Page(2, Size(595, 842)) + Page(3) + Page(4) + Page(5, Size(1, 2)) +
           kTail},
      {"every field", everything,
       letters + Page(1, Size(595, 842)) + Page(2) + Page(3) + Page(4) + Page(5) + kTail},
      {"no sizes", Booklet(), Head() + Pages(1) + kTail},
      {"embedded document, comments and line ends", Booklet(),
       letters +
           "%%Page: 1 1\r\n%%Extra\r\n\n%%BeginPageSetup\r\n%%EndPageSetup\r\n"
           "%%BeginDocument: x\n%%Page: 9 9\n%%EOF\n%%EndDocument\n\n%%PageTrailer\r" +
           Page(2) + kTail},
      {"last line unfinished", Booklet(), letters + Pages(1) + "%%Trailer\nend\n%%EOF"},
      {"two trailers", Booklet(), letters + Pages(1) + "%%Trailer\n" + kTail},
      {"no trailer", Booklet(), letters + Pages(1)},
      {"page comment hidden by a blank", Booklet(), letters + Page(1) + " " + Page(2) + kTail},
      {"pages without page setup", Booklet(),
       letters + "%%Page: 1 1\n(1) showpage\n%%Page: 2 2\n(2) showpage\n" + kTail},
      {"separator", Booklet(), Head() + Pages(1) + kSeparator + letters + Page(2) + kTail},
      {"binder", binder,
       "%!PS\n%%BeginProlog\nouter\n%%Page: 1 1\n%%BeginPageSetup\n%%EndPageSetup\n"
       "%%BeginDocument\n" +
           letters + Pages(1) + kTail},
      {"simplex", simplex, letters + Pages(2) + kTail},
      {"simplex, reversed", simplex_reverse,
       letters + Page(1) + Page(2, Size(5, 6)) + Page(3) + kTail},
      {"duplex, reversed", duplex_reverse, letters + Pages(3) + kTail},
      {"paper saver, 2 pages", saver, letters + Pages(2) + kTail},
      {"paper saver, 3 pages", saver, letters + Pages(3) + kTail},
      {"imposed already", Booklet(), "%!PS\n%%BeginProlog\n%%ZRV Q7BBMIncluded\n" + Pages(1)},
      {"no pages", Booklet(), "%!PS\nshowpage\n%%EOF\n"},
  };
  std::string outputs;
  for (const auto& c : cases) {
    outputs += "==== "s + c.name + "\n" + Imposed(c.vars, c.job);
  }
  CompareWithExpected("booklet_respool.txt", outputs);
}

/// The imposed job as a pipe gets it, which takes long texts without looking at them.
std::string ImposedIntoPipe(Vars v, const std::string& job) {
  const Spool spool(job);
  v.pwstrPSFileIn = spool.path.c_str();
  int ends[2];
  EXPECT_EQ(pipe(ends), 0);
  auto reader = std::async(std::launch::async, [&] {
    const FilePtr file(fdopen(ends[0], "rb"));
    std::string bytes;
    for (int byte = 0; (byte = std::getc(file.get())) != EOF;) bytes += static_cast<char>(byte);
    return bytes;
  });
  FilePtr writer(fdopen(ends[1], "wb"));
  v.hPrinter = writer.get();
  const int result = xPostProcessAndRespoolJob(&v);
  writer.reset();  // lets the reader end
  std::string output = reader.get();
  const std::size_t procset = output.find(BookletProcset);
  if (procset != output.npos) output.replace(procset, BookletProcset.size(), "(procset)\n");
  return "result " + std::to_string(result) + "\n" + output;
}

TEST(Booklet, LongTextsGoOutUnseenAndUnchanged) {
  std::mt19937 random(6);
  const std::string comments[] = {"%%EOF\n",
                                  " %%EOF\n",
                                  "%%BeginDocument: x\n",
                                  "%%EndDocument\n",
                                  "%%Trailer\n",
                                  " %%Page: 9 9\n",
                                  "%%EOF\0\n"s,
                                  "%%PageTrailer\r\n",
                                  "%%BeginPageSetup\n",
                                  "%%Page:" + std::string(300, 'x') + "\n",
                                  std::string(1023, 'x') + "%%EOF\n"};
  for (int round = 0; round < 60; ++round) {
    std::string job = Head();
    for (int page = 1; page <= 6; ++page) {
      std::string body;
      for (auto parts = random() % 4; parts > 0; --parts) {
        body += std::string(random() % 90000, 'x') + "\n";
        if (random() % 3 == 0) body += comments[random() % std::size(comments)];
      }
      const bool odd = random() % 5 == 0;
      job += Page(page, odd ? comments[random() % std::size(comments)] : "", body);
    }
    if (round % 4 != 0) job += kTail;
    ASSERT_EQ(Imposed(Booklet(), job), ImposedIntoPipe(Booklet(), job)) << "round " << round;
  }
}

TEST(Booklet, RefusesWhatItCannotDo) {
  Vars v = Booklet();
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -1000);
  v.hPrinter = stdout;
  v.pwstrPSFileIn = "/nonexistent/spool";
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -102);
  v.pwstrPSFileIn = "/";
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -103);
  v.bDoAutoPaperSaver = 1;
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), -1001);
}

TEST(Booklet, StopsWhenTheOutputIsGone) {
  // Page 3 is in the last slot, the one that counts.
  const Spool spool(Head() + Pages(2) + Page(3, "", std::string(300000, 'x') + "\n") + kTail);
  Vars v = Booklet();
  v.pwstrPSFileIn = spool.path.c_str();
  const FilePtr full(std::fopen("/dev/full", "wb"));
  v.hPrinter = full.get();
  EXPECT_EQ(xPostProcessAndRespoolJob(&v), 3);
  EXPECT_EQ(v.iPass2Result, 0);
}

}  // namespace
}  // namespace zarvo
