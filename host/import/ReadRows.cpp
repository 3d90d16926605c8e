// SPDX-License-Identifier: MIT
#include "host/import/ReadRows.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "host/import/FastRows.h"
#include "host/import/RowDates.h"
#include "host/import/WeightRows.h"

namespace mivo::host {
namespace {

/// How many rows stand before the stray lines below a table, which have one text and no date.
std::size_t rowsOfTable(const RecordRows& rows) {
  std::size_t count = 0, seen = 0;
  rows.forEach([&](const RecordRows::Row& row) {
    ++seen;
    if (!row.isLone || readDateCell(row.cells[0]).date) count = seen;
  });
  return count;
}

/// Hands the new ids of these records out again in ascending order: the database's index of ids then grows at its end,
/// which takes a third of the time. They are as random as before.
template <class Record>
void orderIDs(std::span<Record> records) {
  std::vector<UUID> ids;
  ids.reserve(records.size());
  for (Record& record : records) ids.push_back(idOf(record));
  std::ranges::sort(ids);
  for (std::size_t place = 0; place < ids.size(); ++place) idOf(records[place]) = ids[place];
}

}  // namespace

std::optional<ImportFault> readRows(const RecordRows& rows, const ImportSettings& settings, const UUIDGenerator& ids,
                                    ImportedFile& file) {
  const auto order = dateOrderOf(rows, file.name, settings);
  if (!order) return order.error();
  const RowDates dates{*settings.zone, *order, rows.columns().place(Role::utcOffset).has_value()};
  const std::size_t count = rowsOfTable(rows);
  file.notes.linesPassedOver += static_cast<std::int64_t>(rows.size() - count);
  for (const std::string& column : rows.columns().unused) file.notes.unusedColumns.push_back(column);
  const auto readEach = [&](auto&& reader) {
    std::size_t place = 0;
    rows.forEach([&](const RecordRows::Row& row) {
      if (place++ < count) reader.row(row);
    });
  };
  if (rows.columns().areWeights) {
    WeightRows reader{rows, dates, settings, ids, file};
    if (auto fault = reader.missingUnit()) return fault;
    const std::size_t before = file.weights.size();
    file.weights.reserve(count);
    readEach(reader);
    orderIDs(std::span{file.weights}.subspan(before));
  } else {
    const std::size_t before = file.fasts.size();
    file.fasts.reserve(count);
    file.fastLines.reserve(count);
    readEach(FastRows{rows, dates, ids, file});
    orderIDs(std::span{file.fasts}.subspan(before));
  }
  return std::nullopt;
}

}  // namespace mivo::host
