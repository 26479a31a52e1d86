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

  std::optional<int> Read() {
    while (at_ < text_.size() && !page_ended_) Step();
    if (const std::optional<int> told = Winner(text_votes_)) return told;
    // A program whose operators have other names still is drawn under some matrix.
    const std::optional<int> drawn = Winner(votes_);
    return drawn.value_or(0) != 0 ? drawn : comment_;
  }

 private:
  static constexpr std::size_t kDeepest = 100;  // of saved states; deeper ones are not told apart
  static constexpr std::size_t kOperands = 6;

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
    } else if (c == '<' && text_.substr(at_, 2) != "<<") {
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
    if (word[0] == '/') return;
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
    } else if (name == "rotate" && count_ > 0) {
      const double angle = std::remainder(o[5], 360) * M_PI / 180;
      page_ = Axes{std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle)} * page_;
    } else if (name == "scale" && count_ > 1) {
      page_ = Axes{o[4], 0, 0, o[5]} * page_;
    } else if (name == "Tm" && matrix) {
      line_ = Axes{o[0], o[1], o[2], o[3]};
    } else if (name == "BT") {
      line_ = Axes{};
    } else if (name == "q" || name == "gsave" || name == "save") {
      if (saved_.size() < kDeepest) saved_.push_back(page_);
    } else if (name == "Q" || name == "grestore" || name == "restore") {
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
    } else if (name.starts_with("Tj") || name.starts_with("TJ") ||
               (name.find("show") != name.npos && name.find("page") == name.npos)) {
      Show();
    }
  }

  /// Letters that were turned into pictures stand upright by themselves, each at a place of its
  /// own: there only the way from one to the next shows where the text runs.
  void Show() {
    const Axes along = shown_ == 1 ? moved_ : Axes{};
    if (const std::optional<int> turn = TurnOf(along * line_ * page_))
      text_votes_[static_cast<std::size_t>(*turn)] += shown_;
    shown_ = 0;
    moved_ = Axes{0, 0, 0, 0};
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool page_ended_ = false;
  std::optional<int> comment_;

  std::array<double, kOperands> operands_{};  // the last ones, the latest at the end
  std::size_t count_ = 0;                     // of those that the next operator can take
  std::size_t shown_ = 0;                     // bytes of strings since text was shown last
  Axes page_;
  Axes line_;               // of text, within the page
  Axes moved_{0, 0, 0, 0};  // since text was shown last: only its a and b
  double leading_ = 0;
  std::vector<Axes> saved_;
  Votes text_votes_{};  // by bytes of text
  Votes votes_{};       // by words of the program
};

}  // namespace

std::optional<int> FindPageTurn(std::string_view head) {
  return HeadReader(head.substr(0, kPageHead)).Read();
}

std::optional<int> TurnOfComment(std::string_view value) {
  if (value.find("Landscape") != value.npos) return kLandscape;
  return std::nullopt;
}

}  // namespace zarvo
