// SPDX-License-Identifier: Apache-2.0
#include "Platform/Clock.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>

namespace zarvo {
namespace {

namespace chr = std::chrono;

constexpr chr::sys_days kEpoch1904{chr::year{1904} / chr::January / 1};

std::int16_t ToInt16(std::int64_t value) { return static_cast<std::int16_t>(value); }

class MachineClock final : public Clock {
 public:
  std::int64_t LocalSeconds() const override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    const chr::sys_days day{chr::year{local.tm_year + 1900} /
                            chr::month{static_cast<unsigned>(local.tm_mon + 1)} /
                            chr::day{static_cast<unsigned>(local.tm_mday)}};
    return (day - kEpoch1904).count() * kSecondsPerDay + local.tm_hour * 3600 + local.tm_min * 60 +
           local.tm_sec;
  }
};

}  // namespace

LongDateRec LongSecondsToDate(std::int64_t seconds) {
  // Beyond these the year would not fit a 16-bit field.
  constexpr auto first =
      (chr::sys_days{chr::year{-32767} / chr::January / 1} - kEpoch1904).count() * kSecondsPerDay;
  constexpr auto last =
      (chr::sys_days{chr::year{32767} / chr::December / 31} - kEpoch1904).count() * kSecondsPerDay +
      kSecondsPerDay - 1;
  seconds = std::clamp<std::int64_t>(seconds, first, last);

  std::int64_t days = seconds / kSecondsPerDay;
  std::int64_t rest = seconds % kSecondsPerDay;
  if (rest < 0) {
    rest += kSecondsPerDay;
    --days;
  }
  const chr::sys_days day = kEpoch1904 + chr::days{days};
  const chr::year_month_day date{day};
  const auto day_of_year = (day - chr::sys_days{date.year() / chr::January / 1}).count() + 1;
  const auto day_of_week = static_cast<std::int64_t>(chr::weekday{day}.c_encoding()) + 1;

  LongDateRec record{};
  record.era = static_cast<std::int16_t>(static_cast<int>(date.year()) < 1 ? -1 : 0);
  record.year = ToInt16(static_cast<int>(date.year()));
  record.month = ToInt16(static_cast<unsigned>(date.month()));
  record.day = ToInt16(static_cast<unsigned>(date.day()));
  record.hour = ToInt16(rest / 3600);
  record.minute = ToInt16(rest / 60 % 60);
  record.second = ToInt16(rest % 60);
  record.dayOfWeek = ToInt16(day_of_week);
  record.dayOfYear = ToInt16(day_of_year);
  record.weekOfYear = ToInt16((day_of_year - 1) / 7 + 1);
  record.pm = static_cast<std::int16_t>(rest >= kSecondsPerDay / 2);
  return record;
}

const Clock& SystemClock() {
  static const MachineClock clock;
  return clock;
}

DateTimeRec CurrentDateTime(const Clock& clock) {
  const LongDateRec now = LongSecondsToDate(clock.LocalSeconds());
  return {now.year, now.month, now.day, now.hour, now.minute, now.second, now.dayOfWeek};
}

}  // namespace zarvo
