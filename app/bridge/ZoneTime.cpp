// SPDX-License-Identifier: MIT
#include "ZoneTime.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

QString zoneKey(LegacyFastingZone zone) { return QString::fromUtf8(caseName(zone).data()); }

QString zoneName(LegacyFastingZone zone) {
  return qString(dependency(&Dependencies::texts)->text(displayString(zone)));
}

QString durationText(double seconds) {
  const auto& durations = dependency(&Dependencies::hourMinDurationUnitFormatter);
  return qString(durations->string(std::max(0.0, seconds)).value_or(""));
}

}  // namespace mivo::app
