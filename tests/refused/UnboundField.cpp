// SPDX-License-Identifier: MIT
// error: could not convert
// error: cannot convert
// error: no viable conversion
// error: no matching function for call
#include "mivo/statistics/StatisticsFeature.h"

using State = mivo::StatisticsFeature::State;
using Action = mivo::StatisticsFeature::Action;

#ifdef FAULT
Action action = Action::binding{mivo::Write<&State::showHealthKitCard>{true}};
#else
Action action = Action::binding{mivo::Write<&State::timeRange>{mivo::TimeRange::week}};
#endif
