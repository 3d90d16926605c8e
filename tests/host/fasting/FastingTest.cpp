// SPDX-License-Identifier: MIT
#include "host/fasting/Fasting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

Date at(double hours) { return dateSince1970(1772366400 + hours * secondsPerHour); }

const Date now = at(0);

FastRecord ended(std::uint64_t id, double start, double end, std::string note = "") {
  return {finishedFast({1, id}, at(start), at(end), 57600), std::move(note)};
}

FastRecord running(std::uint64_t id, double start, std::int64_t goalSeconds = 57600) {
  return {ongoingFast({1, id}, at(start), goalSeconds), "tea"};
}

const std::vector<FastRecord> none, past{ended(1, -40, -24, "first"), ended(2, -20, -4)},
    withRunning{ended(1, -40, -24), running(3, -3)}, fromTheFuture{ended(1, -40, -24), running(3, 2)},
    odd{ended(4, -40, -41)};

struct FastRow {
  const char* name;
  std::function<Outcome()> act;
  Outcome expected;
};

void PrintTo(const FastRow& row, std::ostream* out) { *out << row.name; }

class Fasting : public testing::TestWithParam<FastRow> {};

TEST_P(Fasting, isAChangeOrARefusalWithItsFacts) { EXPECT_TRUE(GetParam().act() == GetParam().expected); }

Outcome refused(Refusal why) { return tl::unexpected{std::move(why)}; }
Outcome fault(RecordFault kind) { return refused(IsNoRecord{kind}); }

INSTANTIATE_TEST_SUITE_P(
    Start, Fasting,
    testing::Values(FastRow{"first", [] { return addingFast(none, running(9, -1), now); }, adding(running(9, -1))},
                    FastRow{"whileOneRuns", [] { return addingFast(withRunning, running(9, -1), now); },
                            refused(FastIsRunning{running(3, -3)})},
                    FastRow{"inTheFuture", [] { return addingFast(past, running(9, 1), now); },
                            fault(RecordFault::startInFuture)},
                    FastRow{"endedWhileOneRuns", [] { return addingFast(withRunning, ended(9, -2, -1), now); },
                            adding(ended(9, -2, -1))},
                    FastRow{"again", [] { return addingFast(past, ended(9, -40, -24, "first"), now); },
                            refused(FastIsSavedAlready{past[0]})},
                    FastRow{"againWithANote", [] { return addingFast(past, ended(9, -40, -24, "other"), now); },
                            adding(ended(9, -40, -24, "other"))},
                    FastRow{"endedInTheFuture", [] { return addingFast(past, ended(9, -2, 1), now); },
                            fault(RecordFault::endInFuture)}),
    [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(Stop, Fasting,
                         testing::Values(FastRow{"now", [] { return stopping(withRunning, now, now); },
                                                 replacing(running(3, -3), stopped(running(3, -3), now))},
                                         FastRow{"none", [] { return stopping(past, now, now); },
                                                 refused(NoFastIsRunning{})},
                                         FastRow{"beforeItsStart", [] { return stopping(withRunning, at(-4), now); },
                                                 refused(IsNoRecord{RecordFault::endBeforeStart, running(3, -3)})},
                                         FastRow{"inTheFuture", [] { return stopping(withRunning, at(1), now); },
                                                 refused(IsNoRecord{RecordFault::endInFuture, running(3, -3)})},
                                         FastRow{"clockSetBack", [] { return stopping(fromTheFuture, now, now); },
                                                 refused(IsNoRecord{RecordFault::startInFuture, running(3, 2)})}),
                         [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(
    Change, Fasting,
    testing::Values(
        FastRow{"end", [] { return changingFast(past, ended(2, -20, -5), now); },
                replacing(ended(2, -20, -4), ended(2, -20, -5))},
        FastRow{"nothing", [] { return changingFast(past, ended(2, -20, -4), now); }, HistoryChange{}},
        FastRow{"gone", [] { return changingFast(past, ended(9, -20, -5), now); }, refused(IsGone{})},
        FastRow{"runsOnWhileAnotherRuns", [] { return changingFast(withRunning, running(1, -40), now); },
                refused(FastIsRunning{running(3, -3)})},
        FastRow{"runsOn", [] { return changingFast(past, running(2, -20), now); },
                replacing(ended(2, -20, -4), running(2, -20))},
        FastRow{"endBeforeStart", [] { return changingFast(past, ended(2, -4, -5), now); },
                fault(RecordFault::endBeforeStart)},
        FastRow{"oldFaultLeftInPeace", [] { return changingFast(odd, ended(4, -40, -41, "odd"), now); },
                replacing(ended(4, -40, -41), ended(4, -40, -41, "odd"))},
        FastRow{"start", [] { return changingStart(withRunning, at(-5), now); },
                replacing(running(3, -3), running(3, -5))},
        FastRow{"sameMinute", [] { return changingStart(withRunning, at(-3) + Duration{59}, now); }, HistoryChange{}},
        FastRow{"startStillInTheFuture", [] { return changingStart(fromTheFuture, at(1), now); },
                fault(RecordFault::startInFuture)},
        FastRow{"startOfNone", [] { return changingStart(past, at(-5), now); }, refused(NoFastIsRunning{})},
        FastRow{"goal", [] { return changingGoal(withRunning, 72000, now); },
                replacing(running(3, -3), running(3, -3, 72000))},
        FastRow{"goalWithTheClockSetBack", [] { return changingGoal(fromTheFuture, 72000, now); },
                replacing(running(3, 2), running(3, 2, 72000))},
        FastRow{"negativeGoal", [] { return changingGoal(withRunning, -1, now); }, fault(RecordFault::goalOutOfRange)},
        FastRow{"goalOfNone", [] { return changingGoal(past, 72000, now); }, refused(NoFastIsRunning{})},
        FastRow{"removed", [] { return removingFast(past, {1, 1}); }, removing(past[0])},
        FastRow{"removedAlready", [] { return removingFast(past, {1, 9}); }, refused(IsGone{})}),
    [](const auto& row) { return std::string{row.param.name}; });

struct SoonRow {
  const char* name;
  double start, end;  // seconds from noon
  bool isKept;
};
void PrintTo(const SoonRow& row, std::ostream* out) { *out << row.name; }
class StoppedSoon : public testing::TestWithParam<SoonRow> {};

TEST_P(StoppedSoon, isRemovedUnlessItIsMeant) {
  FastRecord begun = running(3, 0);
  begun.fast.start = now + Duration{GetParam().start};
  const Date end = now + Duration{GetParam().end};
  EXPECT_EQ(stopping(std::vector{begun}, end, now).value(),
            GetParam().isKept ? replacing(begun, stopped(begun, end)) : removing(begun));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StoppedSoon,
    testing::Values(SoonRow{"atOnce", -30.25, -30.25, false}, SoonRow{"withinAMinute", -70.5, -10.75, false},
                    SoonRow{"overTheTurnOfAMinute", -60.5, -59.5, false}, SoonRow{"afterAMinute", -70.5, -10.5, true},
                    SoonRow{"begunAtAChosenTime", -60, -30.5, true}, SoonRow{"endedAtAChosenTime", -90.5, -60, true}),
    [](const auto& row) { return std::string{row.param.name}; });

/// "814" for 81.4 in a unit.
struct Tenths : MassFormatter {
  std::string string(double weightInKg, WeightUnit unit) const override {
    return std::to_string(std::lround(weightInKg / kilogramsPer(unit) * 10));
  }
};

BodyWeightSample weight(std::uint64_t id, double seconds, double weightInKg) {
  return {UUID{2, id}, now + Duration{seconds}, weightInKg};
}

const std::vector<BodyWeightSample> weights{weight(1, -181, 81.4), weight(2, -180, 80), weight(3, -150, 81.4),
                                            weight(4, -120, 82)};

Outcome addedWeight(double seconds, double weightInKg, WeightUnit unit) {
  return addingWeight(weights, weight(9, seconds, weightInKg), unit, Tenths{}, now);
}

constexpr WeightUnit kilograms = WeightUnit::kilograms;

INSTANTIATE_TEST_SUITE_P(
    Weight, Fasting,
    testing::Values(
        FastRow{"sameMinute", [] { return addedWeight(-121, 81.4, kilograms); }, refused(IsSavedAlready{weights[2]})},
        FastRow{"firstOfItsMinute", [] { return addedWeight(-121, 80, kilograms); },
                refused(IsSavedAlready{weights[1]})},
        FastRow{"minuteBefore", [] { return addedWeight(-240, 81.4, kilograms); }, refused(IsSavedAlready{weights[0]})},
        FastRow{"anotherMinute", [] { return addedWeight(-119, 81.4, kilograms); }, adding(weight(9, -119, 81.4))},
        FastRow{"shownAlike", [] { return addedWeight(-170, 81.41, kilograms); }, refused(IsSavedAlready{weights[2]})},
        FastRow{"shownOtherwise", [] { return addedWeight(-170, 81.46, kilograms); }, adding(weight(9, -170, 81.46))},
        FastRow{"shownAlikeInStones", [] { return addedWeight(-170, 81.46, WeightUnit::stones); },
                refused(IsSavedAlready{weights[2]})},
        FastRow{"ofTheFuture", [] { return addedWeight(1, 81.4, kilograms); }, fault(RecordFault::dateInFuture)},
        FastRow{"ofNobody", [] { return addedWeight(-1, 0, kilograms); }, fault(RecordFault::weightOutOfRange)},
        FastRow{"changedWeight", [] { return changingWeight(weights, weight(4, -120, 83), now); },
                replacing(weights[3], weight(4, -120, 83))},
        FastRow{"changedWeightToNobodys", [] { return changingWeight(weights, weight(4, -120, -1), now); },
                fault(RecordFault::weightOutOfRange)},
        FastRow{"changedWeightThatIsGone", [] { return changingWeight(weights, weight(9, -120, 83), now); },
                refused(IsGone{})},
        FastRow{"removedWeight", [] { return removingWeight(weights, {2, 4}); }, removing(weights[3])},
        FastRow{"removedWeightAlready", [] { return removingWeight(weights, {2, 9}); }, refused(IsGone{})}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(Refusals, areASentenceEach) {
  const tests::EnglishTexts texts;
  EXPECT_EQ(refusalText(FastIsRunning{running(3, -3)}, texts), "A fast is running already.");
  EXPECT_EQ(refusalText(NoFastIsRunning{}, texts), "No fast is running.");
  EXPECT_EQ(refusalText(IsGone{}, texts), "Nothing was changed: the record is gone.");
  EXPECT_EQ(refusalText(FastIsSavedAlready{past[0]}, texts), "This fast is saved already.");
  EXPECT_EQ(refusalText(IsSavedAlready{weights[0]}, texts), "This weight is saved already.");
  EXPECT_EQ(refusalText(NothingToUndo{}, texts), "There is nothing to undo.");
  EXPECT_EQ(refusalText(IsNoRecord{RecordFault::endBeforeStart}, texts), "The end is before the start.");
}

}  // namespace
}  // namespace mivo::host
