// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace mivo::app {

/// "16h", "16h 30m", in the user's language.
QString goalText(double seconds);

}  // namespace mivo::app
