// SPDX-License-Identifier: MIT
#include "mivo/platform/UserDefaults.h"

namespace mivo {
namespace {

constexpr std::string_view countingEntityKey = "streakCountingEntity";
constexpr std::string_view ignoreFastGoalKey = "streakIgnoreFastGoal";
constexpr std::string_view maxBreakHoursKey = "streakMaxBreakHours";
constexpr std::string_view healthKitSyncKey = "healthKitSync";
constexpr std::string_view fastsValue = "fasts", daysValue = "days";

template <class Type>
Type valueOr(const std::optional<UserDefaults::Value>& value, const Type& fallback) {
  const Type* held = value ? std::get_if<Type>(&*value) : nullptr;
  return held ? *held : fallback;
}

}  // namespace

bool UserDefaults::boolean(std::string_view key, bool fallback) const { return valueOr(value(key), fallback); }

std::int64_t UserDefaults::integer(std::string_view key, std::int64_t fallback) const {
  return valueOr(value(key), fallback);
}

double UserDefaults::number(std::string_view key, double fallback) const { return valueOr(value(key), fallback); }

std::string UserDefaults::text(std::string_view key, std::string_view fallback) const {
  return valueOr(value(key), std::string{fallback});
}

StreakSettings::CountingEntity UserDefaults::streakCountingEntity() const {
  return text(countingEntityKey, daysValue) == fastsValue ? StreakSettings::CountingEntity::fasts
                                                          : StreakSettings::CountingEntity::days;
}

bool UserDefaults::streakIgnoreFastGoal() const { return boolean(ignoreFastGoalKey, StreakSettings{}.ignoreFastGoal); }

std::int64_t UserDefaults::streakMaxBreakHours() const {
  return integer(maxBreakHoursKey, StreakSettings{}.maxBreakHours);
}

void UserDefaults::setStreakSettings(const StreakSettings& settings) const {
  const bool countsFasts = settings.countingEntity == StreakSettings::CountingEntity::fasts;
  setValue(countingEntityKey, std::string{countsFasts ? fastsValue : daysValue});
  setValue(ignoreFastGoalKey, settings.ignoreFastGoal);
  setValue(maxBreakHoursKey, settings.maxBreakHours);
}

bool UserDefaults::healthKitSync() const { return boolean(healthKitSyncKey, false); }

void UserDefaults::setHealthKitSync(bool isOn) const { setValue(healthKitSyncKey, isOn); }

}  // namespace mivo
