// SPDX-License-Identifier: Apache-2.0
// What is done to the sheets, as one choice: the ticket says it by a preset and several values of
// which the preset makes some count.
#pragma once

#include <cstdint>
#include <string>

#include "Platform/Value.h"

namespace zarvo::desk {

/// Codes of TicketNames.h; 0 is none.
struct Finishing {
  std::int32_t staple = 0;   ///< StapleCode
  std::int32_t punch = 0;    ///< PunchCode
  std::int32_t holes = 0;    ///< HoleCount
  std::int32_t fold = 0;     ///< FoldCode or ZFoldCode
  std::int32_t bind = 0;     ///< BindCode
  std::int32_t booklet = 0;  ///< BookletFinish

  bool operator==(const Finishing&) const = default;
};

/// What the ticket's finishing values come to, those that do not count left out.
Finishing FinishingOf(const Dictionary& ticket);

/// Whether there is a preset for it all together.
bool CanFinish(const Finishing& finishing);

/// Puts it into the ticket in place of what was there. One that CanFinish refuses is not put.
void PutFinishing(const Finishing& finishing, Dictionary* ticket);

}  // namespace zarvo::desk
