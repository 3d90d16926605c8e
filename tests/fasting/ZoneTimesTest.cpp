// SPDX-License-Identifier: MIT
#include "mivo/fasting/ZoneTimes.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

using Zone = LegacyFastingZone;

struct ZonesRow {
  const char* name;
  double hours;
  std::vector<std::pair<Zone, double>> zones;  // with their hours; the last one is the present one
};
void PrintTo(const ZonesRow& row, std::ostream* out) { *out << row.name; }

class Zones : public testing::TestWithParam<ZonesRow> {};

TEST_P(Zones, areThoseThatTheFastWentThrough) {
  const auto& row = GetParam();
  std::vector<ZoneTime> expected;
  for (const auto& [zone, hours] : row.zones)
    expected.push_back({zone, hours * secondsPerHour, zone == row.zones.back().first});
  EXPECT_EQ(zoneTimes(row.hours * secondsPerHour), expected);
  EXPECT_EQ(zoneAfter(row.hours * secondsPerHour), row.zones.back().first);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Zones,
    testing::Values(ZonesRow{"justBegun", 0, {{Zone::anabolic, 0}}},
                    ZonesRow{"beforeABound", 3.75, {{Zone::anabolic, 3.75}}},
                    ZonesRow{"atABound", 4, {{Zone::anabolic, 4}, {Zone::catabolic, 0}}},
                    ZonesRow{"throughTwo", 18, {{Zone::anabolic, 4}, {Zone::catabolic, 12}, {Zone::fatBurning, 2}}},
                    ZonesRow{"theLastOneHasNoEnd",
                             200,
                             {{Zone::anabolic, 4},
                              {Zone::catabolic, 12},
                              {Zone::fatBurning, 8},
                              {Zone::ketosis, 48},
                              {Zone::deepKetosis, 128}}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ZoneAfter, isTheFirstOneBeforeTheStart) { EXPECT_EQ(zoneAfter(-60), Zone::anabolic); }

}  // namespace
}  // namespace mivo
