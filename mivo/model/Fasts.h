// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/model/UUID.h"

namespace mivo {

/// A fast that has ended. Three words, because every calculation reads a whole history of them; notes and the like stay
/// with the host.
struct FinishedFastingDataEntry {
  Date start, end;
  std::int64_t goalSeconds = 0;  ///< the length that the user set out to fast

  /// Seconds from start to end; 0 where it ends before it starts.
  double duration() const { return std::max(0.0, secondsBetween(start, end)); }
  bool operator==(const FinishedFastingDataEntry&) const = default;
};

template <RecordOf<FinishedFastingDataEntry> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [start, end, goalSeconds] = record;
  visit("start", start);
  visit("end", end);
  visit("goalSeconds", goalSeconds);
}

/// One recorded fast. `finished` is there once it has ended.
struct FastingDataEntry {
  UUID id;
  Date start;
  std::int64_t goalSeconds = 0;
  std::optional<FinishedFastingDataEntry> finished;
  bool operator==(const FastingDataEntry&) const = default;
};

template <RecordOf<FastingDataEntry> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, start, goalSeconds, finished] = record;
  visit("id", id);
  visit("start", start);
  visit("goalSeconds", goalSeconds);
  visit("finished", finished);
}

/// A fast from `start` to `end`, as it is recorded once it has ended.
FastingDataEntry finishedFast(UUID id, Date start, Date end, std::int64_t goalSeconds);

/// A fast that is still running.
FastingDataEntry ongoingFast(UUID id, Date start, std::int64_t goalSeconds);

/// What the durations of some fasts come to, in seconds; 0 for none.
struct Durations {
  double total = 0, longest = 0;
  bool operator==(const Durations&) const = default;
};

/// Both in one pass. The sum is taken in four parts, so a total of fractions may differ in its last digits from one
/// taken in order.
Durations durations(std::span<const FinishedFastingDataEntry> fasts);

/// Sum of the durations, in seconds; 0 for none.
double totalDuration(std::span<const FinishedFastingDataEntry> fasts);

/// The longest duration, in seconds; 0 for none.
double longestFast(std::span<const FinishedFastingDataEntry> fasts);

}  // namespace mivo
