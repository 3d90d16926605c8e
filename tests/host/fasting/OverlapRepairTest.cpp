// SPDX-License-Identifier: MIT
#include "host/fasting/OverlapRepair.h"
#include "host/fasting/OverlappingFasts.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <iomanip>

namespace mivo::host {
namespace {

constexpr double noEnd = -1;

Date at(double hours) { return dateSince1970(hours * secondsPerHour); }
const Date now = at(100);

FastRecord fast(std::uint64_t id, double start, double end, std::int64_t goalHours = 16, std::string note = "") {
  const std::int64_t goal = goalHours * 3600;
  return {end == noEnd ? mivo::ongoingFast({0, id}, at(start), goal) : finishedFast({0, id}, at(start), at(end), goal),
          std::move(note)};
}

std::string described(const std::vector<FastRecord>& fasts) {
  std::ostringstream out;
  for (const auto& [entry, note] : fasts) {
    out << entry.id.low << ": " << secondsSince1970(entry.start) / secondsPerHour << " to ";
    if (entry.finished)
      out << secondsSince1970(entry.finished->end) / secondsPerHour;
    else
      out << "now";
    out << ", " << entry.goalSeconds / 3600 << " h" << (note.empty() ? "" : ", ") << note << "; ";
  }
  return out.str();
}

struct Row {
  const char* name;
  std::vector<FastRecord> fasts, before, after;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

class OverlapRepair : public testing::TestWithParam<Row> {};

TEST_P(OverlapRepair, mergesByHalfAndElseTrims) {
  const auto& [name, fasts, before, after] = GetParam();
  const HistoryChange change = overlapRepair(fasts, now);
  EXPECT_EQ(described(change.removedFasts), described(before));
  EXPECT_EQ(described(change.addedFasts), described(after));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OverlapRepair,
    testing::Values(
        Row{"noneOverlaps", {fast(1, 0, 16), fast(2, 16, 30)}, {}, {}},
        Row{"halfOfTheShorterMerges",
            {fast(1, 0, 16, 16, "one"), fast(2, 12, 20, 18, "two")},
            {fast(1, 0, 16, 16, "one"), fast(2, 12, 20, 18, "two")},
            {fast(1, 0, 20, 18, "one\ntwo")}},
        Row{"lessThanHalfTrimsTheLater", {fast(1, 0, 16), fast(2, 12.5, 20)}, {fast(2, 12.5, 20)}, {fast(2, 16, 20)}},
        Row{"oneInsideAnotherGoesIntoIt", {fast(2, 4, 8), fast(1, 0, 16)}, {fast(2, 4, 8)}, {}},
        Row{"trimmingMeetsTheNext",
            {fast(1, 0, 16), fast(2, 13, 24), fast(3, 16.5, 17)},
            {fast(2, 13, 24), fast(3, 16.5, 17)},
            {fast(2, 16, 24)}},
        Row{"aRunningOneStaysRunning",
            {fast(1, 80, 98), fast(2, 90, noEnd)},
            {fast(1, 80, 98), fast(2, 90, noEnd)},
            {fast(1, 80, noEnd)}},
        Row{"oneThatEndsBeforeItStartsIsLeftAlone", {fast(1, 10, 5), fast(2, 0, 16)}, {}, {}},
        Row{"oneOfNoLengthGoesFromWithinAnother", {fast(1, 0, 16), fast(2, 4, 4, 20)}, {fast(2, 4, 4, 20)}, {}},
        Row{"oneOfNoLengthLeavesItsNote",
            {fast(2, 0, 0, 16, "tea"), fast(1, 0, 16)},
            {fast(2, 0, 0, 16, "tea"), fast(1, 0, 16)},
            {fast(1, 0, 16, 16, "tea")}},
        Row{"oneOfNoLengthStaysBetweenOthers", {fast(1, 0, 16), fast(2, 16, 16), fast(3, 17, 20)}, {}, {}},
        Row{"oneOfNoLengthGoesWithTheTrimmed",
            {fast(1, 0, 16), fast(2, 13, 24), fast(3, 16, 16)},
            {fast(2, 13, 24), fast(3, 16, 16)},
            {fast(2, 16, 24)}},
        Row{"equalNotesAreJoinedOnce",
            {fast(1, 0, 16, 16, "tea"), fast(2, 0, 17, 16, "tea")},
            {fast(1, 0, 16, 16, "tea"), fast(2, 0, 17, 16, "tea")},
            {fast(1, 0, 17, 16, "tea")}}),
    [](const auto& row) { return std::string{row.param.name}; });

RC_GTEST_PROP(OverlapRepair, leavesNoOverlapAndTheSameStretches, ()) {
  const auto spans = *rc::gen::container<std::vector<std::pair<int, int>>>(
      rc::gen::pair(rc::gen::inRange(0, 60), rc::gen::inRange(0, 30)));
  std::vector<FastRecord> fasts;
  for (const auto& [start, hours] : spans) fasts.push_back(fast(fasts.size() + 1, start, start + hours));
  const auto startOf = [](const FastRecord& record) { return record.fast.start; };
  std::ranges::stable_sort(fasts, {}, startOf);
  const HistoryChange change = overlapRepair(fasts, now);
  if (change == HistoryChange{}) RC_ASSERT(std::ranges::count(overlappingFasts(fasts, now), true) == 0);
  std::vector<FastRecord> repaired = change.addedFasts;
  for (const auto& record : fasts)
    if (std::ranges::find(change.removedFasts, record) == change.removedFasts.end()) repaired.push_back(record);
  std::ranges::stable_sort(repaired, {}, startOf);
  RC_ASSERT(std::ranges::count(overlappingFasts(repaired, now), true) == 0);

  const auto covers = [](const std::vector<FastRecord>& all, double hour) {
    return std::ranges::count_if(
        all, [&](const auto& record) { return record.fast.start <= at(hour) && at(hour) < record.fast.finished->end; });
  };
  for (double hour = 0; hour < 100; hour += 0.5)
    RC_ASSERT(covers(repaired, hour) == std::min<std::ptrdiff_t>(1, covers(fasts, hour)));
}

}  // namespace
}  // namespace mivo::host
