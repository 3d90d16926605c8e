// SPDX-License-Identifier: MIT
#include "mivo/charts/BodyWeightChartHeaderModel.h"

#include <utility>

#include "mivo/charts/VisibleSpan.h"

namespace mivo {

BodyWeightChartHeaderModel::BodyWeightChartHeaderModel(List<BodyWeightSample> entries, TimeRange timeRange)
    : weights{std::move(entries)}, header{timeRange} {}

void BodyWeightChartHeaderModel::didUpdateScrollPosition(Date leading) {
  visibleAverage = {.kilograms = weights.averageInKg(visibleInterval(leading, header.timeRange()))};
  header.didUpdateScrollPosition(leading);  // tells the observers, so it comes last
}

}  // namespace mivo
