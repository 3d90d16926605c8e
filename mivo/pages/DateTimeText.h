// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "mivo/pages/PageClients.h"

namespace mivo {

// Dates in the user's language and calendar. Those of another year than the present one name it.

/// "Today, 13:24", "Yesterday, 20:42", else "Tue 9 Jun, 20:02".
std::string dateTimeText(Date date, const PageClients& clients);

/// "Tue 9 Jun, 20:02", whenever that is.
std::string fixedDateTimeText(Date date, const PageClients& clients);

/// "Tue 9 Jun"
std::string dayText(Date date, const PageClients& clients);

/// "Overlaps the fast of Tue 9 Jun", of one that began then.
std::string overlapText(Date start, const PageClients& clients);

/// "20:02"
std::string clockText(Date date, const PageClients& clients);

/// How many days ahead a date is: 0 for one of today, -1 for yesterday; the largest number where the calendar cannot
/// tell.
std::int64_t daysFromToday(Date date, const PageClients& clients);

}  // namespace mivo
