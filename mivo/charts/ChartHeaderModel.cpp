// SPDX-License-Identifier: MIT
#include "mivo/charts/ChartHeaderModel.h"

#include "mivo/charts/VisibleSpan.h"
#include "mivo/platform/Dependencies.h"

namespace mivo {

ChartHeaderModel::ChartHeaderModel(TimeRange timeRange)
    : range{timeRange}, dateIntervalFormatter{dependency(&Dependencies::dateIntervalFormatter)} {
  const Date now = dependency(&Dependencies::date)->now();
  visible = {now, now};
}

void ChartHeaderModel::didUpdateScrollPosition(Date leading) {
  visible = visibleInterval(leading, range);
  formatted = dateIntervalFormatter->string(visible).value_or("");
  changes.send();
}

}  // namespace mivo
