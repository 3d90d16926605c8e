// SPDX-License-Identifier: MIT
#include "drawing/zones/ZoneRing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::drawing {
namespace {

using testing::SizeIs;

constexpr double hour = 3600;

// Half of the gap between two segments, in degrees: 2.2 points on a radius of 118.
const double halfGap = 2.2 / (2 * 3.14159265358979 * 118) * 360;

struct ArcsRow {
  const char* name;
  ZoneRing ring;
  std::vector<ZoneRing::Arc> arcs;
};
void PrintTo(const ArcsRow& row, std::ostream* out) { *out << row.name; }

class Arcs : public testing::TestWithParam<ArcsRow> {};

TEST_P(Arcs, fillTheZonesAsFarAsTheFastHasCome) {
  const auto& row = GetParam();
  const auto arcs = row.ring.arcs();
  ASSERT_THAT(arcs, SizeIs(row.arcs.size()));
  for (std::size_t arc = 0; arc < arcs.size(); ++arc) {
    EXPECT_EQ(arcs[arc].zone, row.arcs[arc].zone) << arc;
    EXPECT_EQ(arcs[arc].isReached, row.arcs[arc].isReached) << arc;
    EXPECT_NEAR(arcs[arc].from, row.arcs[arc].from, 1e-9) << arc;
    EXPECT_NEAR(arcs[arc].turn, row.arcs[arc].turn, 1e-9) << arc;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Arcs,
    testing::Values(ArcsRow{"tenOfSixteenHours",
                            {.seconds = 10 * hour, .spanSeconds = 16 * hour},
                            {{0, true, halfGap, 90 - 2 * halfGap},
                             {1, false, 225, 135 - halfGap},
                             {1, true, 90 + halfGap, 135 - halfGap}}},
                    ArcsRow{"justBegun",
                            {.seconds = 0, .spanSeconds = 16 * hour},
                            {{0, false, halfGap, 90 - 2 * halfGap}, {1, false, 90 + halfGap, 270 - 2 * halfGap}}},
                    ArcsRow{"pastItsGoal",
                            {.seconds = 20 * hour, .spanSeconds = 16 * hour},
                            {{0, true, halfGap, 90 - 2 * halfGap}, {1, true, 90 + halfGap, 270 - 2 * halfGap}}},
                    ArcsRow{"aGoalWithinTheFirstZoneHasNoGap",
                            {.seconds = 1 * hour, .spanSeconds = 4 * hour},
                            {{0, false, 90, 270}, {0, true, 0, 90}}},
                    ArcsRow{"eating",
                            {.seconds = 2 * hour, .spanSeconds = 8 * hour, .isEating = true},
                            {{std::nullopt, false, 90, 270}, {std::nullopt, true, 0, 90}}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ZoneRing, putsItsHandleWhereTheFastHasCome) {
  const auto head = [](double seconds) { return ZoneRing{.seconds = seconds, .spanSeconds = 16 * hour}.head(); };
  EXPECT_EQ(head(0), (Point{150, 32})) << "at the top";
  EXPECT_NEAR(head(4 * hour).x, 268, 1e-9) << "clockwise";
  EXPECT_NEAR(head(8 * hour).y, 268, 1e-9);
  EXPECT_EQ(head(17 * hour), head(16 * hour)) << "no further than a whole turn";
}

TEST(ZoneRing, movesWideMarksOutwardsWhereThereIsRoom) {
  const ZoneRing ring{.spanSeconds = 16 * hour};
  EXPECT_NEAR(ring.markPlace(0, 40, {300, 300}).x, 130, 1e-9) << "centred over the ring";
  EXPECT_NEAR(ring.markPlace(4 * hour, 20, {400, 300}).x, 280, 1e-9) << "a usual one is centred on its place";
  EXPECT_NEAR(ring.markPlace(4 * hour, 40, {400, 300}).x, 280, 1e-9) << "a wide one keeps its inner edge";
  EXPECT_NEAR(ring.markPlace(4 * hour, 40, {300, 300}).x, 260, 1e-9) << "but for the edge of the item";
  EXPECT_NEAR(ring.markPlace(4 * hour, 40, {320, 300}).x, 270, 1e-9) << "which may be wider than the ring";
  EXPECT_NEAR(ring.markPlace(12 * hour, 40, {300, 300}).x, 0, 1e-9);
}

}  // namespace
}  // namespace mivo::drawing
