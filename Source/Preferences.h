// SPDX-License-Identifier: Apache-2.0
// The shared data files and the user's preferences: where they are, reading and writing. All are
// property lists.
//
// The shared files are in the folder "Zarvo" of the machine-wide data root: the environment
// variable ZARVO_APPLICATION_SUPPORT, or the build's ZARVO_DATA_ROOT. The user's files are in
// XDG_CONFIG_HOME, or ~/.config. A file name is one path component; with any other name every
// function here fails.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Value.h"

namespace zarvo {

/// The path of a shared data file, which need not exist. Creates the "Zarvo" folder when it is
/// missing. Nothing when the data root is missing or the folder cannot be made.
std::optional<std::string> CopyPreferenceFileURL(std::string_view file_name);

/// The content of a shared data file. Nothing when it cannot be read (logged unless it is merely
/// missing) or is damaged (logged).
std::optional<Value> CopyXMLData(std::string_view file_name);

enum class MissingFile { kStartEmpty, kDoNothing };

/// Reads a shared data file, lets `change` alter its dictionary and writes it back as XML in one
/// piece; other writers are kept out meanwhile. `change` returns false to leave the file as it is.
/// A missing file is treated as `missing` says. A damaged one is kept beside the new one, as
/// FILE_NAME.damaged, when a new one is started, else left alone. Returns true when the file was
/// written; else errno tells why, where the system did: EAGAIN when another program keeps the files
/// locked for ten seconds.
bool ChangeSharedFile(std::string_view file_name, MissingFile missing,
                      const std::function<bool(Dictionary&)>& change);

/// The user's preferences in that file; an empty dictionary when the file is missing, unreadable
/// or damaged; nothing only when there is no preferences folder and none can be made.
std::optional<Dictionary> CopyUserPreferences(std::string_view file_name);

/// Writes a property list as XML to the user's file; a new one is readable by the user only.
/// Returns false when that fails; a failed write is logged with its error number.
bool WriteUserPreferences(std::string_view file_name, const Value& preferences);

}  // namespace zarvo
