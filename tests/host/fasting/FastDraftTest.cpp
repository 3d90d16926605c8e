// SPDX-License-Identifier: MIT
#include "host/fasting/FastDraft.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mivo::host {
namespace {

constexpr double noon = 1772366400;
Date at(double hours) { return dateSince1970(noon + hours * secondsPerHour); }
const Date now = at(0) + Duration{12.5};

FastRecord ended(std::uint64_t id, double start, double end) {
  return {finishedFast({1, id}, at(start), at(end), 57600), "tea"};
}
FastRecord running(std::uint64_t id, double start) { return {ongoingFast({1, id}, at(start), 57600), ""}; }

struct NewDraftRow {
  const char* name;
  std::vector<FastRecord> fasts;
  double start, end;  // hours from noon
};
void PrintTo(const NewDraftRow& row, std::ostream* out) { *out << row.name; }
class NewDraft : public testing::TestWithParam<NewDraftRow> {};

TEST_P(NewDraft, overlapsNoFastAndEndsWithAWholeMinute) {
  const auto& [name, fasts, start, end] = GetParam();
  const FastDraft draft = newDraft(fasts, {1, 9}, 36000, now);
  EXPECT_EQ(draft.record, (FastRecord{finishedFast({1, 9}, at(start), at(end), 36000), ""}));
  EXPECT_EQ(draft.before, std::nullopt);
  EXPECT_EQ(faultOf(draft, now), std::nullopt);
  EXPECT_EQ(overlapOf(draft, fasts, now), nullptr);
}

constexpr double second = 1.0 / 3600;

INSTANTIATE_TEST_SUITE_P(
    Rows, NewDraft,
    testing::Values(NewDraftRow{"first", {}, -10, 0}, NewDraftRow{"longAfterOthers", {ended(1, -40, -24)}, -10, 0},
                    NewDraftRow{"soonAfterTheLast", {ended(1, -20, -4)}, -4, 0},
                    NewDraftRow{"beforeTheRunningOne", {running(2, -3)}, -13, -3},
                    NewDraftRow{"betweenTheLastAndTheRunningOne", {ended(1, -20, -7), running(2, -3)}, -7, -3},
                    NewDraftRow{"beforeALastThatEndedJustNow", {ended(1, -16, 3 * second)}, -26, -16},
                    NewDraftRow{"whereNoRoomIsLeft", {ended(1, -40, -20), ended(2, -16, -3), running(3, -3)}, -20, -16},
                    NewDraftRow{"roundALongOne", {ended(1, -40, -2), ended(2, -20, -10)}, -2, 0},
                    NewDraftRow{"beforeALongOneUnderTheRunning", {ended(1, -30, -1), running(2, -3)}, -40, -30},
                    NewDraftRow{"oneFromTheFuture", {running(2, 3)}, -10, 0}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(FastDraft, keepsTheSecondsOfAMinuteThatIsChosenAgain) {
  FastRecord record = ended(1, -20, -4);
  record.fast = finishedFast({1, 1}, at(-20) + Duration{20}, at(-4) + Duration{59}, 57600);
  FastDraft draft = draftOf(record);
  draft.failure = "The disk is full.";
  const FastDraft same = withEnd(withStart(draft, at(-20)), at(-4));
  EXPECT_EQ(same.record, record);
  EXPECT_EQ(same.failure, "") << "of the attempt before";
  EXPECT_EQ(withStart(draft, at(-19)).record.fast.start, at(-19));
  EXPECT_EQ(withEnd(draft, at(-5)).record.fast.finished->end, at(-5));
  EXPECT_EQ(withGoal(draft, 1).record.fast.goalSeconds, 1);
}

TEST(FastDraft, isNotWorthSavingForAFaultOfItsOwn) {
  const FastRecord odd = ended(1, -20, -21);
  EXPECT_EQ(faultOf(draftOf(odd), now), std::nullopt) << "it was so before";
  EXPECT_EQ(faultOf(withEnd(draftOf(ended(1, -20, -4)), at(-21)), now), RecordFault::endBeforeStart);
  EXPECT_EQ(faultOf(withEnd(draftOf(odd), at(1)), now), RecordFault::endInFuture);
}

struct OverlapRow {
  const char* name;
  double start, end;
  int expected;  // which of the fasts; -1 for none
};
void PrintTo(const OverlapRow& row, std::ostream* out) { *out << row.name; }
class DraftOverlap : public testing::TestWithParam<OverlapRow> {};

TEST_P(DraftOverlap, isOfTheOneThatBeganLast) {
  const std::vector<FastRecord> fasts{ended(1, -40, -24), ended(2, -20, -10), ended(3, -8, -9), running(4, -3)};
  const FastRecord* other = overlapOf(draftOf(ended(2, GetParam().start, GetParam().end)), fasts, now);
  EXPECT_EQ(other ? other - fasts.data() : -1, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, DraftOverlap,
                         testing::Values(OverlapRow{"itself", -20, -10, -1}, OverlapRow{"touching", -24, -3, -1},
                                         OverlapRow{"earlier", -25, -10, 0}, OverlapRow{"running", -4, -1, 3},
                                         OverlapRow{"both", -25, -2, 3}, OverlapRow{"noLengthWithinOne", -30, -30, 0},
                                         OverlapRow{"backwards", -2, -30, -1}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(FastDraft, isSavedAsAnEditOrAsANewFast) {
  const std::vector<FastRecord> fasts{ended(1, -40, -24)};
  EXPECT_EQ(saving(withEnd(draftOf(fasts[0]), at(-25)), fasts, now).value(), replacing(fasts[0], ended(1, -40, -25)));
  const FastDraft added = newDraft(fasts, {1, 9}, 36000, now);
  EXPECT_EQ(saving(added, fasts, now).value(), adding(added.record));
}

}  // namespace
}  // namespace mivo::host
