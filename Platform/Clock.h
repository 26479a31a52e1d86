// SPDX-License-Identifier: Apache-2.0
// Date and time as the job ticket counts them: seconds since 1904-01-01 00:00:00 local time.
#pragma once

#include <cstdint>

namespace zarvo {

constexpr std::int64_t kSecondsPerDay = 86400;

/// A broken-down count of seconds. `dayOfWeek` is 1 (Sunday) to 7, `dayOfYear` 1 to 366,
/// `weekOfYear` counts from 1, `pm` is 0 or 1, `era` 0 for years from 1 on and -1 before; the
/// `res` fields are 0.
struct LongDateRec {
  std::int16_t era, year, month, day, hour, minute, second, dayOfWeek, dayOfYear, weekOfYear, pm,
      res1, res2, res3;
};

/// A broken-down wall-clock time; `dayOfWeek` is 1 (Sunday) to 7.
struct DateTimeRec {
  std::int16_t year, month, day, hour, minute, second, dayOfWeek;
};

/// Breaks a 1904-based count down. It is a plain calendar count on the local clock: no time zone
/// or daylight-saving rule takes part. Years that a 16-bit field cannot hold are clamped to the
/// nearest one that it can.
LongDateRec LongSecondsToDate(std::int64_t seconds);

/// Where "now" comes from; tests bring their own.
class Clock {
 public:
  virtual ~Clock() = default;
  /// The current local time in seconds since 1904-01-01 00:00:00 local time.
  virtual std::int64_t LocalSeconds() const = 0;
};

/// The machine's clock in the time zone of the environment.
const Clock& SystemClock();

/// The clock's present time broken down.
DateTimeRec CurrentDateTime(const Clock& clock);

}  // namespace zarvo
