// SPDX-License-Identifier: MIT
#include "host/app/CarriedSettings.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "mivo/statistics/DashboardSettingsFeature.h"

namespace mivo::host {
namespace {

using Value = UserDefaults::Value;

/// Every setting that is carried, each with a value of its kind: of the group's defaults, and of the app's.
std::vector<Setting> kindsOfGroup() {
  return {{"streakCountingEntity", std::string{}},
          {"streakIgnoreFastGoal", false},
          {"streakMaxBreakHours", std::int64_t{0}}};
}

std::vector<Setting> kindsOfApp() {
  std::vector<Setting> all{
      {"goalWeightInKg", 0.0},     {"weightUnit", std::string{}},     {"fastGoalSeconds", std::int64_t{0}},
      {"language", std::string{}}, {"firstWeekday", std::int64_t{0}}, {"appearance", std::string{}},
      {"textScale", 0.0},          {"reducedMotion", false}};
  const DashboardSettingsFeature::State flags;
  fields(flags, [&](std::string_view name, const auto&) { all.push_back({std::string{name}, false}); });
  return all;
}

/// A value as one of another's kind: a whole number will do for any.
std::optional<Value> asKindOf(const Value& kind, const Value& value) {
  if (kind.index() == value.index()) return value;
  const auto* const whole = std::get_if<std::int64_t>(&value);
  if (whole && std::holds_alternative<double>(kind)) return static_cast<double>(*whole);
  return std::nullopt;
}

void addChosen(const std::vector<Setting>& kinds, const UserDefaults& defaults, std::vector<Setting>& chosen) {
  for (const auto& [key, kind] : kinds)
    if (const auto value = defaults.value(key); value && asKindOf(kind, *value)) chosen.push_back({key, *value});
}

std::size_t chooseThose(const std::vector<Setting>& kinds, std::span<const Setting> settings,
                        const UserDefaults& defaults) {
  std::size_t count = 0;
  for (const auto& [key, kind] : kinds) {
    const auto brought = std::ranges::find(settings, key, &Setting::key);
    const auto value = brought == settings.end() ? std::nullopt : asKindOf(kind, brought->value);
    if (!value) continue;
    defaults.setValue(key, value);
    ++count;
  }
  return count;
}

}  // namespace

std::vector<Setting> carriedSettings(const SettingScopes& scopes) {
  std::vector<Setting> chosen;
  addChosen(kindsOfApp(), scopes.app, chosen);
  addChosen(kindsOfGroup(), scopes.group, chosen);
  return chosen;
}

std::size_t choose(std::span<const Setting> settings, const SettingScopes& scopes) {
  return chooseThose(kindsOfApp(), settings, scopes.app) + chooseThose(kindsOfGroup(), settings, scopes.group);
}

}  // namespace mivo::host
