// SPDX-License-Identifier: Apache-2.0
#include "Tools/zarvo/job/DocumentFacts.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>

#include "Platform/Phrase.h"
#include "Platform/Text.h"

namespace zarvo::tool {
namespace {

constexpr std::size_t kLongestName = 200;

/// Whether the line is the header of a document, not of a font or a procedure set within one.
bool IsDocumentHeader(std::string_view line) {
  return line.starts_with("%!PS-Adobe-") && !Contains(line, " Resource-");
}

/// The text of a structure comment, without blanks and the brackets that may be around it.
std::string CommentText(std::string_view line) {
  line.remove_prefix(std::min(line.find(':') + 1, line.size()));
  line = WithoutLineEnd(line);
  while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
  while (!line.empty() && line.back() == ' ') line.remove_suffix(1);
  if (line.size() > 1 && line.front() == '(' && line.back() == ')')
    line = line.substr(1, line.size() - 2);
  return std::string(line.substr(0, kLongestName));
}

/// The text of "(TEXT) show" or of "... (TEXT) def ...".
std::string ShownText(std::string_view line, std::string_view end) {
  const std::size_t open = line.find('(');
  const std::size_t close = line.rfind(end);
  if (open == std::string_view::npos || close == std::string_view::npos || close <= open) return "";
  return std::string(line.substr(open + 1, std::min(close - open - 1, kLongestName)));
}

/// Whether all of the line is `numbers` numbers and the operator, with one blank between them.
bool IsOperator(std::string_view line, std::size_t numbers, std::string_view name) {
  if (!line.ends_with(name)) return false;
  line.remove_suffix(name.size());
  if (line.find_first_not_of("0123456789.- ") != std::string_view::npos) return false;
  return static_cast<std::size_t>(std::count(line.begin(), line.end(), ' ')) == numbers;
}

char KindOf(std::string_view line) {
  if (IsOperator(line, 3, "setrgbcolor")) return 'c';
  if (IsOperator(line, 2, "moveto")) return 'p';
  if (IsOperator(line, 1, "rotate")) return 'a';
  return line.starts_with('/') && line.ends_with(" selectfont") ? 'f' : '-';
}

std::uint64_t NumberOf(std::string_view text) {
  std::uint64_t number = 0;
  const std::size_t digit = std::min(text.find_first_not_of(' '), text.size());
  std::from_chars(text.data() + digit, text.data() + text.size(), number);
  return number;
}

}  // namespace

bool PostScriptFacts::HasMarkBehind() const {
  return std::any_of(marks.begin(), marks.end(),
                     [](const MarkFacts& mark) { return mark.place == MarkFacts::Place::kBehind; });
}

std::vector<std::string> MarkWords(const PostScriptFacts& facts) {
  std::vector<std::string> list;
  for (const MarkFacts& mark : facts.marks) {
    std::string words = mark.image ? Phrase("an image") : "\"" + mark.text + "\"";
    switch (mark.place) {
      case MarkFacts::Place::kBehind:
        words += ", " + Phrase("behind the page");
        break;
      case MarkFacts::Place::kSeeThrough:
        words += ", " + Phrase("over the page, which shows through");
        break;
      case MarkFacts::Place::kOver:
        words += ", " + Phrase("over the page");
        break;
      case MarkFacts::Place::kUnknown:
        break;
    }
    if (facts.marks_on_first_page) words += ", " + Phrase("on the first page only");
    list.push_back(std::move(words));
  }
  return list;
}

void DocumentReader::Line(std::string_view line, std::uint64_t offset) {
  if (line.starts_with("%%EndDocument") && depth_ > 0) --depth_;
  if (depth_ == 0) {
    if (line.starts_with("%")) {
      Comment(line);
    } else {
      Hooks(WithoutLineEnd(line), offset);
      MarkInPage(WithoutLineEnd(line));
    }
    if (Contains(line, "/")) {
      Setting(line);
      PageSize(line);
    }
  }
  if (line.starts_with("%%BeginDocument")) ++depth_;
}

void DocumentReader::Comment(std::string_view line) {
  PostScriptFacts& facts = *facts_;
  if (IsDocumentHeader(line)) {
    in_header_ = ++facts.documents == 1;
    facts.ended = false;
  } else if (line.starts_with("%%Page:")) {
    ++facts.pages;
    in_header_ = false;
  } else if (line.starts_with("%%Pages:") && facts.announced == 0) {
    facts.announced = NumberOf(line.substr(line.find(':') + 1));
  } else if (const std::size_t copies = line.find("NumCopies ");
             copies != line.npos && Contains(line, "BeginNonPPDFeature:")) {
    // As the spooler's own filter has it, whose code puts the number on a line without the name.
    SetCopies(NumberOf(line.substr(copies + std::strlen("NumCopies "))));
  } else if (line.starts_with("%%EOF")) {
    facts.ended = true;
  } else if (line.starts_with("%%ZRVPagelet:")) {
    facts.booklet = true;
  } else if (line.starts_with("%%EndComments")) {
    in_header_ = false;
  } else if (in_header_ && line.starts_with("%%Title:") && facts.title.empty()) {
    facts.title = CommentText(line);
  } else if (in_header_ && line.starts_with("%%For:") && facts.owner.empty()) {
    facts.owner = CommentText(line);
  }
}

/// The part in which the filter hands the page hooks their drawings.
void DocumentReader::Hooks(std::string_view line, std::uint64_t offset) {
  if (line == "ZRVhooks begin") hooks_ = true;
  if (!hooks_) return;
  PostScriptFacts& facts = *facts_;
  if (line.ends_with(" array /picstr exch def")) image_ = true;
  if (line == "/flipx true def" || line == "/flipy true def") facts.mirrored = true;
  if (line == "/negative true def") facts.negative = true;
  if (line == "/firstonly true def") facts.marks_on_first_page = true;
  if (line == "ZRVinstall") {
    facts.hooks_at = offset;
    hooks_ = false;
  }
  using enum HookPart;
  if (line == "/back {" || line == "/front {") {
    hook_part_ = line == "/back {" ? kBack : kFront;
  } else if (line == "} def") {
    hook_part_ = kNone;
  } else if (hook_part_ != kNone) {
    const auto place = hook_part_ == kBack ? MarkFacts::Place::kBehind : MarkFacts::Place::kOver;
    if (line.ends_with(") show")) Add({place, false, ShownText(line, ") show")});
    if (image_ && line.starts_with("imageDict image")) Add({place, true, ""});
    if (image_ && line.starts_with("/imageHeight ")) Add({MarkFacts::Place::kSeeThrough, true, ""});
  }
}

void DocumentReader::MarkInPage(std::string_view line) {
  PostScriptFacts& facts = *facts_;
  if (line.starts_with("/OverlayForm <<")) {
    const std::size_t text = std::min(line.find("/TextData ("), line.size());
    Add({MarkFacts::Place::kSeeThrough, false,
         ShownText(line.substr(text, line.find(") def /Cos") + 5 - text), ") def")});
  } else if (!hooks_ && line.ends_with(") show")) {
    const std::string_view kinds(kinds_.data(), kinds_.size());
    if (kinds == "cpaf") Add({MarkFacts::Place::kBehind, false, ShownText(line, ") show")});
    if (kinds == "cfpa") Add({MarkFacts::Place::kOver, false, ShownText(line, ") show")});
  } else if (!hooks_ && line.starts_with("imageDict image grestore")) {
    // Behind or over the page: only its place in the page would tell.
    Add({MarkFacts::Place::kUnknown, true, ""});
  } else if (!hooks_ && line.starts_with("/imageHeight ") && Contains(line, "/imageWidth ")) {
    Add({MarkFacts::Place::kSeeThrough, true, ""});
  } else if (facts.booklet && line.ends_with(" Q7BBMi")) {
    // Of the two flags one turns the sheet and the other each page on it.
    facts.booklet_reversed = Contains(line, " true false ") || Contains(line, " false true ");
  } else if (line.starts_with("[{1 exch sub}/exec load dup currenttransfer")) {
    facts.negative = true;
  } else if (line.ends_with(" translate -1 1 scale") || line.ends_with(" translate 1 -1 scale")) {
    facts.mirrored =
        facts.mirrored || IsOperator(line, 5, "scale") || Contains(line, ".0 translate");
  }
  std::rotate(kinds_.begin(), kinds_.begin() + 1, kinds_.end());
  kinds_.back() = KindOf(line);
}

void DocumentReader::Setting(std::string_view line) {
  PostScriptFacts& facts = *facts_;
  if (const std::size_t key = line.find("/Duplex "); key != std::string_view::npos)
    facts.two_sided = line.substr(key).starts_with("/Duplex true");
  for (const std::string_view name : {"/NumCopies ", "/#copies "}) {
    const std::size_t key = line.find(name);
    // Of several numbers the first is no count of copies, but how far the stack is rolled.
    if (key != line.npos && !Contains(line.substr(key), " roll"))
      SetCopies(NumberOf(line.substr(key + name.size())));
  }
}

void DocumentReader::SetCopies(std::uint64_t copies) {
  constexpr std::uint64_t kMost = 1'000'000;
  if (copies > 0) facts_->copies = static_cast<int>(std::min(copies, kMost));
}

void DocumentReader::Add(MarkFacts mark) {
  std::vector<MarkFacts>& marks = facts_->marks;
  if (marks.size() < kMaxMarks && std::find(marks.begin(), marks.end(), mark) == marks.end())
    marks.push_back(std::move(mark));
}

void DocumentReader::PageSize(std::string_view line) {
  constexpr std::string_view kKey = "/PageSize";
  const std::size_t key = line.find(kKey);
  if (key == std::string_view::npos) return;
  const std::size_t open = line.find_first_not_of(' ', key + kKey.size());
  if (open == std::string_view::npos || line[open] != '[') return;
  const char* end = line.data() + line.size();
  const auto number = [end](const char* from, double* value) {
    while (from < end && *from == ' ') ++from;
    return std::from_chars(from, end, *value).ptr;
  };
  double width = 0;
  double height = 0;
  number(number(line.data() + open + 1, &width), &height);
  constexpr double kLargest = 1e6;
  if (!(width > 0 && width < kLargest && height > 0 && height < kLargest)) return;
  auto& sizes = facts_->page_sizes;
  const std::pair size(static_cast<int>(width + 0.5), static_cast<int>(height + 0.5));
  if (sizes.contains(size) || sizes.size() < kMaxPageSizes) ++sizes[size];
}

}  // namespace zarvo::tool
