// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "host/backup/BackupPlace.h"
#include "host/backup/Restore.h"
#include "host/data/CountText.h"
#include "host/data/ExportedPart.h"
#include "host/history/History.h"
#include "host/history/Setting.h"
#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/PlanImport.h"
#include "host/place/TypedDates.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/UUIDGenerator.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// What a person answers where files do not say it themselves.
struct ImportAnswers {
  std::optional<WeightUnit> weightUnit = {};
  std::optional<DateOrder> dateOrder = {};
  bool operator==(const ImportAnswers&) const = default;
};

/// A backup as it is listed.
struct ListedBackup {
  Backup backup;
  std::optional<RecordCounts> counts = {};  ///< nothing while it is not read
  std::optional<BadRecord> fault = {};      ///< why it cannot be read
  bool operator==(const ListedBackup&) const = default;
};

/// The files around a history: those that are brought along, those that take it out, and its backups. Members read and
/// write disks and are called from tasks; they throw std::system_error and DatabaseError, whose texts name the file.
/// Thread: any.
class DataFiles {
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
  using Read = tl::expected<std::vector<ImportedFile>, ImportFault>;

  explicit DataFiles(Place where) : place{std::move(where)} {}

  /// See `readImportFiles`; `progress` gets from 0 to 1 over all files.
  Read read(const std::vector<std::string>& paths, const ImportAnswers& answers,
            const std::function<void(double)>& progress, const std::stop_token& stop) const;
  /// Past fasts of typed lines; see `readSaidFasts`. Asks for the words on the thread that it is called from.
  ImportedFile readLines(std::string_view text, std::int64_t goalSeconds, Date now) const;
  ImportPlan plan(const History& present, const std::vector<ImportedFile>& files) const;

  /// The records as a snapshot or a table. The file is written whole or not at all; one that is there is replaced.
  void write(ExportedPart part, const History& history, const std::filesystem::path& file) const;

  /// The statistics, as `write` does; throws std::runtime_error, too.
  void print(const std::filesystem::path& file, TimeRange range, PrintedWeights weights) const {
    place.print(file, range, weights);
  }

  BackupPlace backupPlace() const { return host::backupPlace(place.database, *place.defaults); }
  /// Of the app's own history: see `host::chooseBackupFolder`.
  tl::expected<BackupPlace, std::string> chooseBackupFolder(const std::filesystem::path& folder,
                                                            const TextLookup& texts) const {
    return host::chooseBackupFolder(folder, *place.defaults, texts);
  }
  /// Those of a folder, the newest first; their records are read and counted where that is asked for.
  std::vector<ListedBackup> backups(const BackupFolder& folder, bool areCounted) const;
  std::optional<KeptBackup> backUp(const History& history, Date now) const;
  /// The file's records take the place of all there are, or the fault of the file.
  tl::expected<Restored, BadRecord> restore(const std::filesystem::path& file, Date now) const;

 private:
  Place place;
};

}  // namespace mivo::host
