// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/texts/QuantityTexts.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/Formatters.h"

namespace mivo::adapters {

enum class DurationUnits { hoursAndMinutes, hours };

/// Rounded to the millisecond, so that a sum which misses a whole minute by its last digit has that minute, then
/// truncated; a minus sign in front of a negative one unless nothing is left of it.
Client<DurationFormatter> durationFormatter(Client<QuantityTexts> texts, DurationUnits units);

/// Kilograms and pounds with one digit, stones with whole pounds; halves are rounded away from zero.
Client<MassFormatter> massFormatter(Client<QuantityTexts> texts);

/// Up to three digits after the decimal sign; halves are rounded away from zero; what rounds to nothing has no sign.
Client<NumberFormatter> numberFormatter(Client<QuantityTexts> texts);

}  // namespace mivo::adapters
