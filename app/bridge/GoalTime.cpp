// SPDX-License-Identifier: MIT
#include "GoalTime.h"

#include <QtCore/QRegularExpression>

#include <cmath>

#include "app/bridge/Text.h"
#include "app/bridge/ZoneTime.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

constexpr double secondsPerMinute = 60, minutesPerHour = 60, mostHours = 8784;

}  // namespace

std::optional<double> parseGoalTime(const QString& text) {
  static const QRegularExpression form{QStringLiteral(R"(^\s*(\d{1,4})(?:[.,](\d{1,4})|:([0-5]\d))?\s*h?\s*$)")};
  const auto match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const double fraction = (QStringLiteral("0.") + match.captured(2) + QLatin1Char{'0'}).toDouble();
  const double hours = match.captured(1).toDouble() + fraction + match.captured(3).toDouble() / minutesPerHour;
  const double minutes = std::round(hours * minutesPerHour);
  if (minutes < 1 || hours > mostHours) return std::nullopt;
  return minutes * secondsPerMinute;
}

QString goalText(double seconds) {
  if (std::fmod(seconds, secondsPerHour) >= secondsPerMinute) return durationText(seconds);
  return qString(dependency(&Dependencies::hourDurationUnitFormatter)->string(seconds).value_or(""));
}

QString goalTimeText(double seconds) {
  const auto minutes = static_cast<long long>(seconds / secondsPerMinute);
  const auto hours = minutes / static_cast<long long>(minutesPerHour), rest = minutes % 60;
  if (rest == 0) return QString::number(hours);
  return QStringLiteral("%1:%2").arg(hours).arg(rest, 2, 10, QLatin1Char{'0'});
}

}  // namespace mivo::app
