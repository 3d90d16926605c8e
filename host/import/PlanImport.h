// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "host/fasting/HistoryChange.h"
#include "host/import/ImportedFile.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// What an import makes of the records of one file.
struct ImportCounts {
  std::int64_t newFasts = 0, newWeights = 0;
  std::int64_t equal = 0;  ///< to what is there, or to one before it among the files
  std::int64_t refused = 0;
  bool operator==(const ImportCounts&) const = default;
};

/// What an import would do.
struct ImportPlan {
  HistoryChange change;              ///< which only adds
  std::vector<ImportCounts> counts;  ///< of each file
  RefusedRecords refused;            ///< of all files
};

/// Merges the records of some files into a history, in the order of the files.
///
/// Fasts are equal that have the same start and end, whatever their goal, note and id: the one that is there stays as
/// it is. Weights are equal that have the same date and kilograms. A running fast is equal to any with its start, and
/// is refused where another one is running. A record whose id another one has gets a new one from `ids`. Cost: linear
/// where all are in order, else that of sorting them.
ImportPlan planImport(const History& present, std::span<const ImportedFile> files, const UUIDGenerator& ids);

}  // namespace mivo::host
