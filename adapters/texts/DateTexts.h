// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace mivo::adapters {

/// Wall-clock times as a locale writes them in one calendar; zones are not its business. Thread: any.
class DateTexts {
 public:
  virtual ~DateTexts() = default;

  /// By a skeleton as in mivo/platform/Formatters.h; nothing where it is none.
  virtual std::optional<std::string> date(std::chrono::local_seconds wall, std::string_view skeleton) const = 0;

  /// From one day to another, which is inside and not the earlier one: "Jul 1 – 7, 2026".
  virtual std::optional<std::string> interval(std::chrono::local_days first, std::chrono::local_days last) const = 0;
};

}  // namespace mivo::adapters
