// SPDX-License-Identifier: MIT
#include "mivo/model/TimeRange.h"

#include <cstddef>

#include "mivo/model/Translatable.h"

namespace mivo {
namespace {

struct Row {
  std::string_view rawValue, displayString;
  double totalDaysOnXAxis;
  std::string_view xAxixDateFormat;
};

constexpr std::array<Row, 3> rows{{{"week", translatable("week"), 90, "EEE"},
                                   {"month", translatable("month"), 365, "MMMd"},
                                   {"year", translatable("year"), 3650, "MMM"}}};

constexpr const Row& row(TimeRange range) { return rows[static_cast<std::size_t>(range)]; }

}  // namespace

std::string_view rawValue(TimeRange range) { return row(range).rawValue; }

std::string_view displayString(TimeRange range) { return row(range).displayString; }

double totalDaysOnXAxis(TimeRange range) { return row(range).totalDaysOnXAxis; }

std::string_view xAxixDateFormat(TimeRange range) { return row(range).xAxixDateFormat; }

}  // namespace mivo
