// SPDX-License-Identifier: MIT
#include "mivo/calculations/WeightSeries.h"

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <utility>

#include "mivo/regressor/LinearRegressor.h"

namespace mivo {
namespace {

constexpr double clearCorrelation = 0.7;

// A sum that numbers enter and leave without leaving their rounding error behind: `error` is what `sum` lacks, by
// Knuth's error-free addition (The Art of Computer Programming, volume 2, 4.2.2, theorem B). What is not finite could
// not be taken out of a sum again: it is counted instead.
class SlidingSum {
 public:
  void enter(double number) { std::isfinite(number) ? add(number) : void(++notFinite); }
  void leave(double number) { std::isfinite(number) ? add(-number) : void(--notFinite); }
  double value() const { return notFinite == 0 ? sum + error : std::numeric_limits<double>::quiet_NaN(); }

 private:
  void add(double number) {
    const double next = sum + number;
    const double added = next - sum;
    error += (sum - (next - added)) + (number - added);
    sum = next;
  }

  double sum = 0, error = 0;
  std::size_t notFinite = 0;
};

}  // namespace

std::vector<WeightAverageEntry> weeklyAverages(std::span<const BodyWeightSample> samples, const UUIDGenerator& ids) {
  std::vector<UUID> fresh(samples.size());
  ids.fill(fresh);
  std::vector<WeightAverageEntry> averages(
      samples.size());  // full size: a call to grow would cost the sum its register
  SlidingSum sum;
  std::size_t first = 0;
  for (std::size_t last = 0; last < samples.size(); ++last) {
    sum.enter(samples[last].weightInKg);
    for (; first < last && samples[last].date - samples[first].date > averagedSpan; ++first)
      sum.leave(samples[first].weightInKg);
    averages[last] = {fresh[last], samples[last].date, sum.value() / static_cast<double>(last - first + 1)};
  }
  return averages;
}

std::optional<ClosedDateRange> trendTimeRange(std::span<const BodyWeightSample> trendSamples) {
  if (trendSamples.empty() || trendSamples.front() == trendSamples.back()) return std::nullopt;
  const ClosedDateRange range{trendSamples.front().date, trendSamples.back().date};
  if (range.lowerBound <= range.upperBound) return range;
  std::fputs("Weight samples must come in ascending order of their dates.\n", stderr);
  std::abort();
}

std::optional<double> weightTrendInKg(std::span<const BodyWeightSample> trendSamples, const ClosedDateRange& range) {
  if (trendSamples.size() < 2) return std::nullopt;
  using Line = LinearRegressor<double>;
  std::vector<Line::Point> points;
  points.reserve(trendSamples.size());
  for (const auto& sample : trendSamples)
    points.push_back({secondsBetween(range.lowerBound, sample.date), sample.weightInKg});
  auto line = Line::make(std::move(points));
  if (!line || !(std::abs(line->pearsonsCorrelation()) >= clearCorrelation)) return std::nullopt;
  return line->slope() * range.duration();
}

}  // namespace mivo
