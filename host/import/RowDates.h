// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "host/dates/WrittenDate.h"
#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/RecordRows.h"

namespace mivo::host {

/// The order of day and month that all dates of a file agree on. A fault that asks for it where a date can be read in
/// two ways and none tells which, or where some tell the one and some the other.
tl::expected<DateOrder, ImportFault> dateOrderOf(const RecordRows& rows, const std::string& file,
                                                 const ImportSettings& settings);

/// What a cell says: a date, with a time or without, or a time alone; neither where it is no such thing.
struct DateCell {
  std::optional<WrittenDate> date;
  std::optional<WrittenTime> time;
};
DateCell readDateCell(std::string_view text);

/// Makes instants of dates in one zone and one order, and counts those that a clock change moved.
class RowDates {
 public:
  RowDates(const adapters::TimeZone& zoneOfFile, DateOrder orderOfFile, bool hasUtcDates)
      : zone{zoneOfFile}, order{orderOfFile}, areUtc{hasUtcDates} {}

  /// Nothing for a day alone that should have a time, and outside the years 1 to 9999.
  std::optional<Date> instantOf(const WrittenDate& date, bool mayBeDay, ImportNotes& notes) const;
  std::optional<DateText> orderedText(const WrittenDate& date) const { return ordered(date, order); }
  std::optional<Date> instantOf(DateText text, ImportNotes& notes) const;

 private:
  const adapters::TimeZone& zone;
  DateOrder order;
  bool areUtc;
};

/// A cell that is there to say that nothing is: "", "NA", "--", "null", "none", "-".
bool saysNothing(std::string_view cell);

}  // namespace mivo::host
