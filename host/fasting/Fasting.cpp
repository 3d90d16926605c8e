// SPDX-License-Identifier: MIT
#include "host/fasting/Fasting.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace mivo::host {
namespace {

constexpr double secondsPerMinute = 60;

tl::unexpected<Refusal> refused(Refusal why) { return tl::unexpected{std::move(why)}; }

// Of a record that is as it was nothing is to be written.
template <class Record>
Outcome replacedBy(const Record& before, const Record& after, Date now) {
  if (before == after) return HistoryChange{};
  if (const auto fault = recordFault(after, std::optional{before}, now)) return refused(IsNoRecord{*fault});
  return replacing(before, after);
}

bool isMistake(const FinishedFastingDataEntry& fast) {
  const auto isChosen = [](Date date) { return startOfMinute(date) == date; };
  return fast.duration() < secondsPerMinute && !isChosen(fast.start) && !isChosen(fast.end);
}

template <class Record, class Project>
const Record* withID(std::span<const Record> records, UUID id, Project idOf) {
  const auto found = std::ranges::find(records, id, idOf);
  return found == records.end() ? nullptr : &*found;
}

const FastRecord* sameFast(std::span<const FastRecord> fasts, const FastRecord& fast) {
  const auto same = std::ranges::find_if(fasts, [&](const FastRecord& one) {
    const bool isSameTime = one.fast.start == fast.fast.start && one.fast.finished == fast.fast.finished;
    return isSameTime && one.fast.goalSeconds == fast.fast.goalSeconds && one.note == fast.note;
  });
  return same == fasts.end() ? nullptr : &*same;
}

const BodyWeightSample* sameWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& sample,
                                   WeightUnit unit, const MassFormatter& masses) {
  const auto ofThatMinute = std::ranges::equal_range(
      weights, startOfMinute(sample.date), {}, [](const BodyWeightSample& one) { return startOfMinute(one.date); });
  const std::string shown = masses.string(sample.weightInKg, unit);
  const auto same = std::ranges::find_if(
      ofThatMinute, [&](const BodyWeightSample& one) { return masses.string(one.weightInKg, unit) == shown; });
  return same == ofThatMinute.end() ? nullptr : &*same;
}

}  // namespace

const FastRecord* fastWithID(std::span<const FastRecord> fasts, UUID id) {
  return withID(fasts, id, [](const FastRecord& record) { return record.fast.id; });
}

const BodyWeightSample* weightWithID(std::span<const BodyWeightSample> weights, UUID id) {
  return withID(weights, id, &BodyWeightSample::id);
}

Outcome addingFast(std::span<const FastRecord> fasts, FastRecord fast, Date now) {
  const FastRecord* running = runningFast(fasts);
  if (running && !fast.fast.finished) return refused(FastIsRunning{*running});
  if (const auto fault = recordFault(fast, now)) return refused(IsNoRecord{*fault});
  if (const FastRecord* same = sameFast(fasts, fast)) return refused(FastIsSavedAlready{*same});
  return adding(std::move(fast));
}

Outcome stopping(std::span<const FastRecord> fasts, Date end, Date now) {
  const FastRecord* running = runningFast(fasts);
  if (!running) return refused(NoFastIsRunning{});
  FastRecord ended = stopped(*running, end);
  if (const auto fault = recordFault(ended, now)) return refused(IsNoRecord{*fault, *running});
  return isMistake(*ended.fast.finished) ? removing(*running) : replacing(*running, std::move(ended));
}

Outcome changingFast(std::span<const FastRecord> fasts, FastRecord after, Date now) {
  const FastRecord* before = fastWithID(fasts, after.fast.id);
  if (!before) return refused(IsGone{});
  const FastRecord* running = runningFast(fasts);
  if (running && running != before && !after.fast.finished) return refused(FastIsRunning{*running});
  return replacedBy(*before, after, now);
}

Outcome changingStart(std::span<const FastRecord> fasts, Date start, Date now) {
  const FastRecord* running = runningFast(fasts);
  if (!running) return refused(NoFastIsRunning{});
  FastRecord after = *running;
  after.fast.start = keepingSeconds(running->fast.start, start);
  // A start that was wrong before is no excuse: it is what is being set.
  if (const auto fault = recordFault(after, now)) return refused(IsNoRecord{*fault});
  return replacedBy(*running, after, now);
}

Outcome changingGoal(std::span<const FastRecord> fasts, std::int64_t goalSeconds, Date now) {
  const FastRecord* running = runningFast(fasts);
  if (!running) return refused(NoFastIsRunning{});
  FastRecord after = *running;
  after.fast.goalSeconds = goalSeconds;
  return replacedBy(*running, after, now);
}

Date startOfMinute(Date date) {
  return dateSince1970(std::floor(secondsSince1970(date) / secondsPerMinute) * secondsPerMinute);
}

double untilNextMinute(Date date) { return secondsPerMinute - secondsBetween(startOfMinute(date), date); }

Date keepingSeconds(Date old, Date chosen) { return startOfMinute(old) == startOfMinute(chosen) ? old : chosen; }

Outcome removingFast(std::span<const FastRecord> fasts, UUID id) {
  const FastRecord* record = fastWithID(fasts, id);
  return record ? Outcome{removing(*record)} : refused(IsGone{});
}

Outcome addingWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& sample, WeightUnit unit,
                     const MassFormatter& masses, Date now) {
  if (const auto fault = recordFault(sample, now)) return refused(IsNoRecord{*fault});
  if (const auto* same = sameWeight(weights, sample, unit, masses)) return refused(IsSavedAlready{*same});
  return adding(sample);
}

Outcome changingWeight(std::span<const BodyWeightSample> weights, const BodyWeightSample& after, Date now) {
  const BodyWeightSample* before = weightWithID(weights, after.id);
  return before ? replacedBy(*before, after, now) : refused(IsGone{});
}

Outcome removingWeight(std::span<const BodyWeightSample> weights, UUID id) {
  const BodyWeightSample* sample = weightWithID(weights, id);
  return sample ? Outcome{removing(*sample)} : refused(IsGone{});
}

}  // namespace mivo::host
