// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include "mivo/model/LegacyFastingZone.h"

namespace mivo::app {

/// "fatBurning", and its name in the user's language.
QString zoneKey(LegacyFastingZone zone);
QString zoneName(LegacyFastingZone zone);

/// "16h 42m" in the user's language; never negative.
QString durationText(double seconds);

}  // namespace mivo::app
