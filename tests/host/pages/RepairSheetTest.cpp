// SPDX-License-Identifier: MIT
#include "host/pages/RepairSheet.h"

#include <gtest/gtest.h>

#include "host/fasting/OverlapRepair.h"
#include "host/json/RecordJson.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using tests::utc;

const Date now = utc("2026-03-01 12:00");

FastRecord ended(std::uint64_t id, const char* start, const char* end) {
  return {finishedFast({0, id}, utc(start), utc(end), 57600), ""};
}

FastRecord running(const char* start) { return {ongoingFast({0, 9}, utc(start), 57600), ""}; }

RepairSheet sheetOf(const std::vector<FastRecord>& fasts) {
  return composeRepairSheet(overlapRepair(fasts, now), tests::Pages{}.at(now));
}

struct SheetRow {
  const char* name;
  std::vector<FastRecord> fasts;
  std::string summary, button;
  std::vector<std::string> rows;
};
void PrintTo(const SheetRow& row, std::ostream* out) { *out << row.name; }

class RepairSheets : public testing::TestWithParam<SheetRow> {};

TEST_P(RepairSheets, sayWhatBecomesOfWhichFasts) {
  const RepairSheet sheet = sheetOf(GetParam().fasts);
  EXPECT_EQ(sheet.summary, GetParam().summary);
  EXPECT_EQ(sheet.button, GetParam().button);
  std::vector<std::string> rows;
  for (const RepairRow& row : sheet.rows) rows.push_back(row.spoken);
  EXPECT_EQ(rows, GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RepairSheets,
    testing::Values(
        SheetRow{"trimmed",
                 {ended(1, "2026-02-25 20:00", "2026-02-26 12:00"), ended(2, "2026-02-26 11:00", "2026-02-27 03:00")},
                 "1 fast will change. You can undo this.",
                 "Fix 1 fast",
                 {"02-26, Trimmed: 11:00 – 03:00, 12:00 – 03:00"}},
        SheetRow{"merged",
                 {ended(1, "2026-02-25 20:00", "2026-02-26 12:00"), ended(2, "2026-02-25 20:05", "2026-02-26 12:10")},
                 "2 fasts will change. You can undo this.",
                 "Fix 2 fasts",
                 {"02-25, Merged: 20:00 – 12:00 and 20:05 – 12:10, 20:00 – 12:10"}},
        SheetRow{"threeBecomeOne",
                 {ended(1, "2026-02-25 20:00", "2026-02-26 08:00"), ended(2, "2026-02-25 21:00", "2026-02-26 09:00"),
                  ended(3, "2026-02-25 22:00", "2026-02-26 10:00")},
                 "3 fasts will change. You can undo this.",
                 "Fix 3 fasts",
                 {"02-25, Merged: 20:00 – 08:00 and 21:00 – 09:00 and 22:00 – 10:00, 20:00 – 10:00"}},
        SheetRow{"theRunningOneRunsOn",
                 {ended(1, "2026-03-01 06:00", "2026-03-01 11:00"), running("2026-03-01 08:00")},
                 "2 fasts will change. You can undo this.",
                 "Fix 2 fasts",
                 {"03-01, Merged: 06:00 – 11:00 and 08:00 – , 06:00 – "}},
        SheetRow{"whatGoesIntoOneThatStays",
                 {ended(1, "2026-02-25 20:00", "2026-02-26 12:00"), ended(2, "2026-02-25 21:00", "2026-02-26 08:00"),
                  ended(3, "2026-02-26 09:00", "2026-02-26 09:00")},
                 "2 fasts will change. You can undo this.",
                 "Fix 2 fasts",
                 {"02-25, Merged: 21:00 – 08:00", "02-26, Merged: 09:00 – 09:00"}},
        SheetRow{"twoRepairs",
                 {ended(1, "2025-12-30 20:00", "2025-12-31 12:00"), ended(2, "2025-12-31 11:00", "2025-12-31 23:00"),
                  ended(3, "2026-02-25 20:00", "2026-02-26 12:00"), ended(4, "2026-02-25 20:05", "2026-02-26 12:10")},
                 "3 fasts will change. You can undo this.",
                 "Fix 3 fasts",
                 {"2025-12-31, Trimmed: 11:00 – 23:00, 12:00 – 23:00",
                  "02-25, Merged: 20:00 – 12:00 and 20:05 – 12:10, 20:00 – 12:10"}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(RepairSheet, printsAsJson) {
  JsonWriter json;
  writeJson(json, sheetOf({ended(1, "2026-02-25 20:00", "2026-02-26 12:00"),
                           ended(2, "2026-02-26 11:00", "2026-02-27 03:00")}));
  EXPECT_NE(std::move(json).text().find(R"("kind": "Trimmed", "before": "11:00 – 03:00")"), std::string::npos);
}

}  // namespace
}  // namespace mivo::host
