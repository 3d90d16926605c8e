// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <tl/expected.hpp>

#include "host/backup/BackupFolder.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/UserDefaults.h"

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

  /// The one in force.
  BackupFolder folder() const;

  /// The one to go back to a backup from: the one in force, or the usual one while that has none yet. Throws
  /// std::system_error.
  BackupFolder folderToRestore() const;
};

/// `setting` is what the user defaults hold under `backupFolderKey`. Costs two looks at the chosen folder. Thread: any.
BackupPlace backupPlace(const std::filesystem::path& database, const std::filesystem::path& setting);
BackupPlace backupPlace(const std::filesystem::path& database, const UserDefaults& defaults);

/// Has the backups of the app's own history go into a folder from now on, or into the usual one where that is empty.
/// What was made before stays where it is. A folder that is not there or may not be written is refused in one sentence
/// in the user's language, and nothing was changed.
tl::expected<BackupPlace, std::string> chooseBackupFolder(const std::filesystem::path& folder,
                                                          const UserDefaults& defaults, const TextLookup& texts);

/// "Backups cannot go to /media/stick at the moment (No such file or directory). They go to ... meanwhile.": where the
/// chosen folder cannot be used; empty where it can, or none was chosen.
std::string backupFaultText(const BackupPlace& place, const TextLookup& texts);

/// Where backups go now, and where those are that were made before.
std::string backupPlaceText(const BackupPlace& before, const BackupPlace& now, const TextLookup& texts);

}  // namespace mivo::host
