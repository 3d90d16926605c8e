// SPDX-License-Identifier: MIT
#include "ZoneTime.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

constexpr auto firstZone = static_cast<std::size_t>(LegacyFastingZone::anabolic);

}  // namespace

LegacyFastingZone zoneAfter(double seconds) {
  const auto begun = std::ranges::count_if(zoneBounds, [seconds](double bound) { return bound <= seconds; });
  return allFastingZones[firstZone + static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, begun - 1))];
}

QString zoneKey(LegacyFastingZone zone) { return QString::fromUtf8(caseName(zone).data()); }

QString zoneName(LegacyFastingZone zone) {
  return qString(dependency(&Dependencies::texts)->text(displayString(zone)));
}

QList<ZoneTime> zoneTimes(double seconds) {
  QList<ZoneTime> times;
  const LegacyFastingZone last = zoneAfter(seconds);
  for (std::size_t place = 0; place < zoneBounds.size(); ++place) {
    const LegacyFastingZone zone = allFastingZones[firstZone + place];
    const double end = zone == last ? seconds : zoneBounds[place + 1];
    times.append({zoneKey(zone), zoneName(zone), durationText(end - zoneBounds[place]), zone == last});
    if (zone == last) break;
  }
  return times;
}

QString durationText(double seconds) {
  const auto& durations = dependency(&Dependencies::hourMinDurationUnitFormatter);
  return qString(durations->string(std::max(0.0, seconds)).value_or(""));
}

}  // namespace mivo::app
