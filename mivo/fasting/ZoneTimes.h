// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo {

/// The zone that a fast is in after so many seconds; the first one before it began.
///
///     zoneAfter(4 * secondsPerHour);  // catabolic: a zone has its lower bound
LegacyFastingZone zoneAfter(double seconds);

/// How long a fast was in one of the zones.
struct ZoneTime {
  LegacyFastingZone zone = LegacyFastingZone::anabolic;
  double seconds = 0;
  bool isPresent = false;  ///< the zone that the fast has come to
  bool operator==(const ZoneTime&) const = default;
};

/// The zones that a fast of so many seconds went through, in their order; the first one for a fast of none. Their
/// seconds add up to those of the fast.
std::vector<ZoneTime> zoneTimes(double seconds);

}  // namespace mivo
