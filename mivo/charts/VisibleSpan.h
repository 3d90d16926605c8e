// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Date.h"
#include "mivo/model/TimeRange.h"

namespace mivo {

/// How much time a line chart shows at once, in seconds: 7, 30 and 180 days. A year's chart shows half a year, so that
/// its points stay apart.
constexpr double visibleSpan(TimeRange range) {
  switch (range) {
    case TimeRange::week:
      return 7 * secondsPerDay;
    case TimeRange::month:
      return 30 * secondsPerDay;
    case TimeRange::year:
      return 180 * secondsPerDay;
  }
  return 0;
}

/// What is on screen once a chart of that range has scrolled to a leading date.
constexpr DateInterval visibleInterval(Date leading, TimeRange range) {
  return {leading, leading + Duration{visibleSpan(range)}};
}

}  // namespace mivo
