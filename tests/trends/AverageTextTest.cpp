// SPDX-License-Identifier: MIT
#include "mivo/trends/AverageText.h"

#include <gtest/gtest.h>

#include <limits>
#include <unordered_set>
#include <vector>

#include "tests/support/FixedClients.h"
#include "tests/support/Threads.h"

namespace mivo {
namespace {

using enum LegacyFastingZone;
using enum Comparison;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double endless = std::numeric_limits<double>::infinity();

struct ComparisonRow {
  const char* name;
  double thisAverage, lastAverage;
  Comparison expected;
};
void PrintTo(const ComparisonRow& row, std::ostream* out) { *out << row.name; }

class Comparing : public testing::TestWithParam<ComparisonRow> {};

TEST_P(Comparing, takesLessThanHalfAnHourForEqual) {
  EXPECT_EQ(comparison(GetParam().thisAverage, GetParam().lastAverage), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, Comparing,
                         testing::Values(ComparisonRow{"same", 7200, 7200, equal},
                                         ComparisonRow{"nothing", 0, 0, equal},
                                         ComparisonRow{"halfAnHourMore", 7200, 5400, more},
                                         ComparisonRow{"aSecondShortOfMore", 7200, 5401, equal},
                                         ComparisonRow{"halfAnHourLess", 5400, 7200, less},
                                         ComparisonRow{"aSecondShortOfLess", 5401, 7200, equal},
                                         ComparisonRow{"thisIsNotANumber", notANumber, 7200, less},
                                         ComparisonRow{"lastIsNotANumber", 7200, notANumber, less},
                                         ComparisonRow{"thisIsEndless", endless, 7200, more},
                                         ComparisonRow{"bothAreEndless", endless, endless, less}),
                         [](const auto& row) { return std::string{row.param.name}; });

struct SentenceRow {
  const char* name;
  LegacyFastingZone zone;
  TimeRange timeRange;
  Comparison comparison;
  const char* expected;
};
void PrintTo(const SentenceRow& row, std::ostream* out) { *out << row.name; }

class Sentence : public testing::TestWithParam<SentenceRow> {};

TEST_P(Sentence, isTheTemplateOfItsZoneAndComparison) {
  const double lastAverage = 10 * secondsPerHour;
  const double thisAverage = lastAverage + (static_cast<double>(GetParam().comparison) - 1) * secondsPerHour;
  EXPECT_EQ(averageText(GetParam().timeRange, GetParam().zone, thisAverage, lastAverage, tests::EnglishTexts{}),
            GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Sentence,
    testing::Values(SentenceRow{"fastingMore", fasting, TimeRange::week, more,
                                "You're fasting more this week compared to last week."},
                    SentenceRow{"fastingLess", fasting, TimeRange::month, less,
                                "You're fasting less this month compared to last month."},
                    SentenceRow{"fastingEqual", fasting, TimeRange::year, equal,
                                "You're fasting about as much this year as last year."},
                    SentenceRow{"eatingMore", eating, TimeRange::week, more,
                                "Your eating window is longer this week compared to last week."},
                    SentenceRow{"eatingLess", eating, TimeRange::week, less,
                                "Your eating window is shorter this week compared to last week."},
                    SentenceRow{"eatingEqual", eating, TimeRange::month, equal,
                                "Your eating window is about as long this month as last month."},
                    SentenceRow{"zoneMore", deepKetosis, TimeRange::week, more,
                                "You're more in the Deep Ketosis zone this week compared to last week."},
                    SentenceRow{"zoneLess", anabolic, TimeRange::month, less,
                                "You're less in the Anabolic zone this month compared to last month."},
                    SentenceRow{"zoneEqual", fatBurning, TimeRange::year, equal,
                                "You're about as much in the Fat Burning zone this year as last year."}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(SentenceCache, looksASentenceUpOnceAndReturnsThatOne) {
  const tests::EnglishTexts texts;
  const std::string& first = averageText(TimeRange::year, ketosis, 7200, 0, texts);
  const int asked = texts.asked;
  EXPECT_EQ(&averageText(TimeRange::year, ketosis, 9000, 0, texts), &first);
  EXPECT_EQ(texts.asked, asked);
  EXPECT_NE(&averageText(TimeRange::year, ketosis, 0, 7200, texts), &first);
}

TEST(SentenceCache, servesAnyThread) {
  std::vector<std::vector<const std::string*>> seen(4);
  {
    tests::Threads threads;
    for (auto& sentences : seen)
      threads.start([&sentences] {
        const tests::EnglishTexts texts;
        for (const TimeRange range : allTimeRanges)
          for (const LegacyFastingZone zone : allFastingZones)
            for (const double last : {0.0, 3600.0, 7200.0})
              sentences.push_back(&averageText(range, zone, 3600, last, texts));
      });
  }
  for (const auto& sentences : seen) EXPECT_EQ(sentences, seen.front());
  const std::unordered_set<const std::string*> different(seen.front().begin(), seen.front().end());
  EXPECT_EQ(different.size(), 63U);
}

TEST(SentenceCache, hashesEachPartOfItsKey) {
  std::unordered_set<std::size_t> hashes;
  for (const TimeRange range : allTimeRanges)
    for (const LegacyFastingZone zone : allFastingZones)
      for (const Comparison comparison : {less, equal, more})
        hashes.insert(std::hash<AverageTextCacheKey>{}({zone, range, comparison}));
  EXPECT_EQ(hashes.size(), 63U);
}

}  // namespace
}  // namespace mivo
