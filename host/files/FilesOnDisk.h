// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/data/DataFiles.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// The files around a database on this machine. Thread: any.
class FilesOnDisk final : public DataFiles {
 public:
  struct Place {
    std::filesystem::path database;
    std::function<std::shared_ptr<const adapters::TimeZone>()> zone;  ///< of dates without an offset
    std::function<std::vector<Setting>()> settings;                   ///< that snapshots carry
    std::shared_ptr<const UUIDGenerator> ids;
    std::function<std::shared_ptr<const TypedDateWords>()> words = {};  ///< of dates that are typed
    Client<UserDefaults> defaults;  ///< in which the folder of the backups is chosen
    /// Onto pages or into a picture, as the file's name ends.
    std::function<void(const std::filesystem::path& file, TimeRange range, PrintedWeights weights)> print = {};
  };

  explicit FilesOnDisk(Place where);

  /// See `readImportFiles`.
  Read read(const std::vector<std::string>& paths, const ImportAnswers& answers,
            const std::function<void(double)>& progress, const StopToken& stop) const override;
  tl::expected<FileState, FileFault> state(const std::string& path) const override;
  void write(ExportedPart part, const History& history, const std::filesystem::path& file) const override;
  void print(const std::filesystem::path& file, TimeRange range, PrintedWeights weights) const override;
  BackupPlace backupPlace() const override;
  /// See `host::chooseBackupFolder`.
  tl::expected<BackupPlace, std::string> chooseBackupFolder(const std::filesystem::path& folder,
                                                            const TextLookup& texts) const override;
  std::vector<ListedBackup> backups(const std::filesystem::path& folder, bool areCounted) const override;
  std::optional<KeptBackup> backUp(const History& history, Date now) const override;
  tl::expected<Restored, BadRecord> restore(const std::filesystem::path& file, Date now) const override;

 private:
  Place place;
};

/// How a file is now, or why it cannot be read: it is gone, is no file, or belongs to others. Thread: any.
tl::expected<FileState, FileFault> fileState(const std::string& path);

}  // namespace mivo::host
