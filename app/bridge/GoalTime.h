// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <optional>

namespace mivo::app {

/// A goal as people type it, in seconds: "17" and "16.5" or "16,5" are hours, "16:30" hours and minutes. Nothing for
/// another text, for no time at all and for more than a year of hours.
std::optional<double> parseGoalTime(const QString& text);

/// "16h", "16h 30m", in the user's language.
QString goalText(double seconds);

/// For a field to type in: "16:30"; "16" where no minutes are left over.
QString goalTimeText(double seconds);

}  // namespace mivo::app
