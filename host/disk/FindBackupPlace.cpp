// SPDX-License-Identifier: MIT
#include "host/disk/FindBackupPlace.h"

#include <unistd.h>

#include <cerrno>
#include <optional>

#include "host/disk/DatabaseFile.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;

/// Why no file can be made in a folder, if so.
std::error_code faultOf(const fs::path& folder) {
  std::error_code unknown;
  if (fs::exists(folder, unknown) && !fs::is_directory(folder, unknown))
    return std::make_error_code(std::errc::not_a_directory);
  if (::access(folder.c_str(), W_OK | X_OK) != 0) return {errno, std::generic_category()};
  return {};
}

/// Whole, and without "/." and "/" at the end.
fs::path whole(const fs::path& folder) {
  const fs::path plain = fs::absolute(folder).lexically_normal();
  return plain.has_filename() ? plain : plain.parent_path();
}

}  // namespace

BackupFolder folderToRestore(const BackupPlace& place) {
  BackupFolder inForce{place.folder()};
  return inForce.backups().empty() ? BackupFolder{place.usual} : inForce;
}

BackupPlace backupPlace(const fs::path& database, const fs::path& setting) {
  BackupPlace place{.usual = backupFolder(database), .isOffered = database == ownDatabaseFile()};
  if (!place.isOffered || !setting.is_absolute()) return place;
  place.chosen = setting;
  place.fault = faultOf(setting);
  return place;
}

BackupPlace backupPlace(const fs::path& database, const UserDefaults& defaults) {
  return backupPlace(database, fs::path{defaults.text(backupFolderKey, "")});
}

tl::expected<BackupPlace, std::string> chooseBackupFolder(const fs::path& folder, const UserDefaults& defaults,
                                                          const TextLookup& texts) {
  const fs::path chosen = folder.empty() ? folder : whole(folder);
  if (const auto fault = chosen.empty() ? std::error_code{} : faultOf(chosen))
    return tl::unexpected{
        filledIn(texts.text("Backups cannot be kept in {1}: {2}"), {chosen.string(), fault.message()})};
  defaults.setValue(backupFolderKey,
                    chosen.empty() ? std::nullopt : std::optional<UserDefaults::Value>{chosen.string()});
  return backupPlace(ownDatabaseFile(), chosen);
}

}  // namespace mivo::host
