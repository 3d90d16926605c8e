// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "host/history/History.h"
#include "mivo/model/BodyWeightSample.h"

namespace mivo::host {

/// One step of a user's, as the records that it takes away and those that it adds; an edit takes the old record away
/// and adds the new one under the same id. It is done as a whole or not at all, and its inverse undoes it.
struct HistoryChange {
  std::vector<FastRecord> removedFasts, addedFasts;
  std::vector<BodyWeightSample> removedWeights, addedWeights;
  bool isEmpty() const { return *this == HistoryChange{}; }
  bool operator==(const HistoryChange&) const = default;
};

// The steps that users take most.
HistoryChange adding(FastRecord record);
HistoryChange removing(FastRecord record);
/// `after` has the id of `before`.
HistoryChange replacing(FastRecord before, FastRecord after);
HistoryChange adding(const BodyWeightSample& sample);
HistoryChange removing(const BodyWeightSample& sample);
HistoryChange replacing(const BodyWeightSample& before, const BodyWeightSample& after);

/// The change that undoes `change`.
HistoryChange inverse(HistoryChange change);

/// Does a change to records that are held in memory, in the order in which a database gives them back: fasts by start,
/// weights by date, those of one instant as they were added. What is to be taken away is known by its id.
void apply(const HistoryChange& change, std::vector<FastRecord>& fasts, std::vector<BodyWeightSample>& weights);

}  // namespace mivo::host
