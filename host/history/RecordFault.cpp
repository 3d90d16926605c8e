// SPDX-License-Identifier: MIT
#include "host/history/RecordFault.h"

#include "host/history/FieldRules.h"

namespace mivo::host {

std::optional<RecordFault> recordFault(const FastRecord& record, Date now) {
  const auto& [id, start, goalSeconds, finished] = record.fast;
  if (!isRepresentable(start)) return RecordFault::startOutOfRange;
  if (start > now) return RecordFault::startInFuture;
  if (finished) {
    if (!isRepresentable(finished->end)) return RecordFault::endOutOfRange;
    if (finished->end < start) return RecordFault::endBeforeStart;
    if (finished->end > now) return RecordFault::endInFuture;
  }
  if (goalSeconds < 0 || static_cast<double>(goalSeconds) > largestGoalHours * secondsPerHour)
    return RecordFault::goalOutOfRange;
  if (!isNote(record.note)) return RecordFault::noteTooLong;
  return std::nullopt;
}

std::optional<RecordFault> recordFault(const BodyWeightSample& sample, Date now) {
  if (!isRepresentable(sample.date)) return RecordFault::dateOutOfRange;
  if (sample.date > now) return RecordFault::dateInFuture;
  if (!isTypedWeight(sample.weightInKg)) return RecordFault::weightOutOfRange;
  return std::nullopt;
}

}  // namespace mivo::host
