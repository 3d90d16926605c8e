// SPDX-License-Identifier: MIT
// error: use of deleted function
// error: call to deleted constructor
#include "mivo/statistics/StatisticsFeature.h"

using Destination = mivo::StatisticsFeature::Destination;

#ifdef FAULT
Destination::Action action = Destination::Action::roadmap{Destination::RoadmapFeature::Action{}};
#else
Destination::Action action = Destination::Action::donations{mivo::DonationsFeature::Action::onAppear{}};
#endif
