// SPDX-License-Identifier: MIT
#include "mivo/charts/DatedSeries.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <numeric>
#include <vector>

#include "mivo/charts/VisibleWeights.h"
#include "mivo/model/BodyWeightSample.h"

namespace mivo {
namespace {

using Samples = List<BodyWeightSample>;

/// Looks at every point; the first of several equally near wins.
std::size_t nearestByLooking(const std::vector<BodyWeightSample>& samples, Date date) {
  std::size_t nearest = 0;
  for (std::size_t index = 1; index < samples.size(); ++index)
    if (std::abs(secondsBetween(samples[index].date, date)) < std::abs(secondsBetween(samples[nearest].date, date)))
      nearest = index;
  return nearest;
}

double averageByLooking(const std::vector<BodyWeightSample>& samples, DateInterval visible) {
  double sum = 0;
  int count = 0;
  for (const auto& sample : samples)
    if (visible.start <= sample.date && sample.date <= visible.end) sum += sample.weightInKg, ++count;
  return count == 0 ? 0 : sum / count;
}

std::vector<BodyWeightSample> samplesAt(const std::vector<double>& seconds) {
  std::vector<BodyWeightSample> samples;
  for (const double each : seconds)
    samples.push_back({{0, samples.size() + 1}, dateSince1970(each), 80 + 0.1 * static_cast<double>(samples.size())});
  return samples;
}

rc::Gen<double> someSeconds() {
  return rc::gen::oneOf(rc::gen::map(rc::gen::inRange(-20, 20), [](int whole) { return static_cast<double>(whole); }),
                        rc::gen::map(rc::gen::inRange(0, 1000), [](int days) { return 1.7e9 + days * 43200.0; }),
                        rc::gen::element(1e-9, -1e-9, 2e-9, 1e15, -1e15, std::numeric_limits<double>::infinity()));
}

/// Ascending three times out of four, many dates equal.
rc::Gen<std::vector<BodyWeightSample>> someSamples() {
  return rc::gen::map(rc::gen::pair(rc::gen::container<std::vector<double>>(someSeconds()), rc::gen::inRange(0, 4)),
                      [](std::pair<std::vector<double>, int> drawn) {
                        if (drawn.second != 0) std::ranges::sort(drawn.first);
                        return samplesAt(drawn.first);
                      });
}

RC_GTEST_PROP(DatedSeries, findsTheNearestPointLikeLookingAtEachOne, ()) {
  const auto samples = *someSamples();
  const Date touched = dateSince1970(*someSeconds());
  const DatedSeries series{Samples(samples)};
  const BodyWeightSample* nearest = series.nearest(touched);
  if (samples.empty())
    RC_ASSERT(nearest == nullptr);
  else
    RC_ASSERT(nearest->id == samples[nearestByLooking(samples, touched)].id);
}

struct NearestRow {
  const char* name;
  std::vector<double> dates;
  double touched;
  std::uint64_t expected;  // counted from 1
};
void PrintTo(const NearestRow& row, std::ostream* out) { *out << row.name; }

class Nearest : public testing::TestWithParam<NearestRow> {};

TEST_P(Nearest, isTheFirstOfTheNearest) {
  const DatedSeries series{Samples(samplesAt(GetParam().dates))};
  EXPECT_EQ(series.nearest(dateSince1970(GetParam().touched))->id, (UUID{0, GetParam().expected}));
}

INSTANTIATE_TEST_SUITE_P(Rows, Nearest,
                         testing::Values(NearestRow{"only", {5}, 900, 1}, NearestRow{"before", {10, 20, 30}, 14, 1},
                                         NearestRow{"after", {10, 20, 30}, 16, 2},
                                         NearestRow{"halfway", {10, 20, 30}, 25, 2},
                                         NearestRow{"firstOfOneDate", {10, 20, 20, 20}, 21, 2},
                                         NearestRow{"halfwayFromOneDate", {20, 20, 30, 30}, 25, 1},
                                         NearestRow{"unsorted", {30, 10, 20}, 25, 1},
                                         NearestRow{"tooFarToTellApart", {1e-9, 2e-9, 3e-9}, 1e12, 1}),
                         [](const auto& row) { return std::string{row.param.name}; });

RC_GTEST_PROP(VisibleWeights, averageLikeAddingThemUp, ()) {
  const auto samples = *someSamples();
  const DateInterval visible{dateSince1970(*someSeconds()), dateSince1970(*someSeconds())};
  const double average = averageByLooking(samples, visible);
  RC_ASSERT(std::abs(VisibleWeights{Samples(samples)}.averageInKg(visible) - average) <= 1e-12 * average);
}

/// Ten years with a weighing every 53 minutes, 20 to 400 kilograms.
std::vector<BodyWeightSample> longHistory(std::uint64_t seed) {
  std::vector<BodyWeightSample> samples;
  for (int index = 0; index < 100'000; ++index) {
    seed = seed * 6364136223846793005u + 1442695040888963407u;
    const double fraction = static_cast<double>(seed >> 11) / static_cast<double>(1ull << 53);
    samples.push_back({{0, seed}, dateSince1970(1.4e9 + index * 3153.6), 20 + 380 * fraction});
  }
  return samples;
}

TEST(VisibleWeights, averageALongHistoryToTwelveDigits) {
  const auto samples = longHistory(42);
  const VisibleWeights weights{Samples(samples)};
  for (const std::size_t first : {0u, 1u, 777u, 50'000u, 99'900u})
    for (const std::size_t count : {1u, 64u, 65u, 100u, 5'000u, 50'000u, 99'999u}) {
      const std::size_t last = std::min(first + count, samples.size()) - 1;
      const DateInterval visible{samples[first].date, samples[last].date};
      long double sum = 0;
      for (std::size_t index = first; index <= last; ++index) sum += samples[index].weightInKg;
      const auto exact = static_cast<double>(sum / static_cast<long double>(last - first + 1));
      EXPECT_NEAR(weights.averageInKg(visible) / exact, 1, 1e-14) << first << " to " << last;
      EXPECT_NEAR(weights.averageInKg(visible) / averageByLooking(samples, visible), 1, 1e-12)
          << first << " to " << last;
    }
}

TEST(VisibleWeights, averageWeightsThatASumOfAllWouldSwallow) {
  std::vector<double> seconds(201);
  std::iota(seconds.begin(), seconds.end(), 0);
  auto samples = samplesAt(seconds);
  samples[0].weightInKg = 1e16;  // every second kilogram is lost beside it
  const VisibleWeights weights{Samples(samples)};
  for (const int first : {1, 37, 100}) {
    const DateInterval visible{dateSince1970(first), dateSince1970(200)};
    EXPECT_NEAR(weights.averageInKg(visible), averageByLooking(samples, visible), 1e-12) << first;
  }
}

TEST(VisibleWeights, averageWhatCannotBeSummedOneByOne) {
  auto samples = longHistory(1);
  samples.front().weightInKg = 1.7e308;
  samples[1].weightInKg = 1.7e308;
  const VisibleWeights weights{Samples(samples)};
  const DateInterval visible{samples[100].date, samples[300].date};
  EXPECT_EQ(weights.averageInKg(visible), averageByLooking(samples, visible));
}

}  // namespace
}  // namespace mivo
