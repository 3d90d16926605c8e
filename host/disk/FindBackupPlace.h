// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <tl/expected.hpp>

#include "host/backup/BackupPlace.h"
#include "host/disk/BackupFolder.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// Where the backups of a database go. `setting` is what the user defaults hold under `backupFolderKey`. Costs two
/// looks at the chosen folder. Thread: any.
BackupPlace backupPlace(const std::filesystem::path& database, const std::filesystem::path& setting);
BackupPlace backupPlace(const std::filesystem::path& database, const UserDefaults& defaults);

/// The folder to go back to a backup from: the one in force, or the usual one while that has none yet. Throws
/// std::system_error.
BackupFolder folderToRestore(const BackupPlace& place);

/// Has the backups of the app's own history go into a folder from now on, or into the usual one where that is empty.
/// What was made before stays where it is. A folder that is not there or may not be written is refused in one sentence
/// in the user's language, and nothing was changed.
tl::expected<BackupPlace, std::string> chooseBackupFolder(const std::filesystem::path& folder,
                                                          const UserDefaults& defaults, const TextLookup& texts);

}  // namespace mivo::host
