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
  bool operator==(const HistoryChange&) const = default;
};

/// The change that undoes `change`.
HistoryChange inverse(HistoryChange change);

}  // namespace mivo::host
