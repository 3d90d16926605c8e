// SPDX-License-Identifier: MIT
#include "drawing/zones/ZoneStrip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::drawing {
namespace {

constexpr double hour = 3600;

struct StripRow {
  const char* name;
  double seconds, spanSeconds;
  std::vector<StripPart> parts;
};
void PrintTo(const StripRow& row, std::ostream* out) { *out << row.name; }

class Strip : public testing::TestWithParam<StripRow> {};

// Ten points an hour of a day.
TEST_P(Strip, showsTheZonesAndWhatIsNotReached) {
  const auto& expected = GetParam().parts;
  const auto parts = zoneStrip(GetParam().seconds, GetParam().spanSeconds, 240);
  ASSERT_EQ(parts.size(), expected.size());
  for (std::size_t part = 0; part < parts.size(); ++part) {
    EXPECT_EQ(parts[part].zone, expected[part].zone) << part;
    EXPECT_NEAR(parts[part].x, expected[part].x, 1e-9) << part;
    EXPECT_NEAR(parts[part].width, expected[part].width, 1e-9) << part;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Strip,
    testing::Values(
        StripRow{"aFewHours", 2 * hour, 24 * hour, {{0, 0, 20}, {std::nullopt, 22, 218}}},
        StripRow{"gapsBetweenZones",
                 18 * hour,
                 24 * hour,
                 {{0, 0, 39}, {1, 41, 118}, {2, 161, 19}, {std::nullopt, 182, 58}}},
        StripRow{"aTouchOfAZoneIsSeen", 4.05 * hour, 24 * hour, {{0, 0, 39}, {1, 41, 2}, {std::nullopt, 42.5, 197.5}}},
        StripRow{"longerThanTheScale", 30 * hour, 20 * hour, {{0, 0, 47}, {1, 49, 142}, {2, 193, 47}, {3, 289, 2}}},
        StripRow{"nothing", 0, 24 * hour, {{std::nullopt, 2, 238}}}, StripRow{"noScale", hour, 0, {}}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::drawing
