// SPDX-License-Identifier: MIT
// error: could not convert
// error: cannot convert
// error: no viable conversion
#include "mivo/statistics/StatisticsFeature.h"
#include "mivo/store/Store.h"

using mivo::StatisticsFeature;

void tap(mivo::Store<StatisticsFeature>& store) {
  const mivo::ScrollChartFeature::Action child = mivo::ScrollChartFeature::Action::didTapBar{mivo::UUID{}};
#ifdef FAULT
  store.send(child);
#else
  store.send(StatisticsFeature::Action::fastingChartAction{child});
#endif
}
