// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include "mivo/model/Date.h"

namespace mivo::app {

/// "Today, 13:24", "Yesterday, 20:42", else "Tue 9 Jun, 20:02", in the user's language and calendar.
QString dateTimeText(Date date);

}  // namespace mivo::app
