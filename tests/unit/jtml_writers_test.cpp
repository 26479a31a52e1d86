// SPDX-License-Identifier: Apache-2.0
// The element writers of the JTML ticket: every row of every table, as the printer gets it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "CUPSFilter/jtmlgen/BackgroundForms.h"
#include "CUPSFilter/jtmlgen/Commands.h"
#include "CUPSFilter/jtmlgen/Finishing.h"
#include "CUPSFilter/jtmlgen/Frame.h"
#include "CUPSFilter/jtmlgen/FullColor.h"
#include "CUPSFilter/jtmlgen/HalfTone.h"
#include "CUPSFilter/jtmlgen/HighlightColor.h"
#include "CUPSFilter/jtmlgen/Job.h"
#include "CUPSFilter/jtmlgen/Media.h"
#include "CUPSFilter/jtmlgen/PageImage.h"
#include "CUPSFilter/jtmlgen/SpecialPages.h"
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
  EXPECT_EQ(length, context != nullptr ? static_cast<std::int32_t>(std::strlen(text)) : 0);
  ++(context != nullptr ? record.counted : record.uncounted);
  record.text += text;
  return length;
}

const JtmlSink sink = {&record, &Collect};

/// A writer that is called with each code from `first` to `last`.
struct Sweep {
  std::string title;
  int first, last;
  std::function<JtmlGenError(int)> write;
};

/// Codes that write the same are listed together. Of the log only the first code's is compared.
void CompareSweeps(const std::string& name, const std::vector<Sweep>& sweeps) {
  std::string transcript;
  for (const Sweep& sweep : sweeps) {
    std::vector<std::pair<std::string, std::string>> outputs;  // text, codes
    transcript += "== " + sweep.title + '\n';
    for (int code = sweep.first; code <= sweep.last; ++code) {
      record = {};
      testing::internal::CaptureStderr();
      EXPECT_EQ(sweep.write(code), JTML_SUCCESS) << sweep.title << ' ' << code;
      const std::string log = testing::internal::GetCapturedStderr();
      if (code == sweep.first && !log.empty()) transcript += "! " + log;
      std::string text = " (calls " + std::to_string(record.counted) + "+" +
                         std::to_string(record.uncounted) + ")\n" + record.text;
      if (text.back() != '\n') text += "(no line feed)\n";
      auto output = std::ranges::find(outputs, text, &std::pair<std::string, std::string>::first);
      if (output == outputs.end()) output = outputs.emplace(output, text, "");
      output->second += ' ' + std::to_string(code);
    }
    for (const auto& [text, codes] : outputs) transcript += "--" + codes + text;
  }
  CompareWithExpected(name, transcript);
}

/// A writer that takes its code first.
template <class... Rest>
auto By(JtmlGenError (*writer)(const JtmlSink*, int, Rest...), Rest... rest) {
  return [=](int code) { return writer(&sink, code, rest...); };
}

auto Finish(std::array<int, 4> codes, std::size_t varied) {
  return [codes, varied](int code) mutable {
    codes[varied] = code;
    const FinisherData data{codes[0], codes[1], codes[2], codes[3]};
    return WriteJtmlFinishing(&sink, &data);
  };
}

TEST(JtmlWriters, JobElements) {
  const std::string x250(250, 'x');
  const std::string forms[] = {x250 + "abcde",  x250 + "abcdef", x250 + "abcd\xC3\xA9",
                               x250 + "a&amp;", x250 + "&amp;x", "&lt;" + x250 + "xx"};
  std::vector<Sweep> sweeps = {
      {"header", -1, 6, By(&WriteJtmlHeader)},
      {"operation attributes, recipient flag", 0, 2, By(&WriteJtmlOpAttrib, "job", "user")},
      {"staple, punch on, no holes", -1, 21, Finish({-1, -1, 31, -1}, 0)},
      {"fold", 8, 31, Finish({-1, -1, -1, 35}, 1)},
      {"punch behind a staple", 30, 38, Finish({0, -1, -1, 35}, 2)},
      {"holes", 34, 38, Finish({-1, -1, 34, -1}, 3)},
      {"halftone", -1, 48, By(&WriteJtmlHalfTone)},
  };
  const auto job_type = [](int code) {
    const JobData data{code, 2, "name", "file:///x/"};
    return WriteJtmlJobTypes(&sink, &data);
  };
  const auto saved_format = [](int code) {
    const JobData data{2, code, nullptr, nullptr};
    return WriteJtmlJobTypes(&sink, &data);
  };
  const auto form = [&forms](int row) {
    const char* name = forms[row].c_str();
    const FormsData data{name, name};
    return WriteJtmlBackgroundForms(&sink, &data);
  };
  sweeps.push_back({"job type", -1, 7, job_type});
  sweeps.push_back({"format of a saved job without texts", -1, 5, saved_format});
  sweeps.push_back({"form names are cut to whole characters and entities", 0, 5, form});
  for (int command = 31; command >= -1; --command) {
    const bool number =
        std::ranges::count(std::array{0, 5, 8, 16, 17, 18, 19, 20, 21, 23, 24}, command) != 0;
    const auto write = [command](int code) { return WriteJtmlCommands(&sink, command, code); };
    sweeps.insert(sweeps.begin() + 2,
                  {"command " + std::to_string(command), -1, number ? 0 : 9, write});
  }
  CompareSweeps("jtml_job_elements.txt", sweeps);
}

TEST(JtmlWriters, ColorElements) {
  const auto highlight = [](int code) {
    PageData page;
    page.hlcPrintingColor = page.hlcMappingColor = code;
    page.hlcMismatchAction = page.hlcMappingAlgorithm = code;
    return WriteJtmlHLC(&sink, &page);
  };
  CompareSweeps("jtml_color_elements.txt",
                {{"RGB source", -1, 7, By(&WriteJtmlRGBSource, "element", "Name")},
                 {"CMYK source", -1, 16, By(&WriteJtmlCMYKSource, "element", "Name")},
                 {"destination", -1, 1, By(&WriteJtmlColorDestination, "element", "Name")},
                 {"highlight, each code in every place", -2, 13, highlight}});
}

TEST(JtmlWriters, MediaElements) {
  static const MediaData blank;
  const auto field = [](int MediaData::*member) {
    return [member](int code) {
      MediaData media;
      media.nCoatingType = 1;
      media.*member = code;
      media.strMediaName = "";
      media.strMediaType = "Type";
      media.strMediaColor = "Color";
      return WriteJtmlMedia(&sink, &media);
    };
  };
  const auto everything = [](int type) {
    MediaData media;
    media.nMediaType = type;
    media.strMediaType = "Type";
    media.nOrderCount = media.nWeight = media.nHoleCount = 5;
    media.nPrePrinted = media.nRecycledType = 0;
    media.strMediaDescription = "Thick &amp; white";
    media.MediaSize = {4294967295U, 1};
    return WriteJtmlMedia(&sink, &media);
  };
  CompareSweeps(
      "jtml_media_elements.txt",
      {{"list start", -1, 2, By(&WriteJtmlSpecialPagesStart)},
       {"list end", -1, 2, By(&WriteJtmlSpecialPagesEnd)},
       {"cover", -1, 2, By(&WriteJtmlCovers, 9, &blank)},
       {"cover type", -1, 5, [](int type) { return WriteJtmlCovers(&sink, 0, type, &blank); }},
       {"source", -1, 2, field(&MediaData::nSource)},
       {"colour", -1, 13, field(&MediaData::nMediaColor)},
       {"pre-printed", -1, 3, field(&MediaData::nPrePrinted)},
       {"recycled", -1, 2, field(&MediaData::nRecycledType)},
       {"coating", -1, 6, field(&MediaData::nCoatingType)},
       {"coated sides", -1, 4, field(&MediaData::nSidesCoated)},
       {"surface", 0, 4, field(&MediaData::nFinish)},
       {"grain", 0, 3, field(&MediaData::nGrain)},
       {"type, everything else set", -1, 14, everything}});
}

}  // namespace
}  // namespace zarvo
