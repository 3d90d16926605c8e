// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

#include "host/fasting/HistoryChange.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// A backup, by its file; `date` is what the name says.
struct Backup {
  std::filesystem::path file;
  Date date;
  bool operator==(const Backup&) const = default;
};

/// The backup that holds a state of the history, and whether it was made for that.
struct KeptBackup {
  Backup backup;
  bool isNew = false;
  bool operator==(const KeptBackup&) const = default;
};

/// What has become of the state before a backup was gone back to.
struct Restored {
  std::optional<KeptBackup> before = {};               ///< the backup that holds it; nothing where it had no records
  std::optional<std::filesystem::path> setAside = {};  ///< where the database is kept that was damaged
  HistoryChange change = {};                           ///< what was done; nothing of a database that was damaged
  bool isChanged = true;                               ///< false where the database had these records already
};

}  // namespace mivo::host
