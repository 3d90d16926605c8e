// SPDX-License-Identifier: MIT
#include "host/fasting/OverlapRepair.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "host/fasting/OverlappingFasts.h"

namespace mivo::host {
namespace {

Date startOf(const FastRecord& record) { return record.fast.start; }

void setStart(FastRecord& record, Date start) {
  record.fast.start = start;
  if (record.fast.finished) record.fast.finished->start = start;
}

std::string joined(const std::string& one, const std::string& other) {
  if (one.empty() || one == other) return other;
  return other.empty() ? one : one + "\n" + other;
}

// `earlier` keeps its id.
FastRecord merged(const FastRecord& earlier, const FastRecord& later, Date now) {
  const UUID id = earlier.fast.id;
  const std::int64_t goalSeconds = std::max(earlier.fast.goalSeconds, later.fast.goalSeconds);
  const bool isRunning = !earlier.fast.finished || !later.fast.finished;
  const Date start = startOf(earlier);
  const Date end = std::max(endOf(earlier, now), endOf(later, now));
  return {isRunning ? mivo::ongoingFast(id, start, goalSeconds) : finishedFast(id, start, end, goalSeconds),
          joined(earlier.note, later.note)};
}

bool overlapByHalf(const FastRecord& earlier, const FastRecord& later, Date now) {
  const double overlap = secondsBetween(startOf(later), std::min(endOf(earlier, now), endOf(later, now)));
  const double shorter = std::min(secondsBetween(startOf(earlier), endOf(earlier, now)),
                                  secondsBetween(startOf(later), endOf(later, now)));
  return 2 * overlap >= shorter;
}

// What is still to be placed, by start; those of one start in their order.
using Waiting = std::multimap<Date, FastRecord>;

std::vector<FastRecord> repaired(Waiting waiting, Date now) {
  std::vector<FastRecord> placed;
  while (!waiting.empty()) {
    FastRecord next = std::move(waiting.extract(waiting.begin()).mapped());
    if (placed.empty() || startOf(next) >= endOf(placed.back(), now)) {
      placed.push_back(std::move(next));
    } else if (overlapByHalf(placed.back(), next, now)) {
      placed.back() = merged(placed.back(), next, now);
    } else {
      setStart(next, endOf(placed.back(), now));
      waiting.emplace(startOf(next), std::move(next));
    }
  }
  return placed;
}

// The one of `placed`, which are by start, that an instant lies within.
FastRecord* around(Date instant, std::vector<FastRecord>& placed, Date now) {
  const auto after = std::ranges::upper_bound(placed, instant, {}, startOf);
  if (after == placed.begin() || endOf(after[-1], now) <= instant) return nullptr;
  return &after[-1];
}

}  // namespace

HistoryChange overlapRepair(const std::vector<FastRecord>& fasts, Date now) {
  Waiting waiting;
  std::map<UUID, const FastRecord*> before;
  for (const FastRecord& record : fasts) {
    if (endOf(record, now) <= startOf(record)) continue;
    waiting.emplace(startOf(record), record);
    before.emplace(record.fast.id, &record);
  }
  HistoryChange change;
  std::vector<FastRecord> placed = repaired(std::move(waiting), now);
  for (const FastRecord& record : fasts) {
    FastRecord* const other = hasNoLength(record) ? around(startOf(record), placed, now) : nullptr;
    if (!other) continue;
    other->note = joined(other->note, record.note);
    change.removedFasts.push_back(record);
  }
  for (FastRecord& record : placed) {
    const auto original = before.extract(record.fast.id);
    if (*original.mapped() == record) continue;
    change.removedFasts.push_back(*original.mapped());
    change.addedFasts.push_back(std::move(record));
  }
  for (const auto& [id, record] : before) change.removedFasts.push_back(*record);  // went into another
  std::ranges::stable_sort(change.removedFasts, {}, startOf);
  return change;
}

}  // namespace mivo::host
