// SPDX-License-Identifier: MIT
#include "host/fasting/HistoryChange.h"

#include <algorithm>
#include <utility>

namespace mivo::host {
namespace {

template <class Record, class Instant>
void apply(const std::vector<Record>& removed, const std::vector<Record>& added, std::vector<Record>& records,
           Instant instant) {
  std::erase_if(records, [&](const Record& record) {
    return std::ranges::any_of(removed, [&](const Record& gone) { return idOf(gone) == idOf(record); });
  });
  for (const Record& record : added)
    records.insert(std::ranges::upper_bound(records, instant(record), {}, instant), record);
}

}  // namespace

HistoryChange adding(FastRecord record) {
  HistoryChange change;
  change.addedFasts.push_back(std::move(record));
  return change;
}

HistoryChange removing(FastRecord record) { return inverse(adding(std::move(record))); }

HistoryChange replacing(FastRecord before, FastRecord after) {
  HistoryChange change = adding(std::move(after));
  change.removedFasts.push_back(std::move(before));
  return change;
}

HistoryChange adding(const BodyWeightSample& sample) {
  HistoryChange change;
  change.addedWeights.push_back(sample);
  return change;
}

HistoryChange removing(const BodyWeightSample& sample) { return inverse(adding(sample)); }

HistoryChange replacing(const BodyWeightSample& before, const BodyWeightSample& after) {
  HistoryChange change = adding(after);
  change.removedWeights.push_back(before);
  return change;
}

HistoryChange inverse(HistoryChange change) {
  std::swap(change.removedFasts, change.addedFasts);
  std::swap(change.removedWeights, change.addedWeights);
  return change;
}

void apply(const HistoryChange& change, std::vector<FastRecord>& fasts, std::vector<BodyWeightSample>& weights) {
  apply(change.removedFasts, change.addedFasts, fasts, [](const FastRecord& record) { return record.fast.start; });
  apply(change.removedWeights, change.addedWeights, weights,
        [](const BodyWeightSample& sample) { return sample.date; });
}

}  // namespace mivo::host
