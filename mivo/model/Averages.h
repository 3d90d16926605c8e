// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/model/UUID.h"

namespace mivo {

/// Average seconds per calendar day: of the range that is still running, and of the whole one before it.
struct AverageThisLastTimeRange {
  double thisTimeRange = 0, lastTimeRange = 0;
  bool operator==(const AverageThisLastTimeRange&) const = default;
};

template <RecordOf<AverageThisLastTimeRange> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [thisTimeRange, lastTimeRange] = record;
  visit("thisTimeRange", thisTimeRange);
  visit("lastTimeRange", lastTimeRange);
}

/// A point of the smoothed weight line: the average of the seven days up to and including `date`, in kilograms.
struct WeightAverageEntry {
  UUID id;
  Date date;
  double value = 0;
  bool operator==(const WeightAverageEntry&) const = default;
};

template <RecordOf<WeightAverageEntry> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, date, value] = record;
  visit("id", id);
  visit("date", date);
  visit("value", value);
}

/// A point of the fasting line: the seconds fasted in the 90 days up to `date`, and the same in hours.
struct FastingAverageEntry {
  UUID id;
  Date date;
  double value = 0;
  double hours = 0;
  bool operator==(const FastingAverageEntry&) const = default;
};

template <RecordOf<FastingAverageEntry> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, date, value, hours] = record;
  visit("id", id);
  visit("date", date);
  visit("value", value);
  visit("hours", hours);
}

}  // namespace mivo
