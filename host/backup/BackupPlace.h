// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// Of the folder that a person chose for the backups, in the app's user defaults: an absolute path; anything else is
/// none.
inline constexpr std::string_view backupFolderKey = "backups.folder";

/// Where the backups of a database go: into a folder beside it, or into one of the same name in the folder that the
/// person chose, so that two histories never rotate each other's. While the chosen one cannot be used, a stick that was
/// taken out, they go beside the database, and nothing is made where it was.
struct BackupPlace {
  std::filesystem::path usual = {};   ///< "mivo.sqlite.backups", beside the database
  std::filesystem::path chosen = {};  ///< "/media/stick"; empty where none was chosen
  std::error_code fault = {};         ///< what stands against the chosen one just now
  bool isOffered = false;             ///< whether one can be chosen: for the app's own history alone
  bool operator==(const BackupPlace&) const = default;

  /// The folder in force.
  std::filesystem::path folder() const { return chosen.empty() || fault ? usual : chosen / usual.filename(); }
};

/// "Backups cannot go to /media/stick at the moment (No such file or directory). They go to ... meanwhile.": where the
/// chosen folder cannot be used; empty where it can, or none was chosen.
std::string backupFaultText(const BackupPlace& place, const TextLookup& texts);

/// Where backups go now, and where those are that were made before.
std::string backupPlaceText(const BackupPlace& before, const BackupPlace& now, const TextLookup& texts);

}  // namespace mivo::host
