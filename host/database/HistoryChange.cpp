// SPDX-License-Identifier: MIT
#include "host/database/HistoryChange.h"

#include <utility>

namespace mivo::host {

HistoryChange inverse(HistoryChange change) {
  std::swap(change.removedFasts, change.addedFasts);
  std::swap(change.removedWeights, change.addedWeights);
  return change;
}

}  // namespace mivo::host
