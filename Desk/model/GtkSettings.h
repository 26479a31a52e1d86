// SPDX-License-Identifier: Apache-2.0
// What GTK's print dialog hands to the command behind its button "Preview".
#pragma once

#include <string>

#include "Platform/Value.h"

namespace zarvo::desk {

struct GtkSettings {
  std::string queue;
  std::string title;
  Dictionary ticket;  ///< the dialog's choices, as options of the job
};

/// Reads the text of the settings file. Lines that mean nothing here are left out.
GtkSettings ReadGtkSettings(const std::string& text);

}  // namespace zarvo::desk
