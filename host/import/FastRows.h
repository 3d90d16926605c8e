// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "host/import/ImportedFile.h"
#include "host/import/RecordRows.h"
#include "host/import/RowDates.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Makes fasts of rows; see `readRows`.
class FastRows {
 public:
  FastRows(const RecordRows& all, const RowDates& rowDates, const UUIDGenerator& uuids, ImportedFile& into);

  void row(const RecordRows::Row& row);

 private:
  using Place = std::optional<std::size_t>;

  /// The columns that one end of a fast may stand in: whole, or in halves.
  struct EndPlaces {
    Place whole, date, time;
  };

  /// What they say. `place` is the column that says it, or that says something else.
  struct EndCells {
    std::optional<WrittenDate> date = {};
    std::optional<WrittenTime> time = {};  ///< where there is no date
    std::size_t place = 0;
    bool isEmpty = false;
  };

  const ImportColumn& column(std::size_t place) const { return rows.columns().known[place]; }
  std::string_view cell(const RecordRows::Row& row, Place place) const;
  EndCells read(const RecordRows::Row& row, const EndPlaces& places) const;
  std::optional<DateText> startOf(const RecordRows::Row& row, const EndCells& cells) const;
  std::optional<DateText> endOf(const DateText& start, const EndCells& cells) const;
  void ended(const RecordRows::Row& row, FastRecord record, const DateText& start);
  void refuse(const RecordRows::Row& row, std::size_t place, std::string_view reason);

  const RecordRows& rows;
  const RowDates& dates;
  const UUIDGenerator& ids;
  ImportedFile& file;
  EndPlaces startPlaces, endPlaces;
  Place datePlace, lengthPlace, goalPlace, notePlace;
};

}  // namespace mivo::host
