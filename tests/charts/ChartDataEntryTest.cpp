// SPDX-License-Identifier: MIT
#include "mivo/charts/ChartDataEntry.h"

#include <gmock/gmock.h>

#include <cmath>
#include <unordered_set>

#include "mivo/charts/VLineStroke.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

constexpr DateInterval firstOfJuly{dateSince1970(1782864000), dateSince1970(1782950400)};

class ChartEntry : public testing::Test {
 protected:
  std::shared_ptr<tests::RecordedIssues> issues = std::make_shared<tests::RecordedIssues>();
  DependencyScope scope{[this] {
    Dependencies clients = tests::fixedDependencies();
    clients.issueReporter = issues;
    return std::make_shared<const Dependencies>(std::move(clients));
  }()};
};

TEST_F(ChartEntry, reportsAValueOutsideZeroToOneAndKeepsIt) {
  for (const double value : {0.0, 0.5, 1.0}) EXPECT_EQ(ChartDataEntry(firstOfJuly, value, "Wed").value, value);
  EXPECT_THAT(issues->messages, testing::IsEmpty());

  EXPECT_EQ(ChartDataEntry(firstOfJuly, -0.0001, "Wed").value, -0.0001);
  EXPECT_EQ(ChartDataEntry(firstOfJuly, 1.0001, "Wed", UUID{1, 2}).value, 1.0001);
  EXPECT_TRUE(std::isnan(ChartDataEntry(firstOfJuly, std::nan(""), "Wed").value));
  EXPECT_THAT(issues->messages,
              testing::ElementsAre("invalid chart value", "invalid chart value", "invalid chart value"));
}

TEST_F(ChartEntry, hasAnIdentityOfItsOwn) {
  const ChartDataEntry one{firstOfJuly, 0.5, "Wed"}, other{firstOfJuly, 0.5, "Wed"};
  EXPECT_NE(one.id, other.id);
  EXPECT_NE(one, other);
  EXPECT_EQ(one, ChartDataEntry(firstOfJuly, 0.5, "Wed", one.id));
}

TEST_F(ChartEntry, hashesEachOfItsFields) {
  const DateInterval sameStart{firstOfJuly.start, firstOfJuly.end + Duration{1}};
  const DateInterval sameEnd{firstOfJuly.start - Duration{1}, firstOfJuly.end};
  const std::unordered_set<std::size_t> hashes{
      std::hash<ChartDataEntry>{}({firstOfJuly, 0.5, "Wed", {0, 1}}),
      std::hash<ChartDataEntry>{}({sameStart, 0.5, "Wed", {0, 1}}),
      std::hash<ChartDataEntry>{}({sameEnd, 0.5, "Wed", {0, 1}}),
      std::hash<ChartDataEntry>{}({firstOfJuly, 0.25, "Wed", {0, 1}}),
      std::hash<ChartDataEntry>{}({firstOfJuly, 0.5, "Thu", {0, 1}}),
      std::hash<ChartDataEntry>{}({firstOfJuly, 0.5, "Wed", {0, 2}}),
  };
  EXPECT_EQ(hashes.size(), 6U);
}

TEST(VLineStroke, growsFromTheBottomCentre) {
  const Rectangle atOrigin{.origin = {0, 0}, .size = {40, 200}};
  EXPECT_EQ(VLineStroke{0}.path(atOrigin), (LineSegment{{20, 200}, {20, 200}}));
  EXPECT_EQ(VLineStroke{0.5}.path(atOrigin), (LineSegment{{20, 200}, {20, 100}}));
  EXPECT_EQ(VLineStroke{1}.path(atOrigin), (LineSegment{{20, 200}, {20, 0}}));

  const Rectangle lower{.origin = {10, 100}, .size = {40, 200}};
  EXPECT_EQ(VLineStroke{0.5}.path(lower), (LineSegment{{30, 300}, {30, 150}}));
}

}  // namespace
}  // namespace mivo
