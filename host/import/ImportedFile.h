// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/history/History.h"
#include "host/history/Setting.h"
#include "host/text/BadRecord.h"

namespace mivo::host {

/// What a file was recognised as, by its content; typed lines are what they were said to be.
enum class ImportKind { snapshot, database, fastTable, weightTable, weightLog, otherBackup, healthExport, saidFasts };

/// The records that were refused: the first of them, in the order of the file, and how many there are.
class RefusedRecords {
 public:
  static constexpr std::size_t mostKept = 100;

  void add(BadRecord bad) {
    if (kept.size() < mostKept) kept.push_back(std::move(bad));
    ++counted;
  }
  /// Those of another list behind these.
  void add(const RefusedRecords& others) {
    for (const BadRecord& bad : others.kept) add(bad);
    addUnseen(others.counted - static_cast<std::int64_t>(others.kept.size()));
  }
  /// Counts some that nothing more is to be said of.
  void addUnseen(std::int64_t more) { counted += more; }
  const std::vector<BadRecord>& first() const { return kept; }
  std::int64_t count() const { return counted; }
  bool operator==(const RefusedRecords&) const = default;

 private:
  std::vector<BadRecord> kept;
  std::int64_t counted = 0;
};

/// What else there is to say of a file.
struct ImportNotes {
  std::int64_t notWeighed = 0;                  ///< rows with no weight, or a weight of 0
  std::int64_t toldTwice = 0;                   ///< weighings that several sources have told, of which one was taken
  std::int64_t linesPassedOver = 0;             ///< above the header and below the table
  std::int64_t skippedTimes = 0;                ///< that the clocks skipped, taken as the first instant after the gap
  std::int64_t doubledTimes = 0;                ///< that the clocks showed twice, taken as the first of the two
  std::vector<std::string> unusedColumns = {};  ///< as the header spells them
  bool operator==(const ImportNotes&) const = default;
};

/// What a file holds, in its own order.
struct ImportedFile {
  std::string name;  ///< for sentences
  ImportKind kind = ImportKind::snapshot;
  std::vector<FastRecord> fasts = {};
  std::vector<std::int64_t> fastLines = {};  ///< of each, from 1; none where the file has no lines
  std::vector<BodyWeightSample> weights = {};
  RefusedRecords refused = {};
  ImportNotes notes = {};
  std::optional<KeptOddity> endsBeforeStart = {};  ///< of a backup, which is taken as it is

  std::vector<Setting> settings = {};  ///< of a snapshot

  std::int64_t lineOfFast(std::size_t index) const { return fastLines.empty() ? 0 : fastLines[index]; }
};

/// Why nothing of a file can be taken in.
struct ImportFault {
  /// What a person would have to say for it to be read.
  enum class Asks { nothing, dateOrder, weightUnit };

  BadRecord bad;
  Asks asks = Asks::nothing;
  bool isUnknown = false;  ///< its content is of no kind that can be read
  bool operator==(const ImportFault&) const = default;
};

}  // namespace mivo::host
