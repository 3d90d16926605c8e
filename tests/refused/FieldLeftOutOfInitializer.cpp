// SPDX-License-Identifier: MIT
// error: use of deleted function
// error: call to deleted constructor of
#include "mivo/store/Observed.h"

struct Stats {
  mivo::Observed<int> totalFasts;
  mivo::Observed<double> averageFast;
};

#ifdef FAULT
Stats stats{.totalFasts = 0};
#else
Stats stats{.totalFasts = 0, .averageFast = 0.0};
#endif
