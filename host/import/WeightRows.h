// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/RecordRows.h"
#include "host/import/RowDates.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Makes weights of rows; see `readRows`.
class WeightRows {
 public:
  WeightRows(const RecordRows& all, const RowDates& rowDates, const ImportSettings& importSettings,
             const UUIDGenerator& uuids, ImportedFile& into);

  /// The first weight that no unit stands with, in the header, in its row or by a setting.
  std::optional<ImportFault> missingUnit() const;

  void row(const RecordRows::Row& row);

 private:
  struct When {
    std::optional<WrittenDate> date;
    std::size_t wrongPlace = 0;  ///< where there is none
  };

  const ImportColumn& column(std::size_t place) const { return rows.columns().known[place]; }
  std::optional<std::size_t> weightPlace(const RecordRows::Row& row) const;
  std::optional<WeightUnit> unitOf(const RecordRows::Row& row, std::size_t place) const;
  When when(const RecordRows::Row& row) const;
  void lone(const RecordRows::Row& row);
  void dayWithoutWeight(const WrittenDate& day);
  void refuse(const RecordRows::Row& row, std::size_t place, std::string_view reason);

  const RecordRows& rows;
  const RowDates& dates;
  const ImportSettings& settings;
  const UUIDGenerator& ids;
  ImportedFile& file;
  std::size_t datePlace = 0;
  std::optional<std::size_t> timePlace, unitPlace;
  std::optional<WrittenDate> dayAbove;  // of a row that holds nothing but a day
};

}  // namespace mivo::host
