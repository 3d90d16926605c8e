// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/backup/BackupList.h"
#include "host/data/DataFiles.h"
#include "host/database/Database.h"

namespace mivo::web {

/// Backups in the origin's private file system.
Client<host::BackupFiles> storedBackups(std::shared_ptr<const UUIDGenerator> ids);

/// Files in a browser: those that come were chosen and lie in the page, those that go are handed to the person, and
/// backups stay in the origin's private file system. Thread: the only one.
class BrowserFiles final : public host::DataFiles {
 public:
  struct Place {
    std::string database;                                             ///< its name
    std::function<std::shared_ptr<const adapters::TimeZone>()> zone;  ///< of dates without an offset
    std::function<std::vector<host::Setting>()> settings;             ///< that snapshots carry
    std::shared_ptr<const UUIDGenerator> ids;
    std::function<std::shared_ptr<const host::TypedDateWords>()> words;  ///< of dates that are typed
    /// The open history, of which all records are replaced by others; see `Database::replace`.
    std::function<host::HistoryChange(const host::History& records,
                                      const std::function<void(const host::History&)>& before)>
        replace = {};
  };

  explicit BrowserFiles(Place where);

  Read read(const std::vector<std::string>& paths, const host::ImportAnswers& answers,
            const std::function<void(double)>& progress, const StopToken& stop) const override;
  tl::expected<host::FileState, host::FileFault> state(const std::string& path) const override;
  void write(host::ExportedPart part, const host::History& history, const std::filesystem::path& file) const override;
  /// The page prints itself: this is an error.
  void print(const std::filesystem::path& file, TimeRange range, host::PrintedWeights weights) const override;
  host::BackupPlace backupPlace() const override;
  /// There is only one: this is an error.
  tl::expected<host::BackupPlace, std::string> chooseBackupFolder(const std::filesystem::path& folder,
                                                                  const TextLookup& texts) const override;
  std::vector<host::ListedBackup> backups(const std::filesystem::path& folder, bool areCounted) const override;
  std::optional<host::KeptBackup> backUp(const host::History& history, Date now) const override;
  tl::expected<host::Restored, host::BadRecord> restore(const std::filesystem::path& file, Date now) const override;

  host::BackupList backupList() const;
  /// Makes the backup of a day that has none yet; the history is asked for only then.
  void backUpWhereDue(const std::function<host::History()>& history, Date now) const;

 private:
  Place place;
};

}  // namespace mivo::web
