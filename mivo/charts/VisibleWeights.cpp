// SPDX-License-Identifier: MIT
#include "mivo/charts/VisibleWeights.h"

#include <cmath>
#include <span>
#include <utility>

namespace mivo {
namespace {

constexpr std::size_t fewEnoughToAdd = 64;

/// What rounding took from `one + other` (Knuth's two-sum: exact for any two doubles whose sum is finite).
double roundedOff(double one, double other) {
  const double sum = one + other;
  const double part = sum - one;
  return (one - (sum - part)) + (other - part);
}

double average(std::span<const BodyWeightSample> samples) {
  double sum = 0;
  for (const auto& sample : samples) sum += sample.weightInKg;
  return samples.empty() ? 0 : sum / static_cast<double>(samples.size());
}

double averageByScan(const List<BodyWeightSample>& samples, DateInterval visible) {
  double sum = 0, count = 0;
  for (const auto& sample : samples) {
    if (!(sample.date >= visible.start && sample.date <= visible.end)) continue;
    sum += sample.weightInKg;
    ++count;
  }
  return count == 0 ? 0 : sum / count;
}

}  // namespace

VisibleWeights::VisibleWeights(List<BodyWeightSample> samples)
    : series{std::move(samples)}, sums{runningSums(series)} {}

auto VisibleWeights::runningSums(const DatedSeries<BodyWeightSample>& series) -> std::vector<Sum> {
  std::vector<Sum> sums;
  sums.reserve(series.entries().size() + 1);
  Sum sum;
  sums.push_back(sum);
  for (const auto& sample : series.entries()) {
    const double rest = sum.rest + roundedOff(sum.rounded, sample.weightInKg);
    const double rounded = sum.rounded + sample.weightInKg;
    sum = {.rounded = rounded + rest, .rest = roundedOff(rounded, rest)};
    sums.push_back(sum);
  }
  return std::isfinite(sum.rounded) ? sums : std::vector<Sum>{};
}

double VisibleWeights::averageInKg(DateInterval visible) const {
  if (!series.isAscending()) return averageByScan(samples(), visible);
  const auto shown = series.within(visible);
  if (shown.size() <= fewEnoughToAdd || sums.empty()) return average(shown);
  const auto place = static_cast<std::size_t>(shown.data() - samples().data());
  const Sum &before = sums[place], &upTo = sums[place + shown.size()];
  const double sum = upTo.rounded - before.rounded;
  const double rest = roundedOff(upTo.rounded, -before.rounded) + (upTo.rest - before.rest);
  return (sum + rest) / static_cast<double>(shown.size());
}

}  // namespace mivo
