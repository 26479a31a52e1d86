// SPDX-License-Identifier: Apache-2.0
#include "CUPSFilter/JobNotices.h"

#include "Platform/Log.h"

namespace zarvo {
namespace {

/// A job of a hundred thousand unknown options must not fill the log.
constexpr std::size_t kMostNotices = 50;

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

void JobNotices::Refuse(const std::string& text) const {
  LogLine("ERROR: %s%s", text.c_str(), notices_.empty() ? "" : (". " + Summary()).c_str());
  MarkRefused();
}

void JobNotices::MarkRefused() const {
  if (told_) LogLine("STATE: +%s", kRefusedState);
}

void JobNotices::Finish() const {
  if (notices_.size() > 1) LogLine("WARNING: %s", Summary().c_str());
}

std::string JobNotices::Summary() const {
  std::string text = kSummaryStart;
  for (std::size_t i = 0; i < notices_.size(); ++i)
    text += (i == 0 ? "(" : " (") + std::to_string(i + 1) + ") " + notices_[i];
  return text;
}

}  // namespace zarvo
