// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "host/history/History.h"

namespace mivo::host {

/// Why a record that a user enters cannot be kept.
enum class RecordFault {
  startOutOfRange,  ///< outside the years 1 to 9999
  startInFuture,
  endOutOfRange,
  endBeforeStart,
  endInFuture,
  goalOutOfRange,  ///< negative, or more than `largestGoalHours`
  noteTooLong,     ///< or not UTF-8
  dateOutOfRange,  ///< of a weighing
  dateInFuture,
  weightOutOfRange,  ///< not above 0, or more than `largestTypedWeightInKg`
};

/// The first fault of a record, if it has one. Nobody records what has not happened yet, so a date after `now` is one:
/// it is a slip of the pen, or the clock is wrong. Files may bring such dates; only what is typed in is held to this.
std::optional<RecordFault> recordFault(const FastRecord& record, Date now);
std::optional<RecordFault> recordFault(const BodyWeightSample& sample, Date now);

/// The same for an edit of `before`, where there is one: a fault that the record had already is left in peace.
template <class Record>
std::optional<RecordFault> recordFault(const Record& record, const std::optional<Record>& before, Date now) {
  const auto fault = recordFault(record, now);
  return fault && before && recordFault(*before, now) == fault ? std::nullopt : fault;
}

}  // namespace mivo::host
