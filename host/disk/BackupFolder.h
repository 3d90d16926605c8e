// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

#include "host/backup/Backup.h"
#include "host/history/History.h"
#include "host/history/Setting.h"
#include "host/text/BadRecord.h"
#include "mivo/model/Date.h"

namespace mivo::host {

/// A folder of backups: snapshots that carry the settings too, which only their owner may read. Other files in it are
/// left alone. It is made with the first backup.
///
/// Members throw std::system_error, whose text names the file or the folder. Thread: any; several programs may use one
/// folder at a time.
class BackupFolder {
 public:
  explicit BackupFolder(std::filesystem::path place) : folder{std::move(place)} {}

  const std::filesystem::path& path() const { return folder; }

  /// The newest first; none where there is no folder yet.
  std::vector<Backup> backups() const;

  /// Whether the day of `now`, in UTC, has no backup yet. Costs the listing of the folder.
  bool isDue(Date now) const;

  /// Sees to it that a history is kept: in the newest backup where that holds the same records, else in a new one,
  /// which is written whole or not at all and on disk when the call returns. Nothing for an empty history, which is not
  /// worth the place of another one. Costs reading and writing one backup.
  std::optional<KeptBackup> keep(const History& history, std::span<const Setting> settings, Date now) const;

  /// The same, and where a backup was made those go that need not stay: see `rotate`.
  std::optional<KeptBackup> keepAndRotate(const History& history, std::span<const Setting> settings, Date now) const;

  /// Removes the backups that `keptBackups` does not keep, but never `made`, the last one, which a clock that was set
  /// back may have given an old date; and what a killed program left half written on days before that.
  void rotate(const Backup& made) const;

 private:
  std::filesystem::path folder;
};

/// The records of a backup, or of any other snapshot; or the first fault.
tl::expected<History, BadRecord> readBackup(const std::filesystem::path& file);

/// Where the backups of a database usually are: beside it, "mivo.sqlite.backups". `backupPlace` says where they go.
std::filesystem::path backupFolder(const std::filesystem::path& database);

}  // namespace mivo::host
