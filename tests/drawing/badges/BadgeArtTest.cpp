// SPDX-License-Identifier: MIT
#include "drawing/badges/BadgeArt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::drawing {
namespace {

using testing::HasSubstr;
using testing::Not;

int countOf(const std::string& part, const std::string& text) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

struct ArtRow {
  const char* name;
  BadgeShape shape;
  std::int64_t threshold, count;
  bool dark;
  int marks;
  std::string rim;     // the first colour of the gradient
  std::string number;  // its colour
};
void PrintTo(const ArtRow& row, std::ostream* out) { *out << row.name; }

class Art : public testing::TestWithParam<ArtRow> {};

TEST_P(Art, showsRankAndWhetherItIsEarned) {
  const auto& row = GetParam();
  const BadgeArt art = badgeArt(row.shape, row.threshold, row.count, "25", row.dark);
  EXPECT_EQ(countOf("<g transform", art.svg), row.marks);
  EXPECT_THAT(art.svg, HasSubstr("stop offset='0' stop-color='" + row.rim + "'"));
  EXPECT_EQ(art.number.color, row.number);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Art,
    testing::Values(ArtRow{"copperAtItsThreshold", BadgeShape::milestone, 1, 1, false, 1, "#E0A97F", "#4A230C"},
                    ArtRow{"silverHasTwo", BadgeShape::milestone, 50, 60, true, 2, "#CDD3DE", "#262C38"},
                    ArtRow{"auroraHasTwo", BadgeShape::milestone, 5000, 5000, false, 2, "#A9A6F5", "#1B1557"},
                    ArtRow{"greyOneBelow", BadgeShape::milestone, 10, 9, false, 3, "#EAE8E3", "#66646E"},
                    ArtRow{"greyInTheDark", BadgeShape::milestone, 10, 9, true, 3, "#25252C", "#9694A1"},
                    ArtRow{"streakIsWhite", BadgeShape::streak, 10, 10, false, 3, "#ffe08a", "#FFFFFF"},
                    ArtRow{"streakInGrey", BadgeShape::streak, 10, 9, false, 3, "#ffe08a", "#66646E"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(BadgeArt, paintsFlamesInColourOnlyWhereEarned) {
  EXPECT_THAT(badgeArt(BadgeShape::streak, 5, 5, "5", false).svg, HasSubstr("fill='url(#flame)'"));
  EXPECT_THAT(badgeArt(BadgeShape::streak, 5, 4, "5", false).svg, Not(HasSubstr("fill='url(#flame)'")));
}

TEST(BadgeArt, setsLongNumbersSmallerByTheirCharacters) {
  const auto size = [](const std::string& number) {
    return badgeArt(BadgeShape::milestone, 100, 0, number, false).number.size;
  };
  EXPECT_EQ(size("25"), 31);
  EXPECT_EQ(size("٢٥"), size("25")) << "characters, not bytes";
  EXPECT_DOUBLE_EQ(size("250"), 31 * 0.86);
  EXPECT_DOUBLE_EQ(size("1000"), 31 * 0.86);
  EXPECT_DOUBLE_EQ(size("1,000"), 31 * 0.7);
}

TEST(BadgeArt, writesPlacesInPlainDigits) {
  EXPECT_THAT(badgeArt(BadgeShape::milestone, 1, 1, "1", false).svg,
              HasSubstr("<g transform='translate(48 27.5) scale(7.2)'>"));
  EXPECT_THAT(badgeArt(BadgeShape::streak, 10, 10, "10", false).svg,
              HasSubstr("<g transform='translate(30 20.65) scale(1.5)'>"));
}

}  // namespace
}  // namespace mivo::drawing
