// SPDX-License-Identifier: MIT
#include "mivo/charts/InnerChartSelectionModel.h"

#include <utility>

#include "mivo/platform/Dependencies.h"

namespace mivo {

InnerChartSelectionModel::InnerChartSelectionModel(List<WeightAverageEntry> weightEntries,
                                                   List<FastingAverageEntry> fastingEntries, TimeRange timeRange)
    : weights{std::move(weightEntries)},
      fasts{std::move(fastingEntries)},
      range{timeRange},
      cancellable{
          voidSubject.debounce(selectionDebounce, dependency(&Dependencies::mainQueue)).subscribe([changes = changes] {
            changes.send();
          })} {}

void InnerChartSelectionModel::didUpdateRawSelectedDate(std::optional<Date> date) {
  touched = date;
  selected = date ? nearestPair(weights, fasts, *date) : std::nullopt;
  voidSubject.send();
}

}  // namespace mivo
