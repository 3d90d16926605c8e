// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <random>
#include <vector>

#include "mivo/model/Fasts.h"

namespace mivo {

inline void showValue(const FinishedFastingDataEntry& fast, std::ostream& out) {
  out << std::fixed << '{' << secondsSince1970(fast.start) << " + " << secondsBetween(fast.start, fast.end)
      << " s, goal " << fast.goalSeconds << '}';
}

}  // namespace mivo

namespace mivo::tests {

using Fasts = std::vector<FinishedFastingDataEntry>;

/// Seconds from one fast's end to the next one's start: often right at a limit of that many hours, sometimes an
/// overlap.
inline rc::Gen<double> gaps(std::int64_t limitHours) {
  const double limit = static_cast<double>(limitHours) * secondsPerHour;
  return rc::gen::weightedOneOf<double>(
      {{2, rc::gen::element(limit - 1, limit, limit + 1, 0.0)},
       {4, rc::gen::map(rc::gen::inRange(-10 * 60, 40 * 60), [](int minutes) { return minutes * 60.0; })},
       {1, rc::gen::map(rc::gen::inRange(0, 4000), [](int quarters) { return quarters / 4.0; })},
       {1, rc::gen::map(rc::gen::inRange(0, 40), [](int days) { return days * secondsPerDay; })}});
}

/// Seconds: mostly the fasts that people keep, some of several days, of no length, or that end before they start.
inline rc::Gen<double> lengths() {
  return rc::gen::weightedOneOf<double>(
      {{6, rc::gen::map(rc::gen::inRange(0, 24 * 3600), [](int seconds) { return static_cast<double>(seconds); })},
       {2, rc::gen::map(rc::gen::inRange(0, 120 * 4), [](int quarters) { return quarters * 900.0; })},
       {1, rc::gen::element(0.0, -60.0, 14400.0, 57600.0, 86400.0, 259200.0, 57600.25)}});
}

/// Up to 40 fasts that begin within some weeks of an instant, in any order; gaps and goals are often right at a limit.
inline rc::Gen<Fasts> histories(Date around, std::int64_t limitHours = 24) {
  return rc::gen::exec([around, limitHours] {
    const int count = *rc::gen::inRange(0, 40);
    Date start = around - Duration{*rc::gen::inRange(0, 30 * 86400) * 1.0};
    Fasts fasts;
    for (int i = 0; i < count; ++i) {
      const double length = *lengths();
      const auto reached = static_cast<std::int64_t>(length);
      fasts.push_back(
          {start, start + Duration{length}, *rc::gen::element<std::int64_t>(0, 57600, reached, reached + 1)});
      start = std::max(start, fasts.back().end + Duration{*gaps(limitHours)});
    }
    if (!fasts.empty() && *rc::gen::inRange(0, 4) == 0)  // two that end when the last one does
      fasts[*rc::gen::inRange<std::size_t>(0, fasts.size())].end = fasts.back().end;
    switch (*rc::gen::inRange(0, 3)) {
      case 0:
        return fasts;
      case 1:
        return Fasts(fasts.rbegin(), fasts.rend());
      default:
        std::ranges::shuffle(fasts, std::mt19937{*rc::gen::arbitrary<unsigned>()});
        return fasts;
    }
  });
}

}  // namespace mivo::tests
