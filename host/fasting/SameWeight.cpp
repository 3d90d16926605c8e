// SPDX-License-Identifier: MIT
#include "host/fasting/SameWeight.h"

#include <algorithm>
#include <cmath>

namespace mivo::host {
namespace {

constexpr double secondsPerMinute = 60;

double minuteOf(Date date) { return std::floor(secondsSince1970(date) / secondsPerMinute); }

}  // namespace

const BodyWeightSample* sameWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& sample,
                                   WeightUnit unit, const MassFormatter& masses) {
  const auto ofThatMinute = std::ranges::equal_range(weights, minuteOf(sample.date), {},
                                                     [](const BodyWeightSample& one) { return minuteOf(one.date); });
  const std::string shown = masses.string(sample.weightInKg, unit);
  const auto same = std::ranges::find_if(
      ofThatMinute, [&](const BodyWeightSample& one) { return masses.string(one.weightInKg, unit) == shown; });
  return same == ofThatMinute.end() ? nullptr : &*same;
}

}  // namespace mivo::host
