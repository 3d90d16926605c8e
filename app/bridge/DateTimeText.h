// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <string>

#include "mivo/model/Date.h"

namespace mivo::app {

// Dates in the user's language and calendar. Those of another year than the present one name it.

/// "Today, 13:24", "Yesterday, 20:42", else "Tue 9 Jun, 20:02".
QString dateTimeText(Date date);

/// "Tue 9 Jun, 20:02", whenever that is.
QString fixedDateTimeText(Date date);

/// "Tue 9 Jun"
std::string dayText(Date date);

/// "20:02"
std::string clockText(Date date);

/// How many days ahead a date is: 0 for one of today, -1 for yesterday.
std::int64_t daysFromToday(Date date);

}  // namespace mivo::app
