// SPDX-License-Identifier: Apache-2.0
// The element writers of the JTML ticket: every row of every table, as the printer gets it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "CUPSFilter/jtmlgen/JtmlWriters.h"
#include "tests/unit/transcript.h"

namespace zarvo {
namespace {

/// What went through the sink: the text, and the calls with and without a length.
struct Record {
  std::string text;
  int counted = 0, uncounted = 0;
};
Record record;

std::int32_t Collect(void* context, const char* text, std::int32_t length) {
  if (context != nullptr) {
    EXPECT_EQ(static_cast<std::size_t>(length), std::strlen(text));
    ++record.counted;
  } else {
    EXPECT_EQ(length, 0);
    ++record.uncounted;
  }
  record.text += text;
  return length;
}

const _WRITEDATA sink = {&record, &Collect};

class Transcript {
 public:
  /// Runs `write` for each value; values that write the same are listed together.
  /// Of the log only the first value's is kept.
  template <class Writer>
  void Sweep(const std::string& title, int first, int last, const Writer& write) {
    std::vector<std::pair<std::string, std::string>> outputs;  // text, values
    std::string first_log;
    for (int value = first; value <= last; ++value) {
      record = {};
      testing::internal::CaptureStderr();
      EXPECT_EQ(write(value), JTML_SUCCESS) << title << ' ' << value;
      const std::string log = testing::internal::GetCapturedStderr();
      if (value == first) first_log = log;
      std::string text = " (calls " + std::to_string(record.counted) + "+" +
                         std::to_string(record.uncounted) + ")\n" + record.text;
      if (text.back() != '\n') text += "(no line feed)\n";
      const auto same = std::find_if(outputs.begin(), outputs.end(),
                                     [&text](const auto& output) { return output.first == text; });
      const auto output = same != outputs.end() ? same : outputs.emplace(outputs.end(), text, "");
      output->second += ' ' + std::to_string(value);
    }
    text_ += "== " + title + '\n';
    if (!first_log.empty()) text_ += "! " + first_log;
    for (const auto& [text, values] : outputs) text_ += "--" + values + text;
  }

  template <class Writer>
  void Once(const std::string& title, const Writer& write) {
    Sweep(title, 0, 0, [&write](int) { return write(); });
  }

  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

TEST(JtmlWriters, JobElements) {
  Transcript out;
  out.Sweep("header", -1, 6, [](int version) { return WriteJtmlHeader(&sink, version); });
  out.Sweep("operation attributes, recipient flag", 0, 2,
            [](int flag) { return WriteJtmlOpAttrib(&sink, flag, "job", "user"); });
  out.Once("attributes start", [] { return WriteJtmlJobAttribStart(&sink); });
  out.Once("attributes end", [] { return WriteJtmlJobAttribEnd(&sink); });
  out.Once("trailer", [] { return WriteJtmlTrailer(&sink); });
  for (int command = -1; command <= 31; ++command) {
    const bool number =
        std::ranges::count(std::array{0, 5, 8, 16, 17, 18, 19, 20, 21, 23, 24}, command) != 0;
    out.Sweep("command " + std::to_string(command), -1, number ? 0 : 9,
              [command](int value) { return WriteJtmlCommands(&sink, command, value); });
  }
  out.Sweep("staple, punch on, no holes", -1, 21, [](int code) {
    return WriteJtmlFinishing(&sink, std::array{_FINISHERDATA{code, -1, 31, -1}}.data());
  });
  out.Sweep("fold", 8, 31, [](int code) {
    return WriteJtmlFinishing(&sink, std::array{_FINISHERDATA{-1, code, -1, 35}}.data());
  });
  out.Sweep("punch behind a staple", 30, 38, [](int code) {
    return WriteJtmlFinishing(&sink, std::array{_FINISHERDATA{0, -1, code, 35}}.data());
  });
  out.Sweep("holes", 34, 38, [](int code) {
    return WriteJtmlFinishing(&sink, std::array{_FINISHERDATA{-1, -1, 34, code}}.data());
  });
  out.Once("nothing to finish", [] {
    return WriteJtmlFinishing(&sink, std::array{_FINISHERDATA{-1, -1, -1, 35}}.data());
  });
  out.Once("finishing template outranks codes", [] {
    return WriteJtmlFinishing(&sink,
                              std::array{_FINISHERDATA{0, 9, 31, 35, "Fold &amp; go"}}.data());
  });
  out.Once("job notes", [] {
    return WriteJtmlJobNotes(&sink, std::array{_JOBNOTEDATA{"a", "b", "c", "d"}}.data());
  });
  out.Once("no job notes",
           [] { return WriteJtmlJobNotes(&sink, std::array{_JOBNOTEDATA{}}.data()); });
  out.Sweep("job type", -1, 7, [](int type) {
    return WriteJtmlJobTypes(&sink, std::array{_JOBDATA{type, 2, "name", "file:///x/"}}.data());
  });
  out.Sweep("format of a saved job without texts", -1, 5, [](int format) {
    return WriteJtmlJobTypes(&sink, std::array{_JOBDATA{2, format, nullptr, nullptr}}.data());
  });
  out.Once("accounting", [] { return WriteJtmlAccounting(&sink, "user", nullptr); });
  out.Once("page range", [] { return WriteJtmlPageRanges(&sink, 9, 3); });
  out.Once("resolution", [] {
    return WriteJtmlResolution(&sink, std::array{_RESOLUTIONDATA{1, 2, 3}}.data());
  });
  out.Once("image shift", [] { return WriteJtmlImageShift(&sink, 1, -2, 3, -4); });
  out.Sweep("halftone", -1, 48, [](int screen) { return WriteJtmlHalfTone(&sink, screen); });
  CompareWithExpected("jtml_job_elements.txt", out.text());
}

TEST(JtmlWriters, ColorElements) {
  Transcript out;
  out.Sweep("RGB source", -1, 7,
            [](int code) { return WriteJtmlRGBSource(&sink, code, "element", "Name"); });
  out.Sweep("CMYK source", -1, 16,
            [](int code) { return WriteJtmlCMYKSource(&sink, code, "element", "Name"); });
  out.Sweep("destination", -1, 1,
            [](int code) { return WriteJtmlColorDestination(&sink, code, "element", "Name"); });
  out.Once("no colour", [] { return WriteJtmlFullColor(&sink, std::array{_PAGEDATA{}}.data()); });
  out.Once("highlight, nothing set",
           [] { return WriteJtmlHLC(&sink, std::array{_PAGEDATA{}}.data()); });
  out.Sweep("highlight, each code in every place", -2, 13, [](int code) {
    _PAGEDATA page;
    page.hlcPrintingColor = page.hlcMappingColor = code;
    page.hlcMismatchAction = page.hlcMappingAlgorithm = code;
    return WriteJtmlHLC(&sink, &page);
  });
  CompareWithExpected("jtml_color_elements.txt", out.text());
}

TEST(JtmlWriters, MediaElements) {
  Transcript out;
  const _MEDIADATA blank;
  out.Sweep("list start", -1, 2, [](int list) { return WriteJtmlSpecialPagesStart(&sink, list); });
  out.Sweep("list end", -1, 2, [](int list) { return WriteJtmlSpecialPagesEnd(&sink, list); });
  out.Sweep("cover", -1, 2, [&](int cover) { return WriteJtmlCovers(&sink, cover, 9, &blank); });
  out.Sweep("cover type", -1, 5, [&](int type) { return WriteJtmlCovers(&sink, 0, type, &blank); });
  out.Once("bare exception", [&] {
    return WriteJtmlPageExceptions(&sink, std::array{_PAGEDATA{1, 1, 9, 2}}.data(), &blank);
  });
  const auto sweep = [&out](const std::string& field, int first, int last,
                            int _MEDIADATA::*member) {
    out.Sweep(field, first, last, [member](int code) {
      _MEDIADATA media;
      media.*member = code;
      if (member != &_MEDIADATA::nCoatingType) media.nCoatingType = 1;
      media.strMediaName = "";
      media.strMediaType = "Type";
      media.strMediaColor = "Color";
      return WriteJtmlMedia(&sink, &media);
    });
  };
  sweep("source", -1, 2, &_MEDIADATA::nSource);
  sweep("colour", -1, 13, &_MEDIADATA::nMediaColor);
  sweep("pre-printed", -1, 3, &_MEDIADATA::nPrePrinted);
  sweep("recycled", -1, 2, &_MEDIADATA::nRecycledType);
  sweep("coating", -1, 6, &_MEDIADATA::nCoatingType);
  sweep("coated sides", -1, 4, &_MEDIADATA::nSidesCoated);
  sweep("surface", 0, 4, &_MEDIADATA::nFinish);
  sweep("grain", 0, 3, &_MEDIADATA::nGrain);
  out.Sweep("type, everything else set", -1, 14, [](int type) {
    _MEDIADATA media;
    media.nMediaType = type;
    media.strMediaType = "Type";
    media.nOrderCount = media.nWeight = media.nHoleCount = 5;
    media.nPrePrinted = media.nRecycledType = 0;
    media.strMediaDescription = "Thick &amp; white";
    media.MediaSize = {4294967295U, 1};
    return WriteJtmlMedia(&sink, &media);
  });
  out.Once("name outranks the rest", [] {
    _MEDIADATA media;
    media.nMediaType = 0;
    media.strMediaName = "Stock";
    return WriteJtmlMedia(&sink, &media);
  });
  CompareWithExpected("jtml_media_elements.txt", out.text());
}

TEST(JtmlWriters, FormNamesAreCutToWholeCharactersAndEntities) {
  const auto name = [](const std::string& text) {
    record = {};
    WriteJtmlBackgroundForms(&sink, std::array{_BGFORMSDATA{text.c_str(), text.c_str()}}.data());
    const auto between = [](std::string_view from, std::string_view to) {
      const std::size_t start = record.text.find(from) + from.size();
      return record.text.substr(start, record.text.find(to) - start);
    };
    const std::string saved =
        between("<form-save-name syntax=\"name\" xml:space=\"preserve\">", "</form-save-name>");
    EXPECT_EQ(saved, between("<form-name syntax=\"name\" xml:space=\"preserve\">", "</form-name>"));
    return saved;
  };
  const std::string x250(250, 'x');
  EXPECT_EQ(name(x250 + "abcde"), x250 + "abcde");
  EXPECT_EQ(name(x250 + "abcdef"), x250 + "abcde");
  EXPECT_EQ(name(x250 + "abcd\xC3\xA9"), x250 + "abcd") << "half a character";
  EXPECT_EQ(name(x250 + "a&amp;"), x250 + "a") << "half an entity";
  EXPECT_EQ(name(x250 + "&amp;x"), x250 + "&amp;") << "a whole entity at the cut";
  EXPECT_EQ(name("&lt;" + std::string(300, 'x')), "&lt;" + std::string(251, 'x'));
}

}  // namespace
}  // namespace zarvo
