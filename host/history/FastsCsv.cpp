// SPDX-License-Identifier: MIT
#include "host/history/FastsCsv.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>

#include "host/dates/DateText.h"
#include "host/history/CsvTable.h"
#include "host/history/FieldRules.h"
#include "host/history/Header.h"

namespace mivo::host {
namespace {

enum class Role { start, end, goalHours, note };

constexpr std::array<HeaderName<Role>, 20> headerNames{{{"start", Role::start},
                                                        {"starttime", Role::start},
                                                        {"started", Role::start},
                                                        {"startdate", Role::start},
                                                        {"begin", Role::start},
                                                        {"faststart", Role::start},
                                                        {"from", Role::start},
                                                        {"end", Role::end},
                                                        {"endtime", Role::end},
                                                        {"ended", Role::end},
                                                        {"enddate", Role::end},
                                                        {"finish", Role::end},
                                                        {"stop", Role::end},
                                                        {"fastend", Role::end},
                                                        {"to", Role::end},
                                                        {"goal", Role::goalHours},
                                                        {"goalhours", Role::goalHours},
                                                        {"target", Role::goalHours},
                                                        {"note", Role::note},
                                                        {"notes", Role::note}}};

constexpr std::string_view expectedGoal = "expected hours, 0 or more";

class FastsReader {
 public:
  FastsReader(const std::string& fileName, char separator, const adapters::TimeZone& timeZone,
              const UUIDGenerator& uuids)
      : file{fileName}, zone{timeZone}, ids{uuids}, decimalComma{separator != ','} {}

  std::optional<BadRecord> row(const CsvRow& row) {
    if (fieldCount == 0) return header(row);
    if (auto bad = wrongFieldCount(row, fieldCount, file)) return bad;
    return fast(row);
  }

  FastTable table;
  bool hasHeader() const { return fieldCount > 0; }

 private:
  std::optional<BadRecord> header(const CsvRow& row) {
    std::optional<BadRecord> bad;
    const std::span<const HeaderName<Role>> names{headerNames};
    const auto startColumn = column(row, names, Role::start, file, bad);
    const auto endColumn = column(row, names, Role::end, file, bad);
    goal = column(row, names, Role::goalHours, file, bad);
    note = column(row, names, Role::note, file, bad);
    if (bad) return bad;
    if (!startColumn || !endColumn)
      return BadRecord{file, row.line, "header", quotable(joined(row)), "expected the columns \"start\" and \"end\""};
    start = *startColumn;
    end = *endColumn;
    fieldCount = row.fields.size();
    return std::nullopt;
  }

  std::optional<BadRecord> fast(const CsvRow& row) {
    const auto startDate = date(row, start);
    if (!startDate) return bad(row, start, expectedDate);
    const auto goalSeconds = goal ? goalOf(row.fields[goal->index]) : defaultGoalSeconds;
    if (!goalSeconds) return bad(row, *goal, expectedGoal);
    const std::string_view noteText = note ? row.fields[note->index] : std::string_view{};
    if (!isNote(noteText)) return bad(row, *note, expectedNote);

    FastRecord& record = table.fasts.emplace_back();
    record.note = noteText;
    if (row.fields[end.index].empty()) {
      record.fast = ongoingFast(ids.next(), *startDate, *goalSeconds);
      if (lineOfRunningFast) return bad(row, end, expectedEnd(*lineOfRunningFast));
      lineOfRunningFast = row.line;
      return std::nullopt;
    }
    const auto endDate = date(row, end);
    if (!endDate) return bad(row, end, expectedDate);
    record.fast = finishedFast(ids.next(), *startDate, *endDate, *goalSeconds);
    if (*endDate < *startDate) noteEndBeforeStart(table.endsBeforeStart, bad(row, end, {}));
    return std::nullopt;
  }

  std::optional<Date> date(const CsvRow& row, const Column& column) const {
    const auto text = parseDateText(row.fields[column.index]);
    return text && text->hasTime ? instant(*text, zone) : std::nullopt;
  }

  std::optional<std::int64_t> goalOf(std::string_view text) const {
    if (text.empty()) return defaultGoalSeconds;
    const auto hours = decimalNumber(text, decimalComma);
    if (!hours || *hours < 0 || *hours > largestGoalHours) return std::nullopt;
    return std::llround(*hours * secondsPerHour);
  }

  BadRecord bad(const CsvRow& row, const Column& column, std::string_view reason) const {
    return {file, row.line, column.name, quotable(row.fields[column.index]), std::string{reason}};
  }

  const std::string& file;
  const adapters::TimeZone& zone;
  const UUIDGenerator& ids;
  bool decimalComma;
  std::size_t fieldCount = 0;
  Column start, end;
  std::optional<Column> goal, note;
  std::optional<std::int64_t> lineOfRunningFast;
};

/// Room for the fasts, so that a long history is not copied as it grows: a line a fast, the shortest of 18 characters.
std::size_t rowsAtMost(std::string_view text) {
  const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
  return std::min(lines + 1, text.size() / 18);
}

}  // namespace

tl::expected<FastTable, BadRecord> readFastsCsv(std::string_view text, const std::string& file,
                                                const adapters::TimeZone& zone, const UUIDGenerator& ids) {
  const char separator = csvSeparator(text);
  FastsReader reader{file, separator, zone, ids};
  reader.table.fasts.reserve(rowsAtMost(text));
  auto bad = readCsv(text, separator, file, [&](const CsvRow& row) { return reader.row(row); });
  if (!bad && !reader.hasHeader())
    bad = BadRecord{.file = file,
                    .reason = "expected a header with the columns \"start\" and \"end\", found an empty file"};
  if (bad) return tl::unexpected{std::move(*bad)};
  return std::move(reader.table);
}

}  // namespace mivo::host
