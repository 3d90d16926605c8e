// SPDX-License-Identifier: MIT
#include "host/history/SameWeighing.h"

namespace mivo::host {

bool isSameWeighing(const BodyWeightSample& one, const BodyWeightSample& other) {
  constexpr double mostBetweenSources = 0.0100000001;  // kilograms
  return minuteOf(one) == minuteOf(other) && std::abs(one.weightInKg - other.weightInKg) <= mostBetweenSources;
}

std::vector<BodyWeightSample> newWeighings(const std::vector<BodyWeightSample>& samples,
                                           const std::vector<BodyWeightSample>& known) {
  std::vector<BodyWeightSample> unknown;
  auto ofItsMinute = known.begin();
  for (const BodyWeightSample& sample : samples) {
    while (ofItsMinute != known.end() && minuteOf(*ofItsMinute) < minuteOf(sample)) ++ofItsMinute;
    if (!isAmongItsMinute(sample, ofItsMinute, known.end())) unknown.push_back(sample);
  }
  return unknown;
}

}  // namespace mivo::host
