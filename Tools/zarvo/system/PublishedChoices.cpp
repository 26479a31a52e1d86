// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/system/PublishedChoices.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

#include "Platform/AtomicFile.h"
#include "Tools/zarvo/Command.h"
#include "Tools/zarvo/system/Queues.h"
#include "Tools/zarvo/system/Run.h"

namespace zarvo::tool {
namespace {

constexpr std::string_view kMark = "*% published by zarvo: ";
/// The longest keyword that a PPD may have.
constexpr std::size_t kLongestKeyword = 40;

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

/// A keyword for the title that no other choice has; of a title that is meant as one, with its
/// punctuation.
std::string KeywordOf(const std::string& title, bool is_keyword,
                      const std::vector<std::string>& taken,
                      const std::vector<std::string>& reserved) {
  std::string stem;
  for (const char c : title)
    if ((std::isalnum(static_cast<unsigned char>(c)) != 0 ||
         (is_keyword && (c == '-' || c == '_' || c == '.'))) &&
        stem.size() < kLongestKeyword - 4)
      stem += c;
  if (stem.empty()) stem = "Choice";
  std::string keyword = stem;
  const auto is_same = [&](const std::string& other) {
    return strcasecmp(other.c_str(), keyword.c_str()) == 0;
  };
  const auto is_taken = [&] {
    return std::any_of(taken.begin(), taken.end(), is_same) ||
           (keyword != title && std::any_of(reserved.begin(), reserved.end(), is_same));
  };
  for (int number = 2; is_taken() || strcasecmp(keyword.c_str(), "Custom") == 0; ++number)
    keyword = stem + std::to_string(number);
  return keyword;
}

/// A translation string: what would end it, and what the encoding cannot say, as hexadecimal
/// digits. The file's own texts are in Latin-1, those of its languages in UTF-8.
std::string Translation(const std::string& title, bool latin1) {
  std::string text;
  char digits[8];
  for (std::size_t i = 0; i < title.size(); ++i) {
    auto byte = static_cast<unsigned char>(title[i]);
    if (latin1 && byte >= 0x80) {
      if ((byte & 0xC0) == 0x80) continue;
      const bool fits = (byte == 0xC2 || byte == 0xC3) && i + 1 < title.size();
      byte = fits ? static_cast<unsigned char>((byte << 6) | (title[i + 1] & 0x3F)) : '?';
    }
    const bool plain = byte >= ' ' && byte < 0x7F && std::strchr(":<>/\"", byte) == nullptr;
    std::snprintf(digits, sizeof digits, plain ? "%c" : "<%02X>", byte);
    text += !latin1 && byte >= 0x80 ? std::string(1, title[i]) : std::string(digits);
  }
  return text;
}

struct Own {
  std::vector<std::string> keywords;
  std::vector<std::string> titles;
};

/// The choices that the PPD has for the option, from lines such as "*Watermark DRAFT/DRAFT: ".
Own OwnChoices(const std::vector<std::string_view>& lines, const std::string& option) {
  Own own;
  const std::string start = "*" + option + " ";
  for (const std::string_view line : lines) {
    const std::size_t colon = line.find(':');
    if (!line.starts_with(start) || colon == line.npos) continue;
    const std::string_view name = line.substr(start.size(), colon - start.size());
    const std::size_t slash = std::min(name.find('/'), name.size());
    own.keywords.emplace_back(name.substr(0, slash));
    own.titles.emplace_back(name.substr(std::min(slash + 1, name.size())));
  }
  return own;
}

std::vector<std::string> Languages(const std::vector<std::string_view>& lines) {
  std::vector<std::string> languages;
  constexpr std::string_view kStart = "*cupsLanguages: \"";
  for (const std::string_view line : lines) {
    if (!line.starts_with(kStart)) continue;
    std::string word;
    for (const char c : line.substr(kStart.size())) {
      if (c != ' ' && c != '"') {
        word += c;
      } else if (!word.empty()) {
        languages.push_back(std::exchange(word, {}));
      }
    }
  }
  return languages;
}

/// The spooler starts a job that is under way again from its first page when its queue gets a PPD,
/// and what has been printed of it would come twice.
Failure WaitForPrintedJob(const std::string& queue) {
  constexpr auto kPause = std::chrono::milliseconds(200);
  if (!IsPrinting(queue)) return "";
  Fail(queue, "prints a job; the queue is changed when that is done",
       "\"cupsdisable --hold " + queue + "\" keeps the next ones until \"cupsenable --release " +
           queue + "\"");
  while (IsPrinting(queue)) {
    if (NotedTermination() != 0) return "not changed";
    std::this_thread::sleep_for(kPause);
  }
  return "";
}

}  // namespace

Failure PublishChoices(std::string_view ppd, const std::string& option,
                       const std::vector<PublishedChoice>& choices, std::string* changed,
                       const std::vector<std::string>& reserved) {
  const std::string mark = std::string(kMark) + option;
  std::vector<std::string_view> kept;
  bool published = false;
  for (const std::string_view line : Lines(ppd)) {
    if (!std::exchange(published, line == mark) && !published) kept.push_back(line);
  }
  Own own = OwnChoices(kept, option);
  const std::vector<std::string> languages = Languages(kept);
  std::string inside, after;
  for (const PublishedChoice& choice : choices) {
    const bool wanted = !choice.keyword.empty();
    if (!wanted &&
        std::find(own.titles.begin(), own.titles.end(), choice.title) != own.titles.end())
      continue;
    const std::string keyword =
        KeywordOf(wanted ? choice.keyword : choice.title, wanted, own.keywords, reserved);
    own.keywords.push_back(keyword);
    own.titles.push_back(choice.title);
    const auto line = [&](const std::string& text) { return mark + "\n" + text + "\n"; };
    inside += line("*" + option + " " + keyword + "/" + Translation(choice.title, true) + ": \"\"");
    after += line("*ZRVTicket " + option + "." + keyword + ": \"" + choice.ticket + "\"");
    for (const std::string& attribute : choice.attributes)
      after += line("*" + attribute + " " + keyword + "/" + Translation(choice.title, true) +
                    ": \"*" + option + " " + keyword + "\"");
    for (const std::string& language : languages) {
      const auto title = choice.titles.find(language);
      const std::string text =
          Translation(title != choice.titles.end() ? title->second : choice.title, false);
      after += line("*" + language + "." + option + " " + keyword + "/" + text + ": \"\"");
      for (const std::string& attribute : choice.attributes)
        after += line("*" + language + "." + attribute + " " + keyword + "/" + text + ": \"\"");
    }
  }
  std::string result;
  bool found = false;
  for (const std::string_view line : kept) {
    const bool end = line.starts_with("*CloseUI: *" + option) &&
                     line.find_first_not_of(" \r", 11 + option.size()) == line.npos;
    if (end) result += inside;
    result += std::string(line) + "\n";
    found = found || end;
  }
  if (!found) return "its PPD has no option " + option;
  *changed = result + after;
  return "";
}

std::vector<std::string> PublishedLines(std::string_view ppd, const std::string& option) {
  const std::string mark = std::string(kMark) + option;
  std::vector<std::string> found;
  bool published = false;
  for (const std::string_view line : Lines(ppd)) {
    if (std::exchange(published, line == mark)) found.emplace_back(line);
  }
  return found;
}

std::string TicketValue(const std::string& value) {
  std::string text = "'";
  for (const char c : value) {
    if (c == '\'' || c == '\\') text += '\\';
    text += c;
    if (c == '%') text += '%';
  }
  return text + "'";
}

int InstallPpd(const std::string& queue, const std::string& ppd) {
  if (const Failure failure = WaitForPrintedJob(queue); !failure.empty())
    return Fail(queue, failure);
  const std::string program = FindProgram("lpadmin");
  if (program.empty())
    return Fail("lpadmin", "is not installed", "Install the package cups-client");
  const std::unique_ptr<ScratchFolder> scratch = MakeScratchFolder();
  if (!scratch) return kExitFailure;
  const std::string file = scratch->File("queue.ppd");
  if (!WriteFileAtomically(file, ppd, 0600)) return Fail(file, std::strerror(errno));
  ChildRun lpadmin;
  lpadmin.environment = ChildEnvironment(*scratch);
  lpadmin.arguments = {program, "-p", queue, "-P", file};
  std::string log;
  if (RunChild(lpadmin, &log)) return kExitOk;
  return Fail(queue, ErrorLines(log), "Only the spooler's administrators may change a queue");
}

}  // namespace zarvo::tool
