// SPDX-License-Identifier: MIT
#include "data/generate/Weigher.h"

#include <algorithm>

#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::data {
namespace {

using namespace std::chrono;

std::int64_t trueWeight(std::span<const Milestone> milestones, local_days day) {
  const auto next = std::ranges::upper_bound(milestones, day, {}, &Milestone::day);
  if (next == milestones.begin()) return next->grams;
  if (next == milestones.end()) return milestones.back().grams;
  const auto& before = *(next - 1);
  return before.grams + (next->grams - before.grams) * (day - before.day).count() / (next->day - before.day).count();
}

std::int64_t afterTheWeekend(local_days day) {
  const weekday name{day};
  if (name == Monday) return 450;
  return name == Sunday || name == Tuesday ? 200 : 0;
}

}  // namespace

std::vector<BodyWeightSample> weighings(std::span<const Milestone> milestones, std::span<const Habit> habits,
                                        int timesAWeek, Date until, std::uint64_t seed) {
  Dice dice{seed};
  std::vector<BodyWeightSample> samples;
  std::shared_ptr<const adapters::TimeZone> zone;
  for (local_days day = milestones.front().day;; day += days{1}) {
    const std::string& zoneName = habitOn(habits, day).zone;
    if (!zone || zone->name() != zoneName) zone = adapters::loadTimeZone(zoneName).value();
    const seconds timeOfDay = hours{7} + minutes{8} + seconds{dice.bell(seconds{minutes{14}}.count())};
    const Date when{zone->firstInstant(day + timeOfDay)};
    if (when > until) return samples;
    if (dice.between(1, 7) > timesAWeek) continue;
    const std::int64_t grams = trueWeight(milestones, day) + afterTheWeekend(day) + dice.bell(260);
    const std::int64_t hectograms = (grams + 50) / 100;
    samples.push_back({dice.uuid(), when, static_cast<double>(hectograms) / 10});
  }
}

}  // namespace mivo::data
