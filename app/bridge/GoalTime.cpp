// SPDX-License-Identifier: MIT
#include "GoalTime.h"

#include "app/bridge/Text.h"
#include "mivo/fasting/GoalTime.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

QString goalText(double seconds) {
  return qString(mivo::goalText(seconds, *dependency(&Dependencies::hourDurationUnitFormatter),
                                *dependency(&Dependencies::hourMinDurationUnitFormatter)));
}

}  // namespace mivo::app
