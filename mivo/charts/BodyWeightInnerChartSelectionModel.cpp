// SPDX-License-Identifier: MIT
#include "mivo/charts/BodyWeightInnerChartSelectionModel.h"

#include <utility>

#include "mivo/charts/InnerChartSelectionModel.h"
#include "mivo/platform/Dependencies.h"

namespace mivo {

BodyWeightInnerChartSelectionModel::BodyWeightInnerChartSelectionModel(List<BodyWeightSample> entries,
                                                                       TimeRange timeRange)
    : samples{std::move(entries)},
      range{timeRange},
      cancellable{
          voidSubject.debounce(selectionDebounce, dependency(&Dependencies::mainQueue)).subscribe([changes = changes] {
            changes.send();
          })} {}

void BodyWeightInnerChartSelectionModel::didUpdateRawSelectedDate(std::optional<Date> date) {
  touched = date;
  const BodyWeightSample* nearest = date ? samples.nearest(*date) : nullptr;
  selected = nearest ? std::optional{*nearest} : std::nullopt;
  voidSubject.send();
}

}  // namespace mivo
