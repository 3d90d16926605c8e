// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

#include "host/backup/Backup.h"
#include "host/history/History.h"
#include "host/history/Setting.h"
#include "host/text/BadRecord.h"
#include "mivo/model/Date.h"
#include "mivo/platform/Client.h"

namespace mivo::host {

/// Whatever keeps the files of backups. Members throw std::system_error, whose text names the file or the folder.
/// Thread: any.
class BackupFiles {
 public:
  virtual ~BackupFiles() = default;

  /// Of all files in a folder; none where it is not there.
  virtual std::vector<std::string> names(const std::filesystem::path& folder) const = 0;
  /// The records of a snapshot, or the first fault.
  virtual tl::expected<History, BadRecord> read(const std::filesystem::path& file) const = 0;
  /// Makes a file and its folder, whole or not at all. Refuses a name that is taken: `std::errc::file_exists`.
  virtual void write(const std::filesystem::path& file, std::string_view content) const = 0;
  /// What cannot be removed stays.
  virtual void remove(const std::filesystem::path& file) const = 0;
};

/// The backups of a folder: snapshots that carry the settings too. Other files in it are left alone. It is made with
/// the first backup.
///
/// Members throw std::system_error, whose text names the file or the folder. Thread: any; several programs may use one
/// folder at a time.
class BackupList {
 public:
  BackupList(std::filesystem::path place, Client<BackupFiles> kept)
      : folder{std::move(place)}, files{std::move(kept)} {}

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
  Client<BackupFiles> files;
};

/// Where the backups of a database usually are: beside it, "mivo.sqlite.backups".
std::filesystem::path backupFolder(const std::filesystem::path& database);

}  // namespace mivo::host
