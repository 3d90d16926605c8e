// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "mivo/model/StreakSettings.h"

namespace mivo {

/// A persisted store of small settings, read through typed accessors. Thread: any.
class UserDefaults {
 public:
  using Value = std::variant<bool, std::int64_t, double, std::string>;

  virtual ~UserDefaults() = default;
  /// Nothing where the key was never written.
  virtual std::optional<Value> value(std::string_view key) const = 0;
  /// On disk when it returns. Nothing removes the key.
  virtual void setValue(std::string_view key, std::optional<Value> value) const = 0;

  /// The value where it was written with that type, else the fallback.
  bool boolean(std::string_view key, bool fallback) const;
  std::int64_t integer(std::string_view key, std::int64_t fallback) const;
  double number(std::string_view key, double fallback) const;
  std::string text(std::string_view key, std::string_view fallback) const;

  /// The defaults are those of `StreakSettings`.
  StreakSettings::CountingEntity streakCountingEntity() const;
  bool streakIgnoreFastGoal() const;
  std::int64_t streakMaxBreakHours() const;
  void setStreakSettings(const StreakSettings& settings) const;

  bool healthKitSync() const;
  void setHealthKitSync(bool isOn) const;
};

}  // namespace mivo
