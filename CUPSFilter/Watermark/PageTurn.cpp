// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/Watermark/PageTurn.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "CUPSFilter/Watermark/PageProgram.h"

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

class HeadReader {
 public:
  explicit HeadReader(std::string_view text) : text_(text) {}

  /// Whether the page has upright text and no other, which is only asked of one that nothing turns:
  /// so all that comes ahead of its text can be left out.
  bool IsUpright() {
    at_ = FirstString();
    while (at_ < text_.size() && !page_ended_ && upright_ < kClearText) Step();
    return upright_ >= kClearText && text_votes_[1] + text_votes_[2] + text_votes_[3] == 0;
  }

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
  static constexpr std::size_t kClearText = 16;  // bytes; no mark that somebody added to a page

  /// The place of the first string, or the end where none begins before the page ends.
  std::size_t FirstString() const {
    std::string_view ahead = text_.substr(0, text_.find('('));
    ahead = ahead.substr(0, ahead.find('<'));
    const bool outside =
        ahead.find("%%Page:") == ahead.npos && ahead.find("%%Trailer") == ahead.npos;
    const std::size_t opened = ahead.rfind('{');
    const bool defines = opened != ahead.npos && ahead.find('}', opened) == ahead.npos;
    return outside && !defines ? ahead.size() : text_.size();
  }

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
    constexpr std::string_view kPageOrientation = "%%PageOrientation:";
    if (line.starts_with("%%Page:") || line.starts_with("%%Trailer")) page_ended_ = true;
    if (line.starts_with(kPageOrientation))
      comment_ = TurnOfComment(line.substr(kPageOrientation.size()));
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
    const char first = text_[at_];
    bool number = KindOf(first) == kNumeral && first != 'e' && first != 'E' && first != '+';
    std::size_t end = at_ + 1;
    for (; end < text_.size(); ++end) {
      const unsigned char kind = KindOf(text_[end]);
      if (kind == kSpace || kind == kDelimiter) break;
      number = number && kind == kNumeral;
    }
    const std::string_view word = text_.substr(at_, end - at_);
    at_ = end;
    named_ = first == '/';
    if (named_) return;
    if (number) {  // most words are, and few of them matter
      operands_[written_++ % kOperands] = word;
      count_ = std::min(count_ + 1, kOperands);
      return;
    }
    Operate(word);
    count_ = 0;
    if (page_turn_) ++votes_[static_cast<std::size_t>(*page_turn_)];
  }

  /// The operands of the next operator, the latest one as 0.
  double Operand(std::size_t back) const {
    return ValueOf(operands_[(written_ + kOperands - 1 - back) % kOperands]);
  }

  Axes Matrix() const { return {Operand(5), Operand(4), Operand(3), Operand(2)}; }

  void SetPage(const Axes& axes) {
    page_ = axes;
    page_turn_ = TurnOf(axes);
  }

  void Operate(std::string_view name) {
    switch (Packed(name)) {
      case Packed("cm"):
      case Packed("concat"):
        if (count_ == kOperands) SetPage(Matrix() * page_);
        break;
      case Packed("rotate"):
        if (count_ > 0) Rotate(std::remainder(Operand(0), 360));
        break;
      case Packed(kEditorTurn):
        // Drivers call the width of lines so, which is not negative.
        if (count_ > 0 && Operand(0) < 0) Rotate(90);
        break;
      case Packed("scale"):
        if (count_ > 1) SetPage(Axes{Operand(1), 0, 0, Operand(0)} * page_);
        break;
      case Packed("Tm"):
        if (count_ == kOperands) BeginLine();
        break;
      case Packed("BT"):
        line_ = Axes{};
        break;
      case Packed("q"):
      case Packed("gsave"):
      case Packed("save"):
      case Packed("_S"):
        if (saved_.size() < kDeepest) saved_.push_back(page_);
        break;
      case Packed("Q"):
      case Packed("grestore"):
      case Packed("restore"):
      case Packed("_R"):
        if (saved_.empty()) break;
        SetPage(saved_.back());
        saved_.pop_back();
        break;
      case Packed("TL"):
        if (count_ > 0) leading_ = Operand(0);
        break;
      case Packed("'"):
        moved_ = Axes{0, -leading_, 0, 0};
        Show();
        break;
      case Packed("Td"):
      case Packed("TD"):
        if (count_ > 1) moved_ = Axes{Operand(1), Operand(0), 0, 0};
        break;
      case Packed("BI"):
        AddPicture();
        break;
      case Packed("ID"):
        SkipPicture();
        break;
      // What paints, under the names that converters give it.
      case Packed("S"):
      case Packed("s"):
      case Packed("f"):
      case Packed("f*"):
      case Packed("B"):
      case Packed("B*"):
      case Packed("stroke"):
      case Packed("fill"):
      case Packed("eofill"):
        painted_ = true;
        break;
      default:
        OperateLike(name);
    }
  }

  /// Of operators that have names of many kinds.
  void OperateLike(std::string_view name) {
    if (name.starts_with("Tj")) {
      Show(count_ > 1);
    } else if (name.starts_with("TJ") || (name.size() > 3 && name.find("show") != name.npos &&
                                          name.find("page") == name.npos)) {
      Show();
    } else if (name.starts_with("pdfIm") || name.ends_with("image") ||
               name.ends_with("imagemask")) {
      AddPicture();
      SkipPicture();
    } else if (name == kDvipsTurn) {
      Rotate(-90);
    }
  }

  void Rotate(double degrees) {
    const double angle = degrees * M_PI / 180;
    SetPage(Axes{std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle)} * page_);
  }

  void BeginLine() {
    line_ = Matrix();
    const double x = Operand(1);
    const double y = Operand(0);
    jumped_ = Axes{jumped_.a + x - x_, jumped_.b + y - y_, 0, 0};
    x_ = x;
    y_ = y;
  }

  void AddPicture() { pictures_ += std::fabs(page_.a * page_.d - page_.b * page_.c); }

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
    const bool letter = !advances && shown_ == 1;
    if (advances) {
      const double up = Operand(0);
      if (up >= 0) along = Axes{Operand(1), up, 0, 0} * line_;
    } else if (letter) {
      const Axes moved = moved_ * line_;
      along = Axes{moved.a + jumped_.a, moved.b + jumped_.b, 0, 0};
    }
    if (const std::optional<int> turn = TurnOf(along * page_)) {
      text_votes_[static_cast<std::size_t>(*turn)] += shown_;
      if (*turn == 0 && !letter) upright_ += shown_;
    }
    text_seen_ += shown_;
    shown_ = 0;
    moved_ = jumped_ = Axes{0, 0, 0, 0};
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool page_ended_ = false;
  std::optional<int> comment_;

  std::array<std::string_view, kOperands> operands_{};  // the last ones, in turn
  std::size_t written_ = 0;                             // of all
  std::size_t count_ = 0;                               // of those that the next operator can take
  std::size_t shown_ = 0;      // bytes of strings since text was shown last,
  std::size_t text_seen_ = 0;  // and those before,
  std::size_t upright_ = 0;    // those of them that are upright for sure
  Axes page_;
  std::optional<int> page_turn_ = 0;
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

PageLook LookAtPage(std::string_view head) {
  head = head.substr(0, kPageHead);
  // Most pages are upright from end to end, and most jobs have hundreds of them. Further on there
  // is enough text for any page.
  constexpr std::size_t kSearched = kPageHead / 2;
  constexpr std::size_t kFirstWords = 256;
  const bool turned = head.substr(0, kFirstWords).find(kDvipsTurn) != head.npos ||
                      MayTurn(head.substr(0, kSearched));
  if (!turned && HeadReader(head).IsUpright()) return {0, 0, false};
  return HeadReader(head).Read();
}

std::optional<int> TurnOfComment(std::string_view value) {
  if (value.find("Landscape") != value.npos) return kLandscape;
  return std::nullopt;
}

}  // namespace zarvo
