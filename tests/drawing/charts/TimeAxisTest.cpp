// SPDX-License-Identifier: MIT
#include "drawing/charts/TimeAxis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/histories/ZoneRows.h"
#include "tests/support/FixedClients.h"
#include "tests/support/Instants.h"

namespace mivo::drawing {
namespace {

using tests::text;
using tests::utc;

const Date now = utc("2026-03-29 10:00");  // in Berlin, the day that has 23 hours

struct LabelsRow {
  const char* name;
  TimeRange range;
  const char *from, *to;
  std::vector<std::string> begins;  // a label that is centred says until when, that of today has a star
};
void PrintTo(const LabelsRow& row, std::ostream* out) { *out << row.name; }

class TimeLabels : public testing::TestWithParam<LabelsRow> {};

TEST_P(TimeLabels, standAtTheStartsOfTheirPeriods) {
  const auto& row = GetParam();
  const auto calendar = tests::gregorianCalendar("Europe/Berlin");
  std::vector<std::string> begins;
  for (const auto& label :
       timeAxisLabels(row.range, {utc(row.from), utc(row.to)}, now, *calendar, tests::SkeletonDates{}))
    begins.push_back(text(label.date) + (label.until > label.date ? " - " + text(label.until) : "") +
                     (label.isPresent ? "*" : ""));
  EXPECT_EQ(begins, row.begins);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TimeLabels,
    testing::Values(
        LabelsRow{"daysOfAWeek",
                  TimeRange::week,
                  "2026-03-28 05:00",
                  "2026-03-30 05:00",
                  {"2026-03-27 23:00:00 - 2026-03-28 23:00:00", "2026-03-28 23:00:00 - 2026-03-29 22:00:00*",
                   "2026-03-29 22:00:00 - 2026-03-30 22:00:00"}},
        LabelsRow{"weeksOfAMonth",
                  TimeRange::month,
                  "2026-03-20 05:00",
                  "2026-04-01 05:00",
                  {"2026-03-15 23:00:00", "2026-03-22 23:00:00", "2026-03-29 22:00:00"}},
        LabelsRow{"monthsOfAYear",
                  TimeRange::year,
                  "2026-02-20 05:00",
                  "2026-04-01 05:00",
                  {"2026-01-31 23:00:00", "2026-02-28 23:00:00", "2026-03-31 22:00:00"}},
        LabelsRow{
            "theEndIsOutside", TimeRange::month, "2026-03-22 23:00", "2026-03-29 22:00", {"2026-03-22 23:00:00"}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(TimeAxisDomain, reachesFromTheFirstPointToTheEndOfToday) {
  const auto calendar = tests::gregorianCalendar("Europe/Berlin");
  const Date end = utc("2026-03-29 22:00");
  const auto start = [&](std::optional<Date> first) {
    const auto domain = timeAxisDomain(TimeRange::week, first, now, *calendar);
    EXPECT_EQ(text(domain.end), text(end));
    return text(domain.start);
  };
  EXPECT_EQ(start(utc("2025-12-01 07:00")), "2025-12-01 07:00:00");
  EXPECT_EQ(start(utc("2026-03-28 07:00")), "2026-03-22 22:00:00") << "but at least what is on screen at once";
  EXPECT_EQ(start(std::nullopt), "2026-03-22 22:00:00");
}

}  // namespace
}  // namespace mivo::drawing
