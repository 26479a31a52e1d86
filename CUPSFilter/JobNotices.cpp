// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JobNotices.h"

#include <algorithm>
#include <string_view>

#include "Platform/Log.h"
#include "Platform/Text.h"

namespace zarvo {
namespace {

/// A job of a hundred thousand unknown options must not fill the log.
constexpr std::size_t kMostNotices = 50;

constexpr std::size_t kNumber = 6;  // " (50) "

/// What is not done for one reason.
struct Group {
  std::string names;   ///< parted by commas
  std::string reason;  ///< behind the names; empty when the notice has none
};

/// Notices such as "finishings=trim: the finisher does not trim", those of one reason `together`.
std::vector<Group> ByReason(const std::vector<std::string>& notices, bool together) {
  std::vector<Group> groups;
  for (const std::string& notice : notices) {
    const std::size_t end = std::min(notice.find(": "), notice.size());
    const std::string name = notice.substr(0, end), reason = notice.substr(end);
    const auto same = std::find_if(groups.begin(), groups.end(), [&](const Group& group) {
      return together && !reason.empty() && group.reason == reason;
    });
    if (same != groups.end()) {
      same->names += ", " + name;
    } else {
      groups.push_back({name, reason});
    }
  }
  return groups;
}

/// "(1) names: reason (2) names: reason" in at most `room` bytes. Where not all reasons have a
/// place, the last number has the names of the rest.
std::string Numbered(const std::vector<Group>& groups, std::size_t room) {
  constexpr std::string_view kTail = ": see the log";
  std::size_t names = kNumber + kTail.size();
  for (const Group& group : groups) names += group.names.size() + 2;
  names = std::min(names, room / 2);
  std::string text;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const std::string entry = groups[i].names + groups[i].reason;
    const bool last = i + 1 == groups.size();
    text += (i == 0 ? "(" : " (") + std::to_string(i + 1) + ") ";
    if (text.size() + entry.size() + (last ? 0 : names) > room) {
      std::string rest = groups[i].names;
      while (++i < groups.size()) rest += ", " + groups[i].names;
      rest = Utf8Prefix(rest, room - std::min(room, text.size() + kTail.size()));
      return text + rest + std::string(kTail);
    }
    text += entry;
  }
  return text;
}

}  // namespace

void JobNotices::Begin() const {
  if (told_) LogLine("STATE: -%s,%s", kRefusedState, kNotAsAskedState);
}

void JobNotices::Add(const std::string& text) {
  if (!told_ || notices_.size() > kMostNotices) return;
  if (notices_.empty()) LogLine("STATE: +%s", kNotAsAskedState);
  notices_.push_back(notices_.size() < kMostNotices ? text : "more settings were dropped");
  LogLine("WARNING: %s", notices_.back().c_str());
}

void JobNotices::TellFailure(const std::string& text) const {
  constexpr std::string_view kAround = "ERROR: . ";
  const std::string summary = notices_.empty() ? "" : ". " + Summary(text.size() + kAround.size());
  LogLine("ERROR: %s%s", text.c_str(), summary.c_str());
}

void JobNotices::MarkRefused() const {
  if (told_) LogLine("STATE: +%s", kRefusedState);
}

void JobNotices::Finish() const {
  constexpr std::string_view kLevel = "WARNING: ";
  if (notices_.size() > 1) LogLine("WARNING: %s", Summary(kLevel.size()).c_str());
}

std::string JobNotices::Summary(std::size_t before) const {
  before = std::min(before + std::string_view(kSummaryStart).size(), kLongestLogLine);
  const std::size_t room = kLongestLogLine - before;
  std::size_t whole = 0;
  for (const std::string& notice : notices_) whole += kNumber + notice.size();
  return kSummaryStart + Numbered(ByReason(notices_, whole > room), room);
}

}  // namespace zarvo
