// SPDX-License-Identifier: MIT
#include "host/fasting/OverlappingFasts.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>

namespace mivo::host {
namespace {

Date at(int hour) { return dateSince1970(hour * secondsPerHour); }

/// `one` comes before `other`.
bool runAtOnce(const FastRecord& one, const FastRecord& other, Date now) {
  const auto end = [now](const FastRecord& record) { return record.fast.finished ? record.fast.finished->end : now; };
  const bool isInstant = other.fast.finished && end(other) == other.fast.start;
  return end(one) > one.fast.start && (isInstant || end(other) > other.fast.start) && other.fast.start < end(one);
}

RC_GTEST_PROP(OverlappingFasts, areThoseThatShareTimeWithAnyOther, (const std::vector<std::uint16_t>& hours)) {
  std::vector<FastRecord> fasts;
  for (const std::uint16_t hour : hours) {
    const int start = hour % 50, length = hour / 50 % 12 - 2;
    const UUID id{1, fasts.size()};
    fasts.push_back(
        {fasts.size() == 2 ? ongoingFast(id, at(start), 0) : finishedFast(id, at(start), at(start + length), 0), ""});
  }
  std::ranges::stable_sort(fasts, {}, [](const FastRecord& record) { return record.fast.start; });
  std::vector<bool> expected(fasts.size());
  for (std::size_t one = 0; one < fasts.size(); ++one)
    for (std::size_t other = one + 1; other < fasts.size(); ++other)
      if (runAtOnce(fasts[one], fasts[other], at(40))) expected[one] = expected[other] = true;
  RC_ASSERT(overlappingFasts(fasts, at(40)) == expected);
  const auto partners = overlapPartners(fasts, at(40));
  for (std::size_t one = 0; one < fasts.size(); ++one) {
    RC_ASSERT(partners[one].has_value() == expected[one]);
    if (!partners[one]) continue;
    const auto [first, second] = std::minmax(one, *partners[one]);
    RC_ASSERT(first != second);
    RC_ASSERT(runAtOnce(fasts[first], fasts[second], at(40)));
  }
}

}  // namespace
}  // namespace mivo::host
