// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <vector>

#include "mivo/model/BodyWeightSample.h"

namespace mivo::host {

/// The minute of a weighing, since 1970.
inline double minuteOf(const BodyWeightSample& sample) { return std::floor(secondsSince1970(sample.date) / 60); }

/// Whether two weighings are one that several sources have told: they lie in one minute, and differ by at most 10 g.
bool isSameWeighing(const BodyWeightSample& one, const BodyWeightSample& other);

/// Whether a weighing is the same as one of those, of which the first and all others of its minute come first.
template <class Iterator>
bool isAmongItsMinute(const BodyWeightSample& sample, Iterator first, Iterator last) {
  for (; first != last && minuteOf(*first) == minuteOf(sample); ++first)
    if (isSameWeighing(*first, sample)) return true;
  return false;
}

/// Those of `samples` that are the same as none of `known`; all ascend by date. Cost: linear.
std::vector<BodyWeightSample> newWeighings(const std::vector<BodyWeightSample>& samples,
                                           const std::vector<BodyWeightSample>& known);

}  // namespace mivo::host
