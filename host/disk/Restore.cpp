// SPDX-License-Identifier: MIT
#include "host/disk/Restore.h"

#include "host/disk/DatabaseFile.h"

namespace mivo::host {

Restored restore(const std::filesystem::path& database, const History& records, const BackupFolder& folder,
                 std::span<const Setting> settings, Date now) {
  Restored restored;
  try {
    const auto keep = [&](const History& present) { restored.before = folder.keep(present, settings, now); };
    restored.change = openDatabase(database).replace(records, keep);
    restored.isChanged = !restored.change.isEmpty();
  } catch (const DatabaseError& error) {
    if (error.kind != DatabaseError::Kind::damaged) throw;
    restored.setAside = replaceDamaged(database, records);
  }
  return restored;
}

}  // namespace mivo::host
