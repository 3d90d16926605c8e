// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/model/TimeRange.h"

namespace mivo {

/// Thins a dense series, ascending by date: week keeps it as it is, month keeps the last sample of each day of Unix
/// time, year the last of each seven days. Order is kept; O(n).
template <class Sample>
std::vector<Sample> reducedSampleResolution(std::span<const Sample> samples, TimeRange range) {
  if (range == TimeRange::week) return {samples.begin(), samples.end()};
  const double bucketSeconds = range == TimeRange::month ? secondsPerDay : 7 * secondsPerDay;
  const auto bucket = [&](const Sample& sample) { return std::floor(secondsSince1970(sample.date) / bucketSeconds); };
  std::vector<Sample> kept;
  double own = samples.empty() ? 0 : bucket(samples.front());
  for (std::size_t index = 0; index < samples.size(); ++index) {
    const bool isLast = index + 1 == samples.size();
    const double next = isLast ? own : bucket(samples[index + 1]);
    if (isLast || next != own) kept.push_back(samples[index]);
    own = next;
  }
  return kept;
}

}  // namespace mivo
