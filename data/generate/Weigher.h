// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <vector>

#include "data/generate/Eater.h"
#include "mivo/model/BodyWeightSample.h"

namespace mivo::data {

/// A point of somebody's true weight, which runs straight from one to the next.
struct Milestone {
  std::chrono::local_days day;
  std::int64_t grams;
};

/// The weighings of somebody who steps on the scales in the morning, on `timesAWeek` days of seven: to 100 grams,
/// heavier after weekends, scattered as water makes it. Ascending by date, up to `until`.
std::vector<BodyWeightSample> weighings(std::span<const Milestone> milestones, std::span<const Habit> habits,
                                        int timesAWeek, Date until, std::uint64_t seed);

}  // namespace mivo::data
