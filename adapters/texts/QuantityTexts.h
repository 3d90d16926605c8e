// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace mivo::adapters {

enum class Unit { hour, minute, kilogram, pound, stone };

/// Single numbers as a locale writes them: grouped, with its decimal sign, halves rounded away from zero, and without a
/// sign where nothing is left. Thread: any.
class QuantityTexts {
 public:
  static constexpr int mostFractionDigits = 3;

  virtual ~QuantityTexts() = default;

  virtual std::string number(std::int64_t number) const = 0;
  /// fractionDigits   0 to `mostFractionDigits`
  virtual std::string number(double number, int fractionDigits) const = 0;

  /// With its unit: those of time as narrow as they are written, "12h", those of weight short, "81.4 kg".
  virtual std::string quantity(double number, Unit unit, int fractionDigits) const = 0;

  /// Two quantities that are one measure: "12h 30m", "12 st 11 lb".
  virtual std::string joined(const std::string& first, const std::string& second) const = 0;
};

}  // namespace mivo::adapters
