// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Watermark/PageTurn.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace zarvo {
namespace {

/// The linear part of a matrix; where things are does not matter here.
struct Axes {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
};

Axes operator*(const Axes& inner, const Axes& outer) {
  return {inner.a * outer.a + inner.b * outer.c, inner.a * outer.b + inner.b * outer.d,
          inner.c * outer.a + inner.d * outer.c, inner.c * outer.b + inner.d * outer.d};
}

/// The quarter turns of a line of text, or nothing when it stands askew.
std::optional<int> TurnOf(const Axes& axes) {
  constexpr double kAskew = 0.2;  // of a right angle's tangent
  const double x = std::fabs(axes.a);
  const double y = std::fabs(axes.b);
  if (x == 0 && y == 0) return std::nullopt;
  if (y < kAskew * x) return axes.a > 0 ? 0 : 2;
  if (x < kAskew * y) return axes.b > 0 ? 1 : 3;
  return std::nullopt;
}

/// By which a text editor's pages are turned.
constexpr std::string_view kEditorTurn = "sl";

/// What paints, under the names that converters give it.
constexpr std::array<std::string_view, 9> kPaint = {"S",  "s",      "f",    "f*",    "B",
                                                    "B*", "stroke", "fill", "eofill"};

using Votes = std::array<std::size_t, 4>;

std::optional<int> Winner(const Votes& votes) {
  const auto* best = std::max_element(votes.begin(), votes.end());
  if (*best == 0) return std::nullopt;
  return static_cast<int>(best - votes.begin());
}

bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r') || c == '\0'; }
bool IsDelimiter(char c) {
  return std::string_view("()<>[]{}/%").find(c) != std::string_view::npos;
}

class HeadReader {
 public:
  explicit HeadReader(std::string_view text) : text_(text) {}

  PageLook Read() {
    while (at_ < text_.size() && !page_ended_ && text_seen_ < kEnoughText) Step();
    return {Turn(), pictures_, painted_ && !text_ahead_ && text_seen_ == 0};
  }

 private:
  static constexpr std::size_t kDeepest = 100;  // of saved states; deeper ones are not told apart
  static constexpr std::size_t kOperands = 6;
  static constexpr std::size_t kShortestPictureLine = 40;
  /// Bytes. Programs that save and restore under names of their own are not understood for long.
  static constexpr std::size_t kEnoughText = 250;

  std::optional<int> Turn() const {
    if (const std::optional<int> told = Winner(text_votes_)) return told;
    // A program whose operators have other names still is drawn under some matrix.
    const std::optional<int> drawn = Winner(votes_);
    return drawn.value_or(0) != 0 ? drawn : comment_;
  }

  void Step() {
    const char c = text_[at_];
    if (IsSpace(c)) {
      ++at_;
    } else if (c == '%') {
      ReadComment();
    } else if (c == '(') {
      SkipString();
    } else if (c == '{') {
      SkipProcedure();
    } else if (text_.substr(at_, 2) == "<<") {
      at_ += 2;
    } else if (c == '<') {
      const std::size_t end = text_.find('>', at_);
      shown_ += (std::min(end, text_.size()) - at_) / 2;
      at_ = end == text_.npos ? text_.size() : end + 1;
    } else if (IsDelimiter(c) && c != '/') {
      ++at_;
    } else {
      ReadWord();
    }
  }

  void ReadComment() {
    const std::size_t end = std::min(text_.find_first_of("\r\n", at_), text_.size());
    const std::string_view line = text_.substr(at_, end - at_);
    constexpr std::string_view kOrientation = "%%PageOrientation:";
    if (line.starts_with("%%Page:") || line.starts_with("%%Trailer")) page_ended_ = true;
    if (line.starts_with(kOrientation)) comment_ = TurnOfComment(line.substr(kOrientation.size()));
    at_ = end;
  }

  void SkipString() {
    text_ahead_ = text_ahead_ || !named_;
    int depth = 1;
    for (++at_; at_ < text_.size(); ++at_, ++shown_) {
      if (text_[at_] == '\\') {
        ++at_;
        // The head may end anywhere, so here too.
        for (int digit = 1; digit < 3 && IsOctal(at_) && IsOctal(at_ + 1); ++digit) ++at_;
      } else if (text_[at_] == '(') {
        ++depth;
      } else if (text_[at_] == ')' && --depth == 0) {
        ++at_;
        return;
      }
    }
  }

  bool IsOctal(std::size_t at) const {
    return at < text_.size() && text_[at] >= '0' && text_[at] <= '7';
  }

  void SkipProcedure() {
    int depth = 0;
    while (at_ < text_.size()) {
      const char c = text_[at_];
      if (c == '(') {
        SkipString();
        continue;
      }
      if (c == '{') ++depth;
      ++at_;
      if (c == '}' && --depth == 0) return;
    }
  }

  void ReadWord() {
    std::size_t end = at_ + 1;
    while (end < text_.size() && !IsSpace(text_[end]) && !IsDelimiter(text_[end])) ++end;
    const std::string_view word = text_.substr(at_, end - at_);
    at_ = end;
    named_ = word[0] == '/';
    if (named_) return;
    double value = 0;
    const char* last = word.data() + word.size();
    if (std::from_chars(word.data(), last, value).ptr == last && std::isfinite(value)) {
      std::rotate(operands_.begin(), operands_.begin() + 1, operands_.end());
      operands_.back() = value;
      count_ = std::min(count_ + 1, kOperands);
      return;
    }
    Operate(word);
    count_ = 0;
    if (const std::optional<int> turn = TurnOf(page_)) ++votes_[static_cast<std::size_t>(*turn)];
  }

  void Operate(std::string_view name) {
    const std::array<double, kOperands>& o = operands_;
    const bool matrix = count_ == kOperands;
    if ((name == "cm" || name == "concat") && matrix) {
      page_ = Axes{o[0], o[1], o[2], o[3]} * page_;
    } else if ((name == "rotate" || name == kEditorTurn) && count_ > 0) {
      const double angle = (name == kEditorTurn ? 90 : std::remainder(o[5], 360)) * M_PI / 180;
      page_ = Axes{std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle)} * page_;
    } else if (name == "scale" && count_ > 1) {
      page_ = Axes{o[4], 0, 0, o[5]} * page_;
    } else if (name == "Tm" && matrix) {
      line_ = Axes{o[0], o[1], o[2], o[3]};
      jumped_ = Axes{jumped_.a + o[4] - x_, jumped_.b + o[5] - y_, 0, 0};
      x_ = o[4];
      y_ = o[5];
    } else if (name == "BT") {
      line_ = Axes{};
    } else if (name == "q" || name == "gsave" || name == "save" || name == "_S") {
      if (saved_.size() < kDeepest) saved_.push_back(page_);
    } else if (name == "Q" || name == "grestore" || name == "restore" || name == "_R") {
      if (saved_.empty()) return;
      page_ = saved_.back();
      saved_.pop_back();
    } else if (name == "TL" && count_ > 0) {
      leading_ = o[5];
    } else if (name == "'") {
      moved_ = Axes{0, -leading_, 0, 0};
      Show();
    } else if ((name == "Td" || name == "TD") && count_ > 1) {
      moved_ = Axes{o[4], o[5], 0, 0};
    } else if (name.starts_with("Tj")) {
      Show(count_ > 1);
    } else if (name.starts_with("TJ") ||
               (name.find("show") != name.npos && name.find("page") == name.npos)) {
      Show();
    } else if (name == "BI" || name.starts_with("pdfIm") || name.ends_with("image") ||
               name.ends_with("imagemask")) {
      pictures_ += std::fabs(page_.a * page_.d - page_.b * page_.c);
      if (name != "BI") SkipPicture();
    } else if (name == "ID") {
      SkipPicture();
    } else if (std::find(kPaint.begin(), kPaint.end(), name) != kPaint.end()) {
      painted_ = true;
    }
  }

  /// A picture's bytes look like anything. What follows is one when it is no program text.
  void SkipPicture() {
    constexpr std::string_view kEnd = "~>";  // of what is encoded to base 85
    constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";
    const std::size_t start = text_.find_first_not_of(" \t\r\n", at_);
    if (start == text_.npos) return;
    const std::string_view line = text_.substr(start, text_.find_first_of("\r\n", start) - start);
    const bool is_word = line.size() < kShortestPictureLine || line.find(' ') != line.npos;
    if (is_word || line.find_first_not_of(kHexDigits) == line.npos) return;
    const std::size_t end = text_.find(kEnd, start);
    at_ = end == text_.npos ? text_.size() : end + kEnd.size();
  }

  /// Letters that were turned into pictures stand upright by themselves, each at a place of its
  /// own: there only the way from one to the next shows where the text runs. Some converters tell
  /// that way with each letter; text in columns goes downwards and is no turn.
  void Show(bool advances = false) {
    Axes along = line_;
    if (advances) {
      if (operands_[5] >= 0) along = Axes{operands_[4], operands_[5], 0, 0} * line_;
    } else if (shown_ == 1) {
      const Axes moved = moved_ * line_;
      along = Axes{moved.a + jumped_.a, moved.b + jumped_.b, 0, 0};
    }
    if (const std::optional<int> turn = TurnOf(along * page_))
      text_votes_[static_cast<std::size_t>(*turn)] += shown_;
    text_seen_ += shown_;
    shown_ = 0;
    moved_ = jumped_ = Axes{0, 0, 0, 0};
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool page_ended_ = false;
  std::optional<int> comment_;

  std::array<double, kOperands> operands_{};  // the last ones, the latest at the end
  std::size_t count_ = 0;                     // of those that the next operator can take
  std::size_t shown_ = 0;                     // bytes of strings since text was shown last,
  std::size_t text_seen_ = 0;                 // and those before
  Axes page_;
  Axes line_;                // of text, within the page
  Axes moved_{0, 0, 0, 0};   // since text was shown last: only its a and b; within the line,
  Axes jumped_{0, 0, 0, 0};  // and from line to line,
  double x_ = 0;             // which began there
  double y_ = 0;
  double leading_ = 0;
  std::vector<Axes> saved_;
  Votes text_votes_{};  // by bytes of text
  Votes votes_{};       // by words of the program
  double pictures_ = 0;
  bool painted_ = false;
  bool named_ = false;       // the last word is a name; a string next to it is an entry's value
  bool text_ahead_ = false;  // that may be shown under a name that is not known here
};

}  // namespace

PageLook LookAtPage(std::string_view head) { return HeadReader(head.substr(0, kPageHead)).Read(); }

std::optional<int> TurnOfComment(std::string_view value) {
  if (value.find("Landscape") != value.npos) return kLandscape;
  return std::nullopt;
}

}  // namespace zarvo
