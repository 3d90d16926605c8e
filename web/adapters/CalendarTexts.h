// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "host/place/WeekCalendar.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::web {

/// Puts the browser's texts where the app looks for them. Dates are those of the calendar in the zone that it has at
/// the time, so that they follow where the user goes.
void fillTexts(Dependencies& clients, std::shared_ptr<const host::WeekCalendar> calendar);

}  // namespace mivo::web
