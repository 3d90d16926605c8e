// SPDX-License-Identifier: MIT
#include "mivo/statistics/LineCharts.h"

namespace mivo {

const List<BodyWeightSample>& weightLogs(const StatsContainer& stats, TimeRange range) {
  switch (range) {
    case TimeRange::week:
      return stats.weightLogsForWeek;
    case TimeRange::month:
      return stats.weightLogsForMonth;
    case TimeRange::year:
      break;
  }
  return stats.weightLogsForYear;
}

WeightFastingChart weightFastingChart(const StatsContainer& stats, TimeRange range) {
  switch (range) {
    case TimeRange::week:
      return {stats.weightAvgLogsForWeek, stats.fastingAvgLogsForWeek, range, stats.weightChartScaleForWeek,
              stats.fastingChartScaleForWeek};
    case TimeRange::month:
      return {stats.weightAvgLogsForMonth, stats.fastingAvgLogsForMonth, range, stats.weightChartScaleForMonth,
              stats.fastingChartScaleForMonth};
    case TimeRange::year:
      break;
  }
  return {stats.weightAvgLogsForYear, stats.fastingAvgLogsForYear, range, stats.weightChartScaleForYear,
          stats.fastingChartScaleForYear};
}

}  // namespace mivo
