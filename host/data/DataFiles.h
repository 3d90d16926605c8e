// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "host/backup/Backup.h"
#include "host/backup/BackupPlace.h"
#include "host/data/CountText.h"
#include "host/data/ExportedPart.h"
#include "host/fasting/WeightSync.h"
#include "host/history/History.h"
#include "host/history/Setting.h"
#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/PlanImport.h"
#include "host/place/TypedDates.h"
#include "host/text/BadRecord.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/StopToken.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/UUIDGenerator.h"

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

/// Why a file of the machine cannot be read.
struct FileFault {
  BadRecord bad;
  bool isGone = false;  ///< no file has its name any more
  bool operator==(const FileFault&) const = default;
};

/// The files around a history: those that are brought along, those that take it out, and its backups. What takes a disk
/// is for whoever knows one. Members read and write disks and are called from tasks; they throw std::system_error and
/// DatabaseError, whose texts name the file. Thread: any.
class DataFiles {
 public:
  /// What records are read by.
  struct Reading {
    std::function<std::shared_ptr<const adapters::TimeZone>()> zone;  ///< of dates without an offset
    std::shared_ptr<const UUIDGenerator> ids;
    std::function<std::shared_ptr<const TypedDateWords>()> words = {};  ///< of dates that are typed
  };
  using Read = tl::expected<std::vector<ImportedFile>, ImportFault>;

  explicit DataFiles(Reading by) : reading{std::move(by)} {}
  virtual ~DataFiles() = default;
  DataFiles(const DataFiles&) = delete;
  DataFiles& operator=(const DataFiles&) = delete;

  /// Past fasts of typed lines; see `readSaidFasts`. Asks for the words on the thread that it is called from.
  ImportedFile readLines(std::string_view text, std::int64_t goalSeconds, Date now) const;
  ImportPlan plan(const History& present, const std::vector<ImportedFile>& files) const;

  /// What files hold that a person names; `progress` gets from 0 to 1 over all of them. The first one that cannot be
  /// read is the answer instead.
  virtual Read read(const std::vector<std::string>& paths, const ImportAnswers& answers,
                    const std::function<void(double)>& progress, const StopToken& stop) const = 0;
  /// How a file is now, or why it cannot be read: it is gone, is no file, or belongs to others.
  virtual tl::expected<FileState, FileFault> state(const std::string& path) const = 0;

  /// The records as a snapshot or a table. The file is written whole or not at all; one that is there is replaced.
  virtual void write(ExportedPart part, const History& history, const std::filesystem::path& file) const = 0;
  /// The statistics, as `write` does; throws std::runtime_error, too.
  virtual void print(const std::filesystem::path& file, TimeRange range, PrintedWeights weights) const = 0;

  virtual BackupPlace backupPlace() const = 0;
  /// Has the backups of the app's own history go into a folder from now on, or into the usual one where that is empty;
  /// a folder that cannot be used is refused in one sentence.
  virtual tl::expected<BackupPlace, std::string> chooseBackupFolder(const std::filesystem::path& folder,
                                                                    const TextLookup& texts) const = 0;
  /// Those of a folder, the newest first; their records are read and counted where that is asked for.
  virtual std::vector<ListedBackup> backups(const std::filesystem::path& folder, bool areCounted) const = 0;
  virtual std::optional<KeptBackup> backUp(const History& history, Date now) const = 0;
  /// The file's records take the place of all there are, or the fault of the file.
  virtual tl::expected<Restored, BadRecord> restore(const std::filesystem::path& file, Date now) const = 0;

 protected:
  /// What `read` is to read a file by.
  ImportSettings settingsFor(const ImportAnswers& answers) const {
    return {reading.zone(), answers.weightUnit, answers.dateOrder};
  }
  const UUIDGenerator& ids() const { return *reading.ids; }

 private:
  Reading reading;
};

/// The records as a snapshot with settings, or as one of the tables.
std::string exportedText(ExportedPart part, const History& history, const std::vector<Setting>& settings);

}  // namespace mivo::host
