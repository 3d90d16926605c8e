// SPDX-License-Identifier: MIT
#include "host/fasting/FastDraft.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "host/fasting/OverlappingFasts.h"

namespace mivo::host {
namespace {

FastDraft changed(FastDraft draft, Date start, Date end, std::int64_t goalSeconds) {
  draft.record.fast = finishedFast(draft.record.fast.id, start, end, goalSeconds);
  draft.failure.clear();
  return draft;
}

struct Gap {
  Date from, to;
};

// The latest one of a minute at least that ends with a whole minute at or before a date, between the fasts that have
// ended.
Gap latestGap(std::span<const FastRecord> fasts, Date latest) {
  constexpr Duration shortest{60};
  std::vector<FinishedFastingDataEntry> ended;
  for (const FastRecord& record : fasts)
    if (record.fast.finished) ended.push_back(*record.fast.finished);
  std::ranges::sort(ended, std::greater{}, &FinishedFastingDataEntry::end);
  Date to = startOfMinute(latest);
  for (const FinishedFastingDataEntry& fast : ended) {
    if (fast.start >= to) continue;
    if (fast.end + shortest <= to) return {fast.end, to};
    to = startOfMinute(fast.start);
  }
  return {firstDate, to};
}

}  // namespace

FastDraft draftOf(const FastRecord& record) { return {.record = record, .before = record, .failure = {}}; }

FastDraft newDraft(std::span<const FastRecord> fasts, UUID id, std::int64_t goalSeconds, Date now) {
  const FastRecord* running = runningFast(fasts);
  const auto [from, end] = latestGap(fasts, running ? std::min(now, running->fast.start) : now);
  const Date start = std::max(from, end - Duration{static_cast<double>(goalSeconds)});
  return {.record = {finishedFast(id, start, end, goalSeconds), {}}, .before = {}, .failure = {}};
}

FastDraft withStart(FastDraft draft, Date start) {
  const FastingDataEntry fast = draft.record.fast;
  return changed(std::move(draft), keepingSeconds(fast.start, start), fast.finished->end, fast.goalSeconds);
}

FastDraft withEnd(FastDraft draft, Date end) {
  const FastingDataEntry fast = draft.record.fast;
  return changed(std::move(draft), fast.start, keepingSeconds(fast.finished->end, end), fast.goalSeconds);
}

FastDraft withGoal(FastDraft draft, std::int64_t goalSeconds) {
  const FastingDataEntry fast = draft.record.fast;
  return changed(std::move(draft), fast.start, fast.finished->end, goalSeconds);
}

FastDraft withNote(FastDraft draft, std::string note) {
  draft.record.note = std::move(note);
  draft.failure.clear();
  return draft;
}

std::optional<RecordFault> faultOf(const FastDraft& draft, Date now) {
  return recordFault(draft.record, draft.before, now);
}

const FastRecord* overlapOf(const FastDraft& draft, std::span<const FastRecord> fasts, Date now) {
  const FastRecord* last = nullptr;
  for (const FastRecord& other : fasts)
    if (other.fast.id != draft.record.fast.id && shareTime(draft.record, other, now)) last = &other;
  return last;
}

Outcome saving(const FastDraft& draft, std::span<const FastRecord> fasts, Date now) {
  return draft.before ? changingFast(fasts, draft.record, now) : addingFast(fasts, draft.record, now);
}

}  // namespace mivo::host
